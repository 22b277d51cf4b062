#pragma once

#include <QDockWidget>
#include <QPointer>

class QMainWindow;

namespace tavorena {

class Formular;
class FormularAnsicht;

/// A form that stands beside the worksheets, at the side of the main window. F7 leads into it and back, F9
/// presses its first button from anywhere. Closing it asks the form first.
class Nebenfenster final : public QDockWidget {
 public:
  Nebenfenster(Formular& Gezeigt, QMainWindow& Haupt);

  /// @param[in] MitFokus  nobody else has the keys
  void Öffnen(bool MitFokus);
  [[nodiscard]] static QList<Nebenfenster*> Offene(const QWidget& Haupt);

 protected:
  void closeEvent(QCloseEvent* Ereignis) override;

 private:
  void Löschen();
  void FokusTauschen();
  void Drücken();

  Formular& Form;
  FormularAnsicht* Ansicht;
  QPointer<QWidget> Vorheriger;  // had the focus before
};

}  // namespace tavorena
