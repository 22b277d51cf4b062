#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/ta/TA.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {

using ta::Ausgeben;
using ta::Endlich;
using ta::Punkte;

enmResult ta::PunktListe(std::span<const Wert> Nummern, std::int32_t Anzahl, std::vector<double>& RW,
                         std::vector<double>& HW) {
  if (Anzahl < 0 || static_cast<std::size_t>(Anzahl) > Nummern.size()) return enmResult::Fehler_Allgemein;
  RW.clear();
  HW.clear();
  RW.reserve(static_cast<std::size_t>(Anzahl));
  HW.reserve(static_cast<std::size_t>(Anzahl));
  for (const Wert& Nummer : Nummern.first(static_cast<std::size_t>(Anzahl))) {
    const int Zeile = KorSuche(Nummer);
    if (Zeile < 0) return enmResult::Fehler_PunktNichtVorhanden;
    RW.push_back(KorPunkt(Zeile).Rechts);
    HW.push_back(KorPunkt(Zeile).Hoch);
  }
  return enmResult::ok;
}

namespace {

enmResult Abbilden(int Ergebnis) {
  return Ergebnis < 0 ? enmResult::Fehler_AnfangsUndEndpunktGleich : enmResult::ok;
}

std::weak_ptr<void> Eben;  // the Wirt of the objects that there are; as a member the library would offer it

}  // namespace

/// What the program around the objects had, and has again after them.
struct TA::Wirt {
  Wirt() = default;
  Wirt(const Wirt&) = delete;
  Wirt& operator=(const Wirt&) = delete;
  ~Wirt() {
    PortsSetzen(Türen);
    Optionen = Einstellungen;
    Haken = Anschlüsse;
  }

  const Ports Türen = PortsSetzen({});
  const OptionenSatz Einstellungen = Optionen;
  const KoordinatenHaken Anschlüsse = Haken;
  const KorBeiseite Tabelle;

  /// The one of all objects: a second object may outlive the first.
  static std::shared_ptr<Wirt> Beiseite() {
    auto Dieser = std::static_pointer_cast<Wirt>(Eben.lock());
    if (!Dieser) Eben = Dieser = std::make_shared<Wirt>();
    return Dieser;
  }
};

TA::TA() : Gastgeber(Wirt::Beiseite()) {
  PortsSetzen({});
  Haken = {};
  Optionen = {};
  KorLeeren();
}

TA::~TA() = default;

enmResult TA::Entfernungskontrolle(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                   double& dEntfGerechnet, double dEntfGemessen, double* dAbweichungZulaessig,
                                   double* dAbweichung) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dEntfGemessen)) return enmResult::Fehler_Allgemein;
  Anschlusswerte Werte;
  const int Ergebnis =
      tavorena::Entfernungskontrolle({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, dEntfGemessen, Werte);
  dEntfGerechnet = Werte.EntfGerechnet;
  if (Ergebnis < 0) return enmResult::Fehler_Allgemein;
  Ausgeben(dAbweichungZulaessig, Werte.AbweichungZulaessig);
  Ausgeben(dAbweichung, Werte.Abweichung);
  return enmResult::ok;
}

enmResult TA::EntfernungskontrollePnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                      double dEntfGemessen, double* dAbweichungZulaessig,
                                      double* dAbweichung) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return Entfernungskontrolle(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dEntfGerechnet, dEntfGemessen,
                              dAbweichungZulaessig, dAbweichung);
}

enmResult TA::LinienelementeAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                      double& dEntfGerechnet, double dAnlegemass, double dEndmass,
                                      double* dAbweichungZulaessig, double* dAbweichung, double* dMassstab) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dAnlegemass, dEndmass)) return enmResult::Fehler_Allgemein;
  Anschlusswerte Werte;
  const int Ergebnis =
      tavorena::LinienelementeAnschluss({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, dAnlegemass, dEndmass, Werte);
  dEntfGerechnet = Werte.EntfGerechnet;
  Ausgeben(dAbweichungZulaessig, Werte.AbweichungZulaessig);
  Ausgeben(dAbweichung, Werte.Abweichung);
  Ausgeben(dMassstab, Werte.Massstab);
  return Abbilden(Ergebnis);
}

enmResult TA::LinienelementeAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                         double dAnlegemass, double dEndmass, double* dAbweichungZulaessig,
                                         double* dAbweichung, double* dMassstab) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return LinienelementeAnschluss(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dEntfGerechnet, dAnlegemass, dEndmass,
                                 dAbweichungZulaessig, dAbweichung, dMassstab);
}

enmResult TA::Linienelemente(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dLinelRW,
                             double dLinelHW, double& dLinie, double& dSeitwaerts) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dLinelRW, dLinelHW)) return enmResult::Fehler_Allgemein;
  return Abbilden(tavorena::Linienelemente({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, {dLinelRW, dLinelHW}, dLinie,
                                           dSeitwaerts));
}

enmResult TA::LinienelementePnr(const Wert& vPnr1, const Wert& vPnr2, const Wert& vLinelpnr, double& dLinie,
                                double& dSeitwaerts) {
  std::array<Lage, 3> P;
  if (!Punkte<3>({&vPnr1, &vPnr2, &vLinelpnr}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return Linienelemente(P[0].RW, P[0].HW, P[1].RW, P[1].HW, P[2].RW, P[2].HW, dLinie, dSeitwaerts);
}

enmResult TA::PolarelementeAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                     double& dEntfGerechnet, double* dAnschlussrichtung,
                                     double* dNordrichtungGon) {
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW)) return enmResult::Fehler_Allgemein;
  Anschlusswerte Werte;
  double Anschluss = 0, Nord = 0;
  const int Ergebnis =
      tavorena::PolarelementeAnschluss({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, 0, Anschluss, Nord, Werte);
  dEntfGerechnet = Werte.EntfGerechnet;
  Ausgeben(dAnschlussrichtung, Anschluss);
  Ausgeben(dNordrichtungGon, Nord);
  return Abbilden(Ergebnis);
}

enmResult TA::PolarelementeAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                        double* dAnschlussrichtung, double* dNordrichtungGon) {
  std::array<Lage, 2> P;
  if (!Punkte<2>({&vPnr1, &vPnr2}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return PolarelementeAnschluss(P[0].RW, P[0].HW, P[1].RW, P[1].HW, dEntfGerechnet, dAnschlussrichtung,
                                dNordrichtungGon);
}

enmResult TA::Polarelemente(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dPolelRW,
                            double dPolelHW, double& dPolelWinkelGon, double& dPolelStrecke,
                            const Wert& dAnschlussrichtungGemessen, double* dNordrichtung) {
  const double Orientierung = dAnschlussrichtungGemessen.Zahl();
  if (!Endlich(dAnfRW, dAnfHW, dEndRW, dEndHW, dPolelRW, dPolelHW, Orientierung))
    return enmResult::Fehler_Allgemein;
  double Nord = 0;
  const int Ergebnis = tavorena::Polarelemente({dAnfRW, dAnfHW}, {dEndRW, dEndHW}, {dPolelRW, dPolelHW},
                                               Orientierung, dPolelWinkelGon, dPolelStrecke, Nord);
  Ausgeben(dNordrichtung, Nord);
  return Abbilden(Ergebnis);
}

enmResult TA::PolarelementePnr(const Wert& vPnr1, const Wert& vPnr2, const Wert& vPolelpnr,
                               double& dPolelWinkelGon, double& dPolelStrecke,
                               const Wert& dAnschlussrichtungGemessen, double* dNordrichtung) {
  std::array<Lage, 3> P;
  if (!Punkte<3>({&vPnr1, &vPnr2, &vPolelpnr}, P)) return enmResult::Fehler_PunktNichtVorhanden;
  return Polarelemente(P[0].RW, P[0].HW, P[1].RW, P[1].HW, P[2].RW, P[2].HW, dPolelWinkelGon, dPolelStrecke,
                       dAnschlussrichtungGemessen, dNordrichtung);
}

std::int32_t TA::KoordinatendateiLesen(const std::string& strKoordinatendateiName) {
  if (!DateiVorhanden(strKoordinatendateiName)) return -1;
  return KorLesen(strKoordinatendateiName, Lesemodus::Ersetzen, Dateiformat::Kor) < 0 ? -1 : KorAnzahl;
}

std::int32_t TA::KoordinatendateiSchreiben(const std::string& strKoordinatendateiName,
                                           std::int32_t lNachkomma) {
  if (lNachkomma < 0 || lNachkomma > 15) return -1;
  return KorSchreiben(strKoordinatendateiName, Dateiformat::Kor, lNachkomma);
}

}  // namespace tavorena
