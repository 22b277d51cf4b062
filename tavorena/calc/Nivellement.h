#pragma once

#include <limits>
#include <string>
#include <vector>

/// @file
/// Geometric levelling: field book to heights. Metres; lengths of lines in kilometres. Not a number stands
/// for what was not read or is not known.

namespace tavorena {

/// What stands for no value in a row of a field book.
inline constexpr double NivellementOhne = std::numeric_limits<double>::quiet_NaN();

/// A row of the field book. A turning point has V and R in one row, a point with R alone begins a line, one
/// with V alone ends it, and a row with Z belongs to the set-up that is open.
struct NivellementZeile {
  std::string Punkt;              ///< number
  double R = NivellementOhne;     ///< backsight
  double Z = NivellementOhne;     ///< intermediate sight
  double V = NivellementOhne;     ///< foresight
  double sR = NivellementOhne;    ///< length of the backsight; 0 is none
  double sV = NivellementOhne;    ///< length of the foresight; 0 is none
  double Fest = NivellementOhne;  ///< known height of the point, in all of its rows
};

/// A set-up with back- and foresight.
struct NivellementStand {
  int Von = 0;                      ///< row of the back point
  int Nach = 0;                     ///< row of the fore point
  double dH = 0;                    ///< R - V [m]
  double Laenge = NivellementOhne;  ///< of both sights [m]; not a number when one of them is missing
};

/// A piece of a line between two points of known height, or an end of it with one alone.
struct NivellementAbschnitt {
  int Von = 0;               ///< row of its begin
  int Bis = 0;               ///< row of its end
  int Linie = 0;             ///< line it belongs to
  std::vector<int> Staende;  ///< its set-ups on their way
  bool Geschlossen = false;  ///< known at both ends; otherwise nothing is corrected
  double SummeDH = 0;        ///< [m]
  double FH = 0;             ///< closing error, should minus is [m]; 0 when it is open
  double FHZulaessig = 0;    ///< its tolerance k·√L [m]
  double L = 0;              ///< [km]
};

/// Rows from a beginning up to the next one.
struct NivellementLinie {
  int Von = 0;        ///< first row
  int Bis = 0;        ///< last row
  double SummeR = 0;  ///< backsights of set-ups with both sights [m]
  double SummeV = 0;  ///< their foresights [m]
};

/// What comes out for a row.
struct NivellementWert {
  double Hoehe = NivellementOhne;  ///< corrected [m]; of a known point its own, seen as Z as it was measured
  double v = NivellementOhne;      ///< correction of the set-up that ends here [m]
  bool Fest = false;               ///< a turning point of known height
  bool Angehaengt = false;         ///< a turning point with the height that other lines gave
};

/// A field book as it was computed.
struct NivellementErgebnis {
  std::vector<NivellementWert> Zeilen;           ///< row by row
  std::vector<NivellementStand> Staende;         ///< in the order of the rows
  std::vector<NivellementAbschnitt> Abschnitte;  ///< line by line
  std::vector<NivellementLinie> Linien;          ///< in the order of the rows
};

/// Why a field book can not be computed, or not to its end; told with a row.
enum NivellementFehler : int {
  NivellementVorblickOffen = 1,     ///< the last backsight is of no use yet; all else is computed
  NivellementLeer = -1,             ///< there are no rows
  NivellementWertFalsch = -2,       ///< a value is infinite, or the length of a sight negative
  NivellementAblesungFehlt = -3,    ///< a row without a reading
  NivellementZwischenAllein = -4,   ///< Z beside R or V
  NivellementRueckblickFehlt = -5,  ///< Z or V without a backsight before it
  NivellementVorblickFehlt = -6,    ///< R, and nothing was read from that set-up
  NivellementFestVerschieden = -7,  ///< two known heights of one point
  NivellementFestpunktFehlt = -8,   ///< a line without a known height
};

/// The set-ups of a field book, heights or none.
/// @param[in]  Zeilen   field book
/// @param[out] Staende  in the order of the rows
/// @param[out] Zeile    row at fault, from 0; 0 on success
/// @return 0, or a NivellementFehler; Staende is untouched on failure
[[nodiscard]] int NivellementStaende(const std::vector<NivellementZeile>& Zeilen,
                                     std::vector<NivellementStand>& Staende, int& Zeile);

/// Computes a field book: heights by dH = R - V from known points, closing errors and corrections.
///
/// A known point ends a section, which is closed by itself: FH = (H_E - H_A) - Σ dH. Each set-up is corrected
/// by FH·s/Σs, s being the length of its two sights, or by FH/n when one of them is missing in the section. A
/// loop whose begin and end are the same unknown point is joined there. Intermediate points: height of the
/// back point
/// + R - Z. A section with one known end is computed from there without correction. A line without a known
/// point starts from the mean of what the others gave. Nothing is rounded.
///
/// @param[in]  Zeilen    field book
/// @param[in]  k         tolerance of a kilometre [mm]; FHZulaessig = k·√L with L in km, a set-up without
///                       lengths counting 0.08 km
/// @param[out] E         untouched on failure
/// @param[out] Zeile     row at fault, from 0; 0 on success
/// @return 0, or a NivellementFehler
/// Accuracy: rounding only, 1e-11 m for heights of some 100 m.
/// Source: F. Deumlich, R. Staiger, Instrumentenkunde der Vermessungstechnik, and H. Kahmen,
/// Vermessungskunde:
///         line levelling with distribution by length.
[[nodiscard]] int NivellementRechnen(const std::vector<NivellementZeile>& Zeilen, double k,
                                     NivellementErgebnis& E, int& Zeile);

/// Two sections that run between the same two points, there and back.
struct NivellementPaar {
  int Hin = 0;        ///< section there
  int Rueck = 0;      ///< section back
  double d = 0;       ///< sum of their differences [m]
  double Mittel = 0;  ///< mean of their amounts, with the sign of the first [m]
  double R = 0;       ///< mean of their lengths [km]
};

/// Finds the sections that were levelled both ways; each belongs to one pair at most.
/// @param[in]  Zeilen,E  a field book and what NivellementRechnen made of it
/// @param[out] s0        ½·√(1/n·Σ d²/R) [mm]: standard deviation of one kilometre levelled both ways; 0
/// without
///                       pairs
/// Source: differences of double measurements, in every textbook of levelling (H. Kahmen, Vermessungskunde).
[[nodiscard]] std::vector<NivellementPaar> NivellementPaare(const std::vector<NivellementZeile>& Zeilen,
                                                            const NivellementErgebnis& E, double& s0);

/// The height of a point.
struct NivellementPunkt {
  std::string Punkt;  ///< number
  double Hoehe = 0;   ///< its own, or the mean of its rows [m]
  bool Fest = false;  ///< it was known
  double Spanne = 0;  ///< greatest minus least height of its rows [m]
};

/// All points in the order in which they come.
/// @param[in] Zeilen,E  a field book and what NivellementRechnen made of it
[[nodiscard]] std::vector<NivellementPunkt> NivellementHoehen(const std::vector<NivellementZeile>& Zeilen,
                                                              const NivellementErgebnis& E);

}  // namespace tavorena
