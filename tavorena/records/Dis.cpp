#include <tavorena/records/Dis.h>
#include <tavorena/records/Stapelsatz.h>

namespace tavorena {

Block DisZeile(int Nachkomma, const Protanschluss& A, bool Gemessen) {
  const Spalten S(Nachkomma);
  std::vector<std::string> Zeilen = {S.Punkt(A.Anf, {}, {}, MarkeAnfang),
                                     S.Punkt(A.End, A.EndWert1, A.EndWert2, MarkeEnde)};
  if (Gemessen) Zeilen.push_back(S.Summe(A));
  return Zahlenblock(Nachkomma, std::move(Zeilen), Gemessen && !AnschlussMarke(A).empty() ? 1 : 0);
}

std::string DisSatz(const std::string& AnfPnr, const std::string& EndPnr, double Gemessen) {
  return StapelZweiPnr("NND ", AnfPnr, EndPnr, Gemessen);
}

int StapelLeseDis(std::string& AnfPnr, std::string& EndPnr, double& Gemessen) {
  return StapelLeseZweiPnr("NND", AnfPnr, EndPnr, Gemessen);
}

}  // namespace tavorena
