#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include <tavorena/core/Wert.h>

// Texts are UTF-8; a width or a position counts characters, never bytes.

namespace tavorena {

/// Number of characters (code points) of a UTF-8 text.
std::size_t ZeichenAnzahl(std::string_view Text);

/// Anzahl characters from the 0-based character Ab on; less where the text ends before.
std::string_view TextTeil(std::string_view Text, std::size_t Ab, std::size_t Anzahl = std::string_view::npos);

/// Text without blanks and tabs at both ends, as a view into Text: for the loops that must not allocate.
std::string_view TrimmenSicht(std::string_view Text);

/// The same without the zeros in front: what is left of a number of zeros is "".
std::string_view Nullenlos(std::string_view Text);

/// Blanks and tabs removed at both ends; a Wert that is not a text goes through ZahlNachText first.
std::string Trimmen(const Wert& Eingabe);

/// Replaces every occurrence of the one-character Such by the one-character Ersatz in place.
/// Nothing happens if the two are equal or Text is empty.
void ZeichenErsetzen(std::string& Text, char Such, char Ersatz);

/// Text cut to its first Breite characters, or filled with blanks behind it.
std::string FeldLinks(std::string_view Text, int Breite);

/// Text cut to its last Breite characters, or filled with blanks in front of it.
std::string FeldRechts(std::string_view Text, int Breite);

/// Text right-aligned in Breite characters; a longer text is returned whole.
std::string RechtsBündig(std::string_view Text, int Breite);

/// That many blanks; a negative Anzahl gives "".
std::string Leerzeichen(int Anzahl);

/// Joins with exactly one backslash. No folder, no path: an empty Pfad gives "" even if Name is not empty.
std::string PfadVerbinden(std::string_view Pfad, std::string_view Name);

/// True if Text is empty or consists of blanks only.
bool IstLeerText(std::string_view Text);

/// True if every character is a digit, blank, tab, ",", ".", "+" or "-"; true for the empty text.
bool IstZahlText(std::string_view Text);

/// A piece of Text counted from its right end: it starts at character Länge - Stelle + 1 and has Laenge
/// characters. "" if the start lies outside the text; the rest where Laenge reaches beyond the end.
std::string TeilVonRechts(std::string_view Text, int Stelle, int Laenge);

/// If Breite is over 3 and Text is longer: "..." and the last Breite - 3 characters; otherwise Text.
std::string KuerzenMitPunkten(std::string_view Text, int Breite);

/// A number with its noun: "1 Zeile", "2 Zeilen".
std::string Anzahltext(int Anzahl, std::string_view Eins, std::string_view Viele);

/// 1 for a digit; -1 for a code below 32, for 127, for "+" and "-"; 0 for all else.
int ZeichenKlasse(int Zeichencode);

/// Upper case of the letters a to z and of the umlauts; ß stays.
std::string Großtext(std::string_view Text);

/// Text that comes from a file, for a terminal: each control character, line ends too, is shown as its
/// picture
/// ("␛" for escape) and does nothing.
std::string Sichtbar(std::string_view Text);

/// A point number for a message: cut after 40 characters, with "…" behind it.
std::string Zitat(std::string_view Pnr);

/// Next token of a line. Blank, tab and code 0 separate; a carriage return ends the token and the
/// skipping of separators too, so that it can not merge two lines. Zeile is advanced behind the token.
std::string_view Wortnehmen(std::string_view& Zeile);

/// Exchanges two values.
template <typename T>
void Tauschen(T& A, T& B) {
  std::swap(A, B);
}

}  // namespace tavorena
