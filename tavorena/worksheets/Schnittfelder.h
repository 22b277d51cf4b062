#pragma once

#include <string>

#include <tavorena/calc/Schnitte.h>
#include <tavorena/graphics/Markierung.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/worksheets/Fallblatt.h>

namespace tavorena {

/// The fields of a line that is cut: two points, and how the line is built from them.
struct Geradenfelder {
  /// @param[in] Name  middle of its control names, "G1_"
  Geradenfelder(Fallblatt& Blatt, const std::string& Name, const char* Rahmen);

  Punktfeld &Anf, &End;
  Messfeld& Abstand;
  Punktfeld &PllPunkt, &SenkPunkt;

  /// Digit of the engine's kind: 1 as given, 2 parallel at a distance, 3 parallel through a point, 4
  /// perpendicular through a point; -1: more than one of them is typed.
  [[nodiscard]] int Art() const;
  [[nodiscard]] Schnittgerade Gerade() const;
  [[nodiscard]] Protgerade AlsProtgerade() const;
  [[nodiscard]] Geradeneingabe Eingabe() const;
  void Setzen(const Geradeneingabe& E);
  /// The line as it is built, as long as the one that is given.
  void Zeichnen(Markierung& Bild) const;
};

/// A crossing angle [gon, 0 to 400] as a worksheet shows it, 0 to 100.
[[nodiscard]] double TauGefaltet(double Gon);
/// Text of a crossing angle τ [gon].
[[nodiscard]] std::string Tautext(double Gon);

}  // namespace tavorena
