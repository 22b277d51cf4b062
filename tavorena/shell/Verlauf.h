#pragma once

#include <map>
#include <optional>
#include <string>

// When a file was last open, and how many points it held then: what the start page tells besides its name.
// TavorenaVerlauf.ini of the application folder has a line for each file, the latest first:
// "22.11.2026  153  /daten/musterdorf.kor". It is told to nobody when it can not be written: all that is
// missing then is a date.

namespace tavorena {

struct Verlaufsatz {
  std::string Datum;  ///< "dd.mm.yyyy"
  int Punkte = 0;
};

/// What is known, by file name. Lines that are none of ours are left out; empty without a file.
[[nodiscard]] std::map<std::string, Verlaufsatz> VerlaufLesen();

/// The file is, or was until now, open today.
/// @param[in] Punkte  how many points it holds; left out: as many as were known, and an unknown file stays so
void VerlaufMerken(const std::string& Dateiname, std::optional<int> Punkte = {});

}  // namespace tavorena
