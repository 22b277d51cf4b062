#include "Abschrift.h"
#include "Messdaten.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <utility>
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

// A job with 19000 of the points; the others come one by one, in any order. Mixed, half of the numbers bear a
// letter: behind the digits, where two of them sort as equal, or in front; and each fourth one a comma.
class Lücken {
 public:
  explicit Lücken(bool Gemischt) : Pnr(Punkte().Pnr), Neue(Punktzahl) {
    constexpr const char* Vorn[] = {"", "", "", "P"};
    constexpr const char* Hinten[] = {"", "A", "B", ""};
    for (std::size_t i = 0; i < Punktzahl; ++i) {
      Neue[i] = i;
      if (Gemischt) Pnr[i] = Vorn[i % 4] + Punkte().Pnr[i / 4] + Hinten[i % 4] + (i % 16 == 0 ? ",5" : "");
    }
    std::shuffle(Neue.begin(), Neue.end(), std::mt19937(11));
    Bekannte.assign(Neue.begin() + 1000, Neue.end());
    Neue.resize(1000);
    std::sort(Bekannte.begin(), Bekannte.end());
  }
  std::size_t Nächster() { return Neue[Stelle++ % Neue.size()]; }

  std::vector<std::string> Pnr;
  std::vector<std::size_t> Bekannte;

 private:
  std::vector<std::size_t> Neue;
  std::size_t Stelle = 0;
};

// The columns of the table, sorted as a whole after each new point.
struct Spalten {
  explicit Spalten(const Lücken& L) {
    for (const std::size_t p : L.Bekannte) Anhängen(L, p);
    Sortieren();
  }
  void Anhängen(const Lücken& L, std::size_t p) {
    const Punktlisten& P = Punkte();
    Pnr.push_back(L.Pnr[p]);
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
  // Row of a point: no other is at its place.
  [[nodiscard]] std::size_t ReiheVon(std::size_t p) const {
    std::size_t i = 0;
    while (Rechts[i] != Punkte().Rechts[p] || Hoch[i] != Punkte().Hoch[p]) ++i;
    return i;
  }

  std::vector<std::string> Pnr;
  std::vector<double> Rechts, Hoch, Hoehe;
  std::vector<std::string> Symbol;
  std::vector<KorInfoSatz> Info;

 private:
  template <typename Tat>
  void Alle(Tat Tu) {
    Tu(Pnr), Tu(Rechts), Tu(Hoch), Tu(Hoehe), Tu(Symbol), Tu(Info);
  }
};

// The table is what the columns are after the first of the new points.
bool WieDieSpalten(const Lücken& L, std::size_t p) {
  Spalten S(L);
  S.Anhängen(L, p);
  S.Sortieren();
  int Zeile = 0;
  const auto Gleich = [&](const std::string& Pnr) { return KorPnr(Zeile++) == Pnr; };
  return std::all_of(S.Pnr.begin(), S.Pnr.end(), Gleich) && KorAnzahl == Zeile &&
         std::equal(S.Rechts.begin(), S.Rechts.end(), KorRechts.begin());
}

void NeupunktMessen(benchmark::State& Stand, bool Gemischt) {
  Lücken L(Gemischt);
  const Punktlisten& P = Punkte();
  KorLeeren();
  for (const std::size_t p : L.Bekannte) {
    if (KorAnhängen({L.Pnr[p], P.Rechts[p], P.Hoch[p], P.Hoehe[p], P.Symbol[p]}) < 0)
      return Stand.SkipWithError("Die Tabelle ist voll.");
  }
  KorSortieren();
  NeupunktErgebnis E;
  bool Erster = true;
  for (auto _ : Stand) {
    const std::size_t p = L.Nächster();
    Wert Pnr(L.Pnr[p]);
    const double Ab = Prozessorzeit();
    const NeupunktCode Code = Neupunkt(Pnr, P.Rechts[p], P.Hoch[p], P.Hoehe[p], P.Symbol[p], nullptr, E);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    const int Zeile = KorSuche(Pnr);
    if (Code != NeupunktCode::Neu || Zeile < 0 || KorPunkt(Zeile).Rechts != P.Rechts[p] ||
        (std::exchange(Erster, false) && !WieDieSpalten(L, p)))
      return Stand.SkipWithError("Der Punkt steht falsch.");
    ZeileLöschen(Zeile);
  }
}

void AnhängenUndSortierenMessen(benchmark::State& Stand, bool Gemischt) {
  Lücken L(Gemischt);
  Spalten S(L);
  for (auto _ : Stand) {
    const std::size_t p = L.Nächster();
    const double Ab = Prozessorzeit();
    S.Anhängen(L, p);
    S.Sortieren();
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    S.Löschen(S.ReiheVon(p));
  }
  if (S.Pnr.size() != L.Bekannte.size()) Stand.SkipWithError("Ein Punkt fehlt.");
}

BENCHMARK_CAPTURE(KorSucheMessen, letzte, false)->Name("KorSuche/letzte");
BENCHMARK_CAPTURE(KorSucheMessen, fehlt, true)->Name("KorSuche/fehlt");
BENCHMARK_CAPTURE(StdFindMessen, letzte, false)->Name("StdFind/letzte");
BENCHMARK_CAPTURE(StdFindMessen, fehlt, true)->Name("StdFind/fehlt");
BENCHMARK_CAPTURE(NeupunktMessen, zahlen, false)->Name("Neupunkt")->UseManualTime();
BENCHMARK_CAPTURE(NeupunktMessen, gemischt, true)->Name("Neupunkt/gemischt")->UseManualTime();
BENCHMARK_CAPTURE(AnhängenUndSortierenMessen, zahlen, false)->Name("AnhaengenUndSortieren")->UseManualTime();
BENCHMARK_CAPTURE(AnhängenUndSortierenMessen, gemischt, true)
    ->Name("AnhaengenUndSortieren/gemischt")
    ->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
