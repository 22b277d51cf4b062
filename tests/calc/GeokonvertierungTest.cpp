#include "Testhilfe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include <proj.h>

#include <tavorena/calc/Geokonvertierung.h>
#include <tavorena/calc/TA.h>

namespace tavorena::test {
namespace {

double Grad(double g, double m, double s) { return g + m / 60 + s / 3600; }

/// Distance of two geographic places [m]; longitudes and latitudes in degrees.
double AufDerErde(double L1, double B1, double L2, double B2) {
  return 111300 * std::hypot((L2 - L1) * std::cos(B1 * RadJeGrad), B2 - B1);
}

TEST(Geokonvertierung, EllipsoideUndMeridianquadranten) {
  struct Fall {
    const char* Name;
    int Nummer;
    double Quadrant;
  };
  constexpr Fall Faelle[] = {
      {"Bessel, Astronomische Nachrichten 438 (1841)", 0, 10000855.765},
      {"International, quadrant of Hayford", 1, 10002288.299},
      {"GRS 80, Moritz in Bulletin Géodésique 54 (1980)", 3, 10001965.729},
  };
  double a = 7, b = 8;
  for (const int Nummer : {-1, 4, 100}) EXPECT_EQ(EllipsoidAchsen(Nummer, a, b), 1);
  EXPECT_EQ(a + b, 15);
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    EXPECT_EQ(EllipsoidAchsen(f.Nummer, a, b), 0);
    const Ellipsoid E(a, b);
    EXPECT_NEAR(Meridianbogen(E, M_PI / 2), f.Quadrant, 6e-4);
    for (int i = -90; i <= 90; ++i)
      ASSERT_NEAR(Fusspunktbreite(E, Meridianbogen(E, i * RadJeGrad)), i * RadJeGrad, 1e-13);
  }
  EXPECT_EQ(EllipsoidAchsen(2, a, b), 0);
  EXPECT_EQ(b, 635863.019);  // one digit short, on purpose
}

// Published transverse Mercator examples of other countries: the same series with their ellipsoid and scale.
TEST(Geokonvertierung, VeroeffentlichteBeispiele) {
  struct Fall {
    const char* Name;
    Ellipsoid E;
    double Massstab, B0, L0, B, L, FalschOst, FalschNord, Ost, Nord, Toleranz;
  };
  const Fall Faelle[] = {
      {"Snyder, Map Projections, USGS PP 1395 (1987), p. 269", Ellipsoid(6378206.4, 6356583.8), 0.9996, 0,
       -75, 40.5, -73.5, 0, 0, 127106.5, 4484124.4, 0.05},
      {"EPSG Guidance Note 7-2, British National Grid", Ellipsoid(6377563.396, 6356256.909), 0.9996012717, 49,
       -2, 50.5, 0.5, 400000, -100000, 577274.99, 69740.49, 0.01},
      {"EPSG Guidance Note 7-2, Hartebeesthoek94 / Lo29, axes turned to east and north", Ellipsoide[3], 1, 0,
       29, -Grad(25, 43, 55.302), Grad(28, 16, 57.479), 0, 0, -71984.48, -2847342.74, 0.01},
  };
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    const double M0 = f.Massstab * Meridianbogen(f.E, f.B0 * RadJeGrad);
    double R = 0, H = 0, Konvergenz = 0, B = 0, L = 0, Zurueck = 0;
    ASSERT_EQ(GKVorwaerts(f.Massstab, f.E, 0, f.B * RadJeGrad, (f.L - f.L0) * RadJeGrad, R, H, Konvergenz),
              0);
    EXPECT_NEAR(R - 500000 + f.FalschOst, f.Ost, f.Toleranz);
    EXPECT_NEAR(H - M0 + f.FalschNord, f.Nord, f.Toleranz);
    ASSERT_EQ(GKRueckwaerts(f.Massstab, f.E, f.Ost - f.FalschOst + 500000, f.Nord - f.FalschNord + M0, B, L,
                            Zurueck),
              0);
    EXPECT_NEAR(AufDerErde(L + f.L0, B, f.L, f.B), 0, 1.5 * f.Toleranz);
    EXPECT_NEAR(Zurueck, Konvergenz, 1e-6);
  }
}

// UTM on GRS 80: Geocentric Datum of Australia, Technical Manual (ICSM), MGA94; without its 10000 km. On the
// way there the minus stands before all three of an angle, on the way back only before the degrees.
TEST(Geokonvertierung, VeroeffentlichteBeispieleUTM) {
  struct Fall {
    const char* Name;
    std::int32_t LGrad, LMin;
    double LSek;
    std::int32_t BGrad, BMin;
    double BSek, Easting, Northing;
    std::int32_t Zone;
  };
  constexpr Fall Faelle[] = {
      {"Flinders Peak", 144, 25, 29.5244, -37, -57, -3.7203, 273741.297, 5796489.777 - 1e7, 55},
      {"Buninyong", 143, 55, 35.3839, -37, -39, -10.1561, 758173.797, 5828674.340 - 1e7, 54},
  };
  TA Ta;
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    Fall g{};
    EXPECT_EQ(Ta.KonvertierungGeographischGMSNachUTM(f.LGrad, f.LMin, f.LSek, f.BGrad, f.BMin, f.BSek, g.Zone,
                                                     g.Easting, g.Northing),
              enmResult::ok);
    EXPECT_EQ(g.Zone, f.Zone);
    EXPECT_NEAR(g.Easting, f.Easting, 1e-3);
    EXPECT_NEAR(g.Northing, f.Northing, 1e-3);
    EXPECT_EQ(Ta.KonvertierungUTMNachGeographischGMS(f.Easting, f.Northing, f.Zone, g.LGrad, g.LMin, g.LSek,
                                                     g.BGrad, g.BMin, g.BSek),
              enmResult::ok);
    EXPECT_EQ((std::array{g.LGrad, g.LMin, g.BGrad, g.BMin}),
              (std::array{f.LGrad, f.LMin, f.BGrad, -f.BMin}));
    EXPECT_NEAR(g.LSek, f.LSek, 5e-5);
    EXPECT_NEAR(g.BSek, -f.BSek, 5e-5);
  }
}

// PROJ's transverse Mercator is the exact projection. Every number is one of the header and the handbook: the
// found maximum over Germany is neither above nor far below it.
struct Vergleich {
  const char* Name;
  const char* Koerper;
  bool Utm;
  int Neben;                     // how far beside the central meridian points lie [tenths of a degree]
  double Vor, Rueck, HinUndHer;  // [mm]; 0: not compared
};

struct Groesste {
  double Vor = 0, Rueck = 0, HinUndHer = 0, Konvergenz = 0;
};

// One point, also against the witness's own coordinates, in strip or zone Nr.
void Vergleichen(const Vergleich& f, PJ* Zeuge, int Nr, int Mitte, double L, double B, Groesste& G) {
  const PJ_COORD Ort = proj_coord(L * RadJeGrad, B * RadJeGrad, 0, 0);
  const PJ_XY Soll = proj_trans(Zeuge, PJ_FWD, Ort).xy;
  const double KonvergenzSoll = proj_factors(Zeuge, Ort).meridian_convergence * GradJeRad;
  double R = Soll.x, H = Soll.y, B2 = 0, L2 = 0, Hin = KonvergenzSoll, Her = KonvergenzSoll;
  std::int32_t Zone = Nr;
  const auto Rueck = [&] {
    return f.Utm ? UTMRueckwaerts(R, H, Nr, L2, B2) : GKRueckwaerts(1, Ellipsoide[0], R, H, B2, L2, Her);
  };
  ASSERT_EQ(Rueck(), 0);
  G.Rueck = std::max(G.Rueck, 1000 * AufDerErde(L, B, L2, B2));
  if (f.Vor == 0) return;
  ASSERT_EQ(f.Utm ? UTMVorwaerts(L, B, Zone, R, H)
                  : GKVorwaerts(1, Ellipsoide[0], Nr, B * RadJeGrad, (L - Mitte) * RadJeGrad, R, H, Hin),
            0);
  ASSERT_EQ(Zone, Nr);
  G.Vor = std::max(G.Vor, 1000 * std::hypot(R - Soll.x, H - Soll.y));
  ASSERT_EQ(Rueck(), 0);
  G.HinUndHer = std::max(G.HinUndHer, 1000 * AufDerErde(L, B, L2, B2));
  G.Konvergenz = std::max({G.Konvergenz, std::fabs(Hin - KonvergenzSoll), std::fabs(Her - KonvergenzSoll)});
}

TEST(Geokonvertierung, DeutschlandGegenProj) {
  constexpr Vergleich Faelle[] = {
      {"GK, own strip", "+a=6377397.155 +b=6356078.963", false, 15, 0.0165, 0.003, 0.019},
      {"GK, half a degree beyond", "+a=6377397.155 +b=6356078.963", false, 20, 0.07, 0.022, 0.09},
      {"GK, the defined Bessel, b 0.2 mm lower", "+ellps=bessel", false, 15, 0.23, 0.22, 0.019},
      {"UTM, own zone", "+ellps=GRS80", true, 30, 0.11, 0.415, 0.5},
      {"UTM, half a degree beyond", "+ellps=GRS80", true, 35, 0, 0.97, 0},
  };
  const auto Pruefen = [](double Gefunden, double Soll) {
    EXPECT_LE(Gefunden, Soll);
    EXPECT_GE(Gefunden, 0.85 * Soll);
  };
  for (const Vergleich& f : Faelle) {
    SCOPED_TRACE(f.Name);
    Groesste G;
    for (int Nr = f.Utm ? 31 : 2; Nr <= (f.Utm ? 33 : 5); ++Nr) {
      const int Mitte = f.Utm ? 6 * (Nr - 30) - 3 : 3 * Nr;
      const std::string Text = "+proj=tmerc +lat_0=0 +y_0=0 +lon_0=" + std::to_string(Mitte) +
                               (f.Utm ? " +k_0=0.9996 +x_0=" : " +k_0=1 +x_0=" + std::to_string(Nr)) +
                               "500000 " + f.Koerper;
      const std::unique_ptr<PJ, PJ* (*)(PJ*)> Zeuge(proj_create(PJ_DEFAULT_CTX, Text.c_str()), proj_destroy);
      ASSERT_TRUE(Zeuge);
      // 47 to 55.2 N, 5.8 to 15.1 E in steps of 0.1 degrees; an eastern edge belongs to the next strip.
      for (int l = std::max(58, 10 * Mitte - f.Neben); l <= std::min(151, 10 * Mitte + f.Neben - 1); ++l)
        for (int b = 470; b <= 552; ++b) Vergleichen(f, Zeuge.get(), Nr, Mitte, l / 10.0, b / 10.0, G);
    }
    Pruefen(G.Vor, f.Vor);
    Pruefen(G.Rueck, f.Rueck);
    Pruefen(G.HinUndHer, f.HinUndHer);
    EXPECT_LT(G.Konvergenz * 3600, 2e-4);
  }
}

TEST(Geokonvertierung, GKStreifen) {
  struct Fall {
    double Laenge;
    int Kennziffer;
    double Delta;
  };
  constexpr Fall Faelle[] = {{9, 3, 0},       {7.5, 3, -1.5},    {7.25, 2, 1.25}, {0, 0, 0},
                             {-1.5, 0, -1.5}, {-1.75, -1, 1.25}, {-9, -3, 0},     {180, 60, 0}};
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Laenge);
    double Delta = 9;
    std::int32_t Kennziffer = 9;
    EXPECT_EQ(GKStreifen(f.Laenge, Delta, Kennziffer), 0);
    EXPECT_EQ(Kennziffer, f.Kennziffer);
    EXPECT_EQ(Delta, f.Delta);
    for (const double Absurd : {1e11, -1e300, std::nan("")})
      EXPECT_EQ(GKStreifen(Absurd, Delta, Kennziffer), -1);
    EXPECT_EQ(Delta + Kennziffer, f.Delta + f.Kennziffer);
  }
}

TEST(Geokonvertierung, GradInGMS) {
  struct Fall {
    const char* Name;
    double Wert;
    int Ergebnis, Grad, Minuten;
    double Sekunden;
  };
  constexpr Fall Faelle[] = {
      {"plain", 10.5125, 0, 10, 30, 45},
      {"9.2 is stored a trace too small", 9.2, 0, 9, 12, 0},
      {"the carry runs up to the degrees", 8.9999999999999, 0, 9, 0, 0},
      {"a real 59.999 is left alone", 9 + 59.999 / 3600, 0, 9, 0, 59.999},
      {"the sign goes with the degrees", -10.5, 0, -10, 30, 0},
      {"no degree to carry the sign", -0.5, 1, 0, 30, 0},
      {"no sign to lose", -0.0, 0, 0, 0, 0},
      {"beyond 32 bits", 3e9, -1, 77, 77, 77},
  };
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    std::int32_t g = 77, m = 77;
    double s = 77;
    EXPECT_EQ(GradInGMS(f.Wert, g, m, s), f.Ergebnis);
    EXPECT_EQ(g, f.Grad);
    EXPECT_EQ(m, f.Minuten);
    EXPECT_NEAR(s, f.Sekunden, 1e-9);
  }
}

class Geoschnittstelle : public ::testing::Test {
 protected:
  TA Ta;
  double a = 9, b = 9, c = 9, d = 9;
  std::int32_t i = 9, j = 9, k = 9, l = 9;
};

TEST_F(Geoschnittstelle, MittelmeridianUndStreifenrand) {
  EXPECT_EQ(Ta.KonvertierungGeographischNachGK(9, 51, a, b), enmResult::ok);
  EXPECT_EQ(a, 3500000);
  EXPECT_EQ(b, Meridianbogen(Ellipsoide[0], 51 * RadJeGrad));
  EXPECT_EQ(Ta.KonvertierungGeographischGMSNachGK(7, 30, 0.5, 51, 30, 30.25, a, b), enmResult::ok);
  EXPECT_EQ(std::floor(a / 1e5), 33);  // the western edge of strip 3
  EXPECT_EQ(Ta.KonvertierungGKNachGeographischGMS(a, b, i, j, c, k, l, d), enmResult::ok);
  EXPECT_EQ((std::array{i, j, k, l}), (std::array{7, 30, 51, 30}));
  EXPECT_NEAR(c, 0.5, 2e-6);
  EXPECT_NEAR(d, 30.25, 2e-6);
  EXPECT_EQ(Ta.KonvertierungGeographischNachUTM(9, 51, i, a, b), enmResult::ok);
  EXPECT_EQ(a, 500000);
  EXPECT_EQ(i, 32);
  EXPECT_EQ(Ta.KonvertierungUTMNachGeographisch(a, b, i, c, d), enmResult::ok);
  EXPECT_EQ(c, 9);
  EXPECT_NEAR(d, 51, 1e-8);
}

// All four quarters of the globe, so also negative strips, zones below 30 and negative Hochwerte.
TEST_F(Geoschnittstelle, HinUndHerUeberall) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> Laenge(-180, 180), Breite(-80, 80);
  for (int n = 0; n < 10000; ++n) {
    const double L = Laenge(Zufall), B = Breite(Zufall);
    ASSERT_EQ(Ta.KonvertierungGeographischNachGK(L, B, a, b), enmResult::ok);
    ASSERT_EQ(Ta.KonvertierungGKNachGeographisch(a, b, c, d), enmResult::ok);
    ASSERT_LT(AufDerErde(L, B, c, d), 1e-3) << L << ' ' << B;
    ASSERT_EQ(Ta.KonvertierungGeographischNachUTM(L, B, i, a, b), enmResult::ok);
    ASSERT_TRUE(i >= 1 && i <= 60 && std::fabs(a - 500000) < 334000);
    ASSERT_EQ(Ta.KonvertierungUTMNachGeographisch(a, b, i, c, d), enmResult::ok);
    ASSERT_LT(AufDerErde(L, B, c, d), 1e-3) << L << ' ' << B;
  }
}

TEST_F(Geoschnittstelle, SchlechteEingaben) {
  constexpr double Unendlich = std::numeric_limits<double>::infinity();
  for (const double x : {std::nan(""), Unendlich, -Unendlich, 1e300}) {
    SCOPED_TRACE(x);
    EXPECT_EQ(Ta.KonvertierungGeographischNachGK(x, 51, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGeographischGMSNachGK(9, 0, x, 51, 0, 0, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGKNachGeographisch(x, 5.6e6, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGKNachGeographischGMS(3.5e6, x, i, j, a, k, l, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungUTMNachGeographisch(x, 5.6e6, 32, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungUTMNachGeographischGMS(5e5, x, 32, i, j, a, k, l, b),
              enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGeographischNachUTM(x, 51, i, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.KonvertierungGeographischGMSNachUTM(9, 0, x, 51, 0, 0, i, a, b),
              enmResult::Fehler_Allgemein);
    EXPECT_EQ(a + b + i + j + k + l, 54);
  }
  // Beyond the pole the series run on: 91 degrees are 89 on the other side, which Rechts shows mirrored.
  EXPECT_EQ(Ta.KonvertierungGeographischNachGK(10, 91, a, b), enmResult::ok);
  EXPECT_EQ(Ta.KonvertierungGeographischNachGK(10, 89, c, d), enmResult::ok);
  EXPECT_NEAR(a + c, 7000000, 1e-6);
  for (const double x : {90.0, 1e6, 1e18})
    EXPECT_EQ(Ta.KonvertierungGeographischNachGK(9, x, a, b), enmResult::ok);
  for (const double x : {10000855.7646, 1e18})
    EXPECT_EQ(Ta.KonvertierungGKNachGeographisch(3.6e6, x, a, b), enmResult::ok);
  for (const std::int32_t Zone : {std::numeric_limits<std::int32_t>::min(), -1, 61})
    EXPECT_EQ(Ta.KonvertierungUTMNachGeographisch(5e5, 5.6e6, Zone, a, b), enmResult::ok);
  EXPECT_EQ(a, 183);
}

}  // namespace
}  // namespace tavorena::test
