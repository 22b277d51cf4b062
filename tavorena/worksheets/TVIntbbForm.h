#pragma once

#include <array>

#include <tavorena/worksheets/Fallblatt.h>
#include <tavorena/worksheets/Schnittfelder.h>

namespace tavorena {

/// VR 23.10 Bogenschnitt: where two circles meet. The first solution lies right of the direction from the
/// first centre to the second.
class TVIntbbForm final : public Fallblatt {
 public:
  explicit TVIntbbForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] std::string Rechnen() override;
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Nachführen() override;
  void Zeichnen(Markierung& Bild) override;

 private:
  std::array<Kreisfelder, 2> K;
  Schnittpaar Neue;
};

}  // namespace tavorena
