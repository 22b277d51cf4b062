#include <cmath>
#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Flaeche.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

using Zeilen = std::vector<std::string>;

const char* Kantentext(Kantenart A) {
  if (A == Kantenart::Linie) return "  Linie";
  return A == Kantenart::Außen || A == Kantenart::AußenLang ? " +Bogen" : " -Bogen";
}

void KanteZeigen(int n, const Protkante& K, const std::string& Marke, Zeilen& Ziel) {
  const Spalten S(n);
  const bool Bogen = K.Art != Kantenart::Linie, Gemessen = K.Gemessen.IstGegeben();
  const std::string Lücke = Leerzeichen(6 - n);
  Ziel.push_back(S.Punkt(K.Punkt,
                         Leerzeichen(2) + S.Zahl(K.Laenge, 5) + Lücke + S.Zahl(K.Gemessen, 5) + Lücke,
                         Kantentext(K.Art) + (Marke.empty() ? "" : " " + Marke)));
  if (Bogen || Gemessen) {
    const Wert Radius = Bogen ? Wert(std::fabs(K.Radius)) : Wert();
    Ziel.push_back(Leerzeichen(34) + S.Zahl(Radius, 5) + (IstLang(K.Art) ? "G" + Leerzeichen(5 - n) : Lücke) +
                   S.Zahl(K.WS, 5));
  }
  if (Gemessen) Ziel.push_back(Leerzeichen(46) + S.Zahl(K.D, 5));
}

void SummeZeigen(int n, const char* Name, const Wert& Summe, const char* Einheit, Zeilen& Ziel) {
  if (Summe.IstGegeben()) Ziel.push_back(RechtsBündig(Name, 24) + " = " + ZahlFormat(Summe, 9, n) + Einheit);
}

Stapelsatz Kantensatz(Kanteneingabe& K) {
  const auto Bogen = [&K] {
    return std::vector{satz::Pnr(K.Pnr), satz::Zahl(K.Radius), satz::Zahl(K.Grenzlaenge)};
  };
  return {K.Art,
          {{"PN    ", {satz::Pnr(K.Pnr), satz::Zahl(K.Grenzlaenge)}},
           {"PNRA  ", Bogen()},
           {"PNRI  ", Bogen()},
           {"PNRAG ", Bogen()},
           {"PNRIG ", Bogen()}}};
}

Satzfolge Sätze(Flaecheneingabe& E) {
  Satzfolge F;
  F.Wahl({"NAME      ", {satz::Text(E.Name)}});
  F.Wahl({"BEMERKUNG ", {satz::Text(E.Bemerkung)}});
  F.Liste(E.Kanten, Kantensatz);
  return F;
}

}  // namespace

std::string FlaechenMarke(const Protkante& K, int Warnstufe) {
  if (K.SehneZuLang) return "******R<s/2";
  if (!K.WS.IstGegeben()) return "";
  const Warnung W = Grenzwarnung(K.WS.Zahl(), K.D.Zahl(), Warnstufe);
  return W == Warnung::Keine ? "" : Sterne(W) + (W == Warnung::Voll ? "WS>D" : "WS>D/3");
}

Block FlaechenBlock(int Nachkomma, const Protflaeche& F, int Warnstufe) {
  Zeilen Ziel;
  if (!F.Name.empty()) Ziel.push_back("      Name: " + F.Name);
  if (!F.Bemerkung.empty()) Ziel.push_back("      Bem.: " + F.Bemerkung);
  int Marken = 0;
  for (const Protkante& K : F.Kanten) {
    const std::string Marke = FlaechenMarke(K, Warnstufe);
    Marken += Marke.empty() ? 0 : 1;
    KanteZeigen(Nachkomma, K, Marke, Ziel);
  }
  SummeZeigen(Nachkomma, "Umring", F.Umring, " m", Ziel);
  SummeZeigen(Nachkomma, "Bogenfläche", F.Bogenflaeche, " m²", Ziel);
  SummeZeigen(Nachkomma, "Fläche", F.Flaeche, " m²", Ziel);
  SummeZeigen(Nachkomma, "Fläche(GKred.)", F.FlaecheGKred, " m²", Ziel);
  return Zahlenblock(Nachkomma, std::move(Ziel), Marken);
}

std::vector<std::string> StapelFlaeche(Flaecheneingabe E) { return Sätze(E).Zeilen(); }

int StapelLeseFlaeche(Flaecheneingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
