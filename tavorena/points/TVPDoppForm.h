#pragma once

#include <string>

#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena {

/// How the question was answered last, in three letters: "ABB", "ALÖ", "MIT", "ANN", "NLÖ", "NNN", "RÜC".
/// Dialogergebnis is -1 for "ABB", otherwise 0.
extern std::string PDoppErgebnis;

/// The question when a calculated point meets a number that the table holds: shows both points and their
/// differences (old minus new) and takes one of the seven answers. Within a replay an answer may be given for
/// all numbers to come. After "RÜC" a graphics view that is open shows both places before this returns.
Konfliktantwort PunktVorhandenBehandeln(const Konflikt& Frage);

}  // namespace tavorena
