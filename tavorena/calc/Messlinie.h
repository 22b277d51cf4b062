#pragma once

#include <tavorena/calc/Lage.h>
#include <tavorena/calc/TVBerechnungsmodul.h>

/// @file
/// Measured line (VR 22.00) and polar points (VR 19.70). Metres; Rechts = east, Hoch = north. Engine
/// functions take directions in Grad form (degrees counter-clockwise from east, see GonNachGrad). Results 0
/// good, negative failed, positive a notice. No dialog, no file, no table. Accuracy of all functions here:
/// rounding only, 2e-9 m for Gauss-Krüger coordinates and distances up to some kilometres.

namespace tavorena {

/// Connection of a measured line. Massstab is computed over measured here, S / (Endmass - Anlegemass): the
/// reverse of LinienelementeAnschluss, on purpose.
struct MesslinieAnschlusswerte : Anschlusswerte {
  double RichtungsfaktorRechts = 0;  ///< dR over the measured length: carries the scale
  double RichtungsfaktorHoch = 0;    ///< dH over the measured length: carries the scale
  bool OhneEndmass = true;           ///< no end reading was given
};

/// Connection of a measured line: start and end point against the tape.
/// @param[in]  Anf, End  start and end of the line
/// @param[in]  Anlegemass, Endmass  tape readings on Anf and End [m]; an Endmass of 0 means not measured
/// @param[out] Werte  S and D always; WS = S minus the measured length, 0 when not measured; Massstab 1 when
///                    not measured or when the measured length is 0. A measured length of 0 leaves the
///                    direction factors as they are.
/// @return 0; 1 without Endmass, also for coinciding points, whose direction factors stay as they are;
///         -1 for an Endmass equal to Anlegemass
[[nodiscard]] int MesslinieBerechnungAnschluss(Lage Anf, Lage End, double Anlegemass, double Endmass,
                                               MesslinieAnschlusswerte& Werte);

/// One new point of a measured line. The direction factors carry the scale, so the point is placed by the
/// measured scale; multiplying by Massstab as well would apply it twice.
/// @param[in] Anf  start of the line
/// @param[in] Anlegemass  tape reading on Anf [m]
/// @param[in] Anschluss   direction factors of the connection; zero factors give Anf
/// @param[in] Linie       tape reading at the foot of the offset [m]
/// @param[in] Seitwaerts  offset [m]; positive to the right of Anf -> End
/// Source: plane rotation into the direction of the line, the inverse of Linienelemente.
[[nodiscard]] Lage MesslinieBerechnungPunkt(Lage Anf, double Anlegemass,
                                            const MesslinieAnschlusswerte& Anschluss, double Linie,
                                            double Seitwaerts);

/// Connection of polar points. Massstab is computed over measured.
struct PolarAnschlusswerte : Anschlusswerte {
  double NordrichtungGon = 0;  ///< bearing station -> reference point [gon, clockwise from north]
  bool OhneStrecke = true;     ///< no distance was measured
};

/// Connection of polar points: station Anf and reference point End.
/// @param[in]  Anf, End  station and reference point
/// @param[in]  Gemessen  measured distance [m]; 0 means not measured
/// @param[out] Werte     all fields; for coinciding points S 0, D 0.05, bearing 0 and, with a measured
///                       distance, Massstab 0
/// @return 0; 1 without a measured distance. Coinciding points are not tested here, on purpose.
[[nodiscard]] int PolarBerechnungAnschluss(Lage Anf, Lage End, double Gemessen, PolarAnschlusswerte& Werte);

/// Vertical angle of the connection [gon]: 100 for a level line, below 100 upwards.
/// @param[in] HoeheAnf, HoeheEnd  heights of station and reference point [m]
/// @param[in] S  horizontal distance of the connection [m]
inline double PolarVertikalAnschluss(double S, double HoeheAnf, double HoeheEnd) {
  return WinkelGon(S, HoeheEnd - HoeheAnf);
}

/// One polar point.
/// @param[in]  Anf, End      station and reference point
/// @param[in]  Richtung      circle reading on the point [Grad form]
/// @param[in]  Entfernung    horizontal distance [m], multiplied by Massstab
/// @param[in]  Seitwaerts    offset at the end of the ray [m], multiplied by Massstab; positive to the right
/// @param[in]  Orientierung  circle reading on End [Grad form]
/// @param[in]  Massstab      of the connection
/// @param[out] Neu           the new point
/// @return 0; -1 if Anf and End coincide, Neu is then untouched
/// Source: polar to rectangular coordinates (first geodetic problem of the plane).
[[nodiscard]] int PolarBerechnungPunkt(Lage Anf, Lage End, double Richtung, double Entfernung,
                                       double Seitwaerts, double Orientierung, double Massstab, Lage& Neu);

/// Height of a polar point [m]: HoeheAnf + Instrument + cos(z) Entfernung - Ziel.
/// @param[in] HoeheAnf  height of the station [m]
/// @param[in] VertikalGon  zenith angle [gon]; exactly 0 means not measured
/// @param[in] Entfernung   distance as typed [m], without scale
/// @param[in] Instrument, Ziel  height of the instrument and of the target [m]
/// @return the height; 0, the mark of a missing height, for a VertikalGon of 0
[[nodiscard]] double PolarhoeheBerechnen(double HoeheAnf, double Instrument, double VertikalGon,
                                         double Entfernung, double Ziel);

}  // namespace tavorena
