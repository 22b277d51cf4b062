#include "Abschrift.h"
#include "Messdaten.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena::messung {
namespace {

void KorSucheMessen(benchmark::State& Stand, bool Fehlt) {
  TabelleFüllen();
  const std::string Pnr = Fehlt ? "999" : Punkte().Pnr.back();
  int Zeile = 0;
  for (auto _ : Stand) {
    benchmark::DoNotOptimize(Zeile = KorSuche(std::string_view(Pnr)));
    benchmark::ClobberMemory();
  }
  if (Zeile != (Fehlt ? -1 : KorAnzahl - 1)) Stand.SkipWithError("Die Zeile stimmt nicht.");
}

void StdFindMessen(benchmark::State& Stand, bool Fehlt) {
  std::vector<std::uint64_t> Schlüssel(Punktzahl);
  for (std::size_t i = 0; i < Punktzahl; ++i) Schlüssel[i] = 1001 + i;
  std::uint64_t Gesucht = Fehlt ? 999 : Schlüssel.back();
  auto Stelle = Schlüssel.begin();
  for (auto _ : Stand) {
    benchmark::DoNotOptimize(Gesucht);
    benchmark::DoNotOptimize(Stelle = std::find(Schlüssel.begin(), Schlüssel.end(), Gesucht));
    benchmark::ClobberMemory();
  }
  if (Stelle != Schlüssel.end() - (Fehlt ? 0 : 1)) Stand.SkipWithError("Die Stelle stimmt nicht.");
}

// A job with 19000 of the points; the others come one by one, in any order.
class Lücken {
 public:
  Lücken() : Neue(Punktzahl) {
    for (std::size_t i = 0; i < Punktzahl; ++i) Neue[i] = i;
    std::shuffle(Neue.begin(), Neue.end(), std::mt19937(11));
    Bekannte.assign(Neue.begin() + 1000, Neue.end());
    Neue.resize(1000);
    std::sort(Bekannte.begin(), Bekannte.end());
  }
  std::size_t Nächster() { return Neue[Stelle++ % Neue.size()]; }
  [[nodiscard]] std::size_t Reihe(std::size_t Punkt) const {
    return static_cast<std::size_t>(std::lower_bound(Bekannte.begin(), Bekannte.end(), Punkt) -
                                    Bekannte.begin());
  }

  std::vector<std::size_t> Bekannte;

 private:
  std::vector<std::size_t> Neue;
  std::size_t Stelle = 0;
};

void NeupunktMessen(benchmark::State& Stand) {
  Lücken L;
  const Punktlisten& P = Punkte();
  TabelleFüllen();
  for (std::size_t i = Punktzahl; i-- > 0;) {
    if (!std::binary_search(L.Bekannte.begin(), L.Bekannte.end(), i)) ZeileLöschen(static_cast<int>(i));
  }
  NeupunktErgebnis E;
  for (auto _ : Stand) {
    const std::size_t p = L.Nächster();
    Wert Pnr(P.Pnr[p]);
    const double Ab = Prozessorzeit();
    const NeupunktCode Code = Neupunkt(Pnr, P.Rechts[p], P.Hoch[p], P.Hoehe[p], P.Symbol[p], nullptr, E);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    const int Zeile = KorSuche(Pnr);
    if (Code != NeupunktCode::Neu || Zeile != static_cast<int>(L.Reihe(p)) ||
        KorRechts[L.Reihe(p)] != P.Rechts[p])
      return Stand.SkipWithError("Der Punkt steht falsch.");
    ZeileLöschen(Zeile);
  }
}

// The columns of the table, sorted as a whole after each new point.
struct Spalten {
  std::vector<std::string> Pnr;
  std::vector<double> Rechts, Hoch, Hoehe;
  std::vector<std::string> Symbol;
  std::vector<KorInfoSatz> Info;

  void Anhängen(const Punktlisten& P, std::size_t p) {
    Pnr.push_back(P.Pnr[p]);
    Rechts.push_back(P.Rechts[p]);
    Hoch.push_back(P.Hoch[p]);
    Hoehe.push_back(P.Hoehe[p]);
    Symbol.push_back(P.Symbol[p]);
    Info.emplace_back().Punktart = KurzAusText(P.Symbol[p]);
  }
  void Sortieren() {
    Abschrift(Pnr, [this](std::size_t i, std::size_t j) {
      Alle([&](auto& Spalte) { std::swap(Spalte[i], Spalte[j]); });
    });
  }
  void Löschen(std::size_t Reihe) {
    Alle([&](auto& Spalte) { Spalte.erase(Spalte.begin() + static_cast<std::ptrdiff_t>(Reihe)); });
  }

 private:
  template <typename Tat>
  void Alle(Tat Tu) {
    Tu(Pnr), Tu(Rechts), Tu(Hoch), Tu(Hoehe), Tu(Symbol), Tu(Info);
  }
};

void AnhängenUndSortierenMessen(benchmark::State& Stand) {
  Lücken L;
  const Punktlisten& P = Punkte();
  Spalten S;
  for (const std::size_t p : L.Bekannte) S.Anhängen(P, p);
  for (auto _ : Stand) {
    const std::size_t p = L.Nächster(), Reihe = L.Reihe(p);
    const double Ab = Prozessorzeit();
    S.Anhängen(P, p);
    S.Sortieren();
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    if (S.Pnr[Reihe] != P.Pnr[p] || S.Rechts[Reihe] != P.Rechts[p])
      return Stand.SkipWithError("Der Punkt steht falsch.");
    S.Löschen(Reihe);
  }
}

BENCHMARK_CAPTURE(KorSucheMessen, letzte, false)->Name("KorSuche/letzte");
BENCHMARK_CAPTURE(KorSucheMessen, fehlt, true)->Name("KorSuche/fehlt");
BENCHMARK_CAPTURE(StdFindMessen, letzte, false)->Name("StdFind/letzte");
BENCHMARK_CAPTURE(StdFindMessen, fehlt, true)->Name("StdFind/fehlt");
BENCHMARK(NeupunktMessen)->Name("Neupunkt")->UseManualTime();
BENCHMARK(AnhängenUndSortierenMessen)->Name("AnhaengenUndSortieren")->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
