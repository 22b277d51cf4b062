#include "Fuzzhilfe.h"

#include <cmath>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena::fuzz {
namespace {

bool NurZiffern(std::string_view Text) {
  return !Text.empty() && Text.find_first_not_of("0123456789") == std::string_view::npos;
}

bool Passt(double Zahl) { return Zahl < 1e7 - 0.001 && Zahl > -1e6 + 0.001; }

// A point whose parts fit their columns comes back from its line.
void ZeilePrüfen(int Zeile) {
  const auto z = static_cast<std::size_t>(Zeile);
  const KorInfoSatz& Info = KorInfo[z];
  std::string Text, Pnr, Symbol;
  double Rechts = 0, Hoch = 0;
  KorInfoSatz Neu;
  Lt4ZeileSchreiben(std::string_view(KorPnr(Zeile)), KorRechts[z], KorHoch[z], Info, Text);
  const int Ergebnis = Lt4ZeileLesen(Text, Pnr, Rechts, Hoch, Symbol, Neu);
  if (!NurZiffern(KorPnr(Zeile)) || !NurZiffern(Info.Lagestatus) || Info.Vermarkungsart < 0 ||
      Info.Vermarkungsart > 999 || Info.Punktstatus < 0 || !Passt(KorRechts[z]) || !Passt(KorHoch[z])) {
    return;
  }
  Prüfen(Ergebnis == 0, "die Zeile ist wieder ein Punkt");
  Prüfen(ZahlAusText(Pnr) == ZahlAusText(KorPnr(Zeile)), "die Nummer bleibt");
  Prüfen(std::fabs(Rechts - KorRechts[z]) <= 0.000'500'1 && std::fabs(Hoch - KorHoch[z]) <= 0.000'500'1,
         "Koordinaten bleiben");
  Prüfen(Neu == Info, "Angaben bleiben");
}

void Lauf(Eingabe E) {
  KorLeeren();
  const auto Modus = static_cast<Lesemodus>(E.Zahl(-1, 1));
  if (E.IstUtf16()) return;
  const std::string Name = Datei("a.lt4", E.Rest());
  std::string Text;
  Prüfen(KorLesen(Name, Modus, Dateiformat::Lt4) == 0, "eine Datei wird immer gelesen");
  TabellePrüfen();
  for (int i = 0; i < KorAnzahl; ++i) ZeilePrüfen(i);
  Prüfen(KorText(Dateiformat::Lt4, 3, Text) == 0 && KorText(Dateiformat::Kor, 3, Text) == 0,
         "beide Formate werden geschrieben");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
