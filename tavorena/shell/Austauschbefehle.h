#pragma once

#include <span>
#include <string>

#include <tavorena/core/Formate.h>
#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The menus of import and export, as far as they are no raw data.
[[nodiscard]] std::span<const Befehl> Austauschbefehle();

/// Appends the points of a file to the table as one deed that can be taken back; the status help tells what
/// was understood. The free format asks for its definition before.
void PunkteImportieren(const std::string& Datei, Punktformat Format);

}  // namespace tavorena
