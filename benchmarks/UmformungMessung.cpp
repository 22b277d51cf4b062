#include "Messdaten.h"

#include <cmath>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/worksheets/Blattart.h>

namespace fs = std::filesystem;

namespace tavorena::messung {
namespace {

constexpr std::size_t Passpunktzahl = 100, Schritt = Punktzahl / Passpunktzahl;

// Says yes.
class Zusage final : public Rückfragen {
 public:
  Zusage() : Vorher(PortsSetzen({this, nullptr, nullptr, nullptr})) {}
  ~Zusage() override { PortsSetzen(Vorher); }
  Zusage(const Zusage&) = delete;
  Zusage& operator=(const Zusage&) = delete;
  int Meldung(const std::string& /*Text*/, Knöpfe /*Art*/, const std::string& /*Titel*/,
              int /*Vorgabe*/) override {
    return KnopfJa;
  }

 private:
  Ports Vorher;
};

// The new system: every two hundredth point, some millimetres off.
void SystemSchreiben(const std::string& Name) {
  std::ofstream Datei(Name);
  for (std::size_t i = 0; i < Punktzahl; i += Schritt)
    Datei << fmt::format("{} {:.3f} {:.3f}\r\n", Punkte().Pnr[i],
                         Punkte().Rechts[i] + 0.001 * static_cast<double>(i % 7),
                         Punkte().Hoch[i] - 0.001 * static_cast<double>(i % 5));
}

// From the button to the records, with protocol and batch file.
void TransformationMessen(benchmark::State& Stand) {
  TabelleFüllen();
  Optionen = {};
  Optionen.AbfrageRiss = false;
  const std::string Ort = Messpfad("umformung");
  fs::remove_all(Ort);
  fs::create_directories(Ort);
  SystemSchreiben(Ort + "/neu.kor");
  DateinameProtokollTemp = Ort + "/prot.tmp";
  StapelDatei = {};
  StapelDatei.Name = Ort + "/a.sta";
  const Zusage Ja;
  const std::unique_ptr<Formular> Form = [] {
    const Blattart* Art = BlattartVonKennung("24.00");
    return Art->Neu(*Art);
  }();
  const auto Drücke = [&](const char* Name) { Form->Klicken(dynamic_cast<Knopf&>(*Form->Finde(Name))); };
  Form->Öffnen();
  Form->Tippen(dynamic_cast<Feld&>(*Form->Finde("HelmertDatei")), Ort + "/neu.kor");
  Drücke("HelmertGleich");
  std::uintmax_t Länge = 0;
  for (auto _ : Stand) {
    const std::string Name = Ort + "/a.dru";
    fs::remove(Name);
    ProtokollNehmen(Name);
    const double Ab = Prozessorzeit();
    Drücke("HelmertTransformieren");
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    Länge = fs::file_size(Name);
    Drücke("HelmertZurück");
  }
  Form->Schließen();
  ProtokollNehmen("");
  StapelDatei = {};
  fs::remove_all(Ort);
  if (Länge < Punktzahl * 69) Stand.SkipWithError("Die Liste fehlt.");
  TabelleFüllen();
}

// The lines of the list in one buffer and one write.
void ListeMessen(benchmark::State& Stand) {
  TabelleFüllen();
  const std::string Name = Messpfad("liste.dru");
  for (auto _ : Stand) {
    const double Ab = Prozessorzeit();
    fmt::memory_buffer Text;
    for (std::size_t i = 0; i < Punktzahl; ++i)
      fmt::format_to(std::back_inserter(Text), "    {:12.4f} {:12.4f}{:28}{:>8}     {}\r\n", KorRechts[i],
                     KorHoch[i], "", KorPnr(static_cast<int>(i)), i % Schritt == 0 ? "Passp." : "");
    const int K = open(Name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    const bool Gut = K >= 0 && write(K, Text.data(), Text.size()) == static_cast<ssize_t>(Text.size());
    if (K < 0 || close(K) < 0 || !Gut) return Stand.SkipWithError("Die Grundlage stimmt nicht.");
    Stand.SetIterationTime(Prozessorzeit() - Ab);
  }
}

struct Verteilung {
  std::vector<double> R = Punkte().Rechts, H = Punkte().Hoch, PR, PH;
  Restklaffen Klaffen;
  Verteilung() {
    for (std::size_t i = 0; i < Punktzahl; i += Schritt) {
      PR.push_back(R[i] + 0.5);
      PH.push_back(H[i]);
      Klaffen.RestklaffeVY.push_back(0.001 * static_cast<double>(i % 7));
      Klaffen.RestklaffeVX.push_back(-0.001 * static_cast<double>(i % 5));
    }
  }
};

void VerteilenMessen(benchmark::State& Stand) {
  Verteilung V;
  for (auto _ : Stand) {
    HelmertHelmertanpass({V.PR, V.PH, V.PR, V.PH}, V.Klaffen, V.R, V.H);
    benchmark::ClobberMemory();
  }
}

void DoppelschleifeMessen(benchmark::State& Stand) {
  Verteilung V;
  for (auto _ : Stand) {
    for (std::size_t z = 0; z < Punktzahl; ++z) {
      double Sw = 0, Sy = 0, Sx = 0;
      for (std::size_t i = 0; i < V.PR.size(); ++i) {
        const double e = V.R[z] - V.PR[i], n = V.H[z] - V.PH[i], d = std::sqrt(e * e + n * n),
                     w = 1.0 / (d * d);
        Sw += w;
        Sy += V.Klaffen.RestklaffeVY[i] * w;
        Sx += V.Klaffen.RestklaffeVX[i] * w;
      }
      V.R[z] += Sy / Sw;
      V.H[z] += Sx / Sw;
    }
    benchmark::ClobberMemory();
  }
}

constexpr auto ms = benchmark::kMillisecond;

BENCHMARK(TransformationMessen)->Name("Transformation/20000")->Iterations(3)->UseManualTime()->Unit(ms);
BENCHMARK(ListeMessen)->Name("FmtListe/20000")->Iterations(3)->UseManualTime()->Unit(ms);
BENCHMARK(VerteilenMessen)->Name("Verteilen/20000")->Unit(ms);
BENCHMARK(DoppelschleifeMessen)->Name("Doppelschleife/20000")->Unit(ms);

}  // namespace
}  // namespace tavorena::messung
