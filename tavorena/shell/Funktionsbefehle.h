#pragma once

#include <span>

#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The diary, clearance areas, and the two ways to read files beside the Condor window.
[[nodiscard]] std::span<const Befehl> Funktionsbefehle();

}  // namespace tavorena
