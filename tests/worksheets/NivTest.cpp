#include "Blattest.h"

#include <tavorena/core/Text.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

class Nivtest : public Blatttest {
 protected:
  // Types into a cell and leaves it.
  void Zelle(int z, int s, const char* Text) {
    B->FokusSetzen(G);
    B->ZelleWechseln(G, z, s);
    B->Tippen(G, Text);
    B->ZelleWechseln(G, z, 0);
  }
  std::string Status() const { return Trimmen(Skript.Status[4]); }
  std::string Höhe(int z) const { return G.Inhalt(z, 6) + G.Inhalt(z, 7); }

  std::unique_ptr<Formular> B = Öffne("NI");
  Gitter& G = Gitterfeld(*B);
};

TEST_F(Nivtest, LinieAusDateiSchreibtIhreDateien) {
  Schreibe(Ordner.Pfad("a.niv"),
           "C Musterdorf\r\n101 1,2345 - - 25.3\r\n9001 - 2.5\r\n1001 1.5 - 0.98765 30 25,2 Bolzen 3\r\n"
           "102 - - 1.6 - 30\r\nNIV Ost\r\n102 1.1 - - 20\r\n2003 - - 1.2 - 20\r\n2003 1,4\r\n");
  Schreibe(Ordner.Pfad("f.hli"), "     101   182.3000  TP\r\n     102   182.4489\r\n     999     1.0000\r\n");
  Tippe(*B, "NivHöhenDatei", Ordner.Pfad("f") + "\n");
  EXPECT_EQ(Status(), "3 Höhen gelesen");
  Skript.Dateien = {Ordner.Pfad("a.niv")};
  Drücke(*B, "NivAusDatei");
  EXPECT_EQ(Gitterzeile(G, 2), (Texte{"1001", "1.50000", "", "0.98765", "30.000", "25.200", "", "182.5478",
                                      "0.0009", "Bolzen 3"}));
  EXPECT_TRUE(Gleich(Höhe(0), "*182.3000", Höhe(1), "181.0345", Höhe(5), "182.3489", G.Inhalt(4, 9), "Ost"));
  EXPECT_EQ(Höhe(6), "182.3489");
  Drücke(*B, "NivRechnen");
  EXPECT_EQ(Status(), "Zeile 7: Vorblick fehlt danach");
  Drücke(*B, "NivGitterDelete");
  Drücke(*B, "NivRechnen");
  // All heights go to the list.
  Skript.Erwarte("Höhen in die Punkttabelle übernehmen ?", KnopfNein);
  Skript.Dateien = {Ordner.Pfad("b.hli")};
  Drücke(*B, "NivÜbernehmen");
  EXPECT_EQ(Inhalt(Ordner.Pfad("b.hli")),
            "     101    182.3000\r\n    9001    181.0345\r\n    1001    182.5478  Bolzen 3\r\n"
            "     102    182.4489  Ost\r\n    2003    182.3489\r\n");
  Drücke(*B, "NivEnd");
  PrüfeDateien("nivellement", 6);
}

// A turning point whose backsight is typed ahead of its foresight is no begin of a line without sights.
TEST_F(Nivtest, WährendDesTippensKeinMangel) {
  Tippe(*B, "NivGitter", "1001\n1,5\n\n\n\n\nx\n\n\n2003\n1,25\n");
  EXPECT_EQ(Status().find("Vorblick"), std::string::npos) << Status();
  Tippe(*B, "NivGitter", "\n1,1\n");
  EXPECT_EQ(Höhe(1), "12.9000");
}

// A height is known by a tick, which takes that of the table, or because it is typed; without them it follows
// the readings.
TEST_F(Nivtest, FestOderGerechnet) {
  Tippe(*B, "NivGitter",
        "1001\n1,5\n\n\n\n\n\n\n\n2003\n\n\n1,25\n\n\n\n\n\n2003\n1\n\n\n\n\n\n\n\n77\n\n\n1,2\n\n\n\n\n\n");
  EXPECT_EQ(Höhe(0) + Höhe(1), "");
  Zelle(0, 6, "j");
  EXPECT_TRUE(Gleich(Höhe(0), "*12.5000", Höhe(1), "12.7500", Höhe(3), "12.5500"));
  Zelle(1, 7, "");  // a result that is emptied comes back, and so does one that is typed as it stands
  Zelle(1, 7, "12,75");
  EXPECT_EQ(Höhe(1), "12.7500");
  Zelle(3, 6, "x");
  EXPECT_EQ(Status(), "Keine Höhe von 77 in Liste und Tabelle: in der Spalte Höhe tippen");
  EXPECT_EQ(Höhe(3), "12.5500");
  Zelle(3, 7, "12,56");
  EXPECT_TRUE(Gleich(Höhe(3), "*12.5600", G.Inhalt(3, 8), "", Text(*B, "NivFH"), ""));
  EXPECT_EQ(Höhe(1) + " " + Höhe(2), "12.7500 12.7600");  // each line from its own point
  Zelle(2, 7, "12,77");
  EXPECT_TRUE(Gleich(Höhe(1), "12.7700", G.Inhalt(1, 8), "0.0200", Text(*B, "NivFH"), "0.0200"));
  Zelle(2, 6, "");
  Zelle(0, 7, "");
  EXPECT_EQ(Höhe(0) + " " + Höhe(1), "12.5100 12.7600");
  Zelle(0, 7, "12,6");
  B->FokusSetzen(G);
  B->ZelleWechseln(G, 0, 7);
  B->Tippen(G, "99");
  B->TasteDrücken(Taste::Escape);
  EXPECT_EQ(Höhe(0), "*12.6000");
  // Only points of the table that are not known take a height, and it can be taken back.
  Skript.Erwarte("Höhen in die Punkttabelle übernehmen ?", KnopfJa);
  Skript.Dateien = {""};
  Drücke(*B, "NivÜbernehmen");
  EXPECT_TRUE(Gleich(KorHoehe[0], 12.5, KorHoehe[2], 12.805, KorAnzahl, 5));
  EXPECT_TRUE(B->RücknahmeVerlangen() && KorHoehe[2] == 0);
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfJa);
  B->SchließenVerlangen();
}

}  // namespace
}  // namespace tavorena::test
