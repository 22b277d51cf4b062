#pragma once

#include <tavorena/worksheets/Fallblatt.h>
#include <tavorena/worksheets/Schnittfelder.h>

namespace tavorena {

/// VR 09.40 Schnitt Kreis / Gerade: where a line, as given, parallel or perpendicular to its points, meets a
/// circle. The first of two solutions lies further along the line.
class TVIntblForm final : public Fallblatt {
 public:
  explicit TVIntblForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] std::string Rechnen() override;
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Nachführen() override { K.Nachführen(); }
  void Zeichnen(Markierung& Bild) override;

 private:
  Kreisfelder K;
  Geradenfelder G;
  Schnittpaar Neue;
};

}  // namespace tavorena
