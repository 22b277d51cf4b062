#pragma once

#include <string>

#include <tavorena/core/Wert.h>

namespace tavorena {

/// Asks for one point, the number filled in, and stores it by Neupunkt.
/// @param[in,out] Pnr  the number that the user ended with
/// @return 1; -1 if cancelled
[[nodiscard]] int FormEinzelKorein(Wert& Pnr);

/// A typing error in a coordinate is often a far away point. Asks when Rechts or Hoch [m] lies farther from
/// all points of the table than ten times its extent and than 10 km; points at 0/0 do not count.
/// @return false: the point is not to be taken
[[nodiscard]] bool FernpunktFrage(const std::string& Pnr, double Rechts, double Hoch);

}  // namespace tavorena
