#pragma once

#include <functional>
#include <string>
#include <vector>

// Pages of lists in the look of the area proof: a page number, a box, rows.

namespace tavorena {

/// The head of a page: its number, and a box with a title and lines.
[[nodiscard]] std::vector<std::string> Kastenkopf(int Seite, const std::string& Titel,
                                                  const std::vector<std::string>& Innen);

/// The pages, at most 60 lines each, behind each a form feed: what comes after them begins on a new page.
/// @param[in] Kopf     head of the page of that number
/// @param[in] Gruppen  lines that are not torn
/// @return "" without a group
[[nodiscard]] std::string Kastenseiten(int ErsteSeite,
                                       const std::function<std::vector<std::string>(int)>& Kopf,
                                       const std::vector<std::vector<std::string>>& Gruppen);

}  // namespace tavorena
