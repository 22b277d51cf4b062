#pragma once

#include <string_view>

namespace tavorena {

/// What a serial line is set to.
struct Leitungswerte {
  int Baud = 9600;
  char Parität = 'N';  ///< N none, E even, O odd
  int Datenbits = 8;   ///< 5 to 8
  int Stopbits = 1;    ///< 1 or 2
};

/// Reads "9600,N,8,1": baud, parity, data bits, stop bits. @return 0; -1 when it says anything else, the
/// record is then untouched
[[nodiscard]] int LeitungswerteLesen(std::string_view Einstellungen, Leitungswerte& Werte);

}  // namespace tavorena
