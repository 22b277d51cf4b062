#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/calc/Meridianstreifen.h>
#include <tavorena/core/Verlust.h>

// Files of points from geographic into plane coordinates, back, and from one strip or zone into another. Line
// to line: the order of the file stays, and neither the point table nor its limit has a part in it.

namespace tavorena {

enum class Koordinatenart { Geographisch, GK, UTM };

/// How the coordinates of a file are given, or are to be.
struct Koordinatenform {
  Koordinatenart Art = Koordinatenart::Geographisch;
  /// Strip or zone; 0: of a source that in front of its eastings, of a target the one of the longitude. A
  /// source in Gauss-Krüger always has 0.
  int Nummer = 0;
};

/// What is to be done.
struct Umrechnung {
  Koordinatenform Von, Nach;
  Ellipsoid Körper = Ellipsoide[0];      ///< of geographic and Gauss-Krüger coordinates; UTM has its own
  std::string Ellipsoidname = "Bessel";  ///< for the head of geographic files
  bool Kartesisch = false;               ///< the word in that head
  int Nachkomma = 3;                     ///< decimals of plane coordinates
};

/// The ellipsoid that is computed on.
[[nodiscard]] std::string Ellipsoidname(const Umrechnung& U);

/// Gauss-Krüger and UTM have different datums: no formula leads from one to the other.
[[nodiscard]] bool VerschiedeneBezugssysteme(const Umrechnung& U);

/// The semi-axes can be those of the earth [m]: the series hold, and no axis is the other one.
[[nodiscard]] bool HalbachsenMöglich(double a, double b);

/// What became of the lines. Empty lines and, in geographic files, those that begin with "@" do not count.
struct Umrechenbericht {
  int Punkte = 0;
  int Andere = 0;               ///< lines that were passed over
  int ErsteAndere = 0;          ///< number of the first of them, from 1; 0: there is none
  std::map<int, int> Streifen;  ///< strips or zones of the plane coordinates, and how many points each has
  double Abstand = 0;           ///< of the farthest point from its central meridian [degrees], without sign
  std::string Fernster;         ///< its number
  /// Eastings of Gauss-Krüger whose first digit is that of another strip: more than 500 km from the meridian.
  Verlustposten Fremde;
  /// What the new file would not give back: coordinates and heights that do not fit, and numbers that make a
  /// geographic line a comment.
  Verlustliste Verluste;
  std::string Kopfellipsoid;  ///< that the head of a geographic file names; "": none
};

/// Converts a text.
/// @param[out] Ziel  the new text
/// @return 0; -1 if no line was understood; -2 if it was stopped. Shows its progress after half a second
[[nodiscard]] int TextUmrechnen(std::string_view Text, const Umrechnung& U, std::string& Ziel,
                                Umrechenbericht& Bericht);

/// All that the new file would not give back, points in several zones included.
[[nodiscard]] Verlustliste Umrechenverlust(const Umrechnung& U, const Umrechenbericht& Bericht);

/// Converts a file. The new one takes its place at the end and wholly, after a question where something would
/// be lost or the head of the file names another ellipsoid. Each failure is told in a message.
/// @return 0; -1 not done, or stopped: the output is then as it was
[[nodiscard]] int DateiUmrechnen(const std::string& Ein, const std::string& Aus, const Umrechnung& U,
                                 Umrechenbericht& Bericht);

/// The strips or zones that stand in front of the eastings of a file; empty if it is large or not understood.
[[nodiscard]] std::vector<int> StreifenDerDatei(const std::string& Name, const Koordinatenform& Von);

/// What has to be known about eastings that look like those of another strip; "": there are none.
[[nodiscard]] std::string Umrechenhinweis(const Umrechenbericht& Bericht);

/// What became of a file, for the box at the end.
[[nodiscard]] std::string Umrechentext(const Umrechnung& U, const Umrechenbericht& Bericht,
                                       const std::string& Datei);

/// What will happen, in words: "Gauß-Krüger, Bessel, Streifen 3 -> Streifen 4".
/// @param[in] Quellstreifen  see StreifenDerDatei
[[nodiscard]] std::string Umrechensatz(const Umrechnung& U, const std::vector<int>& Quellstreifen);

}  // namespace tavorena
