#include <iostream>

#include <QApplication>
#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QTranslator>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Ansichtdatei.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/Koordinatendatei.h>
#include <tavorena/shell/TVHauptmodul.h>

using namespace tavorena;

namespace {

constexpr const char* Hilfe = R"(Aufruf: tavorena [--hell | --dunkel] [datei.kor]
        tavorena datei.kor --ansicht bild.svg [--groesse 800x600]
        tavorena datei.kor --ansicht plan.pdf --blatt A4quer [--massstab 1000]

Vermessungstechnische Berechnungen auf der Koordinatendatei datei.kor.

Optionen:
  -h, --help   Diese Hilfe
  --version    Fassung des Programms
  --hell       Helles Aussehen
  --dunkel     Dunkles Aussehen; ohne Angabe das des Systems
  --ansicht    Schreibt die Grafik aller Punkte (pdf, svg oder png), ohne ein Fenster
  --groesse    Breite und Höhe der Ansicht in Bildpunkten, sonst 1200x900
  --blatt      Auf Papier, mit Rahmen: A4, A4quer, A3 oder A3quer
  --massstab   n des Maßstabs 1:n; ohne Angabe ein runder, in dem alles auf ein Blatt paßt

Rückgabewert: 0 getan; 1 nicht getan, etwa weil das Fenster nicht gezeigt werden kann; 2 falscher Aufruf.
)";

// Options that Qt takes for itself.
const QStringList MitWert = {"display",       "geometry", "platform",        "platformpluginpath",
                             "platformtheme", "plugin",   "qwindowgeometry", "qwindowicon",
                             "qwindowtitle",  "session",  "style",           "stylesheet"};
const QStringList OhneWert = {"reverse", "widgetcount"};

bool MitBildschirm(const QCommandLineParser& Zeile) {
#ifdef __linux__
  return Zeile.isSet("platform") || qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
         !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
  static_cast<void>(Zeile);
  return true;
#endif
}

int Aufruffehler(const QString& Text) {
  std::cerr << "tavorena: " << Text.toStdString() << " (mehr mit --help)\n";
  return 2;
}

// Of the view that is written; empty: what was typed is none.
QSize GrößeVon(const QCommandLineParser& Zeile) {
  if (!Zeile.isSet("groesse")) return {1200, 900};
  const QStringList Teile = Zeile.value("groesse").split('x');
  const QSize Größe = Teile.size() == 2 ? QSize(Teile[0].toInt(), Teile[1].toInt()) : QSize();
  return Größe.width() > 10000 || Größe.height() > 10000 ? QSize() : Größe;
}

// Messages of a run without a window.
class Stumm final : public Rückfragen, public Umgebung {
 public:
  int Meldung(const std::string& Text, Knöpfe /*Art*/, const std::string& /*Titel*/, int Vorgabe) override {
    std::cerr << "tavorena: " << QString::fromStdString(Text).replace('\n', ' ').toStdString() << '\n';
    return Vorgabe;
  }
  std::string ProgrammOrdner() override { return QCoreApplication::applicationDirPath().toStdString(); }
};

// The job of pages that was asked for. @return false: what was typed is none
bool SeitenauftragVon(const QCommandLineParser& Zeile, Seitenauftrag& A) {
  if (!BlattVon(Zeile.value("blatt").toStdString(), A.Papier)) return false;
  if (!Zeile.isSet("massstab")) return true;
  bool IstZahl = false;
  A.Maßstabszahl = Zeile.value("massstab").toDouble(&IstZahl);
  return IstZahl && A.Maßstabszahl > 0;
}

int AnsichtAusgeben(const QCommandLineParser& Zeile) {
  const std::string Koordinaten = Zeile.positionalArguments().first().toStdString(),
                    Ziel = Zeile.value("ansicht").toStdString();
  Stumm Fragen;
  PortsSetzen({&Fragen, nullptr, nullptr, &Fragen});
  DateinamenAbleiten();
  int Ergebnis = -1;
  const auto Tun = [&] {
    OptionenLesen();
    KoordinatendateiName = Koordinaten;
    Koordinatendateiformat = FormatNachEndung(Koordinaten);
    if (KoordinatendateiLesen() < 0) return;
    if (Seitenauftrag Auftrag; SeitenauftragVon(Zeile, Auftrag)) {
      SeitenkopfSetzen(Auftrag);
      Ergebnis = SeitenSchreiben(Ziel, Auftrag);
      return;
    }
    const QSize Größe = GrößeVon(Zeile);
    GrafikÖffnen(Größe.width() * TwipsJePixel, Größe.height() * TwipsJePixel);
    Ergebnis = AnsichtSchreiben(Ziel);
  };
  const bool Gut = Geschützt("Tavorena.Ansicht", Tun) == 0 && Ergebnis == 0;
  PortsSetzen({});
  return Gut ? 0 : 1;
}

// What belongs to the view that is written, and only to it. @return as AufrufLesen
int AnsichtLesen(const QCommandLineParser& Zeile) {
  for (const char* Name : {"groesse", "blatt", "massstab"}) {
    if (Zeile.isSet(Name) && !Zeile.isSet("ansicht"))
      return Aufruffehler(QString("--%1 gehört zu --ansicht").arg(Name));
  }
  if (Zeile.isSet("groesse") && GrößeVon(Zeile).isEmpty())
    return Aufruffehler("falsche Angabe: --groesse " + Zeile.value("groesse"));
  if (Zeile.isSet("groesse") && Zeile.isSet("blatt"))
    return Aufruffehler("--groesse und --blatt schließen sich aus");
  if (Zeile.isSet("massstab") && !Zeile.isSet("blatt")) return Aufruffehler("--massstab braucht --blatt");
  if (Seitenauftrag A; Zeile.isSet("blatt") && !SeitenauftragVon(Zeile, A))
    return Aufruffehler("falsche Angabe: --blatt " + Zeile.value("blatt") +
                        (Zeile.isSet("massstab") ? " --massstab " + Zeile.value("massstab") : ""));
  return Zeile.positionalArguments().isEmpty() && Zeile.isSet("ansicht")
             ? Aufruffehler("--ansicht braucht eine Koordinatendatei")
             : -1;
}

// Looks at the command line before there is a window: help and faults need no display.
// @return -1 to go on; else the exit status
int AufrufLesen(QCommandLineParser& Zeile, const QStringList& Worte) {
  Zeile.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);  // as Qt writes its own
  for (const char* Name : {"hell", "dunkel", "version"}) Zeile.addOption(QCommandLineOption(Name));
  Zeile.addOption(QCommandLineOption(QStringList{"h", "help"}));
  for (const char* Name : {"ansicht", "groesse", "blatt", "massstab"})
    Zeile.addOption(QCommandLineOption(Name, {}, "x"));
  for (const QString& Name : MitWert) Zeile.addOption(QCommandLineOption(Name, {}, "x"));
  for (const QString& Name : OhneWert) Zeile.addOption(QCommandLineOption(Name));
  const bool Gut = Zeile.parse(Worte);
  const QStringList Unbekannt = Zeile.unknownOptionNames();
  if (!Unbekannt.isEmpty()) return Aufruffehler("unbekannte Angabe: --" + Unbekannt.first());
  if (!Gut) return Aufruffehler("falsche Angabe");
  if (Zeile.positionalArguments().size() > 1)
    return Aufruffehler("unbekannte Angabe: " + Zeile.positionalArguments().at(1));
  if (Zeile.isSet("help")) return std::cout << Hilfe, 0;
  if (Zeile.isSet("version")) return std::cout << "tavorena " TAVORENA_FASSUNG "\n", 0;
  if (const int Ende = AnsichtLesen(Zeile); Ende >= 0 || Zeile.isSet("ansicht")) return Ende;
  if (MitBildschirm(Zeile)) return -1;
  std::cerr << "tavorena: kein Bildschirm; ohne Fenster rechnet tavorena-stapel\n";
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  QStringList Worte;
  for (int i = 0; i < argc; ++i) Worte << QString::fromLocal8Bit(argv[i]);
  QCommandLineParser Zeile;
  if (const int Ende = AufrufLesen(Zeile, Worte); Ende >= 0) return Ende;

  const bool NurAnsicht = Zeile.isSet("ansicht");
  if (NurAnsicht) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication App(argc, argv);
  QApplication::setApplicationName("Tavorena");
  QApplication::setDesktopFileName("tavorena");
  QTranslator Deutsch;
  if (Deutsch.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&Deutsch);

  AussehenSetzen(App, Zeile.isSet("dunkel") ? Helligkeit::Dunkel
                      : Zeile.isSet("hell") ? Helligkeit::Hell
                                            : Helligkeit::System);
  if (NurAnsicht) return AnsichtAusgeben(Zeile);
  Hauptfenster Fenster;
  PlattformQt Qt(Fenster);
  PortsSetzen(PortsVon(Qt));
  HauptAnschließen();
  DateinamenAbleiten();
  Fenster.PlatzLesen();
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
