#pragma once

#include <string>
#include <string_view>

#include <tavorena/rawdata/Messsatz.h>

/// @file
/// The word format GSI in its forms of 8 and 16 digits, line by line. Lines are UTF-8 without their line end;
/// positions count characters.

namespace tavorena {

/// What a line is, in GSI and in GRE.
enum Zeilenart : int {
  Messzeile = 0,     ///< a measurement line
  Codezeile = 1,     ///< a code block
  ZuKurz = -1,       ///< shorter than the form needs
  AndereZeile = -2,  ///< anything else
};

/// The decision before all others: a leading "*" in a line of more than one character means the form of 16
/// digits and is taken off. @return true for 16 digits
[[nodiscard]] bool GSISechzehn(std::string_view& Zeile);

/// @name Of lines whose "*" is taken off: 8 digits need 15 characters, 16 digits need 23
/// @{
[[nodiscard]] int GSIZeilenart8(std::string_view Zeile);   ///< @return a Zeilenart
[[nodiscard]] int GSIZeilenart16(std::string_view Zeile);  ///< @return a Zeilenart
/// @}

/// A measurement line into a record, which is emptied first.
///
/// Angles become gon, lengths metres. A value whose unit digit has no divisor is 0 and not `Gelesen`; so is
/// one whose field is no number, its value then being the number in front. Heights 87 and 88 with a digit
/// without divisor are metres as they stand.
///
/// @param[in] AlleEinheiten  besides gon, degrees and metric digits also feet (digits 1 and 7), sexagesimal
///                           degrees (4) and mil of 6400 (5)
/// @return 0; `ZuKurz` or `AndereZeile` if it is no measurement line, the record is then empty
int GSIZeileLesen8(std::string_view Zeile, Messsatz& Satz, bool AlleEinheiten = false);
/// The same for the form of 16 digits.
int GSIZeileLesen16(std::string_view Zeile, Messsatz& Satz, bool AlleEinheiten = false);

/// A code line: block number, the data of word 1 and those of the words behind it, cut like numbers.
/// @return 0; `ZuKurz` or `AndereZeile` if it is no code line, the block is then empty
int GSICodeblockLesen8(std::string_view Zeile, Codeblock& Block);
/// The same for the form of 16 digits.
int GSICodeblockLesen16(std::string_view Zeile, Codeblock& Block);

/// A record as a line of 8 digits, without a line end; each word is followed by a blank. A group that is
/// absent or was not understood writes nothing; what its field can not hold becomes stars.
[[nodiscard]] std::string GSIZeileSchreiben(const Messsatz& Satz);
/// A code block as a line of 8 digits.
[[nodiscard]] std::string GSICodeblockSchreiben(const Codeblock& Block);

/// What `KoordinateAlsGSI` writes beside Rechts and Hoch.
enum class GSIAusgabe { MitHöheUndCode = 41, MitHöhe = 42, NurLage = 43 };

/// One point as a line of 16 digits, for a transfer to the instrument; coordinates in mm.
/// @param[in] Laufnummer  from 1; behind 9999 it begins at 1 again
/// @param[in] Pnr,Code    of more than 16 characters the last 16 are kept
[[nodiscard]] std::string KoordinateAlsGSI(GSIAusgabe Art, int Laufnummer, std::string_view Pnr,
                                           double Rechts, double Hoch, double Höhe, std::string_view Code);

}  // namespace tavorena
