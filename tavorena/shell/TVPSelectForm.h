#pragma once

#include <string>
#include <vector>

#include <tavorena/core/KorDatei.h>

namespace tavorena {

/// A list of the points of a file, modal; the marked ones are taken. Return or the space bar marks.
/// @return 0; -1 if cancelled
[[nodiscard]] int PunkteAuswählen(const Punktlisten& Listen, std::vector<std::string>& Gewählt);

}  // namespace tavorena
