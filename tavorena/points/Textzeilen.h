#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tavorena/forms/Steuerelement.h>
#include <tavorena/points/Punktlisten.h>

// What stands in the rows of the list views, and on the pages that they are saved on.

namespace tavorena {

/// The lists that a view shows.
enum class Textart { Koordinaten, Doppelte, MitDoppelten, Quasi, Belegung };

/// What is listed.
struct Textauftrag {
  Textart Art = Textart::Koordinaten;
  double fs = 0;                  ///< greatest distance of quasi-identical points [m]
  bool MitEinzelpunkten = true;   ///< a point without a neighbour is a group too
  std::int64_t Von = 0, Bis = 0;  ///< range of numbers
};

/// A list as the table stood when it was made: points, or runs of numbers.
struct Textliste {
  Textauftrag Auftrag;
  std::vector<Listenzeile> Punkte;
  std::vector<Nummernlauf> Läufe;
};

[[nodiscard]] Textliste TextlisteBilden(const Textauftrag& Auftrag);

/// Title of the view.
[[nodiscard]] const char* Texttitel(Textart Art);

/// Columns of the view. Those behind SpalteIndex are shown when they are asked for.
[[nodiscard]] std::vector<Gitterspalte> Textspalten(Textart Art);
inline constexpr int SpalteMarke = 0, SpaltePnr = 1, SpalteIndex = 8;

/// A row of the view.
struct Textzeile {
  std::vector<std::string> Zellen;
  int Zeile = -1;           ///< of its point in the table; -1: it has none
  bool IstWarnung = false;  ///< says how far the point above is off
};

/// The rows of the view. @param[in] MitWarnung  below a point that lies too far off a row says so
[[nodiscard]] std::vector<Textzeile> Textzeilen(const Textliste& Liste, bool MitWarnung);

/// The list on pages, as it is saved.
[[nodiscard]] std::string Textseiten(const Textliste& Liste);

}  // namespace tavorena
