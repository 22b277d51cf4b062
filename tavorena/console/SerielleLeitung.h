#pragma once

#include <memory>
#include <string>

#include <tavorena/core/Ports.h>

namespace tavorena {

/// A serial device of the system, or the end of a pseudo terminal. Nothing waits; a device that another
/// program holds is refused.
/// @param[in] Einstellungen  "9600,N,8,1": baud, parity, data bits, stop bits
/// @return nullptr when it is missing, busy, no terminal, or can not be set so
[[nodiscard]] std::unique_ptr<Leitung> SerielleLeitung(const std::string& Gerät,
                                                       const std::string& Einstellungen);

}  // namespace tavorena
