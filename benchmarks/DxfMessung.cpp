#include "Messdaten.h"

#include <iterator>
#include <string>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena::messung {
namespace {

void DxfPunkteMessen(benchmark::State& Stand) {
  GrafikLeeren();
  TabelleFüllen();
  std::string Text;
  int Ergebnis = 0;
  for (auto _ : Stand) Ergebnis = DxfPunkteText(Text);
  if (Ergebnis != 0 || !Text.ends_with("EOF\r\n") || Text.size() < 100 * Punktzahl) {
    Stand.SkipWithError("Die Datei stimmt nicht.");
  }
}

// The least that any writer must do: the numbers, those of the texts beside the points too.
void FmtDxfMessen(benchmark::State& Stand) {
  TabelleFüllen();
  std::string Text;
  for (auto _ : Stand) {
    Text.clear();
    const auto Zahlen = [&Text](double R, double H, double Dritte) {
      fmt::format_to(std::back_inserter(Text), "{:.6f}\r\n{:.6f}\r\n{:.6f}\r\n", R, H, Dritte);
    };
    for (std::size_t i = 0; i < static_cast<std::size_t>(KorAnzahl); ++i) {
      const double R = KorRechts[i], H = KorHoch[i], Z = KorHoehe[i];
      Zahlen(R, H, Z);
      Zahlen(R + 0.3, H + 0.3, 0.3);
      if (!KorSymbol[i].empty()) Zahlen(R + 0.3, H - 0.15, 0.3);
      if (Z == 0) continue;
      Zahlen(R + 0.3, H - 0.6, 0.3);
      fmt::format_to(std::back_inserter(Text), "{:.3f}\r\n", Z);
    }
    benchmark::DoNotOptimize(Text.data());
  }
}

constexpr auto ms = benchmark::kMillisecond;
BENCHMARK(DxfPunkteMessen)->Name("DxfPunkte/20000")->Unit(ms);
BENCHMARK(FmtDxfMessen)->Name("FmtDxf/20000")->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
