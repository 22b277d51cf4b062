#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Formate.h>
#include <tavorena/exchange/Freiformat.h>

// Lists with a line of headings, fields between ";", tabs or ",", quoted as in RFC 4180. Coordinates in
// metres.

namespace tavorena {

/// What the columns x and y are where no other heading names Rechts and Hoch.
enum class Csvachsen {
  Fragen,    ///< x is Hoch; where the values say otherwise, the user is asked
  Ablehnen,  ///< x is Hoch; where the values say otherwise, the file is not read
  YX,        ///< x is Hoch
  XY,        ///< x is Rechts
};
extern Csvachsen CsvAchsen;

/// What the first line that is not empty says about the columns, counted from 0; -1: there is none.
struct Csvkopf {
  char Trenner = ';';
  int Pnr = -1, Rechts = -1, Hoch = -1, Hoehe = -1, Symbol = -1;
  int Zeile = 1;       ///< number of the line
  int Felder = 0;      ///< of the line; 0: there is none
  bool Punkt = false;  ///< the line is no heading: it has numbers in its fields
  bool NurXY = false;  ///< Rechts and Hoch are told by "y" and "x" alone

  /// Number and coordinates have their columns.
  [[nodiscard]] bool Erkannt() const { return Pnr >= 0 && Rechts >= 0 && Hoch >= 0; }
};

/// Looks at the headings of a text.
[[nodiscard]] Csvkopf CsvKopf(std::string_view Text);

/// What the free format can go by where the headings are not known: the separator, the columns that are, or
/// the first five in their order, and the lines before the first point.
[[nodiscard]] Freiformat CsvAlsFreiformat(const Csvkopf& Kopf);

/// Before a CSV file is extended: the new text loses its line of headings where the file has the same.
/// @return 0; -1 if the file has others, Text is then untouched
[[nodiscard]] int CsvFortsetzen(std::string_view Alt, std::string& Text);

/// Cuts a text into records and fields. A field is quoted where a quotation mark begins it and another one
/// ends it; a mark that is never closed so is a character. Line ends of all kinds end a record.
class Csvleser {
 public:
  Csvleser(std::string_view Inhalt, char Trennzeichen) : Text(Inhalt), Trenner(Trennzeichen) {}

  /// The next record. Its fields have no blanks at their ends, blanks for line ends inside, and live
  /// until the next call. @return false at the end of the text
  [[nodiscard]] bool Nächster(std::vector<std::string_view>& Felder);
  /// Number of the line that the last record begins in, from 1.
  [[nodiscard]] int Zeile() const { return Beginn; }
  /// A quoted field was not closed before the end of the text.
  [[nodiscard]] bool Abgeschnitten() const { return Schlußlos; }

 private:
  [[nodiscard]] bool Endet(char z) const { return z == Trenner || z == '\r' || z == '\n'; }
  [[nodiscard]] std::size_t HinterLeeres(std::size_t i) const;
  std::string_view Feld(std::size_t Stelle);
  bool Angeführt(std::size_t Von, std::size_t Stelle, std::string_view& Feld);

  std::string_view Text;
  char Trenner;
  std::size_t Ab = 0;
  int Nummer = 1, Beginn = 1;
  bool Schlußlos = false;
  std::deque<std::string> Eigene;  // the fields that differ from the text, by their place in the record
};

/// Format 70. Reading asks about x and y as CsvAchsen says; a row without number or with coordinates that are
/// no numbers from end to end is passed over, and so is one with more fields than headings. Written with ";",
/// after EDBS or LT4 with the attributes.
[[nodiscard]] Formatzugang CsvZugang();

}  // namespace tavorena
