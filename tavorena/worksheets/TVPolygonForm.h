#pragma once

#include <array>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/worksheets/Listenblatt.h>
#include <tavorena/worksheets/Messfeld.h>
#include <tavorena/worksheets/Zugrechnung.h>

namespace tavorena {

/// VR 19.10 Polygonzüge: new points in a chain of breaking angles and distances between two known points,
/// with its misclosures. Without an end point the chain is free: points only.
class TVPolygonForm final : public Listenblatt {
 public:
  explicit TVPolygonForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] Listenmangel Rechnen() override;
  void Zeilenergebnis(int z, std::vector<double>& Zellwerte) const override;
  void ZeigeBerechnung() override;
  [[nodiscard]] Listenakte Akte() const override;
  [[nodiscard]] int PunkteEintragen(Listenakte& A) override;
  void FelderLeeren() override;
  [[nodiscard]] int BlockLesen() override;
  void PunkteNachsehen() override {
    for (Punktfeld* P : {&AnfZiel, &Anf, &End, &EndZiel}) P->Nachsehen();
  }
  void GrafikLöschen() override { Bild.Löschen(); }

 private:
  void ZielAnAus();

  Feld& ZugNr;
  Auswahl &OptionAnschluss, &OptionAbschluss;
  std::array<Auswahl*, 3> OptionKlasse;  // as Zugklasse
  Auswahl &OptionWinkel, &OptionMit, &OptionOhne;
  Punktfeld AnfZiel, Anf;
  Messfeld AnfWinkel, AnfStrecke;
  Gitter& PolygonGitter;
  Punktfeld End;
  Messfeld EndWinkel;
  Punktfeld EndZiel;
  std::vector<Feld*> Ergebnisse;
  Zugeingabe Eingabe;  // as it was computed last
  Zugpunkte Bekannte;
  Zugrechnung Rechnung;
  Markierung Bild;
};

}  // namespace tavorena
