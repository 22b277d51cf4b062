#pragma once

#include <span>
#include <string>
#include <vector>

#include <tavorena/records/Vergleichsblock.h>
#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The commands of settlement and deformation measurements.
[[nodiscard]] std::span<const Befehl> Epochenbefehle();

/// The points that make an epoch.
struct Epochenquelle {
  std::string Name;         ///< file that they come from
  bool Höhenliste = false;  ///< heights alone, and 0 is one
  std::vector<Vergleichspunkt> Punkte;
  int Andere = 0;  ///< lines of the file that are no points
};

/// Adds an epoch to the file of all epochs, which is made where it is missing. A date that it holds asks
/// before its values are replaced.
/// @param[in]  Datum     as typed
/// @param[in]  MitLage   kind of a file that is made
/// @param[out] Bericht   what became of the points
/// @return 0; 1 the same, with something to look at in Bericht; -1 with a message, or broken off: the file is
///         as it was
[[nodiscard]] int EpocheHinzufügen(const std::string& Gesamt, const std::string& Datum, bool MitLage,
                                   const Epochenquelle& Quelle, std::string& Bericht);

/// Writes the list of movements. @return 0; -1 with a message
[[nodiscard]] int EpochenlisteErzeugen(const std::string& Gesamt, const std::string& Ziel);

}  // namespace tavorena
