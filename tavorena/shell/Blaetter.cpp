#include <algorithm>
#include <vector>

#include <tavorena/core/Ports.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/worksheets/TVDisForm.h>
#include <tavorena/worksheets/TVLinelForm.h>
#include <tavorena/worksheets/TVPolelForm.h>

namespace tavorena {
namespace {

std::vector<std::unique_ptr<Formular>> Blätter;

template <typename Form>
void Anmelden(const std::vector<std::string>& Kennungen) {
  StapelBlattAnmelden(Kennungen, [] { BlattZeigen(std::make_unique<Form>()); });
}

}  // namespace

void BlattZeigen(std::unique_ptr<Formular> Blatt) {
  // A closed worksheet goes here, when none of its events is running any more.
  std::erase_if(Blätter, [](const auto& B) { return !B->Offen() && !B->InArbeit(); });
  Formular& Form = *Blätter.emplace_back(std::move(Blatt));
  Form.NachSchließen = [] { AnzeigePort().HauptfensterGeändert(); };
  AnzeigePort().FormularZeigen(Form, false);
  AnzeigePort().HauptfensterGeändert();
}

bool BlätterOffen() {
  return std::any_of(Blätter.begin(), Blätter.end(), [](const auto& B) { return B->Offen(); });
}

bool BlätterSchließen() {
  for (std::size_t i = 0; i < Blätter.size(); ++i) {
    Blätter[i]->SchließenVerlangen();
    if (Blätter[i]->Offen()) return false;
  }
  return true;
}

bool StapelSchreibenOffen() { return StapelBlockOffen() || StapelAktiv; }

void BlätterAnmelden() {
  Anmelden<TVLinelForm>({"24.40", "LE"});
  Anmelden<TVPolelForm>({"08.40", "8.40", "PE"});
  Anmelden<TVDisForm>({"22.10", "EK"});
}

}  // namespace tavorena
