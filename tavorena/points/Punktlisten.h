#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tavorena/core/Wert.h>
#include <tavorena/points/Punktgruppen.h>

// The lists of points as texts: their rows, and the pages on which they are saved.

namespace tavorena {

/// Planar distances above them are marked [m].
inline constexpr double GrenzeWarnung = 0.03, GrenzeMaximum = 0.06;

/// "***W>D" for a distance over 0.03 m, "******W>D(max)" for one over 0.06 m, otherwise "".
[[nodiscard]] const char* Abstandsmarke(double fs);

/// The same without the stars, as the forms show it.
[[nodiscard]] std::string Abstandswort(double fs);

/// A row of a list of double or quasi-identical points.
struct Listenzeile {
  int Zeile = -1;  ///< in the table; -1: an empty row, which closes a group
  Wert fs;         ///< planar distance to the first point or to the middle of the group [m]
  Wert dh;         ///< height difference to it, row minus that [m]; empty without one of the two heights
  int Index = -1;  ///< place in the list of DoppeltePunkteSuchen; -1: no double point, or not asked for
};

/// Double points, group after group; the first of a group has neither distance nor height difference.
[[nodiscard]] std::vector<Listenzeile> DoppelteListe();

/// All points in table order, the double ones with what they have in DoppelteListe.
[[nodiscard]] std::vector<Listenzeile> AlleListe();

/// Quasi-identical points (see QuasiidentischePunkte) against the middle of their group, each group closed by
/// an empty row.
[[nodiscard]] std::vector<Listenzeile> QuasiListe(double Radius, bool MitEinzelpunkten);

/// A list as text: the lines of its head, and its rows.
struct Listentext {
  std::vector<std::string> Kopf, Zeilen;
};

/// Rows of double or quasi-identical points with so many decimals.
[[nodiscard]] Listentext PunktlisteText(const std::vector<Listenzeile>& Liste, int Nachkomma);
/// All points of the table with so many decimals.
[[nodiscard]] Listentext KoordinatenlisteText(int Nachkomma);
/// The same on pages of 50 points, each below the head of a protocol with its own page numbers.
[[nodiscard]] std::string Koordinatenseiten(int Nachkomma);
/// Runs of numbers; no head.
[[nodiscard]] Listentext BelegungText(const std::vector<Nummernlauf>& Läufe);

/// What a saved list says above each of its pages.
struct Seitenkopf {
  std::string Titel;        ///< such as "      Doppelte Punkte"
  std::string Zusatz;       ///< a line of its own below it; none if empty
  std::string Koordinaten;  ///< name of the coordinate file
};

/// Zusatz of the page head of quasi-identical points.
[[nodiscard]] std::string QuasiZusatz(double Radius, int Nachkomma);

/// The list on pages of at most 60 lines, the last of each its number; a form feed behind each page.
[[nodiscard]] std::string Listenseiten(const Seitenkopf& Kopf, const Listentext& Liste);

}  // namespace tavorena
