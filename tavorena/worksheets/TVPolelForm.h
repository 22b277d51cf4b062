#pragma once

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

/// VR 08.40 Polarelemente: direction and distance of known points from the start of a connection.
class TVPolelForm final : public Rechenblatt {
 public:
  explicit TVPolelForm(const Blattart& BlattArt);

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
  void AnschlussÖffnen();
  void ZeigeAnschluss();
  [[nodiscard]] Zeilenkunde Kunde();

  double Ablesung = 0;  // circle reading on the end point [gon]
  double Gemessen = 0;  // measured distance [m]; 0 means not measured
  double Nord = 0;      // bearing of the connection [gon]
  Anschlusswerte Werte;
  Anschluss Kopf;
  Feld &Orientierung, &Strecke;
  Feld &L, &M, &D, &Ws;
  Punktgitter Zeilen;
};

}  // namespace tavorena
