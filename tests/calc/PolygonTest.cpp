#include "Rechentest.h"

#include <tavorena/calc/Polygon.h>

namespace tavorena::test {
namespace {

/// What is measured between points on the ground: targets first and last, start and end beside them. Each
/// breaking angle is wrong by dWinkel [gon], each distance by a factor.
PolygonZug Messen(const std::vector<Lage>& P, double dWinkel = 0, double Faktor = 1) {
  const std::size_t m = P.size();
  const auto Winkel = [&](std::size_t i) {
    return Richtung(P[i], P[i + 1]) - Richtung(P[i], P[i - 1]) + dWinkel;
  };
  const auto Strecke = [&](std::size_t i) { return Abstand(P[i], P[i + 1]) * Faktor; };
  PolygonZug Zug{P[0], P[1], P[m - 2], P[m - 1], Winkel(1), Strecke(1), Winkel(m - 2), {}};
  for (std::size_t i = 2; i + 2 < m; ++i) Zug.Zeilen.push_back({Winkel(i), Strecke(i)});
  return Zug;
}

/// Largest distance of the computed points from the ground.
double Abweichung(const PolygonErgebnis& E, const std::vector<Lage>& P) {
  double Größte = 0;
  for (std::size_t i = 0; i < E.Seiten.size(); ++i)
    Größte = std::max(Größte, Abstand(E.Seiten[i].Ende, P[i + 2]));
  return Größte;
}

// A wrong zero of the circle is an equal error of all angles, a wrong scale an equal factor of all sides:
// what is distributed takes them out whole, and the misclosures tell their size.
TEST(Polygon, GestörteBeobachtungenWerdenVerteilt) {
  Gelände G;
  for (int Lauf = 0; Lauf < 300; ++Lauf) {
    const double Kurs = G.Zahl(0, 400), s = SinGon(Kurs), c = CosGon(Kurs);
    std::vector<Lage> P;  // along the course, targets 4 km behind and ahead
    for (int i = 0; i < 5 + Lauf % 30; ++i) P.push_back({200.0 * i + G.Zahl(-60, 60), G.Zahl(-60, 60)});
    P.front().RW -= 4000;
    P.back().RW += 4000;
    for (Lage& p : P) p = {3456789 + p.RW * s + p.HW * c, 5678901 + p.RW * c - p.HW * s};
    const double e = 0.002, S = Abstand(P[1], P[P.size() - 2]), n = static_cast<double>(P.size() - 2);
    PolygonErgebnis E;
    ASSERT_EQ(PolygonCalc(Messen(P), true, true, false, false, E), 0);
    ASSERT_EQ(E.n, static_cast<int>(n));
    ASSERT_NEAR(SinGon(E.FW), 0, 1e-11);
    ASSERT_NEAR(std::hypot(E.WX, E.WY) + std::fabs(E.FL) + std::fabs(E.FQ) + Abweichung(E, P), 0, 1e-6);
    ASSERT_EQ(PolygonCalc(Messen(P, e, 1.0001), true, false, false, true, E), 0);
    ASSERT_NEAR(Abstand(E.Seiten.back().Ende, P[P.size() - 2]), 0, 1e-6);
    ASSERT_NEAR(std::hypot(E.FL, E.FQ), std::hypot(E.WX, E.WY), 1e-9);
    ASSERT_EQ(PolygonCalc(Messen(P, 0, 1.0001), false, false, true, true, E), 0);
    ASSERT_EQ(E.n, static_cast<int>(n) - 2);
    ASSERT_NEAR(E.FL, -1e-4 * S, 1e-6);
    ASSERT_NEAR(std::fabs(E.FQ) + Abweichung(E, P), 0, 1e-6);
    ASSERT_EQ(PolygonCalc(Messen(P, e, 1.0001), true, true, true, true, E), 0);
    ASSERT_EQ(E.WinkelVerteilt, std::fabs(E.FW) < 200);
    if (!E.WinkelVerteilt) {  // both sides of north: not brought back by 400, and no reason to bend the chain
      PolygonErgebnis Ohne;
      ASSERT_EQ(PolygonCalc(Messen(P, e, 1.0001), true, true, false, true, Ohne), 0);
      ASSERT_TRUE(Gleich(E.Verbesserung, 0, E.Seiten[1].Ende.RW, Ohne.Seiten[1].Ende.RW));
      continue;
    }
    ASSERT_NEAR(E.FW, -e * n, 1e-9);
    ASSERT_NEAR(E.Verbesserung, -e, 1e-11);
    ASSERT_NEAR(E.FL, -1e-4 * S, 1e-6);
    ASSERT_NEAR(std::fabs(E.FQ) + Abweichung(E, P), 0, 1e-6);
  }
}

// Ghilani, Wolf: Elementary Surveying, closed traverse of five sides (feet): measured angles 11" too large,
// departures +0.026 and latitudes +0.077 off after their adjustment. The book rounds each side to 0.001. The
// target at the start stands due north of A, the one at the end on the first side.
TEST(Polygon, RingNachLehrbuch) {
  const Lage A{10000, 5000};
  const double t1 = Gms(126, 55, 17);
  PolygonZug Ring{{10000, 6000}, A, A, A, t1, 647.25, Gms(100, 45, 37), {}};
  Ring.PFE = {A.RW + SinGon(t1), A.HW + CosGon(t1)};
  Ring.Zeilen = {{Gms(231, 23, 43), 203.03}, {Gms(17, 12, 59), 720.35}};
  Ring.Zeilen.insert(Ring.Zeilen.end(), {{Gms(89, 3, 28), 610.24}, {Gms(101, 34, 24), 285.13}});
  PolygonErgebnis E;
  ASSERT_EQ(PolygonCalc(Ring, true, true, false, true, E), 0);
  EXPECT_NEAR(E.FW, -Gms(0, 0, 11), 1e-9);
  EXPECT_NEAR(E.SummeS, 2466.00, 1e-9);
  for (PolygonZeile& Zeile : Ring.Zeilen) Zeile.Winkel -= Gms(0, 0, 2.2);
  ASSERT_EQ(PolygonCalc(Ring, true, true, false, true, E), 0);
  EXPECT_TRUE(Nahe({E.WY, E.WX, E.Seiten[2].dR, E.Seiten[2].dH}, {-0.026, -0.077, 192.889, 694.045}, 0.003));
  EXPECT_TRUE(Gleich(E.Ring, true, E.LinearVerteilt, false));
  EXPECT_EQ(E.Seiten[2].vR, 0);
  EXPECT_NEAR(std::hypot(E.FL, E.FQ), std::hypot(E.WX, E.WY), 1e-12);  // split, but not distributed
  EXPECT_EQ(PolygonToleranz(E, PolygonKlasse::NP), &E.TP);
  EXPECT_EQ(E.NP.FW, E.TP.FW);  // instead of a division by 0
}

// Due east over 250, 250, 500 m; the end is 0.3 m further and 0.1 m to the right.
TEST(Polygon, Handprobe) {
  PolygonZug Zug{{-600, 0}, {0, 0}, {1000.3, -0.1}, {500.3, 499.9}, 200, 250, 50, {{200, 250}, {200, 500}}};
  PolygonErgebnis E;
  ASSERT_EQ(PolygonCalc(Zug, true, true, true, true, E), 0);
  EXPECT_TRUE(Gleich(E.WinkelVerteilt, true, E.LinearVerteilt, true));
  EXPECT_TRUE(Nahe({E.FW, E.FL, E.FQ, E.Seiten[1].vR, E.Seiten[1].vH}, {0, 0.3, 0.1, 0.075, -0.025}));
  EXPECT_TRUE(Nahe(E.Seiten[1].Ende, {500.15, -0.05}));
  Zug.PE = {1000, 0};
  Zug.PolygonEndWinkel = 100.01;
  for (const auto& [d1, d2] : {std::pair{600, 500}, std::pair{500, 600}}) {  // S/2 does not exceed itself
    Zug.PFA = {-1.0 * d1, 0};
    Zug.PFE = {1000, 1.0 * d2};
    ASSERT_EQ(PolygonCalc(Zug, true, true, true, true, E), 0);
    EXPECT_FALSE(E.WinkelVerteilt);
  }
  EXPECT_NEAR(E.FW, -0.01, 1e-9);
  Zug.PolygonEndWinkel = 99.99;
  ASSERT_EQ(PolygonCalc(Zug, true, true, true, true, E), 0);
  EXPECT_NEAR(E.FW, -399.99, 1e-9);                                    // deliberately not brought back by 400
  EXPECT_TRUE(Nahe({E.TP.FW, E.TP.FL, E.TP.FQ}, {0.01, 0.17, 0.17}));  // n 4, S 1000
  EXPECT_TRUE(Nahe({E.NP.FW, E.NP.FL, E.NP.FQ}, {0.0166, 0.336491106, 0.17}));
  EXPECT_EQ(PolygonToleranz(E, PolygonKlasse::NP), &E.NP);
  EXPECT_EQ(PolygonToleranz(E, PolygonKlasse::Frei), nullptr);
}

TEST(Polygon, Ablehnungen) {
  using Zug = PolygonZug;
  const Zug Gut{{-600, 0}, {0, 0}, {500, 0}, {500, 600}, 200, 250, 100, {{200, 250}}};
  PolygonErgebnis E;
  E.n = 9;
  const auto Rechne = [&](void (*Ändern)(Zug&), bool Anschluss = true, bool Abschluss = true) {
    Zug z = Gut;
    Ändern(z);
    return PolygonCalc(z, Anschluss, Abschluss, true, true, E);
  };
  for (const auto Ändern : {+[](Zug& z) { z.Zeilen.clear(); }, +[](Zug& z) { z.PFE.RW = HUGE_VAL; },
                            +[](Zug& z) { z.Zeilen[0].Strecke = std::nan(""); },
                            +[](Zug& z) { z.PFA = z.PA; }, +[](Zug& z) { z.PFE = z.PE; }})
    EXPECT_EQ(Rechne(Ändern), -1);
  EXPECT_EQ(Rechne([](Zug&) {}, false, true), -1);
  EXPECT_EQ(Rechne([](Zug& z) { z.PE = z.PA; }, false, false), -1);
  EXPECT_EQ(Rechne([](Zug& z) { z.Zeilen[0].Winkel = 0; }, false, false), -1);
  EXPECT_EQ(Rechne([](Zug& z) { z.Zeilen.resize(1000, {200, 1}); }), -2);
  EXPECT_EQ(E.n, 9);
  EXPECT_EQ(Rechne([](Zug& z) { z.Zeilen.resize(999, {200, 1}); }), 0);
  EXPECT_EQ(E.Seiten.size(), 1000U);
  EXPECT_EQ(Rechne([](Zug& z) { z.Zeilen[0].Winkel = 0; }, true, false), 0);  // forth and back: L is 0
  EXPECT_TRUE(Gleich(E.Ring, true, E.FL, 0, E.FQ, 0, E.LinearVerteilt, false));
}

}  // namespace
}  // namespace tavorena::test
