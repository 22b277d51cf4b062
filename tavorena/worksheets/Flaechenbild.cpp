#include <iterator>
#include <utility>

#include <tavorena/worksheets/Flaechenbild.h>

namespace tavorena {

Flaechenbild::Kante Flaechenbild::Aus(const Flaechengrenze& G, std::size_t i) {
  const Grenzpunkt& P = G.Punkt(i);
  Kante K{P.Pnr, G.Ort(i), G.Ort(G.Danach(i)), {}, 0, false};
  // An arc that can not be built is shown by its chord.
  if (P.Art == Kantenart::Linie || G.Werte().Kanten[i].SehneZuLang) return K;
  K.Mitte = G.Mitte(i);
  K.Radius = P.Radius;
  K.Linksherum = G.Linksherum(i);
  return K;
}

Flaechenbild::Gezeichnet Flaechenbild::Zeichnen(Kante K) {
  Markierung Bild;
  if (K.Radius == 0) {
    Bild.Linie({K.P.RW, K.P.HW, K.Q.RW, K.Q.HW, FarbeRot});
  } else if (K.P == K.Q) {
    Bild.Bogen({K.Mitte.RW, K.Mitte.HW, K.Radius, 0, 360, FarbeRot});
  } else {
    const double p = AzimutGrad(K.Mitte, K.P), q = AzimutGrad(K.Mitte, K.Q);
    Bild.Bogen({K.Mitte.RW, K.Mitte.HW, K.Radius, K.Linksherum ? p : q, K.Linksherum ? q : p, FarbeRot});
  }
  Bild.Punkt({K.Pnr, K.P.RW, K.P.HW, "MARK", FarbeRot});
  return {std::move(K), std::move(Bild)};
}

void Flaechenbild::Zeigen(const Flaechengrenze& G, const std::vector<std::size_t>& Andere) {
  const std::size_t n = G.Anzahl();
  if (std::exchange(Rechtsum, G.Rechtsum()) != Rechtsum || n != Kanten.size()) return Abgleichen(G);
  for (const std::size_t i : Andere) {
    for (const std::size_t k : {i, (i == 0 ? n : i) - 1}) Kanten[k] = Zeichnen(Aus(G, k));
  }
}

// The edges before and behind rows that were inserted or deleted stay as they are.
void Flaechenbild::Abgleichen(const Flaechengrenze& G) {
  const std::size_t n = G.Anzahl(), Alt = Kanten.size();
  std::size_t Vorn = 0, Hinten = 0;
  while (Vorn < n && Vorn < Alt && Kanten[Vorn].Was == Aus(G, Vorn)) ++Vorn;
  while (Vorn + Hinten < n && Vorn + Hinten < Alt && Kanten[Alt - 1 - Hinten].Was == Aus(G, n - 1 - Hinten))
    ++Hinten;
  std::vector<Gezeichnet> Neue;
  for (std::size_t i = Vorn; i < n - Hinten; ++i) Neue.push_back(Zeichnen(Aus(G, i)));
  const auto Stelle = Kanten.erase(Kanten.begin() + static_cast<std::ptrdiff_t>(Vorn),
                                   Kanten.end() - static_cast<std::ptrdiff_t>(Hinten));
  Kanten.insert(Stelle, std::move_iterator(Neue.begin()), std::move_iterator(Neue.end()));
}

}  // namespace tavorena
