#include "Rechentest.h"

#include <tavorena/calc/Epochenvergleich.h>

namespace tavorena::test {
namespace {

using enum Bewegungsstufe;

Epochenreihe Höhen(std::initializer_list<double> Werte) {  // 0: not measured
  Epochenreihe R(Werte.size());
  auto r = R.begin();
  for (const double h : Werte) (r++)->Hoehe = h != 0 ? std::optional(h) : std::nullopt;
  return R;
}

// Published height differences of two epochs between four marks: 12 to 10, 11 to 12, 12 to 13. By the
// instrument's 0.8 mm/km only mark 10 moved.
TEST(Epochenvergleich, VeröffentlichteMarken) {
  const double H12 = 150;
  const Epochenreihe Marken[] = {Höhen({H12 + 0.1887, H12 + 0.1861}), Höhen({H12 - 0.1392, H12 - 0.1394}),
                                 Höhen({H12, H12}), Höhen({H12 - 0.2304, H12 - 0.2306})};
  Epochenergebnis E;
  const Epochengrenzen Grenzen{0.8 * std::sqrt(0.169), 0};
  ASSERT_EQ(Epochenvergleich(Marken, std::array<std::size_t, 3>{1, 2, 3}, Grenzen, E), 0);
  EXPECT_TRUE(Nahe({E.Bezug[1].dZ, E.Schritte[0][1].ZurErsten.dZ.value(),
                    E.Schritte[1][1].ZurErsten.dZ.value(), E.Schritte[2][1].ZurErsten.dZ.value()},
                   {-0.4 / 3, -2.6 + 0.4 / 3, -0.2 + 0.4 / 3, 0.4 / 3}, 1e-4));
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(E.Schritte[i][1].ZurErsten.Stufe, i == 0 ? DreiSigma : Keine) << i;
  }
}

// A limit that is just met is not passed; first and previous are those that hold the value.
TEST(Epochenvergleich, GrenzenUndLücken) {
  const double Sd = std::sqrt(2.0);
  struct Fall {
    const char* Name;
    Epochenreihe Reihe;
    double Zulässig, Erste, Vorige;
    Bewegungsstufe StufeErste, StufeVorige;
  };
  for (const Fall& f :
       {Fall{"exactly permitted", Höhen({100, 100.004, 100.005}), 5, 5, 1, DreiSigma, Keine},
        {"beyond", Höhen({100, 100.004, 100.0051}), 5, 5.1, 1.1, UeberZulaessig, Keine},
        {"sinking", Höhen({100, 100.002, 99.9971}), 0, -2.9, -4.9, ZweiSigma, DreiSigma},
        {"a gap", Höhen({0, 100, 0, 100.003}), 0, 3, 3, ZweiSigma, ZweiSigma},
        {"8 digits", Höhen({5600000, 5600000, 5600000 + 0.003}), 3, 3, 3, ZweiSigma, ZweiSigma}}) {
    SCOPED_TRACE(f.Name);
    Epochenergebnis E;
    ASSERT_EQ(Epochenvergleich(std::array{f.Reihe}, {}, {1, f.Zulässig}, E), 0);
    const Epochenschritt& S = E.Schritte[0].back();
    EXPECT_TRUE(Nahe({*S.ZurErsten.dZ, *S.ZurVorigen.dZ}, {f.Erste, f.Vorige}, 1e-5));
    EXPECT_TRUE(Gleich(S.ZurErsten.Stufe, f.StufeErste, S.ZurVorigen.Stufe, f.StufeVorige));
    EXPECT_FALSE(E.Schritte[0][0].ZurErsten.dZ) << "nothing before";
  }
  Epochenergebnis E;
  ASSERT_EQ(Epochenvergleich(std::array{Höhen({1, 1 + 2.001e-3 * Sd}), Höhen({1, 1 + 1.999e-3 * Sd})}, {},
                             {1, 0}, E),
            0);
  EXPECT_TRUE(Gleich(E.Schritte[0][1].ZurErsten.Stufe, ZweiSigma, E.Schritte[1][1].ZurErsten.Stufe, Keine));
  EXPECT_EQ(Epochenvergleich(std::array{Höhen({1}), Höhen({1, 2})}, {}, {}, E), -1);
  EXPECT_EQ(Epochenvergleich(std::array{Höhen({1})}, std::array<std::size_t, 1>{1}, {}, E), -1);
}

// Each epoch in a frame of its own: the references bring it back, and the movements alone are left. The third
// epoch lacks the first reference, and a reference begins in the second.
TEST(Epochenvergleich, BewegungenImVerdrehtenNetz) {
  Gelände Irgendwo(200);
  for (int Lauf = 0; Lauf < 50; ++Lauf) {
    std::vector<Epochenreihe> P(6, Epochenreihe(3));
    const Lage d1 = {0.004, -0.003}, d2 = {-0.012, 0.005};
    const double w = Irgendwo.Zahl(-0.5, 0.5);
    const Lage Weg = {Irgendwo.Zahl(-5, 5), Irgendwo.Zahl(-5, 5)}, Mitte = Irgendwo();
    for (std::size_t i = 0; i < P.size(); ++i) {
      const Lage Ort = Irgendwo();
      for (std::size_t e = 0; e < 3; ++e) {
        const Lage Neu = i != 5 ? Ort : e == 1 ? Ort + d1 : e == 2 ? Ort + d1 + d2 : Ort;
        const double g = w * static_cast<double>(e), dr = Neu.RW - Mitte.RW, dh = Neu.HW - Mitte.HW;
        const Lage Gedreht = {dr * CosGon(g) + dh * SinGon(g), dh * CosGon(g) - dr * SinGon(g)};
        P[i][e] = {Mitte + Gedreht + (e == 0 ? Lage{} : Weg),
                   50.0 + (i == 5 ? -0.002 : 0.7) * static_cast<double>(e)};
      }
    }
    P[0][2] = {};
    P[3][0] = {};
    Epochenergebnis E;
    ASSERT_EQ(Epochenvergleich(P, std::array<std::size_t, 4>{0, 1, 2, 3}, {3, 10}, E), 0);
    const Epochenschritt& S = E.Schritte[5][2];
    EXPECT_TRUE(Nahe({*S.ZurVorigen.dR, *S.ZurVorigen.dH, *S.ZurVorigen.dS, *S.ZurErsten.dR, *S.ZurErsten.dH},
                     {-12, 5, 13, -8, 2}, 2e-4));
    EXPECT_NEAR(*S.ZurErsten.dZ, -4 - 1400, 1e-4) << "heights follow the references too";
    EXPECT_TRUE(
        Gleich(S.ZurVorigen.Stufe, UeberZulaessig, E.Bezug[2].Lagepunkte, 3, E.Bezug[2].Höhenpunkte, 3));
    EXPECT_TRUE(Nahe({E.Bezug[1].DrehungMgon, E.Bezug[2].DrehungMgon, E.Bezug[2].KlaffungMm, E.Bezug[2].dZ},
                     {w * 1000, w * 2000, 0, 1400}, 1e-3));
    ASSERT_EQ(Epochenvergleich(P, std::array<std::size_t, 1>{1}, {3, 10}, E), 0);
    EXPECT_EQ(E.Bezug[1].Lagepunkte, 0) << "one point holds no direction";
  }
}

}  // namespace
}  // namespace tavorena::test
