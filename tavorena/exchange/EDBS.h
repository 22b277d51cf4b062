#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <tavorena/core/Formate.h>

// EDBS, the exchange format of the cadastre: one line in fixed columns for each point, between the record
// that opens the file (AKND) and the one that closes it (AEND). Columns count characters, from 1.

namespace tavorena {

/// What a line of a file is.
enum class EDBSZeile {
  Anfang,  ///< opens the file
  Ende,    ///< closes it
  Punkt,   ///< holds a point, or should: with the name of an information beginning with ULP, or with ours
  Andere,
};
[[nodiscard]] EDBSZeile EDBSZeileArt(std::string_view Zeile);

/// The record of a point. The views lie in its line or in constants.
struct EDBSSatz {
  std::string_view
      Pnr;  ///< digits of class and number as a whole; of class 0 the number without leading zeros
  double Rechts = 0, Hoch = 0, Hoehe = 0;  ///< [m]
  std::string_view Symbol;                 ///< three digits where the file has a letter; "" unknown
  KorInfoSatz Info = {};
  /// @{
  /// As they stand in the line: square of 1 km (8), class and number (1 and 5), kind of the point (1).
  std::string_view KmQuadrat, Kennung, Art;
  /// @}

  /// As the point table takes it.
  [[nodiscard]] KorSatz Satz() const { return {Pnr, Rechts, Hoch, Hoehe, Symbol, &Info}; }
};

/// Cuts a line of kind Punkt.
/// @return 0; -1 if it is shorter than 91 characters or a coordinate is missing, marked by "*" or no number,
///         Satz is then undefined
[[nodiscard]] int EDBSSatzLesen(std::string_view Zeile, EDBSSatz& Satz);

/// Appends the record of a point, without a line end. What has no room in its columns is filled with "*".
/// @param[in] Nummer  running number of the record, from 1
void EDBSSatzAnhängen(std::string& Ziel, int Nummer, const KorSatz& S);

/// Builds one record.
void EDBSSatzSchreiben(int Nummer, std::string_view Pnr, double Rechts, double Hoch, double Hoehe,
                       std::string_view Symbol, const KorInfoSatz& Info, std::string& Zeile);

/// What a file holds besides its points and gets back when the table is written.
struct EDBSRahmen {
  std::string Anfang, Ende;  ///< opening and closing record, whole and without line end; "" if it had none
  bool Windows1252 = false;  ///< its coding; else UTF-8
  bool MitBom = false;
};

/// That of the coordinate file that was opened last; = {} where it was none of this format.
extern EDBSRahmen EDBSOffen;

/// The points of a whole file, in its order, whatever its line ends and coding. A code 26 at its end is none
/// of it.
/// @param[in] Nehmen  takes a point; false: no more are wanted
/// @param[out] R      what stands around them, where it is wanted
/// @return 0; -1 with a message: nothing in it is of this format
[[nodiscard]] int EDBSPunkteLesen(std::string_view Bytes, const std::function<bool(const EDBSSatz&)>& Nehmen,
                                  Lesebericht& B, EDBSRahmen* R = nullptr);

/// A text in the coding of a file, with its byte-order mark.
[[nodiscard]] std::string EDBSVerschlüsseln(const EDBSRahmen& R, const std::string& Text);

/// A file with the table behind its points: its records stay, the count goes on, its closing record comes
/// last. The coding is that of the file.
/// @param[in] Bytes  the whole file as it stands
[[nodiscard]] std::string EDBSFortsetzen(std::string_view Bytes);

/// The text of the whole table stands between the records of EDBSOffen; it is not yet in that coding.
[[nodiscard]] Formatzugang EDBSZugang();

}  // namespace tavorena
