#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QString>

class QApplication;

// One calm look in light and dark, the same on every desktop.

namespace tavorena {

enum class Helligkeit { System, Hell, Dunkel };

/// Style, palette and fonts of the program.
void AussehenSetzen(QApplication& App, Helligkeit Wahl);

/// The face of numbers: fixed pitch, so that columns stand.
QFont Zahlenschrift();

/// Width of that many characters [pixels].
int Zeichenbreite(const QFont& Schrift, int Zeichen);

inline constexpr double Lesbar = 4.5;  ///< least contrast of what is to be read

/// Contrast of two colours by their relative luminance, 1 to 21, as it is measured for people with weak
/// sight.
double Kontrast(const QColor& A, const QColor& B);

/// A colour that can be read on its ground: as it is, or as much lighter or darker as it needs.
QColor Abgesetzt(QColor Farbe, const QColor& Grund);

/// The colour of what failed or passes its limit.
QColor Warnfarbe();

/// A tool bar image, drawn in the colours of the palette.
QIcon Symbol(const QString& Name);

/// The icon of the program.
QIcon Programmsymbol();

}  // namespace tavorena
