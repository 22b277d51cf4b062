#pragma once

#include <string>

#include <tavorena/records/Spalten.h>

// VR 22.10 Entfernungskontrolle in the records: the first check of a batch block is its head ("PAN", "PEN"),
// each further one a record.

namespace tavorena {

/// One check; WS and D only with a measured distance.
[[nodiscard]] Block DisZeile(int Nachkomma, const Protanschluss& A, bool Gemessen);

/// The record of a check: both points and the measured distance [m], 0 for none.
[[nodiscard]] std::string DisSatz(const std::string& AnfPnr, const std::string& EndPnr, double Gemessen);
/// Reads it. @return 0; -1 error; -2 end of the block
[[nodiscard]] int StapelLeseDis(std::string& AnfPnr, std::string& EndPnr, double& Gemessen);

}  // namespace tavorena
