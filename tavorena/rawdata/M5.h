#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tavorena/rawdata/Rohdaten.h>

/// @file
/// Files of the M5 family (M5Zeile.h) as a whole. X is Hoch and Y is Rechts; directions are oriented by the
/// instrument (orientation 0). Instrument and reflector height of a text line stay in force until the next. A
/// point with the code "S" is a station.
///
/// Of a row with a horizontal distance and no zenith angle Rohpunkt::V is 0 and Rohpunkt::Strecke the
/// horizontal distance: it has no height.

namespace tavorena {

/// Reads a file: blocks by station and instrument height, the points with coordinates, the findings of the
/// report, which name the coordinates that lie farther than M5Grenze from those of the rows.
/// @return as RohdatenLesen
[[nodiscard]] int M5Lesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Roh,
                          std::string* Grund = nullptr);
/// The same for a text in memory. @return 0; -2 stopped
[[nodiscard]] int M5TextLesen(std::string_view Text, const Rohdatenwahl& Wahl, Rohdaten& Roh);

inline constexpr double M5Grenze = 0.002;  ///< in position or height [m]

/// Coordinates of the instrument against those that follow from its measurement.
struct M5Abweichung {
  std::string Nummer;
  double dR = 0, dH = 0;  ///< instrument minus computed [m]
  Wert dZ;                ///< empty if one of them has no height
  std::size_t Zeile = 0;  ///< of the coordinates
};
/// Each pair of coordinates with the last row of the number ahead of them, or the first one.
[[nodiscard]] std::vector<M5Abweichung> M5Vergleichen(const Rohdaten& Roh);

/// Position or height is off by more than M5Grenze.
[[nodiscard]] bool M5Auffällig(const M5Abweichung& A);

/// The points of a file, in its order: of each row the polar point, besides them the coordinates whose number
/// has no row. A station without coordinates lies at 0/0/0. A height needs that of the station, or none of
/// its coordinates, and the instrument height.
[[nodiscard]] std::vector<Rohkoordinate> M5Punkte(const Rohdaten& Roh);

/// Writes them as a KOR file, in place of one that is there. @return 0; -1 with a message, also without
/// points
[[nodiscard]] int M5PunkteSchreiben(const Rohdaten& Roh, const std::string& Ziel, int& Anzahl);

}  // namespace tavorena
