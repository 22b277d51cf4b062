#include "Messdaten.h"

#include <charconv>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <tavorena/core/Datei.h>
#include <tavorena/rawdata/GSI.h>

namespace tavorena::messung {
namespace {

constexpr std::size_t Worte = 7, Wortbreite = 24;

// Lines of seven words: number, direction, zenith angle, distance, coordinates.
std::string Rohtext(std::int64_t Zeilen) {
  std::string Text;
  Text.reserve(static_cast<std::size_t>(Zeilen) * (Worte * Wortbreite + 3));
  for (std::int64_t i = 1; i <= Zeilen; ++i)
    Text += fmt::format(
        "*11{:04}+{:016} 21.322+{:016} 22.322+{:016} 31..00+{:016} 81..00+{:016} 82..00+{:016} 83..00-{:016} "
        "\r\n",
        i % 10000, i, i * 7919 % 40000000, 9000000 + i % 2000000, 1000 + i % 90000, 3400000000 + i,
        5700000000 + i, i);
  return Text;
}

void RohdatenMessen(benchmark::State& Stand) {
  const std::string Text = Rohtext(Stand.range(0));
  Messsatz Satz;
  std::int64_t Gelesen = 0;
  for (auto _ : Stand) {
    Gelesen = 0;
    std::string_view Zeile;
    for (Zeilenleser Leser(Text); Leser.Nächste(Zeile);) {
      if (GSISechzehn(Zeile) && GSIZeileLesen16(Zeile, Satz) == 0) ++Gelesen;
      benchmark::DoNotOptimize(Satz);
    }
  }
  if (Gelesen != Stand.range(0) || Satz.Höhe.Wert != static_cast<double>(-Gelesen) / 1000)
    Stand.SkipWithError("Die Zeilen stimmen nicht.");
}

// The same tokens as numbers, and nothing kept.
void NurRohzahlenMessen(benchmark::State& Stand) {
  const std::string Text = Rohtext(Stand.range(0));
  std::int64_t Letzte = 0;
  for (auto _ : Stand) {
    for (std::size_t Ab = 1; Ab < Text.size(); Ab += Worte * Wortbreite + 3) {
      for (std::size_t k = 0; k < Worte; ++k) {
        const char* const Feld = Text.data() + Ab + k * Wortbreite + 7;
        std::from_chars(Feld, Feld + 16, Letzte);
        benchmark::DoNotOptimize(Letzte);
      }
    }
  }
  if (Letzte != Stand.range(0)) Stand.SkipWithError("Die Zahlen stimmen nicht.");
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(RohdatenMessen)->Name("RohdatenGsi16")->Arg(20000)->Arg(400000)->Unit(ms);
BENCHMARK(NurRohzahlenMessen)->Name("NurRohzahlen")->Arg(20000)->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
