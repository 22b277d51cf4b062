#pragma once

#include <functional>
#include <string>

#include <tavorena/rawdata/Rohdaten.h>

namespace tavorena {

/// Help number of what is said about raw data.
inline constexpr int Rohdatenseite = 1045;

/// Reads a raw-data file as it is to be understood. @return 0; below 0 with a message
using Rohleser = std::function<int(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Daten)>;

/// The report before anything is taken over, modal: reads the file, shows what was understood of it and the
/// lines that are in doubt, and reads anew whenever one of the fields changes. "&Protokoll" appends the
/// report to the job's protocol.
/// @param[in]     Datei  raw-data file
/// @param[in,out] Wahl   how it is to be understood; as the surveyor left it
/// @param[out]    Daten  what it then holds
/// @param[in]     Leser  of another form than GSI and GRE; empty: RohdatenLesen
/// @return true: it is to be taken over; false: broken off, or it can not be read, which was told; Wahl and
///         Daten are then as they were
[[nodiscard]] bool RohdatenFragen(const std::string& Datei, Rohdatenwahl& Wahl, Rohdaten& Daten,
                                  const Rohleser& Leser = {});

}  // namespace tavorena
