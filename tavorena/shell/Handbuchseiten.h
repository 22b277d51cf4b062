#pragma once

namespace tavorena {

/// @{
/// Help numbers of pages that no menu leads to.
inline constexpr int Startseitenhilfe = 1125, Viertelstundenhilfe = 1126;
/// @}

/// Page of the handbook that belongs to a help number, as a file name; the first page for an unknown one.
[[nodiscard]] const char* Handbuchseite(int Hilfenummer);

}  // namespace tavorena
