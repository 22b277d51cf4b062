#pragma once

#include <span>

namespace tavorena {

/// An entry of the menu tree. The order of the table is the order in the menu.
struct Menüeintrag {
  const char* Name;                 ///< control name; of an array with its index
  const char* Titel;                ///< caption; "" a separator
  int Hilfe;                        ///< help number; 0 that of its menu
  const char* Eltern;               ///< name of the menu it stands in; "" the menu bar
  const char* Verborgen = nullptr;  ///< why it is never shown: kept for building the same tree
};
std::span<const Menüeintrag> Menübaum();

/// An image of the tool bar and the entry whose command it runs.
struct Werkzeug {
  const char* Name;
  const char* Hinweis;  ///< tool tip
  const char* Eintrag;  ///< "" none: the image has a command of its own
};
std::span<const Werkzeug> Symbolleiste();

}  // namespace tavorena
