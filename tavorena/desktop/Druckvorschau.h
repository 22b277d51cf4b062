#pragma once

#include <QDialog>

#include <tavorena/desktop/Druckquelle.h>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace tavorena {

class Blattansicht;

/// Everything that is printed is seen here first: sheets as they will be on paper, which of them are wanted,
/// and the ways to a printer and to PDF.
class Druckvorschau final : public QDialog {
 public:
  Druckvorschau(Druckquelle& Zeigt, QWidget* Eltern);
  ~Druckvorschau() override;

  /// The preview that is open; nullptr: none.
  [[nodiscard]] static Druckvorschau* Offene() { return Letzte; }
  /// Sheets go out: only "Stop" can be used.
  void Sperren(bool An);
  /// How far they are.
  void StandZeigen(const QString& Text);
  void reject() override;

 private:
  void FelderAnlegen();
  void KnöpfeAnlegen();
  void TastenAnlegen();
  void Auffrischen();
  void BereichNehmen(const QSpinBox& Geändert);
  void Drucken();
  [[nodiscard]] Blattbereich Bereich();

  inline static Druckvorschau* Letzte = nullptr;
  Druckvorschau* Davor;
  Druckquelle& Quelle;
  Blattansicht* Bild;
  QWidget* Felder;
  QComboBox* Druckerliste;
  QSpinBox *Blatt, *Von, *Bis;
  QLabel *Anzahl, *Stand;
  QPushButton *Druck, *Pdf, *Zu, *Stop;
  int Bisherige = 0;  // sheets
};

}  // namespace tavorena
