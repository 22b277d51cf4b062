#pragma once

#include <array>
#include <string>
#include <string_view>

#include <tavorena/core/Formate.h>
#include <tavorena/core/Zeichensatz.h>
#include <tavorena/exchange/Textformate.h>

/// @file
/// Lists whose lines the user defines: fields between separators, or columns.

namespace tavorena {

/// Where a value stands in a line. Fields and columns count from 1.
struct Freispalte {
  int Von = 0;  ///< the field, or the first column; 0: the value is not there
  int Bis = 0;  ///< the last column; of no meaning between separators
  bool operator==(const Freispalte&) const = default;
};

/// What stands in a line.
enum Freiwert : std::size_t { FreiPnr, FreiRechts, FreiHoch, FreiHoehe, FreiSymbol, Freiwerte };
/// Their captions: "Punktnr.", "Rechts", "Hoch", "Höhe", "Symbol".
inline constexpr std::array<const char*, Freiwerte> Freinamen = {"Punktnr.", "Rechts", "Hoch", "Höhe",
                                                                 "Symbol"};

struct Freiformat {
  bool InSpalten = false;
  char Trenner = ' ';  ///< ' ' (runs of blanks and tabs), '\t', ';' or ','
  std::array<Freispalte, Freiwerte> Werte{{{1, 0}, {2, 0}, {3, 0}, {4, 0}, {5, 0}}};
  int Überspringen = 0;                         ///< lines at the beginning that are not looked at
  Zeichensatz Satz = Zeichensatz::Automatisch;  ///< of the file that is read
  bool operator==(const Freiformat&) const = default;
};

inline constexpr int FreiMaxFeld = 999, FreiMaxZeilen = 9999;

/// The last choice: what the format of the table reads and writes by.
extern Freiformat LetztesFreiformat;

/// What is wrong with a definition.
struct Freieinwand {
  std::string Text;            ///< "": nothing
  std::size_t Wert = FreiPnr;  ///< the value that it is about
};
/// @param[in] Schreiben  also what would not come back: values in one place, a field that can be empty
/// between
///                       blanks
[[nodiscard]] Freieinwand FreiformatEinwand(const Freiformat& F, bool Schreiben);

/// The definition of a text such as "trenner=; pnr=1 rechts=2 hoch=3 hoehe=4 symbol=5 zeilen=1": trenner is
/// leer, tab, ";" or ",", columns are "pnr=1-8", zeichensatz one of ZeichensatzAus. What is not named is not
/// there.
/// @param[out] Grund  why not
/// @return 0; -1, F is then untouched
[[nodiscard]] int FreiformatLesen(std::string_view Text, Freiformat& F, std::string& Grund);

/// The values of a line, as views into it. Stars are no number.
[[nodiscard]] Punktfelder FreizeileZerlegen(std::string_view Zeile, const Freiformat& F);

/// A column begins or ends inside a word that no other value goes on with.
[[nodiscard]] bool FreispalteZerschneidet(std::string_view Zeile, const Freiformat& F, std::size_t Wert);

/// Appends the line of a point without its end: between separators as short as can be, in columns
/// right-aligned (too long: stars).
void FreizeileAnhängen(const Freiformat& F, const KorSatz& S, int Nachkomma, std::string& Ziel);

/// Reads and writes by LetztesFreiformat.
[[nodiscard]] Formatzugang FreiZugang();

}  // namespace tavorena
