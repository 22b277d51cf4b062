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

/// Bearing of a vector [gon, clockwise from north]: the polar angle of (dR, dH). It differs from Richtung
/// only for the zero vector, which gives 100.
inline double Richtungswinkel(double dR, double dH) { return WinkelRad(dR, dH) * 200 / Pi(); }

/// @name Names that the calculations know these functions by
/// "Grad" is degrees 0 to 360 counted counter-clockwise from east; a gon reading counts clockwise, and 0
/// stays 0 both ways, on purpose.
/// @{
inline double PolarWinkel(double y, double x) { return WinkelRad(y, x); }
inline double GonNachGrad(double Gon) { return GonNachGradMath(Gon); }
inline double GradNachGon(double Grad) { return GradNachGonMath(Grad); }
/// Direction of the vector A -> E in Grad form.
inline double AzimutGrad(Lage A, Lage E) { return WinkelGrad(E.HW - A.HW, E.RW - A.RW); }
/// @}

}  // namespace tavorena
