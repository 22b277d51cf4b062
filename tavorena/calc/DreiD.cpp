#include <cmath>

#include <tavorena/calc/DreiD.h>

namespace tavorena {
namespace {

struct Vektor {
  double R, H, Z;
};

Vektor Von(const Raumlage& A, const Raumlage& B) {
  return {B.Ort.RW - A.Ort.RW, B.Ort.HW - A.Ort.HW, B.Hoehe - A.Hoehe};
}
Raumlage Weiter(const Raumlage& A, const Vektor& v, double t) {
  return {{A.Ort.RW + t * v.R, A.Ort.HW + t * v.H}, A.Hoehe + t * v.Z};
}
double Skalar(const Vektor& u, const Vektor& v) { return u.R * v.R + u.H * v.H + u.Z * v.Z; }
double Betrag(const Vektor& v) { return std::hypot(v.R, v.H, v.Z); }
Vektor Kreuz(const Vektor& u, const Vektor& v) {
  return {u.H * v.Z - u.Z * v.H, u.Z * v.R - u.R * v.Z, u.R * v.H - u.H * v.R};
}

}  // namespace

int RaumstreckeBerechnung(const Raumlage& A, const Raumlage& B, Raumstreckenwerte& Werte) {
  const Vektor v = Von(A, B);
  if (Betrag(v) <= 0) return -1;
  const double Eben = std::hypot(v.R, v.H);
  Werte = {Betrag(v), Eben, v.Z, Richtung(A.Ort, B.Ort), WinkelGon(Eben, v.Z)};
  return 0;
}

Raumlage Raumschwerpunkt(std::span<const Raumlage> Orte) {
  if (Orte.empty()) return {};
  Vektor Summe{0, 0, 0};  // from the first place, so that large coordinates keep their digits
  for (const Raumlage& P : Orte) {
    const Vektor v = Von(Orte.front(), P);
    Summe = {Summe.R + v.R, Summe.H + v.H, Summe.Z + v.Z};
  }
  return Weiter(Orte.front(), Summe, 1 / static_cast<double>(Orte.size()));
}

int RaumlotBerechnung(const Raumlage& A, const Raumlage& B, const Raumlage& P, Raumlage& Fuss,
                      double& Lotabstand) {
  const Vektor v = Von(A, B), p = Von(A, P);
  const double Laenge = Betrag(v);
  if (Laenge <= 0) return -1;
  Fuss = Weiter(A, v, Skalar(v, p) / Laenge / Laenge);
  Lotabstand = Betrag(Kreuz(v, p)) / Laenge;
  return 0;
}

int KanalmessstabBerechnung(const Raumlage& A, const Raumlage& B, double Abstand, Raumlage& Neu) {
  const Vektor v = Von(A, B);
  if (Betrag(v) <= 0) return -1;
  Neu = Weiter(B, v, Abstand / Betrag(v));
  return 0;
}

int RaumwinkelBerechnung(const Raumlage& A, const Raumlage& S, const Raumlage& B, double& Raumwinkel,
                         double& Horizontalwinkel) {
  const Vektor u = Von(S, A), v = Von(S, B);
  if (Betrag(u) <= 0 || Betrag(v) <= 0) return -1;
  // By both products: the cosine alone loses small angles.
  Raumwinkel = std::atan2(Betrag(Kreuz(u, v)), Skalar(u, v)) * 200 / Pi();
  Horizontalwinkel = 0;
  if (std::hypot(u.R, u.H) > 0 && std::hypot(v.R, v.H) > 0) {
    Horizontalwinkel = Richtung(S.Ort, B.Ort) - Richtung(S.Ort, A.Ort);
    GonReduzieren(Horizontalwinkel);
  }
  return 0;
}

}  // namespace tavorena
