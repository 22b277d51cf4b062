#pragma once

#include <tavorena/core/Winkel.h>

/// @file
/// Places in the plane, and what all calculations do with them. Metres, gon clockwise from north.

namespace tavorena {

/// A place in the plane [m].
struct Lage {
  double RW = 0;  ///< Rechts, to the east
  double HW = 0;  ///< Hoch, to the north
  /// Equal to the last digit.
  bool operator==(const Lage&) const = default;
};

/// Distance A -> B [m].
inline double Abstand(Lage A, Lage B) { return Strecke(A.RW, A.HW, B.RW, B.HW); }

/// Bearing A -> B [gon, clockwise from north, 0 up to below 400]; 0 for equal points.
inline double Richtung(Lage A, Lage B) { return Richtungswinkel(A.RW, A.HW, B.RW, B.HW); }

/// @name Names that the calculations know these functions by
/// "Grad" is degrees 0 to 360 counted counter-clockwise from east; a gon reading counts clockwise, and 0
/// stays 0 both ways, on purpose.
/// @{
inline double PolarWinkel(double y, double x) { return WinkelRad(y, x); }
/// The same in gon. Of (dR, dH) it is the bearing of that vector, but 100 for the zero vector, where
/// Richtungswinkel gives 0.
inline double PolarWinkelGon(double y, double x) { return WinkelRad(y, x) * 200 / Pi(); }
inline double GonNachGrad(double Gon) { return GonNachGradMath(Gon); }
inline double GradNachGon(double Grad) { return GradNachGonMath(Grad); }
/// Direction of the vector A -> E in Grad form.
inline double AzimutGrad(Lage A, Lage E) { return WinkelGrad(E.HW - A.HW, E.RW - A.RW); }
/// @}

}  // namespace tavorena
