#pragma once

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/points/Uebernahme.h>

// The commands on the whole table. Each says what it would do and asks once.

namespace tavorena {

/// What these commands did to the table of the open file; = {} when it is closed.
extern Rücknahme TabellenRücknahme;

/// Behind a deed: the entry that takes it back bears its name, the view goes where the points went, and if
/// the deed was done (0), the status help tells the text.
void TabellenBericht(int Ergebnis, const std::string& Text);

/// Shifts all points by three typed values, exchanges Rechts and Hoch, or both.
void TabelleTauschen(bool Tauschen, bool MitVersatz);

/// Takes something over from a file that is chosen.
void TabelleÜbernehmen(Übernahme Art);

/// Takes the last of them back.
void TabelleZurücknehmen();

/// Numbers and places are compared with KOR files only. @return false with a message: it is another one
[[nodiscard]] bool IstVergleichsdatei(Übernahme Art, const std::string& Datei);

}  // namespace tavorena
