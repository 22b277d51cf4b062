#include "Rechentest.h"

#include <tavorena/calc/Einschnitte.h>

namespace tavorena::test {
namespace {

VorwStation Ab(Lage P, VorwStation s) { return {s.Stand + P, s.Fern + P, s.rF, s.rN}; }
RueckPunkt Ab(Lage P, RueckPunkt p) { return {p.Ort + P, p.r}; }

TEST(Einschnitte, Vorwaertsschnitt) {
  struct Fall {
    const char* Name;
    VorwStation A, B;
    Lage Neu;
    double Tau, Genau = 1e-8;
  };
  constexpr double Az1 = Gms(76, 4, 24), Az2 = Gms(141, 30, 16);
  // Published: Ghilani, Wolf: Elementary Surveying, two lines with known azimuths (feet).
  constexpr Lage A{1425.07, 1971.28}, B{7484.80, 5209.64}, P{8637.85, 3759.83};
  constexpr Fall Fälle[] = {
      {"published", {A, {1425.07, 9999}, 0, Az1}, {B, {7484.80, 9999}, 0, Az2}, P, 200 + Az1 - Az2, 0.005},
      {"A due east", {{0, 0}, {0, 9}, 0, 100}, {{600, -300}, {600, 900}, 10, 10}, {600, 0}, 100},
      {"A west, behind B", {{0, 0}, {0, 9}, 400, 300}, {{9, 409}, {99, 409}, 350, 300}, {-400, 0}, 50},
      {"B due east", {{0, 0}, {9, 0}, 20, 370}, {{-1000, 7000}, {5, 7000}, 0, 0}, {7000, 7000}, 150},
      {"north and west", {{0, 0}, {0, -9}, 200, 400}, {{40, 70}, {40, 60}, 33, 133}, {0, 70}, 100},
      {"equal stations", {{7, 8}, {7, 9}, 0, 0}, {{7, 8}, {8, 8}, 0, 0}, {7, 8}, 100},
      {"far point on A is east", {{0, 0}, {0, 0}, 0, 0}, {{30, -5}, {30, 0}, 0, 0}, {30, 0}, 100},
  };
  Überall(Fälle, [](const Fall& f, Lage Ort) {
    Vorwaertsschnittwerte w;
    ASSERT_EQ(VorwaertsschnittEbene(Ab(Ort, f.A), Ab(Ort, f.B), w), 0);
    EXPECT_TRUE(Nahe({w.NeuRechts, w.NeuHoch}, f.Neu + Ort, f.Genau));
    EXPECT_NEAR(w.TauGon, f.Tau, 1e-9);
  });
  VorwStation S{{0, 0}, {0, 9}, 0, 100, 50, 350}, T{{300, -400}, {300, 9}, 0, 0, 60, 50};
  Vorwaertsschnittwerte w;
  ASSERT_EQ(VorwaertsschnittEbene(S, T, w) + w.VorwNeuHoehe, 0);
  for (const double z : {0., 100., 300.}) {  // exactly: the tangent of a right angle is large, not infinite
    S.z = T.z = z;
    VorwaertsschnittHoehe(S, T, w);
    EXPECT_TRUE(Gleich(w.VorwNeuHoehe, 55, w.VorwParallaxe, 10)) << z;
  }
  S.z = 350;
  for (const double z : {0., 100., 300., 50.}) {  // heights: 50 - 300, 60 + 400 with a zenith angle
    T.z = z;
    VorwaertsschnittHoehe(S, T, w);
    EXPECT_TRUE(Nahe({w.VorwNeuHoehe, w.VorwParallaxe}, {z == 50 ? 105. : -95., z == 50 ? 710. : 310.}));
  }
}

TEST(Einschnitte, Rueckwaertsschnitt) {
  struct Fall {
    const char* Name;
    RueckPunkt P1, P2, P3;
    Lage Neu;
    double Genau = 1e-8;
  };
  // Published: Bannister, Raymond, Baker: Surveying, resection (there by Tienstra's formula).
  constexpr double r2 = Gms(109, 30, 45), r3 = Gms(224, 36, 5);
  constexpr Fall Fälle[] = {
      {"published", {{1000, 5300}, 0}, {{2200, 6300}, r2}, {{3100, 5000}, r3}, {2128.39, 5578.14}, 0.005},
      {"alpha 100", {{0, 400}, 0}, {{300, 0}, 100}, {{200, -200}, 150}, {0, 0}},
      {"beta 100, over 400", {{50, 50}, 390}, {{70, 0}, 440}, {{0, -90}, 140}, {0, 0}},
      {"alpha 300", {{80, 0}, 7}, {{0, 150}, 307}, {{-60, 60}, 257}, {0, 0}},
      {"beta 300", {{0, 90}, 0}, {{20, 20}, 50}, {{-55, 55}, 350}, {0, 0}},
      {"between P1 and P2: Q is P1", {{0, 300}, 0}, {{0, -500}, 200}, {{-400, 0}, 300}, {0, 0}},
      {"between P2 and P3: Q is P3", {{0, 300}, 0}, {{30, -30}, 150}, {{-600, 600}, 350}, {0, 0}},
      {"cuts due east and west", {{0, 100}, 0}, {{300, 300}, 50}, {{100, 0}, 100}, {0, 0}},
  };
  Überall(Fälle, [](const Fall& f, Lage Ort) {
    const RueckPunkt P1 = Ab(Ort, f.P1), P2 = Ab(Ort, f.P2), P3 = Ab(Ort, f.P3);
    Rueckwaertsschnittwerte a, b, Blatt;
    ASSERT_TRUE(
        Gleich(RueckwaertsschnittCollins(P1, P2, P3, a), 0, RueckwaertsschnittCassini(P1, P2, P3, b), 0));
    ASSERT_EQ(RueckwaertsschnittCollins(P1, P2, P3, Blatt, RueckTau::Blatt), 0);
    for (const auto& w : {a, b, Blatt}) EXPECT_TRUE(Nahe({w.NeuRechts, w.NeuHoch}, f.Neu + Ort, f.Genau));
    EXPECT_NEAR(std::fabs(Blatt.TauGon1 - a.TauGon1), 200, 1e-9);
    EXPECT_NEAR(SinGon(a.TauGon2 - b.TauGon2), 0, 1e-6);  // the same angle, but for half circles
  });
}

// On the circle Cassini refuses, also where the last digit of a coordinate hides it; Collins tells by τ2 and
// delivers a point.
TEST(Einschnitte, AufDemKreis) {
  Gelände G;
  for (int i = 0; i < 500; ++i) {
    RueckPunkt P[4];  // round the circle in this order
    const double s = G.Zahl(50, 5000);
    for (std::size_t k = 4; k-- > 0;) {
      const double t = 100. * static_cast<double>(k) + G.Zahl(0, 90);
      P[k].Ort = Orte[1] + Lage{s * SinGon(t), s * CosGon(t)};
      P[k].r = Richtung(P[3].Ort, P[k].Ort);
    }
    Rueckwaertsschnittwerte w;
    ASSERT_EQ(RueckwaertsschnittCassini(P[0], P[1], P[2], w), -2);
    ASSERT_EQ(RueckwaertsschnittCollins(P[0], P[1], P[2], w), 0);
    ASSERT_NEAR(SinGon(w.TauGon2), 0, 1e-7);
    ASSERT_LT(w.TauGon2, 5);
  }
}

class EinschnitteTA : public RechenTest {
 protected:
  enmResult Resektion(bool Cassini, double r1, double r2, double r3) {
    Vorbesetzen();
    return Ta.Rueckwaertsschnitt(-100, 0, r1, 0, 100, r2, 100, 0, r3, Cassini, a, b, &c, &d);
  }
};

// Thales triangle: the bearings at P2 are 250 and 150, so that Collins has τ2 = alpha + beta - 100.
TEST_F(EinschnitteTA, Ergebniszuordnung) {
  for (const double Tau2 : {20.1, 19.9, 5.1, 4.9, -5.0}) {
    const enmResult Soll =
        Tau2 >= 20 ? ok : (Tau2 >= 5 ? Hinweis_GefaehrlicherKreis : Fehler_GefaehrlicherKreis);
    EXPECT_EQ(Resektion(false, 300, 390, 400 + Tau2), Soll);
    EXPECT_TRUE(Nahe({c, d}, {100, Tau2}));
    const Lage Collins{a, b};
    EXPECT_EQ(Resektion(true, 300, 390, 400 + Tau2), Tau2 < 0 ? ok : Soll);  // reduced: 395 is beyond 20
    EXPECT_TRUE(Nahe({a, b}, Collins));
  }
  for (const bool Cassini : {false, true}) {
    for (const double r2 : {0.0, 400.0, 12.3456, 412.3456}) {
      EXPECT_EQ(Resektion(Cassini, 0, r2, 12.3456), Fehler_ZweiRichtungenGleich);
      EXPECT_TRUE(Unberührt());
    }
    EXPECT_EQ(Resektion(Cassini, 0, 20, std::nan("")), Fehler_Allgemein);
  }
  EXPECT_EQ(Resektion(false, 0, 130, 200), Fehler_Allgemein);          // on the line P1-P3
  EXPECT_EQ(Resektion(true, 300, 0, 100), Fehler_GefaehrlicherKreis);  // both diameters end at Hoch 0
  for (const double rB : {50.0, 250.0, std::nan("")})
    EXPECT_EQ(Ta.VorwaertsschnittEbene(0, 0, 0, 9, 0, 50, 7, 8, 7, 9, 0, rB, a, b, &c), Fehler_Allgemein);
  EXPECT_TRUE(Unberührt());
}

TEST_F(EinschnitteTA, Zwillinge) {
  PunkteAnlegen({{"1", 0, 0}, {"2", 0, 9}, {"3", 30, -40}, {"4A", 30, 40}});
  EXPECT_EQ(Ta.VorwaertsschnittEbenePnr(1, 2, 0, 100, 3, "4a", 20, 20, a, b), Fehler_PunktNichtVorhanden);
  EXPECT_EQ(Ta.RueckwaertsschnittPnr(1, 0, 7, 1, 3, 2, true, a, b), Fehler_PunktNichtVorhanden);
  EXPECT_TRUE(Unberührt());
  EXPECT_EQ(Ta.VorwaertsschnittEbenePnr(1, 2, 0, 100, 3, "4A", 20, 70, a, b), ok);
  const double r = Richtung({10, 0}, {30, 40});
  EXPECT_EQ(Ta.RueckwaertsschnittPnr(1, 300, "4A", r, 3, 200 - r, true, c, d), ok);
  EXPECT_TRUE(Nahe({a, b, c, d}, {70, 0, 10, 0}));
}

}  // namespace
}  // namespace tavorena::test
