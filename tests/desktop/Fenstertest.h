#pragma once

#include "Tastenfolge.h"

#include <deque>
#include <functional>

#include <QtTest>
#include <QtWidgets>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Bildkacheln.h>
#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Handbuch.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/forms/Punktnummer.h>
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

namespace tavorena::test {

// A platform whose clock stands still, and which presses the stop button when it is told to.
class Testplattform final : public PlattformQt {
 public:
  explicit Testplattform(Hauptfenster& H) : PlattformQt(H), Fenster(H) {}
  Zeitpunkt Jetzt() override { return {2003, 2, 1, 10, 15}; }
  double Zeitgeber() override { return Sekunden += 1; }
  // Beside the program, not beside the test.
  std::string ProgrammOrdner() override { return PlattformQt::ProgrammOrdner() + "/../tavorena/desktop"; }
  std::string Dokumentordner() override { return Dokumente.toStdString(); }
  void EreignisseAbarbeiten() override {
    QWidget* Vorn = VordererDialog();
    if (StopDrücken) QTest::keyClick(Vorn != nullptr ? Vorn : &Fenster, Qt::Key_Escape);
    PlattformQt::EreignisseAbarbeiten();
  }
  void GrafikAnsehen() override {
    QTimer::singleShot(50, BeiGrafik);
    PlattformQt::GrafikAnsehen();
  }
  bool StopDrücken = false;
  QString Dokumente;
  std::function<void()> BeiGrafik;  // what is done while the view is looked at

 private:
  Hauptfenster& Fenster;
  double Sekunden = 0;
};

// Types into whatever has the focus; "\n" is Return.
inline void Tippe(const QString& Text) {
  for (const QChar z : Text) {
    QTRY_VERIFY(QApplication::focusWidget() != nullptr);
    QWidget* Ziel = QApplication::focusWidget();
    z == '\n' ? QTest::keyClick(Ziel, Qt::Key_Return) : QTest::keyClicks(Ziel, QString(z));
    QCoreApplication::processEvents();
  }
}

// Puts all keys into the queue at once, before the first is looked at; each goes to whatever has the focus
// then. Danach looks at the window behind each Return.
inline void TippeVoraus(
    const QString& Text, const std::function<void()>& Danach = [] {}) {
  for (const QChar z : Text) {
    QMetaObject::invokeMethod(
        qApp,
        [z, Danach] {
          QWidget* Ziel = QApplication::focusWidget();
          if (Ziel == nullptr) Ziel = VordererDialog();
          if (Ziel == nullptr) return;
          z == '\n' ? QTest::keyClick(Ziel, Qt::Key_Return) : QTest::keyClick(Ziel, z.toLatin1());
          if (z == '\n') Danach();
        },
        Qt::QueuedConnection);
  }
  QCoreApplication::processEvents();
}

inline void Drücke(Qt::Key Taste, Qt::KeyboardModifiers Mit = Qt::NoModifier) {
  QTest::keyClick(QApplication::focusWidget(), Taste, Mit);
  QCoreApplication::processEvents();
}

inline QString Feldtext() {
  const auto* F = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  return F != nullptr ? F->text() : QString();
}

inline void Schreibe(const QString& Name, const QByteArray& Bytes) {
  QFile Datei(Name);
  QVERIFY(Datei.open(QIODevice::WriteOnly) && Datei.write(Bytes) == Bytes.size());
}

inline QByteArray Inhalt(const QString& Name) {
  QFile Datei(Name);
  return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

/// The window with a job in a folder of its own, and what answers its dialogs.
class Fensterumgebung : public QObject {
  Q_OBJECT

 protected:
  QTemporaryDir Ordner;
  std::unique_ptr<Hauptfenster> Fenster;
  std::unique_ptr<Testplattform> Plattform;
  std::deque<std::function<void()>> Dialoge;  // what is done in the modal dialogs that come, in order
  QTimer Bediener;
  QPointer<QWidget> Bedient;

  QString Pfad(const char* Name) const { return Ordner.filePath(Name); }
  // The lines of a PDF as a reader of somebody else finds them.
  QString PdfText(const char* Name, const QStringList& Wie = {"-fixed", "6.02"}) const {
    QProcess Zeuge;
    Zeuge.start("pdftotext", QStringList(Wie) << Pfad(Name) << "-");
    return Zeuge.waitForFinished() ? QString::fromUtf8(Zeuge.readAllStandardOutput()) : QString();
  }
  // Where a word stands on its sheet [points].
  QPointF PdfOrt(const char* Name, const QString& Wort) const {
    static const QString Muster("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>%1<");
    const auto Ort = QRegularExpression(Muster.arg(Wort)).match(PdfText(Name, {"-bbox"}));
    return {Ort.captured(1).toDouble(), Ort.captured(2).toDouble()};
  }
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
    Dialoge.push_back([=] { QTest::keyClick(VordererDialog(), Taste, Mit); });
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
  // Plays keys as the handbook prints them; what they open they have to answer themselves.
  QString Gespielt(const QString& Folge) {
    Bediener.stop();
    const QString Fehler = Tastenspieler(*Fenster).Spielen(Folge);
    Bediener.start();
    return Fehler;
  }
  void Spiele(const QString& Folge) {
    const QString Fehler = Gespielt(Folge);
    QVERIFY2(Fehler.isEmpty(), qPrintable(Fehler));
  }
  // Where the view shows a point.
  static QPoint Ort(const char* Pnr) {
    const auto z = static_cast<std::size_t>(KorSuche(std::string_view(Pnr)));
    double x = 0, y = 0;
    GrafikPixelAusWelt(KorRechts[z], KorHoch[z], x, y);
    return {qRound(x / TwipsJePixel), qRound(y / TwipsJePixel)};
  }
  void KlickeInGrafik(const char* Pnr) const {
    QTest::mouseClick(Fenster->findChild<QWidget*>("GrafBild"), Qt::LeftButton, {}, Ort(Pnr));
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

 protected slots:
  void initTestCase() {
    qputenv("TAVORENA_ORDNER", Pfad("app").toUtf8());
    AussehenSetzen(*qApp, Helligkeit::Hell);
    connect(&Bediener, &QTimer::timeout, this, [this] {
      QWidget* Offen = VordererDialog();
      if (Offen == nullptr) Bedient = nullptr;
      // Nobody manages windows here: the one in front has to be made active.
      QWidget* Aktiv = QApplication::activeWindow();
      if (Offen != nullptr && Aktiv != Offen) return Offen->activateWindow();
      if (Aktiv == nullptr && Fenster != nullptr) return Fenster->activateWindow();
      if (Offen == nullptr || Offen == Bedient) return;
      // Its sheets are on their way: it is done with.
      if (Offen->objectName() == "Druckvorschau" && TVKernMDIForm::Fenster().IstBeschäftigt()) return;
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
    Plattform->Dokumente = Pfad("Dokumente");
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
};

}  // namespace tavorena::test
