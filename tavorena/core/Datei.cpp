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

// A path takes its time to be made; a state needs the text alone.
std::string Systemtext(std::string_view Name) {
  const bool Laufwerk = Name.size() > 2 && Name[1] == ':' && (Name[2] == '\\' || Name[2] == '/') &&
                        ((Name[0] >= 'a' && Name[0] <= 'z') || (Name[0] >= 'A' && Name[0] <= 'Z'));
  if (Laufwerk) Name.remove_prefix(2);
  std::string Text(Name);
  std::replace(Text.begin(), Text.end(), '\\', '/');
  return Text;
}

}  // namespace

fs::path Systempfad(std::string_view Name) {
  const std::string Text = Systemtext(Name);
  return fs::path(std::u8string(Text.begin(), Text.end()));
}

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
  return Name.empty() || Pfad.is_absolute() || Fehler ? Name : Ganz.string();
}

bool SelbeDatei(std::string_view A, std::string_view B) {
  if (A.empty() || B.empty()) return false;
  const fs::path PfadA = Systempfad(A), PfadB = Systempfad(B);
  std::error_code Fehler;
  if (fs::equivalent(PfadA, PfadB, Fehler)) return true;
  const fs::path Ganz = fs::weakly_canonical(fs::absolute(PfadA, Fehler), Fehler);
  return !Ganz.empty() && Ganz == fs::weakly_canonical(fs::absolute(PfadB, Fehler), Fehler);
}

bool DateiVorhanden(std::string_view Name) {
  std::error_code Fehler;
  return !Name.empty() && fs::exists(Systempfad(Name), Fehler);
}

bool OrdnerVorhanden(std::string_view Name) {
  std::error_code Fehler;
  return !Name.empty() && fs::is_directory(Systempfad(Name), Fehler);
}

std::vector<std::string> DateienIm(std::string_view Ordner) {
  std::vector<std::string> Namen;
  std::error_code Fehler;
  for (fs::directory_iterator i(Systempfad(Ordner), Fehler), Ende; !Fehler && i != Ende;
       i.increment(Fehler)) {
    std::error_code Art;
    if (i->is_regular_file(Art)) Namen.push_back(i->path().filename().string());
  }
  std::sort(Namen.begin(), Namen.end());
  return Namen;
}

int OrdnerAnlegen(std::string_view Name) {
  std::error_code Fehler;
  if (!Name.empty()) fs::create_directories(Systempfad(Name), Fehler);
  return Fehler ? -1 : 0;
}

int DateiLesen(std::string_view Name, std::string& Inhalt, std::string* Grund) try {
  struct stat Stand {};
  std::string Wort;
  const Deskriptor K = RegulärÖffnen(Systempfad(Name), O_RDONLY, Stand, Wort);
  if (!K) return Gescheitert(Grund, errno == ENOENT || errno == ENOTDIR ? "" : Wort);
  return Auslesen(K, Inhalt) ? 0 : Gescheitert(Grund, Fehlerwort(errno));
} catch (const std::exception&) {  // no memory for it
  return Gescheitert(Grund, Fehlerwort(EFBIG));
}

int DateiStückweise(std::string_view Name, const std::function<bool(std::string_view)>& Nehmen,
                    std::string* Grund) {
  struct stat Stand {};
  std::string Wort;
  const Deskriptor K = RegulärÖffnen(Systempfad(Name), O_RDONLY, Stand, Wort);
  if (!K) return Gescheitert(Grund, errno == ENOENT || errno == ENOTDIR ? "" : Wort);
  std::string Stück(std::size_t{1} << 16U, '\0');
  for (;;) {
    const ssize_t n = read(K.Nummer(), Stück.data(), Stück.size());
    if (n < 0 && errno == EINTR) continue;
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

Dateiblick DateiAnsehen(std::string_view Name) {
  struct stat Stand {};
  return stat(Systemtext(Name).c_str(), &Stand) == 0 ? DateiblickAus(Stand) : Dateiblick{};
}

int DateiLöschen(std::string_view Name) {
  std::error_code Fehler;
  const fs::path Pfad = Systempfad(Name);
  if (fs::is_directory(Pfad, Fehler)) return -1;
  AnhangVergessen(Pfad);
  fs::remove(Pfad, Fehler);
  return Fehler ? -1 : 0;
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
