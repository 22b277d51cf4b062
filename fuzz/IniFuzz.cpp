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

// Writes the settings, reads them again, and gives what was written.
std::string Runde() {
  Prüfen(OptionenSchreiben() == 0, "die Optionen werden geschrieben");
  std::string Geschrieben = Inhalt(DateinameOptionen);
  AllesLesen();
  return Geschrieben;
}

void Lauf(Eingabe E) {
  Datei("Tavorena.ini", E.Rest());
  AllesLesen();
  Runde();  // the first round may lose: fields are narrow, and for an empty name the word behind it is read
  const std::string Erste = Runde();
  // A value that holds the name of a section is taken for it; five are the sections themselves.
  if (std::count(Erste.begin(), Erste.end(), '[') > 5) return;
  Prüfen(Runde() == Erste, "Schreiben und Lesen ändert die Optionen nicht");
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
