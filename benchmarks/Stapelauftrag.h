#pragma once

#include <string>

// A replay as the console does it: measured itself, and the baseline of the window.

namespace tavorena::messung {

inline constexpr int Stapelzeilen = 9990;

/// A coordinate file of 15000 points, and a batch file with one block of line elements on them.
struct Stapelauftrag {
  std::string Koordinaten, Stapel;
};
Stapelauftrag StapelauftragBilden();

/// Replays it as tavorena-stapel does. @param[in] Protokoll  "": none @return rows that were calculated; -1
int AbspielenKonsole(const Stapelauftrag& A, const std::string& Protokoll);

}  // namespace tavorena::messung
