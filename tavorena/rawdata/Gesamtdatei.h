#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/calc/Epochenvergleich.h>
#include <tavorena/core/Datei.h>
#include <tavorena/records/Vergleichsblock.h>

/// @file
/// The file of all epochs of a settlement or deformation measurement (*.ges): a first line "GES", the kind
/// ("H" heights, "RHZ" positions and heights) and the dates; then a line per point, its number and for each
/// epoch one value or three [m], "-" for a missing one. "," counts as ".", empty lines do not count.

namespace tavorena {

/// A point in all epochs.
struct Gesamtpunkt {
  std::string Nummer;
  Epochenreihe Werte;  ///< one an epoch
};

/// What such a file holds.
struct Gesamtdatei {
  bool MitLage = false;              ///< "RHZ"; otherwise heights alone
  std::vector<std::string> Epochen;  ///< dates "tt.mm.jjjj"
  std::vector<Gesamtpunkt> Punkte;   ///< each number once
};

/// "1.2.2003" as "01.02.2003". @return false if there is no such day, Datum is then untouched
[[nodiscard]] bool DatumLesen(std::string_view Text, std::string& Datum);

/// Reads the text of a file. Whatever is not wholly understood is refused: the file is written again as a
/// whole, and nothing of it may be lost.
/// @param[out] Fehler  the line and what is wrong with it
/// @return 0; -1, G is then untouched
[[nodiscard]] int GesamtdateiAusText(std::string_view Text, Gesamtdatei& G, std::string& Fehler);

/// The text of a file: at least 4 decimals, and as many as a value needs.
[[nodiscard]] std::string GesamtdateiText(const Gesamtdatei& G);

/// Reads a file.
/// @param[out] Stand  of the file as it was read, for GesamtdateiSchreiben
/// @return 0; -1 with a message, G is then untouched
[[nodiscard]] int GesamtdateiLesen(const std::string& Name, Gesamtdatei& G, Dateistand* Stand = nullptr);

/// Replaces a file safely. @param[in] Solange  a file that somebody wrote since is left alone
/// @return 0; -1 with a message, the old file is then as it was
[[nodiscard]] int GesamtdateiSchreiben(const std::string& Name, const Gesamtdatei& G,
                                       const Dateistand& Solange);

/// The epoch of a date; -1: there is none.
[[nodiscard]] int EpocheFinden(const Gesamtdatei& G, std::string_view Datum);

/// What became of the points of an epoch.
struct Epochenzugang {
  int Punkte = 0;         ///< that have a value
  int Neue = 0;           ///< of these, that the file did not hold
  int OhneWert = 0;       ///< points of the list without a height
  std::string Mehrfache;  ///< a number that stands twice with different values
};

/// Adds an epoch in the order of the dates, or replaces the one of the same date as a whole: a point that is
/// not measured again has no value then. New points come last and have none in the other epochs.
/// @param[in]  Datum         "tt.mm.jjjj"
/// @param[in]  Punkte        a number and, for G.MitLage, a position, each with its height
/// @param[in]  NullIstWert   a height of 0 is one (list of heights); otherwise it is none
/// @return 0; -1 if a number stands twice with different values, G is then untouched
[[nodiscard]] int EpocheEintragen(Gesamtdatei& G, const std::string& Datum,
                                  std::span<const Vergleichspunkt> Punkte, bool NullIstWert,
                                  Epochenzugang& Zugang);

}  // namespace tavorena
