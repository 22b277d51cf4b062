#include "Testhilfe.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <tavorena/core/KorDatei.h>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace tavorena::test {
namespace {

class KorDatei : public TabellenTest {
 protected:
  int Lies(const std::string& Bytes, Lesemodus Modus = Lesemodus::Ersetzen,
           Dateiformat Format = Dateiformat::Kor) {
    Datei = Ordner.Pfad("a.kor");
    Schreibe(Datei, Bytes);
    return KorLesen(Datei, Modus, Format);
  }
  static ::testing::AssertionResult Zeigt(int Zeile, const char* Pnr, double R, double Hoehe,
                                          const char* Symbol) {
    const KorSatz S = KorPunkt(Zeile);
    return Gleich(S.Pnr, Pnr, S.Rechts, R, S.Hoehe, Hoehe, S.Symbol, Symbol);
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
  EXPECT_TRUE(Gleich(Pnr, "12A", R, 1.5, H, -2.5, Z, 0, Symbol, ""));
}

TEST_F(KorDatei, LiestJedeSchreibweise) {
  const std::string Punkte = "10 3500100,5 5600200.5 12,5 015 x y\r\nzu kz\r\n\r\n2 1.0 2\r\n";
  std::string Unix = Punkte, Alt = Punkte, Gemischt = Punkte;
  std::erase(Unix, '\r');
  std::erase(Alt, '\n');
  Gemischt.insert(Gemischt.find("2 1.0 2"), "1 7.0 7\n");
  for (const std::string& Text : {Punkte, Unix, Alt, Gemischt, "\xEF\xBB\xBF" + Punkte}) {
    ASSERT_EQ(Lies(Text), 0);
    ASSERT_EQ(KorAnzahl, Text == Gemischt ? 3 : 2) << Text;
    EXPECT_TRUE(Zeigt(KorAnzahl - 1, "10", 3500100.5, 12.5, "015"));
  }
  ASSERT_EQ(Lies("Gr\xFCn1 1 2 3 S\xDF\r\n"), 0);  // Windows-1252
  EXPECT_TRUE(Zeigt(0, "Grün1", 1, 3, "Sß"));
}

TEST_F(KorDatei, SchreibenLesenSchreibenGibtDieselbenBytes) {
  std::mt19937 Zufall(3);
  std::uniform_real_distribution<double> R(-1e5, 6e6), Z(-50, 900);
  for (int i = 0; i < 500; ++i) {
    const auto Pnr = std::to_string(100 + (i * 7919) % 99991);
    Punkt(Pnr.c_str(), R(Zufall), R(Zufall), Z(Zufall), i % 2 == 0 ? "015" : "");
  }
  for (const Dateiformat Format : {Dateiformat::Kor, Dateiformat::Lt4}) {
    const std::string Eins = Ordner.Pfad("eins"), Zwei = Ordner.Pfad("zwei");
    EXPECT_EQ(KorSchreiben(Eins, Format, 3), 500);
    ASSERT_EQ(KorLesen(Eins, Lesemodus::Ersetzen, Format), 0);
    EXPECT_FALSE(KoordinatenGeaendert);
    EXPECT_EQ(KorSchreiben(Zwei, Format, 3), 500);
    if (Format == Dateiformat::Lt4) {  // a key comes back with its zeros and the missing class as a blank
      EXPECT_EQ(KorLesen(Zwei, Lesemodus::Ersetzen, Format), 0);
      EXPECT_EQ(KorSchreiben(Eins, Format, 3), 500);
    }
    EXPECT_TRUE(Inhalt(Eins) == Inhalt(Zwei));
  }
}

TEST_F(KorDatei, Lt4HatFesteSpalten) {
  KorInfoSatz Info, Zurück;
  Info.Lagestatus = "7";
  Info.Vermarkungsart = 12;
  Info.Punktstatus = 3;
  std::string Zeile, Pnr, Symbol;
  double R = 0, H = 0;
  for (const auto& [Nummer, Schlüssel] :
       {std::pair{"12", "45590000000012"}, std::pair{"1234567", "45590001234567"},
        std::pair{"       12A", "4559       12A"}, std::pair{"        12", "4559        12"}}) {
    Lt4ZeileSchreiben(Nummer, 1, 2, Info, Zeile);
    EXPECT_EQ(Zeile.substr(4, 14), Schlüssel);
  }
  Lt4ZeileSchreiben("1234567890", 3500100.625, 5600200.25, Info, Zeile);
  EXPECT_EQ(Zeile, "007 45591234567890 012 3500100.625 5600200.250               3  ");
  ASSERT_EQ(Lt4ZeileLesen(Zeile, Pnr, R, H, Symbol, Zurück), 0);
  EXPECT_TRUE(Gleich(Pnr, "1234567890", R, 3500100.625, H, 5600200.25, Symbol, "2", Zurück.Lagestatus, "007",
                     Zurück.Vermarkungsart, 12, Zurück.Punktstatus, 3, Zurück.Lagegenauigkeit, " "));
  EXPECT_EQ(Lt4ZeileLesen("#" + Zeile, Pnr, R, H, Symbol, Info), -1);
  EXPECT_EQ(Lt4ZeileLesen(Zeile.substr(0, 63), Pnr, R, H, Symbol, Info), -1);
  std::string Ohne = Zeile;
  Ohne.replace(8, 10, 10, ' ');
  ASSERT_EQ(Lies(Zeile + "\r\n" + Ohne, Lesemodus::Ersetzen, Dateiformat::Lt4), 0);
  EXPECT_EQ(KorAnzahl, 1);  // without a number it is no point; as a KOR line its Rechts would become one
  ASSERT_EQ(Lies("7 1.0 2 3 015\r\n"), 0);
  Info = {};
  Info.Punktart = 15;
  EXPECT_EQ(KorInfo[0], Info);  // nothing is left of the row's former point
}

TEST_F(KorDatei, GrenzeVon20000Punkten) {
  for (const int Anzahl : {100000, 20001}) {
    Skript.Erwarte("Maximale Anzahl von \n\n20000\n\nPunkten überschritten !");
    EXPECT_EQ(Lies(Zeilen(Anzahl)), 0);
    EXPECT_EQ(KorAnzahl, 20000);
  }
  EXPECT_EQ(KorSuche(Wert(20001)), -1);
  EXPECT_EQ(Lies(Zeilen(20000)), 0);  // no message
  Punkt("30000", 1, 1);               // the last row is for one more point
  EXPECT_EQ(KorAnzahl, 20001);
}

TEST_F(KorDatei, StopNimmtZurück) {
  ASSERT_EQ(Lies(Zeilen(5)), 0);
  Skript.BeiEreignissen = [&] {
    if (KorAnzahl >= 300) KorStop = Laufwunsch::Stop;
    EXPECT_NE(Skript.Status[1].find(" Punkte"), std::string::npos);
  };
  ASSERT_EQ(Lies(Zeilen(1000, 10), Lesemodus::Alle), 0);
  EXPECT_TRUE(Gleich(KorAnzahl, 5, KorStop == Laufwunsch::Stop, false));
  EXPECT_EQ(Lies(Zeilen(1000)), -1);
  EXPECT_EQ(KorAnzahl, 0);
}

TEST_F(KorDatei, WasKeineDateiIst) {
  ASSERT_EQ(Lies(Zeilen(3)), 0);
  EXPECT_EQ(KorLesen("", Lesemodus::Ersetzen, Dateiformat::Kor), -1);  // no name, no message
  const auto Scheitert = [&](const std::string& Fall, const std::string& Meldung,
                             Dateiformat Format = Dateiformat::Kor) {
    Skript.Erwarte(Meldung);
    EXPECT_EQ(KorLesen(Fall, Lesemodus::Ersetzen, Format), -1);
  };
  for (const std::string& Fall : {Ordner.Pfad("fehlt.kor"), Ordner.Pfad("")})
    Scheitert(Fall, "Koordinatendatei\n" + Fall + "\nnicht vorhanden !");
  Scheitert(Datei, "Format der Datei", Dateiformat::Edbs);
#ifndef _WIN32
  if (geteuid() == 0) {  // without read permission; root must put on another hat to be refused
    fs::permissions(Datei, fs::perms::none);
    ASSERT_EQ(seteuid(65534), 0);
    Scheitert(Datei, "nicht vorhanden !");
    ASSERT_EQ(seteuid(0), 0);
  }
#endif
  EXPECT_EQ(KorAnzahl, 3);  // the table stays
}

TEST_F(KorDatei, SeltsameInhalte) {
  constexpr std::size_t Lang = 200'000'000;
  for (const std::string& Text :
       {std::string(), std::string(Lang, ' '), "1 2 3 4 5 " + std::string(Lang, 'x')}) {
    EXPECT_EQ(Lies(Text), 0);
    EXPECT_EQ(KorAnzahl, Text.starts_with('1') ? 1 : 0);
  }
  std::mt19937 Zufall(5);
  std::string Rauschen(300'000, '\0');
  std::generate(Rauschen.begin(), Rauschen.end(), [&] { return static_cast<char>(Zufall() >> 24U); });
  Skript.Erwarte("doppelte Punkte");
  ASSERT_EQ(Lies(Rauschen), 0);
  EXPECT_GE(KorSchreiben(Ordner.Pfad("b.kor"), Dateiformat::Kor, 3), 100);
}

// Numbers that sort as equal may keep two of one number apart.
TEST_F(KorDatei, DoppelteOhneNachbarschaft) {
  for (const std::string Pnr : {"12", "123456789"}) {
    for (const char* Dritte : {"A", "C"}) {
      if (*Dritte == 'A') Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
      ASSERT_EQ(Lies(Pnr + "A 1 2\r\n" + Pnr + "B 1 2\r\n" + Pnr + Dritte + " 3 4\r\n"), 0);
      EXPECT_TRUE(Gleich(AnzahlDoppelte(), 0, DoppelteVorhanden(), *Dritte == 'A'));
    }
  }
}

TEST_F(KorDatei, Listen) {
  Punktlisten L;
  int Anzahl = 7;
  EXPECT_EQ(KorDateiInListen("", L, 10, Anzahl), 0);
  Skript.Erwarte("Datei nicht gefunden:\nfehlt");
  EXPECT_EQ(KorDateiInListen("fehlt", L, 10, Anzahl), -1);
  Schreibe(Datei = Ordner.Pfad("pp.kor"), "10 1 2 3 a\r\n         \r\n2 3 4 5 b\r\nkurz\r\n");
  EXPECT_EQ(KorDateiInListen(Datei, L, 2, Anzahl), 0);
  EXPECT_TRUE(
      Gleich(Anzahl, 2, L.Pnr.at(0), "2", L.Symbol.at(0), "b", L.Pnr.at(1), "10", L.Symbol.at(1), "a"));
  Skript.Erwarte("Zu viele Punkte in " + Datei + "\n\nMaximalwert:       1 Punkte");
  EXPECT_EQ(KorDateiInListen(Datei, L, 1, Anzahl), -1);
  EXPECT_EQ(KorAnzahl, 0);
}

}  // namespace
}  // namespace tavorena::test
