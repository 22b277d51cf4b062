#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Rueckwaerts.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

std::string Neuzeile(int n, const Protpunkt& Neu, const std::string& Marke) {
  return Spalten(n).Richtung(Neu, {}, " PN" + Marke);
}

double Winkel(const Protrichtung& Von, const Protrichtung& Bis) {
  double Gon = Bis.Richtung - Von.Richtung;
  GonReduzieren(Gon);
  return Gon;
}

Satzfolge Sätze(Rueckwaertseingabe& E) {
  Satzfolge F;
  F.Pflicht({E.Collins, {{"PARAM CASSINI", {}}, {"PARAM COLLINS", {}}}});
  for (Richtungseingabe& R : E.Punkte) F.Pflicht({"PWS ", {satz::Pnr(R.Pnr), satz::Langzahl(R.Richtung)}});
  F.Pflicht({"NEUPNR ", {satz::Pnr(E.NeuPnr), satz::Wort(E.Symbol)}});
  return F;
}

}  // namespace

Rueckwaertsurteil RueckwaertsUrteil(const Protrueckwaerts& R) {
  Rueckwaertsurteil U;
  const auto Sagen = [&U](Warnung W, const std::string& Text) {
    U.Texte.push_back("      " + Sterne(W) + " " + Text + " " + Sterne(W));
    return U.Marke = W;
  };
  const double t1 = R.Tau1, t2 = R.Tau2;
  if (Winkel(R.Punkte[0], R.Punkte[1]) > 200 || Winkel(R.Punkte[1], R.Punkte[2]) > 200)
    Sagen(Warnung::Voll, "Beobachtete Winkel > 200 gon");
  if (t1 < 20 || t1 > 180)
    U.Verteilung =
        Sagen(t1 < 5 || t1 > 195 ? Warnung::Voll : Warnung::Früh, "ungünstige Verteilung der Anschlußpunkte");
  if (t2 < 20) U.Kreis = Sagen(t2 < 5 ? Warnung::Voll : Warnung::Früh, "Gefährlicher Kreis");
  return U;
}

Block RueckwaertsZeile(int Nachkomma, const Protpunkt& Neu, const std::string& Marke) {
  return Zahlenblock(Nachkomma, {Neuzeile(Nachkomma, Neu, Marke)});
}

Block RueckwaertsBlock(int Nachkomma, const Protrueckwaerts& R) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen = {std::string("      Verfahren: ") + (R.Collins ? "Collins" : "Cassini")};
  constexpr const char* Marken[] = {" PA", " PM", " PB"};
  for (std::size_t i = 0; i < R.Punkte.size(); ++i)
    Zeilen.push_back(S.Richtung(R.Punkte[i].Punkt, R.Punkte[i].Richtung, Marken[i]));
  const Rueckwaertsurteil U = RueckwaertsUrteil(R);
  Zeilen.insert(Zeilen.end(), U.Texte.begin(), U.Texte.end());
  Zeilen.push_back(Leerzeichen(40) + "Tau1=" + ZahlFormat(R.Tau1, 4, 4));
  Zeilen.push_back(Leerzeichen(40) + "Tau2=" + ZahlFormat(R.Tau2, 4, 4));
  Zeilen.push_back(Neuzeile(Nachkomma, R.Neu, Sterne(U.Marke)));
  return Zahlenblock(Nachkomma, std::move(Zeilen), static_cast<int>(U.Texte.size()));
}

std::vector<std::string> StapelRueckwaertsschnitt(Rueckwaertseingabe E) { return Sätze(E).Zeilen(); }
int StapelLeseRueckwaertsschnitt(Rueckwaertseingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
