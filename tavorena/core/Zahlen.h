#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include <tavorena/core/Wert.h>

// Numbers to text and back. Independent of the locale; "." is the decimal mark. A field that cannot hold
// its value is filled with "*": no function here widens a field by itself.
//
// Rounding is commercial, halves away from zero, on the decimal text of the value: the value is first
// taken to 15 significant digits, so that 1.0005 with 3 decimals gives 1.001 although its binary form lies
// below the half. A value that rounds to zero has no minus sign.

namespace tavorena {

/// Numeric prefix of a text: blanks and tabs are skipped, then sign, digits, one decimal point, exponent;
/// the first other character ends it. "," is read as ".". No prefix gives 0. A number too large for a
/// double gives infinity, which every field shows as stars.
double ZahlAusText(std::string_view Text);

/// The whole word is a number as ZahlAusText reads it.
bool IstZahlwort(std::string_view Wort);

/// The integer below or at ZahlAusText, as old files hold it in 16 bits; 0 where it does not fit.
std::int16_t KurzAusText(std::string_view Text);

/// As ZahlAusText; besides, every "," in Text is replaced by "." in place.
double ZahlVonText(std::string& Text);
/// The same for a Wert: a text is altered in place, of any other state the numeric value is returned.
double ZahlVonText(Wert& Text);

/// A text stays as it is; null gives ""; a number gives its shortest decimal text: up to 15 significant
/// digits, no exponent, "0.5" with its zero. Empty and boolean are returned unchanged.
Wert ZahlNachText(const Wert& Zahl);

/// Fixed-width number field with Vorkomma integer places and Nachkomma decimals, right-aligned in
/// Vorkomma + Nachkomma + 1 characters. Empty and null give blanks; 10^Vorkomma or more, or a negative
/// value of 10^(Vorkomma-1) or more, gives stars (the test looks at the unrounded value).
/// A negative Vorkomma formats free: no fixed width, no blanks.
std::string ZahlFormat(const Wert& Zahl, int Vorkomma, int Nachkomma);

/// As ZahlFormat, the integer places filled with zeros.
std::string ZahlFormatNull(const Wert& Zahl, int Vorkomma, int Nachkomma);

/// Three decimals, right-aligned in 12 characters, without a test for overflow.
std::string ZahlFormatFest(const Wert& Zahl);

/// ZahlFormat of a number with Vorkomma of 0 or more, appended to Ziel: for whole files.
void ZahlFormatAnhängen(std::string& Ziel, double Zahl, int Vorkomma, int Nachkomma);

/// Integer field of width Breite: a text is right-aligned (a longer one returned whole), null gives
/// stars, a number of 10^Breite or more gives stars, empty counts as 0. A Breite of 0 or less means free.
std::string ZahlFeld(const Wert& Zahl, int Breite);

/// Integer field of width Breite with leading zeros: the key fields of fixed-column records.
std::string ZahlFeldNull(const Wert& Zahl, int Breite);

/// Point number field: right-aligned in 8, a longer text whole and uncut. Empty gives "*" (the mark of a
/// missing point), null 8 blanks; a number is rounded to an integer.
std::string PnrFormat(const Wert& Pnr);

/// Grad (degrees) divided by 0.9, as ZahlFormat with 3 and 4, with " gon" behind it.
std::string GonText(double Grad);

}  // namespace tavorena
