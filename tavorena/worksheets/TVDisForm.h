#pragma once

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/worksheets/Anschluss.h>

namespace tavorena {

/// VR 22.10 Entfernungskontrolle: one check after the other, without a grid. Return in the distance
/// commits; the end point stays as the new start point. The checks of a worksheet stand in one batch block.
class TVDisForm final : public Rechenblatt {
 public:
  explicit TVDisForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] int StapelAnschluss() override;
  [[nodiscard]] int StapelZeile() override;
  [[nodiscard]] bool HatOffenes() const override;
  [[nodiscard]] bool OffenesSchreiben() override;
  void GrafikLöschen() override {
    Kopf.GrafikAnschlußLöschen();
    Geprüft.Löschen();
  }

 private:
  /// Computes and writes the check that is typed. @return 0 or -1
  [[nodiscard]] int AnschlussEinzel();
  [[nodiscard]] int KontrolleSchreiben();
  void NächsteKontrolle();
  void ZeigeAnschluss();

  double Gemessen = 0;  // [m]; 0 means not measured
  Anschlusswerte Werte;
  Anschluss Kopf;
  Markierung Geprüft;  // the lines that were checked
  Feld& Strecke;
  Feld &L, &D, &Ws;
};

}  // namespace tavorena
