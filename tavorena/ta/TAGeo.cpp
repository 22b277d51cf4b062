#include <tavorena/calc/Geokonvertierung.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {

using ta::Endlich;

namespace {

constexpr const Ellipsoid& Bessel = Ellipsoide[0];

enmResult Abbilden(int Ergebnis) { return Ergebnis < 0 ? enmResult::Fehler_Allgemein : enmResult::ok; }

/// The plain sum, on purpose: west of Greenwich and south of the equator the minus stands before each of the
/// three.
double InGrad(std::int32_t Grad, std::int32_t Minuten, double Sekunden) {
  return Grad + Minuten / 60.0 + Sekunden / 3600;
}

/// Both angles, or none if one has degrees beyond 32 bits.
enmResult GMSAusgeben(double Laenge, double Breite, std::int32_t& LaengeGrad, std::int32_t& LaengeMinuten,
                      double& LaengeSekunden, std::int32_t& BreiteGrad, std::int32_t& BreiteMinuten,
                      double& BreiteSekunden) {
  std::int32_t Grad = 0, Minuten = 0;
  double Sekunden = 0;
  if (GradInGMS(Laenge, Grad, Minuten, Sekunden) < 0) return enmResult::Fehler_Allgemein;
  if (GradInGMS(Breite, BreiteGrad, BreiteMinuten, BreiteSekunden) < 0) return enmResult::Fehler_Allgemein;
  LaengeGrad = Grad;
  LaengeMinuten = Minuten;
  LaengeSekunden = Sekunden;
  return enmResult::ok;
}

}  // namespace

enmResult TA::KonvertierungGeographischNachGK(double dGeographischeLaengeGrad,
                                              double dGeographischeBreiteGrad, double& dGKRechtswert,
                                              double& dGKHochwert) {
  if (!Endlich(dGeographischeLaengeGrad, dGeographischeBreiteGrad)) return enmResult::Fehler_Allgemein;
  double Delta = 0, Konvergenz = 0;
  std::int32_t Kennziffer = 0;
  if (GKStreifen(dGeographischeLaengeGrad, Delta, Kennziffer) < 0) return enmResult::Fehler_Allgemein;
  return Abbilden(GKVorwaerts(1, Bessel, Kennziffer, dGeographischeBreiteGrad * RadJeGrad, Delta * RadJeGrad,
                              dGKRechtswert, dGKHochwert, Konvergenz));
}

enmResult TA::KonvertierungGeographischGMSNachGK(std::int32_t lGeographischeLaengeGrad,
                                                 std::int32_t lGeographischeLaengeMinute,
                                                 double dGeographischeLaengeSekunde,
                                                 std::int32_t lGeographischeBreiteGrad,
                                                 std::int32_t lGeographischeBreiteMinute,
                                                 double dGeographischeBreiteSekunde, double& dGKRechtswert,
                                                 double& dGKHochwert) {
  return KonvertierungGeographischNachGK(
      InGrad(lGeographischeLaengeGrad, lGeographischeLaengeMinute, dGeographischeLaengeSekunde),
      InGrad(lGeographischeBreiteGrad, lGeographischeBreiteMinute, dGeographischeBreiteSekunde),
      dGKRechtswert, dGKHochwert);
}

enmResult TA::KonvertierungGKNachGeographisch(double dGKRechtswert, double dGKHochwert,
                                              double& dGeographischeLaenge, double& dGeographischeBreite) {
  if (!Endlich(dGKRechtswert, dGKHochwert)) return enmResult::Fehler_Allgemein;
  double Konvergenz = 0;
  return Abbilden(GKRueckwaerts(1, Bessel, dGKRechtswert, dGKHochwert, dGeographischeBreite,
                                dGeographischeLaenge, Konvergenz));
}

enmResult TA::KonvertierungGKNachGeographischGMS(double dGKRechtswert, double dGKHochwert,
                                                 std::int32_t& lGeographischeLaengeGrad,
                                                 std::int32_t& lGeographischeLaengeMinuten,
                                                 double& dGeographischeLaengeSekunden,
                                                 std::int32_t& lGeographischeBreiteGrad,
                                                 std::int32_t& lGeographischeBreiteMinuten,
                                                 double& dGeographischeBreiteSekunden) {
  double L = 0, B = 0;
  if (KonvertierungGKNachGeographisch(dGKRechtswert, dGKHochwert, L, B) != enmResult::ok)
    return enmResult::Fehler_Allgemein;
  return GMSAusgeben(L, B, lGeographischeLaengeGrad, lGeographischeLaengeMinuten,
                     dGeographischeLaengeSekunden, lGeographischeBreiteGrad, lGeographischeBreiteMinuten,
                     dGeographischeBreiteSekunden);
}

enmResult TA::KonvertierungUTMNachGeographisch(double dEasting, double dNorthing, std::int32_t lZone,
                                               double& dGeographischeLaengeGrad,
                                               double& dGeographischeBreiteGrad) {
  if (!Endlich(dEasting, dNorthing)) return enmResult::Fehler_Allgemein;
  return Abbilden(
      UTMRueckwaerts(dEasting, dNorthing, lZone, dGeographischeLaengeGrad, dGeographischeBreiteGrad));
}

enmResult TA::KonvertierungUTMNachGeographischGMS(double dEasting, double dNorthing, std::int32_t lZone,
                                                  std::int32_t& lGeographischeLaengeGrad,
                                                  std::int32_t& lGeographischeLaengeMinuten,
                                                  double& dGeographischeLaengeSekunden,
                                                  std::int32_t& lGeographischeBreiteGrad,
                                                  std::int32_t& lGeographischeBreiteMinuten,
                                                  double& dGeographischeBreiteSekunden) {
  double L = 0, B = 0;
  if (KonvertierungUTMNachGeographisch(dEasting, dNorthing, lZone, L, B) != enmResult::ok)
    return enmResult::Fehler_Allgemein;
  return GMSAusgeben(L, B, lGeographischeLaengeGrad, lGeographischeLaengeMinuten,
                     dGeographischeLaengeSekunden, lGeographischeBreiteGrad, lGeographischeBreiteMinuten,
                     dGeographischeBreiteSekunden);
}

enmResult TA::KonvertierungGeographischNachUTM(double dGeographischeLaengeGrad,
                                               double dGeographischeBreiteGrad, std::int32_t& lZone,
                                               double& dEasting, double& dNorthing) {
  if (!Endlich(dGeographischeLaengeGrad, dGeographischeBreiteGrad)) return enmResult::Fehler_Allgemein;
  return Abbilden(
      UTMVorwaerts(dGeographischeLaengeGrad, dGeographischeBreiteGrad, lZone, dEasting, dNorthing));
}

enmResult TA::KonvertierungGeographischGMSNachUTM(std::int32_t lGeographischeLaengeGrad,
                                                  std::int32_t lGeographischeLaengeMinute,
                                                  double dGeographischeLaengeSekunde,
                                                  std::int32_t lGeographischeBreiteGrad,
                                                  std::int32_t lGeographischeBreiteMinute,
                                                  double dGeographischeBreiteSekunde, std::int32_t& lZone,
                                                  double& dEasting, double& dNorthing) {
  return KonvertierungGeographischNachUTM(
      InGrad(lGeographischeLaengeGrad, lGeographischeLaengeMinute, dGeographischeLaengeSekunde),
      InGrad(lGeographischeBreiteGrad, lGeographischeBreiteMinute, dGeographischeBreiteSekunde), lZone,
      dEasting, dNorthing);
}

}  // namespace tavorena
