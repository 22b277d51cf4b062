#include "Testhilfe.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <sstream>

namespace tavorena::test {

Testordner::Testordner() {
  do {  // one that no killed run left
    Ort = fs::temp_directory_path() / ("tavorena-" + std::to_string(std::random_device{}()));
  } while (!fs::create_directories(Ort));
}

Testordner::~Testordner() {
  std::error_code Fehler;
#ifdef _WIN32  // nobody removes there what is read-only
  for (fs::recursive_directory_iterator i(Ort, Fehler), Ende; !Fehler && i != Ende; i.increment(Fehler)) {
    std::error_code Bleibt;
    fs::permissions(*i, fs::perms::owner_write, fs::perm_options::add, Bleibt);
  }
#endif
  fs::remove_all(Ort, Fehler);
}

std::string Testordner::Pfad(std::string_view Name) const {
  const std::u8string Voll = (Ort / Weg(Name)).u8string();
  return {Voll.begin(), Voll.end()};
}

fs::path Weg(std::string_view Name) { return std::u8string(Name.begin(), Name.end()); }

void Umgebungsvariable(const char* Name, const char* Wert) {
#ifdef _WIN32
  _wputenv_s(Weg(Name).c_str(), Weg(Wert == nullptr ? "" : Wert).c_str());
#else
  if (Wert == nullptr) {
    unsetenv(Name);
  } else {
    setenv(Name, Wert, 1);
  }
#endif
}

std::string Inhalt(const std::string& Datei) {
  std::ifstream K(Weg(Datei), std::ios::binary);
  std::ostringstream Text;
  Text << K.rdbuf();
  return Text.str();
}

void Schreibe(const std::string& Datei, std::string_view Bytes) {
  std::ofstream(Weg(Datei), std::ios::binary).write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
}

::testing::AssertionResult GleichSoll(const std::string& Ist, const std::string& SollDatei) {
  const std::string Datei = std::string(TAVORENA_TESTS) + "/" + SollDatei;
  const std::string Soll = Inhalt(Datei);
  if (Ist == Soll) return ::testing::AssertionSuccess();
  if (std::getenv("TAVORENA_SOLL_NEU") != nullptr) {
    fs::create_directories(fs::path(Datei).parent_path());
    Schreibe(Datei, Ist);
  }
  const std::string Gleich(Ist.begin(),
                           std::mismatch(Ist.begin(), Ist.end(), Soll.begin(), Soll.end()).first);
  const auto Zeile = [Ab = Gleich.rfind('\n') + 1](const std::string& Text) {
    return ::testing::PrintToString(Text.substr(Ab, Text.find('\n', Ab) - Ab));
  };
  return ::testing::AssertionFailure()
         << SollDatei << " differs in line " << std::count(Gleich.begin(), Gleich.end(), '\n') + 1 << ":\n"
         << Zeile(Ist) << " and not\n"
         << Zeile(Soll);
}

// The next of the answers in store.
template <typename T>
T Nehmen(std::deque<T>& Vorrat, const std::string& Wofür) {
  if (Vorrat.empty()) {
    ADD_FAILURE() << "unforeseen " << Wofür;
    return {};
  }
  T Erstes = std::move(Vorrat.front());
  Vorrat.pop_front();
  return Erstes;
}

PlattformSkript::~PlattformSkript() {
  PortsSetzen(Vorher);
  EXPECT_TRUE(Offen.empty()) << "not asked: " << Offen.front().first;
  EXPECT_TRUE(Dateien.empty()) << "no file dialog took " << Dateien.front();
  EXPECT_TRUE(Formulare.empty()) << "a modal form was not shown";
}

int PlattformSkript::Meldung(const std::string& Text, Knöpfe /*Art*/, const std::string& Überschrift,
                             int Vorgabe) {
  LetzteVorgabe = Vorgabe;
  BeiMeldung(Text);
  Titel.push_back(Überschrift);
  const auto [Stück, Antwort] = Nehmen(Offen, "message: " + Text);
  EXPECT_NE(Text.find(Stück), std::string::npos) << Text;
  return Antwort;
}

void PlattformSkript::FormularZeigen(Formular& Form, bool Modal) {
  const auto Tun = Modal ? Nehmen(Formulare, "modal form") : BeiBlatt;
  if (Tun) Tun(Form);
}

std::string PlattformSkript::DateiWählen(Dateiauftrag& Auftrag) {
  Aufträge.push_back(Auftrag);
  if (!Auftrag.Liste.empty()) Auftrag.ListeGewählt = Listeneintrag;
  return Nehmen(Dateien, "file dialog: " + Auftrag.Titel);
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
  ASSERT_EQ(Neupunkt(Nr, R, H, Z, Symbol, nullptr, E), NeupunktCode::Neu) << Pnr;
}

}  // namespace tavorena::test
