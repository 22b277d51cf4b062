#include "Aktentest.h"

#include <sstream>

#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <tavorena/records/Dis.h>
#include <tavorena/records/Linel.h>

namespace tavorena::test {
namespace {

class StapelTest : public Aktentest {
 protected:
  StapelTest() {
    Optionen.AbfrageRiss = true;
    StapelDatei.Name = Ordner.Pfad("a.sta");
    KoordinatendateiName = "/daten/auftrag/musterdorf.kor";
    LetzterPlan = {"Riss 12", "3"};
  }
  static std::string Ist() { return Inhalt(StapelDatei.Name); }
  static void Beginne(Stapelblock& B, std::vector<std::string> Sätze = StapelKopfLinie("1", 0, "2", 0),
                      const char* Titel = "VR 24.40 Linienelemente", bool EndeMitZeilen = true) {
    Verbindung V;
    V.Titel = Titel;
    V.Riß = LetzterPlan;
    V.Sätze = std::move(Sätze);
    V.EndeMitZeilen = EndeMitZeilen;
    ASSERT_EQ(B.Beginnen(std::make_shared<const Verbindung>(std::move(V))), 0);
  }
  static int Füge(Stapelblock& B, const std::string& Satz) {
    int Griff = -1;
    EXPECT_EQ(B.Anfügen(Satz, Griff), 0);
    return Griff;
  }
  // A replay whose worksheet hands its block to Lesen.
  void Laufen(const std::string& Text, const std::function<void()>& Lesen) {
    StapelHaken.BlattFür = [=](const std::string& Kennung) -> std::function<void()> {
      if (Kennung != "24.40" && Kennung != "LE") return {};
      return [=] {
        Lesen();
        if (Stapel.Aktiv) StapelWeiter();
      };
    };
    Schreibe(StapelDatei.Name, Text);
    StapelStarten(StapelDatei.Name);
  }
};

TEST_F(StapelTest, BlöckeMitIhrenSätzen) {
  Stapelblock L, D;
  Beginne(L, StapelKopfLinie("1001", 0, "1002", 99.93));
  EXPECT_FALSE(DateiVorhanden(StapelDatei.Name));  // nothing before the first record
  Füge(L, LinelSatz("2003"));
  const int Griff = Füge(L, LinelSatz("2004"));
  Füge(L, LinelSatz("2005"));
  for (const int Soll : {0, -1}) EXPECT_EQ(Stapelblock::Entfernen(Griff), Soll);  // it is gone
  Füge(L, LinelSatz("2006"));
  ASSERT_EQ(L.Beenden(), 0);
  Optionen.AbfrageRiss = false;
  Beginne(D, StapelKopfLinie("1", 0, "2", 0), "VR 22.10 Entfernungskontrolle", false);
  for (const std::string& Satz :
       {std::string(), DisSatz("2", "3", 55.5), StapelNeupunkt("12", ""), StapelNeupunkt("", "")})
    Füge(D, Satz);
  for (int i = 0; i < 2; ++i) ASSERT_EQ(D.Beenden(), 0);
  EXPECT_TRUE(GleichSoll(Ist(), "records/soll/bloecke.sta"));
}

// Two worksheets in turn: whole blocks in the order of work, and each row can still be taken out.
TEST_F(StapelTest, ZweiBlätterSchreibenGanzeBlöcke) {
  Optionen.AbfrageRiss = false;
  Stapelblock A, B;
  Beginne(A);
  Beginne(B, StapelKopfLinie("3", 0, "4", 0));
  const int Erster = Füge(A, LinelSatz("11"));
  Füge(B, LinelSatz("21"));
  EXPECT_FALSE(A.Offen());
  Füge(A, LinelSatz("12"));
  EXPECT_EQ(Stapelblock::Entfernen(Erster), 0);
  ASSERT_TRUE(Gleich(A.Beenden(), 0, B.Beenden(), 0));  // B is over already
  const std::string
      Kopf =
          "M  VR 24.40 Linienelemente\r\nC  Tavorena             01.02.2003   10:15\r\n"
          "C  Datei: /daten/auftrag/musterdorf.kor\r\n",
      Ende = "E Ende\r\nEM  (Ende Modul  VR 24.40 Linienelemente)\r\nC ________________________\r\n",
      A12 = "PAN        1        0.0000\r\nPEN        2        0.0000\r\n",
      B34 = "PAN        3        0.0000\r\nPEN        4        0.0000\r\n";
  EXPECT_EQ(Ist(), Kopf + A12 + Ende + Kopf + B34 + "NR        21\r\n" + Ende + Kopf + A12 +
                       "NR        12\r\n" + Ende);
}

TEST_F(StapelTest, EntfernenInFremderKodierung) {
  Schreibe(StapelDatei.Name, "C M\xFCller\r\n");
  KoordinatendateiName = "/Süd.kor";
  Stapelblock B;
  Beginne(B);
  const int Griff = Füge(B, LinelSatz("ä1"));
  const int Zweiter = Füge(B, LinelSatz("ä2"));
  EXPECT_EQ(Stapelblock::Entfernen(Griff), 0);
  EXPECT_TRUE(Ist().starts_with("C M\xFCller\r\n"));
  EXPECT_TRUE(
      Ist().ends_with("PEN        2        0.0000\r\nNR        \xE4"
                      "2\r\n"))
      << Ist();
  const std::string Fremd = Ist() + "von Hand";
  Schreibe(StapelDatei.Name, Fremd);  // somebody else's now: it is left alone
  EXPECT_EQ(Stapelblock::Entfernen(Zweiter), -1);
  Füge(B, LinelSatz("3"));
  EXPECT_EQ(Stapelblock::Entfernen(Zweiter), -1);
  EXPECT_EQ(Ist(), Fremd + "NR         3\r\n");
  Schreibe(StapelDatei.Name, Ist() + "M  VR 08.40\r\nNR 7\r\n");  // another program's block: ours begins anew
  Füge(B, LinelSatz("4"));
  EXPECT_NE(Ist().find("NR 7\r\nM  "), std::string::npos) << Ist();
}

#ifndef _WIN32  // fork
// Each record stands below its own head, and none is lost.
TEST_F(StapelTest, ZweiProgrammeSchreibenZugleich) {
  constexpr int Sätze = 2000;
  const pid_t Kind = fork();
  const char* const Ich = Kind == 0 ? "7" : "8";
  while (Kind != 0 && !DateiVorhanden(StapelDatei.Name)) {
  }
  Stapelblock B;
  Beginne(B, StapelKopfLinie(Ich, 0, Ich, 0));
  for (int i = 0; i < Sätze; ++i) Füge(B, LinelSatz(Ich));
  if (Kind == 0) _exit(0);
  ASSERT_EQ(waitpid(Kind, nullptr, 0), Kind);
  int Gut = 0;
  std::istringstream Worte(Ist());
  for (std::string Wort, Nummer, Unter; Worte >> Wort;) {
    if (Wort == "PAN" || Wort == "NR") Worte >> (Wort == "PAN" ? Unter : Nummer);
    Gut += Wort == "NR" && Nummer == Unter ? 1 : 0;
  }
  EXPECT_EQ(Gut, 2 * Sätze);
}
#endif

TEST_F(StapelTest, EntfernteDateiBeginntMitDemKopf) {
  Stapelblock B;
  Beginne(B);
  Füge(B, LinelSatz("1"));
  ASSERT_EQ(DateiLöschen(StapelDatei.Name), 0);
  Füge(B, LinelSatz("2"));
  EXPECT_TRUE(Ist().starts_with("M  VR 24.40")) << Ist();
}

TEST_F(StapelTest, OhneDateiGeschiehtNichts) {
  StapelDatei.Name.clear();
  Stapelblock B;
  Beginne(B);
  EXPECT_EQ(Füge(B, LinelSatz("1")), -1);
  EXPECT_FALSE(B.Offen());
}

TEST_F(StapelTest, SchreibfehlerÖffnetKeinenBlock) {
  StapelDatei.Name = Ordner.Pfad("fehlt/a.sta");
  Stapelblock B;
  Beginne(B);
  Skript.Erwarte("Fehler 57 in Stapelmodul.StapelKopf");
  int Griff = 7;
  EXPECT_TRUE(Gleich(B.Anfügen(LinelSatz("1"), Griff), -1, Griff, -1));
  EXPECT_FALSE(B.Offen());
}

TEST_F(StapelTest, FremdeZeilenWerdenÜbergangen) {
  int Blöcke = 0;
  Laufen(
      "lose Zeile\r\n\r\nM VR 09.00 ohne Ende\r\nM VR 65.00 Flächen\r\nPN 1\r\nE Ende\r\nEM x\r\n"
      "m vr le\r\nC Kommentar\r\nRISS  Riss 7 b\r\npan 1 1,5\r\nCassini\r\nPEN 2\r\nNR 3 9 9\r\ne\r\n"
      "EM\r\nM 3D WINKEL\r\nE\r\nM VR 24.40 Linienelemente\r\n",
      [&] {
        ++Blöcke;
        std::string A, E, P;
        double a = 9, e = 9;
        if (Blöcke == 2) {  // the file ends inside the block
          Skript.Erwarte("Fehler aufgetreten im Stapel\n" + StapelDatei.Name +
                         "\nZeile: 19\nUnerwartetes Dateiende");
          EXPECT_EQ(StapelLesenPnrMitWerte(A, a, E, e), -1);
          return;
        }
        EXPECT_TRUE(Gleich(StapelLesenPnrMitWerte(A, a, E, e), 0, A, "1", a, 1.5, E, "2", e, 0));
        EXPECT_TRUE(Gleich(StapelLesePnr("NR", P), 0, P, "3"));
        EXPECT_EQ(StapelLesePnr("NR", P), -2);
        EXPECT_TRUE(Gleich(Stapel.Art, "vr le", LetzterPlan.Riss, "Riss 7 b"));
      });
  EXPECT_TRUE(Gleich(Blöcke, 2, Stapel.Bilanz.Fehler, true, Stapel.Aktiv, false));
  EXPECT_EQ(Stapel.Bilanz.Übergangen, (std::vector<std::string>{"09.00", "65.00", "3D WINKEL"}));
}

TEST_F(StapelTest, FehlerBeendetDenLauf) {
  std::string P, S;
  double w = 0;
  int Enden = 0;
  StapelHaken.Schritt = [&](const std::string& Titel) { Enden += Titel.empty() ? 1 : 0; };
  Skript.Erwarte("Zeile: 1\nModulkopf fehlerhaft");
  Laufen("M XY 24.40\r\nM VR LE\r\n", [] { FAIL(); });
  EXPECT_EQ(Enden, 1);  // a run is told to have ended once
  StapelHaken.Schritt = {};
  Skript.Erwarte("Zeile: 1\nE ohne Block, nicht gerechnet: 1 Block");  // a lone "E" ends the run
  Laufen("E\r\nM VR LE\r\n", [] { FAIL(); });
  EXPECT_TRUE(Stapel.Bilanz.Fehler);
  Laufen("M VR LE\r\nRISS x\r\nBERNR  7\r\nNEUPUNKT  12  -\r\nNEUPUNKT  0 - -\r\nNND 1 2 3,5\r\nPXN 2\r\n",
         [&] {
           EXPECT_EQ(StapelLeseRisszeilen() + StapelLeseNeupunkt(P, S), 0);
           EXPECT_TRUE(Gleich(LetzterPlan.BerNr, "7", P, "12", S, ""));
           EXPECT_TRUE(Gleich(StapelLeseNeupunkt(P, S), 0, P, ""));
           EXPECT_TRUE(Gleich(StapelLeseZweiPnr("NND", P, S, w), 0, P, "1", S, "2", w, 3.5));
           Skript.Erwarte("Fehler 7 beim Lesen der Stapeldatei:\nPXN 2");
           EXPECT_EQ(StapelLeseNeupunkt(P, S), -1);
         });
  EXPECT_TRUE(Stapel.Bilanz.Fehler);
}

TEST_F(StapelTest, GrenzenDesLaufs) {
  StapelStarten("");
  Skript.Erwarte(Ordner.Pfad("fehlt.sta") + "\nFehler 53");
  StapelStarten(Ordner.Pfad("fehlt.sta"));
  Skript.Erwarte(" (ist ein Ordner)\nFehler 53");
  StapelStarten(Ordner.Pfad(""));
  int Blöcke = 0;
  std::string Text, P;
  for (int i = 0; i < 5000; ++i) Text += "M VR LE\r\nE\r\n";
  const auto Lesen = [&] {
    ++Blöcke;
    EXPECT_EQ(StapelLesePnr("NR", P), -2);
  };
  Laufen(Text + "C\r\n", Lesen);  // 10001 lines, block after block without recursion
  Skript.Erwarte("Fehler 9 in Stapelmodul.StapelStarten");
  Laufen(Text + "C\r\nC\r\n", Lesen);
  EXPECT_EQ(Blöcke, 5000);
}

}  // namespace
}  // namespace tavorena::test
