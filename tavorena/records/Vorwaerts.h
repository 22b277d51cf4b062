#pragma once

#include <array>
#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 10.00 Vorwärtsschnitt in the records: a new point from two stations. A case, one block of the batch
// file.

namespace tavorena {

/// The judgement of the angle of intersection γ [gon], whose sign does not count: Voll below 5 or above 195,
/// Früh below 20 or above 180; both above warning level 1 only.
[[nodiscard]] Warnung VorwaertsWarnung(double Gamma, int Warnstufe);

/// A station with its far point and the directions [gon] on the new and on the far point.
struct Protstation {
  Protpunkt Stand;
  double NeuRichtung = 0;
  Protpunkt Fern;
  double FernRichtung = 0;
};

/// A forward intersection.
struct Protvorwaerts {
  Protstation A, B;
  Protpunkt Neu;
  double Gamma = 0;       ///< angle of intersection [gon]
  Wert Hoehe, Parallaxe;  ///< [m]; given while heights are carried
};

/// The row of the new point alone, with what stands behind " PN": for a case that is taken back.
[[nodiscard]] Block VorwaertsZeile(int Nachkomma, const Protpunkt& Neu, double Gamma,
                                   const std::string& Marke);

/// A case: stations and far points, the text of its judgement, the new point with γ, the heights.
[[nodiscard]] Block VorwaertsBlock(int Nachkomma, const Protvorwaerts& V, int Warnstufe);

/// A station as it was typed; directions and vertical angle in gon.
struct Standeingabe {
  std::string FernPnr;
  double FernRichtung = 0;
  std::string StandPnr;
  double NeuRichtung = 0, Vertikal = 0;
};

/// A case as it was typed.
struct Vorwaertseingabe {
  std::array<Standeingabe, 2> Stand;
  std::string NeuPnr, Symbol;
};
/// Its records.
[[nodiscard]] std::vector<std::string> StapelVorwaertsschnitt(Vorwaertseingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseVorwaertsschnitt(Vorwaertseingabe& E);

}  // namespace tavorena
