#pragma once

#include <string>

namespace tavorena {

/// The run-time message of the exception that is being handled, with its text behind Ort: 7 memory, 70 access
/// denied, 57 input and output, 9 the rest. For the handler of Geschützt.
void GeworfenesMelden(const std::string& Ort, const std::string& Vorspann);

/// Runs Tun; what it throws ends in a message and goes no further.
/// @param[in] Ort       module and routine, such as "Haupt.Beenden"
/// @param[in] Vorspann  text in front of the message
/// @return 0; -1 after the message
template <typename Arbeit>
[[nodiscard]] int Geschützt(const std::string& Ort, Arbeit Tun, const std::string& Vorspann = "") {
  try {
    Tun();
    return 0;
  } catch (...) {
    GeworfenesMelden(Ort, Vorspann);
    return -1;
  }
}

}  // namespace tavorena
