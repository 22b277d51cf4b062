#pragma once

#include <array>
#include <cstddef>
#include <string_view>

/// @file
/// Lines of the M5 family: M5, R4 and R5 with fields between bars, REC500 in columns. A line is a text
/// ("TI"), or it is about a point, with its number, code, and up to three values that bear a mark of two
/// characters.

namespace tavorena {

/// What a line is.
enum class M5Art {
  Keine,  ///< none of these forms
  Text,   ///< about the instrument: heights, temperature, names of programs
  Punkt,
};

/// A value as it stands.
struct M5Feld {
  std::string_view Marke;    ///< such as "Hz"
  std::string_view Zahl;     ///< "" for none
  std::string_view Einheit;  ///< "" where the form has none
};

/// The parts of a line, where they stand in it.
struct M5Zeile {
  M5Art Art = M5Art::Keine;
  bool Kurz = false;         ///< R4 and R5: three characters of code and four of number
  std::string_view Angaben;  ///< 7 characters of them, otherwise 27
  std::array<M5Feld, 3> Felder;
  std::size_t Anzahl = 0;  ///< of Felder
};

/// Cuts a line; positions count characters.
[[nodiscard]] M5Zeile M5Zerlegen(std::string_view Zeile);

/// The 27 characters come in two orders, and each file has one: the line shows the one with the number last.
[[nodiscard]] bool M5NummerHinten(const M5Zeile& Z);

/// Number and code of a point.
/// @param[in] Hinten  the number is the last word and the code the one before it; otherwise they are the
///                    characters 9 to 20 and 21 to 25
void M5Nummer(const M5Zeile& Z, bool Hinten, std::string_view& Nummer, std::string_view& Code);

/// An angle in gon: "gon", "grd", "DEG", "DMS" (ddd.mmss), gon where no unit stands.
/// @return false: another unit or no number
[[nodiscard]] bool M5Winkel(const M5Feld& F, double& Gon);
/// A length in m, which is the only unit.
[[nodiscard]] bool M5Länge(const M5Feld& F, double& Meter);

}  // namespace tavorena
