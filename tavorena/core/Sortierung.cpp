#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <numeric>
#include <tuple>
#include <utility>

#include <tavorena/core/Sortierung.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

std::size_t Reihe(int i) { return static_cast<std::size_t>(i); }

// What is compared of a number, and where it stands. Whole numbers of the order of the values: they stay in
// the registers.
struct Schlüssel {
  Schlüssel() = default;
  Schlüssel(const Sortierwert& Wert, int Reihe)
      : Zahl(std::bit_cast<std::int64_t>(Wert.Zahl)), Anfang(Wert.Anfang), Zeile(Reihe) {
    if (Zahl < 0) Zahl = std::numeric_limits<std::int64_t>::min() - Zahl;  // also makes a 0 of -0
  }
  std::int64_t Zahl = 0;
  std::uint64_t Anfang = 0;
  int Zeile = 0;
};

class Quicksort {
 public:
  Quicksort(std::span<std::string> Liste, std::span<const Sortierwert> Werte, std::span<const int> MitKomma)
      : Nummern(Liste), S(Liste.size()), Kommas(MitKomma.size()) {
    for (std::size_t i = 0; i < Werte.size(); ++i) S[i] = Schlüssel(Werte[i], static_cast<int>(i));
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
    if (P.Zahl != 0) {
      for (int k = lo; Kommas > 0 && k <= hi; ++k) Punktieren(k);
      return Tauschlauf(
          lo, hi, [Zahl = P.Zahl](const Schlüssel& s) { return s.Zahl < Zahl; },
          [Zahl = P.Zahl](const Schlüssel& s) { return s.Zahl > Zahl; });
    }
    const auto Text = [this](const Schlüssel& s) { return std::string_view(Nummern[Reihe(s.Zeile)]); };
    return Tauschlauf(
        lo, hi,
        [&](const Schlüssel& s) { return s.Anfang == P.Anfang ? Text(s) < Text(P) : s.Anfang < P.Anfang; },
        [&](const Schlüssel& s) { return s.Anfang == P.Anfang ? Text(s) > Text(P) : s.Anfang > P.Anfang; });
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
    s = Schlüssel(SortierwertVon(Nummern[Reihe(s.Zeile)]), s.Zeile);
  }

  std::span<std::string> Nummern;
  std::vector<Schlüssel> S;
  std::size_t Kommas;  // numbers that still hold one
  std::vector<char> HatKomma;
};

// Distinct numbers other than 0: every correct sort gives the same rows.
bool EineOrdnung(std::span<const Sortierwert> Werte, std::vector<int>& Folge) {
  if (std::any_of(Werte.begin(), Werte.end(), [](const Sortierwert& w) { return w.Zahl == 0; })) return false;
  const auto Kleiner = [&](int a, int b) { return Werte[Reihe(a)].Zahl < Werte[Reihe(b)].Zahl; };
  const auto Vorn = std::is_sorted_until(Folge.begin(), Folge.end(), Kleiner);
  if (Folge.end() - Vorn == 1) {  // one new point behind a sorted table
    std::rotate(std::upper_bound(Folge.begin(), Vorn, *Vorn, Kleiner), Vorn, Folge.end());
  } else if (Vorn != Folge.end()) {
    std::vector<std::pair<double, int>> Paare;  // side by side they are sorted in half the time
    Paare.reserve(Werte.size());
    for (const int i : Folge) Paare.emplace_back(Werte[Reihe(i)].Zahl, i);
    std::sort(Paare.begin(), Paare.end());
    std::transform(Paare.begin(), Paare.end(), Folge.begin(), [](const auto& p) { return p.second; });
  }
  return std::adjacent_find(Folge.begin(), Folge.end(), [&](int a, int b) {
           return Werte[Reihe(a)].Zahl == Werte[Reihe(b)].Zahl;
         }) == Folge.end();
}

}  // namespace

Sortierwert SortierwertVon(std::string_view Nummer) {
  Sortierwert Wert{ZahlAusText(Nummer), 0};
  for (std::size_t i = 0; i < sizeof Wert.Anfang; ++i)
    Wert.Anfang = Wert.Anfang << 8U | (i < Nummer.size() ? static_cast<unsigned char>(Nummer[i]) : 0U);
  return Wert;
}

std::vector<int> KommaZeilen(std::span<const std::string> Nummern) {
  std::vector<int> Zeilen;
  for (std::size_t i = 0; i < Nummern.size(); ++i) {
    if (Nummern[i].find(',') != std::string::npos) Zeilen.push_back(static_cast<int>(i));
  }
  return Zeilen;
}

bool SortierfolgeErmitteln(std::span<std::string> Nummern, std::span<const Sortierwert> Werte,
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
