#pragma once

#include <string>
#include <vector>

#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/records/Vergleichsblock.h>

// What the table can take over from another file: first compared, without touching the table, then done as
// one deed. Coordinates in metres.

namespace tavorena {

/// What is taken over.
enum class Übernahme {
  Punktnummern,  ///< of the one point of the file that lies near
  Koordinaten,   ///< Rechts and Hoch of equal numbers
  Höhen,         ///< heights of equal numbers
  Höhenliste,    ///< the same from a list of heights
  Versatz,       ///< the mean difference of equal numbers, for all points
};

/// The deed and the title of its entry, such as "Koordinatenberichtigung aus Datei".
[[nodiscard]] const char* Übernahmename(Übernahme Art);

/// The points of a file: a number and two coordinates in each line and perhaps a height, or in a list of
/// heights a number and a height; what stands behind is ignored. "," counts as ".".
/// @param[out] Andere  lines that are not so; empty ones do not count
/// @return 0; -1 with a message: the file can not be read
[[nodiscard]] int VergleichspunkteLesen(const std::string& Datei, bool Höhenliste,
                                        std::vector<Vergleichspunkt>& Punkte, int& Andere);

/// The points of the table.
[[nodiscard]] std::vector<Vergleichspunkt> Tabellenpunkte();

/// What a file changes.
struct Übernahmeplan {
  Übernahme Art = Übernahme::Koordinaten;
  std::string Datei;
  struct Zeile {
    int Zeile;  ///< of the table
    Vergleichspunkt Soll;
  };
  std::vector<Zeile> Zeilen;  ///< that change, in table order; none for Versatz
  int Vergeben = 0;           ///< numbers that another point of the table holds: they are left
  int Andere = 0;             ///< lines of the file that are no points
  Versatz d;                  ///< file minus table
  int Gleiche = 0;            ///< numbers that stand once in both, from which it comes
  double Rest = 0;            ///< greatest distance from the mean difference

  /// Points that are changed.
  [[nodiscard]] int Anzahl() const;
};

/// Compares the table with a file. Of several points of a number the first in the file counts; a height of 0
/// is none.
/// @param[in] fs  Punktnummern: greatest distance, to 8 decimals
/// @return 0; -1 with a message: the file can not be read, or there is nothing to change
[[nodiscard]] int ÜbernahmePlanen(Übernahme Art, const std::string& Datei, double fs, Übernahmeplan& Plan);

/// The plan of a Höhenliste, of which the points are known already.
[[nodiscard]] Übernahmeplan HöhenPlanen(const std::string& Datei, const std::vector<Vergleichspunkt>& Punkte);

/// What there is to know before it is done, in lines; "" if nothing.
[[nodiscard]] std::string ÜbernahmeText(const Übernahmeplan& Plan);

/// Does it to the table that it was compared with. All but Versatz leave the comparison in the protocol.
/// @return 0; -1: the protocol could not be written
[[nodiscard]] int ÜbernahmeAusführen(Rücknahme& R, const Übernahmeplan& Plan);

}  // namespace tavorena
