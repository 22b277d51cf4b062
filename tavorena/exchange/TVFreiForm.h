#pragma once

#include <string>

#include <tavorena/exchange/Freiformat.h>

/// @file
/// The dialog of the free format: what stands where in a line, and below it the first lines as they would be
/// read or written. Stands behind a file dialog.

namespace tavorena {

/// Page of the handbook.
inline constexpr int Austauschseite = 1050;
/// Lines that are shown.
inline constexpr int FreiVorschauzeilen = 10;

/// Asks for the definition by which a file is read.
/// @param[in,out] F  what stands in the fields at first; on return the choice, which is LetztesFreiformat too
/// @return 0; -1 if cancelled, or the file can not be read, with a message; both are then as they were
[[nodiscard]] int FreiformatFragenLesen(const std::string& Datei, Freiformat& F);

/// The same for writing the table, with the decimals of saved coordinates.
[[nodiscard]] int FreiformatFragenSchreiben(Freiformat& F);

}  // namespace tavorena
