#pragma once

#include <span>
#include <string>

#include <tavorena/rawdata/Rohdaten.h>
#include <tavorena/shell/Befehle.h>

// The commands of raw data: import, export, conversions, unloading, stake-out.

namespace tavorena {

[[nodiscard]] std::span<const Befehl> Rohdatenbefehle();

/// How raw data were understood last: the next file is probably of the same instrument.
extern Rohdatenwahl LetzteRohdatenwahl;

inline constexpr const char* FilterRohdaten = "GSI |*.gsi|GRE |*.gre";

/// Help number of the stake-out.
inline constexpr int Absteckseite = 6050;

/// @name The commands that fill files of their own
/// @{
/// Copies raw-data files into the folder of the edit files and their coordinates as KOR files into that of
/// the KOR files: one that is chosen, or all of the source folder.
void RohdatenEntladen(bool Serie);
/// Asks for the three folders. @return false: cancelled
bool EntladenVerzeichnisse();
/// Asks for the files and makes the stake-out report.
void AbsteckungStarten();
/// Opens the report that was made last, or one that is chosen, in the editor.
void AbsteckberichtAnsehen();
/// @}

}  // namespace tavorena
