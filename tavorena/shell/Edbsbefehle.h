#pragma once

#include <span>

#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The converter of EDBS files.
[[nodiscard]] std::span<const Befehl> Edbsbefehle();

}  // namespace tavorena
