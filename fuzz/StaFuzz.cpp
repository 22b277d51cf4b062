#include "Fuzzhilfe.h"

#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::fuzz {
namespace {

std::string Pnr1, Pnr2;
double Wert1 = 0, Wert2 = 0;

// Worksheets that take their records until a reader refuses; together they call every reader.
void Anschlussblatt() {
  if (StapelLesenPnrMitWerte(Pnr1, Wert1, Pnr2, Wert2) != 0) return;
  while (StapelLesePnr("NR", Pnr1) == 0) ++Stapel.Bilanz.Zeilen;
}
void Entfernungsblatt() {
  if (StapelLeseRisszeilen() != 0) return;
  while (StapelLeseZweiPnr("NND", Pnr1, Pnr2, Wert1) == 0) ++Stapel.Bilanz.Zeilen;
}
void Neupunktblatt() {
  while (StapelLeseNeupunkt(Pnr1, Pnr2) == 0) ++Stapel.Bilanz.Zeilen;
  if (Pnr1 == "Stop") StapelAnhalten();
}

std::function<void()> BlattFür(const std::string& Kennung) {
  void (*Lesen)() = Kennung == "24.40" || Kennung == "LE"   ? Anschlussblatt
                    : Kennung == "22.10" || Kennung == "EK" ? Entfernungsblatt
                    : Kennung == "25.50" || Kennung == "NP" ? Neupunktblatt
                                                            : nullptr;
  if (Lesen == nullptr) return {};
  return [Lesen] {
    Lesen();
    if (Stapel.Aktiv) StapelWeiter();
  };
}

int Schlussrufe = 0;

void Lauf(Eingabe E) {
  Schlussrufe = 0;
  Pnr1.clear();
  Prot = {};
  if (E.IstUtf16()) return;
  StapelStarten(Datei("a.sta", E.Rest()));
  Prüfen(!Stapel.Aktiv, "der Lauf ist zu Ende");
  Prüfen(Stapel.Zeiger <= Stapel.Anzahl() && Stapel.Zeilennummer == Stapel.Zeiger,
         "die Zeilen werden gezählt");
  Prüfen(Stapel.Bilanz.Blöcke + static_cast<int>(Stapel.Bilanz.Übergangen.size()) <= Stapel.Anzahl(),
         "jeder Block hat einen Kopf");
  Prüfen(Schlussrufe == 1, "das Ende des Laufs wird einmal gemeldet");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*Anzahl*/, char*** /*Worte*/) {
  tavorena::StapelHaken.BlattFür = tavorena::fuzz::BlattFür;
  tavorena::StapelHaken.Schritt = [](const std::string& Titel) {
    if (Titel.empty()) ++tavorena::fuzz::Schlussrufe;
  };
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
