#include "Testhilfe.h"

#include <random>

#include <tavorena/rawdata/GRE.h>
#include <tavorena/rawdata/Rohbericht.h>

namespace tavorena::test {
namespace {

std::string Gelesen(const std::string& Zeile, Rohform Form = Rohform::GSI, bool Alle = false) {
  std::string Liste = RohdatenSatzliste(Zeile, Form, Alle).substr(2);
  Liste.pop_back();
  std::replace(Liste.begin(), Liste.end(), '\t', ' ');
  return Liste;
}

TEST(Gsi, WasEineZeileHält) {
  const std::string Null16(16, '0');
  const std::tuple<const char*, std::string, std::string> Fälle[] = {
      {"ein Zeichen zu kurz", "110001+0000100", "-1"},
      {"Nullen der Nummer", "110001+00000000", "0 11:0001:0"},
      {"neun Stellen ohne Vorzeichen", "110001100000007", "0 11:0001:100000007"},
      {"Nummer mit Buchstaben", "110001+0000BP04", "0 11:0001:+0000BP04"},
      {"16 Stellen mit Buchstaben", "*110001+000000000000BP04", "0 11:0001:BP04"},
      {"16 Stellen, nur Nullen", "*110001+" + Null16, "0 11:0001:0"},
      {"andere Art", "?......2 00000000", "-2"},
      {"letztes Wort ohne Leerzeichen", "110001+00001001 21.322+12345678",
       "0 11:0001:1001 21:.322:123.456780"},
      {"letztes Wort abgeschnitten", "110001+00001001 21.322+1234567", "0 11:0001:1001"},
      {"ohne Vorzeichen linksbündig", "110001+00000001 31..0000055430 ", "0 11:0001:1 31:..00:55.430000"},
      {"Umlaute zählen als ein Zeichen", "110001+00000ÄÖ1 22.322-00000100",
       "0 11:0001:+00000ÄÖ1 22:.322:-0.001000"},
      {"Grad werden gon", "110001+00000001 22.323+09000000", "0 11:0001:1 22:.323:100.000000"},
      {"Strecken", "110001+00000001 31..00+00055430 32..06+00554305 33..08-05543051",
       "0 11:0001:1 31:..00:55.430000 32:..06:55.430500 33:..08:-55.430510"},
      {"Wort 25 mit 8 Stellen", "110001+00000001 25.322+00100000", "0 11:0001:1 21:.322:1.000000"},
      {"Wort 25 mit 16 Stellen", "*110001+0000000000000001 25.322+0000000000100000", "0 11:0001:1"},
      {"unbekannte Einheit ist 0", "110001+00000001 31...9+00055430", "0 11:0001:1 31:...9:0.000000"},
      {"Höhe ohne Teiler", "110001+00000001 87....+00001.55 88...1+00000002",
       "0 11:0001:1 87:....:1.550000 88:...1:2.000000"},
      {"Vorzeichen leer, Striche", "110001 00000012 81...0 00001000 83...0+000-----",
       "0 11:0001:12 81:...0:1.000000 83:...0:0.000000"},
      {"Texte", "110001+00000001 71....+00000301 51..1.+0010+034",
       "0 11:0001:1 51:..1.:+0010+034 71:....:301"},
      {"ab dem zwölften Wort ist Schluß",
       "110001+00000001 " +
           [] {
             std::string s;
             for (int i = 0; i < 10; ++i) s += "58..00+00000000 ";
             return s;
           }() +
           "31..00+00001000",
       "0 11:0001:1"},
      {"Codeblock", "410007+?......2 42....+00000060 43....+0000BP04 44....+0000154",
       "1 Nr:0007 Anzahl:2 60 +0000BP04"},
      {"Codeblock mit 16 Stellen", "*410004+0000000000000021 42....+000000000000BP04 43....+0000000000001538",
       "1 Nr:0004 Anzahl:2 BP04 1538"},
  };
  for (const auto& [Was, Zeile, Soll] : Fälle) EXPECT_EQ(Gelesen(Zeile), Soll) << Was;
  const char* const Fremd = "110001+00000001 21.104+09030000 22.105+16000000 31..01+00001000 32..07+00010000";
  EXPECT_EQ(Gelesen(Fremd),
            "0 11:0001:1 21:.104:0.000000 22:.105:0.000000 31:..01:0.000000 32:..07:0.000000");
  EXPECT_EQ(Gelesen(Fremd, Rohform::GSI, true),
            "0 11:0001:1 21:.104:100.555556 22:.105:100.000000 31:..01:0.304800 32:..07:0.304800");
}

TEST(Gre, WasEineZeileHält) {
  const std::tuple<const char*, const char*> Fälle[] = {
      {" Nr     1001 Hz  23.45670 v 99.12 sD 55.4301 hD 55.4 DH 1.234 (R 0034) x 1",
       "0 11:....:1001 21:.322:23.456700 22:.322:99.120000 31:..06:55.430100 32:..00:55.400000 "
       "33:1.00:1.234000 51:..1.:+00000034"},
      {"NR1001 RW 3500100.123 HW(STATION) 2 HO 7,5 INSTRH 1.55",
       "0 11:....:1001 81:....:3500100.123000 83:....:7.500000 85:....:2.000000 88:....:1.550000"},
      {"Nr 7 Ho_ZB 1.2345", "0 11:....:7 83:....:1.234500"},
      {"code 60 I1 101 I2 1.550", "1 Nr: Anzahl:3 60 101 1.550"},
      {"x", "-1"},
      {"Datum 1.2.", "-2"},
  };
  for (const auto& [Zeile, Soll] : Fälle) EXPECT_EQ(Gelesen(Zeile, Rohform::GRE), Soll);
}

// Any record that the form can hold comes back as it was.
TEST(Rohzeilen, SchreibenUndLesen) {
  std::mt19937 Zufall(19700101);
  const auto Ziehe = [&](int Bis) { return std::uniform_int_distribution<int>(0, Bis)(Zufall); };
  for (int i = 0; i < 2000; ++i) {
    Messsatz S;
    S.Nummer = {true, {'0', '0', '0', static_cast<char>('0' + i % 10)}, std::to_string(Ziehe(99999998) + 1)};
    for (const int Wort : {21, 22, 31, 32, 33, 81, 82, 83, 84, 85, 86, 87, 88}) {
      if (Ziehe(2) != 0) continue;
      const char Einheit = Wort < 30 ? '2' : "068"[Ziehe(2)];
      const double Teiler = Einheit == '0' ? 1e3 : Einheit == '6' ? 1e4 : 1e5;
      *MesswertVon(S, Wort) = {
          true, true, {'.', '3', '1', Einheit}, (Ziehe(39999999) - (Wort < 30 ? 0 : 9999999)) / Teiler};
    }
    if (Ziehe(1) == 0) S.Code = {true, {}, "-----"};
    const std::string Zeile = GSIZeileSchreiben(S);
    Messsatz Wieder;
    if (Zeile.size() <= 11 * 16) {
      ASSERT_EQ(GSIZeileLesen8(Zeile, Wieder), 0);
      for (const int Wort : {21, 22, 31, 32, 33, 81, 82, 83, 84, 85, 86, 87, 88}) {
        const Messwert &A = *MesswertVon(S, Wort), &B = *MesswertVon(Wieder, Wort);
        ASSERT_TRUE(A.Da == B.Da && A.Wert == B.Wert && (!A.Da || A.Info == B.Info)) << Zeile << Wort;
      }
      ASSERT_TRUE(Wieder.Nummer.Text == S.Nummer.Text && Wieder.Code.Text == S.Code.Text) << Zeile;
    }
    ASSERT_EQ(GREZeileLesen(GREZeileSchreiben(S), Wieder), 0);
    EXPECT_TRUE(Wieder.Hz.Wert == S.Hz.Wert && Wieder.V.Wert == S.V.Wert &&
                Wieder.Nummer.Text == S.Nummer.Text);
  }
}

TEST(Rohzeilen, Schreiben) {
  Messsatz S;
  S.Nummer = {true, {'x', '0', '0', '1'}, "BP04"};
  S.Hz = {true, true, {'.', '3', '2', '3'}, 100};
  S.V = {true, false, {'.', '3', '2', '2'}, 0};
  S.Strecke = {true, true, {'.', '.', '0', '0'}, -0.0005};
  S.Höhenunterschied.Info[0] = '2';
  S.Höhe = {true, true, {'.', '.', '0', '0'}, 123456.789};
  S.Reflektorhöhe = {true, true, {'.', '.', '.', '.'}, 1.55};
  S.Code = {true, {'.', '.', '.', '.'}, "123456789"};
  EXPECT_EQ(
      GSIZeileSchreiben(S),
      "11....+0000BP04 21.322+10000000 31..00+00000000 83..00+******** 87....+00001.55 71....+******** ");
  EXPECT_EQ(GREZeileSchreiben(S), " Nr     BP04 Hz 100.00000 sD   -0.001 Ho_VB ****.*** ReflH 1.55");
  Codeblock B{"12", "21", {"62", "1550", "1.600", "A"}, 4};
  EXPECT_EQ(GSICodeblockSchreiben(B),
            "410012+00000021 42....+00000062 43....+00001550 44....+0001.600 45....+0000000A ");
  B.Wort1 = "0";
  EXPECT_EQ(GRECodeblockSchreiben(B), " Code       62 I1    1.550 I2 1.600 I3 A");
  S.Nummer.Text = "BP 4";
  EXPECT_EQ(GREZeileSchreiben(S).substr(0, 15), " Nr     BP_4 Hz");
  B.Werte[0] = "75";
  B.Werte[2] = "1600";
  EXPECT_EQ(GRECodeblockSchreiben(B), " Code       75 I1    1.550 I2 1600 I3 A");
}

TEST(Rohzeilen, PunktAlsZeile) {
  const auto Zeile = [](GSIAusgabe Art, int Nr) {
    return KoordinateAlsGSI(Art, Nr, "12345678901234567Ä", 3500100.1235, -0.0005, 210.5, "15");
  };
  const std::string Lage = "*110001+345678901234567Ä 81...0+0000003500100124 82...0+0000000000000000";
  EXPECT_EQ(Zeile(GSIAusgabe::NurLage, 10000), Lage);
  EXPECT_EQ(Zeile(GSIAusgabe::MitHöhe, 1), Lage + " 83...0+0000000000210500");
  EXPECT_EQ(Zeile(GSIAusgabe::MitHöheUndCode, 1), Lage + " 83...0+0000000000210500 71....+0000000000000015");
}

}  // namespace
}  // namespace tavorena::test
