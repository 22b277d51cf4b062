#include "Blattest.h"

#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {
namespace {

using FallTest = Blatttest;

// A case is computed when the focus comes to the new number, stored and written behind its symbol, and the
// known points stand for the next one. What is not to be computed, or has no number, leaves nothing behind.
TEST_F(FallTest, GeradenschnitteSchreibenIhreDateien) {
  auto B = Öffne("09.00");
  const auto Status = [&] { return Trimmen(Skript.Status[4]); };
  EXPECT_EQ(Tippe(*B, "IntllG1_AnfPnr", "1001\n1002\n2,5\n\n\n2003\n2005\n\n\n2004\n"), "Intll_NeuPnr");
  // (1001 1002) 2.5 m to the right meets the perpendicular to (2003 2005) through 2004, by hand
  EXPECT_TRUE(Gleich(Text(*B, "Intll_NeuRechts"), "3500139.082", Text(*B, "Intll_NeuHoch"), "5600247.943",
                     Text(*B, "Intll_Tau"), "97.5836", KorAnzahl, 5));
  EXPECT_EQ(Tippe(*B, "Intll_NeuPnr", "\n\n"), "Intll_NeuPnr");
  EXPECT_EQ(Status(), "Ohne Punktnummer wird nichts gespeichert und nichts geschrieben");
  EXPECT_EQ(Tippe(*B, "Intll_NeuPnr", "2004\n"), "Intll_NeuPnr");
  EXPECT_EQ(Status(), "Punkt 2004 ist ein bekannter Punkt dieses Falls");
  EXPECT_EQ(Tippe(*B, "Intll_NeuPnr", "3001\n015\n"), "IntllG1_AnfPnr");
  EXPECT_TRUE(Gleich(KorAnzahl, 6, Text(*B, "IntllG1_AnfPnr"), "1001", Text(*B, "IntllG1_Pll"), "",
                     Text(*B, "Intll_NeuRechts"), ""));
  // Another distance is typed while the first result stands: what is stored belongs to the last one.
  Tippe(*B, "IntllG1_Pll", "1\n");
  Tippe(*B, "IntllG2_SenkPnr", "2004\n+");
  Tippe(*B, "IntllG1_Pll", "3\n");
  EXPECT_TRUE(Feld(*B, "Intll_NeuRechts").Fehlerhaft);
  Tippe(*B, "Intll_NeuSym", "\n");
  EXPECT_NEAR(KorRechts[6], 3500139.494, 0.001);
  Tippe(*B, "IntllG1_Pll", "1\n2004\n");
  Tippe(*B, "Intll_NeuPnr", "3005\n\n");
  EXPECT_TRUE(Gleich(Status(), "Abstand und Punkt zugleich", Text(*B, "Intll_NeuRechts"), "###Fehler"));
  Drücke(*B, "IntllFelderClear");
  Tippe(*B, "IntllG1_AnfPnr", "1001\n1002\n\n\n\n2003\n2005\n\n\n\n3003\n\n");
  Tippe(*B, "IntllG1_AnfPnr", "1001\n1002\n\n\n\n1001\n1002\n1\n\n\n");
  EXPECT_TRUE(Gleich(Text(*B, "Intll_NeuHoch"), "***kein Schnitt", Status(), "kein Schnitt"));
  // A case that has its number is not given up silently, although a figure was changed since.
  Tippe(*B, "IntllG2_Pll", "\n");
  Tippe(*B, "IntllG2_AnfPnr", "2003\n2005\n\n\n\n3009");
  Tippe(*B, "IntllG1_Pll", "2\n");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfJa);
  Drücke(*B, "IntllEnd");
  PrüfeDateien("intll", 3);
}

// What the last case did is taken back, its block only while it is the end of the file.
TEST_F(FallTest, DerLetzteFallIstZurückzunehmen) {
  auto B = Öffne("09.00");
  Tippe(*B, "IntllG1_AnfPnr", "1001\n1002\n\n\n\n2003\n2005\n\n\n\n3001\n\n");
  Drücke(*B, "IntllZurück");
  EXPECT_TRUE(Gleich(KorAnzahl, 5, Stapeltext(), "", Element(*B, "IntllZurück").Aktiv, false));
  EXPECT_TRUE(Protokoll().ends_with("2.4164          3001     PS ***gelöscht\r\n"));
  Tippe(*B, "Intll_NeuPnr", "3001\n\n");
  auto Anderes = Verbinde("24.40");
  Tippe(*Anderes, "LinelGitter", "2003\n");
  const std::string Vorher = Stapeltext();
  Drücke(*B, "IntllZurück");
  EXPECT_TRUE(Gleich(KorAnzahl, 5, Stapeltext(), Vorher, Trimmen(Skript.Status[4]),
                     "Der Fall bleibt in der Stapeldatei: dahinter steht schon anderes"));
}

// Without a result the replay goes on; a case that the surveyor breaks off leaves nothing but the table head.
TEST_F(FallTest, NachlaufNenntFälleOhneErgebnis) {
  auto B = Öffne("09.00");
  Tippe(*B, "IntllG1_AnfPnr", "1001\n1002\n\n\n\n2003\n2005\n\n\n\n3001\n\n");
  Tippe(*B, "Intll_NeuPnr", "3002\n\n");
  Drücke(*B, "IntllEnd");
  static_cast<void>(KorZeileSetzen(KorSuche(std::string_view("2005")), {"2005", 3500190, 5600310}));
  Starten();
  EXPECT_EQ(StapelBericht(),
            (std::vector<std::string>{"ohne Ergebnis: VR 09.00 Geradenschnitt, Zeile 1: kein Schnitt",
                                      "ohne Ergebnis: VR 09.00 Geradenschnitt, Zeile 14: kein Schnitt"}));
  EXPECT_TRUE(Gleich(Stapel.Bilanz.Fehler, false, Stapel.Bilanz.Zeilen, 0, Protokoll(), ""));
  static_cast<void>(KorZeileSetzen(KorSuche(std::string_view("2005")), {"2005", 3500220, 5600300}));
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) {
    return Konfliktantwort{Konfliktwort::Abbrechen, ""};
  };
  Starten();
  EXPECT_EQ(StapelBericht()[1], "ohne Ergebnis: VR 09.00 Geradenschnitt, Zeile 14: Punkt nicht gespeichert");
  EXPECT_EQ(Protokoll().find("1002"), std::string::npos);
}

}  // namespace
}  // namespace tavorena::test
