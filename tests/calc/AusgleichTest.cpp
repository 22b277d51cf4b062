#include "Rechentest.h"

#include <tavorena/calc/Ausgleich.h>

namespace tavorena::test {
namespace {

int Anzahl(const Zahlen& Werte) { return static_cast<int>(Werte.size()); }

// NIST Statistical Reference Datasets, linear regression "Norris" with its certified values.
TEST(Ausgleich, RegressionsgeradeNist) {
  const Zahlen X{0.2, 337.4, 118.2, 884.6, 10.1,  226.5, 666.3, 996.3, 448.6, 777.0, 558.2, 0.4,
                 0.6, 775.5, 666.9, 338.0, 447.5, 11.6,  556.0, 228.1, 995.8, 887.6, 120.2, 0.3,
                 0.3, 556.8, 339.1, 887.2, 999.0, 779.0, 11.1,  118.3, 229.2, 669.1, 448.9, 0.5};
  const Zahlen Y{0.1, 338.8, 118.1, 888.0, 9.2,   228.1, 668.5, 998.5, 449.1, 778.9, 559.2, 0.3,
                 0.1, 778.1, 668.8, 339.3, 448.9, 10.8,  557.7, 228.3, 998.0, 888.8, 119.6, 0.3,
                 0.6, 557.6, 339.3, 888.0, 998.5, 778.9, 10.2,  117.6, 228.9, 668.4, 449.2, 0.2};
  double a = Nichts, b = Nichts;
  for (const int n : {0, 37}) EXPECT_EQ(Regressionsgerade(X, Y, n, a, b), -1);
  // A third of their plain sum is not 0.1.
  EXPECT_TRUE(Gleich(Regressionsgerade(Zahlen(3, 0.1), X, 3, a, b), -1, a, Nichts, b, Nichts));
  for (const Lage Ort : Orte) {
    ASSERT_EQ(Regressionsgerade(Verschoben(X, Ort.RW), Verschoben(Y, Ort.HW), 36, a, b), 0);
    EXPECT_NEAR(a, 1.00211681802045, 1e-12);
    EXPECT_NEAR(b + a * Ort.RW - Ort.HW, -0.262323073774029, 1e-8);
  }
}

TEST(Ausgleich, Listen) {
  const Zahlen L{3, 1, 4, 1, 5, 5, -9};
  EXPECT_TRUE(Gleich(ListenMittel(L, 4), 2.25, ListenMittel(L, 0), 0, ListenMittel({}, 9), 0));
  EXPECT_TRUE(Gleich(ListenSumme(L, 6), 19, ListenSumme(L, -1), 0, QuadratSumme(L, 3), 26,
                     ProduktSumme(L, Zahlen{1, 10}, 7), 13));
  int Min = -7, Max = -7;
  EXPECT_TRUE(Gleich(ListenMinimumIndex(L, 0, Min), -1, ListenMaximumIndex(L, 8, Max), -1, Min, -7, Max, -7));
  // The first of two.
  EXPECT_TRUE(Gleich(ListenMinimumIndex(L, 6, Min), 0, ListenMaximumIndex(L, 7, Max), 0, Min, 1, Max, 4));
}

TEST(Ausgleich, MatrixInvertieren) {
  Zahlen I{Nichts};
  EXPECT_TRUE(
      Gleich(MatrixInvertieren(Zahlen{1, 2, 2, 4}, 2, I), -1, MatrixInvertieren(Zahlen(8), 3, I), -1));
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
  const Fall Fälle[] = {
      {"slope 3/4, feet of the ends by 3-4-5", SR, SH, {-.48, -.36}, {8.48, 6.36}},
      {"the same with R on H", SH, SR, {-.36, -.48}, {6.36, 8.48}},
      {"east, R on H fails", {.3, .1, .2}, {.1, .1, .1}, {.1, .1}, {.3, .1}},
      {"north, H on R fails", {.1, .1, .1}, {.3, .1, .2}, {.1, .1}, {.1, .3}},
      {"150 gon, tie: from the least Hoch", {0, .1, .2, .7}, {0, -.1, -.2, -.7}, {.7, -.7}, {0, 0}},
      {"flat north-west, tie", {0, 7.1, 21.3}, {0, -.1, -.3}, {21.3, -.3}, {0, 0}},
      {"steep north-west, tie", {0, -.01, -.03}, {0, 710, 2130}, {0, 0}, {-.03, 2130}},
      {"one point", {7.7}, {8.8}, {7.7, 8.8}, {7.7, 8.8}},
      {"one spot", {7.7, 7.7, 7.7}, {8.8, 8.8, 8.8}, {7.7, 8.8}, {7.7, 8.8}},
  };
  Überall(Fälle, [](const Fall& f, Lage Ort) {
    Lage A, E;
    ASSERT_EQ(Geradenausgleich(Verschoben(f.R, Ort.RW), Verschoben(f.H, Ort.HW), Anzahl(f.R), A, E), 0);
    EXPECT_TRUE(Nahe(A, f.Anf + Ort, 5e-9));
    EXPECT_TRUE(Nahe(E, f.End + Ort, 5e-9));
  });
}

// SciPy Cookbook, Least squares circle: the centre is that of the published algebraic fit, the radius that of
// one step from the start circle (there 23.33), from the formula in the header, computed apart from this
// program.
TEST(Ausgleich, KreisVeröffentlicht) {
  const Zahlen R{9, 35, -13, 10, 23, 0}, H{34, 10, 6, -14, 27, -10};
  for (const Lage Ort : Orte) {
    Lage M;
    double r = 0;
    ASSERT_EQ(Kreisausgleich(Verschoben(R, Ort.RW), Verschoben(H, Ort.HW), 6, M, r), 0);
    EXPECT_TRUE(Nahe(M, Lage{10.55231, 9.70590} + Ort, 5e-6));
    EXPECT_NEAR(r, 23.160158915, 1e-7);
  }
}

using AusgleichTA = RechenTest;

TEST_F(AusgleichTA, Zwillinge) {
  PunkteAnlegen({{"1", 10, 5}, {"2", 5, 10}, {"3", 0, 5}});
  const std::vector<Wert> Nummern{1, 2.0, " 3 ", "1a"};
  EXPECT_EQ(Ta.AusgleichenderKreisPnr(Nummern, 3, a, b, c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {5, 5, 5}));
  EXPECT_EQ(Ta.AusgleichendeGeradePnr(Nummern, 2, a, b, c, d), ok);
  EXPECT_TRUE(Nahe({a, b, c, d}, {10, 5, 5, 10}));

  Vorbesetzen();
  EXPECT_EQ(Ta.AusgleichendeGeradePnr(Nummern, 4, a, b, c, d), Fehler_PunktNichtVorhanden);
  EXPECT_EQ(Ta.AusgleichenderKreisPnr(Nummern, 4, a, b, c), Fehler_PunktNichtVorhanden);
  EXPECT_EQ(Ta.AusgleichendeGeradePnr(Nummern, 5, a, b, c, d), Fehler_Allgemein);
  EXPECT_EQ(Ta.AusgleichenderKreisPnr(Nummern, -1, a, b, c), Fehler_Allgemein);
  EXPECT_TRUE(Unberührt());
}

TEST_F(AusgleichTA, Ablehnungen) {
  EXPECT_EQ(Ta.AusgleichenderKreis(Zahlen(202), Zahlen(202), 202, a, b, c), Fehler_ZuvielePunkte);
  EXPECT_EQ(Ta.AusgleichenderKreis(Zahlen(201), Zahlen(201), 201, a, b, c), Fehler_Allgemein);  // one spot
  const Zahlen OhneKreis[][2] = {{{0, 1}, {0, 1}},
                                 {{0, 1, 1, 0}, {0, 0, 1, 0}},              // ring typed closed
                                 {{1, 2, 5, 7, 9, 3}, {7, 6, 8, 7, 5, 7}},  // Gander, Golub, Strebel 1994
                                 {{.1, .2, .4}, {.3, .6, 1.2}}};            // one line
  for (const auto& [R, H] : OhneKreis)
    EXPECT_EQ(Ta.AusgleichenderKreis(Verschoben(R, 3.4e6), Verschoben(H, 5.7e6), Anzahl(R), a, b, c),
              Fehler_Allgemein);
  const Zahlen Schlecht[][2] = {{{}, {}}, {{0, 1, 0}, {0, 1}}, {{0, 1e200, -1e200}, {0, 1e200, -3e200}}};
  for (const auto& [R, H] : Schlecht) {
    EXPECT_EQ(Ta.AusgleichenderKreis(R, H, Anzahl(R), a, b, c), Fehler_Allgemein);
    EXPECT_EQ(Ta.AusgleichendeGerade(R, H, Anzahl(R), a, b, c, d), Fehler_Allgemein);
  }
  EXPECT_TRUE(Unberührt());
}

}  // namespace
}  // namespace tavorena::test
