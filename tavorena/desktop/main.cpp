#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/shell/TVHauptmodul.h>

using namespace tavorena;

int main(int argc, char** argv) {
  QApplication App(argc, argv);
  QApplication::setApplicationName("Tavorena");
  QApplication::setDesktopFileName("tavorena");
  QTranslator Deutsch;
  if (Deutsch.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&Deutsch);

  QCommandLineParser Zeile;
  Zeile.setApplicationDescription("Vermessungstechnische Berechnungen");
  const QCommandLineOption Hilfe({"h", "help"}, "Diese Hilfe"), Hell("hell", "Helles Aussehen"),
      Dunkel("dunkel", "Dunkles Aussehen");
  Zeile.addOptions({Hilfe, Hell, Dunkel});
  Zeile.addPositionalArgument("datei", "Koordinatendatei, die geöffnet wird", "[datei.kor]");
  Zeile.process(App);
  if (Zeile.isSet(Hilfe)) Zeile.showHelp();

  AussehenSetzen(App, Zeile.isSet(Dunkel) ? Helligkeit::Dunkel
                      : Zeile.isSet(Hell) ? Helligkeit::Hell
                                          : Helligkeit::System);
  Hauptfenster Fenster;
  PlattformQt Qt(Fenster);
  PortsSetzen(PortsVon(Qt));
  HauptAnschließen();
  Fenster.show();
  const QStringList Dateien = Zeile.positionalArguments();
  const auto Starten = [&Dateien] {
    HauptInitialisierung();
    if (!Dateien.isEmpty()) HauptDateiÖffnen(Dateien.first().toStdString(), Dateiformat::Kor);
  };
  static_cast<void>(Geschützt("Tavorena.Start", Starten));  // the window is there all the same
  const int Ergebnis = QApplication::exec();
  PortsSetzen({});
  return Ergebnis;
}
