#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Block.h>

// What the commands that compare the table with a file leave in the protocol.

namespace tavorena {

/// A point that is compared. A height of 0 stands for a missing one.
struct Vergleichspunkt {
  std::string Pnr;
  double Rechts = 0, Hoch = 0, Hoehe = 0;
};

/// A point of the file, and that of the table as it was.
struct Vergleichspaar {
  Vergleichspunkt Soll, Ist;
};

/// A point in the columns of a comparison, with a text such as "Soll" behind it.
[[nodiscard]] std::string Vergleichszeile(int Nachkomma, const Vergleichspunkt& P, const std::string& Text);

/// Soll minus Ist and the distance; a height that one of them lacks is left blank.
[[nodiscard]] std::string Differenzzeile(int Nachkomma, const Vergleichspaar& P);

/// Three lines a pair: Soll, Ist, and Soll minus Ist with the distance.
/// @param[in] NurHoehen  the fields of coordinates and distance are left blank
[[nodiscard]] Block Vergleichsblock(int Nachkomma, const std::vector<Vergleichspaar>& Paare, bool NurHoehen);

/// Writes the pairs under their title, as Tabellenkopf knows it, into the protocol of the job. @return as
/// Schreiben
[[nodiscard]] int VergleichEintragen(const std::string& Titel, const std::string& SollDatei,
                                     const std::vector<Vergleichspaar>& Paare);

}  // namespace tavorena
