#pragma once

#include <tavorena/worksheets/Anschlussblatt.h>

namespace tavorena {

/// VR 22.10 Entfernungskontrolle: one check after the other, without a grid. Return in the distance
/// commits; the end point stays as the new start point. All checks of a worksheet stand in one batch block.
class TVDisForm final : public Anschlussblatt {
 public:
  TVDisForm();

 protected:
  bool TasteUnten(Steuerelement& S, Taste T) override;
  void AnschlussRechnen() override;
  int AnschlussEinzel() override;
  void KopfwerteSetzen(double AnfWert, double EndWert) override;
  int StapelZeile() override;
  [[nodiscard]] bool HatOffenes() const override;
  bool OffenesSchreiben() override;
  void BlockBeenden() override;

 private:
  /// Writes the check that is shown.
  void KontrolleSchreiben();
  void NächsteKontrolle();

  double Gemessen = 0;       // [m]; 0 means not measured
  bool Geschrieben = false;  // the batch block is open
  Anschlusswerte Werte;
  Feld& Strecke;
  Feld &L, &D, &Ws;
};

}  // namespace tavorena
