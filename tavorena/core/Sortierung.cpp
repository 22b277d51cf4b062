#include <algorithm>
#include <array>
#include <numeric>
#include <tuple>

#include <tavorena/core/Sortierung.h>
#include <tavorena/core/Text.h>

namespace tavorena {
namespace {

constexpr std::size_t StapelTiefe = 501;

std::size_t Reihe(int i) { return static_cast<std::size_t>(i); }

class Quicksort {
 public:
  Quicksort(std::span<std::string> Liste, std::span<const double> Zahlen, bool Komma,
            std::vector<int>& Reihenfolge)
      : Nummern(Liste), Werte(Zahlen), MitKomma(Komma), Folge(Reihenfolge) {}

  bool Laufen() {
    int lo = 0, hi = static_cast<int>(Folge.size()) - 1;
    std::array<std::pair<int, int>, StapelTiefe> Stapel;
    std::size_t Tiefe = 0;
    for (;;) {
      const auto [i, j] = Teilen(lo, hi);
      if (i < hi) {
        if (Tiefe == StapelTiefe) return false;
        Stapel[Tiefe++] = {i, hi};
      }
      if (lo < j) {
        hi = j;
      } else {
        if (Tiefe == 0) return true;
        std::tie(lo, hi) = Stapel[--Tiefe];
      }
    }
  }

 private:
  std::pair<int, int> Teilen(int lo, int hi) {
    const int Mitte = Folge[Reihe((lo + hi) / 2)];
    Punktieren(Mitte);
    const double P = Werte[Reihe(Mitte)];
    if (P == 0) {
      const std::string& Pivot = Nummern[Reihe(Mitte)];
      return Tauschlauf(lo, hi, [&](int Zeile) { return Nummern[Reihe(Zeile)].compare(Pivot); });
    }
    return Tauschlauf(lo, hi, [&](int Zeile) {
      if (MitKomma) Punktieren(Zeile);
      const double w = Werte[Reihe(Zeile)];
      return w < P ? -1 : w > P ? 1 : 0;
    });
  }

  template <typename Vergleich>
  std::pair<int, int> Tauschlauf(int i, int j, Vergleich GegenPivot) {
    do {
      while (GegenPivot(Folge[Reihe(i)]) < 0) ++i;
      while (GegenPivot(Folge[Reihe(j)]) > 0) --j;
      if (i <= j) std::swap(Folge[Reihe(i++)], Folge[Reihe(j--)]);
    } while (i <= j);
    return {i, j};
  }

  void Punktieren(int Zeile) { ZeichenErsetzen(Nummern[Reihe(Zeile)], ',', '.'); }

  std::span<std::string> Nummern;
  std::span<const double> Werte;
  bool MitKomma;
  std::vector<int>& Folge;
};

// Distinct numbers other than 0 without a comma: every correct sort gives the same rows.
bool EineOrdnung(std::span<const double> Werte, std::vector<int>& Folge) {
  if (std::any_of(Werte.begin(), Werte.end(), [](double w) { return w == 0; })) return false;
  const auto Kleiner = [&](int a, int b) { return Werte[Reihe(a)] < Werte[Reihe(b)]; };
  const auto Vorn = std::is_sorted_until(Folge.begin(), Folge.end(), Kleiner);
  if (Folge.end() - Vorn == 1) {  // one new point behind a sorted table
    std::rotate(std::upper_bound(Folge.begin(), Vorn, *Vorn, Kleiner), Vorn, Folge.end());
  } else {
    std::sort(Vorn == Folge.end() ? Vorn : Folge.begin(), Folge.end(), Kleiner);
  }
  return std::adjacent_find(Folge.begin(), Folge.end(),
                            [&](int a, int b) { return Werte[Reihe(a)] == Werte[Reihe(b)]; }) == Folge.end();
}

}  // namespace

int SortierfolgeErmitteln(std::span<std::string> Nummern, std::span<const double> Werte, bool MitKomma,
                          std::vector<int>& Folge) {
  Folge.resize(Nummern.size());
  std::iota(Folge.begin(), Folge.end(), 0);
  if (Folge.empty()) return 1;
  if (MitKomma || !EineOrdnung(Werte, Folge)) {
    std::iota(Folge.begin(), Folge.end(), 0);
    if (!Quicksort(Nummern, Werte, MitKomma, Folge).Laufen()) {
      std::iota(Folge.begin(), Folge.end(), 0);
      return -1;
    }
  }
  return std::is_sorted(Folge.begin(), Folge.end()) ? 1 : 0;
}

}  // namespace tavorena
