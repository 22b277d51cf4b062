#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <tavorena/points/Punktform.h>
#include <tavorena/points/Punktzeile.h>

namespace tavorena {

/// Means of double points (VR 25.50), one group of up to eight rows after the other; behind the last one the
/// form closes. A row can be deleted or take another number.
class TVDMittForm final : public Punktform {
 public:
  TVDMittForm();
  [[nodiscard]] bool OffenesKlären() override;

  /// Shows the next group that was not passed over.
  void DmittSuchDoppelte();
  /// Makes one point of the group.
  void DMittMitteln();

 protected:
  void BeiÖffnen() override { DmittSuchDoppelte(); }
  bool DarfSchließen() override { return OffenesKlären(); }
  void BeiTabelle() override;
  void NachTat() override { BeiTabelle(); }
  bool Zurücknehmen() override;

 private:
  // A place of the group. The others stay where they are when its point goes: whoever presses a button
  // means the row that he saw beside it.
  struct Altpunkt {
    Punktzeile Zeile;
    Feld& Bem;
    Knopf* Löschen = nullptr;
    std::optional<Punktsatz> Punkt = {};
    int InTabelle = -1;
  };
  void AlterPunktLöschen(std::size_t i);
  [[nodiscard]] bool AlterPunktBerichtigen(std::size_t i);
  void NächsteGruppe();
  void Belegen(std::vector<int> Zeilen);
  void MittelZeigen();
  [[nodiscard]] bool Bereit();
  [[nodiscard]] std::vector<Altpunkt*> Gruppe();
  [[nodiscard]] Punktsatz Mittel();

  std::vector<Altpunkt> Alte;
  std::optional<Punktzeile> Neuer;
  std::string Nummer;                // of the group
  std::set<std::string> Übergangen;  // numbers that "Nächste Gruppe" passed over
  std::optional<Punktsatz> Zuletzt;  // the last mean: it leads the rest of a group of more than eight
  std::uint64_t Gesehen = 0;         // state of the table that is shown
  Beschriftung* Weitere = nullptr;   // of the group, beyond the eight
};

}  // namespace tavorena
