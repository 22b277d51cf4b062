#pragma once

#include <array>

#include <tavorena/calc/Schnitte.h>
#include <tavorena/worksheets/Fallblatt.h>

namespace tavorena {

/// VR 09.50 Kreismittelpunkt: the centre of the circle through three points.
class TVKmittForm final : public Fallblatt {
 public:
  explicit TVKmittForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] std::string Rechnen() override;
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Zeichnen(Markierung& Bild) override;

 private:
  std::array<Punktfeld*, 3> P;
  Fallpunkt& Neu;
  Feld& TauFeld;
  std::array<Feld*, 3> R;
  Kreismittelpunkt Kreis;
  double Tau = 0;  // [gon]
};

}  // namespace tavorena
