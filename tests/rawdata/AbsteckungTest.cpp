#include "Testhilfe.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include <tavorena/core/Winkel.h>
#include <tavorena/rawdata/Absteckung.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena::test {
namespace {

TEST(Flg, ZerlegtNachStationen) {
  std::vector<FlgBlock> B;
  // A short line that holds the words is no title; the number stands from character 16 on, behind umlauts
  // too.
  ASSERT_EQ(
      FlgLesen(
          "Kopf\r\nLeica VIP Freie Station\r\nüber Leica VIP Freie Station 1.0\nStation-Nr.  ä:  BP 04 \n"
          "\n 1 1001 23.45678 101.2 99.9876543210123456 x\nein Satz\n-- Leica VIP Freie Station --\n",
          B),
      0);
  ASSERT_EQ(B.size(), 2U);
  EXPECT_TRUE(Gleich(B[0].Standpunkt, "BP 04", B[1].Standpunkt, "", B[1].Zeilen.size(), 0U));
  EXPECT_EQ(
      FlgZeilen(B[0]),
      (std::vector<std::string>{"      Standpunktbestimmung: Leica- Online- Protokolldatei", "      ",
                                "       1      1001    23.45678          101.2 99.9876543210123456         x",
                                "      ein Satz"}));
  EXPECT_EQ(FlgLesen("Station-Nr.    101\n1 2 3 4 5 6\n", B), -1);
  EXPECT_TRUE(B.empty());
}

// Rows as an instrument at 3500100/5600200/100, 1.5 m above it and turned by 50 gon, would measure them.
class Absteckung : public TabellenTest {
 protected:
  Absteckung() {
    Prot = {};
    LetzterPlan = {};
    Auftrag.SollDatei = "/soll.kor";
    Auftrag.Roh.Datei = "a.gsi";
    Auftrag.Soll = {{"1", 3500160, 5600280, 105},
                    {"2", 3500040, 5600280, 98},
                    {"3", 3500100, 5600120, 0},
                    {"11", 3500110, 5600210, 101},
                    {"12", 3500090, 5600210, 0}};
  }
  static Rohpunkt Ziel(const char* Pnr, double R, double H, double Z) {
    const double dR = R - 3500100, dH = H - 5600200, s = std::hypot(dR, dH), dZ = Z + 1.8 - 101.5;
    double Hz = Richtungswinkel(0, 0, dR, dH) - 50;
    GonReduzieren(Hz);
    return {Pnr, "", Hz, WinkelGon(s, dZ), std::hypot(s, dZ), 1.8, 1};
  }
  static Rohblock Block(const char* Pnr, std::vector<Rohpunkt> Punkte, Wert Rechts = {}) {
    return {Pnr, "", 1.5, Rechts, Rechts, Rechts, std::move(Punkte), 1};
  }
  [[nodiscard]] std::string Text() {
    std::string T;
    EXPECT_EQ(Absteckbericht(Auftrag, T, Zahlen), 0);
    return T;
  }
  const std::vector<Rohpunkt> Anschluss = {Ziel("1", 3500160, 5600280, 105), Ziel("2", 3500040, 5600280, 98),
                                           Ziel("3", 3500100, 5600120, 97)};
  Absteckauftrag Auftrag;
  Absteckzahlen Zahlen;
};

// Orientation with a row that the plan lacks, measurement with a point 5 cm off, twice, and what was measured
// once more; a station of one block; one with a single known point; one without any, and its log.
TEST_F(Absteckung, BerichtJeStation) {
  std::vector<Rohpunkt> Mehr = Anschluss;
  Mehr.push_back(Ziel("97", 3500120, 5600220, 100));
  Auftrag.Roh.Blöcke = {
      Block("900", Mehr),
      Block("900", {Ziel("11", 3500110.03, 5600209.96, 101.01), Ziel("11", 3500110.05, 5600209.96, 101.03),
                    Ziel("99", 3500130, 5600190, 100)}),
      Block("900", {Ziel("12", 3500090, 5600210, 99)}),
      Block("901", {Anschluss[0], Anschluss[1], Ziel("98", 3500101, 5600201, 100)}),
      Block("12", {Anschluss[0]}),
      Block("902", {Ziel("77", 3500101, 5600201, 100)})};
  ASSERT_EQ(FlgLesen("Leica VIP Freie Station  1\nStation-Nr.    0902\n1 2 3 4 5 6\n", Auftrag.Flg), 0);
  EXPECT_TRUE(GleichSoll(Text(), "rawdata/soll/absteckung.dru"));
  EXPECT_TRUE(Gleich(Zahlen.Stationen, 4, Zahlen.OhneStation, 1, Zahlen.Punkte, 6, Zahlen.NichtVorhanden, 3,
                     Zahlen.NichtGerechnet, 1));
}

// The heights of the points hold without that of the instrument, but not that of the station.
TEST_F(Absteckung, OhneInstrumentenhöhe) {
  Auftrag.Soll.push_back({"900", 3500100, 5600200, 100});
  for (const std::vector<Rohpunkt>& Punkte : {Anschluss, {Anschluss[0]}}) {
    Auftrag.Roh.Blöcke = {Block("900", Punkte)};
    const std::string Mit = Text();
    Auftrag.Roh.Blöcke[0].Instrumentenhöhe = {};
    const std::string Ohne = Text();
    EXPECT_EQ(Ohne.substr(Ohne.find('\f')), Mit.substr(Mit.find('\f')));
    EXPECT_NE(Mit.find(" 105.000                       1 Ist"), std::string::npos) << Mit;
    EXPECT_EQ(Ohne.find("100.000                                  900 PS"), std::string::npos);
  }
}

TEST_F(Absteckung, SechzigZeilenJeSeite) {
  Auftrag.Roh.Blöcke = {Block("900", Anschluss), Block("900", {})};
  for (int i = 0; i < 70; ++i)
    Auftrag.Roh.Blöcke[1].Punkte.push_back(Ziel(i % 2 == 0 ? "11" : "12", 3500110, 5600210, 101));
  std::istringstream Seiten(Text());
  std::size_t Zeilen = 0;
  for (std::string Seite; std::getline(Seiten, Seite, '\f');) {
    const auto n = std::count(Seite.begin(), Seite.end(), '\n');
    EXPECT_TRUE(n <= 60 && (Zeilen == 0 || Seite.ends_with("Soll-Ist\r\n"))) << Seite;
    Zeilen += static_cast<std::size_t>(n);
  }
  EXPECT_EQ(Zeilen, 21U + 5 * 12 + 70 * 3);  // the station, the heads of five pages, three a point
}

TEST_F(Absteckung, SchreibtDenBerichtUndMeldetWasFehlt) {
  Auftrag.Roh.Blöcke = {Block("900", Anschluss), Block("900", {Anschluss[0]}), Block("901", Anschluss, 1.0),
                        Block("902", Anschluss)};
  const std::string Name = Absteckdatei(Ordner.Pfad("a.gsi"));
  EXPECT_EQ(Name, Ordner.Pfad("a-absteckung.dru"));
  Schreibe(Ordner.Pfad("a.flg"), "kein Protokoll");
  Skript.Erwarte("FLG- Datei\r" + Ordner.Pfad("a.flg") + "\rnicht in Ordnung !");
  EXPECT_TRUE(FlgDateiLesen(Ordner.Pfad("a.flg")).empty());
  EXPECT_EQ(StandpunktzeilenFehlen(Auftrag.Roh),
            "Im Orientierungsblock in\ra.gsi\rfehlt die Standpunktzeile für Standpunkt 900\rfehlt die "
            "Standpunktzeile für Standpunkt 902");
  ASSERT_EQ(RohdatenBerichtAbsteckung(Auftrag, Name, Zahlen), 0);
  EXPECT_EQ(Inhalt(Name), Text());
  Auftrag.Roh.Blöcke.clear();
  EXPECT_TRUE(Text().ends_with("      Keine Messungen vorhanden !\r\n"));
  Auftrag.Roh.Blöcke = {Block("", Anschluss)};  // no station code: the message without a number
  EXPECT_TRUE(StandpunktzeilenFehlen(Auftrag.Roh).ends_with("Standpunktzeile für Standpunkt "));
  Skript.BeiEreignissen = [&] {
    EXPECT_EQ(Skript.Status[4], "   Absteckung: Station 1 von 1   ");
    KorStop = Laufwunsch::Stop;
  };
  EXPECT_EQ(RohdatenBerichtAbsteckung(Auftrag, Name, Zahlen), -1);
  EXPECT_EQ(KorStop, Laufwunsch::Weiter);
}

}  // namespace
}  // namespace tavorena::test
