#include "Testhilfe.h"

#include <cmath>

#include <tavorena/calc/Flaeche.h>
#include <tavorena/calc/TA.h>

namespace tavorena::test {
namespace {

using Zahlen = std::vector<double>;
using Arten = std::vector<std::int16_t>;
constexpr double Nichts = 777;  // preset of outputs that must stay
const double pi = std::acos(-1.0), w2 = std::sqrt(2.0), w3 = std::sqrt(3.0), Vesica = pi * 2 / 3 - w3 / 2;
const Zahlen QR{0, 10, 10, 0}, QH{0, 0, 10, 10}, R4(4);  // a square without radii

Zahlen Verschoben(Zahlen Werte, double Um) {
  for (double& Zahl : Werte) Zahl += Um;
  return Werte;
}

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
  const Fall Faelle[] = {
      {"counter-clockwise", QR, QH, R4, Arten(4), 100, 40, 0},
      {"clockwise", QH, QR, R4, Arten(4), -100, 40, 0},
      {"Wikipedia, Shoelace formula", WR, WH, Zahlen(5), Arten(5), 16.5, WU, 0},
      {"lune of Hippocrates", {0, 2}, {0, 0}, {1, -w2}, {1, -1}, 1, pi + pi / w2, 1},
      {"vesica piscis", {0, 0}, {0, w3}, {1, 1}, {1, 1}, Vesica, 4 * pi / 3, Vesica},
      {"both arcs of a chord", {0, 6}, {0, 8}, {13, -13}, {2, 1}, 169 * pi, 26 * pi, 169 * pi},
      {"long arc off and on", {0, w2}, {0, 0}, {1, 1}, {-2, 3}, 0, 3 * pi, 0},
      {"semicircle", QR, QH, {0, 5, 0, 0}, {0, 1, 0, 0}, 100 + F, U, F},
      {"long semicircle", QR, QH, {0, -5, 0, 0}, {0, 2, 0, 0}, 100 + F, U, F},
      {"closing edge off", QR, QH, {0, 0, 0, 5}, {0, 0, 0, -1}, 100 - F, U, -F},
      {"clockwise still adds", QH, QR, {5, 0, 0, 0}, {1, 0, 0, 0}, F - 100, U, F},
      {"chord above diameter", QR, QH, {0, 4.9999, 0, 0}, {0, 1, 0, 0}, 100, 30, 0},
      {"full circle", {5}, {5}, {-1}, {-1}, pi, 2 * pi, 0},
      {"two points: no chord", {0, 2}, {0, 0}, {1, 0}, {1, 0}, pi / 2, pi, pi / 2},
      {"kind or radius alone", QR, QH, {0, 9, 0, 0}, {1, 0, 0, 0}, 100, 40, 0},
      {"nothing", {}, {}, {}, {}, 0, 0, 0},
  };
  for (const Lage Ort : {Lage{0, 0}, Lage{3400000.123, 5700000.456}, Lage{-2e6, -5e6}}) {
    for (const Fall& f : Faelle) {
      SCOPED_TRACE(f.Name + std::to_string(Ort.RW));
      const Zahlen R = Verschoben(f.R, Ort.RW), H = Verschoben(f.H, Ort.HW);
      Flaechenwerte w;
      ASSERT_EQ(FlaecheBerechnen(R, H, f.Radius, f.Art, static_cast<int>(R.size()), w), 0);
      EXPECT_NEAR(w.Flaeche, f.Flaeche, 1e-7);
      EXPECT_NEAR(w.Umring, f.Umring, 1e-8);
      EXPECT_NEAR(w.Bogenflaeche, f.Bogen, 1e-7);
      EXPECT_DOUBLE_EQ(w.Flaeche, w.Polygonflaeche + w.Bogenflaeche);
    }
  }
}

TEST(Flaeche, Kanten) {
  Flaechenwerte w;
  ASSERT_EQ(FlaecheBerechnen(QR, QH, Zahlen{0, 5, -10, 4}, Arten{0, 1, -2, 1}, 4, w), 0);
  ASSERT_EQ(w.Kanten.size(), 4U);
  const double Laenge[] = {10, 5 * pi, 50 * pi / 3, 0};
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_NEAR(w.Kanten[i].Laenge, Laenge[i], 1e-12);
    EXPECT_EQ(w.Kanten[i].SehneZuLang, i == 3);
  }
  EXPECT_NEAR(w.Kanten[2].Segment, -100 * (5 * pi / 6 + w3 / 4), 1e-10);
}

// Circular segments for r = 1 to 5 decimals, as the table of engineers' pocket books (Hütte) gives them.
TEST(Flaeche, BogenElemente) {
  constexpr double Tafel[][3] = {// central angle in degrees, arc, segment
                                 {10, 0.17453, 0.00044},
                                 {60, 1.04720, 0.09059},
                                 {90, 1.57080, 0.28540},
                                 {120, 2.09440, 0.61418}};
  Bogenwerte b;
  for (const auto& [Grad, Laenge, Segment] : Tafel) {
    ASSERT_EQ(BogenElemente({0, 0}, {0, 2 * std::sin(Grad * pi / 360)}, -1, b), 0);
    EXPECT_NEAR(b.LaengeKurz, Laenge, 5e-6);
    EXPECT_NEAR(b.SegmentKurz, Segment, 5e-6);
  }
  for (int k = 1; k < 30; ++k) {  // semicircles in spite of the rounding of the coordinates
    ASSERT_EQ(BogenElemente({3.4e6, 5.7e6}, {3.4e6 + .3 * k, 5.7e6 - .4 * k}, .25 * k, b), 0);
    ASSERT_EQ(b.LaengeKurz, b.LaengeLang);
  }
  b.Sehne = Nichts;
  EXPECT_EQ(BogenElemente({3400000, 5700000}, {3400000, 5700010}, 4.99999999, b), -1);
  EXPECT_EQ(b.Sehne, Nichts);
}

// The same boundary drawn as a polygon of short edges: each arc from centre and sweep, not from its elements.
TEST(Flaeche, FeinesPolygon) {
  const Zahlen R{3400000, 3400060, 3400080, 3400050}, H{5700000, 5699990, 5700050, 5700090};
  const Zahlen Radius{40, -45, 50, 60};
  const Arten Art{1, -1, 2, -2};
  constexpr int Teile = 100000;
  Zahlen fR, fH;
  for (std::size_t i = 0; i < 4; ++i) {
    const std::size_t j = (i + 1) % 4;
    const double dR = R[j] - R[i], dH = H[j] - H[i], s = std::hypot(dR, dH), r = std::fabs(Radius[i]);
    const double Aus = Art[i] > 0 ? 1 : -1;  // counter-clockwise boundary: outward is to the right
    const bool Lang = std::abs(Art[i]) == 2;
    const double h = std::sqrt(r * r - s * s / 4) * (Lang ? Aus : -Aus), a = 2 * std::asin(s / 2 / r);
    const double mR = (R[i] + R[j]) / 2 + h * dH / s, mH = (H[i] + H[j]) / 2 - h * dR / s;
    for (int k = 0; k < Teile; ++k) {
      const double w = std::atan2(H[i] - mH, R[i] - mR) + Aus * (Lang ? 2 * pi - a : a) * k / Teile;
      fR.push_back(mR + r * std::cos(w));
      fH.push_back(mH + r * std::sin(w));
    }
  }
  Flaechenwerte w;
  double Flaeche = 0, Umring = 0;
  ASSERT_EQ(FlaecheBerechnen(R, H, Radius, Art, 4, w), 0);
  ASSERT_EQ(FlaecheGauss(fR, fH, 4 * Teile, Flaeche, Umring), 0);
  EXPECT_NEAR(w.Flaeche, Flaeche, 1e-4);
  EXPECT_NEAR(w.Umring, Umring, 1e-4);
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
  EXPECT_EQ(FlaecheGKReduziert(QR, QH, 0, 1, Reduziert), -1);
  EXPECT_EQ(Reduziert, Nichts);
}

class FlaecheTA : public TabellenTest {};

TEST_F(FlaecheTA, ZwillingUndAblehnungen) {
  TA Ta;
  double F = Nichts, U = Nichts, B = Nichts;
  constexpr auto Fehler = enmResult::Fehler_Allgemein;
  for (std::size_t i = 0; i < 4; ++i) Punkt(std::to_string(i + 1).c_str(), QR[i], QH[i]);
  const std::vector<Wert> Nummern{1, 2.0, "3", " 4 ", 5};
  EXPECT_EQ(Ta.FlaechenberechnungPnr(Nummern, Zahlen{5, -5, 0, 1}, 4, F, &U, &B), enmResult::ok);
  EXPECT_NEAR(std::hypot(F - 100, U - 10 - 10 * pi, B), 0, 1e-12);
  EXPECT_EQ(Ta.FlaechenberechnungPnr(Nummern, Zahlen{-5, 0, 0, 0}, 4, F), enmResult::ok);
  EXPECT_NEAR(F, 100 - 12.5 * pi, 1e-12);

  F = U = B = Nichts;
  EXPECT_EQ(Ta.FlaechenberechnungPnr(Nummern, Zahlen(5), 5, F, &U, &B),
            enmResult::Fehler_PunktNichtVorhanden);
  for (const int Anzahl : {-1, 5}) EXPECT_EQ(Ta.Flaechenberechnung(QR, QH, R4, Anzahl, F, &U, &B), Fehler);
  for (const double x : {std::nan(""), HUGE_VAL, 1e200})
    EXPECT_EQ(Ta.Flaechenberechnung(Zahlen{0, x, 1}, Zahlen{0, x, 2 * x}, R4, 3, F, &U, &B), Fehler);
  EXPECT_EQ(F + U + B, 3 * Nichts);
  Flaechenwerte w;
  EXPECT_EQ(FlaecheBerechnen(QR, QH, R4, Arten{0, 0, 0, 4}, 4, w), -1);  // no such kind
}

}  // namespace
}  // namespace tavorena::test
