#pragma once

#include <tavorena/calc/Messlinie.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

/// VR 19.70 Polare Punkte: new points by direction and distance from a station; with heights where the
/// station has one.
class TVPolarForm final : public Rechenblatt {
 public:
  explicit TVPolarForm(const Blattart& BlattArt);

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
  void Verbinden(Verbindung& V) const;
  [[nodiscard]] int Rechnen(Rechenzeile& Z) const;
  [[nodiscard]] Block Protokollieren(const Rechenzeile& Z, const std::string& Marke) const;
  [[nodiscard]] Zeilenkunde Kunde();

  double Ablesung = 0;  // circle reading on the end point [gon]
  double Gemessen = 0;  // measured distance [m]; 0 means not measured
  PolarAnschlusswerte Werte;
  Anschluss Kopf;
  Feld &Orientierung, &GemStrecke;
  Feld &L, &M, &D, &Ws, &Vertikal;
  Punktgitter Zeilen;
};

}  // namespace tavorena
