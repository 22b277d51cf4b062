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

TEST_F(Konfiguration, DateiByteFuerByte) {
  EXPECT_FALSE(DateiVorhanden(DateinameOptionen));  // nothing is written at the start
  OptionenSchreiben();
  EXPECT_TRUE(GleichSoll(Ini(), "shell/soll/Vorgabe.ini"));
  Optionen.OptNachkommastellen = 4;
  Optionen.GrafikfensterAn = false;
  Optionen.AbfrageRiss = Optionen.FStatMitHoehe = Optionen.GKreduzierteFlaechen = Optionen.FStatPAAnschluss =
      false;
  Optionen.AbfrageDruck = Optionen.ProtokollfensterAn = true;
  Optionen.VorgabeRechts = 350;
  Optionen.VorgabeHoch = 5600000;  // overflows its narrow field
  Optionen.OptWarnstufe = 0;
  Optionen.FormularZoomX = 1.0667;
  Optionen.FormularZoomY = 0.77;
  Optionen.VerzeichnisLetztes = "/mein ordner/";
  HauptHistSchreiben("/daten/a.kor", 0);
  HauptHistSchreiben("/daten/b.lt4", 2);
  EXPECT_TRUE(GleichSoll(Ini(), "shell/soll/Anders.ini"));
}

TEST_F(Konfiguration, ZurueckgelesenMitAllenEigenheiten) {
  Optionen.GrafikfensterAn = false;
  Optionen.ProtokollfensterAn = true;
  Optionen.VorgabeRechts = 350;
  Optionen.VorgabeHoch = 5600000;
  Optionen.FormularZoomX = 1.5;
  Optionen.SchriftgroesseProtokoll = 12;
  Optionen.VerzeichnisLetztes = "/mein ordner/";
  Optionen.OptNachkommaSpeichern = 2;
  OptionenSchreiben();
  HauptInitialisierung();
  EXPECT_TRUE(Optionen.GrafikfensterAn);  // the saved protocol window comes back as the graphics window
  EXPECT_FALSE(Optionen.ProtokollfensterAn);
  EXPECT_EQ(Optionen.VorgabeRechts, 350);
  EXPECT_EQ(Optionen.VorgabeHoch, 0);  // stars
  EXPECT_EQ(Optionen.OptNachkommaSpeichern, 2);
  EXPECT_EQ(Optionen.FormularZoomX, 1);
  EXPECT_EQ(Optionen.SchriftgroesseProtokoll, 8);
  EXPECT_EQ(Optionen.VerzeichnisLetztes, "/mein");
  EXPECT_EQ(Optionen.DateinameWinword31, "[EDBS]");
  EXPECT_EQ(Optionen.DateinameWinwordNT, "ULPUHESS");
  EXPECT_EQ(Optionen.EDBSInfo, "ULPUHESS");
}

TEST_F(Konfiguration, FensterwahlUndWahrheitswerte) {
  struct Fall {
    const char* Wort;
    bool Protokoll, Grafik, Condor;
  };
  for (const Fall& f :
       {Fall{"0", false, false, false}, Fall{"1", false, true, false}, Fall{"2", false, true, false},
        Fall{"3", false, false, true}, Fall{"wahr", true, false, false}, Fall{"x", false, false, false}}) {
    Ini(std::string("[optionen]\r\n  4\r\n") + f.Wort + "\r\nTRUE\r\n1\r\n");
    EXPECT_EQ(OptionenLesen(), -1);  // the file ends: what was read stands
    EXPECT_EQ(Optionen.OptNachkommastellen, 4);
    EXPECT_EQ(Optionen.ProtokollfensterAn, f.Protokoll) << f.Wort;
    EXPECT_EQ(Optionen.GrafikfensterAn, f.Grafik) << f.Wort;
    EXPECT_EQ(Optionen.CondorfensterAn, f.Condor) << f.Wort;
    EXPECT_TRUE(Optionen.AbfrageRiss && Optionen.AbfrageDruck);
    EXPECT_EQ(Sichtbar("MenüDateiCondorLesen(0)"), f.Condor);
  }
}

TEST_F(Konfiguration, AeltereDateiLaeuftInDenNaechstenAbschnitt) {
  Ini("[Optionen]\n3\n2\nTrue\nFalse\n1,5 x\n2.5\n[Historie]\na.kor * 0\nwahr\nwahr\nwahr\nwahr\n");
  EXPECT_EQ(OptionenLesen(), 0);
  EXPECT_EQ(Optionen.VorgabeRechts, 1.5);
  EXPECT_EQ(Optionen.VorgabeHoch, 2.5);
  EXPECT_EQ(Optionen.OptWarnstufe, 3);           // a line of the next section is not used ...
  EXPECT_EQ(Optionen.OptNachkommaSpeichern, 0);  // ... but the ones behind it are
  EXPECT_TRUE(Optionen.FStatPAAnschluss);
  Ini("[Optionen]\n3\n2\nTrue\nFalse\n1\n1\n[\n[\n[\n[\nTrue");
  EXPECT_EQ(OptionenLesen(), 0);
  EXPECT_EQ(Optionen.OptNachkommaSpeichern, 4);
  EXPECT_FALSE(Optionen.GKreduzierteFlaechen || Optionen.FStatPAAnschluss);  // the last line ends the file
}

TEST_F(Konfiguration, FehlendeDateiGibtVorgaben) {
  EXPECT_EQ(OptionenLesen() + HistorieLesen() + DateinamenLesen() + EDBSLesen(), -4);
  EXPECT_EQ(Optionen.DateinameEditorNT, "\\Notepad.exe");
  setenv("windir", "c:\\windows", 1);
  DateinamenLesen();
  EXPECT_EQ(Optionen.DateinameEditor31, "c:\\windows\\Notepad.exe");
}

TEST_F(Konfiguration, Anwendungsordner) {
  unsetenv("TAVORENA_ORDNER");
  setenv("XDG_CONFIG_HOME", "/xdg", 1);
  DateinamenAbleiten();
  EXPECT_EQ(DateinameProtokollTemp, "/xdg/tavorena\\TavorenaProt.tmp");
  Skript.Programmordner = Ordner.Pfad("prog");
  std::filesystem::create_directories(Skript.Programmordner);
  Schreibe(Ordner.Pfad("prog/Tavorena.ini"), "");
  DateinamenAbleiten();
  EXPECT_EQ(tavorena::Anwendungsordner, Skript.Programmordner);
  unsetenv("XDG_CONFIG_HOME");
}

TEST_F(Konfiguration, Historie) {
  for (int i = 0; i < 12; ++i) HauptHistSchreiben("f" + std::to_string(i), 0);
  HauptHistSchreiben("f8", 1);  // place 3 comes to the front, the others keep their order
  std::string Namen;
  for (const HistorieEintrag& H : tavorena::Historie) Namen += H.Dateiname + " ";
  EXPECT_EQ(Namen, "f8 f11 f10 f9 f7 f6 f5 f4 f3 f2  ");
  Ini("[Historie]\r\n * 0\r\n/a/alt.lt4 *   0\r\n/a b/c.kor *   0\r\nohne Stern\r\n");
  HauptInitialisierung();
  EXPECT_EQ(tavorena::Historie[1], (HistorieEintrag{"/a/alt.lt4", 2}));  // LT4 under its old number
  EXPECT_EQ(tavorena::Historie[3].Dateiname, "ohne Stern");
  auto& Fenster = TVKernMDIForm::Fenster();
  EXPECT_EQ(Fenster.Titel(*MenueFinden("MenüDateiHist(2)")), "/a b/c.kor");  // empty entries are left out
  EXPECT_TRUE(Sichtbar("MenüDateiHist(3)") && !Sichtbar("MenüDateiHist(4)"));
}

TEST_F(Konfiguration, Theodolitdatei) {
  TheoOptionen T{2, "4800,E,7,1", "/roh.gsi", 1};
  EXPECT_EQ(TheoOptionenLesen(T), -1);
  EXPECT_EQ(TheoOptionenSchreiben(T), 0);
  EXPECT_TRUE(GleichSoll(Inhalt(Ordner.Pfad("app/TavorenaTh.ini")), "shell/soll/Theodolit.ini"));
  TheoOptionen Neu;
  EXPECT_EQ(TheoOptionenLesen(Neu), 0);
  EXPECT_EQ(Neu.Settings + Neu.Rohdatendatei + std::to_string(Neu.Port * 10 + Neu.Reduktion),
            "4800,E,7,1/roh.gsi21");
}

class Groesse final : public Plattform {
 public:
  Groesse(int B, int H) : Breite(B), Hoehe(H), Vorher(PlattformSetzen(this)) {}
  ~Groesse() override { PlattformSetzen(Vorher); }
  void HauptfensterGroesse(int& B, int& H) override { B = Breite, H = Hoehe; }

 private:
  int Breite, Hoehe;
  Plattform* Vorher;
};

TEST_F(Konfiguration, ZoomAusDemHauptfenster) {
  struct Fall {
    int Twips;
    double Soll;
  };
  for (const Fall& f : {Fall{14550, 0.77}, Fall{11640, 0.77}, Fall{11010, 11010 / 14550.0}}) {
    const Groesse Fenster(1280, f.Twips / 15);
    HauptfensterAktiviert();
    EXPECT_EQ(Optionen.FormularZoomY, f.Soll);
    EXPECT_EQ(Optionen.FormularZoomX, 1.0);
    FormularZoomRechnen(false);
    EXPECT_EQ(Optionen.FormularZoomY, f.Twips / 14550.0);
  }
}

TEST_F(Konfiguration, Optionsdialog) {
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Oeffnen();
    Form.Waehlen(*Form.Finde("OptNachkommastellen"), "4", true);
    Form.TasteDruecken(Taste::Escape);
    EXPECT_FALSE(Form.Offen());
  });
  TVOptionenformZeigen();
  EXPECT_EQ(Optionen.OptNachkommastellen, 3);
  EXPECT_FALSE(DateiVorhanden(DateinameOptionen));
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Oeffnen();
    Form.Waehlen(*Form.Finde("OptNachkommastellen"), "4", true);
    Form.Waehlen(*Form.Finde("OptWarnstufe"), "Keine", true);
    Form.Waehlen(*Form.Finde("OptAbfrRiß"), "", false);
    Form.Waehlen(*Form.Finde("OptProtokoll(1)"), "", true);
    EXPECT_FALSE(Form.Finde("OptProtokoll(2)")->Gewaehlt);
    Tippe(Form, "OptVorgabeRechts", "abc");
    Druecke(Form, "OptEnd");
    EXPECT_TRUE(Form.Offen());  // no number
    Tippe(Form, "OptVorgabeRechts", "350,5");
    Tippe(Form, "OptEDBSInfo", "ZUVIELEZEICHEN");
    Druecke(Form, "OptEnd");
  });
  TVOptionenformZeigen();
  EXPECT_EQ(Optionen.OptNachkommastellen, 4);
  EXPECT_EQ(Optionen.OptWarnstufe, 0);
  EXPECT_FALSE(Optionen.AbfrageRiss || Optionen.GrafikfensterAn || Optionen.ProtokollfensterAn);
  EXPECT_EQ(Optionen.FormularZoomY, 1);
  EXPECT_EQ(Optionen.VorgabeRechts, 350.5);
  EXPECT_EQ(Optionen.EDBSInfo, "ZUVIELEZ");
  EXPECT_TRUE(DateiVorhanden(DateinameOptionen));
}

}  // namespace
}  // namespace tavorena::test
