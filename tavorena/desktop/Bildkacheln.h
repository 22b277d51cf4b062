#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include <QPalette>
#include <QPixmap>

#include <tavorena/graphics/Grafikmodul.h>

class QPainter;

namespace tavorena {

/// The picture of the graphics view in square tiles that lie still in the world: a window that moves shows
/// other tiles, a change draws those again that it touches. What is seen is the same as if all were drawn
/// anew, since each tile is drawn by itself and always at the same place.
class Bildkacheln {
 public:
  /// All tiles are to be drawn anew.
  void Veralten() { Kacheln.clear(); }
  /// Those that a region touches. @return where they lie in the window [pixels]
  QRectF Veralten(const Grafikregion& Wo);
  /// The table may have changed: tiles that would look the same stay.
  void Nachsehen();

  /// Draws the window's picture, as far as Bereich needs it, with the tiles that are there.
  /// @param[in] Maler    of a widget, without a transformation
  /// @param[in] Bereich  of the window [pixels]
  /// @param[in] Dichte   pixels of the screen to one of the widget
  void Malen(QPainter& Maler, const QRect& Bereich, double Dichte, const QPalette& Farben);

 private:
  struct Kachel {
    QPixmap Bild;
    std::uint64_t Siegel = 0;  // of what is drawn on it
    bool Fraglich = false;     // to be compared with what would be drawn now
  };
  using Platz = std::pair<int, int>;  // column to the right and row downwards, from the anchor on

  void Einrichten(double NeueDichte, const QPalette& Farben);
  [[nodiscard]] Bildausschnitt Ausschnitt(Platz P) const;
  [[nodiscard]] QPoint Versatz() const;
  const QPixmap& Gezeichnet(Platz P);

  std::map<Platz, Kachel> Kacheln;
  // Upper left corner of tile (0, 0) in the world.
  double AnkerRechts = 0, AnkerHoch = 0, Massstab = 0;
  double Dichte = 0;
  int Kante = 0;  // of a tile [pixels of the screen]
  QPalette Palette;
};

}  // namespace tavorena
