#pragma once

#include <tavorena/core/Formate.h>

/// @file
/// Points with coordinates as instruments hold them. Only measurement lines with both coordinates are points.

namespace tavorena {

/// Reads GSI and, by the ending ".gre", GRE: number, words 81, 82 and 83, code 71 as symbol. A blank in a
/// number or a code becomes "_".
[[nodiscard]] Formatzugang GsiZugang();

/// @name Written only, for the transfer to an instrument; see KoordinateAlsGSI
/// @{
[[nodiscard]] Formatzugang GsiMitCodeZugang();
[[nodiscard]] Formatzugang GsiMitHöheZugang();
[[nodiscard]] Formatzugang GsiOhneHöheZugang();
/// @}

}  // namespace tavorena
