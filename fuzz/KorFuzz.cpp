#include "Fuzzhilfe.h"

#include <algorithm>
#include <cmath>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena::fuzz {
namespace {

bool Wiedergegeben(double Alt, double Neu) {
  const bool Passt = Alt < 1e7 && Alt > -1e6;  // anything else is a field of stars
  return !Passt || std::fabs(Alt - Neu) <= 0.000'500'1;
}

// Reading the lists takes the same points in the same order as the table.
void ListenVergleichen(const std::string& Name) {
  Punktlisten L;
  int Anzahl = 0;
  Prüfen(KorDateiInListen(Name, L, KorGrenze, Anzahl) == 0, "die Listen fassen die Datei");
  Prüfen(Anzahl == KorAnzahl, "Listen und Tabelle haben gleich viele Punkte");
  for (int i = 0; i < Anzahl; ++i) {
    const auto z = static_cast<std::size_t>(i);
    Prüfen(L.Pnr[z] == KorPnr(i) && L.Rechts[z] == KorRechts[z] && L.Hoch[z] == KorHoch[z] &&
               L.Hoehe[z] == KorHoehe[z] && L.Symbol[z] == KorSymbol[z],
           "Listen und Tabelle sind gleich");
  }
}

void SchreibenUndLesen() {
  std::string Text;
  Prüfen(KorText(Dateiformat::Kor, 3, Text) == 0, "KOR wird geschrieben");
  Punktlisten L;
  int Anzahl = 0;
  Prüfen(KorDateiInListen(Datei("b.kor", Text), L, KorGrenze, Anzahl, false) == 0, "KOR wird wieder gelesen");
  Prüfen(Anzahl == KorAnzahl, "kein Punkt geht beim Schreiben verloren");
  for (int i = 0; i < Anzahl; ++i) {
    const auto z = static_cast<std::size_t>(i);
    Prüfen(L.Pnr[z] == KorPnr(i) && L.Symbol[z] == KorSymbol[z], "Nummer und Symbol bleiben");
    Prüfen(Wiedergegeben(KorRechts[z], L.Rechts[z]) && Wiedergegeben(KorHoch[z], L.Hoch[z]) &&
               Wiedergegeben(KorHoehe[z], L.Hoehe[z]),
           "Koordinaten bleiben");
  }
}

void Lauf(Eingabe E) {
  KorLeeren();
  const auto Modus = static_cast<Lesemodus>(E.Zahl(-1, 1));
  const bool Komma = E.Rest().find(',') != std::string_view::npos;
  for (const char* Pnr : {"1", "12", "A7"}) {
    Wert Nr(Pnr);
    NeupunktErgebnis Ergebnis;
    if (Modus == Lesemodus::Ersetzen) break;
    Prüfen(Neupunkt(Nr, 3480000, 5550000, 100, "015", nullptr, Ergebnis) == NeupunktCode::Neu,
           "die Nummer ist frei");
  }
  const int Vorher = KorAnzahl;
  if (E.IstUtf16()) return;
  const std::string Name = Datei("a.kor", E.Rest());
  Prüfen(KorLesen(Name, Modus, Dateiformat::Kor) == 0, "eine Datei wird immer gelesen");
  Prüfen(KorAnzahl >= Vorher, "es geht kein Punkt verloren");
  TabellePrüfen();
  // A comma becomes a point after the search for the number: only then there may be doubles.
  if (Modus == Lesemodus::NurNeue && !Komma) Prüfen(AnzahlDoppelte() == 0, "Mischen macht keine Doppelten");
  if (Modus == Lesemodus::Ersetzen) ListenVergleichen(Name);
  SchreibenUndLesen();
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
