#include "Blattest.h"

#include <cmath>

#include <tavorena/core/Optionen.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {
namespace {

class RichtungTest : public Blatttest {
 protected:
  [[nodiscard]] std::string Status() const { return Trimmen(Skript.Status[4]); }
  static KorSatz Satz(const char* Pnr) { return KorPunkt(KorSuche(std::string_view(Pnr))); }
};

// Constructed: 3500130 5600260 is seen from both stations; without all heights it gets none.
TEST_F(RichtungTest, VorwärtsschnitteSchreibenIhreDateien) {
  PunkteAnlegen({{"1006", 3500100, 5600300}, {"1007", 3500160, 5600200}, {"1008", 3500200, 5600300}});
  Punkt("1009", 3500160, 5600200, 12.8);
  // Published: Ghilani, Wolf: Elementary Surveying, two lines with known azimuths (feet).
  PunkteAnlegen(
      {{"11", 1425.07, 1971.28}, {"12", 1425.07, 9999}, {"21", 7484.80, 5209.64}, {"22", 7484.80, 9999}});
  auto B = Öffne("10.00");
  Skript.Status[4].clear();
  EXPECT_EQ(Tippe(*B, "VorwFernPnr1", "1006\n10\n1001\n39,5167\n95\n1008\n20\n1007\n\n95,5\n"),
            "Vorw_NeuPnr");
  EXPECT_TRUE(Gleich(Text(*B, "Vorw_NeuRechts"), "", Text(*B, "VorwTau"), "", Status(), ""));
  EXPECT_EQ(Tippe(*B, "Vorw_NeuPnr", "2012\n\n"), "VorwNeuRichtung2");
  EXPECT_EQ(Status(), "Wert fehlt");
  Tippe(*B, "VorwNeuRichtung2", "366,2595\n\n");
  EXPECT_TRUE(Gleich(Text(*B, "Vorw_NeuRechts"), "3500130.000", Text(*B, "Vorw_NeuHoch"), "5600260.000",
                     Text(*B, "VorwTau"), "59.0334", Status(), "Höhe von 1007 fehlt"));
  EXPECT_EQ(Tippe(*B, "Vorw_NeuPnr", "\n015\n"), "VorwFernPnr1");
  EXPECT_TRUE(Gleich(Satz("2012").Hoehe, 0, Text(*B, "VorwStandPnr2"), "1007"));
  // 67.082 m: 12.5 + 5.279 from the one station, 12.8 + 4.750 from the other
  Tippe(*B, "VorwFernPnr1", "\n10\n\n39,5167\n95\n\n20\n1009\n366,2595\n95,5\n");
  EXPECT_TRUE(Gleich(Text(*B, "VorwNeuHoehe"), "17.665", Text(*B, "VorwParallaxe"), "-0.230"));
  Optionen.FStatMitHoehe = false;
  Tippe(*B, "VorwVertikal2", "95,50\n");
  Optionen.FStatMitHoehe = true;  // as it is when Return commits
  Tippe(*B, "Vorw_NeuPnr", "2013\n\n");
  EXPECT_NEAR(Satz("2013").Hoehe, 17.665, 1e-3);
  Tippe(*B, "VorwFernPnr1", "12\n0\n11\n84,5259\n\n22\n0\n21\n157,2272\n\n");
  EXPECT_EQ(Status(), "Höhe von 11, 21 fehlt");
  Tippe(*B, "Vorw_NeuPnr", "31\n\n");
  EXPECT_NEAR(std::hypot(Satz("31").Rechts - 8637.85, Satz("31").Hoch - 3759.83), 0, 0.02);
  Tippe(*B, "VorwFernPnr1", "\n0\n\n84\n\n\n0\n\n94\n\n");
  EXPECT_TRUE(Gleich(Feld(*B, "VorwTau").Fehlerhaft, true, Text(*B, "VorwTau"), "190.0000"));
  Tippe(*B, "Vorw_NeuPnr", "32\n\n");
  // Told in a box once, however often it is asked for.
  Skript.Erwarte("TVVorwaertsschnittForm.VorwCalc");
  EXPECT_EQ(Tippe(*B, "VorwFernPnr1", "\n0\n\n84\n\n\n0\n\n84\n\n33\n\n"), "VorwNeuRichtung2");
  EXPECT_TRUE(Gleich(Status(), "Die Strahlen sind parallel", Text(*B, "VorwTau"), ""));
  EXPECT_EQ(Tippe(*B, "VorwStandPnr2", "22\n\n\n\n\n"), "VorwStandPnr2");
  EXPECT_TRUE(Gleich(Status(), "Fernpunkt und Standpunkt sind gleich", KorAnzahl, 17));
  Drücke(*B, "VorwFelderClear");
  Drücke(*B, "VorwEnd");
  PrüfeDateien("vorw", 4);
  Optionen.FStatMitHoehe = false;
  fs::remove(Prot.Datei);
  EXPECT_EQ(Nachlauf().find("Höhe="), std::string::npos);
}

// Constructed: seen from 3500130 5600210; and from 3500100 5600100 at 350, 0 and 50 gon, where both diameters
// end at the same Hochwert.
TEST_F(RichtungTest, RückwärtsschnitteSchreibenIhreDateien) {
  PunkteAnlegen({{"1021", 3500000, 5600300},
                 {"1022", 3500120, 5600350},
                 {"1023", 3500300, 5600290},
                 {"1031", 3500000, 5600200},
                 {"1032", 3500100, 5600200},
                 {"1033", 3500200, 5600200}});
  // Published: Bannister, Raymond, Baker: Surveying, resection.
  PunkteAnlegen({{"1", 1000, 5300}, {"2", 2200, 6300}, {"3", 3100, 5000}});
  auto B = Öffne("11.00");
  EXPECT_EQ(B->Fokus()->Name, "Rueck_Pnr1");
  const std::string Figur = "1021\n305,5502\n1022\n362,4604\n1023\n38,9988\n";
  EXPECT_EQ(Tippe(*B, "Rueck_Pnr1", Figur), "Rueck_NeuPnr");
  EXPECT_TRUE(Gleich(Text(*B, "Rueck_NeuRechts"), "3500130.000", Text(*B, "RueckTau1"), "154.3835",
                     Text(*B, "RueckTau2"), "87.8321", Feld(*B, "RueckTau1").Fehlerhaft, false));
  // The other method: the same point, another judgement, and nothing is stored by looking.
  auto& Collins = Element<Auswahl>(*B, "RueckwOptionCollins");
  auto& Cassini = Element<Auswahl>(*B, "RueckwOptionCassini");
  B->Wählen(Collins, "", true);
  EXPECT_TRUE(Gleich(Text(*B, "Rueck_NeuHoch"), "5600210.000", Text(*B, "RueckTau1"), "-45.6165",
                     Feld(*B, "RueckTau1").Fehlerhaft, true, Protokoll(), "", KorAnzahl, 14));
  Tippe(*B, "Rueck_NeuPnr", "2013\n015\n");
  B->Wählen(Cassini, "", true);
  Tippe(*B, "Rueck_Pnr1", Figur + "2014\n\n");
  Skript.Erwarte("streng nach Cassini nicht möglich ! Verfälschen Sie bitte");
  const std::string Nord = "1031\n350\n1032\n0\n1033\n50\n";
  EXPECT_EQ(Tippe(*B, "Rueck_Pnr1", Nord + "2015\n\n"), "Rueck_Richtung3");
  EXPECT_TRUE(Gleich(Status(), "streng nach Cassini nicht möglich", Feld(*B, "Rueck_NeuRechts").Text, ""));
  B->Wählen(Collins, "", true);
  EXPECT_TRUE(Gleich(Text(*B, "Rueck_NeuHoch"), "5600100.000", KorAnzahl, 16));
  Tippe(*B, "Rueck_NeuPnr", "\n\n");
  Skript.Erwarte("Berechnung nicht möglich: Zwei Richtungen sind gleich !");
  Tippe(*B, "Rueck_Pnr1", "\n0\n\n400\n\n50\n2016\n\n\n");
  Skript.Erwarte("TVRueckwaertsschnittForm.RueckCalcCollins");  // on the line of both outer points
  Tippe(*B, "Rueck_Richtung1", "300\n\n0\n\n100\n2016\n\n");
  EXPECT_EQ(Tippe(*B, "Rueck_Pnr3", "1031\n100\n\n\n"), "Rueck_Pnr3");
  EXPECT_TRUE(Gleich(Status(), "Punkt 1031 steht zweimal", KorAnzahl, 17));
  Drücke(*B, "RueckFelderClear");
  Tippe(*B, "Rueck_Pnr1", "1\n0\n2\n121,6806\n3\n249,5571\n4\n\n");
  EXPECT_NEAR(std::hypot(Satz("4").Rechts - 2128.39, Satz("4").Hoch - 5578.14), 0, 0.01);
  Drücke(*B, "RueckEnd");
  PrüfeDateien("rueck", 4);
  // A replay leaves such cases out without a box.
  std::string Sta;
  for (const char* Werte : {"PARAM CASSINI\nPWS 1021 0\nPWS 1022 400\nPWS 1023 50\n",
                            "PARAM COLLINS\nPWS 1021 0\nPWS 1022 70\nPWS 1021 99\n"})
    Sta += std::string("M VR 11.00 x\n") + Werte + "NEUPNR 5 -\nE\n";
  Schreibe(StapelDatei.Name, Sta);
  Starten();
  EXPECT_EQ(StapelBericht(),
            (std::vector<std::string>{"ohne Ergebnis: VR 11.00 x, Zeile 1: Zwei Richtungen sind gleich",
                                      "ohne Ergebnis: VR 11.00 x, Zeile 8: Punkt 1021 steht zweimal"}));
}

// All six in a row; what stores no point is written too, and can be taken back.
TEST_F(RichtungTest, DreiDSchreibtSeineDateien) {
  Punkt("1", 3500000, 5600000, 100, "015");
  Punkt("2", 3500001, 5600002, 102);
  Punkt("3", 3500015, 5600012, 94);
  struct Fall {
    const char *Kennung, *Tasten, *Neu, *Feld, *Wert;
  };
  for (const Fall& F : {Fall{"3D RAUMSTRECKE", "1\n2\n", "", "DreiDRaumstrecke", "3.000"},
                        {"3D MITTE", "1\n2\n", "11", "DreiD_NeuHoehe", "101.000"},
                        {"3D SCHWERPUNKT", "1\n2\n3\n", "12", "DreiD_NeuHoehe", "98.667"},
                        {"3D LOTABSTAND", "1\n2\n3\n", "13", "DreiD_NeuHoehe", "106.000"},
                        {"3D LOTABSTAND", "1\n2\n3\n", "", "DreiDLotabstand", "18.000"},
                        {"3D KANALMESSTAB", "1\n2\n1,5\n", "14", "DreiD_NeuHoehe", "103.000"},
                        {"3D WINKEL", "2\n1\n3\n", "", "DreiDRaumwinkel", "70.4833"}}) {
    SCOPED_TRACE(F.Kennung);
    auto B = Öffne(F.Kennung);
    const std::string Fokus = Tippe(*B, "DreiD_Pnr1", F.Tasten);
    EXPECT_EQ(Text(*B, F.Feld), F.Wert);
    if (Fokus != "DreiD_Pnr1") {  // not yet written
      EXPECT_EQ(Tippe(*B, Fokus, std::string(F.Neu) + "\n"), "DreiD_Pnr1");
    }
    if (*F.Neu != 0) {
      EXPECT_EQ(Längentext(Satz(F.Neu).Hoehe), F.Wert);
    }
    Drücke(*B, "DreiDEnd");
  }
  const std::string Prots = Protokoll();
  EXPECT_TRUE(GleichSoll(Prots, "worksheets/soll/dreid.dru"));
  EXPECT_TRUE(GleichSoll(Stapeltext(), "worksheets/soll/dreid.sta"));
  EXPECT_EQ(Nachlauf(), Prots);
  EXPECT_TRUE(Gleich(Stapel.Bilanz.Zeilen, 7, *Blätter.back()->Titel, "Tavorena 3D Winkel [Stapel]"));

  // What stays in the table is what is shown.
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) {
    return Konfliktantwort{Konfliktwort::NeuenVerwerfen, ""};
  };
  Tippe(*Öffne("3D MITTE"), "DreiD_Pnr1", "1\n3\n14\n");
  EXPECT_NE(Protokoll().find("            14   3500001.500   5600003.000     103.000  \r\n      ***  erste"),
            std::string::npos);

  auto S = Öffne("3D RAUMSTRECKE");
  const std::string Sta = Stapeltext();
  Tippe(*S, "DreiD_Pnr1", "1\n3\n");
  EXPECT_TRUE(Stapeltext().size() > Sta.size() && Protokoll().ends_with("119.2734 gon\r\n"));
  const std::string Einmal = Stapeltext();
  Tippe(*S, "DreiD_Pnr1", "\n\n");
  EXPECT_TRUE(Gleich(Status(), "Der Fall ist schon geschrieben", Stapeltext(), Einmal));
  Drücke(*S, "DreiDZurück");
  EXPECT_TRUE(Protokoll().ends_with("119.2734 gon ***gelöscht\r\n"));
  EXPECT_EQ(Stapeltext(), Sta);
  static_cast<void>(KorZeileSetzen(KorSuche(std::string_view("3")), {"3", 3500015, 5600012, 100}));
  S->Nachsehen();
  EXPECT_EQ(Text(*S, "DreiDHöhenunterschied"), "0.000");
  EXPECT_EQ(Tippe(*S, "DreiD_Pnr1", "3\n3\n"), "DreiD_Pnr2");
  EXPECT_TRUE(Gleich(Status(), "Punkte sind gleich", Text(*S, "DreiDRaumstrecke"), "", Stapeltext(), Sta));
}

}  // namespace
}  // namespace tavorena::test
