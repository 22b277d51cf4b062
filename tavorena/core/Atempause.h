#pragma once

#include <tavorena/core/Ports.h>

namespace tavorena {

/// The rhythm in which long work looks at the event queue:
///
///     Atempause Pause(0.5);
///     for (...) {
///       ...
///       if (!Pause.Fällig()) continue;
///       KorAnzahlAnzeigen();
///       AblaufPort().EreignisseAbarbeiten();
///     }
class Atempause {
 public:
  /// @param[in] Sekunden  at least so long from one look to the next
  explicit Atempause(double Sekunden) : Abstand(Sekunden) {}

  /// It is time for a look. The next one counts from the end of this one: a slow redraw costs no more than
  /// its share.
  [[nodiscard]] bool Fällig() {
    const double Jetzt = AblaufPort().Zeitgeber();
    if (Geschaut) Zuletzt = Jetzt;
    Geschaut = Jetzt - Zuletzt >= Abstand;
    return Geschaut;
  }

 private:
  double Abstand;
  double Zuletzt = AblaufPort().Zeitgeber();
  bool Geschaut = false;
};

/// Long work runs while this lives: busy pointer, everything but the stop button locked.
class Beschäftigung {
 public:
  Beschäftigung() { AblaufPort().Beschäftigt(true); }
  ~Beschäftigung() { AblaufPort().Beschäftigt(false); }
  Beschäftigung(const Beschäftigung&) = delete;
  Beschäftigung& operator=(const Beschäftigung&) = delete;
};

}  // namespace tavorena
