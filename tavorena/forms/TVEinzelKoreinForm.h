#pragma once

#include <tavorena/core/Wert.h>

namespace tavorena {

/// Asks for one point, the number filled in, and stores it by Neupunkt.
/// @param[in,out] Pnr  the number that the user ended with
/// @return 1; -1 if cancelled
[[nodiscard]] int FormEinzelKorein(Wert& Pnr);

}  // namespace tavorena
