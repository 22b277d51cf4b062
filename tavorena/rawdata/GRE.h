#pragma once

#include <string>
#include <string_view>

#include <tavorena/rawdata/GSI.h>

/// @file
/// The keyword format GRE, line by line: tokens between blanks, a number, then keys with their values.

namespace tavorena {

/// @return a Zeilenart; leading blanks do not count. A line of less than two characters is too short.
[[nodiscard]] int GREZeilenart(std::string_view Zeile);

/// The GSI word index that a key stands for, 11 for "NR" and 51 for "(R"; -1 for an unknown one.
[[nodiscard]] int GREWort(std::string_view Schlüssel);
inline constexpr int GREPaare = 11;  ///< keys behind the number that are read

/// A measurement line into a record, which is emptied first: up to 11 pairs behind the number, in gon and m.
/// A value that is no number is not `Gelesen`.
/// @return 0; `ZuKurz` or `AndereZeile` if it is no measurement line, the record is then empty
int GREZeileLesen(std::string_view Zeile, Messsatz& Satz);

/// A code line: the code is the first value, the values behind "I1" and so on follow.
/// @return 0; `ZuKurz` or `AndereZeile` if it is no code line, the block is then empty
int GRECodeblockLesen(std::string_view Zeile, Codeblock& Block);

/// A record as a line, without a line end. A group that is absent or was not understood writes nothing; a
/// value that its field can not hold becomes stars.
[[nodiscard]] std::string GREZeileSchreiben(const Messsatz& Satz);

/// A code block as a line. The values behind the codes 61 and 62, and the first behind 75 and 76, are
/// millimetres and get their decimal point, unless they have one. A code in word 1 goes ahead of the values.
[[nodiscard]] std::string GRECodeblockSchreiben(const Codeblock& Block);

}  // namespace tavorena
