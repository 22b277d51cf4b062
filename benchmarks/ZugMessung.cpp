#include "Messdaten.h"

#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include <tavorena/calc/Polygon.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena::messung {
namespace {

constexpr int Zugpunkte = PolygonMaxSeiten - 1;
constexpr int Mitten = Zugpunkte / 2;  // the row that is changed
constexpr int SpalteWinkel = 1;

// A traverse of 1000 sides that is typed, its rows first; each change is another angle in its middle, and
// moves every point.
void ZugMessen(benchmark::State& Stand) {
  TabelleFüllen();
  Optionen = {};
  Optionen.AbfrageRiss = false;
  ProtokollNehmen("");
  StapelDatei = {};
  const Blattart* Art = BlattartVonKennung("19.10");
  const std::unique_ptr<Formular> Form = Art->Neu(*Art);
  Form->Öffnen();
  auto& G = dynamic_cast<Gitter&>(*Form->Finde("PolygonGitter"));
  const auto Tippe = [&](const std::string& Wort) {
    Form->Tippen(dynamic_cast<Eingabeelement&>(*Form->Fokus()), Wort);
    Form->TasteDrücken(Taste::Return);
  };
  Form->FokusWechseln(G);
  for (int i = 0; i < Zugpunkte; ++i) {
    for (const std::string& Wort :
         {"Z" + std::to_string(i), std::string("200"), std::string("10"), std::string()})
      Tippe(Wort);
  }
  Form->FokusWechseln(*Form->Finde("PolygonAnfZielPnr"));
  for (const std::string& Wort : {Punkte().Pnr[0], Punkte().Pnr[1], std::string("200"), std::string("10")})
    Tippe(Wort);
  Form->FokusWechseln(*Form->Finde("PolygonEndPnr"));
  for (const std::string& Wort : {Punkte().Pnr[2], std::string("200"), Punkte().Pnr[3]}) Tippe(Wort);
  Form->FokusWechseln(G);
  bool Groß = false;
  for (auto _ : Stand) {
    Form->ZelleWechseln(G, Mitten, SpalteWinkel);
    Form->Tippen(G, Groß ? "200" : "200,01");
    Form->TasteDrücken(Taste::Return);
    Groß = !Groß;
  }
  if (G.Zeilen() != Zugpunkte + 1 || G.Inhalt(Mitten, 5).empty()) Stand.SkipWithError("Der Zug fehlt.");
  Form->Schließen();
}
BENCHMARK(ZugMessen)->Name("Zug/1000");

// The calculation and the texts that are other ones then.
void ZugRechnen(benchmark::State& Stand) {
  const auto Ort = [](std::size_t i) { return Lage{Punkte().Rechts[i], Punkte().Hoch[i]}; };
  PolygonZug Zug{Ort(0), Ort(1), Ort(2), Ort(3),
                 200,    10,     200,    std::vector<PolygonZeile>(Zugpunkte, {200, 10})};
  PolygonErgebnis E;
  for (auto _ : Stand) {
    double& Winkel = Zug.Zeilen[Mitten].Winkel;
    Winkel = Winkel == 200 ? 200.01 : 200;
    if (PolygonCalc(Zug, true, true, true, true, E) < 0)
      return Stand.SkipWithError("Der Zug ist nicht zu rechnen.");
    for (int i = 0; i < Zugpunkte; ++i) {
      const PolygonSeite& S = E.Seiten[static_cast<std::size_t>(i)];
      for (const double x : {S.vR, S.vH, S.Ende.RW, S.Ende.HW})
        benchmark::DoNotOptimize(ZahlFormat(x, -1, 3));
    }
    for (const double x : {E.WY, E.WX, E.FW, E.FL, E.FQ}) benchmark::DoNotOptimize(ZahlFormat(x, -1, 3));
  }
}
BENCHMARK(ZugRechnen)->Name("NurZug/1000");

}  // namespace
}  // namespace tavorena::messung
