#include "Mitschrift.h"
#include "Testhilfe.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/GrafDesign.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/graphics/Grafikseite.h>

namespace tavorena::test {
namespace {

class GrafikTest : public TabellenTest {
 protected:
  GrafikTest() {
    GrafikBeiÄnderung = {};
    GrafikFenster = {};
    GrafikWahl = {true, false, false};
    GrafikLeeren();
    GrafDesignLeeren();
  }
  static std::vector<double> Fenster() {
    const Grafikzustand& G = GrafikFenster;
    return {G.FensterRechts, G.FensterHoch, G.FensterBreite, G.FensterHoehe, G.Massstab};
  }
  static void Nahe(const std::vector<double>& Ist, const std::vector<double>& Soll) {
    for (std::size_t i = 0; i < Soll.size(); ++i) EXPECT_NEAR(Ist[i], Soll[i], 1e-8) << i;
  }
  // A click on a point of the table.
  static void Klicke(const char* Pnr) {
    const auto z = static_cast<std::size_t>(KorSuche(std::string_view(Pnr)));
    GrafDesignKlick(KorRechts[z], KorHoch[z]);
  }
  std::string Aufforderung() const {
    return Skript.Status[static_cast<std::size_t>(Statusfeld::StatusHilfe)];
  }
};

TEST_F(GrafikTest, PaßtSichDerTabelleAn) {
  GrafikÖffnen(3000, 1500);
  EXPECT_EQ(GrafikFenster.Massstab, 0);  // an empty table has no window
  double R = 7, H = 8;
  GrafikWeltAusPixel(1, 1, R, H);
  EXPECT_TRUE(Gleich(R, 7, H, 8));
  Punkt("1", 100, 200);
  GrafikZoomAnpassen();  // one point: 20 m
  Nahe(Fenster(), {86, 186, 56, 28, 1500 / 28.0});
  Punkt("2", 1100, 200);  // all on one Hoch
  GrafikZoomAnpassen();
  Nahe(Fenster(), {-100, 186, 1400, 700, 3000 / 1400.0});
  Punkt("3", 1100, 10200);  // higher than the picture: the scale is that of the height
  GrafikZoomAnpassen();
  Nahe(Fenster(), {-100, -1800, 28000, 14000, 1500 / 14000.0});
  EXPECT_EQ(GrafikFenster.BereichRechtsBis, 1300);
  EXPECT_EQ(GrafikFenster.BereichHochBis, 12200);
}

TEST_F(GrafikTest, BefehleVerschiebenDasFenster) {
  Punkt("1", 0, 0);
  Punkt("2", 1000, 500);
  GrafikÖffnen(3000, 1500);
  const auto Anfang = Fenster();
  Nahe(Anfang, {-200, -100, 1400, 700, 3000 / 1400.0});
  GrafZoomin();
  Nahe(Fenster(), {150, 75, 700, 350, 3000 / 700.0});
  GrafZoomout();
  Nahe(Fenster(), Anfang);
  GrafZoomrechts();
  GrafZoomoben();
  Nahe(Fenster(), {-200 + 1400 / 6.0, -100 + 700 / 6.0, 1400, 700});
  GrafZoomlinks();
  GrafZoomunten();
  Nahe(Fenster(), Anfang);
  double x = 0, y = 0, R = 0, H = 0;
  GrafikWeltAusPixel(2000, 300, R, H);
  GrafikZoomBei(2000, 300, 1.25);
  GrafikPixelAusWelt(R, H, x, y);
  Nahe({x, y, GrafikFenster.FensterBreite}, {2000, 300, 1120});
  GrafikSchieben(30, -60);
  GrafikPixelAusWelt(R, H, x, y);
  Nahe({x, y}, {2030, 240});
  GrafikMitte(R, H);
  GrafikPixelAusWelt(R, H, x, y);
  Nahe({x, y}, {1500, 750});
  GrafikZoomAnpassen();
  GrafikAusschnitt(0, 0, 0, 0);  // a click without a drag
  Nahe(Fenster(), Anfang);
  GrafikAusschnitt(1500, 1500, 1200, 900);  // higher than the picture's form: grown to both sides
  Nahe(Fenster(), {-200 + 750 / 3000.0 * 1400, -100, 560, 280});
  // A size changes: corner and scale stay. What is kept comes back.
  const auto Vorher = Fenster();
  GrafikGrößeSetzen(1500, 3000);
  Nahe(Fenster(), {Vorher[0], Vorher[1], 280, 560, Vorher[4]});
  GrafikFensterMerken();
  GrafikSchließen();
  GrafikÖffnen(3000, 1500);
  Nahe(Fenster(), Vorher);
}

// The search by the tree against the told scan over the table.
TEST_F(GrafikTest, FindetDenErstenDerTabelle) {
  std::mt19937 Zufall(7);
  std::uniform_real_distribution<double> Eins(0, 1);
  const auto Suche = [](double R, double H, double Toleranz) {
    for (int z = 0; z < KorAnzahl; ++z) {
      const auto i = static_cast<std::size_t>(z);
      if (PunktIstNah(R, H, KorRechts[i], KorHoch[i], Toleranz) != 0) return z;
    }
    return -1;
  };
  EXPECT_EQ(GrafikPunktSuchen(0, 0, 1e9), -1);
  for (int Tabelle = 0; Tabelle < 6; ++Tabelle) {
    KorAbschneiden(0);
    const double Weite = Tabelle == 1 ? 0 : 1000, Ursprung = Tabelle == 2 ? -5e6 : 3.5e6;
    for (int i = 0; i < 500; ++i) {
      const double Haufen = Tabelle == 3 ? std::floor(Eins(Zufall) * 5) * 1e5 : 0;
      const bool Fern = Tabelle == 4 && i == 250;  // a point at 0/0 among the others
      const double R = Fern ? 0 : Ursprung + Haufen + Eins(Zufall) * Weite;
      const double H = Fern ? 0 : Tabelle == 5 ? 5 : Ursprung + Eins(Zufall) * Weite;
      ASSERT_EQ(KorAnhängen({std::to_string(i), R, H, 0, "", nullptr}), 0);
    }
    for (int i = 0; i < 300; ++i) {
      const auto z = static_cast<std::size_t>(Eins(Zufall) * 500);
      const double Neben = i % 3 == 0 ? 0 : (Eins(Zufall) - 0.5) * 50,
                   Toleranz = i % 5 == 0 ? 0 : std::pow(10, Eins(Zufall) * 8 - 2);
      const double R = KorRechts[z] + Neben, H = KorHoch[z] - Neben;
      EXPECT_EQ(GrafikPunktSuchen(R, H, Toleranz), Suche(R, H, Toleranz)) << Tabelle << ' ' << i;
    }
  }
  EXPECT_EQ(GrafikPunktSuchen(0, 0, NAN), -1);
  ASSERT_EQ(KorZeileSetzen(3, {"3", NAN, INFINITY, 0, "", nullptr}), 0);  // it stands nowhere
  EXPECT_EQ(GrafikPunktSuchen(KorRechts[0], 5, 1e9), 0);
}

TEST_F(GrafikTest, ZeichnetInDerRichtigenFolge) {
  Punkt("1", 0, 0, 0, "02");
  Punkt("2", 1000, 500, 0, "025");
  Punkt("3", 5000, 5000);
  GrafikFenster.GrafikOffen = true;
  GrafikFenster = {true, 1500, 750, 1, 0, 0, 1500, 750, 0, 0, 0, 0, false};
  GrafikBogenHinzu({500, 500, 100, 0, 90, FarbeBlau, true});
  for (const double Radius : {0.0, -5.0, std::nan("")})
    GrafikBogenHinzu({700, 500, Radius, 0, 90, FarbeBlau, true});
  GrafikBogenHinzu({700, 300, 2000, 0, 360, FarbeBlau, false});  // around the whole window
  const int Marke = GrafikMarkeHinzu({"2", 1000, 500, "MARK", FarbeRot});
  const int Linie = GrafikLinieHinzu({0, 0, 1000, 500, FarbeRot, Strich::Gestrichelt, false});
  GrafikLinieHinzu({-100, 0, -100, 500});  // outside
  const int Text = GrafikTextHinzu({10, 20, "Text", 8, FarbeSchwarz});
  EXPECT_EQ(Gezeichnet(),
            (std::vector<std::string>{
                "Text Text 10 730 f0", "Strichlinie 0 750 1000 250 f255", "Linie 0 714 36 786 f0",
                "Linie 36 786 -36 786 f0", "Linie -36 786 0 714 f0", "Text 1 90 750 f0",
                "Bogen 1000 250 60 0 360 f0", "Bogen 1000 250 30 0 360 f0", "Text 2 1090 250 f0",
                "Bogen 500 250 100 0 90 f16711680", "Scheibe 1000 250 50 f255", "Text 2 1090 250 f255"}));
  GrafikMarkeWeg(Marke);
  GrafikLinieWeg(Linie);
  GrafikTextWeg(Text);
  GrafikTextWeg(Text);  // it is gone
  GrafikWahl = {false, true, false};
  const auto Rest = Gezeichnet();
  EXPECT_EQ(Rest.size(), 3U + 2 + 1 + 4);
  EXPECT_EQ(Rest.back(), "Text 2000 m 2390 450 f0");  // the scale bar
  KorAbschneiden(0);
  EXPECT_EQ(Gezeichnet().size(), 1U + 4);
  GrafikFenster.Massstab = 0;
  EXPECT_TRUE(Gezeichnet().empty());
}

// A sign or number that hangs over the edge of the window is drawn, and a number that reaches in.
TEST_F(GrafikTest, RandWirdMitgezeichnet) {
  Punkt("1234", -300, 100);
  Punkt("2", 100, -104);
  Punkt("3", 100, -106);
  Punkt("4", -600, 100);
  // Dashes stay where they are when the window moves.
  GrafikLinieHinzu({-1000, 300, 4000, 300, FarbeRot, Strich::Gestrichelt, false});
  GrafikFenster = {true, 1500, 750, 1, 0, 0, 1500, 750, 0, 0, 0, 0, false};
  EXPECT_EQ(Gezeichnet()[0], "Strichlinie -136 450 1560 450 f255");  // 8 dashes and gaps further on
  int Texte = 0;
  for (const std::string& Z : Gezeichnet()) Texte += Z.starts_with("Text") ? 1 : 0;
  EXPECT_EQ(Texte, 2);
}

// Of numbers that overlap the first in the table is shown, wherever the window stands.
TEST_F(GrafikTest, NummernOhneÜberdeckung) {
  Punkt("1001", 0, 0);
  Punkt("1002", 300, 0);  // begins inside the first
  Punkt("1003", 520, 0);  // would overlap the second, which is not there
  Punkt("1004", 0, 179);
  Punkt("1005", 0, 181);
  GrafikWahl.Freistellen = true;
  const auto Nummern = [](double Rechts) {
    GrafikFenster = {true, 1500, 750, 1, Rechts, -100, 1500, 750, 0, 0, 0, 0, false};
    std::string Alle;
    for (const std::string& Z : Gezeichnet()) Alle += Z.starts_with("Text") ? Z.substr(4, 5) : "";
    return Alle;
  };
  EXPECT_EQ(Nummern(-100), " 1001 1003 1005");
  EXPECT_EQ(Nummern(200), " 1001 1003 1005");  // the first one reaches in
  EXPECT_EQ(Nummern(515), " 1003");
  KorAbschneiden(0);
  EXPECT_EQ(Nummern(0), "");
}

// On paper: sheets that adjoin, each with its map and its strip; a round scale where none is asked for.
TEST_F(GrafikTest, SeitenAufPapier) {
  Seitenauftrag A{Blatt::A4, true, 0, "Flur 7", "flur7.kor", "01.02.2003   10:15"};
  Seitenplan P;
  std::string Grund;
  EXPECT_EQ(SeitenPlanen(A, P, Grund), -1);
  EXPECT_EQ(Grund, "Es ist nichts zu sehen, was gedruckt werden könnte.");
  Punkt("1", 3500000, 5600000, 0, "015");
  EXPECT_EQ(SeitenPlanen(A, P, Grund), 0);
  EXPECT_EQ(P.Maßstabszahl, 150);  // 20 m around one point
  Punkt("2", 3500300, 5600100);
  GrafikLinieHinzu({3500000, 5600000, 3500300, 5600100, FarbeRot, Strich::Durchgezogen, true});
  for (const auto& [Papier, Zahl] :
       {std::pair{Blatt::A4, 2000}, {Blatt::A4quer, 1250}, {Blatt::A3quer, 1000}}) {
    A.Papier = Papier;
    EXPECT_EQ(SeitenPlanen(A, P, Grund), 0);
    EXPECT_EQ(P.Maßstabszahl, Zahl);
    EXPECT_EQ(P.Seiten(), 1);
  }
  A.Papier = Blatt::A4;
  A.Maßstabszahl = 500;
  ASSERT_EQ(SeitenPlanen(A, P, Grund), 0);
  EXPECT_TRUE(Gleich(P.Spalten, 4, P.Zeilen, 1));
  std::string Liste;
  for (const int Seite : {0, 3}) {
    Mitschrift M;
    SeiteZeichnen(M, A, P, Seite);
    for (const std::string& Z : M.Liste) Liste += Z + "\n";
  }
  EXPECT_TRUE(GleichSoll(Liste, "graphics/soll/seite.txt"));
  A.Maßstabszahl = 10;
  EXPECT_EQ(SeitenPlanen(A, P, Grund), 1);
  EXPECT_EQ(Grund, "Im Maßstab 1:10 wären es 6201 Blätter, gedruckt werden höchstens 100.");
  A.Maßstabszahl = -1;
  EXPECT_EQ(SeitenPlanen(A, P, Grund), -1);
  // The window on paper: its middle in the middle, and what lies around as far as there is room.
  GrafikFenster = {true, 1500, 750, 3, 3500290, 5600090, 20, 20, 0, 0, 0, 0, false};
  A = {Blatt::A4quer, false, 100, "", "", ""};
  ASSERT_EQ(SeitenPlanen(A, P, Grund), 0);
  Nahe({P.Karte.Rechts + P.Karte.Breite / P.Karte.Massstab / 2,
        P.Karte.Hoch + 0.5 * P.Zeilen * P.Karte.Hoehe / P.Karte.Massstab},
       {3500300, 5600100});
}

TEST_F(GrafikTest, ZeichenbefehleFragenDerReiheNach) {
  Punkt("1", 0, 0);
  Punkt("2", 100, 0);
  Punkt("3", 100, 100);
  Punkt("4", 200, 0);
  GrafikFenster = {true, 1500, 750, 3, -50, -50, 500, 250, 0, 0, 0, 0, false};
  GrafDesign(Zeichenbefehl::Linie);
  EXPECT_EQ(Aufforderung(), "   Startpunkt der Linie identifizieren !   ");
  GrafDesignKlick(50, 50);  // no point there
  Klicke("1");
  EXPECT_EQ(Aufforderung(), "   Endpunkt der Linie identifizieren !   ");
  EXPECT_EQ(GrafikOrtstext(3, 4), "Rechts: 3.000  Hoch: 4.000  Länge: 5.000");
  Klicke("2");
  EXPECT_EQ(GrafDesignSchritt(), Zeichenschritt::LinieAnfang);
  Klicke("1");
  Klicke("1");  // no line between equal points
  EXPECT_EQ(GrafikFreieLinien().size(), 1U);
  GrafDesign(Zeichenbefehl::Polygon);
  for (const char* P : {"1", "2", "3"}) Klicke(P);
  EXPECT_EQ(Aufforderung(), "   Weiteren Polygonpunkt identifizieren !   ");
  EXPECT_EQ(GrafikOrtstext(110, 100), "Rechts: 110.000  Hoch: 100.000  Länge: 10.000  Seitw.: 10.000");
  EXPECT_EQ(GrafikFreieLinien().size(), 3U);
  // Clockwise or not, the arc runs through its second point and is kept counter-clockwise.
  for (const auto& Folge : {std::array{"1", "3", "4"}, std::array{"4", "3", "1"}}) {
    GrafDesign(Zeichenbefehl::Bogen);
    for (const char* P : Folge) Klicke(P);
    EXPECT_EQ(Aufforderung(), "   Startpunkt Bogen identifizieren !   ");
    const GrafikBogen B = GrafikFreieBogen().back();
    Nahe({B.Rechts, B.Hoch, B.Radius, B.Anfang, B.Ende}, {100, 0, 100, 0, 180});
  }
  for (const char* P : {"1", "2", "4"}) Klicke(P);  // in one line
  EXPECT_EQ(GrafikFreieBogen().size(), 2U);
  EXPECT_TRUE(GrafikUngesichert);
  GrafDesign(Zeichenbefehl::Löschen);
  GrafDesignKlick(29, 71);  // on both arcs
  GrafDesignKlick(29, 71);
  EXPECT_EQ(GrafikFreieBogen().size(), 0U);
  GrafDesignKlick(100, -80);  // where the arcs were not
  GrafDesignKlick(50, 2);
  GrafDesignKlick(50, 2);
  EXPECT_EQ(GrafikFreieLinien().size(), 1U);
  EXPECT_TRUE(GrafDesignVerlassen());
  EXPECT_EQ(Aufforderung(), "");
  EXPECT_FALSE(GrafDesignVerlassen());
  GrafDesign(Zeichenbefehl::Linie);
  for (int i = 1; i < GrafikFreieGrenze; ++i) GrafikLinieHinzu({0, 0, 1, 1, 0, Strich::Durchgezogen, true});
  Klicke("1");
  Klicke("3");
  EXPECT_EQ(Aufforderung(), "   Maximale Anzahl von 1001 Elementen erreicht   ");
  EXPECT_GE(GrafikLinieHinzu({0, 0, 1, 1}), 0);  // marks of worksheets have no limit
}

}  // namespace
}  // namespace tavorena::test
