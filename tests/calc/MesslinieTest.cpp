#include "Rechentest.h"

#include <tavorena/calc/Messlinie.h>

namespace tavorena::test {
namespace {

TEST(Messlinie, Tabelle) {
  struct Fall {
    const char* Name;
    Lage Anf, End;
    double Anlegemass, Endmass, Linie, Seitwaerts;
    int Ergebnis;
    Lage Neu;
  };
  constexpr Fall Fälle[] = {
      {"on the start reading", {7, 8}, {7, 108}, 5, 0, 5, 0, 1, {7, 8}},
      {"north, to the right", {0, 0}, {0, 100}, 0, 0, 40, 30, 1, {30, 40}},
      {"east, to the right", {0, 0}, {100, 0}, 0, 0, 40, 30, 1, {40, -30}},
      {"south, to the left", {0, 0}, {0, -100}, 0, 0, 40, -30, 1, {30, -40}},
      {"west, to the right", {0, 0}, {-100, 0}, 0, 0, 40, 30, 1, {-40, 30}},
      {"west, behind the start", {0, 0}, {-100, 0}, 0, 0, -40, 30, 1, {40, 30}},
      {"along no axis", {0, 0}, {30, 40}, 5, 0, 30, 10, 1, {23, 14}},
      {"80 m measured over 100 m: the scale once", {0, 0}, {0, 100}, 10, 90, 50, 8, 0, {10, 50}},
      {"readings equal: the start point", {1, 2}, {1, 9}, 7, 7, 3, 4, -1, {1, 2}},
      {"equal points, not measured", {1, 2}, {1, 2}, 0, 0, 3, 4, 1, {1, 2}},
      {"equal points, measured", {1, 2}, {1, 2}, 0, 9, 3, 4, 0, {1, 2}},
      // S. L. Loney, The Elements of Coordinate Geometry, 1895, examples on perpendiculars: (4, 5) stands
      // 4 2/5 off 3x + 4y = 10; the foot is 4/5 along the line from (2, 1).
      {"Loney, perpendicular on a line", {2, 1}, {-2, 4}, 0, 0, 0.8, 4.4, 1, {4, 5}},
  };
  Überall(Fälle, [](const Fall& f, Lage Ort) {
    MesslinieAnschlusswerte Werte;
    EXPECT_EQ(MesslinieBerechnungAnschluss(f.Anf + Ort, f.End + Ort, f.Anlegemass, f.Endmass, Werte),
              f.Ergebnis);
    EXPECT_EQ(Werte.OhneEndmass, f.Endmass == 0);
    const Lage Neu = MesslinieBerechnungPunkt(f.Anf + Ort, f.Anlegemass, Werte, f.Linie, f.Seitwaerts);
    EXPECT_TRUE(Nahe(Neu, f.Neu + Ort));
    if (f.Ergebnis != 1 || f.Anf == f.End) return;
    double Linie = 0, Seitwaerts = 0;  // and back
    EXPECT_EQ(Linienelemente(f.Anf + Ort, f.End + Ort, Neu, Linie, Seitwaerts), 0);
    EXPECT_TRUE(Nahe({f.Anlegemass + Linie, Seitwaerts}, {f.Linie, f.Seitwaerts}, 3e-9));
  });
}

TEST(Polarpunkt, Tabelle) {
  struct Fall {
    const char* Name;
    Lage Anf, End;
    double Winkel, Strecke, Orientierung, Massstab;
    Lage Neu;
    double Grenze = 2e-9;
  };
  constexpr Fall Fälle[] = {
      {"0 gon", {0, 0}, {0, 9}, 0, 50, 0, 1, {0, 50}},
      {"100 gon", {0, 0}, {0, 9}, 100, 50, 0, 1, {50, 0}},
      {"200 gon", {0, 0}, {0, 9}, 200, 50, 0, 1, {0, -50}},
      {"300 gon", {0, 0}, {0, 9}, 300, 50, 0, 1, {-50, 0}},
      {"400 gon", {0, 0}, {0, 9}, 400, 50, 0, 1, {0, 50}},
      {"400 gon as orientation", {0, 0}, {0, 9}, 100, 50, 400, 1, {50, 0}},
      {"negative reading", {0, 0}, {0, 9}, -100, 50, 0, 1, {-50, 0}},
      {"across zero", {0, 0}, {9, 0}, 50, 50, 350, 1, {0, -50}},
      {"on the ray, with scale", {-4, -3}, {4, 3}, 77.7, 20, 77.7, 1.25, {16, 12}},
      // C. D. Ghilani, P. R. Wolf, Elementary Surveying, chapter on traverse computations: departures and
      // latitudes of the worked traverse ABCDE, printed to 0.001.
      {"Ghilani, AB", {0, 0}, {0, 9}, Gms(126, 55, 17), 647.25, 0, 1, {517.451, -388.815}, 6e-4},
      {"Ghilani, CD", {0, 0}, {0, 9}, Gms(15, 31, 54), 720.35, 0, 1, {192.889, 694.045}, 6e-4},
  };
  Lage Neu{9, 9};
  EXPECT_EQ(PolarBerechnungPunkt({1, 1}, {1, 1}, 0, 5, 0, 0, 1, Neu), -1);
  EXPECT_EQ(Neu, (Lage{9, 9}));
  Überall(Fälle, [&Neu](const Fall& f, Lage Ort) {
    EXPECT_EQ(PolarBerechnungPunkt(f.Anf + Ort, f.End + Ort, GonNachGrad(f.Winkel), f.Strecke, 0,
                                   GonNachGrad(f.Orientierung), f.Massstab, Neu),
              0);
    EXPECT_TRUE(Nahe(Neu, f.Neu + Ort, f.Grenze));
  });
  EXPECT_EQ(PolarBerechnungPunkt({0, 0}, {3, 4}, 0, 10, 3, 0, 2, Neu), 0);  // offset to the right, with scale
  EXPECT_TRUE(Nahe(Neu, {16.8, 12.4}));

  EXPECT_EQ(PolarhoeheBerechnen(50, 1.6, 0, 20, 1.4), 0);  // not measured, whatever the station's height
  EXPECT_TRUE(Nahe({PolarhoeheBerechnen(50, 1.6, 200. / 3, 20, 1.4), PolarVertikalAnschluss(20, 7, 7),
                    PolarVertikalAnschluss(20, 7, 27), PolarVertikalAnschluss(20, 27, 7)},
                   {60.2, 100, 50, 150}));
}

using MesslinieTA = RechenTest;

TEST_F(MesslinieTA, Zwillinge) {
  PunkteAnlegen({{"1", 0, 0}, {"2", 60, 80}});
  EXPECT_EQ(Ta.MesslinieAnschlussPnr(1, "2", a, 5, 105.2, &b, &c, &d), ok);
  EXPECT_TRUE(Nahe({a, b, c, d}, {100, 0.16, -0.2, 100 / 100.2}));  // computed over measured
  EXPECT_EQ(Ta.MesslinieAnschlussPnr(1, "2", a, 5, 0, nullptr, &c, &d), ok);
  EXPECT_TRUE(Gleich(c, 0, d, 1));
  EXPECT_EQ(Ta.MesslinieAnschlussPnr(1, "2", a, 5, 5, nullptr, &c, &d), Fehler_AnfangsUndEndpunktGleich);
  EXPECT_TRUE(Gleich(c, 100, d, 1));
  EXPECT_EQ(Ta.MessliniePnr(1, " 2", 25, 5, a, b, 0, 50), ok);
  EXPECT_TRUE(Nahe({a, b}, {38, 34}));
  EXPECT_EQ(Ta.MessliniePnr(2, 1, 3, 4, a, b, 5, 5), Fehler_AnfangsUndEndpunktGleich);
  EXPECT_TRUE(Nahe({a, b}, {60, 80}));  // the point is computed all the same
  EXPECT_EQ(Ta.PolarpunktAnschlussPnr(2.0, 1, a, 200, &b, nullptr, &c, &d), ok);
  EXPECT_TRUE(Nahe({a, b, c, d}, {100, 240.9666, -100, 0.5}, 5e-5));
  EXPECT_EQ(Ta.PolarpunktAnschluss(1, 2, 1, 2, a, 0, &b, &c, nullptr, &d), ok);
  EXPECT_TRUE(Nahe({a, b, c, d}, {0, 0, 0.05, 1}));
  EXPECT_EQ(Ta.PolarpunktAnschluss(0, 0, 3, 4, a, 0, nullptr, nullptr, &c, &d), ok);
  EXPECT_TRUE(Gleich(a, 5, c, 0, d, 1));
  EXPECT_EQ(Ta.PolarpunktPnr(1, 2, 112.5, 10, a, b, 12.5, 0.5), ok);
  EXPECT_TRUE(Nahe({a, b}, {4, -3}));

  Vorbesetzen();
  EXPECT_EQ(Ta.PolarpunktPnr(1, 1, 0, 5, a, b), Fehler_AnfangsUndEndpunktGleich);
  EXPECT_EQ(Ta.MessliniePnr(1, 3, 25, 5, a, b), Fehler_PunktNichtVorhanden);
  EXPECT_EQ(Ta.PolarpunktPnr(3, 2, 0, 5, a, b), Fehler_PunktNichtVorhanden);
  EXPECT_TRUE(Unberührt());
}

TEST_F(MesslinieTA, SchlechteEingaben) {
  EXPECT_EQ(Ta.Messlinie(0, 0, 60, 80, 1, std::nan(""), a, b), Fehler_Allgemein);
  EXPECT_EQ(Ta.PolarpunktAnschluss(0, HUGE_VAL, 60, 80, a, 0, &b), Fehler_Allgemein);
  EXPECT_TRUE(Unberührt());
}

}  // namespace
}  // namespace tavorena::test
