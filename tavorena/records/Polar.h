#pragma once

#include <string>

#include <tavorena/records/Spalten.h>

// VR 19.70 Polare Punkte in the records: points by direction and distance. Their connection in the protocol
// is PolelAnschluss, the head of their batch blocks StapelKopfLinie with orientation and distance.

namespace tavorena {

/// The flag of a row: " ******Entf>S", " ***Entf>2/3S" or ""; none up to warning level 1.
/// @param[in] Strecke  of the row [m]
/// @param[in] Entf     S, distance of the connection [m]
[[nodiscard]] std::string PolarMarke(double Strecke, double Entf, int Warnstufe);
/// The text behind an offset [m] above 5 or 7.5; none up to warning level 1.
[[nodiscard]] std::string PolarVersatzmarke(double Versatz, int Warnstufe);

/// A polar point.
struct Protpolar {
  Protpunkt Punkt;
  Wert Hoehe;           ///< [m]; blank when it is not carried
  Wert Richtung;        ///< [gon]
  double Vertikal = 0;  ///< [gon]; 0 is left blank
  Wert Strecke;         ///< [m]
  double Versatz = 0;   ///< q [m]; other than 0 it has a line of its own
};

/// One row.
[[nodiscard]] Block PolarZeile(int Nachkomma, const Protpolar& P, const std::string& Marke,
                               const std::string& Versatzmarke = "");

/// A row as it was typed [gon, m].
struct PolarEingabe {
  std::string Pnr;
  double Richtung = 0, Vertikal = 0, Strecke = 0;
  std::string Symbol;
};
/// Its record, "PWS".
[[nodiscard]] std::string PolarSatz(PolarEingabe Z);
/// Reads it. @return 0; -1 error; -2 end of the block
[[nodiscard]] int StapelLesePolar(PolarEingabe& Z);

}  // namespace tavorena
