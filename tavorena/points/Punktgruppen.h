#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

// Which points of the table belong together: equal numbers, nearly one place, a run of numbers. Rows are
// those of the table, from 0; nothing is changed and nothing asked.

namespace tavorena {

/// Rows whose number stands in more than one row, neighbours or not, in table order; compared as KorSuche
/// does.
/// @param[out] Anzahl  their number
void DoppeltePunkteSuchen(std::vector<int>& Index, int& Anzahl);

/// The same rows by number: the groups follow by their first rows, a group is in table order.
[[nodiscard]] std::vector<std::vector<int>> Doppelgruppen();

/// Some points and the middle of them [m].
struct Punktgruppe {
  std::vector<int> Zeilen;
  double Rechts = 0, Hoch = 0;
  double Hoehe = 0;  ///< mean of the heights that there are; 0: there is none
};

/// A group of rows with its middle.
[[nodiscard]] Punktgruppe GruppeMitMitte(std::vector<int> Zeilen);

/// Points at nearly one place. Each row in table order that no group before took gathers all rows within
/// Radius, those of other groups too; a row that was gathered starts no group of its own.
/// @param[in] Radius  greatest distance, to 8 decimals [m]; 0 finds points on one spot, below 0 nothing
/// @param[in] MitEinzelpunkten  false: only groups of two or more
[[nodiscard]] std::vector<Punktgruppe> QuasiidentischePunkte(double Radius, bool MitEinzelpunkten);

/// Consecutive point numbers, all of them used or all free.
struct Nummernlauf {
  std::int64_t Von = 0, Bis = 0;
  bool Belegt = false;
};

/// The value of a point number of digits only, at most 18 and without a zero in front.
/// @return false: the number is another one
[[nodiscard]] bool GanzePunktnummer(std::string_view Pnr, std::int64_t& Zahl);

/// Used and free runs of numbers from Von to Bis, in turn and from end to end; bounds upside down are turned
/// round. Only numbers that GanzePunktnummer reads count.
[[nodiscard]] std::vector<Nummernlauf> Punktnummernbelegung(std::int64_t Von, std::int64_t Bis);

}  // namespace tavorena
