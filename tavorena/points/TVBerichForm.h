#pragma once

#include <string>

#include <tavorena/points/Punktform.h>
#include <tavorena/points/Punktzeile.h>

namespace tavorena {

/// New numbers for points (VR 25.07): for one number, or from a start number on for a range or a selection.
class TVBerichForm final : public Punktform {
 public:
  TVBerichForm();
  [[nodiscard]] bool OffenesKlären() override;

 protected:
  bool DarfSchließen() override { return OffenesKlären(); }
  void BeiTabelle() override;
  void NachTat() override;

 private:
  Feld& NummernfeldAnlegen(const char* Name, Platz Ort);
  [[nodiscard]] bool AltLesen();
  [[nodiscard]] bool NeuLesen() const;
  void AltZeigen();
  void PunktBerichtigen();
  void SelektionWählen();
  void SelektionZeigen();
  void MehrereBerichtigen();

  Punktzeile Alt;
  Beschriftung& AltAnzahl;
  Feld& BerichNeuPnr;
  Feld &BerichPnrvon, &BerichPnrbis, &BerichStartPnr;
  Beschriftung& SelektionStand;
  Punktsammlung Selektion;  // empty: the range holds
};

}  // namespace tavorena
