#include <tavorena/core/Text.h>
#include <tavorena/records/Linel.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {

Block LinelAnschluss(int Nachkomma, const Protanschluss& A) {
  const Spalten S(Nachkomma);
  return Zahlenblock(Nachkomma,
                     {S.Punkt(A.Anf, A.AnfWert1, A.AnfWert2, MarkeAnfang),
                      S.Punkt(A.End, A.EndWert1, A.EndWert2, MarkeEnde), S.Summe(A)},
                     AnschlussMarke(A).empty() ? 0 : 1);
}

Block LinelZeile(int Nachkomma, const Protpunkt& P, double Linie, double Seitwaerts, const Wert& LinieRed,
                 const Wert& SeitwaertsRed, const std::string& Marke) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen = {S.Punkt(P, Linie, Seitwaerts, Marke)};
  if (LinieRed.IstGegeben())
    Zeilen.push_back(Leerzeichen(32) + S.Spalte(LinieRed) + S.Zahl(SeitwaertsRed, 7));
  return Zahlenblock(Nachkomma, std::move(Zeilen));
}

std::string LinelSatz(const std::string& Pnr) { return StapelPnr("NR  ", Pnr); }

int StapelLeseLinel(std::string& Pnr) { return StapelLesePnr("NR", Pnr); }

}  // namespace tavorena
