#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Block.h>
#include <tavorena/records/Spalten.h>

// The entries that work on the points themselves leave in the protocol.

namespace tavorena {

/// @name Titles of these entries
/// @{
inline constexpr const char *TitelBerichtigung = "VR 25.07 Berichtigung von Punktnummern",
                            *TitelLöschen = "VR 25.08 Löschen von Punkten",
                            *TitelEingabe = "VR 25.10 Koordinateneingabe",
                            *TitelMittel = "VR 25.50 Mittelbildung von Punkten";
/// @}

/// A point with the remark behind it, such as " ***gelöscht".
struct Blockpunkt {
  Protpunkt Punkt;
  std::string Marke;
  std::string Alt = {};  ///< number that it had before, if the remark is to say so
};

/// Points below the head that such blocks have.
/// @param[in] Marken  tolerance marks among the remarks
[[nodiscard]] Block Punktblock(int Nachkomma, const std::vector<Blockpunkt>& Punkte, int Marken = 0);

/// An entry with its title.
struct Punkteintrag {
  const char* Titel;
  std::vector<Blockpunkt> Punkte;
  int Marken = 0;  ///< tolerance marks among the remarks
};

/// Writes an entry into the protocol of the job; a page with a head of that title comes first where another
/// one stands above. The head bears the plan that was named last. @return as Schreiben
[[nodiscard]] int Eintragen(const Punkteintrag& E);

}  // namespace tavorena
