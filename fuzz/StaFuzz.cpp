#include "Fuzzhilfe.h"

#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/TVProtokollmodul.h>

namespace tavorena::fuzz {
namespace {

std::string Pnr1, Pnr2;
double Wert1 = 0, Wert2 = 0;

// Worksheets that take their records until a reader refuses; together they call every reader.
void Anschlussblatt() {
  if (StapelLesenPnrMitWerte(Pnr1, Wert1, Pnr2, Wert2) != 0) return;
  while (StapelLesePnr("NR", Pnr1) == 0) ++Stapellauf.Zeilen;
}
void Entfernungsblatt() {
  if (StapelLeseRisszeilen() != 0) return;
  while (StapelLeseZweiPnr("NND", Pnr1, Pnr2, Wert1) == 0) ++Stapellauf.Zeilen;
}
void Neupunktblatt() {
  while (StapelLeseNeupunkt(Pnr1, Pnr2) == 0) ++Stapellauf.Zeilen;
  if (Pnr1 == "Stop") StapelAnhalten();
}

void Anmelden() {
  const auto Blatt = [](const char* Kennung, const char* Kurz, void (*Lesen)()) {
    StapelBlattAnmelden({Kennung, Kurz}, [Lesen] {
      Lesen();
      if (StapelAktiv) StapelWeiter();
    });
  };
  Blatt("24.40", "LE", Anschlussblatt);
  Blatt("22.10", "EK", Entfernungsblatt);
  Blatt("25.50", "NP", Neupunktblatt);
}

int Schlussrufe = 0;

void Lauf(Eingabe E) {
  Schlussrufe = 0;
  Pnr1.clear();
  ProtokollLeeren();
  StapelStarten(Datei("a.sta", E.Rest()));
  Prüfen(!StapelAktiv, "der Lauf ist zu Ende");
  Prüfen(StapelZeiger <= StapelAnzahl && StapelZeilennummer == StapelZeiger, "die Zeilen werden gezählt");
  Prüfen(Stapellauf.Blöcke + static_cast<int>(Stapellauf.Übergangen.size()) <= StapelAnzahl,
         "jeder Block hat einen Kopf");
  Prüfen(Schlussrufe == 1, "das Ende des Laufs wird einmal gemeldet");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*Anzahl*/, char*** /*Worte*/) {
  tavorena::fuzz::Anmelden();
  tavorena::StapelSchritt = [](const std::string& Titel) {
    if (Titel.empty()) ++tavorena::fuzz::Schlussrufe;
  };
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
