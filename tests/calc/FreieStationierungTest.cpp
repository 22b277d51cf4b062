#include "Rechentest.h"

#include <tavorena/calc/FreieStationierung.h>
#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>

namespace tavorena::test {
namespace {

struct Sicht {
  Zahlen R, H, Richtung, Vk, Strecke;
  void Dazu(Lage P, double Gon, double z, double s) {
    R.push_back(P.RW);
    H.push_back(P.HW);
    Richtung.push_back(Gon);
    Vk.push_back(z);
    Strecke.push_back(s);
  }
  [[nodiscard]] Anschlussbeobachtungen B() const { return {R, H, Richtung, Vk, Strecke}; }
};

// Observations from a station to points in all quadrants.
Sicht Beobachtet(Lage S, double Epsilon, double M, std::size_t n) {
  constexpr Lage Ziele[] = {{80, 120}, {-150, -60}, {200, -90}, {-40, 310}, {0, 55.5}, {-75, 0}};
  constexpr double z[] = {100, 93.7, 108.2, 60, 100.5, 140};
  Sicht W;
  for (std::size_t i = 0; i < n; ++i) {
    double Gon = Richtung({0, 0}, Ziele[i]) - Epsilon;
    GonReduzieren(Gon);
    W.Dazu(S + Ziele[i], Gon, z[i], Abstand({0, 0}, Ziele[i]) / M / SinGon(z[i]));
  }
  return W;
}

void StationFinden(Lage S, double Epsilon, double M, std::size_t n, int Art) {
  SCOPED_TRACE(::testing::Message() << S.RW << ' ' << Epsilon << ' ' << M << ' ' << n << ' ' << Art);
  const Sicht W = Beobachtet(S, Epsilon, M, n);
  FreieStation F;
  ASSERT_EQ(FreieStationierung(W.B(), Art, F), 0);
  EXPECT_TRUE(Nahe(F.StandPunkt, S, 1e-7));
  EXPECT_NEAR(F.Massstab, M, 1e-10);
  EXPECT_NEAR(std::remainder(F.EpsilonGon - Epsilon, 400), 0, 1e-8);
  EXPECT_TRUE(F.EpsilonGon >= 0 && F.EpsilonGon < 400) << F.EpsilonGon;
  EXPECT_LT(HelmertSum(F.WL) + F.StandardabwML, 1e-7);
  EXPECT_EQ(F.StandardabwMK == 0, Art == TransformationsartHelmert && n == 2);  // not set
  for (std::size_t i = 0; i < n; ++i) {
    const double D = F.Massstab * W.Strecke[i];
    const Lage P = FreieStationierungKleinpunkt(F.StandPunkt, F.EpsilonGon, W.Richtung[i], D, W.Vk[i]);
    EXPECT_TRUE(Nahe(P, {W.R[i], W.H[i]}, 1e-7));
  }
}

TEST(FreieStationierung, FindetDieStationWieder) {
  for (const Lage S : Orte) {
    for (const double Epsilon : {0., .0001, 57.3, 100., 200., 300., 399.9999}) {
      for (const std::size_t n : {2U, 3U, 6U}) {
        StationFinden(S, Epsilon, 1, n, TransformationsartKongruent);
        for (const double M : {1., .9997}) StationFinden(S, Epsilon, M, n, TransformationsartHelmert);
      }
    }
  }
}

// The local coordinates of C. D. Ghilani, Adjustment Computations, example 18.1, as polar observations: the
// station is the published translation.
TEST(FreieStationierung, VeröffentlichtesBeispiel) {
  constexpr Lage Bekannt[] = {{1049422.40, 51089.20}, {1049413.95, 49659.30}, {1049244.95, 49884.95}};
  const Zahlen y{121.622, 141.228, 175.802}, x{-128.066, 187.718, 135.728};
  Sicht W;
  for (std::size_t i = 0; i < 3; ++i)
    W.Dazu(Bekannt[i], Richtung({0, 0}, {y[i], x[i]}), 100, Abstand({0, 0}, {y[i], x[i]}));
  FreieStation F;
  ASSERT_EQ(FreieStationierung(W.B(), TransformationsartHelmert, F), 0);
  EXPECT_TRUE(Nahe(F.StandPunkt, {1050003.715, 50542.131}, 5e-4));
  EXPECT_NEAR(F.Massstab, 4.51962, 5e-6);
  EXPECT_NEAR(F.EpsilonGon, 400 - Gms(183, 13, 5), 2e-5);
  // The congruent fit is the one of the Helmert transformation, with one degree of freedom more.
  HelmertErgebnis E;
  ASSERT_EQ(HelmertHelmert({y, x, W.R, W.H}, false, std::nullopt, E), 0);
  ASSERT_EQ(FreieStationierung(W.B(), TransformationsartKongruent, F), 0);
  Lage S;
  HelmertNeupunkt({0, 0}, E.Parameter, S);
  EXPECT_TRUE(Nahe(S, F.StandPunkt, 1e-8));
  EXPECT_EQ(F.Massstab, 1);
  EXPECT_NEAR(F.StandardabwMK * std::sqrt(3.), E.Klaffen.StandardabwMK * std::sqrt(2.), 1e-9);
}

TEST(FreieStationierung, Entartung) {
  FreieStation F;
  Sicht W;
  EXPECT_EQ(FreieStationierung(W.B(), 2, F), -1);
  W.Dazu({500, 1100}, 0, 100, 99.9);
  ASSERT_EQ(FreieStationierung(W.B(), 2, F), 0);  // a single point
  EXPECT_TRUE(Gleich(F.StandPunkt, Lage{500, 1100}, F.Massstab, 0, F.StandardabwMK, 0, F.WL[0], 0));
  W.Dazu({500, 900}, 200, 100, 99.9);
  ASSERT_EQ(FreieStationierung(W.B(), TransformationsartKongruent, F), 0);  // the divisor of MK is 1
  EXPECT_TRUE(Nahe({F.VHoch[0], F.StandardabwMK, F.StandardabwML}, {.1, std::sqrt(.02), .2}));
  EXPECT_EQ(FreieStationierung({W.R, W.H, W.Richtung, {}, W.Strecke}, 2, F), -1);
  W.Vk = {0, 0};  // no horizontal distance is left
  for (const int Art : {TransformationsartHelmert, TransformationsartKongruent}) {
    ASSERT_EQ(FreieStationierung(W.B(), Art, F), 0);
    EXPECT_TRUE(Gleich(F.StandPunkt, Lage{500, 1000}, F.Massstab, Art == TransformationsartHelmert ? 0 : 1));
    EXPECT_NEAR(F.EpsilonGon, 100, 1e-12);
  }
}

TEST(FreieStationierung, Hoehen) {
  const Zahlen Hp{110, 0, 95.25, 120}, t{2, 2, 1, 0}, z{100, 100, 100, 100}, s{100, 50, 25, 0};
  Stationshoehe E;
  ASSERT_EQ(FStatRechneMittlereHöhe({Hp, t, z, s, 1.5}, E), 0);
  EXPECT_EQ(E.Gewicht, (Zahlen{.01, 0, .04, 0}));  // no height, no distance: no weight
  EXPECT_FALSE(E.dHo[1].has_value());
  EXPECT_TRUE(
      Nahe({E.StandHoehe, E.dHo[0].value_or(Nichts), E.dHo[3].value_or(Nichts)}, {97.9, -12.6, -20.6}));
  Zahlen Lang(102, 10);
  Lang[101] = 1e6;  // does not enter
  ASSERT_EQ(FStatRechneMittlereHöhe({Lang, Zahlen(102, 0), Zahlen(102, 100), Zahlen(102, 5), 0}, E), 0);
  EXPECT_NEAR(E.StandHoehe, 10, 1e-9);
  EXPECT_EQ(FStatRechneMittlereHöhe({Hp, t, z, Lang, 1.5}, E), -1);
  EXPECT_EQ(FStatPolarpunktHoehe(100, 1.5, 50, 0, 2), 0);
  EXPECT_NEAR(FStatPolarpunktHoehe(100, 1.5, 50, 200 / 3., 2), 124.5, 1e-12);  // cos is 1/2
  EXPECT_NEAR(FStatPolarerAnschluss({0, 0}, {-100, 0}, 350), 350, 1e-10);
}

class Stationierung : public FeldTest {
 protected:
  enmResult Mit(auto Methode, const Sicht& W, int n, bool Helmert, const auto&... Punkte) {
    return Gesehen([&] {
      return (Ta.*Methode)(Punkte..., W.Richtung, W.Vk, W.Strecke, n, z[0], z[1], Helmert, v[0], v[1], v[2],
                           &z[2], &z[3], &z[4], &z[5]);
    });
  }
  enmResult Rechnen(const Sicht& W, int n, bool Helmert = true) {
    return Mit(&TA::FreieStationierung, W, n, Helmert, W.R, W.H);
  }
  enmResult Rechnen(const std::vector<Wert>& Pnr, const Sicht& W, int n) {
    return Mit(&TA::FreieStationierungPnr, W, n, true, Pnr);
  }
};

TEST_F(Stationierung, Zwilling) {
  const Lage S{3400000.5, 5700000.25};
  const Sicht W = Beobachtet(S, 123.4, 1.0002, 3);
  PunkteAnlegen({{"1", W.R[0], W.H[0]}, {"2A", W.R[1], W.H[1]}, {"3", W.R[2], W.H[2]}});
  EXPECT_EQ(Rechnen({1, " 2A", 3.0}, W, 3), ok);
  EXPECT_TRUE(Nahe({z[0], z[1], z[2], z[3]}, {S.RW, S.HW, 1.0002, 123.4}, 1e-7));
  EXPECT_EQ(Rechnen({1, "2A", 4}, W, 3), Fehler_PunktNichtVorhanden);
  for (const int n : {-1, 4}) EXPECT_EQ(Rechnen({1, "2A", 3}, W, n), Fehler_Allgemein);
  EXPECT_TRUE(Gleich(Rechnen({1, "2A", 4}, W, 2), ok, z[4], 0, z[5], 0));
}

TEST_F(Stationierung, Grenzen) {
  Sicht W = Beobachtet({3400000.5, 5700000.25}, 123.4, 1.0002, 3);
  EXPECT_TRUE(Gleich(Rechnen(W, 3, false), ok, z[2], 1));
  for (const int n : {0, -1, 4}) EXPECT_EQ(Rechnen(W, n), Fehler_Allgemein) << n;
  W.Strecke[1] = std::nan("");
  EXPECT_EQ(Rechnen(W, 3), Fehler_Allgemein);
  Sicht Viele;
  for (int i = 0; i < 1002; ++i) Viele.Dazu({i * 1., i % 10 * 1.}, i % 400, 100, 50 + i);
  EXPECT_EQ(Rechnen(Viele, 1002), Fehler_ZuvielePunkte);
  EXPECT_EQ(Rechnen(Viele, 1001), ok);
  EXPECT_NEAR(z[5], z[4] * std::sqrt(2.), 1e-9);
  EXPECT_NEAR(std::hypot(v[0][7], v[1][7]), v[2][7], 1e-9);
}

TEST_F(Stationierung, Kleinpunkt) {
  EXPECT_EQ(Ta.FreieStationierungKleinpunkt(0, 0, 0, 1, HUGE_VAL, 100, 100, a, b), Fehler_Allgemein);
  EXPECT_TRUE(Unberührt());
  EXPECT_EQ(Ta.FreieStationierungKleinpunkt(10, 20, 350, 1.01, 50, 100, 100, a, b), ok);
  EXPECT_EQ(a, 10);  // exactly 400 gon becomes 0
  EXPECT_NEAR(b, 121, 1e-10);
  EXPECT_EQ(Ta.FreieStationierungKleinpunkt(10, 20, 399, 1.01, 101, 100, 100 / 3., a, b), ok);
  EXPECT_TRUE(Nahe({a, b}, {60.5, 20}));
}

}  // namespace
}  // namespace tavorena::test
