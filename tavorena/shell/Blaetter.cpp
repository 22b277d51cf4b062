#include <algorithm>
#include <vector>

#include <tavorena/core/Plattform.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/worksheets/TVDisForm.h>
#include <tavorena/worksheets/TVLinelForm.h>
#include <tavorena/worksheets/TVPolelForm.h>

namespace tavorena {
namespace {

std::vector<std::unique_ptr<Formular>> Blaetter;

template <typename Form>
void Anmelden(const std::vector<std::string>& Kennungen) {
  StapelBlattAnmelden(Kennungen, [] { BlattZeigen(std::make_unique<Form>()); });
}

}  // namespace

void BlattZeigen(std::unique_ptr<Formular> Blatt) {
  // A closed worksheet goes here, when none of its events is running any more.
  std::erase_if(Blaetter, [](const auto& B) { return !B->Offen() && !B->InArbeit(); });
  Formular& Form = *Blaetter.emplace_back(std::move(Blatt));
  Form.NachSchliessen = [] { Port().HauptfensterGeaendert(); };
  Port().FormularZeigen(Form, false);
  Port().HauptfensterGeaendert();
}

bool BlaetterOffen() {
  return std::any_of(Blaetter.begin(), Blaetter.end(), [](const auto& B) { return B->Offen(); });
}

bool BlaetterSchliessen() {
  for (std::size_t i = 0; i < Blaetter.size(); ++i) {
    Blaetter[i]->SchliessenVerlangen();
    if (Blaetter[i]->Offen()) return false;
  }
  return true;
}

bool StapelSchreibenOffen() { return StapelBlockOffen() || StapelAktiv; }

void BlaetterAnmelden() {
  Anmelden<TVLinelForm>({"24.40", "LE"});
  Anmelden<TVPolelForm>({"08.40", "8.40", "PE"});
  Anmelden<TVDisForm>({"22.10", "EK"});
}

}  // namespace tavorena
