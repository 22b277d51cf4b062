#pragma once

#include <string>
#include <string_view>
#include <vector>

/// @file
/// Lists of heights (HLI), a line a point: number, height and a remark, by blanks. "," counts as ".".

namespace tavorena {

/// A point of a list of heights.
struct Höhenpunkt {
  std::string Pnr;
  double Höhe = 0;  ///< [m]
  std::string Bemerkung;
};

/// A line of a list. @return false: it has no number and height; P is then untouched
[[nodiscard]] bool HöhenzeileLesen(std::string_view Zeile, Höhenpunkt& P);
/// The line of a point, without its end: the height with 4 decimals.
[[nodiscard]] std::string Höhenzeile(const Höhenpunkt& P);

/// Reads a list.
/// @param[out] Andere  lines that are no points; empty ones do not count
/// @return 0; -1 with a message: the file can not be read
[[nodiscard]] int HöhenlisteLesen(const std::string& Datei, std::vector<Höhenpunkt>& Punkte, int& Andere);

/// The text of a list.
[[nodiscard]] std::string HöhenlisteText(const std::vector<Höhenpunkt>& Punkte);
/// Writes a list, in place of a file that is there. @return 0; -1 with a message, the file is as it was
[[nodiscard]] int HöhenlisteSchreiben(const std::string& Datei, const std::vector<Höhenpunkt>& Punkte);

/// Adds a value to all heights of a list; other lines stay as they are, empty ones go.
/// @param[in]  Wert    [m]
/// @param[out] Anzahl  heights
/// @return 0; -1 with a message: the file can not be read or written, or holds no height
[[nodiscard]] int HöhenlisteAddieren(const std::string& Datei, double Wert, int& Anzahl);

/// Makes a list of an adjusted network (LT5): of each line the number, its first word, and the last one that
/// is a number.
/// @param[out] Anzahl  heights
/// @param[out] Andere  lines without them; empty ones do not count
/// @return 0; -1 with a message: the file can not be read or written, or holds no height
[[nodiscard]] int HöhenlisteAusLT5(const std::string& Quelle, const std::string& Ziel, int& Anzahl,
                                   int& Andere);

}  // namespace tavorena
