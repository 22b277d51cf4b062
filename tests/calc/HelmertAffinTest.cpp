#include "Testhilfe.h"

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <sstream>

#include <tavorena/calc/TA.h>
#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>

namespace tavorena::test {
namespace {

using enum enmResult;
using Zahlen = std::vector<double>;
constexpr enmResult Aussen = Hinweis_PunktAusserhalbDesPasspunktfeldes;
constexpr double Nichts = 777;  // preset of outputs that must stay
constexpr Lage Orte[] = {{0, 0}, {3400000.123, 5700000.456}, {-2e6, -5e6}, {32456789.01, 12.5}};
constexpr Lage Figur[] = {{-300, 410}, {250.5, 390}, {420, -180}, {-150, -500}, {10, 20}};

struct Punkte {
  Zahlen aR, aH, nR, nH;
  void Dazu(Lage Alt, Lage Neu) {
    aR.push_back(Alt.RW);
    aH.push_back(Alt.HW);
    nR.push_back(Neu.RW);
    nH.push_back(Neu.HW);
  }
  [[nodiscard]] Passpunkte P() const { return {aR, aH, nR, nH}; }
};

Lage Summe(Lage A, Lage B) { return {A.RW + B.RW, A.HW + B.HW}; }

void ErwarteNah(Lage Ist, Lage Soll, double Toleranz) {
  EXPECT_NEAR(Ist.RW, Soll.RW, Toleranz);
  EXPECT_NEAR(Ist.HW, Soll.HW, Toleranz);
}

// C. D. Ghilani, Adjustment Computations, examples 18.1 (similarity) and 18.2 (fiducial marks, weighted).
TEST(HelmertAffin, VeroeffentlichteBeispiele) {
  HelmertErgebnis E;
  const Punkte B{{121.622, 141.228, 175.802},
                 {-128.066, 187.718, 135.728},
                 {1049422.40, 1049413.95, 1049244.95},
                 {51089.20, 49659.30, 49884.95}};
  ASSERT_EQ(HelmertHelmert(B.P(), true, std::nullopt, E), 0);
  EXPECT_NEAR(E.Parameter.ParamA, -4.51249, 5e-6);
  EXPECT_NEAR(E.Parameter.ParamB, 0.25371, 5e-6);  // the book turns the other way
  EXPECT_NEAR(E.Massstab, 4.51962, 5e-6);
  EXPECT_NEAR(E.DrehwinkelGon, 360 - (183 + 13 / 60. + 5.0 / 3600), 0.05 / 3600);  // in degrees
  EXPECT_NEAR(E.Klaffen.StandardabwMK * E.Klaffen.StandardabwMK, 0.0195, 6e-5);
  ErwarteNah({E.Klaffen.RestklaffeVY[0], E.Klaffen.RestklaffeVX[0]}, {-0.004, 0.029}, 5e-4);
  ErwarteNah({E.Klaffen.RestklaffeVY[1], E.Klaffen.RestklaffeVX[1]}, {-0.101, 0.077}, 5e-4);
  Lage T;
  HelmertNeupunkt({0, 0}, E.Parameter, T);
  ErwarteNah(T, {1050003.715, 50542.131}, 5e-4);

  constexpr Lage Alt[] = {{.764, 5.960}, {5.062, 10.541}, {9.663, 6.243}, {5.350, 1.654}};
  constexpr Lage Neu[] = {{-113, .003}, {.001, 112.993}, {112.998, .003}, {.001, -112.999}};
  constexpr double sY[] = {.104, .096, .112, .096}, sX[] = {.112, .120, .088, .104};
  Punkte Y, X;  // a weight enters as the number of times that a passpoint is given
  for (std::size_t i = 0; i < 4; ++i) {
    for (int k = 0; k < std::lround(10 / (sY[i] * sY[i])); ++k) Y.Dazu(Alt[i], Neu[i]);
    for (int k = 0; k < std::lround(10 / (sX[i] * sX[i])); ++k) X.Dazu(Alt[i], Neu[i]);
  }
  AffinErgebnis y, x;
  ASSERT_EQ(HelmertAffin(Y.P(), y) + HelmertAffin(X.P(), x), 0);
  ErwarteNah({y.Parameter.A22, x.Parameter.A12}, {25.37152, -0.80994}, 8e-6);
  ErwarteNah({y.Parameter.A21, x.Parameter.A11}, {0.82220, 25.40166}, 8e-6);
  ErwarteNah({y.Parameter.A20, x.Parameter.A10}, {-137.183, -150.723}, 5e-4);
  ErwarteNah({y.Klaffen.RestklaffeVY[0], x.Klaffen.RestklaffeVX[0]}, {-0.101, -0.049}, 6e-4);
}

TEST(HelmertAffin, Drehwinkel) {
  constexpr struct {
    double Zaehler, Nenner, Grad;
  } Faelle[] = {{0, 1, 0},    {1, 1, 45},   {2, 0, 90}, {1, -1, 135}, {0, -1, 180},   {-1, -1, 225},
                {-1, 0, 270}, {-1, 1, 315}, {0, 0, 90}, {-0.0, 1, 0}, {-1e-300, 1, 0}};
  for (const auto& f : Faelle) EXPECT_NEAR(HelmertDrehwinkel(f.Zaehler, f.Nenner), f.Grad, 1e-12) << f.Grad;
}

// A known similarity is found again, by both models.
void Aehnlichkeit(Lage Alt, Lage Neu, double M, double Gon) {
  SCOPED_TRACE(::testing::Message() << Alt.RW << ' ' << Neu.RW << ' ' << M << ' ' << Gon);
  const double a = M * CosGon(Gon), b = M * SinGon(Gon);
  const auto Bild = [&](Lage d) { return Lage{Neu.RW + a * d.RW + b * d.HW, Neu.HW + a * d.HW - b * d.RW}; };
  Punkte B;
  for (const Lage d : Figur) B.Dazu(Summe(Alt, d), Bild(d));
  HelmertErgebnis H;
  AffinErgebnis A;
  ASSERT_EQ(HelmertHelmert(B.P(), M != 1, std::nullopt, H), 0);
  ASSERT_EQ(HelmertAffin(B.P(), A), 0);
  for (const double Massstab : {H.Massstab, A.Massstab1, A.Massstab2}) EXPECT_NEAR(Massstab, M, 1e-10);
  for (const double Grad : {H.DrehwinkelGon, A.Drehwinkel1Gon, A.Drehwinkel2Gon - 90})
    EXPECT_NEAR(std::remainder(Grad - Gon * 0.9, 360), 0, 1e-8);
  EXPECT_NEAR(H.Klaffen.StandardabwML + A.Klaffen.StandardabwML, 0, 1e-7);
  const Lage d{1234.5, -2345.6}, Punkt = Summe(Alt, d);
  Lage N, NA;
  EXPECT_EQ(HelmertNeupunkt(Punkt, H.Parameter, N) + HelmertAffinneupunkt(Punkt, A.Parameter, NA), 2);
  ErwarteNah(N, Bild(d), 1e-7);
  ErwarteNah(NA, Bild(d), 1e-7);
}

TEST(HelmertAffin, FindenEineAehnlichkeitWieder) {
  for (const Lage Alt : Orte) {
    for (const Lage Neu : Orte) {
      for (const double Gon : {0., 0.0001, 50., 100., 150., 200., 250., 300., 350., 399.9999, 400.}) {
        Aehnlichkeit(Alt, Neu, 1, Gon);
        Aehnlichkeit(Alt, Neu, 0.9996, Gon);
        Aehnlichkeit(Alt, Neu, 2.5, Gon);
      }
    }
  }
}

TEST(HelmertAffin, FindetEineAffinitaetWieder) {
  const auto Bild = [](Lage d) { return Lage{1000 + .75 * d.RW - .25 * d.HW, 5e6 + .5 * d.RW - 2 * d.HW}; };
  for (const Lage O : Orte) {
    Punkte B;
    for (const Lage d : std::span(Figur).first(3)) B.Dazu(Summe(O, d), Bild(d));
    AffinErgebnis E;
    Lage N;
    ASSERT_EQ(HelmertAffin(B.P(), E), 0);
    HelmertAffinneupunkt(Summe(O, {900, -800}), E.Parameter, N);
    ErwarteNah(N, Bild({900, -800}), 1e-7);
    ErwarteNah({E.Massstab1, E.Massstab2}, {std::hypot(2, .25), std::hypot(.75, .5)}, 1e-10);
    EXPECT_EQ(E.Klaffen.StandardabwMK, 0);  // not set with three passpoints
  }
}

TEST(HelmertAffin, KlaffenRechenachseUndFestpunkt) {
  HelmertErgebnis E;
  const Punkte Drei{{-3, 3, 0}, {0, 0, 0}, {97, 103, 100}, {50, 50, 50.03}};
  ASSERT_EQ(HelmertHelmert(Drei.P(), false, std::nullopt, E), 0);
  EXPECT_NEAR(E.Klaffen.RestklaffeVX[2], .02, 1e-12);
  ErwarteNah({E.Klaffen.StandardabwMK, E.Klaffen.StandardabwML}, {std::sqrt(.0003), std::sqrt(.0006)}, 1e-12);
  AffinErgebnis A;
  const Punkte Vier{{0, 2, 0, 2}, {0, 0, 2, 2}, {0, 2, 0, 2}, {.01, -.01, 1.99, 2.01}};
  ASSERT_EQ(HelmertAffin(Vier.P(), A), 0);
  ErwarteNah({A.Klaffen.StandardabwMK, A.Klaffen.StandardabwML}, {std::sqrt(.0002), .02}, 1e-12);
  const Punkte Zwei{{0, 0}, {0, 100}, {1000, 1101}, {1000, 1000}};
  for (const bool Frei : {true, false}) {
    ASSERT_EQ(HelmertHelmert(Zwei.P(), Frei, std::nullopt, E), 0);
    ErwarteNah({E.Massstab, E.DrehwinkelGon}, {Frei ? 1.01 : 1, 90}, 1e-12);
    ErwarteNah({E.WS, E.D}, {1, .0803 + .008 * std::sqrt(101)}, 1e-12);
    EXPECT_EQ(E.Klaffen.LinieareAbweichungWL, (Zahlen{0, 0}));  // also with the fixed scale
  }
  Lage N;
  ASSERT_EQ(HelmertHelmert(Zwei.P(), false, Festpunkt{{0, 0}, {1000, 1000}}, E), 0);
  EXPECT_EQ(HelmertNeupunkt({0, 100}, E.Parameter, N), 0);  // exactly on the border
  ErwarteNah(N, {1100, 1000}, 1e-12);
}

TEST(HelmertAffin, PasspunkteAufEinerGeraden) {
  const Punkte Faelle[] = {{{0, 1, 2}, {0, 2, 4}, {5, 6, 9}, {1, 2, 4}},
                           {{.1, .1, .1, .1}, {0, 2, 4, 9}, {5, 6, 9, 8}, {1, 2, 4, 8}},
                           {{3400000.1, 3400123.7}, {5700000.3, 5700321.9}, {5, 6}, {1, 2}}};
  for (const Punkte& B : Faelle) {
    AffinErgebnis E;
    ASSERT_EQ(HelmertAffin(B.P(), E), 0);
    EXPECT_TRUE(E.PasspunkteAufGerader);
    EXPECT_EQ(E.Klaffen.RestklaffeVY, B.nR);  // it goes on with parameters of 0
    EXPECT_EQ(E.Drehwinkel1Gon + E.Drehwinkel2Gon + E.Massstab1 + E.Massstab2, 180);
  }
}

TEST(HelmertAffin, AnpassungUndPasspunkteNachOrt) {
  const Punkte B{{9, 9}, {9, 9}, {0, 4}, {0, 0}};
  const Restklaffen K{{.1, -.1}, {0, .2}, {}, 0, 0};
  ErwarteNah(HelmertAnpassung({1, 0}, B.P(), K), {.08, .02}, 1e-15);  // weights 1 and 1/9
  const Lage Auf = HelmertAnpassung({0, 0}, B.P(), K);
  EXPECT_NEAR(.1 - Auf.RW, 1.25e-8, 1e-10);  // nearly the residual of the passpoint, not exactly
  const Zahlen R{0, 10, 10.5}, Viele(10001, 0);
  std::vector<Passpunktkandidat> Gefunden;
  EXPECT_EQ(HelmertQuasipass(R, Zahlen(3), Zahlen{10.2, 1, -.5}, Zahlen(3), 1, Gefunden), 0);
  ASSERT_EQ(Gefunden.size(), 1U);  // the first has two neighbours, the second lies exactly on the circle
  EXPECT_EQ(Gefunden[0].Erster - Gefunden[0].Zweiter, 0 - 2);
  EXPECT_EQ(HelmertQuasipass(Zahlen{0}, Zahlen{0}, Zahlen(10000), Viele, 1, Gefunden), 0);
  EXPECT_EQ(HelmertQuasipass(Zahlen{0}, Zahlen{0}, Viele, Viele, 1, Gefunden), -1);
  EXPECT_EQ(Gefunden.size(), 10000U);
}

class Transformation : public TabellenTest {
 protected:
  enmResult HelmertMit(auto Methode, const auto&... x) {
    return Gesehen([&] {
      return (Ta.*Methode)(x..., z[0], z[1], z[2], z[3], z[4], z[5], z[6], z[7], z[8], v[0], v[1], v[2], z[9],
                           z[10]);
    });
  }
  enmResult AffinMit(auto Methode, const auto&... x) {
    return Gesehen([&] {
      return (Ta.*Methode)(x..., z[0], z[1], z[2], z[3], z[4], z[5], z[6], z[7], z[8], z[9], z[10], z[11],
                           z[12], z[13], z[14], v[0], v[1], v[2], z[15], z[16]);
    });
  }
  enmResult Helmert(const Punkte& B, int n, bool Frei = true) {
    return HelmertMit(&TA::HelmertTransformationParameter, B.aR, B.aH, B.nR, B.nH, n, Frei);
  }
  enmResult Affin(const Punkte& B, int n) {
    return AffinMit(&TA::AffinTransformationParameter, B.aR, B.aH, B.nR, B.nH, n);
  }
  static Punkte Kette(int n) {
    Punkte B;
    for (int i = 0; i < n; ++i) B.Dazu({i * 1.5, i % 7 * 2.}, {50 + i * 1.5, i % 7 * 2. - 20});
    return B;
  }
  static std::string Zeilen(int n, int Um) {
    std::ostringstream Text;
    for (int i = 1; i <= n; ++i) Text << i << ' ' << i + Um << ' ' << i % 9 << ".0\r\n";
    return Text.str();
  }
  TA Ta;
  std::array<double, 17> z{};
  std::array<Zahlen, 3> v;
  const std::string Kor = Ordner.Pfad("a.kor"), Pass = Ordner.Pfad("pass.kor");

 private:
  enmResult Gesehen(const auto& Rechnen) {
    z.fill(Nichts);
    v.fill({Nichts});
    const auto z0 = z;
    const auto v0 = v;
    const enmResult Ergebnis = Rechnen();
    EXPECT_TRUE(Ergebnis == ok || (z == z0 && v == v0));
    return Ergebnis;
  }
};

TEST_F(Transformation, ParameterUndGrenzen) {
  EXPECT_EQ(Helmert({{0, 0}, {0, 100}, {7, 108}, {5, 5}}, 2), ok);
  const double Soll[] = {0, 50, 57.5, 5, 0, 1.01, 1.01, 100, 50};  // gon here
  for (std::size_t i = 0; i < 9; ++i) EXPECT_NEAR(z[i], Soll[i], 1e-12) << i;
  EXPECT_EQ(Affin({{0, 1, 2}, {0, 2, 4}, {5, 6, 9}, {1, 2, 4}}, 3), ok);
  EXPECT_EQ(z[4] + z[5] + z[8] + z[9] + z[10], 0);  // on one line: it goes on with 0
  EXPECT_EQ(Affin({{0, 1, 0}, {0, 0, 1}, {7, 7.5, 11}, {9, 7, 12}}, 3), ok);
  const double SollAffin[] = {9, 3, -2, 7, 4, .5, 5, std::sqrt(4.25)};
  for (std::size_t i = 0; i < 8; ++i) EXPECT_NEAR(z[4 + i], SollAffin[i], 1e-12) << i;
  EXPECT_NEAR(z[12], std::atan(4 / 3.) * 200 / M_PI, 1e-12);

  const Punkte Viele = Kette(1500);
  EXPECT_EQ(Helmert(Viele, 101), ok);
  EXPECT_EQ(v[2].size(), 101U);
  EXPECT_EQ(Helmert(Viele, 102), Fehler_ZuvielePunkte);
  EXPECT_EQ(Affin(Viele, 1500), ok);
  for (const int n : {0, 1}) {
    EXPECT_EQ(Helmert(Viele, n), Fehler_ZuweningePunkte);
    EXPECT_EQ(Affin(Viele, n), Fehler_ZuweningePunkte);
  }
}

TEST_F(Transformation, SchlechteEingaben) {
  const Punkte Gut = Kette(5), EinOrt{{0, 1, 3}, {0, 1, 0}, {.1, .1, .1}, {.7, .7, .7}};
  Punkte Kurz = Gut, Gross = Gut;
  Kurz.nH.pop_back();
  Gross.aR[2] = Gross.aH[2] = 1e200;
  EXPECT_EQ(Helmert({EinOrt.nR, EinOrt.nH, EinOrt.aR, EinOrt.aH}, 3), Fehler_Allgemein);
  EXPECT_EQ(Helmert(EinOrt, 3, false), Fehler_Allgemein);
  EXPECT_EQ(Helmert(EinOrt, 3), ok);
  for (const auto& [B, n] : {std::pair{Gut, -1}, {Gut, 6}, {Kurz, 5}, {Gross, 5}}) {
    EXPECT_EQ(Helmert(B, n), Fehler_Allgemein);
    EXPECT_EQ(Affin(B, n), Fehler_Allgemein);
  }
  Punkt("1", 5, 6);
  for (const double x : {std::nan(""), std::numeric_limits<double>::infinity()}) {
    Punkte B = Gut;
    B.nR[4] = x;
    double R = Nichts, H = Nichts;
    EXPECT_EQ(Helmert(B, 4), ok);  // beyond the count it does not matter
    for (const enmResult Ergebnis :
         {Helmert(B, 5), Affin(B, 5), Ta.HelmertTransformationNeupunkt(1, 2, 3, 4, 5, 6, 1, x, R, H),
          Ta.AffinTransformationNeupunkt(x, 2, 3, 4, 5, 6, 1, 0, R, H),
          Ta.HelmertTransformationAlleKoordinaten(1, 2, 3, 4, 5, x, 1),
          Ta.AffinTransformationAlleKoordinaten(1, 2, 3, 4, 5, x)})
      EXPECT_EQ(Ergebnis, Fehler_Allgemein);
    EXPECT_EQ(R + H + KorRechts[0], 2 * Nichts + 5);
  }
}

// A centroid of (10, 20), a border of 5 m: (13, 24) lies exactly on it. The border 0 parts the two models.
TEST_F(Transformation, NeupunktUndTabelle) {
  struct Fall {
    const char* Name;
    double x, y, Rand;
    enmResult Helmert, Affin;
  };
  constexpr Fall Faelle[] = {{"on the border", 13, 24, 5, ok, ok},
                             {"just outside", 13, 24.0000000001, 5, Aussen, Aussen},
                             {"at the centroid, border 0", 10, 20, 0, Aussen, ok},
                             {"negative border", 10, 20, -1, Aussen, Aussen}};
  for (const auto& [Name, x, y, Rand, Helmert, Affin] : Faelle) {
    SCOPED_TRACE(Name);
    double R = 0, H = 0;
    EXPECT_EQ(Ta.HelmertTransformationNeupunktSigmamax(x, y, 10, 20, 110, 220, 0, 1, Rand, R, H), Helmert);
    ErwarteNah({R, H}, {90 + y, 230 - x}, 1e-12);  // a quarter turn
    EXPECT_EQ(Ta.AffinTransformationNeupunktSigmamax(x, y, 10, 20, 1, 2, 3, 4, 5, 6, Rand, R, H), Affin);
    ErwarteNah({R, H}, {4 + 5 * y + 6 * x, 1 + 2 * y + 3 * x}, 1e-12);
    KorLeeren();
    Punkt("1", x, y, 12.5, "x");
    EXPECT_EQ(Ta.HelmertTransformationAlleKoordinaten(10, 20, 10, 20, 1, 0, Rand), Helmert);
    EXPECT_EQ(Ta.AffinTransformationAlleKoordinatenSigmamax(10, 20, 0, 1, 0, 0, 0, 1, Rand), Affin);
    EXPECT_EQ(Ta.AffinTransformationAlleKoordinaten(1, 2, 3, 4, 5, 6), ok);
    ErwarteNah({KorRechts[0], KorHoch[0]}, {R, H}, 1e-12);
    EXPECT_EQ(KorHoehe[0], 12.5);
  }
}

// The table as a whole and point by point: the same bits and the same verdicts, wherever the border lies.
TEST_F(Transformation, TabelleStimmtMitEinzelpunktenUeberein) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> w(-1e4, 1e4);
  KorAnzahl = 1500;
  for (std::size_t i = 0; i < 1500; ++i) {
    KorRechts[i] = 3.4e6 + w(Zufall);
    KorHoch[i] = 5.7e6 + w(Zufall);
  }
  const Zahlen R = KorRechts, H = KorHoch;
  for (std::size_t g = 0; g < 1500; g += 31) {
    const Lage Mitte{3.4e6, 5.7e6};
    const double Rand = Abstand(Mitte, {R[g], H[g]});
    const HelmertParameter h{Mitte, {12, 34}, .8, -.6, Rand};
    const AffinParameter a{.5, .25, 1, 2, 3, 4, Mitte, Rand};
    std::vector<bool> AussenH, AussenA;
    Lage N;
    KorRechts = R, KorHoch = H;
    EXPECT_EQ(HelmertHelmertneukor(h, &AussenH), 1);
    for (std::size_t i = 0; i < 1500; ++i) {
      ASSERT_EQ(HelmertNeupunkt({R[i], H[i]}, h, N), AussenH[i] ? 1 : 0) << i;
      ASSERT_EQ(N, (Lage{KorRechts[i], KorHoch[i]})) << i;
    }
    KorRechts = R, KorHoch = H;
    EXPECT_EQ(HelmertAffinneukor(a, &AussenA), 1);
    EXPECT_TRUE(AussenH == AussenA && !AussenH[g]);
    HelmertAffinneupunkt({R[1499], H[1499]}, a, N);
    EXPECT_EQ(N, (Lage{KorRechts[1499], KorHoch[1499]}));
  }
  const double Vorher = KorHoch[0];
  HelmertHelmertanpass({Zahlen{1}, Zahlen{1}, Zahlen{1}, Zahlen{1}}, {{.5}, {-.25}, {0}, 0, 0});
  EXPECT_NEAR(KorHoch[0], Vorher - .25, 1e-8);  // a single passpoint: its residual everywhere
}

TEST_F(Transformation, DateiZuDatei) {
  Schreibe(Kor, "1 0 0 7.5 x\r\n2 100 0\r\n3 0 100\r\n4 100 101 1\r\n");
  Schreibe(Pass, "3 1100 500\r\n1 1000 500\r\n2 1000 400\r\n");  // a quarter turn
  EXPECT_EQ(Ta.HelmertTransformationKoordinatendateiPasspunktdatei(Kor, Pass, false, 2), Aussen);
  EXPECT_EQ(Inhalt(Kor),
            "             1      1000.00       500.00       7.50  x\r\n"
            "             2      1000.00       400.00       0.00  \r\n"
            "             3      1100.00       500.00       0.00  \r\n"
            "             4      1101.00       400.00       1.00  \r\n");
  Schreibe(Pass, "3 0.5 300\r\n2 200 0\r\n1 0.5 0\r\n");  // residuals come in the order of this file
  EXPECT_EQ(HelmertMit(&TA::HelmertTransformationParameterPasspunktdatei, Pass, true), ok);
  ErwarteNah({v[0][1], v[1][1]}, {-25.125, 0}, 1e-9);
  EXPECT_EQ(AffinMit(&TA::AffinTransformationParameterPasspunktdatei, Pass), ok);
  EXPECT_NEAR(v[2][0] + v[2][1] + v[2][2], 0, 1e-9);
  Schreibe(Pass, "1 50 5\r\n9 60 6\r\n");
  EXPECT_EQ(HelmertMit(&TA::HelmertTransformationParameterPasspunktdatei, Pass, true),
            Fehler_PunktNichtVorhanden);
  EXPECT_EQ(AffinMit(&TA::AffinTransformationParameterPasspunktdatei, Kor + "x"), Fehler_DateiNichtVorhanden);
  Schreibe(Pass, "3 0.5 300\r\n2 200 0\r\n1 0.5 0\r\n");
  EXPECT_EQ(Ta.AffinTransformationKoordinatendateiPasspunktdatei(Kor, Pass), Aussen);
  EXPECT_NE(Inhalt(Kor).find("4       200.000       303.000       1.000"), std::string::npos);
}

TEST_F(Transformation, DateienBleibenGanz) {
  const std::string Gut = Zeilen(1002, 0), Drei = "1 10 0\r\n2 20 0\r\n12 3 9\r\n";
  const auto Versuch = [&](const std::string& K, const std::string& P, int Nachkomma, enmResult Helmert,
                           enmResult Affin) {
    const std::string Passdatei = Inhalt(Pass);
    Schreibe(Kor, Gut);
    const enmResult h = Ta.HelmertTransformationKoordinatendateiPasspunktdatei(K, P, true, Nachkomma);
    const std::string NachHelmert = Inhalt(Kor);
    Schreibe(Kor, Gut);
    const enmResult a = Ta.AffinTransformationKoordinatendateiPasspunktdatei(K, P, Nachkomma);
    EXPECT_EQ(h, Helmert);
    EXPECT_EQ(a, Affin);
    EXPECT_EQ(NachHelmert == Gut, Helmert != Aussen);
    EXPECT_EQ(Inhalt(Kor) == Gut, Affin != Aussen);
    EXPECT_EQ(Inhalt(Pass), Passdatei);
  };
  struct Fall {
    const char* Name;
    std::string Passdatei;
    enmResult Helmert, Affin;
  };
  const Fall Faelle[] = {
      {"one passpoint, the other line is too short", "1 50 5\r\n2 5 5\r\n", Fehler_ZuweningePunkte,
       Fehler_ZuweningePunkte},
      {"not in the table", Drei + "1a 5 5\r\n", Fehler_PunktNichtVorhanden, Fehler_PunktNichtVorhanden},
      {"101 rows", Zeilen(101, 100), Aussen, Aussen},
      {"102 rows", Zeilen(102, 100), Fehler_ZuvielePunkte, Aussen},
      {"1001 rows", Zeilen(1001, 100), Fehler_ZuvielePunkte, Aussen},
      {"1002 rows", Gut, Fehler_ZuvielePunkte, Fehler_ZuvielePunkte},
      {"one spot of the new system", "1 50 5\r\n3 50 5\r\n12 50 5\r\n", Fehler_Allgemein, Fehler_Allgemein},
      {"one line", "1 10 1\r\n10 50 5\r\n19 80 7\r\n", Aussen, Fehler_Allgemein},
      {"rounded up beyond the fields", "1 9998998.9999 1\r\n3 9999000.9999 3\r\n12 9999009.9999 3\r\n",
       Fehler_Allgemein, Fehler_Allgemein}};
  for (const Fall& f : Faelle) {
    SCOPED_TRACE(f.Name);
    Schreibe(Pass, f.Passdatei);
    Versuch(Kor, Pass, 3, f.Helmert, f.Affin);
  }
  Schreibe(Pass, Drei);
  const std::string Ordnername = Ordner.Pfad("ordner"), Fehlt = Ordner.Pfad("fehlt.kor");
  std::filesystem::create_directories(Ordnername);
  for (const auto& [K, P] : {std::pair{Fehlt, Pass}, {Kor, Fehlt}})
    Versuch(K, P, 3, Fehler_DateiNichtVorhanden, Fehler_DateiNichtVorhanden);
  for (const auto& [K, P] : {std::pair{Ordnername, Pass}, {Kor, Ordnername}})  // there, but not readable
    Versuch(K, P, 3, Fehler_Allgemein, Fehler_Allgemein);
  for (const int Nachkomma : {-1, 16}) Versuch(Kor, Pass, Nachkomma, Fehler_Allgemein, Fehler_Allgemein);
  std::filesystem::create_directories(Kor + ".neu~/voll");  // nobody, not even root, can write the new file
  Versuch(Kor, Pass, 3, Fehler_Allgemein, Fehler_Allgemein);
  EXPECT_FALSE(std::filesystem::exists(Fehlt));
}

}  // namespace
}  // namespace tavorena::test
