#include <algorithm>
#include <cmath>
#include <deque>
#include <map>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <tavorena/calc/Nivellement.h>

namespace tavorena {
namespace {

constexpr double StandKilometer = 0.08;  // length of a set-up whose sights were not measured

using Zeilen = std::vector<NivellementZeile>;
using Hoehen = std::unordered_map<std::string, double>;

bool Da(double x) { return !std::isnan(x); }

// A line on its way: the rows of its turning points; set-up i leads from the i-th to the next.
struct Weg {
  std::vector<int> Knoten, Staende;
};

// The field book cut into lines and set-ups.
struct Feldbuch {
  explicit Feldbuch(const Zeilen& Alle) : Z(Alle), Rueckzeile(Alle.size(), -1) {}

  [[nodiscard]] const NivellementZeile& Zeile(int i) const { return Z[static_cast<std::size_t>(i)]; }
  /// Takes all rows. @return 0, or a NivellementFehler with its row
  [[nodiscard]] int Lesen(int& Fehlerzeile);

  const Zeilen& Z;
  std::vector<int> Rueckzeile;  // of a row with Z
  std::vector<Weg> Wege;
  NivellementErgebnis E;

 private:
  [[nodiscard]] int Nehmen(int i);
  // The set-up that is open has been of use, or there is none.
  [[nodiscard]] bool Genutzt() const { return Offen < 0 || Gesehen; }

  int Offen = -1;  // row with the backsight of the open set-up
  bool Gesehen = false;
};

int Feldbuch::Lesen(int& Fehlerzeile) {
  E.Zeilen.resize(Z.size());
  Fehlerzeile = 0;
  if (Z.empty()) return NivellementLeer;
  for (int i = 0; i < std::ssize(Z); ++i) {
    const int Vorher = Offen, Fehler = Nehmen(i);
    Fehlerzeile = Fehler == NivellementVorblickFehlt ? Vorher : i;
    if (Fehler < 0) return Fehler;
  }
  Fehlerzeile = Genutzt() ? 0 : Offen;
  return Genutzt() ? 0 : NivellementVorblickOffen;
}

int Feldbuch::Nehmen(int i) {
  const NivellementZeile& P = Zeile(i);
  const bool R = Da(P.R), V = Da(P.V);
  for (const double x : {P.R, P.Z, P.V, P.sR, P.sV, P.Fest}) {
    if (std::isinf(x)) return NivellementWertFalsch;
  }
  if (P.sR < 0 || P.sV < 0) return NivellementWertFalsch;
  if (!R && !V && !Da(P.Z)) return NivellementAblesungFehlt;
  if (Da(P.Z) && (R || V)) return NivellementZwischenAllein;
  if ((V || Da(P.Z)) && Offen < 0) return NivellementRueckblickFehlt;
  if (R && !V) {  // a line begins
    if (!Genutzt()) return NivellementVorblickFehlt;
    E.Linien.push_back({i, i, 0, 0});
    Wege.push_back({{i}, {}});
  }
  E.Linien.back().Bis = i;
  if (Da(P.Z)) Rueckzeile[static_cast<std::size_t>(i)] = Offen;
  Gesehen = Da(P.Z);
  if (V) {
    const NivellementZeile& Zurueck = Zeile(Offen);
    const double s = Zurueck.sR > 0 && P.sV > 0 ? Zurueck.sR + P.sV : NivellementOhne;
    Wege.back().Knoten.push_back(i);
    Wege.back().Staende.push_back(static_cast<int>(E.Staende.size()));
    E.Staende.push_back({Offen, i, Zurueck.R - P.V, s});
    E.Linien.back().SummeR += Zurueck.R;
    E.Linien.back().SummeV += P.V;
  }
  if (R || V) Offen = R ? i : -1;
  return 0;
}

// @return 0, or NivellementFestVerschieden with its row
int FesteSammeln(const Zeilen& Z, Hoehen& Feste, int& Zeile) {
  for (Zeile = 0; Zeile < std::ssize(Z); ++Zeile) {
    const NivellementZeile& P = Z[static_cast<std::size_t>(Zeile)];
    if (Da(P.Fest) && Feste.try_emplace(P.Punkt, P.Fest).first->second != P.Fest)
      return NivellementFestVerschieden;
  }
  return 0;
}

// ---- one section -----------------------------------------------------------------------------------

double Kilometer(const NivellementStand& S) { return Da(S.Laenge) ? S.Laenge / 1000 : StandKilometer; }

class Linienrechnung {
 public:
  Linienrechnung(Feldbuch& Buch, int Linie, double k)
      : B(Buch), W(Buch.Wege[static_cast<std::size_t>(Linie)]), Nummer(Linie), Klasse(k) {}

  /// @return false: none of its points is known
  [[nodiscard]] bool Rechnen(const Hoehen& Bekannt, bool SindFest);

 private:
  [[nodiscard]] NivellementWert& Wert(int Zeile) { return B.E.Zeilen[static_cast<std::size_t>(Zeile)]; }
  [[nodiscard]] const NivellementStand& Stand(int i) const {
    return B.E.Staende[static_cast<std::size_t>(i)];
  }
  void Abschnitt(std::vector<int> Staende, bool VorneBekannt, bool HintenBekannt);
  void Vorwärts(const NivellementAbschnitt& A);
  void Rückwärts(const NivellementAbschnitt& A);

  Feldbuch& B;
  const Weg& W;
  int Nummer;
  double Klasse;
};

void Linienrechnung::Vorwärts(const NivellementAbschnitt& A) {
  const bool MitLängen = std::ranges::all_of(A.Staende, [&](int i) { return Da(Stand(i).Laenge); });
  double Summe = 0;
  for (const int i : A.Staende) Summe += MitLängen ? Stand(i).Laenge : 1;
  double H = Wert(A.Von).Hoehe;
  for (const int i : A.Staende) {
    const NivellementStand& S = Stand(i);
    const double v = A.FH * (MitLängen ? S.Laenge : 1) / Summe;
    H += S.dH + v;
    if (A.Geschlossen) Wert(S.Nach).v = v;
    if (S.Nach != A.Bis || !A.Geschlossen) Wert(S.Nach).Hoehe = H;
  }
}

void Linienrechnung::Rückwärts(const NivellementAbschnitt& A) {
  for (auto i = A.Staende.rbegin(); i != A.Staende.rend(); ++i)
    Wert(Stand(*i).Von).Hoehe = Wert(Stand(*i).Nach).Hoehe - Stand(*i).dH;
}

void Linienrechnung::Abschnitt(std::vector<int> Staende, bool VorneBekannt, bool HintenBekannt) {
  if (Staende.empty()) return;
  NivellementAbschnitt A{Stand(Staende.front()).Von, Stand(Staende.back()).Nach, Nummer, std::move(Staende),
                         VorneBekannt && HintenBekannt};
  for (const int i : A.Staende) {
    A.SummeDH += Stand(i).dH;
    A.L += Kilometer(Stand(i));
  }
  A.FHZulaessig = Klasse / 1000 * std::sqrt(A.L);
  if (A.Geschlossen) A.FH = Wert(A.Bis).Hoehe - Wert(A.Von).Hoehe - A.SummeDH;
  if (VorneBekannt) {
    Vorwärts(A);
  } else {
    Rückwärts(A);
  }
  B.E.Abschnitte.push_back(std::move(A));
}

bool Linienrechnung::Rechnen(const Hoehen& Bekannt, bool SindFest) {
  std::vector<std::ptrdiff_t> Orte;  // of known points on the way
  for (std::ptrdiff_t i = 0; i < std::ssize(W.Knoten); ++i) {
    const int Zeile = W.Knoten[static_cast<std::size_t>(i)];
    const auto H = Bekannt.find(B.Zeile(Zeile).Punkt);
    if (H == Bekannt.end()) continue;
    Wert(Zeile) = {H->second, NivellementOhne, SindFest, !SindFest};
    Orte.push_back(i);
  }
  if (Orte.empty()) return false;
  const auto Teil = [&](std::ptrdiff_t Ab, std::ptrdiff_t Vor) {
    return std::vector<int>(W.Staende.begin() + Ab, W.Staende.begin() + Vor);
  };
  const std::ptrdiff_t Erster = Orte.front(), Letzter = Orte.back(), Ende = std::ssize(W.Staende);
  const bool Ring = Erster > 0 && B.Zeile(W.Knoten.front()).Punkt == B.Zeile(W.Knoten.back()).Punkt;
  if (!Ring) Abschnitt(Teil(0, Erster), false, true);
  for (std::size_t i = 1; i < Orte.size(); ++i) Abschnitt(Teil(Orte[i - 1], Orte[i]), true, true);
  std::vector<int> Rest = Teil(Letzter, Ende);
  if (Ring) Rest.insert(Rest.end(), W.Staende.begin(), W.Staende.begin() + Erster);
  Abschnitt(std::move(Rest), true, Ring);
  if (Ring) Wert(W.Knoten.front()).Hoehe = Wert(W.Knoten.back()).Hoehe;
  return true;
}

// Heights of the intermediate points of a line.
void Zwischenpunkte(Feldbuch& B, const NivellementLinie& L) {
  for (int i = L.Von; i <= L.Bis; ++i) {
    const int Rueck = B.Rueckzeile[static_cast<std::size_t>(i)];
    if (Rueck < 0) continue;
    const double H = B.E.Zeilen[static_cast<std::size_t>(Rueck)].Hoehe;
    B.E.Zeilen[static_cast<std::size_t>(i)].Hoehe = H + B.Zeile(Rueck).R - B.Zeile(i).Z;
  }
}

// What the lines gave for a point so far.
struct Mittel {
  double Summe = 0;
  int Anzahl = 0;
};

// The lines with a known point, and then those that hang on them.
class Netz {
 public:
  Netz(Feldbuch& Buch, double k) : B(Buch), Klasse(k), Getan(Buch.Wege.size()) {}
  /// @return a line that is left; -1: none
  [[nodiscard]] int Rechnen(const Hoehen& Feste);

 private:
  void Versuchen(int Linie, const Hoehen& Bekannt, bool SindFest);
  void Anhängen(int Linie);

  Feldbuch& B;
  double Klasse;
  std::vector<bool> Getan;
  std::vector<int> Fertige;                                    // in the order in which they were computed
  std::unordered_map<std::string, std::vector<int>> Wartende;  // lines over a turning point
  std::unordered_map<std::string, Mittel> Gerechnet;
};

void Netz::Versuchen(int Linie, const Hoehen& Bekannt, bool SindFest) {
  if (!Linienrechnung(B, Linie, Klasse).Rechnen(Bekannt, SindFest)) return;
  Getan[static_cast<std::size_t>(Linie)] = true;
  Fertige.push_back(Linie);
  const NivellementLinie& L = B.E.Linien[static_cast<std::size_t>(Linie)];
  Zwischenpunkte(B, L);
  for (int z = L.Von; z <= L.Bis; ++z) {
    const NivellementWert& W = B.E.Zeilen[static_cast<std::size_t>(z)];
    if (W.Angehaengt) continue;
    Mittel& M = Gerechnet[B.Zeile(z).Punkt];
    M = {M.Summe + W.Hoehe, M.Anzahl + 1};
  }
}

// A line takes what is known of its turning points now.
void Netz::Anhängen(int Linie) {
  Hoehen Bekannt;
  for (const int z : B.Wege[static_cast<std::size_t>(Linie)].Knoten) {
    const auto M = Gerechnet.find(B.Zeile(z).Punkt);
    if (M != Gerechnet.end()) Bekannt.emplace(M->first, M->second.Summe / M->second.Anzahl);
  }
  Versuchen(Linie, Bekannt, false);
}

int Netz::Rechnen(const Hoehen& Feste) {
  const int Anzahl = static_cast<int>(B.Wege.size());
  for (int i = 0; i < Anzahl; ++i) {
    Versuchen(i, Feste, true);
    if (Getan[static_cast<std::size_t>(i)]) continue;
    for (const int z : B.Wege[static_cast<std::size_t>(i)].Knoten) Wartende[B.Zeile(z).Punkt].push_back(i);
  }
  for (std::size_t f = 0; f < Fertige.size(); ++f) {
    const NivellementLinie L = B.E.Linien[static_cast<std::size_t>(Fertige[f])];
    for (int z = L.Von; z <= L.Bis; ++z) {
      const auto W = Wartende.find(B.Zeile(z).Punkt);
      if (W == Wartende.end()) continue;
      for (const int i : std::exchange(W->second, {})) {
        if (!Getan[static_cast<std::size_t>(i)]) Anhängen(i);
      }
    }
  }
  for (int i = 0; i < Anzahl; ++i) {
    const NivellementLinie& L = B.E.Linien[static_cast<std::size_t>(i)];
    if (!Getan[static_cast<std::size_t>(i)] && L.Von < L.Bis) return i;  // one that is but begun may wait
  }
  return -1;
}

}  // namespace

int NivellementStaende(const Zeilen& Zeilen, std::vector<NivellementStand>& Staende, int& Zeile) {
  Feldbuch B(Zeilen);
  const int Fehler = B.Lesen(Zeile);
  if (Fehler >= 0) Staende = std::move(B.E.Staende);
  return Fehler;
}

int NivellementRechnen(const Zeilen& Zeilen, double k, NivellementErgebnis& E, int& Zeile) {
  Feldbuch B(Zeilen);
  const int Ergebnis = B.Lesen(Zeile), Endzeile = Zeile;
  if (Ergebnis < 0) return Ergebnis;
  Hoehen Feste;
  if (const int Fehler = FesteSammeln(Zeilen, Feste, Zeile); Fehler < 0) return Fehler;
  if (const int Linie = Netz(B, k).Rechnen(Feste); Linie >= 0) {
    Zeile = B.E.Linien[static_cast<std::size_t>(Linie)].Von;
    return NivellementFestpunktFehlt;
  }
  std::ranges::stable_sort(B.E.Abschnitte, {}, &NivellementAbschnitt::Linie);
  E = std::move(B.E);
  Zeile = Endzeile;
  return Ergebnis;
}

std::vector<NivellementPaar> NivellementPaare(const Zeilen& Zeilen, const NivellementErgebnis& E,
                                              double& s0) {
  const auto Punkt = [&](int Zeile) -> const std::string& {
    return Zeilen[static_cast<std::size_t>(Zeile)].Punkt;
  };
  std::vector<NivellementPaar> Paare;
  std::map<std::pair<std::string_view, std::string_view>, std::deque<std::size_t>> Einzelne;  // by their ends
  double Summe = 0;
  for (std::size_t i = 0; i < E.Abschnitte.size(); ++i) {
    const NivellementAbschnitt& Z = E.Abschnitte[i];
    if (Punkt(Z.Von) == Punkt(Z.Bis)) continue;
    std::deque<std::size_t>& Hin = Einzelne[{Punkt(Z.Bis), Punkt(Z.Von)}];
    if (Hin.empty()) {
      Einzelne[{Punkt(Z.Von), Punkt(Z.Bis)}].push_back(i);
      continue;
    }
    const NivellementAbschnitt& A = E.Abschnitte[Hin.front()];
    Paare.push_back({static_cast<int>(Hin.front()), static_cast<int>(i), A.SummeDH + Z.SummeDH,
                     (A.SummeDH - Z.SummeDH) / 2, (A.L + Z.L) / 2});
    Hin.pop_front();
    Summe += std::pow(1000 * Paare.back().d, 2) / Paare.back().R;
  }
  std::ranges::sort(Paare, {}, &NivellementPaar::Hin);
  s0 = Paare.empty() ? 0 : std::sqrt(Summe / static_cast<double>(Paare.size())) / 2;
  return Paare;
}

std::vector<NivellementPunkt> NivellementHoehen(const Zeilen& Zeilen, const NivellementErgebnis& E) {
  struct Sammlung {
    double Kleinste, Größte, Summe;
    int Anzahl;
  };
  std::vector<NivellementPunkt> Punkte;
  std::vector<Sammlung> Werte;
  std::unordered_map<std::string_view, std::size_t> Orte;
  for (std::size_t i = 0; i < Zeilen.size(); ++i) {
    const double H = E.Zeilen[i].Hoehe;
    if (std::isnan(H) || E.Zeilen[i].Angehaengt) continue;  // it is the mean of the others
    const auto [Ort, Neu] = Orte.try_emplace(Zeilen[i].Punkt, Punkte.size());
    if (Neu) {
      Punkte.push_back({Zeilen[i].Punkt});
      Werte.push_back({H, H, 0, 0});
    }
    NivellementPunkt& P = Punkte[Ort->second];
    Sammlung& S = Werte[Ort->second];
    S = {std::min(S.Kleinste, H), std::max(S.Größte, H), S.Summe + H, S.Anzahl + 1};
    P.Spanne = S.Größte - S.Kleinste;
    if (Da(Zeilen[i].Fest)) P = {P.Punkt, Zeilen[i].Fest, true, P.Spanne};
    if (!P.Fest) P.Hoehe = S.Summe / S.Anzahl;
  }
  return Punkte;
}

}  // namespace tavorena
