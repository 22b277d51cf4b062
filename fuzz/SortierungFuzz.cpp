#include "Abschrift.h"
#include "Fuzzhilfe.h"

#include <numeric>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Sortierung.h>

namespace tavorena::fuzz {
namespace {

// Each line is a point number.
void Lauf(Eingabe E) {
  std::vector<std::string> Nr;
  std::vector<Sortierwert> Werte;
  std::string_view Zeile;
  Zeilenleser Leser(E.Rest());
  while (Leser.Nächste(Zeile)) {
    Nr.emplace_back(Zeile);
    Werte.push_back(SortierwertVon(Zeile));
  }
  std::vector<std::string> Soll = Nr;
  std::vector<int> SollFolge(Nr.size()), Folge;
  std::iota(SollFolge.begin(), SollFolge.end(), 0);
  Abschrift(Soll, [&](std::size_t i, std::size_t j) {
    std::swap(Soll[i], Soll[j]);
    std::swap(SollFolge[i], SollFolge[j]);
  });
  static_cast<void>(SortierfolgeErmitteln(Nr, Werte, KommaZeilen(Nr), Folge));
  Prüfen(Folge == SollFolge, "die Folge ist die der Abschrift");
  SpaltenOrdnen(Folge, Nr);
  Prüfen(Nr == Soll, "die Nummern sind die der Abschrift");
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  tavorena::fuzz::Lauf({Daten, Laenge});
  return 0;
}
