#pragma once

#include <span>

#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The commands on files of levelling: field book to DAT, LT5 to a list of heights, a value added to a list.
[[nodiscard]] std::span<const Befehl> Nivbefehle();

}  // namespace tavorena
