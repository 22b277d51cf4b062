#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Stationsfolge.h>

namespace tavorena {
namespace {

// What a further block of a station says of it holds where the first one said nothing.
template <class Station>
void Ergänzen(Station& S, const Rohblock& B) {
  if (!S.Instrumentenhöhe.IstGegeben()) S.Instrumentenhöhe = B.Instrumentenhöhe;
  if (S.Symbol.empty()) S.Symbol = B.Symbol;
}

// A station code that is told twice without rows between is one.
void LeereVerschmelzen(std::vector<Rohblock>& Blöcke) {
  std::size_t Bleiben = 0;
  for (Rohblock& B : Blöcke) {
    Rohblock* const Davor = Bleiben > 0 ? &Blöcke[Bleiben - 1] : nullptr;
    if (Davor == nullptr || Davor->Standpunkt != B.Standpunkt ||
        (!Davor->Punkte.empty() && !B.Punkte.empty())) {
      if (&Blöcke[Bleiben] != &B) Blöcke[Bleiben] = std::move(B);
      ++Bleiben;
      continue;
    }
    Ergänzen(*Davor, B);
    if (Davor->Punkte.empty()) Davor->Punkte = std::move(B.Punkte);
  }
  Blöcke.resize(Bleiben);
}

Rohstation NeueStation(Rohblock& B, int Stelle) {
  Rohstation S;
  S.Standpunkt = std::move(B.Standpunkt);
  S.Symbol = std::move(B.Symbol);
  S.Instrumentenhöhe = B.Instrumentenhöhe;
  S.Stelle = Stelle;
  S.Zeile = B.Zeile;
  return S;
}

// Moves the rows from Ab on behind those of Ziel.
void Umhängen(std::vector<Rohpunkt>& Zeilen, std::size_t Ab, std::vector<Rohpunkt>& Ziel) {
  if (Ab >= Zeilen.size()) return;
  const auto Von = Zeilen.begin() + static_cast<std::ptrdiff_t>(Ab);
  Ziel.insert(Ziel.end(), std::make_move_iterator(Von), std::make_move_iterator(Zeilen.end()));
  Zeilen.erase(Von, Zeilen.end());
}

// @return false: the line is neither station nor measurement
bool DatZeileNehmen(std::string_view Zeile, std::size_t Nummer, std::vector<Rohblock>& Blöcke) {
  std::array<std::string_view, 7> W;
  std::size_t n = 0;
  for (std::string_view Wort; n < W.size() && !(Wort = Wortnehmen(Zeile)).empty();) W[n++] = Wort;
  if (n == 0) return true;
  if (n > 6) return false;
  if (n <= 3) {
    const double Höhe = n > 1 ? ZahlAusText(W[1]) : 0;
    if (n > 1 && !(IstZahlwort(W[1]) && std::isfinite(Höhe))) return false;
    Rohblock& B = Blöcke.emplace_back();
    B.Standpunkt = W[0];
    B.Symbol = W[2];
    B.Zeile = Nummer;
    if (n > 1) B.Instrumentenhöhe = Höhe;
    return true;
  }
  if (!std::all_of(W.begin() + 1, W.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(n, 5)),
                   IstZahlwort))
    return false;
  if (Blöcke.empty()) Blöcke.emplace_back().Zeile = Nummer;
  Rohpunkt P{std::string(W[0]),
             std::string(W[5]),
             ZahlAusText(W[1]),
             ZahlAusText(W[2]),
             ZahlAusText(W[3]),
             ZahlAusText(W[4]),
             Nummer};
  if (P.Strecke <= 0 || !std::isfinite(P.Hz + P.V + P.Strecke + P.Reflektorhöhe)) return false;
  Blöcke.back().Punkte.push_back(std::move(P));
  return true;
}

}  // namespace

std::vector<Rohstation> Stationsfolge(std::vector<Rohblock> Blöcke) {
  LeereVerschmelzen(Blöcke);
  std::vector<Rohstation> Folge;
  Folge.reserve(Blöcke.size());
  int Stelle = 0;
  std::size_t Gleiche = 0;  // blocks of the present number before this one
  std::string Nummer;
  for (Rohblock& B : Blöcke) {
    Gleiche = Stelle > 0 && B.Standpunkt == Nummer ? Gleiche + 1 : 0;
    Nummer = B.Standpunkt;
    if (Gleiche == 1) {
      Rohstation& S = Folge.back();
      S.Getrennt = true;
      Ergänzen(S, B);
      Umhängen(S.Anschluss, OrientierungsGrenze, S.Messung);
      Umhängen(B.Punkte, 0, S.Messung);
      continue;
    }
    Rohstation& S = Folge.emplace_back(NeueStation(B, Gleiche == 0 ? ++Stelle : Stelle));
    S.Wiederholt = Gleiche > 1;
    (S.Wiederholt ? S.Messung : S.Anschluss) = std::move(B.Punkte);
  }
  return Folge;
}

void AnschlussTrennen(Rohstation& S, const std::vector<bool>& Ein) {
  std::vector<Rohpunkt> Bleiben;
  for (std::size_t i = 0; i < S.Anschluss.size(); ++i) {
    const bool Bleibt = i < Ein.size() && Ein[i] && Bleiben.size() < AnschlussGrenze;
    (Bleibt ? Bleiben : S.Messung).push_back(std::move(S.Anschluss[i]));
  }
  S.Anschluss = std::move(Bleiben);
  std::stable_sort(S.Messung.begin(), S.Messung.end(),
                   [](const Rohpunkt& A, const Rohpunkt& B) { return A.Zeile < B.Zeile; });
  S.Getrennt = true;
}

int Stationszahl(const std::vector<Rohstation>& Folge) { return Folge.empty() ? 0 : Folge.back().Stelle; }

std::string Stationsname(const Rohstation& S, int Anzahl) {
  return "Station " + std::to_string(S.Stelle) + " von " + std::to_string(Anzahl) +
         (S.Standpunkt.empty() ? "" : " (" + Zitat(S.Standpunkt) + ")");
}

std::string Stationstext(const Rohstation& S, int Anzahl) {
  const auto Zahl = [](const std::vector<Rohpunkt>& Zeilen) { return static_cast<int>(Zeilen.size()); };
  return Stationsname(S, Anzahl) + ": " +
         (S.Wiederholt ? "weitere Messung"
                       : Anzahltext(Zahl(S.Anschluss), "Anschlußpunkt", "Anschlußpunkte")) +
         ", " + Anzahltext(Zahl(S.Messung), "Punkt", "Punkte");
}

std::vector<Rohblock> DatBlöcke(std::string_view Inhalt, std::vector<std::size_t>& Fehlerhaft) {
  Fehlerhaft.clear();
  std::vector<Rohblock> Blöcke;
  Zeilenleser Leser(Inhalt);
  std::size_t Nummer = 0;
  for (std::string_view Zeile; Leser.Nächste(Zeile);) {
    if (!DatZeileNehmen(Zeile, ++Nummer, Blöcke)) Fehlerhaft.push_back(Nummer);
  }
  return Blöcke;
}

}  // namespace tavorena
