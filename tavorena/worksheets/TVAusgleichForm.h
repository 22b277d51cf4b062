#pragma once

#include <optional>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/records/Ausgleichblock.h>
#include <tavorena/worksheets/Listenblatt.h>

namespace tavorena {

/// "Ausgleichende Gerade" and "Ausgleichender Kreis": the line or the circle that fits known points best. Its
/// two defining points can be stored. There is no batch block: a replay does not repeat it.
class TVAusgleichForm final : public Listenblatt {
 public:
  /// @param[in] Modus  'G' line, 'K' circle
  TVAusgleichForm(const Blattart& BlattArt, char Modus);

 protected:
  [[nodiscard]] Listenmangel Rechnen() override;
  void Zeilenergebnis(int z, std::vector<double>& Zellwerte) const override;
  void ZeigeBerechnung() override;
  [[nodiscard]] Listenakte Akte() const override;
  [[nodiscard]] int PunkteEintragen(Listenakte& A) override;
  void FelderLeeren() override;
  void GrafikLöschen() override { Bild.Löschen(); }
  void GeworfenesZeigen() override;

 private:
  /// A defining point: shown, and stored under the number that is typed.
  struct Bestimmungspunkt {
    Feld &Rechts, &Hoch, &Pnr, &Sym;
    Lage Ort;  // [m]
  };
  [[nodiscard]] Bestimmungspunkt PunktAnlegen(const char* Welcher, const char* Label, int Zeile);
  void Wortfeld(Feld& F);
  void Zeichnen();

  const bool Kreis;
  Gitter& AusgleichGitter;
  std::optional<Taste> Gittertaste;  // that the rows are at work on
  Bestimmungspunkt Anf, End;
  Feld* Radius = nullptr;      // of a circle
  Protausgleich Werte;         // as computed last, without numbers of its defining points
  std::vector<double> Linien;  // of the points along the line [m]
  Markierung Bild;
};

}  // namespace tavorena
