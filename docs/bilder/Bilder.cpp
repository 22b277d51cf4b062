// Makes one picture of the handbook: opens a file in a folder of its own, plays printed keys and takes the
// window. Fonts, screen, clock and names are fixed, so that every machine draws the same.
//
//   handbuchbilder --namen             the pictures of bilder.txt
//   handbuchbilder NAME DATEI.png      makes one of them
#include "../../tests/desktop/Tastenfolge.h"

#include <cstdlib>
#include <iostream>
#include <optional>

#include <QTranslator>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVHauptmodul.h>

using namespace tavorena;

namespace {

const QString Wurzel = TAVORENA_WURZEL;

// What bilder.txt says of a picture.
struct Bildauftrag {
  QString Name, Zeigt = "Blatt", Datei = "musterdorf.kor", Aussehen = "hell";
  std::vector<std::pair<QString, QString>> Schritte;  // "Tasten" with a sequence, "Klick" with a caption
  QSize Größe{1260, 740};                             // of the main window
};

bool Setzen(Bildauftrag& B, const QString& Was, const QString& Wert) {
  static const std::pair<const char*, QString Bildauftrag::*> Felder[] = {
      {"Zeigt", &Bildauftrag::Zeigt}, {"Datei", &Bildauftrag::Datei}, {"Aussehen", &Bildauftrag::Aussehen}};
  for (const auto& [Name, Feld] : Felder) {
    if (Was == Name) return B.*Feld = Wert, true;
  }
  if (Was == "Tasten" || Was == "Klick") return B.Schritte.emplace_back(Was, Wert), true;
  const QStringList Maße = Wert.split('x');
  if (Was != "Größe" || Maße.size() != 2) return false;
  B.Größe = {Maße[0].toInt(), Maße[1].toInt()};
  return true;
}

std::vector<Bildauftrag> Liste() {
  QFile Datei(Wurzel + "/docs/bilder/bilder.txt");
  if (!Datei.open(QIODevice::ReadOnly)) qFatal("bilder.txt fehlt");
  std::vector<Bildauftrag> Alle;
  for (const QString& Roh : QString::fromUtf8(Datei.readAll()).split('\n')) {
    const QString Zeile = Roh.trimmed();
    if (Zeile.isEmpty() || Zeile.startsWith('#')) continue;
    const QString Was = Zeile.section(": ", 0, 0), Wert = Zeile.section(": ", 1);
    if (Was == "Bild") {
      Alle.emplace_back().Name = Wert;
    } else if (Alle.empty() || !Setzen(Alle.back(), Was, Wert)) {
      qFatal("bilder.txt: %s", qPrintable(Zeile));
    }
  }
  return Alle;
}

// An instrument that answers each question with the next line of its file.
class Bildleitung final : public Leitung {
 public:
  Bildleitung() {
    if (!Datei.open(QIODevice::ReadOnly)) qFatal("%s", qPrintable(Datei.fileName()));
  }
  int Senden(std::string_view /*Bytes*/) override {
    Antwort = Datei.readLine();
    return 0;
  }
  std::string Lesen() override { return std::exchange(Antwort, {}).toStdString(); }
  [[nodiscard]] bool Offen() const override { return true; }

 private:
  QFile Datei{"theodolit.gsi"};
  QByteArray Antwort;
};

// The clock stands still, and files lie in the folder that the program was started in.
class Bildplattform final : public PlattformQt {
 public:
  using PlattformQt::PlattformQt;
  Zeitpunkt Jetzt() override { return {2026, 11, 23, 10, 15}; }
  std::string DateiWählen(Dateiauftrag& Auftrag) override {
    const QString Name = QString::fromStdString(PlattformQt::DateiWählen(Auftrag));
    return Name.isEmpty() ? "" : QDir().relativeFilePath(Name).toStdString();
  }
  std::unique_ptr<Leitung> LeitungÖffnen(const std::string& /*Gerät*/,
                                         const std::string& /*Einstellungen*/) override {
    return std::make_unique<Bildleitung>();
  }
  std::string Heimordner() override { return "."; }
  std::string Dokumentordner() override { return "."; }
};

void Schreiben(const QString& Name, const QByteArray& Text) {
  QFile Datei(Name);
  if (!Datei.open(QIODevice::WriteOnly) || Datei.write(Text) != Text.size()) qFatal("%s", qPrintable(Name));
}

// What would differ from machine to machine is said before Qt starts.
void UmgebungFestlegen(const QString& Ordner) {
  Schreiben(Ordner + "/fonts.conf",
            R"(<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig>
<dir>/usr/share/fonts/truetype/dejavu</dir><cachedir>)" +
                Ordner.toUtf8() + R"(/schriften</cachedir>
<match target="font"><edit name="antialias" mode="assign"><bool>true</bool></edit>
<edit name="hinting" mode="assign"><bool>true</bool></edit>
<edit name="hintstyle" mode="assign"><const>hintslight</const></edit>
<edit name="rgba" mode="assign"><const>none</const></edit></match>
<alias><family>monospace</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
</fontconfig>)");
  Schreiben(Ordner + "/schirm.json", R"({"screens": [{"name": "Schirm", "x": 0, "y": 0, "width": 1600,
"height": 1000, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  for (const auto& [Name, Wert] : {std::pair("LC_ALL", QString("C.UTF-8")),
                                   {"TZ", "UTC"},
                                   {"QT_SCALE_FACTOR", "1"},
                                   {"QT_FONT_DPI", "96"},
                                   {"FONTCONFIG_FILE", Ordner + "/fonts.conf"},
                                   {"CUPS_SERVER", "/dev/null"},
                                   {"TAVORENA_ORDNER", Ordner + "/app"},
                                   {"QT_QPA_PLATFORM", "offscreen:configfile=" + Ordner + "/schirm.json"}})
    qputenv(Name, Wert.toUtf8());
  for (const char* Name : {"temp", "TEMP", "tmp", "TMP"}) qunsetenv(Name);  // the program proposes it
}

// The folder that pictures show, with the files of the examples and of this folder as copies; one picture at
// a time has it.
class Auftragsordner {
 public:
  Auftragsordner() : Sperre(QString(Ort) + "/.handbuchbilder") {
    QDir().mkdir(Ort);
    const QFileInfo Da(Ort);
    if (!Da.isDir() || Da.isSymLink() || !Da.isWritable() || !Sperre.tryLock(120'000))
      qFatal("%s steht im Weg", Ort);
    Leeren();
    const QStringList Arten{"*.kor", "*.sta", "*.gsi", "*.txt", "*.eds", "*.dxf", "*.niv", "*.hli", "*.m5"};
    for (const char* Quelle : {"/examples", "/docs/bilder/daten"}) {
      for (const QFileInfo& Datei : QDir(Wurzel + Quelle).entryInfoList(Arten, QDir::Files))
        QFile::copy(Datei.filePath(), QString(Ort) + '/' + Datei.fileName());
    }
    QDir::setCurrent(Ort);
  }
  ~Auftragsordner() {
    Leeren();
    Sperre.unlock();
    QDir().rmdir(Ort);
  }

 private:
  static constexpr const char* Ort = "/tmp/vermessung";

  static void Leeren() {
    for (const QString& Name : QDir(Ort).entryList(QDir::Files)) QFile::remove(QString(Ort) + '/' + Name);
  }

  QLockFile Sperre;
};

// A window with the dialogs and menus before it, which the system would show there.
QPixmap Übereinander(QWidget& Haupt) {
  QPixmap Bild = Haupt.grab();
  QPainter Maler(&Bild);
  // Whatever belongs to another one stands before it.
  const auto Tiefe = [](const QWidget* W) {
    int Stufen = 0;
    for (; W->parentWidget() != nullptr; W = W->parentWidget()) ++Stufen;
    return Stufen;
  };
  QWidgetList Davor = QApplication::topLevelWidgets();
  std::sort(Davor.begin(), Davor.end(), [&](auto* A, auto* B) { return Tiefe(A) < Tiefe(B); });
  for (QWidget* W : Davor) {
    if (W == &Haupt || !W->isVisible()) continue;
    const QRect Platz(Haupt.mapFromGlobal(W->pos()), W->size());
    Maler.drawPixmap(Platz.topLeft(), W->grab());
    Maler.setPen(W->palette().color(QPalette::Dark));
    Maler.drawRect(Platz.adjusted(-1, -1, 0, 0));
  }
  return Bild;
}

QPixmap Aufnahme(Hauptfenster& Fenster, const QString& Zeigt) {
  if (Zeigt == "Fenster") return Übereinander(Fenster);
  QWidget* Ziel = nullptr;
  if (Zeigt == "Dialog") Ziel = VordererDialog();
  if (Zeigt == "Blatt") Ziel = Fenster.findChild<QMdiArea*>()->activeSubWindow();
  if (Zeigt == "Grafik") Ziel = Fenster.findChild<QDockWidget*>("TVKernGrafikform");
  return Ziel != nullptr ? Ziel->grab() : QPixmap();
}

// Presses a command of the graphics view or a button of a worksheet; what it asks has a loop of its own.
bool Klicken(const Hauptfenster& Fenster, const QString& Text) {
  for (QAction* A : Fenster.findChildren<QAction*>()) {
    if (A->text() == Text) return QTimer::singleShot(0, A, &QAction::trigger), true;
  }
  for (QPushButton* K : Fenster.findChildren<QPushButton*>()) {
    if (QString(K->text()).remove('&') == Text) return QTimer::singleShot(0, K, &QPushButton::click), true;
  }
  return false;
}

// The file may ask something as well: its keys are played with the others.
QString Machen(const Bildauftrag& B, const QString& Datei, std::optional<Auftragsordner>& Ordner) {
  AussehenSetzen(*qApp, B.Aussehen == "dunkel" ? Helligkeit::Dunkel : Helligkeit::Hell);
  Hauptfenster Fenster;
  Bildplattform Plattform(Fenster);
  PortsSetzen(PortsVon(Plattform));
  HauptAnschließen();
  DateinamenAbleiten();
  Fenster.resize(B.Größe);
  Fenster.show();
  HauptInitialisierung();
  QTimer::singleShot(0, &Fenster, [&] {
    if (B.Datei != "-") HauptDateiÖffnen(B.Datei.toStdString(), Dateiformat::Kor);
  });
  const auto Nehmen = [&] {
    Plattform.StatusSetzen(Statusfeld::StatusUhr, "10:15");
    const QPixmap Bild = Aufnahme(Fenster, B.Zeigt);
    const bool Gut = !Bild.isNull() && Bild.save(Datei);
    if (!Gut) std::cerr << B.Name.toStdString() << ": nichts aufgenommen\n";
    Ordner.reset();
    std::_Exit(Gut ? 0 : 1);  // what is open asks nothing any more
  };
  test::Tastenspieler Spieler(Fenster);
  QString Folge;
  for (const auto& [Was, Wert] : B.Schritte) {
    if (Was == "Tasten") {
      Folge += '\n' + Wert;
      continue;
    }
    if (const QString Fehler = Spieler.Spielen(std::exchange(Folge, {})); !Fehler.isEmpty()) return Fehler;
    if (!Klicken(Fenster, Wert)) return "kein Knopf: " + Wert;
  }
  return Spieler.Spielen(Folge, Nehmen);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<Bildauftrag> Alle = Liste();
  const QString Wort = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
  if (argc == 2 && Wort == "--namen") {
    for (const Bildauftrag& B : Alle) std::cout << B.Name.toStdString() << '\n';
    return 0;
  }
  const auto B = std::find_if(Alle.begin(), Alle.end(), [&](const Bildauftrag& X) { return X.Name == Wort; });
  if (argc != 3 || B == Alle.end()) {
    std::cerr << "Aufruf: handbuchbilder --namen | NAME DATEI.png\n";
    return 2;
  }
  const QString Ziel = QFileInfo(QString::fromLocal8Bit(argv[2])).absoluteFilePath();
  QTemporaryDir Ordner;
  UmgebungFestlegen(Ordner.path());
  QApplication App(argc, argv);
  QApplication::setApplicationName("Tavorena");
  QApplication::setFont(QFont("DejaVu Sans", 9));
  QApplication::setCursorFlashTime(0);
  QTranslator Deutsch;
  if (Deutsch.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&Deutsch);
  std::optional<Auftragsordner> Auftrag(std::in_place);
  const QString Fehler = Machen(*B, Ziel, Auftrag);
  std::cerr << Wort.toStdString() << ": " << Fehler.toStdString() << '\n';
  return 1;
}
