#include "Testhilfe.h"

#include <tavorena/rawdata/Flg.h>

namespace tavorena::test {
namespace {

TEST(Flg, ZerlegtNachStationen) {
  std::vector<FlgBlock> B;
  // A short line that holds the words is no title; the number stands from character 16 on, behind umlauts
  // too.
  ASSERT_EQ(
      FlgLesen(
          "Kopf\r\nLeica VIP Freie Station\r\nüber Leica VIP Freie Station 1.0\nStation-Nr.  ä:  BP 04 \n"
          "\n 1 1001 23.45678 101.2 99.9876543210123456 x\nein Satz\n-- Leica VIP Freie Station --\n",
          B),
      0);
  ASSERT_EQ(B.size(), 2U);
  EXPECT_TRUE(Gleich(B[0].Standpunkt, "BP 04", B[1].Standpunkt, "", B[1].Zeilen.size(), 0U));
  EXPECT_EQ(
      FlgZeilen(B[0]),
      (std::vector<std::string>{"      Standpunktbestimmung: Leica- Online- Protokolldatei", "      ",
                                "       1      1001    23.45678          101.2 99.9876543210123456         x",
                                "      ein Satz"}));
  EXPECT_EQ(FlgLesen("Station-Nr.    101\n1 2 3 4 5 6\n", B), -1);
  EXPECT_TRUE(B.empty());
}

}  // namespace
}  // namespace tavorena::test
