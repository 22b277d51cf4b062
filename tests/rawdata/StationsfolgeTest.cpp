#include "Testhilfe.h"

#include <tavorena/rawdata/Stationsfolge.h>

namespace tavorena::test {
namespace {

// "101:a,b" is a block of station 101 with the points a and b.
Rohblock Lies(const std::string& Wort, std::size_t Zeile) {
  Rohblock B;
  const std::size_t Mitte = Wort.find(':');
  B.Standpunkt = Wort.substr(0, Mitte);
  B.Zeile = Zeile;
  for (std::string Rest = Wort.substr(Mitte + 1); !Rest.empty();) {
    const std::size_t Ende = std::min(Rest.find(','), Rest.size());
    B.Punkte.push_back({Rest.substr(0, Ende), "", 0, 100, 10, 0, Zeile});
    Rest.erase(0, Ende + 1);
  }
  return B;
}

std::string Nummern(const std::vector<Rohpunkt>& Zeilen) {
  std::string Text;
  for (const Rohpunkt& P : Zeilen) Text += P.Nummer;
  return Text;
}

std::string Bild(const std::vector<Rohstation>& Folge) {
  std::string Text;
  for (const Rohstation& S : Folge) {
    Text += std::to_string(S.Stelle) +
            (S.Wiederholt ? "w "
             : S.Getrennt ? "g "
                          : " ") +
            S.Standpunkt + ":" + Nummern(S.Anschluss) + "/" + Nummern(S.Messung) + " ";
  }
  return Text;
}

TEST(Stationsfolge, WelcherBlockWasIst) {
  const struct {
    std::vector<std::string> Blöcke;
    const char* Soll;
  } Fälle[] = {
      {{}, ""},
      {{"1:a,b", "2:c"}, "1 1:ab/ 2 2:c/ "},
      {{"1:a,b", "1:c,d", "1:c", "1:d", "2:e"}, "1g 1:ab/cd 1w 1:/c 1w 1:/d 2 2:e/ "},
      {{"1:a", "2:b", "1:c"}, "1 1:a/ 2 2:b/ 3 1:c/ "},  // set up again
      {{"1:", "1:a", "1:", "1:b", "1:"}, "1g 1:a/b "},   // codes told twice
      {{"1:", "2:a"}, "1 1:/ 2 2:a/ "},                  // a station without rows
      {{":a,b"}, "1 :ab/ "},
  };
  for (const auto& F : Fälle) {
    std::vector<Rohblock> Blöcke;
    for (const std::string& Wort : F.Blöcke) Blöcke.push_back(Lies(Wort, Blöcke.size() + 1));
    EXPECT_EQ(Bild(Stationsfolge(Blöcke)), F.Soll) << "row " << &F - Fälle;
  }
  // The limits move rows, and drop none.
  Rohblock Lang = Lies("1:a", 1);
  Lang.Punkte.resize(1200, Lang.Punkte[0]);
  const std::vector<Rohstation> Zwei = Stationsfolge({Lang, Lies("1:b", 2)});
  std::vector<Rohstation> Eine = Stationsfolge({Lang});
  EXPECT_TRUE(
      Gleich(Zwei[0].Anschluss.size(), 100U, Zwei[0].Messung.size(), 1101U, Eine[0].Anschluss.size(), 1200U));
  EXPECT_EQ(Zwei[0].Messung.back().Nummer, "b");
  std::vector<bool> Ein(1200, true);
  Ein[0] = false;
  AnschlussTrennen(Eine[0], Ein);
  EXPECT_TRUE(Gleich(Eine[0].Anschluss.size(), 1001U, Eine[0].Messung.size(), 199U, Stationszahl(Eine), 1));
}

TEST(Stationsfolge, DateiMitMesswerten) {
  std::vector<std::size_t> Fehlerhaft;
  const std::vector<Rohblock> B = DatBlöcke(
      "7 10,5 100 20\r\n\r\n101 1.55 015\r\n8 12.5 99.5 30.25 1.6 020\r\n9 1 2 x\r\n"
      "9 1 2 0\r\n8 1 2 3 4 5 6\r\n102 Haus\r\n102\r\n8 1 100 5 1.3\r\n"
      "9 1 97.e7976 2\r\n103 1e999",
      Fehlerhaft);
  EXPECT_EQ(Fehlerhaft, (std::vector<std::size_t>{5, 6, 7, 8, 11, 12}));
  ASSERT_EQ(B.size(), 3U);
  EXPECT_TRUE(Gleich(B[0].Standpunkt, "", B[0].Punkte[0].Hz, 10.5, B[1].Symbol, "015", B[2].Zeile, 9U,
                     B[1].Instrumentenhöhe.Zahl(), 1.55, B[2].Instrumentenhöhe.IstLeer(), true));
  const Rohpunkt& P = B[1].Punkte.at(0);
  EXPECT_TRUE(
      Gleich(P.Nummer, "8", P.Code, "020", P.V, 99.5, P.Strecke, 30.25, P.Reflektorhöhe, 1.6, P.Zeile, 4U));
}

}  // namespace
}  // namespace tavorena::test
