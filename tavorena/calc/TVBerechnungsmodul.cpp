#include <cmath>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Winkel.h>

namespace tavorena {
double AbweichungZulaessig(double s) { return 0.008 * std::sqrt(s) + 0.0003 * s + 0.05; }

int Entfernungskontrolle(Lage Anf, Lage End, double Gemessen, Anschlusswerte& Werte) {
  Werte.EntfGerechnet = Abstand(Anf, End);
  if (Gemessen == 0) return -1;  // deliberate: S alone is handed out with a failing result
  Werte.Abweichung = Werte.EntfGerechnet - Gemessen;
  Werte.AbweichungZulaessig = AbweichungZulaessig(Werte.EntfGerechnet);
  return 0;
}

int LinienelementeAnschluss(Lage Anf, Lage End, double Anlegemass, double Endmass, Anschlusswerte& Werte) {
  const double s = Abstand(Anf, End), Gemessen = Endmass - Anlegemass;
  Werte = {s, AbweichungZulaessig(s), 0, 1};
  if (Endmass == 0) return 1;
  Werte.Abweichung = s - Gemessen;
  if (s == 0) return -1;
  Werte.Massstab = Gemessen / s;
  return 0;
}

int Linienelemente(Lage Anf, Lage End, Lage Punkt, double& Linie, double& Seitwaerts) {
  const double s = Abstand(Anf, End);
  if (s <= 0) return -1;
  const double a = (End.HW - Anf.HW) / s, o = -(End.RW - Anf.RW) / s;  // cosine, negative sine of the bearing
  const double dR = Punkt.RW - Anf.RW, dH = Punkt.HW - Anf.HW;
  Linie = dH * a - dR * o;
  Seitwaerts = dR * a + dH * o;
  return 0;
}

int Fusspunkt(Lage Anf, Lage End, Lage Punkt, Lage& Fuss) {
  double Linie = 0, Seitwaerts = 0;
  if (Linienelemente(Anf, End, Punkt, Linie, Seitwaerts) < 0) return -1;
  const double s = Abstand(Anf, End);
  Fuss = {Anf.RW + Linie * (End.RW - Anf.RW) / s, Anf.HW + Linie * (End.HW - Anf.HW) / s};
  return 0;
}

int PolarelementeAnschluss(Lage Anf, Lage End, double Gemessen, double& Anschlussrichtung,
                           double& Nordrichtung, Anschlusswerte& Werte) {
  const double s = Abstand(Anf, End);
  Anschlussrichtung = RadNachGonVoll(WinkelRad(End.HW - Anf.HW, End.RW - Anf.RW));
  Nordrichtung = Richtung(Anf, End);
  Werte = {s, AbweichungZulaessig(s), 0, 1};
  if (s == 0) return -1;
  if (Gemessen == 0) return 1;
  Werte.Abweichung = s - Gemessen;
  Werte.Massstab = Gemessen / s;
  return 0;
}

int Polarelemente(Lage Anf, Lage End, Lage Punkt, double Orientierung, double& RichtungPunkt,
                  double& Entfernung, double& Nordrichtung) {
  Nordrichtung = Richtung(Anf, End);
  if (Abstand(Anf, End) == 0) return -1;
  RichtungPunkt = Richtung(Anf, Punkt) + Orientierung - Nordrichtung;
  GonReduzieren(RichtungPunkt);
  Entfernung = Abstand(Anf, Punkt);
  return 0;
}

}  // namespace tavorena
