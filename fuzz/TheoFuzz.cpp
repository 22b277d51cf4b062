#include "Fuzzhilfe.h"

#include <cstdlib>

#include <tavorena/shell/Konfiguration.h>

namespace tavorena::fuzz {
namespace {

void Lauf(Eingabe E) {
  Datei("TavorenaTh.ini", E.Rest());
  TheoOptionen Alt, Neu;
  if (TheoOptionenLesen(Alt) != 0) {
    Prüfen(Alt.Settings == "9600,N,8,1" && Alt.Rohdatendatei.empty(), "eine halbe Datei ändert nichts");
    return;
  }
  Prüfen(TheoOptionenSchreiben(Alt) == 0 && TheoOptionenLesen(Neu) == 0, "was gelesen ist, wird geschrieben");
  Prüfen(Neu.Port == Alt.Port && Neu.Settings == Alt.Settings && Neu.Rohdatendatei == Alt.Rohdatendatei &&
             Neu.Reduktion == Alt.Reduktion,
         "Schreiben und Lesen ändert nichts");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*Anzahl*/, char*** /*Worte*/) {
  setenv("TAVORENA_ORDNER", tavorena::fuzz::Ordner().c_str(), 1);
  tavorena::DateinamenAbleiten();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
