#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/Text.h>

namespace tavorena::test {
namespace {

// Examples of Ghilani and Wolf, and of Loney (see tests/calc/SchnitteTest.cpp), then a circle of 5 m about
// 1001.
class KreisTest : public Blatttest {
 protected:
  KreisTest() {
    PunkteAnlegen({{"10", 500, 600}, {"11", 100, 130}, {"12", 1043.859, 460.35}});
    PunkteAnlegen({{"13", 2851.28, 299.4}, {"14", 3898.72, 2870.15}});
    PunkteAnlegen({{"21", 1, 0}, {"22", 0, -6}, {"23", 3, 4}});
    PunkteAnlegen({{"41", 3500103, 5600204}, {"42", 3500091, 5600200}, {"43", 3500092, 5600200}});
  }
  std::string Gib(const char* Name, const char* Eingabe) { return Tippe(*B, Name, Eingabe); }
  void Leere(const char* Name) {
    B->FokusWechseln(Element(*B, Name));
    B->Tippen(Feld(*B, Name), "");
    B->TasteDrücken(Taste::Return);
  }
  std::string T(const char* Name) const { return Text(*B, Name); }
  [[nodiscard]] bool Rot(const char* Name) const { return Feld(*B, Name).Fehlerhaft; }
  [[nodiscard]] std::string Status() const { return Trimmen(Skript.Status[4]); }

  static bool Zeigt(const char* Stück) {
    const auto Bild = Gezeichnet();
    return std::count(Bild.begin(), Bild.end(), Stück) == 1;
  }

  std::unique_ptr<Formular> B;
};

TEST_F(KreisTest, KreisUndGeradeSchreibenIhreDateien) {
  B = Öffne("09.40");
  EXPECT_EQ(Gib("IntblK1_MittPnr", "10\n\n350\n\n11\n12\n\n\n\n"), "Intbl_NeuPnr1");
  EXPECT_TRUE(Gleich(T("Intbl_NeuRechts1"), "753.571", T("Intbl_NeuHoch1"), "358.749", T("Intbl_NeuRechts2"),
                     "452.220", T("Intbl_NeuHoch2"), "253.277", T("IntblTau"), "30.1514"));
  Gib("Intbl_NeuPnr1", "3001\n015\n3002\n\n");
  // The second one alone, of a circle through a point; its radius goes before the one that is typed.
  Gib("IntblK1_MittPnr", "1001\n41\n");
  EXPECT_EQ(T("IntblK1_Radius"), "5.000");
  Gib("IntblK1_Radius", "99\n\n42\n43\n-3\n\n\n");
  EXPECT_TRUE(Gleich(T("IntblK1_Radius"), "5.000", T("Intbl_NeuRechts1"), "3500104.000"));
  Gib("Intbl_NeuPnr2", "3004\n\n");
  // touched by the parallel circle: one number, and Return behind it commits
  EXPECT_EQ(Gib("IntblK1_Pll", "-2\n\n\n-3\n\n\n3005\n\n"), "IntblK1_MittPnr");
  EXPECT_TRUE(Gleich(KorAnzahl, 20, T("IntblK1_Radius"), "5.000", T("IntblK1_Pll"), ""));
  Leere("IntblK1_BogenPnr");
  EXPECT_EQ(T("IntblK1_Radius"), "");                 // that of a point that is gone
  Gib("IntblK1_Radius", "50\n\n42\n43\n\n\n2003\n");  // perpendicular through 2003: x = 30, y = ±40
  EXPECT_TRUE(Gleich(T("Intbl_NeuRechts1"), "3500130.000", T("Intbl_NeuHoch1"), "5600160.000"));
  Gib("Intbl_NeuPnr1", "3006\n\n3007\n\n");
  Drücke(*B, "IntblEnd");
  PrüfeDateien("intbl", 4);
}

// What is not to be computed changes no field, and nothing of it can be committed.
TEST_F(KreisTest, KreisUndGeradeOhneErgebnis) {
  B = Öffne("09.40");
  Gib("IntblK1_MittPnr", "1001\n\n5\n\n42\n43\n3\n\n\n");
  const std::string Vorher = T("Intbl_NeuRechts1") + T("Intbl_NeuHoch2") + T("IntblTau");
  const struct {
    const char *Ort, *Eingabe, *Fokus, *Grund;
  } Fälle[] = {
      {"IntblG2_PllPnr", "2003\n", "IntblG2_PllPnr", "Abstand und Punkt zugleich"},
      {"IntblG2_SenkPnr", "2003\n", "IntblG2_SenkPnr", "Abstand und Punkt zugleich"},
      {"IntblG2_EndPnr", "42\n", "IntblG2_EndPnr", "Anfangs- und Endpunkt sind gleich"},
      {"IntblK1_Pll", "-5\n", "IntblK1_Radius", "Radius fehlt"},
      {"IntblK1_BogenPnr", "1001\n", "IntblK1_Radius", "Radius fehlt"},
  };
  for (const auto& F : Fälle) {
    SCOPED_TRACE(F.Ort);
    const std::string Alt = T(F.Ort);
    Gib(F.Ort, F.Eingabe);
    EXPECT_EQ(Gib("Intbl_NeuPnr1", "3001\n\n\n\n"), F.Fokus);
    EXPECT_TRUE(Gleich(Status(), F.Grund, Rot("Intbl_NeuRechts1"), true, KorAnzahl, 16, Stapeltext(), "",
                       T("Intbl_NeuRechts1") + T("Intbl_NeuHoch2") + T("IntblTau"), Vorher));
    Leere(F.Ort);
    if (!Alt.empty()) Gib(F.Ort, (Alt + "\n").c_str());
  }
  EXPECT_EQ(Gib("IntblK1_Radius", "0\n"), "IntblK1_Radius");  // refused where it is typed
  EXPECT_EQ(Status(), "Radius fehlt");
  Gib("IntblK1_Radius", "2\n");
  Gib("Intbl_NeuPnr1", "3001\n\n");
  EXPECT_TRUE(Gleich(T("Intbl_NeuHoch1"), "***kein Schnitt", T("Intbl_NeuHoch2"), "", T("IntblTau"), "",
                     Status(), "kein Schnitt"));
  Gib("IntblK1_Radius", "3.01\n");
  B->FokusWechseln(Element(*B, "Intbl_NeuPnr1"));
  EXPECT_TRUE(Gleich(T("IntblTau"), "5.1908", Rot("IntblTau"), true, Status(),
                     "Schleifender Schnitt: Tau bis 10 gon", Element(*B, "Intbl_NeuPnr2").Aktiv, true));
  Gib("IntblK1_Radius", "3.00001\n");
  B->FokusWechseln(Element(*B, "Intbl_NeuPnr1"));
  EXPECT_TRUE(Gleich(T("Intbl_NeuRechts2"), "*** als", T("Intbl_NeuHoch2"), " Berührpkt.",
                     Element(*B, "Intbl_NeuPnr2").Aktiv, false));
}

TEST_F(KreisTest, BogenschnitteSchreibenIhreDateien) {
  B = Öffne("23.10");
  EXPECT_EQ(Gib("IntbbK1_MittPnr", "13\n\n2000\n\n14\n\n1500\n\n"), "Intbb_NeuPnr1");
  EXPECT_TRUE(Gleich(T("Intbb_NeuRechts1"), "4464.852", T("Intbb_NeuHoch1"), "1481.088",
                     T("Intbb_NeuRechts2"), "2523.021", T("Intbb_NeuHoch2"), "2272.278", T("IntbbTau"),
                     "84.3968"));
  Gib("Intbb_NeuPnr1", "3001\n015\n3002\n\n");
  // 5 m about 1001 through 41, 3 m about 43 widened to 5 m: they meet at half way, 8 m apart
  Gib("IntbbK1_MittPnr", "1001\n41\n\n\n43\n\n3\n2\n");
  EXPECT_TRUE(Gleich(T("Intbb_NeuRechts2"), "3500096.000", T("Intbb_NeuHoch2"), "5600197.000"));
  Gib("Intbb_NeuPnr2", "3004\n\n");
  Gib("IntbbK2_Radius", "3.002\n\n");
  EXPECT_TRUE(Gleich(Rot("IntbbTau"), true, Status(), "Schleifender Schnitt: Tau bis 20 gon"));
  Gib("Intbb_NeuPnr1", "3005\n\n3006\n\n");
  Gib("IntbbK2_Radius", "2.999\n\n");
  EXPECT_TRUE(
      Gleich(T("Intbb_NeuRechts1"), "***kein Schnitt", T("Intbb_NeuHoch2"), "", Status(), "kein Schnitt"));
  Gib("IntbbK2_MittPnr", "1001\n");
  EXPECT_EQ(Gib("Intbb_NeuPnr1", "3007\n\n"), "IntbbK2_MittPnr");
  EXPECT_EQ(Status(), "Mittelpunkte sind gleich");
  Leere("Intbb_NeuPnr1");
  Drücke(*B, "IntbbEnd");
  PrüfeDateien("intbb", 3);
}

// Both solutions stand in the view before one has a number, and the note of a number that was taken stands
// below the row of its own.
TEST_F(KreisTest, BeideLösungenMitIhrerNotiz) {
  GrafikLeeren();
  GrafikFenster = {true, 400, 400, 20, 3500090, 5600190, 20, 20, 0, 0, 0, 0, false};
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{Konfliktwort::Mitteln, ""}; };
  Punkt("3001", 3500096.1, 5600203);
  B = Öffne("23.10");
  Gib("IntbbK1_MittPnr", "1001\n41\n\n\n43\n\n5\n\n");
  for (const char* Stück : {"Bogen 200 200 100 0 360 f255", "Bogen 40 200 100 0 360 f255",
                            "Text 1 210 140 f16711680", "Text 2 210 260 f16711680"})
    EXPECT_TRUE(Zeigt(Stück)) << Stück;
  Gib("Intbb_NeuPnr1", "3001\n\n3002\n\n");
  EXPECT_TRUE(Protokoll().ends_with(
      "      3500096.050  5600203.000               81.9331          3001     PS   \r\n"
      "      *** Mittel eingeführt             dRw=   -0.100  dHw=    0.000\r\n"
      "      3500096.000  5600197.000               81.9331          3002     PS   \r\n"));
  Drücke(*B, "IntbbZurück");
  EXPECT_TRUE(
      Gleich(KorAnzahl, 17, KorRechts[16], 3500096.1, Stapeltext(), "", Anzahl(Protokoll(), "gelöscht"), 2));
  Drücke(*B, "IntbbEnd");
  PunkteAnlegen({{"44", 3500096, 5600203}, {"45", 3500100, 5600195}});
  B = Öffne("09.50");
  Gib("Kmitt_Pnr1", "45\n44\n41\n");  // clockwise
  EXPECT_TRUE(Zeigt("Bogen 200 200 100 53 270 f255"));
}

TEST_F(KreisTest, KreismittelpunkteSchreibenIhreDateien) {
  PunkteAnlegen({{"31", 3500105, 5600240}, {"32", 3500140, 5600235}, {"33", 3500120, 5600195}});
  B = Öffne("09.50");
  EXPECT_EQ(Gib("Kmitt_Pnr1", "21\n22\n23\n"), "Kmitt_NeuPnr");
  EXPECT_TRUE(Gleich(T("Kmitt_NeuRechts"), "17.750", T("Kmitt_NeuHoch"), "-5.875", T("KmittR3"), "17.750",
                     T("KmittTau"), "8.0410", Rot("KmittTau"), true, Status(),
                     "Ungünstige Verteilung: Tau unter 20 oder über 180 gon"));
  Gib("Kmitt_NeuPnr", "3001\n\n");
  Gib("Kmitt_Pnr1", "31\n32\n33\n3002\n015\n");
  // on one line, equal, the first and the last equal: the fields stay, nothing is stored
  const std::string Vorher = T("Kmitt_NeuRechts");
  Gib("Kmitt_Pnr1", "42\n43\n1001\n");
  EXPECT_EQ(Gib("Kmitt_NeuPnr", "3003\n\n"), "Kmitt_Pnr3");
  EXPECT_EQ(Status(), "Punkte liegen auf einer Linie");
  Gib("Kmitt_Pnr3", "42\n");
  EXPECT_EQ(Gib("Kmitt_NeuPnr", "3003\n\n"), "Kmitt_Pnr3");
  EXPECT_EQ(Status(), "Punkte sind gleich");
  Leere("Kmitt_NeuPnr");
  Drücke(*B, "KmittEnd");
  PrüfeDateien("kmitt", 2);
}

}  // namespace
}  // namespace tavorena::test
