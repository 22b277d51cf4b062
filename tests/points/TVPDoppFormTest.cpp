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

TEST_F(TVPDoppFormTest, ZeigtBeidePunkteUndIhreAbweichung) {
  const int Code = Rechne([](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Text(Form, "AlterPunktRechts") + "|" + Text(Form, "NeuerPunktRechts"), "100.000|104.000");
    EXPECT_EQ(Text(Form, "DeltaRechts") + "|" + Text(Form, "DeltaHoch"), "-4.000|3.000");  // old minus new
    EXPECT_EQ(Text(Form, "DeltaHöhe") + "|" + Text(Form, "DeltaS"), "-2.500|5.000");
    EXPECT_TRUE(Feld(Form, "DeltaS").Fehlerhaft);
    EXPECT_EQ(Form.Fokus()->Name, "PDoppAbbruch");
    Tippe(Form, "AlterPunktPnr", "\n");  // nothing changed
    EXPECT_EQ(Form.Fokus()->Name, "PDoppAbbruch");
    for (const char* Zeile : {"Alter", "Neuer"}) {  // the button of that row, and no other, is open
      Tippe(Form, std::string(Zeile) + "PunktPnr", "77\n");
      EXPECT_EQ(Form.Fokus()->Name,
                std::string(Zeile == std::string("Alter") ? "PDoppAlten" : "PDoppNeuen") + "Neunum");
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

TEST_F(TVPDoppFormTest, RückgängigZeigtNeuUndAntwortenWirken) {
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
