#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Neupunktblock.h>
#include <tavorena/worksheets/Punktablage.h>

namespace tavorena {

int Punktablage::Eintragen(Aufzeichnung& Akten, std::string& Pnr, Lage& Ort, const Wert& Hoehe,
                           const std::string& Symbol) {
  Vorher.clear();
  Nachher.clear();
  Wert Nummer(Pnr);
  std::vector<Punktsatz> Alte;
  if (const int z = KorSucheMitPunkt(Nummer); z >= 0) {
    if (Akten.KopfSchreiben() < 0) return -1;
    Alte.push_back(PunktsatzVon(z));
  }
  const int Zeile = NeupunktEintragen(Nummer, Ort.RW, Ort.HW, Hoehe, Symbol, nullptr, Getan);
  if (Zeile < 0) return -1;
  Pnr = Trimmen(Nummer);
  Ort = {Getan.Rechts, Getan.Hoch};
  switch (Getan.Code) {
    case NeupunktCode::Neu:
      if (Alte.empty()) Nachher = {PunktsatzVon(Zeile)};  // otherwise it was there already
      break;
    case NeupunktCode::AlterErsetzt:
    case NeupunktCode::Gemittelt:
      Vorher = std::move(Alte);
      Nachher = {PunktsatzVon(Zeile)};
      break;
    case NeupunktCode::AlterNeunum:
      Vorher = std::move(Alte);
      Nachher = {PunktsatzVon(Zeile)};
      if (const int z = KorSuche(std::string_view(Getan.Nummer)); z >= 0) Nachher.push_back(PunktsatzVon(z));
      break;
    case NeupunktCode::NeuerNeunum:
      Nachher = {PunktsatzVon(Zeile)};
      break;
    case NeupunktCode::NeuerVerworfen:
    case NeupunktCode::Nichts:
      break;
  }
  return 0;
}

std::vector<std::string> Punktablage::Notizzeilen() const {
  return Bearbeitungsnotiz(Optionen.OptNachkommastellen, Getan.Code, Getan.Nummer, Getan.DeltaRechts,
                           Getan.DeltaHoch)
      .Zeilen;
}

int Punktablage::Zurück() {
  if (Vorher.empty() && Nachher.empty()) return 0;
  const int Ergebnis = ZeilenTauschen(Nachher, Vorher);
  Vorher.clear();
  Nachher.clear();
  return Ergebnis;
}

}  // namespace tavorena
