#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>
#include <proj.h>

#include <tavorena/ta/TA.h>

namespace tavorena::messung {
namespace {

constexpr std::size_t Punktzahl = 1'000'000;
constexpr int ErsterStreifen = 2, Streifenzahl = 4;
constexpr double RadJeGrad = M_PI / 180;

// A million points over Germany, one strip after the other, so that the baseline need not change its
// projection between two points. It also gets its angles in radians and converts nothing.
struct Geopunkte {
  std::vector<double> Laenge, Breite;  // degrees
  std::vector<PJ_COORD> Geo, Gitter;   // the same in radians, and in Gauss-Krüger

  Geopunkte() {
    std::mt19937 Zufall(19700101);
    std::uniform_real_distribution<double> L(-1.499999, 1.499999), B(47, 55.2);
    for (std::size_t i = 0; i < Punktzahl; ++i) {
      Laenge.push_back(3.0 * Streifen(i) + L(Zufall));
      Breite.push_back(B(Zufall));
      Geo.push_back(proj_coord(Laenge[i] * RadJeGrad, Breite[i] * RadJeGrad, 0, 0));
      Gitter.push_back(proj_trans(Projektion(i), PJ_FWD, Geo[i]));
    }
  }
  static int Streifen(std::size_t i) {
    return ErsterStreifen + static_cast<int>(i / (Punktzahl / Streifenzahl));
  }
  [[nodiscard]] PJ* Projektion(std::size_t i) const {
    return Projektionen[static_cast<std::size_t>(Streifen(i) - ErsterStreifen)].get();
  }

 private:
  using Zeiger = std::unique_ptr<PJ, PJ* (*)(PJ*)>;
  static std::vector<Zeiger> Anlegen() {
    std::vector<Zeiger> Alle;
    for (int k = ErsterStreifen; k < ErsterStreifen + Streifenzahl; ++k) {
      const std::string Text = "+proj=tmerc +lat_0=0 +lon_0=" + std::to_string(3 * k) +
                               " +k=1 +x_0=" + std::to_string(k) +
                               "500000 +y_0=0 +a=6377397.155 +b=6356078.963";
      Alle.emplace_back(proj_create(PJ_DEFAULT_CTX, Text.c_str()), proj_destroy);
    }
    return Alle;
  }
  std::vector<Zeiger> Projektionen = Anlegen();
};

const Geopunkte& Geo() {
  static const Geopunkte G;
  return G;
}

void NachGKMessen(benchmark::State& Stand) {
  const Geopunkte& G = Geo();
  TA Ta;
  std::vector<double> R(Punktzahl), H(Punktzahl);
  for (auto _ : Stand) {
    for (std::size_t i = 0; i < Punktzahl; ++i)
      benchmark::DoNotOptimize(Ta.KonvertierungGeographischNachGK(G.Laenge[i], G.Breite[i], R[i], H[i]));
  }
  double Abweichung = 0;
  for (std::size_t i = 0; i < Punktzahl; ++i)
    Abweichung = std::max(Abweichung, std::hypot(R[i] - G.Gitter[i].xy.x, H[i] - G.Gitter[i].xy.y));
  if (!(Abweichung < 2e-5)) Stand.SkipWithError("Die Koordinaten stimmen nicht.");
}

void NachGeographischMessen(benchmark::State& Stand) {
  const Geopunkte& G = Geo();
  TA Ta;
  std::vector<double> L(Punktzahl), B(Punktzahl);
  for (auto _ : Stand) {
    for (std::size_t i = 0; i < Punktzahl; ++i)
      benchmark::DoNotOptimize(
          Ta.KonvertierungGKNachGeographisch(G.Gitter[i].xy.x, G.Gitter[i].xy.y, L[i], B[i]));
  }
  double Abweichung = 0;  // degrees
  for (std::size_t i = 0; i < Punktzahl; ++i)
    Abweichung = std::max(Abweichung, std::hypot(L[i] - G.Laenge[i], B[i] - G.Breite[i]));
  if (!(Abweichung < 1e-10)) Stand.SkipWithError("Die Koordinaten stimmen nicht.");
}

void ProjTransMessen(benchmark::State& Stand, PJ_DIRECTION Richtung) {
  const Geopunkte& G = Geo();
  const std::vector<PJ_COORD>& Von = Richtung == PJ_FWD ? G.Geo : G.Gitter;
  std::vector<PJ_COORD> Nach(Punktzahl);
  for (auto _ : Stand) {
    for (std::size_t i = 0; i < Punktzahl; ++i) Nach[i] = proj_trans(G.Projektion(i), Richtung, Von[i]);
    benchmark::ClobberMemory();
  }
  if (!std::isfinite(Nach.back().xy.x)) Stand.SkipWithError("PROJ rechnet nicht.");
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(NachGKMessen)->Name("KonvertierungGeographischNachGK")->Unit(ms);
BENCHMARK(NachGeographischMessen)->Name("KonvertierungGKNachGeographisch")->Unit(ms);
BENCHMARK_CAPTURE(ProjTransMessen, vorwaerts, PJ_FWD)->Name("ProjTrans/vorwaerts")->Unit(ms);
BENCHMARK_CAPTURE(ProjTransMessen, rueckwaerts, PJ_INV)->Name("ProjTrans/rueckwaerts")->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
