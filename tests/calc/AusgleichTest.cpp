#include "Testhilfe.h"

#include <cmath>
#include <random>

#include <tavorena/calc/Ausgleich.h>
#include <tavorena/calc/TA.h>

namespace tavorena::test {
namespace {

using Zahlen = std::vector<double>;
constexpr double Nichts = 777;  // preset of outputs that must stay
constexpr Lage Orte[] = {{0, 0}, {3400000.123, 5700000.456}, {-2e6, 5e6}};

Zahlen Verschoben(Zahlen Werte, double Um) {
  for (double& Zahl : Werte) Zahl += Um;
  return Werte;
}
int Anzahl(const Zahlen& Werte) { return static_cast<int>(Werte.size()); }

// NIST Statistical Reference Datasets, linear regression "Norris" with its certified values.
TEST(Ausgleich, RegressionsgeradeNist) {
  const Zahlen X{0.2, 337.4, 118.2, 884.6, 10.1,  226.5, 666.3, 996.3, 448.6, 777.0, 558.2, 0.4,
                 0.6, 775.5, 666.9, 338.0, 447.5, 11.6,  556.0, 228.1, 995.8, 887.6, 120.2, 0.3,
                 0.3, 556.8, 339.1, 887.2, 999.0, 779.0, 11.1,  118.3, 229.2, 669.1, 448.9, 0.5};
  const Zahlen Y{0.1, 338.8, 118.1, 888.0, 9.2,   228.1, 668.5, 998.5, 449.1, 778.9, 559.2, 0.3,
                 0.1, 778.1, 668.8, 339.3, 448.9, 10.8,  557.7, 228.3, 998.0, 888.8, 119.6, 0.3,
                 0.6, 557.6, 339.3, 888.0, 998.5, 778.9, 10.2,  117.6, 228.9, 668.4, 449.2, 0.2};
  double a = 0, b = 0;
  for (const Lage Ort : Orte) {
    ASSERT_EQ(Regressionsgerade(Verschoben(X, Ort.RW), Verschoben(Y, Ort.HW), 36, a, b), 0);
    EXPECT_NEAR(a, 1.00211681802045, Ort.RW == 0 ? 1e-14 : 1e-12);
    EXPECT_NEAR(b + a * Ort.RW - Ort.HW, -0.262323073774029, Ort.RW == 0 ? 1e-12 : 1e-8);
  }
  a = b = Nichts;  // three equal entries whose plain sum divided by 3 is another number
  EXPECT_EQ(Regressionsgerade(Zahlen(3, 0.1), Zahlen{1, 2, 3}, 3, a, b), -1);
  EXPECT_EQ(Regressionsgerade(X, Y, 0, a, b) + Regressionsgerade(X, Y, 37, a, b), -2);
  EXPECT_EQ(a + b, 2 * Nichts);
}

TEST(Ausgleich, ListenUndMatrix) {
  const Zahlen L{3, 1, 4, 1, 5, 5, -9};
  EXPECT_EQ(ListenSumme(L, 6), 19);
  EXPECT_EQ(ListenMittel(L, 4), 2.25);
  EXPECT_EQ(ListenMittel(L, 0) + ListenMittel({}, 9) + ListenSumme(L, -1), 0);
  EXPECT_EQ(QuadratSumme(L, 3), 26);
  EXPECT_EQ(ProduktSumme(L, Zahlen{1, 10}, 7), 13);
  int Index = -7;
  EXPECT_EQ(ListenMinimumIndex(L, 0, Index) + ListenMaximumIndex(L, 8, Index), -2);
  EXPECT_EQ(Index, -7);
  EXPECT_EQ(ListenMinimumIndex(L, 6, Index), 0);
  EXPECT_EQ(Index, 1);  // the first of two
  EXPECT_EQ(ListenMaximumIndex(L, 7, Index), 0);
  EXPECT_EQ(Index, 4);

  Zahlen I{Nichts};
  EXPECT_EQ(MatrixInvertieren(Zahlen{1, 2, 2, 4}, 2, I) + MatrixInvertieren(Zahlen(8), 3, I), -2);
  EXPECT_EQ(I, Zahlen{Nichts});
  ASSERT_EQ(MatrixInvertieren(Zahlen{0, 2, 1, 1, 0, 0, 0, 1, 1}, 3, I), 0);  // needs an exchange of rows
  EXPECT_EQ(I, (Zahlen{0, 1, 0, 1, 0, -1, -1, 0, 2}));
}

// Fits that can be seen; the order of the ends tells which of the two has won.
TEST(Ausgleich, Gerade) {
  struct Fall {
    const char* Name;
    Zahlen R, H;
    Lage Anf, End;
  };
  const Zahlen SR{0, 0, 8, 8, 4, 4}, SH{-1, 1, 7, 5, 6.9, -0.9};
  const Fall Faelle[] = {
      {"slope 3/4, feet of the ends by 3-4-5", SR, SH, {-.48, -.36}, {8.48, 6.36}},
      {"the same with R on H", SH, SR, {-.36, -.48}, {6.36, 8.48}},
      {"east, R on H fails", {.3, .1, .2}, {.1, .1, .1}, {.1, .1}, {.3, .1}},
      {"north, H on R fails", {.1, .1, .1}, {.3, .1, .2}, {.1, .1}, {.1, .3}},
      {"50 gon, tie", {2, 1, 0}, {2, 1, 0}, {0, 0}, {2, 2}},
      {"150 gon, tie: from the least Hoch", {0, .1, .2, .7}, {0, -.1, -.2, -.7}, {.7, -.7}, {0, 0}},
      {"flat north-west, tie", {0, 7.1, 21.3}, {0, -.1, -.3}, {21.3, -.3}, {0, 0}},
      {"steep north-west, tie", {0, -.01, -.03}, {0, 710, 2130}, {0, 0}, {-.03, 2130}},
      {"one point", {7.7}, {8.8}, {7.7, 8.8}, {7.7, 8.8}},
      {"one spot", {7.7, 7.7, 7.7}, {8.8, 8.8, 8.8}, {7.7, 8.8}, {7.7, 8.8}},
  };
  for (const Lage Ort : Orte) {
    for (const Fall& f : Faelle) {
      SCOPED_TRACE(f.Name + std::to_string(Ort.RW));
      Lage A, E;
      ASSERT_EQ(Geradenausgleich(Verschoben(f.R, Ort.RW), Verschoben(f.H, Ort.HW), Anzahl(f.R), A, E), 0);
      EXPECT_NEAR(Abstand(A, {f.Anf.RW + Ort.RW, f.Anf.HW + Ort.HW}), 0, 5e-9);
      EXPECT_NEAR(Abstand(E, {f.End.RW + Ort.RW, f.End.HW + Ort.HW}), 0, 5e-9);
    }
  }
}

// The centre is that of the published algebraic fit; the radius is that of one step from the start circle,
// from the formula in the header, computed apart from this program.
TEST(Ausgleich, KreisVeroeffentlicht) {
  struct Fall {
    const char* Name;
    Zahlen R, H;
    Lage M;
    double Toleranz, Radius;
  };
  const Zahlen SR{9, 35, -13, 10, 23, 0}, SH{34, 10, 6, -14, 27, -10};
  const Zahlen OR{479.390, 489.810, 498.750, 505.080, 507.319, 504.929, 497.890, 489.140,
                  478.040, 465.190, 457.330, 450.090, 447.447, 451.110, 457.580, 466.920};
  const Zahlen OH{619.630, 616.200, 610.025, 601.470, 590.356, 578.789, 568.570, 561.830,
                  559.480, 563.560, 569.652, 579.221, 590.365, 601.940, 611.740, 618.530};
  const Fall Faelle[] = {
      // R. Bullock, Least-Squares Circle Fit, 2006 (radius there 14.686)
      {"Bullock",
       {0, .5, 1, 1.5, 2, 2.5, 3},
       {0, .25, 1, 2.25, 4, 6.25, 9},
       {-11.839, 8.4464},
       5e-4,
       14.665354818},
      {"SciPy Cookbook, Least squares circle", SR, SH, {10.55231, 9.70590}, 5e-6, 23.160158915},
      // OSGeoLabBp/tutorials, circletest.txt (CC0); 54 mm short of the 29.6259 of the algebraic fit
      {"OSGeoLab", OR, OH, {477.641865, 589.888125}, 1e-6, 29.571777462},
  };
  for (const Lage Ort : Orte) {
    for (const Fall& f : Faelle) {
      SCOPED_TRACE(f.Name);
      Lage M;
      double r = 0;
      ASSERT_EQ(Kreisausgleich(Verschoben(f.R, Ort.RW), Verschoben(f.H, Ort.HW), Anzahl(f.R), M, r), 0);
      EXPECT_NEAR(M.RW - Ort.RW, f.M.RW, f.Toleranz);
      EXPECT_NEAR(M.HW - Ort.HW, f.M.HW, f.Toleranz);
      EXPECT_NEAR(r, f.Radius, 1e-7);
    }
  }
}

// Points of a known circle, from an arc of 50 gon to all around, from 3 points to the bound.
TEST(Ausgleich, KreisErhalten) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> Ort(-100, 100), Radius(5, 500), Winkel(0, 7), Oeffnung(0.8, 6);
  for (int Lauf = 0; Lauf < 2000; ++Lauf) {
    const Lage Soll{3.4e6 + Ort(Zufall), 5.7e6 + Ort(Zufall)};
    const double r = Radius(Zufall), w = Winkel(Zufall), Bogen = Oeffnung(Zufall);
    const int n = Lauf % 100 == 0 ? 201 : 3 + Lauf % 20;
    Zahlen R, H;
    for (int i = 0; i < n; ++i) {
      R.push_back(Soll.RW + r * std::sin(w + Bogen * i / (n - 1)));
      H.push_back(Soll.HW + r * std::cos(w + Bogen * i / (n - 1)));
    }
    Lage M;
    double Ist = 0;
    ASSERT_EQ(Kreisausgleich(R, H, n, M, Ist), 0);
    ASSERT_NEAR(Abstand(M, Soll) + std::fabs(Ist - r), 0, 1e-7);
  }
}

class AusgleichTA : public TabellenTest {};

TEST_F(AusgleichTA, ZwillingeUndAblehnungen) {
  TA Ta;
  double a = 0, b = 0, c = 0, d = 0;
  Punkt("1", 10, 5);
  Punkt("2", 5, 10);
  Punkt("3", 0, 5);
  const std::vector<Wert> Nummern{1, 2.0, " 3 ", "1a"};
  EXPECT_EQ(Ta.AusgleichenderKreisPnr(Nummern, 3, a, b, c), enmResult::ok);
  EXPECT_NEAR(std::hypot(a - 5, b - 5, c - 5), 0, 1e-12);
  EXPECT_EQ(Ta.AusgleichendeGeradePnr(Nummern, 2, a, b, c, d), enmResult::ok);
  EXPECT_NEAR(std::hypot(a - 10, b - 5) + std::hypot(c - 5, d - 10), 0, 1e-12);

  const auto Fehler = enmResult::Fehler_Allgemein, Fehlt = enmResult::Fehler_PunktNichtVorhanden;
  a = b = c = d = Nichts;
  EXPECT_EQ(Ta.AusgleichendeGeradePnr(Nummern, 4, a, b, c, d), Fehlt);
  EXPECT_EQ(Ta.AusgleichenderKreisPnr(Nummern, 4, a, b, c), Fehlt);
  EXPECT_EQ(Ta.AusgleichendeGeradePnr(Nummern, 5, a, b, c, d), Fehler);
  EXPECT_EQ(Ta.AusgleichenderKreisPnr(Nummern, -1, a, b, c), Fehler);
  EXPECT_EQ(Ta.AusgleichenderKreis(Zahlen(202), Zahlen(202), 202, a, b, c), enmResult::Fehler_ZuvielePunkte);
  const auto Kreis = [&](const Zahlen& R, const Zahlen& H) {
    return Ta.AusgleichenderKreis(R, H, Anzahl(R), a, b, c);
  };
  EXPECT_EQ(Kreis({0, 1}, {0, 1}), Fehler);
  EXPECT_EQ(Kreis({0, 1, 1, 0}, {0, 0, 1, 0}), Fehler) << "ring typed closed";
  EXPECT_EQ(Kreis({1, 2, 5, 7, 9, 3}, {7, 6, 8, 7, 5, 7}), Fehler)
      << "Gander, Golub, Strebel 1994: start on a line";
  EXPECT_EQ(Kreis(Verschoben({.1, .2, .4}, 3.4e6), Verschoben({.3, .6, 1.2}, 5.7e6)), Fehler)
      << "grid, one line";
  const Zahlen Schlecht[][2] = {{{}, {}},
                                {{0, 1, 0}, {0, 1}},
                                {{0, 1, 2}, {0, std::nan(""), 0}},
                                {{0, 1, HUGE_VAL}, {0, 1, 0}},
                                {{0, 1e200, -1e200}, {0, 1e200, -3e200}}};
  for (const auto& [R, H] : Schlecht) {
    EXPECT_EQ(Kreis(R, H), Fehler);
    EXPECT_EQ(Ta.AusgleichendeGerade(R, H, Anzahl(R), a, b, c, d), Fehler);
  }
  EXPECT_EQ(a + b + c + d, 4 * Nichts);
}

}  // namespace
}  // namespace tavorena::test
