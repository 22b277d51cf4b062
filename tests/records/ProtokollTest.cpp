#include "Aktentest.h"

#include <tavorena/records/Aufzeichnung.h>
#include <tavorena/records/Dis.h>
#include <tavorena/records/Linel.h>
#include <tavorena/records/Neupunktblock.h>
#include <tavorena/records/Polel.h>
#include <tavorena/records/Tabellenkopf.h>
#include <tavorena/records/Vergleichsblock.h>

namespace tavorena::test {
namespace {

class ProtokollTest : public Aktentest {
 protected:
  ProtokollTest() {
    Optionen.AbfrageRiss = true;
    ProtokollNehmen(Ordner.Pfad("flur7.dru"));
    KoordinatendateiName = "/daten/auftrag/musterdorf.kor";
  }
  static std::string Ist() { return Inhalt(Prot.Datei); }
  static std::shared_ptr<const Verbindung> Über(const char* Titel, Block Zeilen = {},
                                                Plan Riß = {"Riss 12", "3"}) {
    Verbindung V;
    V.Titel = Titel;
    V.Riß = std::move(Riß);
    V.Zeilen = std::move(Zeilen);
    return std::make_shared<const Verbindung>(std::move(V));
  }
  static int Anzahl(const std::string& Stück) { return Aktentest::Anzahl(Ist(), Stück); }

  Protanschluss Anschluss(const Wert& Anf1, const Wert& Anf2, const Wert& End1, const Wert& End2,
                          double Abweichung) const {
    return {A, E, Anf1, Anf2, End1, End2, Abweichung, 0.16};
  }
  static void Gib(const std::shared_ptr<const Verbindung>& V, const Block& B = {{"x"}}) {
    ASSERT_EQ(Schreiben(Prot, V, B), 0);
  }
  const Protpunkt A{3500100, 5600200, "1001"}, E{3500160, 5600280, "1002"}, P{3500130, 5600230, "2003"};
  const char *const Linien = "VR 24.40 Linienelemente", *const Polar = "VR 08.40 Polarelemente",
                    *const Kontrolle = "VR 22.10 Entfernungskontrolle";
};

TEST_F(ProtokollTest, BlöckeStehenUnterIhrenKöpfen) {
  const auto LinienV = Über(Linien, LinelAnschluss(3, Anschluss(0.0, {}, 99.93, {}, 0.07)));
  Gib(LinienV, LinelZeile(3, P, 42, 6, 41.9706, 5.9958));
  Gib(LinienV, LinelZeile(3, P, 42, -6, {}, {}, " ***gelöscht"));
  const Block W = PolelAnschluss(3, Anschluss(40.96655, 100.0, 12.5, 99.98, 0.02));
  Gib(Über(Polar, W), PolelZeile(3, P, 21.53345, 42.4264));
  const auto KontrolleV = Über(Kontrolle);
  Gib(KontrolleV, DisZeile(3, Anschluss({}, {}, {}, 100.0, 0.07), false));
  const Block D = DisZeile(3, Anschluss({}, {}, 99.8, 100.0, 0.2), true);
  Gib(KontrolleV, D);
  EXPECT_TRUE(Gleich(W.Marken, 0, D.Marken, 1));
  EXPECT_EQ(ProtBlock(Prot, MittelBlock(3, {"1001", 3500100.01, 5600200.02, 3500100.03, 5600200, 3500100.02,
                                            5600200.01})),
            0);
  using enum NeupunktCode;
  for (const NeupunktCode Code : {Neu, AlterErsetzt, Gemittelt, AlterNeunum, NeuerVerworfen, NeuerNeunum})
    EXPECT_EQ(ProtBlock(Prot, Bearbeitungsnotiz(3, Code, Code == AlterNeunum ? "9001" : "9002", 0.02, -0.02)),
              0);
  EXPECT_TRUE(GleichSoll(Ist(), "records/soll/bloecke.dru"));
}

TEST_F(ProtokollTest, SpaltenWandernNichtMitDenDezimalen) {
  for (int n = 0; n <= 5; ++n) {
    const std::string Zeile = LinelZeile(n, {1, 2, "12"}, 3, 4, {}, {}, "<").Zeilen.front();
    const std::size_t Einer = n == 0 ? 13 : 12;  // without decimals the digit takes the place of the point
    EXPECT_TRUE(Gleich(Zeile.find('<'), 66U, Zeile[Einer], '1', Zeile[Einer + 39], '4')) << Zeile;
  }
  EXPECT_EQ(LinelAnschluss(6, Anschluss({}, {}, {}, {}, 0)).Zeilen,
            std::vector<std::string>{"      #Fehler: Zu viele Nachkommastellen#"});
}

TEST(Vergleichsblock, SollIstUndDifferenz) {
  const std::vector<Vergleichspaar> Paare = {
      {{"1001", 3500100.01, 5600200.02, 123.45}, {"1001", 3500100.03, 5600200, 123.44}}};
  EXPECT_EQ(Vergleichsblock(3, Paare, false).Zeilen,
            (std::vector<std::string>{
                "      3500100.010  5600200.020     123.450                    1001 Soll",
                "      3500100.030  5600200.000     123.440                    1001 Ist",
                "           -0.020        0.020       0.010      0.028              Soll-Ist"}));
  EXPECT_EQ(Vergleichsblock(4, Paare, true).Zeilen[2],
            "                                     0.0100                        Soll-Ist");
}

TEST_F(ProtokollTest, SeiteBrichtNach50Zeilen) {
  const auto V = Über(Kontrolle);
  Gib(V, {});
  EXPECT_TRUE(Gleich(Prot.Zeilen, 9, Prot.Seite, 2));  // starts at 1, the head has 8 lines
  Gib(V, {std::vector<std::string>(41, "x")});
  EXPECT_EQ(Prot.Zeilen, 50);
  Gib(V);
  EXPECT_TRUE(Gleich(Prot.Zeilen, 1, Prot.Seite, 3));
  EXPECT_TRUE(Ist().ends_with("x\r\n\f"));  // no head on the new page
  Prot.OhneUmbruch = true;
  Gib(V, {std::vector<std::string>(99, "y")});
  EXPECT_EQ(Prot.Zeilen, 100);
}

TEST_F(ProtokollTest, NeueArtBeginntEineSeite) {
  Gib(Über(Kontrolle));
  ASSERT_EQ(ProtNeueSeite(Prot), 0);
  const auto V = Über(Polar);
  Gib(V);  // the page is fresh: no further form feed
  EXPECT_EQ(Prot.Seite, 3);
  Gib(V);  // the same kind: no head
  Gib(Über(Linien));
  EXPECT_TRUE(
      Gleich(Anzahl("\f"), 2, Anzahl("x\r\n\f\r\n---"), 2, Anzahl("Seite  2|"), 1, Anzahl("Seite  3|"), 1));
}

// What stands above the next line is known: it is repeated only where something else came in between.
TEST_F(ProtokollTest, VerbindungStehtÜberIhrenZeilen) {
  const auto A1 = Über(Linien, {{"Anschluss A"}}), B1 = Über(Linien, {{"Anschluss B"}});
  for (const auto& V : {A1, A1, B1, A1}) Gib(V);
  EXPECT_EQ(Anzahl("Seite"), 1);
  EXPECT_EQ(Anzahl("Anschluss A\r\nx\r\nx\r\nAnschluss B\r\nx\r\nAnschluss A\r\nx\r\n"), 1);
  Gib(Über(Linien, {{"Anschluss C"}}, {"Riss 13", "3"}));
  EXPECT_EQ(Anzahl("(Riss 13) 3"), 1);
  Optionen.AbfrageRiss = false;  // heads without a plan do not differ by it
  Gib(A1);
  EXPECT_EQ(Anzahl("Seite"), 2);
}

TEST_F(ProtokollTest, FremdGeänderteDateiBeginntMitDemKopf) {
  const auto V = Über(Linien, {{"Anschluss"}});
  Gib(V);
  Schreibe(Prot.Datei, Ist() + "von Hand\r\n");
  Gib(V);
  EXPECT_TRUE(Gleich(Anzahl("von Hand\r\n\f\r\n---"), 1, Anzahl("Anschluss\r\nx\r\n"), 2));
  ASSERT_EQ(DateiLöschen(Prot.Datei), 0);
  Gib(V);
  EXPECT_TRUE(Ist().starts_with("\r\n---"));  // the file begins anew, without a form feed
  EXPECT_EQ(Anzahl("Anschluss\r\nx\r\n"), 1);
}

TEST_F(ProtokollTest, EigenesZielHatNurDieBlöcke) {
  Protokoll Eigenes;
  Eigenes.Datei = Ordner.Pfad("eigen.tmp");
  Eigenes.OhneKopf = true;
  Optionen.ProtokollfensterAn = true;
  const auto V = Über(Linien, {{"Anschluss"}});
  for (int i = 0; i < 2; ++i) ASSERT_EQ(Schreiben(Eigenes, V, {{"z"}}), 0);
  EXPECT_TRUE(Gleich(Inhalt(Eigenes.Datei), "Anschluss\r\nz\r\nz\r\n", Protokollfenster.Text, "", Prot.Zeilen,
                     1, DateiVorhanden(Prot.Datei), false));
}

// Printed alone a worksheet's records look as they do in the protocol, page for page.
TEST_F(ProtokollTest, EigenesZielWirdGedrucktWieDasProtokoll) {
  DateinameProtokollTemp = Ordner.Pfad("prot.tmp");
  Aufzeichnung Akten;
  Aufzeichnung::Spur Wo;
  Akten.Öffnen(false);
  EXPECT_EQ(Akten.Drucktext(), "");
  for (const char* Titel : {"VR 19.70 Polare Punkte", Polar}) {
    ASSERT_EQ(Akten.Beginnen(*Über(Titel, {{"Anschluß"}})), 0);
    for (int i = 0; i < 60; ++i) ASSERT_EQ(Akten.Zeile({{"z"}}, "", Wo), 0);
    ASSERT_EQ(Akten.Beenden(), 0);
  }
  EXPECT_TRUE(Gleich(Akten.Drucktext(), Ist(), Anzahl("\f"), 3, Anzahl("Seite  3|"), 1));
  DateinameProtokollTemp.clear();
}

TEST_F(ProtokollTest, LangerPfadImKopfWirdVornGekürzt) {
  Optionen.AbfrageRiss = false;
  KoordinatendateiName = std::string(71, 'p');
  Gib(Über("Ausgleichende Gerade"), {});
  EXPECT_NE(Ist().find("|..." + std::string(67, 'p') + "|\r\n|Ausgleichende Gerade "), std::string::npos);
  EXPECT_TRUE(Ist().ends_with("-\r\n      \r\n"));  // no table head for this title
  const std::string Druck = Ordner.Pfad("druck.tmp");
  for (const int Seite : {0, 17}) ASSERT_EQ(ProtKopfAusgabe(Druck, *Über(Linien), "/a.kor", Seite), 0);
  for (const char* Stück : {"|VR 24.40  Linienelemente ", "Seite  2|", "Seite 17|"})
    EXPECT_NE(Inhalt(Druck).find(Stück), std::string::npos) << Stück;
}

TEST_F(ProtokollTest, FensterZeigtOhneDruckrand) {
  Optionen.ProtokollfensterAn = true;
  ASSERT_EQ(ProtBlock(Prot, {{"      Rand", "      Rand", "kurz"}}), 0);
  EXPECT_EQ(Protokollfenster.Text, "      Rand\nRand\nkurz\n");  // the first line of a page keeps it
  for (int i = 0; i < 80; ++i) ASSERT_EQ(ProtBlock(Prot, {std::vector<std::string>(50, "1234567890")}), 0);
  EXPECT_LT(Protokollfenster.Text.size(), 32100U);
  EXPECT_TRUE(Protokollfenster.Text.starts_with("1234567890\n"));
}

TEST_F(ProtokollTest, OhneDateiGeschiehtNichts) {
  ProtokollNehmen("");
  Gib(Über(Linien));
  EXPECT_TRUE(Gleich(ProtNeueSeite(Prot), 0, ProtLeerzeile(Prot), 0, Prot.Seite, 1));
}

TEST_F(ProtokollTest, SchreibfehlerLäßtDenStand) {
  ProtokollNehmen(Ordner.Pfad("fehlt/x.dru"));
  Skript.Erwarte("Fehler aufgetreten beim Schreiben in\n" + Prot.Datei);
  EXPECT_TRUE(Gleich(Schreiben(Prot, Über(Linien), {{"x"}}), -1, Prot.Seite, 1, Prot.HatInhalt, false));
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
