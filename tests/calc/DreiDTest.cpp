#include "Rechentest.h"

#include <tavorena/calc/DreiD.h>

namespace tavorena::test {
namespace {

// Constructed of vectors with whole lengths: (1, 2, 2) and (2, 1, -2) have the length 3 and meet at a right
// angle.
TEST(DreiD, GebildeteFiguren) {
  for (const Lage Ort : Orte) {
    const auto Bei = [&](double R, double H, double Z) { return Raumlage{Lage{R, H} + Ort, 100 + Z}; };
    const auto Ist = [&](const Raumlage& P, double R, double H, double Z) {
      return Nahe({P.Ort.RW - Ort.RW, P.Ort.HW - Ort.HW, P.Hoehe - 100}, {R, H, Z});
    };
    const Raumlage O = Bei(0, 0, 0), A = Bei(1, 2, 2), B = Bei(2, 1, -2);
    Raumstreckenwerte W;
    ASSERT_EQ(RaumstreckeBerechnung(O, Bei(3, 4, 12), W), 0);
    EXPECT_TRUE(
        Nahe({W.Raumstrecke, W.Horizontalstrecke, W.Hoehenunterschied, W.Richtungswinkel, W.Zenitwinkel},
             {13, 5, 12, 200 / pi * std::atan2(3, 4), 200 / pi * std::atan2(5, 12)}, 1e-7));
    ASSERT_EQ(RaumstreckeBerechnung(O, Bei(0, 0, -3), W), 0);
    EXPECT_TRUE(Gleich(W.Richtungswinkel, 0, W.Zenitwinkel, 200));
    EXPECT_TRUE(Ist(Raumschwerpunkt(std::array{A, B}), 1.5, 1.5, 0));
    EXPECT_TRUE(Ist(Raumschwerpunkt(std::array{O, A, B}), 1, 1, 0));
    Raumlage P;
    double Lot = 0, Raum = 0, Eben = 0;
    ASSERT_EQ(RaumlotBerechnung(O, A, Bei(3 + 12, 6 + 6, 6 - 12), P, Lot), 0);
    EXPECT_TRUE(Ist(P, 3, 6, 6) && Nahe({Lot}, {18}, 1e-8));
    ASSERT_EQ(KanalmessstabBerechnung(O, A, -1.5, P), 0);
    EXPECT_TRUE(Ist(P, 0.5, 1, 1));
    const double Zwischen = 200 / pi * (std::atan2(2, 1) - std::atan2(1, 2));
    ASSERT_EQ(RaumwinkelBerechnung(A, O, B, Raum, Eben), 0);
    EXPECT_TRUE(Nahe({Raum, Eben}, {100, Zwischen}, 1e-7));
    ASSERT_EQ(RaumwinkelBerechnung(B, O, A, Raum, Eben), 0);
    EXPECT_TRUE(Nahe({Raum, Eben}, {100, 400 - Zwischen}, 1e-7));
    ASSERT_EQ(RaumwinkelBerechnung(Bei(0, 0, 5), O, Bei(0, 0, -9), Raum, Eben), 0);
    EXPECT_TRUE(Gleich(Raum, 200, Eben, 0));
    W.Raumstrecke = Lot = Raum = Nichts;
    EXPECT_EQ(RaumstreckeBerechnung(A, A, W) + RaumlotBerechnung(A, A, B, P, Lot) +
                  KanalmessstabBerechnung(A, A, 1, P) + RaumwinkelBerechnung(A, A, B, Raum, Eben) +
                  RaumwinkelBerechnung(A, B, B, Raum, Eben),
              -5);
    EXPECT_TRUE(Gleich(W.Raumstrecke, Nichts, Lot, Nichts, Raum, Nichts) && Ist(P, 0.5, 1, 1));
  }
}

}  // namespace
}  // namespace tavorena::test
