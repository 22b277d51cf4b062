#include "Testhilfe.h"

#include <memory>

#include <tavorena/core/TVDialog.h>
#include <tavorena/ta/TA.h>

namespace tavorena::test {
namespace {

using Gast = TabellenTest;

// Whatever is done with it, the program around it has everything back afterwards.
TEST_F(Gast, LäßtAllesWieEsWar) {
  const std::string Datei = Ordner.Pfad("gast.kor");
  Punkt("7", 1, 2, 3, "x");
  int Gerufen = 0;
  Haken.FormEinzelKorein = [&](Wert&) { return --Gerufen - 1; };
  Haken.VorÄnderung = [&](const KorÄnderung&) { ++Gerufen; };
  Optionen.OptNachkommaSpeichern = 2;
  KoordinatendateiName = "wirt.lt4";
  Koordinatendateiformat = Dateiformat::Lt4;
  KorStop = Laufwunsch::Stop;
  const auto Stand = KorStand;
  Schreibe(Datei, "8 1.0 2 3\r\n9 1.0 2 3\r\n");
  {
    auto Erster = std::make_unique<TA>();
    EXPECT_EQ(Erster->KoordinatendateiLesen(Datei), 2);
    TA Zweiter;  // begins anew, and goes on without the first
    EXPECT_EQ(KorAnzahl, 0);
    Erster.reset();
    EXPECT_EQ(Zweiter.KoordinatendateiLesen(Datei), 2);
    EXPECT_EQ(Zweiter.KoordinatendateiSchreiben(Datei, 6), 2);
    EXPECT_NE(Inhalt(Datei).find(" 1.000000 "), std::string::npos);
  }
  EXPECT_TRUE(Gleich(KorAnzahl, 1, KorPnr(0), "7", KorRechts[0], 1, KorSymbol[0], "x", KorStand, Stand,
                     KoordinatenGeaendert, true, Gerufen, 0));
  EXPECT_TRUE(Gleich(KoordinatendateiName, "wirt.lt4", Koordinatendateiformat, Dateiformat::Lt4,
                     KorStop == Laufwunsch::Stop, true, Optionen.OptNachkommaSpeichern, 2));
  Wert Fehlt("8");
  EXPECT_EQ(KorFind(Fehlt), -2);  // the hooks are back
  Skript.Erwarte("Punkt 8");      // and the doors
  PunktVorhandenMeldung("8");
}

}  // namespace
}  // namespace tavorena::test
