#include <algorithm>
#include <cerrno>

#include <tavorena/core/Deskriptor.h>

namespace tavorena {
namespace {

constexpr std::size_t Größte = std::size_t{1} << 29U;  // [bytes]; no job comes near it

}  // namespace

std::string Fehlerwort(int Fehler) {
  switch (Fehler) {
    case EACCES:
    case EPERM:
      return "kein Zugriff";
    case EROFS:
      return "schreibgeschützt";
    case ENOSPC:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return "Datenträger voll";
    case EFBIG:
      return "zu groß";
    case ENOENT:
    case ENOTDIR:
      return "Ordner nicht vorhanden";
    case EISDIR:
      return "ist ein Ordner";
    case ELOOP:
      return "Verweis ins Leere";
    case ENXIO:
    case ENODEV:
      return "keine gewöhnliche Datei";
    case ENAMETOOLONG:
      return "Name zu lang";
    case EILSEQ:
      return "Name nicht zulässig";
    case EBUSY:
      return "von einem anderen Programm benutzt";
    default:
      return "E/A-Fehler " + std::to_string(Fehler);
  }
}

std::string Artwort(Dateiart Art) {
  if (Art == Dateiart::Ordner) return Fehlerwort(EISDIR);
  return Art == Dateiart::Gewöhnlich ? "" : Fehlerwort(ENXIO);
}

bool Auslesen(const Deskriptor& K, std::string& Inhalt) {
  Dateilage Lage;
  if (!Ansehen(K, Lage)) return false;
  std::size_t Gelesen = 0;
  Inhalt.clear();
  for (;;) {
    // A byte more than the file has: the end shows, and a file that grew meanwhile is read on.
    if (Gelesen == Inhalt.size()) {
      const std::size_t Nötig = std::max<std::size_t>(Lage.Blick.Stand.Länge + 1, Gelesen + Gelesen / 2);
      if (Nötig > Größte) {
        errno = EFBIG;
        return false;
      }
      Inhalt.resize(Nötig);
    }
    const std::int64_t n = Stücklesen(K, Inhalt.data() + Gelesen, Inhalt.size() - Gelesen);
    if (n < 0) return false;
    if (n == 0) break;
    Gelesen += static_cast<std::size_t>(n);
  }
  Inhalt.resize(Gelesen);
  return true;
}

}  // namespace tavorena
