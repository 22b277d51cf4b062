#include <algorithm>
#include <optional>
#include <utility>

#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {

using ta::Endlich;

namespace {

constexpr std::int32_t HelmertGrenze = 101;  // passpoints of one Helmert fit; the affine fit has no bound
constexpr int PasspunktdateiGrenze = 1001;

using Spalte = std::span<const double>;

/// The passpoints as the fits take them. @return ok; Fehler_Allgemein; Fehler_ZuweningePunkte
enmResult PasspunkteBilden(Spalte AltRW, Spalte AltHW, Spalte NeuRW, Spalte NeuHW, std::int32_t Anzahl,
                           Passpunkte& P) {
  if (!ta::ListenGut(Anzahl, AltRW, AltHW, NeuRW, NeuHW)) return enmResult::Fehler_Allgemein;
  if (Anzahl < 2) return enmResult::Fehler_ZuweningePunkte;
  const auto n = static_cast<std::size_t>(Anzahl);
  P = {AltRW.first(n), AltHW.first(n), NeuRW.first(n), NeuHW.first(n)};
  return enmResult::ok;
}

/// Refuses a fit whose squares overflowed: numbers of that size are no coordinates.
enmResult Prüfen(int Ergebnis, const Restklaffen& Klaffen, double Massstab, double MaximalerAbstand) {
  const bool Gut =
      Ergebnis >= 0 && Endlich(HelmertQusum(Klaffen.LinieareAbweichungWL), Massstab, MaximalerAbstand);
  return Gut ? enmResult::ok : enmResult::Fehler_Allgemein;
}

enmResult HelmertRechnen(Spalte AltRW, Spalte AltHW, Spalte NeuRW, Spalte NeuHW, std::int32_t Anzahl,
                         bool MasstabaenderungZulaessig, HelmertErgebnis& E) {
  Passpunkte P;
  const enmResult Gebildet = PasspunkteBilden(AltRW, AltHW, NeuRW, NeuHW, Anzahl, P);
  if (Gebildet != enmResult::ok) return Gebildet;
  if (Anzahl > HelmertGrenze) return enmResult::Fehler_ZuvielePunkte;
  const int Ergebnis = HelmertHelmert(P, MasstabaenderungZulaessig, std::nullopt, E);
  return Prüfen(Ergebnis, E.Klaffen, E.Massstab, E.Parameter.MaximalerAbstand);
}

enmResult AffinRechnen(Spalte AltRW, Spalte AltHW, Spalte NeuRW, Spalte NeuHW, std::int32_t Anzahl,
                       AffinErgebnis& E) {
  Passpunkte P;
  const enmResult Gebildet = PasspunkteBilden(AltRW, AltHW, NeuRW, NeuHW, Anzahl, P);
  if (Gebildet != enmResult::ok) return Gebildet;
  const int Ergebnis = HelmertAffin(P, E);  // its flag is not looked at: zero parameters are ok, on purpose
  return Prüfen(Ergebnis, E.Klaffen, E.Massstab1 + E.Massstab2, E.Parameter.MaximalerAbstand);
}

/// The points of a passpoint file with their places in the table.
struct Passpunktdatei {
  Punktlisten Neu;
  std::vector<double> AltRW, AltHW;
  std::int32_t Anzahl = 0;
};

/// Reads a passpoint file in its own order: the residuals come in it.
enmResult PasspunktdateiLesen(const std::string& Name, Passpunktdatei& D) {
  if (!DateiVorhanden(Name)) return enmResult::Fehler_DateiNichtVorhanden;
  int Anzahl = 0;
  if (KorDateiInListen(Name, D.Neu, PasspunktdateiGrenze, Anzahl, false) < 0)
    return Anzahl == PasspunktdateiGrenze ? enmResult::Fehler_ZuvielePunkte : enmResult::Fehler_Allgemein;
  if (Anzahl < 2) return enmResult::Fehler_ZuweningePunkte;
  D.Anzahl = Anzahl;
  for (const std::string& Pnr : D.Neu.Pnr) {
    Wert Gesucht(Pnr);
    const int Zeile = KorSucheMitPunkt(Gesucht);
    if (Zeile < 0) return enmResult::Fehler_PunktNichtVorhanden;
    D.AltRW.push_back(KorPunkt(Zeile).Rechts);
    D.AltHW.push_back(KorPunkt(Zeile).Hoch);
  }
  return enmResult::ok;
}

enmResult Neupunktergebnis(int Ausserhalb) {
  return Ausserhalb != 0 ? enmResult::Hinweis_PunktAusserhalbDesPasspunktfeldes : enmResult::ok;
}

/// Hands a transformed point out. @return Ergebnis; Fehler_Allgemein if it overflowed
enmResult PunktAusgeben(Lage Punkt, enmResult Ergebnis, double& RW, double& HW) {
  if (!Endlich(Punkt.RW, Punkt.HW)) return enmResult::Fehler_Allgemein;
  RW = Punkt.RW;
  HW = Punkt.HW;
  return Ergebnis;
}

/// The border as the Helmert methods take it: with 0 every point counts as outside, unlike the affine ones,
/// on purpose.
double HelmertRand(double MaximalerAbstand) { return MaximalerAbstand > 0 ? MaximalerAbstand : -1; }

/// The coordinate file of a file-to-file method.
enmResult TabelleLesen(TA& Ta, const std::string& Name) {
  if (!DateiVorhanden(Name)) return enmResult::Fehler_DateiNichtVorhanden;
  if (Ta.KoordinatendateiLesen(Name) < 0) return enmResult::Fehler_Allgemein;
  if (KorAnzahl < KorGrenze) return enmResult::ok;
  // A file with more points than the table holds would be written back without the rest.
  Punktlisten Punkte;
  int Anzahl = 0;
  return KorDateiInListen(Name, Punkte, KorGrenze, Anzahl, false) < 0 ? enmResult::Fehler_ZuvielePunkte
                                                                      : enmResult::ok;
}

/// Every number of the table fits its field of seven places before the point, also when it is rounded up;
/// stars would destroy it.
bool PasstInDieFelder() {
  const auto Passt = [](double Zahl) { return Zahl > -999999.5 && Zahl < 9999999.5; };
  const auto n = static_cast<std::ptrdiff_t>(KorAnzahl);
  return std::all_of(KorRechts.begin(), KorRechts.begin() + n, Passt) &&
         std::all_of(KorHoch.begin(), KorHoch.begin() + n, Passt) &&
         std::all_of(KorHoehe.begin(), KorHoehe.begin() + n, Passt);
}

/// Writes the transformed table back to its file.
/// @param[in] Transformiert  ok or the notice of an outside point, handed back after writing
enmResult TabelleSchreiben(TA& Ta, const std::string& Name, std::int32_t Nachkomma, enmResult Transformiert) {
  if (!PasstInDieFelder() || Ta.KoordinatendateiSchreiben(Name, Nachkomma) < 0)
    return enmResult::Fehler_Allgemein;
  return Transformiert;
}

}  // namespace

// ---- Helmert ---------------------------------------------------------------------------------------

enmResult TA::HelmertTransformationParameter(
    std::span<const double> dPasspunktAltesSystemRW, std::span<const double> dPasspunktAltesSystemHW,
    std::span<const double> dPasspunktNeuesSystemRW, std::span<const double> dPasspunktNeuesSystemHW,
    std::int32_t lPunktanzahl, bool bMasstabaenderungZulaessig, double& dSchwerpunktAltesSystemRW,
    double& dSchwerpunktAltesSystemHW, double& dSchwerpunktNeuesSystemRW, double& dSchwerpunktNeuesSystemHW,
    double& ParamA, double& ParamB, double& dMassstab, double& dDrehwinkelGon, double& dMaximalerAbstand,
    std::vector<double>& dRestklaffeVY, std::vector<double>& dRestklaffeVX,
    std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK, double& dStandardabwML) {
  HelmertErgebnis E;
  const enmResult Ergebnis =
      HelmertRechnen(dPasspunktAltesSystemRW, dPasspunktAltesSystemHW, dPasspunktNeuesSystemRW,
                     dPasspunktNeuesSystemHW, lPunktanzahl, bMasstabaenderungZulaessig, E);
  if (Ergebnis != enmResult::ok) return Ergebnis;
  dSchwerpunktAltesSystemRW = E.Parameter.SchwerpunktAltesSystem.RW;
  dSchwerpunktAltesSystemHW = E.Parameter.SchwerpunktAltesSystem.HW;
  dSchwerpunktNeuesSystemRW = E.Parameter.SchwerpunktNeuesSystem.RW;
  dSchwerpunktNeuesSystemHW = E.Parameter.SchwerpunktNeuesSystem.HW;
  ParamA = E.Parameter.ParamA;
  ParamB = E.Parameter.ParamB;
  dMassstab = E.Massstab;
  dDrehwinkelGon = E.DrehwinkelGon / 0.9;  // degrees until here
  dMaximalerAbstand = E.Parameter.MaximalerAbstand;
  dRestklaffeVY = std::move(E.Klaffen.RestklaffeVY);
  dRestklaffeVX = std::move(E.Klaffen.RestklaffeVX);
  dLinieareAbweichungWL = std::move(E.Klaffen.LinieareAbweichungWL);
  dStandardabwMK = E.Klaffen.StandardabwMK;
  dStandardabwML = E.Klaffen.StandardabwML;
  return enmResult::ok;
}

enmResult TA::HelmertTransformationParameterPasspunktdatei(
    const std::string& strKoordinatendateiName, bool bMasstabaenderungZulaessig,
    double& dSchwerpunktAltesSystemRW, double& dSchwerpunktAltesSystemHW, double& dSchwerpunktNeuesSystemRW,
    double& dSchwerpunktNeuesSystemHW, double& ParamA, double& ParamB, double& dMassstab,
    double& dDrehwinkelGon, double& dMaximalerAbstand, std::vector<double>& dRestklaffeVY,
    std::vector<double>& dRestklaffeVX, std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK,
    double& dStandardabwML) {
  Passpunktdatei D;
  const enmResult Gelesen = PasspunktdateiLesen(strKoordinatendateiName, D);
  if (Gelesen != enmResult::ok) return Gelesen;
  return HelmertTransformationParameter(
      D.AltRW, D.AltHW, D.Neu.Rechts, D.Neu.Hoch, D.Anzahl, bMasstabaenderungZulaessig,
      dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW, dSchwerpunktNeuesSystemRW,
      dSchwerpunktNeuesSystemHW, ParamA, ParamB, dMassstab, dDrehwinkelGon, dMaximalerAbstand, dRestklaffeVY,
      dRestklaffeVX, dLinieareAbweichungWL, dStandardabwMK, dStandardabwML);
}

enmResult TA::HelmertTransformationNeupunktSigmamax(
    double dPunktAltesSystemRW, double dPunktAltesSystemHW, double dSchwerpunktAltesSystemRW,
    double dSchwerpunktAltesSystemHW, double dSchwerpunktNeuesSystemRW, double dSchwerpunktNeuesSystemHW,
    double ParamA, double ParamB, double dMaximalerAbstand, double& dNeupunktRw, double& dNeupunktHw) {
  if (!Endlich(dPunktAltesSystemRW, dPunktAltesSystemHW, dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW,
               dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW, ParamA, ParamB, dMaximalerAbstand))
    return enmResult::Fehler_Allgemein;
  const HelmertParameter Parameter{{dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW},
                                   {dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW},
                                   ParamA,
                                   ParamB,
                                   HelmertRand(dMaximalerAbstand)};
  Lage Neu;
  const int Ausserhalb = HelmertNeupunkt({dPunktAltesSystemRW, dPunktAltesSystemHW}, Parameter, Neu);
  return PunktAusgeben(Neu, Neupunktergebnis(Ausserhalb), dNeupunktRw, dNeupunktHw);
}

enmResult TA::HelmertTransformationNeupunkt(double dPunktAltesSystemRW, double dPunktAltesSystemHW,
                                            double dSchwerpunktAltesSystemRW,
                                            double dSchwerpunktAltesSystemHW,
                                            double dSchwerpunktNeuesSystemRW,
                                            double dSchwerpunktNeuesSystemHW, double ParamA, double ParamB,
                                            double& dNeupunktRw, double& dNeupunktHw) {
  const enmResult Ergebnis = HelmertTransformationNeupunktSigmamax(
      dPunktAltesSystemRW, dPunktAltesSystemHW, dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW,
      dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW, ParamA, ParamB, 0, dNeupunktRw, dNeupunktHw);
  return Ergebnis == enmResult::Hinweis_PunktAusserhalbDesPasspunktfeldes ? enmResult::ok : Ergebnis;
}

enmResult TA::HelmertTransformationAlleKoordinaten(double dSchwerpunktAltesSystemRW,
                                                   double dSchwerpunktAltesSystemHW,
                                                   double dSchwerpunktNeuesSystemRW,
                                                   double dSchwerpunktNeuesSystemHW, double ParamA,
                                                   double ParamB, double dMaximalerAbstand) {
  if (!Endlich(dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW, dSchwerpunktNeuesSystemRW,
               dSchwerpunktNeuesSystemHW, ParamA, ParamB, dMaximalerAbstand))
    return enmResult::Fehler_Allgemein;
  const HelmertParameter Parameter{{dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW},
                                   {dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW},
                                   ParamA,
                                   ParamB,
                                   HelmertRand(dMaximalerAbstand)};
  return Neupunktergebnis(
      KorAbbilden([&](const KorSpalten& S) { return HelmertHelmertneukor(Parameter, S.Rechts, S.Hoch); }));
}

enmResult TA::HelmertTransformationKoordinatendateiPasspunktdatei(const std::string& strKoordinatendateiName,
                                                                  const std::string& strPasspunktdateiName,
                                                                  bool bMasstabaenderungZulaessig,
                                                                  std::int32_t lNachkomma) {
  const enmResult Tabelle = TabelleLesen(*this, strKoordinatendateiName);
  if (Tabelle != enmResult::ok) return Tabelle;
  Passpunktdatei D;
  const enmResult Gelesen = PasspunktdateiLesen(strPasspunktdateiName, D);
  if (Gelesen != enmResult::ok) return Gelesen;
  HelmertErgebnis E;
  const enmResult Gerechnet =
      HelmertRechnen(D.AltRW, D.AltHW, D.Neu.Rechts, D.Neu.Hoch, D.Anzahl, bMasstabaenderungZulaessig, E);
  if (Gerechnet != enmResult::ok) return Gerechnet;
  // All passpoints on one spot of the new system: nothing of the file would be left.
  if (E.Massstab == 0) return enmResult::Fehler_Allgemein;
  const HelmertParameter& h = E.Parameter;
  const enmResult Transformiert = HelmertTransformationAlleKoordinaten(
      h.SchwerpunktAltesSystem.RW, h.SchwerpunktAltesSystem.HW, h.SchwerpunktNeuesSystem.RW,
      h.SchwerpunktNeuesSystem.HW, h.ParamA, h.ParamB, h.MaximalerAbstand);
  return TabelleSchreiben(*this, strKoordinatendateiName, lNachkomma, Transformiert);
}

// ---- affine ----------------------------------------------------------------------------------------

enmResult TA::AffinTransformationParameter(
    std::span<const double> dPasspunktAltesSystemRW, std::span<const double> dPasspunktAltesSystemHW,
    std::span<const double> dPasspunktNeuesSystemRW, std::span<const double> dPasspunktNeuesSystemHW,
    std::int32_t lPunktanzahl, double& dSchwerpunktAltesSystemRW, double& dSchwerpunktAltesSystemHW,
    double& dSchwerpunktNeuesSystemRW, double& dSchwerpunktNeuesSystemHW, double& dParamA10,
    double& dParamA11, double& dParamA12, double& dParamA20, double& dParamA21, double& dParamA22,
    double& dMassstab1, double& dMassstab2, double& dDrehwinkel1Gon, double& dDrehwinkel2Gon,
    double& dMaximalerAbstand, std::vector<double>& dRestklaffeVY, std::vector<double>& dRestklaffeVX,
    std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK, double& dStandardabwML) {
  AffinErgebnis E;
  const enmResult Ergebnis = AffinRechnen(dPasspunktAltesSystemRW, dPasspunktAltesSystemHW,
                                          dPasspunktNeuesSystemRW, dPasspunktNeuesSystemHW, lPunktanzahl, E);
  if (Ergebnis != enmResult::ok) return Ergebnis;
  dSchwerpunktAltesSystemRW = E.Parameter.SchwerpunktAltesSystem.RW;
  dSchwerpunktAltesSystemHW = E.Parameter.SchwerpunktAltesSystem.HW;
  dSchwerpunktNeuesSystemRW = E.SchwerpunktNeuesSystem.RW;
  dSchwerpunktNeuesSystemHW = E.SchwerpunktNeuesSystem.HW;
  dParamA10 = E.Parameter.A10;
  dParamA11 = E.Parameter.A11;
  dParamA12 = E.Parameter.A12;
  dParamA20 = E.Parameter.A20;
  dParamA21 = E.Parameter.A21;
  dParamA22 = E.Parameter.A22;
  dMassstab1 = E.Massstab1;
  dMassstab2 = E.Massstab2;
  dDrehwinkel1Gon = E.Drehwinkel1Gon / 0.9;  // degrees until here
  dDrehwinkel2Gon = E.Drehwinkel2Gon / 0.9;
  dMaximalerAbstand = E.Parameter.MaximalerAbstand;
  dRestklaffeVY = std::move(E.Klaffen.RestklaffeVY);
  dRestklaffeVX = std::move(E.Klaffen.RestklaffeVX);
  dLinieareAbweichungWL = std::move(E.Klaffen.LinieareAbweichungWL);
  dStandardabwMK = E.Klaffen.StandardabwMK;
  dStandardabwML = E.Klaffen.StandardabwML;
  return enmResult::ok;
}

enmResult TA::AffinTransformationParameterPasspunktdatei(
    const std::string& strKoordinatendateiName, double& dSchwerpunktAltesSystemRW,
    double& dSchwerpunktAltesSystemHW, double& dSchwerpunktNeuesSystemRW, double& dSchwerpunktNeuesSystemHW,
    double& dParamA10, double& dParamA11, double& dParamA12, double& dParamA20, double& dParamA21,
    double& dParamA22, double& dMassstab1, double& dMassstab2, double& dDrehwinkel1Gon,
    double& dDrehwinkel2Gon, double& dMaximalerAbstand, std::vector<double>& dRestklaffeVY,
    std::vector<double>& dRestklaffeVX, std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK,
    double& dStandardabwML) {
  Passpunktdatei D;
  const enmResult Gelesen = PasspunktdateiLesen(strKoordinatendateiName, D);
  if (Gelesen != enmResult::ok) return Gelesen;
  return AffinTransformationParameter(
      D.AltRW, D.AltHW, D.Neu.Rechts, D.Neu.Hoch, D.Anzahl, dSchwerpunktAltesSystemRW,
      dSchwerpunktAltesSystemHW, dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW, dParamA10, dParamA11,
      dParamA12, dParamA20, dParamA21, dParamA22, dMassstab1, dMassstab2, dDrehwinkel1Gon, dDrehwinkel2Gon,
      dMaximalerAbstand, dRestklaffeVY, dRestklaffeVX, dLinieareAbweichungWL, dStandardabwMK, dStandardabwML);
}

enmResult TA::AffinTransformationNeupunktSigmamax(
    double dPunktAltesSystemRW, double dPunktAltesSystemHW, double dSchwerpunktAltesSystemRW,
    double dSchwerpunktAltesSystemHW, double dParamA10, double dParamA11, double dParamA12, double dParamA20,
    double dParamA21, double dParamA22, double dMaximalerAbstand, double& dNeupunktRw, double& dNeupunktHw) {
  if (!Endlich(dPunktAltesSystemRW, dPunktAltesSystemHW, dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW,
               dParamA10, dParamA11, dParamA12, dParamA20, dParamA21, dParamA22, dMaximalerAbstand))
    return enmResult::Fehler_Allgemein;
  const AffinParameter Parameter{dParamA11,
                                 dParamA12,
                                 dParamA10,
                                 dParamA21,
                                 dParamA22,
                                 dParamA20,
                                 {dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW},
                                 dMaximalerAbstand};
  Lage Neu;
  const int Ausserhalb = HelmertAffinneupunkt({dPunktAltesSystemRW, dPunktAltesSystemHW}, Parameter, Neu);
  return PunktAusgeben(Neu, Neupunktergebnis(Ausserhalb), dNeupunktRw, dNeupunktHw);
}

enmResult TA::AffinTransformationNeupunkt(double dPunktAltesSystemRW, double dPunktAltesSystemHW,
                                          double dParamA10, double dParamA11, double dParamA12,
                                          double dParamA20, double dParamA21, double dParamA22,
                                          double& dNeupunktRw, double& dNeupunktHw) {
  const enmResult Ergebnis = AffinTransformationNeupunktSigmamax(
      dPunktAltesSystemRW, dPunktAltesSystemHW, 0, 0, dParamA10, dParamA11, dParamA12, dParamA20, dParamA21,
      dParamA22, 0, dNeupunktRw, dNeupunktHw);
  return Ergebnis == enmResult::Hinweis_PunktAusserhalbDesPasspunktfeldes ? enmResult::ok : Ergebnis;
}

enmResult TA::AffinTransformationAlleKoordinatenSigmamax(double dSchwerpunktAltesSystemRW,
                                                         double dSchwerpunktAltesSystemHW, double dParamA10,
                                                         double dParamA11, double dParamA12, double dParamA20,
                                                         double dParamA21, double dParamA22,
                                                         double dMaximalerAbstand) {
  if (!Endlich(dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW, dParamA10, dParamA11, dParamA12,
               dParamA20, dParamA21, dParamA22, dMaximalerAbstand))
    return enmResult::Fehler_Allgemein;
  const AffinParameter Parameter{dParamA11,
                                 dParamA12,
                                 dParamA10,
                                 dParamA21,
                                 dParamA22,
                                 dParamA20,
                                 {dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW},
                                 dMaximalerAbstand};
  return Neupunktergebnis(
      KorAbbilden([&](const KorSpalten& S) { return HelmertAffinneukor(Parameter, S.Rechts, S.Hoch); }));
}

enmResult TA::AffinTransformationAlleKoordinaten(double dParamA10, double dParamA11, double dParamA12,
                                                 double dParamA20, double dParamA21, double dParamA22) {
  const enmResult Ergebnis = AffinTransformationAlleKoordinatenSigmamax(0, 0, dParamA10, dParamA11, dParamA12,
                                                                        dParamA20, dParamA21, dParamA22, 0);
  return Ergebnis == enmResult::Hinweis_PunktAusserhalbDesPasspunktfeldes ? enmResult::ok : Ergebnis;
}

enmResult TA::AffinTransformationKoordinatendateiPasspunktdatei(const std::string& strKoordinatendateiName,
                                                                const std::string& strPasspunktdateiName,
                                                                std::int32_t lNachkomma) {
  const enmResult Tabelle = TabelleLesen(*this, strKoordinatendateiName);
  if (Tabelle != enmResult::ok) return Tabelle;
  Passpunktdatei D;
  const enmResult Gelesen = PasspunktdateiLesen(strPasspunktdateiName, D);
  if (Gelesen != enmResult::ok) return Gelesen;
  AffinErgebnis E;
  const enmResult Gerechnet = AffinRechnen(D.AltRW, D.AltHW, D.Neu.Rechts, D.Neu.Hoch, D.Anzahl, E);
  if (Gerechnet != enmResult::ok) return Gerechnet;
  // Passpoints on a line, or on one spot of the new system: nothing of the file would be left, and no caller
  // sees the parameters here.
  const AffinParameter& a = E.Parameter;
  if (a.A11 * a.A22 - a.A12 * a.A21 == 0) return enmResult::Fehler_Allgemein;
  const enmResult Transformiert = AffinTransformationAlleKoordinatenSigmamax(
      a.SchwerpunktAltesSystem.RW, a.SchwerpunktAltesSystem.HW, a.A10, a.A11, a.A12, a.A20, a.A21, a.A22,
      a.MaximalerAbstand);
  return TabelleSchreiben(*this, strKoordinatendateiName, lNachkomma, Transformiert);
}

}  // namespace tavorena
