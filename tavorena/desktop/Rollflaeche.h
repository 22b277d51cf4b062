#pragma once

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>

namespace tavorena {

/// What is larger than the screen scrolls, and what has the focus is always to be seen.
class Rollfläche final : public QScrollArea {
 public:
  /// @param[in] MitInhalt  never smaller than the content, as far as the screen has room for it
  Rollfläche(QWidget* Inhalt, bool MitInhalt) : Wächst(MitInhalt) {
    setWidget(Inhalt);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    // The window below it is drawn, and knows from that when it is to be seen.
    for (QWidget* W : {Inhalt, viewport()}) W->setAutoFillBackground(false);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* Neu) {
      if (Neu != nullptr && widget() != nullptr && widget()->isAncestorOf(Neu))
        ensureWidgetVisible(Neu, 10, 10);
    });
  }

  [[nodiscard]] QSize sizeHint() const override { return Begrenzt(widget()->sizeHint()); }
  [[nodiscard]] QSize minimumSizeHint() const override {
    return Wächst ? Begrenzt(widget()->minimumSizeHint()) : QScrollArea::minimumSizeHint();
  }

 protected:
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override {
    const bool Erledigt = QScrollArea::eventFilter(Objekt, Ereignis);
    if (Objekt == widget() && Ereignis->type() == QEvent::LayoutRequest) updateGeometry();
    return Erledigt;
  }

 private:
  // Beside a bar along one side the other one still fits.
  [[nodiscard]] QSize Begrenzt(QSize Wunsch) const {
    const QSize Platz = screen()->availableSize() - QSize(20, 60);  // with the frame of the window
    const int Balken = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize Mehr(Wunsch.height() > Platz.height() ? Balken : 0,
                     Wunsch.width() > Platz.width() ? Balken : 0);
    return (Wunsch + Mehr).boundedTo(Platz);
  }

  bool Wächst;
};

}  // namespace tavorena
