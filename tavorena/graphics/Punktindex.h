#pragma once

#include <vector>

namespace tavorena {

/// The points of the table by their place: finds those of a window or near a click without a look at all of
/// them. It follows KorStand by itself. Points whose coordinates are not finite stand nowhere.
///
/// A balanced tree over both axes; each node knows the box of its points and the first row among them.
class Punktindex {
 public:
  /// First row in table order whose distance to the place is at most Toleranz [m]; -1 if none.
  [[nodiscard]] int Erster(double Rechts, double Hoch, double Toleranz);

  /// Rows inside the window, its edges included, in table order.
  void Im(double RechtsVon, double HochVon, double RechtsBis, double HochBis, std::vector<int>& Zeilen);

  /// Bytes that it holds.
  [[nodiscard]] std::size_t Größe() const;

 private:
  struct Kasten {
    double RechtsVon, HochVon, RechtsBis, HochBis;
  };
  struct Knoten {
    Kasten Rand;
    int Von, Bis;    // its points in Folge
    int ErsteZeile;  // smallest row among them
    int Links = -1;  // its halves are Links and Links + 1; -1: none
  };
  struct Ort {
    double Rechts, Hoch;
    int Zeile;
  };

  void Nachführen();
  void Teilen(std::size_t Nummer);
  [[nodiscard]] Knoten NeuerKnoten(int Von, int Bis) const;

  std::vector<Ort> Folge;
  std::vector<Knoten> Baum;
  unsigned long long Stand = 0;
  bool Gebaut = false;
};

}  // namespace tavorena
