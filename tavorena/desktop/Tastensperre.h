#pragma once

#include <QObject>

class QWidget;

namespace tavorena {

/// Keeps keys that were typed ahead out of a dialog that nobody asked for: until the dialog was drawn, and
/// for a short time after, every key is dropped with a beep. It belongs to its dialog and goes by itself. Of
/// a form in the work area, NurDarin, it is the keys of the form alone: menus and shortcuts are meant.
class Tastensperre final : public QObject {
 public:
  explicit Tastensperre(QWidget& Dialog, bool NurDarin = false);

 protected:
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

 private:
  QWidget& Fenster;
  const bool Darin;
  bool Gezeichnet = false;
};

}  // namespace tavorena
