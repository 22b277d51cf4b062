#pragma once

#include <string>
#include <string_view>
#include <vector>

// Lists of parcels and their areas, the FLT file: read, and laid out for printing.

namespace tavorena {

struct Flurstück {
  std::string Name;
  double Fläche = 0;  ///< [m²]
};

/// What stands in such a file. Empty lines do not count.
struct Flurstücksliste {
  std::vector<Flurstück> Stücke;
  int Übergangen = 0;        ///< lines that are none, or whose comma can be read in two ways
  int ErsteÜbergangene = 0;  ///< number of the first of them, from 1; 0: there is none
};

/// Reads lines of parcel and area with ";", "," or blanks between.
[[nodiscard]] Flurstücksliste FltLesen(std::string_view Text);

/// The list on pages with head, and the sum below. @param[in] Name  of the list
[[nodiscard]] std::string FltSeiten(const Flurstücksliste& L, const std::string& Name, int ErsteSeite,
                                    int Nachkomma);

}  // namespace tavorena
