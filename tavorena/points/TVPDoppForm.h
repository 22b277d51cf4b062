#pragma once

#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena {

/// The question when a calculated point meets a number that the table holds: shows both points and their
/// differences (old minus new) and takes one of the seven answers.
Konfliktantwort PunktVorhandenBehandeln(const Konflikt& Frage);

}  // namespace tavorena
