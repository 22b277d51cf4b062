#include <utility>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <tavorena/desktop/Tastensperre.h>

namespace tavorena {
namespace {

constexpr int Frist = 300;  // ms

}  // namespace

Tastensperre::Tastensperre(QWidget& Dialog) : QObject(&Dialog), Fenster(Dialog) {
  setObjectName("Tastensperre");
  qApp->installEventFilter(this);
}

bool Tastensperre::eventFilter(QObject* Objekt, QEvent* Ereignis) {
  switch (Ereignis->type()) {
    case QEvent::Paint:
      if (Objekt == &Fenster && !std::exchange(Gezeichnet, true))
        QTimer::singleShot(Frist, this, &QObject::deleteLater);
      return false;
    case QEvent::KeyPress:
      QApplication::beep();
      return true;
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
      return true;
    default:
      return false;
  }
}

}  // namespace tavorena
