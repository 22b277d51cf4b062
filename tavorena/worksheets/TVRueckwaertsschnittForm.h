#pragma once

#include <array>

#include <tavorena/records/Rueckwaerts.h>
#include <tavorena/worksheets/Fallblatt.h>

namespace tavorena {

/// VR 11.00 Rückwärtsschnitt: a new point by the directions that were observed on it to three known ones.
class TVRueckwaertsschnittForm final : public Fallblatt {
 public:
  explicit TVRueckwaertsschnittForm(const Blattart& BlattArt);

 protected:
  void BeiÖffnen() override;
  [[nodiscard]] std::string Rechnen() override;
  void Unvollständig() override { NichtsZeigen(); }
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Zeichnen(Markierung& Bild) override;

 private:
  struct Ziel {
    Punktfeld& Punkt;
    Messfeld& Richtung;
  };
  Ziel ZielAnlegen(int Nummer);
  Auswahl& VerfahrenAnlegen(const char* Name, int Spalte);
  [[nodiscard]] std::string Doppelt();
  [[nodiscard]] std::string Einschneiden();
  void Beurteilen();
  [[nodiscard]] Protrueckwaerts AlsProtrueckwaerts() const;

  Auswahl &Cassini, &Collins;
  std::array<Ziel, 3> Z;
  Fallpunkt& Neu;
  Feld &Tau1Feld, &Tau2Feld;
  double Tau1 = 0, Tau2 = 0;  // [gon]
};

}  // namespace tavorena
