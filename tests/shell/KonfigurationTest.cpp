#include "Shelltest.h"

#include <algorithm>

#include <tavorena/core/Text.h>
#include <tavorena/shell/TVOptionenform.h>

namespace tavorena::test {
namespace {

class Konfiguration : public Shelltest {
 protected:
  void Ini(const std::string& Text) {
    fs::create_directories(Anwendungsordner);
    Schreibe(Ordner.Pfad("app/Tavorena.ini"), Text);
  }
  std::string Ini() const { return Inhalt(Ordner.Pfad("app/Tavorena.ini")); }
};

TEST_F(Konfiguration, WirdByteFürByteGeschrieben) {
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
}

// Not everything comes back as it was written.
TEST_F(Konfiguration, ZurückMitAllenEigenheiten) {
  Ini(Inhalt(std::string(TAVORENA_TESTS) + "/shell/soll/Anders.ini"));
  HauptInitialisierung();
  const auto& O = Optionen;
  // The saved protocol window is the graphics window now, and a wide value was stars.
  EXPECT_TRUE(Gleich(O.GrafikfensterAn, true, O.ProtokollfensterAn, false));
  EXPECT_TRUE(Gleich(O.OptNachkommastellen, 4, O.VorgabeRechts, 350, O.VorgabeHoch, 0, O.FormularZoomX, 1));
  EXPECT_TRUE(Gleich(O.VerzeichnisLetztes, "/mein", O.DateinameWinword31, "[EDBS]", O.DateinameWinwordNT,
                     "ULPUHESS", O.EDBSInfo, "ULPUHESS"));
}

TEST_F(Konfiguration, Fensterwahl) {
  for (const auto& [Wort, Fenster] :
       {std::pair{"0", ' '}, {"1", 'G'}, {"2", 'G'}, {"3", 'C'}, {"wahr", 'P'}, {"x", ' '}}) {
    SCOPED_TRACE(Wort);
    Ini(std::string("[optionen]\r\n  4\r\n") + Wort + "\r\nTRUE\r\n1\r\n");
    EXPECT_EQ(OptionenLesen(), -1);  // the file ends: what was read stands
    EXPECT_TRUE(Gleich(Optionen.ProtokollfensterAn, Fenster == 'P', Optionen.GrafikfensterAn, Fenster == 'G',
                       Optionen.CondorfensterAn, Fenster == 'C'));
    EXPECT_TRUE(Gleich(Optionen.AbfrageRiss, true, Optionen.AbfrageDruck, true,
                       Sichtbar("MenüDateiCondorLesen(0)"), Fenster == 'C'));
  }
}

TEST_F(Konfiguration, GanzeZahlenHabenIhrenBereich) {
  for (const char* Wort : {"32767", "65539", "-5", "nan", "2.9", "7", "3,"}) {
    SCOPED_TRACE(Wort);
    Ini(std::string("x\n[Optionen]\n") + Wort + "\n0\n0\n0\n0\n0\n" + Wort + "\n" + Wort + "\n0\n");
    const std::string Ist = std::string(Wort) + " ist keine ganze Zahl von 0 bis ";
    Skript.Erwarte("Tavorena.ini\nZeile 3: " + Ist + "6, es gilt 3\nZeile 9: " + Ist +
                   "3, es gilt 3\nZeile 10: " + Ist + "6, es gilt 4");
    OptionenLesen();
    EXPECT_TRUE(
        Gleich(Optionen.OptNachkommastellen, 3, Optionen.OptWarnstufe, 3, Optionen.OptNachkommaSpeichern, 4));
  }
  Ini("[Optionen]\n6\n0\n0\n0\n0\n0\n0\n06\n0\n");
  OptionenLesen();
  EXPECT_TRUE(
      Gleich(Optionen.OptNachkommastellen, 6, Optionen.OptWarnstufe, 0, Optionen.OptNachkommaSpeichern, 6));
  for (const char* Name : {"4711", "-5"}) {  // runs over: no word
    Ini(std::string("[Optionen]\n3\n2\nTrue\nFalse\n1\n1\n[Historie]\n") + Name + ".kor * 0\n\n\n\n");
    OptionenLesen();
    EXPECT_EQ(Optionen.OptNachkommaSpeichern, 4);
  }
}

TEST_F(Konfiguration, UnbeschreibbareDateiWirdEinmalGemeldet) {
  Ini("");
  fs::permissions(Ordner.Pfad("app/Tavorena.ini"), fs::perms{0444});
  Skript.Erwarte("beim Speichern der Datei " + DateinameOptionen + " (schreibgeschützt)");
  for (const char* Name : {"a", "b", "c"}) HauptHistSchreiben(Name, Dateiformat::Kor);
  EXPECT_EQ(Ini(), "");
}

TEST_F(Konfiguration, ÄltereDateiLäuftInDenNächstenAbschnitt) {
  Ini("[Optionen]\n3\n2\nTrue\nFalse\n1,5 x\n2.5\n[Historie]\na.kor * 0\nwahr\nwahr\nwahr\nwahr\n");
  EXPECT_TRUE(Gleich(OptionenLesen(), 0, Optionen.VorgabeRechts, 1.5, Optionen.VorgabeHoch, 2.5));
  // A line of the next section is not used, but the ones behind it are.
  EXPECT_TRUE(
      Gleich(Optionen.OptWarnstufe, 3, Optionen.OptNachkommaSpeichern, 0, Optionen.FStatPAAnschluss, true));
  Ini("[Optionen]\n3\n2\nTrue\nFalse\n1\n1\n[\n[\n[\n[\nTrue");
  EXPECT_TRUE(Gleich(OptionenLesen(), 0, Optionen.OptNachkommaSpeichern, 4));
  // The last line ends the file.
  EXPECT_TRUE(Gleich(Optionen.GKreduzierteFlaechen, false, Optionen.FStatPAAnschluss, false));
}

TEST_F(Konfiguration, FehlendeDatei) {
  for (const auto Lesen : {OptionenLesen, HistorieLesen, DateinamenLesen, EDBSLesen}) EXPECT_EQ(Lesen(), -1);
  EXPECT_EQ(Optionen.DateinameEditorNT, "\\Notepad.exe");
  Umgebungsvariable("windir", "c:\\windows");
  DateinamenLesen();
  EXPECT_EQ(Optionen.DateinameEditor31, "c:\\windows\\Notepad.exe");
  EXPECT_EQ(Optionen.DateinameEditorNT, Optionen.DateinameEditor31);
}

TEST_F(Konfiguration, Anwendungsordner) {
  Umgebungsvariable("TAVORENA_ORDNER");
#ifdef _WIN32
  const std::string Eigene = std::getenv("APPDATA") + std::string("\\");
#else
  const std::string Eigene = "/xdg/";
#endif
  Umgebungsvariable("XDG_CONFIG_HOME", "/xdg");
  DateinamenAbleiten();
  EXPECT_EQ(DateinameProtokollTemp, Eigene + "tavorena\\TavorenaProt.tmp");
  Skript.Programmordner = Ordner.Pfad("");
  Schreibe(Ordner.Pfad("Tavorena.ini"), "");
  DateinamenAbleiten();
  EXPECT_EQ(Anwendungsordner, Skript.Programmordner);
  Umgebungsvariable("XDG_CONFIG_HOME");
}

TEST_F(Konfiguration, Historie) {
  for (int i = 0; i < 12; ++i) HauptHistSchreiben("f" + std::to_string(i), Dateiformat::Kor);
  HauptHistSchreiben("f8", Dateiformat::Edbs);  // place 3 comes to the front, the others keep their order
  std::string Namen;
  for (const HistorieEintrag& H : tavorena::Historie) Namen += H.Dateiname + " ";
  EXPECT_EQ(Namen, "f8 f11 f10 f9 f7 f6 f5 f4 f3 f2  ");
  Ini("[Historie]\r\n * 0\r\n/a/alt.lt4 *   0\r\n/a b/c.kor *   0\r\nd.lt4 * 1\r\nohne Stern\r\n");
  HauptInitialisierung();
  const HistorieEintrag Soll[] = {{"", Dateiformat::Kor},
                                  {"/a/alt.lt4", Dateiformat::Lt4},
                                  {"/a b/c.kor", Dateiformat::Kor},
                                  {"d.lt4", Dateiformat::Edbs},
                                  {"ohne Stern", Dateiformat::Kor}};  // LT4 was 0 once
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(tavorena::Historie[i], Soll[i]) << i;
  // Empty entries are left out.
  EXPECT_EQ(TVKernMDIForm::Fenster().Titel(*MenüFinden("MenüDateiHist(2)")), "/a b/c.kor");
  EXPECT_TRUE(Gleich(Sichtbar("MenüDateiHist(4)"), true, Sichtbar("MenüDateiHist(5)"), false));
}

TEST_F(Konfiguration, Theodolitdatei) {
  const std::string Theodolit = Ordner.Pfad("app/TavorenaTh.ini");
  TheoOptionen T{2, "4800,E,7,1", "/roh.gsi", 1}, Neu;
  EXPECT_EQ(TheoOptionenLesen(T), -1);
  EXPECT_EQ(Neu.Port, 2);
  EXPECT_EQ(TheoOptionenSchreiben(T), 0);
  EXPECT_TRUE(GleichSoll(Inhalt(Theodolit), "shell/soll/Theodolit.ini"));
  EXPECT_EQ(TheoOptionenLesen(Neu), 0);
  EXPECT_TRUE(Gleich(Neu.Settings, T.Settings, Neu.Rohdatendatei, T.Rohdatendatei, Neu.Port, T.Port));
  EXPECT_EQ(Neu.Reduktion, T.Reduktion);
  for (const auto& [Reduktion, Soll] : {std::pair{-1, 0}, {3, 2}}) {
    T.Reduktion = Reduktion;  // the way out has its range, the way in too
    TheoOptionenSchreiben(T);
    EXPECT_NE(Inhalt(Theodolit).find("\r\n" + std::to_string(Soll) + "   ("), std::string::npos) << Reduktion;
    Schreibe(Theodolit, "x\nCOM1\n\n\n" + std::to_string(Reduktion));
    EXPECT_TRUE(Gleich(TheoOptionenLesen(Neu), 0, Neu.Reduktion, Soll));
  }
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
      std::string Buchstaben;
      for (const auto& S : Form.Steuerelemente()) {
        const std::size_t Marke = S->Text->find('&');
        if (Marke != std::string::npos) Buchstaben += Großtext(S->Text->substr(Marke + 1, 1));
        EXPECT_TRUE(S->Aktiv) << S->Name;
      }
      std::sort(Buchstaben.begin(), Buchstaben.end());
      EXPECT_EQ(Buchstaben, "ACDEFHIKNOPRSUWZ");  // each once
      Form.Wählen(Element<Auswahl>(Form, "OptNachkommastellen"), "4", true);
      Form.Wählen(Element<Auswahl>(Form, "OptWarnstufe"), "Keine", true);
      Form.Wählen(Element<Auswahl>(Form, "OptAbfrRiß"), "", false);
      Form.Wählen(Element<Auswahl>(Form, "OptAbfrDruck"), "", true);
      Form.Wählen(Element<Auswahl>(Form, "OptProtokoll(1)"), "", true);
      EXPECT_FALSE(Element<Auswahl>(Form, "OptProtokoll(2)").Gewählt);
      Tippe(Form, "OptVorgabeRechts", "abc");
      Drücke(Form, "OptEnd");
      EXPECT_TRUE(Form.Offen());  // no number
      Tippe(Form, "OptVorgabeRechts", "350,5");
      Tippe(Form, "OptEDBSInfo", "ZUVIELEZEICHEN");
      if (std::string_view(Ende) == "OptEnd") {
        Tippe(Form, "OptAbfrRiß", "\n");  // Return is OK everywhere
      } else {
        Drücke(Form, Ende);
      }
    });
    TVOptionenformZeigen();
    const auto& O = Optionen;
    const bool Neu = DateiVorhanden(DateinameOptionen);
    EXPECT_EQ(Neu, std::string_view(Ende) == "OptEnd");
    EXPECT_TRUE(Gleich(O.OptNachkommastellen, Neu ? 4 : 3, O.OptWarnstufe, Neu ? 0 : 3, O.VorgabeRechts,
                       Neu ? 350.5 : 0, O.EDBSInfo, Neu ? "ZUVIELEZ" : "ULPUHESS"));
    EXPECT_TRUE(Gleich(O.AbfrageRiss, !Neu, O.AbfrageDruck, Neu, O.GrafikfensterAn, !Neu,
                       O.ProtokollfensterAn, false));
  }
}

}  // namespace
}  // namespace tavorena::test
