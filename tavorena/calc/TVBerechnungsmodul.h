#pragma once

#include <tavorena/calc/Lage.h>

/// @file
/// Pure calculations on coordinates. Metres and gon; Rechts = east, Hoch = north; bearings clockwise from
/// north. Results 0 good, negative failed, positive a notice. No dialog, no file, no table. Accuracy of all
/// functions here: rounding only, 1e-8 m for Gauss-Krüger coordinates.

namespace tavorena {

/// Distance check of a connection.
struct Anschlusswerte {
  double EntfGerechnet = 0;        ///< S, distance from the coordinates [m]
  double AbweichungZulaessig = 0;  ///< D, permitted discrepancy [m]
  double Abweichung = 0;           ///< WS, S minus the measured length [m]; 0 when nothing was measured
  double Massstab = 1;             ///< measured over computed, unless a function says otherwise
};

/// D, the permitted discrepancy of a distance s [m]: 0.008 sqrt(s) + 0.0003 s + 0.05.
/// Source: the limits of error of the cadastral regulations for tie-in distances.
double AbweichungZulaessig(double s);

/// Distance between two points against a measured one.
/// @param[in]  Anf, End  the two points
/// @param[in]  Gemessen  measured distance [m]; 0 means not measured
/// @param[out] Werte     S always; D and WS only when something was measured
/// @return 0; -1 without a measured distance, although S is valid then: a caller that only wants the
///         distance ignores the result, on purpose
[[nodiscard]] int Entfernungskontrolle(Lage Anf, Lage End, double Gemessen, Anschlusswerte& Werte);

/// Tie-in of line elements and of the measured line's inverse.
/// @param[in]  Anf, End             start and end of the line
/// @param[in]  Anlegemass, Endmass  tape readings on start and end [m]; an Endmass of 0 means not measured
/// @param[out] Werte                D always; Massstab = (Endmass - Anlegemass) / S
/// @return 0; 1 without Endmass (WS 0, Massstab 1); -1 with an Endmass if the points coincide (Massstab 1)
[[nodiscard]] int LinienelementeAnschluss(Lage Anf, Lage End, double Anlegemass, double Endmass,
                                          Anschlusswerte& Werte);

/// Orthogonal elements of a point against the line Anf -> End (VR 24.40).
/// @param[in]  Anf, End    start and end of the line
/// @param[in]  Punkt       the point
/// @param[out] Linie       distance along the line from Anf [m]; negative behind Anf
/// @param[out] Seitwaerts  offset [m]; positive to the right of Anf -> End
/// @return 0; -1 if Anf and End coincide, the outputs are then untouched
/// Source: plane rotation into the direction of the line.
[[nodiscard]] int Linienelemente(Lage Anf, Lage End, Lage Punkt, double& Linie, double& Seitwaerts);

/// Foot point of a point on the line Anf -> End: Anf + Linie (End - Anf) / S.
/// @return 0; -1 if Anf and End coincide, the output is then untouched
[[nodiscard]] int Fusspunkt(Lage Anf, Lage End, Lage Punkt, Lage& Fuss);

/// Tie-in of polar elements.
/// @param[in]  Anf, End           station and reference point
/// @param[in]  Gemessen           measured distance [m]; 0 means not measured
/// @param[out] Anschlussrichtung  clockwise intermediate of the bearing [gon], bearing + 300 unreduced
/// @param[out] Nordrichtung       bearing Anf -> End [gon]
/// @param[out] Werte              S and D; WS and Massstab with a measured distance
/// @return 0; 1 without a measured distance; -1 if the points coincide (S, D and the directions are set)
[[nodiscard]] int PolarelementeAnschluss(Lage Anf, Lage End, double Gemessen, double& Anschlussrichtung,
                                         double& Nordrichtung, Anschlusswerte& Werte);

/// Direction and distance from Anf to a point, as a measurement on Anf would show them (VR 08.40).
/// @param[in]  Anf, End      station and reference point
/// @param[in]  Orientierung  circle reading on End [gon]
/// @param[in]  Punkt         the sighted point
/// @param[out] Richtung      reading on the point [gon, 0 up to below 400]
/// @param[out] Entfernung    Anf to the point [m]
/// @param[out] Nordrichtung  bearing Anf -> End [gon]
/// @return 0; -1 if Anf and End coincide; then only Nordrichtung is written
[[nodiscard]] int Polarelemente(Lage Anf, Lage End, Lage Punkt, double Orientierung, double& Richtung,
                                double& Entfernung, double& Nordrichtung);

}  // namespace tavorena
