#include "Formulartest.h"

#include <tavorena/points/TVPDoppForm.h>

namespace tavorena::test {
namespace {

class TVPDoppFormTest : public TabellenTest {
 protected:
  TVPDoppFormTest() {
    Punkt("5", 100, 200, 10, "015");
    Punkt("6", 1, 1);
    Haken.PunktVorhandenBehandeln = PunktVorhandenBehandeln;
  }
  int Rechne(const std::function<void(Formular&)>& Tun) {
    Skript.Formulare.push_back(Tun);
    return static_cast<int>(Neupunkt(Pnr, 104, 197, 12.5, "020", nullptr, E));
  }
  Wert Pnr{"5"};
  NeupunktErgebnis E;
};

TEST_F(TVPDoppFormTest, ZeigtBeidePunkteMitAbweichung) {
  const int Code = Rechne([](Formular& Form) {
    Form.Öffnen();
    EXPECT_TRUE(Gleich(Text(Form, "AlterPunktRechts"), "100.000", Text(Form, "NeuerPunktRechts"), "104.000"));
    // Old minus new.
    EXPECT_TRUE(Gleich(Text(Form, "DeltaRechts"), "-4.000", Text(Form, "DeltaHoch"), "3.000",
                       Text(Form, "DeltaHöhe"), "-2.500", Text(Form, "DeltaS"), "5.000"));
    EXPECT_TRUE(Feld(Form, "DeltaS").Fehlerhaft);
    EXPECT_EQ(Form.Fokus()->Name, "PDoppAbbruch");
    EXPECT_EQ(Tippe(Form, "AlterPunktPnr", "\n"), "PDoppAbbruch");  // nothing changed
    for (const auto& [Zeile, Offen] : {std::pair{"AlterPunktPnr", "PDoppAltenNeunum"},
                                       {"NeuerPunktPnr", "PDoppNeuenNeunum"}}) {  // that button alone is open
      EXPECT_EQ(Tippe(Form, Zeile, "77\n"), Offen);
      EXPECT_NE(*Form.Finde("PDoppAltenNeunum")->Aktiv, *Form.Finde("PDoppNeuenNeunum")->Aktiv);
    }
    Form.TasteDrücken(Taste::Escape);
  });
  EXPECT_EQ(Code, -1);
  EXPECT_EQ(KorRechts[0], 100);
}

TEST_F(TVPDoppFormTest, NeueNummerMussFreiSein) {
  Skript.Erwarte("Punkt 6schon vorhanden !");
  const int Code = Rechne([](Formular& Form) {
    Form.Öffnen();
    Drücke(Form, "PDoppNeuenNeunum");
    EXPECT_TRUE(Form.Offen());  // not before a number was typed
    Tippe(Form, "NeuerPunktPnr", "6");
    Form.FokusWechseln(*Form.Finde("PDoppMitteln"));
    EXPECT_EQ(Form.Fokus()->Name, "NeuerPunktPnr");
    Form.TasteDrücken(Taste::Escape);
  });
  EXPECT_EQ(Code, -1);
}

TEST_F(TVPDoppFormTest, JedeAntwortWirkt) {
  Skript.Formulare.push_back(Bediene({{"NeuerPunktPnr", "77"}, {"PDoppRückgängig", ""}}));
  EXPECT_EQ(Rechne(Bediene({{"NeuerPunktPnr", " 77"}, {"PDoppNeuenNeunum", ""}})), 13);
  EXPECT_EQ(Pnr, Wert("77"));
  Pnr = Wert("5");
  EXPECT_EQ(Rechne(Bediene({{"AlterPunktPnr", "8"}, {"PDoppAltenNeunum", ""}})), 3);
  EXPECT_EQ(KorPunkt(KorSuche(Wert("8"))).Rechts, 100);
  EXPECT_EQ(Rechne(Bediene({{"PDoppNeuenLöschen", ""}})), 11);
  EXPECT_EQ(Rechne(Bediene({{"PDoppMitteln", ""}})), 2);
  EXPECT_EQ(Rechne(Bediene({{"PDoppAltenLöschen", ""}})), 1);
}

}  // namespace
}  // namespace tavorena::test
