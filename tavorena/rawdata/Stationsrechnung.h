#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tavorena/calc/FreieStationierung.h>

// What was observed on a station, on its way into the calculation: metres and gon, no form, no table.

namespace tavorena {

/// How the station comes to its coordinates.
enum class Stationsart { Helmert, Kongruent, Anschluß };

/// A measurement from the station.
struct Stationsmessung {
  double Hz = 0;        ///< direction [gon]
  double Vk = 0;        ///< zenith angle [gon]
  double Strecke = 0;   ///< slope distance [m]
  double Zielhöhe = 0;  ///< of the target above the point [m]
  bool operator==(const Stationsmessung&) const = default;
};

/// A measurement to a known point.
struct Stationsanschluß {
  std::string Pnr;
  std::string Symbol;
  Lage Ort;         ///< [m]
  double Höhe = 0;  ///< [m]; 0: none
  Stationsmessung M;
  bool Ein = true;  ///< it takes part
};

/// What a station is computed from.
struct Stationsaufgabe {
  Stationsart Art = Stationsart::Helmert;
  std::vector<Stationsanschluß> Zeilen;
  std::size_t Orientierung = 0;  ///< Anschluß: the row that gives the orientation, if it takes part
  bool MitHöhen = true;          ///< heights are carried
  double Instrumentenhöhe = 0;   ///< [m]
  Lage Bekannt;                  ///< Anschluß: the station
  double BekannteHöhe = 0;       ///< Anschluß: its height [m]; 0: none
};

/// Known minus computed, of one row [m].
struct Stationsabweichung {
  double vY = 0, vX = 0, WL = 0;
  std::optional<double> dHo;  ///< height of the station minus that which the row gives; Anschluß: the reverse
};

/// A computed station.
struct Stationsergebnis {
  Lage Ort;         ///< [m]
  double Höhe = 0;  ///< [m]; 0: none
  double Massstab = 1;
  double Epsilon = 0;                            ///< turns a direction into a bearing [gon]
  double MK = 0, ML = 0;                         ///< [m]
  int Anzahl = 0;                                ///< rows that took part
  std::size_t Orientierung = 0;                  ///< Anschluß: the row that gave it
  std::vector<Stationsabweichung> Abweichungen;  ///< of all rows, also of those that did not take part
  std::optional<std::size_t> Größte;  ///< of the rows that took part, the one with the greatest WL above 0
};

/// Computes a station from the rows that take part.
/// @param[out] Ergebnis  untouched if there is none
/// @return "", or what to tell the surveyor: no or one point alone without a known station, points that all
///         fall on one spot, a station too far off for the records
[[nodiscard]] std::string StationRechnen(const Stationsaufgabe& A, Stationsergebnis& Ergebnis);

/// A polar point from a station.
struct Stationspunkt {
  Lage Ort;         ///< [m]
  double Höhe = 0;  ///< [m]; 0: none
};
/// Its height is carried if the station has one. @param[in] Instrumentenhöhe  [m]
[[nodiscard]] Stationspunkt StationspunktRechnen(const Stationsergebnis& Von, double Instrumentenhöhe,
                                                 const Stationsmessung& M);

}  // namespace tavorena
