#include "Testhilfe.h"

#include <cmath>
#include <limits>
#include <random>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/ta/TA.h>

namespace tavorena::test {
namespace {

// Numbers that can be checked by hand: 3-4-5 triangles and the four quadrants.
TEST(Linienelemente, Tabelle) {
  struct Fall {
    const char* Name;
    Lage Anf, End, Punkt;
    double Linie, Seitwaerts;
  };
  constexpr Fall Fälle[] = {
      {"north, point to the east", {0, 0}, {0, 100}, {30, 40}, 40, 30},
      {"east, point to the south", {0, 0}, {100, 0}, {40, -30}, 40, 30},
      {"south, point to the east", {0, 0}, {0, -100}, {30, -40}, 40, -30},
      {"west, point to the south", {0, 0}, {-100, 0}, {-40, -30}, 40, -30},
      {"behind the start", {0, 0}, {0, 100}, {-5, -5}, -5, -5},
      {"Gauss-Krüger, 3-4-5", {3400000, 5700000}, {3400030, 5700040}, {3400023, 5700014}, 25, 10},
      {"negative coordinates", {-30, -40}, {0, 0}, {-30, -40}, 0, 0},
      // S. L. Loney, The Elements of Coordinate Geometry, 1895, examples on perpendiculars.
      {"Loney, 4 2/5 off 3x + 4y = 10", {2, 1}, {-2, 4}, {4, 5}, 0.8, 4.4},
  };
  for (const Fall& f : Fälle) {
    SCOPED_TRACE(f.Name);
    double Linie = 0, Seitwaerts = 0;
    EXPECT_EQ(Linienelemente(f.Anf, f.End, f.Punkt, Linie, Seitwaerts), 0);
    EXPECT_NEAR(Linie, f.Linie, 1e-9);
    EXPECT_NEAR(Seitwaerts, f.Seitwaerts, 1e-9);
  }
}

// A point placed from foot point and offset comes back with them; the polar elements agree by Pythagoras.
TEST(Linienelemente, StimmenMitPolarelementenUndFusspunkt) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> R(3.40e6, 3.41e6), H(5.70e6, 5.71e6);
  for (int i = 0; i < 5000; ++i) {
    const Lage A{R(Zufall), H(Zufall)}, E{R(Zufall), H(Zufall)}, P{R(Zufall), H(Zufall)};
    double Linie = 0, Seitwaerts = 0, Richtung = 0, Entf = 0, Nord = 0;
    Lage F;
    ASSERT_EQ(Linienelemente(A, E, P, Linie, Seitwaerts) + Fusspunkt(A, E, P, F), 0);
    ASSERT_EQ(Polarelemente(A, E, P, 0, Richtung, Entf, Nord), 0);
    ASSERT_NEAR(std::hypot(P.RW - F.RW, P.HW - F.HW), std::fabs(Seitwaerts), 1e-8);
    ASSERT_NEAR(Entf * std::cos(Richtung / 200 * M_PI), Linie, 1e-7);
    ASSERT_NEAR(Entf * std::sin(Richtung / 200 * M_PI), Seitwaerts, 1e-7);
  }
}

class Gast : public TabellenTest {};

// Whatever is done with it, the program around it has everything back afterwards.
TEST_F(Gast, LäßtAllesWieEsWar) {
  const std::string Datei = Ordner.Pfad("gast.kor");
  Punkt("7", 1, 2, 3, "x");
  int Gerufen = 0;
  Haken.FormEinzelKorein = [&](Wert&) { return --Gerufen - 1; };
  Haken.VorÄnderung = [&](const KorÄnderung&) { ++Gerufen; };
  Optionen.OptNachkommaSpeichern = 2;
  KoordinatendateiName = "wirt.lt4";
  Koordinatendateiformat = Dateiformat::Lt4;
  KorStop = Laufwunsch::Stop;
  const auto Stand = [] {
    return Reihe(KorAnzahl, KorPnr(0), KorRechts[0], KorSymbol[0], KorStand, KoordinatenGeaendert,
                 KorStop == Laufwunsch::Stop, KoordinatendateiName, static_cast<int>(Koordinatendateiformat),
                 Optionen.OptNachkommaSpeichern);
  };
  const std::string Vorher = Stand();
  Schreibe(Datei, "8 1.0 2 3\r\n9 1.0 2 3\r\n");
  {
    auto Erster = std::make_unique<TA>();
    EXPECT_EQ(Erster->KoordinatendateiLesen(Datei), 2);
    TA Zweiter;  // begins anew, and goes on without the first
    EXPECT_EQ(KorAnzahl, 0);
    Erster.reset();
    EXPECT_EQ(Zweiter.KoordinatendateiLesen(Datei), 2);
    EXPECT_EQ(Zweiter.KoordinatendateiSchreiben(Datei, 6), 2);
    EXPECT_NE(Inhalt(Datei).find(" 1.000000 "), std::string::npos);
  }
  EXPECT_EQ(Stand(), Vorher);
  Wert Fehlt("8");
  EXPECT_EQ(Gerufen, 0);
  EXPECT_EQ(KorFind(Fehlt), -2);  // the hooks are back
  Skript.Erwarte("Punkt 8");      // and the doors
  PunktVorhandenMeldung("8");
}

class Schnittstelle : public TabellenTest {
 protected:
  TA Ta;
  double a = 9, b = 9, c = 9, d = 9;
};

TEST_F(Schnittstelle, Entfernungskontrolle) {
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 0, &b, &c), enmResult::Fehler_Allgemein);
  EXPECT_EQ(a, 100);  // valid all the same
  EXPECT_EQ(b + c, 18);
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 99.8, &b, &c), enmResult::ok);
  EXPECT_NEAR(b, 0.16, 1e-12);  // 0.08 + 0.03 + 0.05
  EXPECT_NEAR(c, 0.2, 1e-12);
  EXPECT_EQ(Ta.Entfernungskontrolle(0, 0, 60, 80, a, 99.8), enmResult::ok);
}

TEST_F(Schnittstelle, LinienelementeAnschluss) {
  EXPECT_EQ(Ta.LinienelementeAnschluss(0, 0, 60, 80, a, 5, 0, &b, &c, &d), enmResult::ok);
  EXPECT_EQ(a + c + d, 101);
  EXPECT_NEAR(b, 0.16, 1e-12);  // D is set although nothing was measured
  EXPECT_EQ(Ta.LinienelementeAnschluss(0, 0, 60, 80, a, 5, 104.93, &b, &c, &d), enmResult::ok);
  EXPECT_NEAR(c, 0.07, 1e-9);
  EXPECT_NEAR(d, 0.9993, 1e-12);  // measured over computed
  EXPECT_EQ(Ta.LinienelementeAnschluss(1, 1, 1, 1, a, 0, 7, &b, &c, &d),
            enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(a + d, 1);
  EXPECT_EQ(c, -7);
  EXPECT_EQ(Ta.Linienelemente(1, 1, 1, 1, 5, 5, a = 9, b = 9), enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(a + b, 18);
}

TEST_F(Schnittstelle, Polarelemente) {
  EXPECT_EQ(Ta.PolarelementeAnschluss(0, 0, 100, 0, a, &b, &c), enmResult::ok);
  EXPECT_EQ(a, 100);
  EXPECT_EQ(b, 0);  // the clockwise intermediate of due east
  EXPECT_NEAR(c, 100, 1e-10);
  EXPECT_EQ(Ta.PolarelementeAnschluss(1, 1, 1, 1, a, &b, &c), enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(Ta.Polarelemente(0, 0, 60, 80, 30, 30, a, b, "12,5", &c), enmResult::ok);
  EXPECT_NEAR(a, 21.5334, 5e-5);
  EXPECT_NEAR(b, 42.4264, 5e-5);
  EXPECT_NEAR(c, 40.9666, 5e-5);
  EXPECT_EQ(Ta.Polarelemente(1, 1, 1, 1, 30, 30, a = 9, b = 9, 0.0, &c),
            enmResult::Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(a + b, 18);
  EXPECT_EQ(c, 0);
}

TEST_F(Schnittstelle, ZwillingeUndSchlechteEingaben) {
  Punkt("1", 0, 0);
  Punkt("2", 60, 80);
  Punkt("12A", 30, 30);
  EXPECT_EQ(Ta.EntfernungskontrollePnr(1, 2.0, a, 99.8, &b, &c), enmResult::ok);
  EXPECT_EQ(a, 100);
  EXPECT_EQ(Ta.LinienelementeAnschlussPnr(1, "2", a), enmResult::ok);
  EXPECT_EQ(Ta.LinienelementePnr(1, " 2 ", "12A", a, b), enmResult::ok);
  EXPECT_NEAR(a, 42, 1e-9);
  EXPECT_NEAR(b, 6, 1e-9);
  EXPECT_EQ(Ta.PolarelementeAnschlussPnr("2", 1, a, nullptr, &c), enmResult::ok);
  EXPECT_NEAR(c, 240.9666, 5e-5);
  EXPECT_EQ(Ta.PolarelementePnr("1", "2", "12A", a, b), enmResult::ok);
  for (const Wert& Fehlt : {Wert("12a"), Wert(), Wert(NullWert{}), Wert(3)}) {
    EXPECT_EQ(Ta.LinienelementePnr(Fehlt, 2, 1, a = 9, b = 9), enmResult::Fehler_PunktNichtVorhanden);
    EXPECT_EQ(Ta.PolarelementePnr(1, 2, Fehlt, a, b), enmResult::Fehler_PunktNichtVorhanden);
    EXPECT_EQ(a + b, 18);
  }
  for (const double x : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    EXPECT_EQ(Ta.Linienelemente(0, 0, 60, 80, x, 0, a, b), enmResult::Fehler_Allgemein);
    EXPECT_EQ(Ta.Polarelemente(0, 0, 60, 80, 1, 0, a, b, x), enmResult::Fehler_Allgemein);
    EXPECT_EQ(a + b, 18);
  }
}

TEST_F(Schnittstelle, Koordinatendatei) {
  const std::string Datei = Ordner.Pfad("a.kor");
  EXPECT_EQ(Ta.KoordinatendateiLesen(Datei), -1);
  Schreibe(Datei, "2 1.5 2.5 3 x\r\n2 1.5 2.5 3 x\r\n1 0 0.25\r\n");
  EXPECT_EQ(Ta.KoordinatendateiLesen(Datei), 3);  // doubles are no reason to ask
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Datei, 1), 3);
  EXPECT_TRUE(Inhalt(Datei).starts_with("             1         0.0         0.3       0.0  \r\n"));
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Ordner.Pfad("kein/ordner.kor")), -1);
  EXPECT_EQ(Ta.KoordinatendateiSchreiben(Datei, -1), -1);
  EXPECT_EQ(Ta.KoordinatendateiLesen(Ordner.Pfad("")), -1);
}

}  // namespace
}  // namespace tavorena::test
