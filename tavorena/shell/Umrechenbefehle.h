#pragma once

#include <span>
#include <string>

#include <tavorena/shell/Befehle.h>

// The commands that bring files of points from one strip, zone or kind of coordinates into another.

namespace tavorena {

[[nodiscard]] std::span<const Befehl> Umrechenbefehle();

/// Why nothing leads from Gauss-Krüger to UTM by formulas, and what does.
[[nodiscard]] std::string Bezugssystemtext();

/// Help number of the conversions.
inline constexpr int Umrechenseite = 7010;

}  // namespace tavorena
