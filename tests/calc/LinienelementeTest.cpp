#include "Rechentest.h"

namespace tavorena::test {
namespace {

// The foot point lies as far from the point as the offset says; the polar elements agree by Pythagoras.
TEST(Linienelemente, Gegenprobe) {
  Gelände G;
  for (int i = 0; i < 5000; ++i) {
    const Lage A = G(), E = G(), P = G();
    double Linie = 0, Seitwaerts = 0, Richtung = 0, Entf = 0, Nord = 0;
    Lage F;
    ASSERT_EQ(Linienelemente(A, E, P, Linie, Seitwaerts), 0);
    ASSERT_EQ(Fusspunkt(A, E, P, F), 0);
    ASSERT_NEAR(Abstand(F, P), std::fabs(Seitwaerts), 1e-8);
    ASSERT_EQ(Polarelemente(A, E, P, 0, Richtung, Entf, Nord), 0);
    ASSERT_TRUE(Nahe({Entf * CosGon(Richtung), Entf * SinGon(Richtung)}, {Linie, Seitwaerts}, 1e-7));
  }
}

constexpr auto Gleiche = Fehler_AnfangsUndEndpunktGleich;
using LinienTA = RechenTest;

TEST_F(LinienTA, Entfernungskontrolle) {
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 0, &b, &c), Fehler_Allgemein);
  EXPECT_TRUE(Gleich(a, 100, b, Nichts, c, Nichts));  // the distance is valid all the same
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 99.8, &b, &c), ok);
  EXPECT_TRUE(Nahe({b, c}, {0.16, 0.2}, 1e-12));  // 0.08 + 0.03 + 0.05
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 99.8), ok);
}

TEST_F(LinienTA, LinienelementeAnschluss) {
  EXPECT_EQ(Ta.LinienelementeAnschluss(0, 0, 60, 80, a, 5, 0, &b, &c, &d), ok);
  EXPECT_TRUE(Gleich(a, 100, c, 0, d, 1));
  EXPECT_NEAR(b, 0.16, 1e-12);  // D is set although nothing was measured
  EXPECT_EQ(Ta.LinienelementeAnschluss(0, 0, 60, 80, a, 5, 104.93, &b, &c, &d), ok);
  EXPECT_NEAR(c, 0.07, 1e-9);
  EXPECT_NEAR(d, 0.9993, 1e-12);  // measured over computed
  EXPECT_EQ(Ta.LinienelementeAnschluss(1, 1, 1, 1, a, 0, 7, &b, &c, &d), Gleiche);
  EXPECT_TRUE(Gleich(a, 0, c, -7, d, 1));
}

TEST_F(LinienTA, Polarelemente) {
  EXPECT_EQ(Ta.PolarelementeAnschluss(0, 0, 100, 0, a, &b, &c), ok);
  EXPECT_TRUE(Gleich(a, 100, b, 0));  // b: the clockwise intermediate of due east
  EXPECT_NEAR(c, 100, 1e-10);
  EXPECT_EQ(Ta.PolarelementeAnschluss(1, 1, 1, 1, a, &b, &c), Gleiche);
  EXPECT_EQ(Ta.Polarelemente(0, 0, 60, 80, 30, 30, a, b, "12,5", &c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {21.5334, 42.4264, 40.9666}, 5e-5));
  Vorbesetzen();
  EXPECT_EQ(Ta.Polarelemente(1, 1, 1, 1, 30, 30, a, b, 0.0, &c), Gleiche);
  EXPECT_TRUE(Gleich(a, Nichts, b, Nichts, c, 0));
}

TEST_F(LinienTA, Zwillinge) {
  PunkteAnlegen({{"1", 0, 0}, {"2", 60, 80}, {"12A", 30, 30}});
  EXPECT_EQ(Ta.EntfernungskontrollePnr(1, 2.0, a, 99.8, &b, &c), ok);
  EXPECT_EQ(Ta.LinienelementeAnschlussPnr(1, "2", d), ok);
  EXPECT_TRUE(Gleich(a, 100, d, 100));
  EXPECT_EQ(Ta.LinienelementePnr(1, " 2 ", "12A", a, b), ok);
  EXPECT_TRUE(Nahe({a, b}, {42, 6}, 1e-9));
  EXPECT_EQ(Ta.PolarelementeAnschlussPnr("2", 1, a, nullptr, &c), ok);
  EXPECT_NEAR(c, 240.9666, 5e-5);
  EXPECT_EQ(Ta.PolarelementePnr("1", "2", "12A", a, b), ok);
  Vorbesetzen();
  for (const Wert& Fehlt : {Wert("12a"), Wert(), Wert(NullWert{}), Wert(3)}) {
    EXPECT_EQ(Ta.LinienelementePnr(Fehlt, 2, 1, a, b), Fehler_PunktNichtVorhanden);
    EXPECT_EQ(Ta.PolarelementePnr(1, 2, Fehlt, a, b), Fehler_PunktNichtVorhanden);
  }
  EXPECT_TRUE(Unberührt());
}

TEST_F(LinienTA, SchlechteEingaben) {
  EXPECT_EQ(Ta.Linienelemente(1, 1, 1, 1, 5, 5, a, b), Gleiche);
  for (const double x : {std::nan(""), HUGE_VAL}) {
    EXPECT_EQ(Ta.Linienelemente(0, 0, 60, 80, x, 0, a, b), Fehler_Allgemein);
    EXPECT_EQ(Ta.Polarelemente(0, 0, 60, 80, 1, 0, a, b, x), Fehler_Allgemein);
  }
  EXPECT_TRUE(Unberührt());
}

TEST_F(LinienTA, Koordinatendatei) {
  const std::string Datei = Ordner.Pfad("a.kor");
  EXPECT_EQ(Ta.KoordinatendateiLesen(Datei), -1);
  Schreibe(Datei, "2 1.5 2.5 3 x\r\n2 1.5 2.5 3 x\r\n1 0 0.25\r\n");
  EXPECT_EQ(Ta.KoordinatendateiLesen(Datei), 3);  // doubles are no reason to ask
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Datei, 1), 3);
  EXPECT_TRUE(Inhalt(Datei).starts_with("             1         0.0         0.3       0.0  \r\n"));
  EXPECT_TRUE(Gleich(Ta.KoordinatendateiSchreiben(Ordner.Pfad("kein/ordner.kor")), -1,
                     Ta.KoordinatendateiSchreiben(Datei, -1), -1, Ta.KoordinatendateiLesen(Ordner.Pfad("")),
                     -1));
}

}  // namespace
}  // namespace tavorena::test
