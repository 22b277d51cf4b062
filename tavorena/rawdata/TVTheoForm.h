#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/forms/Formular.h>
#include <tavorena/rawdata/Messleitung.h>
#include <tavorena/rawdata/Messverteilung.h>
#include <tavorena/rawdata/TheoOptionen.h>

namespace tavorena {

/// File that stands in for an instrument where it exists.
extern std::string TheoEmulationsdatei;

/// Talks to a total station: each line that it sends goes into the raw-data file, and from there to the
/// worksheet that takes measurements.
class TVTheoForm final : public Formular {
 public:
  TVTheoForm();

 protected:
  void BeiÖffnen() override;
  bool DarfSchließen() override;
  void BeiSchließen() override;

 private:
  void AnschlussAnlegen();
  void AblageAnlegen();
  void DateiWählen();
  void Standard();
  void SettingsZeigen(const std::string& Settings);
  void Merken();
  void Drücken();
  void EmulationLesen();
  void Empfangen();
  void Verteilen(const std::vector<Antwortzeile>& Zeilen);
  void ZeileMelden(const Antwortzeile& Z);
  void ZustandZeigen();
  [[nodiscard]] std::string Settings() const;

  Auswahl *Port = nullptr, *Baud = nullptr, *Parität = nullptr, *Datenbits = nullptr, *Stopbits = nullptr;
  Auswahl *Reduktion = nullptr, *Emulation = nullptr;
  Feld *Datei = nullptr, *Parameter = nullptr;
  Beschriftung* Status = nullptr;
  Knopf* IO = nullptr;
  Messleitung Gerät;
  Messverteilung Verteilung;
  std::string Emuliert;                 // content of the file that stands in for the instrument
  std::optional<Zeilenleser> Emulator;  // reads it, while it is open
  bool Stop = false;                    // ends the receive loop
  bool Lauscht = false;                 // the loop runs
  bool Gewarnt = false;                 // of data that the instrument reduces
};

/// Shows the window of the instrument link, beside the worksheets.
void TheodolitZeigen();
/// Closes it with its line; the program ends. @return false: lines are in no file yet, and it stays open
bool TheodolitSchließen();

}  // namespace tavorena
