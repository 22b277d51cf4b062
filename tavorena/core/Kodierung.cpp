#include <array>
#include <cstring>
#include <span>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zeichensatz.h>

namespace tavorena {
namespace {

constexpr std::array<char16_t, 32> Oben1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<char16_t, 128> Oben850 = {
    0x00C7, 0x00FC, 0x00E9, 0x00E2, 0x00E4, 0x00E0, 0x00E5, 0x00E7, 0x00EA, 0x00EB, 0x00E8, 0x00EF, 0x00EE,
    0x00EC, 0x00C4, 0x00C5, 0x00C9, 0x00E6, 0x00C6, 0x00F4, 0x00F6, 0x00F2, 0x00FB, 0x00F9, 0x00FF, 0x00D6,
    0x00DC, 0x00F8, 0x00A3, 0x00D8, 0x00D7, 0x0192, 0x00E1, 0x00ED, 0x00F3, 0x00FA, 0x00F1, 0x00D1, 0x00AA,
    0x00BA, 0x00BF, 0x00AE, 0x00AC, 0x00BD, 0x00BC, 0x00A1, 0x00AB, 0x00BB, 0x2591, 0x2592, 0x2593, 0x2502,
    0x2524, 0x00C1, 0x00C2, 0x00C0, 0x00A9, 0x2563, 0x2551, 0x2557, 0x255D, 0x00A2, 0x00A5, 0x2510, 0x2514,
    0x2534, 0x252C, 0x251C, 0x2500, 0x253C, 0x00E3, 0x00C3, 0x255A, 0x2554, 0x2569, 0x2566, 0x2560, 0x2550,
    0x256C, 0x00A4, 0x00F0, 0x00D0, 0x00CA, 0x00CB, 0x00C8, 0x0131, 0x00CD, 0x00CE, 0x00CF, 0x2518, 0x250C,
    0x2588, 0x2584, 0x00A6, 0x00CC, 0x2580, 0x00D3, 0x00DF, 0x00D4, 0x00D2, 0x00F5, 0x00D5, 0x00B5, 0x00FE,
    0x00DE, 0x00DA, 0x00DB, 0x00D9, 0x00FD, 0x00DD, 0x00AF, 0x00B4, 0x00AD, 0x00B1, 0x2017, 0x00BE, 0x00B6,
    0x00A7, 0x00F7, 0x00B8, 0x00B0, 0x00A8, 0x00B7, 0x00B9, 0x00B3, 0x00B2, 0x25A0, 0x00A0};

// One character of valid UTF-8; i is advanced behind it.
char32_t ZeichenLesen(std::string_view Text, std::size_t& i) {
  const auto Byte = [&] { return static_cast<unsigned char>(Text[i++]); };
  const char32_t Erstes = Byte();
  if (Erstes < 0x80) return Erstes;
  int Folgen = Erstes >= 0xF0 ? 3 : Erstes >= 0xE0 ? 2 : 1;
  char32_t Zeichen = Erstes & (0x3FU >> static_cast<unsigned>(Folgen));
  for (; Folgen > 0 && i < Text.size(); --Folgen) Zeichen = (Zeichen << 6U) | (Byte() & 0x3FU);
  return Zeichen;
}

// Number of continuation bytes and smallest value that a first byte announces; 0 for an invalid one.
int FolgenVon(unsigned char Erstes, char32_t& Kleinstes) {
  const int Folgen = Erstes >= 0xF0 && Erstes <= 0xF4   ? 3
                     : Erstes >= 0xE0 && Erstes <= 0xEF ? 2
                     : Erstes >= 0xC2 && Erstes <= 0xDF ? 1
                                                        : 0;
  Kleinstes = Folgen == 3 ? 0x10000 : Folgen == 2 ? 0x800 : 0x80;
  return Folgen;
}

bool MehrbytezeichenGültig(std::string_view Text, std::size_t& i) {
  char32_t Kleinstes = 0;
  const int Folgen = FolgenVon(static_cast<unsigned char>(Text[i]), Kleinstes);
  if (Folgen == 0 || Text.size() - i <= static_cast<std::size_t>(Folgen)) return false;
  for (std::size_t k = 1; k <= static_cast<std::size_t>(Folgen); ++k) {
    if ((static_cast<unsigned char>(Text[i + k]) & 0xC0U) != 0x80U) return false;
  }
  const char32_t Zeichen = ZeichenLesen(Text, i);
  return Zeichen >= Kleinstes && Zeichen <= 0x10FFFF && (Zeichen < 0xD800 || Zeichen > 0xDFFF);
}

void ZeichenAnfügen(std::string& Text, unsigned Zeichen) {
  if (Zeichen < 0x80) {
    Text += static_cast<char>(Zeichen);
    return;
  }
  if (Zeichen < 0x800) {
    Text += static_cast<char>(0xC0U | (Zeichen >> 6U));
  } else {
    Text += static_cast<char>(0xE0U | (Zeichen >> 12U));
    Text += static_cast<char>(0x80U | ((Zeichen >> 6U) & 0x3FU));
  }
  Text += static_cast<char>(0x80U | (Zeichen & 0x3FU));
}

// The bytes from 0x80 on are looked up in a code page as far as it goes, all others are the characters of the
// same number.
std::string AusSeite(std::string_view Bytes, std::span<const char16_t> Seite) {
  std::string Text;
  Text.reserve(Bytes.size() + Bytes.size() / 8);
  for (const char z : Bytes) {
    const auto b = static_cast<unsigned char>(z);
    ZeichenAnfügen(Text, b >= 0x80U && b - 0x80U < Seite.size() ? Seite[b - 0x80U] : b);
  }
  return Text;
}

// The byte of a character; -1 without a place.
int ByteVon(char32_t Zeichen, std::span<const char16_t> Seite) {
  if (Zeichen < 0x80 || (Zeichen >= 0x80 + Seite.size() && Zeichen <= 0xFF)) return static_cast<int>(Zeichen);
  for (std::size_t k = 0; k < Seite.size(); ++k) {
    if (Seite[k] == Zeichen) return static_cast<int>(0x80U + k);
  }
  return -1;
}

std::string NachSeite(std::string_view Text, std::span<const char16_t> Seite) {
  std::string Bytes;
  Bytes.reserve(Text.size());
  for (std::size_t i = 0; i < Text.size();) {
    const int Byte = ByteVon(ZeichenLesen(Text, i), Seite);
    Bytes += Byte < 0 ? '?' : static_cast<char>(Byte);
  }
  return Bytes;
}

constexpr std::string_view Bom = "\xEF\xBB\xBF";

constexpr struct {
  Zeichensatz Satz;
  const char *Name, *Wort;
} Zeichensätze[] = {{Zeichensatz::Automatisch, "automatisch", "auto"},
                    {Zeichensatz::Utf8, "UTF-8", "utf8"},
                    {Zeichensatz::Utf8MitBom, "UTF-8 mit BOM", "utf8-bom"},
                    {Zeichensatz::Windows1252, "Windows-1252", "1252"},
                    {Zeichensatz::Dos850, "DOS (850)", "850"}};

}  // namespace

bool IstUtf8(std::string_view Text) {
  std::size_t i = 0;
  while (i < Text.size()) {
    std::uint64_t Acht = 0;
    if (Text.size() - i >= sizeof Acht) {
      std::memcpy(&Acht, Text.data() + i, sizeof Acht);
      if ((Acht & 0x8080808080808080U) == 0) {
        i += sizeof Acht;
        continue;
      }
    }
    if ((static_cast<unsigned char>(Text[i]) & 0x80U) == 0) {
      ++i;
    } else if (!MehrbytezeichenGültig(Text, i)) {
      return false;
    }
  }
  return true;
}

std::string AusWindows1252(std::string_view Bytes) { return AusSeite(Bytes, Oben1252); }
std::string NachWindows1252(std::string_view Text) { return NachSeite(Text, Oben1252); }

std::string AusCodepage850(std::string_view Bytes) { return AusSeite(Bytes, Oben850); }
std::string NachCodepage850(std::string_view Text) { return NachSeite(Text, Oben850); }

const char* ZeichensatzName(Zeichensatz Z) { return Zeichensätze[static_cast<std::size_t>(Z)].Name; }

std::vector<std::string> Ausgabezeichensätze() {
  std::vector<std::string> Namen;
  for (const auto& E : Zeichensätze) {
    if (E.Satz != Zeichensatz::Automatisch) Namen.emplace_back(E.Name);
  }
  return Namen;
}

bool ZeichensatzAus(std::string_view Name, Zeichensatz& Z) {
  const std::string Gesucht = Großtext(Name);
  for (const auto& E : Zeichensätze) {
    if (Gesucht != Großtext(E.Name) && Gesucht != Großtext(E.Wort)) continue;
    Z = E.Satz;
    return true;
  }
  return false;
}

std::string NachZeichensatz(std::string_view Text, Zeichensatz Z) {
  if (Z == Zeichensatz::Windows1252) return NachWindows1252(Text);
  if (Z == Zeichensatz::Dos850) return NachCodepage850(Text);
  return std::string(Z == Zeichensatz::Utf8MitBom ? Bom : "").append(Text);
}

std::string_view ZeichenOhnePlatz(std::string_view Text, Zeichensatz Z) {
  if (Z != Zeichensatz::Windows1252 && Z != Zeichensatz::Dos850) return {};
  const std::span<const char16_t> Seite =
      Z == Zeichensatz::Dos850 ? std::span<const char16_t>(Oben850) : Oben1252;
  for (std::size_t i = 0; i < Text.size();) {
    const std::size_t Ab = i;
    if (ByteVon(ZeichenLesen(Text, i), Seite) < 0) return Text.substr(Ab, i - Ab);
  }
  return {};
}

int AusZeichensatz(std::string& Text, Zeichensatz Z, std::string* Grund) {
  const auto Gescheitert = [Grund](const char* Wort) {
    if (Grund != nullptr) *Grund = Wort;
    return -1;
  };
  const bool Acht = Z == Zeichensatz::Windows1252 || Z == Zeichensatz::Dos850;
  if (!Acht && (Text.starts_with("\xFF\xFE") || Text.starts_with("\xFE\xFF")))
    return Gescheitert("ist in UTF-16 geschrieben");
  if (!Acht && IstUtf8(Text)) {
    if (Text.starts_with(Bom)) Text.erase(0, Bom.size());
    return 0;
  }
  if (!Acht && Z != Zeichensatz::Automatisch) return Gescheitert("ist nicht in UTF-8 geschrieben");
  Text = Z == Zeichensatz::Dos850 ? AusCodepage850(Text) : AusWindows1252(Text);
  return 0;
}

}  // namespace tavorena
