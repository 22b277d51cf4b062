#pragma once

#include <tavorena/calc/Messlinie.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

/// VR 22.00 Meßlinie: new points by distance along a line and offset.
class TVOrthoForm final : public Rechenblatt {
 public:
  explicit TVOrthoForm(const Blattart& BlattArt);

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
  [[nodiscard]] int AnschlussEinzel();
  void ZeigeAnschluss();
  void Verbinden(Verbindung& V) const;
  [[nodiscard]] Block Protokollieren(const Rechenzeile& Z, const std::string& Marke) const;
  [[nodiscard]] Zeilenkunde Kunde();

  double a = 0, e = 0;  // Anlegemass, Endmass [m]; an e of 0 is not measured
  MesslinieAnschlusswerte Werte;
  Anschluss Kopf;
  Feld &Anlegemass, &Endmass;
  Feld &L, &E, &M, &D, &Ws;
  Punktgitter Zeilen;
};

}  // namespace tavorena
