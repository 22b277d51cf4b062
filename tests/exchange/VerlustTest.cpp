#include "Testhilfe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <random>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Verlust.h>
#include <tavorena/exchange/Formattafel.h>
#include <tavorena/exchange/Freiformat.h>

namespace tavorena::test {
namespace {

class Verlusttest : public TabellenTest {
 protected:
  Verlusttest() {
    FormateAnmelden();
    VerlusteVergessen();
  }
};

// "kind count first", kinds by their place, in the order of the question.
std::string Kurz(const Verlustliste& V) {
  std::string Text;
  for (std::size_t i = 0; i < Verlustarten; ++i) {
    if (V.Posten[i].Anzahl > 0)
      Text += std::to_string(i) + ":" + std::to_string(V.Posten[i].Anzahl) + " " + V.Posten[i].Erste + ";";
  }
  return Text;
}

struct Zeile {
  const char* Pnr;
  double R, H, Z = 0;
  const char* Symbol = "";
  KorInfoSatz Info = {};
};

constexpr double Unendlich = std::numeric_limits<double>::infinity();

// What comes back is kept quiet about; each other kind is told with its count and its first point.
TEST_F(Verlusttest, JedeArtWirdGezählt) {
  KorInfoSatz Voll;
  Voll.Lagestatus = "17";
  Voll.Vermarkungsart = 999;
  Voll.Punktstatus = 9;
  Voll.Lagegenauigkeit = "3";
  Voll.Aktualitaet = 7;  // has no column
  KorInfoSatz Breit = Voll;
  Breit.Vermarkungsart = 1000;
  Breit.Punktstatus = 12;  // moves what follows
  struct Fall {
    const char* Name;
    Punktformat Format;
    std::vector<Zeile> Zeilen;
    const char* Soll;
    Zeichensatz Satz = Zeichensatz::Utf8;
  };
  using enum Punktformat;
  const Fall Fälle[] = {
      {"gut", Kor, {{"1", 9999999.9996, -999999.9994, 1e6, "ß x"}}, "4:1 1;"},
      {"Zone", Kor, {{"1", 1, 2}, {"1001", 32477000.123, 5600000}, {"7", 33e6, 1e7, -5}}, "0:3 1001;"},
      {"Rand", Kor, {{"1", -1000000.5, 10000000}, {"2", 1, 2, -1e6}}, "0:2 1;1:1 2;"},
      {"keine Zahl", Kor, {{"1", NAN, Unendlich, -Unendlich}}, "0:2 1;1:1 1;"},
      {"Leerzeichen", Kor, {{"7", 1, 2}, {" 7 ", 1, 2}, {"7 A", 1, 2}}, "0:2 7 A;2:1 7 A;3:3 7;"},
      {"Zeilenende", Kor, {{"7\n8", 0, 0}, {"1", 1, 2, 3, "a\tb"}}, "2:1 7\n8;4:1 1;"},
      {"lang", Kor, {{"12345678901234567890", 3e6, 5e6, 7, "12345678901234567890"}}, ""},
      {"Nullen bleiben", Kor, {{"0", 1, 2}, {"00", 1, 2}, {"7", 1, 2}, {"007", 1, 2}}, ""},
      {"Seite", Kor, {{"Grün", 1, 2}, {"Łódź?", 1, 2, 3, "€"}}, "6:2 Łódź?;", Zeichensatz::Windows1252},
      {"gut", Lt4, {{"1", 3e6, 5e6, 0, "2", Voll}, {"0000000002", 1, 2}, {"3", -999999, 2}}, ""},
      {"Höhe, Symbol", Lt4, {{"1", 1, 2, 0.1}, {"2", 1, 2, 0, "02"}, {"3", 1, 2, 5, "3"}}, "1:2 1;4:1 3;"},
      {"Zone", Lt4, {{"9", 9999999.9996, -999999.9996}, {"1001", 32477000.123, 56e5}}, "0:1 1001;"},
      {"Buchstaben", Lt4, {{"7A", 1, 2}, {"123456789012", 1, 2}, {"8", 1, 2}}, "0:2 123456789012;2:2 7A;"},
      {"gleich",
       Lt4,
       {{"1001", 1, 2}, {"001001", 1, 2}, {"1001", 3, 4}, {"7B", 1, 2}, {"7", 1, 2}},
       "2:1 7B;3:5 1001;"},
      {"Nullen", Lt4, {{"1001", 1, 2}, {"001001", 1, 2}}, "3:2 1001;"},
      {"Attribute", Lt4, {{"1", 1, 2, 0, "2", Breit}}, "5:3 1;"},
      {"gut",
       Edbs,
       {{"112", 3500123.456, 5600456.789, 345, "25", Voll}, {"612345", 1, 2, -1e5, "9"}},
       "5:1 112;"},
      {"Symbol", Edbs, {{"1", 1, 2, 0, "26"}, {"2", 1, 2, 0, "075"}, {"3", 1, 2, 0, "0"}}, "4:2 1;"},
      {"Nummer",
       Edbs,
       {{"12A", 1, 2}, {"12", 1, 2}, {"0112345", 1, 2}, {"7123456", 1, 2}},
       "2:2 12A;3:2 12A;"},
      {"Felder", Edbs, {{"1", 32477000.123, -1000000.5, NAN, "", Breit}}, "0:2 1;1:1 1;5:5 1;"},
      {"Zone", Lfs, {{"1", 32477000.123, 2, 3, "a b"}, {"7;1", 1, 2}}, "0:4 1;1:1 1;4:1 1;"},
      {"Zone", Csv, {{"1", 32477000.123, 2, 3, "a;\"b"}, {"7 \"A\"", -1e9, 1e14, 0.1, "007"}}, ""},
      {"keine Zahl", Csv, {{"1", NAN, 2}, {"2", 1, 2, Unendlich}, {"a\tb", 1, 2}}, "0:2 1;1:1 2;"},
      {"Komma", GeografAus, {{"7,5", 1, 2}, {"8", 1, 2, 3, "a b"}}, "0:2 7,5;"},
      {"mit Code",
       GsiMitCode,
       {{"7 A", 1, 2, 3, "x"}, {"12345678901234567", 1, 2, 3, "12345678901234567"}},
       "2:2 7 A;4:1 12345678901234567;"},
      {"mit Höhen", GsiMitHöhe, {{"7", 1, 2, 3, "x"}, {"8", 1, 2, 1e15}}, "1:1 8;"},
      {"ohne Höhen", GsiOhneHöhe, {{"007", 32477000.123, 2, 3, "x"}}, ""},
      {"Höhenliste", Höhenliste, {{"1", 3e9, 2, 123456, "x y"}, {"2 2", 1, 2}}, "1:1 1;4:1 1;"},
      {"ohne Symbol", Frei, {{"1", 32477000.123, 2, 3, "x"}, {"a;b", 1, 2}}, "0:2 a;b;4:1 1;"},
  };
  std::string Grund;
  ASSERT_EQ(FreiformatLesen("trenner=; pnr=1 rechts=2 hoch=3 hoehe=4", LetztesFreiformat, Grund), 0) << Grund;
  for (const Fall& F : Fälle) {
    SCOPED_TRACE(F.Name + std::to_string(static_cast<int>(F.Format)));
    KorLeeren();
    for (const Zeile& Z : F.Zeilen) ASSERT_EQ(KorAnhängen({Z.Pnr, Z.R, Z.H, Z.Z, Z.Symbol, &Z.Info}), 0);
    EXPECT_EQ(Kurz(TabellenVerlust(*FormatFinden(F.Format), 3, F.Satz)), F.Soll);
  }
}

// What is not named comes back from the file, to the millimetre.
TEST_F(Verlusttest, WasNichtGenanntWirdKommtZurück) {
  std::mt19937 Zufall(5);
  const auto Eines = [&Zufall](const auto& Liste) { return Liste[Zufall() % std::size(Liste)]; };
  const char* const Vorn[] = {"", "", "", "00", " ", "A", "-", "ü", "7 ", "\"", "*", "123456789"};
  const char* const Hinten[] = {"", "", "", " ", "b", ".5", ";1", "\"", "_"};
  const char* const Texte[] = {"",  "2",   "02", "0",   "123", "1234", "ü",
                               " ", "a b", "x",  "005", "075", "99",   "a;b"};
  const double Zahlen[] = {0,    0.0004,    -0.0004,   9999998.9999, 9999999.9994, 9999999.9995,
                           1e7,  -999998.9, -999999.5, -999999.9995, -1e6,         NAN,
                           1e15, 3456789.1, 0.5,       -0.5,         32477000.123, Unendlich};
  const std::int16_t Ganze[] = {0, 1, 9, 10, 99, 999, 1000, -1};
  using enum Punktformat;
  for (const auto& [Nach, Von] :
       {std::pair{Kor, Kor}, std::pair{Lt4, Lt4}, std::pair{Edbs, Edbs}, std::pair{Lfs, Lfs},
        std::pair{Csv, Csv}, std::pair{GeografAus, Geograf}, std::pair{GsiMitCode, Gsi}}) {
    SCOPED_TRACE(static_cast<int>(Nach));
    std::map<std::string, std::array<double, 3>> Soll;
    KorLeeren();
    for (int i = 1; i < 3000; ++i) {
      const bool Mild = i % 2 == 0;  // else a row is seldom good
      KorInfoSatz Info;
      if (!Mild) {
        Info.Lagestatus = Eines(Texte);
        Info.Lagegenauigkeit = Eines(Texte);
        Info.Vermarkungsart = Eines(Ganze);
        Info.Punktstatus = Eines(Ganze);
      }
      const std::string Pnr = Eines(Vorn) + std::to_string(i) + Eines(Hinten);
      const KorSatz S{Pnr,
                      Mild ? 1.5 : Eines(Zahlen),
                      Eines(Zahlen),
                      Mild ? 0 : Eines(Zahlen),
                      Mild ? "2" : Eines(Texte),
                      &Info};
      Verlustprüfer P(*FormatFinden(Nach), 3);
      P.Punkt(S);
      if (!Kurz(P.Liste()).empty()) continue;
      ASSERT_EQ(KorAnhängen(S), 0);
      Soll[std::string(Nullenlos(Pnr))] = {S.Rechts, S.Hoch, S.Hoehe};
    }
    std::string Text;
    ASSERT_EQ(KorText(Nach, 3, Text), 0);
    const std::string Datei = Ordner.Pfad("a.gsi");
    Schreibe(Datei, Text);
    ASSERT_GT(Soll.size(), 100U);
    ASSERT_EQ(KorLesen(Datei, Lesemodus::Ersetzen, Von), 0);
    EXPECT_EQ(KorAnzahl, static_cast<int>(Soll.size()));
    for (int z = 0; z < KorAnzahl; ++z) {
      const KorSatz S = KorPunkt(z);
      const auto Alt = Soll.find(std::string(Nullenlos(S.Pnr)));
      ASSERT_NE(Alt, Soll.end()) << S.Pnr;
      const auto [R, H, Z] = Alt->second;
      EXPECT_LT(std::max({std::fabs(S.Rechts - R), std::fabs(S.Hoch - H), std::fabs(S.Hoehe - Z)}), 6e-4)
          << S.Pnr;
    }
  }
}

// One question for all kinds, once for a file and a kind, again when there are more.
TEST_F(Verlusttest, FragtEinmal) {
  const auto Speichern = [&](const char* Datei) {
    return VerlustErlaubt(Ordner.Pfad(Datei), TabellenVerlust(*FormatFinden(Punktformat::Kor), 3));
  };
  const std::string Kopf = "Beim Speichern gehen Angaben verloren:\n",
                    Ende = "\n\n" + Ordner.Pfad("a.kor") + "\n\nTrotzdem speichern ?";
  Punkt("1", 1, 2);
  EXPECT_TRUE(Speichern("a.kor"));
  Punkt("1001", 32477000.123, 5600000, 1e7);
  Punkt("1002", 32477000.123, 5600000);
  const std::string Zwei = "2 Koordinaten passen nicht in ihr Feld (Punkt 1001)";
  for (const int Antwort : {KnopfNein, KnopfJa}) {
    Skript.Erwarte(Kopf + Zwei + "\n1 Höhe geht verloren (Punkt 1001)" + Ende, Antwort);
    EXPECT_EQ(Speichern("a.kor"), Antwort == KnopfJa);
    EXPECT_EQ(Skript.LetzteVorgabe, KnopfNein);
  }
  EXPECT_TRUE(Speichern("a.kor"));
  Skript.Erwarte(Zwei, KnopfNein);
  EXPECT_FALSE(Speichern("b.kor"));
  Punkt("1003", 32477000.123, 5600000);
  Skript.Erwarte(Kopf + "3 Koordinaten passen nicht in ihr Feld (Punkt 1001)" + Ende, KnopfJa);
  EXPECT_TRUE(Speichern("a.kor"));
  VerlusteVergessen();
  Skript.Erwarte("3 Koordinaten", KnopfNein);
  EXPECT_FALSE(Speichern("a.kor"));
}

}  // namespace
}  // namespace tavorena::test
