#include "Messdaten.h"

#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/ta/TA.h>

namespace tavorena::messung {
namespace {

// A turn by 20 gon about a point of the table: however often it runs, the coordinates stay in the grid.
constexpr double MitteR = 3456000, MitteH = 5612000;
const double DrehungA = std::cos(M_PI / 10), DrehungB = std::sin(M_PI / 10);
constexpr double Überall = 1e9, Nirgends = 0;  // border of the passpoint field

void HelmertMessen(benchmark::State& Stand, double MaximalerAbstand) {
  TA Ta;
  TabelleFüllen();
  enmResult Ergebnis{};
  for (auto _ : Stand) {
    Ergebnis = Ta.HelmertTransformationAlleKoordinaten(MitteR, MitteH, MitteR, MitteH, DrehungA, DrehungB,
                                                       MaximalerAbstand);
    benchmark::ClobberMemory();
  }
  const bool Innen = MaximalerAbstand == Überall;
  if (KorAnzahl != static_cast<int>(Punktzahl) ||
      Ergebnis != (Innen ? enmResult::ok : enmResult::Hinweis_PunktAusserhalbDesPasspunktfeldes))
    Stand.SkipWithError("Die Transformation stimmt nicht.");
}

// The sums and products of the same turn in place, and nothing else.
void MalUndPlusMessen(benchmark::State& Stand) {
  std::vector<double> R = Punkte().Rechts, H = Punkte().Hoch;
  for (auto _ : Stand) {
    double* const r = R.data();
    double* const h = H.data();
    for (std::size_t i = 0; i < Punktzahl; ++i) {
      const double e = r[i] - MitteR, n = h[i] - MitteH;
      r[i] = MitteR + DrehungA * e + DrehungB * n;
      h[i] = MitteH + DrehungA * n - DrehungB * e;
    }
    benchmark::ClobberMemory();
  }
  if (!std::isfinite(R.back() + H.back())) Stand.SkipWithError("Die Schleife rechnet nicht.");
}

// Known points and what was measured from a station among them, with errors of some millimetres.
struct Beobachtungen {
  explicit Beobachtungen(std::size_t Anzahl) {
    std::mt19937 Zufall(50);
    std::normal_distribution<double> Fehler(0, 0.005);
    for (std::size_t i = 0; i < Anzahl; ++i) {
      const std::size_t p = (i * 397) % Punktzahl;
      const double dR = Punkte().Rechts[p] - StandR, dH = Punkte().Hoch[p] - StandH;
      Pnr.emplace_back(Punkte().Pnr[p]);
      RW.push_back(Punkte().Rechts[p]);
      HW.push_back(Punkte().Hoch[p]);
      NeuRW.push_back(MitteR + dR + Fehler(Zufall));
      NeuHW.push_back(MitteH + dH + Fehler(Zufall));
      Richtung.push_back(std::atan2(dR, dH) * 200 / M_PI);
      Vk.push_back(100);
      Strecke.push_back(std::hypot(dR, dH) + Fehler(Zufall));
    }
  }
  static constexpr double StandR = 3456500.25, StandH = 5612300.75;
  std::vector<Wert> Pnr;
  std::vector<double> RW, HW, NeuRW, NeuHW, Richtung, Vk, Strecke;
};

struct Ergebnisse {
  std::vector<double> VY, VX, WL;
  double Z[9] = {};
};

/// Runs one calculation after the other and fails if its allocations grow with the number of points.
template <typename Rechnung>
void RechnungMessen(benchmark::State& Stand, std::size_t Anzahl, Rechnung Rechne) {
  TA Ta;
  TabelleFüllen();
  const Beobachtungen Wenige(Anzahl / 4), Alle(Anzahl);
  const auto Zählen = [&](const Beobachtungen& B) {
    Ergebnisse E;
    const std::int64_t Vorher = Zuteilungen();
    if (Rechne(Ta, B, E) != enmResult::ok) Stand.SkipWithError("Die Rechnung scheitert.");
    return Zuteilungen() - Vorher;
  };
  if (Zählen(Wenige) != Zählen(Alle)) Stand.SkipWithError("Die Schleifen fordern Speicher an.");
  Ergebnisse E;
  for (auto _ : Stand) {
    benchmark::DoNotOptimize(Rechne(Ta, Alle, E));
    benchmark::ClobberMemory();
  }
}

enmResult Ausgleichen(TA& Ta, const Beobachtungen& B, Ergebnisse& E) {
  return Ta.HelmertTransformationParameter(
      B.RW, B.HW, B.NeuRW, B.NeuHW, static_cast<std::int32_t>(B.RW.size()), true, E.Z[0], E.Z[1], E.Z[2],
      E.Z[3], E.Z[4], E.Z[5], E.Z[6], E.Z[7], E.Z[8], E.VY, E.VX, E.WL, E.Z[0], E.Z[1]);
}

enmResult Stationieren(TA& Ta, const Beobachtungen& B, Ergebnisse& E) {
  return Ta.FreieStationierung(B.RW, B.HW, B.Richtung, B.Vk, B.Strecke,
                               static_cast<std::int32_t>(B.RW.size()), E.Z[0], E.Z[1], true, E.VY, E.VX,
                               E.WL);
}

enmResult PnrStationieren(TA& Ta, const Beobachtungen& B, Ergebnisse& E) {
  return Ta.FreieStationierungPnr(B.Pnr, B.Richtung, B.Vk, B.Strecke, static_cast<std::int32_t>(B.Pnr.size()),
                                  E.Z[0], E.Z[1], true, E.VY, E.VX, E.WL);
}

enmResult PolarRechnen(TA& Ta, const Beobachtungen& B, Ergebnisse& E) {
  return Ta.Polarpunkt(B.RW[0], B.HW[0], B.RW[1], B.HW[1], 12.5, 20, E.Z[0], E.Z[1]);
}

enmResult PnrPolarRechnen(TA& Ta, const Beobachtungen& B, Ergebnisse& E) {
  return Ta.PolarpunktPnr(B.Pnr[0], B.Pnr[1], 12.5, 20, E.Z[0], E.Z[1]);
}

void SuchenMessen(benchmark::State& Stand, std::size_t Anzahl) {
  TabelleFüllen();
  const Beobachtungen B(Anzahl);
  int Summe = 0;
  for (auto _ : Stand) {
    for (const Wert& Pnr : B.Pnr) benchmark::DoNotOptimize(Summe = KorSuche(Pnr));
    benchmark::ClobberMemory();
  }
  if (Summe < 0) Stand.SkipWithError("Ein Punkt fehlt.");
}

constexpr auto us = benchmark::kMicrosecond;

BENCHMARK_CAPTURE(HelmertMessen, innen, Überall)->Name("HelmertAlle/innen")->Unit(us);
BENCHMARK_CAPTURE(HelmertMessen, aussen, Nirgends)->Name("HelmertAlle/aussen")->Unit(us);
BENCHMARK(MalUndPlusMessen)->Name("MalUndPlus")->Unit(us);
BENCHMARK_CAPTURE(RechnungMessen, 101, 101, Ausgleichen)->Name("HelmertParameter/101");
BENCHMARK_CAPTURE(RechnungMessen, 50, 50, Stationieren)->Name("FreieStationierung/50");
BENCHMARK_CAPTURE(RechnungMessen, Pnr50, 50, PnrStationieren)->Name("FreieStationierungPnr/50");
BENCHMARK_CAPTURE(SuchenMessen, 50, 50)->Name("KorSuche/50");
BENCHMARK_CAPTURE(RechnungMessen, Polar, 8, PolarRechnen)->Name("Polarpunkt");
BENCHMARK_CAPTURE(RechnungMessen, PolarPnr, 8, PnrPolarRechnen)->Name("PolarpunktPnr");
BENCHMARK_CAPTURE(SuchenMessen, 2, 2)->Name("KorSuche/2");

}  // namespace
}  // namespace tavorena::messung
