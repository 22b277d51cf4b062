#pragma once

#include <tavorena/calc/Messlinie.h>
#include <tavorena/worksheets/Zeilenblatt.h>

namespace tavorena {

/// VR 22.00 Meßlinie: new points by distance along a line and offset.
class TVOrthoForm final : public Zeilenblatt {
 public:
  explicit TVOrthoForm(const Blattart& BlattArt);

 protected:
  void ZeigeAnschluss() override;
  [[nodiscard]] const char* Hindernis() const override { return GleicheMaße(); }

 private:
  void Verbinden(Verbindung& V) const;
  [[nodiscard]] Block Protokollieren(const Rechenzeile& Z, const std::string& Marke) const;
  [[nodiscard]] Zeilenkunde Kunde();

  double &a = Maß1, &e = Maß2;  // tape readings on start and end [m]; an e of 0 is not measured
  MesslinieAnschlusswerte Werte;
};

}  // namespace tavorena
