#pragma once

#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/worksheets/Flaechengrenze.h>

namespace tavorena {

/// A boundary in the graphics view: its points as discs with their numbers, its edges as they are built.
class Flaechenbild {
 public:
  /// Draws anew what changed since the last call. @param[in] Andere  points that are other ones, where their
  /// number has stayed
  void Zeigen(const Flaechengrenze& G, const std::vector<std::size_t>& Andere);
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
  [[nodiscard]] static Gezeichnet Zeichnen(Kante K);
  void Abgleichen(const Flaechengrenze& G);

  std::vector<Gezeichnet> Kanten;
  bool Rechtsum = false;  // the sense of the boundary, on which all arcs depend
};

}  // namespace tavorena
