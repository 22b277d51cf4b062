#include "Testhilfe.h"

#include <memory>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/ta/TA.h>

namespace tavorena::test {
namespace {

class Gast : public TabellenTest {};

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
  const auto Stand = [] {
    return Reihe(KorAnzahl, KorPnr(0), KorRechts[0], KorSymbol[0], KorStand, KoordinatenGeaendert,
                 KorStop == Laufwunsch::Stop, KoordinatendateiName, static_cast<int>(Koordinatendateiformat),
                 Optionen.OptNachkommaSpeichern);
  };
  const std::string Vorher = Stand();
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
  EXPECT_EQ(Stand(), Vorher);
  Wert Fehlt("8");
  EXPECT_EQ(Gerufen, 0);
  EXPECT_EQ(KorFind(Fehlt), -2);  // the hooks are back
  Skript.Erwarte("Punkt 8");      // and the doors
  PunktVorhandenMeldung("8");
}

}  // namespace
}  // namespace tavorena::test
