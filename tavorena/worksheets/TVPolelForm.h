#pragma once

#include <string>
#include <vector>

#include <tavorena/worksheets/Gitterblatt.h>

namespace tavorena {

/// VR 08.40 Polarelemente: direction and distance of known points from the start of a connection.
class TVPolelForm final : public Gitterblatt {
 public:
  TVPolelForm();

 protected:
  void AnschlussRechnen() override;
  void KopfwerteSetzen(double AnfWert, double EndWert) override;
  void Kopfwerte(double& AnfWert, double& EndWert) const override;
  int ZeileRechnen(Zeile& Z) const override;
  [[nodiscard]] std::vector<std::string> Zellen(const Zeile& Z) const override;
  void AnschlussProtokollieren() const override;
  void ZeileProtokollieren(const Zeile& Z, const std::string& Marke) const override;

 private:
  double Ablesung = 0;  // circle reading on the end point [gon]
  double Gemessen = 0;  // measured distance [m]; 0 means not measured
  double Nord = 0;      // bearing of the connection [gon]
  Anschlusswerte Werte;
  Feld &Orientierung, &Strecke;
  Feld &L, &M, &D, &Ws;
};

}  // namespace tavorena
