#include "Messdaten.h"

#include <algorithm>
#include <malloc.h>
#include <string>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <tavorena/core/Datei.h>
#include <tavorena/exchange/Pdf.h>
#include <tavorena/records/Seiten.h>

namespace tavorena::messung {
namespace {

// A protocol of so many pages, no line like the other.
std::string Protokoll(int Seiten) {
  std::string Text;
  for (int s = 0; s < Seiten; ++s) {
    for (int z = 0; z < 58; ++z)
      Text += fmt::format("      {:11.3f}   {:11.3f}   {:10.3f}   {:10.3f} {:11d}  ***\r\n",
                          3500000 + s * 1.234, 5600000 + z * 5.678, s * 0.017, z * 1.003, s * 100 + z);
    Text += '\f';
  }
  return Text;
}

// The way from the file of a protocol to that of its PDF. @return what it needs at most [KiB], beside what
// the measurements before it left
long AlsPdf(benchmark::State& Stand, int Seiten) {
  const std::string Name = Messpfad("seiten.dru"), Pdf = Messpfad("seiten.pdf");
  if (DateiErsetzen(Name, Protokoll(Seiten)) < 0) Stand.SkipWithError("Der Text ist nicht zu schreiben.");
  malloc_trim(0);
  Speicherspitze();
  const long Vorher = Speicherspitze();
  long Spitze = 0;
  for (auto _ : Stand) {
    Druckseiten D;
    if (DruckdateiLesen(Name, D) < 0 || std::ssize(D.Seiten) != Seiten ||
        PdfSchreiben(Pdf, D, "seiten.dru") < 0)
      Stand.SkipWithError("Die Seiten stimmen nicht.");
    Spitze = std::max(Spitze, Speicherspitze());
  }
  Stand.counters["KiB"] = static_cast<double>(Spitze - Vorher);
  return Spitze - Vorher;
}

long SpitzeMitHundert = 0;

void HundertMessen(benchmark::State& Stand) { SpitzeMitHundert = AlsPdf(Stand, 100); }

void TausendMessen(benchmark::State& Stand) {
  constexpr long Erlaubt = 16 << 10;  // [KiB]
  if (AlsPdf(Stand, 1000) - SpitzeMitHundert > Erlaubt)
    Stand.SkipWithError("Der Speicher wächst zu sehr mit den Seiten.");
}

constexpr auto ms = benchmark::kMillisecond;
BENCHMARK(HundertMessen)->Name("Pdf/100")->Unit(ms);
BENCHMARK(TausendMessen)->Name("Pdf/1000")->Unit(ms)->Iterations(1);

}  // namespace
}  // namespace tavorena::messung
