#include <exception>
#include <new>
#include <stdexcept>
#include <system_error>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/TVDialog.h>

namespace tavorena {
namespace {

Laufzeitfehler Kennzahl(const std::exception& Fehler) {
  if (dynamic_cast<const std::bad_alloc*>(&Fehler) != nullptr ||
      dynamic_cast<const std::length_error*>(&Fehler) != nullptr)
    return Laufzeitfehler::Speicher;
  const auto* System = dynamic_cast<const std::system_error*>(&Fehler);  // those of the file system too
  if (System == nullptr) return Laufzeitfehler::Index;
  return System->code() == std::errc::permission_denied ? Laufzeitfehler::Zugriff
                                                        : Laufzeitfehler::EinAusgabe;
}

}  // namespace

void GeworfenesMelden(const std::string& Ort, const std::string& Vorspann) {
  try {
    throw;
  } catch (const std::exception& Fehler) {
    LaufzeitFehlerMeldung(Kennzahl(Fehler), Ort + " (" + Fehler.what() + ")", Vorspann);
  } catch (...) {
    LaufzeitFehlerMeldung(Laufzeitfehler::Index, Ort, Vorspann);
  }
}

}  // namespace tavorena
