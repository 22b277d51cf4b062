#pragma once

#include <cstdint>
#include <vector>

namespace tavorena {

/// Which numbers of the table can be shown at a scale so that no two of them overlap: those of lower rows
/// win. The choice is that of the whole table, so it stays the same while the window moves.
class Nummernwahl {
 public:
  /// @param[in] Massstab  twips per metre
  /// @return per row whether its number is shown
  const std::vector<char>& Bei(double Massstab);

 private:
  std::vector<char> Frei;
  std::uint64_t Stand = 0;
  double Für = 0;  // the scale of the choice
};

}  // namespace tavorena
