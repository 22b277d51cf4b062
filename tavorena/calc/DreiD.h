#pragma once

#include <span>

#include <tavorena/calc/Lage.h>

/// @file
/// Points in space. Metres and gon; Rechts = east, Hoch = north, Hoehe up; bearings clockwise from north.
/// A missing height counts as it stands, 0. Results 0 good, -1 points coincide where a direction is needed;
/// outputs are then untouched. No dialog, no file, no table. Accuracy of all functions here: rounding only,
/// 2e-9 m for Gauss-Krüger coordinates. Source: vectors of space, in every textbook.

namespace tavorena {

/// A place in space [m].
struct Raumlage {
  Lage Ort;          ///< position [m]
  double Hoehe = 0;  ///< height [m]
};

/// The way from one place to another.
struct Raumstreckenwerte {
  double Raumstrecke = 0;        ///< distance in space [m]
  double Horizontalstrecke = 0;  ///< its horizontal part [m]
  double Hoehenunterschied = 0;  ///< height of the second minus height of the first [m]
  double Richtungswinkel = 0;    ///< bearing [gon]; 0 for a plumb line
  double Zenitwinkel = 0;        ///< 0 straight up, 100 level, 200 straight down [gon]
};

/// The way from A to B.
/// @param[in]  A, B   the two places
/// @param[out] Werte  all fields
/// @return 0; -1 if A and B coincide in space
[[nodiscard]] int RaumstreckeBerechnung(const Raumlage& A, const Raumlage& B, Raumstreckenwerte& Werte);

/// Arithmetic mean of places: the middle of two, the centre of gravity of three. Of none it is {}.
[[nodiscard]] Raumlage Raumschwerpunkt(std::span<const Raumlage> Orte);

/// Perpendicular from P on the line A B in space.
/// @param[in]  A, B  two places of the line
/// @param[in]  P     where the perpendicular begins
/// @param[out] Fuss         its foot, also outside of A and B
/// @param[out] Lotabstand   its length [m]
/// @return 0; -1 if A and B coincide
[[nodiscard]] int RaumlotBerechnung(const Raumlage& A, const Raumlage& B, const Raumlage& P, Raumlage& Fuss,
                                    double& Lotabstand);

/// The tip of a rod with two targets: Abstand beyond B on the line A B.
/// @param[in]  A, B     upper and lower target
/// @param[in]  Abstand  B to the tip [m]; negative back towards A
/// @param[out] Neu      the tip
/// @return 0; -1 if A and B coincide
[[nodiscard]] int KanalmessstabBerechnung(const Raumlage& A, const Raumlage& B, double Abstand,
                                          Raumlage& Neu);

/// Angle at S from A to B.
/// @param[in]  A, B  places on the two rays
/// @param[in]  S     where they begin
/// @param[out] Raumwinkel        between the rays, 0 to 200 [gon]
/// @param[out] Horizontalwinkel  clockwise between their bearings, 0 up to below 400 [gon]; 0 where a ray is
///                               plumb
/// @return 0; -1 if A or B coincides with S
[[nodiscard]] int RaumwinkelBerechnung(const Raumlage& A, const Raumlage& S, const Raumlage& B,
                                       double& Raumwinkel, double& Horizontalwinkel);

}  // namespace tavorena
