#pragma once

#include <tavorena/calc/Messlinie.h>
#include <tavorena/worksheets/Zeilenblatt.h>

namespace tavorena {

/// VR 19.70 Polare Punkte: new points by direction and distance from a station; with heights where the
/// station has one.
class TVPolarForm final : public Zeilenblatt {
 public:
  explicit TVPolarForm(const Blattart& BlattArt);

 protected:
  void ZeigeAnschluss() override;

 private:
  void Verbinden(Verbindung& V) const;
  [[nodiscard]] int Rechnen(Rechenzeile& Z) const;
  [[nodiscard]] Block Protokollieren(const Rechenzeile& Z, const std::string& Marke) const;
  [[nodiscard]] Zeilenkunde Kunde();

  double& Ablesung = Maß1;  // circle reading on the end point [gon]
  double& Gemessen = Maß2;  // distance [m]; 0 means not measured
  PolarAnschlusswerte Werte;
  Feld& Vertikal;
};

}  // namespace tavorena
