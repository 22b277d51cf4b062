#pragma once

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/worksheets/Zeilenblatt.h>

namespace tavorena {

/// VR 08.40 Polarelemente: direction and distance of known points from the start of a connection.
class TVPolelForm final : public Zeilenblatt {
 public:
  explicit TVPolelForm(const Blattart& BlattArt);

 protected:
  void ZeigeAnschluss() override;

 private:
  [[nodiscard]] Zeilenkunde Kunde();

  double& Ablesung = Maß1;  // circle reading on the end point [gon]
  double& Gemessen = Maß2;  // distance [m]; 0 means not measured
  double Nord = 0;          // bearing of the connection [gon]
  Anschlusswerte Werte;
};

}  // namespace tavorena
