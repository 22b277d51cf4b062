#include "Messblatt.h"
#include "Messdaten.h"

#include <fcntl.h>
#include <functional>
#include <string>
#include <string_view>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>

// The Return that writes a row or a case, and the button that writes a list, for each kind, beside its bare
// steps: the points looked up, the new ones stored, the same bytes appended to the same files.

namespace tavorena::messung {
namespace {

using Worte = std::vector<std::string>;

constexpr int Tabellenpunkte = 19000;

std::string Alter(int i) { return Punkte().Pnr[static_cast<std::size_t>(i % Tabellenpunkte)]; }
std::string Neuer(int i) { return std::to_string(30001 + i); }

struct Art {
  const char *Name, *Grundlage, *Kennung;
  int Bekannte, Neue;  // points of a row or case that are looked up, and that are stored
  bool Fall;           // each is brought to the disk
  Worte Kopf;          // typed first
  std::function<Worte(int i)> Eingabe;
  const char *Schreiben = nullptr, *Leeren = nullptr;  // the buttons of a list

  [[nodiscard]] int Folge() const { return Fall ? 60 : 300; }
};

// Ten legs, or ten edges.
Worte Zug(int i) {
  Worte W = {"7", Alter(0), Alter(1), "200", "10"};
  for (int k = 0; k < 9; ++k) W.insert(W.end(), {Neuer(9 * i + k), "200", "10", "015"});
  W.insert(W.end(), {"", Alter(2), "200", Alter(3)});
  return W;
}
Worte Grenze(int i) {
  Worte W = {std::to_string(i), ""};
  for (int k = 0; k < 10; ++k) W.insert(W.end(), {Alter(i * 61 + k), "", ""});
  return W;
}

// The points of two lines or circles lie kilometres apart. Each case swaps them, so that all are looked up.
const std::vector<Art>& Arten() {
  const auto Im = [](int i, int k) { return Alter(i % 2 == 0 ? k : 3 - k); };
  const Worte Linie = {Alter(0), Alter(1), "0", "0"};
  static const std::vector<Art> Alle = {
      {"Return/24.40", "Schritte/24.40", "24.40", 1, 0, false, Linie,
       [](int i) { return Worte{Alter(i * 61)}; }},
      {"Return/08.40", "Schritte/08.40", "08.40", 1, 0, false, Linie,
       [](int i) { return Worte{Alter(i * 61)}; }},
      {"Return/22.10",
       "Schritte/22.10",
       "22.10",
       2,
       0,
       false,
       {Alter(0)},
       [](int i) {
         return Worte{Alter(i * 61 + 1), "100"};
       }},
      {"Return/22.00", "Schritte/22.00", "22.00", 0, 1, false, Linie,
       [](int i) {
         return Worte{Neuer(i), "12,5", "-3,25", "015"};
       }},
      {"Return/19.70", "Schritte/19.70", "19.70", 0, 1, false, Linie,
       [](int i) {
         return Worte{Neuer(i), "80,25", "98,4", "70", "015"};
       }},
      {"Return/09.00",
       "Schritte/09.00",
       "09.00",
       4,
       1,
       true,
       {},
       [Im](int i) {
         return Worte{Im(i, 0), Im(i, 3), "", "", "", Im(i, 1), Im(i, 2), "", "", "", Neuer(i), "015"};
       }},
      {"Return/09.50",
       "Schritte/09.50",
       "09.50",
       3,
       1,
       true,
       {},
       [](int i) {
         return Worte{Alter(i % 3), Alter((i + 1) % 3), Alter((i + 2) % 3), Neuer(i), "015"};
       }},
      {"Return/09.40",
       "Schritte/09.40",
       "09.40",
       4,
       2,
       true,
       {},
       [Im](int i) {
         return Worte{Im(i, 0), Im(i, 3), "",           "",    Im(i, 0),         Im(i, 1), "",
                      "",       "",       Neuer(2 * i), "015", Neuer(2 * i + 1), "015"};
       }},
      {"Return/23.10",
       "Schritte/23.10",
       "23.10",
       4,
       2,
       true,
       {},
       [Im](int i) {
         return Worte{Im(i, 0), Im(i, 3), "",           "",    Im(i, 3),         Im(i, 0),
                      "",       "",       Neuer(2 * i), "015", Neuer(2 * i + 1), "015"};
       }},
      {"Return/10.00",
       "Schritte/10.00",
       "10.00",
       4,
       1,
       true,
       {},
       [Im](int i) {
         return Worte{Im(i, 3), "0", Im(i, 0), "350", "", Im(i, 0), "0", Im(i, 3), "60", "", Neuer(i), "015"};
       }},
      {"Return/11.00",
       "Schritte/11.00",
       "11.00",
       3,
       1,
       true,
       {},
       [](int i) {
         return Worte{Alter(i % 3),       "0",   Alter((i + 1) % 3), "120",
                      Alter((i + 2) % 3), "250", Neuer(i),           "015"};
       }},
      {"Return/3D Raumstrecke",
       "Schritte/3D Raumstrecke",
       "3D RAUMSTRECKE",
       2,
       0,
       true,
       {},
       [Im](int i) {
         return Worte{Im(i, 0), Im(i, 3)};
       }},
      {"Return/3D Lotabstand",
       "Schritte/3D Lotabstand",
       "3D LOTABSTAND",
       3,
       1,
       true,
       {},
       [](int i) {
         return Worte{Alter(i % 3), Alter((i + 1) % 3), Alter((i + 2) % 3), Neuer(i)};
       }},
      {"Return/19.10",
       "Schritte/19.10",
       "19.10",
       4,
       9,
       true,
       {},
       Zug,
       "PolygonErzeugen",
       "PolygonFelderClear"},
      {"Return/65.00",
       "Schritte/65.00",
       "65.00",
       10,
       0,
       true,
       {},
       Grenze,
       "AreaSchreiben",
       "AreaFelderClear"},
  };
  return Alle;
}

// The bytes that each file grew by, and how the processor time of the Returns that did it sums up.
struct Gang {
  double Zeit = 0;  // of one Return [s]
  Worte Bytes;
};

Gang Tippen(const Art& A) {
  TabelleFüllen();
  KorAbschneiden(Tabellenpunkte);
  Messblatt B(A.Kennung, A.Kopf);
  const auto Zeile = [&](int i) {
    Worte W = A.Eingabe(i);
    B.Schreibe(W.front());
    for (std::size_t k = 1; k < W.size(); ++k) {
      B.Return();
      B.Schreibe(W[k]);
    }
    if (A.Schreiben != nullptr) B.Return();
    const double Ab = Prozessorzeit();
    A.Schreiben != nullptr ? B.Drücke(A.Schreiben) : B.Return();
    const double Zeit = Prozessorzeit() - Ab;
    if (A.Leeren != nullptr) B.Drücke(A.Leeren);
    return Zeit;
  };
  Zeile(0);
  Gang G;
  for (const auto& D : B.Akten()) G.Bytes.emplace_back(D.path());
  std::vector<std::size_t> Vorher;
  std::string Text;
  for (const std::string& D : G.Bytes) Vorher.push_back(DateiLesen(D, Text) == 0 ? Text.size() : 0);
  for (int i = 1; i <= A.Folge(); ++i) G.Zeit += Zeile(i) / A.Folge();
  for (std::size_t d = 0; d < G.Bytes.size(); ++d)
    G.Bytes[d] = DateiLesen(G.Bytes[d], Text) == 0 ? Text.substr(Vorher[d]) : "";
  if (!B.Geschrieben(A.Folge()) || KorAnzahl != Tabellenpunkte + A.Neue * (A.Folge() + 1)) G.Bytes.clear();
  return G;
}

void ReturnMessen(benchmark::State& Stand, const Art& A) {
  for (auto _ : Stand) {
    const Gang G = Tippen(A);
    if (G.Bytes.size() != 3) return Stand.SkipWithError("Die Zeilen fehlen.");
    Stand.SetIterationTime(G.Zeit);
  }
}

// The file is the one that bears the name by then, as for a worksheet.
bool Anfügen(const std::string& Name, const std::string& Bytes, std::size_t Ab, std::size_t Bis,
             bool Sichern) {
  const int K = open(Name.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
  if (K < 0) return false;
  const bool Gut = write(K, Bytes.data() + Ab, Bis - Ab) == static_cast<ssize_t>(Bis - Ab);
  return (!Sichern || fsync(K) == 0) && close(K) == 0 && Gut;
}

void SchritteMessen(benchmark::State& Stand, const Art& A) {
  const Gang G = Tippen(A);
  const auto Folge = static_cast<std::size_t>(A.Folge());
  for (auto _ : Stand) {
    TabelleFüllen();
    KorAbschneiden(Tabellenpunkte);
    const std::string Pfad = Messpfad("schritte");
    bool Gut = G.Bytes.size() == 3;
    const double Ab = Prozessorzeit();
    for (std::size_t i = 0; i < Folge; ++i) {
      const int Nummer = static_cast<int>(i);
      for (int k = 0; k < A.Bekannte; ++k)
        Gut = Gut && KorSuche(std::string_view(Alter(Nummer * 61 + k))) >= 0;
      NeupunktErgebnis E;
      for (int k = 0; k < A.Neue; ++k) {
        Wert Pnr(Neuer(Nummer * A.Neue + k));
        Gut = Gut && Neupunkt(Pnr, 3480000.5, 5550000.5, Wert(), "015", nullptr, E) == NeupunktCode::Neu;
      }
      for (std::size_t d = 0; d < G.Bytes.size(); ++d) {
        const std::size_t n = G.Bytes[d].size();
        Gut =
            Anfügen(Pfad + std::to_string(d), G.Bytes[d], n * i / Folge, n * (i + 1) / Folge, A.Fall) && Gut;
      }
    }
    Stand.SetIterationTime((Prozessorzeit() - Ab) / A.Folge());
    for (std::size_t d = 0; d < G.Bytes.size(); ++d) unlink((Pfad + std::to_string(d)).c_str());
    if (!Gut) return Stand.SkipWithError("Die Grundlage stimmt nicht.");
  }
}

const int Angemeldet = [] {
  for (const Art& A : Arten()) {
    benchmark::RegisterBenchmark(A.Name, [&A](benchmark::State& S) { ReturnMessen(S, A); })
        ->Iterations(1)
        ->UseManualTime();
    benchmark::RegisterBenchmark(A.Grundlage, [&A](benchmark::State& S) { SchritteMessen(S, A); })
        ->Iterations(1)
        ->UseManualTime();
  }
  return 0;
}();

}  // namespace
}  // namespace tavorena::messung
