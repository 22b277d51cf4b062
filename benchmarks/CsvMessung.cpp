#include "Messdaten.h"

#include <algorithm>
#include <fstream>
#include <string>

#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/exchange/CSV.h>
#include <tavorena/exchange/NAS.h>

namespace tavorena::messung {
namespace {

void CsvLesenMessen(benchmark::State& Stand) {
  const std::string Name = Messpfad("punkte.csv");
  std::string Text;
  FormatAnmelden(CsvZugang());
  TabelleFüllen();
  if (KorText(Punktformat::Csv, 3, Text) < 0) return Stand.SkipWithError("Der Text scheitert.");
  std::ofstream(Name, std::ios::binary) << Text;
  int Ergebnis = 0;
  KorLeeren();
  for (auto _ : Stand) Ergebnis = KorLesen(Name, Lesemodus::Ersetzen, Punktformat::Csv);
  if (Ergebnis != 0 || !TabelleIstGanz()) Stand.SkipWithError("Die Tabelle stimmt nicht.");
}

// ---- NAS: the memory of a large extract --------------------------------------------------------------

// A point with its place, before, among or behind 200 MB of other objects.
std::string Nasdatei() {
  constexpr std::size_t Größe = 200 << 20;
  const std::string Name = Messpfad("auszug.xml");
  std::string Anderes =
      "<member><AX_Flurstueck gml:id=\"DEXX0000000000F1\"><position><gml:Surface><gml:posList>";
  for (int i = 0; i < 200; ++i) Anderes += "477000.123 5600000.456 ";
  Anderes +=
      "</gml:posList></gml:Surface></position><punktkennung>keine</punktkennung></AX_Flurstueck></member>\n";
  std::ofstream Datei(Name, std::ios::binary);
  Datei << "<a xmlns:gml=\"g\" xmlns:xlink=\"x\">";
  for (std::size_t Länge = 0; Länge < Größe; Länge += Anderes.size()) {
    if (Länge == 100 * Anderes.size())
      Datei << "<AX_Grenzpunkt gml:id=\"P1\"><punktkennung>324775600100012</punktkennung></AX_Grenzpunkt>";
    Datei << Anderes;
  }
  Datei << "<AX_PunktortTA gml:id=\"O1\"><istTeilVon xlink:href=\"urn:adv:oid:P1\"/><gml:pos>477000 "
           "5600000</gml:pos>"
           "</AX_PunktortTA></a>";
  return Name;
}

void NasMessen(benchmark::State& Stand) {
  constexpr long Erlaubt = 4 << 10;  // [KiB]
  const std::string Name = Nasdatei();
  FormatAnmelden(NasZugang());
  Speicherspitze();
  const long Vorher = Speicherspitze();
  long Spitze = 0;
  for (auto _ : Stand) {
    KorLeeren();
    if (KorLesen(Name, Lesemodus::Alle, Punktformat::Nas) != 0 || KorAnzahl != 1)
      return Stand.SkipWithError("Der Punkt fehlt.");
    Spitze = std::max(Spitze, Speicherspitze());
  }
  Stand.counters["KiB"] = static_cast<double>(Spitze - Vorher);
  if (Spitze - Vorher > Erlaubt) Stand.SkipWithError("Der Speicher wächst mit der Datei.");
}

constexpr auto ms = benchmark::kMillisecond;
BENCHMARK(CsvLesenMessen)->Name("CsvLesen")->Unit(ms);
BENCHMARK(NasMessen)->Name("NasLesen/200MB")->Unit(ms)->Iterations(1);

}  // namespace
}  // namespace tavorena::messung
