#include "Rechentest.h"

#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>

namespace tavorena::test {
namespace {

constexpr auto Aussen = Hinweis_PunktAusserhalbDesPasspunktfeldes, Fehlt = Fehler_PunktNichtVorhanden;
constexpr auto Wenige = Fehler_ZuweningePunkte, Zuviele = Fehler_ZuvielePunkte, Fehler = Fehler_Allgemein;
constexpr auto OhneDatei = Fehler_DateiNichtVorhanden;
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

// C. D. Ghilani, Adjustment Computations, example 18.1.
TEST(HelmertAffin, VeröffentlichtesBeispiel) {
  HelmertErgebnis E;
  const Punkte B{{121.622, 141.228, 175.802},
                 {-128.066, 187.718, 135.728},
                 {1049422.40, 1049413.95, 1049244.95},
                 {51089.20, 49659.30, 49884.95}};
  ASSERT_EQ(HelmertHelmert(B.P(), true, std::nullopt, E), 0);
  const auto& K = E.Klaffen;
  EXPECT_TRUE(Nahe({E.Parameter.ParamA, E.Parameter.ParamB, E.Massstab}, {-4.51249, 0.25371, 4.51962}, 5e-6));
  EXPECT_NEAR(E.DrehwinkelGon, 360 - 0.9 * Gms(183, 13, 5), 2e-5);  // degrees; there the other way round
  EXPECT_NEAR(K.StandardabwMK * K.StandardabwMK, 0.0195, 6e-5);
  EXPECT_TRUE(Nahe({K.RestklaffeVY[0], K.RestklaffeVX[0], K.RestklaffeVY[1], K.RestklaffeVX[1]},
                   {-0.004, 0.029, -0.101, 0.077}, 5e-4));
  Lage T;
  HelmertNeupunkt({0, 0}, E.Parameter, T);
  EXPECT_TRUE(Nahe(T, {1050003.715, 50542.131}, 5e-4));
}

TEST(HelmertAffin, Drehwinkel) {
  EXPECT_TRUE(Nahe({HelmertDrehwinkel(2, 0), HelmertDrehwinkel(0, -1), HelmertDrehwinkel(-1, 0),
                    HelmertDrehwinkel(-1, 1), HelmertDrehwinkel(0, 0), HelmertDrehwinkel(-1e-300, 1)},
                   {90, 180, 270, 315, 90, 0}, 1e-12));
}

// A known similarity is found again, by both models.
void Ähnlichkeit(Lage Alt, Lage Neu, double M, double Gon) {
  SCOPED_TRACE(::testing::Message() << Alt.RW << ' ' << Neu.RW << ' ' << M << ' ' << Gon);
  const double a = M * CosGon(Gon), b = M * SinGon(Gon);
  const auto Bild = [&](Lage d) { return Lage{Neu.RW + a * d.RW + b * d.HW, Neu.HW + a * d.HW - b * d.RW}; };
  Punkte B;
  for (const Lage d : Figur) B.Dazu(Alt + d, Bild(d));
  HelmertErgebnis H;
  AffinErgebnis A;
  ASSERT_EQ(HelmertHelmert(B.P(), M != 1, std::nullopt, H), 0);
  ASSERT_EQ(HelmertAffin(B.P(), A), 0);
  for (const double Massstab : {H.Massstab, A.Massstab1, A.Massstab2}) EXPECT_NEAR(Massstab, M, 1e-10);
  for (const double Grad : {H.DrehwinkelGon, A.Drehwinkel1Gon, A.Drehwinkel2Gon - 90})
    EXPECT_NEAR(std::remainder(Grad - Gon * 0.9, 360), 0, 1e-8);
  EXPECT_NEAR(H.Klaffen.StandardabwML + A.Klaffen.StandardabwML, 0, 1e-7);
  const Lage d{1234.5, -2345.6}, Punkt = Alt + d;
  Lage N, NA;
  EXPECT_TRUE(
      Gleich(HelmertNeupunkt(Punkt, H.Parameter, N), 1, HelmertAffinneupunkt(Punkt, A.Parameter, NA), 1));
  for (const Lage Neues : {N, NA}) EXPECT_TRUE(Nahe(Neues, Bild(d), 1e-7));
}

TEST(HelmertAffin, FindenEineÄhnlichkeitWieder) {
  for (const Lage Alt : {Orte[0], Orte[1], Orte[2], Lage{32456789.01, 12.5}}) {
    for (const Lage Neu : Orte) {
      for (const double Gon : {0., 0.0001, 50., 100., 150., 200., 250., 300., 350., 399.9999, 400.}) {
        for (const double M : {1., 0.9996, 2.5}) Ähnlichkeit(Alt, Neu, M, Gon);
      }
    }
  }
}

TEST(HelmertAffin, Klaffen) {
  HelmertErgebnis E;
  const Punkte Drei{{-3, 3, 0}, {0, 0, 0}, {97, 103, 100}, {50, 50, 50.03}};
  ASSERT_EQ(HelmertHelmert(Drei.P(), false, std::nullopt, E), 0);
  EXPECT_TRUE(Nahe({E.Klaffen.RestklaffeVX[2], E.Klaffen.StandardabwMK, E.Klaffen.StandardabwML},
                   {.02, std::sqrt(.0003), std::sqrt(.0006)}, 1e-12));
}

TEST(HelmertAffin, ZweiPasspunkte) {
  const Punkte Zwei{{0, 0}, {0, 100}, {1000, 1101}, {1000, 1000}};
  HelmertErgebnis E;
  for (const bool Frei : {true, false}) {
    ASSERT_EQ(HelmertHelmert(Zwei.P(), Frei, std::nullopt, E), 0);
    EXPECT_TRUE(Nahe({E.Massstab, E.DrehwinkelGon, E.WS, E.D},
                     {Frei ? 1.01 : 1, 90, 1, .0803 + .008 * std::sqrt(101)}, 1e-12));
    EXPECT_EQ(E.Klaffen.LinieareAbweichungWL, (Zahlen{0, 0}));  // also with the fixed scale
  }
  Lage N;
  ASSERT_EQ(HelmertHelmert(Zwei.P(), false, Festpunkt{{0, 100}, {1101, 1000}}, E), 0);
  EXPECT_EQ(HelmertNeupunkt({0, 0}, E.Parameter, N), 0);  // exactly on the border
  EXPECT_TRUE(Nahe(N, {1001, 1000}));
}

TEST(HelmertAffin, ZuWenigIstKeineDivisionDurchNull) {
  const Punkte Einer{{1}, {2}, {3}, {4}}, Alt{{5, 5}, {6, 6}, {0, 9}, {0, 9}},
      Neu{{0, 9}, {0, 9}, {5, 5}, {6, 6}};
  HelmertErgebnis H;
  AffinErgebnis A;
  EXPECT_TRUE(Gleich(HelmertHelmert(Einer.P(), true, std::nullopt, H), -1, HelmertAffin(Einer.P(), A), -1));
  EXPECT_TRUE(Gleich(HelmertHelmert(Alt.P(), true, std::nullopt, H), -2,
                     HelmertHelmert(Neu.P(), false, std::nullopt, H), -2, HelmertAffin(Alt.P(), A), 0,
                     A.PasspunkteAufGerader, true));
}

TEST(HelmertAffin, PasspunkteAufEinerGeraden) {
  for (const Punkte& B : {Punkte{{.1, .1, .1, .1}, {0, 2, 4, 9}, {5, 6, 9, 8}, {1, 2, 4, 8}},
                          Punkte{{0, 2, 4, 9}, {.1, .1, .1, .1}, {5, 6, 9, 8}, {1, 2, 4, 8}},
                          Punkte{{3400000.1, 3400123.7}, {5700000.3, 5700321.9}, {5, 6}, {1, 2}}}) {
    AffinErgebnis E;
    ASSERT_EQ(HelmertAffin(B.P(), E), 0);
    // It goes on with parameters of 0.
    EXPECT_TRUE(Gleich(E.PasspunkteAufGerader, true, E.Klaffen.RestklaffeVY, B.nR));
    EXPECT_TRUE(Gleich(E.Drehwinkel1Gon, 90, E.Drehwinkel2Gon, 90, E.Massstab1, 0, E.Massstab2, 0));
  }
}

TEST(HelmertAffin, Anpassung) {
  const Punkte B{{9, 9}, {9, 9}, {0, 4}, {0, 0}};
  const Restklaffen K{{.1, -.1}, {0, .2}, {}, 0, 0};
  EXPECT_TRUE(Nahe(HelmertAnpassung({1, 0}, B.P(), K), {.08, .02}, 1e-15));  // weights 1 and 1/9
  // On a passpoint nearly its residual, not exactly.
  EXPECT_NEAR(.1 - HelmertAnpassung({0, 0}, B.P(), K).RW, 1.25e-8, 1e-10);
}

TEST(HelmertAffin, PasspunkteNachOrt) {
  const Zahlen R{0, 10, 10.5}, Viele(10001, 0);
  std::vector<Passpunktkandidat> Gefunden;
  EXPECT_EQ(HelmertQuasipass(R, Zahlen(3), Zahlen{10.2, 1, -.5}, Zahlen(3), 1, Gefunden), 0);
  ASSERT_EQ(Gefunden.size(), 1U);  // the first has two neighbours, the second lies exactly on the circle
  EXPECT_TRUE(Gleich(Gefunden[0].Erster, 0, Gefunden[0].Zweiter, 2));
  EXPECT_EQ(HelmertQuasipass(Zahlen{0}, Zahlen{0}, Zahlen(10000), Viele, 1, Gefunden), 0);
  EXPECT_EQ(HelmertQuasipass(Zahlen{0}, Zahlen{0}, Viele, Viele, 1, Gefunden), -1);
  EXPECT_EQ(Gefunden.size(), 10000U);
}

// Columns as a whole and point by point: the same bits and the same verdicts, wherever the border lies.
TEST(HelmertAffin, SpaltenStimmenMitEinzelpunktenÜberein) {
  Gelände G;
  Zahlen R(1500), H(1500);
  for (std::size_t i = 0; i < R.size(); ++i) R[i] = G().RW, H[i] = G().HW;
  for (std::size_t g = 0; g < 1500; g += 31) {
    const Lage Mitte{3.405e6, 5.705e6};
    const double Rand = Abstand(Mitte, {R[g], H[g]});
    const HelmertParameter h{Mitte, {12, 34}, .8, -.6, Rand};
    const AffinParameter p{.5, .25, 1, 2, 3, 4, Mitte, Rand};
    std::vector<bool> AussenH, AussenA;
    Lage N;
    Zahlen NeuR = R, NeuH = H;
    EXPECT_EQ(HelmertHelmertneukor(h, NeuR, NeuH, &AussenH), 1);
    for (std::size_t i = 0; i < 1500; ++i) {
      ASSERT_EQ(HelmertNeupunkt({R[i], H[i]}, h, N), AussenH[i] ? 1 : 0) << i;
      ASSERT_EQ(N, (Lage{NeuR[i], NeuH[i]})) << i;
    }
    NeuR = R, NeuH = H;
    EXPECT_EQ(HelmertAffinneukor(p, NeuR, NeuH, &AussenA), 1);
    EXPECT_TRUE(AussenH == AussenA && !AussenH[g]);
    HelmertAffinneupunkt({R[1499], H[1499]}, p, N);
    EXPECT_EQ(N, (Lage{NeuR[1499], NeuH[1499]}));
  }
  const double Vorher = H[0];
  HelmertHelmertanpass({Zahlen{1}, Zahlen{1}, Zahlen{1}, Zahlen{1}}, {{.5}, {-.25}, {0}, 0, 0}, R, H);
  EXPECT_NEAR(H[0], Vorher - .25, 1e-8);  // a single passpoint: its residual everywhere
}

class Transformation : public FeldTest {
 protected:
  // Vor is the number of numbers before the residuals; two come after them.
  template <std::size_t Vor>
  enmResult Mit(auto Methode, const auto&... x) {
    const auto Rufe = [&]<std::size_t... i>(std::index_sequence<i...>) {
      return (Ta.*Methode)(x..., z[i]..., v[0], v[1], v[2], z[Vor], z[Vor + 1]);
    };
    return Gesehen([&] { return Rufe(std::make_index_sequence<Vor>()); });
  }
  enmResult Helmert(const Punkte& B, int n, bool Frei = true) {
    return Mit<9>(&TA::HelmertTransformationParameter, B.aR, B.aH, B.nR, B.nH, n, Frei);
  }
  enmResult Affin(const Punkte& B, int n) {
    return Mit<15>(&TA::AffinTransformationParameter, B.aR, B.aH, B.nR, B.nH, n);
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
  const std::string Kor = Ordner.Pfad("a.kor"), Pass = Ordner.Pfad("pass.kor");
};

TEST_F(Transformation, Parameter) {
  EXPECT_EQ(Helmert({{0, 0}, {0, 100}, {7, 108}, {5, 5}}, 2), ok);
  EXPECT_TRUE(Nahe({z[0], z[1], z[2], z[3], z[4], z[5], z[6], z[7], z[8]},
                   {0, 50, 57.5, 5, 0, 1.01, 1.01, 100, 50}, 1e-12));  // gon here
  EXPECT_EQ(Affin({{0, 1, 0}, {0, 0, 1}, {7, 7.5, 11}, {9, 7, 12}}, 3), ok);
  EXPECT_TRUE(Nahe({z[3], z[4], z[5], z[6], z[7], z[8], z[9], z[10], z[11], z[12], z[13], z[14], z[15]},
                   {28 / 3., 9, 3, -2, 7, 4, .5, 5, std::sqrt(4.25), std::atan(4 / 3.) * 200 / pi,
                    200 - std::atan(.25) * 200 / pi, std::sqrt(5.) / 3, 0},
                   1e-12));  // no standard deviation with three passpoints
  EXPECT_EQ(Affin({{1, -1, -1, 1}, {1, 1, -1, -1}, {1.5, -1.5, -.5, .5}, {1, 1, -1, -1}}, 4), ok);
  EXPECT_TRUE(Nahe({z[15], z[16], v[0][1], v[1][1]}, {std::sqrt(.5), 1, -.5, 0}, 1e-12));
}

TEST_F(Transformation, SchlechteEingaben) {
  const Punkte Gut = Kette(5), Viele = Kette(1500), EinOrt{{0, 1, 3}, {0, 1, 0}, {.1, .1, .1}, {.7, .7, .7}};
  Punkte Kurz = Gut, Gross = Gut, Unendlich = Gut;
  Kurz.nH.pop_back();
  Gross.aR[2] = Gross.aH[2] = 1e200;
  Unendlich.nR[4] = HUGE_VAL;
  for (const auto& [B, n, Soll] : {std::tuple{Gut, 0, Wenige},
                                   {Gut, 1, Wenige},
                                   {Gut, -1, Fehler},
                                   {Gut, 6, Fehler},
                                   {Kurz, 5, Fehler},
                                   {Gross, 5, Fehler},
                                   {Unendlich, 5, Fehler},
                                   {Unendlich, 4, ok}}) {
    EXPECT_TRUE(Gleich(Helmert(B, n), Soll, Affin(B, n), Soll)) << n;
  }
  EXPECT_TRUE(Gleich(Helmert(Viele, 101), ok, Helmert(Viele, 102), Zuviele, Affin(Viele, 1500), ok));
  EXPECT_EQ(Helmert({EinOrt.nR, EinOrt.nH, EinOrt.aR, EinOrt.aH}, 3), Fehler);
  EXPECT_TRUE(Gleich(Helmert(EinOrt, 3, false), Fehler, Helmert(EinOrt, 3), ok));

  Punkt("1", 5, 6);
  EXPECT_EQ(Ta.HelmertTransformationNeupunkt(1, 2, 3, 4, 5, 6, 1, std::nan(""), a, b), Fehler);
  EXPECT_EQ(Ta.AffinTransformationAlleKoordinaten(1, 2, 3, 4, 5, std::nan("")), Fehler);
  EXPECT_TRUE(Unberührt());
  EXPECT_EQ(KorRechts[0], 5);
}

// A centroid of (10, 20), a border of 5 m: (13, 24) lies exactly on it. The border 0 parts the two models.
TEST_F(Transformation, RandDesPasspunktfeldes) {
  struct Fall {
    const char* Name;
    double x, y, Rand;
    enmResult Helmert, Affin;
  };
  constexpr Fall Fälle[] = {{"on the border", 13, 24, 5, ok, ok},
                            {"just outside", 13, 24.0000000001, 5, Aussen, Aussen},
                            {"at the centroid, border 0", 10, 20, 0, Aussen, ok},
                            {"negative border", 10, 20, -1, Aussen, Aussen}};
  for (const auto& [Name, x, y, Rand, Helmert, Affin] : Fälle) {
    SCOPED_TRACE(Name);
    EXPECT_EQ(Ta.HelmertTransformationNeupunktSigmamax(x, y, 10, 20, 110, 220, 0, 1, Rand, a, b), Helmert);
    EXPECT_EQ(Ta.HelmertTransformationNeupunkt(x, y, 10, 20, 110, 220, 0, 1, c, d), ok);
    EXPECT_TRUE(Nahe({a, b, c, d}, {90 + y, 230 - x, 90 + y, 230 - x}));  // a quarter turn
    EXPECT_EQ(Ta.AffinTransformationNeupunktSigmamax(x, y, 10, 20, 1, 2, 3, 4, 5, 6, Rand, a, b), Affin);
    EXPECT_EQ(Ta.AffinTransformationNeupunkt(x, y, 1, 2, 3, 4, 5, 6, c, d), ok);
    EXPECT_TRUE(Nahe({a, b, c, d}, {4 + 5 * y + 6 * x, 1 + 2 * y + 3 * x, a, b}));
    KorLeeren();
    Punkt("1", x, y, 12.5, "x");
    KorGeaendertSetzen(false);
    EXPECT_EQ(Ta.HelmertTransformationAlleKoordinaten(10, 20, 10, 20, 1, 0, Rand), Helmert);
    EXPECT_TRUE(KoordinatenGeaendert);
    EXPECT_EQ(Ta.AffinTransformationAlleKoordinatenSigmamax(10, 20, 0, 1, 0, 0, 0, 1, Rand), Affin);
    EXPECT_EQ(Ta.AffinTransformationAlleKoordinaten(1, 2, 3, 4, 5, 6), ok);
    EXPECT_TRUE(Nahe({KorRechts[0], KorHoch[0], KorHoehe[0]}, {a, b, 12.5}));
  }
}

TEST_F(Transformation, DateiZuDatei) {
  Schreibe(Kor, "1 0 0 7.5 x\r\n2 100 0\r\n3,5 0 100\r\n4 100 101 1\r\n");
  Schreibe(Pass, "3,5 1100 500\r\n1 1000 500\r\n2 1000 400\r\n");  // a quarter turn
  EXPECT_EQ(Ta.HelmertTransformationKoordinatendateiPasspunktdatei(Kor, Pass, false, 2), Aussen);
  EXPECT_EQ(Inhalt(Kor),
            "             1      1000.00       500.00       7.50  x\r\n"
            "             2      1000.00       400.00       0.00  \r\n"
            "           3.5      1100.00       500.00       0.00  \r\n"
            "             4      1101.00       400.00       1.00  \r\n");
  Schreibe(Pass, "3.5 0.5 300\r\n2 200 0\r\n1 0.5 0\r\n");  // residuals come in the order of this file
  EXPECT_EQ(Mit<9>(&TA::HelmertTransformationParameterPasspunktdatei, Pass, true), ok);
  EXPECT_TRUE(Nahe({v[0][1], v[1][1], z[10]}, {-25.125, 0, z[9] * std::sqrt(2.)}));
  EXPECT_EQ(Mit<15>(&TA::AffinTransformationParameterPasspunktdatei, Pass), ok);
  EXPECT_NEAR(v[2][0] + v[2][1] + v[2][2], 0, 1e-9);
  Schreibe(Pass, "1 50 5\r\n9 60 6\r\n");
  EXPECT_EQ(Mit<9>(&TA::HelmertTransformationParameterPasspunktdatei, Pass, true), Fehlt);
  EXPECT_EQ(Mit<15>(&TA::AffinTransformationParameterPasspunktdatei, Kor + "x"), OhneDatei);
  Schreibe(Pass, "3.5 0.5 300\r\n2 200 0\r\n1 0.5 0\r\n");
  EXPECT_EQ(Ta.AffinTransformationKoordinatendateiPasspunktdatei(Kor, Pass), Aussen);
  EXPECT_NE(Inhalt(Kor).find("4       200.000       303.000       1.000"), std::string::npos);
}

TEST_F(Transformation, DateienBleibenGanz) {
  const std::string Gut = Zeilen(1002, 0), Drei = "1 10 0\r\n2 20 0\r\n12 3 9\r\n";
  const auto Versuch = [&](const std::string& K, const std::string& P, int Nachkomma, enmResult Helmert,
                           enmResult Affin) {
    const std::string Passdatei = Inhalt(Pass);
    Schreibe(Kor, Gut);
    EXPECT_EQ(Ta.HelmertTransformationKoordinatendateiPasspunktdatei(K, P, true, Nachkomma), Helmert);
    EXPECT_EQ(Inhalt(Kor) == Gut, Helmert != Aussen);
    Schreibe(Kor, Gut);
    EXPECT_EQ(Ta.AffinTransformationKoordinatendateiPasspunktdatei(K, P, Nachkomma), Affin);
    EXPECT_EQ(Inhalt(Kor) == Gut, Affin != Aussen);
    EXPECT_EQ(Inhalt(Pass), Passdatei);
  };
  struct Fall {
    const char* Name;
    std::string Passdatei;
    enmResult Helmert, Affin;
  };
  const Fall Fälle[] = {{"one passpoint, the other line is too short", "1 50 5\r\n2 5 5\r\n", Wenige, Wenige},
                        {"not in the table", Drei + "1a 5 5\r\n", Fehlt, Fehlt},
                        {"101 rows", Zeilen(101, 100), Aussen, Aussen},
                        {"102 rows", Zeilen(102, 100), Zuviele, Aussen},
                        {"1001 rows", Zeilen(1001, 100), Zuviele, Aussen},
                        {"1002 rows", Gut, Zuviele, Zuviele},
                        {"one spot of the new system", "1 50 5\r\n3 50 5\r\n12 50 5\r\n", Fehler, Fehler},
                        {"too low", "1 -999998 1\r\n3 -1000000 3\r\n12 -1000009 3\r\n", Fehler, Fehler},
                        {"one line", "1 10 1\r\n10 50 5\r\n19 80 7\r\n", Aussen, Fehler},
                        {"beyond the fields when rounded up",
                         "1 9998998.9999 1\r\n3 9999000.9999 3\r\n12 9999009.9999 3\r\n", Fehler, Fehler}};
  for (const Fall& f : Fälle) {
    SCOPED_TRACE(f.Name);
    Schreibe(Pass, f.Passdatei);
    Versuch(Kor, Pass, 3, f.Helmert, f.Affin);
  }
  Schreibe(Pass, Drei);
  const std::string Ordnername = Ordner.Pfad("ordner"), Weg = Ordner.Pfad("fehlt.kor");
  fs::create_directories(Ordnername);
  for (const auto& [K, P] : {std::pair{Weg, Pass}, {Kor, Weg}}) Versuch(K, P, 3, OhneDatei, OhneDatei);
  for (const auto& [K, P] : {std::pair{Ordnername, Pass}, {Kor, Ordnername}})  // there, but not readable
    Versuch(K, P, 3, Fehler, Fehler);
  for (const int Nachkomma : {-1, 16}) Versuch(Kor, Pass, Nachkomma, Fehler, Fehler);
  const std::string Zuvoll = Zeilen(20001, 0);  // would come back without its last point
  Schreibe(Kor, Zuvoll);
  EXPECT_EQ(Ta.HelmertTransformationKoordinatendateiPasspunktdatei(Kor, Pass, true), Zuviele);
  EXPECT_EQ(Inhalt(Kor), Zuvoll);
  fs::permissions(Kor, fs::perms{0444});  // nobody, not even root, may write it
  Versuch(Kor, Pass, 3, Fehler, Fehler);
  EXPECT_FALSE(fs::exists(Weg));
}

}  // namespace
}  // namespace tavorena::test
