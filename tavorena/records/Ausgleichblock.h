#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// "Ausgleichende Gerade" and "Ausgleichender Kreis" in the protocol. They have no block in the batch file: a
// comment between blocks names the points that were made.

namespace tavorena {

/// A measured point and its offset from the line, or its distance from the centre minus the radius [m].
struct Protabstand {
  Protpunkt Punkt;
  double Abstand = 0;
};

/// A line or a circle with its points. The numbers of defining points that are not wanted are empty.
struct Protausgleich {
  bool Kreis = false;
  Protpunkt Erster, Zweiter;  ///< ends of the line; centre and point on the arc
  double Radius = 0;          ///< of a circle [m]
  std::vector<Protabstand> Punkte;
};

/// Head, defining points, measured points.
[[nodiscard]] Block AusgleichBlock(int Nachkomma, const Protausgleich& A);

/// The comment for the batch file, for StapelKommentar: "Ausgleichende Gerade: 2041 2042".
[[nodiscard]] std::string AusgleichKommentar(const Protausgleich& A);

}  // namespace tavorena
