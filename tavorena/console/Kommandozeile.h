#pragma once

#include <tavorena/console/Sitzung.h>

namespace tavorena {

/// Reads the command line of tavorena-stapel and runs the command it names. @return the exit status
[[nodiscard]] Rückgabe KommandozeileAusführen(int Anzahl, const char* const* Worte, const Umfeld& U);

}  // namespace tavorena
