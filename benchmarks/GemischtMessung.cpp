#include "Messdaten.h"
#include "Stapelauftrag.h"

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

#include <benchmark/benchmark.h>

#include <tavorena/calc/Messlinie.h>
#include <tavorena/calc/Polygon.h>
#include <tavorena/calc/Schnitte.h>
#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/worksheets/TVFormularmodul.h>

// A batch file of ten kinds as the console replays it, beside the same calculations by themselves.

namespace tavorena::messung {
namespace {

constexpr int Runden = 53;  // of all ten kinds: 10,001 lines are the most that a replay takes

std::string Alter(int i) { return Punkte().Pnr[static_cast<std::size_t>(i % 15000)]; }

// The blocks of a round; the new numbers go on from Neu.
void RundeSchreiben(std::ostream& Aus, int Runde, int& Neu) {
  const std::string A = Alter(Runde * 7), B = Alter(Runde * 7 + 5000), C = Alter(Runde * 7 + 9000),
                    D = Alter(Runde * 7 + 11000);
  const std::string Linie = "PAN " + A + " 0\r\nPEN " + B + " 0\r\n";
  const std::size_t Rechts = static_cast<std::size_t>(Runde) * 7;
  const std::string Radius =
      std::to_string(std::lround(0.7 * std::hypot(Punkte().Rechts[Rechts] - Punkte().Rechts[Rechts + 5000],
                                                  Punkte().Hoch[Rechts] - Punkte().Hoch[Rechts + 5000])));
  const auto N = [&Neu] { return std::to_string(++Neu); };
  Aus << "M VR 24.40 Linienelemente\r\n" << Linie;
  for (int i = 0; i < 25; ++i) Aus << "NR " << Alter(Runde * 25 + i * 599) << "\r\n";
  Aus << "E Ende\r\nM VR 08.40 Polarelemente\r\n" << Linie;
  for (int i = 0; i < 25; ++i) Aus << "NR " << Alter(Runde * 25 + i * 593) << "\r\n";
  Aus << "E Ende\r\nM VR 22.10 Entfernungskontrolle\r\n" << Linie;
  for (int i = 0; i < 25; ++i)
    Aus << "NND " << Alter(Runde * 25 + i) << " " << Alter(Runde * 25 + i + 1) << " 100\r\n";
  Aus << "E (Ende)\r\nM VR 22.00 Meßlinie\r\n" << Linie;
  for (int i = 0; i < 25; ++i) Aus << "AO " << N() << " " << 10 * i << " 5 0 015\r\n";
  Aus << "E Ende\r\nM VR 19.70 Polare Punkte\r\n" << Linie;
  for (int i = 0; i < 25; ++i) Aus << "PWS " << N() << " " << 10 * i << " 98.4 70 015\r\n";
  Aus << "E Ende\r\nM VR 09.00 Geradenschnitt\r\nG1PAN " << A << "\r\nG1PEN " << D << "\r\nG1ORIG\r\nG2PAN "
      << B << "\r\nG2PEN " << C << "\r\nG2ORIG\r\nNEUPUNKT " << N() << " 015\r\nE (Ende)\r\n";
  Aus << "M VR 09.40 Schnitt Kreis / Gerade\r\nK0PNR " << A << " 500 0 -\r\nG0PAN " << A << "\r\nG0PEN " << B
      << "\r\nG0ORIG\r\nNEUPUNKT " << N() << " 015\r\nNEUPUNKT " << N() << " -\r\nE (Ende)\r\n";
  Aus << "M VR 23.10 Bogenschnitt\r\nK1PNR " << A << " " << Radius << " 0 -\r\nK2PNR " << B << " " << Radius
      << " 0 -\r\nNEUPUNKT " << N() << " 015\r\nNEUPUNKT " << N() << " -\r\nE (Ende)\r\n";
  Aus << "M VR 09.50 Kreismittelpunkt\r\nK0P1N " << A << "\r\nK0P2N " << B << "\r\nK0P3N " << C
      << "\r\nK0PMN " << N() << " 015\r\nE (Ende)\r\n";
  Aus << "M VR 19.10 Polygonzüge\r\nZUGNR 7\r\nPARAM TP\r\nPARAM ANSCHLUSSRI\r\nPARAM ABSCHLUSSRI\r\nPARAM "
         "VERTEIL\r\n"
      << "ANSCHLZP " << A << "\r\nANSCHLP " << B << " 127.5 128\r\nNEUPWS " << N()
      << " 267.1 107 015\r\nNEUPWS " << N() << " 141.3 116 015\r\nABSCHLP " << C << " 171.8\r\nABSCHLZP " << D
      << "\r\nE Ende\r\n";
}

Stapelauftrag Gemischt() {
  Stapelauftrag A = StapelauftragBilden();
  A.Stapel = Messpfad("gemischt.sta");
  std::ofstream Aus(A.Stapel, std::ios::binary);
  for (int Runde = 0, Neu = 30000; Runde < Runden; ++Runde) RundeSchreiben(Aus, Runde, Neu);
  return A;
}

// The records of a block in the order in which the rounds write them, and what is calculated of them.
class Nurrechner {
 public:
  void Satz(const std::vector<std::string>& W) {
    const std::string& S = W[0];
    if (S == "M") return Punktliste.clear(), Zahlen.clear();
    if (S == "PAN" || S == "PEN" || S.starts_with("G") || S.starts_with("K0P1") || S.starts_with("K0P2") ||
        S.starts_with("K0P3") || S.starts_with("A") || S == "K0PNR" || S == "K1PNR" || S == "K2PNR") {
      if (S == "AO") return Messlinie(W);
      if (W.size() > 1) Punktliste.push_back(Ort(W[1]));
      if (W.size() > 2) Zahlen.push_back(std::stod(W[2]));
      if (S == "ABSCHLZP") Zug();
    }
    if (S == "NR" || S == "NND") return Zeile(S, W);
    if (S == "PWS") return Polar(W);
    if (S == "NEUPWS") return Neue.push_back(W);
    if (S == "NEUPUNKT" || S == "K0PMN") Schnitt(W);
  }
  int Fehler = 0;

 private:
  Lage Ort(const std::string& Pnr) {
    const int z = KorSuche(std::string_view(Pnr));
    if (z < 0) ++Fehler;
    return z < 0 ? Lage{} : Lage{KorPunkt(z).Rechts, KorPunkt(z).Hoch};
  }
  void Eintragen(const std::string& Pnr, Lage P, const char* Symbol) {
    Wert Nummer(Pnr);
    Punktnotiz Notiz;
    if (NeupunktEintragen(Nummer, P.RW, P.HW, Wert(), Symbol, nullptr, Notiz) < 0) ++Fehler;
  }
  void Zeile(const std::string& S, const std::vector<std::string>& W) {
    double a = 0, b = 0, c = 0;
    Anschlusswerte Werte;
    const int Gut = S == "NND" ? Entfernungskontrolle(Ort(W[1]), Ort(W[2]), 100, Werte)
                               : Linienelemente(Punktliste[0], Punktliste[1], Ort(W[1]), a, b);
    Fehler += Gut == 0 ? 0 : 1;
    benchmark::DoNotOptimize(a + b + c + Werte.Abweichung);
  }
  void Messlinie(const std::vector<std::string>& W) {
    MesslinieAnschlusswerte Werte;
    static_cast<void>(MesslinieBerechnungAnschluss(Punktliste[0], Punktliste[1], 0, 0, Werte));
    Eintragen(W[1], MesslinieBerechnungPunkt(Punktliste[0], 0, Werte, std::stod(W[2]), std::stod(W[3])),
              "015");
  }
  void Polar(const std::vector<std::string>& W) {
    Lage Neu;
    Fehler += PolarBerechnungPunkt(Punktliste[0], Punktliste[1], std::stod(W[2]), std::stod(W[4]), 0, 0, 1,
                                   Neu) == 0
                  ? 0
                  : 1;
    Eintragen(W[1], Neu, "015");
  }
  void Schnitt(const std::vector<std::string>& W) {
    Neue.push_back(W);
    const std::vector<Lage>& P = Punktliste;
    double Winkel = 0;
    Lage S1, S2;
    if (W[0] == "K0PMN") {
      Kreismittelpunkt K;
      Fehler += KreisMittelpunktBerechnung(P[0], P[1], P[2], K) < 0 ? 1 : 0;
      S1 = K.M;
    } else if (P.size() == 4) {
      Fehler += SchnittGeradeGeradeBerechnung(11, {P[0], P[1]}, {P[2], P[3]}, S1, Winkel) == 0 ? 0 : 1;
    } else if (Neue.size() < 2) {
      return;
    } else if (P.size() == 3) {
      KreisGeradeSchnitt Werte;
      Fehler += SchnittKreisGeradeBerechnung(11, P[0], Zahlen[0], {P[1], P[2]}, Werte) == 2 ? 0 : 1;
      S1 = Werte.S1, S2 = Werte.S2;
    } else {
      Fehler += SchnittKreisKreisBerechnung(P[0], Zahlen[0], P[1], Zahlen[1], S1, S2, Winkel) == 2 ? 0 : 1;
    }
    NeueEintragen({S1, S2});
  }
  void Zug() {
    PolygonZug Z{Punktliste[0], Punktliste[1], Punktliste[2], Punktliste[3], Zahlen[0], 128, Zahlen[1], {}};
    for (const auto& N : Neue) Z.Zeilen.push_back({std::stod(N[2]), std::stod(N[3])});
    PolygonErgebnis E;
    Fehler += PolygonCalc(Z, true, true, false, true, E) < 0 ? 1 : 0;
    std::vector<Lage> Orte;
    for (const PolygonSeite& S : E.Seiten) Orte.push_back(S.Ende);
    NeueEintragen(Orte);
  }
  void NeueEintragen(const std::vector<Lage>& Orte) {
    for (std::size_t i = 0; i < Neue.size() && i < Orte.size(); ++i) Eintragen(Neue[i][1], Orte[i], "015");
    Neue.clear();
  }

  std::vector<Lage> Punktliste;
  std::vector<double> Zahlen;
  std::vector<std::vector<std::string>> Neue;
};

// Read both files, look up, calculate, store, and nothing else. @return points of the table; -1
int NurRechnen(const Stapelauftrag& A) {
  std::string Text;
  KorLeeren();
  if (KorLesen(A.Koordinaten, Lesemodus::Ersetzen, Dateiformat::Kor) < 0 ||
      TextdateiLesen(A.Stapel, Text) < 0)
    return -1;
  Zeilenleser Leser(Text);
  Nurrechner R;
  std::vector<std::string> W;
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    W.clear();
    while (!Zeile.empty()) {
      const std::size_t n = std::min(Zeile.find(' '), Zeile.size());
      W.emplace_back(Zeile.substr(0, n));
      Zeile.remove_prefix(std::min(n + 1, Zeile.size()));
    }
    R.Satz(W);
  }
  return R.Fehler > 0 ? -1 : KorAnzahl;
}

constexpr int Danach = 15000 + Runden * 58;  // points of the table

void KonsoleMessen(benchmark::State& Stand) {
  const Stapelauftrag A = Gemischt();
  const std::string Protokoll = Messpfad("gemischt.dru");
  for (auto _ : Stand) {
    unlink(Protokoll.c_str());
    const double Ab = Prozessorzeit();
    const int Zeilen = AbspielenKonsole(A, Protokoll);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    if (Zeilen < 0 || KorAnzahl != Danach) return Stand.SkipWithError("Der Stapel lief nicht durch.");
  }
}

void NurRechnenMessen(benchmark::State& Stand) {
  const Stapelauftrag A = Gemischt();
  for (auto _ : Stand) {
    const double Ab = Prozessorzeit();
    const int Zeilen = NurRechnen(A);
    Stand.SetIterationTime(Prozessorzeit() - Ab);
    if (Zeilen != Danach) return Stand.SkipWithError("Die Grundlage stimmt nicht.");
  }
}

BENCHMARK(KonsoleMessen)->Name("Konsole/gemischt")->Iterations(1)->UseManualTime();
BENCHMARK(NurRechnenMessen)->Name("NurRechnen/gemischt")->Iterations(1)->UseManualTime();

}  // namespace
}  // namespace tavorena::messung
