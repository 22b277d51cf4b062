#include "Shelltest.h"

#include <tavorena/core/Datei.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena::test {
namespace {

using Haupt = Shelltest;

TEST_F(Haupt, DateiLesenNimmtDieDateienDaneben) {
  Oeffne();
  EXPECT_EQ(KorAnzahl, 3);
  EXPECT_EQ(ProtokolldateiName, Ordner.Pfad("a.dru"));
  EXPECT_EQ(StapeldateiName, Ordner.Pfad("a.sta"));
  EXPECT_EQ(Skript.Fenstertitel, "Tavorena    " + Ordner.Pfad("a.kor"));
  EXPECT_EQ(Skript.Status[0], "   " + Ordner.Pfad("a.kor") + "   ");
  EXPECT_EQ(Skript.Status[1] + "|" + Skript.Status[2], "3 Punkte|Version: 2.2");
  EXPECT_EQ(Historie[0].Dateiname, Ordner.Pfad("a.kor"));
  EXPECT_EQ(Optionen.VerzeichnisLetztes, Ordner.Pfad(""));
  EXPECT_EQ(Skript.Auftraege[0].Titel, "Koordinatendatei zum Lesen auswählen");
  // Every change of file asks, even when nothing changed; cancel leaves everything.
  Skript.Erwarte("Koordinaten in Koordinatendatei\n\n" + Ordner.Pfad("a.kor") + "\n\nspeichern ? ",
                 KnopfAbbruch);
  Befehl("MenüDateiSchließen");
  EXPECT_EQ(KorAnzahl, 3);
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");
  EXPECT_EQ(KorAnzahl, 0);
  EXPECT_EQ(KoordinatendateiName + ProtokolldateiName + StapeldateiName, "");
}

TEST_F(Haupt, Menuezustaende) {
  EXPECT_FALSE(Aktiv("MenüMain(4)") || Aktiv("MenüDateiSpeichern(0)") || Aktiv("MenüKatasterLinel") ||
               Sichtbar("MenüMain(6)"));
  EXPECT_TRUE(Aktiv("MenüDateiNeu") && Aktiv("MenüOptionenOptionen") && Aktiv("MenüOptionenDateinam") &&
              Sichtbar("MenüMain(18)"));
  EXPECT_FALSE(Sichtbar("MenüMain(9)") || Sichtbar("MenüDateiImportierenMain"));
  Oeffne();
  EXPECT_TRUE(Aktiv("MenüMain(4)") && Aktiv("MenüKatasterLinel") && BildAktiv("ImageVR2440") &&
              Sichtbar("MenüMain(5)"));
  EXPECT_FALSE(Aktiv("MenüKatasterOrtho") ||
               BildAktiv("ImageVR2200"));  // their calculation does not exist yet
  EXPECT_TRUE(Sichtbar("MenüDateiHist(1)") || !Aktiv("MenüDateiHist(1)"));
  EXPECT_TRUE(BildAktiv("ImageDateiLesen") && BildAktiv("ImageProgrammende") && BildAktiv("ImageOptionen"));
  Optionen.AbfrageRiss = false;
  Befehl("MenüKatasterPolel");
  EXPECT_TRUE(BlaetterOffen());
  TVKernMDIForm::Fenster().Beschaeftigt(true);
  EXPECT_TRUE(BildAktiv("ImageStop") && !Aktiv("MenüDateiBeenden"));
  TVKernMDIForm::Fenster().Beschaeftigt(false);
  EXPECT_FALSE(BildAktiv("ImageDateiLesen") || BildAktiv("ImageProgrammende") || BildAktiv("ImageOptionen") ||
               BildAktiv("ImageStop"));
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");  // the worksheet goes with its file
  EXPECT_FALSE(BlaetterOffen());
  EXPECT_TRUE(Aktiv("MenüDateiHist(1)"));
}

TEST_F(Haupt, VorhandenesProtokollFragt) {
  const std::string Dru = Ordner.Pfad("a.dru");
  Schreibe(Dru, "alt\r\n");
  Skript.Formulare.push_back(Bediene({{"Knopf(0)", ""}}));
  Oeffne();
  EXPECT_EQ(Inhalt(ProtokolldateiName), "alt\r\n");
  Skript.Erwarte("speichern ? ", KnopfNein);
  Skript.Formulare.push_back(Bediene({{"Knopf(1)", ""}}));
  Oeffne();
  EXPECT_FALSE(DateiVorhanden(Dru));
  Schreibe(Dru, "alt\r\n");
  Skript.Erwarte("speichern ? ", KnopfNein);
  Skript.Formulare.push_back(Bediene({{"Knopf(2)", ""}}));
  Skript.Dateien = {Ordner.Pfad("a.kor"), Ordner.Pfad("neu")};
  Befehl("MenüDateiLesen(0)");
  EXPECT_EQ(ProtokolldateiName, Ordner.Pfad("neu.dru"));
  Skript.Erwarte("speichern ? ", KnopfNein);
  Skript.Formulare.push_back(Bediene({{"Knopf(2)", ""}}));
  Skript.Dateien = {Ordner.Pfad("a.kor"), ""};
  Befehl("MenüDateiLesen(0)");
  EXPECT_EQ(KorAnzahl, 0);  // cancelled: no coordinates
  EXPECT_FALSE(Aktiv("MenüKatasterLinel"));
  EXPECT_EQ(Inhalt(Dru), "alt\r\n");
}

TEST_F(Haupt, MisslungenesLesenLaesstDenTitelStehen) {
  Skript.Dateien = {Ordner.Pfad("fehlt.kor")};
  Skript.Erwarte("nicht vorhanden !");
  Befehl("MenüDateiLesen(0)");
  EXPECT_EQ(Skript.Fenstertitel, "Tavorena    " + Ordner.Pfad("fehlt.kor"));
  EXPECT_EQ(KoordinatendateiName, "");
  EXPECT_FALSE(Aktiv("MenüKatasterLinel"));
  EXPECT_EQ(Historie[0].Dateiname, "");
  Schreibe(Ordner.Pfad("a.eds"), "x");
  Skript.Dateien = {Ordner.Pfad("a.eds")};
  Skript.Erwarte("Das Format der Datei wird nicht gelesen");
  Befehl("MenüDateiLesen(0)");
  Skript.Dateien = {""};
  Befehl("MenüDateiNeu");
  EXPECT_EQ(KoordinatendateiName, "");
}

TEST_F(Haupt, NeueDateiSpeichernUndUnterAnderemNamen) {
  Skript.Dateien = {Ordner.Pfad("neu")};
  Befehl("MenüDateiNeu");
  EXPECT_EQ(KoordinatendateiName, Ordner.Pfad("neu.kor"));
  Punkt("7", 1, 2, 3, "015");
  Befehl("MenüDateiSpeichern(0)");
  EXPECT_EQ(Inhalt(Ordner.Pfad("neu.kor")),
            "             7         1.000         2.000       3.000  015\r\n");
  EXPECT_FALSE(KoordinatenGeaendert);
  Skript.Dateien = {Ordner.Pfad("b.lt4")};
  Befehl("MenüDateiSpeichernUnter");
  EXPECT_EQ(Koordinatendateiformat, 2);
  EXPECT_TRUE(Inhalt(Ordner.Pfad("b.lt4")).starts_with("000 45590000000007"));
  // An existing file can be extended: the table then holds all of it.
  Schreibe(Ordner.Pfad("c.kor"),
           "S\xFC"
           "d1 1.0 2 3");
  Skript.Dateien = {Ordner.Pfad("c.kor")};
  Skript.Formulare.push_back(Bediene({{"Knopf(0)", ""}}));
  Befehl("MenüDateiSpeichernUnter");
  EXPECT_EQ(KorAnzahl, 2);
  EXPECT_TRUE(Inhalt(Ordner.Pfad("c.kor"))
                  .starts_with("S\xFC"
                               "d1 1.0 2 3\r\n      "));
  KoordinatendateiName = Ordner.Pfad("fehlt/x.kor");
  Skript.Erwarte("Fehler aufgetreten beim Speichern der Datei " + KoordinatendateiName);
  EXPECT_EQ(HauptDateiSpeichern(), -1);
}

TEST_F(Haupt, Hinzulesen) {
  Oeffne();
  const std::string Datei = Ordner.Pfad("h.kor");
  Schreibe(Datei, "1001 9.0 9\r\n3001 1.0 1\r\n3002 1.0 1\r\n3003 1.0 1\r\n");
  Skript.Dateien = {Datei, Datei, Datei, Datei};
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "3002\n"}, {"Wert(1)", "3003\n"}}));
  Befehl("MenüDateiHinzuLesenPunktbereich");
  EXPECT_EQ(KorAnzahl, 5);
  Befehl("MenüDateiHinzuLesenNurNeue");
  EXPECT_EQ(KorAnzahl, 6);
  EXPECT_EQ(KorRechts[0], 3500100);
  Skript.Formulare.push_back(Bediene({{"PSelectGitter", "\n"}, {"OK", ""}}));  // Return marks the first
  Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
  Befehl("MenüDateiHinzuLesenPunktselektion");
  EXPECT_EQ(KorAnzahl, 7);
  Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
  Befehl("MenüDateiHinzuLesenKomplett");
  EXPECT_EQ(KorAnzahl, 11);
  EXPECT_TRUE(KoordinatenGeaendert);
}

TEST_F(Haupt, OffenerStapelblockHaeltAndereBlaetterZurueck) {
  Oeffne();
  Optionen.AbfrageRiss = false;
  Befehl("MenüKatasterLinel");
  StapelKopfLinie("VR 24.40 Linienelemente", "1001", 0, "1002", 0);
  Befehl("MenüKatasterDis");
  EXPECT_EQ(Skript.Status[4], "   Stapel noch nicht abgeschlossen   ");
  Befehl("MenüDateiStapel");
  EXPECT_TRUE(StapelSchreibenOffen());
  StapelEnde(true);
}

TEST_F(Haupt, StapelUeberDasMenue) {
  Oeffne();
  const std::string Sta = Ordner.Pfad("lauf.sta");
  Schreibe(Sta, "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\nM VR 65.00 x\r\nE\r\n");
  Skript.Dateien = {Sta};
  Befehl("MenüDateiStapel");
  EXPECT_FALSE(StapelAktiv || BlaetterOffen());
  EXPECT_EQ(Skript.Status[4], "   Stapel beendet: 1 Blöcke, 1 Zeilen, übergangen: 65.00   ");
  EXPECT_FALSE(DateiVorhanden(StapeldateiName));
}

TEST_F(Haupt, BeendenFragtUndSichert) {
  Oeffne();
  Punkt("7", 1, 2);
  Skript.Erwarte("Tavorena beenden ?", KnopfNein);
  EXPECT_EQ(HauptBeenden(), -1);
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.Erwarte("speichern ? ", KnopfAbbruch);
  EXPECT_EQ(HauptBeenden(), -1);
  EXPECT_EQ(KorAnzahl, 4);
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.Erwarte("speichern ? ", KnopfJa);
  EXPECT_EQ(HauptBeenden(), 0);
  EXPECT_TRUE(Inhalt(Ordner.Pfad("a.kor")).starts_with("             7 "));
}

TEST_F(Haupt, ProtokollwechselUndAnsicht) {
  Oeffne();
  Skript.Dateien = {""};
  Befehl("MenüDateiProtokoll");
  EXPECT_EQ(ProtokolldateiName, Ordner.Pfad("a.dru"));  // cancel changes nothing
  Skript.Dateien = {Ordner.Pfad("p.dru")};
  Befehl("MenüDateiProtokoll");
  EXPECT_EQ(ProtokolldateiName, Ordner.Pfad("p.dru"));
  EXPECT_EQ(Skript.Auftraege.back().Zusatz, "kein Protokoll");
  Optionen.DateinameEditorNT = "ed";
  Befehl("MenüAnsichtKoordinatendatei");
  EXPECT_EQ(Skript.Gestartet.back(), "ed|" + Ordner.Pfad("a.kor"));
}

TEST_F(Haupt, TextErsetzen) {
  Oeffne();
  const std::string Datei = Ordner.Pfad("t.txt");
  Schreibe(Datei, "M\xFCller, M\xFCller");
  for (const auto& [Such, Meldung] :
       {std::pair{"Müller", "2 mal \"Müller\" durch \"Maier\"\n" + Datei + "\nersetzt"},
        std::pair{"Huber", "Kein Eintrag \"Huber\"\n" + Datei + "\ngefunden"}}) {
    Skript.Formulare.push_back(
        Bediene({{"Wert(0)", Datei}, {"Wert(1)", Such}, {"Wert(2)", "Maier"}, {"OK", ""}}));
    Skript.Erwarte(Meldung);
    Befehl("MenüFunktErsetzen");
  }
  EXPECT_EQ(Inhalt(Datei), "Maier, Maier");
}

TEST_F(Haupt, AllgemeineDialoge) {
  const std::string Lang = "/" + std::string(60, 'x');
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Oeffnen();
    EXPECT_EQ(Form.Steuerelemente()[1]->Text, "..." + std::string(50, 'x'));
    EXPECT_EQ(Form.Fokus()->Name, "Knopf(2)");  // the third button is the default
    Form.TasteDruecken(Taste::Return);
  });
  EXPECT_EQ(DateiVorhandenFrage(Lang), -1);
  Skript.Formulare.push_back(Bediene({{"Knopf(1)", ""}}));
  EXPECT_EQ(PunktVorhandenFrage("12"), 1);
  Skript.Formulare.push_back(Bediene({{"Knopf(2)", ""}}));
  EXPECT_EQ(PunktVorhandenOrientierungFrage("12"), 2);
  std::string Wert = "0.01";
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Oeffnen();
    Form.TasteDruecken(Taste::Escape);
  });
  EXPECT_EQ(EinWert("T", "fs:", Wert), -1);
  EXPECT_EQ(Wert, "0.01");
  Skript.Formulare.push_back(Bediene({{"OK", ""}}));
  EXPECT_EQ(AuswahlListe("T", {"Koordinaten in [mm]", "Koordinaten in [mm] / 10"}), 0);
  Wertfeld Felder[] = {{"a", "", 7, 2}, {"b", "", 7, 3}, {"c", ""}};
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "1,5\n2.0005\nx\n"}}));
  EXPECT_EQ(DreiWerte("T", Felder), 0);
  EXPECT_EQ(Felder[0].Wert + Felder[1].Wert + Felder[2].Wert, "1.502.001x");
  std::string Verzeichnis = Ordner.Pfad("");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "/gibt es nicht\n"}}));
  Skript.Erwarte("Fehler 76");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "/\n"}}));
  EXPECT_EQ(VerzeichnisWahl("T", Verzeichnis), 0);
  EXPECT_EQ(Verzeichnis, "/");
}

TEST_F(Haupt, DateinamenDialogSchuetztEinUndAusgabe) {
  const std::string Ein = Ordner.Pfad("ein.kor"), Aus = Ordner.Pfad("aus.kor");
  Schreibe(Aus, "alt");
  Dateifeld Felder[] = {{"Eingabe", Ein, "", false}, {"Ausgabe", Ein, "", true}};
  Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ein);
  Skript.Dateien = {Aus};
  Skript.Formulare.push_back([this](Formular& Form) {
    Form.Oeffnen();
    Druecke(Form, "OK");
    Druecke(Form, "Waehlen(1)");
    Skript.Formulare.push_back(Bediene({{"Knopf(2)", ""}}));
    Druecke(Form, "OK");
    EXPECT_TRUE(Form.Offen());  // it exists and was not given up
    Skript.Formulare.push_back(Bediene({{"Knopf(1)", ""}}));
    Druecke(Form, "OK");
  });
  EXPECT_EQ(ZweiDateinamen("T", Felder), 0);
  EXPECT_EQ(Felder[1].Name, Aus);
  EXPECT_FALSE(DateiVorhanden(Aus));
}

TEST(Menuebaum, IstGeschlossen) {
  for (const Menueeintrag& E : Menuebaum()) {
    EXPECT_TRUE(*E.Eltern == '\0' || MenueFinden(E.Eltern) != nullptr) << E.Name;
    EXPECT_EQ(MenueFinden(E.Name), &E) << "twice: " << E.Name;
  }
  EXPECT_EQ(Symbolleiste().size(), 26U);
  for (const Werkzeug& W : Symbolleiste())
    EXPECT_TRUE(*W.Eintrag == '\0' || MenueFinden(W.Eintrag) != nullptr) << W.Name;
  EXPECT_EQ(TVKernMDIForm::Fenster().Hilfe(*MenueFinden("MenüKatasterOrtho")), 4000);
}

}  // namespace
}  // namespace tavorena::test
