#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavorena {

/// A command of the menu.
struct Befehl {
  const char* Eintrag;
  bool MitDatei;  ///< needs an open file
  std::function<void()> Tun;
  bool Ändert = false;               ///< the table, which is that of the replay while one runs
  const char* OhnePunkte = nullptr;  ///< what is said where the table is empty; nullptr: it works there too
  int Hilfe = 0;                     ///< page of the handbook, where the menu's entry names none
};

/// @{
/// What a command that needs points says without them.
inline constexpr const char* NichtEingelesen = "Noch keine Koordinaten eingelesen !";  ///< in the views
inline constexpr const char* NichtVorhanden = "Noch keine Koordinaten vorhanden !";
/// @}

/// The command of an entry, nullptr if its function does not exist (yet).
const Befehl* BefehlFinden(std::string_view Eintrag);

/// Opens a file in the text editor, with a message if that does not start. Without a name nothing happens.
void Ansehen(const std::string& Datei);

/// Opens a file of the history.
void HistorieÖffnen(int Index);

}  // namespace tavorena
