#pragma once

#include <string>

#include <tavorena/records/Spalten.h>

// VR 08.40 Polarelemente in the records. Its rows in the batch file are those of the line elements.

namespace tavorena {

/// The connection with bearing [gon] and S [m] at the start, circle reading [gon] and measured distance [m]
/// at the end, then WS and D.
[[nodiscard]] Block PolelAnschluss(int Nachkomma, const Protanschluss& A);

/// One row, direction [gon] and distance [m].
[[nodiscard]] Block PolelZeile(int Nachkomma, const Protpunkt& P, double Richtung, double Entfernung,
                               const std::string& Marke = "");

}  // namespace tavorena
