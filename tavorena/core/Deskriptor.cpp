#include <algorithm>
#include <cerrno>
#include <sys/file.h>

#include <tavorena/core/Deskriptor.h>

namespace fs = std::filesystem;

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
    case EDQUOT:
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
    default:
      return "E/A-Fehler " + std::to_string(Fehler);
  }
}

std::string Artwort(const struct stat& Stand) {
  if (S_ISDIR(Stand.st_mode)) return Fehlerwort(EISDIR);
  return S_ISREG(Stand.st_mode) ? "" : Fehlerwort(ENXIO);
}

Deskriptor RegulärÖffnen(const fs::path& Pfad, int Art, struct stat& Stand, std::string& Grund) {
  // A pipe without a reader would be waited for.
  Deskriptor K(open(Pfad.c_str(), Art | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666));
  if (!K || fstat(K.Nummer(), &Stand) < 0) {
    Grund = Fehlerwort(errno);
    return Deskriptor();
  }
  Grund = Artwort(Stand);
  if (Grund.empty()) return K;
  errno = ENXIO;
  return Deskriptor();
}

bool Auslesen(const Deskriptor& K, std::string& Inhalt) {
  struct stat Stand {};
  if (fstat(K.Nummer(), &Stand) < 0) return false;
  std::size_t Gelesen = 0;
  Inhalt.clear();
  for (;;) {
    // A byte more than the file has: the end shows, and a file that grew meanwhile is read on.
    if (Gelesen == Inhalt.size()) {
      const std::size_t Nötig = std::max(static_cast<std::size_t>(Stand.st_size) + 1, Gelesen + Gelesen / 2);
      if (Nötig > Größte) {
        errno = EFBIG;
        return false;
      }
      Inhalt.resize(Nötig);
    }
    const ssize_t n = read(K.Nummer(), Inhalt.data() + Gelesen, Inhalt.size() - Gelesen);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    if (n == 0) break;
    Gelesen += static_cast<std::size_t>(n);
  }
  Inhalt.resize(Gelesen);
  return true;
}

bool Ausschreiben(const Deskriptor& K, std::string_view Inhalt) {
  while (!Inhalt.empty()) {
    const ssize_t n = write(K.Nummer(), Inhalt.data(), Inhalt.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    Inhalt.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

bool Beschreibbar(const fs::path& Pfad, const struct stat& Stand) {
  constexpr mode_t Schreibrechte = S_IWUSR | S_IWGRP | S_IWOTH;
  return (Stand.st_mode & Schreibrechte) != 0 && faccessat(AT_FDCWD, Pfad.c_str(), W_OK, AT_EACCESS) == 0;
}

bool VerweisInsLeere(const fs::path& Pfad) {
  struct stat Stand {};
  return lstat(Pfad.c_str(), &Stand) == 0 && S_ISLNK(Stand.st_mode) && stat(Pfad.c_str(), &Stand) < 0;
}

void Festhalten(const Deskriptor& K) {
  for (int i = 0; i < 100 && K && flock(K.Nummer(), LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK; ++i)
    usleep(1000);
}

void Loslassen(const Deskriptor& K) { static_cast<void>(flock(K.Nummer(), LOCK_UN)); }

Dateiblick DateiblickAus(const struct stat& Stand) {
  return {{static_cast<std::uintmax_t>(Stand.st_size),
           std::int64_t{Stand.st_mtim.tv_sec} * 1'000'000'000 + Stand.st_mtim.tv_nsec},
          Stand.st_dev,
          Stand.st_ino,
          Stand.st_mode};
}

}  // namespace tavorena
