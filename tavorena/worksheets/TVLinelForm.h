#pragma once

#include <string>
#include <vector>

#include <tavorena/worksheets/Gitterblatt.h>

namespace tavorena {

/// VR 24.40 Linienelemente: distance along a base line and offset from it, for known points.
class TVLinelForm final : public Gitterblatt {
 public:
  TVLinelForm();

 protected:
  bool TasteUnten(Steuerelement& S, Taste T) override;
  void AnschlussAnAus(bool An) override;
  void AnschlussRechnen() override;
  int AnschlussEinzel() override;
  void KopfwerteSetzen(double AnfWert, double EndWert) override;
  void Kopfwerte(double& AnfWert, double& EndWert) const override;
  int ZeileRechnen(Zeile& Z) const override;
  [[nodiscard]] std::vector<std::string> Zellen(const Zeile& Z) const override;
  void AnschlussProtokollieren() const override;
  void ZeileProtokollieren(const Zeile& Z, const std::string& Marke) const override;

 private:
  void ZeigeAnschluss();
  /// Every table point of the range of numbers whose offset is at most the width becomes a row.
  void Streifen();
  [[nodiscard]] bool MitRed() const { return a != 0 || e != 0; }
  [[nodiscard]] double Gemessen() const { return e != 0 ? e - a : Laenge(); }
  /// The value that a measured line with these tape readings would need.
  [[nodiscard]] double Red(double Gerechnet) const { return Gerechnet * Gemessen() / Laenge(); }

  double a = 0, e = 0;  // tape readings on start and end [m]; an e of 0 means not measured
  Anschlusswerte Werte;
  Feld &Anlegemass, &Endmass;
  Feld &L, &E, &M, &D, &Ws;
  Feld *Pnrvon, *Pnrbis, *Breite;
};

}  // namespace tavorena
