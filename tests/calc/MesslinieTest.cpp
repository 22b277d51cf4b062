#include "Testhilfe.h"

#include <cmath>
#include <limits>
#include <random>

#include <tavorena/calc/Messlinie.h>
#include <tavorena/calc/TA.h>

namespace tavorena::test {
namespace {

TEST(Winkelformen, Tabelle) {
  EXPECT_EQ(GonNachGrad(0), 0);  // not 360
  EXPECT_EQ(GonNachGrad(100), 270);
  EXPECT_EQ(GonNachGrad(400), 0);
  EXPECT_EQ(GradNachGon(0), 0);
  EXPECT_EQ(GradNachGon(270), 100);
  constexpr double Vektoren[][4] = {// dR, dH, degrees counter-clockwise from east, gon clockwise from north
                                    {1, 0, 0, 100},    {0, 1, 90, 0},     {-1, 0, 180, 300},
                                    {0, -1, 270, 200}, {1, -1, 315, 150}, {-1, 1, 135, 350}};
  for (const auto& v : Vektoren) {
    EXPECT_NEAR(AzimutGrad({5, 5}, {5 + v[0], 5 + v[1]}), v[2], 1e-12);
    EXPECT_NEAR(Richtung({5, 5}, {5 + v[0], 5 + v[1]}), v[3], 1e-12);
  }
}

TEST(Messlinie, Tabelle) {
  struct Fall {
    const char* Name;
    Lage Anf, End;
    double Anlegemass, Endmass, Linie, Seitwaerts;
    int Ergebnis;
    Lage Neu;
  };
  constexpr Fall Faelle[] = {
      {"on the start reading", {7, 8}, {7, 108}, 5, 0, 5, 0, 1, {7, 8}},
      {"north, to the right", {0, 0}, {0, 100}, 0, 0, 40, 30, 1, {30, 40}},
      {"east, to the right", {0, 0}, {100, 0}, 0, 0, 40, 30, 1, {40, -30}},
      {"south, to the left", {0, 0}, {0, -100}, 0, 0, 40, -30, 1, {30, -40}},
      {"west, behind the start", {0, 0}, {-100, 0}, 0, 0, -40, 30, 1, {40, 30}},
      {"80 m measured over 100 m: the scale once", {0, 0}, {0, 100}, 10, 90, 50, 8, 0, {10, 50}},
      {"end reading alone", {0, 0}, {60, 80}, 0, 50, 25, 5, 0, {38, 34}},
      {"grid coordinates", {3400000, 5700000}, {3400030, 5700040}, 0, 0, 25, 10, 1, {3400023, 5700014}},
      {"negative coordinates", {-30, -40}, {0, 0}, 0, 0, 50, 0, 1, {0, 0}},
      {"readings equal: the start point", {1, 2}, {1, 9}, 7, 7, 3, 4, -1, {1, 2}},
      {"equal points, not measured", {1, 2}, {1, 2}, 0, 0, 3, 4, 1, {1, 2}},
      {"equal points, measured", {1, 2}, {1, 2}, 0, 9, 3, 4, 0, {1, 2}},
      // S. L. Loney, The Elements of Coordinate Geometry, 1895, examples on perpendiculars: (4, 5) stands
      // 4 2/5 off 3x + 4y = 10; the foot is 4/5 along the line from (2, 1).
      {"Loney, perpendicular on a line", {2, 1}, {-2, 4}, 0, 0, 0.8, 4.4, 1, {4, 5}},
  };
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    MesslinieAnschlusswerte Werte;
    EXPECT_EQ(MesslinieBerechnungAnschluss(f.Anf, f.End, f.Anlegemass, f.Endmass, Werte), f.Ergebnis);
    EXPECT_EQ(Werte.OhneEndmass, f.Endmass == 0);
    const Lage Neu = MesslinieBerechnungPunkt(f.Anf, f.Anlegemass, Werte, f.Linie, f.Seitwaerts);
    EXPECT_NEAR(Neu.RW, f.Neu.RW, 1e-9);
    EXPECT_NEAR(Neu.HW, f.Neu.HW, 1e-9);
  }
}

// The line elements are the inverse, times measured over computed where the line was measured.
TEST(Messlinie, UmkehrungDurchLinienelemente) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> R(3.40e6, 3.41e6), H(5.70e6, 5.71e6), L(-500, 500), M(0.9, 1.1);
  for (int i = 0; i < 5000; ++i) {
    const Lage A{R(Zufall), H(Zufall)}, E{R(Zufall), H(Zufall)};
    const double a = L(Zufall), e = i % 2 == 0 ? 0 : a + M(Zufall) * Abstand(A, E), Soll = L(Zufall);
    MesslinieAnschlusswerte Werte;
    ASSERT_GE(MesslinieBerechnungAnschluss(A, E, a, e, Werte), 0);
    const Lage P = MesslinieBerechnungPunkt(A, a, Werte, Soll, -Soll);
    double Linie = 0, Seitwaerts = 0;
    ASSERT_EQ(Linienelemente(A, E, P, Linie, Seitwaerts), 0);
    ASSERT_NEAR(a + Linie / Werte.Massstab, Soll, 3e-9);
    ASSERT_NEAR(Seitwaerts / Werte.Massstab, -Soll, 3e-9);
  }
}

double Gon(double Grad, double Minuten, double Sekunden) {
  return (Grad + Minuten / 60 + Sekunden / 3600) / 0.9;
}

TEST(Polarpunkt, Tabelle) {
  struct Fall {
    const char* Name;
    Lage Anf, End;
    double Winkel, Strecke, Orientierung, Massstab;
    Lage Neu;
    double Grenze = 1e-9;
  };
  const Fall Faelle[] = {
      {"0 gon", {0, 0}, {0, 9}, 0, 50, 0, 1, {0, 50}},
      {"100 gon", {0, 0}, {0, 9}, 100, 50, 0, 1, {50, 0}},
      {"200 gon", {0, 0}, {0, 9}, 200, 50, 0, 1, {0, -50}},
      {"300 gon", {0, 0}, {0, 9}, 300, 50, 0, 1, {-50, 0}},
      {"400 gon", {0, 0}, {0, 9}, 400, 50, 0, 1, {0, 50}},
      {"400 gon as orientation", {0, 0}, {0, 9}, 100, 50, 400, 1, {50, 0}},
      {"negative reading", {0, 0}, {0, 9}, -100, 50, 0, 1, {-50, 0}},
      {"across zero", {0, 0}, {9, 0}, 50, 50, 350, 1, {0, -50}},
      {"on the ray, with scale", {-4, -3}, {4, 3}, 77.7, 20, 77.7, 1.25, {16, 12}},
      {"grid coordinates", {3400000, 5700000}, {3399970, 5699960}, 212.3, 25, 12.3, 1, {3400015, 5700020}},
      // C. D. Ghilani, P. R. Wolf, Elementary Surveying, chapter on traverse computations: departures and
      // latitudes of the worked traverse ABCDE, printed to 0.001.
      {"Ghilani, AB", {0, 0}, {0, 9}, Gon(126, 55, 17), 647.25, 0, 1, {517.451, -388.815}, 6e-4},
      {"Ghilani, BC", {0, 0}, {0, 9}, Gon(178, 18, 58), 203.03, 0, 1, {5.966, -202.942}, 6e-4},
      {"Ghilani, CD", {0, 0}, {0, 9}, Gon(15, 31, 54), 720.35, 0, 1, {192.889, 694.045}, 6e-4},
      {"Ghilani, DE", {0, 0}, {0, 9}, Gon(284, 35, 20), 610.24, 0, 1, {-590.565, 153.708}, 6e-4},
  };
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    Lage Neu;
    EXPECT_EQ(PolarBerechnungPunkt(f.Anf, f.End, GonNachGrad(f.Winkel), f.Strecke, 0,
                                   GonNachGrad(f.Orientierung), f.Massstab, Neu),
              0);
    EXPECT_NEAR(Neu.RW, f.Neu.RW, f.Grenze);
    EXPECT_NEAR(Neu.HW, f.Neu.HW, f.Grenze);
  }
  Lage Neu{9, 9};
  EXPECT_EQ(PolarBerechnungPunkt({1, 1}, {1, 1}, 0, 5, 0, 0, 1, Neu), -1);
  EXPECT_EQ(Neu, (Lage{9, 9}));
  EXPECT_EQ(PolarBerechnungPunkt({0, 0}, {0, 9}, 0, 10, 3, 0, 2, Neu), 0);  // offset to the right, with scale
  EXPECT_NEAR(Neu.RW, 6, 1e-9);
  EXPECT_NEAR(Neu.HW, 20, 1e-9);
}

TEST(Polarpunkt, UmkehrungDurchPolarelemente) {
  std::mt19937 Zufall(19700102);
  std::uniform_real_distribution<double> R(3.40e6, 3.41e6), H(5.70e6, 5.71e6), W(0, 400);
  for (int i = 0; i < 5000; ++i) {
    const Lage A{R(Zufall), H(Zufall)}, E{R(Zufall), H(Zufall)}, P{R(Zufall), H(Zufall)};
    double Winkel = 0, Entf = 0, Nord = 0;
    const double Orientierung = W(Zufall);
    ASSERT_EQ(Polarelemente(A, E, P, Orientierung, Winkel, Entf, Nord), 0);
    Lage Neu;
    ASSERT_EQ(PolarBerechnungPunkt(A, E, GonNachGrad(Winkel), Entf, 0, GonNachGrad(Orientierung), 1, Neu), 0);
    ASSERT_NEAR(Abstand(P, Neu), 0, 3e-9);
  }
}

TEST(Polarpunkt, Hoehe) {
  EXPECT_EQ(PolarhoeheBerechnen(50, 1.6, 0, 20, 1.4), 0);  // not measured, whatever the station's height
  EXPECT_NEAR(PolarhoeheBerechnen(50, 1.6, 100, 20, 1.4), 50.2, 1e-12);
  EXPECT_NEAR(PolarhoeheBerechnen(50, 0, 200. / 3, 20, 0), 60, 1e-12);
  EXPECT_EQ(PolarVertikalAnschluss(20, 7, 7), 100);
  EXPECT_NEAR(PolarVertikalAnschluss(20, 7, 27), 50, 1e-12);
  EXPECT_NEAR(PolarVertikalAnschluss(20, 27, 7), 150, 1e-12);
}

class MesslinieTA : public TabellenTest {
 protected:
  TA Ta;
  double a = 9, b = 9, c = 9, d = 9;
};

TEST_F(MesslinieTA, Anschluss) {
  EXPECT_EQ(Ta.MesslinieAnschluss(0, 0, 60, 80, a, 5, 105.2, &b, &c, &d), enmResult::ok);
  EXPECT_EQ(a, 100);
  EXPECT_NEAR(b, 0.16, 1e-12);
  EXPECT_NEAR(c, -0.2, 1e-9);
  EXPECT_NEAR(d, 100 / 100.2, 1e-12);  // computed over measured
  EXPECT_EQ(Ta.MesslinieAnschluss(0, 0, 60, 80, a, 5, 0, &b, &c, &d), enmResult::ok);
  EXPECT_EQ(c, 0);
  EXPECT_EQ(d, 1);
  EXPECT_EQ(Ta.MesslinieAnschluss(0, 0, 60, 80, a, 5, 5, &b, &c, &d),
            enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(c, 100);
  EXPECT_EQ(d, 1);
  EXPECT_EQ(Ta.Messlinie(1, 2, 60, 80, 3, 4, a, b, 5, 5), enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(a, 1);  // the point is computed all the same
  EXPECT_EQ(b, 2);
  EXPECT_EQ(Ta.PolarpunktAnschluss(1, 2, 1, 2, a, 4, &b, &c, nullptr, &d), enmResult::ok);
  EXPECT_EQ(a + b + d, 0);
  EXPECT_EQ(c, 0.05);
  EXPECT_EQ(Ta.PolarpunktAnschluss(0, 0, -60, -80, a, 0, &b, nullptr, &c, &d), enmResult::ok);
  EXPECT_NEAR(b, 240.9666, 5e-5);
  EXPECT_EQ(a + c + d, 101);
}

TEST_F(MesslinieTA, ZwillingeUndSchlechteEingaben) {
  Punkt("1", 0, 0);
  Punkt("2", 60, 80);
  EXPECT_EQ(Ta.MesslinieAnschlussPnr(1, "2", a, 0, 50, nullptr, &c, &d), enmResult::ok);
  EXPECT_EQ(c + d, 52);
  EXPECT_EQ(Ta.MessliniePnr(1, " 2", 25, 5, a, b, 0, 50), enmResult::ok);
  EXPECT_NEAR(a, 38, 1e-12);
  EXPECT_NEAR(b, 34, 1e-12);
  EXPECT_EQ(Ta.PolarpunktAnschlussPnr(2.0, 1, a, 200, &b, nullptr, &c, &d), enmResult::ok);
  EXPECT_NEAR(b, 240.9666, 5e-5);
  EXPECT_EQ(d, 0.5);
  EXPECT_EQ(Ta.PolarpunktPnr(1, 2, 112.5, 10, a, b, 12.5, 0.5), enmResult::ok);
  EXPECT_NEAR(a, 4, 1e-12);
  EXPECT_NEAR(b, -3, 1e-12);
  EXPECT_EQ(Ta.PolarpunktPnr(1, 1, 0, 5, a = 9, b = 9), enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(Ta.MessliniePnr(1, 3, 25, 5, a, b), enmResult::Fehler_PunktNichtVorhanden);
  EXPECT_EQ(Ta.PolarpunktPnr(3, 2, 0, 5, a, b), enmResult::Fehler_PunktNichtVorhanden);
  for (const double x : {std::nan(""), -std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(Ta.Messlinie(0, 0, 60, 80, 1, x, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.Polarpunkt(0, 0, 60, 80, 1, 1, a, b, 0, x), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.MesslinieAnschluss(0, 0, 60, 80, a, 0, x, &b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.PolarpunktAnschluss(0, x, 60, 80, a, 0, &b), enmResult::Fehler_Allgemein);
  }
  EXPECT_EQ(a + b, 18);
}

}  // namespace
}  // namespace tavorena::test
