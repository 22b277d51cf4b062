#pragma once

#include <optional>
#include <vector>

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/worksheets/Kleinpunktgitter.h>

// Points that were measured several times from one station. The mean of them becomes a row like any other: it
// bears the measurement that leads from the station to the mean, so that protocol, batch and replay agree.

namespace tavorena {

inline constexpr std::size_t MessmittelGrenze = 1025;  ///< rows that can be saved for a second measurement

/// What polar rows are seen from.
struct Messstandpunkt {
  Stationsergebnis Station;
  double Instrumentenhöhe = 0;  ///< [m]
};

/// The measurement, to 4 decimals, that leads to a point. Without a height of both, the zenith angle is 100
/// gon.
[[nodiscard]] Stationsmessung MessungNach(const Messstandpunkt& Von, const Stationspunkt& P, double Zielhöhe);

/// Rows with the points that come of them.
[[nodiscard]] std::vector<Punktsatz> Messpunktsätze(const Messstandpunkt& Von,
                                                    const std::vector<Kleinpunkteingabe>& Zeilen);

/// One row of several: plain means of Rechts, Hoch and of the heights that are not 0; number and target
/// height of the first, the first symbol and line. @param[in] Zeilen  at least one
[[nodiscard]] Kleinpunkteingabe ZeilenMitteln(const Messstandpunkt& Von,
                                              const std::vector<Kleinpunkteingabe>& Zeilen);

/// The rows of two measurements, paired by number: for each of the first the row of the second one that
/// belongs to it, as often as there is one.
[[nodiscard]] std::vector<std::optional<std::size_t>> Messpaare(const std::vector<Kleinpunkteingabe>& Erste,
                                                                const std::vector<Kleinpunkteingabe>& Zweite);

}  // namespace tavorena
