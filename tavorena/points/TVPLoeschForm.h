#pragma once

#include <vector>

#include <tavorena/points/Punktform.h>
#include <tavorena/points/Punktzeile.h>

namespace tavorena {

/// Deletion of points (VR 25.08): they are gathered in a list, by number, range, selection or clicks in the
/// graphics view; those with a mark go.
class TVPLoeschForm final : public Punktform {
 public:
  TVPLoeschForm();
  [[nodiscard]] bool OffenesKlären() override;

 protected:
  bool DarfSchließen() override { return OffenesKlären(); }
  void BeiTabelle() override;
  void NachTat() override;

 private:
  void KnöpfeAnlegen();
  Feld& NummernfeldAnlegen(const char* Name, Platz Ort, const char* Rahmen);
  void NummerHinzu();
  void BereichHinzu();
  void SelektionHinzu();
  void Hinzu(const std::vector<int>& Zeilen);
  [[nodiscard]] std::vector<std::size_t> ListeNachsehen();
  void Zeigen(const std::vector<bool>& Marken);
  void StandZeigen();
  [[nodiscard]] std::vector<int> Gewählte() const;
  void Löschen();

  Punktsammlung Punkte;  // a row of the list each
  Feld &LoeschPnr, &LoeschPnrvon, &LoeschPnrbis;
  Gitter& Liste;
  Beschriftung& Stand;
  Knopf* LoeschPunkte = nullptr;
};

}  // namespace tavorena
