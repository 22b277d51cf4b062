#pragma once

#include <array>
#include <string>

namespace tavorena {

/// The four characters between word index and data: free, free, free, unit digit; "." where nothing stands.
using Messinfo = std::array<char, 4>;

/// A measured value or a coordinate of a measurement line.
struct Messwert {
  bool Da = false;      ///< the line holds it
  bool Gelesen = true;  ///< its unit is known and its field is a number; otherwise Wert is 0
  Messinfo Info{'.', '.', '.', '.'};
  double Wert = 0;  ///< gon or m
};

/// A text of a measurement line.
struct Messtext {
  bool Da = false;  ///< the line holds it
  Messinfo Info{'.', '.', '.', '.'};
  std::string Text;
};

/// What one measurement line of an instrument holds, whatever its form. Made to be used again line by line:
/// `Leeren` keeps the room of the texts.
struct Messsatz {
  Messtext Nummer;                             ///< point number (GSI word 11)
  Messwert Hz;                                 ///< direction (21, in the 8-digit form 25 too)
  Messwert V;                                  ///< zenith angle (22)
  Messwert Strecke;                            ///< slope distance (31)
  Messwert Horizontal;                         ///< horizontal distance (32)
  Messwert Höhenunterschied;                   ///< (33); the first info character tells readings of a level
  Messtext Konstante;                          ///< ppm and constant, as it stands (51)
  Messtext Code;                               ///< (71)
  Messwert Rechts, Hoch, Höhe;                 ///< of the target (81, 82, 83)
  Messwert StandRechts, StandHoch, StandHöhe;  ///< of the station (84, 85, 86)
  Messwert Reflektorhöhe;                      ///< (87)
  Messwert Instrumentenhöhe;                   ///< (88)

  void Leeren();
};

/// The value that a word index stands for; nullptr for one that is none (11, 51, 71 and the unknown).
[[nodiscard]] Messwert* MesswertVon(Messsatz& Satz, int Wort);
[[nodiscard]] const Messwert* MesswertVon(const Messsatz& Satz, int Wort);

/// A code line.
struct Codeblock {
  std::string Nummer;                ///< block number
  std::string Wort1;                 ///< data of word 1, where some instruments put the code
  std::array<std::string, 9> Werte;  ///< data of the words from 2 on
  int Anzahl = 0;                    ///< of Werte

  void Leeren();
};

}  // namespace tavorena
