#include <cmath>

#include <tavorena/calc/Einschnitte.h>

namespace tavorena {
namespace {

/// Bearing A -> B where the zero vector counts as due east.
double Nordwinkel(Lage A, Lage B) { return PolarWinkelGon(B.RW - A.RW, B.HW - A.HW); }

/// Cut of the lines P1 + bearing v1 and P2 + bearing v2, as a vector from P1.
/// By sines and cosines, which equals the form with tangents T1 and T2 but keeps a line due east or west on
/// its place: there the tangent is 1e16 and the point would be some 100 m off.
/// @return false where T1 = T2: the bearings agree modulo 200 gon within the rounding of their last digits
bool Strahlenschnitt(Lage P1, double v1, Lage P2, double v2, Lage& Vektor) {
  const double Determinante = SinGon(v1 - v2);
  if (std::fabs(Determinante) <= 1e-14) return false;
  const double s = ((P2.RW - P1.RW) * CosGon(v2) - (P2.HW - P1.HW) * SinGon(v2)) / Determinante;
  Vektor = {s * SinGon(v1), s * CosGon(v1)};
  return true;
}

double NeupunktRichtung(const VorwStation& Station) {
  double v = Nordwinkel(Station.Stand, Station.Fern) + Station.rN - Station.rF;
  GonReduzieren(v);
  return v;
}

double HoeheVon(const VorwStation& Station, Lage Neu) {
  if (Station.z == 0 || Station.z == 100 || Station.z == 300) return Station.Hoehe;
  return Station.Hoehe + Abstand(Station.Stand, Neu) / TanGon(Station.z);
}

/// Angle between two readings [gon]; 0 also where 400 differs from 0 by rounding only (12.3456 and 412.3456).
double Winkel(double r1, double r2) {
  double w = r2 - r1;
  GonReduzieren(w);
  return w < 1e-10 || w > 400 - 1e-10 ? 0 : w;
}

/// Cotangent; exactly 0 at 100 and 300 gon.
double Kotangens(double Gon) { return Gon == 100 || Gon == 300 ? 0 : 1 / TanGon(Gon); }

}  // namespace

int VorwaertsschnittEbene(const VorwStation& A, const VorwStation& B, Vorwaertsschnittwerte& Werte) {
  const double vA = NeupunktRichtung(A), vB = NeupunktRichtung(B);
  double Gamma = vA - vB;
  if (Gamma < 0) Gamma += 400;
  if (Gamma > 200) Gamma -= 200;
  Lage Vektor;
  if (!Strahlenschnitt(A.Stand, vA, B.Stand, vB, Vektor)) return -1;
  Werte = {A.Stand.RW + Vektor.RW, A.Stand.HW + Vektor.HW, vA, vB, Gamma, 0, 0};
  return 0;
}

void VorwaertsschnittHoehe(const VorwStation& A, const VorwStation& B, Vorwaertsschnittwerte& Werte) {
  const Lage Neu{Werte.NeuRechts, Werte.NeuHoch};
  const double HoeheA = HoeheVon(A, Neu), HoeheB = HoeheVon(B, Neu);
  Werte.VorwNeuHoehe = (HoeheB + HoeheA) / 2;
  Werte.VorwParallaxe = HoeheB - HoeheA;
}

int RueckwaertsschnittCollins(const RueckPunkt& P1, const RueckPunkt& P2, const RueckPunkt& P3,
                              Rueckwaertsschnittwerte& Werte, RueckTau Art) {
  const double Alpha = Winkel(P1.r, P2.r), Beta = Winkel(P2.r, P3.r);
  if (Alpha == 0 || Beta == 0) return -1;
  const double t13 = Nordwinkel(P1.Ort, P3.Ort);
  // The rays P1-Q and P3-Q are the bearings Q-P1 and Q-P3 but for 200 gon, which the tangents below do not
  // see. Taken from Q they would be lost where Q falls on P1 or P3 (Alpha or Beta 200 gon).
  const double t1 = t13 - Beta, t3 = 200 + Alpha + t13;
  Lage Q, Neu;  // seen from P1, so that a far Q keeps its digits
  if (!Strahlenschnitt(P1.Ort, t1, P3.Ort, t3, Q)) return -3;
  const double t2 = Nordwinkel(Q, {P2.Ort.RW - P1.Ort.RW, P2.Ort.HW - P1.Ort.HW});
  const double a = t1 - t2, b = t2 - t3;
  if (!Strahlenschnitt(P1.Ort, b + t13, P3.Ort, (200 + t13) - a, Neu)) return -3;
  // Deliberate: the worksheet's τ1 starts with the opposite bearing, and neither is reduced.
  const double t12 = Art == RueckTau::Blatt ? Nordwinkel(P1.Ort, P2.Ort) : Nordwinkel(P2.Ort, P1.Ort);
  const double Tau1 = t12 - Nordwinkel(P2.Ort, P3.Ort);
  Werte = {P1.Ort.RW + Neu.RW, P1.Ort.HW + Neu.HW, Alpha, Beta, Tau1, Alpha + Beta + Tau1 - 200};
  return 0;
}

int RueckwaertsschnittCassini(const RueckPunkt& P1, const RueckPunkt& P2, const RueckPunkt& P3,
                              Rueckwaertsschnittwerte& Werte) {
  const double Alpha = Winkel(P1.r, P2.r), Beta = Winkel(P2.r, P3.r);
  if (Alpha == 0 || Beta == 0) return -1;
  const double dR1 = P1.Ort.RW - P2.Ort.RW, dH1 = P1.Ort.HW - P2.Ort.HW;
  const double dR3 = P3.Ort.RW - P2.Ort.RW, dH3 = P3.Ort.HW - P2.Ort.HW;
  const double c1 = Kotangens(Alpha), c3 = Kotangens(Beta);
  // Ends of the diameters through P2 of the circles P1-P2-N and P2-P3-N; N is the foot of P2 on their line.
  const double a1 = dR1 - dH1 * c1, b1 = dH1 + dR1 * c1, a3 = dR3 + dH3 * c3, b3 = dH3 - dR3 * c3;
  const double u = a1 - a3, v = b1 - b3;
  // Both ends on one spot, but for the last digit of coordinates in millions: the new point is anywhere on
  // the circle, and b1 - b3 is 0 for a true circle.
  if (v == 0 || std::hypot(u, v) <= 1e-10 * (std::hypot(a1, b1) + std::hypot(a3, b3))) return -2;
  // m = u / v has no bounds near v = 0, and a3 - m b3 loses all digits where a diameter has none (200 gon);
  // so R - R2 = Lot v and H - H2 = -Lot u with Lot = (a3 v - u b3) / (u² + v²), which is the same.
  const double Lot = (a3 * b1 - a1 * b3) / (u * u + v * v);
  double Tau1 = Nordwinkel(P1.Ort, P2.Ort) - Nordwinkel(P3.Ort, P2.Ort);
  double Tau2 = PolarWinkelGon(a1, b1) - PolarWinkelGon(a3, b3);
  GonReduzieren(Tau1);
  GonReduzieren(Tau2);
  Werte = {P2.Ort.RW + Lot * v, P2.Ort.HW - Lot * u, Alpha, Beta, Tau1, Tau2};
  return 0;
}

}  // namespace tavorena
