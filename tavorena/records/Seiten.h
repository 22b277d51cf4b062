#pragma once

#include <string>
#include <string_view>

#include <tavorena/core/Ports.h>

// Dividing a text into the pages on which it is seen, printed and written as PDF: the same lines on the same
// pages everywhere.

namespace tavorena {

inline constexpr int DruckzeilenJeSeite = 60;

/// The lines of a text on pages. A form feed ends line and page where it stands, and does nothing on a page
/// that has no line. Tabs go to columns of eight, blanks at the end of a line are left out. If a line is too
/// long for 10 points, all take the largest size in half points in which it fits, down to 6; what is longer
/// still goes on in the next line. A control character becomes "?", a code 26 at the end is no line.
/// @param[in] Text  UTF-8; what is not valid is taken for Windows-1252
/// @return no page at all for a text without a line
[[nodiscard]] Druckseiten SeitenTeilen(std::string_view Text);

/// Characters that a line of that size has: 88 of 10 points, 146 of 6.
[[nodiscard]] int Druckspalten(double Schrift);

/// The pages of a text file; one that ends in "pol" is in code page 850, unless it is UTF-8.
/// @return 0; -1 with a message: it can not be read, has no line, or more than 10,000 pages
[[nodiscard]] int DruckdateiLesen(const std::string& Name, Druckseiten& Seiten);

}  // namespace tavorena
