#pragma once

#include <vector>

#include <tavorena/core/KorDatei.h>

namespace tavorena {

/// A list of points, modal: rows are chosen by their marks, by a range of numbers, or from a file of numbers.
/// @param[out] Zeilen  the chosen rows of the list, rising
/// @return 0; -1 if cancelled
[[nodiscard]] int PunkteAuswählen(const Punktlisten& Listen, std::vector<int>& Zeilen);

/// The same with the points of the table.
[[nodiscard]] int TabellenpunkteAuswählen(std::vector<int>& Zeilen);

}  // namespace tavorena
