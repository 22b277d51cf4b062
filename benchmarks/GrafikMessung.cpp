#include "Messdaten.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Punktindex.h>

namespace tavorena::messung {
namespace {

// The search as it is told: over the table, to the first that is near enough.
int LineareSuche(double Rechts, double Hoch, double Toleranz) {
  for (int z = 0; z < KorAnzahl; ++z) {
    const auto i = static_cast<std::size_t>(z);
    if (PunktIstNah(Rechts, Hoch, KorRechts[i], KorHoch[i], Toleranz) != 0) return z;
  }
  return -1;
}

struct Klick {
  double Rechts, Hoch, Toleranz;
};

std::vector<Klick> KlickBei(double Rechts, double Hoch) { return {{Rechts, Hoch, 1e-3}}; }
std::vector<Klick> Daneben() { return KlickBei(3'480'000.0005, 5'550'000.0005); }
std::vector<Klick> Letzte() { return KlickBei(KorRechts[Punktzahl - 1], KorHoch[Punktzahl - 1]); }

// From no tolerance at all to the whole extent.
std::vector<Klick> Weite() {
  std::vector<Klick> Alle;
  for (int i = 0; i < 50; ++i) {
    const double t = i / 49.0;
    Alle.push_back({3'470'000 + t * 20'000, 5'560'000 - t * 20'000, t * t * t * 30'000});
  }
  return Alle;
}

void SucheMessen(benchmark::State& Stand, int (*Suche)(double, double, double),
                 std::vector<Klick> (*Klicks)()) {
  TabelleFüllen();
  const std::vector<Klick> Alle = Klicks();
  for (const Klick& K : Alle) {
    if (Suche(K.Rechts, K.Hoch, K.Toleranz) != LineareSuche(K.Rechts, K.Hoch, K.Toleranz))
      return Stand.SkipWithError("Ein anderer Punkt.");
  }
  for (auto _ : Stand) {
    for (const Klick& K : Alle) benchmark::DoNotOptimize(Suche(K.Rechts, K.Hoch, K.Toleranz));
  }
}

void IndexMessen(benchmark::State& Stand) {
  TabelleFüllen();
  std::size_t Größe = 0;
  for (auto _ : Stand) {
    Punktindex Index;
    benchmark::DoNotOptimize(Index.Erster(0, 0, 1));
    Größe = Index.Größe();
  }
  if (Größe > 96 * Punktzahl) Stand.SkipWithError("Der Index ist zu groß.");
}

void SortierenMessen(benchmark::State& Stand) {
  TabelleFüllen();
  for (auto _ : Stand) {
    std::vector<std::pair<double, int>> Paare;
    Paare.reserve(Punktzahl);
    for (int z = 0; z < KorAnzahl; ++z) Paare.emplace_back(KorRechts[static_cast<std::size_t>(z)], z);
    std::sort(Paare.begin(), Paare.end());
    benchmark::DoNotOptimize(Paare.data());
  }
}

BENCHMARK(IndexMessen)->Name("Index/20000");
BENCHMARK(SortierenMessen)->Name("StdSort/20000");
BENCHMARK_CAPTURE(SucheMessen, fehlt, GrafikPunktSuchen, Daneben)->Name("GrafikPunktSuchen/fehlt");
BENCHMARK_CAPTURE(SucheMessen, letzte, GrafikPunktSuchen, Letzte)->Name("GrafikPunktSuchen/letzte");
BENCHMARK_CAPTURE(SucheMessen, weit, GrafikPunktSuchen, Weite)->Name("GrafikPunktSuchen/weit");
BENCHMARK_CAPTURE(SucheMessen, fehlt, LineareSuche, Daneben)->Name("LineareSuche/fehlt");
BENCHMARK_CAPTURE(SucheMessen, letzte, LineareSuche, Letzte)->Name("LineareSuche/letzte");
BENCHMARK_CAPTURE(SucheMessen, weit, LineareSuche, Weite)->Name("LineareSuche/weit");

}  // namespace
}  // namespace tavorena::messung
