#pragma once

#include <string>

#include <tavorena/core/Wert.h>
#include <tavorena/records/Block.h>

// The columns that the blocks of the protocol share. They start at the same place for 0 to 5 decimals; a
// missing value leaves its field blank in its full width.

namespace tavorena {

/// A point of a block: coordinates [m] and number.
struct Protpunkt {
  double Rechts = 0, Hoch = 0;
  std::string Pnr;
};

/// Start, end and check of a connection.
struct Protanschluss {
  Protpunkt Anf, End;
  Wert AnfWert1, AnfWert2;         ///< third and fourth column of the start point
  Wert EndWert1, EndWert2;         ///< third and fourth column of the end point
  double Abweichung = 0;           ///< WS [m]
  double AbweichungZulaessig = 0;  ///< D [m]
};

/// How far a limit is passed.
enum class Warnung { Keine, Früh, Voll };

/// Voll above the limit, Früh above a third of it; the signs do not count.
/// @param[in] Warnstufe  the early mark is left out up to 1
[[nodiscard]] Warnung Grenzwarnung(double x, double Grenze, int Warnstufe);

/// "******" for Voll, "***" for Früh, else "".
[[nodiscard]] std::string Sterne(Warnung W);

/// What stands behind a row that is struck, in place of its flags.
inline constexpr const char* MarkeGelöscht = " ***gelöscht";

/// Lines with numbers of so many decimals.
class Spalten {
 public:
  explicit Spalten(int Nachkomma) : n(Nachkomma) {}

  /// A number in Vorkomma integer places and the decimals.
  [[nodiscard]] std::string Zahl(const Wert& x, int Vorkomma) const;
  /// A number and the gap that keeps the next column in its place.
  [[nodiscard]] std::string Spalte(const Wert& x) const;
  /// A direction [gon], as wide as a column.
  [[nodiscard]] static std::string Gonspalte(const Wert& x);

  /// Margin, coordinates, two columns, point number, mark.
  [[nodiscard]] std::string Punkt(const Protpunkt& P, const std::string& Mitte,
                                  const std::string& Marke) const;
  /// The same, the columns being lengths.
  [[nodiscard]] std::string Punkt(const Protpunkt& P, const Wert& v3, const Wert& v4,
                                  const std::string& Marke) const;
  /// The same, the first column being a direction.
  [[nodiscard]] std::string Gonpunkt(const Protpunkt& P, const Wert& Richtung, const Wert& v4,
                                     const std::string& Marke) const;
  /// A length or an angle [gon] in the same place, which is as wide for 0 to 5 decimals.
  [[nodiscard]] std::string Lange(const Wert& Meter, const Wert& Gon) const;
  /// Margin, coordinates, a direction [gon], point number, mark: a row of an intersection by directions.
  [[nodiscard]] std::string Richtung(const Protpunkt& P, const Wert& Gon, const std::string& Marke) const;
  /// "WS=" and "D=" of a connection with their mark.
  [[nodiscard]] std::string Summe(const Protanschluss& A) const;

 private:
  int n;
};

/// Marks of the start and the end point of a connection.
inline constexpr const char *MarkeAnfang = "      PA", *MarkeEnde = "      PE";

/// Flag of a connection: " ******(>D)" if WS exceeds D, " ***(>1/3D)" if it exceeds a third, else "".
[[nodiscard]] std::string AnschlussMarke(const Protanschluss& A);

}  // namespace tavorena
