#include <tavorena/records/Polel.h>

namespace tavorena {

Block PolelAnschluss(int Nachkomma, const Protanschluss& A) {
  const Spalten S(Nachkomma);
  return Zahlenblock(Nachkomma,
                     {S.Gonpunkt(A.Anf, A.AnfWert1, A.AnfWert2, MarkeAnfang),
                      S.Gonpunkt(A.End, A.EndWert1, A.EndWert2, MarkeEnde), S.Summe(A)},
                     AnschlussMarke(A).empty() ? 0 : 1);
}

Block PolelZeile(int Nachkomma, const Protpunkt& P, double Richtung, double Entfernung,
                 const std::string& Marke) {
  return Zahlenblock(Nachkomma, {Spalten(Nachkomma).Gonpunkt(P, Richtung, Entfernung, Marke)});
}

}  // namespace tavorena
