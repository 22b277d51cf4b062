#pragma once

#include <array>

#include <tavorena/worksheets/Fallblatt.h>
#include <tavorena/worksheets/Schnittfelder.h>

namespace tavorena {

/// VR 09.00 Geradenschnitt: where two lines meet, each as given, parallel or perpendicular to its points.
class TVIntllForm final : public Fallblatt {
 public:
  explicit TVIntllForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] std::string Rechnen() override;
  void Unvollständig() override;
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Zeichnen(Markierung& Bild) override;

 private:
  std::array<Geradenfelder, 2> G;
  Fallpunkt& Neu;
  Feld& TauFeld;
  double Tau = 0;  // [gon]
};

}  // namespace tavorena
