#pragma once

#include <tavorena/core/Ports.h>

namespace tavorena {

class Hauptfenster;

/// What the program asks of the window system.
class PlattformQt : public Rückfragen,
                    public Anzeige,
                    public Ablauf,
                    public Umgebung,
                    public Leitungen,
                    public Druckwerk {
 public:
  explicit PlattformQt(Hauptfenster& Haupt) : Fenster(Haupt) {}

  int Meldung(const std::string& Text, Knöpfe Art, const std::string& Titel, int Vorgabe) override;
  void FormularZeigen(Formular& Form, bool Modal) override;
  void FüllendZeigen(Formular& Form) override;
  std::string DateiWählen(Dateiauftrag& Auftrag) override;
  void EreignisseAbarbeiten() override;
  void Warten(double Sekunden) override;
  void Beschäftigt(bool An) override;
  void StatusSetzen(Statusfeld Feld, const std::string& Text) override;
  void FenstertitelSetzen(const std::string& Titel) override;
  void HauptfensterGeändert() override;
  void ProtokollGeändert() override;
  void HandbuchZeigen(int Hilfenummer) override;
  void GrafikZeigen() override;
  void GrafikPunktZeigen(double Rechts, double Hoch) override;
  void GrafikMitDatei(bool Offen) override;
  void GrafikAnsehen() override;
  void HauptfensterGröße(int& Breite, int& Hoehe) override;
  void BildschirmGröße(int& Breite, int& Hoehe) override;
  int ProgrammStarten(const std::string& Programm, const std::string& Datei) override;
  int ProgrammAusführen(const std::string& Programm, const std::vector<std::string>& Worte,
                        std::string& Meldungen) override;
  std::string ProgrammOrdner() override;
  std::string Heimordner() override;
  std::string Dokumentordner() override;
  std::unique_ptr<Leitung> LeitungÖffnen(const std::string& Gerät, const std::string& Einstellungen) override;
  int Drucken(const Druckseiten& Seiten, const std::string& Titel, const std::string& Vorschlag) override;
  void ProgrammBeenden() override;
  bool StapelHält() override { return true; }

 private:
  Hauptfenster& Fenster;
};

}  // namespace tavorena
