#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tavorena/rawdata/Rohdaten.h>

namespace tavorena {

/// What was understood of a raw-data file, for people: the lines of the report, without line ends. Counts
/// stand at the beginning of a line ("Zeilen: ", "Messung: ", "Codeblock: ", "Stationen: ", "Punkte: ",
/// "Nicht gelesen: "), what belongs to them is indented below.
[[nodiscard]] std::vector<std::string> RohdatenBericht(const Rohdaten& Roh);

/// Each line of a raw-data text as it was understood, a line each, fields separated by one tab: line number,
/// class; of a measurement each group that is there as index:info:value; of a code block "Nr:" block number,
/// "Anzahl:" count, and the values.
[[nodiscard]] std::string RohdatenSatzliste(std::string_view Text, Rohform Form, bool AlleEinheiten = false);

}  // namespace tavorena
