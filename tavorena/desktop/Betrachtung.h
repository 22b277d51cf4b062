#pragma once

#include <QEventLoop>
#include <QObject>

class QWidget;

namespace tavorena {

/// Lets the user look at a picture, and at nothing else of the program, until he clicks into it or presses
/// Escape. The picture itself can be moved and zoomed with the mouse meanwhile.
class Betrachtung final : public QObject {
 public:
  explicit Betrachtung(QWidget& Angesehen) : Bild(Angesehen) {}

  void Abwarten();

 protected:
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

 private:
  [[nodiscard]] bool BildEreignis(QEvent& Ereignis);

  QWidget& Bild;
  QEventLoop Schleife;
};

}  // namespace tavorena
