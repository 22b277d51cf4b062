// The sequences of keys that the handbook prints, played in the window.
#include "Fenstertest.h"

#include <tavorena/worksheets/Blattart.h>

using namespace tavorena;
using namespace tavorena::test;

class SeitenTest final : public Fensterumgebung {
  Q_OBJECT

 private slots:
  // What the handbook prints is either a key or typed, and nothing waits for an answer that does not come.
  void tastenWieGedruckt() {
    std::vector<Tastendruck> Tasten;
    QCOMPARE(TastenfolgeLesen("Alt+R L  Strg++\nUmschalt+Tab 9,ß F12 + Return", Tasten), QString());
    QStringList Gelesen;
    for (const Tastendruck& T : Tasten) Gelesen << QKeySequence(T.Mit | Qt::Key(T.Taste)).toString() + T.Text;
    QCOMPARE(Gelesen.join(' '), QString("Alt+Rr LL Ctrl++ Shift+Backtab\t 99 ,, ßß F12 ++ Return\r"));
    QCOMPARE(TastenfolgeLesen("Alt+R Alt+Lnks", Tasten), QString("Alt+Lnks"));

    Schreibe(Pfad("t.kor"), "1 3500100 5600200\r\n");
    Schreibe(Pfad("t.dru"), "\r\n");
    Spiele("Strg+O " + Pfad("t.kor") + " Return Alt+N");
    QVERIFY(KorAnzahl == 1 && !Prot.Datei.empty());
    Spiele("Alt+B E Alt+L Alt+S");  // buttons that act behind their press
    QVERIFY(KorAnzahl == 0 && !BlätterOffen());
    QCOMPARE(Gespielt("Alt+O Return"), QString("offen blieb: Tavorena Optionen"));
    QVERIFY(VordererDialog() == nullptr);
  }

  // The example on the page of every worksheet: its keys write what the page shows behind them.
  void blattWieGedruckt_data() {
    QTest::addColumn<QByteArray>("Eintrag");
    QTest::addColumn<QString>("Text");
    QSet<QString> Bekannt;
    for (const Blattart& Art : Blattarten()) {
      if (Bekannt.contains(Art.Seite)) continue;  // of some kinds the first one
      Bekannt.insert(Art.Seite);
      const QString Text =
          QString::fromUtf8(Inhalt(QString(TAVORENA_TESTS "/../docs/handbuch/") + Art.Seite));
      QTest::newRow(Art.Seite) << QByteArray(Art.Menü) << Text;
    }
  }
  void blattWieGedruckt() {
    QFETCH(QByteArray, Eintrag);
    QFETCH(QString, Text);
    static const QRegularExpression Kasten(
        "```tasten\n(.*?)```.*?```(?:ausgabe|aus musterdorf.dru)\n(.*?)```",
        QRegularExpression::DotMatchesEverythingOption);
    for (const char* Name : {"m.kor", "m.dru", "m.sta", "passpunkte.kor"}) QFile::remove(Pfad(Name));
    QVERIFY(QFile::copy(TAVORENA_TESTS "/../examples/musterdorf.kor", Pfad("m.kor")));
    QVERIFY(QFile::copy(TAVORENA_TESTS "/../examples/passpunkte.kor", Pfad("passpunkte.kor")));
    Spiele("Strg+O " + Pfad("m.kor") + " Return");
    Optionen.AbfrageRiss = false;
    Menü(Eintrag);
    const auto Beispiel = Kasten.match(Text);
    QVERIFY(Beispiel.hasMatch());
    Spiele(Beispiel.captured(1));
    QString Protokoll = QString::fromUtf8(Inhalt(Pfad("m.dru")));
    Protokoll.remove(QRegularExpression("[ \r]+(?=\n)"));
    for (const QString& Teil : Beispiel.captured(2).split("...\n"))
      QVERIFY2(Protokoll.contains('\n' + Teil), qPrintable("fehlt:\n" + Teil + "in:\n" + Protokoll));
  }
};

QTEST_MAIN(SeitenTest)
#include "SeitenTest.moc"
