#include <cmath>

#include <tavorena/core/Punkt.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {

std::int16_t PunktartVon(std::string_view Symbol) {
  const double Zahl = std::floor(ZahlAusText(Symbol));
  return std::fabs(Zahl) <= 32767 ? static_cast<std::int16_t>(Zahl) : std::int16_t{0};
}

}  // namespace tavorena
