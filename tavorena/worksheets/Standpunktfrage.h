#pragma once

#include <string>

namespace tavorena {

/// What is to become of a station whose number the table holds.
enum class Standpunktantwort { Orientierung, Zurück, Abbruch };

/// "Punkt schon vorhanden:" for a station: it is the known one, the number is typed anew, or left out.
[[nodiscard]] Standpunktantwort StandpunktFragen(const std::string& Pnr);

}  // namespace tavorena
