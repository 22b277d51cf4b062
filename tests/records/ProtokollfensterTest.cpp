#include "Testhilfe.h"

#include <algorithm>
#include <random>

#include <tavorena/records/Protokollfenster.h>

namespace tavorena::test {
namespace {

// A window that takes over what it is told shows at any time what the protocol holds.
TEST(Protokollfenster, LeserZiehtNach) {
  std::mt19937 Zufall(19700101);
  const auto Würfel = [&](int Seiten) { return static_cast<int>(Zufall() % static_cast<unsigned>(Seiten)); };
  Fenstertext Fenster;
  Fensterstand Stand;
  std::string Gezeigt;
  int Nachgezogen = 0, Gekürzt = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string Zeile(static_cast<std::size_t>(Würfel(80)), 'x');
    Fenster.Anhängen(Zeile + "ß" + (Würfel(9) == 0 ? "" : "\n"));
    if (Würfel(5000) == 0) Fenster.Leeren();
    if (Würfel(i < 10000 ? 20 : 2000) != 0) continue;  // later it looks so seldom that all of it went out
    const Fensterwechsel W = FensterLesen(Fenster, Stand);
    if (W.VonVorn) Gezeigt.clear();
    for (int z = 0; z < W.Entfallen; ++z) Gezeigt.erase(0, Gezeigt.find('\n') + 1);
    Gezeigt += W.Neues;
    ASSERT_EQ(Gezeigt, Fenster.Text) << i;
    if (!W.VonVorn) ++Nachgezogen;
    if (W.Entfallen > 0) ++Gekürzt;
  }
  EXPECT_GT(std::min(Nachgezogen, Gekürzt), 200);  // the short ways were gone
}

TEST(Protokollfenster, ErsteZeileGehtWennEsZuVieleZeichenSind) {
  Fenstertext Fenster;
  Fenster.Anhängen("ein\n");
  for (int i = 0; i < 15999; ++i) Fenster.Anhängen("ß\n");  // the last one meets 32000
  EXPECT_EQ(Fenster.Entfallen, 0);
  Fenster.Anhängen("ß\n");
  EXPECT_EQ(Fenster.Entfallen, 1);
  EXPECT_TRUE(Fenster.Text.starts_with("ß"));
}

}  // namespace
}  // namespace tavorena::test
