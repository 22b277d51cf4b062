#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <tavorena/desktop/Blattansicht.h>
#include <tavorena/desktop/Druckquelle.h>
#include <tavorena/desktop/Malflaeche.h>

namespace tavorena {
namespace {

constexpr double Steg = 12;  // around a sheet [pixels]
constexpr double Zoomstufe = 1.2, KleinsterZoom = 0.2, GrößterZoom = 5;
constexpr double LesbarerZoom = 1, BreitesterZoom = 1.5;  // of a text at the beginning

}  // namespace

Blattansicht::Blattansicht(const Druckquelle& Zeigt) : Quelle(Zeigt) {
  setObjectName("Seitenbild");
  setAccessibleName("Seiten");
  setAccessibleDescription("Die Seiten, wie sie gedruckt werden: Bild auf und Bild ab blättern");
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(360, 300);
  for (QScrollBar* Balken : {horizontalScrollBar(), verticalScrollBar()}) Balken->setSingleStep(40);
}

QSizeF Blattansicht::Papier() const { return Quelle.Papier().fullRect(QPageLayout::Inch).size() * Auflösung; }

double Blattansicht::Höhe() const { return Papier().height() * Zoom; }

// The upper edge of a sheet, from that of all [pixels].
double Blattansicht::Oben(int Welches) const { return Steg + Welches * (Höhe() + Steg); }

// The largest zoom at which a sheet, or its width, is seen; a text can be read in any case.
double Blattansicht::Passend() const {
  const QSizeF Platz = maximumViewportSize() - QSizeF(2 * Steg, 2 * Steg);
  const double Breite = (Platz.width() - verticalScrollBar()->sizeHint().width()) / Papier().width();
  return Quelle.Übersicht() ? std::min(Breite, Platz.height() / Papier().height())
                            : std::clamp(Breite, LesbarerZoom, BreitesterZoom);
}

void Blattansicht::Auffrischen() {
  if (Eingepaßt) Zoom = std::clamp(Passend(), KleinsterZoom, GrößterZoom);
  BalkenStellen();
  BlattZeigen(Aktuell);
  viewport()->update();
}

void Blattansicht::BalkenStellen() {
  const QScopedValueRollback Sprung(Springt, true);
  const QSize Sicht = viewport()->size();
  const double Breite = Papier().width() * Zoom + 2 * Steg, Alle = Oben(Quelle.Blätter());
  horizontalScrollBar()->setPageStep(Sicht.width());
  horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(std::ceil(Breite)) - Sicht.width()));
  verticalScrollBar()->setPageStep(Sicht.height());
  verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(std::ceil(Alle)) - Sicht.height()));
}

void Blattansicht::AktuellSetzen(int Neues) {
  Neues = std::clamp(Neues, 0, std::max(Quelle.Blätter() - 1, 0));
  if (Neues == Aktuell) return;
  Aktuell = Neues;
  if (BeiBlatt) BeiBlatt();
}

void Blattansicht::BlattZeigen(int Neues) {
  AktuellSetzen(Neues);
  const QScopedValueRollback Sprung(Springt, true);
  verticalScrollBar()->setValue(static_cast<int>(Oben(Aktuell) - Steg));
}

void Blattansicht::Blättern(bool Vor) {
  const int Sicht = viewport()->height(), Schritt = Sicht * 9 / 10;
  const double Fehlt = Vor ? Oben(Aktuell) + Höhe() + Steg - (verticalScrollBar()->value() + Sicht)
                           : verticalScrollBar()->value() - (Oben(Aktuell) - Steg);
  const auto Rollen = [this](double Weite) {
    const QScopedValueRollback Sprung(Springt, true);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(std::ceil(Weite)));
  };
  if (Fehlt >= 1) return Rollen(Vor ? std::min<double>(Schritt, Fehlt) : -std::min<double>(Schritt, Fehlt));
  if (Vor) return Aktuell + 1 < Quelle.Blätter() ? BlattZeigen(Aktuell + 1) : void();
  if (Aktuell == 0) return;
  BlattZeigen(Aktuell - 1);
  Rollen(std::max(0.0, Höhe() + 2 * Steg - Sicht));
}

void Blattansicht::Ende() {
  BlattZeigen(Quelle.Blätter() - 1);
  const QScopedValueRollback Sprung(Springt, true);
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void Blattansicht::Zoomen(bool Größer) {
  Eingepaßt = false;
  ZoomSetzen(Größer ? Zoom * Zoomstufe : Zoom / Zoomstufe);
}

void Blattansicht::Einpassen() {
  Eingepaßt = true;
  ZoomSetzen(Passend());
}

// What was in the middle stays there.
void Blattansicht::ZoomSetzen(double Neuer) {
  const double Mitte = verticalScrollBar()->value() + viewport()->height() / 2.0 - Oben(Aktuell);
  const double Vorher = std::exchange(Zoom, std::clamp(Neuer, KleinsterZoom, GrößterZoom));
  BalkenStellen();
  const QScopedValueRollback Sprung(Springt, true);
  verticalScrollBar()->setValue(
      static_cast<int>(Oben(Aktuell) + Mitte * Zoom / Vorher - viewport()->height() / 2.0));
  horizontalScrollBar()->setValue(horizontalScrollBar()->maximum() / 2);
  viewport()->update();
}

void Blattansicht::resizeEvent(QResizeEvent* /*Ereignis*/) { Auffrischen(); }

void Blattansicht::scrollContentsBy(int Dx, int Dy) {
  viewport()->scroll(Dx, Dy);
  if (!Springt)
    AktuellSetzen(
        static_cast<int>((verticalScrollBar()->value() + viewport()->height() / 3.0) / (Höhe() + Steg)));
}

void Blattansicht::wheelEvent(QWheelEvent* Ereignis) {
  if (!Ereignis->modifiers().testFlag(Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(Ereignis);
  if (Ereignis->angleDelta().y() != 0) Zoomen(Ereignis->angleDelta().y() > 0);
}

void Blattansicht::paintEvent(QPaintEvent* Ereignis) {
  QPainter Maler(viewport());
  Maler.fillRect(Ereignis->rect(), palette().color(QPalette::Window).darker(115));
  if (Quelle.Blätter() == 0)
    return Maler.drawText(QRectF(viewport()->rect()).adjusted(Steg, Steg, -Steg, -Steg),
                          Qt::AlignCenter | Qt::TextWordWrap, Quelle.Grund());
  const QSizeF Blattgröße = Papier() * Zoom;
  const double Links = std::max(Steg, (viewport()->width() - Blattgröße.width()) / 2);
  for (int i = 0; i < Quelle.Blätter(); ++i) {
    const QRectF Rand(std::round(Links - horizontalScrollBar()->value()),
                      std::round(Oben(i) - verticalScrollBar()->value()), std::round(Blattgröße.width()),
                      std::round(Blattgröße.height()));
    if (Rand.top() > Ereignis->rect().bottom()) break;
    if (!Rand.intersects(Ereignis->rect())) continue;
    Maler.save();
    Maler.fillRect(Rand, Qt::white);
    Maler.translate(Rand.topLeft());
    Maler.scale(Zoom, Zoom);
    Quelle.Zeichnen(Maler, i);
    Maler.restore();
  }
}

}  // namespace tavorena
