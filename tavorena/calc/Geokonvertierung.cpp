#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

#include <tavorena/calc/Geokonvertierung.h>

namespace tavorena {
namespace {

constexpr const Ellipsoid& Utm = Ellipsoide[3];

// Arc of the meridian for a radian, on the average.
constexpr double UtmA0(double c, double e2) {
  const double e4 = e2 * e2;
  return c * (1 - 3.0 / 4 * e2 + 45.0 / 64 * e4 - 175.0 / 256 * e4 * e2 + 11025.0 / 16384 * e4 * e4);
}

constexpr Sinusreihe UtmBogenreihe(double c, double e2) {
  const double e4 = e2 * e2, e6 = e4 * e2, e8 = e4 * e4;
  return {UtmA0(c, e2), c * (-3.0 / 8 * e2 + 15.0 / 32 * e4 - 525.0 / 1024 * e6 + 2205.0 / 4096 * e8),
          c * (15.0 / 256 * e4 - 105.0 / 1024 * e6 + 2205.0 / 16384 * e8),
          c * (-35.0 / 3072 * e6 + 315.0 / 12288 * e8), 0};
}

constexpr Sinusreihe UtmFusspunktreihe(double e2) {
  const double e4 = e2 * e2, e6 = e4 * e2, e8 = e4 * e4;
  return {1, 3.0 / 8 * e2 - 3.0 / 16 * e4 + 213.0 / 2048 * e6 - 255.0 / 4096 * e8,
          21.0 / 256 * e4 - 21.0 / 256 * e6 + 533.0 / 8192 * e8, 151.0 / 6144 * e6 - 453.0 / 12288 * e8, 0};
}

/// What the series take at a latitude; N is c / V.
struct Breitenwerte {
  Breitenwerte(double e2, double Sinus, double Kosinus)
      : t(Sinus / Kosinus), t2(t * t), eta2(e2 * Kosinus * Kosinus), V2(1 + eta2), V(std::sqrt(V2)) {}
  double t, t2;  ///< tangent
  double eta2;   ///< e'^2 cos^2
  double V2, V;
};

/// A footpoint latitude with its sine and cosine.
struct Fusspunktwerte {
  /// @param[in] x  arc of the meridian as an angle [rad]
  Fusspunktwerte(const Sinusreihe& Reihe, double x) {
    const double s = std::sin(x), c = std::cos(x), d = Reihe.Sinusglieder(s, c), d2 = d * d;
    Phi = x + d;
    if (d2 < 1e-5) {  // every ellipsoid of the earth; exact to the last digit and quicker than a second call
      const double SinD = d * (1 - d2 * (1.0 / 6) * (1 - d2 * (1.0 / 20)));
      const double CosD = 1 - d2 * 0.5 * (1 - d2 * (1.0 / 12));
      Sinus = s * CosD + c * SinD;
      Kosinus = c * CosD - s * SinD;
    } else {
      Sinus = std::sin(Phi);
      Kosinus = std::cos(Phi);
    }
  }
  double Phi = 0, Sinus = 0, Kosinus = 1;
};

/// The integer part towards minus infinity, so that the west has whole strips and zones as well.
bool GanzerTeil(double x, std::int32_t& Ganz) {
  const double g = std::floor(x);
  if (!(std::fabs(g) < std::numeric_limits<std::int32_t>::max() - 100.0)) return false;
  Ganz = static_cast<std::int32_t>(g);
  return true;
}

}  // namespace

int EllipsoidAchsen(int Nummer, double& a, double& b) {
  if (Nummer < 0 || Nummer > 3) return 1;
  const Ellipsoid& E = Ellipsoide[static_cast<std::size_t>(Nummer)];
  a = E.a;
  b = E.b;
  return 0;
}

int GKStreifen(double Laenge, double& Delta, std::int32_t& Kennziffer) {
  if (!GanzerTeil(Laenge / 3 + 0.5, Kennziffer)) return -1;
  Delta = Laenge - 3.0 * Kennziffer;
  return 0;
}

double Meridianbogen(const Ellipsoid& E, double Phi) {
  return E.Bogen.Summe(Phi, std::sin(Phi), std::cos(Phi));
}

double Fusspunktbreite(const Ellipsoid& E, double Bogen) {
  return Fusspunktwerte(E.Fusspunkt, Bogen / E.Bogen.k0).Phi;
}

int GKVorwaerts(double Massstab, const Ellipsoid& E, std::int32_t Kennziffer, double Phi, double DeltaLambda,
                double& Rechts, double& Hoch, double& Konvergenz) {
  const double Sinus = std::sin(Phi), Kosinus = std::cos(Phi);
  const double G = E.Bogen.Summe(Phi, Sinus, Kosinus);
  const auto [t, t2, eta2, V2, V] = Breitenwerte(E.e2, Sinus, Kosinus);
  const double N = E.c / V, l = DeltaLambda * Kosinus, l2 = l * l;
  const double Hoch0 = G + N / 2 * t * l2 * (1 + (5 - t2 + 9 * eta2) * l2 / 12);
  const double Rechts0 = N * l * (1 + l2 / 6 * ((1 - t2 + eta2) + (5 - 18 * t2 + t2 * t2) / 20 * l2));
  const double Gamma = DeltaLambda * Sinus * (1 + (1 + 3 * eta2) / 3 * l2) * GradJeRad;
  const double R = Rechts0 * Massstab + 500000 + Kennziffer * 1e6, H = Hoch0 * Massstab;
  if (!std::isfinite(R + H + Gamma)) return -1;
  Rechts = R;
  Hoch = H;
  Konvergenz = Gamma;
  return 0;
}

int GKRueckwaerts(double Massstab, const Ellipsoid& E, double Rechts, double Hoch, double& Breite,
                  double& Laenge, double& Konvergenz) {
  std::int32_t Kennziffer = 0;
  if (!GanzerTeil(Rechts / 1e6, Kennziffer)) return -1;
  // Negative in the west. Longitude and convergence are odd in y: no case of its own for either side.
  const double yMeter = Rechts - (Kennziffer + 0.5) * 1e6;
  const Fusspunktwerte F(E.Fusspunkt, Hoch / (Massstab * E.Bogen.k0));
  const auto [t, t2, eta2, V2, V] = Breitenwerte(E.e2, F.Sinus, F.Kosinus);
  const double y = yMeter / (Massstab * E.c) * V;  // y / (Massstab N)
  const double t4 = t2 * t2, y2 = y * y, y4 = y2 * y2;
  // A product with 1 / 12 in place of a division is below the last digit of a coordinate.
  const double Phi = F.Phi - 0.5 * V2 * t * y2 *
                                 ((1 - (5 + 3 * t2 + eta2 - 9 * eta2 * t2) * y2 * (1.0 / 12)) +
                                  (61 + 90 * t2 + 45 * t4) * y4 * (1.0 / 360));
  const double Delta = y / F.Kosinus *
                       ((1 - (1 + 2 * t2 + eta2) * y2 * (1.0 / 6)) +
                        (5 + 28 * t2 + 24 * t4 + 6 * eta2 + 8 * eta2 * t2) * y4 * (1.0 / 120));
  const double Gamma =
      y * t *
      (1 - (1 + t2 - eta2 - 2 * eta2 * eta2) * y2 * (1.0 / 3) + (2 + 5 * t2 + 3 * t4) * y4 * (1.0 / 15));
  const double BreiteGrad = Phi * GradJeRad, LaengeGrad = 3.0 * Kennziffer + Delta * GradJeRad;
  const double KonvergenzGrad = Gamma * GradJeRad;
  if (!std::isfinite(BreiteGrad + LaengeGrad + KonvergenzGrad)) return -1;
  Breite = BreiteGrad;
  Laenge = LaengeGrad;
  Konvergenz = KonvergenzGrad;
  return 0;
}

int UTMZone(double Laenge, std::int32_t& Zone) {
  std::int32_t Sechstel = 0;
  if (!GanzerTeil(Laenge / 6, Sechstel)) return -1;
  Zone = Sechstel + 31;  // (L0 + 3) / 6 + 30
  return 0;
}

int UTMVorwaerts(double Laenge, double Breite, std::int32_t& Zone, double& Easting, double& Northing) {
  std::int32_t Eigene = 0;
  if (UTMZone(Laenge, Eigene) < 0 || UTMInZone(Laenge, Breite, Eigene, Easting, Northing) < 0) return -1;
  Zone = Eigene;
  return 0;
}

int UTMInZone(double Laenge, double Breite, std::int32_t Zone, double& Easting, double& Northing) {
  static constexpr Sinusreihe Bogen = UtmBogenreihe(Utm.c, Utm.e2);
  const double L0 = 6.0 * (Zone - 30.0) - 3, Phi = Breite * RadJeGrad;
  const double Sinus = std::sin(Phi), Kosinus = std::cos(Phi);
  const auto [t, t2, eta2, V2, V] = Breitenwerte(Utm.e2, Sinus, Kosinus);
  const double t4 = t2 * t2, kN = UtmMassstab * Utm.c / V;
  const double q = (Laenge - L0) * RadJeGrad * Kosinus, q2 = q * q;  // l cos phi
  const double Nord = UtmMassstab * Bogen.Summe(Phi, Sinus, Kosinus) +
                      kN * t * q2 * (0.5 + q2 * ((5 - t2 + 9 * eta2) / 24 + q2 * (61 - 58 * t2 + t4) / 720));
  const double Ost =
      500000 +
      kN * q * (1 + q2 * ((1 - t2 + eta2) / 6 + q2 * (5 - 18 * t2 + t4 + (14 - 58 * t2) * eta2) / 120));
  if (!std::isfinite(Nord + Ost)) return -1;
  Easting = Ost;
  Northing = Nord;
  return 0;
}

int UTMRueckwaerts(double Easting, double Northing, std::int32_t Zone, double& Laenge, double& Breite) {
  // Deliberate: this direction takes its eccentricity from a fixed value and not from the semi-axes of the
  // way there, while c comes from them.
  constexpr double e2Erste = 0.0066943800205440775, e2 = e2Erste / (1 - e2Erste);
  static constexpr double A0 = UtmA0(Utm.c, e2);
  static constexpr Sinusreihe Reihe = UtmFusspunktreihe(e2);
  const Fusspunktwerte F(Reihe, Northing / UtmMassstab / A0);
  const auto [t, t2, eta2, V2, V] = Breitenwerte(e2, F.Sinus, F.Kosinus);
  const double q = (Easting - 500000) / UtmMassstab / Utm.c * V, q2 = q * q, t4 = t2 * t2;  // y / N
  const double Phi =
      F.Phi +
      t * q2 *
          (-V2 / 2 + q2 * ((5 + 3 * t2 + 6 * eta2 * (1 - t2)) / 24 - q2 * (61 + 90 * t2 + 45 * t4) / 720));
  const double Delta =
      q / F.Kosinus * (1 + q2 * (-(1 + 2 * t2 + eta2) / 6 + q2 * (5 + 28 * t2 + 24 * t4) / 120));
  const double LaengeGrad = 6.0 * (Zone - 30.0) - 3 + Delta * GradJeRad, BreiteGrad = Phi * GradJeRad;
  if (!std::isfinite(LaengeGrad + BreiteGrad)) return -1;
  Laenge = LaengeGrad;
  Breite = BreiteGrad;
  return 0;
}

int GradInGMS(double Wert, std::int32_t& Grad, std::int32_t& Minuten, double& Sekunden) {
  constexpr double Naht = 1e-9;  // seconds
  std::int32_t g = 0;
  const double Betrag = std::fabs(Wert);
  if (!GanzerTeil(Betrag, g)) return -1;
  const double Rest = Betrag - g;
  auto m = static_cast<std::int32_t>(Rest * 60 + Naht / 60);
  Sekunden = std::max(0.0, Rest * 3600 - m * 60);
  if (m == 60) {
    m = 0;
    ++g;
  }
  Minuten = m;
  Grad = Wert < 0 ? -g : g;
  return Wert < 0 && g == 0 && (m > 0 || Sekunden > 0) ? 1 : 0;
}

}  // namespace tavorena
