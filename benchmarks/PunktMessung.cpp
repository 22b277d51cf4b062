#include "Messdaten.h"

#include <cstddef>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena::messung {
namespace {

enum class Lage { Verstreut, Fleck, Linie };

void TabelleLegen(Lage Wo) {
  TabelleFüllen();
  if (Wo == Lage::Verstreut) return;
  static_cast<void>(KorAbbilden([Wo](const KorSpalten& S) {
    for (std::size_t i = 0; i < S.Rechts.size(); ++i) {
      S.Rechts[i] = 3'480'000 + (Wo == Lage::Linie ? 0.01 * static_cast<double>(i) : 0);
      S.Hoch[i] = 5'550'000;
    }
    return 0;
  }));
}

void QuasiMessen(benchmark::State& Stand, Lage Wo) {
  TabelleLegen(Wo);
  std::vector<Punktgruppe> Gruppen;
  for (auto _ : Stand) benchmark::DoNotOptimize(Gruppen = QuasiidentischePunkte(0.01, true));
  // In the line the first row takes the second one, the third begins anew.
  const std::size_t Soll = Wo == Lage::Fleck ? 1 : Wo == Lage::Linie ? Punktzahl / 2 : Gruppen.size();
  if (Gruppen.size() != Soll || (Wo == Lage::Verstreut && Soll < Punktzahl / 2))
    Stand.SkipWithError("Die Gruppen stimmen nicht.");
}

// What is done to the whole table at once; taken back it is whole again.
template <typename Arbeit>
void TatMessen(benchmark::State& Stand, Arbeit Tun) {
  TabelleFüllen();
  Prot = {};
  const std::string Erste = Punkte().Pnr.front(), Letzte = Punkte().Pnr.back();
  for (auto _ : Stand) {
    Rücknahme R;
    const double Ab = Prozessorzeit();
    const int Ergebnis = Tun(R, Erste, Letzte);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    const bool Getan = Ergebnis == 0 && !TabelleIstGanz();
    if (!Getan || R.Zurück() < 0 || !TabelleIstGanz())
      return Stand.SkipWithError("Die Tabelle stimmt nicht.");
  }
}

int Löschen(Rücknahme& R, const std::string& Von, const std::string& Bis) {
  std::vector<int> Zeilen;
  return BereichZeilen(Von, Bis, Zeilen) < 0 ? -1 : PunkteLöschen(R, Zeilen);
}

int Umnumerieren(Rücknahme& R, const std::string& Von, const std::string& Bis) {
  return BereichBerichtigen(R, Von, Bis, "2001");
}

constexpr auto ms = benchmark::kMillisecond;
BENCHMARK_CAPTURE(QuasiMessen, verstreut, Lage::Verstreut)->Name("Quasiidentisch/20000")->Unit(ms);
BENCHMARK_CAPTURE(QuasiMessen, fleck, Lage::Fleck)->Name("Quasiidentisch/20000/fleck")->Unit(ms);
BENCHMARK_CAPTURE(QuasiMessen, linie, Lage::Linie)->Name("Quasiidentisch/20000/linie")->Unit(ms);
BENCHMARK_CAPTURE(TatMessen, loeschen, Löschen)->Name("Loeschen/Bereich")->Unit(ms)->UseManualTime();
BENCHMARK_CAPTURE(TatMessen, nummern, Umnumerieren)->Name("Umnumerieren/Bereich")->Unit(ms)->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
