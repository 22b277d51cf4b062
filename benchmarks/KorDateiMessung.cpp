#include "Messdaten.h"

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>
#include <fast_float/fast_float.h>
#include <fmt/format.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Verlust.h>

namespace tavorena::messung {
namespace {

void KorLesenMessen(benchmark::State& Stand, bool Gemischt, const char* Zeilenende) {
  const std::string Name = Kordatei(Gemischt, Zeilenende);
  int Ergebnis = 0;
  KorLeeren();
  for (auto _ : Stand) Ergebnis = KorLesen(Name, Lesemodus::Ersetzen, Dateiformat::Kor);
  if (Ergebnis != 0 || !TabelleIstGanz()) Stand.SkipWithError("Die Tabelle stimmt nicht.");
}

// The least that any reader must do: the bytes of the file, and the three numbers of each line.
template <typename Nehmer>
bool NurZahlen(const std::string& Name, Nehmer Nimm) {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> Kanal(std::fopen(Name.c_str(), "rb"), std::fclose);
  if (!Kanal) return false;
  std::string Inhalt(std::filesystem::file_size(Name), '\0');
  if (std::fread(Inhalt.data(), 1, Inhalt.size(), Kanal.get()) != Inhalt.size()) return false;
  const char* z = Inhalt.data();
  const char* const Ende = z + Inhalt.size();
  const auto Blanks = [&] {
    while (z < Ende && *z == ' ') ++z;
  };
  while (z < Ende) {
    Blanks();
    while (z < Ende && *z != ' ') ++z;  // the point number
    for (int i = 0; i < 3; ++i) {
      double Zahl = 0;
      Blanks();
      const auto Ergebnis = fast_float::from_chars(z, Ende, Zahl);
      if (Ergebnis.ec != std::errc{}) return false;
      z = Ergebnis.ptr;
      Nimm(Zahl);
    }
    while (z < Ende && *z++ != '\n') {
    }
  }
  return true;
}

void NurZahlenMessen(benchmark::State& Stand, bool Gemischt) {
  const std::string Name = Kordatei(Gemischt);
  bool Gut = true;
  for (auto _ : Stand) Gut = NurZahlen(Name, [](double& Zahl) { benchmark::DoNotOptimize(Zahl); }) && Gut;
  double Ist = 0, Soll = 0;  // in millimetres, so that the order of the rows does not matter
  const auto Summe = [](double& S) { return [&S](double Zahl) { S += std::round(Zahl * 1000); }; };
  NurZahlen(Name, Summe(Ist));
  for (const auto* Spalte : {&Punkte().Rechts, &Punkte().Hoch, &Punkte().Hoehe}) {
    for (const double Zahl : *Spalte) Summe(Soll)(Zahl);
  }
  if (!Gut || Ist != Soll) Stand.SkipWithError("Die Zahlen stimmen nicht.");
}

void FmtText(fmt::memory_buffer& Text) {
  Text.clear();
  for (int i = 0; i < KorAnzahl; ++i) {
    const auto z = static_cast<std::size_t>(i);
    fmt::format_to(std::back_inserter(Text), "      {:>8}   {:11.3f}   {:11.3f} {:11.3f}  {}\r\n", KorPnr(i),
                   KorRechts[z], KorHoch[z], KorHoehe[z], KorSymbol[z]);
  }
}

void KorTextMessen(benchmark::State& Stand) {
  TabelleFüllen();
  std::string Text;
  for (auto _ : Stand) {
    if (KorText(Dateiformat::Kor, 3, Text) < 0) return Stand.SkipWithError("Der Text scheitert.");
    benchmark::DoNotOptimize(Text.data());
  }
  fmt::memory_buffer Soll;
  FmtText(Soll);
  if (Text != std::string_view(Soll.data(), Soll.size())) Stand.SkipWithError("Der Text stimmt nicht.");
}

void FmtTextMessen(benchmark::State& Stand) {
  TabelleFüllen();
  fmt::memory_buffer Text;
  for (auto _ : Stand) {
    FmtText(Text);
    benchmark::DoNotOptimize(Text.data());
  }
  std::string Soll;
  if (KorText(Dateiformat::Kor, 3, Soll) < 0 || Soll != std::string_view(Text.data(), Text.size()))
    Stand.SkipWithError("Der Text stimmt nicht.");
}

void KorSchreibenMessen(benchmark::State& Stand) {
  TabelleFüllen();
  const std::string Name = Messpfad("neu.kor");
  int Zeilen = 0;
  for (auto _ : Stand) Zeilen = KorSchreiben(Name, Dateiformat::Kor, 3);
  KorLeeren();
  if (Zeilen != static_cast<int>(Punktzahl) || KorLesen(Name, Lesemodus::Ersetzen, Dateiformat::Kor) != 0 ||
      !TabelleIstGanz()) {
    Stand.SkipWithError("Die Datei stimmt nicht.");
  }
}

// The question before a file is written; the points come back from it.
void VerlustMessen(benchmark::State& Stand, Punktformat Format) {
  TabelleFüllen();
  int Verloren = 0;
  for (auto _ : Stand) {
    const Verlustliste V = TabellenVerlust(*FormatFinden(Format), 3);
    Verloren = V[Verlustart::Koordinaten].Anzahl + V[Verlustart::NummernAnders].Anzahl;
  }
  if (Verloren != 0) Stand.SkipWithError("Die Datei gäbe die Punkte zurück.");
}

// Of all points the table knows all but the last: with one from the middle the table would be full before
// the end of the file, and the read would stop there.
constexpr int Fehlender = static_cast<int>(Punktzahl) - 1;

void MischenMessen(benchmark::State& Stand) {
  const std::string Name = Kordatei(false);
  TabelleFüllen();
  for (auto _ : Stand) {
    ZeileLöschen(Fehlender);
    const double Ab = Prozessorzeit();
    const int Ergebnis = KorLesen(Name, Lesemodus::NurNeue, Dateiformat::Kor);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    if (Ergebnis != 0 || !TabelleIstGanz()) return Stand.SkipWithError("Die Tabelle stimmt nicht.");
  }
}

void JedeSuchenMessen(benchmark::State& Stand) {
  TabelleFüllen();
  ZeileLöschen(Fehlender);
  int Gefunden = 0;
  for (auto _ : Stand) {
    Gefunden = 0;
    for (const std::string& Pnr : Punkte().Pnr) Gefunden += KorSuche(std::string_view(Pnr)) >= 0 ? 1 : 0;
  }
  if (Gefunden != static_cast<int>(Punktzahl) - 1) Stand.SkipWithError("Die Suche stimmt nicht.");
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK_CAPTURE(KorLesenMessen, geordnet, false, "\r\n")->Name("KorLesen/geordnet")->Unit(ms);
BENCHMARK_CAPTURE(KorLesenMessen, gemischt, true, "\r\n")->Name("KorLesen/gemischt")->Unit(ms);
BENCHMARK_CAPTURE(KorLesenMessen, unix, false, "\n")->Name("KorLesen/unix")->Unit(ms);
BENCHMARK_CAPTURE(VerlustMessen, kor, Punktformat::Kor)->Name("Verlust/kor")->Unit(ms);
BENCHMARK_CAPTURE(NurZahlenMessen, geordnet, false)->Name("NurZahlen/geordnet")->Unit(ms);
BENCHMARK_CAPTURE(NurZahlenMessen, gemischt, true)->Name("NurZahlen/gemischt")->Unit(ms);
BENCHMARK(KorTextMessen)->Name("KorText")->Unit(ms);
BENCHMARK(FmtTextMessen)->Name("FmtText")->Unit(ms);
BENCHMARK(KorSchreibenMessen)->Name("KorSchreiben")->Unit(ms)->UseRealTime();
BENCHMARK(MischenMessen)->Name("KorLesen/mischen")->Unit(ms)->UseManualTime();
BENCHMARK(JedeSuchenMessen)->Name("KorSuche/jede")->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
