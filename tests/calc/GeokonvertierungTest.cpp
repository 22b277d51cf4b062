#include "Rechentest.h"

#include <limits>
#include <memory>

#ifndef _WIN32
#include <proj.h>
#endif

#include <tavorena/calc/Geokonvertierung.h>
#include <tavorena/calc/Meridianstreifen.h>

namespace tavorena::test {
namespace {

/// Distance of two geographic places [m]; longitudes and latitudes in degrees.
double AufDerErde(double L1, double B1, double L2, double B2) {
  return 111300 * std::hypot((L2 - L1) * std::cos(B1 * RadJeGrad), B2 - B1);
}

TEST(Geokonvertierung, EllipsoidAchsen) {
  // Bessel, Astronomische Nachrichten 438 (1841); International, quadrant of Hayford; the table's third, one
  // digit short on purpose; GRS 80, Moritz in Bulletin Géodésique 54 (1980).
  constexpr double Quadrant[] = {10000855.765, 10002288.299, 0, 10001965.729};
  double a = 7, b = 8;
  for (const int Nummer : {-1, 4}) EXPECT_EQ(EllipsoidAchsen(Nummer, a, b), 1);
  EXPECT_TRUE(Gleich(a, 7, b, 8));
  for (const int Nummer : {0, 1, 3}) {
    EXPECT_EQ(EllipsoidAchsen(Nummer, a, b), 0);
    const Ellipsoid E(a, b);
    EXPECT_NEAR(Meridianbogen(E, pi / 2), Quadrant[Nummer], 6e-4);
    for (int i = -90; i <= 90; ++i)
      ASSERT_NEAR(Fusspunktbreite(E, Meridianbogen(E, i * RadJeGrad)), i * RadJeGrad, 1e-13);
  }
  EXPECT_TRUE(Gleich(EllipsoidAchsen(2, a, b), 0, b, 635863.019));
}

// EPSG Guidance Note 7-2, British National Grid: the same series with another ellipsoid, scale and origin.
TEST(Geokonvertierung, VeröffentlichtesBeispiel) {
  constexpr Ellipsoid Airy(6377563.396, 6356256.909);
  constexpr double M = 0.9996012717, Ost = 577274.99 - 400000 + 500000;
  const double Nord = 69740.49 + 100000 + M * Meridianbogen(Airy, 49 * RadJeGrad);
  double R = 0, H = 0, Hin = 0, B = 0, L = 0, Her = 0;
  ASSERT_EQ(GKVorwaerts(M, Airy, 0, 50.5 * RadJeGrad, 2.5 * RadJeGrad, R, H, Hin), 0);
  EXPECT_TRUE(Nahe({R, H}, {Ost, Nord}, 0.01));
  ASSERT_EQ(GKRueckwaerts(M, Airy, Ost, Nord, B, L, Her), 0);
  EXPECT_LT(AufDerErde(L, B, 2.5, 50.5), 0.015);
  EXPECT_NEAR(Hin, Her, 1e-6);
}

#ifndef _WIN32  // the witness is a library of this system
// The exact projection, for a strip or a zone.
std::unique_ptr<PJ, PJ* (*)(PJ*)> Projektion(bool Utm, int Nr, const std::string& Körper) {
  const int Mitte = Utm ? 6 * (Nr - 30) - 3 : 3 * Nr;
  const std::string Text = "+proj=tmerc +lat_0=0 +y_0=0 +lon_0=" + std::to_string(Mitte) +
                           (Utm ? " +k_0=0.9996 +x_0=" : " +k_0=1 +x_0=" + std::to_string(Nr)) + "500000 " +
                           Körper;
  return {proj_create(PJ_DEFAULT_CTX, Text.c_str()), proj_destroy};
}

// PROJ's transverse Mercator is the exact projection. Every number is one of the header and the handbook: the
// found maximum over Germany is neither above nor far below it.
struct Vergleich {
  const char* Name;
  const char* Körper;
  bool Utm;
  int Neben;                     // how far beside the central meridian points lie [tenths of a degree]
  double Vor, Rueck, HinUndHer;  // [mm]; 0: not compared
};

// One point, also against the witness's own coordinates, in strip or zone Nr. G is the greatest so far.
void Vergleichen(const Vergleich& f, PJ* Zeuge, int Nr, int Mitte, double L, double B, Vergleich& G,
                 double& Konvergenz) {
  const PJ_COORD Ort = proj_coord(L * RadJeGrad, B * RadJeGrad, 0, 0);
  const PJ_XY Soll = proj_trans(Zeuge, PJ_FWD, Ort).xy;
  const double KonvergenzSoll = proj_factors(Zeuge, Ort).meridian_convergence * GradJeRad;
  double R = Soll.x, H = Soll.y, Hin = KonvergenzSoll, Her = KonvergenzSoll;
  std::int32_t Zone = Nr;
  const auto Rueck = [&](double& Größte) {
    double B2 = 0, L2 = 0;
    ASSERT_EQ(f.Utm ? UTMRueckwaerts(R, H, Nr, L2, B2) : GKRueckwaerts(1, Ellipsoide[0], R, H, B2, L2, Her),
              0);
    Größte = std::max(Größte, 1000 * AufDerErde(L, B, L2, B2));
  };
  Rueck(G.Rueck);
  if (f.Vor == 0) return;
  ASSERT_EQ(f.Utm ? UTMVorwaerts(L, B, Zone, R, H)
                  : GKVorwaerts(1, Ellipsoide[0], Nr, B * RadJeGrad, (L - Mitte) * RadJeGrad, R, H, Hin),
            0);
  ASSERT_EQ(Zone, Nr);
  G.Vor = std::max(G.Vor, 1000 * std::hypot(R - Soll.x, H - Soll.y));
  Rueck(G.HinUndHer);
  Konvergenz = std::max({Konvergenz, std::fabs(Hin - KonvergenzSoll), std::fabs(Her - KonvergenzSoll)});
}

// Every strip and zone over all of Germany: near the central meridian the series, beyond them a micrometre.
TEST(Geokonvertierung, FremderStreifenGegenProj) {
  const Streifennetz Netze[] = {Streifennetz(Ellipsoide[0]), Streifennetz()};
  for (int Nr : {2, 3, 4, 5, 31, 32, 33}) {
    SCOPED_TRACE(Nr);
    const bool Utm = Nr > 30;
    const Streifennetz& N = Netze[Utm];
    const double Nah = Utm ? 3 : 2, Vor = Utm ? 1.1e-4 : 7e-5, Rück = Utm ? 5.2e-4 : 2.2e-5;
    const auto Zeuge =
        Projektion(Utm, Nr, Utm ? "+a=6378137 +b=6356752.314" : "+a=6377397.155 +b=6356078.963");
    ASSERT_TRUE(Zeuge);
    int Ferne = 0;
    for (int l = 58; l <= 151; ++l) {
      for (int b = 470; b <= 552; b += 4) {
        const double L = l / 10.0, B = b / 10.0, Delta = std::fabs(L - Mittelmeridian(N.Art, Nr));
        const PJ_XY Soll = proj_trans(Zeuge.get(), PJ_FWD, proj_coord(L * RadJeGrad, B * RadJeGrad, 0, 0)).xy;
        const bool Fern = Delta > Nah + 1e-9;
        double R = 7, H = 8, L2 = 7, B2 = 8;
        const int Ergebnis = StreifenVorwaerts(N, Nr, L, B, R, H);
        const int Zurück = StreifenRueckwaerts(N, Nr, Soll.x, Soll.y, L2, B2);
        if (std::fabs(Delta - 10) < 1e-9) continue;  // on the limit either is right
        ASSERT_TRUE(Gleich(Ergebnis, Delta > 10 ? -1 : 0, Zurück, Ergebnis)) << L;
        if (Delta > 10) {
          ASSERT_TRUE(Gleich(R, 7, H, 8, L2, 7, B2, 8));
          continue;
        }
        ASSERT_LT(std::hypot(R - Soll.x, H - Soll.y), Fern ? 1e-6 : Vor) << L << ' ' << B;
        ASSERT_LT(AufDerErde(L, B, L2, B2), Fern ? 1e-6 : Rück) << L << ' ' << B;
        Ferne += Fern;
      }
    }
    EXPECT_GT(Ferne, 400);
  }
}

TEST(Geokonvertierung, DeutschlandGegenProj) {
  constexpr Vergleich Fälle[] = {
      {"GK, own strip", "+a=6377397.155 +b=6356078.963", false, 15, 0.0165, 0.003, 0.019},
      {"GK, half a degree beyond", "+a=6377397.155 +b=6356078.963", false, 20, 0.07, 0.022, 0.09},
      {"GK, the defined Bessel, b 0.2 mm lower", "+ellps=bessel", false, 15, 0.23, 0.22, 0.019},
      {"UTM, own zone", "+ellps=GRS80", true, 30, 0.11, 0.415, 0.5},
      {"UTM, half a degree beyond", "+ellps=GRS80", true, 35, 0, 0.97, 0},
  };
  for (const Vergleich& f : Fälle) {
    Vergleich G{};
    double Konvergenz = 0;
    for (int Nr = f.Utm ? 31 : 2; Nr <= (f.Utm ? 33 : 5); ++Nr) {
      const int Mitte = f.Utm ? 6 * (Nr - 30) - 3 : 3 * Nr;
      const auto Zeuge = Projektion(f.Utm, Nr, f.Körper);
      ASSERT_TRUE(Zeuge);
      // 47 to 55.2 N, 5.8 to 15.1 E in steps of 0.1 degrees; an eastern edge belongs to the next strip.
      for (int l = std::max(58, 10 * Mitte - f.Neben); l <= std::min(151, 10 * Mitte + f.Neben - 1); ++l)
        for (int b = 470; b <= 552; ++b)
          Vergleichen(f, Zeuge.get(), Nr, Mitte, l / 10.0, b / 10.0, G, Konvergenz);
    }
    for (const double Vergleich::*Zahl : {&Vergleich::Vor, &Vergleich::Rueck, &Vergleich::HinUndHer})
      EXPECT_TRUE(G.*Zahl <= f.*Zahl && G.*Zahl >= 0.85 * (f.*Zahl)) << f.Name << ' ' << G.*Zahl;
    EXPECT_LT(Konvergenz * 3600, 2e-4);
  }
}
#endif

TEST(Geokonvertierung, GKStreifen) {
  double Delta = 9;
  std::int32_t Kennziffer = 9;
  for (const double Absurd : {1e11, std::nan("")}) EXPECT_EQ(GKStreifen(Absurd, Delta, Kennziffer), -1);
  EXPECT_TRUE(Gleich(Delta, 9, Kennziffer, 9));
  constexpr double Fälle[][3] = {// longitude, strip, rest
                                 {7.5, 3, -1.5},    {7.25, 2, 1.25}, {0, 0, 0},   {-1.5, 0, -1.5},
                                 {-1.75, -1, 1.25}, {-9, -3, 0},     {180, 60, 0}};
  for (const auto& [Laenge, Nummer, Rest] : Fälle) {
    EXPECT_TRUE(Gleich(GKStreifen(Laenge, Delta, Kennziffer), 0, Delta, Rest, Kennziffer, Nummer)) << Laenge;
  }
}

TEST(Geokonvertierung, GradInGMS) {
  constexpr double Fälle[][5] = {
      // value, result, degrees, minutes, seconds
      {9.2, 0, 9, 12, 0},                    // stored a trace too small
      {8.9999999999999, 0, 9, 0, 0},         // the carry runs up to the degrees
      {9 + 59.999 / 3600, 0, 9, 0, 59.999},  // a real 59.999 is left alone
      {-10.5125, 0, -10, 30, 45},            // the sign goes with the degrees
      {-0.5, 1, 0, 30, 0},                   // no degree to carry the sign
      {-0.005, 1, 0, 0, 18},                 // no minute either
      {-0.0, 0, 0, 0, 0},                    // no sign to lose
      {3e9, -1, 77, 77, 77},                 // beyond 32 bits
  };
  for (const auto& [Wert, Ergebnis, Grad, Minuten, Sekunden] : Fälle) {
    std::int32_t g = 77, m = 77;
    double s = 77;
    EXPECT_EQ(GradInGMS(Wert, g, m, s), Ergebnis) << Wert;
    EXPECT_TRUE(Nahe({1. * g, 1. * m, s}, {Grad, Minuten, Sekunden})) << Wert;
  }
}

class Geoschnittstelle : public RechenTest {
 protected:
  std::int32_t i = 9, j = 9, k = 9, l = 9;
};

TEST_F(Geoschnittstelle, Streifenrand) {
  EXPECT_EQ(Ta.KonvertierungGeographischGMSNachGK(7, 30, 0.5, 51, 30, 30.25, a, b), ok);
  EXPECT_EQ(std::floor(a / 1e5), 33);  // the western edge of strip 3
  EXPECT_EQ(Ta.KonvertierungGKNachGeographischGMS(a, b, i, j, c, k, l, d), ok);
  EXPECT_EQ((std::array{i, j, k, l}), (std::array{7, 30, 51, 30}));
  EXPECT_TRUE(Nahe({c, d}, {0.5, 30.25}, 2e-6));
}

// Geocentric Datum of Australia, Technical Manual (ICSM), MGA94: Flinders Peak, without its 10000 km. On the
// way there the minus stands before all three of an angle, on the way back only before the degrees.
TEST_F(Geoschnittstelle, VeröffentlichtesBeispiel) {
  EXPECT_EQ(Ta.KonvertierungGeographischGMSNachUTM(144, 25, 29.5244, -37, -57, -3.7203, i, a, b), ok);
  EXPECT_EQ(i, 55);
  EXPECT_TRUE(Nahe({a, b}, {273741.297, 5796489.777 - 1e7}, 1e-3));
  EXPECT_EQ(Ta.KonvertierungUTMNachGeographischGMS(a, b, 55, i, j, c, k, l, d), ok);
  EXPECT_EQ((std::array{i, j, k, l}), (std::array{144, 25, -37, 57}));
  EXPECT_TRUE(Nahe({c, d}, {29.5244, 3.7203}, 5e-5));
}

// All four quarters of the globe, so also negative strips, zones below 30 and negative Hochwerte.
TEST_F(Geoschnittstelle, UmkehrungÜberall) {
  Gelände G;
  for (int n = 0; n < 10000; ++n) {
    const double L = G.Zahl(-180, 180), B = G.Zahl(-80, 80);
    ASSERT_EQ(Ta.KonvertierungGeographischNachGK(L, B, a, b), ok);
    ASSERT_EQ(Ta.KonvertierungGKNachGeographisch(a, b, c, d), ok);
    ASSERT_LT(AufDerErde(L, B, c, d), 1e-3) << L << ' ' << B;
    ASSERT_EQ(Ta.KonvertierungGeographischNachUTM(L, B, i, a, b), ok);
    ASSERT_TRUE(i >= 1 && i <= 60) << i;
    ASSERT_NEAR(a, 500000, 334000);
    ASSERT_EQ(Ta.KonvertierungUTMNachGeographisch(a, b, i, c, d), ok);
    ASSERT_LT(AufDerErde(L, B, c, d), 1e-3) << L << ' ' << B;
  }
}

TEST_F(Geoschnittstelle, SchlechteEingaben) {
  for (const double x : {std::nan(""), 1e300}) {
    SCOPED_TRACE(x);
    EXPECT_EQ(Ta.KonvertierungGeographischNachGK(x, 51, a, b), Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGKNachGeographischGMS(3.5e6, x, i, j, a, k, l, b), Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungUTMNachGeographischGMS(5e5, x, 32, i, j, a, k, l, b), Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGeographischGMSNachUTM(9, 0, x, 51, 0, 0, i, a, b), Fehler_Allgemein);
    EXPECT_TRUE(Unberührt());
    EXPECT_EQ((std::array{i, j, k, l}), (std::array{9, 9, 9, 9}));
  }
  // Beyond the pole the series run on: 91 degrees are 89 on the other side, which Rechts shows mirrored.
  EXPECT_EQ(Ta.KonvertierungGeographischNachGK(10, 91, a, b), ok);
  EXPECT_EQ(Ta.KonvertierungGeographischNachGK(10, 89, c, d), ok);
  EXPECT_NEAR(a + c, 7000000, 1e-6);
  for (const std::int32_t Zone : {std::numeric_limits<std::int32_t>::min(), -1, 61})
    EXPECT_EQ(Ta.KonvertierungUTMNachGeographisch(5e5, 5.6e6, Zone, a, b), ok);
  EXPECT_EQ(a, 183);
}

}  // namespace
}  // namespace tavorena::test
