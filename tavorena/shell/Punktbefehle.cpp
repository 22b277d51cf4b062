#include <memory>
#include <utility>
#include <vector>

#include <tavorena/core/TVDialog.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/TVBerichForm.h>
#include <tavorena/points/TVDMittForm.h>
#include <tavorena/points/TVKernKoordinatenEditor.h>
#include <tavorena/points/TVKerntextForm.h>
#include <tavorena/points/TVPLoeschForm.h>
#include <tavorena/points/TVPMittForm.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Punktbefehle.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {
namespace {

Befehl Übernahmebefehl(const char* Eintrag, Übernahme Art) {
  return {Eintrag, true, [Art] { TabelleÜbernehmen(Art); }, true, NichtVorhanden};
}

void DoppelteMittelnZeigen() {
  if (Doppelgruppen().empty()) return Hinweis("Keine doppelten Punkte vorhanden !");
  BlattZeigen(std::make_unique<TVDMittForm>());
}

void MittelnZeigen(Mittelart Art) { BlattZeigen(std::make_unique<TVPMittForm>(Art)); }
void Eingeben() { BlattZeigen(std::make_unique<TVKernKoordinatenEditor>(Editormodus::Eingabe)); }

void Editieren() { BlattZeigen(std::make_unique<TVKernKoordinatenEditor>(Editormodus::Bearbeiten), true); }

// The command that shows a list.
Befehl Listenbefehl(const char* Eintrag, Textart Art) {
  const auto Zeigen = [Art] {
    if (auto Form = KerntextErfragen(Art)) BlattZeigen(std::move(Form));
  };
  return {Eintrag, true, Zeigen, false, NichtEingelesen, Listenseite};
}

}  // namespace

std::span<const Befehl> Punktbefehle() {
  static const std::vector<Befehl> Alle = {
      Listenbefehl("MenüAnsichtKoordinaten", Textart::Koordinaten),
      Listenbefehl("MenüAnsichtDoppelte", Textart::Doppelte),
      Listenbefehl("MenüAnsichtMitDoppelten", Textart::MitDoppelten),
      Listenbefehl("MenüAnsichtQuasi", Textart::Quasi),
      Listenbefehl("MenüAnsichtBelegung", Textart::Belegung),
      {"MenüBearbeitenTauschen(0)", true, [] { TabelleTauschen(true, false); }, true, NichtVorhanden},
      {"MenüBearbeitenTauschen(1)", true, [] { TabelleTauschen(false, true); }, true, NichtVorhanden},
      {"MenüBearbeitenTauschen(2)", true, [] { TabelleTauschen(true, true); }, true, NichtVorhanden},
      Übernahmebefehl("MenüBearbeitenPBericht", Übernahme::Punktnummern),
      Übernahmebefehl("MenüBearbeitenKBericht(0)", Übernahme::Koordinaten),
      Übernahmebefehl("MenüBearbeitenKBericht(1)", Übernahme::Höhen),
      Übernahmebefehl("MenüBearbeitenKBericht(2)", Übernahme::Höhenliste),
      Übernahmebefehl("MenüBearbeitenDxDy", Übernahme::Versatz),
      {"MenüBearbeitenRück", true, TabelleZurücknehmen, true},
      {"MenüKatasterBerpunkt", true, [] { BlattZeigen(std::make_unique<TVBerichForm>()); }, true,
       NichtVorhanden},
      {"MenüKatasterSchwerpunkt", true, [] { MittelnZeigen(Mittelart::Schwerpunkt); }, true, NichtVorhanden},
      {"MenüKatasterPMitt", true, [] { MittelnZeigen(Mittelart::Ersetzen); }, true, NichtVorhanden},
      {"MenüKatasterDMitt", true, DoppelteMittelnZeigen, true, NichtVorhanden},
      {"MenüKatasterPunktLöschen", true, [] { BlattZeigen(std::make_unique<TVPLoeschForm>()); }, true,
       NichtVorhanden},
      {"MenüKatasterKorein", true, Eingeben, true},
      {"MenüBearbeitenEditieren", true, Editieren, true, NichtVorhanden},
  };
  return Alle;
}

}  // namespace tavorena
