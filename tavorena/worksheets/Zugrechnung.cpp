#include <cmath>
#include <iterator>
#include <string_view>
#include <unordered_set>
#include <utility>

#include <tavorena/worksheets/Zugrechnung.h>

namespace tavorena {
namespace {

bool Gleich(const std::optional<Lage>& a, const std::optional<Lage>& b) {
  return a && b && a->RW == b->RW && a->HW == b->HW;
}

Zugmangel Fehlt(Zugstelle Wo, const char* Text) { return {Text, Wo, true}; }
Zugmangel Falsch(Zugstelle Wo, const char* Text) { return {Text, Wo, false}; }
const char *const ZielFehlt = "Zielpunkt fehlt", *const WinkelFehlt = "Brechungswinkel fehlt",
                  *const StreckeFehlt = "Strecke fehlt", *const ZielGleich = "Ziel liegt auf dem Standpunkt";

Zugmangel AnfangPrüfen(const Zugeingabe& E, const Zugpunkte& P) {
  if (E.Anschluss && !P.AnfZiel) return Fehlt(Zugstelle::AnfZiel, ZielFehlt);
  if (!P.Anf) return Fehlt(Zugstelle::Anf, "Anfangspunkt fehlt");
  if (E.Anschluss && Gleich(P.AnfZiel, P.Anf)) return Falsch(Zugstelle::AnfZiel, ZielGleich);
  if (E.Anschluss && std::isnan(E.AnfWinkel)) return Fehlt(Zugstelle::AnfWinkel, WinkelFehlt);
  return E.AnfStrecke > 0 ? Zugmangel() : Fehlt(Zugstelle::AnfStrecke, StreckeFehlt);
}

Zugmangel EndePrüfen(const Zugeingabe& E, const Zugpunkte& P) {
  if (ZugMitFreiemEnde(E, P)) return {};
  if (!P.End) return Fehlt(Zugstelle::End, "Endpunkt fehlt");
  if (!E.Anschluss && Gleich(P.Anf, P.End))
    return Falsch(Zugstelle::End, "Anfangs- und Endpunkt sind gleich");
  if (!E.Abschluss) return {};
  if (std::isnan(E.EndWinkel)) return Fehlt(Zugstelle::EndWinkel, WinkelFehlt);
  if (!P.EndZiel) return Fehlt(Zugstelle::EndZiel, ZielFehlt);
  return Gleich(P.EndZiel, P.End) ? Falsch(Zugstelle::EndZiel, ZielGleich) : Zugmangel();
}

// Takes the rows up to the first one that can not be computed. Behind the last point of a free end nothing is
// used.
Zugmangel ZeilenNehmen(const Zugeingabe& E, bool FreiesEnde, PolygonZug& Zug) {
  std::unordered_set<std::string_view> Nummern{E.AnfZielPnr, E.AnfPnr, E.EndPnr, E.EndZielPnr};
  if (E.Zeilen.empty()) return {"Punktnummer fehlt", Zugstelle::Zeilen, true, 0, 0};
  for (const Zugzeileneingabe& Z : E.Zeilen) {
    const int z = static_cast<int>(&Z - E.Zeilen.data());
    const bool Letzte = FreiesEnde && &Z == &E.Zeilen.back();
    const auto Mangel = [z](const char* Text, int Spalte, bool Unfertig) {
      return Zugmangel{Text, Zugstelle::Zeilen, Unfertig, z, Spalte};
    };
    if (Z.Pnr.empty()) return Mangel("Punktnummer fehlt", 0, true);
    if (!Nummern.insert(Z.Pnr).second) return Mangel("Punktnummer steht schon im Zug", 0, false);
    if (std::isnan(Z.Winkel) && !Letzte) return Mangel(WinkelFehlt, 1, true);
    if (!(Z.Strecke > 0) && !Letzte) return Mangel(StreckeFehlt, 2, !(Z.Strecke < 0));
    Zug.Zeilen.push_back(Letzte ? PolygonZeile() : PolygonZeile{Z.Winkel, Z.Strecke});
  }
  return {};
}

// The chain from its start as far as it is measured; nothing is distributed.
void KetteRechnen(PolygonZug Zug, std::size_t Punkte, std::vector<Lage>& Kette) {
  if (Zug.Zeilen.size() < Punkte) Zug.Zeilen.emplace_back();
  Zug.PE = Zug.PA;
  Zug.PolygonEndWinkel = 0;
  PolygonErgebnis E;
  if (Zug.Zeilen.empty() || PolygonCalc(Zug, true, false, false, false, E) < 0) return;
  for (std::size_t i = 0; i < Zug.Zeilen.size(); ++i) Kette.push_back(E.Seiten[i].Ende);
}

}  // namespace

void ZugBereinigen(Zugeingabe& E, Zugpunkte& P) {
  E.Abschluss = E.Abschluss && E.Anschluss;
  if (!E.Anschluss) {
    E.AnfZielPnr.clear();
    E.AnfWinkel = 0;
    P.AnfZiel.reset();
  }
  if (!E.Abschluss) {
    E.EndZielPnr.clear();
    E.EndWinkel = 0;
    P.EndZiel.reset();
  }
}

bool ZugMitFreiemEnde(const Zugeingabe& E, const Zugpunkte& P) {
  return E.Klasse == Zugklasse::Frei && E.Anschluss && !E.Abschluss && !P.End;
}

Zugmangel ZugRechnen(const Zugeingabe& E, const Zugpunkte& P, Zugrechnung& R) {
  R = {};
  if (Zugmangel M = AnfangPrüfen(E, P); !M.Text.empty()) return M;
  const auto Ort = [](const std::optional<Lage>& L) { return L.value_or(Lage()); };
  PolygonZug Zug{Ort(P.AnfZiel), Ort(P.Anf),   Ort(P.End),  Ort(P.EndZiel),
                 E.AnfWinkel,    E.AnfStrecke, E.EndWinkel, {}};
  Zugmangel M = ZeilenNehmen(E, ZugMitFreiemEnde(E, P), Zug);
  if (M.Text.empty()) M = EndePrüfen(E, P);
  if (ZugMitFreiemEnde(E, P) || !M.Text.empty()) {
    if (E.Anschluss) KetteRechnen(std::move(Zug), E.Zeilen.size(), R.Kette);
    return M;
  }
  if (PolygonCalc(Zug, E.Anschluss, E.Abschluss, E.WinkelVerteilen, E.LinearVerteilen, R.Werte) < 0)
    return Falsch(Zugstelle::End, "Der Zug endet auf dem Anfangspunkt");
  for (std::size_t i = 0; i < E.Zeilen.size(); ++i) R.Kette.push_back(R.Werte.Seiten[i].Ende);
  return {};
}

std::array<Zugwert, 10> ZugWerte(const Zugeingabe& E, const Zugrechnung& R) {
  const PolygonErgebnis& W = R.Werte;
  std::array<Zugwert, 10> Alle;
  if (W.Seiten.empty()) return Alle;
  const PolygonToleranzen* T = PolygonToleranz(W, static_cast<PolygonKlasse>(E.Klasse));
  const double Vorn[] = {W.S, W.SummeS, W.WY, W.WX};
  for (std::size_t i = 0; i < std::size(Vorn); ++i) Alle[i].Zahl = Vorn[i];
  const auto Gegen = [&](std::size_t i, double x, double PolygonToleranzen::*Grenze) {
    Alle[i].Zahl = x;
    Alle[i].Über = T != nullptr && std::fabs(x) > T->*Grenze;
    if (T != nullptr) Alle[i + 1].Zahl = T->*Grenze;
  };
  if (E.Abschluss) Gegen(4, W.FW, &PolygonToleranzen::FW);
  Alle[4].Gon = Alle[5].Gon = true;
  Gegen(6, W.FL, &PolygonToleranzen::FL);
  Gegen(8, W.FQ, &PolygonToleranzen::FQ);
  return Alle;
}

Protzug ProtzugVon(const Zugeingabe& E, const Zugpunkte& P, const Zugrechnung& R) {
  const auto Punkt = [](const std::optional<Lage>& L, const std::string& Pnr) {
    return L ? Protpunkt{L->RW, L->HW, Pnr} : Protpunkt();
  };
  const auto Wenn = [](bool Gemessen, double x) { return Gemessen ? Wert(x) : Wert(); };
  Protzug Z;
  Z.Nummer = E.Nummer;
  Z.Anschluss = E.Anschluss;
  Z.Abschluss = E.Abschluss;
  Z.FreiesEnde = ZugMitFreiemEnde(E, P);
  Z.WinkelVerteilt = R.Werte.WinkelVerteilt;
  Z.RingUnverteilt = R.Werte.Ring && E.LinearVerteilen;
  Z.PFA = Punkt(P.AnfZiel, E.AnfZielPnr);
  Z.PA = {Punkt(P.Anf, E.AnfPnr), Wenn(E.Anschluss, E.AnfWinkel), E.AnfStrecke, {}};
  Z.PE = {Punkt(P.End, E.EndPnr), Wenn(E.Abschluss, E.EndWinkel), {}, {}};
  Z.PFE = Punkt(P.EndZiel, E.EndZielPnr);
  for (std::size_t i = 0; i < E.Zeilen.size(); ++i) {
    const Zugzeileneingabe& Zeile = E.Zeilen[i];
    const bool Genutzt = !Z.FreiesEnde || i + 1 < E.Zeilen.size();
    Z.Neue.push_back(
        {Punkt(R.Kette[i], Zeile.Pnr), Wenn(Genutzt, Zeile.Winkel), Wenn(Genutzt, Zeile.Strecke), {}});
  }
  const PolygonToleranzen* T = PolygonToleranz(R.Werte, static_cast<PolygonKlasse>(E.Klasse));
  Z.S = R.Werte.S;
  Z.SummeS = R.Werte.SummeS;
  Z.FW = {R.Werte.FW, Wenn(T != nullptr, T != nullptr ? T->FW : 0)};
  Z.FL = {R.Werte.FL, Wenn(T != nullptr, T != nullptr ? T->FL : 0)};
  Z.FQ = {R.Werte.FQ, Wenn(T != nullptr, T != nullptr ? T->FQ : 0)};
  return Z;
}

std::vector<std::string> ZugSätze(Zugeingabe E) {
  for (double* x : {&E.Zeilen.back().Winkel, &E.Zeilen.back().Strecke}) {
    if (std::isnan(*x)) *x = 0;
  }
  return StapelPolygon(std::move(E));
}

void ZugZeichnen(const Zugeingabe& E, const Zugpunkte& P, const Zugrechnung& R, bool Geschrieben,
                 Markierung& Bild) {
  Bild.Löschen();
  const auto Scheibe = [&](const std::optional<Lage>& L, const std::string& Pnr) {
    if (L) Bild.Punkt({Pnr, L->RW, L->HW, "MARK", FarbeRot});
  };
  const auto Linie = [&](const std::optional<Lage>& Von, const std::optional<Lage>& Bis, bool Fest) {
    if (Von && Bis) Bild.Zeilenlinie(Fest, *Von, *Bis);
  };
  Scheibe(P.AnfZiel, E.AnfZielPnr);
  Scheibe(P.Anf, E.AnfPnr);
  Scheibe(P.End, E.EndPnr);
  Scheibe(P.EndZiel, E.EndZielPnr);
  Linie(P.AnfZiel, P.Anf, true);
  Linie(P.End, P.EndZiel, true);
  std::optional<Lage> Von = P.Anf;
  for (std::size_t i = 0; i < R.Kette.size(); Von = R.Kette[i++]) {
    const Lage L = R.Kette[i];
    Linie(Von, L, Geschrieben);
    Bild.Zeilenpunkt(Geschrieben, E.Zeilen[i].Pnr, L);
  }
  if (!R.Werte.Seiten.empty()) Linie(Von, P.End, Geschrieben);
}

}  // namespace tavorena
