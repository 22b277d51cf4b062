#include "Rechentest.h"

#include <tavorena/calc/Flaeche.h>

namespace tavorena::test {
namespace {

using Arten = std::vector<std::int16_t>;
const double w2 = std::sqrt(2.0), w3 = std::sqrt(3.0), Vesica = pi * 2 / 3 - w3 / 2;
const Zahlen QR{0, 10, 10, 0}, QH{0, 0, 10, 10}, R4(4);  // a square without radii

// Plane figures of known area and perimeter, near 0, in Gauss-Krüger coordinates and in negative ones.
TEST(Flaeche, Tabelle) {
  struct Fall {
    const char* Name;
    Zahlen R, H, Radius;
    Arten Art;
    double Flaeche, Umring, Bogen;
  };
  const Zahlen WR{1, 3, 7, 4, 8}, WH{6, 1, 2, 4, 5};
  const double WU = std::sqrt(29) + std::sqrt(17) + std::sqrt(13) + std::sqrt(17) + std::sqrt(50);
  const double F = 12.5 * pi, U = 30 + 5 * pi;  // semicircle on a side of the square
  const Fall Fälle[] = {
      {"Wikipedia, Shoelace formula", WR, WH, Zahlen(5), Arten(5), 16.5, WU, 0},
      {"lune of Hippocrates", {0, 2}, {0, 0}, {1, -w2}, {1, -1}, 1, pi + pi / w2, 1},
      {"vesica piscis", {0, 0}, {0, w3}, {1, 1}, {1, 1}, Vesica, 4 * pi / 3, Vesica},
      {"both arcs of a chord", {0, 6}, {0, 8}, {13, -13}, {2, 1}, 169 * pi, 26 * pi, 169 * pi},
      {"long arc off and on", {0, w2}, {0, 0}, {1, 1}, {-2, 3}, 0, 3 * pi, 0},
      {"long semicircle", QR, QH, {0, -5, 0, 0}, {0, 2, 0, 0}, 100 + F, U, F},
      {"closing edge off", QR, QH, {0, 0, 0, 5}, {0, 0, 0, -1}, 100 - F, U, -F},
      {"clockwise still adds", QH, QR, {5, 0, 0, 0}, {1, 0, 0, 0}, F - 100, U, F},
      {"chord above diameter", QR, QH, {0, 4.9999, 0, 0}, {0, 1, 0, 0}, 100, 30, 0},
      {"full circle", {5}, {5}, {-1}, {-1}, pi, 2 * pi, 0},
      {"two points: no chord", {0, 2}, {0, 0}, {1, 0}, {1, 0}, pi / 2, pi, pi / 2},
      {"kind or radius alone", QR, QH, {0, 9, 0, 0}, {1, 0, 0, 0}, 100, 40, 0},
      {"nothing", {}, {}, {}, {}, 0, 0, 0},
  };
  Überall(Fälle, [](const Fall& f, Lage Ort) {
    const Zahlen R = Verschoben(f.R, Ort.RW), H = Verschoben(f.H, Ort.HW);
    Flaechenwerte w;
    ASSERT_EQ(FlaecheBerechnen(R, H, f.Radius, f.Art, static_cast<int>(R.size()), w), 0);
    EXPECT_TRUE(Nahe({w.Flaeche, w.Umring, w.Bogenflaeche}, {f.Flaeche, f.Umring, f.Bogen}, 1e-7));
    EXPECT_DOUBLE_EQ(w.Flaeche, w.Polygonflaeche + w.Bogenflaeche);
    ASSERT_EQ(w.Kanten.size(), R.size());
    for (std::size_t i = 0; i < R.size(); ++i) EXPECT_EQ(w.Kanten[i].SehneZuLang, f.Radius[i] == 4.9999);
  });
}

TEST(Flaeche, HalbkreisTrotzRundung) {
  Bogenwerte b;
  for (int k = 1; k < 30; ++k) {
    ASSERT_EQ(BogenElemente({3.4e6, 5.7e6}, {3.4e6 + .3 * k, 5.7e6 - .4 * k}, .25 * k, b), 0);
    ASSERT_EQ(b.LaengeKurz, b.LaengeLang);
  }
  b.Sehne = Nichts;
  EXPECT_TRUE(Gleich(BogenElemente({3.4e6, 5.7e6}, {3.4e6, 5700010}, 4.99999999, b), -1, b.Sehne, Nichts));
}

TEST(Flaeche, BogenMitteJederSeite) {
  for (const auto& [Rechts, Lang, y] : {std::tuple{true, false, 4.0}, {true, true, -4}, {false, true, 4}}) {
    Lage M;
    ASSERT_EQ(BogenMitte({0, 0}, {6, 0}, -5, Rechts, Lang, M), 0);
    EXPECT_TRUE(Nahe({M.RW, M.HW}, {3, y}));
  }
  Lage M{7, 8};
  EXPECT_TRUE(Gleich(BogenMitte({0, 0}, {6, 0}, 2.9, true, false, M), -1,
                     BogenMitte({1, 1}, {1, 1}, 5, true, false, M), -1, M, (Lage{7, 8})));
}

TEST(Flaeche, GaussKrueger) {
  double Reduziert = 0;
  EXPECT_EQ(FlaecheGKReduziert(Zahlen{3599000, 3601000}, Zahlen{5.7e6, 5.8e6}, 2, -1e6, Reduziert), 0);
  EXPECT_NEAR(Reduziert, -999754.4033, 5e-5);  // y = 100 km: 1e10 / 6.381e6^2 = 2.455967e-4
  EXPECT_EQ(FlaecheGKReduziert(Zahlen{1000000, 1999999.9}, Zahlen{4000000, 6999999.9}, 2, 1, Reduziert), 0);
  Reduziert = Nichts;
  for (const Lage P : {Lage{999999.9, 5e6}, {6e6, 5e6}, {1.5e6, 3999999.9}, {1.5e6, 7e6}})
    EXPECT_EQ(FlaecheGKReduziert(Zahlen{P.RW}, Zahlen{P.HW}, 1, 1, Reduziert), -1) << P.RW;
  EXPECT_EQ(FlaecheGKReduziert(Zahlen{1.9e6, 2e6}, Zahlen{5e6, 5e6}, 2, 1, Reduziert), -1);  // two strips
  EXPECT_TRUE(Gleich(FlaecheGKReduziert(QR, QH, 0, 1, Reduziert), -1, Reduziert, Nichts));
}

using FlaecheTA = RechenTest;

TEST_F(FlaecheTA, Zwilling) {
  for (std::size_t i = 0; i < 4; ++i) Punkt(std::to_string(i + 1).c_str(), QR[i], QH[i]);
  const std::vector<Wert> Nummern{1, 2.0, "3", " 4 ", 5};
  EXPECT_EQ(Ta.FlaechenberechnungPnr(Nummern, Zahlen{5, 5, 0, -5}, 4, a, &b, &c), ok);
  EXPECT_TRUE(Nahe({a, b, c}, {100 + 12.5 * pi, 10 + 15 * pi, 12.5 * pi}));

  Vorbesetzen();
  EXPECT_EQ(Ta.FlaechenberechnungPnr(Nummern, Zahlen(5), 5, a, &b, &c), Fehler_PunktNichtVorhanden);
  EXPECT_TRUE(Unberührt());
}

TEST_F(FlaecheTA, Ablehnungen) {
  for (const int Anzahl : {-1, 5})
    EXPECT_EQ(Ta.Flaechenberechnung(QR, QH, R4, Anzahl, a, &b), Fehler_Allgemein);
  for (const double x : {std::nan(""), 1e200})
    EXPECT_EQ(Ta.Flaechenberechnung(Zahlen{0, x, 1}, Zahlen{0, x, 2 * x}, R4, 3, a, &b, &c),
              Fehler_Allgemein);
  EXPECT_TRUE(Unberührt());
  Flaechenwerte w;
  EXPECT_EQ(FlaecheBerechnen(QR, QH, R4, Arten{0, 0, 0, 4}, 4, w), -1);  // no such kind
}

}  // namespace
}  // namespace tavorena::test
