#pragma once

#include <functional>
#include <string>

#include <QPageLayout>
#include <QString>

class QFormLayout;
class QPagedPaintDevice;
class QPainter;

namespace tavorena {

/// Sheets counted from 0, the last one included.
struct Blattbereich {
  int Von = 0, Bis = -1;

  [[nodiscard]] int Anzahl() const { return Bis - Von + 1; }
};

/// Sheets of one size for the preview, the printer and PDF.
class Druckquelle {
 public:
  virtual ~Druckquelle() = default;

  [[nodiscard]] virtual QString Fenstertitel() const = 0;
  [[nodiscard]] virtual int Hilfenummer() const = 0;
  /// How many sheets there are; 0: none, as Grund tells.
  [[nodiscard]] virtual int Blätter() const = 0;
  [[nodiscard]] virtual QString Grund() const { return {}; }
  /// What is told beside the number of sheets.
  [[nodiscard]] virtual QString Zusatz() const { return {}; }
  /// The name of the document.
  [[nodiscard]] virtual QString Titel() const = 0;
  [[nodiscard]] virtual QPageLayout Papier() const = 0;
  /// The preview begins with whole sheets; else with their full width.
  [[nodiscard]] virtual bool Übersicht() const = 0;
  /// Draws a sheet from its upper left corner on, 96 units to an inch.
  virtual void Zeichnen(QPainter& Maler, int Blatt) const = 0;
  /// Asks for a file, and before it replaces one, and writes sheets as PDF.
  /// @return 0; -1: not written; what failed was told
  [[nodiscard]] virtual int AlsPdf(Blattbereich Welche) const = 0;
  /// Adds the fields of what is printed; Geändert is to be called behind each change.
  virtual void FelderAnlegen(QFormLayout& /*Felder*/, const std::function<void()>& /*Geändert*/) {}
};

/// Draws one sheet after the other. Above half a second the status bar tells "Seite n von m", and the run can
/// be stopped.
/// @param[in] Zeichnen  as Druckquelle::Zeichnen
/// @return 0; -1 the device takes nothing; -2 stopped
[[nodiscard]] int BlätterMalen(QPagedPaintDevice& Auf, Blattbereich Welche,
                               const std::function<void(QPainter& Maler, int Blatt)>& Zeichnen);

}  // namespace tavorena
