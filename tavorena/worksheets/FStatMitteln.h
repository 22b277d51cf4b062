#pragma once

#include <vector>

#include <tavorena/worksheets/Messmittel.h>
#include <tavorena/worksheets/TVMMittForm.h>

namespace tavorena {

class TVFStatForm;

/// "Messungen mitteln" of a free station: points that stand in several polar rows become one, or the rows go
/// aside until all of them were measured once more.
class FStatMitteln final : public Messliste {
 public:
  explicit FStatMitteln(TVFStatForm& Für);
  FStatMitteln(const FStatMitteln&) = delete;
  FStatMitteln& operator=(const FStatMitteln&) = delete;

  Knopf& KnopfMitteln;

  /// A second measurement begins: the rows go aside, and Neue stand in their place.
  /// @return false with a reason: there are too many rows, or the one before is not averaged yet; nothing has
  ///         changed
  bool FStatDoppelteMessung(const std::vector<Kleinpunkteingabe>& Neue);
  /// The rows of a second measurement stand in the grid.
  [[nodiscard]] bool Läuft() const;
  /// Averages both measurements and shows the rows. @return false: a row can not be read or changed
  bool Mitteln();

  [[nodiscard]] std::vector<Punktsatz> Messpunkte() const override;
  void MesspunkteMitteln(const std::vector<int>& Zeilen) override;
  void MesspunktLöschen(int Zeile) override;
  [[nodiscard]] bool MesspunktUmnummern(int Zeile, const std::string& Pnr) override;

 private:
  void Drücken();
  [[nodiscard]] Messstandpunkt Standpunkt() const;

  TVFStatForm& Form;
};

}  // namespace tavorena
