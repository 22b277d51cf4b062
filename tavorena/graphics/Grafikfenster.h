#pragma once

#include <functional>

// The window of the graphics view: which part of the world it shows, and at which scale. World coordinates in
// metres, Rechts = east, Hoch = north; picture units are twips, 15 to a logical pixel, y downwards.

namespace tavorena {

inline constexpr double TwipsJePixel = 15;

/// The part of the world that is shown.
struct Weltfenster {
  double Rechts = 0, Hoch = 0;  ///< its lower left corner
  double Breite = 0, Höhe = 0;
};

/// A part of the world in a rectangle of what is drawn upon: the window, a piece of it, or the map of a page.
struct Bildausschnitt {
  double Rechts = 0, Hoch = 0;   ///< the world at its lower left corner, before it is moved [m]
  double Massstab = 0;           ///< twips per metre
  double Breite = 0, Hoehe = 0;  ///< [twips]
  double Links = 0, Oben = 0;    ///< its upper left corner [twips]
  /// The world moved in it, to the right and downwards [twips]: exactly the same picture elsewhere, which
  /// another corner would not be.
  double SchubX = 0, SchubY = 0;

  [[nodiscard]] double x(double R) const { return Links + SchubX + (R - Rechts) * Massstab; }
  [[nodiscard]] double y(double H) const { return Oben + Hoehe + SchubY - (H - Hoch) * Massstab; }
  [[nodiscard]] double RechtsVon() const { return Rechts - SchubX / Massstab; }
  [[nodiscard]] double HochVon() const { return Hoch + SchubY / Massstab; }
};

/// State of the view. Start value: {}.
struct Grafikzustand {
  bool GrafikOffen = false;              ///< somebody shows the view
  double BildBreite = 0, BildHoehe = 0;  ///< size of the picture [twips]
  double Massstab = 0;                   ///< twips per metre; 0 before the first fit
  double FensterRechts = 0, FensterHoch = 0, FensterBreite = 0, FensterHoehe = 0;
  double BereichRechtsVon = 0, BereichHochVon = 0;  ///< the fitted extent, for the scroll bars
  double BereichRechtsBis = 0, BereichHochBis = 0;
  bool Gemerkt = false;  ///< the window is to come back when the view opens again
};
extern Grafikzustand GrafikFenster;

/// What the window shows, as it stands in its picture.
[[nodiscard]] Bildausschnitt GrafikFensterAusschnitt();

/// Whoever shows the view: its window shows another part of the world, or has another size.
extern std::function<void()> GrafikBeiFenster;

/// Keeps the window for the next time that the view opens.
void GrafikFensterMerken();

/// The view opens with a picture of that size [twips], or its size changes: the corner and the scale stay.
/// The first time, and where nothing was kept, it is fitted to the table.
void GrafikÖffnen(double Breite, double Hoehe);
void GrafikGrößeSetzen(double Breite, double Hoehe);
void GrafikSchließen();

/// Fits the window to the points of the table, with a fifth of the extent around; an axis without an extent
/// gets 20 m. An empty table leaves it as it is.
void GrafikZoomAnpassen();

/// @{
/// Picture to world and back. Without a scale the results stay untouched.
void GrafikWeltAusPixel(double x, double y, double& Rechts, double& Hoch);
void GrafikPixelAusWelt(double Rechts, double Hoch, double& x, double& y);
/// @}

/// Shows what lies between two corners of the picture: the smallest box of the picture's form around them,
/// with the same centre. Equal corners do nothing.
void GrafikAusschnitt(double x1, double y1, double x2, double y2);

/// @{
/// The commands: factor 2 in and out, a sixth of the window to a side. The status help is cleared.
void GrafZoomin();
void GrafZoomout();
void GrafZoomlinks();
void GrafZoomrechts();
void GrafZoomoben();
void GrafZoomunten();
/// @}

/// Scales by a factor; the world point at the place in the picture stays where it is.
void GrafikZoomBei(double x, double y, double Faktor);

/// Moves the picture by twips: what was seen at (x, y) is seen at (x + dx, y + dy).
void GrafikSchieben(double dx, double dy);

/// Shows a part of the world from its lower left corner on; its height follows from the form of the picture.
/// A width that is not above 0 does nothing.
void GrafikFensterSetzen(double Rechts, double Hoch, double Breite);

/// Brings a place into the middle of the window.
void GrafikMitte(double Rechts, double Hoch);

/// Row of the first point in table order whose distance is at most Toleranz [m]; -1 if none. Every row can be
/// found, drawn or not.
[[nodiscard]] int GrafikPunktSuchen(double Rechts, double Hoch, double Toleranz);

/// How far a click may lie from what it means [m]; 0 without a scale.
[[nodiscard]] double GrafikToleranz();

}  // namespace tavorena
