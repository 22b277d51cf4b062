#pragma once

#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/worksheets/Flaechengrenze.h>

namespace tavorena {

/// A boundary in the graphics view: its points as discs with their numbers, its edges as they are built.
class Flaechenbild {
 public:
  /// Draws anew what changed since the last call.
  void Zeigen(const Flaechengrenze& G);
  void Löschen() { Kanten.clear(); }

 private:
  struct Kante {
    std::string Pnr;
    Lage P, Q, Mitte;
    double Radius = 0;  // 0: straight
    bool Linksherum = false;
    bool operator==(const Kante&) const = default;
  };
  struct Gezeichnet {
    Kante Was;
    Markierung Bild;
  };
  [[nodiscard]] static Kante Aus(const Flaechengrenze& G, std::size_t i);
  [[nodiscard]] static Markierung Zeichnen(const Kante& K);

  std::vector<Gezeichnet> Kanten;
};

}  // namespace tavorena
