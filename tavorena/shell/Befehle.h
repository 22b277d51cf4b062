#pragma once

#include <functional>
#include <string_view>

namespace tavorena {

/// A command of the menu.
struct Befehl {
  const char* Eintrag;
  bool MitDatei;  ///< needs an open file
  std::function<void()> Tun;
};

/// The command of an entry, nullptr if its function does not exist (yet).
const Befehl* BefehlFinden(std::string_view Eintrag);

/// Opens a file of the history.
void HistorieÖffnen(int Index);

}  // namespace tavorena
