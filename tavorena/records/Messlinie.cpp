#include <cmath>
#include <utility>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Messlinie.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {
namespace {

std::string Zeile(int n, const Protpunkt& P, const Wert& Linie, const Wert& Seitwaerts,
                  const std::string& Marke) {
  const Spalten S(n);
  return S.Punkt(P, S.Spalte(Linie) + S.Zahl(Seitwaerts, 5) + Leerzeichen(5 - n), Marke);
}

// The value between offset and symbol is 0 in all files.
Stapelsatz AO(MesslinieEingabe& Z, double& Null) {
  return {"AO  ",
          {satz::Pnr(Z.Pnr), satz::Langzahl(Z.Linie), satz::Langzahl(Z.Seitwaerts), satz::Langzahl(Null),
           satz::Wort(Z.Symbol)}};
}

}  // namespace

std::vector<std::string> MesslinieMarken(double Anlegemass, double Linie, double Seitwaerts, double Entf,
                                         int Warnstufe) {
  std::vector<std::string> Marken;
  if (Warnstufe <= 1) return Marken;
  const double q = std::fabs(Seitwaerts);
  if (Linie - Anlegemass > 1.4 * Entf) Marken.emplace_back("***Vrl>0.4S");
  if (q > 0.4 * Entf) Marken.emplace_back("***Seitw>0.4S");
  if (q > 10) Marken.emplace_back("***Seitw>10m");
  if (q > 25) Marken.emplace_back("******Sw>25m");
  return Marken;
}

Block MesslinieAnschluss(int Nachkomma, const Protanschluss& A) {
  return Zahlenblock(Nachkomma,
                     {Zeile(Nachkomma, A.Anf, A.AnfWert1, {}, MarkeAnfang),
                      Zeile(Nachkomma, A.End, A.EndWert1, {}, MarkeEnde), Spalten(Nachkomma).Summe(A)},
                     AnschlussMarke(A).empty() ? 0 : 1);
}

Block MesslinieZeile(int Nachkomma, const Protpunkt& P, double Linie, double Seitwaerts,
                     const std::vector<std::string>& Marken) {
  std::vector<std::string> Zeilen;
  Zeilen.push_back(Zeile(Nachkomma, P, Linie, Seitwaerts, Marken.empty() ? "" : Marken.front()));
  for (std::size_t i = 1; i < Marken.size(); ++i) Zeilen.push_back(Leerzeichen(64) + Marken[i]);
  return Zahlenblock(Nachkomma, std::move(Zeilen), static_cast<int>(Marken.size()));
}

std::string MesslinieSatz(MesslinieEingabe Z) {
  double Null = 0;
  return SatzZeile(AO(Z, Null));
}

int StapelLeseMesslinie(MesslinieEingabe& Z) {
  double Null = 0;
  return SatzLesen(AO(Z, Null));
}

}  // namespace tavorena
