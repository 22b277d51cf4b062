#pragma once

#include <QObject>
#include <QPointer>

class QDialog;

namespace tavorena {

/// Keeps the user in a dialog that takes points from the graphics view, as a modal one does, but lets him use
/// the view: it can be moved and zoomed, and a click gives the dialog its point. Such dialogs may stand
/// before each other; only the last one can be used.
class Dialogvorrang final : public QObject {
 public:
  /// @param[in] Sicht  the view, inside the main window
  /// @param[in] Bild   its picture, which F6 leads into
  Dialogvorrang(QDialog& Neuer, QWidget& Sicht, QWidget& Bild);
  ~Dialogvorrang() override;

  /// The dialog that can be used now; nullptr if there is none.
  [[nodiscard]] static QDialog* Vorderster();

 protected:
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;

 private:
  [[nodiscard]] bool Frei(const QWidget* W) const;
  [[nodiscard]] bool Taste(const QEvent& Ereignis);
  void Holen();

  inline static Dialogvorrang* Letzter = nullptr;
  Dialogvorrang* Davor;
  QDialog& Dialog;
  QWidget &Ansicht, &Gemälde;
  QPointer<QWidget> Fokus;  // of the main window, when the dialog came
};

/// The dialog before everything else, modal or not; nullptr if there is none.
[[nodiscard]] QWidget* VordererDialog();

}  // namespace tavorena
