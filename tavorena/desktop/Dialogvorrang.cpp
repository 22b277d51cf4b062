#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QTimer>

#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/graphics/Grafikfenster.h>

namespace tavorena {

Dialogvorrang::Dialogvorrang(QDialog& Neuer, QWidget& Sicht, QWidget& Bild)
    : Davor(Letzter), Dialog(Neuer), Ansicht(Sicht), Gemälde(Bild), Fokus(Sicht.window()->focusWidget()) {
  Letzter = this;
  qApp->installEventFilter(this);
}

Dialogvorrang::~Dialogvorrang() {
  Letzter = Davor;
  QWidget* const Haupt = Ansicht.window();
  if (Haupt->focusWidget() == &Gemälde && !Fokus.isNull()) Fokus->setFocus();
  (Davor != nullptr ? &Davor->Dialog : Haupt)->activateWindow();
}

QDialog* Dialogvorrang::Vorderster() { return Letzter != nullptr ? &Letzter->Dialog : nullptr; }

// Can be used: the dialog and what it opens, the view, and what is no part of the program's windows.
bool Dialogvorrang::Frei(const QWidget* W) const {
  const QWidget* const Haupt = Ansicht.window();
  for (; W != nullptr; W = W->parentWidget()) {
    if (W == &Dialog || W == &Ansicht || (W->isWindow() && W->isModal())) return true;
    if (W == Haupt) return false;
  }
  return true;
}

void Dialogvorrang::Holen() {
  if (QApplication::activeModalWidget() != nullptr) return;
  Dialog.raise();
  Dialog.activateWindow();
}

// The keys of the view, which the main window has where it is active.
bool Dialogvorrang::Taste(const QEvent& Ereignis) {
  if (QApplication::activeModalWidget() != nullptr || !Gemälde.isVisible()) return false;
  const auto& T = static_cast<const QKeyEvent&>(Ereignis);
  if (T.key() == Qt::Key_F6) {
    if (Gemälde.hasFocus()) return Holen(), true;
    Gemälde.setFocus();
    Gemälde.window()->activateWindow();
    return true;
  }
  if (!T.modifiers().testFlag(Qt::ControlModifier)) return false;
  if (T.key() == Qt::Key_Plus) return GrafZoomin(), true;
  if (T.key() == Qt::Key_Minus) return GrafZoomout(), true;
  if (T.key() == Qt::Key_0) return GrafikZoomAnpassen(), true;
  return false;
}

bool Dialogvorrang::eventFilter(QObject* Objekt, QEvent* Ereignis) {
  auto* const W = qobject_cast<QWidget*>(Objekt);  // the windows of the system only hand on what they get
  if (Letzter != this || W == nullptr) return false;
  switch (Ereignis->type()) {
    case QEvent::KeyPress:
      return Taste(*Ereignis) || !Frei(W);
    case QEvent::ShortcutOverride:
      if (W->window() != Ansicht.window()) return false;
      Ereignis->accept();  // accepted, it is no shortcut of the main window
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      if (Frei(W)) return false;
      QApplication::beep();
      Holen();
      return true;
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
      return !Frei(W);
    case QEvent::Close:
      if (Frei(W) || !W->isWindow()) return false;
      Ereignis->ignore();
      return true;
    case QEvent::WindowActivate:
      // A click into the view activates its window: the dialog keeps the keys.
      if (W != Ansicht.window() || W->focusWidget() == &Gemälde) return false;
      QTimer::singleShot(0, this, &Dialogvorrang::Holen);
      return false;
    default:
      return false;
  }
}

QWidget* VordererDialog() {
  QWidget* const Modal = QApplication::activeModalWidget();
  return Modal != nullptr ? Modal : Dialogvorrang::Vorderster();
}

}  // namespace tavorena
