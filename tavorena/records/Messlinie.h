#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 22.00 Meßlinie in the records: points by distance along a line and offset. Head of its batch blocks is
// StapelKopfLinie with Anlegemass and Endmass.

namespace tavorena {

/// The flags of a row, in their order; none up to warning level 1.
/// @param[in] Anlegemass  a [m]
/// @param[in] Linie, Seitwaerts  of the row [m]
/// @param[in] Entf  S, distance of the connection [m]
[[nodiscard]] std::vector<std::string> MesslinieMarken(double Anlegemass, double Linie, double Seitwaerts,
                                                       double Entf, int Warnstufe);

/// The connection with Anlegemass at the start and Endmass [m] at the end (their first values), then WS and
/// D.
[[nodiscard]] Block MesslinieAnschluss(int Nachkomma, const Protanschluss& A);

/// One row: the first flag stands behind the number, each further one on a line of its own.
[[nodiscard]] Block MesslinieZeile(int Nachkomma, const Protpunkt& P, double Linie, double Seitwaerts,
                                   const std::vector<std::string>& Marken);

/// A row as it was typed [m].
struct MesslinieEingabe {
  std::string Pnr;
  double Linie = 0, Seitwaerts = 0;
  std::string Symbol;
};
/// Its record, "AO".
[[nodiscard]] std::string MesslinieSatz(MesslinieEingabe Z);
/// Reads it. @return 0; -1 error; -2 end of the block
[[nodiscard]] int StapelLeseMesslinie(MesslinieEingabe& Z);

}  // namespace tavorena
