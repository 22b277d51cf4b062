#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace tavorena {

/// Search width that holds all that PunktIstNah takes for near, rounding included [m].
[[nodiscard]] inline double Suchweite(double Grenze) { return std::min(Grenze, 1e300) * (1 + 1e-12) + 1e-8; }

/// Points in square cells four times as wide as the search, so that most searches stay in one cell. The
/// columns stay the caller's and must not change.
class Punktraster {
 public:
  Punktraster(double Suchweite, std::span<const double> Rechts, std::span<const double> Hoch)
      : Weite(Suchweite), Zelle(4 * Suchweite), R(Rechts), H(Hoch) {
    while (Köpfe.size() < 2 * R.size()) Köpfe.resize(2 * Köpfe.size(), -1);
    Nächste.resize(R.size());
    for (std::size_t z = R.size(); z-- > 0;) {  // backwards: each chain is then in their order
      int& Kopf = Köpfe[Fach(Nummer(R[z]), Nummer(H[z]))];
      Nächste[z] = std::exchange(Kopf, static_cast<int>(z));
    }
  }

  /// Hands out each point that may lie within the search of a place once, until Nimm says false.
  template <typename Aufnahme>
  void Umkreis(double Rechts, double Hoch, const Aufnahme& Nimm) const {
    const std::int64_t LinksUnten[] = {Nummer(Rechts - Weite), Nummer(Hoch - Weite)},
                       RechtsOben[] = {Nummer(Rechts + Weite), Nummer(Hoch + Weite)};
    for (std::int64_t r = LinksUnten[0]; r <= RechtsOben[0]; ++r) {
      for (std::int64_t h = LinksUnten[1]; h <= RechtsOben[1]; ++h) {
        for (int i = Köpfe[Fach(r, h)]; i >= 0; i = Nächste[static_cast<std::size_t>(i)]) {
          const auto z = static_cast<std::size_t>(i);
          // Cells may share a drawer.
          if (Nummer(R[z]) == r && Nummer(H[z]) == h && !Nimm(i)) return;
        }
      }
    }
  }

 private:
  // Rises with x, also where it is cut off: points near each other never lie more than a search apart.
  [[nodiscard]] std::int64_t Nummer(double x) const {
    return static_cast<std::int64_t>(std::clamp(std::floor(x / Zelle), -4e18, 4e18));
  }
  [[nodiscard]] std::size_t Fach(std::int64_t r, std::int64_t h) const {
    std::uint64_t Streu = static_cast<std::uint64_t>(r) * 0x9E3779B97F4A7C15U;
    Streu = (Streu ^ (Streu >> 32) ^ static_cast<std::uint64_t>(h)) * 0xD6E8FEB86659FD93U;
    return static_cast<std::size_t>(Streu >> 32) & (Köpfe.size() - 1);
  }

  double Weite, Zelle;
  std::span<const double> R, H;
  std::vector<int> Köpfe = std::vector<int>(64, -1);  // a power of two
  std::vector<int> Nächste;
};

}  // namespace tavorena
