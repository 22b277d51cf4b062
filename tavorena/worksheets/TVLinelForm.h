#pragma once

#include <string>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

/// VR 24.40 Linienelemente: distance along a base line and offset from it, for known points.
class TVLinelForm final : public Rechenblatt {
 public:
  explicit TVLinelForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] int StapelAnschluss() override;
  [[nodiscard]] int StapelZeile() override { return Zeilen.StapelZeile(); }
  [[nodiscard]] bool HatOffenes() const override { return Zeilen.HatOffenes(); }
  [[nodiscard]] bool OffenesSchreiben() override { return Zeilen.OffenesSchreiben(); }
  void GrafikLöschen() override {
    Kopf.GrafikAnschlußLöschen();
    Zeilen.GrafikKleinpunktLöschen();
  }

 private:
  /// Computes the connection and opens the rows. @return 0 or -1
  [[nodiscard]] int AnschlussEinzel();
  void AnschlussÖffnen();
  void ZeigeAnschluss();
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

  double a = 0, e = 0;  // tape readings on start and end [m]; an e of 0 means not measured
  Anschlusswerte Werte;
  Anschluss Kopf;
  Feld &Anlegemass, &Endmass;
  Feld &L, &E, &M, &D, &Ws;
  Feld &Pnrvon, &Pnrbis, &Breite;
  Punktgitter Zeilen;
};

}  // namespace tavorena
