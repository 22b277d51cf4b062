// The window driven by key presses, as a surveyor drives it. Runs with QT_QPA_PLATFORM=offscreen.
#include <deque>
#include <functional>

#include <QtTest>
#include <QtWidgets>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Handbuch.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/graphics/GrafDesign.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

using namespace tavorena;

namespace {

// A platform whose clock stands still, and which presses the stop button when it is told to.
class Testplattform final : public PlattformQt {
 public:
  explicit Testplattform(Hauptfenster& H) : PlattformQt(H), Fenster(H) {}
  Zeitpunkt Jetzt() override { return {2003, 2, 1, 10, 15}; }
  double Zeitgeber() override { return Sekunden += 1; }
  void EreignisseAbarbeiten() override {
    if (StopDrücken) QTest::keyClick(&Fenster, Qt::Key_Escape);
    PlattformQt::EreignisseAbarbeiten();
  }
  bool StopDrücken = false;

 private:
  Hauptfenster& Fenster;
  double Sekunden = 0;
};

// Types into whatever has the focus; "\n" is Return.
void Tippe(const QString& Text) {
  for (const QChar z : Text) {
    QTRY_VERIFY(QApplication::focusWidget() != nullptr);
    QWidget* Ziel = QApplication::focusWidget();
    z == '\n' ? QTest::keyClick(Ziel, Qt::Key_Return) : QTest::keyClicks(Ziel, QString(z));
    QCoreApplication::processEvents();
  }
}

// Puts all keys into the queue at once, before the first is looked at; each goes to whatever has the focus
// then. Danach looks at the window behind each Return.
void TippeVoraus(
    const QString& Text, const std::function<void()>& Danach = [] {}) {
  for (const QChar z : Text) {
    QMetaObject::invokeMethod(
        qApp,
        [z, Danach] {
          QWidget* Ziel = QApplication::focusWidget();
          if (Ziel == nullptr) Ziel = QApplication::activeModalWidget();
          if (Ziel == nullptr) return;
          z == '\n' ? QTest::keyClick(Ziel, Qt::Key_Return) : QTest::keyClick(Ziel, z.toLatin1());
          if (z == '\n') Danach();
        },
        Qt::QueuedConnection);
  }
  QCoreApplication::processEvents();
}

void Drücke(Qt::Key Taste, Qt::KeyboardModifiers Mit = Qt::NoModifier) {
  QTest::keyClick(QApplication::focusWidget(), Taste, Mit);
  QCoreApplication::processEvents();
}

QString Feldtext() { return qobject_cast<QLineEdit*>(QApplication::focusWidget())->text(); }

void Schreibe(const QString& Name, const QByteArray& Bytes) {
  QFile Datei(Name);
  QVERIFY(Datei.open(QIODevice::WriteOnly) && Datei.write(Bytes) == Bytes.size());
}

QByteArray Inhalt(const QString& Name) {
  QFile Datei(Name);
  return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

}  // namespace

class FensterTest : public QObject {
  Q_OBJECT

 private:
  QTemporaryDir Ordner;
  std::unique_ptr<Hauptfenster> Fenster;
  std::unique_ptr<Testplattform> Plattform;
  std::deque<std::function<void()>> Dialoge;  // what is done in the modal dialogs that come, in order
  QTimer Bediener;
  QPointer<QWidget> Bedient;

  QString Pfad(const char* Name) const { return Ordner.filePath(Name); }
  void Menü(const char* Name) { Fenster->findChild<QAction*>(Name)->trigger(); }

  // Chooses a file in the file dialog by typing its name.
  void Wähle(const QString& Name) {
    Dialoge.push_back([Name] {
      auto* Dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      QVERIFY(Dialog != nullptr);
      auto* Feld = Dialog->findChild<QLineEdit*>("fileNameEdit");
      Feld->setText(Name);  // typed, its list of suggestions would take the Return
      QTest::keyClick(Feld, Qt::Key_Return);
    });
  }
  void Antworte(Qt::Key Taste, Qt::KeyboardModifiers Mit = Qt::AltModifier) {
    Dialoge.push_back([=] { QTest::keyClick(QApplication::activeModalWidget(), Taste, Mit); });
  }
  void Antworte(const char* Text) {
    Dialoge.push_back([=] { Tippe(Text); });
  }

  void Öffne() {
    Schreibe(Pfad("a.kor"),
             "1001 3500100 5600200 12.5 015\r\n1002 3500160 5600280\r\n2003 3500130 5600230\r\n"
             "2004 3500100 5600275\r\n2005 3500220 5600360\r\n");
    QFile::remove(Pfad("a.dru"));
    QFile::remove(Pfad("a.sta"));
    Wähle(Pfad("a.kor"));
    QTest::keyClick(Fenster.get(), Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(KorAnzahl, 5);
    QTRY_VERIFY(Fenster->isActiveWindow());
  }
  // Opens the file and a worksheet without a plan.
  void Öffne(const char* Blatt) {
    Öffne();
    Optionen.AbfrageRiss = false;
    Menü(Blatt);
  }
  int Zeilenhöhe() const {
    return Fenster->findChild<QTableView*>("LinelGitter")->verticalHeader()->defaultSectionSize();
  }
  // The current cell is that of this row, wholly to be seen, its text selected.
  void zelleSteht(int Zeile) const {
    const auto* Tabelle = Fenster->findChild<QTableView*>("LinelGitter");
    const auto* Feld = Tabelle->findChild<QLineEdit*>("LinelGitterFeld");
    QCOMPARE(Tabelle->rowAt(Feld->geometry().center().y()), Zeile);
    QCOMPARE(Feld->height(), Zeilenhöhe());
    QVERIFY(Tabelle->viewport()->rect().contains(Feld->geometry()));
    QVERIFY(Feld->hasFocus() && Feld->selectedText() == Feld->text());
  }
  static QWidget* handbuch() {
    const QWidgetList Fenster = QApplication::topLevelWidgets();
    return *std::find_if(Fenster.begin(), Fenster.end(),
                         [](const QWidget* W) { return W->objectName() == "Handbuch"; });
  }
  static QString FokusName() {
    return QApplication::focusWidget() != nullptr ? QApplication::focusWidget()->objectName() : "";
  }

 private slots:
  void initTestCase() {
    qputenv("TAVORENA_ORDNER", Pfad("app").toUtf8());
    AussehenSetzen(*qApp, Helligkeit::Hell);
    connect(&Bediener, &QTimer::timeout, this, [this] {
      QWidget* Offen = QApplication::activeModalWidget();
      if (Offen == nullptr) Bedient = nullptr;
      // Nobody manages windows here: the one in front has to be made active.
      QWidget* Aktiv = QApplication::activeWindow();
      if (Offen != nullptr && Aktiv != Offen) return Offen->activateWindow();
      if (Aktiv == nullptr && Fenster != nullptr) return Fenster->activateWindow();
      if (Offen == nullptr || Offen == Bedient) return;
      if (Offen->findChild<QObject*>("Tastensperre") != nullptr) return;  // it would drop the keys
      Bedient = Offen;
      if (Dialoge.empty()) Offen->close();
      QVERIFY2(!Dialoge.empty(), qPrintable("a dialog that nobody foresaw: " + Offen->windowTitle()));
      const auto Tun = Dialoge.front();
      Dialoge.pop_front();
      Tun();
    });
    Bediener.start(10);
  }

  void init() {
    Fenster = std::make_unique<Hauptfenster>();
    Plattform = std::make_unique<Testplattform>(*Fenster);
    PortsSetzen(PortsVon(*Plattform));
    QFile::remove(Pfad("app/Tavorena.ini"));
    Optionen = {};
    LetztePunktnummer.clear();
    Prot = {};
    LetzterPlan = {};
    HauptAnschließen();
    Fenster->show();
    HauptInitialisierung();
    QVERIFY(QTest::qWaitForWindowActive(Fenster.get()));
  }

  void cleanup() {
    QVERIFY2(Dialoge.empty(), "a dialog did not come");
    StapelAnhalten();
    KoordinatendateiName.clear();
    BlätterSchließen();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    PortsSetzen({});
    Plattform.reset();
    Fenster.reset();
  }

  // Open a file, three worksheets, leave, save; look at the three files; replay the job on them.
  void einAuftragMitDerTastatur() {
    Öffne();
    Antworte("Riss 12\n3\n");
    QTest::keyClick(Fenster.get(), Qt::Key_R, Qt::AltModifier);
    QVERIFY(QApplication::activePopupWidget() != nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_L);  // not the disabled one of this letter
    Tippe("1001\n1002\n0\n99,93\n2003\n2004\n");
    QVERIFY(!Fenster->findChild<QTableView*>("LinelGitter")->isColumnHidden(5));
    Drücke(Qt::Key_Plus, Qt::KeypadModifier);
    Tippe("\n\n\n");  // 2005, then out of the grid, then the end of the connection
    QTRY_COMPARE(FokusName(), QString("LinelAnfPnr"));
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
    Antworte("\n\n");  // the plan stays
    Menü("MenüKatasterPolel");
    QTRY_COMPARE(FokusName(), QString("PolelAnfPnr"));
    Tippe("1001\n1002\n12.5\n99.98\n2003\n2004\n\n\n");
    Drücke(Qt::Key_S, Qt::AltModifier);
    Antworte("\n\n");
    Menü("MenüKatasterDis");
    QTRY_COMPARE(FokusName(), QString("DisAnfPnr"));
    Tippe("1001\n1002\n99.8\n2005\n0\n");
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
    QTest::keyClick(Fenster.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(
        Inhalt(Pfad("a.kor")).startsWith("          1001   3500100.000   5600200.000      12.500  015\r\n"));
    const QByteArray Protokoll = Inhalt(Pfad("a.dru")), Sta = Inhalt(Pfad("a.sta"));
    QVERIFY(Protokoll.contains("(Riss 12) 3"));
    QVERIFY(Protokoll.contains("      3500130.000  5600230.000       42.000        6.000      2003\r\n"));
    QVERIFY(Protokoll.contains("      3500130.000  5600230.000      21.5334       42.426      2003\r\n"));
    QVERIFY(Protokoll.contains("WS=      0.200  D=    0.160 ******(>D)\r\n"));
    QCOMPARE(Sta.count("\nNR  ") + Sta.count("\nNND "), 6);

    ProtokollNehmen(Pfad("b.dru").toStdString());
    Wähle(Pfad("a.sta"));
    Menü("MenüDateiStapel");
    for (const char* Name : {"Linienelemente", "Polarelemente", "Entfernungskontrolle"}) {
      QVERIFY(Stapel.Aktiv);  // each block shows its connection and waits
      const QString Erwartet = QString("Tavorena ") + Name + " [Stapel]";
      QTRY_VERIFY(FokusName().endsWith("Weiter") &&
                  QApplication::focusWidget()->parentWidget()->windowTitle() == Erwartet);
      Drücke(Qt::Key_W, Qt::AltModifier);
    }
    QTRY_VERIFY(!Stapel.Läuft() && BlätterOffen());  // the last one stays to be read
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
    QCOMPARE(Inhalt(Pfad("a.sta")), Sta);
    QCOMPARE(Inhalt(Pfad("b.dru")), Protokoll);
  }

  void fehlenderPunktUndFokus() {
    Öffne("MenüKatasterLinel");
    QTRY_COMPARE(FokusName(), QString("LinelAnfPnr"));
    Antworte(Qt::Key_Escape, Qt::NoModifier);
    Tippe("77\n");
    QTRY_COMPARE(FokusName(), QString("LinelAnfPnr"));
    Antworte("3500000,5\n5600000\n\n\n");  // the number stands, Rechts has the focus
    Tippe("\n");
    QCOMPARE(KorAnzahl, 6);
    QTRY_COMPARE(FokusName(), QString("LinelEndPnr"));
    Tippe("1002");
    Drücke(Qt::Key_Tab);
    QTRY_COMPARE(FokusName(), QString("LinelAnlegemass"));
    QCOMPARE(qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectedText(), QString("0.000"));
    Drücke(Qt::Key_Backtab, Qt::ShiftModifier);
    QTRY_COMPARE(FokusName(), QString("LinelEndPnr"));
    Drücke(Qt::Key_Minus);  // wholly selected: it counts
    QCOMPARE(Feldtext(), QString("1001"));
    QTest::keyClicks(QApplication::focusWidget(), "-5");  // now it belongs to the number
    QCOMPARE(Feldtext(), QString("1001-5"));
    Antworte(Qt::Key_Escape, Qt::NoModifier);
    QTest::mouseClick(Fenster->findChild<QWidget*>("LinelEndmass"), Qt::LeftButton);
    QTRY_VERIFY(Dialoge.empty());
    QTRY_COMPARE(FokusName(), QString("LinelEndPnr"));  // the number does not exist: the focus goes back
    Drücke(Qt::Key_S, Qt::AltModifier);                 // closing works all the same
    QTRY_VERIFY(!BlätterOffen());
  }

  void zeilenImGitter() {
    Öffne("MenüKatasterLinel");
    Optionen.ProtokollfensterAn = true;
    Tippe("1001\n1002\n0\n0\n2003\n2004\n");
    const auto* Protokoll = Fenster->findChild<QPlainTextEdit*>();
    QTRY_VERIFY(Protokoll->toPlainText().endsWith("2004\n"));
    Drücke(Qt::Key_Tab);  // out of the grid, and back
    QTRY_COMPARE(FokusName(), QString("LinelEnd10"));
    Drücke(Qt::Key_Backtab, Qt::ShiftModifier);
    QTRY_COMPARE(FokusName(), QString("LinelGitterFeld"));
    Drücke(Qt::Key_Up);
    QCOMPARE(Feldtext(), QString("2004"));
    const auto* Tabelle = Fenster->findChild<QTableView*>("LinelGitter");
    QSignalSpy Geändert(Tabelle->model(), &QAbstractItemModel::dataChanged);
    Tippe("2005\n");  // corrected
    QVERIFY(!Geändert.isEmpty());
    for (const auto& Stelle : Geändert)  // nothing else is shown anew
      QVERIFY(Stelle[0].toModelIndex().row() == 1 && Stelle[1].toModelIndex().row() == 1);
    QVERIFY(Tabelle->model()->rowCount() == 3 && Tabelle->isColumnHidden(5));
    Drücke(Qt::Key_Up);
    Drücke(Qt::Key_Up);
    Drücke(Qt::Key_L, Qt::AltModifier);  // the first row goes
    QTRY_COMPARE(Inhalt(Pfad("a.dru")).count("***gelöscht"), 2);
    QTRY_COMPARE(Protokoll->toPlainText(), QString::fromStdString(Protokollfenster.Text));
    QTRY_COMPARE(FokusName(), QString("LinelGitterFeld"));
    Drücke(Qt::Key_N, Qt::AltModifier);
    QTRY_VERIFY(Inhalt(Pfad("a.sta")).contains("PEN     1002        0.0000\r\nNR      2005\r\nE Ende"));
    Tippe("1001\n1002\n0\n0\n2003");
    Antworte(Qt::Key_N);
    Antworte(Qt::Key_J);
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
  }

  // Thirty rows typed faster than anything is drawn, one with an unknown number; the keys behind its Return
  // wait for nobody and must not become coordinates.
  void dreissigZeilenOhneAtempause() {
    Öffne("MenüKatasterLinel");
    Tippe("1001\n1002\n0\n0\n");
    QTRY_COMPARE(FokusName(), QString("LinelGitterFeld"));
    QString Text;
    for (int i = 0; i < 28; ++i) Text += i % 2 == 0 ? "2003\n" : "2004\n";
    Antworte(Qt::Key_Escape, Qt::NoModifier);
    int Zeilen = 0;
    TippeVoraus(Text + "77\n2005\n2005\n\n\n", [&] {
      if (Zeilen < 28) zelleSteht(++Zeilen);
    });
    QTRY_VERIFY(Dialoge.empty());
    QTRY_COMPARE(FokusName(), QString("LinelGitterFeld"));
    QCOMPARE(Feldtext(), QString("77"));
    zelleSteht(28);
    QCOMPARE(KorAnzahl, 5);
    Tippe("2005\n2003\n");
    zelleSteht(30);
    QCOMPARE(Inhalt(Pfad("a.sta")).count("\nNR  "), 30);

    struct Sprung {
      Qt::Key Taste;
      Qt::KeyboardModifiers Mit;
      int Zeile;
    };
    const int Seite = Fenster->findChild<QTableView*>("LinelGitter")->viewport()->height() / Zeilenhöhe();
    for (const Sprung& S : {Sprung{Qt::Key_PageUp, {}, 30 - Seite},
                            {Qt::Key_Home, Qt::ControlModifier, 0},
                            {Qt::Key_Down, {}, 1},
                            {Qt::Key_End, {}, Seite - 1},
                            {Qt::Key_Home, {}, 0},
                            {Qt::Key_PageDown, {}, Seite},
                            {Qt::Key_End, Qt::ControlModifier, 30},
                            {Qt::Key_Up, {}, 29}}) {
      Drücke(S.Taste, S.Mit);
      zelleSteht(S.Zeile);
    }
    Drücke(Qt::Key_L, Qt::AltModifier);
    zelleSteht(29);
    Fenster->resize(Fenster->width(), Fenster->height() - 150);
    zelleSteht(29);
  }

  // Two worksheets in turn, all keys in the queue at once: each row goes to its own.
  void zweiBlaetterImWechsel() {
    Öffne("MenüKatasterLinel");
    Menü("MenüKatasterPolel");
    auto* Fläche = Fenster->findChild<QMdiArea*>();
    const QList<QMdiSubWindow*> Blätter = Fläche->subWindowList();
    const auto Nach = [&](int i) {
      QMetaObject::invokeMethod(
          qApp, [=] { Fläche->setActiveSubWindow(Blätter[i]); }, Qt::QueuedConnection);
    };
    for (const int i : {0, 1}) {
      Nach(i);
      TippeVoraus("1001\n1002\n0\n0\n");
    }
    for (const char* Nummer : {"2003\n", "2004\n", "2005\n"}) {
      for (const int i : {0, 1}) {
        Nach(i);
        TippeVoraus(Nummer);
      }
    }
    for (const char* Name : {"LinelGitter", "PolelGitter"}) {
      const auto* Modell = Fenster->findChild<QTableView*>(Name)->model();
      QTRY_COMPARE(Modell->rowCount(), 4);
      for (int z = 0; z < 3; ++z) QCOMPARE(Modell->index(z, 0).data().toString(), QString::number(2003 + z));
    }
    QCOMPARE(Inhalt(Pfad("a.sta")).count("\nNR  "), 6);
  }

  void stapelLaesstSichAnhalten() {
    Öffne();
    QByteArray Sta;
    for (const char* Art : {"24.40", "08.40"})
      Sta += QByteArray("M VR ") + Art + "\r\nPAN 1001 0\r\nPEN 1002 99.93\r\nNR 2003\r\nE Ende\r\n";
    Schreibe(Pfad("b.sta"), Sta);
    Wähle(Pfad("b.sta"));
    Menü("MenüDateiStapel");
    QVERIFY(Stapel.Aktiv);
    Fenster->findChild<QMdiSubWindow*>()->close();
    QTRY_VERIFY(!BlätterOffen());
    QVERIFY(!Stapel.Aktiv);
    // Stopped by Escape and by the image, taken up anew, and let run through: one worksheet stays to be read.
    auto* Stop = Fenster->findChild<QAction*>("ImageStop");
    for (const bool Taste : {true, false}) {
      Wähle(Pfad("b.sta"));
      Menü("MenüDateiStapel");
      QTRY_COMPARE(FokusName(), QString("LinelWeiter"));
      QVERIFY(Stop->isEnabled());
      TippeVoraus("2004\n");  // Return presses the button
      QTRY_COMPARE(FokusName(), QString("PolelWeiter"));
      if (Taste) {
        Drücke(Qt::Key_Escape);
      } else {
        Stop->trigger();
      }
      QTRY_VERIFY(!Stapel.Läuft() && BlätterOffen() && !Stop->isEnabled());
      QTRY_COMPARE(FokusName(), QString("PolelGitter"));
    }
    Wähle(Pfad("b.sta"));
    Menü("MenüDateiStapel");
    QTRY_COMPARE(FokusName(), QString("LinelWeiter"));
    Drücke(Qt::Key_J, Qt::AltModifier);
    Drücke(Qt::Key_W, Qt::AltModifier);
    QTRY_VERIFY(!Stapel.Läuft());
    QTRY_COMPARE(Fenster->findChildren<QMdiSubWindow*>().size(), 1);
    QCOMPARE(Stapel.Bilanz.Zeilen, 2);
    Tippe("2004\n");
    QCOMPARE(Fenster->findChild<QTableView*>("PolelGitter")->model()->index(0, 0).data().toString(),
             QString("2003"));
  }

  // Connection and rows clicked in the view; what was seen there comes and goes with the mouse and the keys.
  void punkteAusDerGrafik() {
    Öffne("MenüKatasterLinel");
    auto* Bild = Fenster->findChild<QWidget*>("GrafBild");
    QTRY_VERIFY(Bild->isVisible() && GrafikFenster.Massstab > 0);
    QTRY_COMPARE(FokusName(), QString("LinelAnfPnr"));
    const auto Ort = [](const char* Pnr) {
      const auto z = static_cast<std::size_t>(KorSuche(std::string_view(Pnr)));
      double x = 0, y = 0;
      GrafikPixelAusWelt(KorRechts[z], KorHoch[z], x, y);
      return QPoint(qRound(x / TwipsJePixel), qRound(y / TwipsJePixel));
    };
    const auto Klicke = [&](const char* Pnr) { QTest::mouseClick(Bild, Qt::LeftButton, {}, Ort(Pnr)); };
    QTRY_VERIFY(Bild->rect().contains(Ort("1001")) && Bild->rect().contains(Ort("2005")));
    QTest::mouseClick(Bild, Qt::LeftButton, {}, QPoint(1, 1));  // no point there
    QCOMPARE(FokusName(), QString("LinelAnfPnr"));
    Klicke("1001");
    QCOMPARE(FokusName(), QString("LinelEndPnr"));
    Klicke("1002");
    Tippe("0\n0\n");
    for (const char* Pnr : {"2003", "2004", "2005"}) Klicke(Pnr);
    QCOMPARE(Inhalt(Pfad("a.sta")).count("\nNR  "), 3);
    // Wheel and middle button; Ctrl+0 from the field brings all back.
    const QPoint Vorher = Ort("2003");
    const double Massstab = GrafikFenster.Massstab;
    QWheelEvent Rad(Vorher, Bild->mapToGlobal(Vorher), {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                    false);
    QCoreApplication::sendEvent(Bild, &Rad);
    QVERIFY(qFuzzyCompare(GrafikFenster.Massstab, 1.25 * Massstab));
    QVERIFY((Ort("2003") - Vorher).manhattanLength() <= 1);
    QTest::mousePress(Bild, Qt::MiddleButton, {}, Vorher);
    QTest::mouseMove(Bild, Vorher + QPoint(20, -10));
    QTest::mouseRelease(Bild, Qt::MiddleButton, {}, Vorher + QPoint(20, -10));
    QVERIFY((Ort("2003") - Vorher - QPoint(20, -10)).manhattanLength() <= 1);
    Drücke(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(Ort("2003"), Vorher);
    QTest::mousePress(Bild, Qt::LeftButton, Qt::ShiftModifier, QPoint(20, 20));
    QTest::mouseMove(Bild, QPoint(Bild->width() / 2, Bild->height() / 2));
    QTest::mouseRelease(Bild, Qt::LeftButton, Qt::ShiftModifier,
                        QPoint(Bild->width() / 2, Bild->height() / 2));
    QVERIFY(GrafikFenster.Massstab > 1.5 * Massstab);
    Fenster->findChild<QAction*>("GrafikZoomAnpa")->trigger();
    // Drawing takes the clicks until Escape, which the field then has again.
    Fenster->findChild<QAction*>("GrafDesign(0)")->trigger();
    Klicke("1001");
    Klicke("2003");
    QCOMPARE(GrafikFreieLinien().size(), 1U);
    QTest::keyClicks(QApplication::focusWidget(), "77");
    Drücke(Qt::Key_Escape);
    QCOMPARE(GrafDesignSchritt(), Zeichenschritt::Keiner);
    QCOMPARE(Feldtext(), QString("77"));
    Drücke(Qt::Key_Escape);
    QCOMPARE(Feldtext(), QString());
    Drücke(Qt::Key_F6);
    QCOMPARE(FokusName(), QString("GrafBild"));
    Drücke(Qt::Key_Plus);
    QVERIFY(qFuzzyCompare(GrafikFenster.Massstab, 2 * Massstab));
    Drücke(Qt::Key_F6);
    QCOMPARE(FokusName(), QString("LinelGitterFeld"));
    // Closed and opened again, by the menu that next gives it the whole work area and then takes that back.
    auto* Arbeit = Fenster->findChild<QMdiArea*>();
    const double Vergrößert = GrafikFenster.Massstab;
    Bild->window()->findChild<QDockWidget*>("TVKernGrafikform")->close();
    for (const bool Mit : {true, false, true}) {
      Menü("MenüAnsichtGrafik(1)");
      QTest::qWait(20);
      QVERIFY(Bild->isVisible() && Arbeit->isVisible() == Mit);
      QVERIFY(qFuzzyCompare(GrafikFenster.Massstab, Vergrößert));
    }
    // A point that comes is seen, closing the file closes the view.
    const QImage Ohne = Bild->grab().toImage();
    QCOMPARE(KorZeileSetzen(0, {"1001", 3500120, 5600260, 0, "", nullptr}), 0);
    QTRY_VERIFY(Bild->grab().toImage() != Ohne);
    // The line is in no file: asked, and written on the way out.
    Antworte(Qt::Key_N);
    Antworte(Qt::Key_J);
    Wähle(Pfad("a.dxf"));
    Menü("MenüDateiSchließen");
    QVERIFY(Inhalt(Pfad("a.dxf")).contains("LINE"));
    QVERIFY(!Bild->isVisible() && GrafikFreieLinien().empty());
  }

  // A name from a file is no markup.
  void textIstKeineAuszeichnung() {
    const char* const Name = "<b>a</b>&amp;";
    Dialoge.push_back([&] {
      const auto* Text = QApplication::activeModalWidget()->findChild<QLabel*>("qt_msgbox_label");
      QVERIFY(Text->text() == Name && Text->textFormat() == Qt::PlainText);
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    Hinweis(Name);
    StatusHilfeSetzen(Name);
    bool Gezeigt = false;
    for (const auto* Text : Fenster->statusBar()->findChildren<QLabel*>()) {
      Gezeigt = Gezeigt || Text->text().contains(Name);
      QCOMPARE(Text->textFormat(), Qt::PlainText);
    }
    QVERIFY(Gezeigt);
  }

  void protokollDasSichNichtSchreibenLaesst() {
    Öffne("MenüKatasterLinel");
    Tippe("1001\n1002\n0\n0\n");
    QDir().mkdir(Pfad("a.dru"));
    Antworte(Qt::Key_N);
    Dialoge.push_back([this] {
      QDir().rmdir(Pfad("a.dru"));
      QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_N, Qt::AltModifier);
    });
    Tippe("2003\n");
    QVERIFY(Dialoge.empty());
    const QByteArray Protokoll = Inhalt(Pfad("a.dru"));
    QVERIFY(Protokoll.endsWith("2003\r\n"));
    QFile::rename(Pfad("a.dru"), Pfad("c.dru"));
    QDir().mkdir(Pfad("a.dru"));
    Antworte(Qt::Key_O);
    Tippe("2004\n");
    QVERIFY(Dialoge.empty());
    QDir().rmdir(Pfad("a.dru"));
    Tippe("2005\n");  // not a word more, and no protocol
    QVERIFY(!QFile::exists(Pfad("a.dru")) && Inhalt(Pfad("c.dru")) == Protokoll);
    QCOMPARE(Inhalt(Pfad("a.sta")).count("\nNR  "), 3);
  }

  void langeTexteUndUndZeichen() {
    Öffne();
    const QString Riss = "Fortführungsriß 12/2026 der Gemarkung Musterdorf";
    Optionen.AbfrageRiss = true;
    Dialoge.push_back([&] {
      qobject_cast<QLineEdit*>(QApplication::focusWidget())->insert(Riss);
      Tippe("\n3\n");
    });
    Menü("MenüKatasterLinel");
    Tippe("1001\n1002\n0\n0\n2003\n");
    const auto* Feld = Fenster->findChild<QLineEdit*>("LinelRi_bez");
    QVERIFY(Feld->text().endsWith(u'…') && Riss.startsWith(Feld->text().chopped(1)));
    QVERIFY(Feld->fontMetrics().horizontalAdvance(Feld->text()) < Feld->width());
    QCOMPARE(Feld->toolTip(), Riss);
    auto* Tabelle = Fenster->findChild<QTableView*>("LinelGitter");
    const QModelIndex Zelle = Tabelle->model()->index(0, 1);
    QVERIFY(Zelle.data(Qt::ToolTipRole).isNull() && Tabelle->textElideMode() == Qt::ElideRight);
    Tabelle->setColumnWidth(1, 40);
    QCOMPARE(Zelle.data(Qt::ToolTipRole).toString(), QString("3500130.000"));

    HauptHistSchreiben("/daten/Müller & Söhne.kor", Dateiformat::Kor);
    KoordinatendateiName.clear();
    BlätterSchließen();
    TVKernMDIForm::Fenster().OhneKoordinaten();
    Fenster->Auffrischen();
    const QAction* Letzte = Fenster->findChild<QAction*>("MenüDateiHist(1)");
    QVERIFY(Letzte->isVisible());
    QCOMPARE(Letzte->text(), QString("/daten/Müller && Söhne.kor"));
  }

  // An empty box is as clear against the window as a text.
  void kaestchenSindHellUndDunkelZuSehen() {
    for (const Helligkeit Wahl : {Helligkeit::Dunkel, Helligkeit::Hell}) {
      AussehenSetzen(*qApp, Wahl);
      QCheckBox Kasten;
      QRadioButton Option;
      for (QWidget* W : {static_cast<QWidget*>(&Kasten), static_cast<QWidget*>(&Option)}) {
        W->resize(W->sizeHint());
        const QImage Bild = W->grab().toImage();
        const int Grund = W->palette().color(QPalette::Window).lightness();
        int Abstand = 0;
        for (int x = 0; x < Bild.width(); ++x) {
          const int Hier = Bild.pixelColor(x, Bild.height() / 2).lightness();
          Abstand = std::max(Abstand, std::abs(Hier - Grund));
        }
        QVERIFY2(Abstand > 60, qPrintable(QString::number(Abstand)));
      }
    }
  }

  void kopierenUndEinfuegen() {
    Öffne("MenüKatasterLinel");
    Tippe("1001\n1002\n0\n0\n");
    QTRY_COMPARE(FokusName(), QString("LinelGitterFeld"));
    QClipboard* const Ablage = QApplication::clipboard();
    Ablage->setText("2003\t3500130\r\n2004\r\n\r\n2005\r\n77\r\n1001\r\n");
    Antworte(Qt::Key_Escape, Qt::NoModifier);
    Drücke(Qt::Key_V, Qt::ControlModifier);
    QTRY_COMPARE(FokusName(), QString("LinelGitterFeld"));
    zelleSteht(3);
    QCOMPARE(Feldtext(), QString("77"));  // refused: what is behind it stays away
    QCOMPARE(Inhalt(Pfad("a.sta")).count("\nNR  "), 3);
    Drücke(Qt::Key_Escape);
    Drücke(Qt::Key_Up);
    Drücke(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(Feldtext(), QString("2005"));  // only the marking moves
    Drücke(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Ablage->text(), QString("2004\t3500100.000\t5600275.000\t60.000\t-45.000\n"
                                     "2005\t3500220.000\t5600360.000\t200.000\t0.000"));
    auto* L = Fenster->findChild<QLineEdit*>("LinelL");
    QTest::mouseDClick(L, Qt::LeftButton);
    L->selectAll();
    Drücke(Qt::Key_Down);  // what was marked before counts no more
    L->selectAll();
    Drücke(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Ablage->text(), QString("100.000"));
    const auto* Tabelle = Fenster->findChild<QTableView*>("LinelGitter");
    const QRect Zelle = Tabelle->visualRect(Tabelle->model()->index(1, 4));
    QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Zelle.center());
    L->deselect();
    Drücke(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(Ablage->text(), QString("-45.000"));
    zelleSteht(1);
  }

  void fensterUndProtokollKommenWieder() {
    const QString Ablage = Pfad("app/TavorenaFenster.ini");
    QFile::remove(Ablage);
    Öffne("MenüKatasterLinel");
    Optionen.ProtokollfensterAn = true;
    Fenster->Auffrischen();
    QVERIFY(!QFile::exists(Ablage));  // the start makes none
    auto* Linel = Fenster->findChild<QMdiSubWindow*>();
    QCOMPARE(Linel->pos(), QPoint(0, 0));  // not cut at the side that is typed into
    auto* Gitter = Fenster->findChild<QTableView*>("LinelGitter");
    Gitter->setColumnWidth(3, 201);
    Linel->resize(Linel->width() + 31, Linel->height() - 57);
    const QSize Größe = Linel->size();
    Menü("MenüKatasterPolel");  // both are to be seen
    const auto Blätter = Fenster->findChildren<QMdiSubWindow*>();
    QCOMPARE(Blätter.size(), 2);
    QVERIFY(!Blätter[0]->geometry().intersects(Blätter[1]->geometry()));
    for (const QMdiSubWindow* F : Blätter)
      QVERIFY(F->y() + F->height() <= Linel->mdiArea()->viewport()->height());
    Drücke(Qt::Key_S, Qt::AltModifier);
    Linel->resize(Größe);
    QTRY_COMPARE(Linel->mdiArea()->subWindowList().size(), 1);
    Linel->close();
    QTRY_VERIFY(!BlätterOffen());
    auto* Protokoll = Fenster->findChild<QDockWidget*>();
    Fenster->resizeDocks({Protokoll}, {333}, Qt::Horizontal);
    QCoreApplication::processEvents();
    QCOMPARE(Protokoll->width(), 333);
    const QSize Haupt(1211, 777);
    Fenster->resize(Haupt);
    KoordinatendateiName.clear();
    Antworte(Qt::Key_J);
    QVERIFY(Fenster->close());

    cleanup();
    init();
    Fenster->PlatzLesen();
    QCOMPARE(Fenster->size(), Haupt);
    QByteArray Altes = "      erste\r\n\f";
    for (int i = 0; i < 3000; ++i) Altes += "      Zeile " + QByteArray::number(i) + "\r\n";
    Schreibe(Pfad("a.dru"), Altes);
    Wähle(Pfad("a.kor"));
    Antworte(Qt::Key_N);  // "Anhängen"
    Menü("MenüDateiLesen(0)");
    Optionen.ProtokollfensterAn = true;
    Fenster->Auffrischen();
    const auto* Text = Fenster->findChild<QPlainTextEdit*>();
    QTRY_VERIFY(Text->toPlainText().endsWith("\nZeile 2999\n") && Text->toPlainText().startsWith("Zeile"));
    Optionen.AbfrageRiss = false;
    Menü("MenüKatasterLinel");
    QCOMPARE(Fenster->findChild<QMdiSubWindow*>()->size(), Größe);
    QCOMPARE(Fenster->findChild<QTableView*>("LinelGitter")->columnWidth(3), 201);
    QTRY_COMPARE(Fenster->findChild<QDockWidget*>()->width(), 333);
  }

  void langesLesenLaesstSichAnhalten() {
    Öffne();
    QByteArray Gross;
    for (int i = 0; i < 5000; ++i) Gross += QString("%1 1.0 2.0\r\n").arg(10000 + i).toUtf8();
    Schreibe(Pfad("gross.kor"), Gross);
    Plattform->StopDrücken = true;
    Wähle(Pfad("gross.kor"));
    Menü("MenüDateiHinzuLesenKomplett");
    QCOMPARE(KorAnzahl, 5);
    QVERIFY(QApplication::overrideCursor() == nullptr);
    QVERIFY(Fenster->findChild<QAction*>("MenüKatasterLinel")->isEnabled());
  }

  void hilfeOptionenUndEnde() {
    Öffne("MenüKatasterPolel");
    HandbuchZeigen(0);
    QCoreApplication::processEvents();
    QVERIFY(handbuch()->width() <= Fenster->screen()->availableSize().width());
    QCOMPARE(handbuch()->findChild<QTextBrowser*>()->horizontalScrollBar()->maximum(), 0);
    handbuch()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTRY_VERIFY(Fenster->isActiveWindow());
    Drücke(Qt::Key_F1);
    QWidget* Rahmen = handbuch();
    auto* Handbuch = Rahmen->findChild<QTextBrowser*>();
    QCOMPARE(Handbuch->source().fileName(), QString("polarelemente.md"));
    QVERIFY(Handbuch->toPlainText().contains("Polarelemente"));
    auto* Verzeichnis = Rahmen->findChild<QListWidget*>();
    QVERIFY(Verzeichnis->count() > 12 && Verzeichnis->item(1)->text() == "Die erste Viertelstunde");
    QTest::keyClicks(Rahmen->findChild<QLineEdit*>(), "alt+links");
    QCOMPARE(Verzeichnis->count(), 1);
    QTest::keyClick(Rahmen->findChild<QLineEdit*>(), Qt::Key_Return);
    QCOMPARE(Handbuch->source().fileName(), QString("tasten.md"));
    for (const int Breite : {700, 1100}) {  // the pictures of the first page go with the window
      Rahmen->resize(Breite, 700);
      Handbuch->setSource(QUrl("qrc:/handbuch/index.md"), QTextDocument::MarkdownResource);
      QCOMPARE(Handbuch->horizontalScrollBar()->maximum(), 0);
    }
    Handbuch->backward();
    QCOMPARE(Handbuch->source().fileName(), QString("tasten.md"));
    Rahmen->close();
    Dialoge.push_back([] {  // also inside a dialog
      QWidget* Dialog = QApplication::activeModalWidget();
      QTest::keyClick(Dialog, Qt::Key_F1);
      QCOMPARE(handbuch()->findChild<QTextBrowser*>()->source().fileName(), QString("optionen.md"));
      QCOMPARE(Dialog->windowModality(), Qt::WindowModal);  // it can be read beside it
      handbuch()->close();
      QTest::keyClick(Dialog, Qt::Key_Escape);
    });
    Menü("MenüOptionenOptionen");
    QVERIFY(Dialoge.empty());
    static const QRegularExpression Verweis("\\]\\(([^)]+)\\)");
    for (int Nummer = 0; Nummer < 9000; Nummer += 10) {
      const QByteArray Seite = Inhalt(":/handbuch/" + Handbuchseite(Nummer));
      QVERIFY2(!Seite.isEmpty(), qPrintable(Handbuchseite(Nummer)));
      for (const auto& Treffer : Verweis.globalMatch(QString::fromUtf8(Seite))) {
        QVERIFY2(QFile::exists(":/handbuch/" + Treffer.captured(1)), qPrintable(Treffer.captured(1)));
      }
    }
    Antworte(Qt::Key_Escape, Qt::NoModifier);
    Menü("MenüOptionenOptionen");
    Antworte(Qt::Key_N);
    QVERIFY(!Fenster->close());  // "Tavorena beenden ?" No
    QVERIFY(BlätterOffen());
    Antworte(Qt::Key_J);
    Antworte(Qt::Key_A);
    QVERIFY(!Fenster->close());  // the save question was cancelled
    QCOMPARE(KorAnzahl, 5);
    Antworte(Qt::Key_J);
    Antworte(Qt::Key_N);
    QVERIFY(Fenster->close());
  }

  void musterWaehltDenFilter() {
    for (const auto& [Eintrag, Filter] : {std::pair{"MenüDateiLesen(0)", "CADdy (*.kor *.KOR)"},
                                          std::pair{"MenüDateiLesen(2)", "ALK (*.alk *.ALK)"}}) {
      Dialoge.push_back([Erwartet = QString(Filter)] {
        auto* Dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(Dialog != nullptr);
        Dialog->close();
        QCOMPARE(Dialog->selectedNameFilter(), Erwartet);
      });
      Menü(Eintrag);
    }
  }

  void jederEintragIstImMenue() {
    for (const Menüeintrag& E : Menübaum()) QVERIFY2(Fenster->findChild<QAction*>(E.Name) != nullptr, E.Name);
    for (const Werkzeug& W : Symbolleiste()) {
      auto* A = Fenster->findChild<QAction*>(W.Name);
      QVERIFY2(A != nullptr && !A->icon().isNull(), W.Name);
      const QImage Bild = A->icon().pixmap(24).toImage();
      QImage Leer(Bild.size(), Bild.format());
      Leer.fill(Qt::transparent);
      QVERIFY2(!Bild.isNull() && Bild != Leer, W.Name);
    }
    QVERIFY(!Fenster->findChild<QAction*>("MenüKatasterLinel")->isEnabled());
  }
};

QTEST_MAIN(FensterTest)
#include "FensterTest.moc"
