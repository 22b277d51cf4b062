#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <unordered_set>

#include <tavorena/rawdata/Nivrechnung.h>

namespace tavorena {
namespace {

// The first row of a point that is told two heights; -1: there is none.
int Widerspruch(const Niveingabe& E) {
  std::unordered_map<std::string_view, double> Feste;
  for (const Nivfest& F : E.Feste) {
    if (Feste.try_emplace(F.Pnr, F.Höhe).first->second == F.Höhe) continue;
    const auto Z = std::ranges::find(E.Zeilen, F.Pnr, &Nivzeile::Pnr);
    if (Z != E.Zeilen.end()) return static_cast<int>(Z - E.Zeilen.begin());
  }
  return -1;
}

// Blank where there is nothing.
Wert Gegeben(double x) { return std::isnan(x) ? Wert() : Wert(x); }

Protnivzeile Zeile(const NivellementZeile& Z, const NivellementWert& W) {
  return {Z.Punkt, Gegeben(Z.R), Gegeben(Z.Z), Gegeben(Z.V), Gegeben(W.v), W.Hoehe, W.Fest, !std::isnan(Z.Z)};
}

}  // namespace

std::vector<NivellementZeile> NivellementZeilen(const Niveingabe& E) {
  std::unordered_map<std::string_view, double> Feste;
  for (const Nivfest& F : E.Feste) Feste.try_emplace(F.Pnr, F.Höhe);
  std::vector<NivellementZeile> Zeilen;
  for (const Nivzeile& Z : E.Zeilen) {
    const auto F = Feste.find(Z.Pnr);
    Zeilen.push_back({Z.Pnr, Z.R, Z.Z, Z.V, Z.sR, Z.sV, F == Feste.end() ? NivellementOhne : F->second});
  }
  return Zeilen;
}

std::string NivellementFehlertext(int Fehler) {
  switch (Fehler) {
    case NivellementWertFalsch:
      return "Zielweite ist negativ";
    case NivellementAblesungFehlt:
      return "Ablesung fehlt";
    case NivellementZwischenAllein:
      return "Zwischenblick steht in einer eigenen Zeile";
    case NivellementRueckblickFehlt:
      return "Rückblick fehlt davor";
    case NivellementVorblickFehlt:
    case NivellementVorblickOffen:
      return "Vorblick fehlt danach";
    case NivellementFestVerschieden:
      return "Zwei Höhen für einen Festpunkt";
    case NivellementFestpunktFehlt:
      return "Festpunkt fehlt in der Linie";
    default:
      return "Ablesungen fehlen";
  }
}

Nivmangel NivRechnen(const Niveingabe& E, Nivrechnung& R) {
  R = {};
  Nivmangel M;
  for (std::size_t i = 0; i < E.Zeilen.size(); ++i) {
    if (E.Zeilen[i].Pnr.empty())
      return {"Punktnummer fehlt", static_cast<int>(i), NivellementAblesungFehlt, true};
  }
  if (const int z = Widerspruch(E); z >= 0)
    return {NivellementFehlertext(NivellementFestVerschieden), z, NivellementFestVerschieden};
  std::vector<NivellementZeile> Zeilen = NivellementZeilen(E);
  M.Fehler = NivellementRechnen(Zeilen, E.Klasse, R.Werte, M.Zeile);
  if (M.Fehler >= 0) {
    R.Paare = NivellementPaare(Zeilen, R.Werte, R.s0);
    R.Punkte = NivellementHoehen(Zeilen, R.Werte);
    R.Zeilen = std::move(Zeilen);
  }
  if (M.Fehler == 0) return M;
  M.Text = NivellementFehlertext(M.Fehler);
  M.Unfertig = M.Fehler == NivellementLeer || M.Fehler == NivellementAblesungFehlt ||
               M.Fehler == NivellementVorblickOffen || M.Fehler == NivellementVorblickFehlt ||
               M.Fehler == NivellementFestpunktFehlt;
  return M;
}

Protnivellement ProtnivVon(const Nivrechnung& R) {
  const auto Ort = [](int i) { return static_cast<std::size_t>(i); };
  Protnivellement N;
  for (const NivellementLinie& L : R.Werte.Linien) {
    Protnivlinie& P = N.Linien.emplace_back();
    P.SummeR = L.SummeR;
    P.SummeV = L.SummeV;
    for (int z = L.Von; z <= L.Bis; ++z) P.Zeilen.push_back(Zeile(R.Zeilen[Ort(z)], R.Werte.Zeilen[Ort(z)]));
  }
  for (const NivellementAbschnitt& A : R.Werte.Abschnitte) {
    N.Linien[Ort(A.Linie)].Abschnitte.push_back(
        {R.Zeilen[Ort(A.Von)].Punkt, R.Zeilen[Ort(A.Bis)].Punkt, A.Geschlossen, {A.FH, A.FHZulaessig}, A.L});
  }
  for (const NivellementPaar& P : R.Paare) N.Paare.push_back({P.d, P.R});
  N.s0 = R.s0;
  return N;
}

std::vector<Höhenpunkt> NivHöhen(const std::vector<Nivzeile>& Zeilen, const Nivrechnung& R) {
  std::unordered_map<std::string_view, std::string_view> Bemerkungen;
  for (const Nivzeile& Z : Zeilen) {
    if (!Z.Bemerkung.empty()) Bemerkungen.try_emplace(Z.Pnr, Z.Bemerkung);
  }
  std::vector<Höhenpunkt> Liste;
  for (const NivellementPunkt& P : R.Punkte) {
    const auto B = Bemerkungen.find(P.Punkt);
    Liste.push_back({P.Punkt, P.Hoehe, B == Bemerkungen.end() ? "" : std::string(B->second)});
  }
  return Liste;
}

void NivFesteNehmen(const std::vector<Höhenpunkt>& Liste, Niveingabe& E) {
  std::unordered_set<std::string_view> Nummern;
  for (const Nivzeile& Z : E.Zeilen) Nummern.insert(Z.Pnr);
  for (const Höhenpunkt& P : Liste) {
    if (Nummern.contains(P.Pnr)) E.Feste.push_back({P.Pnr, P.Höhe});
  }
}

}  // namespace tavorena
