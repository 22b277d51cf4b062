#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Polar.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

Stapelsatz PWS(PolarEingabe& Z) {
  return {"PWS ",
          {satz::Pnr(Z.Pnr), satz::Langzahl(Z.Richtung), satz::Langzahl(Z.Vertikal),
           satz::Langzahl(Z.Strecke), satz::Wort(Z.Symbol)}};
}

}  // namespace

std::string PolarMarke(double Strecke, double Entf, int Warnstufe) {
  if (Warnstufe <= 1 || Strecke <= 2 * Entf / 3) return "";
  return Strecke > Entf ? " ******Entf>S" : " ***Entf>2/3S";
}

std::string PolarVersatzmarke(double Versatz, int Warnstufe) {
  const double q = std::fabs(Versatz);
  if (Warnstufe <= 1 || q <= 5) return "";
  return q > 7.5 ? "            Seitw.>7.5M" : "             Seitw.>5M";
}

Block PolarZeile(int Nachkomma, const Protpolar& P, const std::string& Marke,
                 const std::string& Versatzmarke) {
  const Spalten S(Nachkomma);
  const std::string Lücke = Leerzeichen(std::max(4 - Nachkomma, 1));  // the numbers must not run together
  const Wert Vertikal = P.Vertikal != 0 ? Wert(P.Vertikal) : Wert();
  std::vector<std::string> Zeilen = {
      Leerzeichen(6) + S.Zahl(P.Punkt.Rechts, 7) + Lücke + S.Zahl(P.Punkt.Hoch, 7) + Lücke +
      S.Zahl(P.Hoehe, 5) + Lücke + ZahlFormat(P.Richtung, 3, 4) + " " + ZahlFormat(Vertikal, 3, 4) + " " +
      S.Zahl(P.Strecke, 4) + Leerzeichen(5 - Nachkomma) + PnrFormat(P.Punkt.Pnr) + Marke};
  if (P.Versatz != 0) Zeilen.push_back(Leerzeichen(45) + S.Zahl(P.Versatz, 7) + Versatzmarke);
  const int Marken = (Marke.empty() ? 0 : 1) + (Versatzmarke.empty() ? 0 : 1);
  return Zahlenblock(Nachkomma, std::move(Zeilen), Marken);
}

std::string PolarSatz(PolarEingabe Z) { return SatzZeile(PWS(Z)); }

int StapelLesePolar(PolarEingabe& Z) { return SatzLesen(PWS(Z)); }

}  // namespace tavorena
