#include "Testhilfe.h"

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/records/Protbloecke.h>
#include <tavorena/records/TVProtokollmodul.h>
#include <tavorena/records/Tabellenkopf.h>

namespace tavorena::test {
namespace {

class Protokoll : public TabellenTest {
 protected:
  Protokoll() {
    ProtokollLeeren();
    ProtokollNehmen(Ordner.Pfad("flur7.dru"));
    KoordinatendateiName = "/daten/auftrag/musterdorf.kor";
    Riss = "Riss 12";
    BerNr = "3";
  }
  static std::string Ist() { return Inhalt(ProtokolldateiName); }

  Protanschluss Anschluss() const { return {A, E, {}, {}, {}, {}, 0.07, 0.16}; }
  const Protpunkt A{3500100, 5600200, "1001"}, E{3500160, 5600280, "1002"}, P{3500130, 5600230, "2003"};
};

TEST_F(Protokoll, BlöckeUnterIhrenKöpfen) {
  ProtKopfBeiWechsel("VR 24.40 Linienelemente");
  Protanschluss L = Anschluss();
  L.AnfWert1 = 0.0;
  L.EndWert1 = 99.93;
  ProtLinelAnschluss(L);
  ProtLinelZeile(P, 42, 6, 41.9706, 5.9958);
  ProtLinelZeile(P, 42, -6, {}, {}, " ***gelöscht");
  ProtKopfBeiWechsel("VR 08.40 Polarelemente");
  Protanschluss W = Anschluss();
  W.AnfWert1 = 40.96655;
  W.AnfWert2 = 100.0;
  W.EndWert1 = 12.5;
  W.EndWert2 = 99.98;
  W.Abweichung = 0.02;
  ProtPolelAnschluss(W);
  ProtPolelZeile(P, 21.53345, 42.4264);
  ProtKopfBeiWechsel("VR 22.10 Entfernungskontrolle");
  Protanschluss D = Anschluss();
  D.EndWert2 = 100.0;
  ProtEntfernungskontrolle(D, false);
  D.EndWert1 = 99.8;
  D.Abweichung = 0.2;
  ProtEntfernungskontrolle(D, true);
  ProtMittel({"1001", 3500100.01, 5600200.02, 3500100.03, 5600200, 3500100.02, 5600200.01});
  for (const int Code : {0, 1, 2, 3, 11, 13})
    Bearbeitungsnotiz(Code, Code == 3 ? "9001" : "9002", 0.02, -0.02);
  EXPECT_TRUE(GleichSoll(Ist(), "records/soll/bloecke.dru"));
  EXPECT_EQ(ProtMarken, 2);
}

TEST_F(Protokoll, SpaltenWandernNichtMitDenDezimalen) {
  for (std::int16_t n = 0; n <= 5; ++n) {
    Optionen.OptNachkommastellen = n;
    ProtLinelZeile({1, 2, "12"}, 3, 4, {}, {}, "<");
  }
  std::string Zeilen = Ist();
  for (int i = 0; i < 6; ++i, Zeilen.erase(0, Zeilen.find('\n') + 1)) {
    const std::size_t Einer = i == 0 ? 13 : 12;  // without decimals the digit takes the place of the point
    EXPECT_EQ(Reihe(Zeilen.find('<'), Zeilen[Einer], Zeilen[Einer + 39]), "66|1|4") << Zeilen;
  }
  Optionen.OptNachkommastellen = 6;
  ProtLinelAnschluss(Anschluss());
  EXPECT_TRUE(Ist().ends_with("<\r\n      #Fehler: Zu viele Nachkommastellen#\r\n"));
}

TEST_F(Protokoll, SeitenZählenUndBrechenNach50Zeilen) {
  ProtKopfBeiWechsel("VR 22.10 Entfernungskontrolle");
  EXPECT_EQ(Reihe(ProtZeilen, ProtSeite), "9|2");  // starts at 1, the head has 8 lines
  ProtBlock(std::vector<std::string>(41, "x"));
  EXPECT_EQ(Reihe(ProtZeilen, ProtSeite), "50|2");
  ProtBlock({"x"});
  EXPECT_EQ(Reihe(ProtZeilen, ProtSeite), "1|3");
  EXPECT_TRUE(Ist().ends_with("x\r\n\f"));       // no head on the new page
  ProtKopfBeiWechsel("VR 08.40 Polarelemente");  // the page is fresh: no further form feed
  EXPECT_EQ(ProtSeite, 3);
  ProtBlock({"x"});
  ProtKopfBeiWechsel("VR 08.40 Polarelemente");  // same kind: no head
  ProtKopfBeiWechsel("VR 24.40 Linienelemente");
  const std::string Text = Ist();
  EXPECT_EQ(std::count(Text.begin(), Text.end(), '\f'), 2);
  for (const char* Stück : {"x\r\n\f\r\n---", "Seite  2|", "Seite  3|"})
    EXPECT_NE(Text.find(Stück), std::string::npos);
  ProtOhneUmbruch = true;
  ProtBlock(std::vector<std::string>(99, "y"));
  EXPECT_GT(ProtZeilen, 99);
  EXPECT_TRUE(Ist().ends_with("y\r\n"));
}

TEST_F(Protokoll, ZweitesZielHatEigeneSeiten) {
  ProtZielsatz Eigenes{Ordner.Pfad("eigen.tmp")};
  ProtZeilen = 7;
  ProtSeite = 3;
  ProtZiel(false, Eigenes);
  Optionen.ProtokollfensterAn = true;
  ProtBlock(std::vector<std::string>(50, "z"), 1);
  ProtZiel(true, Eigenes);
  EXPECT_EQ(Reihe(ProtZeilen, ProtSeite, Eigenes.Zeilen, Eigenes.Seite), "7|3|1|2");
  EXPECT_EQ(Inhalt(Eigenes.Datei).size(), 151U);
  EXPECT_EQ(Reihe(ProtokollfensterText, ProtMarken), "|0");  // they belong to the protocol only
  EXPECT_FALSE(DateiVorhanden(ProtokolldateiName));
}

TEST_F(Protokoll, KopfMitLangemPfadOhneRiss) {
  Optionen.AbfrageRiss = false;
  KoordinatendateiName = std::string(71, 'p');
  ProtArt = "Ausgleichende Gerade";
  ProtKopf();
  EXPECT_NE(Ist().find("|..." + std::string(67, 'p') + "|\r\n|Ausgleichende Gerade "), std::string::npos);
  EXPECT_TRUE(Ist().ends_with("-\r\n      \r\n"));  // no table head for this title
  const std::string Druck = Ordner.Pfad("druck.tmp");
  ProtKopfAusgabe(Druck, "VR 24.40 Linienelemente", "/a.kor");
  EXPECT_NE(Inhalt(Druck).find("|VR 24.40  Linienelemente "), std::string::npos);
}

TEST_F(Protokoll, FensterOhneDruckrand) {
  Optionen.ProtokollfensterAn = true;
  ProtBlock({"      Rand", "      Rand", "kurz"});
  EXPECT_EQ(ProtokollfensterText, "      Rand\nRand\nkurz\n");  // the first line of a page keeps it
  for (int i = 0; i < 4000; ++i) ProtBlock({"1234567890"});
  EXPECT_LT(ProtokollfensterText.size(), 32100U);
  EXPECT_TRUE(ProtokollfensterText.starts_with("1234567890\n"));
}

TEST_F(Protokoll, OhneDateiUndMitSchreibfehler) {
  ProtokollNehmen("");
  ProtKopfBeiWechsel("VR 24.40 Linienelemente");
  EXPECT_EQ(ProtLinelAnschluss(Anschluss()), 0);
  ProtNeueSeite();
  ProtLeerzeile();
  EXPECT_EQ(ProtSeite, 1);
  ProtokollNehmen(Ordner.Pfad("fehlt/x.dru"));
  Skript.Erwarte("Fehler aufgetreten beim Schreiben in\n" + ProtokolldateiName);
  EXPECT_EQ(ProtLinelAnschluss(Anschluss()), -1);
}

TEST(Tabellenkopf, JedeArtHatIhrenKopf) {
  std::string Alle;
  for (const char* Titel : {"VR 22.00", "VR 19.70", "VR 09.00", "VR 09.50", "VR 65.00", "VR 10.00",
                            "VR 19.10", "Koordina", "Höhenübe"}) {
    for (const std::string& Zeile : Tabellenkopf(std::string(Titel) + " x", true, "soll.kor"))
      Alle += Zeile + "\r\n";
  }
  EXPECT_TRUE(GleichSoll(Alle, "records/soll/koepfe.dru"));
  EXPECT_EQ(Tabellenkopf("VR 19.70", false, "")[2],
            "          Rechts        Hoch                Hz       Vk       sD         Pnr");
  EXPECT_EQ(Tabellenkopf("VR 09.40", false, ""), Tabellenkopf("VR 23.10", false, ""));
  EXPECT_TRUE(Tabellenkopf("VR 25.50 Mittelbildung", false, "").empty());
}

}  // namespace
}  // namespace tavorena::test
