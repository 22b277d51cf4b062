#pragma once

#include <QColor>
#include <QPalette>

#include <tavorena/graphics/Zeichenflaeche.h>

class QPainter;

namespace tavorena {

inline constexpr int Auflösung = 96;  ///< units of a painter to an inch, on every device

/// Draws the graphics view with a painter, on a screen, on paper or into a file: 15 twips are a unit of the
/// painter.
class Malfläche final : public Zeichenfläche {
 public:
  /// @param[in] Farben  text and background that the view is seen in; black on white on paper
  Malfläche(QPainter& Mit, const QPalette& Farben);

  void Linie(double x1, double y1, double x2, double y2, int Farbe, Strich Stil) override;
  void Bogen(double x, double y, double Radius, double Anfang, double Ende, int Farbe, Strich Stil) override;
  void Scheibe(double x, double y, double Radius, int Farbe) override;
  void Text(double x, double y, std::string_view Inhalt, int Schriftgrad, int Farbe) override;
  void Begrenzen(double x, double y, double Breite, double Hoehe) override;

 private:
  [[nodiscard]] QColor FarbeVon(int Farbe) const;
  void StiftSetzen(int Farbe, Strich Stil);

  QPainter& Maler;
  QColor Vordergrund, Hintergrund;
  int LetzteFarbe = -1, LetzterGrad = 0;
  double Tiefe = 0;  // of the line of the letters below the middle, in the last font
  Strich LetzterStil = Strich::Durchgezogen;
};

}  // namespace tavorena
