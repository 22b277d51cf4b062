#pragma once

#include <array>
#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVKoordinatenmodul.h>

namespace tavorena::test {

namespace fs = std::filesystem;

/// A folder of its own for one test, removed with it.
class Testordner {
 public:
  Testordner();
  ~Testordner();
  Testordner(const Testordner&) = delete;
  Testordner& operator=(const Testordner&) = delete;
  [[nodiscard]] std::string Pfad(std::string_view Name) const;

 private:
  fs::path Ort;
};

std::string Inhalt(const std::string& Datei);
void Schreibe(const std::string& Datei, std::string_view Bytes);

/// A name in UTF-8 as the library of the language takes it.
fs::path Weg(std::string_view Name);
/// Sets a variable of the environment, or takes it away.
void Umgebungsvariable(const char* Name, const char* Wert = nullptr);

/// Compares in pairs, a value and the one expected beside it, and tells which pair is off. A variable that a
/// call beside it writes is seen as it is after the call; what another call reads is not.
template <int Nummer = 1, typename A, typename B, typename... Rest>
::testing::AssertionResult Gleich(const A& Ist, const B& Soll, const Rest&... Weitere) {
  if (Ist != Soll) {
    return ::testing::AssertionFailure() << "pair " << Nummer << ": " << ::testing::PrintToString(Ist)
                                         << " and not " << ::testing::PrintToString(Soll);
  }
  if constexpr (sizeof...(Rest) > 0) return Gleich<Nummer + 1>(Weitere...);
  return ::testing::AssertionSuccess();
}

/// Compares with an approved file beside the tests, byte for byte, and shows the first line that differs.
/// With TAVORENA_SOLL_NEU=1 the new text is taken over and the test still fails, so that the change is looked
/// at.
::testing::AssertionResult GleichSoll(const std::string& Ist, const std::string& SollDatei);

/// Answers questions by a script and fails the test on one that nobody foresaw. The clock stands still at
/// 01.02.2003 10:15; Zeitgeber advances by a second with each look.
class PlattformSkript final : public Rückfragen,
                              public Anzeige,
                              public Ablauf,
                              public Umgebung,
                              public Leitungen,
                              public Druckwerk {
 public:
  PlattformSkript() : Vorher(PortsSetzen(PortsVon(*this))) {}
  ~PlattformSkript() override;
  PlattformSkript(const PlattformSkript&) = delete;
  PlattformSkript& operator=(const PlattformSkript&) = delete;

  int Meldung(const std::string& Text, Knöpfe Art, const std::string& Überschrift, int Vorgabe) override;
  void FormularZeigen(Formular& Form, bool Modal) override;
  void FüllendZeigen(Formular& Form) override { Füllend = &Form; }
  std::string DateiWählen(Dateiauftrag& Auftrag) override;
  void EreignisseAbarbeiten() override { BeiEreignissen(); }
  void Warten(double /*Sekunden*/) override { BeiEreignissen(); }
  Zeitpunkt Jetzt() override { return Uhr; }
  double Zeitgeber() override { return Sekunden += Weile; }
  std::unique_ptr<Leitung> LeitungÖffnen(const std::string& Gerät, const std::string& Settings) override {
    return BeiLeitung(Gerät + " " + Settings);
  }
  void StatusSetzen(Statusfeld Feld, const std::string& Text) override {
    Status.at(static_cast<std::size_t>(Feld)) = Text;
  }
  void FenstertitelSetzen(const std::string& Neuer) override { Fenstertitel = Neuer; }
  std::string ProgrammOrdner() override { return Programmordner; }
  std::string Dokumentordner() override { return Dokumente; }
  bool StapelHält() override { return Hält; }
  void HauptfensterGröße(int& B, int& H) override { B = Breite, H = Hoehe; }
  int ProgrammStarten(const std::string& Programm, const std::string& Datei) override {
    Gestartet = {Programm, Datei};
    return 0;
  }
  int Drucken(const Druckseiten& Seiten, const std::string& Name, const std::string& Vorschlag) override {
    Gedruckt = {Name, Vorschlag};
    for (const auto& S : Seiten.Seiten) Gedruckt.insert(Gedruckt.end(), S.begin(), S.end());
    return 0;
  }

  int ProgrammAusführen(const std::string& Programm, const std::vector<std::string>& Worte,
                        std::string& Meldungen) override {
    Ausgeführt = Worte;
    Ausgeführt.insert(Ausgeführt.begin(), Programm);
    Meldungen = "von " + Programm;
    return Laufergebnis;
  }

  /// A question to come: piece of its text and the button that answers it.
  void Erwarte(const std::string& Stück, int Antwort = 1) { Offen.emplace_back(Stück, Antwort); }

  std::deque<std::string> Dateien;                       ///< names that the file dialogs give, in order
  std::deque<std::function<void(Formular&)>> Formulare;  ///< what is done in each modal form, in order
  std::function<void(Formular&)> BeiBlatt;               ///< what is done with a worksheet that is shown
  std::function<void(const std::string& Text)> BeiMeldung = [](const std::string&) {};
  std::function<void()> BeiEreignissen = [] {};  ///< runs when the event queue is served
  /// What opens a device with its settings.
  std::function<std::unique_ptr<Leitung>(const std::string&)> BeiLeitung = [](auto&) { return nullptr; };
  std::array<std::string, 8> Status;
  std::vector<std::string> Titel;
  int Listeneintrag = 0;  ///< chosen in the list of a file dialog
  int LetzteVorgabe = 0;  ///< default button of the last message box
  std::vector<Dateiauftrag> Aufträge;
  std::string Fenstertitel, Programmordner, Dokumente;
  Formular* Füllend = nullptr;          ///< what fills the work area
  std::vector<std::string> Gestartet;   ///< a program and its file
  std::vector<std::string> Ausgeführt;  ///< a program and its arguments
  int Laufergebnis = 0;                 ///< its exit status
  std::vector<std::string> Gedruckt;    ///< title, proposed name, the lines
  double Weile = 1;                     ///< by which Zeitgeber advances [s]
  Zeitpunkt Uhr{2003, 2, 1, 10, 15};
  bool Hält = false;
  int Breite = 0, Hoehe = 0;  // of the main window in pixels

 private:
  std::deque<std::pair<std::string, int>> Offen;
  Ports Vorher;
  double Sekunden = 0;
};

/// Puts the point table, the options and the clock into their start state before each test.
class TabellenTest : public ::testing::Test {
 protected:
  TabellenTest();
  ~TabellenTest() override;
  static void Punkt(const char* Pnr, double R, double H, double Z = 0, const char* Symbol = "");
  static void PunkteAnlegen(std::initializer_list<std::tuple<const char*, double, double>> Neue) {
    for (const auto& [Pnr, R, H] : Neue) Punkt(Pnr, R, H);
  }
  PlattformSkript Skript;
  Testordner Ordner;
};

}  // namespace tavorena::test
