#pragma once

#include <string>

#include <tavorena/core/Verlust.h>

// EDBS to KOR, line by line in the order of the file: the point table is not touched, and its limit does not
// hold.

namespace tavorena {

/// What becomes the number of a point, and its symbol.
enum class EDBSNummer {
  Klasse,     ///< class and number, six digits; the kind of the point as it stands
  KmQuadrat,  ///< the same behind the square of 1 km, 14 characters
  Tabelle,    ///< as the point table would have them
};

struct EDBSAuftrag {
  std::string Ein, Aus;
  std::string Kataster = {};  ///< KOR file whose points are added where their numbers do not occur; "" none
  EDBSNummer Nummer = EDBSNummer::Klasse;
};

/// What a file turned into.
struct EDBSWandlung {
  std::string Kor, Protokoll;  ///< texts of the output and of what goes into the protocol
  int Punkte = 0;              ///< of the EDBS file
  int Kataster = 0;            ///< of the other one
  int Übergangen = 0;          ///< lines of the EDBS file that are no points
  int ErsteÜbergangene = 0;    ///< number of the first of them, from 1
  Verlustliste Verlust;        ///< what the output does not keep of the points of the EDBS file
};

/// Reads the files. A file that ends inside a record is told by DateiendeMeldung, what was read stays. Long
/// runs show the number of points, and the stop button ends them.
/// @return 0; -1 with a message: a file can not be read, one of them has two parts, nothing is of the format;
///         -2 stopped
[[nodiscard]] int EDBSWandeln(const EDBSAuftrag& Auftrag, EDBSWandlung& W);

/// Asks about what the output does not keep, replaces it, and extends the protocol that stands beside it with
/// the ending "dru".
/// @return 0; -1 by the answer or with a message, the files are then as they were
[[nodiscard]] int EDBSWandlungSchreiben(const EDBSAuftrag& Auftrag, const EDBSWandlung& W);

}  // namespace tavorena
