#pragma once

#include <tavorena/core/Formate.h>

// Points of ALKIS out of NAS files, which are GML 3.2. They are read only: what an office takes in is an
// order with the metadata of its own.

namespace tavorena {

/// What the number of a point is made of.
enum class Nasnummer {
  Fragen,  ///< kind and five digits; where they meet, the user is asked
  Kurz,    ///< kind and five digits; kind 0 gives the digits without leading zeros, as a file of EDBS does
  Km2,     ///< the whole Punktkennung
};
extern Nasnummer NasNummer;

/// Format 71. Points are joined with their places wherever these stand in the file, of whatever length it is:
/// only the points and places are kept. Of several places the plane system that the file has most often
/// counts, in it a place with koordinatenstatus 1000 before others, then the first. The zone number in front
/// of eastings of 8 digits is dropped, which Lesebericht::Zusatz tells; counted as passed over are points
/// without a place or a number, and places without a point. External entities are never followed.
[[nodiscard]] Formatzugang NasZugang();

}  // namespace tavorena
