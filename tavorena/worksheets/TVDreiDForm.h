#pragma once

#include <tavorena/calc/DreiD.h>
#include <tavorena/records/DreiD.h>
#include <tavorena/worksheets/Fallblatt.h>

namespace tavorena {

/// Three-dimensional calculations. The title of the kind says which one.
class TVDreiDForm final : public Fallblatt {
 public:
  explicit TVDreiDForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] std::string Rechnen() override;
  void Unvollständig() override { NichtsZeigen(); }
  [[nodiscard]] bool Schweigt() const override { return true; }
  [[nodiscard]] bool OhneNummer() const override;
  [[nodiscard]] Block Protokollieren() override;
  [[nodiscard]] Block Streichzeile(const Fallpunkt& L) override;
  [[nodiscard]] Block StreichzeilenOhnePunkt() override;
  [[nodiscard]] std::vector<std::string> Sätze() override;
  [[nodiscard]] int StapelLesen() override;
  void Zeichnen(Markierung& Bild) override;

 private:
  [[nodiscard]] int Engine(Raumlage& Neu);
  void PunkteAnlegen();
  void WerteAnlegen();
  [[nodiscard]] Raumpunkt NeuerPunkt() const;
  [[nodiscard]] ProtdreiD AlsProt() const;

  DreiDArt Wie;
  std::vector<double> Werte;      // in the order of DreiDWerte
  std::vector<Feld*> Wertfelder;  // without those that are typed
  Feld* HöheFeld = nullptr;
};

}  // namespace tavorena
