#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tavorena/rawdata/Rohdaten.h>

/// @file
/// The blocks of a raw-data file as stations in the order of work: which rows are the connection, which the
/// measurement, and what is measured once more.

namespace tavorena {

inline constexpr std::size_t AnschlussGrenze = 1001;  ///< connection rows of a station

/// A station, or a further measurement from it.
struct Rohstation {
  std::string Standpunkt;  ///< "": the file has no station code, the number is typed
  std::string Symbol;
  Wert Instrumentenhöhe;            ///< [m]; empty when the file does not say
  std::vector<Rohpunkt> Anschluss;  ///< of the orientation block, or of an only block
  std::vector<Rohpunkt> Messung;    ///< polar rows
  bool Getrennt = false;            ///< the file tells both kinds apart; else all rows stand in Anschluss
  bool Wiederholt = false;          ///< a further block of the station before: all rows stand in Messung
  int Stelle = 0;                   ///< of the station in the file, from 1
  std::size_t Zeile = 0;            ///< where it begins
};

/// Two blocks of one number that follow each other are orientation and measurement, every further one of it a
/// repeated measurement; a block without rows beside others of its number is none. Rows of an orientation
/// block beyond OrientierungsGrenze are polar rows.
[[nodiscard]] std::vector<Rohstation> Stationsfolge(std::vector<Rohblock> Blöcke);

/// The rows of an only block that are no connection become polar rows, in the order of the file; ticked ones
/// beyond AnschlussGrenze too. @param[in] Ein  a tick for each row of Anschluss
void AnschlussTrennen(Rohstation& S, const std::vector<bool>& Ein);

/// Number of stations, repeated measurements not counted.
[[nodiscard]] int Stationszahl(const std::vector<Rohstation>& Folge);

/// "Station 3 von 22 (BP05)".
[[nodiscard]] std::string Stationsname(const Rohstation& S, int Anzahl);
/// The same with its rows: "Station 3 von 22 (BP05): 4 Anschlußpunkte, 57 Punkte".
[[nodiscard]] std::string Stationstext(const Rohstation& S, int Anzahl);

/// The blocks of a file of measured values ("*.dat"). A line of at most three words opens a station: number,
/// instrument height, symbol. Four to six are number, direction, zenith angle [gon], slope distance, target
/// height [m] and code.
/// @param[out] Fehlerhaft  numbers of the lines that are neither, from 1
[[nodiscard]] std::vector<Rohblock> DatBlöcke(std::string_view Inhalt, std::vector<std::size_t>& Fehlerhaft);

}  // namespace tavorena
