#pragma once

#include <tavorena/worksheets/Flaechenbild.h>
#include <tavorena/worksheets/Flaechennachweis.h>
#include <tavorena/worksheets/Listenblatt.h>

namespace tavorena {

/// VR 65.00 Flächenberechnung: a boundary of straight edges and arcs, with measured boundary lengths and the
/// printed proof, the POL file.
class TVAreaForm final : public Listenblatt {
 public:
  explicit TVAreaForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] Listenmangel Rechnen() override;
  void Zeilenergebnis(int z, std::vector<double>& Ziel) const override;
  [[nodiscard]] bool ZeileBleibt(int z) const override;
  void ZeigeBerechnung() override;
  [[nodiscard]] Listenakte Akte() const override;
  void FelderLeeren() override;
  [[nodiscard]] int BlockLesen() override;
  void GrafikLöschen() override { Bild.Löschen(); }
  bool Zurücknehmen() override { return PunkteZurück(Gespeichert); }

 private:
  Feld& Textfeld(const char* Rest, const char* Label, int Zeile);
  void PunktNehmen(std::size_t i, const Listenreihe& Z);
  [[nodiscard]] bool Auffällig(int z, int s) const;
  [[nodiscard]] int Füllen(const Flaecheneingabe& E);
  void Pol();
  void PolLesen();

  Flaechengrenze Grenze;
  std::vector<std::size_t> Andere;  // points that were changed since it was shown, rising
  Flaechenbild Bild;
  std::string Gemeldet;   // what was told of it last
  Polnachweis Nachweis;   // with what the next one begins
  Rücknahme Gespeichert;  // points of a proof
  Feld &Name, &Bemerkung;
  Feld *Flaeche = nullptr, *GKred = nullptr, *Umring = nullptr, *Bogen = nullptr;
};

}  // namespace tavorena
