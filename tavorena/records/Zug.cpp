#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/records/Zug.h>

namespace tavorena {
namespace {

using Zeilen = std::vector<std::string>;

void PunktZeigen(int n, const Protzugpunkt& P, const char* Marke, Zeilen& Ziel) {
  const Spalten S(n);
  Ziel.push_back(S.Punkt(P.Punkt,
                         Leerzeichen(4) + ZahlFormat(P.Winkel, 3, 4) + Leerzeichen(2) + S.Zahl(P.Strecke, 5) +
                             Leerzeichen(6 - n),
                         Marke));
  Ziel.insert(Ziel.end(), P.Notiz.begin(), P.Notiz.end());
}

void PunkteZeigen(int n, const Protzug& Z, Zeilen& Ziel) {
  if (Z.Anschluss) PunktZeigen(n, {Z.PFA, {}, {}, {}}, " PFA", Ziel);
  PunktZeigen(n, Z.PA, " PA", Ziel);
  for (const Protzugpunkt& P : Z.Neue) PunktZeigen(n, P, "", Ziel);
  if (Z.FreiesEnde) return;
  PunktZeigen(n, Z.PE, " PE", Ziel);
  if (Z.Abschluss) PunktZeigen(n, {Z.PFE, {}, {}, {}}, " PFE", Ziel);
}

// @return tolerance marks
int AbweichungenZeigen(int n, const Protzug& Z, int Warnstufe, Zeilen& Ziel) {
  const Spalten S(n);
  int Marken = 0;
  const auto Zeigen = [&](const char* Name, const Zugabweichung& A, const std::string& Werte) {
    const std::string Marke = ZugMarke(Name, A, Warnstufe);
    Marken += Marke.empty() ? 0 : 1;
    Ziel.push_back("      " + Werte + Marke);
  };
  Ziel.push_back("      S =" + S.Zahl(Z.S, 7) + "    Summe s =" + S.Zahl(Z.SummeS, 7));
  Ziel.push_back("      Abweichungen");
  if (Z.Abschluss) {
    Zeigen(
        "FW", Z.FW,
        "FW =" + ZahlFormat(Z.FW.Ist, 4, 4) + " gon FW(zul) =" + ZahlFormat(Z.FW.Zulaessig, 4, 4) + " gon ");
  }
  Zeigen("FL", Z.FL, "FL =" + S.Zahl(Z.FL.Ist, 7) + "    FL(zul) =" + S.Zahl(Z.FL.Zulaessig, 7));
  Zeigen("FQ", Z.FQ, "FQ =" + S.Zahl(Z.FQ.Ist, 7) + "    FQ(zul) =" + S.Zahl(Z.FQ.Zulaessig, 7));
  return Marken;
}

Satzfolge Sätze(Zugeingabe& E) {
  Satzfolge F;
  F.Pflicht({"ZUGNR ", {satz::Text(E.Nummer)}});
  F.Pflicht({E.Klasse, {{"PARAM TP", {}}, {"PARAM NP", {}}, {"PARAM FREIERZUG", {}}}});
  F.Schalter("PARAM ANSCHLUSSRI", E.Anschluss);
  F.Schalter("PARAM ABSCHLUSSRI", E.Abschluss);
  F.Schalter("PARAM VERTEIL", E.LinearVerteilen);
  F.Schalter("PARAM VERTEIL WINKEL", E.WinkelVerteilen);
  F.Wahl({"ANSCHLZP ", {satz::Pnr(E.AnfZielPnr)}});
  F.Pflicht({"ANSCHLP ", {satz::Pnr(E.AnfPnr), satz::Zahl(E.AnfWinkel), satz::Zahl(E.AnfStrecke)}});
  F.Liste<Zugzeileneingabe>(E.Zeilen, [](Zugzeileneingabe& Z) -> Stapelsatz {
    return {"NEUPWS ", {satz::Pnr(Z.Pnr), satz::Zahl(Z.Winkel), satz::Zahl(Z.Strecke), satz::Wort(Z.Symbol)}};
  });
  F.Wahl({"ABSCHLP ", {satz::Pnr(E.EndPnr), satz::Zahl(E.EndWinkel)}});
  F.Wahl({"ABSCHLZP ", {satz::Pnr(E.EndZielPnr)}});
  return F;
}

}  // namespace

std::string ZugMarke(const char* Name, const Zugabweichung& A, int Warnstufe) {
  if (!A.Zulaessig.IstGegeben()) return "";
  const Warnung W = Grenzwarnung(A.Ist, A.Zulaessig.Zahl(), Warnstufe);
  if (W == Warnung::Keine) return "";
  return Sterne(W) + (W == Warnung::Voll ? ">" : ">1/3") + Name + "(zul)";
}

Block ZugBlock(int Nachkomma, const Protzug& Z, int Warnstufe) {
  Zeilen Ziel = {"      Zug-Nr. " + Z.Nummer, !Z.Anschluss   ? "      Ohne Richtungsan- u. abschluß"
                                              : !Z.Abschluss ? "      Ohne Richtungsabschluß"
                                                             : "      Beidseitig angeschlossen"};
  if (Z.Anschluss && Z.Abschluss && !Z.WinkelVerteilt)
    Ziel.push_back("      ***ohne Verteilung der Winkelabweichungen***");
  if (Z.RingUnverteilt)
    Ziel.push_back("      ***Ringpolygon, keine Verteilung der Abweichungen WY und WX***");
  PunkteZeigen(Nachkomma, Z, Ziel);
  const int Marken = Z.FreiesEnde ? 0 : AbweichungenZeigen(Nachkomma, Z, Warnstufe, Ziel);
  return Zahlenblock(Nachkomma, std::move(Ziel), Marken);
}

std::vector<std::string> StapelPolygon(Zugeingabe E) { return Sätze(E).Zeilen(); }
int StapelLesePolygon(Zugeingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
