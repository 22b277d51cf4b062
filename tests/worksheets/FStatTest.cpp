#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/Optionen.h>
#include <tavorena/worksheets/TVFStatForm.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

// Observed from 3500140.123 5600190.456, height 11.2, orientation 123.4567.
const char* const Anschluss = "1001\n191,4102\n97,9169\n41,2646\n\n1002\n290,4495\n98,6468\n91,7443\n\n";
const char* const Dritter = "2003\n260,5889\n100,6238\n40,8211\n\n";

class FStatTest : public Blatttest {
 protected:
  std::string Drücken() { return Drücke(*B, "FstatBerechnen"); }
  const std::string& Knopftext() { return Text(*B, "FstatBerechnen"); }

  // The approved files, and the same protocol from a replay on the points as they were.
  void PrüfeDateien(const std::string& Name) {
    const std::string Prots = Protokoll(), Sta = Stapeltext();
    EXPECT_TRUE(GleichSoll(Prots, "worksheets/soll/" + Name + ".dru"));
    EXPECT_TRUE(GleichSoll(Sta, "worksheets/soll/" + Name + ".sta"));
    KorAbschneiden(5);
    EXPECT_EQ(Nachlauf(), Prots);
    EXPECT_EQ(Stapeltext(), Sta);
  }

  std::unique_ptr<Formular> B = Öffne("19.50");
  Gitter& G = Element<Gitter>(*B, "FStatGitter");
  Gitter& Abw = Element<Gitter>(*B, "FStatAbwGitter");
  Gitter& Polar = Element<Gitter>(*B, "FStatPolarGitter");
};

// A day at one station, from the first key to the files; a bad point is found by trying.
TEST_F(FStatTest, FreieStation) {
  EXPECT_TRUE(Gleich(Knopftext(), "Rechnen Helmert", *Element(*B, "FstatAbwAnz").Sichtbar, false));
  Tippe(*B, "FstatStandPnr", "3001\n015\n1,55\n1,6\n");
  EXPECT_EQ(Tippe(*B, "FStatGitter", Anschluss), "FStatGitter");
  EXPECT_EQ(Gitterzeile(G, 0), (Texte{"*", "1001", "015", "191.4102", "97.9169", "41.2646", "1.600",
                                      "3500100.000", "5600200.000", "12.500"}));
  EXPECT_FALSE(*Element(*B, "FstatAbwAnz").Aktiv);
  Tippe(*B, "FStatGitter", Dritter);
  Tippe(*B, "FStatGitter", "2004\n200,1\n100\n90\n\n");  // 2.5 m off
  EXPECT_EQ(Tippe(*B, "FStatGitter", "\n\n"), "FstatBerechnen");
  EXPECT_TRUE(Gleich(Knopftext(), "Stp.übernehmen", Abw.Zeilen(), 5, Abw.Auffällig(3, 3), true));
  B->Markieren(G, 3, false);  // computed anew without it, and what it is off is seen
  EXPECT_TRUE(Gleich(Text(*B, "FstatStandRechts"), "3500140.123", Text(*B, "FstatStandHoch"), "5600190.456",
                     Text(*B, "FStatStandHöhe"), "11.200", Text(*B, "FStatDrehwinkel"), "123.45669",
                     Text(*B, "FStatAnzahl"), "3", Text(*B, "FStatMK"), "0.000"));
  EXPECT_TRUE(Gleich(Abw.Inhalt(0, 4), "0.000", Abw.Inhalt(1, 4), "", Abw.Inhalt(3, 3).size() > 4, true));
  Drücke(*B, "FstatAbwAnz");
  EXPECT_TRUE(Gleich(Text(*B, "FstatAbwAnz"), "Abw.anzeigen", *Abw.Sichtbar, false));
  EXPECT_EQ(Drücken(), "FStatPolarGitter");
  EXPECT_TRUE(Gleich(B->Titel, "Freie Stationierung: Polare Punkte", Knopftext(), "Pkte übernehmen"));
  Tippe(*B, "FStatPolarGitter", "3010\n35,2217\n97,7976\n49,8716\n\n020\n\n");
  Tippe(*B, "FStatPolarGitter", "3011\n21,97\n100,1788\n53,4064\n\n\n3010\n");
  EXPECT_EQ(KorAnzahl, 6);  // nothing but the station is stored before the button
  EXPECT_EQ(Tippe(*B, "FStatPolarGitter", "\n\n"), "FStatPolarGitter");
  EXPECT_TRUE(Gleich(Längentext(KorRechts[7]), "3500180.500", Längentext(KorHoehe[7]), "11.000"));
  B->SchließenVerlangen();
  PrüfeDateien("fstat_helmert");
}

}  // namespace
}  // namespace tavorena::test
