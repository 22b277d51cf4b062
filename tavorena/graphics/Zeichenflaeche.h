#pragma once

#include <string_view>

#include <tavorena/graphics/Elemente.h>

namespace tavorena {

/// A dashed line: its dashes and the gaps between them, from its first end on [twips].
inline constexpr double Strichlänge = 72, Strichlücke = 36;

/// What the view is drawn on: a window, paper, a file, or a list that a test reads. Picture units are twips,
/// 15 to a logical pixel, x to the right and y downwards from the upper left corner.
class Zeichenfläche {
 public:
  virtual ~Zeichenfläche() = default;
  virtual void Linie(double x1, double y1, double x2, double y2, int Farbe, Strich Stil) = 0;
  /// Counter-clockwise from Anfang to Ende, in degrees from the right.
  virtual void Bogen(double x, double y, double Radius, double Anfang, double Ende, int Farbe,
                     Strich Stil) = 0;
  virtual void Scheibe(double x, double y, double Radius, int Farbe) = 0;
  /// The left end of the text's middle line stands at the place. @param[in] Schriftgrad  [points]
  virtual void Text(double x, double y, std::string_view Text, int Schriftgrad, int Farbe) = 0;
  /// What follows is seen only inside, until the next call; from here on everywhere, if it has no width.
  virtual void Begrenzen(double x, double y, double Breite, double Hoehe) = 0;
};

}  // namespace tavorena
