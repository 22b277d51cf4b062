#include "Messdaten.h"

#include <fstream>
#include <sstream>
#include <string>

#include <benchmark/benchmark.h>

#include <tavorena/console/Kommandozeile.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/exchange/Formattafel.h>

namespace tavorena::messung {
namespace {

// The table as a file of a format. @return its name
std::string Messdatei(Punktformat Format, const char* Name) {
  std::string Text;
  FormateAnmelden();
  TabelleFüllen();
  if (KorText(Format, 3, Text) < 0) return "";
  const std::string Ganz = Messpfad(Name);
  std::ofstream(Ganz, std::ios::binary) << Text;
  return Ganz;
}

void LfsLesenMessen(benchmark::State& Stand) {
  const std::string Name = Messdatei(Punktformat::Lfs, "punkte.lfs");
  int Ergebnis = 0;
  KorLeeren();
  for (auto _ : Stand) Ergebnis = KorLesen(Name, Lesemodus::Ersetzen, Punktformat::Lfs);
  if (Ergebnis != 0 || !TabelleIstGanz()) Stand.SkipWithError("Die Tabelle stimmt nicht.");
}

// A whole run of the console, files included.
void WandelnMessen(benchmark::State& Stand, Punktformat Format, const char* Von, const char* Nach) {
  const std::string Ein = Messdatei(Format, "wandeln.ein"), Aus = Messpfad("wandeln.aus");
  const char* const Worte[] = {"tavorena-stapel", "wandeln",   "--von",    Von, "--nach", Nach,
                               "--trotzdem",      Ein.c_str(), Aus.c_str()};
  for (auto _ : Stand) {
    std::ostringstream Ausgabe, Meldungen;
    if (KommandozeileAusführen(static_cast<int>(std::size(Worte)), Worte, {Ausgabe, Meldungen, ""}) != 0 ||
        Ausgabe.str().find("Punkte: " + std::to_string(Punktzahl) + " ") == std::string::npos)
      return Stand.SkipWithError("Es wurde nicht alles gewandelt.");
  }
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(LfsLesenMessen)->Name("LfsLesen")->Unit(ms);
BENCHMARK_CAPTURE(WandelnMessen, korkor, Punktformat::Kor, "kor", "kor")->Name("Wandeln/kor-kor")->Unit(ms);
BENCHMARK_CAPTURE(WandelnMessen, koredbs, Punktformat::Kor, "kor", "edbs")
    ->Name("Wandeln/kor-edbs")
    ->Unit(ms);
BENCHMARK_CAPTURE(WandelnMessen, edbskor, Punktformat::Edbs, "edbs", "kor")
    ->Name("Wandeln/edbs-kor")
    ->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
