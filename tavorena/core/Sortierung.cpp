#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <tuple>
#include <utility>

#include <tavorena/core/Sortierung.h>
#include <tavorena/core/Text.h>

namespace tavorena {
namespace {

std::size_t Reihe(int i) { return static_cast<std::size_t>(i); }

// What is compared of a number, and where it stands.
struct Schlüssel {
  double Wert;
  std::uint64_t Anfang;  // first characters, in the order of texts
  int Zeile;
};

std::uint64_t AnfangVon(std::string_view Nummer) {
  std::uint64_t Anfang = 0;
  for (std::size_t i = 0; i < sizeof Anfang; ++i)
    Anfang = Anfang << 8U | (i < Nummer.size() ? static_cast<unsigned char>(Nummer[i]) : 0U);
  return Anfang;
}

class Quicksort {
 public:
  Quicksort(std::span<std::string> Liste, std::span<const double> Werte, std::span<const int> MitKomma)
      : Nummern(Liste), Kommas(MitKomma.size()) {
    S.reserve(Liste.size());
    for (std::size_t i = 0; i < Liste.size(); ++i)
      S.push_back({Werte[i], AnfangVon(Liste[i]), static_cast<int>(i)});
    if (Kommas > 0) HatKomma.resize(Liste.size());
    for (const int Zeile : MitKomma) HatKomma[Reihe(Zeile)] = 1;
  }

  void Laufen() {
    int lo = 0, hi = static_cast<int>(S.size()) - 1;
    // The two parts know nothing of each other: with the smaller one first the stack stays below log2(n) + 2.
    std::array<std::pair<int, int>, 32> Stapel;
    std::size_t Tiefe = 0;
    for (;;) {
      const auto [i, j] = Teilen(lo, hi);
      const std::pair Links{lo, j}, Rechts{i, hi};
      const bool LinksZuerst = j - lo < hi - i;
      const auto [Kleines, Großes] = LinksZuerst ? std::pair{Links, Rechts} : std::pair{Rechts, Links};
      if (Großes.first < Großes.second) Stapel[Tiefe++] = Großes;
      if (Kleines.first < Kleines.second) Stapel[Tiefe++] = Kleines;
      if (Tiefe == 0) return;
      std::tie(lo, hi) = Stapel[--Tiefe];
    }
  }

  void FolgeGeben(std::vector<int>& Folge) const {
    std::transform(S.begin(), S.end(), Folge.begin(), [](const Schlüssel& s) { return s.Zeile; });
  }

 private:
  std::pair<int, int> Teilen(int lo, int hi) {
    const int Mitte = (lo + hi) / 2;
    Punktieren(Mitte);
    const Schlüssel P = S[Reihe(Mitte)];
    if (P.Wert != 0) {
      for (int k = lo; Kommas > 0 && k <= hi; ++k) Punktieren(k);
      return Tauschlauf(
          lo, hi, [P](const Schlüssel& s) { return s.Wert < P.Wert; },
          [P](const Schlüssel& s) { return s.Wert > P.Wert; });
    }
    const std::string& Pivot = Nummern[Reihe(P.Zeile)];
    const auto Vergleich = [&](const Schlüssel& s) { return Nummern[Reihe(s.Zeile)].compare(Pivot); };
    return Tauschlauf(
        lo, hi,
        [&](const Schlüssel& s) { return s.Anfang < P.Anfang || (s.Anfang == P.Anfang && Vergleich(s) < 0); },
        [&](const Schlüssel& s) {
          return s.Anfang > P.Anfang || (s.Anfang == P.Anfang && Vergleich(s) > 0);
        });
  }

  template <typename Test1, typename Test2>
  std::pair<int, int> Tauschlauf(int lo, int hi, Test1 Vor, Test2 Nach) {
    Schlüssel *i = &S[Reihe(lo)], *j = &S[Reihe(hi)];
    do {
      while (Vor(*i)) ++i;
      while (Nach(*j)) --j;
      if (i <= j) std::swap(*i++, *j--);
    } while (i <= j);
    return {static_cast<int>(i - S.data()), static_cast<int>(j - S.data())};
  }

  // Where a "," became a ".", the text has another beginning.
  void Punktieren(int k) {
    Schlüssel& s = S[Reihe(k)];
    if (Kommas == 0 || std::exchange(HatKomma[Reihe(s.Zeile)], 0) == 0) return;
    --Kommas;
    ZeichenErsetzen(Nummern[Reihe(s.Zeile)], ',', '.');
    s.Anfang = AnfangVon(Nummern[Reihe(s.Zeile)]);
  }

  std::span<std::string> Nummern;
  std::vector<Schlüssel> S;
  std::size_t Kommas;  // numbers that still hold one
  std::vector<char> HatKomma;
};

// Distinct numbers other than 0: every correct sort gives the same rows.
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

std::vector<int> KommaZeilen(std::span<const std::string> Nummern) {
  std::vector<int> Zeilen;
  for (std::size_t i = 0; i < Nummern.size(); ++i) {
    if (Nummern[i].find(',') != std::string::npos) Zeilen.push_back(static_cast<int>(i));
  }
  return Zeilen;
}

bool SortierfolgeErmitteln(std::span<std::string> Nummern, std::span<const double> Werte,
                           std::span<const int> MitKomma, std::vector<int>& Folge) {
  Folge.resize(Nummern.size());
  std::iota(Folge.begin(), Folge.end(), 0);
  if (Folge.empty()) return true;
  if (EineOrdnung(Werte, Folge)) {  // the first pivot has taken the value of all
    for (const int Zeile : MitKomma) ZeichenErsetzen(Nummern[Reihe(Zeile)], ',', '.');
  } else {
    Quicksort Sort(Nummern, Werte, MitKomma);
    Sort.Laufen();
    Sort.FolgeGeben(Folge);
  }
  return std::is_sorted(Folge.begin(), Folge.end());
}

}  // namespace tavorena
