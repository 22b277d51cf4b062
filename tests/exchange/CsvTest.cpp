#include "Lesetest.h"

#include <array>

#include <tavorena/exchange/CSV.h>

namespace tavorena::test {
namespace {

class CsvTest : public Lesetest {
 protected:
  CsvTest() : Lesetest(CsvZugang()) {}
  ~CsvTest() override { CsvAchsen = {}; }
};

TEST_F(CsvTest, KöpfeUndTrenner) {
  const char* const Fälle[][2] = {
      {"punkt-Nr.;RECHTS [m];Hoch (Nord);höhe;Sy\r\n7;3500000,5;5600000,25;-1,5;015\r\n",
       "7 3500000.5 5600000.25 -1.5 [015]"},
      {"\xEF\xBB\xBF\n ,,\nid,Name,East,North\n1,A 7,2,3\n", "A 7 2 3 0 []"},
      {"Nr;H\xF6he;E;N;e;n\r7;5;2;3;8;8\r", "7 2 3 5 []"},
      {"y\tx\tz\tpnr\tCode\n1\t2\t\t 9 \t\n", "9 1 2 0 []"},
      {"\"Name\",\"Easting\",\"Northing\",\"Code\"\n\"A \"\"7\"\"\" ,\"3,5\",4,\"x,\r\ny\"\n",
       "A \"7\" 3.5 4 0 [x,  y]"},
      {"Pnr,\"Rechts;Ost\",E,N,Höhe\n7,0,2,3,k. A.,,\n", "7 2 3 0 []"},
  };
  for (const auto& [Text, Soll] : Fälle) {
    EXPECT_EQ(Lies(Text), 0) << Text;
    EXPECT_EQ(Tabelle(), Soll) << Text;
    EXPECT_TRUE(Gleich(B.Übergangen, 0, B.Abgeschnitten, false)) << Text;
  }
  for (const char* Text : {"", "1;3500000;5600000\n", "Nr;Rechts\n1;2\n", "Nr Rechts Hoch\n1 2 3\n"}) {
    Skript.Erwarte("Format nicht erkannt");
    EXPECT_TRUE(Gleich(Lies(Text), -1, KorAnzahl, 0)) << Text;
  }
}

TEST_F(CsvTest, WasKeinPunktIstWirdGezählt) {
  const std::string Kopf = "Nr,E,N,Sy\r\n";
  EXPECT_EQ(
      Lies(Kopf +
           "1,2,3,\"a\nb\"\r\n,2,3\r\n2,3.5E+06,4\r\n3,4\r\n4,1,5,2,5\r\n5,x,1\r\n\r\n,,,\r\n6,7,8\r\n"),
      0);
  EXPECT_EQ(Tabelle(), "1 2 3 0 [a b]|6 7 8 0 []");
  EXPECT_TRUE(Gleich(B.Gelesen, 2, B.Übergangen, 5, B.ErsteÜbergangene, 4));
  // A mark that closes nothing takes no row away.
  EXPECT_EQ(Lies(Kopf + "1,2,3,\"a\r\n2,3,4,\"b\"\r\n3,4,5,\"c\r\n4,5,6,7\"\r\n5,6,7\r\n"), 0);
  EXPECT_EQ(Tabelle(), "1 2 3 0 [\"a]|2 3 4 0 [b]|3 4 5 0 [c  4,5,6,7]|5 6 7 0 []");
  Skript.Erwarte("Unerwartetes Dateiende");
  EXPECT_EQ(Lies(Kopf + "1,2,3,\"a\r\n2,3,4\r\n"), 0);
  EXPECT_EQ(Tabelle(), "1 2 3 0 [\"a]|2 3 4 0 []");
  EXPECT_TRUE(B.Abgeschnitten);
}

TEST_F(CsvTest, GeschriebenesKommtWieder) {
  Punkt("1001", 32477000.123, 5600000.5, -0.25, "a;\"\tb\"");
  Punkt("\"A", 1, -2.0004, 0, "");
  std::string Text, Wieder;
  ASSERT_EQ(KorText(Punktformat::Csv, 3, Text), 0);
  EXPECT_EQ(Text,
            "Punktnummer;Rechts;Hoch;Höhe;Symbol\r\n\"\"\"A\";1.000;-2.000;;\r\n"
            "1001;32477000.123;5600000.500;-0.250;\"a;\"\"\tb\"\"\"\r\n");
  ASSERT_EQ(Lies(Text), 0);
  EXPECT_EQ(KorPunkt(1).Symbol, "a;\"\tb\"");
  KorInfoSatz Info{12, 1, 2, 3, 4.5, "199;7", "002", "A", 6};
  ASSERT_EQ(KorZeileSetzen(0, {"5", 1, 2, 3, "12", &Info}), 0);
  Koordinatendateiformat = Dateiformat::Edbs;
  ASSERT_EQ(KorText(Punktformat::Csv, 1, Text), 0);
  EXPECT_NE(Text.find(";Bem.zur Verm.;Entstehung;Lagestatus;Lagegenauigk.;Art "
                      "d.Höhenb.\r\n5;1.0;2.0;3.0;12;1;2;3;4.5;\"199;7\";002;A;6\r\n"),
            std::string::npos);
  ASSERT_EQ(Lies(Text), 0);
  EXPECT_EQ(*KorPunkt(0).Info, Info);
  Koordinatendateiformat = Dateiformat::Edbs;
  EXPECT_EQ(KorText(Punktformat::Csv, 1, Wieder), 0);
  EXPECT_EQ(Wieder, Text);
}

TEST_F(CsvTest, VertauschteAchsenWerdenGefragt) {
  const std::string Deutsch = "nr;x;y\n1;5600000;477000\n2;5600001;477001\n",
                    Gedreht = "nr;x;y\n1;477000;5600000\n2;5600001;477001\n3;477001;5600001\n";
  const std::string Richtig = "1 477000 5600000 0 []", Falsch = "1 5600000 477000 0 []";
  EXPECT_EQ(Lies(Deutsch), 0);
  EXPECT_EQ(Tabelle().substr(0, Richtig.size()), Richtig);
  for (const auto& [Antwort, Soll] :
       {std::pair(KnopfJa, Richtig), {KnopfNein, Falsch}, {KnopfAbbruch, std::string()}}) {
    Skript.Erwarte("x als Rechtswert lesen ?", Antwort);
    EXPECT_EQ(Lies(Gedreht), Soll.empty() ? -1 : 0);
    EXPECT_EQ(Tabelle().substr(0, Soll.size()), Soll);
    EXPECT_TRUE(Gleich(Skript.LetzteVorgabe, KnopfAbbruch, KorAnzahl, Soll.empty() ? 0 : 3));
  }
  EXPECT_EQ(Lies(Gedreht.substr(0, Gedreht.find("3;"))), 0);  // half of them
  EXPECT_EQ(Lies("nr;rechts;hoch\n1;5600000;477000\n"), 0);   // in so many words
  EXPECT_EQ(Lies("nr;x;y\n1;5600000;5600000\n"), 0);
  CsvAchsen = Csvachsen::XY;
  EXPECT_EQ(Lies(Deutsch), 0);
  EXPECT_EQ(Tabelle().substr(0, Falsch.size()), Falsch);
  CsvAchsen = Csvachsen::Ablehnen;
  Skript.Erwarte("--achsen xy");
  EXPECT_TRUE(Gleich(Lies(Gedreht), -1, KorAnzahl, 0));
}

TEST_F(CsvTest, WasNichtWeiterkommt) {
  using Felder = std::array<Freispalte, Freiwerte>;
  const auto Gibt = [](const char* Text, char Trenner, int Zeilen, const Felder& Werte) {
    const Freiformat F = CsvAlsFreiformat(CsvKopf(Text));
    EXPECT_TRUE(Gleich(F.Trenner, Trenner, F.Überspringen, Zeilen, F.Werte == Werte, true)) << Text;
  };
  Gibt("\n7,1.5,2\n", ',', 1, Freiformat().Werte);  // no heading: the first point
  Gibt("a\tb\tc\n", '\t', 1, Freiformat().Werte);
  Gibt("Wo;Nr;y;Höhe\n", ';', 1, {{{2, 0}, {3, 0}, {0, 0}, {4, 0}, {0, 0}}});
  std::string Text, Alt = "Nr;Hoch;Rechts\r\n";
  ASSERT_EQ(KorText(Punktformat::Csv, 3, Text), 0);
  EXPECT_EQ(CsvFortsetzen(Alt, Text), -1);
  EXPECT_EQ(CsvFortsetzen("", Text), 0);
  Alt = "\xEF\xBB\xBF" + Text;
  EXPECT_TRUE(Gleich(CsvFortsetzen(Alt, Text += "1;2;3\r\n"), 0, Text, "1;2;3\r\n"));
}

}  // namespace
}  // namespace tavorena::test
