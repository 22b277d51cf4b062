#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

#include <tavorena/desktop/Betrachtung.h>

namespace tavorena {

void Betrachtung::Abwarten() {
  qApp->installEventFilter(this);
  Schleife.exec();
  qApp->removeEventFilter(this);
}

// The left button ends it, the middle one moves the picture. @return true: the event is done with
bool Betrachtung::BildEreignis(QEvent& Ereignis) {
  switch (Ereignis.type()) {
    case QEvent::Hide:
      Schleife.quit();
      return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return static_cast<const QMouseEvent&>(Ereignis).button() != Qt::MiddleButton;
    case QEvent::MouseButtonRelease: {
      const Qt::MouseButton Knopf = static_cast<const QMouseEvent&>(Ereignis).button();
      if (Knopf == Qt::LeftButton) Schleife.quit();
      return Knopf != Qt::MiddleButton;
    }
    default:
      return false;
  }
}

bool Betrachtung::eventFilter(QObject* Objekt, QEvent* Ereignis) {
  switch (Ereignis->type()) {
    case QEvent::KeyPress:
      if (static_cast<const QKeyEvent&>(*Ereignis).key() == Qt::Key_Escape) Schleife.quit();
      return true;
    case QEvent::ShortcutOverride:  // accepted, it is no shortcut
      Ereignis->accept();
      return true;
    case QEvent::Close:
      Ereignis->ignore();
      return true;
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ContextMenu:
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::Hide:
      if (Objekt == &Bild) return BildEreignis(*Ereignis);
      // The window of the system only hands on what it gets.
      return Ereignis->type() != QEvent::Hide && Objekt->isWidgetType();
    default:
      return false;
  }
}

}  // namespace tavorena
