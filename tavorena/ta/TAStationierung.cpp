#include <utility>

#include <tavorena/calc/FreieStationierung.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {
namespace {

constexpr std::int32_t BeobachtungenGrenze = 1001;

}  // namespace

enmResult TA::FreieStationierung(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                                 std::span<const double> dRichtungGon, std::span<const double> dVkgon,
                                 std::span<const double> dStrecke, std::int32_t lPunktanzahl,
                                 double& dStandPunktRW, double& dStandPunktHW,
                                 bool bTransformationsartHelmert, std::vector<double>& dVRechts,
                                 std::vector<double>& dVHoch, std::vector<double>& dWL, double* dMassstab,
                                 double* dEpsilonGon, double* dStandardabwMK, double* FStandardabwML) {
  if (!ta::ListenGut(lPunktanzahl, dPunktRW, dPunktHW, dRichtungGon, dVkgon, dStrecke))
    return enmResult::Fehler_Allgemein;
  if (lPunktanzahl > BeobachtungenGrenze) return enmResult::Fehler_ZuvielePunkte;
  const auto n = static_cast<std::size_t>(lPunktanzahl);
  const Anschlussbeobachtungen B{dPunktRW.first(n), dPunktHW.first(n), dRichtungGon.first(n), dVkgon.first(n),
                                 dStrecke.first(n)};
  FreieStation Station;
  const int Art = bTransformationsartHelmert ? TransformationsartHelmert : TransformationsartKongruent;
  if (tavorena::FreieStationierung(B, Art, Station) < 0) return enmResult::Fehler_Allgemein;
  // Numbers too large to be squared are no coordinates.
  if (!ta::Endlich(Station.StandPunkt.RW, Station.StandPunkt.HW, Station.Massstab, Station.StandardabwML))
    return enmResult::Fehler_Allgemein;
  dStandPunktRW = Station.StandPunkt.RW;
  dStandPunktHW = Station.StandPunkt.HW;
  dVRechts = std::move(Station.VRechts);
  dVHoch = std::move(Station.VHoch);
  dWL = std::move(Station.WL);
  ta::Ausgeben(dMassstab, Station.Massstab);
  ta::Ausgeben(dEpsilonGon, Station.EpsilonGon);
  ta::Ausgeben(dStandardabwMK, Station.StandardabwMK);
  ta::Ausgeben(FStandardabwML, Station.StandardabwML);
  return enmResult::ok;
}

enmResult TA::FreieStationierungPnr(std::span<const Wert> vPunktPnr, std::span<const double> dRichtungGon,
                                    std::span<const double> dVkgon, std::span<const double> dStrecke,
                                    std::int32_t lPunktanzahl, double& dStandPunktRW, double& dStandPunktHW,
                                    bool bTransformationsartHelmert, std::vector<double>& dVRechts,
                                    std::vector<double>& dVHoch, std::vector<double>& dWL, double* dMassstab,
                                    double* dEpsilonGon, double* dStandardabwMK, double* FStandardabwML) {
  std::vector<double> RW, HW;
  const enmResult Gefunden = ta::PunktListe(vPunktPnr, lPunktanzahl, RW, HW);
  if (Gefunden != enmResult::ok) return Gefunden;
  return FreieStationierung(RW, HW, dRichtungGon, dVkgon, dStrecke, lPunktanzahl, dStandPunktRW,
                            dStandPunktHW, bTransformationsartHelmert, dVRechts, dVHoch, dWL, dMassstab,
                            dEpsilonGon, dStandardabwMK, FStandardabwML);
}

enmResult TA::FreieStationierungKleinpunkt(double dStandPunktRW, double dStandPunktHW, double dEpsilonGon,
                                           double dMassstab, double dRichtungGon, double dStrecke,
                                           double dVkgon, double& dKleinpunktRW, double& dKleinpunktHW) {
  if (!ta::Endlich(dStandPunktRW, dStandPunktHW, dEpsilonGon, dMassstab, dRichtungGon, dStrecke, dVkgon))
    return enmResult::Fehler_Allgemein;
  const Lage Punkt = tavorena::FreieStationierungKleinpunkt({dStandPunktRW, dStandPunktHW}, dEpsilonGon,
                                                            dRichtungGon, dMassstab * dStrecke, dVkgon);
  if (!ta::Endlich(Punkt.RW, Punkt.HW)) return enmResult::Fehler_Allgemein;
  dKleinpunktRW = Punkt.RW;
  dKleinpunktHW = Punkt.HW;
  return enmResult::ok;
}

}  // namespace tavorena
