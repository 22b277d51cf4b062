#include <algorithm>
#include <cerrno>
#include <vector>

#include <tavorena/core/Deskriptor.h>
#include <tavorena/core/Sammellauf.h>

// Appending: a file that is extended row by row stays open until it is secured.

namespace fs = std::filesystem;

namespace tavorena {
namespace {

enum class Kodierung { Ascii, Utf8, Windows1252 };

Kodierung KodierungVon(std::string_view Inhalt) {
  if (!IstUtf8(Inhalt)) return Kodierung::Windows1252;
  const auto Oben = [](char z) { return (static_cast<unsigned char>(z) & 0x80U) != 0; };
  return std::any_of(Inhalt.begin(), Inhalt.end(), Oben) ? Kodierung::Utf8 : Kodierung::Ascii;
}

// What is known of a file that was extended: while it stands as it was left, it is neither opened nor looked
// through again.
struct Anhangspur {
  std::string Name;
  fs::path Pfad;
  Deskriptor K;  // not open: secured
  Dateiblick Blick;
  Kodierung Art = Kodierung::Ascii;
};
// Never destroyed: a worksheet that is still open at the end of the program appends and removes behind main.
auto& Spuren = *new std::vector<Anhangspur>;
constexpr std::size_t MeisteSpuren =
    16;  // files extended in turn: the protocol, the batch file, a few worksheets

int Sammelläufe = 0;  // that are under way

bool Sichern(Anhangspur& Spur) {
  const bool Gut = !Spur.K || AufPlatte(Spur.K);
  Spur.K = Deskriptor();
  return Gut;
}

Anhangspur& SpurVon(std::string_view Name) {
  const auto Alte =
      std::find_if(Spuren.begin(), Spuren.end(), [&](const Anhangspur& S) { return S.Name == Name; });
  if (Alte != Spuren.end()) {
    std::rotate(Alte, Alte + 1, Spuren.end());  // the one out of use for longest stands in front
    return Spuren.back();
  }
  if (Spuren.size() == MeisteSpuren) {
    static_cast<void>(Sichern(Spuren.front()));  // long out of use, and written
    Spuren.erase(Spuren.begin());
  }
  return Spuren.emplace_back(
      Anhangspur{std::string(Name), Systempfad(Name), Deskriptor(), {}, Kodierung::Ascii});
}

int Öffnen(Anhangspur& Spur, std::string& Grund) {
  if (VerweisInsLeere(Spur.Pfad)) {
    Grund = Fehlerwort(ELOOP);
    return -1;
  }
  Dateilage Lage;
  Deskriptor K = RegulärÖffnen(Spur.Pfad, Zugriff::Anfügen, Lage, Grund);
  if (!K) return -1;
  if (!Beschreibbar(Spur.Pfad, Lage)) {
    Grund = Fehlerwort(EROFS);
    return -1;
  }
  if (Spur.Blick != Lage.Blick) {
    std::string Alt;
    if (!Auslesen(K, Alt)) {
      Grund = Fehlerwort(errno);
      return -1;
    }
    Spur.Art = KodierungVon(Alt);
    Spur.Blick = Lage.Blick;
  }
  Spur.K = std::move(K);
  return 0;
}

// Opens it where that is needed. @return 0 or -1
int Bereitmachen(Anhangspur& Spur, const Dateiblick* Eben, std::string& Grund) {
  Dateilage Lage;
  const auto WieGelassen = [&] {
    if (Eben != nullptr) return *Eben == Spur.Blick;
    return Ansehen(Spur.Pfad, Lage) && Lage.Blick == Spur.Blick;
  };
  return Spur.K && WieGelassen() ? 0 : Öffnen(Spur, Grund);
}

// The same, and holds it: nobody else who asks first extends or replaces it until it is let go.
// @return 0; -1; -2: it is not as in Eben any more
int Ergreifen(Anhangspur& Spur, const Dateiblick& Eben, std::string& Grund) {
  for (int i = 0; i < 100; ++i) {
    if (!Spur.K && Öffnen(Spur, Grund) < 0) return -1;
    Festhalten(Spur.K);
    Dateilage Lage;
    const bool Gilt = Ansehen(Spur.K, Lage) && NochDerselbe(Lage, Spur.Pfad);
    const bool Gemacht = Eben == Dateiblick{} && Lage.Blick.Stand.Länge == 0;
    if (Gilt && Lage.Blick == Spur.Blick && (Spur.Blick == Eben || Gemacht)) return 0;
    Spur.K = Deskriptor();
    if (i > 0 && Gilt) return -2;  // what is opened anew is what the name leads to
  }
  return -2;
}

enum class Umsetzung { Keine, InKodierung };

int Anhängen(Anhangspur& Spur, std::string_view Text, Umsetzung Wie, const Dateiblick* Eben, bool Geteilt,
             std::string& Grund) {
  const int Bereit = Geteilt ? Ergreifen(Spur, *Eben, Grund) : Bereitmachen(Spur, Eben, Grund);
  if (Bereit < 0) return Bereit;
  Dateilage Lage;
  const bool Umsetzen = Wie == Umsetzung::InKodierung && Spur.Art == Kodierung::Windows1252;
  const std::string Bytes = Umsetzen ? NachWindows1252(Text) : std::string(Text);
  if (!Anfügen(Spur.K, Bytes)) {
    Grund = Fehlerwort(errno);
    static_cast<void>(LängeSetzen(Spur.K, Spur.Blick.Stand.Länge));
    return -1;
  }
  if (Ansehen(Spur.K, Lage)) Spur.Blick = Lage.Blick;
  if (Geteilt) Loslassen(Spur.K);
  if (Spur.Art == Kodierung::Ascii) Spur.Art = KodierungVon(Bytes);
  return 0;
}

int AnDatei(std::string_view Name, std::string_view Text, Umsetzung Wie, std::string* Grund,
            Dateistand* Danach, const Dateiblick* Eben, bool Geteilt = false) {
  if (Name.empty()) return -1;
  Anhangspur& Spur = SpurVon(Name);
  std::string Wort;
  const int Ergebnis = Anhängen(Spur, Text, Wie, Eben, Geteilt, Wort);
  if (Ergebnis == 0 && Danach != nullptr) *Danach = Spur.Blick.Stand;
  if (Ergebnis != -1) return Ergebnis;
  Spur = Anhangspur{Spur.Name, Spur.Pfad, Deskriptor(), {}, Kodierung::Ascii};
  if (Grund != nullptr) *Grund = Wort;
  return -1;
}

}  // namespace

int TextAnhängen(std::string_view Name, std::string_view Text, std::string* Grund, Dateistand* Danach,
                 const Dateiblick* Eben) {
  return AnDatei(Name, Text, Umsetzung::InKodierung, Grund, Danach, Eben);
}

int TextAnhängenSolange(std::string_view Name, std::string_view Text, const Dateiblick& Eben,
                        std::string* Grund, Dateistand* Danach) {
  return AnDatei(Name, Text, Umsetzung::InKodierung, Grund, Danach, &Eben, true);
}

int BytesAnhängen(std::string_view Name, std::string_view Bytes, std::string* Grund) {
  return AnDatei(Name, Bytes, Umsetzung::Keine, Grund, nullptr, nullptr);
}

void AnhangVergessen(const fs::path& Pfad) {
  std::erase_if(Spuren, [&](const Anhangspur& S) { return S.Pfad == Pfad; });
}

Sammellauf::Sammellauf() { ++Sammelläufe; }
Sammellauf::~Sammellauf() { --Sammelläufe; }

int AnhängeSichern(std::string* Name) {
  int Ergebnis = 0;
  if (Sammelläufe > 0) return 0;
  for (Anhangspur& Spur : Spuren) {
    if (Sichern(Spur)) continue;
    if (Name != nullptr) *Name = NameVon(Spur.Pfad);
    Ergebnis = -1;
  }
  return Ergebnis;
}

}  // namespace tavorena
