#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>
#include <tavorena/records/Block.h>
#include <tavorena/worksheets/Passpaare.h>

namespace tavorena {

/// What is asked of a transformation besides its passpoints.
struct Transformationswahl {
  bool Affin = false;             ///< else Helmert
  bool MasstabFest = false;       ///< Helmert: M = 1
  std::optional<Festpunkt> Fest;  ///< Helmert: takes the place of the centroids
};

/// What came of a fit. With AufGerader there are parameters of 0 to look at, but nothing to transform with.
enum class Passergebnis { Gut, ZuWenig, DivisionDurchNull, AufGerader };

/// The table in the new system, computed beside it.
struct Umformung {
  std::vector<double> Rechts, Hoch;  ///< all rows of the table [m]
  Block Listen;                      ///< of all points, with distribution a second one of the corrections
};

/// A transformation fitted to passpoints.
class Passung {
 public:
  /// Fits the ticked pairs, and gives residuals to all of them.
  void Rechnen(std::vector<Passpaar>& Paare, const Transformationswahl& W);

  [[nodiscard]] Passergebnis Ergebnis() const { return Stand; }
  /// There are parameters and residuals to be shown.
  [[nodiscard]] bool Passt() const { return Stand == Passergebnis::Gut || Stand == Passergebnis::AufGerader; }
  [[nodiscard]] const Transformationswahl& Wahl() const { return Gewählt; }
  [[nodiscard]] std::size_t Anzahl() const { return AltR.size(); }  ///< of the ticked pairs
  [[nodiscard]] const HelmertErgebnis& Helmert() const { return H; }
  [[nodiscard]] const AffinErgebnis& Affin() const { return A; }
  [[nodiscard]] Wert MK() const;  ///< standard deviations [m]; not given: too few passpoints
  [[nodiscard]] Wert ML() const;
  /// The passpoint is ticked, and one of its residuals is above 1.5 MK.
  [[nodiscard]] bool ÜberGrenze(const Passpaar& P, double Klaffe) const;
  [[nodiscard]] Lage Mitte() const;   ///< of the field of passpoints, old system
  [[nodiscard]] double Rand() const;  ///< its radius [m]

  /// A point in the new system. @return it lies in the field
  [[nodiscard]] bool Umformen(Lage Punkt, Lage& Neu) const;
  /// A vector of the new system as it points in the old one.
  [[nodiscard]] Lage InsAlte(Lage Vektor) const;
  /// The whole table. @param[in] Verteilen  the residuals are distributed
  /// @return 0; -1: stopped
  [[nodiscard]] int TabelleUmformen(const std::vector<Passpaar>& Paare, bool Verteilen, Umformung& U) const;

  /// The fit in the protocol.
  [[nodiscard]] Block Protokoll(int Nachkomma, const std::vector<Passpaar>& Paare) const;

 private:
  [[nodiscard]] Passpunkte Spalten() const { return {AltR, AltH, NeuR, NeuH}; }
  [[nodiscard]] const Restklaffen& Klaffen() const { return Gewählt.Affin ? A.Klaffen : H.Klaffen; }

  Transformationswahl Gewählt;
  Passergebnis Stand = Passergebnis::ZuWenig;
  std::vector<double> AltR, AltH, NeuR, NeuH;  // of the ticked pairs
  HelmertErgebnis H;
  AffinErgebnis A;
};

}  // namespace tavorena
