#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/calc/Schnitte.h>
#include <tavorena/calc/TVBerechnungsmodul.h>

namespace tavorena {
namespace {

constexpr double KeinWinkel = -9999;  // mark of the arc cosines
constexpr double Prüfgrenze = 0.001;  // of the discriminant [m2], below which circle and line touch
// Crossing angle [degrees] below which they touch; the protocol marks one below 0.5 gon: both are meant.
constexpr double Berührgrad = 0.5;

/// Builds a line by a digit of a kind. @return 0; -1 for coinciding points or another digit
int Bauen(int Ziffer, const Schnittgerade& S, GebauteGerade& G) {
  switch (Ziffer) {
    case 1:
      G = {S.A, S.B, S.B.RW - S.A.RW, S.B.HW - S.A.HW};
      return S.A == S.B ? -1 : 0;
    case 2:
      return GeradeParallel(S.A, S.B, S.Parallelabstand, G);
    case 3:
      return GeradeParallelPunkt(S.A, S.B, S.Punkt, G);
    case 4:
      return GeradeSenkrecht(S.A, S.B, S.Punkt, G);
    default:
      return -1;
  }
}

/// 100000 Int(M / 100000) if all three values exceed 100000, otherwise 0.
double Versatz(double M, double P1, double P2) {
  constexpr double Einheit = 100000;
  return M > Einheit && P1 > Einheit && P2 > Einheit ? Einheit * std::floor(M / Einheit) : 0;
}

}  // namespace

int GeradeParallel(Lage A, Lage B, double Abstand, GebauteGerade& G) {
  const double dR = B.RW - A.RW, dH = B.HW - A.HW, s = std::sqrt(dH * dH + dR * dR);
  if (s == 0) return -1;
  const double nR = Abstand * (dH / s), nH = Abstand * (-dR / s);  // the unit normal points to the right
  G = {{A.RW + nR, A.HW + nH}, {B.RW + nR, B.HW + nH}, dR, dH};
  return 0;
}

int GeradeParallelPunkt(Lage A, Lage B, Lage P, GebauteGerade& G) {
  const double dR = B.RW - A.RW, dH = B.HW - A.HW;
  G = {P, {P.RW + dR, P.HW + dH}, dR, dH};  // deliberate: written even where it fails
  return A == B ? -1 : 0;
}

int GeradeSenkrecht(Lage A, Lage B, Lage P, GebauteGerade& G) {
  if (A == B) return -1;
  const double dR = B.RW - A.RW, dH = B.HW - A.HW;
  G = {P, {P.RW + dH, P.HW - dR}, dH, -dR};
  return 0;
}

int SchnittGeraden(Lage P1, double a1, double b1, Lage P3, double a2, double b2, Lage& S) {
  const double n = a2 * b1 - b2 * a1;
  if (n == 0) return -1;
  const double t = (b2 * (P1.RW - P3.RW) + a2 * (P3.HW - P1.HW)) / n;
  S = {P1.RW + a1 * t, P1.HW + b1 * t};
  return 0;
}

double Schnittwinkel(const GebauteGerade& G1, const GebauteGerade& G2) {
  double Delta = AzimutGrad({}, {G2.dR, G2.dH}) - AzimutGrad({}, {G1.dR, G1.dH});
  GradReduzieren(Delta);
  if (Delta > 270) return 360 - Delta;
  if (Delta > 180) return Delta - 180;
  return Delta > 90 ? 180 - Delta : Delta;
}

int SchnittGeradeGeradeBerechnung(int Art, const Schnittgerade& G1, const Schnittgerade& G2, Lage& S,
                                  double& Winkel) {
  if (Art <= 10 || Art >= 50) return -1;
  GebauteGerade L1, L2;
  if (Bauen(Art / 10, G1, L1) < 0 || Bauen(Art % 10, G2, L2) < 0) return -2;
  if (SchnittGeraden(L1.A, L1.dR, L1.dH, L2.A, L2.dR, L2.dH, S) < 0) return 1;
  Winkel = Schnittwinkel(L1, L2);
  return 0;
}

// With slope m, intercept c and the centre as origin the quadratic in Rechts has a = 1 + m^2, b = 2 m c and
// k = c^2 - r^2. For steep lines its coefficients swallow the point (15 mm at slope 1000), so the same values
// are taken from the foot F and the distance h = |c| / sqrt(a) of the centre: the discriminant is
// 4 a (r^2 - h^2), a shift does not change it, and the two values lie at F -+ sqrt(r^2 - h^2) on the line.
int SchnittKreisGeradeKern(Lage M, double r, const GebauteGerade& G, KreisGeradeSchnitt& Werte) {
  const double s = std::sqrt(G.dH * G.dH + G.dR * G.dR);
  if (!(s > 0)) return -1;
  // The offset in multiples of 100000 only where centre and both points lie above, on purpose.
  const Lage V{Versatz(M.RW, G.A.RW, G.B.RW), Versatz(M.HW, G.A.HW, G.B.HW)};
  const Lage m{M.RW - V.RW, M.HW - V.HW}, p{G.A.RW - V.RW, G.A.HW - V.HW};
  const bool Steht = G.dR == 0;
  const bool Umgekehrt = Steht ? G.dH < 0 : G.dR < 0;
  const double eR = (Umgekehrt ? -G.dR : G.dR) / s, eH = (Umgekehrt ? -G.dH : G.dH) / s;
  const double Seite = (p.RW - m.RW) * eH - (p.HW - m.HW) * eR, h = std::fabs(Seite);
  // The point of the line at w [m] from the foot; w counts towards growing Rechts, on a north line Hoch.
  const auto Punkt = [&](double w) {
    return Lage{m.RW + (Seite * eH + w * eR) + V.RW, m.HW + (w * eH - Seite * eR) + V.HW};
  };
  Werte.S1 = Werte.S2 = {};
  Werte.Fusspunkt = Punkt(0);
  Werte.Lotlaenge = h;
  const double Rest = (r - h) * (r + h), D = 4 * Rest / (Steht ? 1 : eR * eR);
  if (std::fabs(D) < Prüfgrenze) {
    Werte.S1 = Werte.S2 = Werte.Fusspunkt;
    if (Steht) Werte.S2.RW = 0;  // deliberate: this value is not set for a line north or south
    return 1;
  }
  if (D < 0) return 0;  // both solutions 0, without the offset
  const double w = std::sqrt(std::max(Rest, 0.0));
  Werte.S1 = Punkt(-w);
  Werte.S2 = Punkt(w);
  return 2;
}

int SchnittKreisGeradeBerechnung(int Art, Lage M, double r, const Schnittgerade& G,
                                 KreisGeradeSchnitt& Werte) {
  if (Art < 1 || Art >= 50 || !(r > 0)) return -1;
  GebauteGerade L;
  if (Bauen(Art % 10, G, L) < 0) return -2;
  const int Anzahl = SchnittKreisGeradeKern(M, r, L, Werte);
  if (Anzahl < 0) {
    Werte.Winkel = 0;
    return -1;
  }
  if (Anzahl == 0) {
    Werte.Winkel = KeinWinkel;  // h / r is above 1 but may round to 1
    return 0;
  }
  if (Anzahl == 2) {  // a single point stays first, its double may lack Rechts
    double v = Richtung(Werte.S1, M) - Richtung({}, {L.dR, L.dH});
    GonReduzieren(v);
    if (v < 100 || v > 300) std::swap(Werte.S1, Werte.S2);
  }
  // There is a point, so an h above r is rounding and counts as r.
  Werte.Winkel = ArcusKosinusGrad(std::min(Werte.Lotlaenge / r, 1.0));
  if (Werte.Winkel >= Berührgrad) return Anzahl;
  Werte.S1 = Werte.Fusspunkt;
  return 3;
}

double ArcusKosinus(double x) {
  if (std::fabs(x) > 1) return KeinWinkel;
  if (x == 0) return Pi() / 2;
  const double Winkel = std::atan(std::sqrt(1 / (x * x) - 1));
  return x < 0 ? Pi() - Winkel : Winkel;
}

double ArcusKosinusGrad(double x) {
  const double Winkel = ArcusKosinus(x);
  return Winkel == KeinWinkel ? KeinWinkel : Winkel * 360 / (2 * Pi());
}

int SchnittKreisKreisBerechnung(Lage M1, double r1, Lage M2, double r2, Lage& S1, Lage& S2, double& Winkel) {
  r1 = std::fabs(r1);
  r2 = std::fabs(r2);
  const double Alpha = PolarWinkel(M2.RW - M1.RW, M2.HW - M1.HW), e = Abstand(M1, M2);
  if (e == 0 || r1 == 0 || r2 == 0) return -2;
  if (e > r1 + r2) return 0;
  // One circle inside the other: the cosine of beta below would leave -1 to 1. Told by the lengths, because
  // of touching circles the cosine may do so by rounding.
  if (r1 > e + r2 || r2 > e + r1) return 0;
  const auto Kosinus = [](double x) { return std::clamp(x, -1.0, 1.0); };
  // (r1 - r2)(r1 + r2) and its like for the differences of squares: large radii over a short base keep
  // digits.
  const double Beta = ArcusKosinus(Kosinus((e * e + (r1 - r2) * (r1 + r2)) / (2 * r1 * e)));
  Winkel = ArcusKosinusGrad(Kosinus((r1 * r1 + r2 * r2 - e * e) / (2 * r1 * r2)));
  S1 = {M1.RW + r1 * std::sin(Alpha + Beta), M1.HW + r1 * std::cos(Alpha + Beta)};
  S2 = {M1.RW + r1 * std::sin(Alpha - Beta), M1.HW + r1 * std::cos(Alpha - Beta)};
  double Linie = 0, Seitwaerts = 0;
  if (Linienelemente(M1, M2, S1, Linie, Seitwaerts) < 0 || Seitwaerts <= 0) std::swap(S1, S2);
  return 2;
}

int SchnittKreisKreisSehne(Lage A, Lage B, double Radius, int Seite, Lage& S1, Lage& S2) {
  double Winkel = 0;
  // A touching pair comes as two equal points, so a single solution needs no case of its own.
  if (SchnittKreisKreisBerechnung(A, Radius, B, Radius, S1, S2, Winkel) <= 0) return -1;
  if (Seite < 0) std::swap(S1, S2);  // the intersection has the right side first
  return 0;
}

int KreisMittelpunktBerechnung(Lage P1, Lage P2, Lage P3, Kreismittelpunkt& Kreis) {
  const double c1R = P2.RW - P1.RW, c1H = P2.HW - P1.HW, c2R = P3.RW - P2.RW, c2H = P3.HW - P2.HW;
  if (P1 == P2 || P2 == P3) return -1;
  // Relative to P2: in grid coordinates the chords' midpoints would round, and flat arcs magnify that.
  Lage Z;
  if (SchnittGeraden({-c1R / 2, -c1H / 2}, c1H, -c1R, {c2R / 2, c2H / 2}, c2H, -c2R, Z) < 0) return -1;
  Kreis.WinkelGon = (PolarWinkel(c2R, c2H) - PolarWinkel(c1R, c1H)) * 200 / Pi();
  Kreis.M = {P2.RW + Z.RW, P2.HW + Z.HW};
  Kreis.Radien = {Abstand(Z, {-c1R, -c1H}), Abstand(Z, {}), Abstand(Z, {c2R, c2H})};
  return 0;
}

}  // namespace tavorena
