#include <algorithm>
#include <cmath>
#include <cstddef>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/graphics/Punktindex.h>

namespace tavorena {
namespace {

constexpr int Blattgröße = 32;
// A box is sure to lie inside or outside a circle only by more than what rounding moves a distance.
constexpr double Sicherheit = 1e-8;

std::size_t Stelle(int i) { return static_cast<std::size_t>(i); }

}  // namespace

Punktindex::Knoten Punktindex::NeuerKnoten(int Von, int Bis) const {
  const Ort& Erster = Folge[Stelle(Von)];
  Knoten K{{Erster.Rechts, Erster.Hoch, Erster.Rechts, Erster.Hoch}, Von, Bis, Erster.Zeile};
  for (int i = Von + 1; i < Bis; ++i) {
    const Ort& O = Folge[Stelle(i)];
    K.Rand.RechtsVon = std::min(K.Rand.RechtsVon, O.Rechts);
    K.Rand.RechtsBis = std::max(K.Rand.RechtsBis, O.Rechts);
    K.Rand.HochVon = std::min(K.Rand.HochVon, O.Hoch);
    K.Rand.HochBis = std::max(K.Rand.HochBis, O.Hoch);
    K.ErsteZeile = std::min(K.ErsteZeile, O.Zeile);
  }
  return K;
}

// Halves a node at the middle of its longer side; points on one spot stay together.
void Punktindex::Teilen(std::size_t Nummer) {
  const Knoten K = Baum[Nummer];
  const double Breite = K.Rand.RechtsBis - K.Rand.RechtsVon, Höhe = K.Rand.HochBis - K.Rand.HochVon;
  if (K.Bis - K.Von <= Blattgröße || (Breite == 0 && Höhe == 0)) return;
  const int Mitte = K.Von + (K.Bis - K.Von) / 2;
  const auto Bei = [&](int i) { return Folge.begin() + i; };
  if (Breite >= Höhe) {
    std::nth_element(Bei(K.Von), Bei(Mitte), Bei(K.Bis),
                     [](const Ort& A, const Ort& B) { return A.Rechts < B.Rechts; });
  } else {
    std::nth_element(Bei(K.Von), Bei(Mitte), Bei(K.Bis),
                     [](const Ort& A, const Ort& B) { return A.Hoch < B.Hoch; });
  }
  const std::size_t Links = Baum.size();
  Baum[Nummer].Links = static_cast<int>(Links);
  Baum.push_back(NeuerKnoten(K.Von, Mitte));
  Baum.push_back(NeuerKnoten(Mitte, K.Bis));
  Teilen(Links);
  Teilen(Links + 1);
}

void Punktindex::Nachführen() {
  if (Gebaut && Stand == KorStand) return;
  Stand = KorStand;
  Gebaut = true;
  Folge.clear();
  Baum.clear();
  Folge.reserve(Stelle(KorAnzahl));
  for (int z = 0; z < KorAnzahl; ++z) {
    const double R = KorRechts[Stelle(z)], H = KorHoch[Stelle(z)];
    if (std::isfinite(R) && std::isfinite(H)) Folge.push_back({R, H, z});
  }
  if (Folge.empty()) return;
  Baum.reserve(4 * Folge.size() / Blattgröße + 1);
  Baum.push_back(NeuerKnoten(0, static_cast<int>(Folge.size())));
  Teilen(0);
}

int Punktindex::Erster(double Rechts, double Hoch, double Toleranz) {
  Nachführen();
  if (Baum.empty() || !(Toleranz >= 0)) return -1;
  const double Außen = Toleranz + Sicherheit * (1 + Toleranz), Innen = Toleranz - Sicherheit * (1 + Toleranz);
  int Beste = -1;
  std::vector<int> Offen{0};
  while (!Offen.empty()) {
    const Knoten& K = Baum[Stelle(Offen.back())];
    Offen.pop_back();
    if (Beste >= 0 && K.ErsteZeile > Beste) continue;
    const Kasten& B = K.Rand;
    const double dR = std::max({B.RechtsVon - Rechts, 0.0, Rechts - B.RechtsBis}),
                 dH = std::max({B.HochVon - Hoch, 0.0, Hoch - B.HochBis});
    if (std::hypot(dR, dH) > Außen) continue;
    const double WeitR = std::max(Rechts - B.RechtsVon, B.RechtsBis - Rechts),
                 WeitH = std::max(Hoch - B.HochVon, B.HochBis - Hoch);
    if (std::hypot(WeitR, WeitH) < Innen) {
      Beste = K.ErsteZeile;
    } else if (K.Links >= 0) {
      Offen.push_back(K.Links);
      Offen.push_back(K.Links + 1);
    } else {
      for (int i = K.Von; i < K.Bis; ++i) {
        const Ort& O = Folge[Stelle(i)];
        if ((Beste < 0 || O.Zeile < Beste) && PunktIstNah(Rechts, Hoch, O.Rechts, O.Hoch, Toleranz) != 0)
          Beste = O.Zeile;
      }
    }
  }
  return Beste;
}

void Punktindex::Im(double RechtsVon, double HochVon, double RechtsBis, double HochBis,
                    std::vector<int>& Zeilen) {
  Nachführen();
  Zeilen.clear();
  std::vector<int> Offen;
  if (!Baum.empty()) Offen.push_back(0);
  while (!Offen.empty()) {
    const Knoten& K = Baum[Stelle(Offen.back())];
    Offen.pop_back();
    const Kasten& B = K.Rand;
    if (B.RechtsVon > RechtsBis || B.RechtsBis < RechtsVon || B.HochVon > HochBis || B.HochBis < HochVon)
      continue;
    const bool Ganz =
        B.RechtsVon >= RechtsVon && B.RechtsBis <= RechtsBis && B.HochVon >= HochVon && B.HochBis <= HochBis;
    if (!Ganz && K.Links >= 0) {
      Offen.push_back(K.Links);
      Offen.push_back(K.Links + 1);
      continue;
    }
    for (int i = K.Von; i < K.Bis; ++i) {
      const Ort& O = Folge[Stelle(i)];
      if (Ganz || (O.Rechts >= RechtsVon && O.Rechts <= RechtsBis && O.Hoch >= HochVon && O.Hoch <= HochBis))
        Zeilen.push_back(O.Zeile);
    }
  }
  std::sort(Zeilen.begin(), Zeilen.end());
}

std::size_t Punktindex::Größe() const {
  return Folge.capacity() * sizeof(Ort) + Baum.capacity() * sizeof(Knoten);
}

}  // namespace tavorena
