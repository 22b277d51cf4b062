#include "Messdaten.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <numeric>
#include <random>
#include <unistd.h>

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>

namespace fs = std::filesystem;

namespace tavorena::messung {
namespace {

class Messordner {
 public:
  Messordner() { fs::create_directories(Ort); }
  ~Messordner() {
    std::error_code Fehler;
    fs::remove_all(Ort, Fehler);
  }
  Messordner(const Messordner&) = delete;
  Messordner& operator=(const Messordner&) = delete;

  const fs::path Ort = fs::temp_directory_path() / ("tavorena-messung-" + std::to_string(getpid()));
};

// A message means that something other than the job was measured.
class Meldezähler final : public Rückfragen {
 public:
  Meldezähler() { PortsSetzen({this, nullptr, nullptr, nullptr}); }
  int Meldung(const std::string& /*Text*/, Knöpfe /*Art*/, const std::string& /*Titel*/,
              int /*Vorgabe*/) override {
    ++Anzahl;
    return KnopfAbbruch;
  }
  int Anzahl = 0;
};
Meldezähler Meldungen;

Punktlisten PunkteBilden() {
  constexpr const char* Symbole[] = {"015", "020", "031", "2", ""};
  std::mt19937 Zufall(19700101);
  const auto Meter = [&](unsigned Von, unsigned Bis) {
    return (Von * 1000.0 + static_cast<double>(Zufall() % ((Bis - Von) * 1000))) / 1000;
  };
  Punktlisten P;
  for (std::size_t i = 0; i < Punktzahl; ++i) {
    P.Pnr.push_back(std::to_string(1001 + i));
    P.Rechts.push_back(Meter(3'470'000, 3'490'000));
    P.Hoch.push_back(Meter(5'540'000, 5'560'000));
    P.Hoehe.push_back(Zufall() % 4 == 0 ? 0 : Meter(90, 880));
    P.Symbol.emplace_back(Symbole[Zufall() % std::size(Symbole)]);
  }
  return P;
}

void DateiSchreiben(const std::string& Name, bool Gemischt, const char* Zeilenende) {
  const Punktlisten& P = Punkte();
  std::vector<std::size_t> Reihen(Punktzahl);
  std::iota(Reihen.begin(), Reihen.end(), 0);
  if (Gemischt) std::shuffle(Reihen.begin(), Reihen.end(), std::mt19937(7));
  std::ofstream Datei(Name, std::ios::binary);
  std::string Zeile;
  for (const std::size_t r : Reihen) {
    KorZeileSchreiben(P.Pnr[r], P.Rechts[r], P.Hoch[r], P.Hoehe[r], P.Symbol[r], Zeile);
    Datei << Zeile << Zeilenende;
  }
}

}  // namespace

const Punktlisten& Punkte() {
  static const Punktlisten P = PunkteBilden();
  return P;
}

std::string Messpfad(const char* Name) {
  static const Messordner Ordner;
  return (Ordner.Ort / Name).string();
}

std::string Kordatei(bool Gemischt, const char* Zeilenende) {
  const std::string Art = *Zeilenende == '\n' ? "unix_" : "";
  const std::string Name = Messpfad((Art + (Gemischt ? "gemischt.kor" : "geordnet.kor")).c_str());
  if (!fs::exists(Name)) DateiSchreiben(Name, Gemischt, Zeilenende);
  return Name;
}

void TabelleFüllen() {
  KorLeeren();
  if (KorLesen(Kordatei(false), Lesemodus::Ersetzen, Dateiformat::Kor) == 0 && TabelleIstGanz()) return;
  std::cerr << "Die Messdaten sind nicht lesbar.\n";
  std::exit(2);
}

void ZeileLöschen(int Zeile) {
  if (KorLoeschen(Zeile) == 0) return;
  std::cerr << "Die Zeile fehlt.\n";
  std::exit(2);
}

bool TabelleIstGanz() {
  const Punktlisten& P = Punkte();
  bool Gleich = Meldungen.Anzahl == 0 && KorAnzahl == static_cast<int>(Punktzahl);
  for (std::size_t i = 0; Gleich && i < Punktzahl; ++i) {
    Gleich = KorPnr(static_cast<int>(i)) == P.Pnr[i] && KorRechts[i] == P.Rechts[i] &&
             KorHoch[i] == P.Hoch[i] && KorHoehe[i] == P.Hoehe[i] && KorSymbol[i] == P.Symbol[i];
  }
  return Gleich;
}

long Speicherspitze() {
  std::string Wort;
  std::ifstream Stand("/proc/self/status");
  long Spitze = 0;
  while (Stand >> Wort) {
    if (Wort == "VmHWM:") Stand >> Spitze;
  }
  std::ofstream("/proc/self/clear_refs") << "5";
  return Spitze;
}

double Prozessorzeit() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) + static_cast<double>(t.tv_nsec) * 1e-9;
}

}  // namespace tavorena::messung
