#include "Messdaten.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/worksheets/Blattart.h>

namespace fs = std::filesystem;

namespace tavorena::messung {
namespace {

constexpr int Tippzeilen = 1000;
constexpr std::size_t GroßeAkte = std::size_t{5} << 20U;  // [bytes]

// The line elements on the table, opened, with protocol, batch file and second target.
class Blatt {
 public:
  Blatt() {
    Optionen = {};
    Optionen.AbfrageRiss = false;
    fs::remove_all(Ort);
    fs::create_directories(Ort);
    DateinameProtokollTemp = Ort + "/prot.tmp";
    ProtokollNehmen(Ort + "/a.dru");
    StapelDatei = {};
    StapelDatei.Name = Ort + "/a.sta";
    Form->Öffnen();
    for (const std::string& Wort : {Punkte().Pnr[0], Punkte().Pnr[1], std::string("0"), std::string("0")})
      Tippe(Wort);
  }
  ~Blatt() {
    Form->SchließenVerlangen();
    ProtokollNehmen("");
    StapelDatei = {};
    fs::remove_all(Ort);
  }
  Blatt(const Blatt&) = delete;
  Blatt& operator=(const Blatt&) = delete;

  // Takes a text into what has the focus, with Return.
  void Tippe(const std::string& Wort) {
    if (auto* E = dynamic_cast<Eingabeelement*>(Form->Fokus())) Form->Tippen(*E, Wort);
    Form->TasteDrücken(Taste::Return);
  }
  void Feld(const char* Name) { Form->FokusWechseln(*Form->Finde(Name)); }

  // Brings all three files to a size; the rows to come go behind.
  void Strecken(std::size_t Größe) {
    const std::string Zeile = std::string(78, ' ') + "\r\n";
    for (const auto& D : fs::directory_iterator(Ort)) {
      std::ofstream Datei(D.path(), std::ios::binary | std::ios::app);
      for (std::size_t n = D.file_size(); n < Größe; n += Zeile.size()) Datei << Zeile;
    }
  }
  // Rows were written, each into all three files.
  [[nodiscard]] bool Geschrieben(int Zeilen) const {
    const auto& G = dynamic_cast<const Gitter&>(*Form->Finde("LinelGitter"));
    int Dateien = 0;
    for (const auto& D : fs::directory_iterator(Ort)) {
      Dateien += D.file_size() > static_cast<std::uintmax_t>(Zeilen) * 14 ? 1 : 0;
    }
    return G.Zeilen() == Zeilen + 1 && Dateien == 3;
  }

 private:
  const std::string Ort = Messpfad("blatt");
  const std::unique_ptr<Formular> Form = [] {
    const Blattart* Art = BlattartVonKennung("24.40");
    return Art->Neu(*Art);
  }();
};

// The table is short: what is measured is the way of a row into its files.
void ZeileMessen(benchmark::State& Stand, std::size_t Größe) {
  TabelleFüllen();
  KorAbschneiden(100);
  Blatt B;
  const auto Tippe = [&](int Zeilen) {
    for (int i = 0; i < Zeilen; ++i) B.Tippe(Punkte().Pnr[static_cast<std::size_t>(i % 100)]);
  };
  Tippe(1);
  B.Strecken(Größe);
  Tippe(1);
  int Zeilen = 2;
  for (auto _ : Stand) {
    const double Ab = Prozessorzeit();
    Tippe(Tippzeilen);
    Stand.SetIterationTime((Prozessorzeit() - Ab) / Tippzeilen);
    Zeilen += Tippzeilen;
  }
  if (!B.Geschrieben(Zeilen)) Stand.SkipWithError("Die Zeilen fehlen.");
}

// All points of a range of numbers as rows.
void StreifenMessen(benchmark::State& Stand, std::size_t Ab, std::size_t Anzahl) {
  TabelleFüllen();
  for (auto _ : Stand) {
    Blatt B;
    B.Feld("LinelPnrvon");
    B.Tippe(Punkte().Pnr[Ab]);
    B.Tippe(Punkte().Pnr[Ab + Anzahl - 1]);
    const double Beginn = Prozessorzeit();
    B.Tippe("0");
    Stand.SetIterationTime((Prozessorzeit() - Beginn) / static_cast<double>(Anzahl));
    if (!B.Geschrieben(static_cast<int>(Anzahl))) return Stand.SkipWithError("Die Zeilen fehlen.");
  }
}

// The time of one row.
BENCHMARK_CAPTURE(ZeileMessen, leer, 0)->Name("Zeile/leer")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(ZeileMessen, groß, GroßeAkte)->Name("Zeile/5MB")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(StreifenMessen, mitte, Punktzahl / 2 - 1000, 2000)
    ->Name("Streifen/2000")
    ->Iterations(1)
    ->UseManualTime();
BENCHMARK_CAPTURE(StreifenMessen, alle, 0, Punktzahl)->Name("Streifen/20000")->Iterations(1)->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
