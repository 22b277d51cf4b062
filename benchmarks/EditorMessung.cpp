// The point editor in the window, without a screen: a key in a full table beside one in a small table.
#include "Messdaten.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <benchmark/benchmark.h>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/points/TVKernKoordinatenEditor.h>

namespace tavorena::messung {
namespace {

// The window with that many points.
class Arbeitsplatz {
 public:
  explicit Arbeitsplatz(int Anzahl) {
    TabelleFüllen();
    if (Anzahl > KorAnzahl) static_cast<void>(KorAnhängen({"21001", 3480000, 5550000, 0, "015", nullptr}));
    KorAbschneiden(Anzahl);
    Fenster.show();
    QCoreApplication::processEvents();
  }
  ~Arbeitsplatz() { PortsSetzen(Vorher); }
  Arbeitsplatz(const Arbeitsplatz&) = delete;
  Arbeitsplatz& operator=(const Arbeitsplatz&) = delete;

  Hauptfenster Fenster;

 private:
  PlattformQt Plattform{Fenster};
  Ports Vorher = PortsSetzen(PortsVon(Plattform));
};

void Drücken(QWidget& Feld, char Zeichen) {
  const bool Return = Zeichen == '\n';
  QKeyEvent Taste(QEvent::KeyPress, Return ? int{Qt::Key_Return} : Zeichen, Qt::NoModifier,
                  Return ? QString() : QString(QChar(Zeichen)));
  QApplication::sendEvent(&Feld, &Taste);
  QCoreApplication::processEvents();
}

// A height in each row: a cell that is left is a change of the table that can be taken back.
void TasteMessen(benchmark::State& Stand) {
  const auto Anzahl = static_cast<int>(Stand.range(0));
  Arbeitsplatz Platz(Anzahl);
  TVKernKoordinatenEditor Form(Editormodus::Bearbeiten);
  Platz.Fenster.BlattZeigen(Form);
  auto& G = dynamic_cast<Gitter&>(*Form.Finde("EditorGitter"));
  auto* Feld = Platz.Fenster.findChild<QLineEdit*>("EditorGitterFeld");
  int Zeilen = 0;
  const std::string Text = "\n\n\n123\n\n";
  std::size_t Stelle = 0;
  for (auto _ : Stand) {
    Drücken(*Feld, Stelle == 5 ? static_cast<char>('1' + Zeilen % 9) : Text[Stelle]);
    if (++Stelle < Text.size()) continue;
    Stelle = 0;
    ++Zeilen;
    if (G.Zeile == Anzahl - 1) Form.ZelleWechseln(G, 0, 0);
  }
  if (Zeilen > 0 && (KorAnzahl != Anzahl || KorHoehe[0] < 113 || KorHoehe[0] > 193))
    Stand.SkipWithError("Die Höhe ist nicht angekommen.");
  Form.Schließen();
}

// From the command to the drawn rows.
void ÖffnenMessen(benchmark::State& Stand) {
  Arbeitsplatz Platz(static_cast<int>(Stand.range(0)));
  for (auto _ : Stand) {
    TVKernKoordinatenEditor Form(Editormodus::Bearbeiten);
    Platz.Fenster.BlattZeigen(Form);
    QCoreApplication::processEvents();
    Form.Schließen();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

BENCHMARK(TasteMessen)->Name("EditorTaste")->Arg(20)->Arg(20001);
BENCHMARK(ÖffnenMessen)->Name("EditorÖffnen")->Arg(20001)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavorena::messung
