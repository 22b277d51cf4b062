#include "Shelltest.h"

#include <tavorena/core/Datei.h>
#include <tavorena/shell/TVOptionenform.h>

namespace tavorena::test {
namespace {

class Konfiguration : public Shelltest {
 protected:
  void Ini(const std::string& Text) {
    std::filesystem::create_directories(Anwendungsordner);
    Schreibe(Ordner.Pfad("app/Tavorena.ini"), Text);
  }
  std::string Ini() const { return Inhalt(Ordner.Pfad("app/Tavorena.ini")); }
};

TEST_F(Konfiguration, DateiByteFürByteUndZurückMitAllenEigenheiten) {
  EXPECT_FALSE(DateiVorhanden(DateinameOptionen));  // nothing is written at the start
  EXPECT_EQ(OptionenSchreiben(), 0);
  EXPECT_TRUE(GleichSoll(Ini(), "shell/soll/Vorgabe.ini"));
  Optionen.OptNachkommastellen = 4;
  Optionen.GrafikfensterAn = false;
  Optionen.AbfrageRiss = Optionen.FStatMitHoehe = Optionen.GKreduzierteFlaechen = false;
  Optionen.FStatPAAnschluss = false;
  Optionen.AbfrageDruck = Optionen.ProtokollfensterAn = true;
  Optionen.VorgabeRechts = 350;
  Optionen.VorgabeHoch = 5600000;  // overflows its narrow field
  Optionen.OptWarnstufe = 0;
  Optionen.FormularZoomX = 1.0667;
  Optionen.FormularZoomY = 0.77;
  Optionen.VerzeichnisLetztes = "/mein ordner/";
  HauptHistSchreiben("/daten/a.kor", Dateiformat::Kor);
  HauptHistSchreiben("/daten/b.lt4", Dateiformat::Lt4);
  EXPECT_TRUE(GleichSoll(Ini(), "shell/soll/Anders.ini"));
  Optionen.SchriftgroesseProtokoll = 12;
  Optionen.OptNachkommaSpeichern = 2;
  EXPECT_EQ(OptionenSchreiben(), 0);
  HauptInitialisierung();
  // The saved protocol window comes back as the graphics window, a wide value is stars.
  const auto& O = Optionen;
  EXPECT_EQ(Reihe(O.GrafikfensterAn, O.ProtokollfensterAn, O.VorgabeRechts, O.VorgabeHoch), "1|0|350|0");
  EXPECT_EQ(Reihe(O.OptNachkommaSpeichern, O.FormularZoomX, O.SchriftgroesseProtokoll), "2|1|8");
  EXPECT_EQ(Reihe(O.VerzeichnisLetztes, O.DateinameWinword31, O.DateinameWinwordNT, O.EDBSInfo),
            "/mein|[EDBS]|ULPUHESS|ULPUHESS");
}

TEST_F(Konfiguration, FensterwahlUndWahrheitswerte) {
  // Protocol, graphics and third window.
  for (const auto& [Wort, Soll] :
       {std::pair{"0", "0|0|0"}, std::pair{"1", "0|1|0"}, std::pair{"2", "0|1|0"}, std::pair{"3", "0|0|1"},
        std::pair{"wahr", "1|0|0"}, std::pair{"x", "0|0|0"}}) {
    Ini(std::string("[optionen]\r\n  4\r\n") + Wort + "\r\nTRUE\r\n1\r\n");
    EXPECT_EQ(OptionenLesen(), -1);  // the file ends: what was read stands
    EXPECT_EQ(Reihe(Optionen.ProtokollfensterAn, Optionen.GrafikfensterAn, Optionen.CondorfensterAn), Soll)
        << Wort;
    EXPECT_EQ(Reihe(Optionen.OptNachkommastellen, Optionen.AbfrageRiss, Optionen.AbfrageDruck), "4|1|1");
    EXPECT_EQ(Sichtbar("MenüDateiCondorLesen(0)"), Optionen.CondorfensterAn);
  }
}

TEST_F(Konfiguration, ÄltereDateiLäuftInDenNächstenAbschnitt) {
  Ini("[Optionen]\n3\n2\nTrue\nFalse\n1,5 x\n2.5\n[Historie]\na.kor * 0\nwahr\nwahr\nwahr\nwahr\n");
  EXPECT_EQ(OptionenLesen(), 0);
  EXPECT_EQ(Reihe(Optionen.VorgabeRechts, Optionen.VorgabeHoch), "1.5|2.5");
  // A line of the next section is not used, but the ones behind it are.
  EXPECT_EQ(Reihe(Optionen.OptWarnstufe, Optionen.OptNachkommaSpeichern, Optionen.FStatPAAnschluss), "3|0|1");
  Ini("[Optionen]\n3\n2\nTrue\nFalse\n1\n1\n[\n[\n[\n[\nTrue");
  EXPECT_EQ(OptionenLesen(), 0);
  EXPECT_EQ(Optionen.OptNachkommaSpeichern, 4);
  EXPECT_FALSE(Optionen.GKreduzierteFlaechen || Optionen.FStatPAAnschluss);  // the last line ends the file
}

TEST_F(Konfiguration, FehlendeDateiUndAnwendungsordner) {
  EXPECT_EQ(OptionenLesen() + HistorieLesen() + DateinamenLesen() + EDBSLesen(), -4);
  EXPECT_EQ(Optionen.DateinameEditorNT, "\\Notepad.exe");
  setenv("windir", "c:\\windows", 1);
  DateinamenLesen();
  EXPECT_EQ(Reihe(Optionen.DateinameEditor31, Optionen.DateinameEditorNT),
            "c:\\windows\\Notepad.exe|c:\\windows\\Notepad.exe");
  unsetenv("TAVORENA_ORDNER");
  setenv("XDG_CONFIG_HOME", "/xdg", 1);
  DateinamenAbleiten();
  EXPECT_EQ(DateinameProtokollTemp, "/xdg/tavorena\\TavorenaProt.tmp");
  Skript.Programmordner = Ordner.Pfad("");
  Schreibe(Ordner.Pfad("Tavorena.ini"), "");
  DateinamenAbleiten();
  EXPECT_EQ(Anwendungsordner, Skript.Programmordner);
  unsetenv("XDG_CONFIG_HOME");
}

TEST_F(Konfiguration, Historie) {
  for (int i = 0; i < 12; ++i) HauptHistSchreiben("f" + std::to_string(i), Dateiformat::Kor);
  HauptHistSchreiben("f8", Dateiformat::Edbs);  // place 3 comes to the front, the others keep their order
  std::string Namen;
  for (const HistorieEintrag& H : tavorena::Historie) Namen += H.Dateiname + " ";
  EXPECT_EQ(Namen, "f8 f11 f10 f9 f7 f6 f5 f4 f3 f2  ");
  Ini("[Historie]\r\n * 0\r\n/a/alt.lt4 *   0\r\n/a b/c.kor *   7\r\nohne Stern\r\n");
  HauptInitialisierung();
  EXPECT_EQ(tavorena::Historie[1],
            (HistorieEintrag{"/a/alt.lt4", Dateiformat::Lt4}));  // LT4 under its old number
  EXPECT_EQ(tavorena::Historie[3].Dateiname, "ohne Stern");
  // Empty entries are left out.
  EXPECT_EQ(TVKernMDIForm::Fenster().Titel(*MenüFinden("MenüDateiHist(2)")), "/a b/c.kor");
  EXPECT_TRUE(Sichtbar("MenüDateiHist(3)") && !Sichtbar("MenüDateiHist(4)"));
  Skript.Erwarte("Es wird versucht, die Datei /a b/c.kor");  // a format that nobody knows
  Befehl("MenüDateiHist(2)");
}

TEST_F(Konfiguration, Theodolitdatei) {
  TheoOptionen T{2, "4800,E,7,1", "/roh.gsi", 1};
  EXPECT_EQ(TheoOptionenLesen(T), -1);
  EXPECT_EQ(TheoOptionenSchreiben(T), 0);
  EXPECT_TRUE(GleichSoll(Inhalt(Ordner.Pfad("app/TavorenaTh.ini")), "shell/soll/Theodolit.ini"));
  TheoOptionen Neu;
  EXPECT_EQ(TheoOptionenLesen(Neu), 0);
  EXPECT_EQ(Reihe(Neu.Settings, Neu.Rohdatendatei, Neu.Port, Neu.Reduktion), "4800,E,7,1|/roh.gsi|2|1");
}

TEST_F(Konfiguration, ZoomAusDemHauptfenster) {
  Skript.Breite = 1280;
  for (const int Twips : {14550, 11640, 11010}) {
    Skript.Hoehe = Twips / 15;
    HauptfensterAktiviert();
    EXPECT_EQ(Optionen.FormularZoomY, Twips == 11010 ? 11010 / 14550.0 : 0.77);
    EXPECT_EQ(Optionen.FormularZoomX, 1.0);
    FormularZoomRechnen(false);
    EXPECT_EQ(Optionen.FormularZoomY, Twips / 14550.0);
  }
}

TEST_F(Konfiguration, Optionsdialog) {
  for (const char* Ende : {"OptAbbruch", "OptEnd"}) {
    Skript.Formulare.push_back([Ende](Formular& Form) {
      Form.Öffnen();
      Form.Wählen(Element<Auswahl>(Form, "OptNachkommastellen"), "4", true);
      Form.Wählen(Element<Auswahl>(Form, "OptWarnstufe"), "Keine", true);
      Form.Wählen(Element<Auswahl>(Form, "OptAbfrRiß"), "", false);
      Form.Wählen(Element<Auswahl>(Form, "OptProtokoll(1)"), "", true);
      EXPECT_FALSE(Element<Auswahl>(Form, "OptProtokoll(2)").Gewählt);
      Tippe(Form, "OptVorgabeRechts", "abc");
      Drücke(Form, "OptEnd");
      EXPECT_TRUE(Form.Offen());  // no number
      Tippe(Form, "OptVorgabeRechts", "350,5");
      Tippe(Form, "OptEDBSInfo", "ZUVIELEZEICHEN");
      Drücke(Form, Ende);
    });
    TVOptionenformZeigen();
    const auto& O = Optionen;
    const bool Neu = DateiVorhanden(DateinameOptionen);
    EXPECT_EQ(Neu, std::string_view(Ende) == "OptEnd");
    EXPECT_EQ(Reihe(O.OptNachkommastellen, O.OptWarnstufe, O.FormularZoomY, O.VorgabeRechts, O.EDBSInfo),
              Neu ? "4|0|1|350.5|ZUVIELEZ" : "3|3|1|0|ULPUHESS");
    EXPECT_EQ(Reihe(O.AbfrageRiss, O.GrafikfensterAn, O.ProtokollfensterAn), Neu ? "0|0|0" : "1|1|0");
  }
  DateinameOptionen += "/x.ini";                                 // below a file: it can not be written
  Skript.Formulare.push_back(Bediene({{"OptEDBSInfo", "\n"}}));  // Return behind the last field is OK
  Skript.Erwarte("Fehler aufgetreten beim Speichern der Datei " + DateinameOptionen);
  TVOptionenformZeigen();
}

}  // namespace
}  // namespace tavorena::test
