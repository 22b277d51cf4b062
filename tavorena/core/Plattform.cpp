#include <chrono>
#include <ctime>

#include <tavorena/core/Plattform.h>

namespace tavorena {
namespace {

Plattform Still;
Plattform* Gesetzt = nullptr;

}  // namespace

int Plattform::Meldung(const std::string& /*Text*/, Knöpfe /*Art*/, const std::string& /*Titel*/) {
  return KnopfAbbruch;
}

void Plattform::FormularZeigen(Formular& /*Form*/, bool /*Modal*/) {}

std::string Plattform::DateiWählen(Dateiauftrag& /*Auftrag*/) { return {}; }

Zeitpunkt Plattform::Jetzt() {
  const std::time_t Sekunden = std::time(nullptr);
  std::tm t{};
#ifdef _WIN32
  localtime_s(&t, &Sekunden);
#else
  localtime_r(&Sekunden, &t);
#endif
  return {t.tm_year + 1900, t.tm_mon + 1, t.tm_mday, t.tm_hour, t.tm_min};
}

double Plattform::Zeitgeber() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Plattform& Port() { return Gesetzt != nullptr ? *Gesetzt : Still; }

Plattform* PlattformSetzen(Plattform* Neue) {
  Plattform* Alte = Gesetzt;
  Gesetzt = Neue;
  return Alte;
}

}  // namespace tavorena
