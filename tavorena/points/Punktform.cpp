#include <utility>

#include <tavorena/core/TVDialog.h>
#include <tavorena/points/Punktform.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena {

Knopf& Punktform::RückgängigAnlegen(std::string Name, Platz Ort) {
  Rückgängig = &KnopfAnlegen(
      std::move(Name), "Rückgängig", [this] { static_cast<void>(Zurücknehmen()); }, Ort);
  Rückgängig->OhnePrüfung = true;
  Rückgängig->Aktiv = false;
  return *Rückgängig;
}

bool Punktform::DarfÄndern() {
  if (Stapel.Läuft()) StatusHilfeSetzen("Stapel noch nicht abgeschlossen");
  return !Stapel.Läuft();
}

void Punktform::NummerFehlt(Feld& F) {
  StatusHilfeSetzen("Punktnummer fehlt");
  FokusSetzen(F);
}

int Punktform::Getan(int Ergebnis) {
  if (Rückgängig != nullptr) {
    Rückgängig->Text = R.Leer() ? "Rückgängig" : "Rückgängig: " + R.Name();
    Rückgängig->Aktiv = !R.Leer();
  }
  NachTat();
  return Ergebnis;
}

bool Punktform::Zurücknehmen() {
  if (R.Leer()) return false;
  if (!DarfÄndern()) return true;
  static_cast<void>(Getan(R.Zurück()));  // what hinders it is told
  return true;
}

}  // namespace tavorena
