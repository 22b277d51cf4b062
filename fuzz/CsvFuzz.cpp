#include "Fuzzhilfe.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/exchange/CSV.h>

namespace tavorena::fuzz {
namespace {

// Fields that hold their value, which all but the largest do; and no comma in a number, which a sort may
// change.
bool AllePassen() {
  for (int i = 0; i < KorAnzahl; ++i) {
    const KorSatz S = KorPunkt(i);
    if (S.Pnr.find(',') != std::string_view::npos) return false;
    for (const double Wert : {S.Rechts, S.Hoch, S.Hoehe}) {
      if (!(std::fabs(Wert) < 1e12)) return false;
    }
  }
  return true;
}

// In an order of their own: that of equal numbers is the table's affair.
std::vector<std::string> Zeilen(const std::string& Text) {
  std::vector<std::string> Alle;
  Zeilenleser Leser(Text);
  std::string_view Zeile;
  while (Leser.Nächste(Zeile)) Alle.emplace_back(Zeile);
  std::sort(Alle.begin(), Alle.end());
  return Alle;
}

void Lauf(Eingabe E) {
  KorLeeren();
  FormatAnmelden(CsvZugang());
  CsvAchsen = static_cast<Csvachsen>(E.Zahl(0, 3));
  Lesebericht B;
  if (KorLesen(Datei("a.csv", E.Rest()), Lesemodus::Alle, Punktformat::Csv, {}, {}, &B) < 0)
    return Prüfen(KorAnzahl == 0, "was nicht gelesen wird, gibt keine Punkte");
  Prüfen(B.Gelesen == KorAnzahl, "der Bericht nennt die Punkte");
  TabellePrüfen();
  if (!AllePassen()) return;
  std::string Text, Wieder;
  Prüfen(KorText(Punktformat::Csv, 3, Text) == 0, "CSV wird geschrieben");
  const int Anzahl = KorAnzahl;
  KorLeeren();
  Prüfen(KorLesen(Datei("b.csv", Text), Lesemodus::Alle, Punktformat::Csv, {}, {}, &B) == 0,
         "und wieder gelesen");
  Prüfen(KorAnzahl == Anzahl && B.Übergangen == 0 && !B.Abgeschnitten, "kein Punkt geht verloren");
  Prüfen(KorText(Punktformat::Csv, 3, Wieder) == 0 && Zeilen(Wieder) == Zeilen(Text),
         "es kommt wieder, was geschrieben ist");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
