#pragma once

#include <string_view>

#include <tavorena/graphics/Zeichenflaeche.h>

namespace tavorena {

/// Half the size of a point sign [twips].
inline constexpr double Zeichenradius = 60;
/// Radius of the disc of a mark [twips].
inline constexpr double Markenradius = 50;
/// From the middle of a sign to its number, and the room that a character of it takes at most, at 8 points
/// [twips].
inline constexpr double Nummernabstand = 90, Nummernzeichen = 105, Nummernhöhe = 180;

/// How far a number reaches above and below its middle at most, accents included, at 8 points [twips].
inline constexpr double Nummernreichweite = 105;

/// The sign of a symbol, its centre at the place: "MARK" a disc, "2" and "02" a small triangle, "25" and
/// "025" a double circle; other codes by their number modulo 5 a circle, square, triangle, diamond or cross;
/// a code without a number a cross; ZeichenNeu a slanted one.
void PunktzeichenZeichnen(Zeichenfläche& Auf, double x, double y, std::string_view Symbol, int Farbe);

}  // namespace tavorena
