#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/Text.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

class Zugtest : public Blatttest {
 protected:
  Zugtest() {
    Punkt("1030", 3499900, 5600300);
    Punkt("1031", 3500100, 5600200);
    Punkt("1032", 3500400, 5600300);
    Punkt("1033", 3500600, 5600600);
  }
  // Two new points between 1031 and 1032.
  void Tippezug() {
    Tippe(*B, "PolygonZugNr", "7\n1030\n1031\n127,5291\n128,082\n");
    Tippe(*B, "PolygonGitter", "2021\n267,1799\n107,713\n015\n+\n141,3728\n116,634\n\n\n");
    Tippe(*B, "PolygonEndPnr", "1032\n171,8376\n1033\n");
  }
  std::string Status() const { return Trimmen(Skript.Status[4]); }
  void Wähle(const char* Name, bool An = true) { B->Wählen(Element<Auswahl>(*B, Name), "", An); }
  std::unique_ptr<Formular> B = Öffne("19.10");
  Gitter& G = Gitterfeld(*B);
};

TEST_F(Zugtest, PolygonzugSchreibtSeineDateien) {
  EXPECT_EQ(Tippe(*B, "PolygonZugNr", "7\n"), "PolygonAnfZielPnr");
  EXPECT_EQ(Tippe(*B, "PolygonAnfZielPnr", "1030\n1031\n127,5291\n128,082\n"), "PolygonGitter");
  EXPECT_EQ(Tippe(*B, "PolygonGitter", "2021\n267,1799\n107,713\n015\n2022\n141,3728\n116,634\n\n\n"),
            "PolygonEndPnr");
  EXPECT_EQ(G.Inhalt(1, 7), "015");
  EXPECT_EQ(Tippe(*B, "PolygonEndPnr", "1032\n171,8376\n1033\n"), "PolygonErzeugen");
  EXPECT_EQ(Gitterzeile(G, 0),
            (Texte{"2021", "267.1799", "107.713", "-0.013", "-0.010", "3500200.003", "5600280.001", "015"}));
  EXPECT_EQ(KorAnzahl, 9);  // shown, not stored
  Drücke(*B, "PolygonErzeugen");
  EXPECT_EQ(KorAnzahl, 11);
  Drücke(*B, "PolygonErzeugen");
  EXPECT_EQ(Status(), "Schon geschrieben, seither ist nichts geändert");
  Drücke(*B, "PolygonFelderClear");
  EXPECT_TRUE(
      Gleich(G.Zeilen(), 1, G.Inhalt(0, 0), "", Text(*B, "PolygonAnfRechts"), "", Text(*B, "PolygonS"), ""));
  // A free end: points only.
  Wähle("PolygonOptionFrei");
  Wähle("PolygonOptionAbschluss", false);
  Tippe(*B, "PolygonZugNr", "8\n1030\n1031\n150\n50\n");
  Tippe(*B, "PolygonGitter", "2031\n200\n50\n\n2032\n");
  Drücke(*B, "PolygonErzeugen");
  // A ring, whose direction comes from its start.
  Drücke(*B, "PolygonFelderClear");
  Tippe(*B, "PolygonZugNr", "9\n1030\n1031\n150\n60\n");
  Tippe(*B, "PolygonGitter", "2041\n300\n60\n\n2042\n300,001\n60\n\n2043\n300\n60,02\n\n\n");
  Tippe(*B, "PolygonEndPnr", "1031\n");
  Drücke(*B, "PolygonErzeugen");
  Drücke(*B, "PolygonEnd");
  PrüfeDateien("polygon", 7);
}

// What is wrong is said where it is, and nothing is stored.
TEST_F(Zugtest, MangelWirdGenanntWoErIst) {
  const struct {
    const char *Feld, *Text, *Grund, *Fokus;
    int Zeile = 0, Spalte = 0;
  } Fälle[] = {
      {"PolygonAnfStrecke", "", "Strecke fehlt", "PolygonAnfStrecke"},
      {"PolygonAnfWinkel", "", "Brechungswinkel fehlt", "PolygonAnfWinkel"},
      {"PolygonAnfZielPnr", "1031", "Ziel liegt auf dem Standpunkt", "PolygonAnfZielPnr"},
      {"PolygonEndZielPnr", "1032", "Ziel liegt auf dem Standpunkt", "PolygonEndZielPnr"},
      {"PolygonEndPnr", "", "Endpunkt fehlt", "PolygonEndPnr"},
      {"PolygonGitter", "0", "Zeile 2: Strecke fehlt", "PolygonGitter", 1, 2},
      {"PolygonGitter", "", "Zeile 1: Brechungswinkel fehlt", "PolygonGitter", 0, 1},
      {"PolygonGitter", "2021", "Zeile 2: Punktnummer steht schon im Zug", "PolygonGitter", 1, 0},
      {"PolygonGitter", "1032", "Zeile 1: Punktnummer steht schon im Zug", "PolygonGitter", 0, 0},
  };
  for (const auto& F : Fälle) {
    SCOPED_TRACE(F.Feld + std::string(" ") + F.Grund);
    Skript.Erwarte("Felder leeren, ohne zu schreiben ? ", KnopfJa);
    Tippezug();
    auto& E = Element<Eingabeelement>(*B, F.Feld);
    B->FokusWechseln(E);
    if (&E == &G) B->ZelleWechseln(G, F.Zeile, F.Spalte);
    B->Tippen(E, F.Text);
    EXPECT_EQ(Drücke(*B, "PolygonErzeugen"), F.Fokus);
    EXPECT_TRUE(Gleich(Status(), F.Grund, E.Fehlerhaft, true, KorAnzahl, 9, Text(*B, "PolygonFL"), ""));
    EXPECT_EQ(*G.Zeile * 10 + G.Spalte, &E == &G ? F.Zeile * 10 + F.Spalte : *G.Zeile * 10 + G.Spalte);
    Drücke(*B, "PolygonFelderClear");
  }
  Tippezug();
  Wähle("PolygonOptionAnschluss", false);  // the direction at the end goes with it
  Tippe(*B, "PolygonEndPnr", "1031\n");
  EXPECT_EQ(Status(), "Anfangs- und Endpunkt sind gleich");
  Tippe(*B, "PolygonEndPnr", "1032\n");
  EXPECT_TRUE(Gleich(Text(*B, "PolygonFW"), "", Text(*B, "PolygonFL"), "-0.040"));
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  B->SchließenVerlangen();
  EXPECT_EQ(Anzahl(Protokoll(), "Ohne Richtungsan- u. abschluß"), 1);
}

// Results follow rows that come and go, and the table.
TEST_F(Zugtest, ErgebnisseFolgenJederÄnderung) {
  Tippezug();
  const Texte Erste = Gitterzeile(G, 0), Zweite = Gitterzeile(G, 1);
  Skript.Erwarte("Felder leeren, ohne zu schreiben ? ", KnopfNein);
  Drücke(*B, "PolygonFelderClear");
  EXPECT_EQ(G.Zeilen(), 3);
  B->ZelleWechseln(G, 1, 0);
  Drücke(*B, "PolygonGitterInsert");
  EXPECT_TRUE(Gleich(G.Zeilen(), 4, G.Inhalt(1, 7), "015", G.Inhalt(0, 5), "", Text(*B, "PolygonFL"), ""));
  Tippe(*B, "PolygonGitter", "2030\n200\n1");
  EXPECT_EQ(B->TasteDrücken(Taste::Escape), true);  // what stood in the cell
  EXPECT_EQ(Gitterzeile(G, 1), (Texte{"2030", "200.000", "", "", "", "", "", "015"}));
  Drücke(*B, "PolygonGitterDelete");
  EXPECT_TRUE(Gitterzeile(G, 0) == Erste && Gitterzeile(G, 1) == Zweite);
  EXPECT_EQ(G.Zeilen(), 3);
  Drücke(*B, "PolygonErzeugen");
  static_cast<void>(KorZeileSetzen(KorSuche(std::string_view("1032")), {"1032", 3500400.2, 5600300}));
  B->Nachsehen();
  EXPECT_EQ(Text(*B, "PolygonFL"), "0.147");
  EXPECT_TRUE(Feld(*B, "PolygonFL").Fehlerhaft);
  // The second point is refused: the first one is stored and written.
  Haken.PunktVorhandenBehandeln = [](const Konflikt& K) {
    return Trimmen(K.Pnr) == "2022" ? Konfliktantwort{} : Konfliktantwort{Konfliktwort::NeuenNeunum, "2099"};
  };
  Drücke(*B, "PolygonErzeugen");
  EXPECT_EQ(Status(), "Punkt 2022 nicht gespeichert");
  EXPECT_TRUE(Gleich(G.Inhalt(0, 0), "2099", Anzahl(Protokoll(), "2022\r\n"), 1,
                     Anzahl(Protokoll(), "1032 PE"), 2, Anzahl(Stapeltext(), "NEUPWS     2022"), 2));
  EXPECT_EQ(Anzahl(Protokoll(), "******>FL(zul)"), 1);
}

TEST_F(Zugtest, KetteStehtInDerGrafik) {
  GrafikLeeren();
  GrafikFenster = {};
  GrafikÖffnen(9000, 9000);
  const auto Zahl = [](const std::string& Stück) {
    int n = 0;
    for (const std::string& Z : Gezeichnet()) n += Z.find(Stück) != std::string::npos ? 1 : 0;
    return n;
  };
  const int Linien = Zahl("inie ");
  Tippe(*B, "PolygonZugNr", "7\n1030\n1031\n127,5291\n128,082\n2021\n267,1799\n107,713\n\n2022\n");
  EXPECT_EQ(Zahl("inie ") - Linien, 3 + 4);  // two dashed sides, the target; two blue crosses
  Skript.Erwarte("Felder leeren, ohne zu schreiben ? ", KnopfJa);
  Drücke(*B, "PolygonFelderClear");
  Tippezug();
  EXPECT_EQ(Zahl("Text 2021"), 0);
  Drücke(*B, "PolygonErzeugen");
  B->Nachsehen();                   // its own points change nothing
  EXPECT_EQ(Zahl("Text 2021"), 2);  // of the table, and the mark
  B->SchließenVerlangen();
  EXPECT_TRUE(Gleich(Zahl("Text 2021"), 1, Zahl("inie "), Linien));
}

// A block that can not be calculated ends the run where its reason is.
TEST_F(Zugtest, NachlaufNenntDenMangel) {
  const std::string Kopf = "M VR 19.10(20) x\r\nZUGNR 7\r\nPARAM TP\r\nANSCHLP 1031 0 100\r\n";
  std::string Tausend = Kopf;
  for (int i = 0; i < 1000; ++i) Tausend += "NEUPWS " + std::to_string(3000 + i) + " 200 10\r\n";
  const std::pair<std::string, const char*> Fälle[] = {
      {Kopf + "NEUPWS 2021 200 0\r\nABSCHLP 1032\r\nE\r\n", "Zeile 1: Strecke fehlt"},
      {Kopf + "NEUPWS 2021 200 10\r\nABSCHLP 77\r\nE\r\n", "Anschlußpunkt 77 fehlt"},
      {Tausend + "ABSCHLP 1032\r\nE\r\n", "Höchstens 1000 Strecken in einem Zug"},
  };
  for (const auto& [Text, Grund] : Fälle) {
    Schreibe(StapelDatei.Name, Text);
    if (Text.find("ABSCHLP 77") != std::string::npos)
      Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
    Skript.Erwarte(Grund);
    Starten();
    EXPECT_TRUE(Gleich(Stapel.Bilanz.Fehler, true, Blätter.back()->Offen(), false, Protokoll(), ""));
  }
  // A point that is refused is no error of the run; nothing is left of its traverse.
  Punkt("2021", 3500000, 5600000);
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{}; };
  Schreibe(StapelDatei.Name, Kopf + "NEUPWS 2021 200 100\r\nABSCHLP 1032\r\nE\r\n");
  EXPECT_EQ(Anzahl(Nachlauf(), "Zug-Nr."), 0);
  EXPECT_EQ(StapelBericht(), Texte{"ohne Ergebnis: VR 19.10(20) x, Zeile 1: Punkt 2021 nicht gespeichert"});
  EXPECT_FALSE(Stapel.Bilanz.Fehler);
}

}  // namespace
}  // namespace tavorena::test
