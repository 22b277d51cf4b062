#include "Fuzzhilfe.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>

namespace fs = std::filesystem;

namespace tavorena::fuzz {
namespace {

class Laufordner {
 public:
  Laufordner() { fs::create_directories(Ort); }
  ~Laufordner() {
    std::error_code Fehler;
    fs::remove_all(Ort, Fehler);
  }
  Laufordner(const Laufordner&) = delete;
  Laufordner& operator=(const Laufordner&) = delete;

  const std::string Ort = fs::temp_directory_path() / ("tavorena-fuzz-" + std::to_string(getpid()));
};

}  // namespace

int Eingabe::Zahl(int Von, int Bis) {
  if (Offen.empty()) return Von;
  const auto Byte = static_cast<unsigned char>(Offen.front());
  Offen.remove_prefix(1);
  return Von + Byte % (Bis - Von + 1);
}

void Prüfen(bool Gilt, const char* Versprechen) {
  if (Gilt) return;
  std::fprintf(stderr, "Befund: %s\n", Versprechen);
  std::abort();
}

const std::string& Ordner() {
  static const Laufordner Lauf;
  return Lauf.Ort;
}

std::string Datei(const char* Name, std::string_view Bytes) {
  const std::string Pfad = Ordner() + "/" + Name;
  std::FILE* Kanal = std::fopen(Pfad.c_str(), "wb");
  Prüfen(Kanal != nullptr, "die Eingabe läßt sich schreiben");
  std::fwrite(Bytes.data(), 1, Bytes.size(), Kanal);
  std::fclose(Kanal);
  return Pfad;
}

std::string Inhalt(const std::string& Name) {
  std::string Bytes;
  Prüfen(DateiLesen(Name, Bytes) == 0, "die Datei ist lesbar");
  return Bytes;
}

void TabellePrüfen() {
  for (int i = 0; i < KorAnzahl; ++i) {
    const std::string_view Pnr = TrimmenSicht(KorPnr(i));
    Prüfen(!Pnr.empty(), "kein Punkt ohne Nummer");
    const int Zeile = KorSuche(Pnr);
    Prüfen(Zeile >= 0 && Zeile <= i && TrimmenSicht(KorPnr(Zeile)) == Pnr, "jede Nummer wird gefunden");
  }
}

}  // namespace tavorena::fuzz
