#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Text.h>
#include <tavorena/graphics/Grafikfenster.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

class HelmertTest : public Blatttest {
 protected:
  // A file of the new system.
  std::string Neu(const char* Name, std::initializer_list<std::tuple<const char*, double, double>> Punkte) {
    std::string Text;
    for (const auto& [Pnr, R, H] : Punkte) KorZeileAnhängen(Text, Pnr, R, H, 0, "", 4), Text += "\r\n";
    Schreibe(Ordner.Pfad(Name), Text);
    return Ordner.Pfad(Name);
  }
  static void Tabelle(std::initializer_list<std::tuple<const char*, double, double>> Punkte) {
    KorAbschneiden(0);
    PunkteAnlegen(Punkte);
  }
  // The batch file without the folder of this test.
  std::string Sta() const {
    std::string Text = Stapeltext();
    const std::string Wo = Ordner.Pfad("");
    for (std::size_t i = 0; (i = Text.find(Wo)) != std::string::npos;)
      Text.replace(i, Wo.size(), "/daten/auftrag/");
    return Text;
  }
  static std::string Tabellentext() {
    std::string Text;
    EXPECT_EQ(KorText(Dateiformat::Kor, 6, Text), 0);
    return Text;
  }
  void Transformiere() {
    Skript.Erwarte("Alle Koordinaten transformieren ?", KnopfJa);
    Drücke(*B, "HelmertTransformieren");
    EXPECT_EQ(Skript.LetzteVorgabe, KnopfNein);
  }
  void Wähle(const char* Name, bool An = true) { B->Wählen(Element<Auswahl>(*B, Name), "", An); }

  std::unique_ptr<Formular> B = Öffne("24.00");
  Gitter& G = Gitterfeld(*B);
};

// C. D. Ghilani, Adjustment Computations, example 18.1: a pair of different numbers is typed, and what was
// done is taken back.
TEST_F(HelmertTest, VeröffentlichtesBeispiel) {
  Tabelle(
      {{"A", 121.622, -128.066}, {"B", 141.228, 187.718}, {"C", 175.802, 135.728}, {"1", 174.148, -120.262}});
  Tippe(*B, "HelmertDatei",
        Neu("neu.kor",
            {{"A", 1049422.40, 51089.20}, {"GB", 1049413.95, 49659.30}, {"C", 1049244.95, 49884.95}}) +
            "\n");
  EXPECT_EQ(Drücke(*B, "HelmertGleich"), "HelmertGitter");
  EXPECT_TRUE(Gleich(G.Zeilen(), 3, Text(*B, "HelmertMK"), "", Text(*B, "HelmertD").empty(), false));
  B->ZelleWechseln(G, 2, 1);
  EXPECT_EQ(Tippe(*B, "HelmertGitter", "B\nGB\n\n"), "HelmertTransformieren");
  EXPECT_TRUE(Gleich(Text(*B, "HelmertM"), "4.519621", Text(*B, "HelmertEpsilon"), "196.42438",
                     Text(*B, "HelmertMK"), "0.140"));
  EXPECT_EQ(Gitterzeile(G, 2), (Texte{"*", "B", "141.228", "187.718", "GB", "1049413.950", "49659.300",
                                      "-0.101", "0.077", "0.127"}));
  Tippe(*B, "HelmertEinzelRechts", "0\n0\n");
  EXPECT_TRUE(Gleich(Text(*B, "HelmertEinzelY"), "1050003.715", Text(*B, "HelmertEinzelX"), "50542.131"));
  const std::string Vorher = Tabellentext();
  Transformiere();
  EXPECT_TRUE(Gleich(Längentext(KorRechts[0]), "1049187.361", KoordinatenGeaendert, true));
  EXPECT_FALSE(Element(*B, "HelmertTransformieren").Aktiv);  // a second press would transform twice
  EXPECT_EQ(Anzahl(Stapeltext(), "PASSP          B        GB\r\n"), 1);
  Drücke(*B, "HelmertZurück");
  EXPECT_TRUE(Gleich(Tabellentext(), Vorher, Stapeltext(), "", Text(*B, "HelmertM"), "4.519621"));
  EXPECT_EQ(Anzahl(Protokoll(), "Transformation zurückgenommen"), 1);
  Transformiere();  // the same again
  EXPECT_EQ(Längentext(KorRechts[0]), "1049187.361");
}

// Three transformations of a table: by five passpoints with one that is off and one that is ticked off, the
// residuals distributed; by two with a fixed scale and a fixed point; and an affine one. The figures are
// made.
TEST_F(HelmertTest, SchreibtIhreDateien) {
  Tabelle({{"1", 900, 900},
           {"2", 1100, 900},
           {"3", 1100, 1100},
           {"4", 900, 1100},
           {"5", 1000, 1000},
           {"6", 1050, 950},
           {"7", 1500, 1000}});
  const std::string Vorher = Tabellentext();
  Tippe(*B, "HelmertDatei",
        Neu("eins.kor", {{"1", 400, 0},
                         {"2", 600, 0},
                         {"3", 600, 200},
                         {"4", 400, 200},
                         {"5", 500.05, 100},
                         {"6", 551, 50},
                         {"6", 551, 50},
                         {"60", 551, 50}}) +
            "\n");
  Drücke(*B, "HelmertGleich");
  EXPECT_EQ(Trimmen(Skript.Status[4]), "5 Paßpunkte, mehrfach und ausgelassen: 1");
  B->ZelleWechseln(G, 5, 1);
  Tippe(*B, "HelmertGitter", "6\n60\n");
  EXPECT_EQ(Text(*B, "HelmertMK"), "0.312");
  B->ZelleWechseln(G, 5, 1);
  B->TasteDrücken(Taste::Leer);  // unticked, the others fit
  EXPECT_TRUE(Gleich(Text(*B, "HelmertMK"), "0.018", G.Inhalt(5, 7), "0.990", G.Inhalt(4, 7), "0.040"));
  EXPECT_TRUE(Gleich(G.Auffällig(4, 7), true, G.Auffällig(4, 8), false, G.Auffällig(5, 7), false));
  B->TitelKlicken(G, 9);
  EXPECT_TRUE(Gleich(G.Inhalt(0, 1), "6", G.Inhalt(1, 1), "5", G.Markiert(0), false));
  Wähle("HelmertVerteilen");
  Transformiere();

  Tippe(*B, "HelmertDatei", Neu("zwei.kor", {{"1", 0, 0}, {"5", 101, 100}}) + "\n");
  Wähle("HelmertVerteilen", false);
  Wähle("HelmertMasstabFest");
  Tippe(*B, "HelmertFixPnr", "1\n");
  Drücke(*B, "HelmertGleich");
  EXPECT_TRUE(Gleich(Text(*B, "HelmertM"), "1.000000", Feld(*B, "HelmertWS").Fehlerhaft, true));
  Transformiere();

  Tippe(*B, "HelmertDatei",
        Neu("drei.kor",
            {{"1", 840.01, 1860}, {"2", 1139.99, 1900}, {"3", 1160.01, 2140}, {"4", 859.99, 2100}}) +
            "\n");
  Wähle("HelmertOptionAffin");
  Drücke(*B, "HelmertGleich");
  EXPECT_EQ(*B->Titel, "VR 24.30 Affin- Transformation");
  Transformiere();
  Drücke(*B, "HelmertEnd");
  EXPECT_FALSE(B->Offen());

  const std::string Nachher = Tabellentext(), Dru = Protokoll();
  EXPECT_TRUE(GleichSoll(Dru, "worksheets/soll/helmert.dru"));
  EXPECT_TRUE(GleichSoll(Sta(), "worksheets/soll/helmert.sta"));
  Tabelle({{"1", 900, 900},
           {"2", 1100, 900},
           {"3", 1100, 1100},
           {"4", 900, 1100},
           {"5", 1000, 1000},
           {"6", 1050, 950},
           {"7", 1500, 1000}});
  EXPECT_EQ(Tabellentext(), Vorher);
  EXPECT_EQ(Nachlauf(), Dru);
  EXPECT_TRUE(Gleich(Tabellentext(), Nachher, Stapel.Bilanz.Fehler, false, *Blätter[0]->Titel,
                     "Tavorena Helmert- Transformation [Stapel]", *Blätter[2]->Titel,
                     "Tavorena Affin- Transformation [Stapel]"));
}

// By position, with different numbers: one point is not enough, two at one place are no choice. A stop, a
// change of the table and a no leave nothing behind.
TEST_F(HelmertTest, NachLageUndWasSieAufhält) {
  const auto Status = [&] { return Trimmen(Skript.Status[4]); };
  const auto Lage = [&](const char* Radius) {
    Skript.Formulare.push_back(Bediene({{"Wert(0)", std::string(Radius) + "\n"}}));
    Drücke(*B, "HelmertLage");
  };
  Tippe(*B, "HelmertDatei",
        Neu("neu.kor", {{"1", 3500100.01, 5600200},
                        {"2", 3500160, 5600280.01},
                        {"3", 3500160.01, 5600280},
                        {"4", 3500220, 5600360.02}}) +
            "\n");
  Lage("0.05");
  EXPECT_TRUE(Gleich(Status(), "3 Paßpunkte, mehrfach und ausgelassen: 1", Gitterzeile(G, 2)[4], "4"));
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  Lage("1");
  EXPECT_TRUE(Gleich(Status(), "Angehalten", G.Zeilen(), 4));
  Wähle("HelmertVerteilen");
  const std::string Vorher = Tabellentext();
  Transformiere();
  EXPECT_TRUE(
      Gleich(Status(), "Angehalten, nichts ist transformiert", Tabellentext(), Vorher, Stapeltext(), ""));
  Skript.BeiEreignissen = [] {};
  static_cast<void>(KorLoeschen(KorSuche(std::string_view("1002"))));
  B->Nachsehen();
  EXPECT_TRUE(Gleich(Status(), "1 Paßpunkt ist nicht mehr in der Tabelle", G.Zeilen(), 3));
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  Skript.Erwarte("Alle Koordinaten transformieren ?", KnopfNein);
  B->SchließenVerlangen();
  EXPECT_TRUE(Gleich(B->Offen(), true, Protokoll(), ""));
  // What can not be recorded is not done.
  const std::string Danach = Tabellentext(), Dru = std::exchange(Prot.Datei, Ordner.Pfad("fehlt/a.dru"));
  const std::string Sta = std::exchange(StapelDatei.Name, "");
  Skript.Erwarte("Alle Koordinaten transformieren ?", KnopfJa);
  Skript.Erwarte("Fehler aufgetreten beim Schreiben in", KnopfAbbruch);
  Drücke(*B, "HelmertTransformieren");
  EXPECT_TRUE(Gleich(Tabellentext(), Danach, *Element(*B, "HelmertTransformieren").Aktiv, true));
  Prot.Datei = Dru;
  StapelDatei.Name = Sta;
  GrafikFenster = {true, 400, 400, 2, 3500050, 5600190, 200, 200, 0, 0, 0, 0, false};
  const auto Scheiben = [] {
    const Texte Bild = Gezeichnet();
    return std::count_if(Bild.begin(), Bild.end(),
                         [](const std::string& Z) { return Z.starts_with("Scheibe"); });
  };
  EXPECT_EQ(Scheiben(), 2);
  Transformiere();
  EXPECT_EQ(Scheiben(), 0);  // what belongs to the old system goes
  GrafikFenster = {};
}

TEST_F(HelmertTest, SagtWasFehlt) {
  const auto Status = [&] { return Trimmen(Skript.Status[4]); };
  Schreibe(Ordner.Pfad("leer.kor"), "\r\n");
  KoordinatendateiName = Neu("offen.kor", {{"1", 1, 1}});
  for (const auto& [Datei, Meldung] : {std::pair{"fehlt.kor", "Datei nicht gefunden:"},
                                       {"leer.kor", "Keine Punkte in"},
                                       {"a.lt4", "nur aus KOR-Dateien"},
                                       {"offen.kor", "die geöffnete Koordinatendatei"}}) {
    Skript.Erwarte(Meldung);
    EXPECT_EQ(Tippe(*B, "HelmertDatei", Ordner.Pfad(Datei) + "\n"), "HelmertDatei") << Datei;
  }
  // Beside the open file a name is enough.
  Neu("neu.kor", {{"1001", 0, 0}, {"1002", 10, 10}, {"2003", 20, 20}, {"5", 5, 5}, {"-", 6, 6}});
  EXPECT_EQ(Tippe(*B, "HelmertDatei", "neu\n"), "HelmertGleich");
  Skript.Erwarte("Fehler bei der Transformationsberechnung:\nzu wenig Paßpunkte !");
  EXPECT_EQ(Drücke(*B, "HelmertTransformieren"), "HelmertGitter");
  for (const auto& [Getippt, Grund] :
       {std::pair{"1001\n9\n", "Paßpunkt 9 fehlt im neuen System"},
        {"1001\n1001\n1001\n\n", "Punkt 1001 steht schon in Zeile 1"},
        {"1002\n1001\n", "Punkt 1001 des neuen Systems steht schon in Zeile 1"},
        {"2004\n-\n", "Punktnummer mit Leerzeichen"}}) {
    B->TasteDrücken(Taste::Escape);
    B->ZelleWechseln(G, G.Zeilen() - 1, 1);
    EXPECT_EQ(Tippe(*B, "HelmertGitter", Getippt), "HelmertGitter");
    EXPECT_TRUE(Gleich(Status(), Grund, G.Fehlerhaft, true));
  }
  B->TasteDrücken(Taste::Escape);
  Drücke(*B, "HelmertGleich");
  Skript.Erwarte("Fixpunkt nicht in beiden Systemen vorhanden !");
  EXPECT_EQ(Tippe(*B, "HelmertFixPnr", "2004\n"), "HelmertFixPnr");
  Wähle("HelmertOptionAffin");
  EXPECT_TRUE(
      Gleich(Text(*B, "HelmertHinweis"), "", Text(*B, "HelmertMK"), "ohne"));  // it has no fixed point
  B->ZelleWechseln(G, 1, 1);
  Drücke(*B, "HelmertDelete");
  EXPECT_TRUE(Gleich(Text(*B, "HelmertHinweis"), "Paßpunkte liegen auf einer Geraden",
                     *Element(*B, "HelmertTransformieren").Aktiv, false));
  Wähle("HelmertOptionHelmert");
  B->Tippen(Feld(*B, "HelmertFixPnr"), "");
  for (const char* Pnr : {"1001", "2003"})
    static_cast<void>(KorZeileSetzen(KorSuche(std::string_view(Pnr)), {Pnr, 7, 7}));
  B->Nachsehen();
  Skript.Erwarte("Versuchte Division durch Null !\nAnzahl der Paßpunkte:  2");
  Drücke(*B, "HelmertTransformieren");
  EXPECT_TRUE(Gleich(Protokoll(), "", Stapeltext(), ""));
}

// A block that can not be calculated ends the run with its reason, and the table stays.
TEST_F(HelmertTest, NachlaufNenntDenGrund) {
  Neu("neu.kor", {{"1001", 0, 0}, {"1002", 60, 80}, {"2003", 30, 40}, {"5", 0, 75}});
  const std::string Vorher = Tabellentext();
  for (const auto& [Sätze, Grund] :
       {std::pair{"NEUESSYSTEM weg.kor\nPASSP 1001\nPASSP 1002", "Neues System nicht gefunden: weg.kor"},
        {"NEUESSYSTEM neu.kor\nPASSP 1001\nPASSP 77", "Paßpunkt 77 fehlt"},
        {"NEUESSYSTEM neu.kor\nPASSP 1001\nPASSP 2004", "Paßpunkt 2004 fehlt im neuen System"},
        {"NEUESSYSTEM neu.kor\nPASSP 1001\nKEINPASSP 2004 1001", "Paßpunkt 2004 steht zweimal"},
        {"NEUESSYSTEM neu.kor\nPASSP 1001\nKEINPASSP 2004 5", "zu wenig Paßpunkte !"},
        {"NEUESSYSTEM neu.kor\nPASSP 1001\nPASSP 1002\nPARAM FIX 2004",
         "Fixpunkt nicht in beiden Systemen vorhanden !"},
        {"PASSP 1001\nPASSP 1002", "NEUESSYSTEM"}}) {
    Schreibe(StapelDatei.Name, "M  VR 24.00 Helmert- Transformation\n" + std::string(Sätze) + "\nE Ende\n");
    Skript.Erwarte(Grund);
    EXPECT_EQ(Nachlauf(), "") << Grund;
    EXPECT_TRUE(Gleich(Stapel.Bilanz.Fehler, true, Tabellentext(), Vorher));
  }
  Schreibe(StapelDatei.Name,
           "m vr at\nneuessystem c:\\weg\\neu.kor\npassp 1001\npassp 1002\npassp 2003\ne\n");
  KorAbbilden([](const KorSpalten& S) { return S.Rechts[2] = 3500130, S.Hoch[2] = 5600240, 0; });
  Skript.Erwarte("Keine Berechnung, Passpunkte liegen auf einer Geraden");
  EXPECT_EQ(
      Anzahl(Nachlauf(), "      ****** Keine Berechnung, Passpunkte liegen auf einer Geraden ******\r\n"), 1);
}

}  // namespace
}  // namespace tavorena::test
