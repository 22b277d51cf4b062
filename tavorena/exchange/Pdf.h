#pragma once

#include <string>

#include <tavorena/core/Ports.h>

namespace tavorena {

/// @name Where the lines stand on their sheet, on paper as in the file [points of 1/72 inch]
/// @{
inline constexpr double Blattbreite = 595.276, Blatthöhe = 841.890;  ///< A4
inline constexpr double Zeilenabstand = 12;
inline constexpr double ErsteGrundlinie =
    70;  ///< of the first line, from above; the 60 lines stand in the middle
inline constexpr double Zeichenvorschub = 0.602;  ///< of a character, in sizes of the font
inline constexpr int Randzeichen = 6;             ///< left margin, in characters
inline constexpr const char* Druckschrift = "DejaVu Sans Mono";
/// @}

/// Writes pages as PDF: text that can be selected and searched in the embedded fixed-width font, the date
/// from the clock. The file is replaced safely. Long work shows "Seite n von m" in the status bar and can be
/// stopped.
/// @param[in]  Titel  of the document
/// @param[out] Grund  why not, in a few words
/// @return 0; -1: not written, an old file is as it was; -2: stopped, as -1
[[nodiscard]] int PdfSchreiben(const std::string& Name, const Druckseiten& Seiten, const std::string& Titel,
                               std::string* Grund = nullptr);

}  // namespace tavorena
