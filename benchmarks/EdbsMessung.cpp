#include "Messdaten.h"

#include <cmath>
#include <iterator>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>
#include <fast_float/fast_float.h>
#include <fmt/format.h>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/exchange/Formattafel.h>

namespace tavorena::messung {
namespace {

std::string Edbsdatei() {
  static const std::string Name = [] {
    FormateAnmelden();
    TabelleFüllen();
    std::string Text;
    return KorText(Punktformat::Edbs, 3, Text) == 0 && DateiErsetzen(Messpfad("a.eds"), Text) == 0
               ? Messpfad("a.eds")
               : "";
  }();
  return Name;
}

// Not every symbol of the points has a letter.
bool LageUndNummerStimmen() {
  const Punktlisten& P = Punkte();
  bool Gut = KorAnzahl == static_cast<int>(Punktzahl);
  for (std::size_t i = 0; Gut && i < Punktzahl; ++i) {
    Gut = KorPnr(static_cast<int>(i)) == P.Pnr[i] && KorRechts[i] == P.Rechts[i] && KorHoch[i] == P.Hoch[i] &&
          KorHoehe[i] == P.Hoehe[i];
  }
  return Gut;
}

void EdbsLesenMessen(benchmark::State& Stand) {
  const std::string Name = Edbsdatei();
  int Ergebnis = 0;
  KorLeeren();
  for (auto _ : Stand) Ergebnis = KorLesen(Name, Lesemodus::Ersetzen, Punktformat::Edbs);
  if (Ergebnis != 0 || !LageUndNummerStimmen()) Stand.SkipWithError("Die Tabelle stimmt nicht.");
}

// The least that any reader must do: the bytes of the file, and the three numbers of each line.
template <typename Nehmer>
bool NurSpalten(const std::string& Name, Nehmer Nimm) {
  std::string Inhalt;
  if (DateiLesen(Name, Inhalt) < 0) return false;
  for (std::size_t Ab = 0; Ab < Inhalt.size();) {
    const std::size_t Ende = Inhalt.find('\n', Ab);
    for (const auto& [Von, Bis] : {std::pair<std::size_t, std::size_t>{69, 80}, {80, 91}, {92, 98}}) {
      const char* z = Inhalt.data() + Ab + Von;
      while (*z == ' ' || *z == '+') ++z;
      double Zahl = 0;
      if (fast_float::from_chars(z, Inhalt.data() + Ab + Bis, Zahl).ec != std::errc{}) return false;
      Nimm(Zahl);
    }
    Ab = Ende + 1;
  }
  return true;
}

void NurSpaltenMessen(benchmark::State& Stand) {
  const std::string Name = Edbsdatei();
  bool Gut = true;
  for (auto _ : Stand) Gut = NurSpalten(Name, [](double& Zahl) { benchmark::DoNotOptimize(Zahl); }) && Gut;
  double Ist = 0;
  NurSpalten(Name, [&Ist](double Zahl) { Ist += Zahl; });
  if (!Gut || Ist < 9e9 * static_cast<double>(Punktzahl)) Stand.SkipWithError("Die Zahlen stimmen nicht.");
}

void EdbsTextMessen(benchmark::State& Stand) {
  static_cast<void>(Edbsdatei());
  TabelleFüllen();
  std::string Text, Soll;
  for (auto _ : Stand) {
    if (KorText(Punktformat::Edbs, 3, Text) < 0) return Stand.SkipWithError("Der Text scheitert.");
    benchmark::DoNotOptimize(Text.data());
  }
  if (DateiLesen(Messpfad("a.eds"), Soll) < 0 || Text != Soll) Stand.SkipWithError("Der Text stimmt nicht.");
}

void FmtSätze(fmt::memory_buffer& Text) {
  Text.clear();
  for (int i = 0; i < KorAnzahl; ++i) {
    const auto z = static_cast<std::size_t>(i);
    const KorInfoSatz& Info = KorInfo[z];
    const int R = static_cast<int>(KorRechts[z] / 1000), H = static_cast<int>(KorHoch[z] / 1000);
    fmt::format_to(
        std::back_inserter(Text),
        "EDBS01080000BSPE{:06}  0000{:<8}00010001{:02}{:02}{:02}{:02}{}{:0>5}{}{}{}{}{}{}{:0>1}{:0>3}"
        "{:0>1}{:11.0f}{:11.0f}2{:>+6.0f}{:02}0001\r\n",
        i + 1, "ULPUHESS", R / 100 % 100, H / 100 % 100, R % 100, H % 100, 0, KorPnr(i), 0, 0,
        Info.Punktstatus, Info.Aktualitaet, Info.Vermarkungsart, Info.BemZurVerm, Info.Entstehung,
        Info.Lagestatus, Info.Lagegenauigkeit, KorRechts[z] * 1000, KorHoch[z] * 1000, KorHoehe[z] * 1000,
        Info.ArtHoehenbestimmung);
  }
}

void FmtSätzeMessen(benchmark::State& Stand) {
  const std::string Name = Edbsdatei();
  TabelleFüllen();
  fmt::memory_buffer Text;
  for (auto _ : Stand) {
    FmtSätze(Text);
    benchmark::DoNotOptimize(Text.data());
  }
  std::string Soll;
  if (DateiLesen(Name, Soll) < 0 || Soll.size() != Text.size()) Stand.SkipWithError("Der Text stimmt nicht.");
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(EdbsLesenMessen)->Name("EdbsLesen/20000")->Unit(ms);
BENCHMARK(NurSpaltenMessen)->Name("NurSpalten/20000")->Unit(ms);
BENCHMARK(EdbsTextMessen)->Name("EdbsText/20000")->Unit(ms);
BENCHMARK(FmtSätzeMessen)->Name("FmtEdbs/20000")->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
