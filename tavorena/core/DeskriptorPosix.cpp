#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <tavorena/core/Deskriptor.h>

namespace fs = std::filesystem;

namespace tavorena {
namespace {

void Übernehmen(const struct stat& Stand, Dateilage& Lage) {
  Lage.Blick = {{static_cast<std::uintmax_t>(Stand.st_size),
                 std::int64_t{Stand.st_mtim.tv_sec} * 1'000'000'000 + Stand.st_mtim.tv_nsec},
                Stand.st_dev,
                Stand.st_ino,
                Stand.st_mode};
  Lage.Art = S_ISDIR(Stand.st_mode)   ? Dateiart::Ordner
             : S_ISREG(Stand.st_mode) ? Dateiart::Gewöhnlich
                                      : Dateiart::Andere;
  Lage.Namen = Stand.st_nlink;
  Lage.Eigner = Stand.st_uid;
  Lage.Gruppe = Stand.st_gid;
}

// A path takes its time to be made; a look needs the text alone.
std::string Systemtext(std::string_view Name) {
  const bool Laufwerk = Name.size() > 2 && Name[1] == ':' && (Name[2] == '\\' || Name[2] == '/') &&
                        ((Name[0] >= 'a' && Name[0] <= 'z') || (Name[0] >= 'A' && Name[0] <= 'Z'));
  if (Laufwerk) Name.remove_prefix(2);
  std::string Text(Name);
  std::replace(Text.begin(), Text.end(), '\\', '/');
  return Text;
}

}  // namespace

fs::path Systempfad(std::string_view Name) { return {Systemtext(Name)}; }

Dateiblick DateiAnsehen(std::string_view Name) {
  struct stat Stand {};
  Dateilage Lage;
  if (stat(Systemtext(Name).c_str(), &Stand) == 0) Übernehmen(Stand, Lage);
  return Lage.Blick;
}

Deskriptor::~Deskriptor() {
  if (Griff >= 0) close(Griff);
}

bool Ansehen(const Deskriptor& K, Dateilage& Lage) {
  struct stat Stand {};
  if (fstat(K.Nummer(), &Stand) < 0) return false;
  Übernehmen(Stand, Lage);
  return true;
}

bool Ansehen(const fs::path& Pfad, Dateilage& Lage) {
  struct stat Stand {};
  if (stat(Pfad.c_str(), &Stand) < 0) return false;
  Übernehmen(Stand, Lage);
  return true;
}

bool AnsehenOhneVerweis(const fs::path& Pfad, Dateilage& Lage) {
  struct stat Stand {};
  if (lstat(Pfad.c_str(), &Stand) < 0) return false;
  Übernehmen(Stand, Lage);
  return true;
}

bool VerweisInsLeere(const fs::path& Pfad) {
  struct stat Stand {};
  return lstat(Pfad.c_str(), &Stand) == 0 && S_ISLNK(Stand.st_mode) && stat(Pfad.c_str(), &Stand) < 0;
}

fs::path EndeDerVerweise(const fs::path& Pfad) {
  std::error_code Fehler;
  fs::path Ende = fs::canonical(Pfad, Fehler);
  if (!Fehler) return Ende;
  errno = Fehler.value();
  return {};
}

bool SelberOrt(const fs::path& A, const fs::path& B) {
  std::error_code Fehler;
  if (fs::equivalent(A, B, Fehler)) return true;
  const fs::path Ganz = fs::weakly_canonical(fs::absolute(A, Fehler), Fehler);
  return !Ganz.empty() && Ganz == fs::weakly_canonical(fs::absolute(B, Fehler), Fehler);
}

bool NochDerselbe(const Dateilage& Offen, const fs::path& /*Pfad*/) { return Offen.Namen > 0; }

bool Beschreibbar(const fs::path& Pfad, const Dateilage& Lage) {
  constexpr mode_t Schreibrechte = S_IWUSR | S_IWGRP | S_IWOTH;
  return (Lage.Blick.Rechte & Schreibrechte) != 0 && faccessat(AT_FDCWD, Pfad.c_str(), W_OK, AT_EACCESS) == 0;
}

std::string NameVon(const fs::path& Pfad) { return Pfad.string(); }

std::vector<fs::path> EinträgeIm(const fs::path& Ordner) {
  std::vector<fs::path> Einträge;
  std::error_code Fehler;
  for (fs::directory_iterator i(Ordner, Fehler), Ende; !Fehler && i != Ende; i.increment(Fehler))
    Einträge.push_back(i->path());
  return Einträge;
}

bool OrdnerMachen(const fs::path& Ordner) {
  std::error_code Fehler;
  fs::create_directories(Ordner, Fehler);
  return !Fehler;
}

Deskriptor RegulärÖffnen(const fs::path& Pfad, Zugriff Art, Dateilage& Lage, std::string& Grund) {
  const int Wie = Art == Zugriff::Lesen     ? O_RDONLY
                  : Art == Zugriff::Anfügen ? O_RDWR | O_APPEND | O_CREAT
                                            : O_WRONLY;
  // A pipe without a reader would be waited for.
  Deskriptor K(open(Pfad.c_str(), Wie | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666));
  if (!K || !Ansehen(K, Lage)) {
    Grund = Fehlerwort(errno);
    return Deskriptor();
  }
  Grund = Artwort(Lage.Art);
  if (Grund.empty()) return K;
  errno = ENXIO;
  return Deskriptor();
}

Deskriptor EigeneAnlegen(fs::path& Pfad) {
  std::string Neu = Pfad.string() + "XXXXXX";
  Deskriptor K(mkostemp(Neu.data(), O_CLOEXEC));
  if (K) Pfad = Neu;
  return K;
}

std::int64_t Stücklesen(const Deskriptor& K, char* Platz, std::size_t Größe) {
  for (;;) {
    const ssize_t n = read(K.Nummer(), Platz, Größe);
    if (n >= 0 || errno != EINTR) return n;
  }
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

bool Anfügen(const Deskriptor& K, std::string_view Inhalt) { return Ausschreiben(K, Inhalt); }

bool LängeSetzen(const Deskriptor& K, std::uintmax_t Länge) {
  return ftruncate(K.Nummer(), static_cast<off_t>(Länge)) == 0;
}

bool PlatzNehmen(const Deskriptor& K, std::uintmax_t Ab, std::uintmax_t Bis) {
  const int Fehler = posix_fallocate(K.Nummer(), static_cast<off_t>(Ab), static_cast<off_t>(Bis - Ab));
  if (Fehler != 0) errno = Fehler;
  return Fehler == 0;
}

bool AufPlatte(const Deskriptor& K) { return fsync(K.Nummer()) == 0; }

// Where its group can not be kept, ours gets no more than everybody.
bool RechteGeben(const Deskriptor& K, const Dateilage* Alt) {
  const mode_t Maske = umask(0);
  umask(Maske);
  mode_t Rechte = 0666 & ~Maske;
  if (Alt != nullptr) {
    Rechte = Alt->Blick.Rechte & 0777;
    if (fchown(K.Nummer(), Alt->Eigner, Alt->Gruppe) < 0 &&
        fchown(K.Nummer(), static_cast<uid_t>(-1), Alt->Gruppe) < 0)
      Rechte = (Rechte & 0707) | (Rechte & 0007) << 3U;
  }
  return fchmod(K.Nummer(), Rechte) == 0;
}

bool Umbenennen(const fs::path& Neu, const fs::path& Ziel, bool /*War*/) {
  return std::rename(Neu.c_str(), Ziel.c_str()) == 0;
}

void OrdnerAufPlatte(const fs::path& Ordner) {
  const Deskriptor K(open(Ordner.empty() ? "." : Ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (K) fsync(K.Nummer());
}

bool Entfernen(const fs::path& Pfad) { return unlink(Pfad.c_str()) == 0; }

void Festhalten(const Deskriptor& K) {
  for (int i = 0; i < 100 && K && flock(K.Nummer(), LOCK_EX | LOCK_NB) < 0 && errno == EWOULDBLOCK; ++i)
    usleep(1000);
}

void Loslassen(const Deskriptor& K) { static_cast<void>(flock(K.Nummer(), LOCK_UN)); }

bool GerätNehmen(Systemgriff Gerät) { return flock(Gerät, LOCK_EX | LOCK_NB) == 0; }

}  // namespace tavorena
