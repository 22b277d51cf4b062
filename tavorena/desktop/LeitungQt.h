#pragma once

#include <memory>
#include <string>

#include <tavorena/core/Ports.h>

namespace tavorena {

/// A serial line over the event loop of the window.
/// @param[in] Einstellungen  "9600,N,8,1": baud, parity, data bits, stop bits
/// @return nullptr when the device is missing, busy, or can not be set so
[[nodiscard]] std::unique_ptr<Leitung> LeitungQt(const std::string& Gerät, const std::string& Einstellungen);

}  // namespace tavorena
