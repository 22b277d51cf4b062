#include <vector>

#include <tavorena/shell/Punktbefehle.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {
namespace {

Befehl Übernahmebefehl(const char* Eintrag, Übernahme Art) {
  return {Eintrag, true, [Art] { TabelleÜbernehmen(Art); }, true, NichtVorhanden};
}

}  // namespace

std::span<const Befehl> Punktbefehle() {
  static const std::vector<Befehl> Alle = {
      {"MenüBearbeitenTauschen(0)", true, [] { TabelleTauschen(true, false); }, true, NichtVorhanden},
      {"MenüBearbeitenTauschen(1)", true, [] { TabelleTauschen(false, true); }, true, NichtVorhanden},
      {"MenüBearbeitenTauschen(2)", true, [] { TabelleTauschen(true, true); }, true, NichtVorhanden},
      Übernahmebefehl("MenüBearbeitenPBericht", Übernahme::Punktnummern),
      Übernahmebefehl("MenüBearbeitenKBericht(0)", Übernahme::Koordinaten),
      Übernahmebefehl("MenüBearbeitenKBericht(1)", Übernahme::Höhen),
      Übernahmebefehl("MenüBearbeitenKBericht(2)", Übernahme::Höhenliste),
      Übernahmebefehl("MenüBearbeitenDxDy", Übernahme::Versatz),
      {"MenüBearbeitenRück", true, TabelleZurücknehmen, true},
  };
  return Alle;
}

}  // namespace tavorena
