#include "Fuzzhilfe.h"

#include <vector>

#include <tavorena/points/Selektion.h>

namespace tavorena::fuzz {
namespace {

void Lauf(Eingabe E) {
  if (E.IstUtf16()) return;
  std::vector<std::string> Nummern, Wieder;
  Prüfen(SelektionLesen(Datei("a.sel", E.Rest()), Nummern) == 0, "jeder Text wird gelesen");
  // A second mark of the byte order would go as the first one did.
  if (!Nummern.empty() && Nummern.front().starts_with("\xEF\xBB\xBF")) return;
  const std::string Zweite = Ordner() + "/b.sel";
  Prüfen(SelektionSchreiben(Zweite, Nummern) == 0, "was gelesen ist, wird geschrieben");
  Prüfen(SelektionLesen(Zweite, Wieder) == 0, "was geschrieben ist, wird gelesen");
  int Fremde = 0;
  const std::size_t Treffer = SelektionZeilen(Nummern, Wieder, Fremde).size();
  Prüfen(Fremde == 0 && Treffer == Wieder.size(), "jede Nummer kommt wieder, keine andere");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
