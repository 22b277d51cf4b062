#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/graphics/Elemente.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Zeichenflaeche.h>

// What the view shows, and how it is drawn. Worksheets mark here what they do, whether somebody looks or not:
// a view that opens later shows it.

namespace tavorena {

/// @{
/// Adds an element. Free lines and free arcs are limited to GrafikFreieGrenze each.
/// @return its handle; -1: there is no room for another free one
int GrafikLinieHinzu(const GrafikLinie& Linie);
int GrafikBogenHinzu(const GrafikBogen& Bogen);
int GrafikTextHinzu(const GrafikText& Text);
int GrafikMarkeHinzu(const GrafikMarke& Marke);
/// @}
inline constexpr int GrafikFreieGrenze = 1001;

/// @{
/// Removes an element; what lay under it is seen again. A handle that is not there does nothing.
void GrafikLinieWeg(int Handle);
void GrafikBogenWeg(int Handle);
void GrafikTextWeg(int Handle);
void GrafikMarkeWeg(int Handle);
/// @}

/// @{
/// The free lines and arcs, in the order of their handles.
[[nodiscard]] std::vector<GrafikLinie> GrafikFreieLinien();
[[nodiscard]] std::vector<GrafikBogen> GrafikFreieBogen();
/// @}

/// Removes the nearest free line or arc within the tolerance [m]. @return 0; -1: there is none
int GrafikFreiesWeg(double Rechts, double Hoch, double Toleranz);

/// Free elements were drawn, read or removed since they were last written or read as a whole.
extern bool GrafikUngesichert;

/// Forgets all elements: the file is closed.
void GrafikLeeren();

/// What a point shows besides its sign. Kept by the view.
struct Grafikwahl {
  bool Nummern = true;
  bool Maßstabsleiste = true;
  bool Freistellen = false;  ///< of numbers that overlap only those of lower rows
};
extern Grafikwahl GrafikWahl;

/// Draws one point: its sign, and its number to the right. One that reaches nowhere into the part of the
/// world that is drawn is passed over.
void GrafikPunktZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In, const std::string& Pnr, double Rechts,
                         double Hoch, const std::string& Symbol, int Farbe);

/// Draws what reaches into a part of the world, in this order: texts, lines, points, arcs, marks. What hangs
/// over its edges is not cut there.
void GrafikZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In);

/// Draws the scale bar at the lower left of a part of the world.
void GrafikLeisteZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In);

/// Draws all that the window shows, the scale bar last, if it is wanted.
void GrafikZeichnen(Zeichenfläche& Auf);

/// Where the drawing changed: a part of the world, and how far signs and numbers reach beyond it [twips].
struct Grafikregion {
  double RechtsVon = 0, HochVon = 0, RechtsBis = 0, HochBis = 0;
  double Rand = 0;        ///< to all sides
  double NachRechts = 0;  ///< to the right
};

/// Has everything drawn anew by whoever shows the view.
void GrafikNeuZeichnen();

/// Whoever shows the view: a region of it is to be drawn anew, without one everything.
extern std::function<void(const std::optional<Grafikregion>& Wo)> GrafikBeiÄnderung;

/// Length of the scale bar [m], 1, 2 or 5 times a power of ten; 0 without a scale.
/// @param[in] Massstab  twips per metre
[[nodiscard]] double GrafikMaßstabslänge(double Massstab);

}  // namespace tavorena
