#include <algorithm>
#include <vector>

#include <tavorena/core/Formate.h>
#include <tavorena/core/KorDatei.h>

namespace tavorena {
namespace {

std::vector<Formatzugang>& Tafel() {
  static std::vector<Formatzugang> Alle = {KorZugang(), Lt4Zugang()};
  return Alle;
}

}  // namespace

Punktformat PunktformatVon(Dateiformat Format) {
  switch (Format) {
    case Dateiformat::Kor:
      return Punktformat::Kor;
    case Dateiformat::Edbs:
      return Punktformat::Edbs;
    case Dateiformat::Lt4:
      return Punktformat::Lt4;
  }
  return static_cast<Punktformat>(-1);
}

void FormatAnmelden(const Formatzugang& F) {
  const auto i = std::find_if(Tafel().begin(), Tafel().end(),
                              [&](const Formatzugang& Z) { return Z.Nummer == F.Nummer; });
  if (i != Tafel().end()) {
    *i = F;
  } else {
    Tafel().push_back(F);
  }
}

const Formatzugang* FormatFinden(Punktformat Nummer) {
  const auto i =
      std::find_if(Tafel().begin(), Tafel().end(), [&](const Formatzugang& Z) { return Z.Nummer == Nummer; });
  return i != Tafel().end() ? &*i : nullptr;
}

}  // namespace tavorena
