#pragma once

#include <string>

#include <QDialog>

#include <tavorena/graphics/Grafikseite.h>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tavorena {

inline constexpr int GrafDruckhilfe = 3120;  ///< help number

/// A sheet of a job as it will look on paper, or why there is none.
class Seitenbild final : public QWidget {
 public:
  explicit Seitenbild(QWidget* Eltern);
  void Zeigen(const Seitenauftrag& Neuer, const Seitenplan& NeuerPlan, int NeueSeite);
  void Absagen(const QString& NeuerGrund);

 protected:
  void paintEvent(QPaintEvent* Ereignis) override;

 private:
  Seitenauftrag Auftrag;
  Seitenplan Plan;
  QString Grund;
  int Seite = 0;
};

/// The command "Drucken ...": what is printed, on which paper, at which scale; with the sheets as they will
/// be.
class Druckvorschau final : public QDialog {
 public:
  explicit Druckvorschau(QWidget* Eltern);

 private:
  void Vorbelegen();
  void Anordnen();
  void Auffrischen();
  void Drucken();
  void Speichern();
  [[nodiscard]] Seitenauftrag Auftrag() const;

  QComboBox *GrafInhalt, *GrafBlatt, *GrafDrucker;
  QLineEdit *GrafTitel, *GrafMassstab;
  QSpinBox* GrafSeite;
  QLabel* Anzahl;
  QPushButton *GrafDruck, *GrafPdf;
  Seitenbild* Bild;
  Seitenplan Plan;
};

}  // namespace tavorena
