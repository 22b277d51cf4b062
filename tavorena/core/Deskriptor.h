#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tavorena/core/Datei.h>

// What the sources of Datei.h share below: files as the system has them. DeskriptorPosix.cpp and
// DeskriptorWindows.cpp are the two answers to it; nothing above asks which of them it has. Where a function
// fails, errno says why, in the numbers of POSIX on both.

namespace tavorena {

#ifdef _WIN32
using Systemgriff = void*;
inline const Systemgriff KeinGriff = reinterpret_cast<void*>(std::intptr_t{-1});
#else
using Systemgriff = int;
inline constexpr Systemgriff KeinGriff = -1;
#endif

/// An open file, closed with its owner.
class Deskriptor {
 public:
  explicit Deskriptor(Systemgriff Offen = KeinGriff) : Griff(Offen) {}
  Deskriptor(Deskriptor&& Anderer) noexcept : Griff(std::exchange(Anderer.Griff, KeinGriff)) {}
  Deskriptor& operator=(Deskriptor&& Anderer) noexcept {
    std::swap(Griff, Anderer.Griff);
    return *this;
  }
  ~Deskriptor();
  explicit operator bool() const { return Griff != KeinGriff; }
  [[nodiscard]] Systemgriff Nummer() const { return Griff; }

 private:
  Systemgriff Griff;
};

enum class Dateiart { Gewöhnlich, Ordner, Andere };

/// What the system tells of a file.
struct Dateilage {
  Dateiblick Blick;
  Dateiart Art = Dateiart::Gewöhnlich;
  std::uint64_t Namen = 1;               ///< so many lead to it
  std::uint32_t Eigner = 0, Gruppe = 0;  ///< numbers of the owners, where files are given to them by number
};

/// @{
/// @return false: there is none, or the system refused
[[nodiscard]] bool Ansehen(const Deskriptor& K, Dateilage& Lage);
[[nodiscard]] bool Ansehen(const std::filesystem::path& Pfad, Dateilage& Lage);
/// A link itself, which is of the kind Andere, and not what it leads to.
[[nodiscard]] bool AnsehenOhneVerweis(const std::filesystem::path& Pfad, Dateilage& Lage);
/// @}

/// A link without a file at its end, or one that runs in a circle.
[[nodiscard]] bool VerweisInsLeere(const std::filesystem::path& Pfad);
/// The file at the end of the links; empty: the system refused.
[[nodiscard]] std::filesystem::path EndeDerVerweise(const std::filesystem::path& Pfad);
/// Two names of one file, or of one that does not exist yet.
[[nodiscard]] bool SelberOrt(const std::filesystem::path& A, const std::filesystem::path& B);
/// The open file is the one that a name leads to: nobody removed or replaced it.
[[nodiscard]] bool NochDerselbe(const Dateilage& Offen, const std::filesystem::path& Pfad);
/// The user may write there: also root leaves a file alone that nobody has the right to write.
[[nodiscard]] bool Beschreibbar(const std::filesystem::path& Pfad, const Dateilage& Lage);

/// A path as it is shown.
[[nodiscard]] std::string NameVon(const std::filesystem::path& Pfad);
/// What stands in a folder; nothing where it can not be read.
[[nodiscard]] std::vector<std::filesystem::path> EinträgeIm(const std::filesystem::path& Ordner);
/// Makes a folder and those above it. @return true also if it was there
[[nodiscard]] bool OrdnerMachen(const std::filesystem::path& Ordner);

/// Why the system refused, in a few words for the surveyor.
std::string Fehlerwort(int Fehler);

/// The words for what is no regular file; "" for one.
std::string Artwort(Dateiart Art);

enum class Zugriff {
  Lesen,
  Anfügen,  ///< reads too; a new file is made where there is none
  Überschreiben,
};

/// Opens a regular file and nothing else; never waits.
/// @param[out] Grund  why not
/// @return not open: refused
Deskriptor RegulärÖffnen(const std::filesystem::path& Pfad, Zugriff Art, Dateilage& Lage, std::string& Grund);

/// What stands behind the name of a file in that of its next content, before the six characters of
/// EigeneAnlegen.
inline constexpr std::string_view Nachfolger = ".neu~";

/// Makes an empty file that nobody else has: six characters come behind the name.
/// @param[in,out] Pfad  as it was where that fails
Deskriptor EigeneAnlegen(std::filesystem::path& Pfad);

/// The next bytes. @return how many, 0 at the end; -1
[[nodiscard]] std::int64_t Stücklesen(const Deskriptor& K, char* Platz, std::size_t Größe);
/// Reads to the end. @return false: the system refused, or the file is larger than any job, EFBIG
[[nodiscard]] bool Auslesen(const Deskriptor& K, std::string& Inhalt);

/// Writes all at the place of the descriptor.
[[nodiscard]] bool Ausschreiben(const Deskriptor& K, std::string_view Inhalt);
/// Writes all behind the end of a file that was opened for it, wherever that is by now.
[[nodiscard]] bool Anfügen(const Deskriptor& K, std::string_view Inhalt);
/// Gives the file that length [bytes].
[[nodiscard]] bool LängeSetzen(const Deskriptor& K, std::uintmax_t Länge);
/// Takes the space between two lengths of the file.
[[nodiscard]] bool PlatzNehmen(const Deskriptor& K, std::uintmax_t Ab, std::uintmax_t Bis);
[[nodiscard]] bool AufPlatte(const Deskriptor& K);
/// Gives a file the rights of the old one, those of a new file where there is none.
[[nodiscard]] bool RechteGeben(const Deskriptor& K, const Dateilage* Alt);

/// Puts a file under the name of another, which it replaces.
/// @param[in] War  there is one, and only its content is to change
[[nodiscard]] bool Umbenennen(const std::filesystem::path& Neu, const std::filesystem::path& Ziel, bool War);
/// A new name is safe only when it has reached the disk with its folder.
void OrdnerAufPlatte(const std::filesystem::path& Ordner);
[[nodiscard]] bool Entfernen(const std::filesystem::path& Pfad);

/// Whoever replaces or extends a file holds it from his last look at it until he is done. One that is held
/// for longer than a moment is held by another program, for a reason of its own, and nobody waits.
void Festhalten(const Deskriptor& K);
void Loslassen(const Deskriptor& K);

/// A device is ours alone; programs of our own look at nothing else.
[[nodiscard]] bool GerätNehmen(Systemgriff Gerät);

/// A file that is removed is not extended any more.
void AnhangVergessen(const std::filesystem::path& Pfad);

}  // namespace tavorena
