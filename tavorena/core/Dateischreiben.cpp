#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include <tavorena/core/Deskriptor.h>

// Replacing a file: the new content is safe beside it before the old one goes.

namespace fs = std::filesystem;

namespace tavorena {
namespace {

constexpr std::time_t Tag = 24L * 3600;  // [s]
constexpr std::string_view Zeichen = ".neu~", Eigenes = "XXXXXX";

// What a kill left behind is nobody's any more after a day.
void ResteEntfernen(const fs::path& Ziel) {
  const std::string Vorn = Ziel.filename().string() + std::string(Zeichen);
  std::vector<fs::path> Alte;
  std::error_code Fehler;
  fs::directory_iterator Ordner(Ziel.has_parent_path() ? Ziel.parent_path() : fs::path("."), Fehler);
  for (; !Fehler && Ordner != fs::directory_iterator(); Ordner.increment(Fehler)) {
    const std::string Name = Ordner->path().filename().string();
    struct stat Stand {};
    if (Name.size() == Vorn.size() + Eigenes.size() && Name.starts_with(Vorn) &&
        lstat(Ordner->path().c_str(), &Stand) == 0 && S_ISREG(Stand.st_mode) &&
        std::time(nullptr) - Stand.st_mtim.tv_sec > Tag)
      Alte.push_back(Ordner->path());
  }
  for (const fs::path& Pfad : Alte) fs::remove(Pfad, Fehler);
}

// Rights of the old file, those of a new one where there is none. Where its group can not be kept, ours gets
// no more than everybody.
bool RechteGeben(const Deskriptor& K, const struct stat* Alt) {
  const mode_t Maske = umask(0);
  umask(Maske);
  mode_t Rechte = 0666 & ~Maske;
  if (Alt != nullptr) {
    Rechte = Alt->st_mode & 0777;
    if (fchown(K.Nummer(), Alt->st_uid, Alt->st_gid) < 0 &&
        fchown(K.Nummer(), static_cast<uid_t>(-1), Alt->st_gid) < 0)
      Rechte = (Rechte & 0707) | (Rechte & 0007) << 3U;
  }
  return fchmod(K.Nummer(), Rechte) == 0;
}

// A rename is safe only when the folder entry itself has reached the disk.
void OrdnerAufPlatte(const fs::path& Ordner) {
  const Deskriptor K(open(Ordner.empty() ? "." : Ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (K) fsync(K.Nummer());
}

enum class Überschrieben { Ja, Unberührt, Zerrissen };

// Over the bytes of the old file, so that its other names see them. Space is taken first.
Überschrieben AnOrt(const fs::path& Ziel, const struct stat& Alt, std::string_view Inhalt) {
  struct stat Stand {};
  std::string Grund;
  const Deskriptor K = RegulärÖffnen(Ziel, O_WRONLY, Stand, Grund);
  if (!K) return Überschrieben::Unberührt;
  const auto Größe = static_cast<off_t>(Inhalt.size());
  if (Größe > Alt.st_size) {
    if (const int Fehler = posix_fallocate(K.Nummer(), Alt.st_size, Größe - Alt.st_size); Fehler != 0) {
      static_cast<void>(ftruncate(K.Nummer(), Alt.st_size) == 0);  // it had that length
      errno = Fehler;
      return Überschrieben::Unberührt;
    }
  }
  const bool Gut = Ausschreiben(K, Inhalt) && ftruncate(K.Nummer(), Größe) == 0 && fsync(K.Nummer()) == 0;
  return Gut ? Überschrieben::Ja : Überschrieben::Zerrissen;
}

// The new file, safe on the disk, takes the place of the old one.
bool Einsetzen(const std::string& Neu, const fs::path& Ziel, const struct stat* Alt, std::string_view Inhalt,
               std::string& Grund) {
  if (Alt == nullptr || Alt->st_nlink == 1) {
    if (std::rename(Neu.c_str(), Ziel.c_str()) == 0) return true;
  } else {
    const Überschrieben Wie = AnOrt(Ziel, *Alt, Inhalt);
    if (Wie == Überschrieben::Zerrissen) {  // the only whole version stays
      Grund = Fehlerwort(errno) + ", die neue Fassung ist " + Neu;
      return false;
    }
    if (Wie == Überschrieben::Ja) return unlink(Neu.c_str()) == 0;
  }
  Grund = Fehlerwort(errno);
  unlink(Neu.c_str());
  return false;
}

bool Daneben(std::string& Neu, const struct stat* Alt, std::string_view Inhalt) {
  const Deskriptor K(mkostemp(Neu.data(), O_CLOEXEC));
  if (!K) return false;
  if (RechteGeben(K, Alt) && Ausschreiben(K, Inhalt) && fsync(K.Nummer()) == 0) return true;
  const int Fehler = errno;
  unlink(Neu.c_str());
  errno = Fehler;
  return false;
}

int Ersetzen(const fs::path& Pfad, std::string_view Inhalt, const Dateistand* Solange, std::string& Grund) {
  std::error_code Unklar;
  struct stat Alt {};
  const bool War = stat(Pfad.c_str(), &Alt) == 0;
  Grund = VerweisInsLeere(Pfad)             ? Fehlerwort(ELOOP)
          : War && !Artwort(Alt).empty()    ? Artwort(Alt)
          : War && !Beschreibbar(Pfad, Alt) ? Fehlerwort(EROFS)
                                            : "";
  if (!Grund.empty()) return -1;
  const fs::path Ziel = War ? fs::canonical(Pfad, Unklar) : Pfad;  // the file at the end of the links
  ResteEntfernen(Ziel);
  std::string Neu = Ziel.string() + std::string(Zeichen) + std::string(Eigenes);
  if (Unklar || !Daneben(Neu, War ? &Alt : nullptr, Inhalt)) {
    Grund = Fehlerwort(errno);
    return -1;
  }
  Deskriptor Griff(War ? open(Ziel.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC) : -1);
  Festhalten(Griff);
  if (Solange != nullptr && DateistandVon(Pfad.string()) != *Solange) {
    unlink(Neu.c_str());
    Grund = "inzwischen von anderer Seite geändert";
    return -2;
  }
  if (!Einsetzen(Neu, Ziel, War ? &Alt : nullptr, Inhalt, Grund)) return -1;
  Griff = Deskriptor();
  OrdnerAufPlatte(Ziel.parent_path());
  return 0;
}

}  // namespace

int EigeneDateiAnlegen(std::string& Name) {
  std::string Neu = Name.empty() ? "" : Systempfad(Name).string() + std::string(Eigenes);
  const Deskriptor K(mkostemp(Neu.data(), O_CLOEXEC));
  Name = K ? Neu : "";
  return K ? 0 : -1;
}

int DateiErsetzen(std::string_view Name, std::string_view Inhalt, std::string* Grund,
                  const Dateistand* Solange) {
  std::string Wort;
  const int Ergebnis = Name.empty() ? -1 : Ersetzen(Systempfad(Name), Inhalt, Solange, Wort);
  if (Ergebnis < 0 && Grund != nullptr) *Grund = Wort;
  return Ergebnis;
}

}  // namespace tavorena
