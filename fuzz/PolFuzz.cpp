#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/core/Text.h>
#include <tavorena/records/Pol.h>

namespace tavorena::fuzz {
namespace {

// What was read of a print is printed and read again: the same edges.
void Lauf(Eingabe E) {
  Polnachweis N{"N", "B", 1, PolLesen(E.Rest()), 1, 5, 0};
  for (const Polkante& K : N.Kanten) Prüfen(!K.Punkt.Pnr.empty(), "keine Kante ohne Nummer");
  const std::vector<Polkante> Wieder = PolLesen(PolText(N));
  for (const Polkante& K : N.Kanten) {
    // Stars and cut numbers are not read back.
    if (!(std::fabs(K.Punkt.Rechts) < 1e6 && std::fabs(K.Punkt.Hoch) < 1e6) ||
        ZeichenAnzahl(K.Punkt.Pnr) > 11)
      return;
  }
  Prüfen(Wieder.size() == N.Kanten.size(), "jede Kante steht im Nachweis");
  for (std::size_t i = 0; i < Wieder.size(); ++i)
    Prüfen((Wieder[i].Art == Kantenart::Linie) == (N.Kanten[i].Art == Kantenart::Linie), "Linie oder Bogen");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
