#include <algorithm>
#include <vector>

#include <tavorena/core/Ports.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

std::vector<std::unique_ptr<Formular>> Blätter;

}  // namespace

void BlattZeigen(std::unique_ptr<Formular> Blatt, bool Modal) {
  // A closed worksheet goes here, when none of its events is running any more.
  std::erase_if(Blätter, [](const auto& B) { return !B->Offen() && !B->InArbeit(); });
  Formular& Form = *Blätter.emplace_back(std::move(Blatt));
  Form.NachSchließen = [] { AnzeigePort().HauptfensterGeändert(); };
  AnzeigePort().FormularZeigen(Form, Modal);
  AnzeigePort().HauptfensterGeändert();
}

bool BlätterOffen() {
  return std::any_of(Blätter.begin(), Blätter.end(), [](const auto& B) { return B->Offen(); });
}

bool BlätterKlären() {
  for (std::size_t i = 0; i < Blätter.size(); ++i) {
    Formular& Form = *Blätter[i];
    bool Geklärt = !Form.Offen();
    if (!Geklärt) Form.Ereignis([&] { Geklärt = Form.OffenesKlären(); });
    if (!Geklärt) return false;
  }
  return true;
}

void BlätterSchließen() {
  if (Stapel.Aktiv) StapelAnhalten();
  for (std::size_t i = 0; i < Blätter.size(); ++i) {
    Formular& Form = *Blätter[i];
    Form.Ereignis([&Form] { Form.Schließen(); });
  }
}

bool StapelSchreibenOffen() { return Stapel.Läuft(); }

std::function<void()> BlattFür(const std::string& Kennung) {
  const Blattart* Art = BlattartVonKennung(Kennung);
  if (Art == nullptr) return {};
  return [Art] { BlattZeigen(Art->Neu(*Art)); };
}

}  // namespace tavorena
