#pragma once

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include <tavorena/core/Datei.h>

// What the sources of Datei.h share below: opened files of the system.

namespace tavorena {

/// An open file, closed with its owner.
class Deskriptor {
 public:
  explicit Deskriptor(int Offen = -1) : Zahl(Offen) {}
  Deskriptor(Deskriptor&& Anderer) noexcept : Zahl(std::exchange(Anderer.Zahl, -1)) {}
  Deskriptor& operator=(Deskriptor&& Anderer) noexcept {
    std::swap(Zahl, Anderer.Zahl);
    return *this;
  }
  ~Deskriptor() {
    if (Zahl >= 0) close(Zahl);
  }
  explicit operator bool() const { return Zahl >= 0; }
  [[nodiscard]] int Nummer() const { return Zahl; }

 private:
  int Zahl;
};

/// Why the system refused, in a few words for the surveyor.
std::string Fehlerwort(int Fehler);

/// The words for what is no regular file; "" for one.
std::string Artwort(const struct stat& Stand);

/// Opens a regular file and nothing else; never waits, a new one is made where Art holds O_CREAT.
/// @param[out] Grund  why not; errno tells what the system said
/// @return not open: refused
Deskriptor RegulärÖffnen(const std::filesystem::path& Pfad, int Art, struct stat& Stand, std::string& Grund);

/// Reads to the end. @return false: the system refused, or the file is larger than any job, EFBIG
[[nodiscard]] bool Auslesen(const Deskriptor& K, std::string& Inhalt);

/// Writes all at the place of the descriptor. @return false, errno says why
[[nodiscard]] bool Ausschreiben(const Deskriptor& K, std::string_view Inhalt);

/// Whoever replaces or extends a file holds it from his last look at it until he is done. One that is held
/// for longer than a moment is held by another program, for a reason of its own, and nobody waits.
void Festhalten(const Deskriptor& K);
void Loslassen(const Deskriptor& K);

/// The user may write there: also root leaves a file alone that nobody has the right to write.
[[nodiscard]] bool Beschreibbar(const std::filesystem::path& Pfad, const struct stat& Stand);

/// A link without a file at its end, or one that runs in a circle.
[[nodiscard]] bool VerweisInsLeere(const std::filesystem::path& Pfad);

/// A file that is removed is not extended any more.
void AnhangVergessen(const std::filesystem::path& Pfad);

Dateiblick DateiblickAus(const struct stat& Stand);

}  // namespace tavorena
