#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>

#include <tavorena/core/Winkel.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/worksheets/Messmittel.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

Stationsmessung MessungNach(const Messstandpunkt& Von, const Stationspunkt& P, double Zielhöhe) {
  const Stationsergebnis& S = Von.Station;
  const double Eben = Strecke(S.Ort.RW, S.Ort.HW, P.Ort.RW, P.Ort.HW);
  const bool MitHöhe = P.Höhe != 0 && S.Höhe != 0;
  const double dZ = MitHöhe ? P.Höhe + Zielhöhe - (S.Höhe + Von.Instrumentenhöhe) : 0;
  double Hz = VierStellen(Richtungswinkel(S.Ort.RW, S.Ort.HW, P.Ort.RW, P.Ort.HW) - S.Epsilon);
  GonReduzieren(Hz);
  return {VierStellen(Hz), VierStellen(Richtungswinkel(0, 0, Eben, dZ)),
          VierStellen(std::hypot(Eben, dZ) / S.Massstab), Zielhöhe};
}

std::vector<Punktsatz> Messpunktsätze(const Messstandpunkt& Von,
                                      const std::vector<Kleinpunkteingabe>& Zeilen) {
  std::vector<Punktsatz> Alle;
  Alle.reserve(Zeilen.size());
  for (const Kleinpunkteingabe& Z : Zeilen) {
    const Stationspunkt P = StationspunktRechnen(Von.Station, Von.Instrumentenhöhe, Z.M);
    Alle.push_back({Z.Pnr, P.Ort.RW, P.Ort.HW, P.Höhe, Z.Symbol});
  }
  return Alle;
}

Kleinpunkteingabe ZeilenMitteln(const Messstandpunkt& Von, const std::vector<Kleinpunkteingabe>& Zeilen) {
  const Punktsatz M = MittelVon(Messpunktsätze(Von, Zeilen));
  Kleinpunkteingabe Eine = Zeilen.front();
  Eine.M = MessungNach(Von, {{M.Rechts, M.Hoch}, M.Hoehe}, Eine.M.Zielhöhe);
  Eine.Symbol = M.Symbol;
  for (const Kleinpunkteingabe& Z : Zeilen) {
    if (Eine.Linie.empty()) Eine.Linie = Z.Linie;
  }
  return Eine;
}

std::vector<std::optional<std::size_t>> Messpaare(const std::vector<Kleinpunkteingabe>& Erste,
                                                  const std::vector<Kleinpunkteingabe>& Zweite) {
  std::unordered_map<std::string_view, std::vector<std::size_t>> Partner;
  for (std::size_t i = Zweite.size(); i-- > 0;) Partner[Zweite[i].Pnr].push_back(i);
  std::vector<std::optional<std::size_t>> Paare;
  for (const Kleinpunkteingabe& Z : Erste) {
    std::optional<std::size_t>& Neu = Paare.emplace_back();
    const auto P = Partner.find(Z.Pnr);
    if (P == Partner.end() || P->second.empty()) continue;
    Neu = P->second.back();
    P->second.pop_back();
  }
  return Paare;
}

}  // namespace tavorena
