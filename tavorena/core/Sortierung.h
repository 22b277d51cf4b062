#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavorena {

/// What the sort compares of a point number; the texts themselves only where they begin alike.
struct Sortierwert {
  double Zahl = 0;           ///< ZahlAusText
  std::uint64_t Anfang = 0;  ///< the first eight bytes, in the order of texts
};
Sortierwert SortierwertVon(std::string_view Nummer);

/// Rows whose number holds a ",".
std::vector<int> KommaZeilen(std::span<const std::string> Nummern);

/// The order in which a list of point numbers stands: 2 before 10, A before B.
///
/// The order is the one of a quicksort (Hoare's partition, middle row as pivot) whose comparison depends on
/// the pivot: with a numeric prefix other than 0 the numeric values are compared, otherwise the texts by
/// character code. On mixed lists that is not a strict order, and the result depends on the order before; it
/// is kept because other jobs rely on it. Lists of distinct numbers have one order only and are sorted the
/// short way.
///
/// A number whose numeric value is taken has its "," replaced by "." in place; this is wanted.
///
/// @param[in,out] Nummern    the point numbers, in their present order
/// @param[in]     Werte      SortierwertVon each number
/// @param[in]     MitKomma   KommaZeilen of the numbers: no others change
/// @param[out]    Folge      Folge[i] is the present row of the number that comes to row i
/// @return true if Folge is the identity
[[nodiscard]] bool SortierfolgeErmitteln(std::span<std::string> Nummern, std::span<const Sortierwert> Werte,
                                         std::span<const int> MitKomma, std::vector<int>& Folge);

/// Brings the rows of parallel columns into the order of Folge, which is the identity afterwards.
template <typename... Spalte>
void SpaltenOrdnen(std::vector<int>& Folge, Spalte&... Spalten) {
  const auto Zyklus = [&Folge](std::size_t Anfang, auto&... s) {
    [&](auto... Gemerkt) {
      std::size_t i = Anfang;
      for (;;) {
        const auto Nächste = static_cast<std::size_t>(std::exchange(Folge[i], static_cast<int>(i)));
        if (Nächste == Anfang) break;
        ((s[i] = std::move(s[Nächste])), ...);
        i = Nächste;
      }
      ((s[i] = std::move(Gemerkt)), ...);
    }(std::move(s[Anfang])...);
  };
  for (std::size_t i = 0; i < Folge.size(); ++i) {
    if (Folge[i] != static_cast<int>(i)) Zyklus(i, Spalten...);
  }
}

}  // namespace tavorena
