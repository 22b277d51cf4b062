#include <utility>

#include <tavorena/records/Kreismitte.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

std::string Mittenzeile(int n, const Protpunkt& Mitte, double Tau, const std::string& Marke) {
  const Spalten S(n);
  return S.Punkt(Mitte, S.Lange({}, Tau), "     PM" + Marke);
}

Satzfolge Sätze(Kreismitteeingabe& E) {
  Satzfolge F;
  F.Pflicht({"K0P1N ", {satz::Pnr(E.Pnr[0])}});
  F.Pflicht({"K0P2N ", {satz::Pnr(E.Pnr[1])}});
  F.Pflicht({"K0P3N ", {satz::Pnr(E.Pnr[2])}});
  F.Pflicht({"K0PMN ", {satz::Pnr(E.NeuPnr), satz::Wort(E.Symbol)}});
  return F;
}

}  // namespace

Warnung KreismitteWarnung(double Tau, int Warnstufe) {
  if (Tau < 5 || Tau > 195) return Warnung::Voll;
  return Warnstufe > 1 && (Tau < 20 || Tau > 180) ? Warnung::Früh : Warnung::Keine;
}

Block KreismitteZeile(int Nachkomma, const Protpunkt& Mitte, double Tau, const std::string& Marke) {
  return Zahlenblock(Nachkomma, {Mittenzeile(Nachkomma, Mitte, Tau, Marke)});
}

Block KreismitteBlock(int Nachkomma, const std::array<Protbogenpunkt, 3>& Bogen, const Protpunkt& Mitte,
                      double Tau, int Warnstufe) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen;
  for (const Protbogenpunkt& B : Bogen) Zeilen.push_back(S.Punkt(B.Punkt, S.Lange(B.Radius, {}), "     PB"));
  const Warnung W = KreismitteWarnung(Tau, Warnstufe);
  if (W != Warnung::Keine) Zeilen.push_back("      " + Sterne(W) + "   Ungünstige Verteilung   " + Sterne(W));
  Zeilen.push_back(Mittenzeile(Nachkomma, Mitte, Tau, ""));
  return Zahlenblock(Nachkomma, std::move(Zeilen), W == Warnung::Keine ? 0 : 1);
}

std::vector<std::string> StapelKreismittelpunkt(Kreismitteeingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseKreismittelpunkt(Kreismitteeingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
