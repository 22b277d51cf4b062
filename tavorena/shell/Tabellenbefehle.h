#pragma once

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/points/Uebernahme.h>

// The commands on the whole table. Each says what it would do and asks once.

namespace tavorena {

/// What these commands did to the table of the open file; = {} when it is closed.
extern Rücknahme TabellenRücknahme;

/// Shifts all points by three typed values, exchanges Rechts and Hoch, or both.
void TabelleTauschen(bool Tauschen, bool MitVersatz);

/// Takes something over from a file that is chosen.
void TabelleÜbernehmen(Übernahme Art);

/// Takes the last of them back.
void TabelleZurücknehmen();

/// Numbers and places are compared with KOR files only. @return false with a message: it is another one
[[nodiscard]] bool IstVergleichsdatei(Übernahme Art, const std::string& Datei);

}  // namespace tavorena
