#pragma once

#include <functional>
#include <string>

namespace tavorena {

/// Settings of the instrument link.
struct TheoOptionen {
  int Port = 2;                         ///< 1 or 2
  std::string Settings = "9600,N,8,1";  ///< baud, parity, data bits, stop bits
  std::string Rohdatendatei;            ///< "": TheoStandarddatei()
  int Reduktion = 0;                    ///< 0 none, 1 laser points, 2 optical points
};

/// Where the settings are kept from run to run; empty: nowhere.
struct TheoAblage {
  std::function<int(TheoOptionen&)> Lesen;  ///< @return 0; -1 if there are none, the record is then untouched
  std::function<void(const TheoOptionen&)> Merken;
};
extern TheoAblage TheoHaken;

/// "tvtheo.gsi" in the temporary folder of the environment ("temp", else "tmp"), else in the folder of the
/// last file.
[[nodiscard]] std::string TheoStandarddatei();

/// The device behind COM1 or COM2: what TAVORENA_COM1 or TAVORENA_COM2 names, else /dev/ttyS0 or /dev/ttyS1.
[[nodiscard]] std::string TheoGerät(int Port);

}  // namespace tavorena
