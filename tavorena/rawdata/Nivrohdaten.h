#pragma once

#include <string>
#include <vector>

#include <tavorena/rawdata/Hoehenliste.h>
#include <tavorena/rawdata/Nivellementdatei.h>
#include <tavorena/rawdata/Rohdaten.h>

namespace tavorena {

/// What was found in the raw data of a level.
struct Nivfund {
  std::vector<Nivlinie> Linien;
  std::vector<Höhenpunkt> Höhen;      ///< of lines without a reading: the start, and the instrument's results
  int Ablesungen = 0;                 ///< readings of all kinds
  std::vector<std::string> Hinweise;  ///< what the surveyor should look at, with the line
};

/// The readings of a level as a field book: GSI words 331, 332, 333 (backsight, foresight, intermediate
/// sight), 335 and 336 (the second back- and foresight of a set-up, whose means count; differences above 1 mm
/// are told) with the length of their sight in word 32, and in GRE HO_RB, HO_VB, HO_ZB with HD. A backsight
/// to another point than the last foresight, and a code block "?", begin a further line.
/// @return 0; -1 the file can not be read, the reason is in Grund ("" if there is none); -2 stopped
[[nodiscard]] int NivellementLesen(const std::string& Quelle, Rohform Form, Nivfund& F,
                                   std::string* Grund = nullptr);

/// Name of the list of heights beside a NIV file.
[[nodiscard]] std::string NivHöhenliste(const std::string& Ziel);

/// Raw data to a NIV file, and a HLI file of the same name beside it when there are heights.
/// @param[in] Ersetzen  a NIV file that is there may be replaced, else it is a failure; another list of
/// heights is
///                      one always
/// @return 0; -1 with the reason in Grund ("" if there is no input): it can not be read, or holds no reading,
/// an
///         output exists or can not be written; -2 stopped
[[nodiscard]] int NivellementAusRohdaten(const std::string& Quelle, const std::string& Ziel, Rohform Form,
                                         Nivfund& F, std::string* Grund = nullptr, bool Ersetzen = false);

}  // namespace tavorena
