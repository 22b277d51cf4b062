#include "Formulartest.h"

#include <algorithm>

#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/records/Protokoll.h>

namespace tavorena::test {
namespace {

// One station opened by code 60, one by 21 with its instrument height as third value, a line in feet.
constexpr const char* Datei =
    "410001+00000060 42....+00000101 \r\n"
    "110002+00001001 21.322+02345670 22.322+09912340 31..00+00055430 \r\n"
    "410004+00000021 42....+00000102 43....+00001538 \r\n"
    "110005+00001002 21.322+12345670 22.322+09912340 31..00+00071205 \r\n"
    "110006+00001003 21.322+12345670 22.322+09912340 31..01+00071205 \r\n";

class Rohdatenform : public TabellenTest {
 protected:
  Rohdatenform() {
    Prot = {};
    LetzterPlan = {};
    Schreibe(Roh, Datei);
  }
  bool Frage(const std::function<void(Formular&)>& Tun) {
    Skript.Formulare.push_back([Tun](Formular& Form) {
      Form.Öffnen();
      Tun(Form);
    });
    return RohdatenFragen(Roh, Wahl, Daten);
  }
  // The text that counts begins so.
  static void Zählt(const Formular& Form, const std::string& Soll) {
    EXPECT_TRUE(std::any_of(Form.Steuerelemente().begin(), Form.Steuerelemente().end(), [&](const auto& S) {
      return S->Text->starts_with(Soll + ",");
    })) << Soll;
  }
  const std::string Roh = Ordner.Pfad("a.gsi"), Dru = Ordner.Pfad("a.dru");
  Rohdatenwahl Wahl;
  Rohdaten Daten;
};

// Each change reads anew and shows the new count; what is no choice, or can not be read again, is not taken.
TEST_F(Rohdatenform, JedeÄnderungLiestNeu) {
  const bool Genommen = Frage([&](Formular& Form) {
    // Return takes it over, but none that was typed ahead.
    EXPECT_TRUE(Gleich(Form.Fokus()->Name, "RohdatenÜbernehmen", Form.Ungefragt, true));
    EXPECT_FALSE(Element(Form, "RohdatenProtokoll").Aktiv);
    Zählt(Form, "2 Messungen in 1 Block");
    EXPECT_EQ(Element<Gitter>(Form, "RohdatenListe").Inhalt(0, 0), "5");
    EXPECT_EQ(Tippe(Form, "RohdatenStationscode", " ,\n"), "RohdatenStationscode");
    EXPECT_EQ(Tippe(Form, "RohdatenStationscode", "60, 21\n"), "RohdatenStandpunktnummer");
    Zählt(Form, "2 Messungen in 2 Blöcken");
    EXPECT_EQ(Tippe(Form, "RohdatenStandpunktnummer", "1\n"), "RohdatenStandpunktnummer");
    EXPECT_EQ(Tippe(Form, "RohdatenStandpunktnummer", "2\n"), "RohdatenInstrumentenhöhe");
    Tippe(Form, "RohdatenInstrumentenhöhe", "3\n");
    Form.Wählen(Element<Auswahl>(Form, "RohdatenWinkel"), "", true);
    Zählt(Form, "3 Messungen in 2 Blöcken");
    fs::remove(Roh);
    Skript.Erwarte("Datei nicht gefunden:");
    Form.Wählen(Element<Auswahl>(Form, "RohdatenLagen"), "", true);
    EXPECT_FALSE(Element<Auswahl>(Form, "RohdatenLagen").Gewählt);
    Drücke(Form, "RohdatenÜbernehmen");
  });
  ASSERT_TRUE(Genommen && Daten.Blöcke.size() == 2);
  EXPECT_TRUE(Gleich(Daten.Blöcke[1].Standpunkt, "102", Daten.Blöcke[1].Instrumentenhöhe.Zahl(), 1.538,
                     Wahl.Stationscodes.size(), 2U, Wahl.AlleEinheiten, true, Wahl.LagenMitteln, false));
}

TEST_F(Rohdatenform, BerichtInsProtokollUndAbbruch) {
  ProtokollNehmen(Dru);
  EXPECT_FALSE(Frage([&](Formular& Form) {
    Form.Wählen(Element<Auswahl>(Form, "RohdatenLagen"), "", true);
    EXPECT_EQ(Drücke(Form, "RohdatenProtokoll"), "RohdatenÜbernehmen");  // once is enough
    EXPECT_FALSE(Element(Form, "RohdatenProtokoll").Aktiv);
    Form.TasteDrücken(Taste::Escape);
  }));
  EXPECT_TRUE(Gleich(Wahl == Rohdatenwahl{}, true, Daten.Blöcke.size(), 0U));
  EXPECT_NE(Inhalt(Dru).find("\r\n      Stationen: 1"), std::string::npos) << Inhalt(Dru);
}

}  // namespace
}  // namespace tavorena::test
