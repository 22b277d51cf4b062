#include "Messdaten.h"
#include "Stapelauftrag.h"

#include <array>
#include <cmath>
#include <fstream>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/calc/FreieStationierung.h>
#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/FStat.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena::messung {
namespace {

// Known points round a station with what is measured to them, as columns.
struct Stationsspalten {
  std::vector<double> RW, HW, Höhe, Hz, Vk, Strecke, Zielhöhe;
  void Leeren() {
    for (auto* S : {&RW, &HW, &Höhe, &Hz, &Vk, &Strecke, &Zielhöhe}) S->clear();
  }
  [[nodiscard]] Anschlussbeobachtungen Lage() const { return {RW, HW, Hz, Vk, Strecke}; }
  [[nodiscard]] Hoehenbeobachtungen Höhen(double I) const { return {Höhe, Zielhöhe, Vk, Strecke, I}; }
};

Stationsspalten Beobachtet(std::size_t Anzahl) {
  std::mt19937 Zufall(50);
  std::uniform_real_distribution<double> Gon(0, 400), Zenit(90, 110), Meter(10, 400);
  Stationsspalten S;
  for (std::size_t i = 0; i < Anzahl; ++i) {
    const double r = Gon(Zufall), z = Zenit(Zufall), s = Meter(Zufall);
    S.Hz.push_back(r);
    S.Vk.push_back(z);
    S.Strecke.push_back(s);
    S.Zielhöhe.push_back(1.3);
    S.RW.push_back(3456500.25 + s * SinGon(z) * SinGon(r + 37));
    S.HW.push_back(5612300.75 + s * SinGon(z) * CosGon(r + 37));
    S.Höhe.push_back(150 + s * CosGon(z));
  }
  return S;
}

void FreieStationMessen(benchmark::State& Stand) {
  const Stationsspalten S = Beobachtet(1000);
  FreieStation F;
  Stationshoehe H;
  for (auto _ : Stand) {
    const int Ergebnis =
        FreieStationierung(S.Lage(), TransformationsartHelmert, F) + FStatRechneMittlereHöhe(S.Höhen(1.5), H);
    if (Ergebnis != 0) return Stand.SkipWithError("Die Station scheitert.");
    benchmark::DoNotOptimize(F.StandPunkt);
    benchmark::ClobberMemory();
  }
  if (std::fabs(F.StandPunkt.RW - 3456500.25) > 1e-6) Stand.SkipWithError("Die Station stimmt nicht.");
}

void PassungMessen(benchmark::State& Stand) {
  const Stationsspalten S = Beobachtet(1000);
  HelmertErgebnis E;
  for (auto _ : Stand) {
    if (HelmertHelmert({S.RW, S.HW, S.HW, S.RW}, true, {}, E) != 0)
      return Stand.SkipWithError("Die Passung scheitert.");
    benchmark::ClobberMemory();
  }
}

// The 4,000 sines and cosines of 1,000 observations.
void WinkelMessen(benchmark::State& Stand) {
  const Stationsspalten S = Beobachtet(1000);
  double Summe = 0;
  for (auto _ : Stand) {
    for (std::size_t i = 0; i < S.Hz.size(); ++i) {
      const double r = S.Hz[i] / 400 * 2 * std::numbers::pi, z = S.Vk[i] / 400 * 2 * std::numbers::pi;
      Summe += std::sin(z) + std::sin(r) + std::cos(r) + std::cos(z);
    }
    benchmark::DoNotOptimize(Summe);
  }
}

// ---- a day's batch -----------------------------------------------------------------------------------

constexpr int Stationen = 40, PunkteJeStation = 200, Tageszeilen = Stationen * (PunkteJeStation + 1);

Stapelauftrag TagBilden() {
  const Stapelauftrag A{Messpfad("tag.kor"), Messpfad("tag.sta")};
  const Stationsspalten S = Beobachtet(5);
  std::ofstream Kor(A.Koordinaten, std::ios::binary), Sta(A.Stapel, std::ios::binary);
  std::string Zeile;
  FStatEingabe E;
  E.Instrumentenhoehe = 1.5;
  for (std::size_t i = 0; i < 5; ++i) {
    const std::string Pnr = std::to_string(101 + i);
    KorZeileSchreiben(Pnr, S.RW[i], S.HW[i], S.Höhe[i], "", Zeile);
    Kor << Zeile << "\r\n";
    E.Anschluesse.push_back({Pnr, S.Hz[i], S.Vk[i], S.Strecke[i], 1.3});
  }
  for (int s = 0; s < Stationen; ++s) {
    E.StandPnr = E.NeuPnr = std::to_string(5001 + s);
    Sta << "M  " << TitelFStat << "\r\n";
    for (const std::string& Satz : StapelFStat(E)) Sta << Satz << "\r\n";
    for (int p = 0; p < PunkteJeStation; ++p) {
      const int n = s * PunkteJeStation + p;
      Sta << FStatPolarSatz(
                 {{std::to_string(10001 + n), 0.1234 + n % 400, 98.5, 20.0 + n % 97, 1.3}, "015", ""})
          << "\r\n";
    }
    Sta << "E Ende\r\n";
  }
  return A;
}

// Read both files, look up, calculate, store, and nothing else. @return stations and points
int NurTag(const Stapelauftrag& A) {
  std::string Text;
  KorLeeren();
  if (KorLesen(A.Koordinaten, Lesemodus::Ersetzen, Dateiformat::Kor) < 0) return -1;
  if (TextdateiLesen(A.Stapel, Text) < 0) return -1;
  Stationsspalten S;
  FreieStation F;
  Stationshoehe H;
  double I = 0;
  int Zeilen = 0;
  Punktnotiz Notiz;
  Zeilenleser Leser(Text);
  for (std::string_view Rest; Leser.Nächste(Rest);) {
    const std::string_view Wort = Wortnehmen(Rest);
    if (Wort != "PAN" && Wort != "PSN" && Wort != "NEUPUNKT" && Wort != "PWS") continue;
    Wert Pnr{std::string(Wortnehmen(Rest))};
    std::array<double, 4> x{};
    if (Wort != "NEUPUNKT") {
      for (double& Zahl : x) Zahl = ZahlAusText(Wortnehmen(Rest));
    }
    if (Wort == "PAN") {
      I = x[0];
      S.Leeren();
    } else if (Wort == "PSN") {
      const int z = KorSuche(Pnr);
      if (z < 0) return -1;
      const KorSatz P = KorPunkt(z);
      S.RW.push_back(P.Rechts);
      S.HW.push_back(P.Hoch);
      S.Höhe.push_back(P.Hoehe);
      S.Hz.push_back(x[0]);
      S.Vk.push_back(x[1]);
      S.Strecke.push_back(x[2]);
      S.Zielhöhe.push_back(x[3]);
    } else if (Wort == "NEUPUNKT") {
      if (FreieStationierung(S.Lage(), TransformationsartHelmert, F) < 0) return -1;
      if (FStatRechneMittlereHöhe(S.Höhen(I), H) < 0) return -1;
      if (NeupunktEintragen(Pnr, F.StandPunkt.RW, F.StandPunkt.HW, H.StandHoehe, "", nullptr, Notiz) >= 0)
        ++Zeilen;
    } else {
      const double D = F.Massstab * x[2];
      const Lage P = FreieStationierungKleinpunkt(F.StandPunkt, F.EpsilonGon, x[0], D, x[1]);
      const double Höhe = FStatPolarpunktHoehe(H.StandHoehe, I, D, x[1], x[3]);
      const std::string Symbol(Wortnehmen(Rest));
      if (NeupunktEintragen(Pnr, P.RW, P.HW, Höhe, Symbol, nullptr, Notiz) >= 0) ++Zeilen;
    }
  }
  return Zeilen;
}

template <typename Lauf>
void TagMessen(benchmark::State& Stand, Lauf Laufen) {
  const Stapelauftrag A = TagBilden();
  for (auto _ : Stand) {
    const double Ab = Prozessorzeit();
    const int Zeilen = Laufen(A);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    if (Zeilen != Tageszeilen) return Stand.SkipWithError("Der Tag lief nicht durch.");
  }
}

int TagAbspielen(const Stapelauftrag& A) { return AbspielenKonsole(A, ""); }

constexpr auto us = benchmark::kMicrosecond;
constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(FreieStationMessen)->Name("FreieStation/1000")->Unit(us);
BENCHMARK(PassungMessen)->Name("Passung/1000")->Unit(us);
BENCHMARK(WinkelMessen)->Name("SinusCosinus/4000")->Unit(us);
BENCHMARK_CAPTURE(TagMessen, Konsole, TagAbspielen)
    ->Name("Tagesjob/8000")
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(ms);
BENCHMARK_CAPTURE(TagMessen, Nur, NurTag)->Name("NurTag/8000")->Iterations(3)->UseManualTime()->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
