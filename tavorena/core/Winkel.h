#pragma once

#include <span>
#include <vector>

// Distances and angles. Coordinates in metres, Rechts = east, Hoch = north; bearings in gon, clockwise
// from north. "Math" angles count counter-clockwise from east.

namespace tavorena {

/// Pi as every formula of the package computes it.
double Pi();

/// Horizontal distance between two points [m].
double Strecke(double R1, double H1, double R2, double H2);

/// A distance or difference [m] taken to 8 decimals, before it is held against a limit or shown: a double at
/// 5600000 m carries 1e-9, and points that a file sets exactly 0.03 m apart are so.
double AchtStellen(double Meter);

/// Mathematical angle of a vector, 0 to below 2 pi. The zero vector gives pi/2 and is not an error:
/// every caller tests the distance first.
double WinkelRad(double DeltaHoch, double DeltaRechts);
/// The same in degrees.
double WinkelGrad(double DeltaHoch, double DeltaRechts);
/// The same in gon.
double WinkelGon(double DeltaHoch, double DeltaRechts);

/// 400 - 200 Rad / pi, a mathematical angle as a clockwise gon value; 0 for Rad = 0 on purpose.
double RadNachGonVoll(double Rad);

/// Reduces into 0 up to below 400 gon. A value that is not finite stays as it is.
void GonReduzieren(double& Gon);
/// Reduces into 0 up to below 360 degrees. A value that is not finite stays as it is.
void GradReduzieren(double& Grad);

double SinGon(double Gon);
double CosGon(double Gon);
double TanGon(double Gon);
double SinGrad(double Grad);
double CosGrad(double Grad);

/// 360 - 0.9 Gon, a clockwise gon angle as a counter-clockwise degree angle; 0 for 0 on purpose, the
/// formula alone would give 360.
double GonNachGradMath(double Gon);
/// 400 - Grad / 0.9, the mirror of GonNachGradMath; 0 for 0 on purpose.
double GradNachGonMath(double Grad);

/// Bearing from point 1 to point 2 [gon, clockwise from north, 0 up to below 400]; 0 for equal points.
double Richtungswinkel(double R1, double H1, double R2, double H2);

/// Arithmetic mean of the first Anzahl points.
/// @return 0; -1 for an Anzahl of 0 or beyond the lists, the outputs are then untouched
[[nodiscard]] int Schwerpunkt(std::span<const double> Rechts, std::span<const double> Hoch, int Anzahl,
                              double& R, double& H);

/// Mean of the non-zero entries among the first Anzahl; Mittel is 0 if there are none.
/// @return 0; -1 for an Anzahl of 0 or beyond the list, Mittel is then untouched
[[nodiscard]] int MittelOhneNull(std::span<const double> Liste, int Anzahl, double& Mittel);

/// Weighted mean of the first Anzahl entries; Mittel is 0 when the weights sum to 0.
/// @return 0; -1 for an Anzahl of 0 or beyond the lists, Mittel is then untouched
[[nodiscard]] int MittelGewichtet(std::span<const double> Liste, std::span<const double> Gewichte, int Anzahl,
                                  double& Mittel);

/// Collects the 0-based indices of all points strictly nearer than Radius [m] to (R, H).
/// Treffer is their number.
void PunkteImKreis(double R, double H, std::span<const double> Rechts, std::span<const double> Hoch,
                   int Anzahl, std::vector<int>& Indizes, int& Treffer, double Radius);

/// 1 if the distance, to 8 decimals, is at most Grenze [m], otherwise 0.
int PunktIstNah(double R1, double H1, double R2, double H2, double Grenze);

}  // namespace tavorena
