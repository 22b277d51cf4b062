#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Text.h>

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

}  // namespace
}  // namespace tavorena::test
