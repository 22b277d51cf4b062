#pragma once

#include <tavorena/core/Plattform.h>

namespace tavorena {

class Hauptfenster;

/// What the program asks of the window system.
class PlattformQt : public Plattform {
 public:
  explicit PlattformQt(Hauptfenster& Haupt) : Fenster(Haupt) {}

  int Meldung(const std::string& Text, Knoepfe Art, const std::string& Titel) override;
  void FormularZeigen(Formular& Form, bool Modal) override;
  std::string DateiWaehlen(Dateiauftrag& Auftrag) override;
  void EreignisseAbarbeiten() override;
  void Beschaeftigt(bool An) override;
  void StatusSetzen(Statusfeld Feld, const std::string& Text) override;
  void FenstertitelSetzen(const std::string& Titel) override;
  void HauptfensterGeaendert() override;
  void ProtokollGeaendert() override;
  void HauptfensterGroesse(int& Breite, int& Hoehe) override;
  void BildschirmGroesse(int& Breite, int& Hoehe) override;
  int ProgrammStarten(const std::string& Programm, const std::string& Datei) override;
  std::string ProgrammOrdner() override;
  std::string Heimordner() override;
  std::string Dokumentordner() override;
  void ProgrammBeenden() override;
  bool StapelHaelt() override { return true; }

 private:
  Hauptfenster& Fenster;
};

}  // namespace tavorena
