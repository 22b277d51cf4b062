#include <cmath>
#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/records/Transformation.h>

namespace tavorena {
namespace {

using Zeilen = std::vector<std::string>;

// The lengths of these blocks have their own decimals, whatever the protocol has elsewhere.
std::string Länge(const Wert& x) { return ZahlFormat(x, 7, 3); }
std::string Lage(double x) { return ZahlFormat(x, 7, 4); }
std::string Faktor(double x) { return ZahlFormat(x, 2, 10); }

void SchwerpunkteZeigen(const Prottransformation& T, Zeilen& Ziel) {
  Ziel.push_back("        Schwerpunkt altes System: Rechts=" + Lage(T.AltRechts) +
                 "  Hoch=" + Lage(T.AltHoch));
  Ziel.push_back("        Schwerpunkt neues System: Y     =" + Lage(T.NeuY) + "  X   =" + Lage(T.NeuX));
}

// @return tolerance marks
int KlaffenZeigen(const Prottransformation& T, const char* Worin, Zeilen& Ziel) {
  int Marken = 0;
  Ziel.push_back(std::string("        Abweichungen in den ") + Worin);
  Ziel.push_back("          VY(m)          VX(m)        WL(m)             Pkt.Nr.");
  for (const Protrestklaffe& K : T.Klaffen) {
    const std::string Marke = RestklaffenMarke(K, T.MK);
    Marken += Marke.empty() ? 0 : 1;
    Ziel.push_back(Leerzeichen(4) + Länge(K.VY) + Leerzeichen(4) + Länge(K.VX) + Leerzeichen(2) +
                   Länge(K.WL) + Leerzeichen(13) + PnrFormat(K.Pnr) + Marke);
  }
  const auto Wie = [](const Wert& x) { return x.IstGegeben() ? Länge(x) + " m" : " ohne "; };
  Ziel.push_back("    Standardabweichung einer Koordinate       MK=" + Wie(T.MK));
  Ziel.push_back("    Standardabweichung eines Punktes          ML=" + Wie(T.ML));
  return Marken;
}

// @return tolerance marks
int RechenachseZeigen(const Prothelmert& H, Zeilen& Ziel) {
  const Warnung W = Grenzwarnung(H.WS, H.D, 2);  // whatever the level
  std::string Zeile = "                   WS=" + Länge(H.WS) + "      D =" + Länge(H.D);
  if (W != Warnung::Keine) Zeile += Leerzeichen(12) + Sterne(W) + (W == Warnung::Voll ? "WS>D" : "WS>D/3");
  Ziel.push_back(std::move(Zeile));
  if (W == Warnung::Voll) Ziel.push_back(Leerzeichen(12) + "******Berechnung trotz Abweichung");
  return W == Warnung::Keine ? 0 : 1;
}

// For lists of 20000 points: no text between.
void LageAnfügen(std::string& Zeile, const Prottransformiert& P) {
  Zeile.reserve(80);
  Zeile.append(4, ' ');
  ZahlFormatAnhängen(Zeile, P.Y, 7, 4);
  Zeile += ' ';
  ZahlFormatAnhängen(Zeile, P.X, 7, 4);
}

Satzfolge Sätze(Transformationseingabe& E) {
  Satzfolge F;
  F.Pflicht({"NEUESSYSTEM  ", {satz::Text(E.NeuesSystem)}});
  F.Liste<Passpunkteingabe>(E.Passpunkte, [](Passpunkteingabe& P) -> Stapelsatz {
    return {P.Ausgeschaltet,
            {{"PASSP   ", {satz::Pnr(P.Pnr), satz::WeiterePnr(P.NeuPnr)}},
             {"KEINPASSP   ", {satz::Pnr(P.Pnr), satz::WeiterePnr(P.NeuPnr)}}}};
  });
  F.Wahl({"PARAM FIX ", {satz::Pnr(E.FixPnr)}});
  F.Schalter("PARAM M=1", E.MasstabFest);
  F.Schalter("PARAM ANPASSUNG", E.Anpassung);
  return F;
}

}  // namespace

std::string Massstabzeile(double M, double Epsilon, const char* Achse) {
  return "              Massstab  M =" + ZahlFormat(M, 3, 6) +
         "      Drehwinkel  Epsilon =" + ZahlFormat(Epsilon, 3, 5) + " gon" + Achse;
}

std::string RestklaffenMarke(const Protrestklaffe& K, const Wert& MK) {
  std::string Marke;
  if (!MK.IstGegeben()) return Marke;
  const double Grenze = std::fabs(1.5 * MK.Zahl());
  if (std::fabs(K.VY) > Grenze) Marke += "  ***VY>1.5MK";
  if (std::fabs(K.VX) > Grenze) Marke += "  ***VX>1.5MK";
  return Marke;
}

Block HelmertBlock(int Nachkomma, const Prothelmert& H) {
  Zeilen Ziel;
  if (H.Rechenachse) Ziel.push_back("              *** Transformation ueber Rechenachse ***");
  Ziel.push_back(Massstabzeile(H.Massstab, H.Epsilon));
  if (H.MasstabFest) Ziel.push_back("                     (gesetzt)");
  Ziel.push_back("        Transformationsparameter: a     =" + Faktor(H.a) + " b    =" + Faktor(H.b));
  SchwerpunkteZeigen(H.Passung, Ziel);
  const int Marken =
      H.Rechenachse ? RechenachseZeigen(H, Ziel) : KlaffenZeigen(H.Passung, "Anschlusspunkten", Ziel);
  return Zahlenblock(Nachkomma, std::move(Ziel), Marken);
}

Block AffinBlock(int Nachkomma, const Protaffin& A) {
  if (A.AufGerader) {
    return Zahlenblock(Nachkomma,
                       {"      ****** Keine Berechnung, Passpunkte liegen auf einer Geraden ******"}, 1);
  }
  Zeilen Ziel = {Massstabzeile(A.Massstab1, A.Epsilon1, " (X- Achse)"),
                 Massstabzeile(A.Massstab2, A.Epsilon2, " (Y- Achse)"), "        Transformationsparameter: ",
                 "        a10=" + Lage(A.a10) + " a11=" + Faktor(A.a11) + " a12=" + Faktor(A.a12),
                 "        a20=" + Lage(A.a20) + " a21=" + Faktor(A.a21) + " a22=" + Faktor(A.a22)};
  SchwerpunkteZeigen(A.Passung, Ziel);
  const int Marken = KlaffenZeigen(A.Passung, "Passpunkten", Ziel);
  return Zahlenblock(Nachkomma, std::move(Ziel), Marken);
}

Block TransformationListe(int Nachkomma, const std::vector<Prottransformiert>& Punkte) {
  Zeilen Ziel = {"            Y(m)         X(m)                             Pkt.Nr."};
  Ziel.reserve(Punkte.size() + 1);
  int Marken = 0;
  for (const Prottransformiert& P : Punkte) {
    if (P.Ausserhalb) {
      ++Marken;
      Ziel.emplace_back(" *** Neupunkt ausserhalb des Passpunktfeldes ***");
    }
    std::string& Zeile = Ziel.emplace_back();
    LageAnfügen(Zeile, P);
    Zeile.append(28, ' ').append(PnrFormat(P.Pnr)).append(P.Ausserhalb ? "     ***" : "     ");
    if (P.Passpunkt > 0) Zeile += "Passp.";
  }
  return Zahlenblock(Nachkomma, std::move(Ziel), Marken);
}

Block AnpassungListe(int Nachkomma, const std::vector<Prottransformiert>& Punkte) {
  Zeilen Ziel = {"            Y(m)         X(m)    dY(m)    dX(m)          Pkt.Nr."};
  Ziel.reserve(Punkte.size() + 1);
  for (const Prottransformiert& P : Punkte) {
    std::string& Zeile = Ziel.emplace_back();
    LageAnfügen(Zeile, P);
    for (const double d : {P.dY, P.dX}) {
      Zeile += ' ';
      ZahlFormatAnhängen(Zeile, d, 4, 3);
    }
    Zeile.append(10, ' ').append(PnrFormat(P.Pnr));
    if (P.Passpunkt > 0) Zeile.append("    P").append(std::to_string(P.Passpunkt));
  }
  return Zahlenblock(Nachkomma, std::move(Ziel));
}

std::vector<std::string> StapelTransformation(Transformationseingabe E) { return Sätze(E).Zeilen(); }

int StapelLeseTransformation(Transformationseingabe& E) {
  E = {};
  return Sätze(E).BlockLesen();
}

}  // namespace tavorena
