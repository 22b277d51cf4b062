// Work in the window driven by key presses, as a surveyor drives it. Runs with QT_QPA_PLATFORM=offscreen.
#include "Fenstertest.h"

using namespace tavorena;
using namespace tavorena::test;

class FensterTest final : public Fensterumgebung {
  Q_OBJECT

 private slots:
  // Open a file, three worksheets, leave, save; look at the three files; replay the job on them.
  void einAuftragMitDerTastatur() {
    Öffne();
    Spiele("Alt+R L L Return Riss Leer 12 Return 3 Return 1001 Return 1002 Return 0 Return 99,93 Return");
    Spiele("2003 Return 2004 Return");
    QVERIFY(!Fenster->findChild<QTableView*>("LinelGitter")->isColumnHidden(5));
    Drücke(Qt::Key_Plus, Qt::KeypadModifier);
    Spiele("Return Return Return");  // 2005, then out of the grid, then the end of the connection
    QCOMPARE(FokusName(), QString("LinelAnfPnr"));
    Spiele("Alt+S Alt+R P Return Return");  // the plan stays
    QCOMPARE(FokusName(), QString("PolelAnfPnr"));
    Spiele("1001 Return 1002 Return 12.5 Return 99.98 Return 2003 Return 2004 Return Return Return Alt+S");
    Spiele("Alt+R E Return Return 1001 Return 1002 Return 99.8 Return 2005 Return 0 Return Alt+S");
    QVERIFY(!BlätterOffen());
    QTest::keyClick(Fenster.get(), Qt::Key_S, Qt::ControlModifier);
    QVERIFY(
        Inhalt(Pfad("a.kor")).startsWith("          1001   3500100.000   5600200.000      12.500  015\r\n"));
    const QByteArray Protokoll = Inhalt(Pfad("a.dru")), Sta = Inhalt(Pfad("a.sta"));
    QVERIFY(Protokoll.contains("(Riss 12) 3"));
    QVERIFY(Protokoll.contains("      3500130.000  5600230.000       42.000        6.000      2003\r\n"));
    QVERIFY(Protokoll.contains("      3500130.000  5600230.000      21.5334       42.426      2003\r\n"));
    QVERIFY(Protokoll.contains("WS=      0.200  D=    0.160 ******(>D)\r\n"));
    QCOMPARE(Sta.count("\nNR  ") + Sta.count("\nNND "), 6);

    Dialoge.push_back([] {
      QCOMPARE(VordererDialog()->windowTitle(), QString("a.kor drucken"));
      Drücke(Qt::Key_Escape);
    });
    QTest::keyClick(Fenster.get(), Qt::Key_P, Qt::ControlModifier);
    QVERIFY(Dialoge.empty());

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
    // Beside the question the view can be used and gives its point, but nothing else of the window.
    Dialoge.push_back([this] {
      QWidget* Dialog = VordererDialog();
      auto* Bild = Fenster->findChild<QWidget*>("GrafBild");
      QWindow* Haupt = Fenster->windowHandle();
      const auto Im = [this](const QWidget* W, QPoint Stelle) { return W->mapTo(Fenster.get(), Stelle); };
      const double Rechts = GrafikFenster.FensterRechts;
      QTest::mousePress(Haupt, Qt::MiddleButton, {}, Im(Bild, {50, 50}));
      QTest::mouseMove(Haupt, Im(Bild, {70, 50}));
      QTest::mouseRelease(Haupt, Qt::MiddleButton, {}, Im(Bild, {70, 50}));
      QVERIFY(GrafikFenster.FensterRechts < Rechts);
      QTest::keyClick(Dialog, Qt::Key_0, Qt::ControlModifier);
      QCOMPARE(GrafikFenster.FensterRechts, Rechts);
      const auto* Feld = Fenster->findChild<QWidget*>("LinelEndPnr");
      QTest::mouseClick(Haupt, Qt::LeftButton, {}, Im(Feld, Feld->rect().center()));
      QTest::keyClick(Fenster.get(), Qt::Key_O, Qt::ControlModifier);
      QVERIFY(!Fenster->close());
      auto* Anfang = Fenster->findChild<QLineEdit*>("LinelAnfPnr");
      QTest::keyClicks(Anfang, "5");
      QCOMPARE(Anfang->text(), QString("77"));
      auto* Nummer = Dialog->findChild<QLineEdit*>("EinzelPnr");
      Nummer->setFocus();
      QCoreApplication::processEvents();
      QTest::mouseClick(Haupt, Qt::LeftButton, {}, Im(Bild, Ort("1002")));
      QCOMPARE(Nummer->text(), QString("1002"));
      QTest::keyClick(Dialog, Qt::Key_Escape);
    });
    QTRY_VERIFY(GrafikFenster.Massstab > 0);
    Tippe("\n");
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

  // Every kind of worksheet from its command to its record.
  void jedesBlattWirdGetippt_data() {
    QTest::addColumn<QString>("Tasten");
    QTest::addColumn<QByteArray>("Satz");
    const auto Fall = [](const char* Eintrag, const char* Tasten, const char* Satz) {
      QTest::newRow(Eintrag) << QString(Tasten) << QByteArray(Satz);
    };
    Fall("MenüKatasterOrtho", "1001\n1002\n0\n0\n3001\n30\n5\n015\n",
         "AO      3001        30.0000         5.0000         0.0000  015");
    Fall("MenüKatasterPolar", "1001\n1002\n12,5\n0\n3001\n80,25\n98,4\n70\n\n",
         "PWS     3001        80.2500        98.4000        70.0000  -");
    Fall("MenüKatasterIntll", "1001\n1002\n2,5\n\n\n2003\n2005\n\n\n2004\n3001\n015\n",
         "G2PWIN     2004\r\nNEUPUNKT       3001  015\r\nE  (Ende)");
    Fall("MenüKatasterIntbl", "1001\n2004\n\n\n2003\n2005\n\n\n\n3001\n\n3002\n015\n",
         "NEUPUNKT       3001  -\r\nNEUPUNKT       3002  015\r\nE  (Ende)");
    Fall("MenüKatasterIntbb", "1001\n\n80\n\n1002\n2003\n\n\n3001\n\n\n\n",
         "NEUPUNKT       3001  -\r\nNEUPUNKT          0  -   -\r\nE  (Ende)");
    Fall("MenüKatasterKmitt", "1001\n2004\n2005\n3001\n015\n", "K0PMN     3001  015\r\nE  (Ende)");
    Fall("MenüKatasterVorw", "2004\n10\n1001\n39,5\n98,5\n2005\n0\n1002\n45,6\n\n3001\n\n",
         "STANDP2WS     1002       45.6000        0.0000\r\nNEUPNR     3001  -\r\nE  (Ende)");
    Fall("MenüKatasterRueck", "2003\n0\n1002\n11,5\n2005\n31,1\n3001\n7\n",
         "PARAM CASSINI\r\nPWS     2003         0.0000");
    Fall("MenüBearbeiten3D(4)", "1001\n1002\n0,85\n3001\n",
         "NR3D     1001      1002      3001        0.8500");
    Fall("MenüKatasterPolygon", "7\n2003\n1001\n127\n30\n3001\n267\n27\n\n\n1002\n171\n2005\n\n",
         "NEUPWS     3001      267.0000       27.0000  -\r\nABSCHLP     1002      171.0000");
    Fall("MenüKatasterFStat",
         "2041\n\n\n\n1001\n191,4102\n97,9169\n41,2646\n\n1002\n290,4495\n98,6468\n91,7443\n\n\n\n\n"
         "3001\n35,2217\n97,7976\n49,8716\n\n\n\n\n\n",
         "NEUPUNKT       2041  -\r\nPWS     3001        35.2217        97.7976        49.8716");
    Fall("MenüFunktNivellement",
         "\n1001\n1,23456\n\n\n25,3\n\n\n100\n\n1002\n\n\n1,2\n\n25,1\n\n\nBolzen\n\n\n",
         "FEST     1001      100.0000\r\nNIV     1001        1.23456              -              -       "
         "25.30000");
    Fall("MenüKatasterArea", "N\n\n1001\n\n100,02\n1002\n-70g\n\n2003\n\n\n\n\n",
         "PN        1001      100.0200\r\nPNRIG     1002       70.0000        0.0000\r\nPN        2003");
  }
  void jedesBlattWirdGetippt() {
    Öffne(QTest::currentDataTag());
    QFETCH(const QString, Tasten);
    QFETCH(const QByteArray, Satz);
    TippeVoraus(Tasten);
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
    QVERIFY2(Inhalt(Pfad("a.sta")).contains(Satz), Inhalt(Pfad("a.sta")));
    QVERIFY(!Tasten.contains("3001") || KorSuche(std::string_view("3001")) >= 0);
  }

  // The day's raw data: report, connection, station, polar points.
  void stationAusMessdatei() {
    Öffne("MenüKatasterFStat");
    Schreibe(Pfad("tag.gsi"),
             "410001+00000060 42....+00002041\r\n"
             "110002+00001001 21.322+19141020 22.322+09791690 31..06+00412646\r\n"
             "110003+00001002 21.322+29044950 22.322+09864680 31..06+00917443\r\n"
             "410004+00000060 42....+00002041\r\n"
             "110005+00003001 21.322+03522170 22.322+09779760 31..06+00498716\r\n");
    Wähle(Pfad("tag.gsi"));
    Dialoge.push_back([] {
      QTest::mouseClick(VordererDialog()->findChild<QPushButton*>("RohdatenÜbernehmen"), Qt::LeftButton);
    });
    Drücke(Qt::Key_M, Qt::AltModifier);
    QTRY_VERIFY(Dialoge.empty());
    QTRY_COMPARE(Fenster->findChild<QTableView*>("FStatGitter")->model()->rowCount(), 3);
    for (const char* Schritt : {"Rechnen Helmert", "Stp.übernehmen", "Pkte übernehmen"}) {
      auto* Knopf = Fenster->findChild<QPushButton*>("FstatBerechnen");
      QTRY_COMPARE(Knopf->text(), QString(Schritt));
      QTRY_VERIFY(Fenster->isActiveWindow());
      Knopf->setFocus();
      Drücke(Qt::Key_Return);
    }
    QTRY_VERIFY(KorSuche(std::string_view("3001")) >= 0);
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
    for (const char* Satz :
         {"PSN     1001      191.4102", "NEUPUNKT       2041", "PWS     3001        35.2217"})
      QVERIFY2(Inhalt(Pfad("a.sta")).contains(Satz), Inhalt(Pfad("a.sta")));
    QVERIFY(Inhalt(Pfad("a.dru")).contains("VR 19.70  Polare Punkte"));
  }

  // Passpoints are sorted by a heading and unticked by the space bar.
  void passpunkteMitMausUndTastatur() {
    Öffne("MenüKatasterHelmert");
    Schreibe(Pfad("neu.kor"), "1001 0 0\r\n1002 60 80.01\r\n2003 30 30\r\n2004 0 75.5\r\n");
    Tippe("neu\n\n");
    auto* Tabelle = Fenster->findChild<QTableView*>("HelmertGitter");
    const auto Zelle = [&](int Spalte) { return Tabelle->model()->index(0, Spalte).data().toString(); };
    QTRY_COMPARE(Zelle(1), QString("1001"));
    QHeaderView* Kopf = Tabelle->horizontalHeader();
    QTest::mouseClick(Kopf->viewport(), Qt::LeftButton, {}, {Kopf->sectionViewportPosition(9) + 5, 5});
    QCOMPARE(Zelle(1), QString("2004"));
    Drücke(Qt::Key_Space);
    QCOMPARE(Zelle(0), QString());
    Antworte(Qt::Key_J);
    Drücke(Qt::Key_M, Qt::AltModifier);
    QTRY_VERIFY(Inhalt(Pfad("a.sta")).contains("KEINPASSP       2004\r\nPASSP       1002\r\n"));
    QTRY_COMPARE(FokusName(), QString("HelmertZurück"));
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

  // At its place, without the tool bar; the view shows both places until a click, and nothing else works
  // then.
  void punktVorhandenUndDieOrte() {
    Öffne();
    auto* Bild = Fenster->findChild<QWidget*>("GrafBild");
    QTRY_VERIFY(GrafikFenster.Massstab > 0);
    const auto* Leiste = Fenster->findChild<QToolBar*>("Symbolleiste");
    const double Breite = GrafikFenster.FensterBreite;
    int Angesehen = 0;
    Plattform->BeiGrafik = [&] {
      QTest::keyClick(Fenster.get(), Qt::Key_O, Qt::ControlModifier);
      double x[2], y[2];
      GrafikPixelAusWelt(3500100, 5600200, x[0], y[0]);
      GrafikPixelAusWelt(3500100.02, 5600200, x[1], y[1]);
      QVERIFY(x[0] > 0 && x[1] < GrafikFenster.BildBreite && x[1] - x[0] > GrafikFenster.BildBreite / 4);
      QVERIFY(!Leiste->isHidden());
      if (++Angesehen == 1) return QTest::mouseClick(Bild, Qt::LeftButton);
      QTest::keyClick(Fenster.get(), Qt::Key_Escape);
    };
    for (const Qt::Key Taste : {Qt::Key_R, Qt::Key_R, Qt::Key_B}) {
      Dialoge.push_back([=, this] {
        QWidget* Dialog = VordererDialog();
        QCOMPARE(Dialog->pos() - Fenster->pos(), QPoint(67, 67));
        QVERIFY(Dialog->width() >= 640 && Leiste->isHidden());
        auto* Feld = Dialog->findChild<QLineEdit*>("NeuerPunktPnr");
        QCOMPARE(Feld->text(), QString("1001"));
        Feld->setFocus();
        Tippe("7");
        QTest::keyClick(Dialog, Taste, Qt::AltModifier);
      });
    }
    Wert Pnr("1001");
    NeupunktErgebnis E;
    const std::uint64_t Stand = KorStand;
    QVERIFY(Neupunkt(Pnr, 3500100.02, 5600200, Wert(), "", nullptr, E) == NeupunktCode::Nichts);
    QVERIFY(Angesehen == 2 && KorStand == Stand && !Leiste->isHidden());
    QCOMPARE(GrafikFenster.FensterBreite, Breite);
  }

  // One question in a replay answers for all blocks to come, and the next replay asks anew.
  void eineAntwortFuerDenStapel() {
    Öffne();
    QByteArray Sta;
    for (const char* Zeilen : {"AO 2003 50 0 0\r\nAO 2004 50 0 0\r\n", "AO 2005 50 0 0\r\n"})
      Sta += QByteArray("M VR 22.00\r\nPAN 1001 0\r\nPEN 1002 0\r\n") + Zeilen + "E Ende\r\n";
    Schreibe(Pfad("b.sta"), Sta);
    for (const Qt::Key Taste : {Qt::Key_M, Qt::Key_N}) {  // the means stay
      Wähle(Pfad("b.sta"));
      Dialoge.push_back([=] {
        auto* FürAlle = VordererDialog()->findChild<QCheckBox*>("PDoppFürAlle");
        QVERIFY(FürAlle->isVisible() && !FürAlle->isChecked());
        QTest::keyClick(VordererDialog(), Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(FürAlle->isChecked());
        QTest::keyClick(VordererDialog(), Taste, Qt::AltModifier);
      });
      Menü("MenüDateiStapel");
      QTRY_COMPARE(FokusName(), QString("OrthoWeiter"));
      Drücke(Qt::Key_J, Qt::AltModifier);
      Drücke(Qt::Key_W, Qt::AltModifier);
      QTRY_VERIFY(!Stapel.Läuft());
      QCOMPARE(Stapel.Bilanz.Zeilen, 3);
      for (const auto& [Pnr, Hoch] : {std::pair{"2003", 5600235.0}, {"2004", 5600257.5}, {"2005", 5600300.0}})
        QVERIFY(std::abs(KorHoch[static_cast<std::size_t>(KorSuche(std::string_view(Pnr)))] - Hoch) < 1e-6);
    }
  }

  // Ctrl+Z: first the text that is typed, then the form, then the whole table.
  void zurueckNimmtDasNaechste() {
    struct Probe final : Formular {
      Probe() : Formular("Probe") { FeldAnlegen("Wert", {0, 0}); }
      bool Zurücknehmen() override { return Taten-- > 0; }
      int Taten = 1;
    };
    Öffne();
    Dialoge.push_back([] {
      QWidget* Frage = QApplication::activeModalWidget();
      QTest::keyClick(Frage, Qt::Key_F1);
      QCOMPARE(handbuch()->findChild<QTextBrowser*>()->source().fileName(), QString("tabelle.md"));
      handbuch()->close();
      QTest::keyClick(Frage, Qt::Key_J, Qt::AltModifier);
    });
    Menü("MenüBearbeitenTauschen(0)");
    QVERIFY(std::abs(GrafikFenster.FensterRechts - 5600200) < 1000);  // the view went with the points
    auto Blatt = std::make_unique<Probe>();
    Probe& Form = *Blatt;
    BlattZeigen(std::move(Blatt));
    Tippe("12");
    for (const auto& [Taten, Rechts] : {std::pair{1, 5600200}, {0, 5600200}, {-1, 3500100}}) {
      Drücke(Qt::Key_Z, Qt::ControlModifier);
      QCOMPARE(Feldtext(), QString());
      QCOMPARE(Form.Taten, Taten);
      QCOMPARE(KorRechts[0], Rechts);
    }
    Form.SchließenVerlangen();
    Antworte(Qt::Key_J);
    Menü("MenüBearbeitenTauschen(0)");
    QTRY_VERIFY(Fenster->isActiveWindow());
    QTest::keyClick(Fenster.get(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(KorRechts[0], 3500100);
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

  // Points that are averaged, deleted and brought back by keys and clicks in the view.
  void punkteMittelnUndLoeschen() {
    Öffne();
    QCOMPARE(KorAnhängen({"2004", 3500100.05, 5600275, 0, "", nullptr}), 0);
    Menü("MenüKatasterDMitt");
    QTRY_COMPARE(FokusName(), QString("DMittMitteln"));
    Drücke(Qt::Key_Return);
    QTRY_VERIFY(Fenster->findChildren<QMdiSubWindow*>().isEmpty());
    QCOMPARE(KorAnzahl, 5);
    QCOMPARE(Inhalt(Pfad("a.dru")).count("2004 ***Mittel"), 1);
    Menü("MenüKatasterPMitt");
    QTRY_COMPARE(FokusName(), QString("AlterPunktPnr(0)"));
    for (const char* Pnr : {"1001", "1002"}) KlickeInGrafik(Pnr);
    QCOMPARE(FokusName(), QString("AlterPunktPnr(2)"));
    Drücke(Qt::Key_P, Qt::AltModifier);
    QTRY_COMPARE(KorAnzahl, 4);
    Drücke(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(KorAnzahl, 5);
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(Fenster->findChildren<QMdiSubWindow*>().isEmpty());
    Menü("MenüKatasterPunktLöschen");
    QTRY_COMPARE(FokusName(), QString("LoeschPnr"));
    KlickeInGrafik("2003");
    Tippe("1002\n");
    Fenster->findChild<QTableView*>("LoeschGitter")->setFocus();
    Drücke(Qt::Key_Space);  // leaves the last one out
    Antworte(Qt::Key_J);
    Drücke(Qt::Key_L, Qt::AltModifier);
    QTRY_COMPARE(KorAnzahl, 4);
    QVERIFY(KorSuche(Wert("2003")) < 0);
    QTRY_COMPARE(FokusName(), QString("LoeschPnr"));
    Drücke(Qt::Key_F1);
    QTRY_COMPARE(handbuch()->findChild<QTextBrowser*>()->source().fileName(), QString("loeschen.md"));
    handbuch()->close();
  }

  // Connection and rows clicked in the view; what was seen there comes and goes with the mouse and the keys.
  void punkteAusDerGrafik() {
    Öffne("MenüKatasterLinel");
    auto* Bild = Fenster->findChild<QWidget*>("GrafBild");
    QTRY_VERIFY(Bild->isVisible() && GrafikFenster.Massstab > 0);
    QTRY_COMPARE(FokusName(), QString("LinelAnfPnr"));
    const auto Klicke = [this](const char* Pnr) { KlickeInGrafik(Pnr); };
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
    const QImage Verschoben = Bild->grab().toImage();  // the scale bar, too, as if it were drawn anew
    Fenster->findChild<QAction*>("GrafZoomneu")->trigger();
    QVERIFY(Bild->grab().toImage() == Verschoben);
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
    // F1 on an entry of the menu under the mouse tells of that entry.
    QTimer::singleShot(50, this, [this] {
      auto* Liste = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      QVERIFY(Liste != nullptr);
      Liste->setActiveAction(Fenster->findChild<QAction*>("GrafDXFLesen"));
      QTest::keyClick(Liste, Qt::Key_F1);
      Liste->close();
    });
    QTest::mouseClick(Bild, Qt::RightButton, {}, QPoint(9, 9));
    QCOMPARE(handbuch()->findChild<QTextBrowser*>()->source().fileName(), QString("dxf.md"));
    handbuch()->close();
    // Printed by the keyboard, on as many sheets as the scale asks for.
    Dialoge.push_back([this] {
      QWidget* Vorschau = QApplication::activeModalWidget();
      auto* Blätter = Vorschau->findChild<QSpinBox*>("DruckSeite");
      QVERIFY(!Blätter->isEnabled());
      QTest::keyClick(Vorschau, Qt::Key_M, Qt::AltModifier);
      Tippe("250");
      QCOMPARE(Blätter->maximum(), 8);
      const QImage Erste = Vorschau->findChild<QWidget*>("Seitenbild")->grab().toImage();
      QTest::keyClick(Blätter, Qt::Key_Up);
      QVERIFY(Vorschau->findChild<QWidget*>("Seitenbild")->grab().toImage() != Erste);
      QTest::keyClick(Vorschau, Qt::Key_V, Qt::AltModifier);
      Tippe("3");
      Wähle(Pfad("plan.pdf"));
      QTest::keyClick(Vorschau, Qt::Key_P, Qt::AltModifier);
    });
    Fenster->findChild<QAction*>("GrafDrucken")->trigger();
    QVERIFY(Inhalt(Pfad("plan.pdf")).contains("/Count 6"));
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

  // What was drawn before and only moved or mended looks as if all were drawn anew, on every screen.
  void grafikBleibtPixelgleich() {
    Öffne();
    GrafikWahl.Nummern = true;
    GrafikLinieHinzu({3499000, 5600000, 3501000, 5600700, FarbeRot, Strich::Gestrichelt, false});
    GrafikLinieHinzu({3500000, 5600100, 3500230, 5600390, FarbeBlau, Strich::Durchgezogen, false});
    GrafikBogenHinzu({3500150, 5600280, 71.3, 20, 310, FarbeSchwarz, false});
    GrafikTextHinzu({3500110, 5600300, "Ägidienstraße", 14, FarbeBlau});
    GrafikZoomAnpassen();
    for (const double Dichte : {1.0, 1.25, 2.0}) {
      const QRect Fläche(0, 0, 601, 401);
      const auto Malen = [&](Bildkacheln& K) {
        QImage Bild(Fläche.size() * Dichte, QImage::Format_RGB32);
        Bild.setDevicePixelRatio(Dichte);
        QPainter Maler(&Bild);
        K.Malen(Maler, Fläche, Dichte, Fenster->palette());
        return Bild;
      };
      const auto Gleich = [&](Bildkacheln& K) {
        const QImage Bisher = Malen(K);
        K.Veralten();
        return Malen(K) == Bisher;
      };
      GrafikGrößeSetzen(Fläche.width() * TwipsJePixel, Fläche.height() * TwipsJePixel);
      Bildkacheln K;
      QImage Zuvor = Malen(K);
      GrafikBeiÄnderung = [&](const std::optional<Grafikregion>& Wo) { K.Veralten(*Wo); };
      for (int Schritt = 0; Schritt < 12; ++Schritt) {
        GrafikSchieben((Schritt * 7 % 90 - 40) / Dichte * TwipsJePixel,
                       (Schritt * 11 % 70 - 30) / Dichte * TwipsJePixel);
        QVERIFY2(Gleich(K), qPrintable(QString("%1 %2").arg(Dichte).arg(Schritt)));
        const int Marke = GrafikMarkeHinzu({"20" + std::to_string(Schritt), 3500040 + Schritt * 17.3,
                                            5600200 + Schritt * 4.1, "", FarbeRot});
        QVERIFY(std::exchange(Zuvor, Malen(K)) != Zuvor);
        QVERIFY(Gleich(K));
        if (Schritt % 2 == 0) GrafikMarkeWeg(Marke);
        QVERIFY(Gleich(K));
        if (Schritt % 10 == 9)
          QCOMPARE(KorZeileSetzen(1, {"7", 3500100.0 + Schritt, 5600333, 0, "", nullptr}), 0);
        K.Nachsehen();
        QVERIFY(Gleich(K));
      }
      GrafikBeiÄnderung = {};
    }
    KoordinatendateiName.clear();
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

  // New points typed and pasted, then one of them found and changed; what was open meanwhile is closed again.
  void koordinatenEingebenUndEditieren() {
    Öffne();
    Menü("MenüKatasterKorein");
    QTRY_COMPARE(FokusName(), QString("EditorGitterFeld"));
    Tippe("3001\n3500110\n");
    Drücke(Qt::Key_Tab);
    Drücke(Qt::Key_Backtab, Qt::ShiftModifier);
    Tippe("5600210\n\n015\n");
    QApplication::clipboard()->setText(
        "3002\t3500111\t5600211\t12.5\t\r\n  3003   3500112.000   5600212.000\r\n"
        "3004 x 5600213\r\n3005 3500114 5600214\r\n");
    Antworte(Qt::Key_O);
    Drücke(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(KorAnzahl, 8);
    QTRY_COMPARE(FokusName(), QString("EditorGitterFeld"));
    QCOMPARE(Feldtext(), QString("x"));  // refused: it stays, and what is behind it stays away
    Drücke(Qt::Key_L, Qt::AltModifier);
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
    auto* Lesen = Fenster->findChild<QAction*>("ImageOptionen");
    Dialoge.push_back([&] {
      QTRY_COMPARE(FokusName(), QString("EditorGitterFeld"));
      QVERIFY(!Lesen->isEnabled());
      QCOMPARE(qobject_cast<QLineEdit*>(QApplication::focusWidget())->selectedText(), QString("1001"));
      Drücke(Qt::Key_E, Qt::AltModifier);
      Tippe("3002\n");
      QTRY_COMPARE(Feldtext(), QString("3002"));
      Drücke(Qt::Key_Tab);
      Tippe("3500120\n");
      Drücke(Qt::Key_End, Qt::ControlModifier);
      Drücke(Qt::Key_S, Qt::AltModifier);
    });
    Menü("MenüBearbeitenEditieren");
    QTRY_VERIFY(Dialoge.empty() && Lesen->isEnabled());
    QCOMPARE(KorRechts[static_cast<std::size_t>(KorSuche(std::string_view("3002")))], 3500120.0);
    QCOMPARE(Inhalt(Pfad("a.dru")).count("VR 25.10"), 1);
  }

  // From the menu to the protocol and back, and to the point in the view.
  void listeDerPunkte() {
    Öffne("MenüAnsichtKoordinaten");
    QTRY_COMPARE(FokusName(), QString("TextanzeigeGitter"));
    Drücke(Qt::Key_Space);
    Drücke(Qt::Key_Down, Qt::ShiftModifier);
    Antworte(Qt::Key_J);
    Drücke(Qt::Key_M, Qt::AltModifier);
    QTRY_COMPARE(KorAnzahl, 4);
    QVERIFY(Inhalt(Pfad("a.dru")).contains("***Mittel"));
    QTRY_COMPARE(FokusName(), QString("TextanzeigeGitter"));
    Drücke(Qt::Key_Z, Qt::ControlModifier);
    QTRY_COMPARE(KorAnzahl, 5);
    auto* Grafik = Fenster->findChild<QDockWidget*>("TVKernGrafikform");
    auto* Tabelle = Fenster->findChild<QTableView*>("TextanzeigeGitter");
    QTRY_COMPARE(Tabelle->model()->rowCount(), 5);
    Grafik->hide();
    const QPoint Letzte = Tabelle->visualRect(Tabelle->model()->index(4, 1)).center();
    for (int i = 0; i < 2; ++i) {  // the second time it is open
      GrafikSchieben(500, 500);
      QTest::mouseClick(Tabelle->viewport(), Qt::LeftButton, {}, Letzte);
      QTest::mouseDClick(Tabelle->viewport(), Qt::LeftButton, {}, Letzte);
      QTRY_COMPARE(GrafikFenster.FensterRechts + GrafikFenster.FensterBreite / 2, 3500220.0);
      QVERIFY(Grafik->isVisible());
    }
    QCOMPARE(Tabelle->model()->index(4, 0).data().toString(), QString());  // a double click marks nothing
  }
};

QTEST_MAIN(FensterTest)
#include "FensterTest.moc"
