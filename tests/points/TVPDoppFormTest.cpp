#include "Formulartest.h"

#include <tavorena/core/TVDialog.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/records/Stapelleser.h>

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
  const std::uint64_t Stand = KorStand;
  const auto Antwort = [&](const char* Knopf, int Code, const char* Wort,
                           std::vector<Handgriff> Vorher = {}) {
    Vorher.push_back({Knopf, ""});
    Pnr = Wert("5");
    EXPECT_TRUE(
        Gleich(Rechne(Bediene(Vorher)), Code, PDoppErgebnis, Wort, Dialogergebnis, Code < 0 ? -1 : 0));
  };
  Antwort("PDoppAbbruch", -1, "ABB");
  EXPECT_EQ(KorStand, Stand);
  Skript.Formulare.push_back([](Formular& Form) {
    Bediene({{"NeuerPunktPnr", "77"}, {"PDoppRückgängig", ""}})(Form);
    EXPECT_EQ(PDoppErgebnis, "ABB");
  });
  Antwort("PDoppNeuenNeunum", 13, "NNN", {{"NeuerPunktPnr", " 77"}});
  EXPECT_EQ(Pnr, Wert("77"));
  Antwort("PDoppAltenNeunum", 3, "ANN", {{"AlterPunktPnr", "8"}});
  EXPECT_EQ(KorPunkt(KorSuche(Wert("8"))).Rechts, 100);
  Antwort("PDoppNeuenLöschen", 11, "NLÖ");
  Antwort("PDoppMitteln", 2, "MIT");
  Antwort("PDoppAltenLöschen", 1, "ALÖ");
}

// Within a replay an answer holds for all points to come, until it ends; a new number does not.
TEST_F(TVPDoppFormTest, EineAntwortFürDenStapel) {
  Stapel = {};
  Stapel.Aktiv = true;
  const auto FürAlle = [](const std::vector<Handgriff>& Griffe) {
    return [=](Formular& Form) {
      Form.Wählen(Element<Auswahl>(Form, "PDoppFürAlle"), "", true);
      Bediene(Griffe)(Form);
    };
  };
  EXPECT_EQ(Rechne(FürAlle({{"NeuerPunktPnr", "7"}, {"PDoppNeuenNeunum", ""}})), 13);
  Pnr = Wert("5");
  EXPECT_EQ(Rechne(FürAlle({{"PDoppMitteln", ""}})), 2);
  EXPECT_EQ(KorRechts[0], 102);
  PDoppErgebnis = "";
  EXPECT_EQ(static_cast<int>(Neupunkt(Pnr, 104, 197, 12.5, "020", nullptr, E)), 2);
  EXPECT_TRUE(Gleich(KorRechts[0], 103, PDoppErgebnis, "MIT"));
  StapelAnhalten();
  EXPECT_EQ(Rechne([](Formular& Form) {
              EXPECT_EQ(Form.Finde("PDoppFürAlle"), nullptr);
              Bediene({{"PDoppAbbruch", ""}})(Form);
            }),
            -1);
  {  // so it does where a command stores many points
    const Punktreihe Reihe;
    EXPECT_EQ(Rechne(FürAlle({{"PDoppNeuenLöschen", ""}})), 11);
    EXPECT_EQ(static_cast<int>(Neupunkt(Pnr, 104, 197, 12.5, "020", nullptr, E)), 11);
  }
  EXPECT_EQ(Rechne(Bediene({{"PDoppAbbruch", ""}})), -1);
}

}  // namespace
}  // namespace tavorena::test
