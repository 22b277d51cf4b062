#include "Messdaten.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/calc/Flaeche.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena::messung {
namespace {

constexpr int Grenzpunkte = 1000;
constexpr int Mitten = Grenzpunkte / 2;  // the row that is changed
constexpr int SpalteRadius = 3;

// A boundary that is typed; each change is another radius of a row in its middle.
void FlächeMessen(benchmark::State& Stand) {
  TabelleFüllen();
  Optionen = {};
  Optionen.AbfrageRiss = false;
  ProtokollNehmen("");
  StapelDatei = {};
  const Blattart* Art = BlattartVonKennung("65.00");
  const std::unique_ptr<Formular> Form = Art->Neu(*Art);
  Form->Öffnen();
  auto& G = dynamic_cast<Gitter&>(*Form->Finde("AreaGitter"));
  Form->FokusWechseln(G);
  for (int i = 0; i < Grenzpunkte; ++i) {
    Form->Tippen(G, Punkte().Pnr[static_cast<std::size_t>(i)]);
    for (int k = 0; k < 3; ++k) Form->TasteDrücken(Taste::Return);
  }
  bool Groß = false;
  for (auto _ : Stand) {
    Form->ZelleWechseln(G, Mitten, SpalteRadius);
    Form->Tippen(G, Groß ? "5000" : "6000G");
    Form->TasteDrücken(Taste::Return);
    Groß = !Groß;
  }
  if (G.Zeilen() != Grenzpunkte + 1 || G.Inhalt(Mitten, SpalteRadius) != (Groß ? "6000.000G" : "5000.000"))
    Stand.SkipWithError("Die Grenze fehlt.");
  Form->Schließen();
}
BENCHMARK(FlächeMessen)->Name("Flaeche/1000");

// The calculation and the texts that are other ones then.
void FlächeRechnen(benchmark::State& Stand) {
  std::vector<double> RW(Punkte().Rechts.begin(), Punkte().Rechts.begin() + Grenzpunkte),
      HW(Punkte().Hoch.begin(), Punkte().Hoch.begin() + Grenzpunkte), Radius(Grenzpunkte);
  std::vector<std::int16_t> Arten(Grenzpunkte);
  Flaechenwerte W;
  for (auto _ : Stand) {
    Radius[Mitten] = Arten[Mitten] == 1 ? 6000 : 5000;
    Arten[Mitten] = Arten[Mitten] == 1 ? 2 : 1;
    double Reduziert = 0;
    if (FlaecheBerechnen(RW, HW, Radius, Arten, Grenzpunkte, W) < 0 ||
        FlaecheGKReduziert(RW, HW, Grenzpunkte, W.Flaeche, Reduziert) < 0)
      return Stand.SkipWithError("Die Fläche ist nicht zu rechnen.");
    for (const double x : {W.Kanten[Mitten].Laenge, std::fabs(W.Polygonflaeche) + W.Bogenflaeche, W.Umring,
                           W.Bogenflaeche, Reduziert})
      benchmark::DoNotOptimize(ZahlFormat(x, -1, 3));
  }
}
BENCHMARK(FlächeRechnen)->Name("NurFlaeche/1000");

}  // namespace
}  // namespace tavorena::messung
