#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tavorena/graphics/Elemente.h>
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

/// Draws one point: its sign, and its number to the right. One that reaches into the window nowhere is passed
/// over.
void GrafikPunktZeichnen(Zeichenfläche& Auf, const std::string& Pnr, double Rechts, double Hoch,
                         const std::string& Symbol, int Farbe);

/// Draws all that the window shows, in this order: texts, lines, points, arcs, marks; the scale bar last.
void GrafikZeichnen(Zeichenfläche& Auf);

/// Has the view drawn anew by whoever shows it.
void GrafikNeuZeichnen();

/// Whoever shows the view: it is to be drawn anew.
extern std::function<void()> GrafikBeiÄnderung;

/// Length of the scale bar [m], 1, 2 or 5 times a power of ten; 0 without a scale.
[[nodiscard]] double GrafikMaßstabslänge();

}  // namespace tavorena
