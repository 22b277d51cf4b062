#pragma once

#include <string>
#include <vector>

#include <tavorena/rawdata/Flg.h>
#include <tavorena/rawdata/Rohdaten.h>
#include <tavorena/records/Vergleichsblock.h>

/// @file
/// The stake-out report: what was measured against what was to be set out. Each station is computed from its
/// connection rows, each measured point from the station. Metres and gon.

namespace tavorena {

/// What is compared.
struct Absteckauftrag {
  std::string SollDatei;              ///< coordinate file, for the page heads
  std::vector<Vergleichspunkt> Soll;  ///< its points; of several with one number the first counts
  Rohdaten Roh;                       ///< what was measured
  std::vector<FlgBlock> Flg;          ///< online log; a block is printed ahead of the station of its number
};

/// What the report counts.
struct Absteckzahlen {
  int Stationen = 0, OhneStation = 0;  ///< all, and those that could not be computed
  int Punkte = 0;                      ///< that are compared
  int NichtVorhanden = 0;              ///< that the coordinate file lacks
  int NichtGerechnet = 0;              ///< measured from a station that could not be computed
};

/// The report, in pages of 60 lines.
///
/// The connection rows of a station are those of its orientation block, or of its only block, whose number
/// has a point in the coordinate file. Two and more of them give a free station (Helmert), a single one the
/// orientation if the number of the station has a point. All other rows are compared, and of an only block
/// the connection rows too. Two successive rows of one number are also compared by their mean. Heights are
/// carried if the option for them is on and the station has one.
///
/// @param[out] Text  carriage returns and line feeds end its lines, a form feed stands between pages
/// @return 0; -1: it was stopped, and the status says so
[[nodiscard]] int Absteckbericht(const Absteckauftrag& A, std::string& Text, Absteckzahlen& Zahlen);

/// Where the report goes: beside the raw-data file, "-absteckung.dru" behind its name.
[[nodiscard]] std::string Absteckdatei(const std::string& Rohdatei);

/// Reads a FLG file; one that is not in its form is told, and the report goes on without it. "" is none.
[[nodiscard]] std::vector<FlgBlock> FlgDateiLesen(const std::string& Datei);

/// What there is to tell about stations without a line with their coordinates, the first ten by number; ""
/// if there is none.
[[nodiscard]] std::string StandpunktzeilenFehlen(const Rohdaten& Roh);

/// Makes the report and writes it to a file, which is replaced as a whole.
/// @return 0; -1 with a message, or stopped: the file is as it was
[[nodiscard]] int RohdatenBerichtAbsteckung(const Absteckauftrag& A, const std::string& Datei,
                                            Absteckzahlen& Zahlen);

/// The counts in lines, for a message.
[[nodiscard]] std::string Absteckzählung(const Absteckzahlen& Z);

}  // namespace tavorena
