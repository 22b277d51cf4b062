#pragma once

#include <vector>

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/rawdata/Nivrechnung.h>
#include <tavorena/worksheets/Listenblatt.h>

namespace tavorena {

/// VR NI.00 Nivellement: the field book of a level line by line, heights with their closing errors and
/// tolerances. Known heights come from the table, from a list of heights, or are typed.
class TVNivForm final : public Listenblatt {
 public:
  explicit TVNivForm(const Blattart& BlattArt);

 protected:
  [[nodiscard]] Listenmangel Rechnen() override;
  void Zeilenergebnis(int z, std::vector<double>& Werte) const override;
  void ZeigeBerechnung() override;
  [[nodiscard]] Listenakte Akte() const override;
  void FelderLeeren() override;
  [[nodiscard]] int BlockLesen() override;
  [[nodiscard]] double VorgabeFür(const std::string& Pnr, bool Verlangt) override;
  void GrafikLöschen() override {}
  bool Zurücknehmen() override;

 private:
  void HöhendateiWählen();
  [[nodiscard]] bool HöhendateiLesen();
  void AusDatei();
  void Übernehmen();
  void InTabelle();
  void InHöhenliste();
  [[nodiscard]] int Füllen(Niveingabe E);
  [[nodiscard]] bool Auffällig(int z, int s) const;

  Feld& HöhenDatei;
  std::string HöhenGelesen;       // the file that was read; "": none
  std::vector<Höhenpunkt> Höhen;  // its points
  Auswahl& Klasse;
  Gitter& NivGitter;
  std::vector<Feld*> Ergebnisse;
  Niveingabe Eingabe;  // as it was computed last
  Nivrechnung Rechnung;
  Rücknahme Übernommen;  // heights of the table
};

}  // namespace tavorena
