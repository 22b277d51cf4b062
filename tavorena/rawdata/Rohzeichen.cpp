#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Rohzeichen.h>

namespace tavorena {
namespace {

bool NurAscii(std::string_view Text) {
  std::uint64_t Alle = 0;
  std::size_t i = 0;
  for (; i + sizeof Alle <= Text.size(); i += sizeof Alle) {
    std::uint64_t Acht = 0;
    std::memcpy(&Acht, Text.data() + i, sizeof Acht);
    Alle |= Acht;
  }
  for (; i < Text.size(); ++i) Alle |= static_cast<unsigned char>(Text[i]);
  return (Alle & 0x8080808080808080U) == 0;
}

constexpr bool IstZiffer(char c) { return c >= '0' && c <= '9'; }
constexpr char Groß(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

}  // namespace

// The places of characters are only looked up in lines that need it.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
Zeichenzeile::Zeichenzeile(std::string_view Zeile, bool Utf8)
    : Text(Zeile), Anzahl(Zeile.size()), Ascii(!Utf8 || NurAscii(Zeile)) {
  if (Ascii) return;
  Anzahl = ZeichenAnzahl(Text);
  std::size_t n = 0;
  for (std::size_t i = 0; i < Text.size() && n <= Grenze; ++i) {
    if ((static_cast<unsigned char>(Text[i]) & 0xC0U) != 0x80U || i == 0) Anfang[n++] = i;
  }
  while (n <= Grenze) Anfang[n++] = Text.size();
}

int Wortindex(std::string_view Wort) {
  return Wort.size() == 2 && IstZiffer(Wort[0]) && IstZiffer(Wort[1]) ? (Wort[0] - '0') * 10 + (Wort[1] - '0')
                                                                      : -1;
}

bool GanzesFeld(std::string_view Feld, double& Zahl) {
  constexpr std::size_t MaxZiffern = 18;
  const std::string_view Ganz = TrimmenSicht(Feld);
  const bool Zeichen = Ganz.starts_with('-') || Ganz.starts_with('+');
  const std::string_view Ziffern = Ganz.substr(Zeichen ? 1 : 0);
  // Behind a sign a blank stands in the place of a lost digit: what is left would be ten times too small.
  const bool Abgerissen = !Feld.empty() && (Feld.back() == ' ' || Feld.back() == '\t') && !IstZiffer(Feld[0]);
  bool Gut = !Ziffern.empty() && Ziffern.size() <= MaxZiffern && !Abgerissen;
  std::size_t i = 0;
  while (Gut && i < Ziffern.size() && Ziffern[i] == '0') ++i;  // fields are mostly filled with them
  std::int64_t n = 0;
  for (; Gut && i < Ziffern.size(); ++i) {
    n = n * 10 + (Ziffern[i] - '0');
    Gut = IstZiffer(Ziffern[i]);
  }
  Zahl = Gut ? static_cast<double>(Ganz[0] == '-' ? -n : n) : ZahlAusText(Feld);
  if (!std::isfinite(Zahl)) Zahl = 0;
  return Gut;
}

std::string_view OhneFührendeNullen(std::string_view Text) {
  const std::size_t Ab = Text.find_first_not_of(" \t+0");
  return Ab == std::string_view::npos ? "0" : TrimmenSicht(Text.substr(Ab));
}

bool ZeilenDurchgehen(std::string_view Text, const std::function<void(std::string_view)>& Tun) {
  const Beschäftigung Lang;
  Atempause Pause(0.5);
  bool Gezeigt = false, Weiter = true;
  std::string_view Zeile;
  std::size_t Zähler = 0;
  for (Zeilenleser Leser(Text); Weiter && Leser.Nächste(Zeile);) {
    Tun(Zeile);
    if (++Zähler % 256 != 0 || !Pause.Fällig()) continue;
    const auto Gelesen = static_cast<std::size_t>(Zeile.data() - Text.data());
    StatusHilfeSetzen("Rohdaten gelesen: " + std::to_string(Gelesen / (Text.size() / 100 + 1)) + " %");
    Gezeigt = true;
    AblaufPort().EreignisseAbarbeiten();
    Weiter = std::exchange(KorStop, Laufwunsch::Weiter) != Laufwunsch::Stop;
  }
  if (Gezeigt) StatusHilfeSetzen("");
  return Weiter;
}

bool GleichesWort(std::string_view A, std::string_view B) {
  return A.size() == B.size() &&
         std::equal(A.begin(), A.end(), B.begin(), [](char a, char b) { return Groß(a) == Groß(b); });
}

}  // namespace tavorena
