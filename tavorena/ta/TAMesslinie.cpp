#include <tavorena/calc/Messlinie.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {

using ta::Ausgeben;
using ta::Endlich;
using ta::Punkte;

namespace {

enmResult Abbilden(int Ergebnis) {
  return Ergebnis < 0 ? enmResult::Fehler_AnfangsUndEndpunktGleich : enmResult::ok;
}

}  // namespace

enmResult TA::MesslinieAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                 double& dEntfGerechnet, double dAnlegemass, double dEndmass,
                                 double* dAbweichungZulaessig, double* dAbweichung, double* dMassstab) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dAnlegemass, dEndmass)) return enmResult::Fehler_Allgemein;
  MesslinieAnschlusswerte Werte;
  const int Ergebnis =
      MesslinieBerechnungAnschluss({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, dAnlegemass, dEndmass, Werte);
  dEntfGerechnet = Werte.EntfGerechnet;
  Ausgeben(dAbweichungZulaessig, Werte.AbweichungZulaessig);
  Ausgeben(dAbweichung, Werte.Abweichung);
  Ausgeben(dMassstab, Werte.Massstab);
  return Abbilden(Ergebnis);
}

enmResult TA::MesslinieAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                    double dAnlegemass, double dEndmass, double* dAbweichungZulaessig,
                                    double* dAbweichung, double* dMassstab) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return MesslinieAnschluss(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dEntfGerechnet, dAnlegemass, dEndmass,
                            dAbweichungZulaessig, dAbweichung, dMassstab);
}

enmResult TA::Messlinie(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dLinie,
                        double dSeitwaerts, double& dNeupunktRw, double& dNeupunktHw, double dAnlegemass,
                        double dEndmass) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dLinie, dSeitwaerts, dAnlegemass, dEndmass))
    return enmResult::Fehler_Allgemein;
  const Lage Anf{dAnfRW, dAnfHW};
  MesslinieAnschlusswerte Werte;
  const int Ergebnis = MesslinieBerechnungAnschluss(Anf, {dEndRW, dEndHW}, dAnlegemass, dEndmass, Werte);
  // Deliberate: the point is computed after a failed connection too; its direction factors are zero then.
  const Lage Neu = MesslinieBerechnungPunkt(Anf, dAnlegemass, Werte, dLinie, dSeitwaerts);
  dNeupunktRw = Neu.RW;
  dNeupunktHw = Neu.HW;
  return Abbilden(Ergebnis);
}

enmResult TA::MessliniePnr(const Wert& vPnr1, const Wert& vPnr2, double dLinie, double dSeitwaerts,
                           double& dNeupunktRw, double& dNeupunktHw, double dAnlegemass, double dEndmass) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return Messlinie(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dLinie, dSeitwaerts, dNeupunktRw, dNeupunktHw,
                   dAnlegemass, dEndmass);
}

enmResult TA::PolarpunktAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                  double& dStreckeGerechnet, double dStreckeGemessen,
                                  double* dNordrichtungGon, double* dAbweichungZulaessig, double* dAbweichung,
                                  double* dMassstab) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dStreckeGemessen)) return enmResult::Fehler_Allgemein;
  PolarAnschlusswerte Werte;
  const int Ergebnis = PolarBerechnungAnschluss({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, dStreckeGemessen, Werte);
  dStreckeGerechnet = Werte.EntfGerechnet;
  Ausgeben(dNordrichtungGon, Werte.NordrichtungGon);
  Ausgeben(dAbweichungZulaessig, Werte.AbweichungZulaessig);
  Ausgeben(dAbweichung, Werte.Abweichung);
  Ausgeben(dMassstab, Werte.Massstab);
  return Abbilden(Ergebnis);
}

enmResult TA::PolarpunktAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dStreckeGerechnet,
                                     double dStreckeGemessen, double* dNordrichtungGon,
                                     double* dAbweichungZulaessig, double* dAbweichung, double* dMassstab) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return PolarpunktAnschluss(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dStreckeGerechnet, dStreckeGemessen,
                             dNordrichtungGon, dAbweichungZulaessig, dAbweichung, dMassstab);
}

enmResult TA::Polarpunkt(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dWinkelGon,
                         double dStrecke, double& dNeupunktRw, double& dNeupunktHw, double dOrientierungGon,
                         double dMassstab) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dWinkelGon, dStrecke, dOrientierungGon, dMassstab))
    return enmResult::Fehler_Allgemein;
  Lage Neu;
  if (PolarBerechnungPunkt({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, GonNachGrad(dWinkelGon), dStrecke, 0,
                           GonNachGrad(dOrientierungGon), dMassstab, Neu) < 0)
    return enmResult::Fehler_AnfangsUndEndpunktGleich;
  dNeupunktRw = Neu.RW;
  dNeupunktHw = Neu.HW;
  return enmResult::ok;
}

enmResult TA::PolarpunktPnr(const Wert& vPnr1, const Wert& vPnr2, double dWinkelGon, double dStrecke,
                            double& dNeupunktRw, double& dNeupunktHw, double dOrientierungGon,
                            double dMassstab) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return Polarpunkt(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dWinkelGon, dStrecke, dNeupunktRw, dNeupunktHw,
                    dOrientierungGon, dMassstab);
}

}  // namespace tavorena
