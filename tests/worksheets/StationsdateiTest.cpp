#include "Blattest.h"

#include <tavorena/core/Optionen.h>
#include <tavorena/rawdata/GSI.h>
#include <tavorena/rawdata/Messempfaenger.h>
#include <tavorena/records/Spalten.h>
#include <tavorena/worksheets/Anschlusswahl.h>
#include <tavorena/worksheets/Messdatei.h>
#include <tavorena/worksheets/TVMMittForm.h>

namespace tavorena::test {
namespace {

// Observed from 3500140.123 5600190.456, orientation 123.4567, all of one height: station 3001, its
// connection, its points, the points once more; then a station that no point is known of.
const char* const Meßwerte =
    "3001 0 015\r\n1001 191.4102 100 41.2423\r\n2003 260.5889 100 40.8191\r\n1002 290.4495 100 91.7236\r\n"
    "3001\r\n3010 35.2217 100 49.8418 0 020\r\n3011 21.97 100 53.4062\r\n"
    "3001\r\n3011 21.97 100 53.4162\r\n3012 100 100 20\r\n"
    "3002\r\n77 10 100 20\r\n78 10 0 20\r\n79 10 100 100000\r\n";

class Stationsdatei : public Blatttest {
 protected:
  Stationsdatei() {
    LaufendeMessdatei = {};
    Schreibe(Ordner.Pfad("a.dat"), Meßwerte);
  }
  ~Stationsdatei() override { LaufendeMessdatei = {}; }
  // The button, with the file and its report where it asks for one.
  void AusDatei(Formular& Form, bool Erste) {
    if (Erste) {
      Skript.Erwarte(
          "2 Messungen lassen sich nicht übernehmen: Punktnummer, Zenitdistanz oder Strecke (zuerst Zeile "
          "13)");
      Skript.Dateien.push_back(Ordner.Pfad("a.dat"));
      Skript.Formulare.push_back(Bediene({{"RohdatenÜbernehmen", ""}}));
    }
    Drücke(Form, "FstatAusGSI");
  }
  // Without the stamp.
  std::string Neu(const std::string& Pnr) const {
    const int z = KorSuche(std::string_view(Pnr));
    return z < 0 ? "" : Längentext(KorRechts[static_cast<std::size_t>(z)]);
  }
};

TEST_F(Stationsdatei, StationFürStation) {
  auto B = Öffne("19.50");
  AusDatei(*B, true);
  auto& Polar = Element<Gitter>(*B, "FStatPolarGitter");
  EXPECT_EQ(LaufendeMessdatei.Nächste, 1U);
  EXPECT_TRUE(Gleich(Text(*B, "FstatStandPnr"), "3001", Gitterzeile(Element<Gitter>(*B, "FStatGitter"), 2)[1],
                     "1002", Polar.Inhalt(0, 5), "020", Text(*B, "FstatAusGSI"), "weiter aus &Meßdatei"));
  EXPECT_NE(Text(*B, "FstatMeßdateiStand").find("Station 1 von 2 (3001): 3 Anschlußpunkte, 2 Punkte"),
            std::string::npos);
  for (int i = 0; i < 3; ++i)
    Drücke(*B, "FstatBerechnen");  // calculates, takes the station over, then the points
  const std::string Einmal = Neu("3011");
  AusDatei(*B, false);  // once more: the rows go aside
  EXPECT_TRUE(Gleich(Text(*B, "FstatBerechnen"), "Messungen mitteln", Polar.Inhalt(0, 3), "53.4162"));
  Drücke(*B, "FstatBerechnen");
  EXPECT_TRUE(Gleich(Text(*B, "FstatBerechnen"), "Pkte übernehmen", Polar.Inhalt(1, 3), "53.4112",
                     Polar.Inhalt(2, 0), "3012", Neu("3012"), ""));
  Drücke(*B, "FstatBerechnen");
  // What was stored once is struck and stored anew, in the batch it stands once.
  EXPECT_TRUE(Gleich(Neu("3011") != Einmal, true, Anzahl(Stapeltext(), "PWS     3011"), 1,
                     Anzahl(Protokoll(), MarkeGelöscht), 1, Neu("3012").empty(), false));
  EXPECT_TRUE(Gleich(Anzahl(Stapeltext(), "53.4112"), 1, Anzahl(Stapeltext(), "PWS     3010"), 1));
  B->SchließenVerlangen();
  // Later it goes on there; nothing is known of the points.
  B = Öffne("19.50");
  Skript.Formulare.push_back(Bediene({{"OK", ""}}));
  Skript.Erwarte("Kein Anschlußpunkt vorhanden !");
  AusDatei(*B, false);
  EXPECT_TRUE(Gleich(Text(*B, "FstatStandPnr"), "3002", Text(*B, "FstatAusGSI"), "aus &Meßdatei"));
  EXPECT_NE(Text(*B, "FstatMeßdateiStand").find("(Dateiende Meßdatei)"), std::string::npos);
  Skript.Erwarte("Dateiende erreicht !");
  AusDatei(*B, false);
  EXPECT_FALSE(LaufendeMessdatei.Offen());
}

TEST_F(Stationsdatei, Schnurgerüst) {
  auto B = Öffne("19.50");
  AusDatei(*B, true);
  for (int i = 0; i < 2; ++i) Drücke(*B, "FstatBerechnen");
  Drücke(*B, "FStatSchnur");
  EXPECT_EQ(Tippe(*B, "FStatSchnurLiniePnr", "1001\n1002\n"), "FStatSchnurPnr");
  // 2003 itself: the 3-4-5 triangle of the example, 42 m along and 6 m to the left.
  EXPECT_EQ(Tippe(*B, "FStatSchnurPnr", "4001\n260,5889\n100\n40,8191\n\n"), "FStatSchnurÜbernehmen");
  EXPECT_TRUE(Gleich(Text(*B, "FStatSchnurLinie"), "42.000", Text(*B, "FStatSchnurSeitw"), "6.000",
                     Text(*B, "FStatSchnurLinieVorige"), ""));
  Drücke(*B, "FStatSchnurÜbernehmen");
  Drücke(*B, "FStatSchnurNeueLinie");
  Tippe(*B, "FStatSchnurLiniePnr", "1002\n1001\n");
  Messsatz Satz;
  GSIZeileLesen8(
      "110001+00004002 21.322+26058890 22.322+10000000 31...6+00408191 71....+00000018 87..10+00001500",
      Satz);
  ASSERT_EQ(MessempfängerJetzt()->MessungNehmen(Satz), 0);
  B->TasteDrücken(Taste::Return);
  EXPECT_TRUE(Gleich(B->Fokus()->Name, "FStatSchnurÜbernehmen", Text(*B, "FStatSchnurSy"), "18",
                     Text(*B, "FStatReflektorHöhe"), "1.500"));
  EXPECT_TRUE(Gleich(Text(*B, "FStatSchnurLinie"), "58.000", Text(*B, "FStatSchnurLinieVorige"), "42.000"));
  Drücke(*B, "FStatSchnurÜbernehmen");
  EXPECT_EQ(Neu("4002"), Neu("2003"));
  Drücke(*B, "FStatSchnurZurück");
  EXPECT_TRUE(Gleich(Neu("4002"), "", Anzahl(Stapeltext(), "C  Schnurgerüst: 400"), 1,
                     Anzahl(Protokoll(), "Linienelemente (Schnurgerüst)") > 0, true));
  Drücke(*B, "FStatSchnurEnde");
  Drücke(*B, "FstatZurück");  // 4001 stands on it, though its line is done
  EXPECT_EQ(Text(*B, "FstatBerechnen"), "Pkte übernehmen");
  Drücke(*B, "FstatBerechnen");  // the polar rows stand under their own head again
  B->SchließenVerlangen();
  EXPECT_TRUE(GleichSoll(Protokoll(), "worksheets/soll/fstat_schnur.dru"));
  EXPECT_TRUE(GleichSoll(Stapeltext(), "worksheets/soll/fstat_schnur.sta"));
}

// Its first one stands in a batch file that somebody else changed: there is no mean, and none of them goes.
TEST_F(Stationsdatei, ZweiteMessungBleibt) {
  auto B = Öffne("19.50");
  AusDatei(*B, true);
  for (int i = 0; i < 3; ++i) Drücke(*B, "FstatBerechnen");
  auto& Polar = Element<Gitter>(*B, "FStatPolarGitter");
  Schreibe(StapelDatei.Name, Stapeltext() + "C von Hand\r\n");
  B->ZelleWechseln(Polar, 2, 0);
  Tippe(*B, "FStatPolarGitter", "3010\n35,2317\n100\n49,8418\n\n\n\n");
  Skript.Formulare.push_back(Bediene({{"MMittMitteln", ""}, {"MMittWeiter", ""}}));
  Drücke(*B, "FStatMitteln");
  EXPECT_TRUE(Gleich(Polar.Inhalt(0, 1), "35.2217", Polar.Inhalt(2, 1), "35.2317"));
  AusDatei(*B, false);
  LaufendeMessdatei.Nächste = 1;
  AusDatei(*B, false);  // a third one does not come before the second is averaged
  EXPECT_EQ(LaufendeMessdatei.Nächste, 1U);
  Drücke(*B, "FstatBerechnen");
  EXPECT_TRUE(Gleich(Polar.Zeilen(), 6, Polar.Inhalt(1, 3), "53.4062", Polar.Inhalt(3, 3), "53.4162",
                     Polar.Inhalt(4, 0), "3012"));
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfJa);
  B->SchließenVerlangen();
}

struct Liste final : Messliste {
  std::vector<Punktsatz> Alle;
  [[nodiscard]] std::vector<Punktsatz> Messpunkte() const override { return Alle; }
  void MesspunkteMitteln(const std::vector<int>& Zeilen) override {
    for (auto z = Zeilen.rbegin(); z + 1 != Zeilen.rend(); ++z) Alle.erase(Alle.begin() + *z);
    Alle[static_cast<std::size_t>(Zeilen.front())].Symbol = std::to_string(Zeilen.size());
  }
  void MesspunktLöschen(int Zeile) override { Alle.erase(Alle.begin() + Zeile); }
  bool MesspunktUmnummern(int Zeile, const std::string& Pnr) override {
    if (Pnr.empty()) return false;
    Alle[static_cast<std::size_t>(Zeile)].Pnr = Pnr;
    return true;
  }
};

TEST_F(Stationsdatei, MittelNurUnterDenMessungen) {
  Liste L;
  for (const char* Pnr : {"7", "8", "7", "9", "8", "7", "8", "9", "9"})
    L.Alle.push_back({Pnr, 100 + 0.1 * static_cast<double>(L.Alle.size()), 200, 0, ""});
  TVMMittForm Form(L);
  Form.Öffnen();
  EXPECT_TRUE(Gleich(Text(Form, "NeuerPunktPnr"), "7", Text(Form, "NeuerPunktRechts"), "100.233",
                     Text(Form, "AlterPunktBem(0)"), "W>D(max)", Text(Form, "AlterPunktBem(1)"), "W>D"));
  EXPECT_TRUE(Form.Ungefragt);
  Drücke(Form, "MMittMitteln");
  EXPECT_EQ(L.Alle.size(), 7U);
  Drücke(Form, "MMittWeiter");  // the 8 stay
  Skript.Erwarte("Messung 9 löschen ?", KnopfJa);
  Drücke(Form, "AlterPunktLöschen(0)");
  Tippe(Form, "AlterPunktPnr(1)", "10\n");
  std::string Rest;
  for (const Punktsatz& P : L.Alle) Rest += P.Pnr + P.Symbol + " ";
  EXPECT_EQ(Rest, "73 8 8 8 9 10 ");
  EXPECT_FALSE(Form.Offen());
  EXPECT_EQ(KorAnzahl, 5);
}

TEST_F(Stationsdatei, VorgeschlagenIstWasDieTabelleKennt) {
  Rohstation S;
  for (const char* Pnr : {"1001", "9001", "2005"}) S.Anschluss.push_back({Pnr, "", 12.5, 100, 20, 1.5, 1});
  std::vector<bool> Ein = AnschlussVorschlag(S);
  EXPECT_EQ(Ein, (std::vector<bool>{true, false, true}));
  Skript.Formulare.emplace_back([](Formular& Form) {
    Form.Öffnen();
    auto& G = Gitterfeld(Form);
    EXPECT_TRUE(Gleich(G.Markiert(0), true, G.Inhalt(0, 7), "3500100.000", G.Inhalt(1, 7), ""));
    Form.Markieren(G, 1, false);
    Form.Markieren(G, 0, false);
    Drücke(Form, "OK");
  });
  EXPECT_EQ(AnschlussWählen(S, "Station 1 von 1", Ein), 0);
  EXPECT_EQ(Ein, (std::vector<bool>{false, true, true}));
}

}  // namespace
}  // namespace tavorena::test
