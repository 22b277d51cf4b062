#pragma once

#include <string>

#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/records/FStat.h>

// A station, as it was computed, for protocol and batch file.

namespace tavorena {

/// Its entry in the protocol: of a free station the fit with its points, of a known one its connection.
/// @param[in] Pnr  number of the station
[[nodiscard]] Block StationBlock(int Nachkomma, const Stationsaufgabe& A, const Stationsergebnis& E,
                                 const std::string& Pnr);

/// The row that stands in the protocol when it is taken back.
[[nodiscard]] Block StationStreichzeile(int Nachkomma, const Stationsaufgabe& A, const Stationsergebnis& E,
                                        const std::string& Pnr);

/// Its records in the batch file. @param[in] Symbol  of the station
[[nodiscard]] std::vector<std::string> StationSätze(const Stationsaufgabe& A, const Stationsergebnis& E,
                                                    const std::string& Pnr, const std::string& Symbol);

}  // namespace tavorena
