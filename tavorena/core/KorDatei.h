#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Formate.h>
#include <tavorena/core/Punkt.h>
#include <tavorena/core/Wert.h>

// Coordinate files: KOR by tokens, LT4 in fixed columns, and the loops that fill and write the table.

namespace tavorena {

/// Cuts one KOR line by tokens: number, Rechts, Hoch, Hoehe (0 if missing), symbol; "," counts as ".".
/// @return 0; -1 if the line is shorter than 6 characters, the outputs are then untouched
[[nodiscard]] int KorZeileLesen(std::string_view Zeile, std::string& Pnr, double& Rechts, double& Hoch,
                                double& Hoehe, std::string& Symbol);

/// Builds one KOR line with OptNachkommaSpeichern decimals.
void KorZeileSchreiben(const Wert& Pnr, double Rechts, double Hoch, double Hoehe, std::string_view Symbol,
                       std::string& Zeile);

/// Appends one KOR line with Nachkomma decimals.
void KorZeileAnhängen(std::string& Ziel, const Wert& Pnr, double Rechts, double Hoch, double Hoehe,
                      std::string_view Symbol, int Nachkomma);

/// Cuts one LT4 line. The format has no height; the symbol is "2" for every point.
/// @return 0; -1 for a comment ("#") and for a line shorter than 64 characters, the outputs are then
/// untouched
[[nodiscard]] int Lt4ZeileLesen(std::string_view Zeile, std::string& Pnr, double& Rechts, double& Hoch,
                                std::string& Symbol, KorInfoSatz& Info);

/// Builds one LT4 line, always with 3 decimals.
void Lt4ZeileSchreiben(const Wert& Pnr, double Rechts, double Hoch, const KorInfoSatz& Info,
                       std::string& Zeile);

/// The format that the ending of a name stands for; Sonst for any other ending.
[[nodiscard]] Dateiformat FormatNachEndung(std::string_view Name, Dateiformat Sonst = Dateiformat::Kor);

/// What KorLesen does with the points of a file.
enum class Lesemodus {
  NurNeue = -1,  ///< skips the numbers that the table holds
  Alle = 0,      ///< appends
  Ersetzen = 1,  ///< replaces the table
};

/// What a look at the lines of a coordinate file finds. Empty lines do not count.
struct Dateibefund {
  int Lesbar = 0;          ///< lines with a number and two coordinates
  int Andere = 0;          ///< the others, without the comments of an LT4 file
  int ErsteAndere = 0;     ///< number of the first of them, from 1; 0: there is none
  int Bemerkungen = 0;     ///< comments of an LT4 file
  int ErsteBemerkung = 0;  ///< as ErsteAndere
  int Punkte = 0;          ///< lines that are read as points, whatever they hold
  bool MitNull = false;    ///< a code 0 stands in the file: it is no text
};

/// Reads a file of points into the table and sorts it. A missing file, the limit of 20000 points and
/// double points are told in a message; every point that was read stays. The stop button rolls back; a table
/// that was to be replaced is then empty.
/// @param[in] Nimmt     reads only the points whose number passes this test; none if empty
/// @param[in] Prüfen    looks at the file before the table changes; false: it is not read. A file whose
///                      format opens it by itself is not looked at
/// @param[out] Bericht  what the reading came to, where it is wanted
/// @return 0; -1 no name, no file, a format that is not read, or stopped while replacing; -2 by Prüfen, the
///         table is then as it was
[[nodiscard]] int KorLesen(const std::string& Dateiname, Lesemodus Modus, Punktformat Format,
                           const std::function<bool(std::string_view)>& Nimmt = {},
                           const std::function<bool(const Dateibefund&)>& Prüfen = {},
                           Lesebericht* Bericht = nullptr);
[[nodiscard]] inline int KorLesen(const std::string& Dateiname, Lesemodus Modus, Dateiformat Format,
                                  const std::function<bool(std::string_view)>& Nimmt = {},
                                  const std::function<bool(const Dateibefund&)>& Prüfen = {}) {
  return KorLesen(Dateiname, Modus, PunktformatVon(Format), Nimmt, Prüfen);
}

/// The whole table, in its order, as the text of a file.
/// @param[in] Nachkomma  decimals, 0 to 15, where the format has no number of its own
/// @return 0; -1 for a format that is not written
[[nodiscard]] int KorText(Punktformat Format, int Nachkomma, std::string& Text);
[[nodiscard]] inline int KorText(Dateiformat Format, int Nachkomma, std::string& Text) {
  return KorText(PunktformatVon(Format), Nachkomma, Text);
}

/// @{
/// The two formats that this folder reads and writes by itself.
[[nodiscard]] Formatzugang KorZugang();
[[nodiscard]] Formatzugang Lt4Zugang();
/// @}

/// Writes the whole table to a file that is replaced safely.
/// @return the number of rows; -1 if the format is not written or the file can not be written, an old file is
///         then as it was
[[nodiscard]] int KorSchreiben(const std::string& Dateiname, Dateiformat Format, int Nachkomma);

/// Caller-owned columns of a file of points.
struct Punktlisten {
  std::vector<std::string> Pnr;
  std::vector<double> Rechts, Hoch, Hoehe;
  std::vector<std::string> Symbol;
};

/// Reads a file of points into lists without touching the table.
/// @param[in] Maximum    most points that the lists take
/// @param[in] Sortieren  false keeps the order of the file
/// @return 0; -1 with a message if the file can not be read or holds more points. An empty name does nothing.
[[nodiscard]] int PunkteInListen(const std::string& Dateiname, Punktformat Format, Punktlisten& Listen,
                                 int Maximum, int& Anzahl, bool Sortieren = true);

/// The same of a KOR file.
[[nodiscard]] int KorDateiInListen(const std::string& Dateiname, Punktlisten& Listen, int Maximum,
                                   int& Anzahl, bool Sortieren = true);

}  // namespace tavorena
