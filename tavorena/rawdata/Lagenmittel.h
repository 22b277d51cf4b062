#pragma once

#include <vector>

#include <tavorena/rawdata/Rohdaten.h>

namespace tavorena {

/// Both faces of a point as they were joined.
struct Lagenpaar {
  std::size_t Zeile = 0;  ///< of the first face in the file
  double dHz = 0;         ///< direction of the second face less 200, less that of the first [gon]
  double dV = 0;          ///< sum of the zenith angles less 400 [gon]
  double dStrecke = 0;    ///< [m]
};

/// Joins rows of one number, reflector height and set whose zenith angles sum to 400 within 0.1 gon: the
/// direction of face II less 200 and means, at the place of the first row. A row whose partner does not come
/// before its own face is measured again stays as it is.
/// @return the pairs
std::vector<Lagenpaar> LagenMitteln(std::vector<Rohpunkt>& Punkte);

}  // namespace tavorena
