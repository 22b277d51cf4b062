#pragma once

#include <array>

#include <tavorena/calc/Lage.h>

/// @file
/// Intersections of lines and circles (VR 09.00, 09.40, 23.10) and the circle through three points (VR
/// 09.50). Metres; Rechts = east, Hoch = north; crossing angles in degrees unless a name says gon. Results 0
/// good, negative failed; for circles the number of points. No dialog, no file, no table. Accuracy: rounding
/// only, 1e-8 m for Gauss-Krüger coordinates where the figures cross above 1 gon; the error grows with the
/// inverse sine of the crossing angle.

namespace tavorena {

/// A line as it is asked for. A digit of an engine kind says how it is built: 1 as given, 2 the parallel at
/// a distance, 3 the parallel through a point, 4 the perpendicular through a point.
struct Schnittgerade {
  Lage A;                      ///< first point
  Lage B;                      ///< second point
  double Parallelabstand = 0;  ///< digit 2 [m]; positive to the right of A -> B
  Lage Punkt = {};             ///< digits 3 and 4
};

/// A line as it is built. The direction is kept as it came from the given points: B - A would round it, and a
/// line and its parallel would then meet somewhere far away.
struct GebauteGerade {
  Lage A;         ///< first point
  Lage B;         ///< second point
  double dR = 0;  ///< direction A -> B, Rechts [m]; not of unit length
  double dH = 0;  ///< direction A -> B, Hoch [m]
};

/// Parallel to A -> B.
/// @param[in]  A, B     two points of the line
/// @param[in]  Abstand  distance [m]; positive to the right of A -> B
/// @param[out] G        the parallel
/// @return 0; -1 if A and B coincide, G is then untouched
[[nodiscard]] int GeradeParallel(Lage A, Lage B, double Abstand, GebauteGerade& G);

/// Parallel to A -> B through P: P to P + (dR, dH).
/// @return 0; -1 if A and B coincide. G is written all the same then, on purpose: both its points are P.
[[nodiscard]] int GeradeParallelPunkt(Lage A, Lage B, Lage P, GebauteGerade& G);

/// Perpendicular to A -> B through P: P to P + (dH, -dR), which runs to the right of A -> B.
/// @return 0; -1 if A and B coincide, G is then untouched
[[nodiscard]] int GeradeSenkrecht(Lage A, Lage B, Lage P, GebauteGerade& G);

/// Intersection of the line through P1 in direction (a1, b1) with the line through P3 in direction (a2, b2);
/// a points to Rechts, b to Hoch.
/// @return 0; -1 if the lines are exactly parallel, S is then untouched
/// Source: Cramer's rule.
[[nodiscard]] int SchnittGeraden(Lage P1, double a1, double b1, Lage P3, double a2, double b2, Lage& S);

/// Crossing angle of two lines [degrees, 0 to 90].
double Schnittwinkel(const GebauteGerade& G1, const GebauteGerade& G2);

/// Line with line (VR 09.00).
/// @param[in]  G1, G2  the two lines
/// @param[in]  Art     kind, 11 to 44: the tens digit builds line 1, the units digit line 2
/// @param[out] S       the intersection
/// @param[out] Winkel  crossing angle of the built lines [degrees, 0 to 90]
/// @return 0; 1 the lines are parallel; -1 the kind is not above 10 and below 50; -2 a line can not be built
///         (its points coincide, or its digit is not 1 to 4). Outputs are written with 0 only.
[[nodiscard]] int SchnittGeradeGeradeBerechnung(int Art, const Schnittgerade& G1, const Schnittgerade& G2,
                                                Lage& S, double& Winkel);

/// What circle and line have in common.
struct KreisGeradeSchnitt {
  Lage S1;               ///< first solution; 0 where there is none
  Lage S2;               ///< second solution; 0 where there is none
  Lage Fusspunkt;        ///< foot of the centre on the line, the touching point with result 3
  double Lotlaenge = 0;  ///< centre to foot [m]
  double Winkel = 0;     ///< crossing angle [degrees, 0 to 90]; -9999 on a miss
};

/// Circle with line, the core.
/// @param[in]  G      the line
/// @param[in]  M, r   centre and radius [m]
/// @param[out] Werte  S1, S2, Fusspunkt and Lotlaenge. S1 has the smaller Rechts, on a line that runs exactly
///                    north or south the smaller Hoch. No point: S1 and S2 are 0. One point: both are the
///                    foot, but S2.RW is 0 on a line exactly north or south, on purpose.
/// @return 0, 1 or 2 points; -1 for a line of length 0, the outputs are then untouched
/// One point is told by the discriminant of the quadratic in Rechts, below 0.001 m2: it grows with the square
/// of the slope, so the steeper the line, the closer it has to touch.
[[nodiscard]] int SchnittKreisGeradeKern(Lage M, double r, const GebauteGerade& G, KreisGeradeSchnitt& Werte);

/// Circle with line (VR 09.40). Of two solutions S1 lies further along the direction of the line.
/// @param[in]  M, r   centre and radius [m]
/// @param[in]  Art    kind, 1 to 49; its units digit builds the line, the rest does not count
/// @param[in]  G      the line
/// @param[out] Werte  all fields; with result 3 S1 is the foot and S2 the second point of the core
/// @return 0, 1, 2 points; 3 a touching point (crossing angle below 0.5 degrees); -1 a kind out of range, a
///         radius not above 0 or a line of length 0 (Winkel is 0 then); -2 the line can not be built. Outputs
///         are otherwise untouched on failure.
[[nodiscard]] int SchnittKreisGeradeBerechnung(int Art, Lage M, double r, const Schnittgerade& G,
                                               KreisGeradeSchnitt& Werte);

/// Arc cosine [rad, 0 to pi]; the mark -9999 outside -1 to 1.
double ArcusKosinus(double x);
/// Arc cosine [degrees, 0 to 180]; the mark -9999 outside -1 to 1.
double ArcusKosinusGrad(double x);

/// Circle with circle (VR 23.10). S1 lies right of the direction M1 -> M2.
/// @param[in]  M1, M2  centres
/// @param[in]  r1, r2  radii [m]; their signs do not count
/// @param[out] Winkel  angle between the two radii at the intersection [degrees, 0 to 180]
/// @param[out] S1, S2  the two points
/// @return 2; two equal points where the circles touch; 0 for circles apart or one inside the other; -2 for
///         equal centres or a radius of 0. Outputs are written with 2 only.
/// Source: law of cosines.
[[nodiscard]] int SchnittKreisKreisBerechnung(Lage M1, double r1, Lage M2, double r2, Lage& S1, Lage& S2,
                                              double& Winkel);

/// Both centres of an arc over the chord A -> B.
/// @param[in]  A, B    ends of the chord
/// @param[in]  Seite   0 or positive: S1 is the centre right of A -> B; negative: the one on the left
/// @param[in]  Radius  of the arc [m]
/// @param[out] S1, S2  the two centres
/// @return 0, over a diameter with two equal points; -1 for a chord of length 0, a radius of 0 or a chord
///         longer than the diameter, the outputs are then untouched
[[nodiscard]] int SchnittKreisKreisSehne(Lage A, Lage B, double Radius, int Seite, Lage& S1, Lage& S2);

/// Circle through three points.
struct Kreismittelpunkt {
  Lage M;                          ///< centre [m]
  double WinkelGon = 0;            ///< bearing P2 -> P3 minus bearing P1 -> P2 [gon], not reduced
  std::array<double, 3> Radien{};  ///< centre to each point [m]: they differ by rounding only
};

/// Centre of the circle through three points (VR 09.50).
/// @param[in]  P1, P2, P3  points of the arc, in its order
/// @param[out] Kreis       all fields
/// @return 0; -1 if two of the points coincide or all three lie exactly on one line, Kreis is then untouched
/// Source: intersection of two perpendicular bisectors.
[[nodiscard]] int KreisMittelpunktBerechnung(Lage P1, Lage P2, Lage P3, Kreismittelpunkt& Kreis);

}  // namespace tavorena
