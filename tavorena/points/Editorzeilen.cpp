#include <string_view>
#include <unordered_set>

#include <tavorena/points/Editorzeilen.h>

namespace tavorena {
namespace {

// The row that holds just this point, else the first one with its number; -1.
int ZeileVon(const Punktsatz& P) {
  const int Erste = KorSuche(std::string_view(P.Pnr));
  for (int z = Erste; z >= 0 && z < KorAnzahl; ++z) {
    if (KorPnr(z) == P.Pnr && PunktsatzVon(z) == P) return z;
  }
  return Erste;
}

}  // namespace

int Editorzeilen::Tabellenzeile(int i) const {
  return Ganz ? i : ZeileVon(Getippte[static_cast<std::size_t>(i)]);
}

int Editorzeilen::Platz(int Tabellenzeile) const {
  if (Ganz) return Tabellenzeile;
  const Punktsatz P = PunktsatzVon(Tabellenzeile);
  for (int i = 0; i < Anzahl(); ++i) {
    if (Getippte[static_cast<std::size_t>(i)] == P) return i;
  }
  return -1;
}

int Editorzeilen::Suchen(const Punktsatz& P, int Vorher) const {
  if (Ganz && Vorher < KorAnzahl && PunktsatzVon(Vorher) == P) return Vorher;
  const int z = ZeileVon(P);
  return z < 0 ? -1 : Platz(z);
}

void Editorzeilen::Setzen(int i, const Punktsatz& P) {
  if (!Ganz) Getippte[static_cast<std::size_t>(i)] = P;
}

void Editorzeilen::Auffrischen() {
  std::vector<Punktsatz> Bleiben;
  std::unordered_set<int> Gesehen;
  for (auto P = Getippte.rbegin(); P != Getippte.rend(); ++P) {
    const int z = ZeileVon(*P);
    if (z >= 0 && Gesehen.insert(z).second) Bleiben.push_back(PunktsatzVon(z));
  }
  Getippte.assign(Bleiben.rbegin(), Bleiben.rend());
}

}  // namespace tavorena
