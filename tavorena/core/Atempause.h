#pragma once

#include <tavorena/core/Ports.h>

namespace tavorena {

/// Tells long work when it is time to look at the event queue.
class Atempause {
 public:
  /// @param[in] Frist  between two looks [s]
  explicit Atempause(double Frist) : Abstand(Frist) {}

  /// @return true once after each Frist
  [[nodiscard]] bool Fällig() {
    const double Jetzt = AblaufPort().Zeitgeber();
    if (Jetzt - Zuletzt < Abstand) return false;
    Zuletzt = Jetzt;
    return true;
  }

 private:
  double Abstand;
  double Zuletzt = AblaufPort().Zeitgeber();
};

}  // namespace tavorena
