#pragma once

#include <string>
#include <utility>
#include <vector>

#include <tavorena/calc/Lage.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {

/// What somebody marked in the graphics view: it goes with this object.
class Markierung {
 public:
  Markierung() = default;
  ~Markierung() { Löschen(); }
  Markierung(Markierung&& Andere) noexcept : Elemente(std::exchange(Andere.Elemente, {})) {}
  Markierung& operator=(Markierung&& Andere) noexcept {
    std::swap(Elemente, Andere.Elemente);
    return *this;
  }

  void Punkt(const GrafikMarke& M) { Merken({Art::Marke, GrafikMarkeHinzu(M)}); }
  void Linie(const GrafikLinie& L) { Merken({Art::Linie, GrafikLinieHinzu(L)}); }
  void Bogen(const GrafikBogen& B) { Merken({Art::Bogen, GrafikBogenHinzu(B)}); }
  /// The line of a row and its point with the number: red when the row is written, else blue, dashed, and the
  /// point a slanted cross without a number.
  void Zeilenlinie(bool Geschrieben, Lage Von, Lage Bis) {
    Linie({Von.RW, Von.HW, Bis.RW, Bis.HW, Geschrieben ? FarbeRot : FarbeBlau,
           Geschrieben ? Strich::Durchgezogen : Strich::Gestrichelt});
  }
  void Zeilenpunkt(bool Geschrieben, const std::string& Pnr, Lage Ort) {
    Punkt({Geschrieben ? Pnr : "", Ort.RW, Ort.HW, Geschrieben ? "" : ZeichenNeu,
           Geschrieben ? FarbeRot : FarbeBlau});
  }
  void Löschen() {
    for (const Stück& S : Elemente) {
      switch (S.Was) {
        case Art::Marke:
          GrafikMarkeWeg(S.Handle);
          break;
        case Art::Linie:
          GrafikLinieWeg(S.Handle);
          break;
        case Art::Bogen:
          GrafikBogenWeg(S.Handle);
          break;
      }
    }
    Elemente.clear();
  }

 private:
  enum class Art { Marke, Linie, Bogen };
  struct Stück {
    Art Was;
    int Handle;
  };
  void Merken(Stück S) {
    if (Elemente.empty()) Elemente.reserve(2);  // a row has a line and a point
    Elemente.push_back(S);
  }
  std::vector<Stück> Elemente;
};

}  // namespace tavorena
