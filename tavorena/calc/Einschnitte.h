#pragma once

#include <tavorena/calc/Lage.h>

/// @file
/// Forward intersection (VR 10.00) and resection (VR 11.00). Metres and gon; Rechts = east, Hoch = north;
/// bearings and circle readings clockwise, bearings from north. Results 0 good, negative failed; on failure
/// the record is untouched. No dialog, no file, no table. Input that is not finite gives values that are not
/// finite or a failing result; TA refuses it.

namespace tavorena {

/// A station of a forward intersection.
struct VorwStation {
  Lage Stand;        ///< station
  Lage Fern;         ///< far point that orients the circle; on the station itself it counts as due east
  double rF = 0;     ///< reading on the far point [gon]
  double rN = 0;     ///< reading on the new point [gon]
  double Hoehe = 0;  ///< height of the station [m]; only for VorwaertsschnittHoehe
  double z = 0;      ///< zenith angle to the new point [gon], 100 level; 0 means not measured
};

/// A forward intersection as it was computed.
struct Vorwaertsschnittwerte {
  double NeuRechts = 0;      ///< new point [m]
  double NeuHoch = 0;        ///< new point [m]
  double vA = 0;             ///< bearing A to the new point [gon, 0 up to below 400]
  double vB = 0;             ///< bearing B to the new point [gon, 0 up to below 400]
  double TauGon = 0;         ///< angle of intersection, vA - vB brought into 0 to 200 [gon]
  double VorwNeuHoehe = 0;   ///< mean height [m]; stays 0 without VorwaertsschnittHoehe
  double VorwParallaxe = 0;  ///< height from B minus height from A [m]
};

/// Forward intersection in the plane: the cut of the sightings from A and from B, also behind a station.
/// @param[in]  A, B   the two stations; heights and zenith angles are not used
/// @param[out] Werte  position, bearings and TauGon; the heights are set to 0
/// @return 0; -1 for parallel sightings (the tangents of vA and vB are equal within the rounding of a gon
///         value). Equal stations are no fault of their own: the result is then the station.
/// Accuracy: 1e-8 m for sightings of 10 km in Gauss-Krüger coordinates that cross at 5 gon or more.
/// Source: cut of two lines by their bearings, in every textbook (H. Kahmen, Vermessungskunde).
[[nodiscard]] int VorwaertsschnittEbene(const VorwStation& A, const VorwStation& B,
                                        Vorwaertsschnittwerte& Werte);

/// Height of a new point that VorwaertsschnittEbene found: mean of the heights from A and B and their
/// difference. A station with z equal to 0, 100 or 300 hands on its own height; other values go through the
/// tangent, so 200 and 400 (straight down or up) give no useful height.
/// @param[in]  A, B  the two stations
/// @param[in,out] Werte  NeuRechts and NeuHoch are read, VorwNeuHoehe and VorwParallaxe written
/// Accuracy: rounding only; no curvature, no refraction.
void VorwaertsschnittHoehe(const VorwStation& A, const VorwStation& B, Vorwaertsschnittwerte& Werte);

/// A known point, sighted from the new point.
struct RueckPunkt {
  Lage Ort;      ///< the point
  double r = 0;  ///< circle reading on it [gon]
};

/// A resection as it was computed.
struct Rueckwaertsschnittwerte {
  double NeuRechts = 0;  ///< new point [m]
  double NeuHoch = 0;    ///< new point [m]
  double Alpha = 0;      ///< observed angle P1-P2 [gon, 0 up to below 400]
  double Beta = 0;       ///< observed angle P2-P3 [gon, 0 up to below 400]
  double TauGon1 = 0;    ///< τ1, angle of the sides at P2 [gon]; differs by method, see there
  double TauGon2 = 0;    ///< τ2 [gon]; near 0 the new point lies on the circle through P1, P2, P3
};

/// Which τ1 Collins hands out. The two differ by 200 gon, on purpose, and τ2 with them.
enum class RueckTau {
  Schnittstelle,  ///< bearing P2-P1 minus bearing P2-P3, what TA maps to its result
  Blatt,          ///< bearing P1-P2 minus bearing P2-P3, what the worksheet shows and judges
};

/// Resection by the auxiliary point of Collins. P2 is the middle point.
/// @param[in]  P1, P2, P3  the known points and the readings on them
/// @param[in]  Art  which τ1
/// @param[out] Werte  τ1 is not reduced into 0 to 400, and τ2 = Alpha + Beta + τ1 - 200 neither, on purpose:
///                    both can be negative for a good figure
/// @return 0; -1 if Alpha or Beta is 0 (two directions equal); -3 if Alpha + Beta is 200 or a full circle, or
///         the rays to the new point are parallel: P1, the new point and P3 then lie on one line
/// Accuracy: 1e-6 m for points within 10 km in Gauss-Krüger coordinates, unless the new point is within some
///           0.01 gon of the circle, or of the line P1-P3 between P1 and P3.
/// Source: J. Collins, Philosophical Transactions 6, 1671; H. Kahmen, Vermessungskunde.
[[nodiscard]] int RueckwaertsschnittCollins(const RueckPunkt& P1, const RueckPunkt& P2, const RueckPunkt& P3,
                                            Rueckwaertsschnittwerte& Werte,
                                            RueckTau Art = RueckTau::Schnittstelle);

/// Resection by the two circles of Cassini. P2 is the middle point.
/// @param[in]  P1, P2, P3  the known points and the readings on them
/// @param[out] Werte  τ1 = bearing P1-P2 minus bearing P3-P2 and τ2, the angle between the two diameters
///                    through P2, both 0 up to below 400; a point a little on the other side of the circle
///                    through P1, P2, P3 has a τ2 just below 400
/// @return 0; -1 if Alpha or Beta is 0 (two directions equal); -2 if the diameters end at the same Hochwert:
///         the method has no solution then, although the point may be a good one due north or south of P2;
///         and for a point on the circle through P1, P2, P3. A worksheet reports -1 in its place.
/// Accuracy: 1e-6 m for points within 10 km in Gauss-Krüger coordinates, unless the new point is within some
///           0.01 gon of the circle.
/// Source: J. D. Cassini, 1669; H. Kahmen, Vermessungskunde.
[[nodiscard]] int RueckwaertsschnittCassini(const RueckPunkt& P1, const RueckPunkt& P2, const RueckPunkt& P3,
                                            Rueckwaertsschnittwerte& Werte);

}  // namespace tavorena
