#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QStatusBar>
#include <QTime>
#include <QToolBar>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Betrachtung.h>
#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/desktop/Fensterplatz.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/desktop/GrafikAnsicht.h>
#include <tavorena/desktop/Handbuch.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/Nebenfenster.h>
#include <tavorena/desktop/Rollflaeche.h>
#include <tavorena/desktop/Tastensperre.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

constexpr int TerminatorFrist = 200;  // ms

TVKernMDIForm& Kern() { return TVKernMDIForm::Fenster(); }

// The usual keys of the most used commands.
QKeySequence Kurztaste(std::string_view Name) {
  if (Name == "MenüDateiNeu") return QKeySequence::New;
  if (Name == "MenüDateiLesen(0)") return QKeySequence::Open;
  if (Name == "MenüDateiSpeichern(0)") return QKeySequence::Save;
  if (Name == "MenüDateiDrucken(0)") return QKeySequence::Print;
  if (Name == "MenüDateiBeenden") return QKeySequence::Quit;
  if (Name == "MenüBearbeitenRück") return QKeySequence::Undo;
  if (Name == "MenüInfoHandbuch") return Qt::Key_F1;
  return {};
}

bool NeueGruppe(std::string_view Bild) {
  return Bild == "ImageDateiDrucken" || Bild == "ImageOptionen" || Bild == "ImageVR2440" ||
         Bild == "ImageVR0900" || Bild == "ImageVWS" || Bild == "ImageProgrammende";
}

// A caption without the mark of its letter; "&&" stays the sign itself.
QString OhneBuchstabe(const QString& Titel) {
  QStringList Teile = Titel.split("&&");
  for (QString& Teil : Teile) Teil.remove('&');
  return Teile.join("&&");
}

QString Schlüssel(const Formular& Form, const char* Was) {
  return QString::fromStdString(Form.Platzname) + "/" + Was;
}

/// A worksheet in the work area; closing it asks the form first.
class Blattfenster final : public QMdiSubWindow {
 public:
  explicit Blattfenster(FormularAnsicht* Zeigt) : Ansicht(Zeigt) {
    setWidget(new Rollfläche(Ansicht, false));
    setWindowTitle(Ansicht->windowTitle());
    connect(Ansicht, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowIcon(Programmsymbol());
    Ansicht->BeiGeschlossen = [this, Name = QString::fromStdString(Zeigt->Form()->Platzname)] {
      PlatzMerken(Name);
      hide();
      deleteLater();
    };
  }

 protected:
  void closeEvent(QCloseEvent* Ereignis) override {
    if (Ansicht->Form() == nullptr) return Ereignis->accept();
    Ansicht->Form()->SchließenVerlangen();
    Ereignis->ignore();  // when the form closes, the window goes with it
  }

 private:
  // One that shares the work area has no size of its own.
  void PlatzMerken(const QString& Name) const {
    Fensterplatz Platz;
    if (!isMaximized() && mdiArea()->subWindowList().size() == 1) Platz.Merken(Name + "/Größe", size());
    if (const auto* Gitter = Ansicht->findChild<Gitteransicht*>())
      Platz.Merken(Name + "/Spalten", Gitter->Breiten());
  }

  FormularAnsicht* Ansicht;
};

}  // namespace

Hauptfenster::Hauptfenster() : Flaeche(new QMdiArea(this)) {
  setObjectName("TVKernMDIForm");
  setCentralWidget(Flaeche);
  Flaeche->setBackground(palette().color(QPalette::Window).darker(112));
  Flaeche->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  Flaeche->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  Flaeche->viewport()->setMouseTracking(true);
  Flaeche->viewport()->installEventFilter(this);
  MenüsBauen();
  SymbolleisteBauen();
  StatusleisteBauen();
  ProtokollfensterBauen();
  GrafikBauen();
  TerminatorTimer.setSingleShot(true);
  TerminatorTimer.setInterval(TerminatorFrist);
  connect(&TerminatorTimer, &QTimer::timeout, this, [this] {
    Ende = true;
    close();
    QCoreApplication::quit();
  });
  qApp->installEventFilter(this);
  // It fits into the work area, its frame included.
  resize(QSize(1280, 800).boundedTo(screen()->availableSize() - QSize(20, 60)));
}

void Hauptfenster::PlatzLesen() {
  Fensterplatz Platz;
  restoreGeometry(Platz.Bytes("Hauptfenster/Platz"));
  restoreState(Platz.Bytes("Hauptfenster/Leisten"));
  Protokollbreite = Platz.Zahl("Protokoll/Breite");
  Grafik->WahlLesen(Platz);
  Protokollrahmen->hide();  // whether they are shown is an option
  Grafikrahmen->hide();
}

void Hauptfenster::PlatzSchreiben() const {
  Fensterplatz Platz;
  Platz.Merken("Hauptfenster/Platz", saveGeometry());
  Platz.Merken("Hauptfenster/Leisten", saveState());
  Grafik->WahlSchreiben(Platz);
  if (Protokollrahmen->isVisible()) Platz.Merken("Protokoll/Breite", Protokollrahmen->width());
}

void Hauptfenster::MenüsBauen() {
  std::map<std::string_view, QMenu*> Menüs;
  for (const Menüeintrag& E : Menübaum()) {
    QMenu* Eltern = *E.Eltern == '\0' ? nullptr : Menüs.at(E.Eltern);
    const auto Unter = [&](const Menüeintrag& U) { return std::string_view(U.Eltern) == E.Name; };
    const bool IstMenü = std::any_of(Menübaum().begin(), Menübaum().end(), Unter);
    QAction* A = nullptr;
    if (*E.Titel == '\0') {
      A = Eltern->addSeparator();
    } else if (IstMenü) {
      QMenu* M = Eltern == nullptr ? menuBar()->addMenu(E.Titel) : Eltern->addMenu(E.Titel);
      M->setToolTipsVisible(true);
      Menüs[E.Name] = M;
      A = M->menuAction();
    } else {
      A = Eltern->addAction(E.Titel);
      A->setShortcut(Kurztaste(E.Name));
      connect(A, &QAction::triggered, this, [&E] { Kern().Ausführen(E.Name); });
    }
    A->setObjectName(E.Name);
    A->setStatusTip(QString());
    connect(A, &QAction::hovered, this, [&E] { StatusHilfeSetzen(std::string(Kern().Grund(E))); });
    Einträge[&E] = A;
  }
}

void Hauptfenster::SymbolleisteBauen() {
  auto* Leiste = addToolBar("Symbolleiste");
  Leiste->setObjectName("Symbolleiste");
  Leiste->setMovable(false);
  Leiste->setIconSize({24, 24});
  Leiste->setContextMenuPolicy(Qt::PreventContextMenu);
  for (const Werkzeug& W : Symbolleiste()) {
    if (NeueGruppe(W.Name)) Leiste->addSeparator();
    QAction* A = Leiste->addAction(Symbol(W.Name), QString(W.Hinweis));
    A->setToolTip(W.Hinweis);
    A->setObjectName(W.Name);
    Leiste->widgetForAction(A)->setAccessibleName(QString(W.Hinweis).trimmed());
    connect(A, &QAction::triggered, this, [&W] { Kern().WerkzeugAusführen(W); });
    connect(A, &QAction::hovered, this, [&W] { StatusHilfeSetzen(Kern().Hinweis(W)); });
    Bilder.emplace_back(&W, A);
  }
}

void Hauptfenster::StatusleisteBauen() {
  for (const Statusfeld Feld : {Statusfeld::Datei, Statusfeld::StatusKordanz, Statusfeld::StatusVersion,
                                Statusfeld::StatusUhr, Statusfeld::StatusHilfe}) {
    auto* Text = new QLabel(this);
    Text->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(Text, Feld == Statusfeld::StatusHilfe ? 1 : 0);
    Statusfelder[Feld] = Text;
  }
  statusBar()->setSizeGripEnabled(false);
  const auto Zeigen = [this] { StatusSetzen(Statusfeld::StatusUhr, QTime::currentTime().toString("HH:mm")); };
  connect(&Uhr, &QTimer::timeout, this, Zeigen);
  Uhr.start(5000);
  Zeigen();
}

void Hauptfenster::ProtokollfensterBauen() {
  Protokolltext = new QPlainTextEdit(this);
  Protokolltext->setReadOnly(true);
  Protokolltext->setAccessibleName("Protokoll");
  Protokolltext->setAccessibleDescription("Die zuletzt geschriebenen Zeilen des Protokolls");
  Protokolltext->setUndoRedoEnabled(false);
  Protokolltext->setLineWrapMode(QPlainTextEdit::NoWrap);
  Protokollrahmen = new QDockWidget("Protokoll", this);
  Protokollrahmen->setObjectName("Protokollfenster");
  Protokollrahmen->setFeatures(QDockWidget::DockWidgetMovable);
  Protokollrahmen->setWidget(Protokolltext);
  addDockWidget(Qt::RightDockWidgetArea, Protokollrahmen);
  Protokollrahmen->hide();
  Protokolluhr.setSingleShot(true);
  Protokolluhr.setInterval(50);
  connect(&Protokolluhr, &QTimer::timeout, this, &Hauptfenster::ProtokollZeigen);
}

void Hauptfenster::GrafikBauen() {
  Grafik = new GrafikAnsicht(this);
  Grafikrahmen = new QDockWidget("Grafik", this);
  Grafikrahmen->setObjectName("TVKernGrafikform");
  Grafikrahmen->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  Grafikrahmen->setWidget(Grafik);
  addDockWidget(Qt::RightDockWidgetArea, Grafikrahmen);
  Grafikrahmen->hide();
  connect(Grafikrahmen, &QDockWidget::visibilityChanged, Flaeche, [Arbeit = Flaeche](bool An) {
    if (!An) Arbeit->show();  // what filled the work area gives it back
  });
  Grafik->Bild().BeiPunkt = [](const std::string& Pnr) {
    const QDialog* Dialog = Dialogvorrang::Vorderster();
    QWidget* W = Dialog != nullptr ? Dialog->focusWidget() : QApplication::focusWidget();
    while (W != nullptr && dynamic_cast<FormularAnsicht*>(W) == nullptr) W = W->parentWidget();
    if (auto* Ansicht = dynamic_cast<FormularAnsicht*>(W)) Ansicht->PunktNehmen(Pnr);
  };
  // Between two events view and forms take over what became of the table.
  for (const auto Signal : {&QAbstractEventDispatcher::aboutToBlock, &QAbstractEventDispatcher::awake}) {
    connect(QAbstractEventDispatcher::instance(), Signal, Grafik, [this] {
      if (Grafik->isVisible()) Grafik->Nachsehen();
      TabelleNachsehen();
    });
  }
  const auto Taste = [this](const QKeySequence& Folge, void (*Tun)()) {
    connect(new QShortcut(Folge, this), &QShortcut::activated, Grafik, [this, Tun] {
      if (Grafik->isVisible()) Tun();
    });
  };
  Taste(Qt::CTRL | Qt::Key_Plus, GrafZoomin);
  Taste(Qt::CTRL | Qt::Key_Minus, GrafZoomout);
  Taste(Qt::CTRL | Qt::Key_0, GrafikZoomAnpassen);
  connect(new QShortcut(Qt::Key_F6, this), &QShortcut::activated, Grafik, [this] { FokusTauschen(); });
}

// A list of 20,000 rows must not take the time of what runs: it follows behind it.
void Hauptfenster::TabelleNachsehen() {
  if (Tabellenstand == KorStand || Stapel.RechnetZeilen || Kern().IstBeschäftigt()) return;
  std::uint64_t Gesehen = KorStand;
  for (QWidget* W : findChildren<QWidget*>()) {
    const auto* Ansicht = dynamic_cast<FormularAnsicht*>(W);
    if (Ansicht == nullptr || Ansicht->Form() == nullptr) continue;
    Ansicht->Form()->Nachsehen();
    if (Ansicht->Form()->InArbeit()) Gesehen = Tabellenstand;  // it asks something: once more behind it
  }
  Tabellenstand = Gesehen;
}

// F6 leads into the view and back to where the focus was.
void Hauptfenster::FokusTauschen() {
  if (!Grafik->isVisible()) return;
  if (!Grafik->Bild().hasFocus()) {
    Vorheriger = QApplication::focusWidget();
    Grafik->Bild().setFocus();
  } else if (Vorheriger != nullptr) {
    Vorheriger->setFocus();
  } else {
    Flaeche->setFocus();
  }
}

void Hauptfenster::GrafikZeigen() {
  if (!Grafikrahmen->isVisible()) return GrafikÖffnenSchließen(true);
  Flaeche->setVisible(!Flaeche->isVisible());
}

void Hauptfenster::GrafikPunktZeigen(double Rechts, double Hoch) {
  if (Grafikrahmen->isVisible()) return GrafikMitte(Rechts, Hoch);
  GrafikÖffnenSchließen(true);
  QTimer::singleShot(0, Grafik, [=] { GrafikMitte(Rechts, Hoch); });  // behind the first fit
}

void Hauptfenster::GrafikÖffnenSchließen(bool Offen) {
  const bool Neu = Offen && Grafikrahmen->isHidden();
  const bool Anpassen = !GrafikFenster.Gemerkt;  // opening uses up what was kept
  Grafikrahmen->setVisible(Offen);
  if (!Neu) return;
  if (Fensterplatz().Bytes("Hauptfenster/Leisten").isEmpty())
    resizeDocks({Grafikrahmen}, {width() * 3 / 8}, Qt::Horizontal);
  // It fits when the docks have found their places.
  if (Anpassen) QTimer::singleShot(0, Grafik, GrafikZoomAnpassen);
}

void Hauptfenster::GrafikAnsehen() {
  if (!Grafik->isVisible()) return;
  Grafikrahmen->raise();
  if (Grafikrahmen->isFloating()) Grafikrahmen->activateWindow();
  Betrachtung(Grafik->Bild()).Abwarten();
}

void Hauptfenster::ProtokollZeigen() {
  const bool Neu = Optionen.ProtokollfensterAn && Protokollrahmen->isHidden();
  Protokollrahmen->setVisible(Optionen.ProtokollfensterAn);
  QFont Schrift = Zahlenschrift();
  // Large letters of the system are large here too.
  Schrift.setPointSize(std::max(Optionen.SchriftgroesseProtokoll, QFontInfo(font()).pointSize() * 4 / 5));
  Protokolltext->setFont(Schrift);
  // A line of the protocol without its print margin fits in.
  const int Breite =
      Protokollbreite > 0 ? Protokollbreite : std::min(Zeichenbreite(Schrift, 74) + 30, width() / 2);
  if (Neu) resizeDocks({Protokollrahmen}, {Breite}, Qt::Horizontal);
  ProtokollNachziehen();
}

// Takes over what came to the protocol and went out of it since the last time.
void Hauptfenster::ProtokollNachziehen() {
  const Fensterwechsel Neu = FensterLesen(Protokollfenster, Protokollstand);
  if (!Neu.VonVorn && Neu.Neues.empty()) return;
  if (Neu.VonVorn) Protokolltext->clear();
  QTextCursor Stelle(Protokolltext->document());
  Stelle.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, Neu.Entfallen);
  Stelle.removeSelectedText();
  Stelle.movePosition(QTextCursor::End);
  Stelle.insertText(QString::fromUtf8(Neu.Neues.data(), static_cast<qsizetype>(Neu.Neues.size())));
  Protokolltext->verticalScrollBar()->setValue(Protokolltext->verticalScrollBar()->maximum());
}

void Hauptfenster::Auffrischen() {
  for (const auto& [E, A] : Einträge) {
    if (A->isSeparator()) continue;
    A->setVisible(Kern().Sichtbar(*E));
    QString Titel = QString::fromStdString(Kern().Titel(*E));
    // A disabled or hidden entry leaves its letter to the others, with which Qt would let it take turns.
    if (!Kern().Aktiv(*E) || !Kern().Sichtbar(*E)) Titel = OhneBuchstabe(Titel);
    A->setEnabled(Kern().Aktiv(*E));
    A->setText(Titel);
    const std::string_view Grund = Kern().Grund(*E);
    A->setToolTip(QString::fromUtf8(Grund.data(), static_cast<qsizetype>(Grund.size())));
  }
  for (const auto& [W, A] : Bilder) {
    A->setEnabled(Kern().WerkzeugAktiv(*W));
    A->setToolTip(QString::fromStdString(Kern().Hinweis(*W)));
    // While something long runs the key belongs to nobody else; a replay has it in its worksheet.
    if (std::string_view(W->Name) == "ImageStop")
      A->setShortcut(Kern().IstBeschäftigt() ? QKeySequence(Qt::Key_Escape) : QKeySequence());
  }
  ProtokollZeigen();
}

void Hauptfenster::BlattZeigen(Formular& Form) {
  Flaeche->show();
  auto* Ansicht = new FormularAnsicht(Form);
  auto* Fenster = new Blattfenster(Ansicht);
  Flaeche->addSubWindow(Fenster);
  // Room for a few rows, as far as the work area has it.
  const QSize Rand(12, 40);  // of the window
  QSize Wunsch = Ansicht->sizeHint() + Rand;
  auto* Gitter = Ansicht->findChild<Gitteransicht*>();
  if (Gitter != nullptr) Wunsch.setHeight(std::max(Wunsch.height(), Flaeche->height() - 40));
  // A worksheet that is cut at its side hides what is typed: the protocol makes room.
  const int Fehlend = Wunsch.width() - Flaeche->width();
  if (Fehlend > 0 && Protokollrahmen->isVisible())
    resizeDocks({Protokollrahmen}, {std::max(Protokollrahmen->width() - Fehlend, 1)}, Qt::Horizontal);
  const Fensterplatz Platz;
  const QSize Letzte = Platz.Größe(Schlüssel(Form, "Größe"));
  BlattStellen(*Fenster, (Letzte.isEmpty() ? Wunsch : Letzte).boundedTo(Flaeche->size()));
  if (Gitter != nullptr) Gitter->BreitenSetzen(Platz.Zahlen(Schlüssel(Form, "Spalten")));
  Fenster->show();
  Form.Öffnen();
  if (Ansicht->Form() == nullptr) return;
  Ansicht->FokusZeigen();
  // A replay shows more than a worksheet that is typed into.
  if (Gitter == nullptr)
    Fenster->resize(Fenster->size().expandedTo(Ansicht->sizeHint() + Rand).boundedTo(Flaeche->size()));
}

void Hauptfenster::NebenherZeigen(Formular& Form) {
  auto* Neues = new Nebenfenster(Form, *this);
  addDockWidget(Qt::RightDockWidgetArea, Neues);
  if (Protokollrahmen->isVisible()) splitDockWidget(Neues, Protokollrahmen, Qt::Vertical);
  Neues->Öffnen(Flaeche->activeSubWindow() == nullptr);
}

void Hauptfenster::FüllendZeigen(Formular& Form) {
  if (Grundblatt == nullptr) {
    Grundblatt = new FormularAnsicht(Form);
    Grundblatt->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    Grundrolle = new Rollfläche(Grundblatt, false);
    Grundrolle->setParent(Flaeche);
    Grundrolle->setAlignment(Qt::AlignCenter);
    Grundrolle->setGeometry(Flaeche->rect());
    Grundblatt->BeiGeschlossen = [this] {
      Grundblatt = nullptr;
      Grundrolle->hide();
      std::exchange(Grundrolle, nullptr)->deleteLater();
    };
    new Tastensperre(*Grundblatt, true);  // what was typed before it came is not meant for it
    Grundrolle->show();
  }
  Form.Öffnen();
  // Closed worksheets and docks give the focus away first.
  QTimer::singleShot(0, Grundblatt, [Blatt = Grundblatt] { Blatt->FokusHolen(); });
}

// A second worksheet stands beside the first one, or below it where the work area is too narrow: both are to
// be seen.
void Hauptfenster::BlattStellen(QMdiSubWindow& Neues, QSize Wunsch) {
  QMdiSubWindow* Altes = nullptr;
  for (QMdiSubWindow* F : Flaeche->subWindowList()) {
    if (F != &Neues && F->isVisible()) Altes = F;
  }
  if (Altes == nullptr || Altes->isMaximized()) return Neues.setGeometry(QRect(QPoint(0, 0), Wunsch));
  const QSize Platz = Flaeche->viewport()->size();
  if (Altes->width() + Wunsch.width() <= Platz.width()) {
    Altes->move(0, 0);
    Neues.setGeometry(QRect(QPoint(Altes->width(), 0), Wunsch));
  } else {
    // Half as high they scroll, and the bar must not cut what is typed.
    const int Halb = Platz.height() / 2, Rolle = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const auto Breite = [&](QSize Bisher) {
      return std::min(Bisher.width() + (Bisher.height() > Halb ? Rolle : 0), Platz.width());
    };
    Altes->setGeometry(0, 0, Breite(Altes->size()), Halb);
    Neues.setGeometry(0, Halb, Breite(Wunsch), Halb);
  }
}

bool Hauptfenster::BlattSchließt() const {
  const auto Alle = findChildren<QWidget*>();
  return std::any_of(Alle.begin(), Alle.end(), [](const QWidget* W) {
    const auto* Ansicht = dynamic_cast<const FormularAnsicht*>(W);
    return Ansicht != nullptr && Ansicht->Form() != nullptr && Ansicht->Form()->InArbeit() &&
           !Ansicht->Form()->Offen();
  });
}

void Hauptfenster::StatusSetzen(Statusfeld Feld, const QString& Text) {
  Statusfelder.at(Feld)->setText(Text);
}

void Hauptfenster::Sperren(bool An) {
  Flaeche->setEnabled(!An);
  for (Nebenfenster* Neben : Nebenfenster::Offene(*this)) Neben->setEnabled(!An);
  if (!An && Grundblatt != nullptr) Grundblatt->FokusHolen();  // it was closed to all keys
  Auffrischen();
}

void Hauptfenster::Beenden() { TerminatorTimer.start(); }

void Hauptfenster::HilfeZeigen() {
  int Nummer = 0;
  const auto* M = qobject_cast<const QMenu*>(QApplication::activePopupWidget());
  const QAction* Gewählt = M != nullptr ? M->activeAction() : nullptr;
  if (Gewählt != nullptr) Nummer = Gewählt->property("Hilfenummer").toInt();
  for (const auto& [E, A] : Einträge) {
    if (Gewählt == A) Nummer = Kern().Hilfe(*E);
  }
  if (Nummer == 0 && Grafik->Bild().hasFocus()) Nummer = Grafikhilfe;
  const QWidget* W = QApplication::focusWidget();
  while (Nummer == 0 && W != nullptr) {
    const auto* Ansicht = dynamic_cast<const FormularAnsicht*>(W);
    if (Ansicht != nullptr && Ansicht->Form() != nullptr) Nummer = Ansicht->Form()->Hilfenummer;
    if (Nummer == 0) Nummer = W->property("Hilfenummer").toInt();  // of a dialog without a form
    W = W->parentWidget();
  }
  HandbuchZeigen(Nummer != 0 ? Nummer : Kern().LaufendeHilfe());
}

bool Hauptfenster::event(QEvent* Ereignis) {
  if (Ereignis->type() == QEvent::WindowActivate) HauptfensterAktiviert();
  return QMainWindow::event(Ereignis);
}

// The mouse over the bare work area clears the help text.
bool Hauptfenster::eventFilter(QObject* Objekt, QEvent* Ereignis) {
  // A dialog or an open menu closes the shortcuts of the window: F1 works all the same.
  if (Ereignis->type() == QEvent::KeyPress &&
      (VordererDialog() != nullptr || QApplication::activePopupWidget() != nullptr) &&
      static_cast<const QKeyEvent&>(*Ereignis).key() == Qt::Key_F1) {
    HilfeZeigen();
    return true;
  }
  // Escape belongs to the drawing in the view first, then to the field.
  if (Ereignis->type() == QEvent::KeyPress &&
      static_cast<const QKeyEvent&>(*Ereignis).key() == Qt::Key_Escape &&
      QApplication::activeModalWidget() == nullptr && Grafik->isVisible() && Grafik->Verlassen())
    return true;
  if (Objekt == Flaeche && Ereignis->type() == QEvent::Resize && Grundrolle != nullptr)
    Grundrolle->setGeometry(Flaeche->rect());
  if (Objekt == Flaeche->viewport() && Ereignis->type() == QEvent::MouseMove) StatusHilfeSetzen("");
  return QMainWindow::eventFilter(Objekt, Ereignis);
}

void Hauptfenster::closeEvent(QCloseEvent* Ereignis) {
  if (!Ende) {
    Ereignis->ignore();
    if (Kern().IstBeschäftigt() || HauptBeenden() < 0) return;
    Ende = true;
  }
  PlatzSchreiben();
  Ereignis->accept();
  QCoreApplication::quit();
}

}  // namespace tavorena
