#include <algorithm>
#include <cerrno>
#include <exception>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Deskriptor.h>
#include <tavorena/core/Zeichensatz.h>

namespace fs = std::filesystem;

namespace tavorena {
namespace {

int Gescheitert(std::string* Grund, std::string Wort) {
  if (Grund != nullptr) *Grund = std::move(Wort);
  return -1;
}

}  // namespace

Dateiname DateinameZerlegen(std::string_view Name) {
  const std::size_t Trenner = Name.find_last_of("/\\");
  const std::size_t Ab = Trenner == std::string_view::npos ? 0 : Trenner + 1;
  const std::string_view Letzter = Name.substr(Ab);
  const std::size_t Punkt = Letzter.find_last_of('.');
  Dateiname Teile{std::string(Name.substr(0, Ab)), std::string(Letzter.substr(0, Punkt)), {}};
  if (Punkt != std::string_view::npos) Teile.Endung = Letzter.substr(Punkt + 1);
  return Teile;
}

std::string GanzerName(const std::string& Name) {
  const fs::path Pfad = Systempfad(Name);
  std::error_code Fehler;
  const fs::path Ganz = fs::absolute(Pfad, Fehler).lexically_normal();
  return Name.empty() || Pfad.is_absolute() || Fehler ? Name : NameVon(Ganz);
}

bool SelbeDatei(std::string_view A, std::string_view B) {
  return !A.empty() && !B.empty() && SelberOrt(Systempfad(A), Systempfad(B));
}

bool DateiVorhanden(std::string_view Name) {
  Dateilage Lage;
  return !Name.empty() && Ansehen(Systempfad(Name), Lage);
}

bool OrdnerVorhanden(std::string_view Name) {
  Dateilage Lage;
  return !Name.empty() && Ansehen(Systempfad(Name), Lage) && Lage.Art == Dateiart::Ordner;
}

std::vector<std::string> DateienIm(std::string_view Ordner) {
  std::vector<std::string> Namen;
  for (const fs::path& Pfad : EinträgeIm(Systempfad(Ordner))) {
    Dateilage Lage;
    if (Ansehen(Pfad, Lage) && Lage.Art == Dateiart::Gewöhnlich) Namen.push_back(NameVon(Pfad.filename()));
  }
  std::sort(Namen.begin(), Namen.end());
  return Namen;
}

int OrdnerAnlegen(std::string_view Name) { return Name.empty() || OrdnerMachen(Systempfad(Name)) ? 0 : -1; }

int DateiLesen(std::string_view Name, std::string& Inhalt, std::string* Grund) try {
  Dateilage Lage;
  std::string Wort;
  const Deskriptor K = RegulärÖffnen(Systempfad(Name), Zugriff::Lesen, Lage, Wort);
  if (!K) return Gescheitert(Grund, errno == ENOENT || errno == ENOTDIR ? "" : Wort);
  return Auslesen(K, Inhalt) ? 0 : Gescheitert(Grund, Fehlerwort(errno));
} catch (const std::exception&) {  // no memory for it
  return Gescheitert(Grund, Fehlerwort(EFBIG));
}

int DateiStückweise(std::string_view Name, const std::function<bool(std::string_view)>& Nehmen,
                    std::string* Grund) {
  Dateilage Lage;
  std::string Wort;
  const Deskriptor K = RegulärÖffnen(Systempfad(Name), Zugriff::Lesen, Lage, Wort);
  if (!K) return Gescheitert(Grund, errno == ENOENT || errno == ENOTDIR ? "" : Wort);
  std::string Stück(std::size_t{1} << 16U, '\0');
  for (;;) {
    const std::int64_t n = Stücklesen(K, Stück.data(), Stück.size());
    if (n < 0) return Gescheitert(Grund, Fehlerwort(errno));
    if (!Nehmen(std::string_view(Stück).substr(0, static_cast<std::size_t>(n))) || n == 0) return 0;
  }
}

int TextdateiLesen(std::string_view Name, std::string& Text, std::string* Grund) try {
  return DateiLesen(Name, Text, Grund) < 0 ? -1 : AusZeichensatz(Text, Zeichensatz::Automatisch, Grund);
} catch (const std::exception&) {
  return Gescheitert(Grund, Fehlerwort(EFBIG));
}

Dateistand DateistandVon(std::string_view Name) { return DateiAnsehen(Name).Stand; }

int DateiLöschen(std::string_view Name) {
  const fs::path Pfad = Systempfad(Name);
  Dateilage Lage;
  if (Ansehen(Pfad, Lage) && Lage.Art == Dateiart::Ordner) return -1;
  AnhangVergessen(Pfad);
  return Entfernen(Pfad) || errno == ENOENT ? 0 : -1;
}

std::size_t Zeilenleser::Nächstes(Zeilenende& Ende) const {
  if (Ende.Stelle == std::string_view::npos || Ende.Stelle < Ab)
    Ende.Stelle = std::min(Text.find(Ende.Zeichen, Ab), Text.size());
  return Ende.Stelle;
}

bool Zeilenleser::Nächste(std::string_view& Zeile) {
  if (AmEnde()) return false;
  Unix = Unix || Nächstes(Lf) < Nächstes(Cr);
  const std::size_t Bis = Unix ? std::min({Nächstes(Lf), Nächstes(Cr), Nächstes(Null)}) : Nächstes(Cr);
  Zeile = Text.substr(Ab, Bis - Ab);
  Ab = Bis + (Text.substr(Bis).starts_with("\r\n") ? 2 : Bis < Text.size() ? 1 : 0);
  return true;
}

}  // namespace tavorena
