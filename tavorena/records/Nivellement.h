#pragma once

#include <limits>
#include <string>
#include <vector>

#include <tavorena/records/Zug.h>

// VR NI.00 Nivellement in the records. A field book is written as a whole, one block of the batch file.

namespace tavorena {

/// Stands for a reading or a length that there is none of.
inline constexpr double KeineAblesung = std::numeric_limits<double>::quiet_NaN();

/// A row of the protocol; what is not given stays blank.
struct Protnivzeile {
  std::string Pnr;
  Wert R, Z, V, v, Höhe;  ///< [m]
  bool Fest = false, Zwischen = false;
};

/// A section; only of a closed one there is an error to show.
struct Protnivabschnitt {
  std::string Anfang, Ende;  ///< numbers of its ends
  bool Geschlossen = false;
  Zugabweichung FH;  ///< [m]
  double L = 0;      ///< [km]
};

/// A line.
struct Protnivlinie {
  std::vector<Protnivzeile> Zeilen;
  double SummeR = 0, SummeV = 0;  ///< [m]
  std::vector<Protnivabschnitt> Abschnitte;
};

/// A section that was levelled there and back.
struct Protnivpaar {
  double d = 0;  ///< sum of both differences [m]
  double R = 0;  ///< [km]
};

/// A field book as it was computed.
struct Protnivellement {
  std::vector<Protnivlinie> Linien;
  std::vector<Protnivpaar> Paare;
  double s0 = 0;  ///< [mm/km]; only with pairs
};

/// Rows, sums and closing errors line by line, then the double measurements. Heights have four decimals,
/// whatever the decimals of coordinates are.
[[nodiscard]] Block NivellementBlock(int Nachkomma, const Protnivellement& N, int Warnstufe);

/// A row as it was typed; KeineAblesung where nothing was.
struct Nivzeile {
  std::string Pnr;
  double R = KeineAblesung, Z = KeineAblesung, V = KeineAblesung;  ///< readings [m]
  double sR = KeineAblesung, sV = KeineAblesung;                   ///< lengths of the sights [m]
  std::string Bemerkung = {};
};

/// A known height.
struct Nivfest {
  std::string Pnr;
  double Höhe = 0;  ///< [m]
};

/// A field book as it was typed.
struct Niveingabe {
  std::vector<Nivfest> Feste;
  std::vector<Nivzeile> Zeilen;
  double Klasse = 15;  ///< tolerance of a kilometre [mm]
};

/// Its records.
[[nodiscard]] std::vector<std::string> StapelNivellement(Niveingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseNivellement(Niveingabe& E);

}  // namespace tavorena
