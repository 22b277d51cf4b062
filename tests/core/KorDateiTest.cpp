#include "Testhilfe.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <unistd.h>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>

namespace tavorena::test {
namespace {

class KorDatei : public TabellenTest {
 protected:
  int Lies(const std::string& Bytes, int Modus = ModusErsetzen, int Format = FormatKor) {
    Datei = Ordner.Pfad("a.kor");
    Schreibe(Datei, Bytes);
    return KorLesen(Datei, Modus, Format);
  }
  static std::string Zeilen(int Anzahl, int Ab = 1) {
    std::string Text, Zeile;
    for (int i = 0; i < Anzahl; ++i) {
      KorZeileSchreiben(Ab + i, 3500000 + i, 5600000 + i, 0, "", Zeile);
      Text += Zeile + "\r\n";
    }
    return Text;
  }
  std::string Datei;
};

TEST_F(KorDatei, ZeileHatIhreSpalten) {
  std::string Zeile;
  KorZeileSchreiben("1001", 3500100, 5600200.1235, 0, "015", Zeile);
  EXPECT_EQ(Zeile, "          1001   3500100.000   5600200.124       0.000  015");
  Optionen.OptNachkommaSpeichern = 1;
  KorZeileSchreiben("123456789", 1, 2, -3, "", Zeile);
  EXPECT_EQ(Zeile, "      123456789         1.0         2.0      -3.0  ");
  std::string Pnr = "alt", Symbol = "alt";
  double R = 9, H = 9, Z = 9;
  EXPECT_EQ(KorZeileLesen("1 2 3", Pnr, R, H, Z, Symbol), -1);
  EXPECT_EQ(Pnr, "alt");
  EXPECT_EQ(KorZeileLesen("\t12A  1,5\t-2.5 \r7 8", Pnr, R, H, Z, Symbol), 0);  // the code 13 ends the line
  EXPECT_EQ(Pnr, "12A");
  EXPECT_EQ(R + H, -1);
  EXPECT_EQ(Z, 0);
  EXPECT_EQ(Symbol, "");
}

TEST_F(KorDatei, LiestJedeSchreibweise) {
  const std::string Punkte = "10 3500100,5 5600200.5 12,5 015 x y\r\nzu kz\r\n\r\n2 1.0 2\r\n";
  std::string Unix, Alt = Punkte, Gemischt = Punkte;
  for (const char z : Punkte) {
    if (z != '\r') Unix += z;
  }
  std::erase(Alt, '\n');
  Gemischt.insert(Gemischt.find("2 1.0 2"), "1 7.0 7\n");
  const std::string Bom = "\xEF\xBB\xBF" + Punkte;
  for (const std::string& Text : {Punkte, Unix, Alt, Gemischt, Bom}) {
    ASSERT_EQ(Lies(Text), 0);
    ASSERT_EQ(KorAnzahl, Text == Gemischt ? 3 : 2) << Text;
    EXPECT_EQ(KorPnr(KorAnzahl - 1), "10");
    EXPECT_EQ(KorRechts[static_cast<std::size_t>(KorAnzahl) - 1], 3500100.5);
    EXPECT_EQ(KorHoehe[static_cast<std::size_t>(KorAnzahl) - 1], 12.5);
    EXPECT_EQ(KorSymbol[static_cast<std::size_t>(KorAnzahl) - 1], "015");
  }
  ASSERT_EQ(Lies("Gr\xFCn1 1 2 3 S\xDF\r\n"), 0);  // Windows-1252
  EXPECT_EQ(KorPnr(0), "Grün1");
  EXPECT_EQ(KorSymbol[0], "Sß");
}

TEST_F(KorDatei, SchreibenLesenSchreibenGibtDieselbenBytes) {
  std::mt19937 Zufall(3);
  std::uniform_real_distribution<double> R(-1e5, 6e6), Z(-50, 900);
  for (int i = 0; i < 500; ++i) {
    const auto Pnr = std::to_string(100 + (i * 7919) % 99991);
    Punkt(Pnr.c_str(), R(Zufall), R(Zufall), Z(Zufall), i % 2 == 0 ? "015" : "");
  }
  for (const int Format : {FormatKor, FormatLt4}) {
    const std::string Eins = Ordner.Pfad("eins"), Zwei = Ordner.Pfad("zwei");
    EXPECT_EQ(KorSchreiben(Eins, Format), 500);
    std::string Name = Eins;
    ASSERT_EQ(KorLesen(Name, ModusErsetzen, Format), 0);
    EXPECT_FALSE(KoordinatenGeaendert);
    EXPECT_EQ(KorSchreiben(Zwei, Format), 500);
    if (Format == FormatLt4) {  // a key comes back with its zeros and the missing class as a blank
      EXPECT_EQ(KorLesen(Name = Zwei, ModusErsetzen, Format), 0);
      EXPECT_EQ(KorSchreiben(Eins, Format), 500);
    }
    EXPECT_TRUE(Inhalt(Eins) == Inhalt(Zwei));
  }
}

TEST_F(KorDatei, Lt4HatFesteSpalten) {
  KorInfoSatz Info;
  Info.Lagestatus = "7";
  Info.Vermarkungsart = 12;
  Info.Punktstatus = 3;
  std::string Zeile, Pnr, Symbol;
  Lt4ZeileSchreiben("1234567890", 3500100.5, 5600200.25, Info, Zeile);
  EXPECT_EQ(Zeile, "007 45591234567890 012 3500100.500 5600200.250               3  ");
  EXPECT_EQ(Zeile.size(), 64U);
  double R = 0, H = 0;
  KorInfoSatz Zurueck;
  ASSERT_EQ(Lt4ZeileLesen(Zeile, Pnr, R, H, Symbol, Zurueck), 0);
  EXPECT_EQ(Pnr + Symbol, "12345678902");
  EXPECT_EQ(R + H, 3500100.5 + 5600200.25);
  EXPECT_EQ(Zurueck.Lagestatus, "007");
  EXPECT_EQ(Zurueck.Vermarkungsart * 10 + Zurueck.Punktstatus, 123);
  EXPECT_EQ(Zurueck.Lagegenauigkeit, " ");
  Lt4ZeileSchreiben("12", 1, 2, Info, Zeile);
  EXPECT_EQ(Zeile.substr(4, 14), "45590000000012");
  Lt4ZeileSchreiben("1234567", 1, 2, Info, Zeile);
  EXPECT_EQ(Zeile.substr(4, 14), "45590001234567");
  EXPECT_EQ(Lt4ZeileLesen("#" + Zeile, Pnr, R, H, Symbol, Info), -1);
  EXPECT_EQ(Lt4ZeileLesen(Zeile.substr(0, 63), Pnr, R, H, Symbol, Info), -1);
}

TEST_F(KorDatei, Lt4PunktOhneNummerIstKeiner) {
  std::string Zeile;
  Lt4ZeileSchreiben("12", 3500100.5, 5600200.25, {}, Zeile);
  std::string Ohne = Zeile;
  Ohne.replace(8, 10, 10, ' ');
  ASSERT_EQ(Lies(Zeile + "\r\n" + Ohne, ModusErsetzen, FormatLt4), 0);
  EXPECT_EQ(KorAnzahl, 1);  // as a KOR line its Rechts would become the number
}

TEST_F(KorDatei, GrenzeVon20000Punkten) {
  Skript.Erwarte("Maximale Anzahl von \n\n20000\n\nPunkten überschritten !");
  EXPECT_EQ(Lies(Zeilen(20001)), 0);
  EXPECT_EQ(KorAnzahl, 20000);
  EXPECT_EQ(KorSuche(Wert(20001)), -1);
  Skript.Erwarte("Maximale Anzahl");
  EXPECT_EQ(Lies(Zeilen(100000)), 0);
  EXPECT_EQ(KorAnzahl, 20000);
  EXPECT_EQ(Lies(Zeilen(20000)), 0);  // no message
  Punkt("30000", 1, 1);               // the last row is for one more point
  EXPECT_EQ(KorAnzahl, 20001);
}

TEST_F(KorDatei, AnhaengenUndMischen) {
  ASSERT_EQ(Lies(Zeilen(3)), 0);
  EXPECT_FALSE(KoordinatenGeaendert);
  ASSERT_EQ(Lies("2 9.0 9\r\n7 1.0 1\r\n7 2.0 2\r\n", ModusNurNeue), 0);
  EXPECT_EQ(KorAnzahl, 4);
  EXPECT_EQ(KorRechts[3], 1);  // of two new points of one number the first
  EXPECT_TRUE(KoordinatenGeaendert);
  Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
  ASSERT_EQ(Lies("2 9.0 9\r\n", ModusAnhaengen), 0);
  EXPECT_EQ(KorAnzahl, 5);
  EXPECT_EQ(AnzahlDoppelte(), 1);
  KorLeeren();
  Datei = Ordner.Pfad("b.kor");
  Schreibe(Datei, Zeilen(9));
  ASSERT_EQ(KorLesen(Datei, ModusAnhaengen, FormatKor, [](std::string_view Pnr) { return Pnr < "4"; }), 0);
  EXPECT_EQ(KorAnzahl, 3);
}

TEST_F(KorDatei, StopNimmtZurueck) {
  ASSERT_EQ(Lies(Zeilen(5)), 0);
  KoordinatendateiName = "alt.kor";
  Skript.BeiEreignissen = [&] {
    if (KorAnzahl >= 300) KorStop = "Stop";
    EXPECT_NE(Skript.Status[1].find(" Punkte"), std::string::npos);
  };
  ASSERT_EQ(Lies(Zeilen(1000, 10), ModusAnhaengen), 0);
  EXPECT_EQ(KorAnzahl, 5);
  EXPECT_EQ(KorStop, "");
  EXPECT_EQ(Lies(Zeilen(1000)), -1);
  EXPECT_EQ(KorAnzahl, 0);
  EXPECT_EQ(KoordinatendateiName, "");
}

TEST_F(KorDatei, WasKeineDateiIst) {
  ASSERT_EQ(Lies(Zeilen(3)), 0);
  std::string Name;
  EXPECT_EQ(KorLesen(Name, 1, FormatKor), -1);  // no name, no message
  for (const std::string& Fall : {Ordner.Pfad("fehlt.kor"), Ordner.Pfad("")}) {
    Skript.Erwarte("Koordinatendatei\n" + Fall + "\nnicht vorhanden !");
    EXPECT_EQ(KorLesen(Name = Fall, 1, FormatKor), -1);
    EXPECT_EQ(Name, "");
  }
  if (geteuid() == 0) {  // without read permission; root must put on another hat to be refused
    Schreibe(Name = Ordner.Pfad("zu.kor"), "1 2 3\r\n");
    std::filesystem::permissions(Name, std::filesystem::perms::none);
    ASSERT_EQ(seteuid(65534), 0);
    Skript.Erwarte("nicht vorhanden !");
    EXPECT_EQ(KorLesen(Name, 1, FormatKor), -1);
    ASSERT_EQ(seteuid(0), 0);
  }
  Skript.Erwarte("Format der Datei");
  EXPECT_EQ(KorLesen(Name = Datei, 1, FormatEdbs), -1);
  EXPECT_EQ(KorAnzahl, 3);  // the table stays
}

TEST_F(KorDatei, SeltsameInhalte) {
  EXPECT_EQ(Lies(""), 0);
  EXPECT_EQ(KorAnzahl, 0);
  EXPECT_EQ(Lies(std::string(200'000'000, ' ')), 0);
  EXPECT_EQ(KorAnzahl, 0);
  EXPECT_EQ(Lies("1 2 3 4 5 " + std::string(200'000'000, 'x')), 0);
  EXPECT_EQ(KorAnzahl, 1);
  std::mt19937 Zufall(5);
  std::string Rauschen(300'000, '\0');
  std::generate(Rauschen.begin(), Rauschen.end(), [&] { return static_cast<char>(Zufall() >> 24U); });
  Skript.Erwarte("doppelte Punkte");
  ASSERT_EQ(Lies(Rauschen), 0);
  EXPECT_GT(KorAnzahl, 100);
  EXPECT_GE(KorSchreiben(Ordner.Pfad("b.kor"), FormatKor), 100);
}

TEST_F(KorDatei, Listen) {
  Punktlisten L;
  int Anzahl = 7;
  EXPECT_EQ(KorDateiInListen("", L, 10, Anzahl), 0);
  Skript.Erwarte("Datei nicht gefunden:\nfehlt");
  EXPECT_EQ(KorDateiInListen("fehlt", L, 10, Anzahl), -1);
  Schreibe(Datei = Ordner.Pfad("pp.kor"), "10 1 2 3 a\r\n2 3 4 5 b\r\nkurz\r\n");
  EXPECT_EQ(KorDateiInListen(Datei, L, 2, Anzahl), 0);
  EXPECT_EQ(Anzahl, 2);
  EXPECT_EQ(L.Pnr, (std::vector<std::string>{"2", "10"}));
  EXPECT_EQ(L.Symbol, (std::vector<std::string>{"b", "a"}));
  Skript.Erwarte("Zu viele Punkte in " + Datei + "\n\nMaximalwert:       1 Punkte");
  EXPECT_EQ(KorDateiInListen(Datei, L, 1, Anzahl), -1);
  EXPECT_EQ(KorAnzahl, 0);
}

}  // namespace
}  // namespace tavorena::test
