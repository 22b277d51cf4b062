#pragma once

#include <functional>

#include <QAbstractScrollArea>

namespace tavorena {

class Druckquelle;

/// Sheets of paper one below the other, as they will be printed. Page up and down lead over each sheet and
/// then to the next one, the arrows scroll.
class Blattansicht final : public QAbstractScrollArea {
 public:
  explicit Blattansicht(const Druckquelle& Zeigt);

  /// The sheets became other ones, or none.
  void Auffrischen();
  /// The sheet that is looked at, counted from 0.
  [[nodiscard]] int Blatt() const { return Aktuell; }
  /// Brings the upper edge of a sheet into view.
  void BlattZeigen(int Neues);
  /// A step of reading: down the sheet, then to the next one; or the same upwards.
  void Blättern(bool Vor);
  void Anfang() { BlattZeigen(0); }
  void Ende();
  /// Larger or smaller by a step; the place that is looked at stays.
  void Zoomen(bool Größer);
  /// As large as at the beginning, from now on also when the window changes.
  void Einpassen();

  std::function<void()> BeiBlatt;  ///< another sheet is looked at

 protected:
  void paintEvent(QPaintEvent* Ereignis) override;
  void resizeEvent(QResizeEvent* Ereignis) override;
  void scrollContentsBy(int Dx, int Dy) override;
  void wheelEvent(QWheelEvent* Ereignis) override;

 private:
  [[nodiscard]] QSizeF Papier() const;
  [[nodiscard]] double Höhe() const;
  [[nodiscard]] double Oben(int Welches) const;
  [[nodiscard]] double Passend() const;
  void ZoomSetzen(double Neuer);
  void BalkenStellen();
  void AktuellSetzen(int Neues);

  const Druckquelle& Quelle;
  double Zoom = 1;  // pixels to a unit of a 96th inch
  int Aktuell = 0;
  bool Eingepaßt = true;
  bool Springt = false;  // the bar is set to a sheet, and does not tell which
};

}  // namespace tavorena
