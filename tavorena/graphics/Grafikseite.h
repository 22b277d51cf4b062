#pragma once

#include <string>
#include <string_view>

#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Zeichenflaeche.h>

// The view on paper: a map in a frame, and below it a strip with title, file, date, scale, north and page.

namespace tavorena {

enum class Blatt { A4, A4quer, A3, A3quer };
inline constexpr std::string_view Blattnamen[] = {"A4", "A4quer", "A3", "A3quer"};  ///< in their order

/// @return whether there is a sheet of that name; Ergebnis stays untouched otherwise
bool BlattVon(std::string_view Name, Blatt& Ergebnis);

/// What is to be printed.
struct Seitenauftrag {
  Blatt Papier = Blatt::A4quer;
  bool AllePunkte = true;   ///< the extent of the table; else what the window shows
  double Maßstabszahl = 0;  ///< n of the scale 1:n; 0: the largest round scale at which all fits on one page
  std::string Titel, Datei, Zeit;
};

/// How it lies on paper.
struct Seitenplan {
  double Breite = 0, Hoehe = 0;  ///< of a sheet [twips, 1440 to an inch]
  double Maßstabszahl = 0;
  int Spalten = 0, Zeilen = 0;  ///< of the sheets, whose maps adjoin
  Bildausschnitt Karte;         ///< the map of a sheet; its corner in the world is that of all maps

  [[nodiscard]] int Seiten() const { return Spalten * Zeilen; }
};

inline constexpr int GrafikSeitenGrenze = 100;

/// Lays the job out. What does not fit on one sheet at the scale goes over several, from the upper left on.
/// @param[out] Grund  why it can not be printed, for the user
/// @return 0; -1 nothing is to be seen, or the scale is none; 1 more sheets than GrafikSeitenGrenze. Plan
/// then
///         stays untouched
[[nodiscard]] int SeitenPlanen(const Seitenauftrag& Auftrag, Seitenplan& Plan, std::string& Grund);

/// Draws a sheet, counted from 0.
void SeiteZeichnen(Zeichenfläche& Auf, const Seitenauftrag& Auftrag, const Seitenplan& Plan, int Seite);

}  // namespace tavorena
