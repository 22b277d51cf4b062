#pragma once

#include <span>

#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The commands that lay lists out for printing, and the one that edits what they made.
[[nodiscard]] std::span<const Befehl> Druckaufbereitungsbefehle();

}  // namespace tavorena
