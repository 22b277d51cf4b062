#pragma once

#include <string>
#include <vector>

#include <tavorena/rawdata/Stationsfolge.h>

namespace tavorena {

/// A tick for each row of Anschluss whose number the table knows.
[[nodiscard]] std::vector<bool> AnschlussVorschlag(const Rohstation& S);

/// The rows of a station as a list, modal: those that are ticked are the connection.
/// @param[in]     Stand  what the list is about, such as "Station 3 von 22 (BP05)"
/// @param[in,out] Ein    a tick for each row of Anschluss
/// @return 0; -1 if cancelled
[[nodiscard]] int AnschlussWählen(const Rohstation& S, const std::string& Stand, std::vector<bool>& Ein);

}  // namespace tavorena
