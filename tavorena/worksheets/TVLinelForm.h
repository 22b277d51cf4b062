#pragma once

#include <string>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/worksheets/Zeilenblatt.h>

namespace tavorena {

/// VR 24.40 Linienelemente: distance along a base line and offset from it, for known points.
class TVLinelForm final : public Zeilenblatt {
 public:
  explicit TVLinelForm(const Blattart& BlattArt);

 protected:
  void ZeigeAnschluss() override;
  [[nodiscard]] const char* Hindernis() const override { return GleicheMaße(); }
  void BeiAnschluss() override;

 private:
  /// Every table point of the range of numbers whose offset is at most the width becomes a row.
  void Streifen();
  void ParallelenMarkieren(double Abstand);
  /// @param[in] Grenze  largest offset to either side [m]; 0: none. @return number of rows
  [[nodiscard]] int StreifenAufnehmen(double Grenze);
  [[nodiscard]] Zeilenkunde Kunde();
  [[nodiscard]] bool MitRed() const { return a != 0 || e != 0; }
  [[nodiscard]] double Gemessen() const { return e != 0 ? e - a : Kopf.Länge(); }
  /// The value that a measured line with these tape readings would need.
  [[nodiscard]] double Red(double Gerechnet) const { return Gerechnet * Gemessen() / Kopf.Länge(); }

  double &a = Maß1, &e = Maß2;  // tape readings on start and end [m]; an e of 0 is not measured
  Anschlusswerte Werte;
  Feld &Pnrvon, &Pnrbis, &Breite;
};

}  // namespace tavorena
