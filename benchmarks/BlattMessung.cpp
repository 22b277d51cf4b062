#include "Messblatt.h"
#include "Messdaten.h"

#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena::messung {
namespace {

constexpr int Tippzeilen = 1000;
constexpr std::size_t GroßeAkte = std::size_t{5} << 20U;  // [bytes]

// A base line, nothing measured on it.
std::vector<std::string> Linie() { return {Punkte().Pnr[0], Punkte().Pnr[1], "0", "0"}; }

// The table is short: what is measured is the way of a row into its files.
void ZeileMessen(benchmark::State& Stand, std::size_t Größe) {
  TabelleFüllen();
  KorAbschneiden(100);
  Messblatt B("24.40", Linie());
  const auto Tippe = [&](int Zeilen) {
    for (int i = 0; i < Zeilen; ++i) B.Tippe(Punkte().Pnr[static_cast<std::size_t>(i % 100)]);
  };
  Tippe(1);
  B.Strecken(Größe);
  Tippe(1);
  int Zeilen = 2;
  for (auto _ : Stand) {
    const double Ab = Prozessorzeit();
    Tippe(Tippzeilen);
    Stand.SetIterationTime((Prozessorzeit() - Ab) / Tippzeilen);
    Zeilen += Tippzeilen;
  }
  if (!B.Geschrieben(Zeilen)) Stand.SkipWithError("Die Zeilen fehlen.");
}

// All points of a range of numbers as rows.
void StreifenMessen(benchmark::State& Stand, std::size_t Ab, std::size_t Anzahl) {
  TabelleFüllen();
  for (auto _ : Stand) {
    Messblatt B("24.40", Linie());
    B.Feld("LinelPnrvon");
    B.Tippe(Punkte().Pnr[Ab]);
    B.Tippe(Punkte().Pnr[Ab + Anzahl - 1]);
    const double Beginn = Prozessorzeit();
    B.Tippe("0");
    Stand.SetIterationTime((Prozessorzeit() - Beginn) / static_cast<double>(Anzahl));
    if (!B.Geschrieben(static_cast<int>(Anzahl))) return Stand.SkipWithError("Die Zeilen fehlen.");
  }
}

// The time of one row.
BENCHMARK_CAPTURE(ZeileMessen, leer, 0)->Name("Zeile/leer")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(ZeileMessen, groß, GroßeAkte)->Name("Zeile/5MB")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(StreifenMessen, mitte, Punktzahl / 2 - 1000, 2000)
    ->Name("Streifen/2000")
    ->Iterations(1)
    ->UseManualTime();
BENCHMARK_CAPTURE(StreifenMessen, alle, 0, Punktzahl)->Name("Streifen/20000")->Iterations(1)->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
