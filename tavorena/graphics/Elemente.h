#pragma once

#include <cstddef>
#include <string>
#include <vector>

// What is drawn beside the points of the table: free lines and arcs of the surveyor, and the marks of the
// worksheets. World coordinates in metres, Rechts = east, Hoch = north; colours are
// blue * 65536 + green * 256 + red.

namespace tavorena {

inline constexpr int FarbeSchwarz = 0, FarbeRot = 255, FarbeBlau = 255 * 65536;

/// How a line is drawn.
enum class Strich { Durchgezogen, Gestrichelt, Breit };

struct GrafikLinie {
  double Rechts1 = 0, Hoch1 = 0, Rechts2 = 0, Hoch2 = 0;
  int Farbe = FarbeSchwarz;
  Strich Stil = Strich::Durchgezogen;
  bool Frei = false;  ///< drawn by the surveyor or read from a file; else the mark of a worksheet
};

/// Counter-clockwise from start to end angle, in degrees from east.
struct GrafikBogen {
  double Rechts = 0, Hoch = 0, Radius = 0, Anfang = 0, Ende = 360;
  int Farbe = FarbeSchwarz;
  bool Frei = false;
  Strich Stil = Strich::Durchgezogen;  ///< or Breit
};

struct GrafikText {
  double Rechts = 0, Hoch = 0;
  std::string Text;
  int Schriftgrad = 8;  ///< [points]
  int Farbe = FarbeSchwarz;
};

/// Sign of a mark that is computed and not stored yet: told without its colour.
inline constexpr const char* ZeichenNeu = "×";

/// A point that a worksheet marks, drawn over those of the table.
struct GrafikMarke {
  std::string Pnr;  ///< "": no number
  double Rechts = 0, Hoch = 0;
  std::string Symbol;  ///< "MARK": a disc; "": a cross; ZeichenNeu
  int Farbe = FarbeRot;
};

/// A store of elements. A handle stays that of its element until it is removed, and may then be given anew.
template <typename Element>
class Elementspeicher {
 public:
  /// @return the handle
  int Hinzu(Element Neu) {
    if (Freie.empty()) {
      Plätze.push_back({std::move(Neu), true});
      return static_cast<int>(Plätze.size()) - 1;
    }
    const int Handle = Freie.back();
    Freie.pop_back();
    Plätze[static_cast<std::size_t>(Handle)] = {std::move(Neu), true};
    return Handle;
  }
  /// The element, nullptr if there is none of that handle.
  [[nodiscard]] const Element* Finde(int Handle) const {
    if (Handle < 0 || static_cast<std::size_t>(Handle) >= Plätze.size()) return nullptr;
    const Platz& P = Plätze[static_cast<std::size_t>(Handle)];
    return P.Belegt ? &P.Inhalt : nullptr;
  }
  /// @return 0; -1: there is none of that handle
  int Weg(int Handle) {
    if (Finde(Handle) == nullptr) return -1;
    Plätze[static_cast<std::size_t>(Handle)] = {};
    Freie.push_back(Handle);
    return 0;
  }
  [[nodiscard]] int Anzahl() const { return static_cast<int>(Plätze.size() - Freie.size()); }
  /// Calls Tun(handle, element) for each, in the order of the handles.
  template <typename Arbeit>
  void Jedes(Arbeit Tun) const {
    for (std::size_t i = 0; i < Plätze.size(); ++i) {
      if (Plätze[i].Belegt) Tun(static_cast<int>(i), Plätze[i].Inhalt);
    }
  }

 private:
  struct Platz {
    Element Inhalt;
    bool Belegt = false;
  };
  std::vector<Platz> Plätze;
  std::vector<int> Freie;
};

}  // namespace tavorena
