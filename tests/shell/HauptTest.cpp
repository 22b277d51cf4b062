#include "Shelltest.h"

#include <tavorena/core/Datei.h>
#include <tavorena/forms/TVWertdialog.h>

namespace tavorena::test {
namespace {

using Haupt = Shelltest;

TEST_F(Haupt, DateiLesenNimmtDieDateienDaneben) {
  Öffne();
  EXPECT_EQ(Reihe(KorAnzahl, Prot.Datei, StapelDatei.Name), Reihe(3, A_dru, Ordner.Pfad("a.sta")));
  EXPECT_EQ(Reihe(Skript.Fenstertitel, Skript.Status[0], Skript.Status[1], Skript.Status[2]),
            Reihe("Tavorena    " + A_kor, "   " + A_kor + "   ", "3 Punkte", "Version: 2.2"));
  EXPECT_EQ(Reihe(Historie[0].Dateiname, Optionen.VerzeichnisLetztes), Reihe(A_kor, Ordner.Pfad("")));
  EXPECT_EQ(Skript.Aufträge[0].Titel, "Koordinatendatei zum Lesen auswählen");
  // Every change of file asks, even when nothing changed; cancel leaves everything.
  Skript.Erwarte("Koordinaten in Koordinatendatei\n\n" + A_kor + "\n\nspeichern ? ", KnopfAbbruch);
  Befehl("MenüDateiSchließen");
  EXPECT_EQ(KorAnzahl, 3);
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");
  EXPECT_EQ(Reihe(KorAnzahl, KoordinatendateiName, Prot.Datei, StapelDatei.Name), "0|||");
}

TEST_F(Haupt, Menüzustände) {
  EXPECT_FALSE(Aktiv("MenüMain(4)") || Aktiv("MenüDateiSpeichern(0)") || Aktiv("MenüKatasterLinel") ||
               Sichtbar("MenüMain(6)"));
  EXPECT_TRUE(Aktiv("MenüDateiNeu") && Aktiv("MenüOptionenOptionen") && Aktiv("MenüOptionenDateinam") &&
              Sichtbar("MenüMain(18)"));
  EXPECT_FALSE(Sichtbar("MenüMain(9)") || Sichtbar("MenüDateiImportierenMain"));
  Öffne();
  EXPECT_TRUE(Aktiv("MenüMain(4)") && Aktiv("MenüKatasterLinel") && BildAktiv("ImageVR2440") &&
              Sichtbar("MenüMain(5)"));
  // There is no calculation behind these yet.
  EXPECT_FALSE(Aktiv("MenüKatasterOrtho") || BildAktiv("ImageVR2200"));
  EXPECT_TRUE(BildAktiv("ImageDateiLesen") && BildAktiv("ImageProgrammende") && BildAktiv("ImageOptionen"));
  Optionen.AbfrageRiss = false;
  Befehl("MenüKatasterPolel");
  EXPECT_TRUE(BlätterOffen());
  TVKernMDIForm::Fenster().Beschäftigt(true);
  EXPECT_TRUE(BildAktiv("ImageStop") && !Aktiv("MenüDateiBeenden"));
  TVKernMDIForm::Fenster().Beschäftigt(false);
  EXPECT_FALSE(BildAktiv("ImageDateiLesen") || BildAktiv("ImageProgrammende") || BildAktiv("ImageOptionen") ||
               BildAktiv("ImageStop"));
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");  // the worksheet goes with its file
  EXPECT_FALSE(BlätterOffen());
  EXPECT_TRUE(Aktiv("MenüDateiHist(1)"));
  Öffne();
  EXPECT_FALSE(Aktiv("MenüDateiHist(1)"));
}

TEST_F(Haupt, VorhandenesProtokollFragt) {
  Öffne();
  // The button, what is chosen in its dialog; the protocol, what stands in the old one and the points then.
  using Fall = std::tuple<int, std::deque<std::string>, std::string, const char*, int>;
  for (const auto& [Antwort, Anderes, Protokoll, Altes, Punkte] :
       {Fall{0, {}, A_dru, "alt\r\n", 3}, Fall{1, {}, A_dru, "", 3},
        Fall{2, {Ordner.Pfad("neu")}, Ordner.Pfad("neu.dru"), "alt\r\n", 3},
        Fall{2, {""}, "", "alt\r\n", 0}}) {  // cancelled: no coordinates
    Schreibe(A_dru, "alt\r\n");
    Skript.Erwarte("speichern ? ", KnopfNein);
    Knopf(Antwort);
    Skript.Dateien = Anderes;
    Skript.Dateien.push_front(A_kor);
    Befehl("MenüDateiLesen(0)");
    EXPECT_EQ(Reihe(Prot.Datei, Inhalt(A_dru), KorAnzahl), Reihe(Protokoll, Altes, Punkte));
    EXPECT_EQ(Aktiv("MenüKatasterLinel"), Punkte > 0);
  }
}

TEST_F(Haupt, MisslungenesLesenLäßtDenTitelStehen) {
  Skript.Erwarte("nicht vorhanden !");
  Befehl("MenüDateiLesen(0)", Ordner.Pfad("fehlt.kor"));
  EXPECT_EQ(Skript.Fenstertitel, "Tavorena    " + Ordner.Pfad("fehlt.kor"));
  Schreibe(Ordner.Pfad("a.eds"), "x");
  Skript.Erwarte("Das Format der Datei wird nicht gelesen");
  Befehl("MenüDateiLesen(0)", Ordner.Pfad("a.eds"));
  Befehl("MenüDateiNeu", "");
  EXPECT_EQ(Reihe(KoordinatendateiName, Historie[0].Dateiname), "|");
  EXPECT_FALSE(Aktiv("MenüKatasterLinel"));
}

TEST_F(Haupt, NeueDateiSpeichernUndUnterAnderemNamen) {
  Befehl("MenüDateiNeu", Ordner.Pfad("neu"));
  Punkt("7", 1, 2, 3, "ß");
  Befehl("MenüDateiSpeichern(0)");
  EXPECT_EQ(Inhalt(Ordner.Pfad("neu.kor")), "             7         1.000         2.000       3.000  ß\r\n");
  EXPECT_FALSE(KoordinatenGeaendert);
  Befehl("MenüDateiSpeichernUnter", Ordner.Pfad("b.lt4"));
  EXPECT_EQ(Koordinatendateiformat, Dateiformat::Lt4);
  EXPECT_TRUE(Inhalt(Ordner.Pfad("b.lt4")).starts_with("000 45590000000007"));
  // An existing file can be extended: the table then holds all of it.
  const std::string Alt =
                        "S\xFC"
                        "d1 1.0 2 3",
                    Datei = Ordner.Pfad("c.kor");
  Schreibe(Datei, Alt);
  Knopf(0);
  Befehl("MenüDateiSpeichernUnter", Datei);
  EXPECT_EQ(KorAnzahl, 2);
  EXPECT_TRUE(Inhalt(Datei).starts_with(Alt + "\r\n      ") && Inhalt(Datei).ends_with("  \xDF\r\n"));
  // If that read is stopped, the file that is whole must not be saved over.
  std::string Viele;
  for (int i = 0; i < 200; ++i) Viele += std::to_string(i) + " 1.0 2 3\r\n";
  Schreibe(Datei, Viele);
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  Knopf(0);
  Befehl("MenüDateiSpeichernUnter", Datei);
  EXPECT_EQ(Reihe(KorAnzahl, KoordinatendateiName, Historie[1].Dateiname), "0||" + Ordner.Pfad("b.lt4"));
  EXPECT_FALSE(Aktiv("MenüDateiSpeichern(0)"));
  KoordinatendateiName = Ordner.Pfad("fehlt/x.kor");
  Skript.Erwarte("Fehler aufgetreten beim Speichern der Datei " + KoordinatendateiName);
  EXPECT_EQ(HauptDateiSpeichern(), -1);
}

TEST_F(Haupt, Hinzulesen) {
  Öffne();
  EXPECT_FALSE(KoordinatenGeaendert);
  const std::string Datei = Ordner.Pfad("h.kor");
  Schreibe(Datei, "1001 9.0 9\r\n3001 1.0 1\r\n3002 1.0 1\r\n3003 1.0 1\r\n3003 2.0 2\r\n");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "3001\n"}, {"Wert(1)", "3002\n"}}));
  Befehl("MenüDateiHinzuLesenPunktbereich", Datei);
  EXPECT_EQ(KorAnzahl, 5);
  Befehl("MenüDateiHinzuLesenNurNeue", Datei);  // of two new points of one number the first
  EXPECT_EQ(Reihe(KorAnzahl, KorRechts[0], KorRechts[5], KoordinatenGeaendert), "6|3500100|1|1");
  Skript.Formulare.push_back(Bediene({{"PSelectGitter", "\n"}, {"OK", ""}}));  // Return marks the first
  for (int i = 0; i < 2; ++i) Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
  Befehl("MenüDateiHinzuLesenPunktselektion", Datei);
  EXPECT_EQ(Reihe(KorAnzahl, AnzahlDoppelte()), "7|1");
  Befehl("MenüDateiHinzuLesenKomplett", Datei);
  EXPECT_EQ(KorAnzahl, 12);
}

TEST_F(Haupt, StapelÜberDasMenüUndOffenerBlock) {
  Öffne();
  const std::string Sta = Ordner.Pfad("lauf.sta");
  Schreibe(Sta, "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\nM VR 65.00 x\r\nE\r\n");
  Befehl("MenüDateiStapel", Sta);
  EXPECT_FALSE(Stapel.Aktiv || BlätterOffen());
  EXPECT_EQ(Skript.Status[4], "   Stapel beendet: 1 Blöcke, 1 Zeilen, übergangen: 65.00   ");
  EXPECT_FALSE(DateiVorhanden(StapelDatei.Name));
  Stapelblock Block;
  int Griff = 0;
  ASSERT_EQ(Block.Beginnen(std::make_shared<const Verbindung>()) + Block.Anfügen("NR 1", Griff), 0);
  for (const char* Name : {"MenüKatasterDis", "MenüDateiStapel"}) {  // an open block holds them back
    Skript.Status[4].clear();
    Befehl(Name);
    EXPECT_EQ(Skript.Status[4], "   Stapel noch nicht abgeschlossen   ");
  }
  EXPECT_FALSE(BlätterOffen());
}

TEST_F(Haupt, BeendenFragtUndSichert) {
  Öffne();
  Punkt("7", 1, 2);
  Skript.Erwarte("Tavorena beenden ?", KnopfNein);
  EXPECT_EQ(HauptBeenden(), -1);
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.Erwarte("speichern ? ", KnopfAbbruch);
  EXPECT_EQ(Reihe(HauptBeenden(), KorAnzahl), "-1|4");
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.Erwarte("speichern ? ", KnopfJa);
  EXPECT_EQ(HauptBeenden(), 0);
  EXPECT_TRUE(Inhalt(A_kor).starts_with("             7 "));
}

TEST_F(Haupt, WasGeworfenWirdEndetInDerMeldung) {
  Öffne();
  Skript.BeiBlatt = [](Formular&) { throw std::bad_alloc(); };
  Skript.Erwarte("Fehler 7 in TVKernMDIForm.MenüKatasterDis (std::bad_alloc) wurde ausgelöst");
  Befehl("MenüKatasterDis");
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.BeiMeldung = [](const std::string& Text) {
    if (Text.find("speichern ? ") != std::string::npos) throw std::runtime_error("x");
  };
  Skript.Erwarte("Fehler beim Beenden: Fehler 9 in Haupt.Beenden (x) wurde ausgelöst");
  EXPECT_EQ(HauptBeenden(), -1);
  EXPECT_EQ(KoordinatendateiName, A_kor);
}

TEST_F(Haupt, ProtokollwechselAnsichtUndTextErsetzen) {
  Öffne();
  Befehl("MenüDateiProtokoll", "");
  EXPECT_EQ(Prot.Datei, A_dru);  // cancel changes nothing
  Befehl("MenüDateiProtokoll", Ordner.Pfad("p.dru"));
  EXPECT_EQ(Reihe(Prot.Datei, Skript.Aufträge.back().Zusatz),
            Ordner.Pfad("p.dru") + "|kein Protokoll");
  Optionen.DateinameEditorNT = "ed";
  Befehl("MenüAnsichtKoordinatendatei");
  EXPECT_EQ(Skript.Gestartet, "ed|" + A_kor);
  const std::string Datei = Ordner.Pfad("t.txt");
  Schreibe(Datei, "M\xFCller, M\xFCller");
  for (const auto& [Such, Meldung] :
       {std::pair{"Müller", "2 mal \"Müller\" durch \"Müllerin\"\n" + Datei + "\nersetzt"},
        std::pair{"Huber", "Kein Eintrag \"Huber\"\n" + Datei + "\ngefunden"}}) {
    Skript.Formulare.push_back(
        Bediene({{"Wert(0)", Datei}, {"Wert(1)", Such}, {"Wert(2)", "Müllerin"}, {"OK", ""}}));
    Skript.Erwarte(Meldung);
    Befehl("MenüFunktErsetzen");
  }
  EXPECT_EQ(Inhalt(Datei), "M\xFCllerin, M\xFCllerin");
}

TEST_F(Haupt, AllgemeineDialoge) {
  const std::string Lang = "/" + std::string(60, 'x');
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(*Form.Steuerelemente()[1]->Text, "..." + std::string(50, 'x'));
    EXPECT_EQ(Form.Fokus()->Name, "Knopf(2)");  // the third button is the default
    Form.TasteDrücken(Taste::Return);
  });
  EXPECT_EQ(DateiVorhandenFrage(Lang), -1);
  Knopf(1);
  EXPECT_EQ(PunktVorhandenFrage("12"), 1);
  Knopf(2);
  EXPECT_EQ(PunktVorhandenOrientierungFrage("12"), 2);
  std::string Wert = "0.01", Verzeichnis = Ordner.Pfad("");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "9"}, {"Abbrechen", ""}}));
  EXPECT_EQ(EinWert("T", "fs:", Wert), -1);
  EXPECT_EQ(Wert, "0.01");
  Skript.Formulare.push_back(Bediene({{"OK", ""}}));
  EXPECT_EQ(AuswahlListe("T", {"Koordinaten in [mm]", "Koordinaten in [mm] / 10"}), 0);
  Wertfeld Felder[] = {{"a", "", 7, 2}, {"b", "", 7, 3}, {"c", ""}};
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "1,5\n2.0005\nx\n"}}));
  EXPECT_EQ(DreiWerte("T", Felder), 0);
  EXPECT_EQ(Reihe(Felder[0].Wert, Felder[1].Wert, Felder[2].Wert), "1.50|2.001|x");
  for (const char* Getippt : {"/gibt es nicht\n", "/\n"})
    Skript.Formulare.push_back(Bediene({{"Wert(0)", Getippt}}));
  Skript.Erwarte("Fehler 76 in Dialog.VerzeichnisWahl wurde ausgelöst durch Tavorena\nPfad nicht gefunden");
  EXPECT_EQ(VerzeichnisWahl("T", Verzeichnis), 0);
  EXPECT_EQ(Reihe(Verzeichnis, Skript.Titel.back()), "/|Tavorena Fehlermeldung");
}

TEST_F(Haupt, DateinamenDialogSchütztEinUndAusgabe) {
  const std::string Ein = Ordner.Pfad("ein.kor"), Aus = Ordner.Pfad("aus.kor");
  Schreibe(Aus, "alt");
  Dateifeld Felder[] = {{"Eingabe", Ein, "", false}, {"Ausgabe", Ein, "", true}};
  Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ein);
  Skript.Dateien = {Aus};
  Skript.Formulare.push_back([this](Formular& Form) {
    Form.Öffnen();
    Drücke(Form, "OK");
    Drücke(Form, "Waehlen(1)");
    Knopf(2);
    Drücke(Form, "OK");
    EXPECT_TRUE(Form.Offen());  // it exists and was not given up
    Knopf(1);
    Drücke(Form, "OK");
  });
  EXPECT_EQ(ZweiDateinamen("T", Felder), 0);
  EXPECT_EQ(Felder[1].Name, Aus);
  EXPECT_FALSE(DateiVorhanden(Aus));
}

TEST(Menübaum, IstGeschlossen) {
  for (const Menüeintrag& E : Menübaum()) {
    EXPECT_TRUE(*E.Eltern == '\0' || MenüFinden(E.Eltern) != nullptr) << E.Name;
    EXPECT_EQ(MenüFinden(E.Name), &E) << "twice: " << E.Name;
  }
  EXPECT_EQ(Symbolleiste().size(), 26U);
  for (const Werkzeug& W : Symbolleiste())
    EXPECT_TRUE(*W.Eintrag == '\0' || MenüFinden(W.Eintrag) != nullptr) << W.Name;
  EXPECT_EQ(TVKernMDIForm::Fenster().Hilfe(*MenüFinden("MenüKatasterOrtho")), 4000);
}

}  // namespace
}  // namespace tavorena::test
