#include <cmath>
#include <cstddef>
#include <unordered_map>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/graphics/Nummernwahl.h>
#include <tavorena/graphics/Punktzeichen.h>

namespace tavorena {
namespace {

// A number with its sign [twips], x to the right and y upwards from the origin of the coordinates.
struct Kasten {
  double Links, Unten, Rechts, Oben;
};

bool Schneiden(const Kasten& A, const Kasten& B) {
  return A.Links < B.Rechts && B.Links < A.Rechts && A.Unten < B.Oben && B.Unten < A.Oben;
}

// The boxes taken so far, by the cells that they reach into.
class Belegung {
 public:
  // Takes a box if it is free. @return whether it was
  bool Nehmen(const Kasten& K) {
    const auto Jede = [&](auto Tun) {
      for (std::int64_t x = Zelle(K.Links, Breite); x <= Zelle(K.Rechts, Breite); ++x) {
        for (std::int64_t y = Zelle(K.Unten, Höhe); y <= Zelle(K.Oben, Höhe); ++y)
          Tun(Zellen[x * 1000003 + y]);
      }
    };
    bool Frei = true;
    Jede([&](const std::vector<Kasten>& Andere) {
      for (const Kasten& A : Andere) Frei = Frei && !Schneiden(A, K);
    });
    if (Frei) Jede([&](std::vector<Kasten>& Andere) { Andere.push_back(K); });
    return Frei;
  }

 private:
  static constexpr double Breite = 900, Höhe = 300;
  static std::int64_t Zelle(double Wert, double Größe) {
    return static_cast<std::int64_t>(std::floor(Wert / Größe));
  }
  std::unordered_map<std::int64_t, std::vector<Kasten>> Zellen;
};

}  // namespace

const std::vector<char>& Nummernwahl::Bei(double Massstab) {
  if (Stand == KorStand && Für == Massstab && Frei.size() == static_cast<std::size_t>(KorAnzahl)) return Frei;
  Stand = KorStand;
  Für = Massstab;
  Frei.assign(static_cast<std::size_t>(KorAnzahl), 0);
  Belegung Belegt;
  for (int z = 0; z < KorAnzahl; ++z) {
    const auto i = static_cast<std::size_t>(z);
    const double x = KorRechts[i] * Massstab, y = KorHoch[i] * Massstab;
    if (!(std::fabs(x) < 1e15) || !(std::fabs(y) < 1e15)) continue;
    const double Länge = static_cast<double>(KorPnr(z).size()) * Nummernzeichen;
    Frei[i] = Belegt.Nehmen(
        {x + Nummernabstand, y - Nummernhöhe / 2, x + Nummernabstand + Länge, y + Nummernhöhe / 2});
  }
  return Frei;
}

}  // namespace tavorena
