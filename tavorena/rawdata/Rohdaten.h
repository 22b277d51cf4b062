#pragma once

#include <string>
#include <vector>

#include <tavorena/core/Wert.h>

/// @file
/// A raw-data file as a whole: what it is understood to hold.

namespace tavorena {

enum class Rohform { NachEndung, GSI, GRE };

/// How a raw-data file is to be understood.
struct Rohdatenwahl {
  Rohform Form = Rohform::NachEndung;            ///< by the ending: ".gre" is GRE, all others GSI
  std::vector<std::string> Stationscodes{"60"};  ///< codes that open a station
  int Stationswert = 2;        ///< value of the code block that holds its number, the code counting as 1
  int Ihwert = 0;              ///< value that holds the instrument height [mm]; 0: none
  bool OhneNullen = true;      ///< numbers lose leading "+" and "0"
  bool LagenMitteln = false;   ///< both faces of a point become one row
  bool AlleEinheiten = false;  ///< feet, sexagesimal degrees and mil too
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

}  // namespace tavorena
