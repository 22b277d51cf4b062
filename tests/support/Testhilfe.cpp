#include "Testhilfe.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include <tavorena/core/Optionen.h>

namespace fs = std::filesystem;

namespace tavorena::test {

Testordner::Testordner() {
  static std::atomic<int> Zaehler = 0;
  Ort =
      fs::temp_directory_path() / ("tavorena-" + std::to_string(getpid()) + "-" + std::to_string(++Zaehler));
  fs::create_directories(Ort);
}

Testordner::~Testordner() {
  std::error_code Fehler;
  fs::remove_all(Ort, Fehler);
}

std::string Testordner::Pfad(std::string_view Name) const { return (Ort / Name).string(); }

std::string Inhalt(const std::string& Datei) {
  std::ifstream K(Datei, std::ios::binary);
  std::ostringstream Text;
  Text << K.rdbuf();
  return Text.str();
}

void Schreibe(const std::string& Datei, std::string_view Bytes) {
  std::ofstream(Datei, std::ios::binary).write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
}

::testing::AssertionResult GleichSoll(const std::string& Ist, const std::string& SollDatei) {
  const std::string Datei = std::string(TAVORENA_TESTS) + "/" + SollDatei;
  const std::string Soll = Inhalt(Datei);
  if (Ist == Soll) return ::testing::AssertionSuccess();
  if (std::getenv("TAVORENA_SOLL_NEU") != nullptr) {
    fs::create_directories(fs::path(Datei).parent_path());
    Schreibe(Datei, Ist);
  }
  const auto Stelle = std::mismatch(Ist.begin(), Ist.end(), Soll.begin(), Soll.end()).first - Ist.begin();
  const auto Zeile = std::count(Ist.begin(), Ist.begin() + Stelle, '\n') + 1;
  return ::testing::AssertionFailure() << SollDatei << " differs in line " << Zeile << "; the new text is\n"
                                       << Ist;
}

PlattformSkript::~PlattformSkript() {
  PlattformSetzen(Vorher);
  EXPECT_TRUE(Offen.empty()) << "not asked: " << Offen.front().first;
  EXPECT_TRUE(Dateien.empty()) << "no file dialog took " << Dateien.front();
  EXPECT_TRUE(Formulare.empty()) << "a modal form was not shown";
}

int PlattformSkript::Meldung(const std::string& Text, Knoepfe /*Art*/, const std::string& Ueberschrift) {
  Titel.push_back(Ueberschrift);
  if (Offen.empty() || Text.find(Offen.front().first) == std::string::npos) {
    ADD_FAILURE() << "unforeseen message: " << Text;
    return KnopfAbbruch;
  }
  const int Antwort = Offen.front().second;
  Offen.pop_front();
  return Antwort;
}

void PlattformSkript::FormularZeigen(Formular& Form, bool Modal) {
  if (!Modal) {
    if (BeiBlatt) BeiBlatt(Form);
    return;
  }
  if (Formulare.empty()) {
    ADD_FAILURE() << "unforeseen modal form";
    return;
  }
  const auto Tun = std::move(Formulare.front());
  Formulare.pop_front();
  Tun(Form);
}

std::string PlattformSkript::DateiWaehlen(Dateiauftrag& Auftrag) {
  Auftraege.push_back(Auftrag);
  if (Dateien.empty()) {
    ADD_FAILURE() << "unforeseen file dialog: " << Auftrag.Titel;
    return {};
  }
  std::string Name = std::move(Dateien.front());
  Dateien.pop_front();
  return Name;
}

void PlattformSkript::EreignisseAbarbeiten() {
  if (BeiEreignissen) BeiEreignissen();
}

void PlattformSkript::StatusSetzen(Statusfeld Feld, const std::string& Text) {
  Status.resize(std::max(Status.size(), static_cast<std::size_t>(Feld) + 1));
  Status[static_cast<std::size_t>(Feld)] = Text;
}

int PlattformSkript::ProgrammStarten(const std::string& Programm, const std::string& Datei) {
  Gestartet.push_back(Programm + "|" + Datei);
  return 0;
}

TabellenTest::TabellenTest() {
  KorLeeren();
  Haken = {};
  Optionen = {};
}

TabellenTest::~TabellenTest() { Haken = {}; }

void TabellenTest::Punkt(const char* Pnr, double R, double H, double Z, const char* Symbol) {
  Wert Nr(Pnr);
  NeupunktErgebnis E;
  ASSERT_EQ(Neupunkt(Nr, R, H, Z, Symbol, nullptr, E), 0) << Pnr;
}

}  // namespace tavorena::test
