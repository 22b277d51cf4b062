#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include <tavorena/core/Zahlen.h>

namespace tavorena {

/// The quicksort of the point table, written down plainly, its right parts on the stack: the witness of the
/// fast one, and what the fast one is measured by.
/// @param[in] Tausch  exchanges two rows of all columns, the numbers included
template <typename Tauscher>
void Abschrift(std::vector<std::string>& Nr, Tauscher Tausch) {
  if (Nr.empty()) return;
  const auto Z = [](int i) { return static_cast<std::size_t>(i); };
  std::vector<std::pair<int, int>> Stapel{{0, static_cast<int>(Nr.size()) - 1}};
  while (!Stapel.empty()) {
    auto [lo, hi] = Stapel.back();
    Stapel.pop_back();
    for (;;) {
      int i = lo, j = hi;
      const double P = ZahlVonText(Nr[Z((lo + hi) / 2)]);
      const std::string Pivot = Nr[Z((lo + hi) / 2)];
      const auto Vor = [&](int z) { return P == 0 ? Nr[Z(z)] < Pivot : ZahlVonText(Nr[Z(z)]) < P; };
      const auto Nach = [&](int z) { return P == 0 ? Nr[Z(z)] > Pivot : ZahlVonText(Nr[Z(z)]) > P; };
      do {
        while (Vor(i)) ++i;
        while (Nach(j)) --j;
        if (i <= j) Tausch(Z(i++), Z(j--));
      } while (i <= j);
      if (i < hi) Stapel.emplace_back(i, hi);
      if (lo >= j) break;
      hi = j;
    }
  }
}

}  // namespace tavorena
