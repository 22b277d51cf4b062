#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/core/Text.h>
#include <tavorena/records/Pol.h>

namespace tavorena::fuzz {
namespace {

// What was read of a print is printed and read again: the same edges.
void Lauf(Eingabe E) {
  for (Polnachweis& N : PolLesen(E.Rest())) {
    Prüfen(!N.Kanten.empty(), "kein leerer Nachweis");
    N.NachkommaKoordinaten = 5;
    bool Lesbar = true;  // stars and cut numbers are not read back
    for (const Polkante& K : N.Kanten) {
      Prüfen(!K.Punkt.Pnr.empty(), "keine Kante ohne Nummer");
      Lesbar = Lesbar && std::fabs(K.Punkt.Rechts) < 1e6 && std::fabs(K.Punkt.Hoch) < 1e6 &&
               ZeichenAnzahl(K.Punkt.Pnr) <= 11;
    }
    const std::vector<Polnachweis> Wieder = PolLesen(PolText(N));
    if (!Lesbar) continue;
    Prüfen(Wieder.size() == 1 && Wieder[0].Kanten.size() == N.Kanten.size(), "jede Kante steht im Nachweis");
    for (std::size_t i = 0; i < N.Kanten.size(); ++i)
      Prüfen((Wieder[0].Kanten[i].Art == Kantenart::Linie) == (N.Kanten[i].Art == Kantenart::Linie),
             "Linie oder Bogen");
  }
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
