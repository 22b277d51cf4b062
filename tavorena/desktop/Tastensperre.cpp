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

Tastensperre::Tastensperre(QWidget& Dialog, bool NurDarin)
    : QObject(&Dialog), Fenster(Dialog), Darin(NurDarin) {
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
      if (Darin && !Fenster.isAncestorOf(qobject_cast<QWidget*>(Objekt))) return false;
      QApplication::beep();
      return true;
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
      return !Darin;
    default:
      return false;
  }
}

}  // namespace tavorena
