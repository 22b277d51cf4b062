#pragma once

#include <array>
#include <memory>
#include <span>
#include <string_view>

#include <tavorena/forms/Formular.h>

namespace tavorena {

/// What a kind of worksheet is. Menu, tool bar, replay, handbook and the tests over all kinds read this; the
/// head of its table in the protocol goes by the title (records/Tabellenkopf.h).
struct Blattart {
  const char* Formname;     ///< class, "TVLinelForm"
  const char* Präfix;       ///< of its control names, "Linel"
  const char* VR;           ///< title of the worksheet and of its records, "VR 24.40 Linienelemente"
  const char* Stapeltitel;  ///< caption in a replay
  const char* Fragetitel;   ///< of the box at leaving, "Berechnung Linienelemente"
  std::array<const char*, 5>
      Kennungen;      ///< of its blocks in the batch file, upper case; the rest, or all, nullptr
  const char* Menü;   ///< entry that opens it, "MenüKatasterLinel"; "": another kind's
  int Hilfenummer;    ///< its help number, from which on
  const char* Seite;  ///< this page of the handbook tells about it
  std::unique_ptr<Formular> (*Neu)(const Blattart&);  ///< makes the form
  const char* WeiteresMenü = nullptr;                 ///< another entry that opens it
};

/// All kinds, in the order of the menu.
[[nodiscard]] std::span<const Blattart> Blattarten();

/// @{
/// The kind of a batch block, or of a menu entry; nullptr if there is none.
[[nodiscard]] const Blattart* BlattartVonKennung(std::string_view Kennung);
[[nodiscard]] const Blattart* BlattartVonMenü(std::string_view Eintrag);
/// @}

}  // namespace tavorena
