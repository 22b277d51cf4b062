#pragma once

#include <string>

namespace tavorena {

/// What became of a line.
enum class Reduktionsbefund {
  Unverändert,       ///< no reduction wanted, nothing to reduce, or z or d is 0 or not understood
  Reduziert,         ///< changed in place
  BereitsReduziert,  ///< a reduction is wanted, but the instrument has done one: unchanged
  ImGerätReduziert,  ///< the instrument has done one, and none is wanted: unchanged
};

/// Reduces zenith angle z (word 22) and slope distance d (31) of a GSI line of the first face, in the form of
/// 8 or of 16 digits (leading "*"). Only the two data fields and the third info character of word 31, which
/// becomes "9", are changed; unit and width stay.
///
/// A laser that stands e above the line of sight and runs parallel to it meets the point square above the
/// target. Mode 1, laser points: z and d of that point, d' = sqrt(d² + e²), z' = z - atan(e / d). Mode 2,
/// optical points: the point of the line of sight that is plumb with it, d' = d - e / tan(z); a z of 100 gon
/// leaves d.
/// @param[in,out] Zeile      without its line end; bytes above 127 are one character each unless it is UTF-8
/// @param[in]     Parameter  e [m]
/// @param[in]     Modus      0 none, 1 or 2
/// A result that its field can not hold leaves the line as it came.
[[nodiscard]] Reduktionsbefund RohdatenZeileReduzieren(std::string& Zeile, double Parameter, int Modus);

}  // namespace tavorena
