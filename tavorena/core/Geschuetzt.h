#pragma once

#include <string>

namespace tavorena {

/// The run-time message of the exception that is being handled, with its text behind Ort: 7 memory, 70 access
/// denied, 57 input and output, 9 the rest. For handlers.
void GeworfenesMelden(const std::string& Ort, const std::string& Vorspann);

/// Runs Tun; what it throws goes no further.
/// @param[in] Melden  tells it, while it is being handled
/// @return 0; -1 after the message
template <typename Arbeit, typename Meldung>
[[nodiscard]] int GeschütztMit(Arbeit Tun, Meldung Melden) {
  try {
    Tun();
    return 0;
  } catch (...) {
    Melden();
    return -1;
  }
}

/// The same with the run-time message.
/// @param[in] Ort       module and routine, such as "Haupt.Beenden"
/// @param[in] Vorspann  text in front of the message
template <typename Arbeit>
[[nodiscard]] int Geschützt(const std::string& Ort, Arbeit Tun, const std::string& Vorspann = "") {
  return GeschütztMit(Tun, [&] { GeworfenesMelden(Ort, Vorspann); });
}

}  // namespace tavorena
