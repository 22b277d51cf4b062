#include <array>
#include <cstring>

#include <tavorena/core/Datei.h>

namespace tavorena {
namespace {

constexpr std::array<char16_t, 32> Oben1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

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

std::string AusWindows1252(std::string_view Bytes) {
  std::string Text;
  Text.reserve(Bytes.size() + Bytes.size() / 8);
  for (const char z : Bytes) {
    const auto b = static_cast<unsigned char>(z);
    if (b < 0x80) {
      Text += z;
      continue;
    }
    const unsigned Zeichen = b < 0xA0 ? Oben1252[b - 0x80U] : b;
    if (Zeichen < 0x800) {
      Text += static_cast<char>(0xC0U | (Zeichen >> 6U));
    } else {
      Text += static_cast<char>(0xE0U | (Zeichen >> 12U));
      Text += static_cast<char>(0x80U | ((Zeichen >> 6U) & 0x3FU));
    }
    Text += static_cast<char>(0x80U | (Zeichen & 0x3FU));
  }
  return Text;
}

std::string NachWindows1252(std::string_view Text) {
  std::string Bytes;
  for (std::size_t i = 0; i < Text.size();) {
    const char32_t Zeichen = ZeichenLesen(Text, i);
    if (Zeichen < 0x80 || (Zeichen >= 0xA0 && Zeichen <= 0xFF)) {
      Bytes += static_cast<char>(Zeichen);
      continue;
    }
    char Ersatz = '?';
    for (std::size_t k = 0; k < Oben1252.size(); ++k) {
      if (Oben1252[k] == Zeichen) Ersatz = static_cast<char>(0x80U + k);
    }
    Bytes += Ersatz;
  }
  return Bytes;
}

}  // namespace tavorena
