#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <tavorena/core/Ports.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/shell/Menuebaum.h>

class QAction;
class QDockWidget;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QPlainTextEdit;
class QScrollArea;

namespace tavorena {

class Formular;
class FormularAnsicht;
class GrafikAnsicht;

/// The main window: menus, tool bar, status bar, the worksheets and the protocol window. What can be used
/// and what it does stands in TVKernMDIForm.
class Hauptfenster final : public QMainWindow {
 public:
  Hauptfenster();

  /// Takes over place, size and state of the last run.
  void PlatzLesen();
  /// Takes over menus, tool bar and protocol window.
  void Auffrischen();
  void BlattZeigen(Formular& Form);
  /// Shows a form beside the worksheets, at the side of the window, where it leaves them the focus.
  void NebenherZeigen(Formular& Form);
  /// Fills the work area with a form until it is closed; one that is there is opened again.
  void FüllendZeigen(Formular& Form);
  /// A form is on its way out: what it asks now comes by itself.
  [[nodiscard]] bool BlattSchließt() const;
  void StatusSetzen(Statusfeld Feld, const QString& Text);
  /// Shows the lines of the protocol when a burst of them is over.
  void ProtokollSpäterZeigen() {
    if (!Protokolluhr.isActive()) Protokolluhr.start();
  }
  /// A long loop runs: only the stop button can be used.
  void Sperren(bool An);
  /// Opens the handbook at the page of the menu entry, form or dialog that the user is in.
  void HilfeZeigen();
  /// Opens the graphics view, or lets it fill the work area, or gives that back.
  void GrafikZeigen();
  /// Brings a place [m] into the middle of the view, which opens where it is closed.
  void GrafikPunktZeigen(double Rechts, double Hoch);
  void GrafikÖffnenSchließen(bool Offen);
  /// Brings the graphics view, if it is open, to the front until the user has seen it.
  void GrafikAnsehen();
  /// Ends the program when the event that runs is done.
  void Beenden();

 protected:
  bool event(QEvent* Ereignis) override;
  bool eventFilter(QObject* Objekt, QEvent* Ereignis) override;
  void closeEvent(QCloseEvent* Ereignis) override;

 private:
  void MenüsBauen();
  void SymbolleisteBauen();
  void StatusleisteBauen();
  void ProtokollfensterBauen();
  void GrafikBauen();
  void FokusTauschen();
  void TabelleNachsehen();
  void ProtokollZeigen();
  void ProtokollNachziehen();
  void PlatzSchreiben() const;
  void BlattStellen(QMdiSubWindow& Neues, QSize Wunsch);

  std::map<const Menüeintrag*, QAction*> Einträge;
  std::vector<std::pair<const Werkzeug*, QAction*>> Bilder;
  std::map<Statusfeld, QLabel*> Statusfelder;
  QMdiArea* Flaeche;
  FormularAnsicht* Grundblatt = nullptr;  // what fills the work area, and around it
  QScrollArea* Grundrolle = nullptr;
  QDockWidget* Protokollrahmen = nullptr;
  QPlainTextEdit* Protokolltext = nullptr;
  QDockWidget* Grafikrahmen = nullptr;
  GrafikAnsicht* Grafik = nullptr;
  QPointer<QWidget> Vorheriger;     // had the focus before the view
  Fensterstand Protokollstand;      // of the protocol that Protokolltext shows
  std::uint64_t Tabellenstand = 0;  // that view and forms have seen
  QTimer TerminatorTimer;
  QTimer Uhr;
  QTimer Protokolluhr;
  int Protokollbreite = 0;  // of the last run [pixels]; 0: none is known
  bool Ende = false;
};

}  // namespace tavorena
