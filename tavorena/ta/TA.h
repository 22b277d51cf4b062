#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <tavorena/core/Wert.h>

/// @file
/// The class TA, the one header of other programs.

/// The calculation package: values, points, calculations.
namespace tavorena {

/// Result of nearly every method of TA. Values and names are published and stay.
enum class enmResult : std::int32_t {
  ok = 0,
  Fehler_Allgemein = 1,  ///< bad input, or no solution
  Fehler_AnfangsUndEndpunktGleich = 2,
  Hinweis_GeradenParallel = 3,
  Hinweis_GeradeSchneidetKreisNicht = 4,
  Hinweis_KreiseSchneidenNicht = 5,
  Fehler_PunktNichtVorhanden = 6,
  Fehler_ZweiRichtungenGleich = 7,
  Hinweis_GefaehrlicherKreis = 8,
  Hinweis_PunktAusserhalbDesPasspunktfeldes = 9,
  Fehler_GefaehrlicherKreis = 10,
  Fehler_DateiNichtVorhanden = 11,  ///< the file is missing or can not be read
  Fehler_ZuweningePunkte = 12,
  Fehler_ZuvielePunkte = 13,
};

/// How the two figures of an intersection are given: Orig the line with its parallel distance, Parallpunkt
/// the parallel through a point, Senkrpunkt the perpendicular through it; Radius a given radius, Punkt a
/// radius taken from a point on the arc.
enum class enmArtGeradenschnitt : std::int32_t {
  Gerade1Orig_Gerade2Orig = 0,
  Gerade1Orig_Gerade2Parallpunkt = 1,
  Gerade1Orig_Gerade2Senkrpunkt = 2,
  Gerade1Parallpunkt_Gerade2Orig = 3,
  Gerade1Parallpunkt_Gerade2Parallpunkt = 4,
  Gerade1Parallpunkt_Gerade2Senkrpunkt = 5,
  Gerade1Senkrpunkt_Gerade2Orig = 6,
  Gerade1Senkrpunkt_Gerade2Parallpunkt = 7,
  Gerade1Senkrpunkt_Gerade2Senkrpunkt = 8,
  GeradeOrig_KreisRadius = 9,
  GeradeOrig_KreisPunkt = 10,
  GeradeParallpunkt_KreisRadius = 11,
  GeradeParallpunkt_KreisPunkt = 12,
  GeradeSenkrpunkt_KreisRadius = 13,
  GeradeSenkrpunkt_KreisPunkt = 14,
  Kreis1Radius_Kreis2Radius = 15,
  Kreis1Radius_Kreis2Punkt = 16,
  Kreis1Punkt_Kreis2Radius = 17,
  Kreis2Punkt_Kreis2Punkt = 18,
};

/// The calculations of the package for other programs.
///
/// Units and frame: coordinates in metres, RW = Rechts (east), HW = Hoch (north); angles in gon,
/// clockwise from north. Point numbers (v...) are numbers or texts. Optional results are pointers and may
/// be left out.
///
/// A method never shows a dialog; its result is the only report. A coordinate or distance that is not
/// finite gives Fehler_Allgemein with all outputs untouched. A ...Pnr twin looks its points up in the
/// point table in the order of its parameters and stops at the first missing one with
/// Fehler_PunktNichtVorhanden; the table is filled by KoordinatendateiLesen and stays between calls.
///
/// Accuracy: plane calculations lose rounding only, below 1e-8 m in grid coordinates as long as the figure
/// does not graze. The conversions are series; largest differences from the exact projection over Germany:
/// Gauss-Krüger within its strip 0.02 mm both ways, against the defined Bessel ellipsoid, whose b is 0.2 mm
/// shorter, 0.23 mm; UTM within its zone 0.11 mm forward, 0.41 mm back.
///
/// Sources: H. Kahmen, Vermessungskunde (elements of lines, intersections, free stationing); J. Collins 1671
/// and J. D. Cassini 1669 (resection); C. F. Gauss (area); I. Kåsa 1976 (circle); C. D. Ghilani, Adjustment
/// Computations (transformations); L. Krüger 1912 (grids). The headers of the single calculations say more.
///
/// One thread, one object at work: the table belongs to the process.
class TA {
 public:
  /// Begins with an empty point table and the default settings, and silences every question. What the program
  /// around it had of these, its hooks too, is put aside and comes back with the end of the last object.
  TA();
  ~TA();
  TA(const TA&) = delete;
  TA& operator=(const TA&) = delete;

  /// Distance between two points against a measured one.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW the two points [m]
  /// @param[out] dEntfGerechnet distance from the coordinates [m]; written in every case
  /// @param[in] dEntfGemessen measured distance [m]; 0 means not measured
  /// @param[out] dAbweichungZulaessig permitted discrepancy D = 0.05 + 0.0003 s + 0.008 sqrt(s) [m]
  /// @param[out] dAbweichung computed minus measured [m]
  /// @return ok; Fehler_Allgemein without a measured distance, although dEntfGerechnet is valid then
  enmResult Entfernungskontrolle(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                 double& dEntfGerechnet, double dEntfGemessen = 0.0,
                                 double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr);
  /// Entfernungskontrolle by point numbers.
  enmResult EntfernungskontrollePnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                    double dEntfGemessen = 0.0, double* dAbweichungZulaessig = nullptr,
                                    double* dAbweichung = nullptr);

  /// Tie-in of line elements.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW start and end of the line [m]
  /// @param[out] dEntfGerechnet distance from the coordinates [m]
  /// @param[in] dAnlegemass, dEndmass tape readings on start and end [m]; a dEndmass of 0 means not
  ///     measured
  /// @param[out] dAbweichungZulaessig D [m], in every case
  /// @param[out] dAbweichung computed minus measured [m]; 0 when not measured
  /// @param[out] dMassstab (dEndmass - dAnlegemass) / dEntfGerechnet; 1 when not measured
  /// @return ok; Fehler_AnfangsUndEndpunktGleich if the points coincide and dEndmass is given
  enmResult LinienelementeAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                    double& dEntfGerechnet, double dAnlegemass = 0.0, double dEndmass = 0.0,
                                    double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                                    double* dMassstab = nullptr);
  /// LinienelementeAnschluss by point numbers.
  enmResult LinienelementeAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                       double dAnlegemass = 0.0, double dEndmass = 0.0,
                                       double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                                       double* dMassstab = nullptr);

  /// Orthogonal elements of a point against the line start -> end.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW start and end of the line [m]
  /// @param[in] dLinelRW, dLinelHW the point [m]
  /// @param[out] dLinie along the line from the start [m]; negative behind it
  /// @param[out] dSeitwaerts offset [m]; positive to the right of start -> end
  /// @return ok; Fehler_AnfangsUndEndpunktGleich, the outputs are then untouched
  enmResult Linienelemente(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dLinelRW,
                           double dLinelHW, double& dLinie, double& dSeitwaerts);
  /// Linienelemente by point numbers.
  enmResult LinienelementePnr(const Wert& vPnr1, const Wert& vPnr2, const Wert& vLinelpnr, double& dLinie,
                              double& dSeitwaerts);

  /// Tie-in of polar elements.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW station and reference point [m]
  /// @param[out] dEntfGerechnet distance from the coordinates [m]
  /// @param[out] dAnschlussrichtung clockwise intermediate of the bearing [gon] (bearing + 300, not
  ///     reduced)
  /// @param[out] dNordrichtungGon bearing start -> end [gon]
  /// @return ok; Fehler_AnfangsUndEndpunktGleich
  enmResult PolarelementeAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                   double& dEntfGerechnet, double* dAnschlussrichtung = nullptr,
                                   double* dNordrichtungGon = nullptr);
  /// PolarelementeAnschluss by point numbers.
  enmResult PolarelementeAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                      double* dAnschlussrichtung = nullptr,
                                      double* dNordrichtungGon = nullptr);

  /// Direction and distance from the start to a point.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW station and reference point [m]
  /// @param[in] dPolelRW, dPolelHW the point [m]
  /// @param[out] dPolelWinkelGon reading on the point [gon], 0 up to below 400
  /// @param[out] dPolelStrecke distance to the point [m]
  /// @param[in] dAnschlussrichtungGemessen circle reading on the end point (a Wert in spite of its prefix)
  ///     [gon]
  /// @param[out] dNordrichtung bearing start -> end [gon]; written even if the points coincide
  /// @return ok; Fehler_AnfangsUndEndpunktGleich
  enmResult Polarelemente(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dPolelRW,
                          double dPolelHW, double& dPolelWinkelGon, double& dPolelStrecke,
                          const Wert& dAnschlussrichtungGemessen = Wert(0.0),
                          double* dNordrichtung = nullptr);
  /// Polarelemente by point numbers.
  enmResult PolarelementePnr(const Wert& vPnr1, const Wert& vPnr2, const Wert& vPolelpnr,
                             double& dPolelWinkelGon, double& dPolelStrecke,
                             const Wert& dAnschlussrichtungGemessen = Wert(0.0),
                             double* dNordrichtung = nullptr);

  /// Tie-in of a measured line.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW start and end of the line [m]
  /// @param[out] dEntfGerechnet distance from the coordinates [m]
  /// @param[in] dAnlegemass, dEndmass tape readings on start and end [m]; a dEndmass of 0 means not
  ///     measured
  /// @param[out] dAbweichungZulaessig permitted discrepancy D [m], in every case
  /// @param[out] dAbweichung computed minus measured [m]; 0 when not measured
  /// @param[out] dMassstab dEntfGerechnet / (dEndmass - dAnlegemass): the reverse of
  ///     LinienelementeAnschluss, on purpose; 1 when not measured
  /// @return ok; Fehler_AnfangsUndEndpunktGleich if dEndmass is given and equals dAnlegemass
  enmResult MesslinieAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                               double& dEntfGerechnet, double dAnlegemass = 0.0, double dEndmass = 0.0,
                               double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                               double* dMassstab = nullptr);
  /// MesslinieAnschluss by point numbers.
  enmResult MesslinieAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dEntfGerechnet,
                                  double dAnlegemass = 0.0, double dEndmass = 0.0,
                                  double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                                  double* dMassstab = nullptr);

  /// One new point of a measured line, from the tape reading and the offset. The point is placed by the
  /// measured scale; no further scale is to be applied.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW start and end of the line [m]
  /// @param[in] dLinie tape reading at the foot of the point [m]
  /// @param[in] dSeitwaerts offset [m], positive to the right
  /// @param[out] dNeupunktRw, dNeupunktHw the new point [m]
  /// @param[in] dAnlegemass, dEndmass tape readings on start and end [m]; a dEndmass of 0 means not
  ///     measured
  /// @return ok; Fehler_AnfangsUndEndpunktGleich if dEndmass is given and equals dAnlegemass: the outputs
  ///     are then the start point
  enmResult Messlinie(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dLinie,
                      double dSeitwaerts, double& dNeupunktRw, double& dNeupunktHw, double dAnlegemass = 0.0,
                      double dEndmass = 0.0);
  /// Messlinie by point numbers.
  enmResult MessliniePnr(const Wert& vPnr1, const Wert& vPnr2, double dLinie, double dSeitwaerts,
                         double& dNeupunktRw, double& dNeupunktHw, double dAnlegemass = 0.0,
                         double dEndmass = 0.0);

  /// Tie-in of polar points: station and reference point.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW station and reference point [m]
  /// @param[out] dStreckeGerechnet distance from the coordinates [m]
  /// @param[in] dStreckeGemessen measured distance [m]; 0 means not measured
  /// @param[out] dNordrichtungGon bearing station -> reference point [gon]
  /// @param[out] dAbweichungZulaessig permitted discrepancy D [m], in every case
  /// @param[out] dAbweichung computed minus measured [m]
  /// @param[out] dMassstab computed / measured; 1 when not measured
  /// @return ok, also for two equal points
  enmResult PolarpunktAnschluss(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW,
                                double& dStreckeGerechnet, double dStreckeGemessen = 0.0,
                                double* dNordrichtungGon = nullptr, double* dAbweichungZulaessig = nullptr,
                                double* dAbweichung = nullptr, double* dMassstab = nullptr);
  /// PolarpunktAnschluss by point numbers.
  enmResult PolarpunktAnschlussPnr(const Wert& vPnr1, const Wert& vPnr2, double& dStreckeGerechnet,
                                   double dStreckeGemessen = 0.0, double* dNordrichtungGon = nullptr,
                                   double* dAbweichungZulaessig = nullptr, double* dAbweichung = nullptr,
                                   double* dMassstab = nullptr);

  /// One polar point.
  /// @param[in] dAnfRW, dAnfHW, dEndRW, dEndHW station and reference point [m]
  /// @param[in] dWinkelGon circle reading on the point [gon]
  /// @param[in] dStrecke horizontal distance [m]
  /// @param[out] dNeupunktRw, dNeupunktHw the new point [m]
  /// @param[in] dOrientierungGon circle reading on the reference point [gon]
  /// @param[in] dMassstab factor of dStrecke
  /// @return ok; Fehler_AnfangsUndEndpunktGleich, the outputs are then untouched
  enmResult Polarpunkt(double dAnfRW, double dAnfHW, double dEndRW, double dEndHW, double dWinkelGon,
                       double dStrecke, double& dNeupunktRw, double& dNeupunktHw,
                       double dOrientierungGon = 0.0, double dMassstab = 1.0);
  /// Polarpunkt by point numbers.
  enmResult PolarpunktPnr(const Wert& vPnr1, const Wert& vPnr2, double dWinkelGon, double dStrecke,
                          double& dNeupunktRw, double& dNeupunktHw, double dOrientierungGon = 0.0,
                          double dMassstab = 1.0);

  /// Intersection of two lines, each as given, shifted in parallel, or replaced by a parallel or a
  /// perpendicular through a point.
  /// @param[in] dGerade1RW1, dGerade1HW1, dGerade1RW2, dGerade1HW2 two points of line 1 [m]
  /// @param[in] dGerade2RW1, dGerade2HW1, dGerade2RW2, dGerade2HW2 two points of line 2 [m]
  /// @param[out] dSchnittpunktRW, dSchnittpunktHW the intersection [m]
  /// @param[out] dSchnittwinkelGon crossing angle [gon], 0 to 100
  /// @param[in] eSchnittart how the two lines are meant, 0 to 8
  /// @param[in] dGerade1Parallenabstand shift of line 1 [m]; positive to the right of its direction
  /// @param[in] dGerade2Parallenabstand the same for line 2 [m]
  /// @param[in] dGerade1PunktRW, dGerade1PunktHW point for the parallel or the perpendicular of line 1 [m]
  /// @param[in] dGerade2PunktRW, dGerade2PunktHW the same for line 2 [m]
  /// @return ok; Hinweis_GeradenParallel; Fehler_AnfangsUndEndpunktGleich if a line can not be built;
  ///     Fehler_Allgemein for another eSchnittart. The outputs are untouched then.
  enmResult SchnittGeradeGerade(
      double dGerade1RW1, double dGerade1HW1, double dGerade1RW2, double dGerade1HW2, double dGerade2RW1,
      double dGerade2HW1, double dGerade2RW2, double dGerade2HW2, double& dSchnittpunktRW,
      double& dSchnittpunktHW, double* dSchnittwinkelGon = nullptr,
      enmArtGeradenschnitt eSchnittart = enmArtGeradenschnitt::Gerade1Orig_Gerade2Orig,
      double dGerade1Parallenabstand = 0.0, double dGerade2Parallenabstand = 0.0,
      double dGerade1PunktRW = 0.0, double dGerade1PunktHW = 0.0, double dGerade2PunktRW = 0.0,
      double dGerade2PunktHW = 0.0);
  /// SchnittGeradeGerade by point numbers; an empty vGerade1Pnr or vGerade2Pnr is not looked up.
  enmResult SchnittGeradeGeradePnr(
      const Wert& vGerade1Pnr1, const Wert& vGerade1Pnr2, const Wert& vGerade2Pnr1, const Wert& vGerade2Pnr2,
      double& dSchnittpunktRW, double& dSchnittpunktHW, double* dSchnittwinkelGon = nullptr,
      enmArtGeradenschnitt eSchnittart = enmArtGeradenschnitt::Gerade1Orig_Gerade2Orig,
      double dGerade1Parallenabstand = 0.0, double dGerade2Parallenabstand = 0.0,
      const Wert& vGerade1Pnr = Wert{}, const Wert& vGerade2Pnr = Wert{});

  /// Intersection of a circle and a line. Of two solutions the first lies further along the direction of
  /// the line.
  /// @param[in] dKreisMittelpunktRW, dKreisMittelpunktHW centre of the circle [m]
  /// @param[in] dKreisRadius radius [m]; not used where eSchnittart takes it from a point on the arc
  /// @param[in] dGeradeRW1, dGeradeHW1, dGeradeRW2, dGeradeHW2 two points of the line [m]
  /// @param[out] dSchnittpunkt1RW, dSchnittpunkt1HW, dSchnittpunkt2RW, dSchnittpunkt2HW the solutions [m]
  /// @param[out] dSchnittwinkelGon crossing angle [gon], 0 to 100; -9999 / 0.9 where the line misses the
  ///     circle
  /// @param[out] iAnzahlSchnittpunkte 0 none, 1 or 2 points, 3 the touching point (first solution)
  /// @param[in] eSchnittart 9 to 14; 11 takes the branch of 9 on purpose: the distance is used, the point
  ///     ignored
  /// @param[in] dGeradeParallenabstand shift of the line [m]; positive to the right of its direction
  /// @param[in] dKreisPunktRW, dKreisPunktHW point on the arc that the radius is taken from [m]
  /// @param[in] dGeradePunktRW, dGeradePunktHW point for the parallel or the perpendicular [m]
  /// @return ok, also for a miss (all four coordinates 0); Fehler_AnfangsUndEndpunktGleich if the line can
  ///     not be built; Fehler_Allgemein for another eSchnittart or a radius not above 0
  enmResult SchnittKreisGerade(
      double dKreisMittelpunktRW, double dKreisMittelpunktHW, double dKreisRadius, double dGeradeRW1,
      double dGeradeHW1, double dGeradeRW2, double dGeradeHW2, double& dSchnittpunkt1RW,
      double& dSchnittpunkt1HW, double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
      double* dSchnittwinkelGon = nullptr, std::int16_t* iAnzahlSchnittpunkte = nullptr,
      enmArtGeradenschnitt eSchnittart = enmArtGeradenschnitt::GeradeOrig_KreisRadius,
      double dGeradeParallenabstand = 0.0, double dKreisPunktRW = 0.0, double dKreisPunktHW = 0.0,
      double dGeradePunktRW = 0.0, double dGeradePunktHW = 0.0);
  /// SchnittKreisGerade by point numbers; empty optional numbers are not looked up.
  enmResult SchnittKreisGeradePnr(
      const Wert& vKreisMittelpunktPnr, double dKreisRadius, const Wert& vGeradePnr1, const Wert& vGeradePnr2,
      double& dSchnittpunkt1RW, double& dSchnittpunkt1HW, double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
      double* dSchnittwinkelGon = nullptr, std::int16_t* iAnzahlSchnittpunkte = nullptr,
      enmArtGeradenschnitt eSchnittart = enmArtGeradenschnitt::GeradeOrig_KreisRadius,
      double dGeradeParallenabstand = 0.0, const Wert& vKreisPunktPnr = Wert{},
      const Wert& vGeradePunktPnr = Wert{});

  /// Intersection of two circles. The first solution lies right of the direction from centre 1 to centre
  /// 2.
  /// @param[in] dKreis1MittelpunktRW, dKreis1MittelpunktHW, dKreis2MittelpunktRW, dKreis2MittelpunktHW
  ///     centres [m]
  /// @param[in] dKreis1Radius, dKreis2Radius radii [m]; not used where taken from a point on the arc
  /// @param[out] dSchnittpunkt1RW, dSchnittpunkt1HW, dSchnittpunkt2RW, dSchnittpunkt2HW the solutions [m]
  /// @param[out] dSchnittwinkelGon crossing angle [gon]
  /// @param[out] iAnzahlSchnittpunkte 0 or 2; circles that touch give 2 equal points
  /// @param[in] eSchnittart 15 to 18: which radii are taken from a point on the arc
  /// @param[in] dKreis1PunktRW, dKreis1PunktHW, dKreis2PunktRW, dKreis2PunktHW points on the arcs [m]
  /// @return ok, also for a miss; Fehler_AnfangsUndEndpunktGleich for equal centres, a radius of 0 or
  ///     another eSchnittart
  enmResult SchnittKreisKreis(
      double dKreis1MittelpunktRW, double dKreis1MittelpunktHW, double dKreis1Radius,
      double dKreis2MittelpunktRW, double dKreis2MittelpunktHW, double dKreis2Radius,
      double& dSchnittpunkt1RW, double& dSchnittpunkt1HW, double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
      double* dSchnittwinkelGon = nullptr, std::int16_t* iAnzahlSchnittpunkte = nullptr,
      enmArtGeradenschnitt eSchnittart = enmArtGeradenschnitt::Kreis1Radius_Kreis2Radius,
      double dKreis1PunktRW = 0.0, double dKreis1PunktHW = 0.0, double dKreis2PunktRW = 0.0,
      double dKreis2PunktHW = 0.0);
  /// SchnittKreisKreis by point numbers; empty optional numbers are not looked up.
  enmResult SchnittKreisKreisPnr(
      const Wert& vKreis1MittelPnr, double dKreis1Radius, const Wert& vKreis2MittelPnr, double dKreis2Radius,
      double& dSchnittpunkt1RW, double& dSchnittpunkt1HW, double& dSchnittpunkt2RW, double& dSchnittpunkt2HW,
      double* dSchnittwinkelGon = nullptr, std::int16_t* iAnzahlSchnittpunkte = nullptr,
      enmArtGeradenschnitt eSchnittart = enmArtGeradenschnitt::Kreis1Radius_Kreis2Radius,
      const Wert& vKreis1Pnr = Wert{}, const Wert& vKreis2Pnr = Wert{});

  /// Area of a closed boundary of straight edges and arcs. Row i describes the edge from point i to the
  /// next one, the last row the closing edge.
  /// @param[in] dPunktRW, dPunktHW the points of the boundary in its sense [m]
  /// @param[in] dRadius radius of the edge [m]; 0 straight, positive adds the segment of the short arc,
  ///     negative takes it away
  /// @param[in] lPunktanzahl number of points
  /// @param[out] dFlaeche polygon area plus arc segments [m2]; the sign tells the sense of the boundary
  /// @param[out] dUmring perimeter [m]
  /// @param[out] dBogenflaeche sum of the arc segments with their signs [m2]
  /// @return ok; Fehler_Allgemein for a count that the arrays do not hold
  enmResult Flaechenberechnung(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                               std::span<const double> dRadius, std::int32_t lPunktanzahl, double& dFlaeche,
                               double* dUmring = nullptr, double* dBogenflaeche = nullptr);
  /// Flaechenberechnung by point numbers.
  enmResult FlaechenberechnungPnr(std::span<const Wert> vPunktPnr, std::span<const double> dRadius,
                                  std::int32_t lPunktanzahl, double& dFlaeche, double* dUmring = nullptr,
                                  double* dBogenflaeche = nullptr);

  /// Best-fit line: the longer of the two regressions, H on R and R on H. Not an orthogonal regression.
  /// @param[in] dPunktRW, dPunktHW the points [m]
  /// @param[in] lPunktanzahl number of points
  /// @param[out] AusgleichendeGeradeAnfRW, AusgleichendeGeradeAnfHW foot of one outermost point on the
  ///     line [m]
  /// @param[out] AusgleichendeGeradeEndRW, AusgleichendeGeradeEndHW foot of the other one [m]
  /// @return ok; Fehler_Allgemein without points
  enmResult AusgleichendeGerade(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                                std::int32_t lPunktanzahl, double& AusgleichendeGeradeAnfRW,
                                double& AusgleichendeGeradeAnfHW, double& AusgleichendeGeradeEndRW,
                                double& AusgleichendeGeradeEndHW);
  /// AusgleichendeGerade by point numbers.
  enmResult AusgleichendeGeradePnr(std::span<const Wert> vPunktPnr, std::int32_t lPunktanzahl,
                                   double& AusgleichendeGeradeAnfRW, double& AusgleichendeGeradeAnfHW,
                                   double& AusgleichendeGeradeEndRW, double& AusgleichendeGeradeEndHW);

  /// Best-fit circle: one linearised step from the circle through the first, the middle and the last
  /// point. It is not iterated: with a poor start circle it stays short (54 mm in one published set).
  /// @param[in] dPunktRW, dPunktHW the points in the order of the arc [m]
  /// @param[in] lPunktanzahl number of points, 3 to 201
  /// @param[out] dAusgleichenderKreisMittelpunktRW, AusgleichenderKreisMittelpunktHW centre [m]
  /// @param[out] dAusgleichenderKreisRadius radius [m]
  /// @return ok; Fehler_Allgemein below 3 points or where these three lie on one line;
  ///     Fehler_ZuvielePunkte above 201
  enmResult AusgleichenderKreis(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                                std::int32_t lPunktanzahl, double& dAusgleichenderKreisMittelpunktRW,
                                double& AusgleichenderKreisMittelpunktHW, double& dAusgleichenderKreisRadius);
  /// AusgleichenderKreis by point numbers.
  enmResult AusgleichenderKreisPnr(std::span<const Wert> vPunktPnr, std::int32_t lPunktanzahl,
                                   double& dAusgleichenderKreisMittelpunktRW,
                                   double& AusgleichenderKreisMittelpunktHW,
                                   double& dAusgleichenderKreisRadius);

  /// Free stationing: the station and its orientation from directions, zenith angles and slope distances
  /// to known points.
  /// @param[in] dPunktRW, dPunktHW the known points [m]
  /// @param[in] dRichtungGon circle readings [gon]
  /// @param[in] dVkgon zenith angles [gon]; 0 gives a horizontal distance of 0
  /// @param[in] dStrecke slope distances [m]
  /// @param[in] lPunktanzahl number of points
  /// @param[out] dStandPunktRW, dStandPunktHW the station [m]
  /// @param[in] bTransformationsartHelmert true: scale free; false: scale fixed to 1
  /// @param[out] dVRechts, dVHoch, dWL residuals of each point and their length [m]
  /// @param[out] dMassstab scale of the distances
  /// @param[out] dEpsilonGon turns a local direction into a bearing [gon], 0 up to below 400
  /// @param[out] dStandardabwMK, FStandardabwML standard deviation of a coordinate and of a point [m]; 0
  ///     with a free scale and two points
  /// @return ok, also for one point and for sightings that all end on one spot: dMassstab is then 0, with a
  ///     fixed scale 1; Fehler_Allgemein without points or for a count that the arrays do not hold;
  ///     Fehler_ZuvielePunkte above 1001
  enmResult FreieStationierung(std::span<const double> dPunktRW, std::span<const double> dPunktHW,
                               std::span<const double> dRichtungGon, std::span<const double> dVkgon,
                               std::span<const double> dStrecke, std::int32_t lPunktanzahl,
                               double& dStandPunktRW, double& dStandPunktHW, bool bTransformationsartHelmert,
                               std::vector<double>& dVRechts, std::vector<double>& dVHoch,
                               std::vector<double>& dWL, double* dMassstab = nullptr,
                               double* dEpsilonGon = nullptr, double* dStandardabwMK = nullptr,
                               double* FStandardabwML = nullptr);
  /// FreieStationierung by point numbers.
  enmResult FreieStationierungPnr(std::span<const Wert> vPunktPnr, std::span<const double> dRichtungGon,
                                  std::span<const double> dVkgon, std::span<const double> dStrecke,
                                  std::int32_t lPunktanzahl, double& dStandPunktRW, double& dStandPunktHW,
                                  bool bTransformationsartHelmert, std::vector<double>& dVRechts,
                                  std::vector<double>& dVHoch, std::vector<double>& dWL,
                                  double* dMassstab = nullptr, double* dEpsilonGon = nullptr,
                                  double* dStandardabwMK = nullptr, double* FStandardabwML = nullptr);

  /// Polar point from a free station.
  /// @param[in] dStandPunktRW, dStandPunktHW the station [m]
  /// @param[in] dEpsilonGon orientation of the station [gon]
  /// @param[in] dMassstab scale of the distances
  /// @param[in] dRichtungGon circle reading [gon]
  /// @param[in] dStrecke slope distance [m]
  /// @param[in] dVkgon zenith angle [gon]
  /// @param[out] dKleinpunktRW, dKleinpunktHW the point [m]
  /// @return ok
  enmResult FreieStationierungKleinpunkt(double dStandPunktRW, double dStandPunktHW, double dEpsilonGon,
                                         double dMassstab, double dRichtungGon, double dStrecke,
                                         double dVkgon, double& dKleinpunktRW, double& dKleinpunktHW);

  /// Resection from three directions observed on the new point; point 2 is the middle one.
  /// @param[in] dPunkt1RW, dPunkt1HW, dPunkt2RW, dPunkt2HW, dPunkt3RW, dPunkt3HW the known points [m]
  /// @param[in] dPunkt1RichtungGon, dPunkt2RichtungGon, dPunkt3RichtungGon circle readings on them [gon]
  /// @param[in] bCassini true: Cassini, false: Collins
  /// @param[out] dNeupunktRw, dNeupunktHw the new point [m]
  /// @param[out] dTauGon1 angle between the sides at point 2 [gon]; its definition differs by 200 gon
  ///     between the methods, and only Cassini reduces it
  /// @param[out] dTauGon2 angle [gon]; near 0 the point lies on the circle through the three
  /// @return ok with a dTauGon2 of 20 or more; Hinweis_GefaehrlicherKreis from 5,
  ///     Fehler_GefaehrlicherKreis below (the point is delivered all the same);
  ///     Fehler_ZweiRichtungenGleich, Fehler_Allgemein where Collins finds the new point on the line through
  ///     points 1 and 3, or Fehler_GefaehrlicherKreis where Cassini can not compute it: the outputs are then
  ///     untouched
  enmResult Rueckwaertsschnitt(double dPunkt1RW, double dPunkt1HW, double dPunkt1RichtungGon,
                               double dPunkt2RW, double dPunkt2HW, double dPunkt2RichtungGon,
                               double dPunkt3RW, double dPunkt3HW, double dPunkt3RichtungGon, bool bCassini,
                               double& dNeupunktRw, double& dNeupunktHw, double* dTauGon1 = nullptr,
                               double* dTauGon2 = nullptr);
  /// Rueckwaertsschnitt by point numbers.
  enmResult RueckwaertsschnittPnr(const Wert& vPunkt1Pnr, double dPunkt1RichtungGon, const Wert& vPunkt2Pnr,
                                  double dPunkt2RichtungGon, const Wert& vPunkt3Pnr,
                                  double dPunkt3RichtungGon, bool bCassini, double& dNeupunktRw,
                                  double& dNeupunktHw, double* dTauGon1 = nullptr,
                                  double* dTauGon2 = nullptr);

  /// Forward intersection from two stations, each oriented on a far point.
  /// @param[in] dStandPunkt1RW, dStandPunkt1HW, dStandPunkt2RW, dStandPunkt2HW the stations [m]
  /// @param[in] dFernPunkt1RW, dFernPunkt1HW, dFernPunkt2RW, dFernPunkt2HW their far points [m]
  /// @param[in] dFernPunkt1RichtungGon, dFernPunkt2RichtungGon circle readings on the far points [gon]
  /// @param[in] dNeuPunktRichtung1Gon, dNeuPunktRichtung2Gon circle readings on the new point [gon]
  /// @param[out] dNeupunktRw, dNeupunktHw the new point [m]
  /// @param[out] dTauGon angle of the sightings [gon], vA - vB brought into 0 to 200
  /// @return ok; Fehler_Allgemein for parallel sightings, the outputs are then untouched
  enmResult VorwaertsschnittEbene(double dStandPunkt1RW, double dStandPunkt1HW, double dFernPunkt1RW,
                                  double dFernPunkt1HW, double dFernPunkt1RichtungGon,
                                  double dNeuPunktRichtung1Gon, double dStandPunkt2RW, double dStandPunkt2HW,
                                  double dFernPunkt2RW, double dFernPunkt2HW, double dFernPunkt2RichtungGon,
                                  double dNeuPunktRichtung2Gon, double& dNeupunktRw, double& dNeupunktHw,
                                  double* dTauGon = nullptr);
  /// VorwaertsschnittEbene by point numbers.
  enmResult VorwaertsschnittEbenePnr(const Wert& vStandPunkt1Pnr, const Wert& vFernPunkt1Pnr,
                                     double dFernPunkt1RichtungGon, double dNeuPunktRichtung1Gon,
                                     const Wert& vStandPunkt2Pnr, const Wert& vFernPunkt2Pnr,
                                     double dFernPunkt2RichtungGon, double dNeuPunktRichtung2Gon,
                                     double& dNeupunktRw, double& dNeupunktHw, double* dTauGon = nullptr);

  /// Geographic to Gauss-Krüger coordinates, 3-degree strips on the Bessel ellipsoid, scale 1. The strip
  /// follows from the longitude.
  /// @param[in] dGeographischeLaengeGrad, dGeographischeBreiteGrad degrees, east and north positive
  /// @param[out] dGKRechtswert, dGKHochwert grid coordinates [m]; the Rechtswert carries the strip
  /// @return ok
  enmResult KonvertierungGeographischNachGK(double dGeographischeLaengeGrad, double dGeographischeBreiteGrad,
                                            double& dGKRechtswert, double& dGKHochwert);

  /// The same from degrees, minutes and seconds.
  /// @param[in] lGeographischeLaengeGrad, lGeographischeBreiteGrad degrees, east and north positive
  /// @param[in] lGeographischeLaengeMinute, lGeographischeBreiteMinute minutes; with the sign of the degrees
  /// @param[in] dGeographischeLaengeSekunde, dGeographischeBreiteSekunde seconds; likewise
  /// @param[out] dGKRechtswert, dGKHochwert grid coordinates [m]; the Rechtswert carries the strip
  /// @return ok
  enmResult KonvertierungGeographischGMSNachGK(std::int32_t lGeographischeLaengeGrad,
                                               std::int32_t lGeographischeLaengeMinute,
                                               double dGeographischeLaengeSekunde,
                                               std::int32_t lGeographischeBreiteGrad,
                                               std::int32_t lGeographischeBreiteMinute,
                                               double dGeographischeBreiteSekunde, double& dGKRechtswert,
                                               double& dGKHochwert);

  /// Gauss-Krüger to geographic coordinates; the strip is the million of the Rechtswert.
  /// @param[in] dGKRechtswert, dGKHochwert grid coordinates [m]
  /// @param[out] dGeographischeLaenge, dGeographischeBreite degrees, east and north positive
  /// @return ok
  enmResult KonvertierungGKNachGeographisch(double dGKRechtswert, double dGKHochwert,
                                            double& dGeographischeLaenge, double& dGeographischeBreite);

  /// The same to degrees, minutes and seconds.
  /// @param[in] dGKRechtswert, dGKHochwert grid coordinates [m]
  /// @param[out] lGeographischeLaengeGrad, lGeographischeBreiteGrad degrees; they alone carry the sign
  /// @param[out] lGeographischeLaengeMinuten, lGeographischeBreiteMinuten minutes, 0 to 59
  /// @param[out] dGeographischeLaengeSekunden, dGeographischeBreiteSekunden seconds, 0 up to below 60
  /// @return ok; Fehler_Allgemein for degrees beyond 32 bits
  enmResult KonvertierungGKNachGeographischGMS(double dGKRechtswert, double dGKHochwert,
                                               std::int32_t& lGeographischeLaengeGrad,
                                               std::int32_t& lGeographischeLaengeMinuten,
                                               double& dGeographischeLaengeSekunden,
                                               std::int32_t& lGeographischeBreiteGrad,
                                               std::int32_t& lGeographischeBreiteMinuten,
                                               double& dGeographischeBreiteSekunden);

  /// UTM (GRS 80, scale 0.9996) to geographic coordinates.
  /// @param[in] dEasting, dNorthing grid coordinates without the zone [m]
  /// @param[in] lZone zone, 32 for 6 to 12 degrees east
  /// @param[out] dGeographischeLaengeGrad, dGeographischeBreiteGrad degrees
  /// @return ok
  enmResult KonvertierungUTMNachGeographisch(double dEasting, double dNorthing, std::int32_t lZone,
                                             double& dGeographischeLaengeGrad,
                                             double& dGeographischeBreiteGrad);

  /// The same to degrees, minutes and seconds.
  /// @param[in] dEasting, dNorthing grid coordinates without the zone [m]
  /// @param[in] lZone zone, 32 for 6 to 12 degrees east
  /// @param[out] lGeographischeLaengeGrad, lGeographischeBreiteGrad degrees; they alone carry the sign
  /// @param[out] lGeographischeLaengeMinuten, lGeographischeBreiteMinuten minutes, 0 to 59
  /// @param[out] dGeographischeLaengeSekunden, dGeographischeBreiteSekunden seconds, 0 up to below 60
  /// @return ok; Fehler_Allgemein for degrees beyond 32 bits
  enmResult KonvertierungUTMNachGeographischGMS(double dEasting, double dNorthing, std::int32_t lZone,
                                                std::int32_t& lGeographischeLaengeGrad,
                                                std::int32_t& lGeographischeLaengeMinuten,
                                                double& dGeographischeLaengeSekunden,
                                                std::int32_t& lGeographischeBreiteGrad,
                                                std::int32_t& lGeographischeBreiteMinuten,
                                                double& dGeographischeBreiteSekunden);

  /// Geographic to UTM coordinates (GRS 80, scale 0.9996).
  /// @param[in] dGeographischeLaengeGrad, dGeographischeBreiteGrad degrees, east and north positive
  /// @param[out] lZone zone that the longitude falls in
  /// @param[out] dEasting, dNorthing grid coordinates without the zone [m]
  /// @return ok
  enmResult KonvertierungGeographischNachUTM(double dGeographischeLaengeGrad, double dGeographischeBreiteGrad,
                                             std::int32_t& lZone, double& dEasting, double& dNorthing);

  /// The same from degrees, minutes and seconds.
  /// @param[in] lGeographischeLaengeGrad, lGeographischeBreiteGrad degrees, east and north positive
  /// @param[in] lGeographischeLaengeMinute, lGeographischeBreiteMinute minutes; with the sign of the degrees
  /// @param[in] dGeographischeLaengeSekunde, dGeographischeBreiteSekunde seconds; likewise
  /// @param[out] lZone zone that the longitude falls in
  /// @param[out] dEasting, dNorthing grid coordinates without the zone [m]
  /// @return ok
  enmResult KonvertierungGeographischGMSNachUTM(std::int32_t lGeographischeLaengeGrad,
                                                std::int32_t lGeographischeLaengeMinute,
                                                double dGeographischeLaengeSekunde,
                                                std::int32_t lGeographischeBreiteGrad,
                                                std::int32_t lGeographischeBreiteMinute,
                                                double dGeographischeBreiteSekunde, std::int32_t& lZone,
                                                double& dEasting, double& dNorthing);

  /// Four-parameter similarity from passpoints: Y = SY + a (R - sR) + b (H - sH), X = SX + a (H - sH) - b
  /// (R - sR).
  /// @param[in] dPasspunktAltesSystemRW, dPasspunktAltesSystemHW passpoints in the old system [m]
  /// @param[in] dPasspunktNeuesSystemRW, dPasspunktNeuesSystemHW the same points in the new system [m]
  /// @param[in] lPunktanzahl number of passpoints, 2 to 101
  /// @param[in] bMasstabaenderungZulaessig false: a and b are normalised to scale 1
  /// @param[out] dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW centroid of the passpoints [m], old
  ///     system
  /// @param[out] dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW centroid [m], new system
  /// @param[out] ParamA, ParamB the parameters a and b
  /// @param[out] dMassstab scale, sqrt(a^2 + b^2)
  /// @param[out] dDrehwinkelGon rotation [gon], 0 up to below 400
  /// @param[out] dMaximalerAbstand largest distance of a passpoint from the old centroid [m]
  /// @param[out] dRestklaffeVY, dRestklaffeVX, dLinieareAbweichungWL residuals [m], resized to the count;
  ///     0 with two passpoints
  /// @param[out] dStandardabwMK, dStandardabwML standard deviation of a coordinate and of a point [m]; 0
  ///     with two passpoints
  /// @return ok; Fehler_ZuweningePunkte below 2; Fehler_ZuvielePunkte above 101; Fehler_Allgemein where
  ///     all old passpoints coincide, or with a fixed scale all new ones
  enmResult HelmertTransformationParameter(
      std::span<const double> dPasspunktAltesSystemRW, std::span<const double> dPasspunktAltesSystemHW,
      std::span<const double> dPasspunktNeuesSystemRW, std::span<const double> dPasspunktNeuesSystemHW,
      std::int32_t lPunktanzahl, bool bMasstabaenderungZulaessig, double& dSchwerpunktAltesSystemRW,
      double& dSchwerpunktAltesSystemHW, double& dSchwerpunktNeuesSystemRW, double& dSchwerpunktNeuesSystemHW,
      double& ParamA, double& ParamB, double& dMassstab, double& dDrehwinkelGon, double& dMaximalerAbstand,
      std::vector<double>& dRestklaffeVY, std::vector<double>& dRestklaffeVX,
      std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK, double& dStandardabwML);

  /// The same with the passpoints of a file: the file holds the new system, the point table the old one.
  /// @param[in] strKoordinatendateiName the passpoint file
  /// @param[in] bMasstabaenderungZulaessig false: a and b are normalised to scale 1
  /// @param[out] dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW centroid of the passpoints [m], old
  ///     system
  /// @param[out] dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW centroid [m], new system
  /// @param[out] ParamA, ParamB the parameters a and b
  /// @param[out] dMassstab scale, sqrt(a^2 + b^2)
  /// @param[out] dDrehwinkelGon rotation [gon], 0 up to below 400
  /// @param[out] dMaximalerAbstand largest distance of a passpoint from the old centroid [m]
  /// @param[out] dRestklaffeVY, dRestklaffeVX, dLinieareAbweichungWL residuals [m], in the order of the file;
  ///     0 with two passpoints
  /// @param[out] dStandardabwMK, dStandardabwML standard deviation of a coordinate and of a point [m]; 0
  ///     with two passpoints
  /// @return as above; Fehler_DateiNichtVorhanden; Fehler_Allgemein for a file that can not be read;
  ///     Fehler_PunktNichtVorhanden for a number that the table lacks; Fehler_ZuvielePunkte above 101 points
  enmResult HelmertTransformationParameterPasspunktdatei(
      const std::string& strKoordinatendateiName, bool bMasstabaenderungZulaessig,
      double& dSchwerpunktAltesSystemRW, double& dSchwerpunktAltesSystemHW, double& dSchwerpunktNeuesSystemRW,
      double& dSchwerpunktNeuesSystemHW, double& ParamA, double& ParamB, double& dMassstab,
      double& dDrehwinkelGon, double& dMaximalerAbstand, std::vector<double>& dRestklaffeVY,
      std::vector<double>& dRestklaffeVX, std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK,
      double& dStandardabwML);

  /// Transforms one point and tells whether it lies within the passpoint field.
  /// @param[in] dPunktAltesSystemRW, dPunktAltesSystemHW the point [m]
  /// @param[in] dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW centroid [m], old system
  /// @param[in] dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW centroid [m], new system
  /// @param[in] ParamA, ParamB the parameters of the fit
  /// @param[in] dMaximalerAbstand border of the field [m]; with 0 every point counts as outside, unlike
  ///     the affine form, on purpose
  /// @param[out] dNeupunktRw, dNeupunktHw the point in the new system [m]
  /// @return ok; Hinweis_PunktAusserhalbDesPasspunktfeldes, the point is delivered all the same
  enmResult HelmertTransformationNeupunktSigmamax(
      double dPunktAltesSystemRW, double dPunktAltesSystemHW, double dSchwerpunktAltesSystemRW,
      double dSchwerpunktAltesSystemHW, double dSchwerpunktNeuesSystemRW, double dSchwerpunktNeuesSystemHW,
      double ParamA, double ParamB, double dMaximalerAbstand, double& dNeupunktRw, double& dNeupunktHw);

  /// Transforms one point without that test. @return ok
  enmResult HelmertTransformationNeupunkt(double dPunktAltesSystemRW, double dPunktAltesSystemHW,
                                          double dSchwerpunktAltesSystemRW, double dSchwerpunktAltesSystemHW,
                                          double dSchwerpunktNeuesSystemRW, double dSchwerpunktNeuesSystemHW,
                                          double ParamA, double ParamB, double& dNeupunktRw,
                                          double& dNeupunktHw);

  /// Transforms every point of the table in place; heights and other fields stay. It can not be undone.
  /// @return ok; Hinweis_PunktAusserhalbDesPasspunktfeldes if a point lies outside; with a dMaximalerAbstand
  ///     of 0 every one does
  enmResult HelmertTransformationAlleKoordinaten(double dSchwerpunktAltesSystemRW,
                                                 double dSchwerpunktAltesSystemHW,
                                                 double dSchwerpunktNeuesSystemRW,
                                                 double dSchwerpunktNeuesSystemHW, double ParamA,
                                                 double ParamB, double dMaximalerAbstand);

  /// Reads a coordinate file into the table, fits it to a passpoint file, transforms all points and writes
  /// the coordinate file back. Both files stay whole on any failure.
  /// @param[in] strKoordinatendateiName the coordinate file, old system; it is replaced
  /// @param[in] strPasspunktdateiName the passpoint file, new system
  /// @param[in] bMasstabaenderungZulaessig false: scale 1
  /// @param[in] lNachkomma decimals of the written coordinates, 0 to 15
  /// @return the first failure; Hinweis_PunktAusserhalbDesPasspunktfeldes after writing; ok. Besides the
  ///     failures of the single steps Fehler_Allgemein where all points would fall on one spot or a
  ///     coordinate would not fit its field, and Fehler_ZuvielePunkte for more points than the table holds
  enmResult HelmertTransformationKoordinatendateiPasspunktdatei(const std::string& strKoordinatendateiName,
                                                                const std::string& strPasspunktdateiName,
                                                                bool bMasstabaenderungZulaessig,
                                                                std::int32_t lNachkomma = 3);

  /// Six-parameter affine transformation: Y = a20 + a21 H + a22 R, X = a10 + a11 H + a12 R.
  /// @param[in] dPasspunktAltesSystemRW, dPasspunktAltesSystemHW passpoints in the old system [m]
  /// @param[in] dPasspunktNeuesSystemRW, dPasspunktNeuesSystemHW the same points in the new system [m]
  /// @param[in] lPunktanzahl number of passpoints, 2 or more
  /// @param[out] dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW centroid of the passpoints [m], old
  ///     system
  /// @param[out] dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW centroid [m], new system
  /// @param[out] dParamA10, dParamA11, dParamA12, dParamA20, dParamA21, dParamA22 the parameters
  /// @param[out] dMassstab1, dMassstab2 scale of the X and the Y axis
  /// @param[out] dDrehwinkel1Gon, dDrehwinkel2Gon directions of the transformed X and Y axes [gon]; without
  ///     shear the second is 100 more
  /// @param[out] dMaximalerAbstand largest distance of a passpoint from the old centroid [m]
  /// @param[out] dRestklaffeVY, dRestklaffeVX, dLinieareAbweichungWL residuals [m], resized to the count
  /// @param[out] dStandardabwMK, dStandardabwML standard deviation of a coordinate and of a point [m]; 0
  ///     up to three passpoints
  /// @return ok, also for passpoints on one line: the parameters are then 0; Fehler_ZuweningePunkte below
  ///     2
  enmResult AffinTransformationParameter(
      std::span<const double> dPasspunktAltesSystemRW, std::span<const double> dPasspunktAltesSystemHW,
      std::span<const double> dPasspunktNeuesSystemRW, std::span<const double> dPasspunktNeuesSystemHW,
      std::int32_t lPunktanzahl, double& dSchwerpunktAltesSystemRW, double& dSchwerpunktAltesSystemHW,
      double& dSchwerpunktNeuesSystemRW, double& dSchwerpunktNeuesSystemHW, double& dParamA10,
      double& dParamA11, double& dParamA12, double& dParamA20, double& dParamA21, double& dParamA22,
      double& dMassstab1, double& dMassstab2, double& dDrehwinkel1Gon, double& dDrehwinkel2Gon,
      double& dMaximalerAbstand, std::vector<double>& dRestklaffeVY, std::vector<double>& dRestklaffeVX,
      std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK, double& dStandardabwML);

  /// The same with the passpoints of a file: the file holds the new system, the point table the old one.
  /// @param[in] strKoordinatendateiName the passpoint file
  /// @param[out] dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW centroid of the passpoints [m], old
  ///     system
  /// @param[out] dSchwerpunktNeuesSystemRW, dSchwerpunktNeuesSystemHW centroid [m], new system
  /// @param[out] dParamA10, dParamA11, dParamA12, dParamA20, dParamA21, dParamA22 the parameters
  /// @param[out] dMassstab1, dMassstab2 scale of the X and the Y axis
  /// @param[out] dDrehwinkel1Gon, dDrehwinkel2Gon directions of the transformed X and Y axes [gon]; without
  ///     shear the second is 100 more
  /// @param[out] dMaximalerAbstand largest distance of a passpoint from the old centroid [m]
  /// @param[out] dRestklaffeVY, dRestklaffeVX, dLinieareAbweichungWL residuals [m], in the order of the file
  /// @param[out] dStandardabwMK, dStandardabwML standard deviation of a coordinate and of a point [m]; 0
  ///     up to three passpoints
  /// @return as HelmertTransformationParameterPasspunktdatei; Fehler_ZuvielePunkte above 1001 points
  enmResult AffinTransformationParameterPasspunktdatei(
      const std::string& strKoordinatendateiName, double& dSchwerpunktAltesSystemRW,
      double& dSchwerpunktAltesSystemHW, double& dSchwerpunktNeuesSystemRW, double& dSchwerpunktNeuesSystemHW,
      double& dParamA10, double& dParamA11, double& dParamA12, double& dParamA20, double& dParamA21,
      double& dParamA22, double& dMassstab1, double& dMassstab2, double& dDrehwinkel1Gon,
      double& dDrehwinkel2Gon, double& dMaximalerAbstand, std::vector<double>& dRestklaffeVY,
      std::vector<double>& dRestklaffeVX, std::vector<double>& dLinieareAbweichungWL, double& dStandardabwMK,
      double& dStandardabwML);

  /// Transforms one point and tells whether it lies within the passpoint field: its distance from the old
  /// centroid is at most dMaximalerAbstand.
  /// @param[in] dPunktAltesSystemRW, dPunktAltesSystemHW the point [m]
  /// @param[in] dSchwerpunktAltesSystemRW, dSchwerpunktAltesSystemHW centroid [m], old system
  /// @param[in] dParamA10, dParamA11, dParamA12, dParamA20, dParamA21, dParamA22 the parameters of the fit
  /// @param[in] dMaximalerAbstand border of the field [m]
  /// @param[out] dNeupunktRw, dNeupunktHw the point in the new system [m]
  /// @return ok; Hinweis_PunktAusserhalbDesPasspunktfeldes, the point is delivered all the same
  enmResult AffinTransformationNeupunktSigmamax(double dPunktAltesSystemRW, double dPunktAltesSystemHW,
                                                double dSchwerpunktAltesSystemRW,
                                                double dSchwerpunktAltesSystemHW, double dParamA10,
                                                double dParamA11, double dParamA12, double dParamA20,
                                                double dParamA21, double dParamA22, double dMaximalerAbstand,
                                                double& dNeupunktRw, double& dNeupunktHw);

  /// Transforms one point without that test. @return ok
  enmResult AffinTransformationNeupunkt(double dPunktAltesSystemRW, double dPunktAltesSystemHW,
                                        double dParamA10, double dParamA11, double dParamA12,
                                        double dParamA20, double dParamA21, double dParamA22,
                                        double& dNeupunktRw, double& dNeupunktHw);

  /// Transforms every point of the table in place, with the test.
  /// @return ok; Hinweis_PunktAusserhalbDesPasspunktfeldes if a point lies outside
  enmResult AffinTransformationAlleKoordinatenSigmamax(double dSchwerpunktAltesSystemRW,
                                                       double dSchwerpunktAltesSystemHW, double dParamA10,
                                                       double dParamA11, double dParamA12, double dParamA20,
                                                       double dParamA21, double dParamA22,
                                                       double dMaximalerAbstand);

  /// The same without the test. @return ok
  enmResult AffinTransformationAlleKoordinaten(double dParamA10, double dParamA11, double dParamA12,
                                               double dParamA20, double dParamA21, double dParamA22);

  /// Reads a coordinate file into the table, fits it to a passpoint file, transforms all points and writes
  /// the coordinate file back. Both files stay whole on any failure.
  /// @param[in] strKoordinatendateiName the coordinate file, old system; it is replaced
  /// @param[in] strPasspunktdateiName the passpoint file, new system
  /// @param[in] lNachkomma decimals of the written coordinates, 0 to 15
  /// @return as HelmertTransformationKoordinatendateiPasspunktdatei; passpoints on one line, whose parameters
  ///     are 0, are refused here with Fehler_Allgemein, for they would leave nothing of the file
  enmResult AffinTransformationKoordinatendateiPasspunktdatei(const std::string& strKoordinatendateiName,
                                                              const std::string& strPasspunktdateiName,
                                                              std::int32_t lNachkomma = 3);

  /// Centre of the circle through three points.
  /// @param[in] dBogenpunkt1RW, dBogenpunkt1HW, dBogenpunkt2RW, dBogenpunkt2HW, dBogenpunkt3RW,
  ///     dBogenpunkt3HW the points [m]
  /// @param[out] dMittelpunktRW Rechtswert of the centre [m]
  /// @param[out] dMittelpunkt3HW Hochwert of the centre [m] (the name is published so)
  /// @param[out] dRadius distance from the centre to the first point [m]
  /// @param[out] dSchnittwinkelGon angle between the two chords [gon], as the engine gives it, not
  ///     normalised
  /// @return ok; Fehler_Allgemein where two points coincide or all three lie on one line: untouched then
  enmResult KreisMittelpunkt(double dBogenpunkt1RW, double dBogenpunkt1HW, double dBogenpunkt2RW,
                             double dBogenpunkt2HW, double dBogenpunkt3RW, double dBogenpunkt3HW,
                             double& dMittelpunktRW, double& dMittelpunkt3HW, double* dRadius = nullptr,
                             double* dSchnittwinkelGon = nullptr);
  /// KreisMittelpunkt by point numbers.
  enmResult KreisMittelpunktPnr(const Wert& vBogenpunkt1Pnr, const Wert& vBogenpunkt2Pnr,
                                const Wert& vBogenpunkt3Pnr, double& dMittelpunktRW, double& dMittelpunkt3HW,
                                double* dRadius = nullptr, double* dSchnittwinkelGon = nullptr);

  /// Reads a KOR file into the point table, which it replaces; at most 20000 points.
  /// @param[in] strKoordinatendateiName file to read
  /// @return number of points; -1 if the file can not be read
  std::int32_t KoordinatendateiLesen(const std::string& strKoordinatendateiName);

  /// Writes the point table as a KOR file; an old file is replaced safely.
  /// @param[in] strKoordinatendateiName file to write
  /// @param[in] lNachkomma decimals, 0 to 15
  /// @return number of rows; -1 if the file can not be written or lNachkomma is out of range
  std::int32_t KoordinatendateiSchreiben(const std::string& strKoordinatendateiName,
                                         std::int32_t lNachkomma = 3);

 private:
  struct Wirt;
  std::shared_ptr<Wirt> Gastgeber;
};

}  // namespace tavorena
