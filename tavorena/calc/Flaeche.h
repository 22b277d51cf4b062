#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include <tavorena/calc/Lage.h>

/// @file
/// Area of a closed boundary of straight edges and circular arcs (VR 65.00). Metres and square metres.
/// Results 0 good, negative failed: all outputs are then untouched. Lists are read from index 0 to Anzahl -
/// 1; a list that is shorter than Anzahl or a negative Anzahl gives -1.

namespace tavorena {

/// Arc over a chord. The short arc is the one up to a semicircle, the long one the rest of the circle.
struct Bogenwerte {
  double Sehne = 0;               ///< s, chord [m]
  double Mittelpunktswinkel = 0;  ///< a, central angle of the short arc [rad], 0 to pi
  double LaengeKurz = 0;          ///< b, length of the short arc [m]
  double SegmentKurz = 0;         ///< f, area between chord and short arc [m2]
  double LaengeLang = 0;          ///< length of the long arc [m]
  double SegmentLang = 0;         ///< area between chord and long arc [m2]
};

/// One edge of a boundary, from its point to the next one.
struct Flaechenkante {
  double Sehne = 0;          ///< distance of the two points [m]
  double Laenge = 0;         ///< what a measured boundary length is compared with: chord or arc [m]
  double Segment = 0;        ///< what the edge adds to the area, with its sign [m2]; 0 for a straight edge
  bool Bogen = false;        ///< an arc, also one that could not be built
  bool SehneZuLang = false;  ///< chord longer than the diameter: Laenge and Segment are 0
};

/// Area of a boundary. Flaeche is always Polygonflaeche + Bogenflaeche.
struct Flaechenwerte {
  double Flaeche = 0;                 ///< whole area [m2]
  double Umring = 0;                  ///< perimeter [m]
  double Bogenflaeche = 0;            ///< running sum of the segments with their signs [m2]
  double Polygonflaeche = 0;          ///< with the sign of FlaecheGauss; the disc of a full circle [m2]
  std::vector<Flaechenkante> Kanten;  ///< one for each point
};

/// Area and perimeter of a polygon.
/// @param[in]  Anzahl   number of corners
/// @param[in]  RW, HW   corners in their order [m]; the closing edge is added
/// @param[out] Flaeche  [m2]; positive for a counter-clockwise boundary, the caller decides on the sign
/// @param[out] Umring   sum of the edges, the closing one included [m]
/// @return 0; both outputs are 0 below 3 points, the perimeter too. -1 for a bad Anzahl
/// Accuracy: rounding of the coordinates only, below 1e-9 m times the perimeter for Gauss-Krüger coordinates.
/// Source: C. F. Gauss's formula of areas from coordinates.
[[nodiscard]] int FlaecheGauss(std::span<const double> RW, std::span<const double> HW, int Anzahl,
                               double& Flaeche, double& Umring);

/// Elements of the two arcs over the chord P -> Q.
/// @param[in]  P, Q    ends of the chord
/// @param[in]  Radius  its absolute value counts [m]
/// @param[out] Werte   all fields; untouched on failure
/// @return 0; -1 if the chord is longer than the diameter
/// A half chord that equals the radius within the rounding of the coordinates makes a semicircle. Accuracy:
/// rounding only for flat arcs; close to a semicircle the area hangs on the root of radius minus half chord
/// (r = 10 m given 1 mm too long: 2.8 m2), which no formula can mend.
/// Source: circular segment, any table of plane figures.
[[nodiscard]] int BogenElemente(Lage P, Lage Q, double Radius, Bogenwerte& Werte);

/// Centre of an arc over the chord P -> Q.
/// @param[in]  P, Q    ends of the chord
/// @param[in]  Radius  its absolute value counts [m]
/// @param[in]  Rechts  the arc lies to the right of P -> Q: it runs counter-clockwise
/// @param[in]  Lang    the long arc
/// @param[out] Mitte   untouched on failure
/// @return 0; -1 if the chord is longer than the diameter, or has no length
/// Accuracy and source: as BogenElemente.
[[nodiscard]] int BogenMitte(Lage P, Lage Q, double Radius, bool Rechts, bool Lang, Lage& Mitte);

/// Area of a boundary of edges and arcs. Row i describes the edge from point i to point i + 1, the last row
/// the closing edge.
/// @param[in]  RW, HW  points in their order [m]
/// @param[in]  Radius  0 for a straight edge; otherwise its absolute value counts [m]
/// @param[in]  Art  0 a line; 1 adds the short segment, 2 and 3 the long one; -1 takes the short segment
///                    away, -2 the long one. The sign does not look at the sense of the boundary, on purpose:
///                    whoever wants "outward is larger" takes the absolute Polygonflaeche first.
/// @param[in]  Anzahl  number of points
/// @param[out] Werte   all fields
/// @return 0; -1 for a bad Anzahl or a kind outside -2 to 3
/// One point with a radius is a full circle, whatever its kind; its Bogenflaeche is 0. Below 3 points
/// polygon area and straight edges count 0 in Flaeche and Umring, arcs still count. An arc whose chord is
/// longer than the diameter counts 0 in both and is flagged in Kanten; the calculation goes on.
/// Accuracy: as FlaecheGauss and BogenElemente.
[[nodiscard]] int FlaecheBerechnen(std::span<const double> RW, std::span<const double> HW,
                                   std::span<const double> Radius, std::span<const std::int16_t> Art,
                                   int Anzahl, Flaechenwerte& Werte);

/// Area on the ellipsoid from an area in Gauss-Krüger coordinates: Flaeche (1 - y^2 / R^2), y the mean
/// distance of the points from the central meridian, R = 6381 km.
/// @param[in]  RW, HW     points [m]
/// @param[in]  Flaeche    [m2]
/// @param[in]  Anzahl     number of points
/// @param[out] Reduziert  [m2]
/// @return 0; -1 without points or if one does not carry Gauss-Krüger coordinates of the same strip (Rechts
///         from 1000000 to below 6000000 with the same first digit, Hoch from 4000000 to below 7000000)
/// Accuracy: 1e-6 of the area within a strip of 3 degrees.
/// Source: areal distortion of the transverse Mercator projection, first term.
[[nodiscard]] int FlaecheGKReduziert(std::span<const double> RW, std::span<const double> HW, int Anzahl,
                                     double Flaeche, double& Reduziert);

/// Depth of the area that stays free in front of a wall: its height times a factor, at least 3 m [m].
[[nodiscard]] double Abstandstiefe(double Wandhoehe, double Faktor);

}  // namespace tavorena
