#include "Fuzzhilfe.h"

#include <tavorena/rawdata/Flg.h>

namespace tavorena::fuzz {
namespace {

void Lauf(Eingabe E) {
  std::vector<FlgBlock> Blöcke;
  const int Ergebnis = FlgLesen(E.Rest(), Blöcke);
  Prüfen((Ergebnis == 0) == !Blöcke.empty(), "0 heißt, daß es Stationen gibt");
  for (const FlgBlock& B : Blöcke) {
    const std::vector<std::string> Zeilen = FlgZeilen(B);
    Prüfen(Zeilen.size() == B.Zeilen.size() + 1, "keine Zeile geht verloren");
    for (const std::string& Zeile : Zeilen) Prüfen(Zeile.starts_with("      "), "jede hat ihren Rand");
  }
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
