#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

using Zeilen = std::vector<std::string>;

std::string Zeile(const Spalten& S, const Protpunkt& P, const Wert& Abstand, const char* Marke) {
  return S.Punkt(P, S.Lange(Abstand, {}), Marke);
}

void GeradeZeigen(const Spalten& S, const Protgerade& G, Zeilen& Ziel) {
  Ziel.push_back(Zeile(S, G.Anf, G.Art == Linienart::Abstand ? Wert(G.Abstand) : Wert(), "     PA"));
  Ziel.push_back(Zeile(S, G.End, {}, "     PE"));
  if (G.Art == Linienart::Parallele) Ziel.push_back(Zeile(S, G.Punkt, {}, "     Par."));
  if (G.Art == Linienart::Senkrechte) Ziel.push_back(Zeile(S, G.Punkt, {}, "     Senk."));
}

void KreisZeigen(const Spalten& S, const Protkreis& K, Zeilen& Ziel) {
  Ziel.push_back(Zeile(S, K.Mitte, K.Radius, "     PM"));
  if (K.Bogen) Ziel.push_back(Zeile(S, *K.Bogen, {}, "     PB"));
}

std::string Lösungszeile(const Spalten& S, const Protpunkt& P, const Wert& Tau, const std::string& Marke) {
  return S.Punkt(P, S.Lange({}, Tau), "     PS" + Marke);
}

// @return tolerance marks
int LösungZeigen(const Spalten& S, const Protpunkt& P, double Tau, Schnittlage L, Zeilen& Ziel) {
  if (P.Pnr.empty() || P.Pnr == "0") return 0;
  if (L == Schnittlage::Gut) {
    Ziel.push_back(Lösungszeile(S, P, Tau, "   "));
    return 0;
  }
  if (L == Schnittlage::Berührt) {
    Ziel.push_back("   ******Schleifender Schnitt, keine Berechnung");
    Ziel.push_back(Leerzeichen(32) + S.Lange({}, Tau) + Leerzeichen(8) + "  PS******");
    Ziel.push_back("   ***Berührpunkt***");
    Ziel.push_back(Lösungszeile(S, P, {}, "***"));
    return 1;
  }
  Ziel.push_back("         Schleifender Schnitt");
  Ziel.push_back(Lösungszeile(S, P, Tau, L == Schnittlage::Voll ? "******" : "***"));
  return 1;
}

Block Fall(int Nachkomma, Zeilen Figuren, const std::vector<Protpunkt>& Neue, double Tau, Schnittlage L,
           const std::vector<Zeilen>& Notizen = {}) {
  int Marken = 0;
  for (std::size_t i = 0; i < Neue.size(); ++i) {
    Marken += LösungZeigen(Spalten(Nachkomma), Neue[i], Tau, L, Figuren);
    if (i < Notizen.size()) Figuren.insert(Figuren.end(), Notizen[i].begin(), Notizen[i].end());
  }
  return Zahlenblock(Nachkomma, std::move(Figuren), Marken);
}

// ---- records

// The keywords of a line; they begin with the name of the line.
struct Geradenworte {
  const char *Anf, *End, *Original, *Abstand, *Parallele, *Senkrechte;
};
constexpr Geradenworte WorteG0{"G0PAN ", "G0PEN ", "G0ORIG", "G0DIST ", "G0PLPN ", "G0PWIN "},
    WorteG1{"G1PAN ", "G1PEN ", "G1ORIG", "G1DIST ", "G1PLPN ", "G1PWIN "},
    WorteG2{"G2PAN ", "G2PEN ", "G2ORIG", "G2DIST ", "G2PLPN ", "G2PWIN "};

void GeradeFügen(Satzfolge& F, const Geradenworte& W, Geradeneingabe& G) {
  F.Pflicht({W.Anf, {satz::Pnr(G.AnfPnr)}});
  F.Pflicht({W.End, {satz::Pnr(G.EndPnr)}});
  F.Pflicht({G.Art,
             {{W.Original, {}},
              {W.Abstand, {satz::Zahl(G.Abstand)}},
              {W.Parallele, {satz::Pnr(G.Pnr)}},
              {W.Senkrechte, {satz::Pnr(G.Pnr)}}}});
}

void KreisFügen(Satzfolge& F, const char* Schlüssel, Kreiseingabe& K) {
  F.Pflicht(
      {Schlüssel, {satz::Pnr(K.MittPnr), satz::Zahl(K.Radius), satz::Zahl(K.Pll), satz::Wort(K.BogenPnr)}});
}

void NeupunkteFügen(Satzfolge& F, std::array<Neupunkteingabe, 2>& Neu) {
  F.Pflicht(Neupunktsatz(Neu[0].Pnr, Neu[0].Symbol));
  F.Entbehrlich(Neupunktsatz(Neu[1].Pnr, Neu[1].Symbol));
}

Satzfolge Sätze(Geradenschnitteingabe& E) {
  Satzfolge F;
  GeradeFügen(F, WorteG1, E.G[0]);
  GeradeFügen(F, WorteG2, E.G[1]);
  F.Pflicht(Neupunktsatz(E.Neu.Pnr, E.Neu.Symbol));
  return F;
}

Satzfolge Sätze(KreisGeradeEingabe& E) {
  Satzfolge F;
  KreisFügen(F, "K0PNR ", E.K);
  GeradeFügen(F, WorteG0, E.G);
  NeupunkteFügen(F, E.Neu);
  return F;
}

Satzfolge Sätze(Bogenschnitteingabe& E) {
  Satzfolge F;
  KreisFügen(F, "K1PNR ", E.K[0]);
  KreisFügen(F, "K2PNR ", E.K[1]);
  NeupunkteFügen(F, E.Neu);
  return F;
}

}  // namespace

Schnittlage SchnittlageVon(double Tau, bool KreisGerade, int Warnstufe) {
  if (Warnstufe <= 1) return Schnittlage::Gut;
  const double Halb = KreisGerade ? 0.5 : 1;
  if (KreisGerade && Tau < 0.5) return Schnittlage::Berührt;
  if (Tau <= 5 * Halb || Tau >= 200 - 5 * Halb) return Schnittlage::Voll;
  return Tau <= 20 * Halb || Tau >= 200 - 20 * Halb ? Schnittlage::Früh : Schnittlage::Gut;
}

Block SchnittZeile(int Nachkomma, const Protpunkt& P, double Tau, const std::string& Marke) {
  return Zahlenblock(Nachkomma, {Lösungszeile(Spalten(Nachkomma), P, Tau, Marke)});
}

Block GeradenschnittBlock(int Nachkomma, const Protgerade& G1, const Protgerade& G2, const Protpunkt& Neu,
                          double Tau, int Warnstufe) {
  const Spalten S(Nachkomma);
  Zeilen Figuren;
  GeradeZeigen(S, G1, Figuren);
  GeradeZeigen(S, G2, Figuren);
  return Fall(Nachkomma, std::move(Figuren), {Neu}, Tau, SchnittlageVon(Tau, false, Warnstufe));
}

Block KreisGeradeBlock(int Nachkomma, const Protkreis& K, const Protgerade& G,
                       const std::vector<Protpunkt>& Neue, double Tau, int Warnstufe,
                       const std::vector<Zeilen>& Notizen) {
  const Spalten S(Nachkomma);
  Zeilen Figuren;
  KreisZeigen(S, K, Figuren);
  GeradeZeigen(S, G, Figuren);
  return Fall(Nachkomma, std::move(Figuren), Neue, Tau, SchnittlageVon(Tau, true, Warnstufe), Notizen);
}

Block BogenschnittBlock(int Nachkomma, const Protkreis& K1, const Protkreis& K2,
                        const std::vector<Protpunkt>& Neue, double Tau, int Warnstufe,
                        const std::vector<Zeilen>& Notizen) {
  const Spalten S(Nachkomma);
  Zeilen Figuren;
  KreisZeigen(S, K1, Figuren);
  KreisZeigen(S, K2, Figuren);
  return Fall(Nachkomma, std::move(Figuren), Neue, Tau, SchnittlageVon(Tau, false, Warnstufe), Notizen);
}

std::vector<std::string> StapelGeradenschnitt(Geradenschnitteingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseGeradenschnitt(Geradenschnitteingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

std::vector<std::string> StapelKreisGerade(KreisGeradeEingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseKreisGerade(KreisGeradeEingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

std::vector<std::string> StapelBogenschnitt(Bogenschnitteingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseBogenschnitt(Bogenschnitteingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
