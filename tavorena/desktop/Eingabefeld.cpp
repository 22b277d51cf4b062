#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Eingabefeld.h>

namespace tavorena {

Eingabefeld::Eingabefeld(QWidget* Eltern) : QLineEdit(Eltern) {}

void Eingabefeld::TextZeigen(const QString& Ganz, bool Kürzen) {
  constexpr int Rand = 12;  // frame, padding and cursor [pixels]
  const QString Kurz = Kürzen ? fontMetrics().elidedText(Ganz, Qt::ElideRight, width() - Rand) : Ganz;
  if (Kürzen) setToolTip(Kurz != Ganz ? Ganz : "");
  if (text() != Kurz) setText(Kurz);
}

QString Eingabefeld::Gekürztes() const {
  return text() != toolTip() && text().endsWith(u'…') ? toolTip() : QString();
}

QString Eingabefeld::Auswahltext() const {
  return hasSelectedText() && !Gekürztes().isEmpty() ? Gekürztes() : selectedText();
}

void Eingabefeld::ErgebnisZeigen(bool An) {
  if (isReadOnly() == An) return;
  setReadOnly(An);
  setFocusPolicy(An ? Qt::NoFocus : Qt::StrongFocus);
  NeuAnziehen();
}

void Eingabefeld::FehlerhaftZeigen(bool An) {
  if (property("fehlerhaft").toBool() == An) return;
  setProperty("fehlerhaft", An);
  NeuAnziehen();
}

// The style sheet looks at properties only then.
void Eingabefeld::NeuAnziehen() {
  style()->unpolish(this);
  style()->polish(this);
}

// The sign says what the colour says; it stands where the text ends last.
void Eingabefeld::paintEvent(QPaintEvent* Ereignis) {
  QLineEdit::paintEvent(Ereignis);
  if (!property("fehlerhaft").toBool()) return;
  QPainter Maler(this);
  QFont Fett = font();
  Fett.setBold(true);
  Maler.setFont(Fett);
  Maler.setPen(Warnfarbe());
  const auto Seite = alignment().testFlag(Qt::AlignRight) ? Qt::AlignLeft : Qt::AlignRight;
  Maler.drawText(rect().adjusted(3, 0, -3, 0), static_cast<int>(Seite | Qt::AlignVCenter), "!");
}

void Eingabefeld::keyPressEvent(QKeyEvent* Ereignis) {
  if (BeiTaste && BeiTaste(*Ereignis)) {
    Ereignis->accept();
  } else {
    QLineEdit::keyPressEvent(Ereignis);
  }
}

void Eingabefeld::focusInEvent(QFocusEvent* Ereignis) {
  QLineEdit::focusInEvent(Ereignis);
  // The whole text is selected, so that typing replaces it. A click places the cursor first.
  if (Ereignis->reason() == Qt::MouseFocusReason) {
    QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
  } else if (Ereignis->reason() != Qt::PopupFocusReason &&
             Ereignis->reason() != Qt::ActiveWindowFocusReason) {
    selectAll();
  }
  if (BeiFokus) BeiFokus();
}

// What was typed before the field was left is not to be undone any more.
void Eingabefeld::focusOutEvent(QFocusEvent* Ereignis) {
  QLineEdit::focusOutEvent(Ereignis);
  const bool Kommtwieder =
      Ereignis->reason() == Qt::PopupFocusReason || Ereignis->reason() == Qt::ActiveWindowFocusReason;
  if (!Kommtwieder && isUndoAvailable()) setText(text());
}

bool Eingabefeld::focusNextPrevChild(bool Vor) {
  return (BeiTab && BeiTab(Vor)) || QLineEdit::focusNextPrevChild(Vor);
}

}  // namespace tavorena
