#pragma once

#include <functional>

#include <tavorena/points/Ruecknahme.h>

namespace tavorena {

/// The points that the form goes through, and where a changed one goes.
struct EDBSPunktzugriff {
  int Anzahl = 0;
  std::function<KorSatz(int i)> Satz;
  /// Gives a point other values; i becomes its place. @return false: not taken, it was told why. Empty: the
  /// points are only shown
  std::function<bool(int& i, const Punktsatz& Neu)> Ändern;
};

/// One point of a cadastre file with all its attributes, modal: a row for each. What was changed is taken
/// over as a whole; a value that the columns of the file have no room for is refused when its cell is left.
/// @param[in,out] i  place of the point that is shown first; on return of the one that was shown last
void EDBSPunktZeigen(const EDBSPunktzugriff& Zugriff, int& i);

}  // namespace tavorena
