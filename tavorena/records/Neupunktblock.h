#pragma once

#include <string>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Block.h>

// What Neupunkt leaves in the protocol.

namespace tavorena {

/// VR 25.50 within the running page: old point, new point, mean.
[[nodiscard]] Block MittelBlock(int Nachkomma, const Mittelpunkt& M);

/// What the point dialog did with a calculated point, below its row; an empty block if the number was free.
/// @param[in] Nummer  AlterNeunum: new number of the old point; NeuerNeunum: number of the new one
/// @param[in] DeltaRechts, DeltaHoch  new minus old [m]
[[nodiscard]] Block Bearbeitungsnotiz(int Nachkomma, NeupunktCode Code, const std::string& Nummer,
                                      double DeltaRechts, double DeltaHoch);

}  // namespace tavorena
