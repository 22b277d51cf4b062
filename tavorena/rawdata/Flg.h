#pragma once

#include <string>
#include <string_view>
#include <vector>

/// @file
/// FLG files: the online log of a total station about its own free stations. Nothing is computed from it; it
/// is printed beside the station that the program computes.

namespace tavorena {

/// What the instrument wrote about one station.
struct FlgBlock {
  std::string Standpunkt;           ///< "" where the block names none
  std::vector<std::string> Zeilen;  ///< all but its title and its number, in the order of the file
};

/// Cuts the text of a file into its stations. Lines ahead of the first title belong to none.
/// @return 0; -1: no line is the title of a station, the file is of another form; Blöcke is then empty
[[nodiscard]] int FlgLesen(std::string_view Text, std::vector<FlgBlock>& Blöcke);

/// The block as it is printed: a title and the lines behind six blanks, lines of six fields in columns.
[[nodiscard]] std::vector<std::string> FlgZeilen(const FlgBlock& B);

}  // namespace tavorena
