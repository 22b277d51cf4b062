#pragma once

#include <optional>
#include <string>

#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena {

/// How the question was answered last, in three letters: "ABB", "ALÖ", "MIT", "ANN", "NLÖ", "NNN", "RÜC".
/// Dialogergebnis is -1 for "ABB", otherwise 0.
extern std::string PDoppErgebnis;

/// The question when a calculated point meets a number that the table holds: shows both points and their
/// differences (old minus new) and takes one of the seven answers. Within a replay or a Punktreihe an answer
/// may be given for all numbers to come. After "RÜC" a graphics view that is open shows both places before
/// this returns.
Konfliktantwort PunktVorhandenBehandeln(const Konflikt& Frage);

/// While one lives, many points are stored in one go: an answer may be given for all of them.
class Punktreihe {
 public:
  Punktreihe();
  ~Punktreihe();
  Punktreihe(const Punktreihe&) = delete;
  Punktreihe& operator=(const Punktreihe&) = delete;

  std::optional<Konfliktwort> FürAlle;  ///< the answer that was given so

 private:
  Punktreihe* const Davor;
};

}  // namespace tavorena
