#include "Fuzzhilfe.h"

#include <algorithm>
#include <cstdlib>

#include <tavorena/core/Optionen.h>
#include <tavorena/shell/Konfiguration.h>

namespace tavorena::fuzz {
namespace {

void AllesLesen() {
  OptionenLesen();
  HistorieLesen();
  FormularLesen();
  DateinamenLesen();
  EDBSLesen();
}

std::string Geschrieben() {
  Prüfen(OptionenSchreiben() == 0, "die Optionen werden geschrieben");
  return Inhalt(DateinameOptionen);
}

void Lauf(Eingabe E) {
  Datei("Tavorena.ini", E.Rest());
  AllesLesen();
  Geschrieben();  // may lose: fields are narrow, and for an empty name the word behind it is read
  AllesLesen();
  const std::string Erste = Geschrieben();
  // A value that holds the name of a section is taken for it; five are the sections themselves.
  if (std::count(Erste.begin(), Erste.end(), '[') > 5) return;
  AllesLesen();
  Prüfen(Geschrieben() == Erste, "Schreiben und Lesen ändert die Optionen nicht");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*Anzahl*/, char*** /*Worte*/) {
  setenv("TAVORENA_ORDNER", tavorena::fuzz::Ordner().c_str(), 1);
  unsetenv("windir");
  tavorena::DateinamenAbleiten();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
