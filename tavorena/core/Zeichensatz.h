#pragma once

#include <string>
#include <string_view>
#include <vector>

// The code pages that files of points are exchanged in. Texts are UTF-8 in memory.

namespace tavorena {

enum class Zeichensatz {
  Automatisch,  ///< reading alone: valid UTF-8 as such, all else as Windows-1252
  Utf8,
  Utf8MitBom,
  Windows1252,
  Dos850,
};

/// As the lists of the choosers show it: "automatisch", "UTF-8", "UTF-8 mit BOM", "Windows-1252", "DOS
/// (850)".
[[nodiscard]] const char* ZeichensatzName(Zeichensatz Z);
/// The names of those that are written, "UTF-8" first.
[[nodiscard]] std::vector<std::string> Ausgabezeichensätze();
/// The one of a name, in any case; the console's words "auto", "utf8", "utf8-bom", "1252" and "850" too.
/// @return false if there is none; Z is then untouched
[[nodiscard]] bool ZeichensatzAus(std::string_view Name, Zeichensatz& Z);

/// The bytes of a text; a character without a place becomes "?".
[[nodiscard]] std::string NachZeichensatz(std::string_view Text, Zeichensatz Z);
/// The first character of a text that has no place, as a view into it; empty: all have one.
[[nodiscard]] std::string_view ZeichenOhnePlatz(std::string_view Text, Zeichensatz Z);
/// The text of bytes; a byte-order mark is dropped.
/// @param[in,out] Text   the bytes, on return the text
/// @param[out]    Grund  why not
/// @return 0; -1 for UTF-16, and for UTF-8 that was asked for and is none
[[nodiscard]] int AusZeichensatz(std::string& Text, Zeichensatz Z, std::string* Grund = nullptr);

}  // namespace tavorena
