#include <cmath>
#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/records/Vorwaerts.h>

namespace tavorena {
namespace {

Satzfolge Sätze(Vorwaertseingabe& E) {
  Satzfolge F;
  Standeingabe &A = E.Stand[0], &B = E.Stand[1];
  F.Pflicht({"FERNP1WS ", {satz::Pnr(A.FernPnr), satz::Zahl(A.FernRichtung)}});
  F.Pflicht({"STANDP1WS ", {satz::Pnr(A.StandPnr), satz::Zahl(A.NeuRichtung), satz::Zahl(A.Vertikal)}});
  F.Pflicht({"FERNP2WS ", {satz::Pnr(B.FernPnr), satz::Zahl(B.FernRichtung)}});
  F.Pflicht({"STANDP2WS ", {satz::Pnr(B.StandPnr), satz::Zahl(B.NeuRichtung), satz::Zahl(B.Vertikal)}});
  F.Pflicht({"NEUPNR ", {satz::Pnr(E.NeuPnr), satz::Wort(E.Symbol)}});
  return F;
}

}  // namespace

Warnung VorwaertsWarnung(double Gamma, int Warnstufe) {
  const double g = std::fabs(Gamma);
  if (Warnstufe <= 1) return Warnung::Keine;
  if (g < 5 || g > 195) return Warnung::Voll;
  return g < 20 || g > 180 ? Warnung::Früh : Warnung::Keine;
}

Block VorwaertsZeile(int Nachkomma, const Protpunkt& Neu, double Gamma, const std::string& Marke) {
  return Zahlenblock(Nachkomma, {Spalten(Nachkomma).Richtung(Neu, Gamma, " PN" + Marke)});
}

Block VorwaertsBlock(int Nachkomma, const Protvorwaerts& V, int Warnstufe) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen = {
      S.Richtung(V.A.Stand, V.A.NeuRichtung, " PA"), S.Richtung(V.A.Fern, V.A.FernRichtung, " PFA"),
      S.Richtung(V.B.Stand, V.B.NeuRichtung, " PB"), S.Richtung(V.B.Fern, V.B.FernRichtung, " PFB")};
  const Warnung W = VorwaertsWarnung(V.Gamma, Warnstufe);
  if (W != Warnung::Keine) Zeilen.push_back("      " + Sterne(W) + " schleifender Schnitt " + Sterne(W));
  Zeilen.push_back(S.Richtung(V.Neu, V.Gamma, " PN" + Sterne(W)));
  if (V.Hoehe.IstGegeben()) {
    Zeilen.push_back(Leerzeichen(28) + "Höhe=" + S.Zahl(V.Hoehe, 6) +
                     "  Parallaxe=" + S.Zahl(V.Parallaxe, 3));
  }
  return Zahlenblock(Nachkomma, std::move(Zeilen), W == Warnung::Keine ? 0 : 1);
}

std::vector<std::string> StapelVorwaertsschnitt(Vorwaertseingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseVorwaertsschnitt(Vorwaertseingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
