#include "Blattest.h"

namespace tavorena::test {
namespace {

class Zugtest : public Blatttest {
 protected:
  Zugtest() {
    Punkt("1030", 3499900, 5600300);
    Punkt("1031", 3500100, 5600200);
    Punkt("1032", 3500400, 5600300);
    Punkt("1033", 3500600, 5600600);
  }
};

TEST_F(Zugtest, PolygonzugSchreibtSeineDateien) {
  auto B = Öffne("19.10");
  EXPECT_EQ(Tippe(*B, "PolygonZugNr", "7\n"), "PolygonAnfZielPnr");
  EXPECT_EQ(Tippe(*B, "PolygonAnfZielPnr", "1030\n1031\n127,5291\n128,082\n"), "PolygonGitter");
  EXPECT_EQ(Tippe(*B, "PolygonGitter", "2021\n267,1799\n107,713\n015\n2022\n141,3728\n116,634\n\n\n"),
            "PolygonEndPnr");
  EXPECT_EQ(Tippe(*B, "PolygonEndPnr", "1032\n171,8376\n1033\n"), "PolygonErzeugen");
  Drücke(*B, "PolygonErzeugen");
  Drücke(*B, "PolygonEnd");
  PrüfeDateien("polygon", 2);
}

}  // namespace
}  // namespace tavorena::test
