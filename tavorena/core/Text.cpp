#include <algorithm>

#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena {
namespace {

bool IstFortsetzung(char Zeichen) { return (static_cast<unsigned char>(Zeichen) & 0xC0U) == 0x80U; }

// Byte position of the 0-based character Nummer, or the length of the text.
std::size_t ByteStelle(std::string_view Text, std::size_t Nummer) {
  std::size_t i = 0;
  for (; i < Text.size(); ++i) {
    if (IstFortsetzung(Text[i])) continue;
    if (Nummer == 0) break;
    --Nummer;
  }
  return i;
}

std::size_t Anzahl(int Zahl) { return Zahl > 0 ? static_cast<std::size_t>(Zahl) : 0; }

}  // namespace

std::size_t ZeichenAnzahl(std::string_view Text) {
  return static_cast<std::size_t>(
      std::count_if(Text.begin(), Text.end(), [](char z) { return !IstFortsetzung(z); }));
}

std::string_view TextTeil(std::string_view Text, std::size_t Ab, std::size_t Anzahl) {
  const std::string_view Rest = Text.substr(ByteStelle(Text, Ab));
  return Anzahl >= Rest.size() ? Rest : Rest.substr(0, ByteStelle(Rest, Anzahl));
}

std::string_view TrimmenSicht(std::string_view Text) {
  const auto Rand = [](char z) { return z == ' ' || z == '\t'; };
  while (!Text.empty() && Rand(Text.front())) Text.remove_prefix(1);
  while (!Text.empty() && Rand(Text.back())) Text.remove_suffix(1);
  return Text;
}

std::string_view Nullenlos(std::string_view Text) {
  Text = TrimmenSicht(Text);
  return Text.substr(std::min(Text.find_first_not_of('0'), Text.size()));
}

std::string Trimmen(const Wert& Eingabe) {
  return std::string(TrimmenSicht(Eingabe.IstText() ? Eingabe.Text() : ZahlNachText(Eingabe).Text()));
}

void ZeichenErsetzen(std::string& Text, char Such, char Ersatz) {
  if (Such != Ersatz) std::replace(Text.begin(), Text.end(), Such, Ersatz);
}

std::string FeldLinks(std::string_view Text, int Breite) {
  std::string Feld(TextTeil(Text, 0, Anzahl(Breite)));
  return Feld.append(Anzahl(Breite) - ZeichenAnzahl(Feld), ' ');
}

std::string FeldRechts(std::string_view Text, int Breite) {
  const std::size_t Laenge = ZeichenAnzahl(Text), Soll = Anzahl(Breite);
  return Laenge > Soll ? std::string(TextTeil(Text, Laenge - Soll)) : RechtsBündig(Text, Breite);
}

std::string RechtsBündig(std::string_view Text, int Breite) {
  const std::size_t Laenge = ZeichenAnzahl(Text), Soll = Anzahl(Breite);
  std::string Feld(Soll > Laenge ? Soll - Laenge : 0, ' ');
  return Feld.append(Text);
}

std::string Leerzeichen(int Zahl) { return std::string(Anzahl(Zahl), ' '); }

std::string PfadVerbinden(std::string_view Pfad, std::string_view Name) {
  std::string Ganz(Pfad);
  if (Pfad.empty() || Name.empty()) return Ganz;
  if (Pfad.back() == '\\' && Name.front() == '\\') Ganz.pop_back();
  if (Pfad.back() != '\\' && Name.front() != '\\') Ganz += '\\';
  return Ganz.append(Name);
}

bool IstLeerText(std::string_view Text) { return Text.find_first_not_of(' ') == std::string_view::npos; }

bool IstZahlText(std::string_view Text) {
  return Text.find_first_not_of("0123456789 \t,.+-") == std::string_view::npos;
}

std::string TeilVonRechts(std::string_view Text, int Stelle, int Laenge) {
  const auto L = static_cast<long long>(ZeichenAnzahl(Text));
  const long long Start = L - Stelle + 1;
  if (Start < 1 || Start > L || Laenge < 0) return {};
  return std::string(TextTeil(Text, static_cast<std::size_t>(Start - 1), Anzahl(Laenge)));
}

std::string KuerzenMitPunkten(std::string_view Text, int Breite) {
  if (Breite <= 3 || ZeichenAnzahl(Text) <= Anzahl(Breite)) return std::string(Text);
  return "..." + FeldRechts(Text, Breite - 3);
}

std::string Anzahltext(int Anzahl, std::string_view Eins, std::string_view Viele) {
  return std::to_string(Anzahl) + ' ' + std::string(Anzahl == 1 ? Eins : Viele);
}

int ZeichenKlasse(int Zeichencode) {
  if (Zeichencode >= '0' && Zeichencode <= '9') return 1;
  if (Zeichencode < 32 || Zeichencode == 127 || Zeichencode == '+' || Zeichencode == '-') return -1;
  return 0;
}

std::string Großtext(std::string_view Text) {
  std::string Gross(Text);
  for (std::size_t i = 0; i < Gross.size(); ++i) {
    if (Gross[i] >= 'a' && Gross[i] <= 'z') Gross[i] = static_cast<char>(Gross[i] - 'a' + 'A');
    if (i == 0 || Gross[i - 1] != '\xC3') continue;
    if (Gross[i] == '\xA4' || Gross[i] == '\xB6' || Gross[i] == '\xBC') {  // ä, ö, ü
      Gross[i] = static_cast<char>(static_cast<unsigned char>(Gross[i]) - 0x20U);
    }
  }
  return Gross;
}

std::string Sichtbar(std::string_view Text) {
  std::string Gezeigt;
  Gezeigt.reserve(Text.size());
  for (std::size_t i = 0; i < Text.size(); ++i) {
    const auto z = static_cast<unsigned char>(Text[i]);
    const unsigned Folge = i + 1 < Text.size() ? static_cast<unsigned char>(Text[i + 1]) : 0U;
    if (z < 0x20) {  // U+2400 and on
      Gezeigt += "\xE2\x90";
      Gezeigt += static_cast<char>(0x80U + z);
    } else if (z == 0x7F) {
      Gezeigt += "\xE2\x90\xA1";
    } else if (z == 0xC2 && Folge >= 0x80 && Folge < 0xA0) {  // U+0080 to U+009F have no pictures
      Gezeigt += "\xEF\xBF\xBD";
      ++i;
    } else {
      Gezeigt += Text[i];
    }
  }
  return Gezeigt;
}

std::string Zitat(std::string_view Pnr) {
  constexpr std::size_t Grenze = 40;
  const std::string_view Kurz = TextTeil(Pnr, 0, Grenze);
  return std::string(Kurz) + (Kurz.size() < Pnr.size() ? "…" : "");
}

std::string_view Wortnehmen(std::string_view& Zeile) {
  // Plain loops: tokens are short, and this is where the reading of a large file spends its time.
  const auto IstTrenner = [](char z) { return z == ' ' || z == '\t' || z == '\0'; };
  const char *Ab = Zeile.data(), *const Schluss = Ab + Zeile.size();
  while (Ab != Schluss && IstTrenner(*Ab)) ++Ab;
  const char* Bis = Ab;
  while (Bis != Schluss && !IstTrenner(*Bis) && *Bis != '\r') ++Bis;
  Zeile = {Bis, static_cast<std::size_t>(Schluss - Bis)};
  return {Ab, static_cast<std::size_t>(Bis - Ab)};
}

}  // namespace tavorena
