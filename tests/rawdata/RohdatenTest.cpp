#include "Testhilfe.h"

#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Rohbericht.h>
#include <tavorena/rawdata/Rohumwandlung.h>

namespace tavorena::test {
namespace {

class RohdatenTest : public TabellenTest {
 protected:
  Rohdatenwahl Wahl;
  Rohdaten Roh;

  // "21" (Hz), "22" (V) and so on with their fields, as a line of 8 digits.
  static std::string Messzeile(const std::string& Nummer,
                               const std::vector<std::pair<int, std::string>>& Worte) {
    std::string Zeile = "110001+" + std::string(8 - Nummer.size(), '0') + Nummer + ' ';
    for (const auto& [Wort, Feld] : Worte)
      Zeile += std::to_string(Wort) + (Wort < 30 ? ".322+" : "..00+") + std::string(8 - Feld.size(), '0') +
               Feld + ' ';
    return Zeile + "\r\n";
  }
  static std::string Ziel(const std::string& Nummer, const std::string& Hz = "1000000",
                          const std::string& V = "10000000", const std::string& Strecke = "1000") {
    return Messzeile(Nummer, {{21, Hz}, {22, V}, {31, Strecke}});
  }
  static std::string Station(const std::string& Nummer, const std::string& Ih = "") {
    return "410001+00000000 42....+00000060 43....+" + std::string(8 - Nummer.size(), '0') + Nummer +
           (Ih.empty() ? "" : " 44....+0000" + Ih) + "\r\n";
  }
  // The blocks in short: number, instrument height, and its rows with reflector height.
  std::string Bild(const std::string& Text) {
    EXPECT_EQ(RohtextLesen(Text, Wahl, Roh), 0);
    std::string Alle;
    for (const Rohblock& B : Roh.Blöcke) {
      Alle += "[" + B.Standpunkt + " " + ZahlNachText(B.Instrumentenhöhe.Zahl()).Text() + "]";
      for (const Rohpunkt& P : B.Punkte) Alle += P.Nummer + ":" + ZahlNachText(P.Reflektorhöhe).Text() + " ";
    }
    return Alle;
  }
  std::string Mängel() {
    std::string Alle;
    for (const auto* Liste : {&Roh.Befund.NichtGelesen, &Roh.Befund.NichtGenommen, &Roh.Befund.Auffällig}) {
      for (const Fundstelle& F : *Liste) Alle += F.Was + " " + std::to_string(F.Anzahl) + "|";
    }
    return Alle;
  }
};

TEST_F(RohdatenTest, BlöckeUndHöhen) {
  const std::string Ih = Messzeile("9", {{88, "1600"}}), t = Messzeile("9", {{87, "1300"}});
  EXPECT_EQ(Bild(Ih + t + Ziel("1") + t + Ziel("2")), "[ 1.6]1:1.3 2:1.3 ");
  // Another station clears the instrument height, a further block of the same does not.
  EXPECT_EQ(Bild(Ziel("7") + Station("101") + Ih + t + Ziel("1") + Station("101") + Ziel("2") +
                 Station("102") + Ziel("3")),
            "[101 1.6]1:1.3 [101 1.6]2:1.3 [102 0]3:1.3 ");
  EXPECT_EQ(Mängel(), "vor dem ersten Standpunkt 1|");
  EXPECT_EQ(Roh.Befund.Stationen, 2);
  Wahl.Stationscodes = {"7", "021"};
  Wahl.Ihwert = 3;
  const std::string ImWort1 = "*410004+0000000000000021 42....+000000000000BP04 43....+0000000000001538\r\n";
  EXPECT_EQ(Bild(ImWort1 + Ziel("1") + "410001+00000000 42....+00000007 43....+0000BP05\r\n"),
            "[BP04 1.538]1:0 [BP05 0]");
  Wahl.Stationscodes = {"", "7"};  // a list that ends in a comma
  EXPECT_EQ(Bild(Station("101") + Ziel("1")), "[ 0]1:0 ");
  Wahl.OhneNullen = false;
  EXPECT_EQ(Bild("410001+00000000 42....+00000007 43....+0000BP05\r\n"), "[+0000BP05 0]");
  Wahl = {};
  // Without any code the lines with the station's coordinates open it; with one they only belong to it.
  const std::string Koordinaten = Messzeile("5", {{84, "1000"}, {85, "2000"}, {86, "3000"}});
  EXPECT_EQ(Bild(Koordinaten + Ziel("1") + Messzeile("6", {{84, "1000"}, {85, "2000"}}) + Ziel("2")),
            "[5 0]1:0 [6 0]2:0 ");
  EXPECT_TRUE(Roh.Befund.OhneStationscode && Roh.Blöcke[1].StandRechts.Zahl() == 1 &&
              Roh.Blöcke[1].StandHöhe.IstLeer());
  EXPECT_EQ(Bild(Station("5") + Koordinaten + Ziel("1")), "[5 0]1:0 ");
  int Block = -1;
  EXPECT_TRUE(Gleich(RohdatenOrientierungsblock(Roh, Block), 0, Block, 0));
  EXPECT_EQ(RohdatenOrientierungsblock(Roh, Block), 1);
  EXPECT_EQ(Bild(Station("5") + Station("5") + Station("6")), "[5 0][5 0][6 0]");
  EXPECT_TRUE(Gleich(RohdatenOrientierungsblock(Roh, Block = 0), 2, Block, 2));
}

// No measurement that was there becomes a 0, and none is lost in silence.
TEST_F(RohdatenTest, WasFehltWirdGesagt) {
  const std::tuple<std::string, const char*> Fälle[] = {
      {Messzeile("1", {{21, "1"}, {22, "1"}}), "ohne Strecke 1|"},
      {Messzeile("1", {{22, "1"}, {31, "1"}}), "ohne Richtung 1|"},
      {Messzeile("1", {{21, "1"}, {31, "1"}}), "ohne Zenitwinkel 1|"},
      {Ziel("1", "1", "1", "0"), "Strecke 0 (nur Richtungen) 1|"},
      {Ziel("1", "1", "1", "100000X"), "Wort 31 mit Buchstaben im Wert 1|Strecke nicht lesbar 1|"},
      {Ziel("1", "-----", "1"), "Wort 21 ohne Zahl 1|Richtung nicht lesbar 1|"},
      {"110001+00000001 21.324+00000001 22.322+00000001 31..00+00001000",
       "Einheit 4 in Wort 21 1|Richtung nicht lesbar 1|"},
      // A lost digit draws the blank behind the word into the field.
      {"110001+00000001 21.322+00000001 22.322+00000001 31..00+0001000 71....+00000005",
       "Wort 31 ohne Zahl 1|Wort am Zeilenende abgeschnitten 1|Strecke nicht lesbar 1|"},
      {"110001+00000001 21.322+00000001 22.322+00000001 31..0\x1b+00001000",
       "Einheit ␛ in Wort 31 1|Strecke nicht lesbar 1|"},
      {Messzeile("1", {{81, "1"}, {82, "X"}}),
       "Wort 82 mit Buchstaben im Wert 1|Koordinaten unvollständig 1|"},
      {Messzeile("1", {{87, "1500000"}}), "Höhe über 20 m 1|"},
      {"110001+00000001 58..00+00000001 31..00+000",
       "Wort 58 unbekannt 1|Wort am Zeilenende abgeschnitten 1|"},
      {"410001+00000000 42....+00000060", "Stationscode ohne Nummer 1|"},
      {"410001+00000060 ", "Stationscode ohne Nummer 1|"},
      {"110001         ", "Messung ohne Punktnummer 1|"},
      {std::string("110001+00000001 \0", 17), "Wort am Zeilenende abgeschnitten 1|Zeichen mit dem Code 0 1|"},
      {Messzeile("1", {{71, "5"}}) + Messzeile("1", {{71, "6"}}) + Messzeile("1", {{71, "7"}}),
       "Nummer mit zwei Codes 1|"},
  };
  for (const auto& [Zeile, Soll] : Fälle) {
    EXPECT_EQ(Bild(Zeile), "") << Zeile;
    EXPECT_EQ(Mängel(), Soll) << Zeile;
    EXPECT_EQ(Roh.Befund.Zweifel.empty(), false);
  }
  EXPECT_EQ(Bild(Ziel("1")), "[ 0]1:0 ");
  EXPECT_EQ(Mängel(), "");
  Bild(std::string("\n\0\n", 3));  // it ends a line here
  EXPECT_EQ(Mängel(), "Zeichen mit dem Code 0 1|");
}

TEST_F(RohdatenTest, LagenMitteln) {
  Wahl.LagenMitteln = true;
  const std::string Text = Ziel("1", "39999900", "9950000", "1000") + Ziel("2") + Ziel("2") +
                           Ziel("1", "20000300", "30050200", "1004") + Ziel("1", "10", "9950000") +
                           Ziel("1", "20000010", "30070000") + Ziel("3") + Ziel("3", "21000000", "30000000") +
                           Ziel("3", "21000000", "30000000");
  EXPECT_EQ(Bild(Text), "[ 0]1:0 2:0 2:0 1:0 1:0 3:0 3:0 ");
  const Rohpunkt& P = Roh.Blöcke[0].Punkte[0];
  EXPECT_NEAR(P.Hz, 0.001, 1e-9);
  EXPECT_NEAR(P.V, 99.499, 1e-9);
  EXPECT_NEAR(P.Strecke, 1.002, 1e-9);
  EXPECT_NEAR(Roh.Befund.SpanneHz, 0.004, 1e-9);
}

TEST_F(RohdatenTest, KoordinatenGegenDieTabelle) {
  PunkteAnlegen({{"1", 1000, 80000}, {"2", 1500, 80600}});
  for (const auto& [R, H, Soll] : {std::tuple("1200000", "80300000", ""),
                                   {"80300000", "1200000", "Koordinaten vertauscht 1|"},
                                   {"1200000", "90300000", "Koordinaten außerhalb der Punkttabelle 1|"}}) {
    Bild(Messzeile("5", {{81, R}, {82, H}}));
    EXPECT_EQ(Mängel(), Soll);
  }
  Bild(Messzeile("5", {{81, "1200000"}, {82, "80300000"}, {83, "---"}}));
  EXPECT_TRUE(Roh.Koordinaten.at(0).Höhe.IstLeer());
  Bild("*110001+0000000000000005 81..00+0000001200000000 82..00+0000080300000000");
  EXPECT_EQ(Mängel(), "Koordinaten 1000mal zu groß 1|");
  Roh.Koordinaten.push_back({"1 A", "B C", 1, 2, {}, 1});
  int Anzahl = 0;
  Skript.Erwarte("1 Punkt fehlt in der KOR-Datei");
  EXPECT_EQ(RohkoordinatenAlsKor(Roh, 1, Anzahl),
            "           1_A         1.0         2.0       0.0  B_C\r\n");
  EXPECT_EQ(Anzahl, 1);
}

TEST_F(RohdatenTest, DialekteUndBericht) {
  std::string Text = "\xEF\xBB\xBF" + Station("101", "1538") + Ziel("BP1", "100", "30000000") +
                     "\r\n*110002+0000000000000002 83..00+00000000000-----\n" + "zu kurz\r" + Station("101") +
                     "Bemerkung eines Menschen\r\n" + Ziel("3") + "410009+00000061 42....+00000001";
  Schreibe(Ordner.Pfad("a.gsi"), Text);
  Wahl.Ihwert = 3;
  ASSERT_EQ(RohdatenLesen(Ordner.Pfad("a.gsi"), Wahl, Roh), 0);
  Roh.Datei = "a.gsi";
  std::string Alles;
  for (const std::string& Zeile : RohdatenBericht(Roh)) Alles += Zeile + "\n";
  for (const Zweifelszeile& Z : Roh.Befund.Zweifel)
    Alles += std::to_string(Z.Zeile) + ": " + Z.Text + " <- " + Z.Grund + "\n";
  EXPECT_TRUE(GleichSoll(Alles, "rawdata/soll/rohbericht.txt"));
  std::string Grund;
  EXPECT_TRUE(Gleich(RohdatenLesen(Ordner.Pfad("fehlt.gsi"), Wahl, Roh, &Grund), -1, Grund, ""));
  EXPECT_EQ(RohdatenLesen(Ordner.Pfad("."), Wahl, Roh, &Grund), -1);
  EXPECT_NE(Grund, "");
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  std::string Viele;
  for (int i = 0; i < 300; ++i) Viele += Ziel("1");
  EXPECT_EQ(RohtextLesen(Viele, Wahl, Roh), -2);
  EXPECT_TRUE(Roh.Blöcke.empty());
}

TEST_F(RohdatenTest, Umwandlungen) {
  const std::string Quelle = Ordner.Pfad("a.gsi"), Ab = Ordner.Pfad("b");
  Schreibe(Quelle, Station("101") + "Notiz\n" + Messzeile("\xC4", {{31, "1234"}, {87, "1"}}) +
                       Messzeile("2", {{81, "12345678"}, {82, "-"}, {84, "40000"}}) +
                       "*110001+0000000000000005 31..06-0000000000000007 33..00 00000\r");
  Umwandlung U;
  std::string Grund;
  EXPECT_EQ(RohdatenKonvertieren(Quelle, Ab, U, &Grund), 0);
  EXPECT_EQ(Inhalt(Ab),
            " Code       60 I1 101\r\n Nr+0000000Ä sD    1.234 ReflH    0.001\r\n Nr        2 Rw ****.*** "
            "Rw(Station)   40.000\r\n Nr        5 sD   -0.0007\r\n");
  EXPECT_TRUE(Gleich(U.Zeilen, 4U, U.Sterne, 1U, U.Ohne, 2U));
  EXPECT_TRUE(Gleich(RohdatenZehnZuEins(Quelle, Ab, U, &Grund), -1, Grund, "ist schon vorhanden"));
  Skript.Erwarte("Bitte unbedingt einen Vermerk in der KAFKA- DAT- Datei anbringen !");
  EXPECT_EQ(RohdatenZehnZuEins(Quelle, Ab, U, &Grund, true), 0);
  EXPECT_EQ(Inhalt(Ab), Station("101") + "Notiz\n" + Messzeile("\xC4", {{31, "12340"}, {87, "1"}}) +
                            Messzeile("2", {{81, "********"}, {82, "-"}, {84, "400000"}}) +
                            "*110001+0000000000000005 31..06-0000000000000070 33..00 00000\r");
  Koordinatenbasis B;
  EXPECT_TRUE(Gleich(RohdatenBasisAbziehen(Quelle, Ab, 1, Rohform::GSI, B, U, &Grund, true), 1));
  EXPECT_EQ(RohdatenBasisAbziehen(Quelle, Ab, 3, Rohform::GSI, B, U, &Grund, true), 1)
      << "40 m stand below 12345 m";
  Schreibe(Quelle, "Nr 1 RW 3500100.12 HW 5600200.5\r\nNr 2 RW 3499999.00 HW 0.000\r\nNr 3 RW 35001O0\r\n");
  EXPECT_EQ(RohdatenBasisAbziehen(Quelle, Ab, 2, Rohform::GRE, B, U, &Grund, true), 0);
  EXPECT_EQ(Inhalt(Ab),
            "Nr 1 RW   10100.12 HW     200.5\r\nNr 2 RW    9999.00 HW 0.000\r\nNr 3 RW 35001O0\r\n");
  EXPECT_TRUE(Gleich(U.Werte, 3U, U.Ohne, 1U));
  for (const auto& [Modus, Soll] : {std::pair(1, 5600000.0), {2, 5650000.0}, {3, 5654000.0}}) {
    EXPECT_TRUE(RohdatenReduktion(Modus, 99, 5654321, B));
    EXPECT_TRUE(Gleich(B.Rechts, 0.0, B.Hoch, Soll));
  }
}

}  // namespace
}  // namespace tavorena::test
