#include <array>
#include <cstdio>
#include <cstring>
#include <memory>

#include <tavorena/core/Datei.h>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace tavorena {
namespace {

struct Schließen {
  void operator()(std::FILE* Kanal) const { std::fclose(Kanal); }
};
using Kanal = std::unique_ptr<std::FILE, Schließen>;

Kanal Öffnen(const fs::path& Pfad, const char* Modus) {
  return Kanal(std::fopen(Pfad.string().c_str(), Modus));
}

bool AufPlatte(std::FILE* K) {
#ifdef _WIN32
  return std::fflush(K) == 0 && _commit(_fileno(K)) == 0;
#else
  return std::fflush(K) == 0 && fsync(fileno(K)) == 0;
#endif
}

// A rename is safe only when the folder entry itself has reached the disk.
void OrdnerAufPlatte(const fs::path& Ordner) {
#ifndef _WIN32
  const int K = open(Ordner.empty() ? "." : Ordner.c_str(), O_RDONLY | O_DIRECTORY);
  if (K < 0) return;
  fsync(K);
  close(K);
#else
  static_cast<void>(Ordner);
#endif
}

bool Schreiben(const fs::path& Pfad, std::string_view Inhalt) {
  const Kanal K = Öffnen(Pfad, "wb");
  return K && std::fwrite(Inhalt.data(), 1, Inhalt.size(), K.get()) == Inhalt.size() && AufPlatte(K.get());
}

// The file that a chain of links ends at; the name itself where nothing is there yet.
fs::path Ziel(std::string_view Name) {
  std::error_code Fehler;
  const fs::path Pfad = Systempfad(Name);
  const fs::path Echt = fs::canonical(Pfad, Fehler);
  return Fehler ? Pfad : Echt;
}

enum class Kodierung { Ascii, Utf8, Windows1252 };

Kodierung KodierungVon(std::string_view Inhalt) {
  if (!IstUtf8(Inhalt)) return Kodierung::Windows1252;
  for (const char z : Inhalt) {
    if ((static_cast<unsigned char>(z) & 0x80U) != 0) return Kodierung::Utf8;
  }
  return Kodierung::Ascii;
}

// The coding of the file extended last, so that a long protocol is looked through only once.
struct Anhangspur {
  fs::path Pfad;
  std::uintmax_t Laenge = 0;
  fs::file_time_type Zeit;
  Kodierung Art = Kodierung::Ascii;
};
Anhangspur Spur;

fs::file_time_type Schreibzeit(const fs::path& Pfad) {
  std::error_code Fehler;
  return fs::last_write_time(Pfad, Fehler);
}

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

fs::path Systempfad(std::string_view Name) {
  const bool Laufwerk = Name.size() > 2 && Name[1] == ':' && (Name[2] == '\\' || Name[2] == '/') &&
                        ((Name[0] >= 'a' && Name[0] <= 'z') || (Name[0] >= 'A' && Name[0] <= 'Z'));
#ifndef _WIN32
  if (Laufwerk) Name.remove_prefix(2);
#else
  static_cast<void>(Laufwerk);
#endif
  std::string Text(Name);
  for (char& z : Text) {
    if (z == '\\') z = '/';
  }
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

bool DateiVorhanden(std::string_view Name) {
  std::error_code Fehler;
  return !Name.empty() && fs::exists(Systempfad(Name), Fehler);
}

bool OrdnerVorhanden(std::string_view Name) {
  std::error_code Fehler;
  return !Name.empty() && fs::is_directory(Systempfad(Name), Fehler);
}

int OrdnerAnlegen(std::string_view Name) {
  std::error_code Fehler;
  if (!Name.empty()) fs::create_directories(Systempfad(Name), Fehler);
  return Fehler ? -1 : 0;
}

int DateiLesen(std::string_view Name, std::string& Inhalt) {
  std::error_code Fehler;
  const fs::path Pfad = Systempfad(Name);
  if (!fs::is_regular_file(Pfad, Fehler)) return -1;  // a folder, or a pipe that would wait for ever
  const Kanal K = Öffnen(Pfad, "rb");
  const std::uintmax_t Größe = fs::file_size(Pfad, Fehler);
  if (!K || Fehler) return -1;
  Inhalt.resize(Größe);
  Inhalt.resize(std::fread(Inhalt.data(), 1, Inhalt.size(), K.get()));
  return std::ferror(K.get()) == 0 ? 0 : -1;
}

int TextdateiLesen(std::string_view Name, std::string& Text) {
  if (DateiLesen(Name, Text) < 0) return -1;
  if (!IstUtf8(Text)) {
    Text = AusWindows1252(Text);
  } else if (Text.starts_with("\xEF\xBB\xBF")) {
    Text.erase(0, 3);
  }
  return 0;
}

int DateiErsetzen(std::string_view Name, std::string_view Inhalt) {
  if (Name.empty()) return -1;
  std::error_code Fehler;
  const fs::path Alt = Ziel(Name);
  if (fs::exists(Alt, Fehler) && !fs::is_regular_file(Alt, Fehler)) return -1;
  fs::path Neu = Alt;
  Neu += ".neu~";
  bool Gut = Schreiben(Neu, Inhalt);
  const fs::file_status Status = fs::status(Alt, Fehler);
  if (Gut && fs::exists(Status)) fs::permissions(Neu, Status.permissions(), Fehler);
  if (Gut) {
    fs::rename(Neu, Alt, Fehler);
    Gut = !Fehler;
  }
  if (Gut) {
    OrdnerAufPlatte(Alt.parent_path());
  } else {
    fs::remove(Neu, Fehler);
  }
  return Gut ? 0 : -1;
}

int TextAnhängen(std::string_view Name, std::string_view Text) {
  if (Name.empty()) return -1;
  std::error_code Fehler;
  const fs::path Pfad = Systempfad(Name);
  std::uintmax_t Laenge = fs::file_size(Pfad, Fehler);
  if (Fehler) Laenge = 0;
  if (Pfad != Spur.Pfad || Laenge != Spur.Laenge || Laenge == 0 || Schreibzeit(Pfad) != Spur.Zeit) {
    std::string Alt;
    if (Laenge > 0 && DateiLesen(Name, Alt) < 0) return -1;
    Spur = {Pfad, Laenge, {}, KodierungVon(Alt)};
  }
  const std::string Bytes = Spur.Art == Kodierung::Windows1252 ? NachWindows1252(Text) : std::string(Text);
  Kanal K = Öffnen(Pfad, "ab");
  bool Gut = K && std::fwrite(Bytes.data(), 1, Bytes.size(), K.get()) == Bytes.size();
  Gut = K && std::fclose(K.release()) == 0 && Gut;
  if (!Gut) {
    if (fs::file_size(Pfad, Fehler) > Laenge && !Fehler) fs::resize_file(Pfad, Laenge, Fehler);
    return -1;
  }
  Spur.Laenge = Laenge + Bytes.size();
  Spur.Zeit = Schreibzeit(Pfad);
  if (Spur.Art == Kodierung::Ascii) Spur.Art = KodierungVon(Bytes);
  return 0;
}

Dateistand DateistandVon(std::string_view Name) {
  std::error_code Fehler;
  const fs::path Pfad = Systempfad(Name);
  Dateistand Stand{fs::file_size(Pfad, Fehler), {}};
  if (Fehler) return {};
  Stand.Zeit = Schreibzeit(Pfad);
  return Stand;
}

int DateiLöschen(std::string_view Name) {
  std::error_code Fehler;
  const fs::path Pfad = Systempfad(Name);
  if (fs::is_directory(Pfad, Fehler)) return -1;
  fs::remove(Pfad, Fehler);
  return Fehler ? -1 : 0;
}

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

bool Zeilenleser::Nächste(std::string_view& Zeile) {
  if (Rest.empty()) return false;
  if (!Unix) {
    Zeile = Rest.substr(0, Rest.find('\r'));
    Unix = Zeile.find('\n') != std::string_view::npos;
  }
  if (Unix) Zeile = Rest.substr(0, Rest.find_first_of(std::string_view("\n\r\0", 3)));
  Rest.remove_prefix(Zeile.size());
  if (Rest.starts_with("\r\n")) {
    Rest.remove_prefix(2);
  } else if (!Rest.empty()) {
    Rest.remove_prefix(1);
  }
  return true;
}

}  // namespace tavorena
