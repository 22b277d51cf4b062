#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Rohdaten.h>

/// @file
/// Raw-data files to raw-data files. An input that is missing or can not be read, and an output that exists,
/// are a failure at once: -1 with the reason in Grund ("" if there is no input). The output is written
/// whole or not at all; with Ersetzen, for who has asked, an old one stays until the new one is whole. -2:
/// the stop button, nothing was written.

namespace tavorena {

/// What a conversion did.
struct Umwandlung {
  std::size_t Zeilen = 0;  ///< lines that were written, of `RohdatenKonvertieren`
  std::size_t Werte = 0;   ///< values that were changed in place
  std::size_t Sterne = 0;  ///< values that their field could not hold: they stand as stars
  std::size_t Ohne = 0;    ///< what has no counterpart: lines left out, values in no known unit or no number
};

/// GSI to GRE, line by line. Lines of no known class are left out.
/// @return 0, -1 or -2
[[nodiscard]] int RohdatenKonvertieren(const std::string& Quelle, const std::string& Ziel, Umwandlung& U,
                                       std::string* Grund = nullptr, bool Ersetzen = false);

/// GSI to GSI with the data of the words 31, 32, 33 and 81 to 86 multiplied by 10 in place; sign, width and
/// every other byte stay. A value that grows too long becomes stars, a field that is no number stays. Ends
/// with the box that asks for a note.
/// @return 0, -1 or -2
[[nodiscard]] int RohdatenZehnZuEins(const std::string& Quelle, const std::string& Ziel, Umwandlung& U,
                                     std::string* Grund = nullptr, bool Ersetzen = false);

/// What is taken off coordinates [m].
struct Koordinatenbasis {
  double Rechts = 0, Hoch = 0;
};

/// The base of a coordinate pair: its multiple of 100000 m (Modus 1), 10000 m (2) or 1000 m (3) at or below
/// it; 0 for smaller values.
/// @return true if a base was taken
[[nodiscard]] bool RohdatenReduktion(int Modus, double Rechts, double Hoch, Koordinatenbasis& Basis);

/// Takes one base off all coordinates (81, 82, 84, 85; RW and HW) of a GSI or GRE file, so that neighbours
/// stay neighbours: that of the smallest Rechts and the smallest Hoch. Coordinates of 0 were not computed and
/// stay; width and every other byte stay.
/// @return 0, -1 or -2; 1 there was nothing to take off, no file is written
[[nodiscard]] int RohdatenBasisAbziehen(const std::string& Quelle, const std::string& Ziel, int Modus,
                                        Rohform Form, Koordinatenbasis& Basis, Umwandlung& U,
                                        std::string* Grund = nullptr, bool Ersetzen = false);

/// The coordinates of a raw-data file as the text of a KOR file. A blank in a number or a code becomes "_".
/// A point with a coordinate that its field can not hold is left out and told: stars would be read as 0.
/// @param[in]  Nachkomma  decimals
/// @param[out] Anzahl     of the points in it
[[nodiscard]] std::string RohkoordinatenAlsKor(const Rohdaten& Roh, int Nachkomma, int& Anzahl);

/// The whole point table as lines of 16 digits for the instrument, in its order.
[[nodiscard]] std::string TabelleAlsGSI(GSIAusgabe Art);
/// The same of some of its rows.
[[nodiscard]] std::string TabelleAlsGSI(GSIAusgabe Art, const std::vector<int>& Zeilen);

}  // namespace tavorena
