#include <tavorena/calc/Ausgleich.h>
#include <tavorena/calc/Flaeche.h>
#include <tavorena/ta/TAHilfe.h>

// A result that overflowed is a failure here: finite numbers in, finite numbers out.

namespace tavorena {

using ta::Ausgeben;
using ta::Endlich;
using ta::ListenGut;
using ta::PunktListe;

enmResult TA::Flaechenberechnung(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                                 std::span<const double> dRadius, std::int32_t lPunktanzahl, double& dFlaeche,
                                 double* dUmring, double* dBogenflaeche) {
  if (!ListenGut(lPunktanzahl, dPunktRW, dPunktHW, dRadius)) return enmResult::Fehler_Allgemein;
  std::vector<std::int16_t> Art;
  Art.reserve(static_cast<std::size_t>(lPunktanzahl));
  for (const double Radius : dRadius.first(static_cast<std::size_t>(lPunktanzahl)))
    Art.push_back(static_cast<std::int16_t>((Radius > 0) - (Radius < 0)));
  Flaechenwerte Werte;
  if (FlaecheBerechnen(dPunktRW, dPunktHW, dRadius, Art, lPunktanzahl, Werte) < 0 ||
      !Endlich(Werte.Flaeche, Werte.Umring, Werte.Bogenflaeche))
    return enmResult::Fehler_Allgemein;
  dFlaeche = Werte.Flaeche;
  Ausgeben(dUmring, Werte.Umring);
  Ausgeben(dBogenflaeche, Werte.Bogenflaeche);
  return enmResult::ok;
}

enmResult TA::FlaechenberechnungPnr(std::span<const Wert> vPunktPnr, std::span<const double> dRadius,
                                    std::int32_t lPunktanzahl, double& dFlaeche, double* dUmring,
                                    double* dBogenflaeche) {
  std::vector<double> RW, HW;
  const enmResult Gefunden = PunktListe(vPunktPnr, lPunktanzahl, RW, HW);
  if (Gefunden != enmResult::ok) return Gefunden;
  return Flaechenberechnung(RW, HW, dRadius, lPunktanzahl, dFlaeche, dUmring, dBogenflaeche);
}

enmResult TA::AusgleichendeGerade(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                                  std::int32_t lPunktanzahl, double& AusgleichendeGeradeAnfRW,
                                  double& AusgleichendeGeradeAnfHW, double& AusgleichendeGeradeEndRW,
                                  double& AusgleichendeGeradeEndHW) {
  Lage Anf, End;
  if (!ListenGut(lPunktanzahl, dPunktRW, dPunktHW) ||
      Geradenausgleich(dPunktRW, dPunktHW, lPunktanzahl, Anf, End) < 0 ||
      !Endlich(Anf.RW, Anf.HW, End.RW, End.HW))
    return enmResult::Fehler_Allgemein;
  AusgleichendeGeradeAnfRW = Anf.RW;
  AusgleichendeGeradeAnfHW = Anf.HW;
  AusgleichendeGeradeEndRW = End.RW;
  AusgleichendeGeradeEndHW = End.HW;
  return enmResult::ok;
}

enmResult TA::AusgleichendeGeradePnr(std::span<const Wert> vPunktPnr, std::int32_t lPunktanzahl,
                                     double& AusgleichendeGeradeAnfRW, double& AusgleichendeGeradeAnfHW,
                                     double& AusgleichendeGeradeEndRW, double& AusgleichendeGeradeEndHW) {
  std::vector<double> RW, HW;
  const enmResult Gefunden = PunktListe(vPunktPnr, lPunktanzahl, RW, HW);
  if (Gefunden != enmResult::ok) return Gefunden;
  return AusgleichendeGerade(RW, HW, lPunktanzahl, AusgleichendeGeradeAnfRW, AusgleichendeGeradeAnfHW,
                             AusgleichendeGeradeEndRW, AusgleichendeGeradeEndHW);
}

enmResult TA::AusgleichenderKreis(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                                  std::int32_t lPunktanzahl, double& dAusgleichenderKreisMittelpunktRW,
                                  double& AusgleichenderKreisMittelpunktHW,
                                  double& dAusgleichenderKreisRadius) {
  if (!ListenGut(lPunktanzahl, dPunktRW, dPunktHW)) return enmResult::Fehler_Allgemein;
  Lage M;
  double Radius = 0;
  const int Ergebnis = Kreisausgleich(dPunktRW, dPunktHW, lPunktanzahl, M, Radius);
  if (Ergebnis == -2) return enmResult::Fehler_ZuvielePunkte;
  if (Ergebnis < 0 || !Endlich(M.RW, M.HW, Radius)) return enmResult::Fehler_Allgemein;
  dAusgleichenderKreisMittelpunktRW = M.RW;
  AusgleichenderKreisMittelpunktHW = M.HW;
  dAusgleichenderKreisRadius = Radius;
  return enmResult::ok;
}

enmResult TA::AusgleichenderKreisPnr(std::span<const Wert> vPunktPnr, std::int32_t lPunktanzahl,
                                     double& dAusgleichenderKreisMittelpunktRW,
                                     double& AusgleichenderKreisMittelpunktHW,
                                     double& dAusgleichenderKreisRadius) {
  std::vector<double> RW, HW;
  const enmResult Gefunden = PunktListe(vPunktPnr, lPunktanzahl, RW, HW);
  if (Gefunden != enmResult::ok) return Gefunden;
  return AusgleichenderKreis(RW, HW, lPunktanzahl, dAusgleichenderKreisMittelpunktRW,
                             AusgleichenderKreisMittelpunktHW, dAusgleichenderKreisRadius);
}

}  // namespace tavorena
