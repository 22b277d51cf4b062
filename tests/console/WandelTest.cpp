#include "Testhilfe.h"

#include <sstream>

#include <tavorena/console/Kommandozeile.h>

namespace tavorena::test {
namespace {

class Wandelbefehl : public TabellenTest {
 protected:
  Wandelbefehl() { setenv("TAVORENA_ORDNER", Ordner.Pfad("app").c_str(), 1); }
  ~Wandelbefehl() override { unsetenv("TAVORENA_ORDNER"); }
  int Rufe(const char* Von, const char* Nach, std::vector<const char*> Weitere = {}) {
    std::vector<const char*> Worte = {"tavorena-stapel", "wandeln", "--von", Von, "--nach", Nach};
    Worte.insert(Worte.end(), Weitere.begin(), Weitere.end());
    Worte.insert(Worte.end(), {Ein.c_str(), Aus.c_str()});
    std::ostringstream Zeilen, Fehler;
    const int Ergebnis =
        KommandozeileAusführen(static_cast<int>(Worte.size()), Worte.data(), {Zeilen, Fehler, ""});
    Gesagt = Zeilen.str() + Fehler.str();
    return Ergebnis;
  }
  std::string Ein = Ordner.Pfad("a.lfs"), Aus = Ordner.Pfad("b.kor"), Gesagt;
};

TEST_F(Wandelbefehl, WandeltUndZählt) {
  Schreibe(Ein, "Nr;R;H\r\n7;1,5;2;3;Gr\xFCn\r\n");
  EXPECT_EQ(Rufe("lfs", "kor", {"--nachkomma", "1", "--zeichensatz", "850"}), 0);
  EXPECT_TRUE(Gleich(Gesagt, "Punkte: 1  übergangen: 1\n", Inhalt(Aus),
                     "             7         1.5         2.0       3.0  Gr\x81n\r\n"));
  EXPECT_EQ(Rufe("lfs", "frei", {"--frei", "trenner=; symbol=1 pnr=2 hoch=3 rechts=4"}), 0);
  EXPECT_EQ(Inhalt(Aus), "Grün;7;2.000;1.500\r\n");
}

TEST_F(Wandelbefehl, LäßtDieAusgabeStehen) {
  Schreibe(Aus, "alt");
  const auto Scheitert = [&](int Ergebnis, const char* Meldung, const char* Nach = "kor",
                             std::vector<const char*> Weitere = {}) {
    EXPECT_EQ(Rufe("lfs", Nach, std::move(Weitere)), Ergebnis);
    EXPECT_EQ(Inhalt(Aus), "alt");
    EXPECT_NE(Gesagt.find(Meldung), std::string::npos) << Gesagt;
  };
  Scheitert(1, "nicht vorhanden !");
  for (const char* Bytes : {"", "Nr Rechts Hoch\r\n", "7 1 ***\r\n"}) {
    Schreibe(Ein, Bytes);
    Scheitert(1, "Format nicht erkannt");
  }
  Schreibe(Ein, std::string_view("7 1 2\0", 6));
  Scheitert(1, "Trotzdem lesen ?");
  Scheitert(2, "--frei fehlt", "frei");
  Scheitert(2, "an derselben Stelle", "frei", {"--frei", "trenner=; pnr=1 rechts=2 hoch=2"});
  Scheitert(2, "--nach coo gibt es nicht", "coo");
  Scheitert(2, "erwartet wird 0 bis 6", "kor", {"--nachkomma", "9"});
  Scheitert(2, "--zeichensatz latin gibt es nicht", "kor", {"--zeichensatz", "latin"});
  Aus = Ein;
  EXPECT_EQ(Rufe("lfs", "kor"), 1);
  EXPECT_EQ(Gesagt, Ein + ": Dateiname für Ein- und Ausgabe ist gleich:\n");
}

}  // namespace
}  // namespace tavorena::test
