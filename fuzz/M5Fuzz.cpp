#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/rawdata/M5.h>
#include <tavorena/rawdata/Rohbericht.h>

namespace tavorena::fuzz {
namespace {

void Lauf(Eingabe E) {
  Rohdatenwahl Wahl;
  const int Bits = E.Zahl(0, 3);
  Wahl.LagenMitteln = (Bits & 1) != 0;
  Wahl.OhneNullen = (Bits & 2) != 0;
  Rohdaten Roh;
  Prüfen(M5TextLesen(E.Rest(), Wahl, Roh) == 0, "ein Text wird immer gelesen");
  const Rohbefund& B = Roh.Befund;
  Prüfen(B.Messzeilen + B.Codezeilen + B.Andere + B.Leere + B.ZuKurze == B.Zeilen, "jede Zeile zählt einmal");
  std::size_t Messungen = 0;
  for (const Rohblock& Block : Roh.Blöcke) {
    Messungen += Block.Punkte.size();
    for (const Rohpunkt& P : Block.Punkte)
      Prüfen(!P.Nummer.empty() && std::isfinite(P.Hz) && std::isfinite(P.V) && P.Strecke > 0,
             "Zeilen sind ganz");
  }
  const std::vector<Rohkoordinate> Punkte = M5Punkte(Roh);
  Prüfen(Punkte.size() >= Messungen && Punkte.size() <= Messungen + Roh.Koordinaten.size(),
         "kein Punkt geht verloren");
  Prüfen(!RohdatenBericht(Roh).empty(), "der Bericht sagt etwas");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
