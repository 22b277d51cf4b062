#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include <tavorena/calc/Nivellement.h>

namespace tavorena {
namespace {

constexpr double N = NivellementOhne;
using Feldbuch = std::vector<NivellementZeile>;

NivellementErgebnis Gerechnet(const Feldbuch& Z, double k = 15) {
  NivellementErgebnis E;
  int Zeile = -1;
  EXPECT_EQ(NivellementRechnen(Z, k, E, Zeile), 0) << "Zeile " << Zeile;
  E.Zeilen.resize(Z.size());
  return E;
}

// A line between two benchmarks of a public calculator, and a published circuit of 30.5 km:
// 783.213 at 5.245 km becomes 783.255.
TEST(Nivellement, VeröffentlichteLinien) {
  const NivellementErgebnis E = Gerechnet({{"BM1", 2.337, N, N, N, N, 149.767},
                                           {"1", 1.37975, N, 1.47725},
                                           {"2", 1.8835, N, 2.1465},
                                           {"3", 2.9085, N, 1.032},
                                           {"BM2", N, N, 1.472}});
  EXPECT_NEAR(E.Zeilen[4].Hoehe, 152.148, 1e-9);
  EXPECT_TRUE(!E.Abschnitte[0].Geschlossen && std::isnan(E.Zeilen[4].v));
  const NivellementErgebnis K = Gerechnet({{"A", 54.483, N, N, 2600, N, 728.730},
                                           {"P", 0, N, 0, 25000, 2645},
                                           {"E", N, N, 54.727, N, 255, 728.730}});
  EXPECT_NEAR(K.Abschnitte[0].FH, 0.244, 1e-9);
  EXPECT_NEAR(K.Abschnitte[0].L, 30.5, 1e-9);
  EXPECT_NEAR(K.Abschnitte[0].FHZulaessig, 0.015 * std::sqrt(30.5), 1e-12);
  EXPECT_NEAR(K.Zeilen[1].Hoehe, 783.255, 5e-4);
}

// Two epochs between four marks, told with a standard deviation of 0.8 mm/km: only mark 10 moves.
TEST(Nivellement, VierMarkenInZweiEpochen) {
  const auto Höhen = [](double h10, double h11, double h13) {
    const Feldbuch Z = {{"11", h11},     {"12", N, N, 0}, {"12", h10, N, N, N, N, 100},
                        {"10", N, N, 0}, {"12", h13},     {"13", N, N, 0}};
    return NivellementHoehen(Z, Gerechnet(Z));
  };
  const auto Erste = Höhen(0.1887, 0.1392, -0.2304), Zweite = Höhen(0.1861, 0.1394, -0.2306);
  const double Bewegung[] = {-0.0002, 0, -0.0026, -0.0002};  // 11, 12, 10, 13
  for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(Zweite[i].Hoehe - Erste[i].Hoehe, Bewegung[i], 1e-9);
  EXPECT_TRUE(Erste[1].Fest && Erste[2].Punkt == "10");
}

// Readings made from heights, with an error that grows with the length, or is the same in every set-up where
// a length is missing: the corrections take it out wholly. Known are both ends and a point between; in a
// ring, which begins beside it, one point; of an open line without errors one on its way.
TEST(Nivellement, KonstruierteLinienKommenZurück) {
  std::mt19937 Zufall(19700101);
  std::uniform_real_distribution<double> Hoehe(90, 110), Blick(0.3, 3.7), Weite(5, 60);
  for (int Fall = 0; Fall < 300; ++Fall) {
    SCOPED_TRACE(Fall);
    const int n = 3 + Fall % 23, Mitte = 1 + Fall % (n - 1);
    const bool MitWeiten = Fall % 2 == 0, Ring = Fall % 3 == 0, Offen = Fall % 3 == 1;
    Feldbuch Z;
    std::vector<double> Soll;
    for (int i = 0; i <= n; ++i) {
      const double H = Ring && i == n ? Soll.front() : Hoehe(Zufall);
      NivellementZeile P{"P" + std::to_string(Ring ? i % n : i)};
      if (i > 0) {
        int Rueck = static_cast<int>(Z.size()) - 1;
        if (std::isnan(Z.back().R)) --Rueck;  // a sight to a point beside the line
        const NivellementZeile& B = Z[static_cast<std::size_t>(Rueck)];
        if (MitWeiten) P.sV = Weite(Zufall);
        const double Fehler = Offen ? 0 : MitWeiten ? 2e-6 * (B.sR + P.sV) : 1e-4;
        P.V = B.R - (H - Soll[static_cast<std::size_t>(Rueck)]) + Fehler;
      }
      if (i < n) P.R = Blick(Zufall);
      if (i < n && MitWeiten) P.sR = Weite(Zufall);
      if (i == Mitte || (!Ring && !Offen && (i == 0 || i == n))) P.Fest = H;
      Z.push_back(P);
      Soll.push_back(H);
      if (i % 4 != 2 || i == n) continue;
      Soll.push_back(Hoehe(Zufall));
      Z.push_back({"Z" + std::to_string(i), N, H + P.R - Soll.back()});
    }
    const NivellementErgebnis E = Gerechnet(Z);
    for (std::size_t i = 0; i < Z.size(); ++i) ASSERT_NEAR(E.Zeilen[i].Hoehe, Soll[i], 1e-11) << Z[i].Punkt;
    ASSERT_EQ(E.Abschnitte.size(), Ring ? 1U : 2U);
    ASSERT_EQ(E.Abschnitte[0].Geschlossen, !Offen);
  }
}

// There and back between A and B: d = 2 mm and -4 mm over 0.5 and 0.16 km. The third line hangs on what the
// others gave, and the point that was seen twice has the mean.
TEST(Nivellement, HinUndRück) {
  const Feldbuch Z = {{"A", 2, N, N, 250, N, 10},
                      {"B", N, N, 1, N, 250},
                      {"B", 1, N, N, 250},
                      {"A", N, N, 1.998, N, 250},
                      {"C", 1, N, N},
                      {"B", N, N, 2},
                      {"B", 2, N, N},
                      {"K", 3, N, 2.5},
                      {"C", N, N, 1.496},
                      {"C", 1, 0.5, N}};
  Feldbuch Falsch = Z;
  NivellementErgebnis E;
  int Zeile = 0;
  EXPECT_EQ(NivellementRechnen(Falsch, 15, E, Zeile), NivellementZwischenAllein);
  EXPECT_EQ(Zeile, 9);
  Falsch.back().Z = N;
  EXPECT_EQ(NivellementRechnen(Falsch, 15, E, Zeile), NivellementVorblickOffen);
  EXPECT_TRUE(Zeile == 9 && E.Abschnitte.size() == 4);
  Falsch.push_back({"Z", N, 0.5});
  E = Gerechnet(Falsch);
  double s0 = 0;
  const auto Paare = NivellementPaare(Falsch, E, s0);
  ASSERT_EQ(Paare.size(), 2U);
  EXPECT_NEAR(Paare[0].d, 0.002, 1e-12);
  EXPECT_NEAR(Paare[0].Mittel, 0.999, 1e-12);
  EXPECT_NEAR(Paare[0].R, 0.5, 1e-12);
  EXPECT_NEAR(Paare[1].d, 0.004, 1e-12);
  EXPECT_NEAR(Paare[1].R, 0.12, 1e-12);
  EXPECT_NEAR(s0, 0.5 * std::sqrt((4 / 0.5 + 16 / 0.12) / 2), 1e-9);
  const auto Punkte = NivellementHoehen(Falsch, E);
  EXPECT_NEAR(Punkte[1].Hoehe, 10.999, 1e-12);
  EXPECT_NEAR(Punkte[1].Spanne, 0.002, 1e-12);
  const Feldbuch Schleifen = {{"A", 1, N, N, N, N, 5}, {"A", N, N, 1}, {"A", 1}, {"A", N, N, 1}};
  EXPECT_TRUE(NivellementPaare(Schleifen, Gerechnet(Schleifen), s0).empty() && s0 == 0);
}

TEST(Nivellement, FehlerNennenIhreZeile) {
  const struct {
    Feldbuch Z;
    int Fehler, Zeile;
  } Faelle[] = {
      {{}, NivellementLeer, 0},
      {{{"A", 1}, {"B", N, N, INFINITY}}, NivellementWertFalsch, 1},
      {{{"A", 1, N, N, -1}, {"B", N, N, 1}}, NivellementWertFalsch, 0},
      {{{"A", 1}, {"B"}}, NivellementAblesungFehlt, 1},
      {{{"A", 1}, {"B", N, N, 1}, {"C", N, 1}}, NivellementRueckblickFehlt, 2},
      {{{"A", 1, N, 1}}, NivellementRueckblickFehlt, 0},
      {{{"A", 1}, {"B", 1, N, 1}, {"C", 1}, {"D", N, N, 1}}, NivellementVorblickFehlt, 1},
      {{{"A", 1}, {"B", 1, N, 1}}, NivellementFestpunktFehlt, 0},
      {{{"A", 1, N, N, N, N, 5}, {"A", N, N, 1, N, N, 6}}, NivellementFestVerschieden, 1},
      {{{"A", 1, N, N, N, N, 5}, {"B", N, N, 1}, {"C", 1}, {"D", N, N, 1}}, NivellementFestpunktFehlt, 2},
  };
  for (const auto& F : Faelle) {
    NivellementErgebnis E;
    E.Linien.resize(7);
    int Zeile = -1;
    EXPECT_EQ(NivellementRechnen(F.Z, 15, E, Zeile), F.Fehler);
    EXPECT_EQ(Zeile, F.Zeile) << F.Fehler;
    EXPECT_EQ(E.Linien.size(), 7U);
  }
}

}  // namespace
}  // namespace tavorena
