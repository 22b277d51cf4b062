#pragma once

#include <string>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Block.h>

// What Neupunkt leaves in the protocol.

namespace tavorena {

/// VR 25.50 within the running page: old point, new point, mean.
[[nodiscard]] Block MittelBlock(int Nachkomma, const Mittelpunkt& M);

/// What the point dialog did with a calculated point, below its row: codes 1, 2, 3, 11 and 13 of Neupunkt; an
/// empty block for any other.
/// @param[in] Nummer  code 3: new number of the old point; code 13: number of the new one
/// @param[in] DeltaRechts, DeltaHoch  new minus old [m]
[[nodiscard]] Block Bearbeitungsnotiz(int Nachkomma, int Code, const std::string& Nummer, double DeltaRechts,
                                      double DeltaHoch);

}  // namespace tavorena
