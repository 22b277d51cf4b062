#include "Testhilfe.h"

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/records/Stapelschreiber.h>
#include <tavorena/records/TVProtokollmodul.h>

namespace tavorena::test {
namespace {

class Stapel : public TabellenTest {
 protected:
  Stapel() {
    ProtokollLeeren();
    StapelschreiberLeeren();
    StapelleserLeeren();
    StapeldateiName = Ordner.Pfad("a.sta");
    KoordinatendateiName = "/daten/auftrag/musterdorf.kor";
    Riss = "Riss 12";
    BerNr = "3";
  }
  // A replay whose worksheet hands its block to Lesen.
  void Laufen(const std::string& Text, const std::function<void()>& Lesen) {
    StapelBlattAnmelden({"24.40", "LE"}, [=] {
      Lesen();
      if (StapelAktiv) StapelWeiter();
    });
    Schreibe(StapeldateiName, Text);
    StapelStarten(StapeldateiName);
  }
};

TEST_F(Stapel, BlockMitZeilen) {
  StapelKopfLinie("VR 24.40 Linienelemente", "1001", 0, "1002", 99.93);
  EXPECT_TRUE(StapelBlockOffen());
  for (const char* Pnr : {"2003", "2004", "2005"}) StapelPunktzeile("NR  ", Pnr);
  EXPECT_EQ(StapelSatzEntfernen(1), 0);
  StapelPunktzeile("NR  ", "2006");
  StapelEnde(true);
  Optionen.AbfrageRiss = false;
  StapelKopfLinie("VR 22.10 Entfernungskontrolle", "1", 0, "2", 0);
  StapelPunktzeile("NND ", "2", {"3", 55.5});
  StapelNeupunkt("12", "");
  StapelNeupunkt("", "");
  StapelEnde(false);
  StapelEnde(false);
  EXPECT_TRUE(GleichSoll(Inhalt(StapeldateiName), "records/soll/bloecke.sta"));
}

TEST_F(Stapel, StreichenInFremderKodierung) {
  Schreibe(StapeldateiName, "C M\xFCller\r\n");
  KoordinatendateiName = "/Süd.kor";
  StapelKopfLinie("VR 24.40 Linienelemente", "1", 0, "2", 0);
  StapelPunktzeile("NR  ", "ä1");
  StapelPunktzeile("NR  ", "ä2");
  EXPECT_EQ(StapelSatzEntfernen(0), 0);
  const std::string Ist = Inhalt(StapeldateiName);
  EXPECT_TRUE(Ist.starts_with("C M\xFCller\r\n"));
  EXPECT_TRUE(
      Ist.ends_with("PEN        2        0.0000\r\nNR        \xE4"
                    "2\r\n"))
      << Ist;
  Schreibe(StapeldateiName, Ist + "von Hand");  // somebody else's now: it is left alone
  Skript.Erwarte("Fehler 57 in Stapelmodul.StapelSatzEntfernen");
  EXPECT_EQ(StapelSatzEntfernen(0), -1);
  EXPECT_EQ(Inhalt(StapeldateiName), Ist + "von Hand");
}

TEST_F(Stapel, OhneDateiUndMitSchreibfehler) {
  StapeldateiName.clear();
  EXPECT_EQ(StapelKopfLinie("VR 24.40 Linienelemente", "1", 0, "2", 0), 0);
  EXPECT_FALSE(StapelBlockOffen());
  StapeldateiName = Ordner.Pfad("fehlt/a.sta");
  Skript.Erwarte("Fehler 57 in Stapelmodul.StapelKopf");
  EXPECT_EQ(StapelKopfLinie("VR 24.40 Linienelemente", "1", 0, "2", 0), -1);
  EXPECT_FALSE(StapelBlockOffen());
}

TEST_F(Stapel, KöpfeUndKommentare) {
  int Blöcke = 0;
  Laufen(
      "lose Zeile\r\n\r\nM VR 09.00 ohne Ende\r\nM VR 65.00 Flächen\r\nPN 1\r\nE Ende\r\nEM x\r\n"
      "m vr le\r\nC Kommentar\r\nRISS  Riss 7 b\r\npan 1 1,5\r\nCassini\r\nPEN 2\r\nNR 3 9 9\r\ne\r\n"
      "EM\r\nM 3D WINKEL\r\nE\r\nM VR 24.40 Linienelemente\r\n",
      [&] {
        ++Blöcke;
        std::string A, E, P;
        double a = 9, e = 9;
        if (Blöcke == 2) {  // the file ends inside the block
          Skript.Erwarte("Fehler aufgetreten im Stapel\n" + StapeldateiName +
                         "\nZeile: 19\nUnerwartetes Dateiende");
          EXPECT_EQ(StapelLesenPnrMitWerte(A, a, E, e), -1);
          return;
        }
        EXPECT_EQ(StapelLesenPnrMitWerte(A, a, E, e), 0);
        EXPECT_EQ(StapelLesePnr("NR", P), 0);
        EXPECT_EQ(Reihe(ProtArt, Riss, A, a, E, e, P), "vr le|Riss 7 b|1|1.5|2|0|3");
        EXPECT_EQ(StapelLesePnr("NR", P), -2);
      });
  EXPECT_EQ(Reihe(Blöcke, Stapellauf.Fehler, StapelAktiv), "2|1|0");
  EXPECT_EQ(Stapellauf.Übergangen, (std::vector<std::string>{"09.00", "65.00", "3D WINKEL"}));
}

TEST_F(Stapel, FalscherKopfUndFalscherSatzBeendenDenLauf) {
  std::string P, S;
  double w = 0;
  int Enden = 0;
  StapelSchritt = [&](const std::string& Titel) { Enden += Titel.empty() ? 1 : 0; };
  Skript.Erwarte("Zeile: 1\nModulkopf fehlerhaft");
  Laufen("M XY 24.40\r\nM VR LE\r\n", [] { FAIL(); });
  EXPECT_EQ(Enden, 1);  // a run is told to have ended once
  StapelSchritt = {};
  Laufen("E\r\nM VR LE\r\n", [] { FAIL(); });  // a lone "E" ends the run without a word
  EXPECT_FALSE(Stapellauf.Fehler);
  Laufen("M VR LE\r\nRISS x\r\nBERNR  7\r\nNEUPUNKT  12  -\r\nNEUPUNKT  0 - -\r\nNND 1 2 3,5\r\nPXN 2\r\n",
         [&] {
           EXPECT_EQ(StapelLeseRisszeilen() + StapelLeseNeupunkt(P, S), 0);
           EXPECT_EQ(Reihe(BerNr, P, S), "7|12|");
           EXPECT_EQ(StapelLeseNeupunkt(P, S), 0);
           EXPECT_EQ(P, "");
           EXPECT_EQ(StapelLeseZweiPnr("NND", P, S, w), 0);
           EXPECT_EQ(Reihe(P, S, w), "1|2|3.5");
           Skript.Erwarte("Fehler 7 beim Lesen der Stapeldatei:\nPXN 2");
           EXPECT_EQ(StapelLeseNeupunkt(P, S), -1);
         });
  EXPECT_TRUE(Stapellauf.Fehler);
}

TEST_F(Stapel, GrenzenDesLaufs) {
  StapelStarten("");
  Skript.Erwarte("Fehler 53");
  StapelStarten(Ordner.Pfad("fehlt.sta"));
  int Blöcke = 0;
  std::string Text, P;
  for (int i = 0; i < 5000; ++i) Text += "M VR LE\r\nE\r\n";
  const auto Lesen = [&] {
    ++Blöcke;
    EXPECT_EQ(StapelLesePnr("NR", P), -2);
  };
  Laufen(Text + "C\r\n", Lesen);  // 10001 lines, block after block without recursion
  Skript.Erwarte("Fehler 9 in Stapelmodul.StapelStarten");
  Laufen(Text + "C\r\nC\r\n", Lesen);
  EXPECT_EQ(Blöcke, 5000);
}

}  // namespace
}  // namespace tavorena::test
