#pragma once

#include <tavorena/records/Block.h>

// The clearance area of a wall in the protocol.

namespace tavorena {

/// A wall and the area that stays free in front of it.
struct Protabstandsfläche {
  double Länge = 0, Höhe = 0, Faktor = 0;  ///< of the wall [m]; of its height
  double Tiefe = 0, Fläche = 0;            ///< of the area [m], [m²]
};

inline constexpr const char* TitelAbstandsflächen = "Abstandsflächen";

/// Length and height of the wall, factor, depth and area, in one line.
[[nodiscard]] Block AbstandsflächenBlock(int Nachkomma, const Protabstandsfläche& A);

}  // namespace tavorena
