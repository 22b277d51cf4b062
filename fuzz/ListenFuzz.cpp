#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/exchange/Formattafel.h>
#include <tavorena/exchange/Freiformat.h>

namespace tavorena::fuzz {
namespace {

// Reads a file into the empty table. @return false: not in this coding
bool Lesen(Punktformat Format, std::string_view Bytes) {
  Lesebericht B;
  KorLeeren();
  if (KorLesen(Datei("a.txt", Bytes), Lesemodus::Ersetzen, Format, {}, {}, &B) < 0) return false;
  Prüfen(B.Gelesen == KorAnzahl && B.Übergangen >= 0, "der Bericht zählt, was da ist");
  Prüfen((B.Übergangen > 0) == (B.ErsteÜbergangene > 0), "die erste übergangene Zeile hat eine Nummer");
  for (std::size_t z = 0; z < static_cast<std::size_t>(KorAnzahl); ++z)
    Prüfen(std::isfinite(KorRechts[z]) && std::isfinite(KorHoch[z]) && std::isfinite(KorHoehe[z]),
           "Koordinaten sind Zahlen");
  TabellePrüfen();
  return true;
}

// The row holds nothing that separates, and its values have room.
bool KommtWieder(int Zeile) {
  const KorSatz S = KorPunkt(Zeile);
  const auto Einfach = [](std::string_view Text) {
    return Text.find_first_of("*\"\t ,;\r\n") == std::string_view::npos &&
           Text.find('\0') == std::string_view::npos;
  };
  const auto Platz = [](double x) { return x < 9e6 && x > -9e5; };
  return Einfach(S.Pnr) && Einfach(S.Symbol) && Platz(S.Rechts) && Platz(S.Hoch) && Platz(S.Hoehe);
}

void SchreibenUndLesen(Punktformat Aus, Punktformat Ein) {
  std::string Text;
  const int Anzahl = KorAnzahl;
  bool Alle = true;
  for (int z = 0; z < Anzahl; ++z) Alle = Alle && KommtWieder(z);
  Prüfen(KorText(Aus, 3, Text) == 0, "die Tabelle wird geschrieben");
  Prüfen(!Alle || (Lesen(Ein, Text) && KorAnzahl == Anzahl), "kein Punkt geht verloren");
}

[[maybe_unused]] void Liste(Eingabe E) {
  constexpr Punktformat Formate[] = {Punktformat::Lfs, Punktformat::Coo, Punktformat::GeoMap,
                                     Punktformat::Gsi, Punktformat::Geograf};
  const Punktformat Format = Formate[E.Zahl(0, 4)];
  if (E.IstUtf16()) return;
  Prüfen(Lesen(Format, E.Rest()), "eine Liste wird immer gelesen");
  Format == Punktformat::Geograf ? SchreibenUndLesen(Punktformat::GeografAus, Format)
                                 : SchreibenUndLesen(Punktformat::Lfs, Punktformat::Lfs);
}

// The first line is the definition.
[[maybe_unused]] void Frei(Eingabe E) {
  const std::string_view Alles = E.Rest();
  const std::size_t Ende = Alles.find('\n');
  std::string Grund;
  LetztesFreiformat = {};
  if (Ende == std::string_view::npos || FreiformatLesen(Alles.substr(0, Ende), LetztesFreiformat, Grund) < 0)
    return;
  Prüfen(FreiformatEinwand(LetztesFreiformat, false).Text.empty(), "was gelesen ist, ist gut");
  if (!Lesen(Punktformat::Frei, Alles.substr(Ende + 1))) return;
  if (!FreiformatEinwand(LetztesFreiformat, true).Text.empty()) return;
  LetztesFreiformat.Satz = Zeichensatz::Utf8;
  std::string Text;
  if (!LetztesFreiformat.InSpalten) return SchreibenUndLesen(Punktformat::Frei, Punktformat::Frei);
  Prüfen(KorText(Punktformat::Frei, 3, Text) == 0, "die Tabelle wird geschrieben");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  static const bool Da = (tavorena::FormateAnmelden(), true);
  tavorena::fuzz::Prüfen(Da, "die Formate sind da");
  tavorena::fuzz::LAUF({Daten, Laenge});
  return 0;
}
