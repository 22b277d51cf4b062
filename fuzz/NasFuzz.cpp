#include "Fuzzhilfe.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/exchange/NAS.h>

namespace tavorena::fuzz {
namespace {

void Lauf(Eingabe E) {
  KorLeeren();
  FormatAnmelden(NasZugang());
  NasNummer = static_cast<Nasnummer>(E.Zahl(0, 2));
  Lesebericht B;
  const int Ergebnis = KorLesen(Datei("a.xml", E.Rest()), Lesemodus::Alle, Punktformat::Nas, {}, {}, &B);
  Prüfen(Ergebnis == 0 || KorAnzahl == 0, "was kein ganzes XML ist, gibt keine Punkte");
  Prüfen(Ergebnis < 0 || B.Gelesen == KorAnzahl, "der Bericht nennt die Punkte");
  TabellePrüfen();
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
