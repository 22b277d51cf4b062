#pragma once

#include <array>
#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 11.00 Rückwärtsschnitt in the records: a new point from directions to three known ones. A case, one
// block of the batch file.

namespace tavorena {

/// A known point and the direction on it [gon].
struct Protrichtung {
  Protpunkt Punkt;
  double Richtung = 0;
};

/// A resection; the second point is the middle one.
struct Protrueckwaerts {
  bool Collins = false;
  std::array<Protrichtung, 3> Punkte;
  double Tau1 = 0, Tau2 = 0;  ///< [gon]
  Protpunkt Neu;
};

/// What is said of a resection, whatever the warning level.
struct Rueckwaertsurteil {
  std::vector<std::string> Texte;                               ///< of all tests that fire, in their order
  Warnung Marke = Warnung::Keine;                               ///< of the last one
  Warnung Verteilung = Warnung::Keine, Kreis = Warnung::Keine;  ///< what τ1 and τ2 alone say
};
[[nodiscard]] Rueckwaertsurteil RueckwaertsUrteil(const Protrueckwaerts& R);

/// The row of the new point alone, with what stands behind " PN": for a case that is taken back.
[[nodiscard]] Block RueckwaertsZeile(int Nachkomma, const Protpunkt& Neu, const std::string& Marke);

/// A case: method, points, texts of its judgement, both τ, the new point.
[[nodiscard]] Block RueckwaertsBlock(int Nachkomma, const Protrueckwaerts& R);

/// A known point as it was typed, with its direction [gon].
struct Richtungseingabe {
  std::string Pnr;
  double Richtung = 0;
};

/// A case as it was typed.
struct Rueckwaertseingabe {
  bool Collins = false;
  std::array<Richtungseingabe, 3> Punkte;
  std::string NeuPnr, Symbol;
};
/// Its records.
[[nodiscard]] std::vector<std::string> StapelRueckwaertsschnitt(Rueckwaertseingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseRueckwaertsschnitt(Rueckwaertseingabe& E);

}  // namespace tavorena
