#pragma once

#include <string>
#include <vector>

#include <tavorena/points/Ruecknahme.h>

// What is typed into the table by hand: each new or changed point is one deed of a store, with its entry in
// the protocol. A deed that fails leaves the table as it was. Coordinates in metres.

namespace tavorena {

/// Stores a typed point through Neupunkt: a taken number is asked about. Entry VR 25.10, and below it what
/// became of the point where its number was taken.
/// @param[in,out] P  as typed; on return as the table holds it, untouched if it was not stored
/// @return as Neupunkt; Nichts also if the protocol could not be written
[[nodiscard]] NeupunktCode PunktEingeben(Rücknahme& R, Punktsatz& P);

/// Gives a row other values. A changed number must be free (entry VR 25.07), the table is then sorted; other
/// changes have an entry VR 25.10.
/// @param[in,out] Zeile  of the table; on return where the point stands now
/// @return 0; -1 with a message: the number is taken, the protocol could not be written
[[nodiscard]] int PunktÄndern(Rücknahme& R, int& Zeile, const Punktsatz& Neu);

/// What became of many points.
struct Eingabezählung {
  int Neue = 0;        ///< stored under a number that was free, or made free
  int Ersetzte = 0;    ///< points of the table that were replaced or averaged
  int Verworfene = 0;  ///< left out, since the old point stays
};

/// Stores points of another source as one deed, in their order, with the entries of typed points. Taken
/// numbers are asked about as by Neupunkt; an answer can be given for all of them. Long runs show the number
/// of points, and the stop button ends them.
/// @param[in] Name  of the deed
/// @return 0; -1 broken off, stopped, the table is full or the protocol could not be written: the table is as
///         it was
[[nodiscard]] int PunkteEingeben(Rücknahme& R, const std::string& Name, const std::vector<Punktsatz>& Neue,
                                 Eingabezählung& Zählung);

}  // namespace tavorena
