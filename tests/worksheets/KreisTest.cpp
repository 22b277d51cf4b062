#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {
namespace {

// The examples of Ghilani and Wolf, and of Loney, that the engines are tested with; then circles about 1001.
class KreisTest : public Blatttest {
 protected:
  KreisTest() {
    PunkteAnlegen({{"10", 500, 600}, {"11", 100, 130}, {"12", 1043.859, 460.35}});
    PunkteAnlegen({{"13", 2851.28, 299.4}, {"14", 3898.72, 2870.15}});
    PunkteAnlegen({{"21", 1, 0}, {"22", 0, -6}, {"23", 3, 4}});
    PunkteAnlegen({{"41", 3500103, 5600204}, {"42", 3500091, 5600200}, {"43", 3500092, 5600200}});
  }
  std::string Gib(const std::string& Name, const std::string& Eingabe) { return Tippe(*B, Name, Eingabe); }
  void Leere(const char* Name) {
    B->FokusWechseln(Element(*B, Name));
    B->Tippen(Feld(*B, Name), "");
    B->TasteDrücken(Taste::Return);
  }
  // What the fields show, and behind them the status help; "!" where it is red.
  std::string Stand(std::initializer_list<const char*> Namen) const {
    std::string Alles;
    for (const char* N : Namen) Alles += Text(*B, N) + (Feld(*B, N).Fehlerhaft ? "! " : " ");
    return Alles + Trimmen(Skript.Status[4]);
  }
  static bool Zeigt(const char* Stück) {
    const auto Bild = Gezeichnet();
    return std::count(Bild.begin(), Bild.end(), Stück) == 1;
  }
  std::unique_ptr<Formular> B;
};

TEST_F(KreisTest, KreisUndGeradeSchreibenIhreDateien) {
  B = Öffne("09.40");
  Gib("IntblK1_MittPnr", "10\n\n350\n\n11\n12\n\n\n\n");
  EXPECT_EQ(Stand({"Intbl_NeuRechts1", "Intbl_NeuHoch1", "Intbl_NeuRechts2", "Intbl_NeuHoch2", "IntblTau"}),
            "753.571 358.749 452.220 253.277 30.1514 ");
  Gib("Intbl_NeuPnr1", "3001\n015\n3002\n\n");
  // A point on the circle goes before a radius, and is not rounded; the second solution alone is wanted.
  Gib("IntblK1_MittPnr", "1001\n2003\n99\n\n42\n43\n\n\n\n");
  EXPECT_EQ(Stand({"IntblK1_Radius", "Intbl_NeuRechts1"}), "42.4264 3500142.426 ");
  Gib("Intbl_NeuPnr2", "3004\n\n");
  EXPECT_NEAR(KorRechts[18], 3500100 - std::sqrt(1800), 1e-8);
  // touched by a parallel circle: one number, and Return behind it commits
  EXPECT_EQ(Gib("IntblK1_BogenPnr", "41\n\n-2\n\n\n-3\n\n\n3005\n\n"), "IntblK1_MittPnr");
  EXPECT_EQ(Stand({"IntblK1_Radius", "IntblK1_Pll"}).substr(0, 7), "5.000  ");
  Leere("IntblK1_BogenPnr");
  EXPECT_EQ(Text(*B, "IntblK1_Radius"), "");  // that of a point that is gone
  Gib("IntblK1_Radius",
      "50\n\n42\n43\n\n\n2003\n");  // perpendicular through 2003: 30 east, 40 north or south
  Gib("Intbl_NeuPnr1", "3006\n\n3007\n\n");
  Drücke(*B, "IntblEnd");
  PrüfeDateien("intbl", 4);
}

// What is not to be computed changes no field, and nothing of it can be committed.
TEST_F(KreisTest, KreisUndGeradeOhneErgebnis) {
  B = Öffne("09.40");
  Gib("IntblK1_MittPnr", "1001\n\n5\n\n42\n43\n3\n\n\n");
  const struct {
    std::string Ort, Eingabe, Fokus, Grund;
  } Fälle[] = {
      {"IntblG2_PllPnr", "2003\n", "IntblG2_PllPnr", "Abstand und Punkt zugleich"},
      {"IntblG2_SenkPnr", "2003\n", "IntblG2_SenkPnr", "Abstand und Punkt zugleich"},
      {"IntblG2_EndPnr", "42\n", "IntblG2_EndPnr", "Anfangs- und Endpunkt sind gleich"},
      {"IntblK1_Pll", "-5\n", "IntblK1_Radius", "Radius fehlt"},
      {"IntblK1_BogenPnr", "1001\n", "IntblK1_Radius", "Radius fehlt"},
  };
  for (const auto& F : Fälle) {
    const std::string Vorher = Text(*B, F.Ort);
    Gib(F.Ort, F.Eingabe);
    EXPECT_EQ(Gib("Intbl_NeuPnr1", "3001\n\n\n\n"), F.Fokus) << F.Ort;
    EXPECT_EQ(Stand({"Intbl_NeuRechts1", "Intbl_NeuHoch2", "IntblTau"}),
              "3500104.000! 5600197.000! 59.0334 " + F.Grund);
    Leere(F.Ort.c_str());
    if (!Vorher.empty()) Gib(F.Ort, Vorher + "\n");
  }
  EXPECT_EQ(Gib("IntblK1_Radius", "0\n"), "IntblK1_Radius");  // refused where it is typed
  EXPECT_TRUE(Gleich(KorAnzahl, 16, Stapeltext(), ""));
  Leere("IntblK1_Radius");
  Gib("IntblG2_Pll", "1\n");
  const std::pair<const char*, const char*> Radien[] = {
      {"1.01\n", "5600199.000 8.9659! Schleifender Schnitt: Tau bis 10 gon"},
      {"1.0001\n", " 0.9003! Schleifender Schnitt: Tau bis 10 gon"},  // one point by the engine
      {"1\n", " Berührpkt.! 0.0000! Schleifender Schnitt: Tau bis 10 gon"},
      {"0.9\n", "  kein Schnitt"},
  };
  for (const auto& [Radius, Soll] : Radien) {
    Gib("IntblK1_Radius", Radius);
    B->FokusWechseln(Element(*B, "Intbl_NeuPnr1"));
    EXPECT_EQ(Stand({"Intbl_NeuHoch2", "IntblTau"}), Soll);
    EXPECT_EQ(Element(*B, "Intbl_NeuPnr2").Aktiv, Radius == Radien[0].first);
  }
}

// Over other coordinates the line may only touch: the point that is not there any more is named.
TEST_F(KreisTest, NachlaufNenntDieFehlendeLösung) {
  B = Öffne("09.40");
  Gib("IntblK1_MittPnr", "1001\n\n5\n\n42\n43\n-3\n\n\n3001\n\n3002\n\n");
  Gib("IntblK1_Radius", "5\n\n\n\n-3\n\n\n\n\n3003\n\n");
  Drücke(*B, "IntblEnd");
  static_cast<void>(KorZeileSetzen(KorSuche(std::string_view("1001")), {"1001", 3500104, 5600198}));
  Starten();
  const std::string Wo = "ohne Ergebnis: VR 09.40 Schnitt Kreis / Gerade, Zeile ";
  EXPECT_EQ(StapelBericht(), (std::vector<std::string>{Wo + "1: Punkt 3002 nicht gespeichert",
                                                       Wo + "13: Punkt 3003 nicht gespeichert"}));
  EXPECT_TRUE(Gleich(Stapel.Bilanz.Zeilen, 1, Stapel.Bilanz.Fehler, false));
}

TEST_F(KreisTest, BogenschnitteSchreibenIhreDateien) {
  B = Öffne("23.10");
  Gib("IntbbK1_MittPnr", "13\n\n2000\n\n14\n\n1500\n\n");
  EXPECT_EQ(Stand({"Intbb_NeuRechts1", "Intbb_NeuHoch1", "Intbb_NeuRechts2", "Intbb_NeuHoch2", "IntbbTau"}),
            "4464.852 1481.088 2523.021 2272.278 84.3968 ");
  Gib("Intbb_NeuPnr1", "3001\n015\n3002\n\n");
  Gib("IntbbK1_MittPnr", "1001\n41\n\n\n43\n\n3\n2\n");  // 5 m each, 8 m apart
  Gib("Intbb_NeuPnr2", "3004\n\n");
  Gib("IntbbK2_Radius", "3.002\n\n");
  EXPECT_EQ(Stand({"IntbbTau"}), "2.9399! Schleifender Schnitt: Tau bis 20 gon");
  Gib("Intbb_NeuPnr1", "3005\n\n3006\n\n");
  Gib("IntbbK2_Radius", "2.999\n\n");
  EXPECT_EQ(Stand({"Intbb_NeuRechts1", "Intbb_NeuHoch2"}), "***kein Schnitt!  kein Schnitt");
  Gib("IntbbK2_MittPnr", "1001\n");
  EXPECT_EQ(Gib("Intbb_NeuPnr1", "3007\n\n"), "IntbbK2_MittPnr");
  EXPECT_EQ(Stand({}), "Mittelpunkte sind gleich");
  Drücke(*B, "IntbbFelderClear");
  Drücke(*B, "IntbbEnd");
  PrüfeDateien("intbb", 3);
}

// Both solutions stand in the view before one has a number, and the note of a number that was taken stands
// below the row of its own.
TEST_F(KreisTest, BeideLösungenMitIhrerNotiz) {
  GrafikLeeren();
  GrafikFenster = {true, 400, 400, 20, 3500090, 5600190, 20, 20, 0, 0, 0, 0, false};
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{Konfliktwort::Mitteln, ""}; };
  PunkteAnlegen({{"44", 3500096, 5600203}, {"45", 3500100, 5600195}, {"3001", 3500096.1, 5600203}});
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
      Gleich(KorAnzahl, 19, KorRechts[18], 3500096.1, Stapeltext(), "", Anzahl(Protokoll(), "gelöscht"), 2));
  B = Öffne("09.50");
  Gib("Kmitt_Pnr1", "45\n44\n41\n");  // clockwise
  EXPECT_TRUE(Zeigt("Bogen 200 200 100 53 270 f255"));
  Gib("Kmitt_NeuPnr", "3001\n\n");
  EXPECT_TRUE(Protokoll().ends_with(
      "PM\r\n      *** Mittel eingeführt             dRw=    3.900  dHw=   -3.000\r\n"));
}

TEST_F(KreisTest, KreismittelpunkteSchreibenIhreDateien) {
  PunkteAnlegen({{"31", 3500105, 5600240},
                 {"32", 3500140, 5600235},
                 {"33", 3500120, 5600195},
                 {"34", 3500100, 5600200.0000001}});
  B = Öffne("09.50");
  Gib("Kmitt_Pnr1", "21\n22\n23\n");
  EXPECT_EQ(Stand({"Kmitt_NeuRechts", "Kmitt_NeuHoch", "KmittR3", "KmittTau"}),
            "17.750 -5.875 17.750 8.0410! Ungünstige Verteilung: Tau unter 20 oder über 180 gon");
  Gib("Kmitt_NeuPnr", "3001\n\n");
  Gib("Kmitt_Pnr1", "31\n32\n33\n3002\n015\n");
  Gib("Kmitt_Pnr1", "31\n32\n33\n");
  Gib("Kmitt_Pnr1", "42\n43\n1001\n");  // the fields stay
  EXPECT_EQ(Gib("Kmitt_NeuPnr", "3003\n\n"), "Kmitt_Pnr3");
  EXPECT_EQ(Stand({"Kmitt_NeuHoch", "KmittR1"}), "5600220.000! 25.000 Punkte liegen auf einer Linie");
  Gib("Kmitt_Pnr3", "42\n");  // the first again
  EXPECT_EQ(Stand({}), "Punkte sind gleich");
  Gib("Kmitt_Pnr3", "34\n3003\n\n");  // a centre that no file can hold
  EXPECT_EQ(Stand({}), "Der Punkt liegt zu fern: mehr als 7 Stellen vor dem Komma");
  Drücke(*B, "KmittFelderClear");
  Drücke(*B, "KmittEnd");
  PrüfeDateien("kmitt", 2);
}

}  // namespace
}  // namespace tavorena::test
