#pragma once

#include <span>

#include <tavorena/shell/Befehle.h>

namespace tavorena {

/// The commands of points: lists, forms, and what is done to the whole table.
[[nodiscard]] std::span<const Befehl> Punktbefehle();

}  // namespace tavorena
