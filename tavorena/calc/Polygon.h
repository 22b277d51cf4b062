#pragma once

#include <vector>

#include <tavorena/calc/Lage.h>

/// @file
/// Traverse (VR 19.10). Metres and gon; Rechts = east, Hoch = north; bearings clockwise from north, breaking
/// angles clockwise from the backward to the forward side.

namespace tavorena {

/// One row of the grid: a new point.
struct PolygonZeile {
  double Winkel = 0;   ///< breaking angle on the point [gon]
  double Strecke = 0;  ///< side from the point to the next one [m]
};

/// A traverse as it was measured. With k rows it has the sides 1 to k + 1 and the new points 1 to k.
struct PolygonZug {
  Lage PFA;                          ///< target at the start
  Lage PA;                           ///< start
  Lage PE;                           ///< end
  Lage PFE;                          ///< target at the end
  double PolygonAnfWinkel = 0;       ///< breaking angle on PA from PFA [gon]; only with a start connection
  double PolygonAnfStrecke = 0;      ///< side from PA to the first new point [m]
  double PolygonEndWinkel = 0;       ///< breaking angle on PE to PFE [gon]; only with an end connection
  std::vector<PolygonZeile> Zeilen;  ///< the new points in their order
};

/// One side of the result.
struct PolygonSeite {
  double t = 0;   ///< bearing with its correction [gon, 0 up to below 400]
  double dR = 0;  ///< vector of the side, Rechts [m]
  double dH = 0;  ///< vector of the side, Hoch [m]
  double vR = 0;  ///< its correction [m], "Verbess.RW"; 0 without distribution
  double vH = 0;  ///< its correction [m], "Verbess.HW"; 0 without distribution
  Lage Ende;      ///< point at its end: the new points, for the last side PE as computed
};

/// Permitted misclosures.
struct PolygonToleranzen {
  double FW = 0;  ///< angular [gon]
  double FL = 0;  ///< longitudinal [m]
  double FQ = 0;  ///< transverse [m]
};

/// A traverse as it was computed.
struct PolygonErgebnis {
  double S = 0;                 ///< straight distance from PA to PE [m]
  int n = 0;                    ///< breaking angles: rows + 2 with a start connection, otherwise rows
  double SummeS = 0;            ///< length of all sides [m]
  double L = 0;                 ///< distance from PA to the end of the chain as computed [m]
  double d1 = 0;                ///< distance of PFA from PA [m]; 0 without the connection
  double d2 = 0;                ///< distance of PFE from PE [m]; 0 without the connection
  double FW = 0;                ///< angular misclosure, should minus is [gon]; 0 without an end connection
  double Verbesserung = 0;      ///< correction per breaking angle [gon]; 0 when FW is not distributed
  double WY = 0;                ///< misclosure in Rechts, should minus is [m]
  double WX = 0;                ///< misclosure in Hoch, should minus is [m]
  double FL = 0;                ///< misclosure along the chain [m]; 0 when L is 0
  double FQ = 0;                ///< misclosure to its right [m]; 0 when L is 0
  bool Ring = false;            ///< closed on itself: WY and WX are not distributed
  bool WinkelVerteilt = false;  ///< FW was distributed
  bool LinearVerteilt = false;  ///< WY and WX were distributed
  PolygonToleranzen TP;         ///< first set, always computed
  PolygonToleranzen NP;         ///< second set, always computed
  std::vector<PolygonSeite> Seiten;  ///< one more than new points
};

/// Tolerance class of a traverse.
enum class PolygonKlasse { TP, NP, Frei };

constexpr int PolygonMaxSeiten = 1000;  ///< most sides of a traverse

/// Computes a traverse: bearings, misclosures, tolerances, distribution, coordinates.
///
/// Without a start connection the chain is computed with a first bearing of 0 and then turned until its end
/// lies in the direction of PE. WinkelVerteilen takes effect only with both connections, if both targets
/// are further away than S/2 and FW is not above 200 gon; otherwise WinkelVerteilt tells it; LinearVerteilen
/// not in a ring (PA = PE, or a chain that ends on PA). An exceeded tolerance stops nothing.
///
/// FW is not brought back by 400 gon: where the two bearings it compares lie on both sides of north it is
/// near 400 or -400. This is meant, its mark shows it. Above 200 gon it is not distributed: a straight
/// traverse would be bent.
///
/// @param[in]  Zug                what was measured
/// @param[in]  RichtungAnschluss  direction connection at the start, by PFA and PolygonAnfWinkel
/// @param[in]  RichtungAbschluss  direction connection at the end, by PFE and PolygonEndWinkel
/// @param[in]  WinkelVerteilen    distribute the angular misclosure
/// @param[in]  LinearVerteilen    distribute the linear misclosures
/// @param[out] Ergebnis           untouched on failure
/// @return 0; -2 for more than 1000 sides; -1 if the traverse can not be computed: no rows, a value or
///         distance that is not finite, an end connection without a start connection, a target on its
///         station, or no start connection and PA = PE or a chain that ends on PA, which leaves the direction
///         open
/// Accuracy: rounding only, 1e-8 m for some 100 sides in Gauss-Krüger coordinates.
/// Source: traverse with proportional distribution along and across the chain, limits of error of the
///         cadastral regulations for traverses between trigonometric (TP) and lower points (NP).
[[nodiscard]] int PolygonCalc(const PolygonZug& Zug, bool RichtungAnschluss, bool RichtungAbschluss,
                              bool WinkelVerteilen, bool LinearVerteilen, PolygonErgebnis& Ergebnis);

/// The tolerances that are shown and judged: the first set for TP and for every ring, the second for NP.
/// @return nullptr for Frei: nothing is shown, no mark is set
const PolygonToleranzen* PolygonToleranz(const PolygonErgebnis& Ergebnis, PolygonKlasse Klasse);

}  // namespace tavorena
