// The start page, what it knows of the recent files, and the example.
#include "Shelltest.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/shell/Verlauf.h>

namespace tavorena::test {
namespace {

class Start : public Shelltest {
 protected:
  // The page as the user sees it who has just come to it.
  Formular& Seite() {
    Formular& Form = *Skript.Füllend;
    Form.Öffnen();
    Form.BeiFokus();
    return Form;
  }
  void Schließe() {
    Skript.Erwarte("speichern ? ", KnopfNein);
    Befehl("MenüDateiSchließen");
  }
  // The page greets where it has no list to show.
  static bool Begrüßt(const Formular& Form) {
    const auto& Alle = Form.Steuerelemente();
    return std::any_of(Alle.begin(), Alle.end(),
                       [](const auto& S) { return S->Rahmen == "Willkommen" && S->Sichtbar; });
  }
  using Zeile = std::vector<std::string>;
  const std::string Hier = fs::path(A_kor).parent_path().string(),
                    Verlaufsdatei = Ordner.Pfad("app/TavorenaVerlauf.ini");
};

TEST_F(Start, KenntDieLetztenDateien) {
  EXPECT_TRUE(Gleich(Begrüßt(Seite()), true, Seite().Fokus()->Name, "StartBeispiel"));
  Öffne();
  EXPECT_FALSE(Skript.Füllend->Offen());
  Schließe();
  EXPECT_EQ(Gitterzeile(Gitterfeld(Seite()), 0), (Zeile{"1", "a.kor", Hier, "01.02.2003", "3 Punkte"}));
  // What is in the file counts, and the day on which it was closed.
  Skript.Uhr.Tag = 3;
  Seite().TasteDrücken(Taste::Ziffer0);  // there are not that many
  Seite().TasteDrücken(Taste::Return);
  ASSERT_EQ(KorAnhängen({"7", 1, 1}), 0);
  Befehl("MenüDateiSpeichern(0)");
  ASSERT_EQ(KorAnhängen({"8", 1, 1}), 0);
  Skript.Uhr.Tag = 4;
  Schließe();
  EXPECT_EQ(Gitterzeile(Gitterfeld(Seite()), 0), (Zeile{"1", "a.kor", Hier, "04.02.2003", "4 Punkte"}));

  fs::remove(A_kor);
  Skript.Füllend->BeiFokus();  // looked for once, when the page comes
  EXPECT_EQ(Gitterfeld(*Skript.Füllend).Inhalt(0, 4), "4 Punkte");
  Formular& Form = Seite();
  const Gitter& Liste = Gitterfeld(Form);
  EXPECT_TRUE(Gleich(Liste.Inhalt(0, 4), "nicht gefunden", Begrüßt(Form), false));
  Skript.Erwarte("nicht vorhanden !");
  EXPECT_TRUE(Form.TasteDrücken(static_cast<Taste>(static_cast<int>(Taste::Ziffer0) + 1)));
  EXPECT_TRUE(Form.Offen());
  Form.TasteDrücken(Taste::Entf);
  HistorieLesen();  // the list is written
  EXPECT_TRUE(Gleich(Liste.Zeilen(), 0, Historie[0].Dateiname, "", Form.Fokus()->Name, "StartBeispiel"));
  EXPECT_TRUE(Form.RücknahmeVerlangen() && !Form.RücknahmeVerlangen());
  HistorieLesen();
  EXPECT_TRUE(Gleich(Liste.Inhalt(0, 3), "04.02.2003", Sichtbar("MenüDateiHist(1)"), true,
                     Historie[0].Dateiname, A_kor));
}

TEST_F(Start, ZehnDateienUndEinLaufwerkOhneAntwort) {
  for (int i = 9; i >= 0; --i) HauptHistSchreiben(Ordner.Pfad("weg" + std::to_string(i)), Dateiformat::Kor);
  Schreibe(Ordner.Pfad("weg9"), "1001 3500100 5600200\r\n");
  HauptInitialisierung();
  Gitter& Liste = Gitterfeld(Seite());
  EXPECT_TRUE(Gleich(Liste.Zeilen(), 10, Liste.Inhalt(8, 4), "nicht gefunden", Liste.Inhalt(9, 4), ""));
  Skript.Weile = 2;  // behind the first look that takes so long nobody waits for another
  Seite().TasteDrücken(Taste::Ziffer0);
  EXPECT_TRUE(Gleich(Liste.Inhalt(0, 4), "nicht gefunden", Liste.Inhalt(1, 4), ""));
  EXPECT_TRUE(Gleich(KorAnzahl, 1, Historie[0].Dateiname, Ordner.Pfad("weg9")));
  Schließe();
  Drücke(Seite(), "StartStreichen");
  EXPECT_TRUE(Gleich(Liste.Zeilen(), 9, Liste.Inhalt(0, 1), "weg0", Historie[9].Dateiname, ""));
  Liste.Zeile = 3;
  Drücke(*Skript.Füllend, "StartStreichen");
  EXPECT_TRUE(Gleich(Liste.Zeilen(), 8, Liste.Zeile, 3));
  EXPECT_TRUE(Skript.Füllend->RücknahmeVerlangen());  // the last one alone comes back
  EXPECT_TRUE(Gleich(Liste.Zeilen(), 9, Liste.Inhalt(3, 1), "weg3"));
}

TEST_F(Start, VerlaufVerliertNichts) {
  const std::string Fremdes = "[Anderes]\r\nx=1\r\n";
  fs::create_directory(Ordner.Pfad("app"));
  Schreibe(Verlaufsdatei, Fremdes);
  VerlaufMerken("/a.kor", 1);
  EXPECT_EQ(Inhalt(Verlaufsdatei), Fremdes);
  // Lines of others, torn ones, and what a second program wrote in the meantime.
  Schreibe(Verlaufsdatei, "[Verlauf]\r\n01.01.2003  7  /b  c.kor\r\n01.01.2003  8\r\nNotiz\r\n");
  for (const char* Name : {"/a.kor", "/\xE4.kor", "/zwei\nZeilen.kor"}) VerlaufMerken(Name, 12);
  VerlaufMerken("/b  c.kor");
  VerlaufMerken("/unbekannt.kor");
  EXPECT_EQ(Inhalt(Verlaufsdatei),
            "[Verlauf]\r\n01.02.2003  7  /b  c.kor\r\n01.02.2003  12  /a.kor\r\n01.01.2003  8\r\nNotiz\r\n");
  std::string Viele = "[Verlauf]\r\n";
  for (int i = 1; i <= 100; ++i) Viele += "01.01.2003  1  /" + std::to_string(i) + "\r\n";
  Schreibe(Verlaufsdatei, Viele);
  VerlaufMerken("/a.kor", 1);
  EXPECT_TRUE(Gleich(VerlaufLesen().size(), 100U, VerlaufLesen().contains("/100"), false));
  fs::remove(Verlaufsdatei);
  fs::create_directory(Verlaufsdatei);  // can neither be read nor written: nobody is asked
  VerlaufMerken("/a.kor", 1);
  EXPECT_TRUE(VerlaufLesen().empty());
}

TEST_F(Start, BeispielAlsEigeneKopie) {
  Skript.Programmordner = Ordner.Pfad("bin");
  Skript.Dokumente = Ordner.Pfad("Dokumente");
  const std::string Quelle = Ordner.Pfad("share/tavorena/beispiel/"),
                    Kopie = Ordner.Pfad("Dokumente/Tavorena-Beispiel/");
  Öffne();
  Skript.Erwarte("Datei nicht gefunden:");
  Befehl("MenüDateiBeispiel");
  EXPECT_EQ(KoordinatendateiName, A_kor);  // what is open stays
  for (const std::string Name : {"bin/x", "share/tavorena/beispiel/musterdorf.sta"}) {
    fs::create_directories(fs::path(Ordner.Pfad(Name)).parent_path());
    Schreibe(Ordner.Pfad(Name), "Stapel");
  }
  Schreibe(Quelle + "passpunkte.kor", "1 3500100 5600200\r\n");
  Schreibe(Quelle + "musterdorf.kor", "1 3500100 5600200\r\n2 3500100 5600300\r\n");
  for (const char* Vorhandenes : {"", "7 3500100 5600200\r\n"}) {
    if (*Vorhandenes != '\0') Schreibe(Kopie + "musterdorf.kor", Vorhandenes);
    fs::remove(Kopie + "passpunkte.kor");
    Skript.Erwarte("speichern ? ", KnopfNein);
    Befehl("MenüDateiBeispiel");
    EXPECT_TRUE(Gleich(KoordinatendateiName, Kopie + "musterdorf.kor", KorAnzahl,
                       *Vorhandenes != '\0' ? 1 : 2, Inhalt(Kopie + "beispiel.sta"), "Stapel",
                       DateiVorhanden(StapelDatei.Name), false, DateiVorhanden(Kopie + "passpunkte.kor"),
                       true));
  }
  using Fall = std::pair<std::string, const char*>;
  for (const auto& [Keiner, Meldung] : {Fall{A_kor, "beim Anlegen von"}, Fall{"", "nicht bekannt"}}) {
    Skript.Dokumente = Keiner;
    Skript.Erwarte(Meldung);
    Befehl("MenüDateiBeispiel");
  }
  EXPECT_EQ(KorAnzahl, 1);
}

}  // namespace
}  // namespace tavorena::test
