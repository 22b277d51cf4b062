#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/Wert.h>
#include <tavorena/rawdata/Messsatz.h>

/// @file
/// A raw-data file as a whole: what it is understood to hold.

namespace tavorena {

enum class Rohform { NachEndung, GSI, GRE, M5 };

/// How a raw-data file is to be understood.
struct Rohdatenwahl {
  Rohform Form = Rohform::NachEndung;            ///< by the ending: ".gre" is GRE, all others GSI
  std::vector<std::string> Stationscodes{"60"};  ///< codes that open a station
  int Stationswert = 2;        ///< value of the code block that holds its number, the code counting as 1
  int Ihwert = 0;              ///< value that holds the instrument height [mm]; 0: none
  bool OhneNullen = true;      ///< numbers lose leading "+" and "0"
  bool LagenMitteln = false;   ///< both faces of a point become one row
  bool AlleEinheiten = false;  ///< feet, sexagesimal degrees and mil too

  bool operator==(const Rohdatenwahl&) const = default;
};

/// A measurement that can be taken over: direction, zenith angle and distance are there and understood.
struct Rohpunkt {
  std::string Nummer;
  std::string Code;          ///< symbol; "" for none
  double Hz = 0, V = 0;      ///< [gon], as in the file
  double Strecke = 0;        ///< slope distance [m], above 0
  double Reflektorhöhe = 0;  ///< in force at this line [m]
  std::size_t Zeile = 0;     ///< line of the file, from 1
};

/// The measurements from one station code to the next.
struct Rohblock {
  std::string Standpunkt;  ///< "" in a file without station codes
  std::string Symbol;
  Wert Instrumentenhöhe;                   ///< [m]; empty when the file does not say
  Wert StandRechts, StandHoch, StandHöhe;  ///< of the station line; empty without one
  std::vector<Rohpunkt> Punkte;
  std::size_t Zeile = 0;  ///< where it begins
};

/// A point with coordinates of the instrument.
struct Rohkoordinate {
  std::string Nummer;
  std::string Code;
  double Rechts = 0, Hoch = 0;
  Wert Höhe;  ///< empty without one
  std::size_t Zeile = 0;
};

/// What was found more than once, with the lines where it was met first.
struct Fundstelle {
  std::string Was;
  std::size_t Anzahl = 0;
  std::array<std::size_t, 3> Zeilen{};  ///< numbers of the first lines, from 1; 0: no more
};

/// Values of one word index that bear the same unit digit.
struct Wortzählung {
  int Wort = 0;
  char Einheit = '.';
  std::size_t Anzahl = 0;
};

/// A line that a surveyor should look at.
struct Zweifelszeile {
  std::size_t Zeile = 0;
  std::string Text;  ///< at most 200 characters
  std::string Grund;
};

/// What the report says of a file besides its blocks and coordinates.
struct Rohbefund {
  std::size_t Zeilen = 0;           ///< all, empty ones too
  std::size_t Messzeilen = 0;       ///< measurement lines
  std::size_t Codezeilen = 0;       ///< code blocks
  std::size_t Andere = 0;           ///< of no known class
  std::size_t ZuKurze = 0;          ///< too short for their form, empty ones not counted
  std::size_t Leere = 0;            ///< empty, or blanks alone
  std::size_t Sechzehner = 0;       ///< measurement and code lines of 16 digits
  std::size_t Stationen = 0;        ///< different station numbers
  std::size_t Punkte = 0;           ///< different numbers of measurement lines
  std::size_t ZweiteLage = 0;       ///< rows with a zenith angle above 200 gon
  std::size_t Gemittelte = 0;       ///< pairs of both faces that became one row
  double SpanneHz = 0;              ///< largest difference of the directions of a pair [gon]
  double SpanneV = 0;               ///< largest difference of their zenith angles to 400 [gon]
  double SpanneStrecke = 0;         ///< largest difference of their distances [m]
  bool OhneStationscode = false;    ///< stations were opened by their coordinates
  bool FremdeEinheiten = false;     ///< feet, sexagesimal degrees or mil: `AlleEinheiten` makes a difference
  std::vector<Wortzählung> Wörter;  ///< by word index and digit
  std::vector<Fundstelle> Codes;    ///< of the code lines: first value, or data of word 1
  std::vector<Fundstelle> NichtGelesen;   ///< words, units, fields and lines that were not understood
  std::vector<Fundstelle> NichtGenommen;  ///< measurements that became no row, by reason
  std::vector<Fundstelle> Auffällig;      ///< what was read and is doubtful
  std::vector<Zweifelszeile> Zweifel;     ///< in the order of the file, at most `MaxZweifel`
  std::size_t ZweifelAnzahl = 0;          ///< of all doubtful lines
};
inline constexpr std::size_t MaxZweifel = 1000;

/// A raw-data file.
struct Rohdaten {
  std::string Datei;
  Rohform Form = Rohform::GSI;  ///< never `NachEndung`
  std::vector<Rohblock> Blöcke;
  std::vector<Rohkoordinate> Koordinaten;
  Rohbefund Befund;
};

/// The form that a file is read in: as chosen, or by its ending.
[[nodiscard]] Rohform RohformVon(std::string_view Datei, Rohform Wahl);

/// One line of either form: the decision about 8 or 16 digits, its class, and a measurement line into Satz or
/// a code line into Block.
/// @param[in] Form  not `NachEndung`
/// @return a Zeilenart
int RohzeileLesen(std::string_view Zeile, Rohform Form, Messsatz& Satz, Codeblock& Block,
                  bool AlleEinheiten = false);

/// Reads a whole file: blocks from one station code to the next with all their rows, the points with
/// coordinates, and the findings for the report. Nothing is taken over that was not understood: a word with
/// an unknown unit, or whose field is no number, counts as absent.
///
/// Station codes that the file does not hold: if lines with the station's coordinates (84 and 85) and no
/// direction are there, each opens the station of its number; otherwise all rows are one block without
/// number. Rows ahead of the first station code become no rows and are told.
///
/// Long files show their progress in the status bar; the stop button ends the reading.
///
/// Coordinates are compared with the extent of the point table, if it holds points.
/// @param[out] Grund    why the file can not be read; "" if it is missing
/// @return 0; -1 the file is missing or unreadable; -2 stopped. Roh is then empty.
[[nodiscard]] int RohdatenLesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Roh,
                                std::string* Grund = nullptr);

/// The same for a text in memory.
/// @return 0; -2 stopped
[[nodiscard]] int RohtextLesen(std::string_view Text, const Rohdatenwahl& Wahl, Rohdaten& Roh);

/// The station that a code line opens: its number, and its instrument height [m] where `Ihwert` names one.
/// The code is the first value, the values being counted from it; or, if that does not hold, the data of
/// word 1.
/// @return false if the line opens none
[[nodiscard]] bool StationAusCodeblock(const Codeblock& Block, const Rohdatenwahl& Wahl, std::string& Nummer,
                                       Wert& Instrumentenhöhe);

/// A number as it is taken over.
[[nodiscard]] std::string_view Rohnummer(std::string_view Nummer, const Rohdatenwahl& Wahl);

/// The orientation block of the next station: its first block. Its orientation rows are the first
/// `OrientierungsGrenze` if a measurement block follows; otherwise all are both.
/// @param[in,out] Block  index of the station looked at before, -1 to begin; then that of the next one
/// @return 0; 1 no (further) station; 2 the station has no line with its coordinates
[[nodiscard]] int RohdatenOrientierungsblock(const Rohdaten& Roh, int& Block);

/// What is told about results 1 (with an empty number) and 2 of `RohdatenOrientierungsblock`.
[[nodiscard]] std::string StandpunktzeileFehlt(const Rohdaten& Roh, const std::string& Standpunkt);

inline constexpr std::size_t OrientierungsGrenze = 100;  ///< rows of an orientation block
inline constexpr std::size_t MessblockGrenze = 10000;    ///< rows of a measurement block

}  // namespace tavorena
