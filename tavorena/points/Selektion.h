#pragma once

#include <string>
#include <vector>

// Selections of points: files with a point number a line.

namespace tavorena {

/// Reads the numbers of a selection in their order; empty lines do not count.
/// @return 0; -1 with a message: the file is missing or can not be read
[[nodiscard]] int SelektionLesen(const std::string& Datei, std::vector<std::string>& Nummern);

/// Writes each number once, in UTF-8, whatever it holds; an old file is replaced as a whole.
/// @return 0; -1 with a message: it can not be written
[[nodiscard]] int SelektionSchreiben(const std::string& Datei, const std::vector<std::string>& Nummern);

/// The rows that a selection names, rising; compared as KorSucheMitPunkt does.
/// @param[in]  Pnr     the numbers of all rows
/// @param[out] Fremde  numbers of the selection that no row has
[[nodiscard]] std::vector<int> SelektionZeilen(const std::vector<std::string>& Nummern,
                                               const std::vector<std::string>& Pnr, int& Fremde);

}  // namespace tavorena
