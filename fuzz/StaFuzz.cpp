#include "Fuzzhilfe.h"

#include <tavorena/records/DreiD.h>
#include <tavorena/records/Flaeche.h>
#include <tavorena/records/Kreismitte.h>
#include <tavorena/records/Messlinie.h>
#include <tavorena/records/Polar.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Rueckwaerts.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Transformation.h>
#include <tavorena/records/Vorwaerts.h>
#include <tavorena/records/Zug.h>

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
template <class T, int (*LeseZeile)(T&)>
void Zeilenblatt() {
  T Zeile;
  if (StapelLesenPnrMitWerte(Pnr1, Wert1, Pnr2, Wert2) != 0) return;
  while (LeseZeile(Zeile) == 0) ++Stapel.Bilanz.Zeilen;
}
template <class T, int (*Lesen)(T&), std::vector<std::string> (*Schreiben)(T)>
void Fallblatt() {
  T Fall;
  const int Anfang = Stapel.Zeiger;
  if (Lesen(Fall) != 0) return;
  // The end record makes up for the second new point, which older blocks may lack.
  Prüfen(std::ssize(Schreiben(Fall)) <= Stapel.Zeiger - Anfang, "nichts kommt hinzu");
}
void Raumblatt(DreiDArt Art) {
  DreiDEingabe E;
  if (StapelLeseDreiD(Art, E) == 0) Prüfen(StapelDreiD(Art, E).size() == 1, "ein Satz je Fall");
}

struct Blatt {
  const char *Kennung, *Kurz;
  void (*Lesen)();
};
constexpr Blatt Blätter[] = {
    {"24.40", "LE", Anschlussblatt},
    {"22.10", "EK", Entfernungsblatt},
    {"25.50", "NP", Neupunktblatt},
    {"22.00", "ML", Zeilenblatt<MesslinieEingabe, StapelLeseMesslinie>},
    {"19.70", "PP", Zeilenblatt<PolarEingabe, StapelLesePolar>},
    {"09.00", "GS", Fallblatt<Geradenschnitteingabe, StapelLeseGeradenschnitt, StapelGeradenschnitt>},
    {"09.40", "KS", Fallblatt<KreisGeradeEingabe, StapelLeseKreisGerade, StapelKreisGerade>},
    {"23.10", "BS", Fallblatt<Bogenschnitteingabe, StapelLeseBogenschnitt, StapelBogenschnitt>},
    {"09.50", "KM", Fallblatt<Kreismitteeingabe, StapelLeseKreismittelpunkt, StapelKreismittelpunkt>},
    {"10.00", "VS", Fallblatt<Vorwaertseingabe, StapelLeseVorwaertsschnitt, StapelVorwaertsschnitt>},
    {"11.00", "RS", Fallblatt<Rueckwaertseingabe, StapelLeseRueckwaertsschnitt, StapelRueckwaertsschnitt>},
    {"19.10", "PY", Fallblatt<Zugeingabe, StapelLesePolygon, StapelPolygon>},
    {"65.00", "FB", Fallblatt<Flaecheneingabe, StapelLeseFlaeche, StapelFlaeche>},
    {"24.00", "HT", Fallblatt<Transformationseingabe, StapelLeseTransformation, StapelTransformation>},
};

std::function<void()> BlattFür(const std::string& Kennung) {
  std::function<void()> Lesen;
  for (const Blatt& B : Blätter) {
    if (Kennung == B.Kennung || Kennung == B.Kurz) Lesen = B.Lesen;
  }
  if (const auto Art = DreiDVon(Kennung)) Lesen = [Art] { Raumblatt(*Art); };
  if (!Lesen) return {};
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
