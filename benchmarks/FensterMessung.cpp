// The replay in the window, without a screen, beside the one on the console.
#include "Messdaten.h"
#include "Stapelauftrag.h"

#include <cstdlib>
#include <memory>
#include <unistd.h>

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <benchmark/benchmark.h>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/TVHauptmodul.h>

namespace tavorena::messung {
namespace {

// Runs through without a key; a question means that something other than the job was measured.
class Messplattform final : public PlattformQt {
 public:
  using PlattformQt::PlattformQt;
  bool StapelHält() override { return false; }
  int Meldung(const std::string& /*Text*/, Knöpfe /*Art*/, const std::string& /*Titel*/,
              int /*Vorgabe*/) override {
    ++Fragen;
    return KnopfAbbruch;
  }
  int Fragen = 0;
};

// What is drawn a little later belongs to the work.
void Ausklingen() {
  QEventLoop Schleife;
  QTimer::singleShot(200, &Schleife, &QEventLoop::quit);
  Schleife.exec();
}

// @return rows that were calculated; -1
int AbspielenFenster(const Stapelauftrag& A, Messplattform& Plattform) {
  if (HauptDateiÖffnen(A.Koordinaten, Dateiformat::Kor) < 0) return -1;
  StapelStarten(A.Stapel);
  Ausklingen();
  return Plattform.Fragen == 0 && !Stapel.Aktiv ? Stapel.Bilanz.Zeilen : -1;
}

void FensterMessen(benchmark::State& Stand, bool MitProtokoll) {
  const Stapelauftrag A = StapelauftragBilden();
  const std::string Protokoll = A.Koordinaten.substr(0, A.Koordinaten.size() - 3) + "dru";
  setenv("TAVORENA_ORDNER", Messpfad("app").c_str(), 1);
  Hauptfenster Fenster;
  Messplattform Plattform(Fenster);
  const Ports Vorher = PortsSetzen(PortsVon(Plattform));
  HauptAnschließen();
  Fenster.show();
  for (auto _ : Stand) {
    unlink(Protokoll.c_str());
    HauptInitialisierung();
    Optionen.ProtokollfensterAn = MitProtokoll;
    Optionen.GrafikfensterAn = false;
    Fenster.Auffrischen();
    Ausklingen();
    const double Ab = Prozessorzeit();
    const int Zeilen = AbspielenFenster(A, Plattform);
    Stand.SetIterationTime((Prozessorzeit() - Ab) / Stapelzeilen);
    KoordinatendateiName.clear();
    BlätterSchließen();
    Ausklingen();
    if (Zeilen != Stapelzeilen) Stand.SkipWithError("Der Stapel lief nicht durch.");
  }
  HauptInitialisierung();
  PortsSetzen(Vorher);
}

void KonsoleMessen(benchmark::State& Stand) {
  const Stapelauftrag A = StapelauftragBilden();
  const std::string Protokoll = Messpfad("konsole.dru");
  for (auto _ : Stand) {
    unlink(Protokoll.c_str());
    const double Ab = Prozessorzeit();
    const int Zeilen = AbspielenKonsole(A, Protokoll);
    Stand.SetIterationTime((Prozessorzeit() - Ab) / Stapelzeilen);
    if (Zeilen != Stapelzeilen) return Stand.SkipWithError("Der Stapel lief nicht durch.");
  }
}

// The time of one row.
BENCHMARK_CAPTURE(FensterMessen, zu, false)->Name("Fenster/zu")->Iterations(1)->UseManualTime();
BENCHMARK_CAPTURE(FensterMessen, offen, true)->Name("Fenster/offen")->Iterations(1)->UseManualTime();
BENCHMARK(KonsoleMessen)->Name("Fenster/Konsole")->Iterations(3)->UseManualTime();

}  // namespace
}  // namespace tavorena::messung

int main(int Anzahl, char** Worte) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const QApplication App(Anzahl, Worte);
  tavorena::AussehenSetzen(*qApp, tavorena::Helligkeit::Hell);
  benchmark::Initialize(&Anzahl, Worte);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
