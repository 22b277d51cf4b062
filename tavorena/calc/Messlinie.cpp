#include <tavorena/calc/Messlinie.h>

namespace tavorena {

int MesslinieBerechnungAnschluss(Lage Anf, Lage End, double Anlegemass, double Endmass,
                                 MesslinieAnschlusswerte& Werte) {
  const double dR = End.RW - Anf.RW, dH = End.HW - Anf.HW, S = Abstand(Anf, End);
  const double Gemessen = Endmass != 0 ? Endmass - Anlegemass : S;
  const bool Teilbar = Gemessen != 0;
  Werte.OhneEndmass = Endmass == 0;
  Werte.EntfGerechnet = S;
  Werte.Abweichung = S - Gemessen;
  Werte.Massstab = Teilbar && !Werte.OhneEndmass ? S / Gemessen : 1;
  Werte.AbweichungZulaessig = AbweichungZulaessig(S);
  if (Teilbar) {
    // Deliberate: over the measured length, so that the factors carry the scale.
    Werte.RichtungsfaktorRechts = dR / Gemessen;
    Werte.RichtungsfaktorHoch = dH / Gemessen;
  }
  if (Werte.OhneEndmass) return 1;
  return Teilbar ? 0 : -1;
}

Lage MesslinieBerechnungPunkt(Lage Anf, double Anlegemass, const MesslinieAnschlusswerte& Anschluss,
                              double Linie, double Seitwaerts) {
  const double fR = Anschluss.RichtungsfaktorRechts, fH = Anschluss.RichtungsfaktorHoch;
  return {Anf.RW + (Linie - Anlegemass) * fR + Seitwaerts * fH,
          Anf.HW + (Linie - Anlegemass) * fH - Seitwaerts * fR};
}

int PolarBerechnungAnschluss(Lage Anf, Lage End, double Gemessen, PolarAnschlusswerte& Werte) {
  const double S = Abstand(Anf, End);
  Werte.NordrichtungGon = Richtung(Anf, End);
  Werte.OhneStrecke = Gemessen == 0;
  Werte.EntfGerechnet = S;
  Werte.Abweichung = Werte.OhneStrecke ? 0 : S - Gemessen;
  Werte.Massstab = Werte.OhneStrecke ? 1 : S / Gemessen;
  Werte.AbweichungZulaessig = AbweichungZulaessig(S);
  return Werte.OhneStrecke ? 1 : 0;
}

int PolarBerechnungPunkt(Lage Anf, Lage End, double Richtung, double Entfernung, double Seitwaerts,
                         double Orientierung, double Massstab, Lage& Neu) {
  if (Abstand(Anf, End) == 0) return -1;
  const double r = Richtung + AzimutGrad(Anf, End) - Orientierung;  // in gon: bearing + reading - orientation
  const double s = Entfernung * Massstab, q = Seitwaerts * Massstab;
  Neu = {Anf.RW + CosGrad(r) * s + SinGrad(r) * q, Anf.HW + SinGrad(r) * s - CosGrad(r) * q};
  return 0;
}

double PolarhoeheBerechnen(double HoeheAnf, double Instrument, double VertikalGon, double Entfernung,
                           double Ziel) {
  if (VertikalGon == 0) return 0;  // deliberate: no angle, no height, whatever the height of the station
  return HoeheAnf + Instrument + CosGon(VertikalGon) * Entfernung - Ziel;
}

}  // namespace tavorena
