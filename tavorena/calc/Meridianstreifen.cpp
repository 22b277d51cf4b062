#include <cmath>
#include <cstddef>

#include <tavorena/calc/Meridianstreifen.h>

namespace tavorena {
namespace {

// The series of Geokonvertierung.h compute up to here from the central meridian [degrees].
double Reihengrenze(Netzart Art) { return Art == Netzart::GK ? 2 : 3; }

double Massstab(Netzart Art) { return Art == Netzart::GK ? 1 : UtmMassstab; }

double Versatz(Netzart Art, std::int32_t Nummer) { return 500000 + (Art == Netzart::GK ? Nummer * 1e6 : 0); }

// A sum over sin 2jx cosh 2jy and cos 2jx sinh 2jy, by the recurrence of the complex sine.
struct Ebenenpunkt {
  double x, y;
};

Ebenenpunkt Doppelreihe(const std::array<double, 6>& k, Ebenenpunkt P) {
  const double s = std::sin(2 * P.x), c = std::cos(2 * P.x), sh = std::sinh(2 * P.y), ch = std::cosh(2 * P.y);
  const double ar = 2 * c * ch, ai = -2 * s * sh;  // 2 cos 2(x + iy)
  double r1 = 0, i1 = 0, r2 = 0, i2 = 0;           // Clenshaw
  for (std::size_t j = k.size(); j-- > 0;) {
    const double r = ar * r1 - ai * i1 - r2 + k[j], i = ar * i1 + ai * r1 - i2;
    r2 = r1;
    i2 = i1;
    r1 = r;
    i1 = i;
  }
  const double sr = s * ch, si = c * sh;  // sin 2(x + iy)
  return {r1 * sr - i1 * si, r1 * si + i1 * sr};
}

// Tangent of the conformal latitude from that of the latitude.
double Konform(double e, double t) {
  const double w = std::hypot(1.0, t), s = std::sinh(e * std::atanh(e * t / w));
  return t * std::hypot(1.0, s) - s * w;
}

// The way back by Newton (Karney, (19) to (21)); two steps are enough on the earth.
double Ellipsoidisch(double e, double k) {
  const double f2 = 1 - e * e;
  double t = k / f2;
  for (int i = 0; i < 5; ++i) {
    const double ki = Konform(e, t);
    const double d = (k - ki) / std::hypot(1.0, ki) * (1 + f2 * t * t) / (f2 * std::hypot(1.0, t));
    t += d;
    if (!(std::fabs(d) > 1e-15 * (1 + std::fabs(t)))) break;
  }
  return t;
}

void KrügerVorwaerts(const Streifennetz& N, double Delta, double Breite, double& y, double& x) {
  const double t = Konform(N.K.e, std::tan(Breite * RadJeGrad)), c = std::cos(Delta * RadJeGrad);
  const Ebenenpunkt P{std::atan2(t, c), std::asinh(std::sin(Delta * RadJeGrad) / std::hypot(t, c))};
  const Ebenenpunkt D = Doppelreihe(N.K.Hin, P);
  y = N.K.Radius * (P.y + D.y);
  x = N.K.Radius * (P.x + D.x);
}

void KrügerRueckwaerts(const Streifennetz& N, double y, double x, double& Delta, double& Breite) {
  const Ebenenpunkt P{x / N.K.Radius, y / N.K.Radius}, D = Doppelreihe(N.K.Rück, P);
  const double xi = P.x - D.x, sh = std::sinh(P.y - D.y), c = std::cos(xi);
  Delta = std::atan2(sh, c) * GradJeRad;
  Breite = std::atan(Ellipsoidisch(N.K.e, std::sin(xi) / std::hypot(sh, c))) * GradJeRad;
}

bool Gültig(double Delta, double Breite, double Grenze) {
  return std::fabs(Delta) <= Grenze && std::fabs(Breite) <= 90;
}

// A point on the limit comes back out of a file of whole metres.
constexpr double RückGrenze = StreifenGrenze + 1e-5;

}  // namespace

Krügerreihe::Krügerreihe(const Ellipsoid& E) {
  const double n = E.n, n2 = n * n, n3 = n2 * n, n4 = n3 * n, n5 = n4 * n, n6 = n5 * n;
  Radius = E.a / (1 + n) * (1 + n2 / 4 + n4 / 64 + n6 / 256);
  e = std::sqrt(E.e2 / (1 + E.e2));
  Hin = {
      n / 2 - 2 * n2 / 3 + 5 * n3 / 16 + 41 * n4 / 180 - 127 * n5 / 288 + 7891 * n6 / 37800,
      13 * n2 / 48 - 3 * n3 / 5 + 557 * n4 / 1440 + 281 * n5 / 630 - 1983433 * n6 / 1935360,
      61 * n3 / 240 - 103 * n4 / 140 + 15061 * n5 / 26880 + 167603 * n6 / 181440,
      49561 * n4 / 161280 - 179 * n5 / 168 + 6601661 * n6 / 7257600,
      34729 * n5 / 80640 - 3418889 * n6 / 1995840,
      212378941 * n6 / 319334400,
  };
  Rück = {
      n / 2 - 2 * n2 / 3 + 37 * n3 / 96 - n4 / 360 - 81 * n5 / 512 + 96199 * n6 / 604800,
      n2 / 48 + n3 / 15 - 437 * n4 / 1440 + 46 * n5 / 105 - 1118711 * n6 / 3870720,
      17 * n3 / 480 - 37 * n4 / 840 - 209 * n5 / 4480 + 5569 * n6 / 90720,
      4397 * n4 / 161280 - 11 * n5 / 504 - 830251 * n6 / 7257600,
      4583 * n5 / 161280 - 108847 * n6 / 3991680,
      20648693 * n6 / 638668800,
  };
}

Streifennetz::Streifennetz(const Ellipsoid& Körper) : Art(Netzart::GK), E(Körper), K(E) {}

Streifennetz::Streifennetz() : Art(Netzart::UTM), E(Ellipsoide[3]), K(E) {}

double Mittelmeridian(Netzart Art, std::int32_t Nummer) {
  return Art == Netzart::GK ? 3.0 * Nummer : 6.0 * (Nummer - 30.0) - 3;
}

double Mittenabstand(Netzart Art, std::int32_t Nummer, double Laenge) {
  return std::remainder(Laenge - Mittelmeridian(Art, Nummer), 360);
}

int StreifenNachLaenge(Netzart Art, double Laenge, std::int32_t& Nummer) {
  double Delta = 0;
  return Art == Netzart::GK ? GKStreifen(Laenge, Delta, Nummer) : UTMZone(Laenge, Nummer);
}

int StreifenVorwaerts(const Streifennetz& N, std::int32_t Nummer, double Laenge, double Breite,
                      double& Rechts, double& Hoch) {
  const double Delta = Mittenabstand(N.Art, Nummer, Laenge);
  if (!Gültig(Delta, Breite, StreifenGrenze)) return -1;
  double y = 0, x = 0, Konvergenz = 0;
  if (std::fabs(Delta) > Reihengrenze(N.Art)) {
    KrügerVorwaerts(N, Delta, Breite, y, x);
  } else if (N.Art == Netzart::GK) {
    return GKVorwaerts(1, N.E, Nummer, Breite * RadJeGrad, Delta * RadJeGrad, Rechts, Hoch, Konvergenz);
  } else {
    return UTMInZone(Mittelmeridian(N.Art, Nummer) + Delta, Breite, Nummer, Rechts, Hoch);
  }
  if (!std::isfinite(x + y)) return -1;
  Rechts = y * Massstab(N.Art) + Versatz(N.Art, Nummer);
  Hoch = x * Massstab(N.Art);
  return 0;
}

int StreifenRueckwaerts(const Streifennetz& N, std::int32_t Nummer, double Rechts, double Hoch,
                        double& Laenge, double& Breite) {
  const double Mitte = Mittelmeridian(N.Art, Nummer), y = (Rechts - Versatz(N.Art, Nummer)) / Massstab(N.Art);
  // Farther out both series mean nothing; the pole is 10002 km away.
  if (!(std::fabs(y) <= 2e6) || !(std::fabs(Hoch) <= 1.01e7)) return -1;
  double L = 0, B = 0, Konvergenz = 0;
  const int Reihe = N.Art == Netzart::UTM
                        ? UTMRueckwaerts(Rechts, Hoch, Nummer, L, B)
                        : GKRueckwaerts(1, N.E, Rechts - Nummer * 1e6, Hoch, B, L, Konvergenz);
  if (N.Art == Netzart::GK) L += Mitte;
  // A Rechts whose million is another strip's lies 500 km out.
  const bool Fremd = N.Art == Netzart::GK && !(std::fabs(y) < 500000);
  if (Reihe < 0 || Fremd || !(std::fabs(L - Mitte) <= Reihengrenze(N.Art))) {
    KrügerRueckwaerts(N, y, Hoch / Massstab(N.Art), L, B);
    L += Mitte;
  }
  if (!std::isfinite(L + B) || !Gültig(L - Mitte, B, RückGrenze)) return -1;
  Laenge = L;
  Breite = B;
  return 0;
}

}  // namespace tavorena
