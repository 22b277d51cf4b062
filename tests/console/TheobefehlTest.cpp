// "theo" against an instrument at the other end of a pseudo terminal.
#include "Messgeraet.h"
#include "Testhilfe.h"

#include <sstream>
#include <sys/file.h>

#include <tavorena/console/Kommandozeile.h>

namespace tavorena::test {
namespace {

const std::string Zeile = "110001+00000101 21.322+12345678 22.322+09876543 31..00+00055430";
const std::string Lang(70000, 'x');

class Theobefehl : public ::testing::Test {
 protected:
  int Rufen(const std::string& Gerät, std::vector<const char*> Worte) {
    Worte.insert(Worte.begin(), {"tavorena-stapel", "theo", Gerät.c_str(), "--rohdatendatei", Datei.c_str()});
    std::ostringstream Aus, Fehler;
    const int Ergebnis =
        KommandozeileAusführen(static_cast<int>(Worte.size()), Worte.data(), {Aus, Fehler, ""});
    Meldung = Fehler.str();
    return Ergebnis;
  }
  Testordner Ordner;
  std::string Datei = Ordner.Pfad("b.gsi"), Meldung;
};

TEST_F(Theobefehl, JederFehlerDerLeitung) {
  struct Fall {
    const char* Name;
    std::function<void(Messgerät&)> Skript;
    std::vector<const char*> Worte;
    int Rückgabe;
    std::string Inhalt;
    const char* Meldung;
  };
  using M = Messgerät;
  const std::string Mit = Zeile + "\r\n";
  const Fall Fälle[] = {
      {"eine", [&](M& G) { G.WortAbwarten(), G.Senden(Zeile + "?\r\n"); }, {}, 0, Mit, ""},
      {"in Stücken",
       [&](M& G) {
         G.WortAbwarten(), G.Senden(Zeile.substr(0, 9)), M::Pause(300), G.Senden(Zeile.substr(9) + "\n");
       },
       {},
       0,
       Mit,
       ""},
      {"zwei auf einmal",
       [&](M& G) { G.WortAbwarten(), G.Senden(Mit + Mit), G.WortAbwarten(); },
       {"--anzahl", "2"},
       0,
       Mit + Mit,
       ""},
      {"mehr als verlangt",
       [&](M& G) { G.WortAbwarten(), G.Senden(Mit + "@W127\r\n"); },
       {},
       0,
       Mit + "@W127\r\n",
       ""},
      {"schon da", [&](M& G) { G.Senden("kein GSI\n"), G.WortAbwarten(); }, {}, 0, "kein GSI\r\n", ""},
      {"Rauschen",
       [&](M& G) {
         G.WortAbwarten(), G.Senden({"\0\xff\x11\x13\r\n", 6});
       },
       {},
       0,
       std::string("\0\xff\x11\x13\r\n", 6),
       ""},
      {"reduziert",
       [&](M& G) {
         G.WortAbwarten(),
             G.Senden("*110001+0000000000000101 22.322+0000000009876543 31..00+0000000000055430\n");
       },
       {"--reduktion", "2", "--parameter", "1"},
       0,
       "*110001+0000000000000101 22.322+0000000009876543 31..90+0000000000055411\r\n",
       ""},
      {"ohne Zeilenende",
       [&](M& G) { G.WortAbwarten(), G.Senden(Zeile); },
       {"--zeitlimit", "0.5"},
       1,
       Mit,
       ": Fehler aufgetreten: keine Antwort in 0.5 s\n"},
      {"lang",
       [&](M& G) { G.WortAbwarten(), G.Senden(Lang); },
       {},
       0,
       "",
       ": 64 KB ohne Zeilenende stehen als eine Zeile"},
      {"abgezogen",
       [&](M& G) { G.WortAbwarten(), G.Senden(Zeile.substr(0, 9)), M::Pause(300), G.Auflegen(); },
       {},
       1,
       Zeile.substr(0, 9) + "\r\n",
       ": Fehler 57 in Theodolit"},
  };
  for (const Fall& F : Fälle) {
    SCOPED_TRACE(F.Name);
    static_cast<void>(DateiLöschen(Datei));
    Messgerät G(F.Skript);
    EXPECT_EQ(Rufen(G.Name, F.Worte), F.Rückgabe);
    EXPECT_EQ(Meldung.substr(0, *F.Meldung != '\0' ? G.Name.size() : 0),
              *F.Meldung != '\0' ? G.Name : Meldung);
    EXPECT_NE(Meldung.find(F.Meldung), std::string::npos) << Meldung;
    if (F.Inhalt.empty()) {
      const std::string Ist = Inhalt(Datei);
      EXPECT_TRUE(Ist.substr(0, 65536) == Lang.substr(0, 65536) && Ist.find("\r\n") == 65536) << Ist.size();
    } else {
      EXPECT_EQ(Inhalt(Datei), F.Inhalt);
    }
  }
}

TEST_F(Theobefehl, WasSichNichtÖffnenLäßt) {
  Messgerät G([](Messgerät&) {});
  const int Belegt = open(G.Name.c_str(), O_RDWR | O_NOCTTY);
  ASSERT_EQ(flock(Belegt, LOCK_EX), 0);
  for (const std::string& Gerät : {G.Name, Ordner.Pfad("fehlt"), Ordner.Pfad(""), std::string("/dev/null")}) {
    EXPECT_EQ(Rufen(Gerät, {}), 1);
    EXPECT_NE(Meldung.find("Fehler 57 in Theodolit " + Gerät + " "), std::string::npos) << Meldung;
  }
  close(Belegt);
  for (const std::vector<const char*>& Worte :
       {std::vector<const char*>{"--einstellungen", "9600,N,8"}, {"--reduktion", "3"}, {"--anzahl", "1.5"}}) {
    EXPECT_EQ(Rufen(G.Name, Worte), 1);
    EXPECT_NE(Meldung.find(Worte[0]), std::string::npos) << Meldung;
  }
  Datei = Ordner.Pfad("nirgends/b.gsi");
  EXPECT_EQ(Rufen(G.Name, {}), 1);
  EXPECT_EQ(Meldung.find(Datei + ": "), 0U) << Meldung;
}

}  // namespace
}  // namespace tavorena::test
