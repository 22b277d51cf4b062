#include "Testhilfe.h"

#include <cstdlib>
#include <sstream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {
namespace {

class StapelbefehlTest : public TabellenTest {
 protected:
  StapelbefehlTest() {
    Umgebungsvariable("TAVORENA_ORDNER", Ordner.Pfad("app").c_str());
    Schreibe(Auftrag.Koordinaten = Ordner.Pfad("a.kor"),
             "1001 3500100 5600200\r\n1002 3500160 5600280\r\n2003 3500130 5600230\r\n");
    Auftrag.Datei = Ordner.Pfad("a.sta");
    Auftrag.Speichern = Ordner.Pfad("b.kor");
  }
  ~StapelbefehlTest() override { Umgebungsvariable("TAVORENA_ORDNER"); }
  int Laufen(const std::string& Sta) {
    Schreibe(Auftrag.Datei, Sta);
    Aus.str("");
    Meldungen.str("");
    return SitzungFühren(Stapelbefehl(), Auftrag, {Aus, Meldungen, ""});
  }
  Aufruf Auftrag;
  std::ostringstream Aus, Meldungen;
  const std::string Gut =
      "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002 99.93\r\nNR 2003\r\nNR 1002\r\nE\r\n";
};

TEST_F(StapelbefehlTest, BerichtetJeBlock) {
  EXPECT_EQ(Laufen(Gut + "M VR 25.10 x\r\nPN 1\r\nE\r\nM 3D KUGEL\r\nE\r\n" + Gut), 0);
  EXPECT_EQ(Aus.str(),
            "VR 24.40 Linienelemente: 2 Zeilen, 1 Marken\nVR 24.40 Linienelemente: 2 Zeilen, 1 Marken\n"
            "übergangen: 25.10 (1 mal)\nübergangen: 3D KUGEL (1 mal)\nPunkte: 3  Zeilen: 4  Marken: 2\n");
  EXPECT_EQ(Meldungen.str(), "");
  const std::string Gespeichert = Inhalt(Auftrag.Speichern);
  EXPECT_EQ(std::count(Gespeichert.begin(), Gespeichert.end(), '\n'), 3);
}

TEST_F(StapelbefehlTest, LesefehlerBeendetOhneSpeichern) {
  EXPECT_EQ(Laufen(Gut + "M VR 24.40 x\r\nPXN 1\r\n"), 1);
  EXPECT_EQ(Meldungen.str(), Auftrag.Datei + ", Zeile 8: Fehler 8 beim Lesen der Stapeldatei: PXN 1\n");
  EXPECT_EQ(Inhalt(Auftrag.Speichern), "");
}

TEST_F(StapelbefehlTest, FrageOhneAntwortBeendetOhneSpeichern) {
  EXPECT_EQ(Laufen("M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 77\r\nNR 2003\r\nE\r\n" + Gut), 1);
  EXPECT_EQ(Meldungen.str(), Auftrag.Datei + ", Zeile 4: Frage ohne Antwort: Punkt 77 nicht vorhanden\n");
  EXPECT_EQ(Stapel.Bilanz.Blöcke, 1);  // nothing runs after it
  EXPECT_EQ(Inhalt(Auftrag.Speichern), "");
}

TEST_F(StapelbefehlTest, AntwortAufVergebeneNummer) {
  Laufen(Gut);
  Auftrag.Vorhanden = "mittel";
  Laufen(Gut);
  EXPECT_EQ(Haken.PunktVorhandenBehandeln({}).Wort, Konfliktwort::Mitteln);
  Auftrag.Vorhanden = "neu-umnumerieren=1001";  // 1001 and 1002 are taken
  Laufen(Gut);
  const Konfliktantwort Antwort = Haken.PunktVorhandenBehandeln({});
  EXPECT_TRUE(Antwort.Wort == Konfliktwort::NeuenNeunum && Antwort.NeuePnr == "1003") << Antwort.NeuePnr;
  for (const char* Falsch : {"alt-umnumerieren", "alt-umnumerieren=07", "mittel=7"}) {
    Auftrag.Vorhanden = Falsch;
    EXPECT_EQ(Laufen(Gut), FalscherAufruf) << Falsch;
  }
}

// A question that warns of a loss, as the shell asks it before saving.
TEST_F(StapelbefehlTest, TrotzdemBeantwortetWarnungen) {
  Konsolenbefehl Fragt = Stapelbefehl();
  Fragt.Tun = [](const Aufruf&, const Umfeld&) {
    return FrageJaNein("Trotzdem\nspeichern ?", "Tavorena", KnopfNein) == KnopfJa;
  };
  EXPECT_EQ(SitzungFühren(Fragt, Auftrag, {Aus, Meldungen, ""}), NichtGetan);
  EXPECT_EQ(Meldungen.str(),
            Auftrag.Datei + ": Frage ohne Antwort: Trotzdem speichern ? (Ja mit --trotzdem)\n");
  Auftrag.Trotzdem = true;
  EXPECT_EQ(SitzungFühren(Fragt, Auftrag, {Aus, Meldungen, ""}), Getan);
}

// What a file holds does nothing to the terminal, and does not fill it.
TEST_F(StapelbefehlTest, DateitexteSindHarmlos) {
  EXPECT_EQ(Laufen("M VR 24.40 \x1b[2J\xC2\x9B\x7F\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nNR " +
                   std::string(60, '7') + "\r\nE\r\n"),
            1);
  EXPECT_EQ(Aus.str().substr(0, Aus.str().find(':')), "VR 24.40 ␛[2J\uFFFD␡");
  EXPECT_NE(Meldungen.str().find("Punkt " + std::string(40, '7') + "… nicht"), std::string::npos);
}

// The example jobs, replayed in their folder, give the protocols that lie there, apart from the time.
TEST_F(StapelbefehlTest, BeispielGibtSeinProtokoll) {
  const fs::path Vorher = fs::current_path();
  for (const std::string Name : {"musterdorf", "tag"}) {
    fs::current_path(fs::path(TAVORENA_TESTS) / "../examples");
    Auftrag = {"musterdorf.kor", Ordner.Pfad(Name), "", "", false, Name + ".sta"};
    const int Ergebnis = SitzungFühren(Stapelbefehl(), Auftrag, {Aus, Meldungen, ""});
    fs::current_path(Vorher);
    EXPECT_EQ(Ergebnis, 0) << Meldungen.str();
    std::string Protokoll = Inhalt(Auftrag.Protokoll);
    const std::string Kopf = "|Tavorena", Stempel = "21.11.2026   09:30 |";
    for (std::size_t p = 0; (p = Protokoll.find(Kopf, p)) != std::string::npos; ++p) {
      Protokoll.replace(Protokoll.find('\r', p) - Stempel.size(), Stempel.size(), Stempel);
    }
    EXPECT_TRUE(GleichSoll(Protokoll, "../examples/" + Name + ".dru"));
  }
}

// On its own result eight of its new points lie elsewhere: every kind goes on with every answer.
TEST_F(StapelbefehlTest, BeispielMitVergebenenNummern) {
  const std::string Beispiel = std::string(TAVORENA_TESTS) + "/../examples/musterdorf.";
  const std::string Ergebnis = Ordner.Pfad("ergebnis.kor");
  for (const auto& [Antwort, Summe] : std::vector<std::pair<std::string, std::string>>{
           {"", "Punkte: 314  Zeilen: 147"},
           {"abbruch", "Punkte: 314  Zeilen: 138"},
           {"alt-loeschen", "Punkte: 314  Zeilen: 147"},
           {"mittel", "Punkte: 314  Zeilen: 147"},
           {"neu-loeschen", "Punkte: 314  Zeilen: 147"},
           {"alt-umnumerieren=9000", "Punkte: 323  Zeilen: 147"},
           {"neu-umnumerieren=9000", "Punkte: 323  Zeilen: 147"}}) {
    Auftrag = {Antwort.empty() ? Beispiel + "kor" : Ergebnis,
               Ordner.Pfad("m.dru"),
               Antwort,
               Antwort.empty() ? Ergebnis : "",
               false,
               Beispiel + "sta"};
    Aus.str("");
    EXPECT_EQ(SitzungFühren(Stapelbefehl(), Auftrag, {Aus, Meldungen, ""}), 0) << Antwort << Meldungen.str();
    EXPECT_NE(Aus.str().find(Summe), std::string::npos) << Antwort << Aus.str();
  }
}

}  // namespace
}  // namespace tavorena::test
