#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/Optionen.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/rawdata/Messempfaenger.h>

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

  FStatTest() { Punkt("2006", 3500170, 5600220, 14); }

  // A replay on the points as they were gives the same protocol and the same table.
  void PrüfeNachlauf() {
    B->SchließenVerlangen();
    ASSERT_FALSE(B->Offen());
    const std::string Prots = Protokoll(), Sta = Stapeltext();
    const int n = KorAnzahl;
    KorAbschneiden(6);
    EXPECT_EQ(Nachlauf(), Prots);
    EXPECT_TRUE(Gleich(Stapeltext(), Sta, KorAnzahl, n));
    EXPECT_TRUE(StapelBericht().empty());
  }
  // The same, and the files are the approved ones.
  void PrüfeDateien(const std::string& Name) {
    B->SchließenVerlangen();
    EXPECT_TRUE(GleichSoll(Protokoll(), "worksheets/soll/" + Name + ".dru"));
    EXPECT_TRUE(GleichSoll(Stapeltext(), "worksheets/soll/" + Name + ".sta"));
    PrüfeNachlauf();
  }
  void Antworte(const char* Knopf) { Skript.Formulare.push_back(Bediene({{Knopf, ""}})); }
  // Two polar rows, stored.
  void TippePolare() {
    Tippe(*B, "FStatPolarGitter", "3010\n35,2217\n97,7976\n49,8716\n\n020\n\n");
    Tippe(*B, "FStatPolarGitter", "3011\n21,97\n100,1788\n53,4064\n\n\n3010\n\n\n");
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
  Drücke(*B, "FStatSchnur");
  Tippe(*B, "FStatSchnurHz", "35,2217\n97,7976\n49,8716\n");
  for (const auto& [t, Höhe] : {std::pair{"2,6\n", "11.875"}, {"1,6\n", "12.875"}}) {
    Tippe(*B, "FStatReflektorHöhe", t);  // changed behind the measurement
    EXPECT_EQ(Text(*B, "FStatSchnurHöhe"), Höhe);
  }
  Drücke(*B, "FStatSchnurEnde");
  Tippe(*B, "FStatPolarGitter", "3010\n35,2217\n97,7976\n49,8716\n\n020\n\n");
  Tippe(*B, "FStatPolarGitter", "3011\n21,97\n100,1788\n53,4064\n\n\n3010\n");
  EXPECT_EQ(KorAnzahl, 7);  // nothing but the station is stored before the button
  EXPECT_EQ(Tippe(*B, "FStatPolarGitter", "\n\n"), "FStatPolarGitter");
  EXPECT_TRUE(Gleich(Längentext(KorRechts[8]), "3500180.500", Längentext(KorHoehe[8]), "11.000"));
  PrüfeDateien("fstat_helmert");
}

// The row under the cursor turns the known station, the other one is a check and stands nowhere else.
TEST_F(FStatTest, PolarerAnschluss) {
  Antworte("FStatPunktZurück");
  EXPECT_EQ(Tippe(*B, "FstatStandPnr", "1001\n"), "FstatStandPnr");
  Antworte("FStatPunktAbbruch");
  Tippe(*B, "FstatStandPnr", "1001\n");
  EXPECT_EQ(Text(*B, "FstatStandPnr"), "");
  Antworte("FStatPunktOrientierung");
  Tippe(*B, "FstatStandPnr", "1001\n\n1,55\n1,6\n1002\n20\n99,5862\n99,9871\n\n");
  EXPECT_EQ(Knopftext(), "Anschluß rechnen");
  Tippe(*B, "FStatGitter", "2006\n61,3163\n98,6343\n72,8176\n\n");
  B->ZelleWechseln(G, 1, 1);
  Drücken();
  EXPECT_TRUE(Gleich(Knopftext(), "Weiter: polare P.", Abw.Inhalt(0, 3), "0.015", Abw.Inhalt(0, 4), "",
                     Abw.Inhalt(1, 4), "-0.012", Text(*B, "FStatStandHöhe"), "12.500"));
  Drücken();
  TippePolare();
  PrüfeDateien("fstat_anschluss");
}

// All kinds, with and without heights.
TEST_F(FStatTest, NachlaufGleichtDerAufzeichnung) {
  for (const bool MitHöhe : {true, false}) {
    for (const char* Art : {"HELMERT", "KONGRUENT", "AN"}) {
      SCOPED_TRACE(Art);
      Optionen.FStatMitHoehe = MitHöhe;
      for (const char* Datei : {"a.sta", "a.dru", "nachlauf.dru"}) fs::remove(Ordner.Pfad(Datei));
      Prot = {};
      ProtokollNehmen(Ordner.Pfad("a.dru"));
      KorAbschneiden(6);
      B = Öffne("FS");
      const bool Bekannt = Art == std::string("AN");
      if (Bekannt) Antworte("FStatPunktOrientierung");
      const std::string Höhen = MitHöhe ? "1,55\n1,6\n" : "", Return = MitHöhe ? "\n" : "";
      Tippe(*B, "FstatStandPnr", (Bekannt ? "1002\n\n" : "3001\n015\n") + Höhen);
      Tippe(*B, "FStatGitter", "1001\n191,4102\n97,9169\n41,2646\n" + Return);
      if (!Bekannt) Tippe(*B, "FStatGitter", "2003\n260,5889\n100,6238\n40,84\n" + Return);
      if (Art == std::string("KONGRUENT")) Drücke(*B, "FStatArt");
      Drücken();
      EXPECT_EQ(Text(*B, "FStatStandHöhe").empty(), !MitHöhe);
      Drücken();
      Tippe(*B, "FStatPolarGitter", "3010\n35,2217\n97,7976\n49,8716\n" + Return + "020\n\n\n\n");
      EXPECT_EQ(Anzahl(Stapeltext(), "\nHELMERT\r\n"), Art == std::string("KONGRUENT") ? 0 : 1);
      EXPECT_EQ(Anzahl(Stapeltext(), "PWS     3010"), 1);
      EXPECT_EQ(KorHoehe[static_cast<std::size_t>(KorAnzahl - 1)] != 0, MitHöhe);
      PrüfeNachlauf();
      StapelDatei = {};
      StapelDatei.Name = Ordner.Pfad("a.sta");
    }
  }
}

// What can not be computed is told and keeps its state; a taken number is answered once for the run.
TEST_F(FStatTest, Verweigertes) {
  Haken.PunktVorhandenBehandeln = PunktVorhandenBehandeln;
  Skript.Erwarte("Kein Anschlußpunkt vorhanden !");
  Drücken();
  Tippe(*B, "FStatGitter", "1001\n191,4102\n97,9169\n41,2646\n\n1001\n191,41\n97,91\n41,26\n\n");
  Skript.Erwarte("Nur ein Anschlußpunkt vorhanden !");
  Drücken();
  EXPECT_EQ(Tippe(*B, "FStatGitter", "1002\n290,4495\n\n91,7\n\n"), "FStatGitter");  // no zenith angle
  EXPECT_TRUE(Gleich(*G.Fehlerhaft, true, *G.Zeile, 2, Text(*B, "FStatStandHöhe"), ""));
  B->ZelleWechseln(G, 2, 4);
  Tippe(*B, "FStatGitter", "98,6468\n\n\n");
  EXPECT_EQ(Drücken(), "FstatStandPnr");
  Tippe(*B, "FstatStandPnr", "1002\n");  // stored, it would be what it comes from
  EXPECT_EQ(Drücken(), "FstatStandPnr");
  Tippe(*B, "FstatStandPnr", "3001\n");
  Drücken();
  Tippe(*B, "FStatPolarGitter", "2003\n10\n100\n20\n\n\n\n2004\n10\n100\n30\n\n\n\n3010\n1\n100\n9\n\n\n\n");
  Skript.Formulare.emplace_back([](Formular& Form) {
    Form.Öffnen();
    Form.Wählen(Element<Auswahl>(Form, "PDoppFürAlle"), "", true);
    Bediene({{"PDoppAltenLöschen", ""}})(Form);
  });
  Drücken();
  EXPECT_TRUE(Gleich(Anzahl(Stapeltext(), "PWS"), 3, Anzahl(Protokoll(), "*** letzte Berechnung"), 2));
  // In a replay a station that is refused takes its rows with it; the next block is replayed.
  B->SchließenVerlangen();
  KorAbschneiden(6);
  Punkt("3001", 1, 1);
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{}; };
  Schreibe(StapelDatei.Name,
           Stapeltext() + "M  VR 08.40 Polarelemente\r\nPAN 1001 0\r\nPEN 1002 0\r\nNR 2003\r\nE Ende\r\n");
  Starten();
  EXPECT_TRUE(Gleich(KorAnzahl, 7, Stapel.Bilanz.Blöcke, 2, Stapel.Bilanz.Zeilen, 1,
                     Stapel.Bilanz.OhneErgebnis.size(), 1U));
}

// A stored row that is typed anew, and one that is deleted.
TEST_F(FStatTest, BerichtigenUndLoeschen) {
  Tippe(*B, "FstatStandPnr", std::string("3001\n015\n1,55\n1,6\n") + Anschluss);
  Drücken();
  Drücken();
  Drücke(*B, "FstatZurück");  // the station, and once more
  EXPECT_TRUE(Gleich(KorSuche(std::string_view("3001")), -1, Stapeltext(), "", *G.Sichtbar, true,
                     Anzahl(Protokoll(), "3001 ***gelöscht"), 1));
  Drücken();
  Drücken();
  TippePolare();
  EXPECT_TRUE(Gleich(Anzahl(Stapeltext(), "PAN"), 1, KorAnzahl, 9));
  EXPECT_TRUE(Gleich(B->RücknahmeVerlangen(), true, KorAnzahl, 9));  // the points that come of it stand
  B->ZelleWechseln(Polar, 0, 3);
  Tippe(*B, "FStatPolarGitter", "59,8716\n\n\n\n");
  EXPECT_TRUE(Gleich(Anzahl(Protokoll(), "***gelöscht"), 2, Anzahl(Stapeltext(), "49.8716"), 0,
                     Stapeltext().find("59.8716") < Stapeltext().find("53.4064"), true));
  B->ZelleWechseln(Polar, 1, 0);
  Drücke(*B, "FstatDelete");
  EXPECT_TRUE(Gleich(KorSuche(std::string_view("3011")), -1, Anzahl(Stapeltext(), "PWS"), 1));
  Drücke(*B, "FstatNeu");
  EXPECT_TRUE(Gleich(Knopftext(), "Rechnen Helmert", *G.Sichtbar, true, *Polar.Sichtbar, false));
  EXPECT_TRUE(Gleich(Anzahl(Stapeltext(), "E Ende"), 1, Anzahl(Protokoll(), "VR 19.50"), 1));
}

// The instrument fills the row whose number stands there.
TEST_F(FStatTest, MessungVomInstrument) {
  Messempfänger* E = MessempfängerJetzt();
  ASSERT_NE(E, nullptr);
  Messsatz S;
  for (auto [W, Zahl] : {std::pair{&S.Hz, 191.41024}, {&S.V, 97.9169}, {&S.Strecke, 41.2646}})
    *W = {true, true, {'.', '.', '.', '.'}, Zahl};
  auto Zweite = Öffne("19.50");
  EXPECT_EQ(&MessempfängerJetzt()->Blatt(), Zweite.get());
  B->FokusWechseln(*B->Fokus());  // the one that is being worked in
  EXPECT_EQ(MessempfängerJetzt(), E);
  Zweite->FokusWechseln(*Zweite->Fokus());
  Zweite.reset();
  EXPECT_EQ(MessempfängerJetzt(), E);
  EXPECT_FALSE(E->StandpunktVollständig());
  E->StandpunktNehmen("3001", {true, true, {'.', '.', '.', '.'}, 1.55});
  EXPECT_TRUE(Gleich(E->StandpunktVollständig(), true, Text(*B, "FstatStandPnr"), "3001"));
  EXPECT_EQ(E->MessungNehmen(S), -1);
  Tippe(*B, "FStatGitter", "1001");
  EXPECT_EQ(E->Fokus(), Messort::Nummernspalte);
  B->TasteDrücken(Taste::Return);
  EXPECT_EQ(E->Fokus(), Messort::Anschlussgitter);
  EXPECT_EQ(E->MessungNehmen(S), 0);
  B->TasteDrücken(Taste::Return);
  EXPECT_TRUE(Gleich(G.Zeilen(), 2, G.Inhalt(0, 3), "191.4102", G.Inhalt(0, 0), "*", *G.Zeile, 1));
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfJa);
  B->SchließenVerlangen();
  EXPECT_EQ(MessempfängerJetzt(), nullptr);
}

}  // namespace
}  // namespace tavorena::test
