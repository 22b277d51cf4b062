#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tavorena/records/Nivellement.h>

/// @file
/// Levelling files. NIV, the field book: a row a point with number, backsight, intermediate sight, foresight,
/// the lengths of back- and foresight and a remark, by blanks; "-" or a row that ends stand for none, ","
/// counts as ".". "C" begins a comment, "NIV" and a name a further line. DAT: a row a set-up.

namespace tavorena {

/// A line of a field book.
struct Nivlinie {
  std::string Name;  ///< "" for the one that begins without
  std::vector<Nivzeile> Zeilen;
};

/// What a line of the file is.
enum class Nivzeilenart { Nichts, Name, Punkt, Falsch };

/// Reads one line.
/// @param[out] P     the row of a point
/// @param[out] Name  of a further line
[[nodiscard]] Nivzeilenart NivzeileLesen(std::string_view Zeile, Nivzeile& P, std::string& Name);

/// Reads a field book. A line that can not be understood refuses the whole file: without its row the heights
/// behind it would be wrong. Lines without rows are left out.
/// @return 0; -1 with a message that names the file and the line
[[nodiscard]] int NivDateiLesen(const std::string& Datei, std::vector<Nivlinie>& Linien);

/// The text of a field book; readings have 5 decimals, lengths 3.
[[nodiscard]] std::string NivText(const std::vector<Nivlinie>& Linien);

/// All rows one below the other. The name of a line becomes the remark of its first row if that has none.
[[nodiscard]] std::vector<Nivzeile> NivZeilen(std::vector<Nivlinie> Linien);

/// The set-ups of a field book as a DAT file, in place of a file that is there: back and fore number, height
/// difference, length of both sights (blank without).
/// @param[out] Anzahl  set-ups
/// @return 0; -1 with a message: the rows make no set-ups, or the file can not be written
[[nodiscard]] int DatSchreiben(const std::string& Datei, const std::vector<Nivzeile>& Zeilen, int& Anzahl);

}  // namespace tavorena
