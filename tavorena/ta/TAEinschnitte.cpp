#include <tavorena/calc/Einschnitte.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {

using ta::Ausgeben;
using ta::Endlich;
using ta::Punkte;

namespace {

enmResult RueckwaertsschnittAbbilden(int Ergebnis, double TauGon2) {
  if (Ergebnis == -2) return enmResult::Fehler_GefaehrlicherKreis;
  if (Ergebnis == -1) return enmResult::Fehler_ZweiRichtungenGleich;
  if (Ergebnis < 0) return enmResult::Fehler_Allgemein;
  if (TauGon2 >= 20) return enmResult::ok;
  if (TauGon2 >= 5) return enmResult::Hinweis_GefaehrlicherKreis;
  return enmResult::Fehler_GefaehrlicherKreis;  // deliberate: the point is delivered all the same
}

}  // namespace

enmResult TA::Rueckwaertsschnitt(double dPunkt1RW, double dPunkt1HW, double dPunkt1RichtungGon,
                                 double dPunkt2RW, double dPunkt2HW, double dPunkt2RichtungGon,
                                 double dPunkt3RW, double dPunkt3HW, double dPunkt3RichtungGon, bool bCassini,
                                 double& dNeupunktRw, double& dNeupunktHw, double* dTauGon1,
                                 double* dTauGon2) {
  if (!Endlich(dPunkt1RW, dPunkt1HW, dPunkt1RichtungGon, dPunkt2RW, dPunkt2HW, dPunkt2RichtungGon, dPunkt3RW,
               dPunkt3HW, dPunkt3RichtungGon))
    return enmResult::Fehler_Allgemein;
  const RueckPunkt P1{{dPunkt1RW, dPunkt1HW}, dPunkt1RichtungGon};
  const RueckPunkt P2{{dPunkt2RW, dPunkt2HW}, dPunkt2RichtungGon};
  const RueckPunkt P3{{dPunkt3RW, dPunkt3HW}, dPunkt3RichtungGon};
  Rueckwaertsschnittwerte Werte;
  const int Ergebnis = bCassini ? RueckwaertsschnittCassini(P1, P2, P3, Werte)
                                : RueckwaertsschnittCollins(P1, P2, P3, Werte, RueckTau::Schnittstelle);
  if (!Endlich(Werte.NeuRechts, Werte.NeuHoch, Werte.TauGon2)) return enmResult::Fehler_Allgemein;
  if (Ergebnis == 0) {
    dNeupunktRw = Werte.NeuRechts;
    dNeupunktHw = Werte.NeuHoch;
    Ausgeben(dTauGon1, Werte.TauGon1);
    Ausgeben(dTauGon2, Werte.TauGon2);
  }
  return RueckwaertsschnittAbbilden(Ergebnis, Werte.TauGon2);
}

enmResult TA::RueckwaertsschnittPnr(const Wert& vPunkt1Pnr, double dPunkt1RichtungGon, const Wert& vPunkt2Pnr,
                                    double dPunkt2RichtungGon, const Wert& vPunkt3Pnr,
                                    double dPunkt3RichtungGon, bool bCassini, double& dNeupunktRw,
                                    double& dNeupunktHw, double* dTauGon1, double* dTauGon2) {
  std::array<Lage, 3> P;
  if (!Punkte<3>({&vPunkt1Pnr, &vPunkt2Pnr, &vPunkt3Pnr}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return Rueckwaertsschnitt(P[0].RW, P[0].HW, dPunkt1RichtungGon, P[1].RW, P[1].HW, dPunkt2RichtungGon,
                            P[2].RW, P[2].HW, dPunkt3RichtungGon, bCassini, dNeupunktRw, dNeupunktHw,
                            dTauGon1, dTauGon2);
}

enmResult TA::VorwaertsschnittEbene(double dStandPunkt1RW, double dStandPunkt1HW, double dFernPunkt1RW,
                                    double dFernPunkt1HW, double dFernPunkt1RichtungGon,
                                    double dNeuPunktRichtung1Gon, double dStandPunkt2RW,
                                    double dStandPunkt2HW, double dFernPunkt2RW, double dFernPunkt2HW,
                                    double dFernPunkt2RichtungGon, double dNeuPunktRichtung2Gon,
                                    double& dNeupunktRw, double& dNeupunktHw, double* dTauGon) {
  if (!Endlich(dStandPunkt1RW, dStandPunkt1HW, dFernPunkt1RW, dFernPunkt1HW, dFernPunkt1RichtungGon,
               dNeuPunktRichtung1Gon, dStandPunkt2RW, dStandPunkt2HW, dFernPunkt2RW, dFernPunkt2HW,
               dFernPunkt2RichtungGon, dNeuPunktRichtung2Gon))
    return enmResult::Fehler_Allgemein;
  const VorwStation A{{dStandPunkt1RW, dStandPunkt1HW},
                      {dFernPunkt1RW, dFernPunkt1HW},
                      dFernPunkt1RichtungGon,
                      dNeuPunktRichtung1Gon};
  const VorwStation B{{dStandPunkt2RW, dStandPunkt2HW},
                      {dFernPunkt2RW, dFernPunkt2HW},
                      dFernPunkt2RichtungGon,
                      dNeuPunktRichtung2Gon};
  Vorwaertsschnittwerte Werte;
  if (tavorena::VorwaertsschnittEbene(A, B, Werte) < 0) return enmResult::Fehler_Allgemein;
  if (!Endlich(Werte.NeuRechts, Werte.NeuHoch, Werte.TauGon)) return enmResult::Fehler_Allgemein;
  dNeupunktRw = Werte.NeuRechts;
  dNeupunktHw = Werte.NeuHoch;
  Ausgeben(dTauGon, Werte.TauGon);
  return enmResult::ok;
}

enmResult TA::VorwaertsschnittEbenePnr(const Wert& vStandPunkt1Pnr, const Wert& vFernPunkt1Pnr,
                                       double dFernPunkt1RichtungGon, double dNeuPunktRichtung1Gon,
                                       const Wert& vStandPunkt2Pnr, const Wert& vFernPunkt2Pnr,
                                       double dFernPunkt2RichtungGon, double dNeuPunktRichtung2Gon,
                                       double& dNeupunktRw, double& dNeupunktHw, double* dTauGon) {
  std::array<Lage, 4> P;
  if (!Punkte<4>({&vStandPunkt1Pnr, &vFernPunkt1Pnr, &vStandPunkt2Pnr, &vFernPunkt2Pnr}, P))
    return enmResult::Fehler_PunktNichtVorhanden;
  return VorwaertsschnittEbene(
      P[0].RW, P[0].HW, P[1].RW, P[1].HW, dFernPunkt1RichtungGon, dNeuPunktRichtung1Gon, P[2].RW, P[2].HW,
      P[3].RW, P[3].HW, dFernPunkt2RichtungGon, dNeuPunktRichtung2Gon, dNeupunktRw, dNeupunktHw, dTauGon);
}

}  // namespace tavorena
