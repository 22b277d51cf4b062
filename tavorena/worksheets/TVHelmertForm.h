#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/records/Transformation.h>
#include <tavorena/worksheets/Passanzeige.h>
#include <tavorena/worksheets/Passgitter.h>
#include <tavorena/worksheets/Passung.h>
#include <tavorena/worksheets/Rechenblatt.h>
#include <tavorena/worksheets/Systemfeld.h>

namespace tavorena {

/// VR 24.00 Helmert- and VR 24.30 Affin- Transformation of the whole table. The passpoints are found by
/// number or position, or typed; the fit follows each tick. One button transforms, once for each filling, and
/// what it did can be taken back while the worksheet is open.
class TVHelmertForm final : public Rechenblatt {
 public:
  explicit TVHelmertForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] int StapelAnschluss() override;
  [[nodiscard]] int StapelZeile() override;
  [[nodiscard]] bool HatOffenes() const override;
  [[nodiscard]] bool OffenesSchreiben() override { return Transformieren(); }
  void GrafikLöschen() override { Figuren.GrafikLöschen(); }
  void BeiTabelle() override;
  [[nodiscard]] bool Zurücknehmen() override;

 private:
  void SystemAnlegen();
  void Suchen(bool NachLage);
  [[nodiscard]] std::optional<Festpunkt> FestSuchen() const;
  [[nodiscard]] bool FestFehlt() const;

  void Rechnen();
  void ZustandZeigen();
  [[nodiscard]] std::string Hindernis() const;

  [[nodiscard]] bool Transformieren();
  [[nodiscard]] int Ausführen(Umformung& U);
  [[nodiscard]] int Schreiben(Umformung& U);
  [[nodiscard]] Transformationseingabe Eingabe() const;
  [[nodiscard]] std::string BlockNehmen(const Transformationseingabe& E);
  void KeineBerechnung();
  void Freigeben();
  void FelderClear();

  NeuesSystem System;
  Passung Fit;
  bool Getan = false;  // the table was transformed with what stands here
  Rücknahme Taten;
  std::vector<Aufzeichnung::Spur> Spuren;  // of the transformations in Taten
  Aufzeichnung::Spur Letzte;

  Systemfeld Kopf;
  Auswahl &Helmert, &Affin, &MasstabFest, &Verteilen;
  Feld& FixPnr;
  Knopf &KnopfGleich, &KnopfLage;
  Passgitter Zeilen;
  Passanzeige Figuren;
  Knopf* KnopfTransformieren = nullptr;
  Knopf* KnopfZurück = nullptr;
};

}  // namespace tavorena
