#include "Rechentest.h"

#include <tavorena/calc/Schnitte.h>

namespace tavorena::test {
namespace {

constexpr double Keiner = 9;  // angle of a row without a point; outputs start with it too
constexpr Lage Leer{9, 9};

// One row of all engines: points, a kind or a first radius, a second radius, then what is expected.
struct Fall {
  const char* Name;
  std::array<Lage, 4> P;
  double p, q;
  int Ergebnis;
  Lage S1 = Leer, S2 = Leer;
  double Winkel = Keiner, Grenze = 2e-9;
};

/// Computes every row near zero, in the grid and in the negative.
template <std::size_t N, typename Funktion>
void Prüfe(const Fall (&Fälle)[N], Funktion Rechne) {
  for (const Fall& f : Fälle) {
    for (const Lage V : {Lage{0, 0}, Lage{3400000, 5700000}, Lage{-200000, -99999}}) {
      SCOPED_TRACE(f.Name);
      std::array<Lage, 4> P;
      for (std::size_t i = 0; i < 4; ++i) P[i] = f.P[i] + V;
      Lage S1 = Leer, S2 = Leer;
      double Winkel = Keiner;
      const bool Punkt = f.Winkel != Keiner && f.Winkel != -9999;
      EXPECT_EQ(Rechne(f, P, S1, S2, Winkel), f.Ergebnis);
      EXPECT_TRUE(Nahe(S1, Punkt ? f.S1 + V : f.S1, f.Grenze));
      EXPECT_TRUE(Nahe(S2, !Punkt ? f.S2 : (f.S2 == Leer ? S2 : f.S2 + V), f.Grenze));
      EXPECT_NEAR(Winkel, f.Winkel, 1e-4);
    }
  }
}

// C. D. Ghilani, P. R. Wolf, Elementary Surveying, chapter on coordinate geometry: "Intersection of two
// lines, both having known directions", "of a line with a circle", "of two circles"; printed to 0.01.
constexpr double Gedruckt = 6e-3;

/// A point a thousand away in a direction given in degrees, minutes and seconds.
Lage Strahl(Lage A, double Grad, double Minuten, double Sekunden) {
  const double Gon = Gms(Grad, Minuten, Sekunden);
  return A + Lage{1000 * SinGon(Gon), 1000 * CosGon(Gon)};
}

TEST(Geradenschnitt, Tabelle) {
  constexpr Lage A{1425.07, 1971.28}, B{7484.80, 5209.64};
  const Lage A2 = Strahl(A, 76, 4, 24), B2 = Strahl(B, 141, 30, 16);
  const Fall Fälle[] = {
      {"Ghilani", {{A, A2, B, B2}}, 11, 0, 0, {8637.85, 3759.83}, Leer, 65.4311, Gedruckt},
      {"turned by 45", {{{0, 0}, {0, 9}, {3, 4}, {4, 5}}}, 11, 0, 0, {0, 1}, Leer, 45},
      {"turned by 135", {{{0, 0}, {0, 9}, {3, 4}, {4, 3}}}, 11, 0, 0, {0, 7}, Leer, 45},
      {"turned by 225", {{{0, 0}, {0, 9}, {3, 4}, {2, 3}}}, 11, 0, 0, {0, 1}, Leer, 45},
      {"turned by 315", {{{0, 0}, {0, -9}, {3, 4}, {4, 3}}}, 11, 0, 0, {0, 7}, Leer, 45},
      {"square", {{{0, 0}, {4, 3}, {8, 6}, {5, 10}}}, 11, 0, 0, {8, 6}, Leer, 90},
      {"parallel", {{{0, 0}, {1, 3}, {0, 7}, {-2, 1}}}, 11, 0, 1},
      {"kind too small", {{{0, 0}, {0, 1}, {1, 0}, {0, 0}}}, 10, 0, -1},
      {"kind too large", {{{0, 0}, {0, 1}, {1, 0}, {0, 0}}}, 50, 0, -1},
      {"digit without a meaning", {{{0, 0}, {0, 1}, {1, 0}, {0, 0}}}, 15, 0, -2},
      {"equal points as given", {{{5, 5}, {5, 5}, {1, 0}, {0, 0}}}, 11, 0, -2},
      {"equal points for a parallel", {{{5, 5}, {5, 5}, {1, 0}, {0, 0}}}, 32, 0, -2},
      {"equal points for a perpendicular", {{{0, 0}, {0, 1}, {1, 0}, {1, 0}}}, 24, 0, -2},
  };
  Prüfe(Fälle, [](const Fall& f, const std::array<Lage, 4>& P, Lage& S, Lage&, double& Winkel) {
    return SchnittGeradeGeradeBerechnung(static_cast<int>(f.p), {P[0], P[1]}, {P[2], P[3]}, S, Winkel);
  });
  // A line and its own parallel stay parallel, although the shifted points are rounded.
  constexpr Lage C{3400000.12, 5700000.34}, D{3400123.45, 5700067.89};
  double Winkel = 0;
  Lage S;
  EXPECT_EQ(SchnittGeradeGeradeBerechnung(21, {C, D, 7.77}, {C, D}, S, Winkel), 1);
  GebauteGerade G;
  // The point is written all the same.
  EXPECT_TRUE(Gleich(GeradeParallelPunkt({5, 5}, {5, 5}, {1, 2}, G), -1, G.B, Lage{1, 2}));
}

TEST(KreisGerade, Tabelle) {
  constexpr Lage A{100, 130}, M{500, 600};
  const Lage A2 = Strahl(A, 70, 42, 36);
  const Fall Fälle[] = {
      {"Ghilani", {{M, A, A2}}, 350, 0, 2, {753.57, 358.75}, {452.22, 253.28}, 27.1362, Gedruckt},
      {"eastward", {{{0, 0}, {-9, 3}, {-8, 3}}}, 5, 0, 2, {4, 3}, {-4, 3}, 53.1301},
      {"westward", {{{0, 0}, {-8, 3}, {-9, 3}}}, 5, 0, 2, {-4, 3}, {4, 3}, 53.1301},
      {"northward", {{{0, 0}, {3, 9}, {3, 10}}}, 5, 0, 2, {3, 4}, {3, -4}, 53.1301},
      {"southward", {{{0, 0}, {3, 10}, {3, 9}}}, 5, 0, 2, {3, -4}, {3, 4}, 53.1301},
      {"through the centre", {{{-3, 1}, {0, 5}, {3, 9}}}, 5, 0, 2, {0, 5}, {-6, -3}, 90},
      {"at 100000", {{{100001, 1}, {99998, 3}, {99998, 4}}}, 5, 0, 2, {99998, 5}, {99998, -3}, 53.1301},
      {"touching", {{{0, 0}, {0, 5}, {9, 5}}}, 5, 0, 3, {0, 5}, {0, 5}, 0},
      {"above r by rounding", {{{0, 0}, {0, 5 + 1e-8}, {9, 5 + 1e-8}}}, 5, 0, 3, {0, 5}, {0, 5}, 0, 2e-8},
      {"one point", {{{0, 0}, {7, .99995}, {9, .99995}}}, 1, 0, 1, {0, .99995}, {0, .99995}, .573},
      {"steep", {{{-.79992, .59994}, {0, 0}, {3, 4}}}, 1, 0, 2, {.008485, .011313}, Leer, .8103, 1e-6},
      {"two points below 0.5", {{{0, 0}, {0, 5000}, {9, 5000}}}, 5000.02, 0, 3, {0, 5000}, Leer, 0.1621},
      {"miss: 0 without offset", {{{0, 0}, {6, 0}, {6, 9}}}, 5, 0, 0, {0, 0}, {0, 0}, -9999},
      {"radius 0", {{{0, 0}, {6, 0}, {6, 9}}}, 0, 0, -1},
      {"equal points", {{{0, 0}, {6, 0}, {6, 0}}}, 5, 0, -2},
  };
  Prüfe(Fälle, [](const Fall& f, const std::array<Lage, 4>& P, Lage& S1, Lage& S2, double& Winkel) {
    KreisGeradeSchnitt Werte{S1, S2, {}, 0, Winkel};
    const int Anzahl = SchnittKreisGeradeBerechnung(41, P[0], f.p, {P[1], P[2]}, Werte);
    S1 = Werte.S1, S2 = Werte.S2, Winkel = Werte.Winkel;
    return Anzahl;
  });
  KreisGeradeSchnitt Werte;
  // One point of a line south: it stays first, its double has no Rechts.
  for (const double R : {0., 3400000.}) {
    EXPECT_EQ(SchnittKreisGeradeBerechnung(1, {R, R}, 1, {{R + .99995, R}, {R + .99995, R - 5}}, Werte), 1);
    EXPECT_TRUE(Nahe({Werte.S1.RW, Werte.S1.HW, Werte.S2.RW, Werte.S2.HW}, {R + .99995, R, 0, R}));
  }
  for (const int Art : {0, 50}) EXPECT_EQ(SchnittKreisGeradeBerechnung(Art, {}, 5, {{}, {1, 1}}, Werte), -1);
  for (const int Art : {2, 3, 4}) EXPECT_EQ(SchnittKreisGeradeBerechnung(Art, {}, 5, {}, Werte), -2);
  EXPECT_EQ(SchnittKreisGeradeKern({}, 5, {}, Werte), -1);
  // With a point of the line below 100000 there is no offset: on a line through the centre the sum is rounded
  // once, whichever of the two it is.
  Gelände G;
  for (int i = 0; i < 2000; ++i) {
    const Lage Mitte{G.Zahl(100001, 101000), 5};
    const double r = G.Zahl(1, 900), Fern = i % 2 == 0 ? 150000 : -150000;
    ASSERT_EQ(SchnittKreisGeradeBerechnung(1, Mitte, r, {{75000 + Fern, 5}, {75000 - Fern, 5}}, Werte), 2);
    ASSERT_EQ(std::max(Werte.S1.RW, Werte.S2.RW), Mitte.RW + r) << i;
  }
  // A point on a circle comes back from a line through it, however steep.
  constexpr Lage K{3412345.678, 5712345.678}, Soll{K.RW + 30, K.HW + 40};
  for (const double Steigung : {1., -1e3, 1e7, -1e10}) {
    ASSERT_EQ(SchnittKreisGeradeBerechnung(1, K, 50, {Soll, Soll + Lage{100 / Steigung, 100}}, Werte), 2);
    EXPECT_TRUE(Nahe(Werte.S1, Soll)) << Steigung;
    EXPECT_NEAR(Abstand(K, Werte.S2), 50, 2e-9);
  }
}

TEST(Kreisschnitt, Tabelle) {
  constexpr Lage G1{2851.28, 299.40}, G2{3898.72, 2870.15};
  const Fall Fälle[] = {
      {"Ghilani", {{G1, G2}}, 2000, 1500, 2, {4464.85, 1481.09}, {2523.02, 2272.28}, 104.0429, Gedruckt},
      {"eastward, negative radii", {{{0, 0}, {6, 0}}}, -5, -5, 2, {3, -4}, {3, 4}, 73.7398},
      {"northward", {{{0, 0}, {0, 6}}}, 5, 5, 2, {4, 3}, {-4, 3}, 73.7398},
      {"centres on one side", {{{0, 0}, {0, -1}}}, 5, std::sqrt(18), 2, {-3, -4}, {3, -4}, 8.1301},
      {"touching outside", {{{0, 0}, {0, 7}}}, 3, 4, 2, {0, 3}, {0, 3}, 180},
      {"touching inside", {{{0, 0}, {-3, 0}}}, 5, 2, 2, {-5, 0}, {-5, 0}, 0},
      {"apart", {{{0, 0}, {0, 7}}}, 3, 3.999, 0},
      {"inside", {{{0, 0}, {1, 0}}}, 5, 3, 0},
      {"inside, the other way", {{{0, 0}, {1, 0}}}, 3, 5, 0},
      {"equal centres", {{{1, 1}, {1, 1}}}, 5, 5, -2},
      {"radius 0", {{{0, 0}, {1, 1}}}, 5, 0, -2},
  };
  Prüfe(Fälle, [](const Fall& f, const std::array<Lage, 4>& P, Lage& S1, Lage& S2, double& Winkel) {
    return SchnittKreisKreisBerechnung(P[0], f.p, P[1], f.q, S1, S2, Winkel);
  });
  Lage S1, S2;
  double Winkel = 0;  // touching, although the cosine leaves -1 to 1 by rounding
  EXPECT_EQ(SchnittKreisKreisBerechnung({0, 0}, 0.1, {0.3, 0}, 0.2, S1, S2, Winkel), 2);
  for (const Lage S : {S1, S2}) EXPECT_TRUE(Nahe(S, {0.1, 0}, 1e-8));
  for (const int Seite : {1, 0, -1}) {
    EXPECT_EQ(SchnittKreisKreisSehne({0, 0}, {0, 6}, 5, Seite, S1, S2), 0);
    EXPECT_TRUE(Nahe({S1.RW, S1.HW, S2.RW, S2.HW}, {Seite < 0 ? -4. : 4., 3, -S1.RW, 3}));
  }
  EXPECT_EQ(SchnittKreisKreisSehne({0, 0}, {0, 6}, 2.9, 0, S1, S2), -1);
  for (const double x : {-1., -0.5, 0., 0.25, 1.}) EXPECT_NEAR(ArcusKosinus(x), std::acos(x), 1e-15);
  for (const double x : {-1.0000001, 2.})
    EXPECT_TRUE(Gleich(ArcusKosinus(x), -9999, ArcusKosinusGrad(x), -9999));
}

TEST(Kreismittelpunkt, Tabelle) {
  const double r = std::sqrt(315.078125);
  const Fall Fälle[] = {
      // S. L. Loney, The Elements of Coordinate Geometry, 1895, on the circle: 4x2 + 4y2 - 142x + 47y + 138 =
      // 0.
      {"Loney", {{{1, 0}, {0, -6}, {3, 4}}}, 0, r, 0, {17.75, -5.875}, Leer, -191.9590},
      {"to the left: below 0", {{{5, 0}, {0, 5}, {-5, 0}}}, 0, 5, 0, {0, 0}, Leer, -100},
      {"across north: not reduced", {{{0, -5}, {-5, 0}, {0, 5}}}, 0, 5, 0, {0, 0}, Leer, -300},
      {"flat arc", {{{0, 0}, {10, 100}, {0, 200}}}, 0, 505, 0, {-495, 100}, Leer, 387.3098},
      {"on one line", {{{0, 0}, {1, 3}, {-2, -6}}}, 0, 9, -1},
      {"first and last equal", {{{0, 0}, {1, 3}, {0, 0}}}, 0, 9, -1},
      {"first two equal", {{{1, 3}, {1, 3}, {0, 0}}}, 0, 9, -1},
      {"last two equal", {{{0, 0}, {1, 3}, {1, 3}}}, 0, 9, -1},
  };
  Prüfe(Fälle, [](const Fall& f, const std::array<Lage, 4>& P, Lage& M, Lage&, double& Winkel) {
    Kreismittelpunkt K{M, Winkel, {9, 9, 9}};
    const int Ergebnis = KreisMittelpunktBerechnung(P[0], P[1], P[2], K);
    for (const double Radius : K.Radien) EXPECT_NEAR(Radius, f.q, 2e-9);
    M = K.M, Winkel = K.WinkelGon;
    return Ergebnis;
  });
}

using Art = enmArtGeradenschnitt;

// The twins are asked: they run through the methods with coordinates.
class SchnitteTA : public RechenTest {
 protected:
  SchnitteTA() { PunkteAnlegen({{"0", 0, 0}, {"E", 10, 0}, {"NE", 10, 10}, {"P", -5, -5}, {"B", 5, 12}}); }
  enmResult Geraden(const char* E1, const char* E2, int Wahl) {
    return Ta.SchnittGeradeGeradePnr("0", E1, 0, E2, a, b, &w, static_cast<Art>(Wahl), 3, std::sqrt(8), "P",
                                     "E");
  }
  enmResult KreisGerade(double r, const char* E, int Wahl) {
    return Ta.SchnittKreisGeradePnr(0, r, "0", E, a, b, c, d, &w, &(n = 9), static_cast<Art>(Wahl), -5, "B",
                                    "P");
  }
  enmResult Kreise(double r1, double r2, int Wahl) {
    return Ta.SchnittKreisKreisPnr("0", r1, "E", r2, a, b, c, d, &w, &(n = 9), static_cast<Art>(Wahl), "P",
                                   "NE");
  }
  double w = Nichts;
  std::int16_t n = 0;
};

TEST_F(SchnitteTA, Arten) {
  // Line 1 east along H = 0, line 2 north-east: 50 gon between all lines built from them.
  constexpr Lage Soll[] = {{1, -3},  {7, -3},  {13, -3},  {-1, -5}, {5, -5},
                           {15, -5}, {-5, -9}, {-5, -15}, {-5, 15}};
  for (int i = 0; i < 9; ++i) {
    EXPECT_EQ(Geraden("E", "NE", i), ok);
    EXPECT_TRUE(Nahe({a, b, w}, {Soll[i].RW, Soll[i].HW, 50})) << i;
  }
  // Radius sqrt(26), or 13 by an arc point; line east, shifted to H = 5 or built at (-5, -5). 11 is as 9.
  constexpr Lage Soll1[] = {{1, 5}, {12, 5}, {1, 5}, {12, -5}, {-5, -1}, {-5, -12}};
  constexpr Lage Soll2[] = {{-1, 5}, {-12, 5}, {-1, 5}, {-12, -5}, {-5, 1}, {-5, 12}};
  for (int i = 9; i <= 14; ++i) {
    EXPECT_EQ(KreisGerade(std::sqrt(26), "E", i), ok);
    EXPECT_TRUE(
        Nahe({a, b, c, d, 1. * n}, {Soll1[i - 9].RW, Soll1[i - 9].HW, Soll2[i - 9].RW, Soll2[i - 9].HW, 2}))
        << i;
  }
  // Radii sqrt(50) and 10, as numbers or from arc points; the other number is 1.
  const double r = std::sqrt(50), R = 2.5, H = std::sqrt(50 - R * R);
  for (int i = 15; i <= 18; ++i) {
    EXPECT_EQ(Kreise(i < 17 ? r : 1, i % 2 != 0 ? 10 : 1, i), ok);
    EXPECT_TRUE(Nahe({a, b, c, d, CosGon(w), 1. * n}, {R, -H, R, H, 50 / (20 * r), 2})) << i;
  }
  double Radius = 0;
  EXPECT_EQ(Ta.KreisMittelpunktPnr(0, "E", "NE", a, b, &Radius, &w), ok);
  EXPECT_TRUE(Nahe({a, b, Radius, w}, {5, 5, r, -100}));  // gon already
  EXPECT_EQ(Ta.SchnittGeradeGeradePnr(0, "E", "NE", "P", a, b, &w, Art{}, 0, 0, "", Wert()), ok);
  EXPECT_TRUE(Gleich(KreisGerade(5, "E", 9), ok, n, 3));
  EXPECT_TRUE(Gleich(KreisGerade(3, "E", 9), ok, a, 0, b, 0, c, 0, d, 0, n, 0));  // a miss
  EXPECT_DOUBLE_EQ(w, -9999 / 0.9);
}

TEST_F(SchnitteTA, Ablehnungen) {
  constexpr auto Fehlt = Fehler_PunktNichtVorhanden, Eins = Fehler_AnfangsUndEndpunktGleich;
  for (const int i : {-1, 9}) EXPECT_EQ(Geraden("E", "NE", i), Fehler_Allgemein);
  EXPECT_EQ(Geraden("NE", "NE", 4), Hinweis_GeradenParallel);
  EXPECT_EQ(Geraden("0", "NE", 0), Eins);
  for (const int i : {8, 15}) EXPECT_EQ(KreisGerade(5, "E", i), Fehler_Allgemein);
  EXPECT_EQ(KreisGerade(0, "E", 9), Fehler_Allgemein);
  EXPECT_EQ(KreisGerade(7, "0", 13), Eins);
  EXPECT_EQ(Kreise(2, 20, 15), ok);  // one inside the other
  for (const int i : {14, 19}) EXPECT_EQ(Kreise(9, 9, i), Eins);
  EXPECT_TRUE(Gleich(Kreise(0, 15, 15), Eins, n, 0));
  EXPECT_EQ(Ta.SchnittGeradeGeradePnr(0, "E", 0, "p", a, b), Fehlt);
  EXPECT_EQ(Ta.SchnittGeradeGeradePnr(0, "E", 0, "NE", a, b, &w, Art{}, 0, 0, Wert(), "p"), Fehlt);
  EXPECT_EQ(Ta.SchnittKreisGeradePnr(0, 5, "E", "NE", a, b, c, d, &w, &n, Art{}, 0, "p"), Fehlt);
  EXPECT_EQ(Ta.SchnittKreisKreisPnr("p", 5, "E", 5, a, b, c, d), Fehlt);
  EXPECT_EQ(Ta.KreisMittelpunktPnr(0, "E", 4, a, b), Fehlt);
  EXPECT_EQ(Ta.KreisMittelpunktPnr(0, "E", "E", a, b), Fehler_Allgemein);
  EXPECT_EQ(Ta.SchnittGeradeGerade(0, 0, 1, std::nan(""), 5, 0, 7, 3, a, b), Fehler_Allgemein);
  EXPECT_EQ(Ta.SchnittKreisKreis(0, HUGE_VAL, 5, 1, 0, 5, a, b, c, d, &w, &n), Fehler_Allgemein);
  EXPECT_TRUE(Gleich(Unberührt(), true, w, Nichts));
}

}  // namespace
}  // namespace tavorena::test
