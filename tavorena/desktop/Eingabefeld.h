#pragma once

#include <functional>

#include <QLineEdit>

namespace tavorena {

/// A line of text that hands the keys of the trade to whoever owns it before it takes them itself.
class Eingabefeld final : public QLineEdit {
 public:
  explicit Eingabefeld(QWidget* Eltern = nullptr);

  std::function<bool(QKeyEvent&)> BeiTaste;  ///< true: the key is done with
  std::function<void()> BeiFokus;
  std::function<bool(bool Vor)> BeiTab;  ///< true: the focus was moved

  /// Shows a text; one that is too long for a result ends with "…", and the tool tip has all of it.
  void TextZeigen(const QString& Ganz, bool Kürzen);
  /// The marked text; the whole one of a result that is shown in part.
  [[nodiscard]] QString Auswahltext() const;
  /// The whole of a result that is shown in part; else empty.
  [[nodiscard]] QString Gekürztes() const;

  /// A result: shown flat, never typed into.
  void ErgebnisZeigen(bool An);
  /// The value failed or exceeds its limit: shown by colour and a sign.
  void FehlerhaftZeigen(bool An);

 protected:
  void paintEvent(QPaintEvent* Ereignis) override;
  void keyPressEvent(QKeyEvent* Ereignis) override;
  void focusInEvent(QFocusEvent* Ereignis) override;
  void focusOutEvent(QFocusEvent* Ereignis) override;
  bool focusNextPrevChild(bool Vor) override;

 private:
  void NeuAnziehen();
};

}  // namespace tavorena
