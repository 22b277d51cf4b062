#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena {

/// The same point, attributes included; both have some.
inline bool SatzGleich(const KorSatz& A, const KorSatz& B) {
  return A.Pnr == B.Pnr && A.Rechts == B.Rechts && A.Hoch == B.Hoch && A.Hoehe == B.Hoehe &&
         A.Symbol == B.Symbol && *A.Info == *B.Info;
}

/// Finds points by all they hold, each once.
class Satzsuche {
 public:
  /// Takes a point in under a number.
  void Aufnehmen(const KorSatz& Satz, int Nummer) { Nummern.emplace(Streuwert(Satz), Nummer); }
  /// @param[in] Von  gives the point of a number @return a number, which is then taken out; -1
  template <typename Quelle>
  int Nehmen(const KorSatz& Satz, const Quelle& Von) {
    const auto [Ab, Bis] = Nummern.equal_range(Streuwert(Satz));
    for (auto i = Ab; i != Bis; ++i) {
      const int Nummer = i->second;
      if (!SatzGleich(Satz, Von(Nummer))) continue;
      Nummern.erase(i);
      return Nummer;
    }
    return -1;
  }
  /// The numbers that were not taken out, rising.
  [[nodiscard]] std::vector<int> Rest() const {
    std::vector<int> Übrige;
    for (const auto& [Wert, Nummer] : Nummern) Übrige.push_back(Nummer);
    std::sort(Übrige.begin(), Übrige.end());
    return Übrige;
  }

 private:
  static std::size_t Streuwert(const KorSatz& S) {
    std::size_t Streu = std::hash<std::string_view>{}(S.Pnr) ^ std::hash<std::string_view>{}(S.Symbol);
    for (const double x : {S.Rechts, S.Hoch, S.Hoehe}) Streu = Streu * 31 + std::hash<double>{}(x);
    return Streu;
  }
  std::unordered_multimap<std::size_t, int> Nummern;
};

}  // namespace tavorena
