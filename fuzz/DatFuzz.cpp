#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/rawdata/Stationsfolge.h>

namespace tavorena::fuzz {
namespace {

void Lauf(Eingabe E) {
  std::vector<std::size_t> Fehlerhaft;
  const std::vector<Rohblock> Blöcke = DatBlöcke(E.Rest(), Fehlerhaft);
  std::size_t Vorher = 0, Nachher = 0;
  for (const Rohblock& B : Blöcke) {
    Vorher += B.Punkte.size();
    for (const Rohpunkt& P : B.Punkte)
      Prüfen(!P.Nummer.empty() && P.Zeile > 0 && std::isfinite(P.Hz + P.V + P.Strecke + P.Reflektorhöhe),
             "eine Messung hat Nummer, Zeile und Werte");
  }
  for (const Rohstation& S : Stationsfolge(Blöcke)) Nachher += S.Anschluss.size() + S.Messung.size();
  Prüfen(Vorher == Nachher, "keine Messung geht verloren");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
