#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Nivellement.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

std::string ZeileText(const Protnivzeile& Z) {
  const auto Vier = [](const Wert& x, int Vorkomma) { return ZahlFormat(x, Vorkomma, 4); };
  const std::string Lücke = Leerzeichen(3);
  return Leerzeichen(6) + Vier(Z.R, 3) + Lücke + Vier(Z.Z, 3) + Lücke + Vier(Z.V, 3) + Lücke + Vier(Z.v, 2) +
         Lücke + Vier(Z.Höhe, 5) + Lücke + PnrFormat(Z.Pnr) +
         (Z.Fest       ? "  Fest"
          : Z.Zwischen ? "  Zwischen"
                       : "");
}

std::string AbschnittText(const Protnivabschnitt& A, const std::string& Marke) {
  if (!A.Geschlossen) {
    return "      Offen: " + A.Anfang + " - " + A.Ende + ", ohne Verbesserung  L =" + ZahlFormat(A.L, 3, 3) +
           " km";
  }
  return "      FH =" + ZahlFormat(A.FH.Ist, 3, 4) + " m  FH(zul) =" + ZahlFormat(A.FH.Zulaessig, 3, 4) +
         " m  L =" + ZahlFormat(A.L, 3, 3) + " km" + Marke;
}

Satzfolge Sätze(Niveingabe& E) {
  Satzfolge F;
  F.Liste<Nivfest>(E.Feste, [](Nivfest& N) -> Stapelsatz {
    return {"FEST ", {satz::Pnr(N.Pnr), satz::Zahl(N.Höhe)}};
  });
  F.Liste<Nivzeile>(E.Zeilen, [](Nivzeile& Z) -> Stapelsatz {
    return {"NIV ",
            {satz::Pnr(Z.Pnr), satz::Ablesung(Z.R), satz::Ablesung(Z.Z), satz::Ablesung(Z.V),
             satz::Ablesung(Z.sR), satz::Ablesung(Z.sV), satz::WeitererText(Z.Bemerkung)}};
  });
  F.Entbehrlich({"PARAM KLASSE ", {satz::Kurzzahl(E.Klasse)}});
  return F;
}

}  // namespace

Block NivellementBlock(int Nachkomma, const Protnivellement& N, int Warnstufe) {
  std::vector<std::string> Ziel;
  int Marken = 0;
  for (const Protnivlinie& L : N.Linien) {
    for (const Protnivzeile& Z : L.Zeilen) Ziel.push_back(ZeileText(Z));
    Ziel.push_back("      Summe R=" + ZahlFormat(L.SummeR, 5, 4) + "  Summe V=" + ZahlFormat(L.SummeV, 5, 4));
    for (const Protnivabschnitt& A : L.Abschnitte) {
      const std::string Marke = A.Geschlossen ? ZugMarke("FH", A.FH, Warnstufe) : "";
      Marken += Marke.empty() ? 0 : 1;
      Ziel.push_back(AbschnittText(A, Marke));
    }
  }
  for (const Protnivpaar& P : N.Paare)
    Ziel.push_back("      d =" + ZahlFormat(P.d, 2, 4) + " m  R =" + ZahlFormat(P.R, 3, 3) + " km");
  if (!N.Paare.empty()) Ziel.push_back("      s0 =" + ZahlFormat(N.s0, 3, 2) + " mm/km");
  return Zahlenblock(Nachkomma, std::move(Ziel), Marken);
}

std::vector<std::string> StapelNivellement(Niveingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseNivellement(Niveingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
