#pragma once

#include <QPointer>

#include <tavorena/desktop/Druckquelle.h>
#include <tavorena/graphics/Grafikseite.h>

class QComboBox;
class QLineEdit;

namespace tavorena {

inline constexpr int GrafDruckhilfe = 3120;  ///< help number

/// The sheets of the graphics view: what of it, on which paper, at which scale.
class Grafikdruck final : public Druckquelle {
 public:
  [[nodiscard]] QString Fenstertitel() const override { return "Grafik drucken"; }
  [[nodiscard]] int Hilfenummer() const override { return GrafDruckhilfe; }
  [[nodiscard]] int Blätter() const override { return Warum.empty() ? Plan.Seiten() : 0; }
  [[nodiscard]] QString Grund() const override { return QString::fromStdString(Warum); }
  [[nodiscard]] QString Zusatz() const override;
  [[nodiscard]] QString Titel() const override { return QString::fromStdString(Auftrag.Titel); }
  [[nodiscard]] QPageLayout Papier() const override;
  [[nodiscard]] bool Übersicht() const override { return true; }
  void Zeichnen(QPainter& Maler, int Blatt) const override;
  [[nodiscard]] int AlsPdf(Blattbereich Welche) const override;
  void FelderAnlegen(QFormLayout& Felder, const std::function<void()>& Geändert) override;

 private:
  void Planen();

  QPointer<QComboBox> GrafInhalt, GrafBlatt;
  QPointer<QLineEdit> GrafTitel, GrafMassstab;
  Seitenauftrag Auftrag;
  Seitenplan Plan;
  std::string Warum;  // there is nothing to print
};

}  // namespace tavorena
