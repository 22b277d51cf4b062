#pragma once

#include <functional>
#include <tuple>
#include <utility>
#include <vector>

#include <QtTest>
#include <QtWidgets>

#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/shell/TVKernMDIForm.h>

// Sequences of keys as the handbook prints them, "Alt+R L Return 69,98 Return", played in the window.

namespace tavorena::test {

struct Tastendruck {
  QString Wort;  // that it comes from
  int Taste = 0;
  Qt::KeyboardModifiers Mit;
  QString Text;
  bool Zeilenende = false;  // the window gets time for what is on its way
};

// A key by the name that is printed. Text: what a keyboard sends with it
inline bool TasteVon(const QString& Name, Tastendruck& T) {
  static const QHash<QString, std::pair<Qt::Key, QString>> Namen{
      {"Return", {Qt::Key_Return, "\r"}},  {"Esc", {Qt::Key_Escape, "\x1b"}},
      {"Tab", {Qt::Key_Tab, "\t"}},        {"Pos1", {Qt::Key_Home, ""}},
      {"Ende", {Qt::Key_End, ""}},         {"Auf", {Qt::Key_Up, ""}},
      {"Ab", {Qt::Key_Down, ""}},          {"Links", {Qt::Key_Left, ""}},
      {"Rechts", {Qt::Key_Right, ""}},     {"Bild-auf", {Qt::Key_PageUp, ""}},
      {"Bild-ab", {Qt::Key_PageDown, ""}}, {"Entf", {Qt::Key_Delete, "\x7f"}},
      {"Rück", {Qt::Key_Backspace, "\b"}}, {"Leer", {Qt::Key_Space, " "}}};
  if (const auto Benannt = Namen.find(Name); Benannt != Namen.end()) {
    std::tie(T.Taste, T.Text) = *Benannt;
    return true;
  }
  static const QRegularExpression Funktionstaste("^F([1-9]|1[0-2])$");
  if (const auto F = Funktionstaste.match(Name); F.hasMatch()) {
    T.Taste = Qt::Key_F1 + F.captured(1).toInt() - 1;
    return true;
  }
  return false;
}

// The keys of one word, added to the others. @return false: it is none
inline bool WortLesen(const QString& Wort, std::vector<Tastendruck>& Tasten) {
  static const std::pair<QString, Qt::KeyboardModifier> Umschalter[] = {
      {"Strg+", Qt::ControlModifier}, {"Alt+", Qt::AltModifier}, {"Umschalt+", Qt::ShiftModifier}};
  Tastendruck T{Wort, 0, {}, {}};
  QString Rest = Wort;
  for (bool Weiter = true; std::exchange(Weiter, false);) {
    for (const auto& [Name, Art] : Umschalter) {
      if (!Rest.startsWith(Name)) continue;
      T.Mit |= Art;
      Rest.remove(0, Name.size());
      Weiter = true;
    }
  }
  if (!TasteVon(Rest, T)) {
    if (T.Mit == Qt::NoModifier) {
      for (const QChar z : Wort) Tasten.push_back({Wort, z.toUpper().unicode(), {}, QString(z)});
      return true;
    }
    if (Rest.size() != 1) return false;
    T.Taste = Rest[0].toUpper().unicode();
    T.Text = Rest.toLower();
  }
  if (T.Mit.testFlag(Qt::ControlModifier)) T.Text.clear();
  if (T.Taste == Qt::Key_Tab && T.Mit.testFlag(Qt::ShiftModifier)) T.Taste = Qt::Key_Backtab;
  Tasten.push_back(T);
  return true;
}

/// The keys of a printed sequence: names of keys, alone or behind "Strg+", "Alt+", "Umschalt+"; every other
/// word is typed letter by letter.
/// @return empty; else the word that is none of them
inline QString TastenfolgeLesen(const QString& Folge, std::vector<Tastendruck>& Tasten) {
  for (const QString& Zeile : Folge.split('\n')) {
    for (const QString& Wort : Zeile.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts)) {
      if (!WortLesen(Wort, Tasten)) return Wort;
    }
    if (!Tasten.empty()) Tasten.back().Zeilenende = true;
  }
  return {};
}

/// Plays keys into whatever has the focus, each when the window has come to rest: nothing was drawn, laid out
/// or handed over for a while, longer at the end of a line, and the dialog in front takes keys. Goes on
/// inside the loops of modal dialogs.
class Tastenspieler final : public QObject {
 public:
  explicit Tastenspieler(QWidget& Haupt) : Fenster(Haupt) {
    QObject::connect(&Takt, &QTimer::timeout, this, [this] { Nachsehen(); });
  }

  /// @param[in] Folge   as TastenfolgeLesen takes it
  /// @param[in] AmEnde  runs behind the last key, at rest, while dialogs that it led to are open
  /// @return empty; else what hindered it, which a dialog that stayed open does too
  QString Spielen(const QString& Folge, const std::function<void()>& AmEnde = {}) {
    Tasten.clear();
    if (const QString Wort = TastenfolgeLesen(Folge, Tasten); !Wort.isEmpty()) return "keine Taste: " + Wort;
    Danach = AmEnde;
    Nächste = 0;
    Geschlossen = 0;
    Fehler.clear();
    Seit.start();
    qApp->installEventFilter(this);
    Takt.start(5);
    Schleife.exec();
    Takt.stop();
    qApp->removeEventFilter(this);
    return Fehler;
  }

 protected:
  // A loop that waits in steps has events of its own, none of a window.
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override {
    if (Objekt->isWidgetType() && Ereignis->type() != QEvent::Timer) Ruhig = 0;
    return false;
  }

 private:
  static constexpr int Frist = 20'000;  // ms that a key may wait

  // A timer that is inside its own slot does not fire: the key is sent from the queue.
  void Nachsehen() {
    if (Gestellt) return;
    if (Seit.elapsed() > Frist) {
      Aufgeben();
    } else if (!InRuhe()) {
      return;
    }
    Gestellt = true;
    QMetaObject::invokeMethod(
        this, [this] { Weiter(); }, Qt::QueuedConnection);
  }

  bool InRuhe() {
    QWidget* const Vorn = VordererDialog();
    const bool Neu = std::exchange(Zuletzt, Vorn) != Vorn;
    const bool Popup = QApplication::activePopupWidget() != nullptr;
    // Nobody manages windows here: the one in front has to be made active.
    if (!Popup && (Neu || QApplication::activeWindow() == nullptr))
      (Vorn != nullptr ? *Vorn : Fenster).activateWindow();
    const bool Arbeitet = TVKernMDIForm::Fenster().IstBeschäftigt() &&
                          (Vorn == nullptr || Vorn->objectName() == "Druckvorschau");
    const bool Gesperrt = Vorn != nullptr && Vorn->findChild<QObject*>("Tastensperre") != nullptr;
    if (Arbeitet || Gesperrt || KnopfUnten() || QGuiApplication::focusWindow() == nullptr) Ruhig = 0;
    return ++Ruhig > (Nächste > 0 && Tasten[Nächste - 1].Zeilenende ? 30 : 3);
  }

  // One that a letter pressed acts when it comes up again.
  static bool KnopfUnten() {
    for (const QWidget* W : QApplication::allWidgets()) {
      const auto* Knopf = qobject_cast<const QAbstractButton*>(W);  // tool buttons may stay down
      if (Knopf != nullptr && Knopf->isDown() && qobject_cast<const QToolButton*>(W) == nullptr) return true;
    }
    return false;
  }

  void Weiter() {
    Gestellt = false;
    Ruhig = 0;
    Seit.restart();
    if (Nächste < Tasten.size()) return Senden(Tasten[Nächste++]);
    if (const auto Tun = std::exchange(Danach, {}); Tun) Tun();
    QWidget* const Vorn = VordererDialog();
    if (Vorn == nullptr) return Schleife.quit();
    if (Fehler.isEmpty()) Fehler = "offen blieb: " + Vorn->windowTitle();
    if (++Geschlossen > 20) qFatal("%s", qPrintable(Fehler));
    Vorn->close();
  }

  // Through the window, as a key of the system comes: shortcuts and menus look at it first.
  static void Senden(const Tastendruck& T) {
    const QPointer<QWindow> Ziel = QGuiApplication::focusWindow();
    qt_handleKeyEvent(Ziel, QEvent::KeyPress, T.Taste, T.Mit, T.Text);
    if (!Ziel.isNull()) qt_handleKeyEvent(Ziel, QEvent::KeyRelease, T.Taste, T.Mit, T.Text);
  }

  void Aufgeben() {
    const QString Bei = Nächste < Tasten.size() ? "vor " + Tasten[Nächste].Wort : "am Ende";
    const QString Grund = "keine Ruhe " + Bei + " (Taste " + QString::number(Nächste + 1) + ")";
    if (!Fehler.isEmpty()) qFatal("%s; %s", qPrintable(Fehler), qPrintable(Grund));
    Fehler = Grund;
    Danach = {};
    Nächste = Tasten.size();
  }

  QWidget& Fenster;
  QTimer Takt;
  QEventLoop Schleife;
  QElapsedTimer Seit;  // the last key
  std::vector<Tastendruck> Tasten;
  std::size_t Nächste = 0;
  std::function<void()> Danach;
  QString Fehler;
  const QWidget* Zuletzt = nullptr;
  int Ruhig = 0;  // beats since something happened
  int Geschlossen = 0;
  bool Gestellt = false;  // a key is in the queue
};

}  // namespace tavorena::test
