#pragma once

#include <string>

#include <tavorena/records/Spalten.h>

// VR 24.40 Linienelemente in the records: line elements of known points.

namespace tavorena {

/// The connection with Anlegemass and Endmass [m], then WS and D.
[[nodiscard]] Block LinelAnschluss(int Nachkomma, const Protanschluss& A);

/// One row; the reduced values [m] stand on a line of their own when they are given.
[[nodiscard]] Block LinelZeile(int Nachkomma, const Protpunkt& P, double Linie, double Seitwaerts,
                               const Wert& LinieRed, const Wert& SeitwaertsRed,
                               const std::string& Marke = "");

/// The record of a row, shared with the polar elements: the number of the point alone.
[[nodiscard]] std::string LinelSatz(const std::string& Pnr);
/// Reads it. @return 0; -1 error; -2 end of the block
[[nodiscard]] int StapelLeseLinel(std::string& Pnr);

}  // namespace tavorena
