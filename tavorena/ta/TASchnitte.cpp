#include <tavorena/calc/Schnitte.h>
#include <tavorena/core/Text.h>
#include <tavorena/ta/TAHilfe.h>

namespace tavorena {

using ta::Ausgeben;
using ta::Endlich;
using ta::Punkte;

namespace {

/// A point that a kind may need: an empty number is not looked up and stays at (0, 0), the default of the
/// coordinate method. @return false if the number is given and missing
bool PunktWahl(const Wert& Nummer, Lage& Ort) {
  if (!Nummer.IstGegeben() || (Nummer.IstText() && IstLeerText(Nummer.Text()))) return true;
  std::array<Lage, 1> P;
  if (!Punkte<1>({&Nummer}, P)) return false;
  Ort = P[0];
  return true;
}

/// The count of both methods with circles, and their result.
enmResult AnzahlAusgeben(int Ergebnis, std::int16_t* Anzahl) {
  Ausgeben(Anzahl, static_cast<std::int16_t>(Ergebnis < 0 ? 0 : Ergebnis));
  if (Ergebnis == -2) return enmResult::Fehler_AnfangsUndEndpunktGleich;
  return Ergebnis < 0 ? enmResult::Fehler_Allgemein : enmResult::ok;
}

}  // namespace

enmResult TA::SchnittGeradeGerade(double dGerade1RW1, double dGerade1HW1, double dGerade1RW2,
                                  double dGerade1HW2, double dGerade2RW1, double dGerade2HW1,
                                  double dGerade2RW2, double dGerade2HW2, double& dSchnittpunktRW,
                                  double& dSchnittpunktHW, double* dSchnittwinkelGon,
                                  enmArtGeradenschnitt eSchnittart, double dGerade1Parallenabstand,
                                  double dGerade2Parallenabstand, double dGerade1PunktRW,
                                  double dGerade1PunktHW, double dGerade2PunktRW, double dGerade2PunktHW) {
  if (!Endlich(dGerade1RW1, dGerade1HW1, dGerade1RW2, dGerade1HW2, dGerade2RW1, dGerade2HW1, dGerade2RW2,
               dGerade2HW2, dGerade1Parallenabstand, dGerade2Parallenabstand, dGerade1PunktRW,
               dGerade1PunktHW, dGerade2PunktRW, dGerade2PunktHW))
    return enmResult::Fehler_Allgemein;
  const Schnittgerade G1{{dGerade1RW1, dGerade1HW1},
                         {dGerade1RW2, dGerade1HW2},
                         dGerade1Parallenabstand,
                         {dGerade1PunktRW, dGerade1PunktHW}};
  const Schnittgerade G2{{dGerade2RW1, dGerade2HW1},
                         {dGerade2RW2, dGerade2HW2},
                         dGerade2Parallenabstand,
                         {dGerade2PunktRW, dGerade2PunktHW}};
  const int Wahl = static_cast<int>(eSchnittart);  // 0 to 8 are the kinds 22, 23, 24, 32 to 34, 42 to 44
  const int Art = Wahl < 0 || Wahl > 8 ? 0 : 10 * (2 + Wahl / 3) + 2 + Wahl % 3;
  Lage S;
  double Winkel = 0;
  switch (SchnittGeradeGeradeBerechnung(Art, G1, G2, S, Winkel)) {
    case 0:
      break;
    case 1:
      return enmResult::Hinweis_GeradenParallel;
    case -2:
      return enmResult::Fehler_AnfangsUndEndpunktGleich;
    default:
      return enmResult::Fehler_Allgemein;
  }
  dSchnittpunktRW = S.RW;
  dSchnittpunktHW = S.HW;
  Ausgeben(dSchnittwinkelGon, Winkel / 0.9);
  return enmResult::ok;
}

enmResult TA::SchnittGeradeGeradePnr(const Wert& vGerade1Pnr1, const Wert& vGerade1Pnr2,
                                     const Wert& vGerade2Pnr1, const Wert& vGerade2Pnr2,
                                     double& dSchnittpunktRW, double& dSchnittpunktHW,
                                     double* dSchnittwinkelGon, enmArtGeradenschnitt eSchnittart,
                                     double dGerade1Parallenabstand, double dGerade2Parallenabstand,
                                     const Wert& vGerade1Pnr, const Wert& vGerade2Pnr) {
  std::array<Lage, 4> P;
  Lage P1, P2;
  if (!Punkte<4>({&vGerade1Pnr1, &vGerade1Pnr2, &vGerade2Pnr1, &vGerade2Pnr2}, P) ||
      !PunktWahl(vGerade1Pnr, P1) || !PunktWahl(vGerade2Pnr, P2))
    return enmResult::Fehler_PunktNichtVorhanden;
  return SchnittGeradeGerade(P[0].RW, P[0].HW, P[1].RW, P[1].HW, P[2].RW, P[2].HW, P[3].RW, P[3].HW,
                             dSchnittpunktRW, dSchnittpunktHW, dSchnittwinkelGon, eSchnittart,
                             dGerade1Parallenabstand, dGerade2Parallenabstand, P1.RW, P1.HW, P2.RW, P2.HW);
}

enmResult TA::SchnittKreisGerade(double dKreisMittelpunktRW, double dKreisMittelpunktHW, double dKreisRadius,
                                 double dGeradeRW1, double dGeradeHW1, double dGeradeRW2, double dGeradeHW2,
                                 double& dSchnittpunkt1RW, double& dSchnittpunkt1HW, double& dSchnittpunkt2RW,
                                 double& dSchnittpunkt2HW, double* dSchnittwinkelGon,
                                 std::int16_t* iAnzahlSchnittpunkte, enmArtGeradenschnitt eSchnittart,
                                 double dGeradeParallenabstand, double dKreisPunktRW, double dKreisPunktHW,
                                 double dGeradePunktRW, double dGeradePunktHW) {
  if (!Endlich(dKreisMittelpunktRW, dKreisMittelpunktHW, dKreisRadius, dGeradeRW1, dGeradeHW1, dGeradeRW2,
               dGeradeHW2, dGeradeParallenabstand, dKreisPunktRW, dKreisPunktHW, dGeradePunktRW,
               dGeradePunktHW))
    return enmResult::Fehler_Allgemein;
  const Lage M{dKreisMittelpunktRW, dKreisMittelpunktHW};
  // The engine kinds of 9 to 14. Deliberate: 11, the parallel through a point with a given radius, takes the
  // branch of 9: its parallel distance counts and its point is ignored.
  constexpr std::array<int, 6> Arten = {2, 2, 2, 3, 4, 4};
  const int Wahl = static_cast<int>(eSchnittart);
  const int Art = Wahl < 9 || Wahl > 14 ? 0 : Arten[static_cast<std::size_t>(Wahl - 9)];
  const bool RadiusVomPunkt = Wahl % 2 == 0;
  const double r = RadiusVomPunkt ? Abstand(M, {dKreisPunktRW, dKreisPunktHW}) : dKreisRadius;
  KreisGeradeSchnitt Werte;
  const int Ergebnis = SchnittKreisGeradeBerechnung(Art, M, r,
                                                    {{dGeradeRW1, dGeradeHW1},
                                                     {dGeradeRW2, dGeradeHW2},
                                                     dGeradeParallenabstand,
                                                     {dGeradePunktRW, dGeradePunktHW}},
                                                    Werte);
  if (Ergebnis >= 0) {
    dSchnittpunkt1RW = Werte.S1.RW;
    dSchnittpunkt1HW = Werte.S1.HW;
    dSchnittpunkt2RW = Werte.S2.RW;
    dSchnittpunkt2HW = Werte.S2.HW;
    Ausgeben(dSchnittwinkelGon, Werte.Winkel / 0.9);
  }
  return AnzahlAusgeben(Ergebnis, iAnzahlSchnittpunkte);
}

enmResult TA::SchnittKreisGeradePnr(const Wert& vKreisMittelpunktPnr, double dKreisRadius,
                                    const Wert& vGeradePnr1, const Wert& vGeradePnr2,
                                    double& dSchnittpunkt1RW, double& dSchnittpunkt1HW,
                                    double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
                                    double* dSchnittwinkelGon, std::int16_t* iAnzahlSchnittpunkte,
                                    enmArtGeradenschnitt eSchnittart, double dGeradeParallenabstand,
                                    const Wert& vKreisPunktPnr, const Wert& vGeradePunktPnr) {
  std::array<Lage, 3> P;
  Lage Kreispunkt, Geradenpunkt;
  if (!Punkte<3>({&vKreisMittelpunktPnr, &vGeradePnr1, &vGeradePnr2}, P) ||
      !PunktWahl(vKreisPunktPnr, Kreispunkt) || !PunktWahl(vGeradePunktPnr, Geradenpunkt))
    return enmResult::Fehler_PunktNichtVorhanden;
  return SchnittKreisGerade(P[0].RW, P[0].HW, dKreisRadius, P[1].RW, P[1].HW, P[2].RW, P[2].HW,
                            dSchnittpunkt1RW, dSchnittpunkt1HW, dSchnittpunkt2RW, dSchnittpunkt2HW,
                            dSchnittwinkelGon, iAnzahlSchnittpunkte, eSchnittart, dGeradeParallenabstand,
                            Kreispunkt.RW, Kreispunkt.HW, Geradenpunkt.RW, Geradenpunkt.HW);
}

enmResult TA::SchnittKreisKreis(double dKreis1MittelpunktRW, double dKreis1MittelpunktHW,
                                double dKreis1Radius, double dKreis2MittelpunktRW,
                                double dKreis2MittelpunktHW, double dKreis2Radius, double& dSchnittpunkt1RW,
                                double& dSchnittpunkt1HW, double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
                                double* dSchnittwinkelGon, std::int16_t* iAnzahlSchnittpunkte,
                                enmArtGeradenschnitt eSchnittart, double dKreis1PunktRW,
                                double dKreis1PunktHW, double dKreis2PunktRW, double dKreis2PunktHW) {
  if (!Endlich(dKreis1MittelpunktRW, dKreis1MittelpunktHW, dKreis1Radius, dKreis2MittelpunktRW,
               dKreis2MittelpunktHW, dKreis2Radius, dKreis1PunktRW, dKreis1PunktHW, dKreis2PunktRW,
               dKreis2PunktHW))
    return enmResult::Fehler_Allgemein;
  const Lage M1{dKreis1MittelpunktRW, dKreis1MittelpunktHW}, M2{dKreis2MittelpunktRW, dKreis2MittelpunktHW};
  double r1 = 0, r2 = 0;  // another kind leaves the radii 0, which the engine refuses
  const int Wahl = static_cast<int>(eSchnittart);
  if (Wahl >= 15 && Wahl <= 18) {
    r1 = Wahl >= 17 ? Abstand(M1, {dKreis1PunktRW, dKreis1PunktHW}) : dKreis1Radius;
    r2 = Wahl % 2 == 0 ? Abstand(M2, {dKreis2PunktRW, dKreis2PunktHW}) : dKreis2Radius;
  }
  Lage S1, S2;
  double Winkel = 0;
  const int Ergebnis = SchnittKreisKreisBerechnung(M1, r1, M2, r2, S1, S2, Winkel);
  if (Ergebnis > 0) {
    dSchnittpunkt1RW = S1.RW;
    dSchnittpunkt1HW = S1.HW;
    dSchnittpunkt2RW = S2.RW;
    dSchnittpunkt2HW = S2.HW;
    Ausgeben(dSchnittwinkelGon, Winkel / 0.9);
  }
  return AnzahlAusgeben(Ergebnis, iAnzahlSchnittpunkte);
}

enmResult TA::SchnittKreisKreisPnr(const Wert& vKreis1MittelPnr, double dKreis1Radius,
                                   const Wert& vKreis2MittelPnr, double dKreis2Radius,
                                   double& dSchnittpunkt1RW, double& dSchnittpunkt1HW,
                                   double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
                                   double* dSchnittwinkelGon, std::int16_t* iAnzahlSchnittpunkte,
                                   enmArtGeradenschnitt eSchnittart, const Wert& vKreis1Pnr,
                                   const Wert& vKreis2Pnr) {
  std::array<Lage, 2> P;
  Lage Punkt1, Punkt2;
  if (!Punkte<2>({&vKreis1MittelPnr, &vKreis2MittelPnr}, P) || !PunktWahl(vKreis1Pnr, Punkt1) ||
      !PunktWahl(vKreis2Pnr, Punkt2))
    return enmResult::Fehler_PunktNichtVorhanden;
  return SchnittKreisKreis(P[0].RW, P[0].HW, dKreis1Radius, P[1].RW, P[1].HW, dKreis2Radius, dSchnittpunkt1RW,
                           dSchnittpunkt1HW, dSchnittpunkt2RW, dSchnittpunkt2HW, dSchnittwinkelGon,
                           iAnzahlSchnittpunkte, eSchnittart, Punkt1.RW, Punkt1.HW, Punkt2.RW, Punkt2.HW);
}

enmResult TA::KreisMittelpunkt(double dBogenpunkt1RW, double dBogenpunkt1HW, double dBogenpunkt2RW,
                               double dBogenpunkt2HW, double dBogenpunkt3RW, double dBogenpunkt3HW,
                               double& dMittelpunktRW, double& dMittelpunkt3HW, double* dRadius,
                               double* dSchnittwinkelGon) {
  if (!Endlich(dBogenpunkt1RW, dBogenpunkt1HW, dBogenpunkt2RW, dBogenpunkt2HW, dBogenpunkt3RW,
               dBogenpunkt3HW))
    return enmResult::Fehler_Allgemein;
  Kreismittelpunkt Kreis;
  if (KreisMittelpunktBerechnung({dBogenpunkt1RW, dBogenpunkt1HW}, {dBogenpunkt2RW, dBogenpunkt2HW},
                                 {dBogenpunkt3RW, dBogenpunkt3HW}, Kreis) < 0)
    return enmResult::Fehler_Allgemein;
  dMittelpunktRW = Kreis.M.RW;
  dMittelpunkt3HW = Kreis.M.HW;
  Ausgeben(dRadius, Kreis.Radien[0]);
  Ausgeben(dSchnittwinkelGon, Kreis.WinkelGon);  // gon already, not divided by 0.9
  return enmResult::ok;
}

enmResult TA::KreisMittelpunktPnr(const Wert& vBogenpunkt1Pnr, const Wert& vBogenpunkt2Pnr,
                                  const Wert& vBogenpunkt3Pnr, double& dMittelpunktRW,
                                  double& dMittelpunkt3HW, double* dRadius, double* dSchnittwinkelGon) {
  std::array<Lage, 3> P;
  if (!Punkte<3>({&vBogenpunkt1Pnr, &vBogenpunkt2Pnr, &vBogenpunkt3Pnr}, P))
    return enmResult::Fehler_PunktNichtVorhanden;
  return KreisMittelpunkt(P[0].RW, P[0].HW, P[1].RW, P[1].HW, P[2].RW, P[2].HW, dMittelpunktRW,
                          dMittelpunkt3HW, dRadius, dSchnittwinkelGon);
}

}  // namespace tavorena
