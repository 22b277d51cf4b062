#pragma once

#include <array>
#include <cstdint>
#include <numbers>

/// @file
/// Geographic coordinates and the conformal grids of Germany: Gauss-Krüger in 3-degree strips and UTM. Grid
/// coordinates in metres, Rechts and Easting = east, Hoch and Northing = north of the equator; longitudes
/// count from Greenwich, east and north positive. Latitudes are not tested: beyond 90 degrees the series run
/// on over the pole, and next to a pole the way back from the grid has no meaning. Results 0 good, 1 a
/// notice, -1 failed with the outputs untouched. No dialog, no file, no table.
///
/// Largest differences from the exact projection over Germany (47 to 55.2 N, 5.8 to 15.1 E), found against
/// PROJ [mm in the plane]:
/// @verbatim
///                                                         forward   back   there and back
///   Gauss-Krüger, Bessel of the table, own strip            0.016   0.003   0.019
///     half a degree beyond the strip (2 degrees)            0.07    0.02    0.09
///   Gauss-Krüger against the defined Bessel ellipsoid,
///     whose b is 0.2 mm below that of the table             0.23    0.22
///   UTM against GRS 80, own zone                            0.11    0.41    0.50
///     half a degree beyond the zone (3.5 degrees)             -     0.97
/// @endverbatim
/// The convergences keep to 0.0002".

namespace tavorena {

inline constexpr double RadJeGrad = std::numbers::pi / 180;  ///< pi is the same double as Pi()
inline constexpr double GradJeRad = 180 / std::numbers::pi;  ///< the reciprocal

/// A series k0 x + k2 sin 2x + k4 sin 4x + k6 sin 6x + k8 sin 8x, as the arc of the meridian has it.
struct Sinusreihe {
  double k0 = 0;  ///< of x
  double k2 = 0;  ///< of sin 2x
  double k4 = 0;  ///< of sin 4x
  double k6 = 0;  ///< of sin 6x
  double k8 = 0;  ///< of sin 8x
  /// The sines alone. Those of the multiples are polynomials in 2 cos 2x, not four calls: an arc of the
  /// meridian moves by less than 1e-11 m.
  [[nodiscard]] double Sinusglieder(double SinX, double CosX) const {
    const double u = 2 * (1 - 2 * SinX * SinX);
    return 2 * SinX * CosX * ((k2 - k6) + u * ((k4 - 2 * k8) + u * (k6 + u * k8)));
  }
  /// The whole series at x, from x and its sine and cosine.
  [[nodiscard]] double Summe(double x, double SinX, double CosX) const {
    return k0 * x + Sinusglieder(SinX, CosX);
  }
};

/// An ellipsoid with all that the series take from it, computed once.
struct Ellipsoid {
  /// @param[in] Gross, Klein  semi-axes a and b [m]
  constexpr Ellipsoid(double Gross, double Klein)
      : a(Gross), b(Klein), e2((a * a - b * b) / (b * b)), c(a * a / b), n((a - b) / (a + b)) {
    const double n2 = n * n, n3 = n2 * n, n4 = n2 * n2, f = a / (1 + n);
    Bogen = {f * (1 + n2 / 4 + n4 / 64), f * (-3.0 / 2 * n * (1 - n2 / 8)),
             f * (15.0 / 16 * n2 * (1 - n2 / 4)), f * (-35.0 / 48 * n3), f * (315.0 / 512 * n4)};
    Fusspunkt = {1, 3.0 / 2 * n * (1 - 9.0 / 16 * n2), n2 / 16 * (21 - 55.0 / 2 * n2), 151.0 / 96 * n3,
                 1097.0 / 512 * n4};
  }
  double a;              ///< large semi-axis [m]
  double b;              ///< small semi-axis [m]
  double e2;             ///< e'^2 = (a^2 - b^2) / b^2, the second eccentricity squared
  double c;              ///< a^2 / b, radius of curvature at the pole [m]
  double n;              ///< (a - b) / (a + b)
  Sinusreihe Bogen;      ///< arc of the meridian [m] of a latitude [rad]
  Sinusreihe Fusspunkt;  ///< latitude [rad] of an arc divided by Bogen.k0
};

/// The ellipsoids by their number: Bessel, International, 2, GRS 80. The b of row 2 is one digit short of its
/// neighbours and is meant to stand so; nothing in the package asks for that row.
inline constexpr std::array<Ellipsoid, 4> Ellipsoide = {{
    {6377397.155, 6356078.963},
    {6378388.0, 6356911.946},
    {6378245.0, 635863.019},
    {6378137.0, 6356752.314},
}};

/// Semi-axes of an ellipsoid.
/// @param[in]  Nummer  0 to 3, see Ellipsoide
/// @param[out] a, b    semi-axes [m]
/// @return 0; 1 for another number: a and b then stay as they were, on purpose
[[nodiscard]] int EllipsoidAchsen(int Nummer, double& a, double& b);

/// Strip of 3 degrees that a longitude lies in.
/// @param[in]  Laenge      longitude [degrees]; a longitude between two strips belongs to the eastern one
/// @param[out] Delta       longitude from the central meridian [degrees, -1.5 up to below 1.5]
/// @param[out] Kennziffer  a third of the central meridian; below 0 in the west
/// @return 0; -1 if the number of the strip exceeds 32 bits
[[nodiscard]] int GKStreifen(double Laenge, double& Delta, std::int32_t& Kennziffer);

/// Arc of the meridian from the equator to a latitude.
/// @param[in] E  the ellipsoid
/// @param[in] Phi  latitude [rad]
/// @return the arc [m]; below 0 in the south
/// Accuracy: 1e-8 m. Source: F. R. Helmert, Die mathematischen und physikalischen Theorieen der höheren
/// Geodäsie, 1880; series in n up to n^4.
double Meridianbogen(const Ellipsoid& E, double Phi);

/// Latitude that belongs to an arc of the meridian: the inverse of Meridianbogen.
/// @param[in] E  the ellipsoid
/// @param[in] Bogen  arc from the equator [m]
/// @return the latitude [rad]; 1e-6 m on the ground. Source: as above.
double Fusspunktbreite(const Ellipsoid& E, double Bogen);

/// Geographic to Gauss-Krüger coordinates. The point may lie outside the strip; the terms of the sixth order
/// that are left out grow with the sixth power of DeltaLambda (2 mm at 3.7 degrees).
/// @param[in]  E            the ellipsoid
/// @param[in]  Massstab     scale on the central meridian, 1 in Germany
/// @param[in]  Kennziffer   see GKStreifen
/// @param[in]  Phi          latitude [rad]
/// @param[in]  DeltaLambda  longitude from the central meridian [rad]
/// @param[out] Rechts       with 500000 and the million of the strip [m]
/// @param[out] Hoch         [m]
/// @param[out] Konvergenz   meridian convergence [degrees], in the north positive to the east
/// @return 0; -1 if a result is not finite
/// Source: L. Krüger, Konforme Abbildung des Erdellipsoids in der Ebene, 1912; powers of DeltaLambda up to
/// the fifth, as in W. Großmann, Geodätische Rechnungen und Abbildungen in der Landesvermessung.
[[nodiscard]] int GKVorwaerts(double Massstab, const Ellipsoid& E, std::int32_t Kennziffer, double Phi,
                              double DeltaLambda, double& Rechts, double& Hoch, double& Konvergenz);

/// Gauss-Krüger to geographic coordinates; the strip is the million of Rechts.
/// @param[in]  E         the ellipsoid
/// @param[in]  Massstab  scale on the central meridian
/// @param[in]  Rechts,Hoch [m]
/// @param[out] Breite      latitude [degrees]
/// @param[out] Laenge      longitude [degrees]
/// @param[out] Konvergenz  meridian convergence [degrees], as in GKVorwaerts
/// @return 0; -1 if a result is not finite or the number of the strip exceeds 32 bits
/// Source: as GKVorwaerts.
[[nodiscard]] int GKRueckwaerts(double Massstab, const Ellipsoid& E, double Rechts, double Hoch,
                                double& Breite, double& Laenge, double& Konvergenz);

inline constexpr double UtmMassstab = 0.9996;  ///< scale of UTM on the central meridian

/// Zone of UTM that a longitude lies in; one between two zones belongs to the eastern one.
/// @param[in]  Laenge  [degrees]
/// @param[out] Zone    1 to 60 for -180 up to below 180 degrees, counted on beyond
/// @return 0; -1 if the zone exceeds 32 bits
[[nodiscard]] int UTMZone(double Laenge, std::int32_t& Zone);

/// Geographic to UTM coordinates in the zone that the longitude falls in; ellipsoid of row 3, scale 0.9996.
/// The widened zones of Norway are not followed, and the south gets no 10000 km: Northing is below 0 there.
/// @param[in]  Laenge, Breite     [degrees]; a longitude between two zones belongs to the eastern one
/// @param[out] Zone               see UTMZone
/// @param[out] Easting, Northing  [m], Easting with 500000
/// @return 0; -1 if a result is not finite or the zone exceeds 32 bits
/// Source: as GKVorwaerts; meridian arc in powers of e'^2 up to the eighth of e'.
[[nodiscard]] int UTMVorwaerts(double Laenge, double Breite, std::int32_t& Zone, double& Easting,
                               double& Northing);

/// The same into a zone that is given; the longitude may lie beside it.
/// @return 0; -1 if a result is not finite
[[nodiscard]] int UTMInZone(double Laenge, double Breite, std::int32_t Zone, double& Easting,
                            double& Northing);

/// UTM to geographic coordinates, the way back of UTMVorwaerts. Its eccentricity is another one on purpose
/// (see there in the source), which is worth 0.1 mm.
/// @param[in]  Easting, Northing  [m], Easting with 500000
/// @param[in]  Zone               any number; also one beside the zone of the point
/// @param[out] Laenge, Breite     [degrees]
/// @return 0; -1 if a result is not finite
[[nodiscard]] int UTMRueckwaerts(double Easting, double Northing, std::int32_t Zone, double& Laenge,
                                 double& Breite);

/// Degrees, minutes and seconds, 0 up to below 60. Seconds that would miss a full minute by less than 1e-9
/// (rounding: 30 nm on the ground) become that minute.
///
/// Minutes and seconds are those of the absolute value, the sign goes with the degrees, on purpose: -10.5 is
/// -10 30 0. Between -1 and 0 there is no degree to carry it and the sign is lost: -0.5 is 0 30 0.
/// @return 0; 1 if the sign is lost; -1 for degrees beyond 32 bits
[[nodiscard]] int GradInGMS(double Wert, std::int32_t& Grad, std::int32_t& Minuten, double& Sekunden);

}  // namespace tavorena
