#include "Rechentest.h"

namespace tavorena::test {
namespace {

// Numbers that can be checked by hand: 3-4-5 triangles and the four quadrants.
TEST(Linienelemente, Tabelle) {
  struct Fall {
    const char* Name;
    Lage Anf, End, Punkt;
    double Linie, Seitwaerts;
  };
  constexpr Fall Faelle[] = {
      {"north, point to the east", {0, 0}, {0, 100}, {30, 40}, 40, 30},
      {"east, point to the south", {0, 0}, {100, 0}, {40, -30}, 40, 30},
      {"south-west, point to the south", {0, 0}, {-30, -40}, {-30, -90}, 90, -30},
      {"behind the start", {0, 0}, {0, 100}, {-5, -5}, -5, -5},
      {"Gauss-Krüger, 3-4-5", {3400000, 5700000}, {3400030, 5700040}, {3400023, 5700014}, 25, 10},
      {"negative coordinates", {-30, -40}, {0, 0}, {-30, -40}, 0, 0},
      // S. L. Loney, The Elements of Coordinate Geometry, 1895, examples on perpendiculars.
      {"Loney, 4 2/5 off 3x + 4y = 10", {2, 1}, {-2, 4}, {4, 5}, 0.8, 4.4},
  };
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    double Linie = 0, Seitwaerts = 0;
    EXPECT_EQ(Linienelemente(f.Anf, f.End, f.Punkt, Linie, Seitwaerts), 0);
    EXPECT_TRUE(Nahe({Linie, Seitwaerts}, {f.Linie, f.Seitwaerts}));
  }
}

// A point placed from foot point and offset comes back with them; the polar elements agree by Pythagoras.
TEST(Linienelemente, StimmenMitPolarelementenUndFusspunkt) {
  Gelaende G;
  for (int i = 0; i < 5000; ++i) {
    const Lage A = G(), E = G(), P = G();
    double Linie = 0, Seitwaerts = 0, Richtung = 0, Entf = 0, Nord = 0;
    Lage F;
    ASSERT_EQ(Linienelemente(A, E, P, Linie, Seitwaerts) + Fusspunkt(A, E, P, F), 0);
    ASSERT_EQ(Polarelemente(A, E, P, 0, Richtung, Entf, Nord), 0);
    ASSERT_NEAR(Abstand(P, F), std::fabs(Seitwaerts), 1e-8);
    ASSERT_TRUE(Nahe({Linie, Seitwaerts}, {Entf * CosGon(Richtung), Entf * SinGon(Richtung)}, 1e-7));
  }
}

using Schnittstelle = RechenTest;

TEST_F(Schnittstelle, Anschluesse) {
  constexpr auto Gleich = Fehler_AnfangsUndEndpunktGleich;
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 0, &b, &c), Fehler_Allgemein);
  EXPECT_TRUE(Nahe({a, b, c}, {100, Nichts, Nichts}));  // the distance is valid all the same
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 99.8, &b, &c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {100, 0.16, 0.2}));  // 0.08 + 0.03 + 0.05
  EXPECT_EQ(Ta.LinienelementeAnschluss(0, 0, 60, 80, a, 5, 0, &b, &c, &d), ok);
  EXPECT_TRUE(Nahe({a, b, c, d}, {100, 0.16, 0, 1}));  // D is set although nothing was measured
  EXPECT_EQ(Ta.LinienelementeAnschluss(0, 0, 60, 80, a, 5, 104.93, &b, &c, &d), ok);
  EXPECT_TRUE(Nahe({c, d}, {0.07, 0.9993}));  // measured over computed
  EXPECT_EQ(Ta.LinienelementeAnschluss(1, 1, 1, 1, a, 0, 7, &b, &c, &d), Gleich);
  EXPECT_TRUE(Nahe({a, c, d}, {0, -7, 1}));
  EXPECT_EQ(Ta.PolarelementeAnschluss(0, 0, 100, 0, a, &b, &c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {100, 0, 100}));  // 0 is the clockwise intermediate of due east
  EXPECT_EQ(Ta.PolarelementeAnschluss(1, 1, 1, 1, a, &b, &c), Gleich);
  EXPECT_EQ(Ta.Polarelemente(0, 0, 60, 80, 30, 30, a, b, "12,5", &c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {21.5334, 42.4264, 40.9666}, 5e-5));
  Vorbesetzen();
  EXPECT_EQ(Ta.Polarelemente(1, 1, 1, 1, 30, 30, a, b, 0.0, &c), Gleich);
  EXPECT_EQ(c, 0);  // written all the same
  c = Nichts;
  EXPECT_EQ(Ta.Linienelemente(1, 1, 1, 1, 5, 5, a, b), Gleich);
  EXPECT_EQ(Ta.Linienelemente(0, 0, 60, 80, std::nan(""), 0, a, b), Fehler_Allgemein);
  EXPECT_EQ(Ta.Polarelemente(0, 0, 60, 80, 1, 0, a, b, HUGE_VAL), Fehler_Allgemein);
  EXPECT_TRUE(Unberuehrt());
}

TEST_F(Schnittstelle, Zwillinge) {
  Punkt("1", 0, 0);
  Punkt("2", 60, 80);
  Punkt("12A", 30, 30);
  EXPECT_EQ(Ta.EntfernungskontrollePnr(1, 2.0, a, 99.8, &b, &c), ok);
  EXPECT_EQ(Ta.LinienelementeAnschlussPnr(1, "2", d), ok);
  EXPECT_EQ(a + d, 200);
  EXPECT_EQ(Ta.LinienelementePnr(1, " 2 ", "12A", a, b), ok);
  EXPECT_EQ(Ta.PolarelementeAnschlussPnr("2", 1, d, nullptr, &c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {42, 6, 240.9666}, 5e-5));
  EXPECT_EQ(Ta.PolarelementePnr("1", "2", "12A", a, b), ok);
  for (const Wert& Fehlt : {Wert("12a"), Wert(), Wert(NullWert{}), Wert(3)}) {
    Vorbesetzen();
    EXPECT_EQ(Ta.LinienelementePnr(Fehlt, 2, 1, a, b), Fehler_PunktNichtVorhanden);
    EXPECT_EQ(Ta.PolarelementePnr(1, 2, Fehlt, a, b), Fehler_PunktNichtVorhanden);
    EXPECT_TRUE(Unberuehrt());
  }
}

TEST_F(Schnittstelle, Koordinatendatei) {
  const std::string Datei = Ordner.Pfad("a.kor");
  EXPECT_EQ(Ta.KoordinatendateiLesen(Datei), -1);
  Schreibe(Datei, "2 1.5 2.5 3 x\r\n2 1.5 2.5 3 x\r\n1 0 0.25\r\n");
  EXPECT_EQ(Ta.KoordinatendateiLesen(Datei), 3);  // doubles are no reason to ask
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Datei, 1), 3);
  EXPECT_TRUE(Inhalt(Datei).starts_with("             1         0.0         0.3       0.0  \r\n"));
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Ordner.Pfad("kein/ordner.kor")), -1);
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Datei, -1), -1);
  EXPECT_EQ(Ta.KoordinatendateiLesen(Ordner.Pfad("")), -1);
}

}  // namespace
}  // namespace tavorena::test
