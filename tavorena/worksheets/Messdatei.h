#pragma once

#include <string>
#include <vector>

#include <tavorena/rawdata/Stationsfolge.h>
#include <tavorena/worksheets/Kleinpunktgitter.h>

namespace tavorena {

/// The raw-data file that stations are taken from. It outlives the worksheet: who leaves in the middle goes
/// on where he was. Start values: {}.
struct Messdatei {
  std::string Name;               ///< "": none
  std::vector<Rohstation> Folge;  ///< its stations
  std::size_t Nächste = 0;        ///< the one to come

  [[nodiscard]] bool Offen() const { return !Name.empty(); }
  [[nodiscard]] bool AmEnde() const { return Nächste >= Folge.size(); }
};
extern Messdatei LaufendeMessdatei;

/// Asks for a raw-data file and for its report, and makes it the running one, at its first station. A file of
/// measured values ("*.dat") is taken as well. @return false: broken off, or told why not
[[nodiscard]] bool MessdateiFragen();

/// Reads a raw-data file without a question. @return 0; -1 with a message
[[nodiscard]] int MessdateiÖffnen(const std::string& Datei, const Rohdatenwahl& Wahl);

/// Rows of the file as polar rows: measured values to 4 decimals.
[[nodiscard]] std::vector<Kleinpunkteingabe> KleinpunkteAus(const std::vector<Rohpunkt>& Punkte);
[[nodiscard]] Kleinpunkteingabe KleinpunktAus(const Rohpunkt& P);

}  // namespace tavorena
