#include "Testhilfe.h"

#include <cmath>
#include <iomanip>
#include <limits>
#include <map>
#include <random>
#include <sstream>

#include <tavorena/exchange/TVDXFModul.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena::test {
namespace {

class DxfTest : public TabellenTest {
 protected:
  DxfTest() { GrafikLeeren(); }
  ~DxfTest() override { GrafikLeeren(); }
  static void Linie(double R1, double H1, double R2, double H2, bool Frei = true) {
    GrafikLinieHinzu({R1, H1, R2, H2, FarbeSchwarz, Strich::Durchgezogen, Frei});
  }
  static void Bogen(double R, double H, double Radius, double Anfang, double Ende) {
    GrafikBogenHinzu({R, H, Radius, Anfang, Ende, FarbeSchwarz, true});
  }
  // The free elements, values to six decimals without zeros behind: "L 1 2 3 4|A ...".
  static std::string Elemente() {
    std::string Alle;
    const auto Dazu = [&Alle](char Art, std::initializer_list<double> Werte) {
      Alle += (Alle.empty() ? "" : "|") + std::string(1, Art);
      for (const double w : Werte) {
        std::ostringstream Wort;
        Wort << std::setprecision(14) << std::round(w * 1e6) / 1e6 + 0.0;
        Alle += " " + Wort.str();
      }
    };
    for (const GrafikLinie& L : GrafikFreieLinien()) Dazu('L', {L.Rechts1, L.Hoch1, L.Rechts2, L.Hoch2});
    for (const GrafikBogen& B : GrafikFreieBogen()) Dazu('A', {B.Rechts, B.Hoch, B.Radius, B.Anfang, B.Ende});
    return Alle;
  }
  // The lines of a text that has "|" for their ends.
  static std::string Zeilen(std::string Text) {
    for (std::size_t p = 0; (p = Text.find('|', p)) != std::string::npos; p += 2) Text.replace(p, 1, "\r\n");
    return Text;
  }
  static std::string Element(const std::string& Text) {
    return Zeilen("0|SECTION|2|ENTITIES|0|" + Text + "|0|ENDSEC|0|EOF|");
  }
  static std::string Eigene() {
    std::string Text;
    EXPECT_EQ(DxfText(Text), 0);
    return Text;
  }
  // Reads as DxfLesen does, from an empty store.
  int Lesen(const std::string& Text, bool AusCad) {
    GrafikLeeren();
    Schreibe(Datei, Text);
    return DxfLesen(Datei, AusCad, E);
  }
  const std::string Datei = Ordner.Pfad("a.dxf");
  DxfErgebnis E;
};

const char* const Vorher =
    "  0|SECTION|  2|HEADER|  0|SECTION|  2|TABLES|  0|TABLE|  2|LTYPE| 70|     1|  0|LTYPE|  2|CONTINUOUS|"
    " 70|    64|  3|Solid line| 72|    65| 73|     0| 40|       0.000000|  0|ENDTAB|  0|TABLE|  2|STYLE|"
    " 70|     0|  0|ENDTAB|  0|TABLE|  2|LAYER| 70|     1|  0|LAYER|  2|FOREGROUND| 70|    64| 62|     1|"
    "  6|CONTINUOUS|  0|ENDTAB|  0|ENDSEC|  0|SECTION|  2|BLOCKS|  0|ENDSEC|  0|SECTION|  2|ENTITIES|";

TEST_F(DxfTest, EigeneFormByteFürByte) {
  EXPECT_EQ(Eigene(), Zeilen(std::string(Vorher) + "  0|ENDSEC|  0|EOF|"));
  Linie(1, 1, 2, 2, false);  // the mark of a worksheet
  Bogen(3500000, -5, 2.5, 0, 359.9999996);
  Linie(-9999999.5, 99999999.25, 3500100.0004, 0.0000005);
  EXPECT_EQ(DxfSpeichern(Datei, false), 0);
  EXPECT_FALSE(GrafikUngesichert);
  EXPECT_EQ(Inhalt(Datei),
            Zeilen(std::string(Vorher) +
                   "  0|LINE| 10|-9999999.500000| 20|99999999.250000| 11| 3500100.000400| 21|       0.000001|"
                   "  0|ARC| 10| 3500000.000000| 20|      -5.000000| 40|       2.500000| 50|       0.000000|"
                   " 51|     360.000000|  0|ENDSEC|  0|EOF|"));
}

TEST_F(DxfTest, WasNichtPaßtOderNichtGehtLässtDieDateiStehen) {
  Schreibe(Datei, "alt");
  for (const double Wert :
       {1e8, -1e7, 99999999.9999999, std::nan(""), std::numeric_limits<double>::infinity()}) {
    GrafikLeeren();
    Linie(7.5, Wert, 0, 0);
    Skript.Erwarte("Linie paßt nicht in eine DXF-Datei:\n7.5  ");
    EXPECT_EQ(DxfSpeichern(Datei, false), -1) << Wert;
    GrafikLeeren();
    Bogen(0, 0, Wert, 8, 9);
    Skript.Erwarte("Bogen paßt nicht in eine DXF-Datei:\n0  0  ");
    EXPECT_EQ(DxfSpeichern(Datei, true), -1) << Wert;
  }
  EXPECT_EQ(Inhalt(Datei), "alt");
  GrafikLeeren();
  Linie(0, 0, 1, 1);
  Skript.Erwarte("Fehler 70 in DXFModul.Speichern");
  EXPECT_EQ(DxfSpeichern(Ordner.Pfad(""), false), -1);
  Skript.Erwarte("Fehler 76 in DXFModul.Speichern");
  EXPECT_EQ(DxfSpeichern(Ordner.Pfad("nirgends/a.dxf"), true), -1);
  EXPECT_TRUE(GrafikUngesichert);
}

TEST_F(DxfTest, EigeneFormLiestSichAnJedemSchnitt) {
  std::mt19937 Zufall(8);
  std::uniform_real_distribution<double> Ort(-9999999, 99999999), Grad(0, 360);
  const auto o = [&] { return std::round(Ort(Zufall) * 1e6) / 1e6; };
  for (int i = 0; i < 40; ++i) Linie(o(), o(), o(), o());
  for (int i = 0; i < 40; ++i) Bogen(o(), o(), std::fabs(o()), Grad(Zufall), Grad(Zufall));
  const std::string Text = Eigene(), Alle = Elemente();
  EXPECT_EQ(Lesen(Text, false), 0);
  EXPECT_EQ(Elemente(), Alle);
  EXPECT_TRUE(Gleich(E.Linien, 40, E.Bogen, 40, GrafikUngesichert, false));
  EXPECT_EQ(Skript.Status[static_cast<std::size_t>(Statusfeld::StatusHilfe)],
            "   40 Linien, 40 Bögen gelesen   ");
  for (std::size_t n = Text.find("ENTITIES") + 8; n + 8 < Text.size(); n += 7) {
    for (const bool AusCad : {false, true}) {
      SCOPED_TRACE(n);
      GrafikLeeren();
      if (AusCad) {
        EXPECT_EQ(DxfPaare(Text.substr(0, n), E), 0);
        EXPECT_TRUE(Alle.starts_with(Elemente())) << Elemente();  // no torn number
      } else {
        DxfSuchlauf(Text.substr(0, n), E);
        EXPECT_FALSE(E.Fremd);
      }
    }
  }
}

TEST_F(DxfTest, ScannerNachSeinenRegeln) {
  struct Fall {
    const char *Text, *Elemente;
    bool Fremd;
  };
  const Fall Fälle[] = {
      {"entities|LINE|10|1|20|2|11|3|21|4", "", false},                  // outside a section
      {"section|entities|line|10|1|20|2|11|3|21|4", "L 1 2 3 4", true},  // "line" as a code
      {"SECTION|ENTITIES|0|LINE|21|4|11|3|20|2|10|1,5|0|ARC|10|1|20|2", "L 1.5 2 3 4", false},
      {"SECTION|ENTITIES|0|LINE|210|7|10|1|20|2|11|3|21|4", "L 1 2 3 4", true},        // the later one counts
      {"SECTION|ENTITIES|0|ENDSEC|0|LINE|10|1|20|2|11|3|21|4", "L 1 2 3 4", false},    // the mode stays
      {"SECTION|ENTITIES|0|ARC|10|1|20|2|40|3|100|x|50|4|51|5", "A 0 2 3 4 5", true},  // 100 holds 10
      {"SECTION|ENTITIES|0|POLYLINE|66|1|10|1|20|2|0|VERTEX|11|3|21|4", "L 1 2 3 4", true},
      {"SECTION|ENTITIES|0|LINE|10|1e400|20|2|11|3|21|4|0|LINE|10|1|20|2|11|3|21|nan", "L 1 2 3 0", false},
      {"SECTION|LINE|10|1|20|2|11|3|21|4|ENDSEC", "", false},
      {"SECTION|ENTITIES|0|LINE|10|1|20|2|11|3|21|4|0|EOF||||", "L 1 2 3 4", false},  // empty lines behind
  };
  for (const Fall& F : Fälle) {
    SCOPED_TRACE(F.Text);
    GrafikLeeren();
    DxfSuchlauf(Zeilen(F.Text), E);
    EXPECT_TRUE(Gleich(Elemente(), F.Elemente, E.Fremd, F.Fremd));
  }
}

// Another way of writing the rules down: a queue of lines and a flat state.
std::string Abgeschrieben(const std::vector<std::string>& Z) {
  const auto Hat = [&](std::size_t i, const char* Wort) { return Z[i].find(Wort) != std::string::npos; };
  std::string Alle;
  bool Abschnitt = false, Modus = false;
  for (std::size_t i = 0; i < Z.size(); ++i) {
    if (!Abschnitt && Hat(i, "SECTION")) {
      Abschnitt = true;
      continue;
    }
    if (Abschnitt && Hat(i, "ENDSEC")) {
      Abschnitt = false;
      continue;
    }
    if (Abschnitt && Hat(i, "ENTITIES")) {
      Modus = true;
      continue;
    }
    const bool L = Modus && Hat(i, "LINE"), A = Modus && !L && Hat(i, "ARC");
    if (!L && !A) continue;
    const std::vector<const char*> Codes =
        L ? std::vector{"10", "20", "11", "21"} : std::vector{"10", "20", "40", "50", "51"};
    std::map<std::string, std::string> Werte;
    while (Werte.size() < Codes.size()) {
      if (++i >= Z.size()) return Alle;
      for (const char* c : Codes) {
        if (!Hat(i, c)) continue;
        if (++i >= Z.size()) return Alle;
        Werte[c] = std::to_string(std::atoi(Z[i].c_str()));
        break;
      }
    }
    Alle += L ? "L" : "A";
    for (const char* c : Codes) Alle += " " + Werte[c];
    Alle += "|";
  }
  return Alle;
}

TEST_F(DxfTest, ScannerWieSeineAbschrift) {
  const char* const Worte[] = {"SECTION", "ENDSEC", "ENTITIES", "LINE", "ARC",  "10",  "20",       "11",
                               "21",      "40",     "50",       "51",   "1020", "210", "POLYLINE", "7"};
  std::mt19937 Zufall(9);
  for (int Lauf = 0; Lauf < 300; ++Lauf) {
    std::vector<std::string> Z;
    for (int i = 0; i < 120; ++i) Z.emplace_back(Worte[Zufall() % std::size(Worte)]);
    std::string Text, Nacheinander;
    for (const std::string& Zeile : Z) Text += Zeile + "\n";
    GrafikLeeren();
    DxfSuchlauf(Text, E);
    std::string Soll = Abgeschrieben(Z), Linien, Bogen;
    for (std::istringstream S(Soll); std::getline(S, Soll, '|');)
      (Soll[0] == 'L' ? Linien : Bogen) += Soll + "|";
    EXPECT_EQ(Elemente() + (Elemente().empty() ? "" : "|"), Linien + Bogen) << Text;
  }
}

TEST_F(DxfTest, PaareAusCad) {
  struct Fall {
    const char *Text, *Elemente, *Andere;
    int Unbrauchbar;
  };
  const Fall Fälle[] = {
      {"LINE|100|AcDbLine|10|1|20|2|30|9|11|3|21|4|210|0|220|0|230|-1", "L 1 2 3 4", "", 0},
      {"ARC|10|1|20|2|40|3|100|x|50|350|51|20", "A 1 2 3 350 20", "", 0},
      {"ARC|10|1|20|2|40|3|210|0|220|0|230|-1|50|350|51|20", "A -1 2 3 160 190", "", 0},
      {"ARC|10|1|20|2|40|3|50|90|51|450|0|CIRCLE|10|7|20|8|40|1",
       "A 1 2 3 0 180|A 1 2 3 180 0|A 7 8 1 0 180|A 7 8 1 180 0", "", 0},
      {"ARC|10|1|20|2|40|3|210|0.7|220|0|230|0.7|50|350|51|20", "", "ARC", 0},
      {"LWPOLYLINE|70|1|10|0|20|0|42|1|10|2|20|0|10|2|20|0|10|2|20|5", "L 2 0 2 5|L 2 5 0 0|A 1 0 1 180 0",
       "", 0},
      {"LWPOLYLINE|10|0|20|0|42|-1|10|2|20|0|230|-1", "A -1 0 1 0 180", "", 0},
      {"POLYLINE|66|1|70|0|0|VERTEX|10|0|20|0|42|0.41421356237309503|0|VERTEX|10|1|20|1|0|VERTEX|70|16|10|9|"
       "20|9|0|SEQEND",
       "A 0 1 1 270 0", "", 0},
      {"POLYLINE|70|64|0|VERTEX|70|128|0|SEQEND|0|TEXT|1|LINE", "", "POLYLINE TEXT", 0},
      {"POLYLINE|70|8|230|-1|0|VERTEX|10|0|20|0|0|VERTEX|10|1|20|1|0|SEQEND", "L 0 0 1 1", "", 0},
      {"LINE|67|1|10|1|20|2|11|3|21|4", "", "LINE (Papierbereich)", 0},
      {"LINE|10|1|20|2|11|3|0|LINE|10|1e400|20|2|11|3|21|4|0|LINE|10|nan|20|2|11|3|21|4|0|CIRCLE|10|1|20|1|"
       "40|0",
       "", "", 4},
  };
  for (const Fall& F : Fälle) {
    SCOPED_TRACE(F.Text);
    if (*F.Andere != 0) Skript.Erwarte("Nicht gelesen: 1 ");
    if (F.Unbrauchbar > 0) Skript.Erwarte("4 Elemente mit unbrauchbaren Werten ausgelassen");
    EXPECT_EQ(Lesen(Element(F.Text), true), 0);
    std::string Andere;
    for (const auto& [Art, Anzahl] : E.Andere) Andere += (Andere.empty() ? "" : " ") + Art;
    EXPECT_TRUE(Gleich(Elemente(), F.Elemente, Andere, F.Andere, E.Unbrauchbar, F.Unbrauchbar));
  }
}

TEST_F(DxfTest, SchlechteDateien) {
  struct Fall {
    std::string Text;
    bool AusCad;
    int Ergebnis;
    const char* Meldung;
  };
  const std::string Linie1 = "LINE|10|1|20|2|11|3|21|4", Riesig = Element("LINE") + std::string(8 << 20, '1');
  std::string Viele;
  for (int i = 0; i <= GrafikFreieGrenze; ++i) Viele += (i == 0 ? "" : "|0|") + Linie1;
  const Fall Fälle[] = {
      {"", false, -1, "keinen Abschnitt ENTITIES"},
      {"", true, -1, "keinen Abschnitt ENTITIES"},
      {std::string("DXF\r\n\x1a\0\0", 8), true, -1, "Die Datei ist binär"},
      {"\xFF\xFE 0", false, -1, "ist in UTF-16 geschrieben"},
      {std::string(8 << 20, '1'), false, -1, "keinen Abschnitt ENTITIES"},
      {std::string(8 << 20, '1'), true, -1, "keinen Abschnitt ENTITIES"},
      {Riesig, false, 0, ""},
      {Element(Linie1 + "|0|TEXT|8|0"), false, 0,
       "Fremde DXF-Datei: Elemente prüfen oder mit \"Aus CAD\" lesen"},
      {Element(Viele), false, 1, "Maximale Anzahl von 1001 Elementen überschritten !"},
      {Element(Viele), true, 1, "Maximale Anzahl von 1001 Elementen überschritten !"},
      {Element(Linie1 + "|x|y"), true, 1, "Keine DXF-Datei aus Paaren, Zeile 15"},
      {Zeilen("0|SECTION|2|ENTITIES|0|" + Linie1), true, 1, "Unerwartetes Dateiende"},
  };
  for (const Fall& F : Fälle) {
    SCOPED_TRACE(F.Text.substr(0, 80));
    if (*F.Meldung != 0) Skript.Erwarte(F.Meldung);
    EXPECT_EQ(Lesen(F.Text, F.AusCad), F.Ergebnis);
  }
  Skript.Erwarte("ist ein Ordner");
  EXPECT_EQ(DxfLesen(Ordner.Pfad(""), false, E), -1);
  Skript.Erwarte("Fehler 53 in DXFModul.Lesen");
  EXPECT_EQ(DxfLesen(Ordner.Pfad("fehlt.dxf"), true, E), -1);
}

TEST_F(DxfTest, FormMitPunkten) {
  Punkt("7ä€Ж\U0001F600", 100, 200, 12.5, "015");
  Punkt("8", 110, 205);
  Bogen(100, 200, 300, 80, 100);  // its top lies at 500, its ends do not
  std::string Text;
  ASSERT_EQ(DxfPunkteText(Text), 0);
  for (const char* Stück : {"9|$ACADVER|1|AC1009|", "10|47.905547|20|200.000000|30|0.000000|",
                            "10|152.094453|20|500.000000|30|12.500000|", "0|POINT|8|PUNKTE|10|100.000000|",
                            "|1|7\xE4\x80\\U+0416\\U+D83D\\U+DE00|0|TEXT|8|SYMBOLE|", "|40|0.600000|1|015|",
                            "|1|12.500|0|POINT|", "|1|8|0|ARC|8|BOGEN|"}) {
    EXPECT_NE(Text.find(Zeilen(Stück)), std::string::npos) << Stück;
  }
  Skript.Erwarte("Nicht gelesen: 2 POINT, 4 TEXT");
  EXPECT_EQ(Lesen(Text, true), 0);
  EXPECT_EQ(Elemente(), "A 100 200 300 80 100");
  Punkt("9", 1e8, 0);
  Skript.Erwarte("Punkt 9 paßt nicht");
  EXPECT_EQ(DxfPunkteText(Text), -1);
}

}  // namespace
}  // namespace tavorena::test
