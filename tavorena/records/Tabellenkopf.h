#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavorena {

/// The table head that belongs to a title, selected by its first 8 characters; none for an unknown title.
/// @param[in] MitHoehen  polar points: heights are carried
/// @param[in] SollDatei  comparisons: the file compared against
std::vector<std::string> Tabellenkopf(std::string_view Titel, bool MitHoehen, const std::string& SollDatei);

/// Head of rows with direction, zenith angle and distance. @param[in] MitHoehen  heights are carried
const std::vector<std::string>& PolarKopf(bool MitHoehen);

/// Head above the blocks of VR 25.07, 25.08, 25.10 and 25.50, which their writers put there themselves.
extern const char* const KopfPunkte;

}  // namespace tavorena
