#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/FStat.h>
#include <tavorena/records/Polel.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/records/Tabellenkopf.h>
#include <tavorena/records/Transformation.h>

namespace tavorena {
namespace {

using Zeilen = std::vector<std::string>;

// The residuals have their own decimals, whatever the protocol has elsewhere.
void AbweichungenZeigen(const ProtFStat& S, Zeilen& Ziel) {
  Ziel.push_back(std::string("        Abweichungen in den Anschlußpunkten (") +
                 (S.Kongruent ? "kongruent (m=1))" : "Helmert)"));
  Ziel.emplace_back("           vY(m)         vX(m)        WL(m)    dHo(m)      Pkt.Nr.");
  for (const ProtFStatPunkt& P : S.Punkte) {
    Ziel.push_back(Leerzeichen(4) + ZahlFormat(P.VY, 7, 3) + Leerzeichen(4) + ZahlFormat(P.VX, 7, 3) +
                   Leerzeichen(2) + ZahlFormat(P.WL, 7, 3) + " " + ZahlFormat(P.dHo, 5, 3) + Leerzeichen(5) +
                   PnrFormat(P.Messung.Punkt.Pnr));
  }
  Ziel.push_back(Massstabzeile(S.Massstab, S.Epsilon));
  Ziel.push_back("    Standardabweichung einer Koordinate: MK=" + ZahlFormat(S.MK, 7, 3) + " m");
  Ziel.push_back("    Standardabweichung eines Punktes:    ML=" + ZahlFormat(S.ML, 7, 3) + " m");
}

void PunkteZeigen(int n, const ProtFStat& S, Zeilen& Ziel) {
  for (const std::string& Zeile : PolarKopf(S.MitHoehen)) Ziel.push_back(Zeile);
  const auto Zeigen = [&](const Protpolar& P, const char* Marke) {
    for (std::string& Zeile : PolarZeile(n, P, Marke).Zeilen) Ziel.push_back(std::move(Zeile));
  };
  for (const ProtFStatPunkt& P : S.Punkte) Zeigen(P.Messung, " AP");
  Zeigen({S.Stand, S.StandHoehe, {}, 0, {}, 0}, " PS");
}

Satzfolge Sätze(FStatEingabe& E) {
  Satzfolge F;
  F.Entbehrlich({E.Kongruent, {{"HELMERT", {}}, {"KONGRUENT", {}}}});
  F.Pflicht({"PAN ", {satz::Pnr(E.StandPnr), satz::Zahl(E.Instrumentenhoehe)}});
  F.Liste<FStatBeobachtung>(E.Anschluesse, [](FStatBeobachtung& B) -> Stapelsatz {
    return {"PSN ",
            {satz::Pnr(B.Pnr), satz::Messzahl(B.Richtung), satz::Messzahl(B.Vertikal),
             satz::Messzahl(B.Strecke), satz::Messzahl(B.Zielhoehe)}};
  });
  F.Pflicht(Neupunktsatz(E.NeuPnr, E.NeuSymbol));
  return F;
}

Stapelsatz PWS(FStatPolareingabe& Z) {
  FStatBeobachtung& B = Z.Messung;
  return {
      "PWS ",
      {satz::Pnr(B.Pnr), satz::Langzahl(B.Richtung), satz::Langzahl(B.Vertikal), satz::Langzahl(B.Strecke),
       satz::Langzahl(B.Zielhoehe), satz::Wort(Z.Symbol), satz::Wort(Z.LinieNach)}};
}

}  // namespace

Block FStatBlock(int Nachkomma, const ProtFStat& S) {
  Zeilen Ziel;
  AbweichungenZeigen(S, Ziel);
  PunkteZeigen(Nachkomma, S, Ziel);
  return Zahlenblock(Nachkomma, std::move(Ziel));
}

Block FStatAnschluss(int Nachkomma, const Protanschluss& A, const Wert& dHo) {
  Block Ziel = PolelAnschluss(Nachkomma, A);
  if (dHo.IstGegeben() && Nachkomma <= 5)
    Ziel.Zeilen.push_back(Leerzeichen(28) + "dHo=" + Spalten(Nachkomma).Zahl(dHo, 7));
  return Ziel;
}

Block FStatPolarAnschluss(int Nachkomma, const Protpunkt& Stand, double Epsilon) {
  return Zahlenblock(Nachkomma, {Spalten(Nachkomma).Gonpunkt(Stand, Epsilon, {}, MarkeAnfang)});
}

std::string SchnurKommentar(const std::string& Pnr) { return "Schnurgerüst: " + Pnr; }

std::vector<std::string> StapelFStat(FStatEingabe E) {
  Zeilen Ziel = Sätze(E).Zeilen();
  Ziel.insert(Ziel.begin(),
              E.Kongruent ? "C  kongruente Transformation (m=1)" : "C  Helmert- Transformation");
  return Ziel;
}

int StapelLeseFStat(FStatEingabe& E) {
  E = {};
  return Sätze(E).KopfLesen();
}

std::string FStatPolarSatz(FStatPolareingabe Z) { return SatzZeile(PWS(Z)); }

int StapelLeseFStatPolar(FStatPolareingabe& Z) { return SatzLesen(PWS(Z)); }

}  // namespace tavorena
