#include "Testhilfe.h"

#include <tavorena/exchange/Umrechnung.h>

namespace tavorena::test {
namespace {

constexpr Koordinatenform Geo{}, Gk{Koordinatenart::GK, 0}, Utm{Koordinatenart::UTM, 0};
constexpr Koordinatenform GkIn(int Nummer) { return {Koordinatenart::GK, Nummer}; }
constexpr Koordinatenform UtmIn(int Nummer) { return {Koordinatenart::UTM, Nummer}; }

Umrechnung Von(Koordinatenform Quelle, Koordinatenform Ziel) {
  Umrechnung U;
  U.Von = Quelle;
  U.Nach = Ziel;
  return U;
}

class UmrechnungTest : public TabellenTest {
 protected:
  int Laufen(const Umrechnung& U, const std::string& Text) {
    Schreibe(Ein, Text);
    return DateiUmrechnen(Ein, Aus, U, B);
  }
  const std::string Ein = Ordner.Pfad("ein.txt"), Aus = Ordner.Pfad("aus.kor");
  Umrechenbericht B;
};

// Coordinates by cs2cs 9.1. A line that gives "" is passed over.
TEST_F(UmrechnungTest, Zeilen) {
  struct Fall {
    Koordinatenform Von, Nach;
    const char *Zeile, *Soll;
  };
  const Fall Fälle[] = {
      {Geo, Gk, "7 9 0 0 51 0 0", "      7   3500000.000   5651505.565       0.000  015"},
      {Geo, Gk, "\tA-1  9 30 45 51 30 15 1,25 ", "    A-1   3535580.567   5707713.809       1.250  015"},
      {Geo, Gk, "7 9,5125 51.50416666666667", "      7   3535580.567   5707713.809       0.000  015"},
      {Geo, Gk, "7 7.5 50 -2", "      7   3392471.598   5541357.896      -2.000  015"},
      {Geo, Utm, "7 -0 30 0 51 30 18", "      7    673500.506   5708948.600       0.000  015"},
      {Geo, GkIn(4), "7 9 51", "      7   4289452.617   5655791.046       0.000  015"},
      {Geo, GkIn(5), "7 4.9 51", ""},  // more than 10 degrees
      {UtmIn(32), UtmIn(32), "7 -579861.024 1682897.770",
       "      7   -579861.024   1682897.770       0.000  "},  // 10 degrees, rounded up
      {Geo, Gk, "7 9 60 0 51 0 0", ""},
      {Geo, Gk, "7 9 0 0 51 0 60", ""},
      {Geo, Gk, "7 -9 -1 0 51 0 0", ""},
      {Geo, Gk, "7 9.5 51.5 0 0 0 0", ""},  // other columns
      {Geo, Gk, "7 9 90.001", ""},
      {Geo, Gk, "7 180.1 51", ""},
      {Geo, Gk, "7 9 51 1e999", ""},
      {Geo, Gk, "7 9 51x", ""},
      {Geo, Gk, "7 9", ""},
      {Geo, Gk, "7 9 0 51 0", ""},
      {Geo, Gk, "7 9 0 0 51 0 0 1 2", ""},
      {Gk, GkIn(4), "7 3535580.5665 5707713,8093 12.5 BP x",
       "      7   4327315.737   5710523.900      12.500  BP"},
      {Gk, Gk, "7 4327315.7367 5710523.8999", "      7   3535580.567   5707713.809       0.000  "},
      {Gk, GkIn(3), "7 3535580.561 5707713.811", "      7   3535580.561   5707713.811       0.000  "},
      {Gk, Gk, "7 535580 5707713", ""},
      {Gk, Gk, "7 32535580 5707713", ""},  // a zone
      {Gk, Gk, "7 3535580 5707713N", ""},
      {Gk, Gk, "7 3535580 1e8", ""},  // beyond the pole
      // What lies there already stays to the digit; the way back from UTM would take 0.2 mm.
      {Utm, UtmIn(32), "7 32535570.679 5706017.0675", "      7    535570.679   5706017.068       0.000  "},
      {Utm, UtmIn(32), "7 535570.679 5706017.067", ""},
      {UtmIn(32), Utm, "7 32535570.679 5706017.067", ""},
      {UtmIn(33), UtmIn(32), "7 361193.5007 5707789.0785",
       "      7    777574.926   5713481.427       0.000  "},
  };
  for (const Fall& f : Fälle) {
    SCOPED_TRACE(f.Zeile);
    std::string Ziel;
    const std::string Soll = f.Soll;
    EXPECT_EQ(TextUmrechnen(f.Zeile, Von(f.Von, f.Nach), Ziel, B), Soll.empty() ? -1 : 0);
    EXPECT_EQ(Ziel, Soll.empty() ? "" : "       " + Soll + "\r\n");
    EXPECT_TRUE(Gleich(B.Punkte, Soll.empty() ? 0 : 1, B.Andere, Soll.empty() ? 1 : 0));
  }
}

// The head goes by the first point; no 60 and no lost sign in the lines. Read back they give the same points.
TEST_F(UmrechnungTest, GeographischeDatei) {
  Umrechnung U = Von(Gk, Geo);
  const std::string Kopf = "@%Unit:                    m\r\n@%Coordinate type:         Grid\r\n";
  EXPECT_EQ(
      Laufen(U, "\r\nPunkte\r\n 7 3500000 5651505.5645 12.5 015\r\n12345678 4327315.736 5710523.900\r\nx"),
      0);
  EXPECT_EQ(Inhalt(Aus), Kopf +
                             "@%Reference ellipsoid:     Bessel\r\n@%Projection set:          GK-9\r\n"
                             "       7    9   0   0.00000   51   0   0.00000    12.500\r\n"
                             "12345678    9  30  44.99996   51  30  15.00000     0.000\r\n");
  EXPECT_TRUE(Gleich(B.Punkte, 2, B.Andere, 2, B.ErsteAndere, 2, B.Fernster, "12345678"));
  EXPECT_EQ(B.Streifen, (std::map<int, int>{{3, 1}, {4, 1}}));
  EXPECT_NEAR(B.Abstand, 2.4875, 1e-6);
  EXPECT_EQ(Umrechentext(U, B, "aus"),
            "2 Punkte geschrieben:\naus\n\n2 Zeilen übergangen (erste: Zeile 2)\nStreifen 3 (1) und 4 (1)\n"
            "Am weitesten vom Mittelmeridian: Punkt 12345678, 2.49 Grad");
  EXPECT_EQ(Umrechensatz(U, StreifenDerDatei(Ein, Gk)),
            "Gauß-Krüger, Bessel, Streifen 3 und 4 -> geographisch");
  std::string Ziel;
  EXPECT_EQ(TextUmrechnen(Inhalt(Aus), Von(Geo, GkIn(4)), Ziel, B), 0);
  EXPECT_NE(Ziel.find("4327315.736   5710523.900"), std::string::npos) << Ziel;
  EXPECT_EQ(B.Andere, 0);

  U = Von(Utm, Geo);
  U.Kartesisch = true;
  EXPECT_EQ(Laufen(U, "7 30673503.6728 5708855.9427"), 0);
  EXPECT_TRUE(Inhalt(Aus).ends_with(
      "Cartesian\r\n@%Reference ellipsoid:     GRS 80\r\n@%Projection set:          UTM-30\r\n"
      "       7   -0  30   0.00000   51  30  15.00000     0.000\r\n"))
      << Inhalt(Aus);
}

// What the file would not give back is asked for; without a "Ja" the old file stays.
TEST_F(UmrechnungTest, VerlusteWerdenGefragt) {
  struct Fall {
    Umrechnung U;
    const char *Text, *Verlust;
  };
  const Fall Fälle[] = {
      {Von(Geo, Utm), "1 9 51\n2 13 51\n3 14 51\n4 20 51",
       "Punkte liegen in den Zonen 32 (1), 33 (2) und 34 (1)"},
      {Von(Geo, Gk), "1 9 51\n2 39 51\n3 -9 51", "2 Koordinaten passen nicht in ihr Feld (Punkt 2)"},
      {Von(Gk, Geo), "1 3500000 5651505\n@1 3500000 5651505", "1 Punktnummer ändert sich (Punkt @1)"},
      {Von(Gk, Geo), "1 3500000 5651505 100000\n", "1 Höhe geht verloren (Punkt 1)"},
  };
  for (const Fall& f : Fälle) {
    Schreibe(Aus, "alt");
    VerlusteVergessen();
    const std::string Frage = std::string("Beim Speichern gehen Angaben verloren:\n") + f.Verlust + "\n\n" +
                              Aus + "\n\nTrotzdem speichern ?";
    Skript.Erwarte(Frage, KnopfNein);
    EXPECT_EQ(Laufen(f.U, f.Text), -1);
    EXPECT_TRUE(Gleich(Skript.LetzteVorgabe, KnopfNein, Inhalt(Aus), "alt"));
    Skript.Erwarte(Frage, KnopfJa);
    EXPECT_EQ(Laufen(f.U, f.Text), 0);
    EXPECT_NE(Inhalt(Aus), "alt");
  }
  // No loss, but to be known: 3108000 looks like strip 3.
  EXPECT_EQ(Laufen(Von(Geo, GkIn(2)), "1 12 47\n2 14 47\n"), 0);
  EXPECT_TRUE(Umrechenhinweis(B).starts_with(
      "1 Rechtswert beginnt mit der Ziffer eines anderen Streifens (Punkt 2)"));
}

// Degrees on Bessel's ellipsoid are 100 m away on the other.
TEST_F(UmrechnungTest, KopfNenntAnderesEllipsoid) {
  const std::string Text = "@%Reference ellipsoid:     Bessel\r\n1 9 51\r\n";
  EXPECT_EQ(Laufen(Von(Geo, Gk), Text), 0);
  Skript.Erwarte("Die Eingabe nennt das Ellipsoid Bessel, gerechnet wird mit GRS 80.\n\nTrotzdem", KnopfNein);
  EXPECT_EQ(Laufen(Von(Geo, Utm), Text), -1);
}

TEST_F(UmrechnungTest, SchlechteDateienLassenDieAlteStehen) {
  Schreibe(Aus, "alt");
  const Umrechnung U = Von(Geo, Gk);
  for (const std::string& Text : {std::string(), std::string("1 3500000 5600000\n"),
                                  std::string("1 9 51\n\0", 8), std::string(1 << 20, '7')}) {
    Skript.Erwarte("Format nicht erkannt");
    EXPECT_EQ(Laufen(U, Text), -1);
  }
  Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ein);
  EXPECT_EQ(DateiUmrechnen(Ein, Ein, U, B), -1);
  Skript.Erwarte("Datei nicht gefunden:\n" + Ordner.Pfad("") + " (ist ein Ordner)");
  EXPECT_EQ(DateiUmrechnen(Ordner.Pfad(""), Aus, U, B), -1);
  std::string Viele;
  for (int i = 0; i < 1000; ++i) Viele += "1 9 51\n";
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  EXPECT_EQ(Laufen(U, Viele), -1);
  EXPECT_TRUE(Gleich(B.Punkte < 1000, true, KorStop, Laufwunsch::Weiter, Inhalt(Aus), "alt"));
  Skript.BeiEreignissen = [] {};
  EXPECT_EQ(Laufen(U, Viele), 0);
  EXPECT_EQ(B.Punkte, 1000);
}

}  // namespace
}  // namespace tavorena::test
