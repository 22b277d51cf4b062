#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <tavorena/desktop/Bildkacheln.h>

class QAction;
class QScrollBar;
class QToolBar;

namespace tavorena {

class Fensterplatz;

inline constexpr int Grafikhilfe = 3100;  ///< help number of the view and of what has none of its own

/// The picture of the graphics view, from edge to edge. It shows the model and hands the mouse on; a click
/// never takes the focus from the field that waits for a point.
class GrafikBild final : public QWidget {
 public:
  explicit GrafikBild(QWidget* Eltern);

  /// A point of the table was clicked while nothing is drawn.
  std::function<void(const std::string& Pnr)> BeiPunkt;
  std::function<void()> BeiMenü;  ///< the context menu is asked for
  std::function<void()> BeiEnde;  ///< the rubber box was used up

  /// The next left drag spans a rubber box.
  void GummiboxSetzen(bool An);
  [[nodiscard]] bool Gummibox() const { return MitGummibox; }
  /// Elements or the palette changed: in a region, or everywhere.
  void Veralten(const std::optional<Grafikregion>& Wo);
  void TabelleGeändert();
  /// Shows a part of the picture anew with what is drawn of it.
  void SpäterMalen(const QRect& Wo);

 protected:
  void paintEvent(QPaintEvent* Ereignis) override;
  void resizeEvent(QResizeEvent* Ereignis) override;
  void changeEvent(QEvent* Ereignis) override;
  bool event(QEvent* Ereignis) override;
  void mousePressEvent(QMouseEvent* Ereignis) override;
  void mouseMoveEvent(QMouseEvent* Ereignis) override;
  void mouseReleaseEvent(QMouseEvent* Ereignis) override;
  void mouseDoubleClickEvent(QMouseEvent* Ereignis) override;
  void wheelEvent(QWheelEvent* Ereignis) override;
  void keyPressEvent(QKeyEvent* Ereignis) override;
  void leaveEvent(QEvent* Ereignis) override;

 private:
  enum class Zug { Keiner, Klick, Kasten, Schieben };

  void Klicken(QPointF Stelle);
  [[nodiscard]] bool TippZeigen(QPoint Stelle, QPoint Global);

  Bildkacheln Kacheln;
  QTimer Maluhr;  // of the next picture while something long runs
  bool MitGummibox = false;
  Zug Gezogen = Zug::Keiner;
  QPointF Anfang, Zuletzt;
};

/// The graphics view with its tool bar and scroll bars: what is called TVKernGrafikform.
class GrafikAnsicht final : public QWidget {
 public:
  explicit GrafikAnsicht(QWidget* Eltern);
  ~GrafikAnsicht() override;

  [[nodiscard]] GrafikBild& Bild() { return *Gemälde; }
  /// Takes over what the table became, and fits the view to the first point of an empty one.
  void Nachsehen();
  /// @{
  /// The choices of what is shown, as the last run left them.
  void WahlLesen(const Fensterplatz& Platz);
  void WahlSchreiben(Fensterplatz& Platz);
  /// @}
  /// Escape: leaves a drawing command or the rubber box. @return whether there was one
  [[nodiscard]] bool Verlassen();

 protected:
  void showEvent(QShowEvent* Ereignis) override;
  void hideEvent(QHideEvent* Ereignis) override;

 private:
  void BefehleAnlegen();
  static QAction* Befehl(QToolBar& In, const char* Name, const char* Text, const char* Zeichen,
                         std::function<void()> Tun, int Hilfe = Grafikhilfe);
  void BalkenStellen();
  void BalkenGerückt();

  GrafikBild* Gemälde;
  QToolBar *Leiste, *Zeichenleiste;
  QScrollBar *GrafikHScroll, *GrafikVScroll;
  QAction* Box = nullptr;
  std::vector<std::pair<const char*, bool*>> Wahlen;  // the actions that switch what is shown
  QTimer Balkenuhr;                                   // the bars follow once, however much changes at a time
  std::uint64_t Stand = 0;
  bool WarLeer = true;
  bool Stellt = false;  // the bars follow the window, and not the other way round
};

}  // namespace tavorena
