#pragma once

#include <string>

#include <tavorena/calc/Lage.h>
#include <tavorena/graphics/Elemente.h>

// Drawing free lines and arcs by clicks on points, and deleting them: a small state machine that tells in
// StatusHilfe what it wants.

namespace tavorena {

/// What the next click is taken for.
enum class Zeichenschritt {
  Keiner,
  LinieAnfang,
  LinieEnde,
  PolygonAnfang,
  PolygonWeiter,
  BogenAnfang,
  BogenWeiter,
  BogenEnde,
  Löschen,
};

/// What the commands of drawing can be.
enum class Zeichenbefehl { Linie, Polygon, Bogen, Löschen };

/// The arc from A to E that runs through B.
/// @return 0; -1: they lie on one line or two of them coincide, Bogen is then untouched
[[nodiscard]] int BogenDurchDrei(Lage A, Lage B, Lage E, GrafikBogen& Bogen);

/// Begins a command, in place of the one before.
void GrafDesign(Zeichenbefehl Befehl);

/// The step that waits for a click.
[[nodiscard]] Zeichenschritt GrafDesignSchritt();

/// Shows the prompt of the step, nothing where none waits.
void GrafDesignZeigen();

/// A click while a step waits, at a place in the world [m]. One that hits no point, or nothing to delete,
/// does nothing.
void GrafDesignKlick(double Rechts, double Hoch);

/// Escape: leaves the command and clears the prompt. @return whether there was one
bool GrafDesignVerlassen();

/// What StatusHilfe shows while the mouse is at a place [m]: Rechts and Hoch, while drawing also the length
/// from the last point and, behind a segment, the offset from it.
[[nodiscard]] std::string GrafikOrtstext(double Rechts, double Hoch);

/// Forgets command and points: the file is closed.
void GrafDesignLeeren();

}  // namespace tavorena
