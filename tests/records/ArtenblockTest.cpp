#include "Aktentest.h"

#include <tavorena/records/Ausgleichblock.h>
#include <tavorena/records/DreiD.h>
#include <tavorena/records/FStat.h>
#include <tavorena/records/Kreismitte.h>
#include <tavorena/records/Messlinie.h>
#include <tavorena/records/Nivellement.h>
#include <tavorena/records/Pol.h>
#include <tavorena/records/Polar.h>
#include <tavorena/records/Polel.h>
#include <tavorena/records/Rueckwaerts.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/records/Transformation.h>
#include <tavorena/records/Vorwaerts.h>
#include <tavorena/records/Zug.h>

// The lines of all kinds of calculations in the protocol.

namespace tavorena::test {
namespace {

const Protpunkt A{3500100, 5600200, "1001"}, E{3500160, 5600280, "1002"}, B{3500200, 5600300, "1008"};

const Prottransformation Passung{3500100, 5600200, 2500100, 5600300, {{0.012, -0.004, 0.013, "1001"}},
                                 0.007,   0.01};
Protaffin Affin(bool AufGerader) {
  Protaffin T{Passung, AufGerader, 1, 12.5, 1, 87.5, -12.5, 1, 0, 0, 0, 1};
  T.Passung.MK = T.Passung.ML = Wert();
  return T;
}

Protzug Zug(bool Ganz) {
  return {"7",
          Ganz,
          Ganz,
          !Ganz,
          Ganz,
          !Ganz,
          {3499900, 5600300, "1030"},
          {3500600, 5600600, "1033"},
          {{3500100, 5600200, "1031"}, 127.5291, 128.082, {}},
          {{3500400, 5600300, "1032"}, 171.8376, {}, {}},
          {{{3500200.003, 5600280.001, "2021"}, 267.1799, 107.713, {"      *** Notiz"}},
           {{3500299.999, 5600240.001, "2022"}, 141.3728, 116.634, {}}},
          316.228,
          352.429,
          {-0.0027, 0.01},
          {-0.04, 0.139},
          {0.001, 0.139}};
}

ProtFStat Station(bool Kongruent) {
  ProtFStat S{Kongruent,
              !Kongruent,
              {{0.004, -0.002, 0.004, 0.003, {A, 210.5, 23.4567, 99.1234, 55.43, 0}}},
              1.000021,
              123.45678,
              0.006,
              0.008,
              {3500140.123, 5600190.456, "2031"},
              208.765};
  if (Kongruent) S.StandHoehe = S.Punkte[0].dHo = S.Punkte[0].Messung.Hoehe = Wert();
  return S;
}

Protnivellement Niv() {
  const Wert Ohne;
  const Protnivlinie Linie{{{"101", 1.234, Ohne, Ohne, Ohne, 182.3051, true},
                            {"9001", Ohne, 2.5, Ohne, Ohne, 181.0391, false, true},
                            {"102", Ohne, Ohne, 0.98765, -0.0012, 182.5503, true}},
                           1.234,
                           0.98765,
                           {{"101", "102", true, {-0.0012, 0.0034}, 0.0512}}};
  Protnivellement N{{Linie, Linie}, {{0.0021, 0.5}}, 1.49};
  N.Linien[1].Abschnitte = {{"101", "102", true, {0.0035, 0.0034}, 0.0512}, {"102", "7", false, {}, 12.3}};
  return N;
}

Protflaeche Flaeche() {
  Protflaeche F{"Flurstück 12/3", "Ost", {}, 146.365, 279.56, 1479.56, 1479.56};
  const Protpunkt P{3500100, 5600230, "1002"};
  F.Kanten = {{A, 30, Kantenart::Linie, 0, false, 30.02, -0.02, 0.103},
              {P, 46.365, Kantenart::Außen, 25, false, {}, {}, {}},
              {P, 46.365, Kantenart::InnenLang, -25, false, 46.6, -0.235, 0.118},
              {P, 0, Kantenart::Innen, 5, true, {}, {}, {}}};
  return F;
}

// Each kind as it is printed most fully.
std::vector<Block> Gemeinsame(int n) {
  const Protgerade G{A, E, Linienart::Original, 0, {}};
  const Protpunkt P6{3500131.563, 5600237.917, "2006"}, P7{3500131.25, 5600241.5, "2007"},
      P11{3500119.999, 5600219.999, "2011"};
  const Protbogenpunkt Bogen{{3500102.322, 5600237.678, "1011"}, 25.001};
  Protzug Ohne = Zug(true), Offen = Ohne;
  Ohne.WinkelVerteilt = Offen.Abschluss = false;
  Ohne.FW.Ist = 1;
  Ohne.FL.Zulaessig = Ohne.FQ.Zulaessig = Wert();
  Offen.Neue.clear();
  return {
      MesslinieAnschluss(n, {A, E, 0.0, {}, 99.93, {}, 0.07, 0.16}),
      MesslinieZeile(n, {3500151.036, 5600343.1, "2002"}, 145, -45, MesslinieMarken(0, 145, -45, 100, 2)),
      GeradenschnittBlock(n, {A, E, Linienart::Abstand, 2.5, {}}, {A, E, Linienart::Parallele, 0, B}, P6,
                          81.9331, 3),
      GeradenschnittBlock(n, {A, E, Linienart::Senkrechte, 0, B}, G, P7, 7.3211, 3),
      KreisGeradeBlock(n, {A, 80.5, E}, G, {P7, {3500131.25, 5600241.5, "0"}}, 0.3125, 3),
      BogenschnittBlock(n, {A, 80, {}}, {E, 50, {}}, {{3500131, 5600241, ""}, {3500132, 5600242, "2008"}}, 2,
                        3),
      KreismitteBlock(n, {Bogen, Bogen, Bogen}, P11, 3, 0),
      KreismitteZeile(n, P11, 69.997, ""),
      SchnittZeile(n, P6, 81.9331, MarkeGelöscht),
      VorwaertsBlock(n,
                     {{A, 39.5167, {3500100, 5600300, "1006"}, 10},
                      {{3500160, 5600200, "1007"}, 366.2595, B, 20},
                      {3500130, 5600260, "2012"},
                      59.0334,
                      211.234,
                      0.013},
                     3),
      RueckwaertsBlock(n, {false,
                           {{{{3500000, 5600300, "1021"}, 305.5502},
                             {{3500120, 5600350, "1022"}, 362.4604},
                             {{3500300, 5600290, "1023"}, 38.9988}}},
                           154.3835,
                           87.8321,
                           {3500130, 5600210, "2013"}}),
      RueckwaertsBlock(n, {true, {{{A, 300}, {E, 10}, {B, 211}}}, 12, 3, A}),
      ZugBlock(n, Zug(true), 3),
      ZugBlock(n, Zug(false), 3),
      ZugBlock(n, Ohne, 3),
      ZugBlock(n, Offen, 3),
      FlaechenBlock(n, Flaeche(), 3),
      AusgleichBlock(n, {false,
                         {3500100, 5600200, "2041"},
                         {3500160, 5600280, "2042"},
                         0,
                         {{{3500130.004, 5600239.99, "1003"}, 0.009}}}),
      AusgleichBlock(n, {true, {3500100, 5600200, ""}, {3500100, 5600225, "2042"}, 25, {{E, -0.02}}}),
  };
}

// Those whose columns are their own, or move with the decimals.
std::vector<Block> Eigene(int n) {
  const std::vector<Prottransformiert> Punkte = {
      {3500100.1234, 5600200.5678, "1001", false, 1, 0.004, -0.002},
      {3500900.1234, 5600200.5678, "2001", true, 0, 0, 0}};
  return {
      PolelAnschluss(n, {A, E, 40.96655, 100.0, 12.5, 99.98, 0.02, 0.16}),
      PolarZeile(n, {{3500169.359, 5600190.444, "2004"}, 212.259, 80.25, 98.4, 70, 0},
                 PolarMarke(70, 100, 2)),
      PolarZeile(n, {{3500079.644, 5600215.367, "2005"}, {}, 312.7, 0, 25.5, 6}, "", PolarVersatzmarke(6, 2)),
      FStatBlock(n, Station(false)),
      FStatBlock(n, Station(true)),
      FStatAnschluss(n, {A, E, 20.9666, {}, 20.0, 99.985, 0.015, 0.16}, 0.012),
      FStatAnschluss(n, {A, E, 20.9666, {}, 20.0, 99.985, 0.015, 0.16}, {}),
      FStatPolarAnschluss(n, A, 123.45678),
      NivellementBlock(n, Niv(), 3),
      HelmertBlock(n, {Passung, false, false, 1, 12.5, 0.98, 0.19, 0, 0}),
      HelmertBlock(n, {Passung, true, true, 1, 12.5, 0.98, 0.19, 0.5, 0.2}),
      AffinBlock(n, Affin(false)),
      AffinBlock(n, Affin(true)),
      TransformationListe(n, Punkte),
      AnpassungListe(n, Punkte),
      DreiDBlock(n, {DreiDArt::Raumstrecke,
                     {{"1001", 3500100, 5600200, 123.45, "015"}, {"1002", 3500160, 5600280, 124.45, ""}},
                     {100.005, 100, 1, 40.9666, 99.3634},
                     {}}),
      DreiDBlock(n, {DreiDArt::Lotabstand, {}, {12.5}, Raumpunkt{"", 3500100, 5600200, 123.45, ""}}),
  };
}

std::string Zusammen(const std::vector<Block>& Alle, int Marken) {
  std::string Text;
  for (const Block& Lage : Alle) {
    Marken -= Lage.Marken;
    for (const std::string& Zeile : Lage.Zeilen) Text += Zeile + "\r\n";
  }
  EXPECT_EQ(Marken, 0);
  return Text;
}

TEST(Artenblock, JedeArtWieGedruckt) {
  std::string Text = Zusammen(Gemeinsame(3), 15) + Zusammen(Eigene(3), 8);
  Polnachweis N{"Flurstück 12/3", "Ost", 1479.56, {}, 4, 3, 0};
  N.Kanten = {{A, 30, Kantenart::Linie, 0, 0, 0, 0},
              {E, 46.365, Kantenart::InnenLang, 25, 3500170, 5600270, 40}};
  Text += AusCodepage850(PolText(N));
  EXPECT_TRUE(GleichSoll(Text, "records/soll/arten.dru"));
}

TEST(Artenblock, NummernStehenUntereinander) {
  const std::vector<Block> Drei = Gemeinsame(3);
  for (const int n : {0, 2, 4, 5}) {
    const std::vector<Block> Andere = Gemeinsame(n);
    for (std::size_t b = 0; b < Drei.size(); ++b) {
      for (std::size_t i = 0; i < Drei[b].Zeilen.size(); ++i) {
        const std::string &Soll = Drei[b].Zeilen[i], &Ist = Andere[b].Zeilen.at(i);
        const std::size_t Ab = std::min(Soll.rfind("    1"), Soll.rfind("    2"));
        if (Ab < 50 || Ab > 60) continue;
        EXPECT_EQ(Ist.substr(Ab, 8), Soll.substr(Ab, 8)) << n << "\n" << Ist << "\n" << Soll;
      }
    }
  }
  for (const auto& Alle : {Gemeinsame(6), Eigene(6)}) {
    for (const Block& Lage : Alle)
      EXPECT_EQ(Lage.Zeilen, std::vector<std::string>{"      #Fehler: Zu viele Nachkommastellen#"});
  }
}

std::string Alle(const std::vector<std::string>& Texte) {
  std::string Text;
  for (const std::string& T : Texte) Text += T + ";";
  return Text;
}

// Every mark on both sides of its limit; behind it the warning level.
TEST(Artenblock, MarkenAnIhrenGrenzen) {
  const auto Lage = [](double Tau, bool KreisGerade, int Stufe) {
    return std::string(1, "gfvb"[static_cast<int>(SchnittlageVon(Tau, KreisGerade, Stufe))]);
  };
  const auto Zwei = [](double t1, double t2, double r3) {
    const Rueckwaertsurteil U = RueckwaertsUrteil({false, {{{A, 300}, {E, 0}, {B, r3}}}, t1, t2, A});
    return Alle(U.Texte) + Sterne(U.Marke);
  };
  const auto Kante = [](double WS, int Stufe) {
    return FlaechenMarke({A, 30, Kantenart::Linie, 0, false, 30.0, WS, 0.3}, Stufe);
  };
  const std::string Verteilung = " ungünstige Verteilung der Anschlußpunkte ", Kreis = " Gefährlicher Kreis ",
                    Winkel = "      ****** Beobachtete Winkel > 200 gon ******;", s6 = "******", s3 = "***",
                    L = "      ";
  const struct {
    std::string Ist, Soll;
  } Fälle[] = {
      {Alle(MesslinieMarken(5, 145.001, 10, 100, 2)), "***Vrl>0.4S;"},
      {Alle(MesslinieMarken(5, 145, 10, 100, 3)), ""},
      {Alle(MesslinieMarken(5, -999, -10.001, 25.0025, 3)), "***Seitw>10m;"},
      {Alle(MesslinieMarken(0, 0, -10.001, 25.0024, 3)), "***Seitw>0.4S;***Seitw>10m;"},
      {Alle(MesslinieMarken(0, 0, 25, 1000, 2)), "***Seitw>10m;"},
      {Alle(MesslinieMarken(0, 0, -25.001, 1000, 2)), "***Seitw>10m;******Sw>25m;"},
      {Alle(MesslinieMarken(0, 9000, 9000, 100, 1)), ""},
      {PolarMarke(66.001, 99, 2), " ***Entf>2/3S"},
      {PolarMarke(66, 99, 2), ""},
      {PolarMarke(99, 99, 2), " ***Entf>2/3S"},
      {PolarMarke(99.001, 99, 2), " ******Entf>S"},
      {PolarMarke(999, 99, 1), ""},
      {PolarVersatzmarke(5, 2), ""},
      {PolarVersatzmarke(-5.001, 2), "             Seitw.>5M"},
      {PolarVersatzmarke(7.5, 2), "             Seitw.>5M"},
      {PolarVersatzmarke(-7.501, 2), "            Seitw.>7.5M"},
      {PolarVersatzmarke(9, 1), ""},
      {Lage(0, false, 2) + Lage(5, false, 2) + Lage(5.001, false, 2) + Lage(20, false, 2), "vvff"},
      {Lage(20.001, false, 2) + Lage(179.999, false, 2) + Lage(180, false, 2), "ggf"},
      {Lage(194.999, false, 2) + Lage(195, false, 2) + Lage(0, false, 1) + Lage(0, true, 1), "fvgg"},
      {Lage(0.499, true, 2) + Lage(0.5, true, 2) + Lage(2.5, true, 2) + Lage(2.501, true, 2), "bvvf"},
      {Lage(10, true, 2) + Lage(10.001, true, 2) + Lage(189.999, true, 2) + Lage(190, true, 2), "fggf"},
      {Lage(197.499, true, 2) + Lage(197.5, true, 2), "fv"},
      {Sterne(KreismitteWarnung(4.999, 0)) + Sterne(KreismitteWarnung(195.001, 1)), s6 + s6},
      {Sterne(KreismitteWarnung(5, 2)) + Sterne(KreismitteWarnung(19.999, 2)), s3 + s3},
      {Sterne(KreismitteWarnung(180.001, 2)) + Sterne(KreismitteWarnung(195, 2)), s3 + s3},
      {Sterne(KreismitteWarnung(20, 2)) + Sterne(KreismitteWarnung(180, 2)), ""},
      {Sterne(KreismitteWarnung(5, 1)) + Sterne(KreismitteWarnung(181, 1)), ""},
      {Sterne(VorwaertsWarnung(-4.999, 2)) + Sterne(VorwaertsWarnung(195.001, 2)), s6 + s6},
      {Sterne(VorwaertsWarnung(5, 2)) + Sterne(VorwaertsWarnung(19.999, 2)), s3 + s3},
      {Sterne(VorwaertsWarnung(-180.001, 2)) + Sterne(VorwaertsWarnung(195, 2)), s3 + s3},
      {Sterne(VorwaertsWarnung(20, 2)) + Sterne(VorwaertsWarnung(180, 2)) + Sterne(VorwaertsWarnung(1, 1)),
       ""},
      {Zwei(20, 20, 200), ""},
      {Zwei(180, 20, 200.001), Winkel + s6},
      {Zwei(19.999, 20, 9), L + s3 + Verteilung + s3 + ";" + s3},
      {Zwei(180.001, 20, 9), L + s3 + Verteilung + s3 + ";" + s3},
      {Zwei(195.001, 19.999, 9), L + s6 + Verteilung + s6 + ";" + L + s3 + Kreis + s3 + ";" + s3},
      {Zwei(4.999, 5, 9), L + s6 + Verteilung + s6 + ";" + L + s3 + Kreis + s3 + ";" + s3},
      {Zwei(5, 4.999, 9), L + s3 + Verteilung + s3 + ";" + L + s6 + Kreis + s6 + ";" + s6},
      {ZugMarke("FW", {-0.301, 0.3}, 0), "******>FW(zul)"},
      {ZugMarke("FL", {0.3, 0.3}, 2), "***>1/3FL(zul)"},
      {ZugMarke("FQ", {-0.101, 0.3}, 2), "***>1/3FQ(zul)"},
      {ZugMarke("FQ", {0.0999, 0.3}, 2) + ZugMarke("FQ", {0.3, 0.3}, 1) + ZugMarke("FQ", {9, {}}, 3), ""},
      {Kante(-0.301, 0), "******WS>D"},
      {Kante(0.3, 2) + Kante(-0.101, 2), "***WS>D/3***WS>D/3"},
      {Kante(0.0999, 2) + Kante(0.3, 1), ""},
      {RestklaffenMarke({0.0106, -0.0106, 0, ""}, 0.007), "  ***VY>1.5MK  ***VX>1.5MK"},
      {RestklaffenMarke({0.0104, -0.0104, 0, ""}, 0.007) + RestklaffenMarke({9, 9, 0, ""}, {}), ""},
  };
  for (const auto& F : Fälle) EXPECT_EQ(F.Ist, F.Soll) << "row " << &F - Fälle;
}

TEST(Artenblock, NachweisLiestSichZurück) {
  Polnachweis N{"N", "", 1, {}, 1, 3, 2};
  using enum Kantenart;
  for (int i = 0; i < 100; ++i) {
    const Kantenart Art =
        std::array{Linie, Außen, Innen, AußenLang, InnenLang}[static_cast<std::size_t>(i % 5)];
    N.Kanten.push_back(
        {{3500000.0 + i, 5600000, "ä" + std::to_string(i)}, 12, Art, Art == Linie ? 0 : 20.5, 1, 2, 3});
  }
  const std::string Text = PolText(N);
  EXPECT_NE(Text.find("\x84\x30"), std::string::npos);
  int Zeilen = 0;
  for (const char z : Text) {
    Zeilen = z == '\f' ? 0 : Zeilen + (z == '\n' ? 1 : 0);
    EXPECT_LE(Zeilen, 60);
  }
  Polnachweis Zweiter{"M", "Ost", 1, {N.Kanten[1]}, 3, 3, 2};
  const Testordner Ordner;
  const std::string Datei = Ordner.Pfad("a.pol");
  EXPECT_EQ(PolSchreiben(Datei, N, false), 4);
  EXPECT_EQ(PolSchreiben(Datei, Zweiter, true), 1);
  std::vector<Polnachweis> Gelesen;
  ASSERT_EQ(PolDateiLesen(Datei, Gelesen), 0);
  ASSERT_EQ(Gelesen.size(), 2U);  // the pages of one proof, and the next one
  EXPECT_TRUE(Gleich(Gelesen[1].Name, "M", Gelesen[1].Bemerkung, "Ost", Gelesen[1].Kanten.size(), 1U));
  EXPECT_EQ(PolText(Gelesen[0]), Text);
  int Unlesbar = 7;
  EXPECT_TRUE(
      Gleich(PolLesen("1 2.5 3.5 4 LINIE\r\n2 ******* 3 4 LINIE\r\n", &Unlesbar).size(), 1U, Unlesbar, 1));
  EXPECT_TRUE(PolLesen("      3500100.000  5600230.000       46.365                   1002  Linie").empty());
}

}  // namespace
}  // namespace tavorena::test
