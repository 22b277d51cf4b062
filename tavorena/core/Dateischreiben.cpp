#include <cerrno>
#include <ctime>
#include <vector>

#include <tavorena/core/Deskriptor.h>

// Replacing a file: the new content is safe beside it before the old one goes.

namespace fs = std::filesystem;

namespace tavorena {
namespace {

constexpr std::int64_t Tag = std::int64_t{24} * 3600;  // [s]
constexpr std::size_t Eigenes = 6;                     // characters of EigeneAnlegen

fs::path Nachfolgername(fs::path Pfad) { return Pfad += fs::path(Nachfolger); }

// What a kill left behind is nobody's any more after a day.
void ResteEntfernen(const fs::path& Ziel) {
  const std::string Vorn = NameVon(Nachfolgername(Ziel.filename()));
  for (const fs::path& Pfad : EinträgeIm(Ziel.has_parent_path() ? Ziel.parent_path() : fs::path("."))) {
    const std::string Name = NameVon(Pfad.filename());
    if (Name.size() != Vorn.size() + Eigenes || !Name.starts_with(Vorn)) continue;
    Dateilage Lage;
    if (AnsehenOhneVerweis(Pfad, Lage) && Lage.Art == Dateiart::Gewöhnlich &&
        std::time(nullptr) - Lage.Blick.Stand.Zeit / 1'000'000'000 > Tag)
      static_cast<void>(Entfernen(Pfad));
  }
}

enum class Überschrieben { Ja, Unberührt, Zerrissen };

// Over the bytes of the old file, so that its other names see them. Space is taken first.
Überschrieben AnOrt(const fs::path& Ziel, const Dateilage& Alt, std::string_view Inhalt) {
  Dateilage Lage;
  std::string Grund;
  const Deskriptor K = RegulärÖffnen(Ziel, Zugriff::Überschreiben, Lage, Grund);
  if (!K) return Überschrieben::Unberührt;
  const std::uintmax_t Länge = Alt.Blick.Stand.Länge;
  if (Inhalt.size() > Länge && !PlatzNehmen(K, Länge, Inhalt.size())) {
    const int Fehler = errno;
    static_cast<void>(LängeSetzen(K, Länge));  // it had that length
    errno = Fehler;
    return Überschrieben::Unberührt;
  }
  const bool Gut = Ausschreiben(K, Inhalt) && LängeSetzen(K, Inhalt.size()) && AufPlatte(K);
  return Gut ? Überschrieben::Ja : Überschrieben::Zerrissen;
}

// The new file, safe on the disk, takes the place of the old one.
bool Einsetzen(const fs::path& Neu, const fs::path& Ziel, const Dateilage* Alt, std::string_view Inhalt,
               std::string& Grund) {
  if (Alt == nullptr || Alt->Namen == 1) {
    if (Umbenennen(Neu, Ziel, Alt != nullptr)) return true;
  } else {
    const Überschrieben Wie = AnOrt(Ziel, *Alt, Inhalt);
    if (Wie == Überschrieben::Zerrissen) {  // the only whole version stays
      Grund = Fehlerwort(errno) + ", die neue Fassung ist " + NameVon(Neu);
      return false;
    }
    if (Wie == Überschrieben::Ja) return Entfernen(Neu);
  }
  Grund = Fehlerwort(errno);
  static_cast<void>(Entfernen(Neu));
  return false;
}

bool Daneben(fs::path& Neu, const Dateilage* Alt, std::string_view Inhalt) {
  int Fehler = 0;
  {
    const Deskriptor K = EigeneAnlegen(Neu);
    if (!K) return false;
    if (RechteGeben(K, Alt) && Ausschreiben(K, Inhalt) && AufPlatte(K)) return true;
    Fehler = errno;
  }
  static_cast<void>(Entfernen(Neu));
  errno = Fehler;
  return false;
}

int Ersetzen(const fs::path& Pfad, std::string_view Inhalt, const Dateistand* Solange, std::string& Grund) {
  Dateilage Alt;
  const bool War = Ansehen(Pfad, Alt);
  Grund = VerweisInsLeere(Pfad) ? Fehlerwort(ELOOP) : War ? Artwort(Alt.Art) : "";
  if (Grund.empty() && War && !Beschreibbar(Pfad, Alt)) Grund = Fehlerwort(EROFS);
  if (!Grund.empty()) return -1;
  const fs::path Ziel = War ? EndeDerVerweise(Pfad) : Pfad;
  fs::path Neu = Nachfolgername(Ziel);
  if (!Ziel.empty()) ResteEntfernen(Ziel);
  if (Ziel.empty() || !Daneben(Neu, War ? &Alt : nullptr, Inhalt)) {
    Grund = Fehlerwort(errno);
    return -1;
  }
  std::string Egal;
  Dateilage Jetzt;
  Deskriptor Griff(War ? RegulärÖffnen(Ziel, Zugriff::Lesen, Jetzt, Egal) : Deskriptor());
  Festhalten(Griff);
  Jetzt = {};
  if (Solange != nullptr && (Ansehen(Pfad, Jetzt) ? Jetzt.Blick.Stand : Dateistand{}) != *Solange) {
    static_cast<void>(Entfernen(Neu));
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
  fs::path Neu = Systempfad(Name);
  const Deskriptor K = Name.empty() ? Deskriptor() : EigeneAnlegen(Neu);
  Name = K ? NameVon(Neu) : "";
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
