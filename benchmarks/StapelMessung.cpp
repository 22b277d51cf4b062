#include "Messdaten.h"
#include "Stapelauftrag.h"

#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>

namespace tavorena::messung {
namespace {

// Read both files, look up, calculate, and nothing else. @return rows that were calculated
int NurRechnen(const Stapelauftrag& A) {
  std::string Text;
  KorLeeren();
  if (KorLesen(A.Koordinaten, Lesemodus::Ersetzen, Dateiformat::Kor) < 0) return -1;
  if (TextdateiLesen(A.Stapel, Text) < 0) return -1;
  Zeilenleser Leser(Text);
  Lage Anf, End;
  int Zeilen = 0;
  for (std::string_view Rest; Leser.Nächste(Rest);) {
    const std::string_view Wort = Wortnehmen(Rest);
    if (Wort != "PAN" && Wort != "PEN" && Wort != "NR") continue;
    const int Zeile = KorSuche(Wortnehmen(Rest));
    if (Zeile < 0) return -1;
    const KorSatz P = KorPunkt(Zeile);
    if (Wort == "PAN") Anf = {P.Rechts, P.Hoch};
    if (Wort == "PEN") End = {P.Rechts, P.Hoch};
    if (Wort != "NR") continue;
    double Linie = 0, Seitwaerts = 0;
    if (Linienelemente(Anf, End, {P.Rechts, P.Hoch}, Linie, Seitwaerts) == 0) ++Zeilen;
    benchmark::DoNotOptimize(Linie);
    benchmark::DoNotOptimize(Seitwaerts);
  }
  return Zeilen;
}

// Each line by itself: after a row a surveyor sees it on the disk.
bool Durchschreiben(const std::string& Name, const std::vector<std::string>& Zeilen) {
  const int K = open(Name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0666);
  bool Gut = K >= 0;
  for (const std::string& Zeile : Zeilen)
    Gut = Gut && write(K, Zeile.data(), Zeile.size()) == static_cast<ssize_t>(Zeile.size());
  return K >= 0 && close(K) == 0 && Gut;
}

void KonsoleMessen(benchmark::State& Stand, bool MitProtokoll) {
  const Stapelauftrag A = StapelauftragBilden();
  const std::string Protokoll = MitProtokoll ? Messpfad("konsole.dru") : "";
  for (auto _ : Stand) {
    if (MitProtokoll) unlink(Protokoll.c_str());
    const double Ab = Prozessorzeit();
    const int Zeilen = AbspielenKonsole(A, Protokoll);
    Stand.SetIterationTime((Prozessorzeit() - Ab) / Stapelzeilen);
    if (Zeilen != Stapelzeilen) return Stand.SkipWithError("Der Stapel lief nicht durch.");
  }
}

void NurRechnenMessen(benchmark::State& Stand, bool MitProtokoll) {
  const Stapelauftrag A = StapelauftragBilden();
  std::vector<std::string> Bytes;
  if (MitProtokoll) {
    const std::string Vorbild = Messpfad("vorbild.dru");
    unlink(Vorbild.c_str());
    std::string Text;
    if (AbspielenKonsole(A, Vorbild) != Stapelzeilen || DateiLesen(Vorbild, Text) < 0)
      return Stand.SkipWithError("Das Protokoll fehlt.");
    for (std::size_t Ab = 0, Bis = 0; Ab < Text.size(); Ab = Bis) {
      Bis = Text.find('\n', Ab) + 1;
      Bytes.push_back(Text.substr(Ab, Bis - Ab));
    }
  }
  for (auto _ : Stand) {
    const double Ab = Prozessorzeit();
    const int Zeilen = NurRechnen(A);
    const bool Gut = !MitProtokoll || Durchschreiben(Messpfad("durch.dru"), Bytes);
    Stand.SetIterationTime((Prozessorzeit() - Ab) / Stapelzeilen);
    if (Zeilen != Stapelzeilen || !Gut) return Stand.SkipWithError("Die Grundlage stimmt nicht.");
  }
}

// The time of one row.
BENCHMARK_CAPTURE(KonsoleMessen, ohne, false)->Name("Konsole/ohne")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(KonsoleMessen, mit, true)->Name("Konsole/mit")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(NurRechnenMessen, ohne, false)->Name("NurRechnen/ohne")->Iterations(3)->UseManualTime();
BENCHMARK_CAPTURE(NurRechnenMessen, mit, true)->Name("NurRechnen/mit")->Iterations(3)->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
