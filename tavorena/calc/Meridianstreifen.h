#pragma once

#include <array>
#include <cstdint>

#include <tavorena/calc/Geokonvertierung.h>

/// @file
/// Strips and zones of one's own choice: a point comes into the strip or zone that is asked for, whatever its
/// longitude. Near the central meridian the series of Geokonvertierung.h compute, as everywhere in the
/// package; beyond them, where they are off by 3 mm at 4 degrees (Gauss-Krüger) and at 6 degrees (UTM),
/// Krüger's series in n, which keeps to a micrometre up to 10 degrees and far beyond. Units and frame as
/// there.

namespace tavorena {

/// Krüger's series between conformal and rectified coordinates of an ellipsoid.
/// Source: L. Krüger, Konforme Abbildung des Erdellipsoids in der Ebene, 1912; to the sixth order in n by
/// C. F. F. Karney, Transverse Mercator with an accuracy of a few nanometers, J. Geodesy 85 (2011), (35),
/// (36).
struct Krügerreihe {
  /// @param[in] E  not flatter than half of a, b not above a
  explicit Krügerreihe(const Ellipsoid& E);
  double Radius;               ///< of the rectifying sphere [m]
  double e;                    ///< first eccentricity
  std::array<double, 6> Hin;   ///< of sin 2 xi to sin 12 xi, to the plane
  std::array<double, 6> Rück;  ///< the same, to the ellipsoid
};

/// Strips of Gauss-Krüger, 3 degrees wide, or zones of UTM, 6 degrees wide.
enum class Netzart {
  GK,   ///< scale 1
  UTM,  ///< scale 0.9996
};

/// A grid of strips or zones with all that is computed once.
struct Streifennetz {
  /// Gauss-Krüger on any ellipsoid, scale 1.
  explicit Streifennetz(const Ellipsoid& Körper);
  /// UTM: GRS 80, scale 0.9996.
  Streifennetz();
  Netzart Art;    ///< strips or zones
  Ellipsoid E;    ///< of the points
  Krügerreihe K;  ///< its series
};

/// Central meridian of a strip or zone [degrees].
[[nodiscard]] double Mittelmeridian(Netzart Art, std::int32_t Nummer);

/// How far east of it a longitude lies [degrees, -180 to 180].
[[nodiscard]] double Mittenabstand(Netzart Art, std::int32_t Nummer, double Laenge);

/// Strip or zone that a longitude lies in; one between two belongs to the eastern one.
/// @return 0; -1 if the number exceeds 32 bits, Nummer is then untouched
[[nodiscard]] int StreifenNachLaenge(Netzart Art, double Laenge, std::int32_t& Nummer);

/// A grid has points up to this distance from the central meridian [degrees].
inline constexpr double StreifenGrenze = 10;

/// Geographic coordinates into a strip or zone.
/// @param[in]  N               the grid
/// @param[in]  Nummer          of the strip or zone, also another one than the point's own
/// @param[in]  Laenge, Breite  [degrees]
/// @param[out] Rechts, Hoch    [m]; Rechts with 500000, Gauss-Krüger with the million of the strip
/// @return 0; -1 for a longitude beyond StreifenGrenze, a latitude beyond 90 degrees, and what is not finite:
///         the outputs are then untouched
[[nodiscard]] int StreifenVorwaerts(const Streifennetz& N, std::int32_t Nummer, double Laenge, double Breite,
                                    double& Rechts, double& Hoch);

/// The way back.
/// @param[in]  N               the grid
/// @param[in]  Nummer          strip or zone that the coordinates belong to, whatever million Rechts has
/// @param[in]  Rechts, Hoch    [m]
/// @param[out] Laenge, Breite  [degrees]
/// @return as StreifenVorwaerts, by the longitude and latitude that come out
/// The half millimetre of UTMRueckwaerts holds within 3 degrees, a micrometre beyond.
[[nodiscard]] int StreifenRueckwaerts(const Streifennetz& N, std::int32_t Nummer, double Rechts, double Hoch,
                                      double& Laenge, double& Breite);

}  // namespace tavorena
