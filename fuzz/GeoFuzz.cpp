#include "Fuzzhilfe.h"

#include <algorithm>

#include <tavorena/exchange/Umrechnung.h>

namespace tavorena::fuzz {
namespace {

constexpr Koordinatenform Formen[] = {{},
                                      {Koordinatenart::GK, 0},
                                      {Koordinatenart::GK, 3},
                                      {Koordinatenart::UTM, 0},
                                      {Koordinatenart::UTM, 32}};

int Zeilen(const std::string& Text) { return static_cast<int>(std::count(Text.begin(), Text.end(), '\n')); }

// Without a loss every point can be read again: a strip or zone that eastings bear, or one for all.
bool Umkehrbar(const Umrechnung& U, const Umrechenbericht& B) {
  const bool Ziffer = B.Streifen.begin()->first >= 1 && B.Streifen.rbegin()->first <= 9;
  const bool Gk = U.Nach.Art == Koordinatenart::GK;
  const Verlustliste V = Umrechenverlust(U, B);
  const bool Ganz =
      V.Weitere.empty() && B.Fremde.Anzahl == 0 &&
      std::all_of(V.Posten.begin(), V.Posten.end(), [](const Verlustposten& P) { return P.Anzahl == 0; });
  return Ganz && (Gk ? Ziffer : U.Nach.Art == Koordinatenart::Geographisch || U.Nach.Nummer > 0);
}

void Zurück(const Umrechnung& U, const std::string& Ziel, const Umrechenbericht& B) {
  Umrechnung Her;
  Her.Von = {U.Nach.Art, U.Nach.Art == Koordinatenart::GK ? 0 : U.Nach.Nummer};
  Her.Nach = {U.Nach.Art == Koordinatenart::Geographisch ? U.Von.Art : Koordinatenart::Geographisch, 0};
  std::string Wieder;
  Umrechenbericht C;
  Prüfen(TextUmrechnen(Ziel, Her, Wieder, C) == 0 && C.Punkte == B.Punkte && C.Andere == 0,
         "jeder Punkt kommt zurück");
}

void Lauf(Eingabe E) {
  Umrechnung U;
  U.Von = Formen[E.Zahl(0, 4)];
  U.Nach = Formen[E.Zahl(0, 4)];
  const bool Eben = U.Von.Art != Koordinatenart::Geographisch;
  if (U.Von.Art == U.Nach.Art && !Eben) return;
  if (VerschiedeneBezugssysteme(U)) return;
  if (U.Von.Art == Koordinatenart::GK) U.Von.Nummer = 0;
  const std::string Text(E.Rest());
  if (Text.find('\0') != std::string::npos) return;
  std::string Ziel;
  Umrechenbericht B;
  const int Ergebnis = TextUmrechnen(Text, U, Ziel, B);
  Prüfen(Ergebnis == (B.Punkte > 0 ? 0 : -1) && (B.ErsteAndere > 0) == (B.Andere > 0), "der Bericht stimmt");
  const bool Kopf = B.Punkte > 0 && U.Nach.Art == Koordinatenart::Geographisch;
  Prüfen(Zeilen(Ziel) == B.Punkte + (Kopf ? 4 : 0), "je Punkt eine Zeile");
  if (Ergebnis == 0 && Umkehrbar(U, B)) Zurück(U, Ziel, B);
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
