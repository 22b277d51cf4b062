#include "Aktentest.h"

#include <tavorena/rawdata/Nivrechnung.h>
#include <tavorena/rawdata/Nivrohdaten.h>

namespace tavorena::test {
namespace {

class Nivdatei : public Aktentest {
 protected:
  // A file through the converter, as the text of its field book, its heights and what is told.
  std::string Umgewandelt(const char* Endung, const std::string& Text) {
    const std::string Quelle = Ordner.Pfad(std::string("a.") + Endung), Ziel = Ordner.Pfad("b.niv");
    Schreibe(Quelle, Text);
    fs::remove(Ziel);
    fs::remove(NivHöhenliste(Ziel));
    Nivfund F;
    std::string Grund;
    if (NivellementAusRohdaten(Quelle, Ziel, Rohform::NachEndung, F, &Grund) < 0) return Grund;
    std::string Alles = Inhalt(Ziel);
    Alles.erase(0, Alles.find('\n') + 1);
    if (DateiVorhanden(NivHöhenliste(Ziel))) Alles += "HLI\r\n" + Inhalt(NivHöhenliste(Ziel));
    for (const std::string& H : F.Hinweise) Alles += H + "\r\n";
    return Alles;
  }
};

TEST_F(Nivdatei, AblesungenEinesDigitalnivelliers) {
  // Backsight, foresight, second foresight, second backsight; a point beside the line; the next set-up; a
  // second line of a new job; another order; a reading that is no number.
  EXPECT_EQ(
      Umgewandelt("gsi",
                  "410001+?......2\r\n110002+00000A10 83..18+18230000\r\n110003+00000A10 32...8+02530000 "
                  "331.28+00123450\r\n"
                  "110004+00000001 32...8+02520000 332.28+00098765\r\n110005+00000001 32...8+02540000 "
                  "336.28+00098965\r\n"
                  "110006+00000A10 32...8+02530000 335.28+00123456\r\n110007+00009001 32...8+01000000 "
                  "333.28+00250000\r\n"
                  "110008+00000001 83..18+18254580\r\n*110009+0000000000000001 331.08+0000000000150000\r\n"
                  "*110010+0000000000000002 332.08+0000000000160000\r\n110011+00000003 31...0+00012000 "
                  "33...0+00001234\r\n"
                  "410012+?......2\r\n110013+00000002 332.06+00015000\r\n110014+00000001 331.06+00014000\r\n"
                  "110015+00000009 331.08+0014A000\r\n"),
      "     A10    1.23453          -          -    25.3000          -\r\n"
      "    9001          -    2.50000          -          -          -\r\n"
      "       1    1.50000          -    0.98865          -    25.3000\r\n"
      "       2          -          -    1.60000          -          -\r\n"
      "NIV \r\n"
      "       1    1.40000          -          -          -          -\r\n"
      "       2          -          -    1.50000          -          -\r\n"
      "HLI\r\n     A10    182.3000\r\n       1    182.5458\r\n"
      "Zeile 5: zweiter Vorblick zu 1 weicht 2.00 mm ab\r\n"
      "Zeile 15: nicht verstanden: 110015+00000009 331.08+0014A000\r\n");
  EXPECT_EQ(
      Umgewandelt(
          "gre",
          "NR 5 HD 25.3 HO_RB 1.2345\r\n NR 9 HO_ZB 2.5\r\nNR 6 HO_VB 0.98\r\nNR 7 SD 12 DH 1.5 HO 99\r\n"
          "NR 7 HO_VB 1\r\n"),
      "       5    1.23450          -          -    25.3000          -\r\n"
      "       9          -    2.50000          -          -          -\r\n"
      "       6          -          -    0.98000          -          -\r\n"
      "       7          -          -    1.00000          -          -\r\n"
      "HLI\r\n       7     99.0000\r\nZeile 5: davor fehlt ein Rückblick\r\n");
  EXPECT_EQ(Umgewandelt("gsi", "110003+00000A10 31...0+00012000 33...0+00001234\r\n"),
            "keine Ablesung eines Nivelliers");
}

// Neither the field book nor a list of heights that is there is lost.
TEST_F(Nivdatei, VorhandenesBleibt) {
  Schreibe(Ordner.Pfad("a.gsi"), "110002+00000010 83..18+18230000\r\n110003+00000010 331.28+00123450\r\n");
  Nivfund F;
  std::string Grund;
  const auto Ergebnis = [&](bool Ersetzen) {
    return NivellementAusRohdaten(Ordner.Pfad("a.gsi"), Ordner.Pfad("b.niv"), Rohform::GSI, F, &Grund,
                                  Ersetzen);
  };
  EXPECT_EQ(Ergebnis(false), 0);
  EXPECT_EQ(Ergebnis(false), -1);
  EXPECT_EQ(Ergebnis(true), 0);
  Schreibe(Ordner.Pfad("b.hli"), "10 182.3\r\n");
  EXPECT_EQ(Ergebnis(true), -1);
  EXPECT_EQ(Grund, "daneben steht eine andere Höhenliste");
  EXPECT_EQ(Inhalt(Ordner.Pfad("b.hli")), "10 182.3\r\n");
}

// Written and read again a field book is the same; a line that can not be read refuses it and is named.
TEST_F(Nivdatei, LesenUndSchreiben) {
  const std::string Datei = Ordner.Pfad("a.niv");
  const std::string Text =
      "101 1,5 - - 20 - am Tor\nC x\n\n102 1.25 - 0,75\r\n7 - 2\n103 - - 1\nNIV Rück\n103 1\n101 - - 1.5\n";
  Schreibe(Datei, Text);
  std::vector<Nivlinie> Linien, Wieder;
  ASSERT_EQ(NivDateiLesen(Datei, Linien), 0);
  Schreibe(Ordner.Pfad("b.niv"), NivText(Linien));
  ASSERT_EQ(NivDateiLesen(Ordner.Pfad("b.niv"), Wieder), 0);
  EXPECT_EQ(NivText(Wieder), NivText(Linien));
  const std::vector<Nivzeile> Zeilen = NivZeilen(Linien);
  EXPECT_TRUE(Gleich(Zeilen.size(), 6U, Zeilen[0].Bemerkung, "am Tor", Zeilen[4].Bemerkung, "Rück",
                     Zeilen[1].V, 0.75));
  int Anzahl = 0;
  EXPECT_EQ(DatSchreiben(Ordner.Pfad("a.dat"), Zeilen, Anzahl), 0);
  EXPECT_EQ(Inhalt(Ordner.Pfad("a.dat")),
            "     101       102     0.75000         \r\n     102       103     0.25000         \r\n"
            "     103       101    -0.50000         \r\n");
  for (const char* Falsch : {"104 1 - x", "104 1 - 1e9", "- 1", "104 nan"}) {
    Schreibe(Datei, Text + Falsch);
    Skript.Erwarte("a.niv\nZeile 10 ist nicht zu lesen:\n" + std::string(Falsch));
    EXPECT_EQ(NivDateiLesen(Datei, Linien), -1) << Falsch;
  }
  EXPECT_EQ(Linien.size(), 2U);
}

TEST_F(Nivdatei, Höhenlisten) {
  const std::string Datei = Ordner.Pfad("a.hli");
  Schreibe(Ordner.Pfad("a.lt5"), "Netz Musterdorf\n  101  H  3456.1 5612.2  182,3051 +\n102 182.4\n");
  int Anzahl = 0, Andere = 0;
  ASSERT_EQ(HöhenlisteAusLT5(Ordner.Pfad("a.lt5"), Datei, Anzahl, Andere), 0);
  EXPECT_EQ(Inhalt(Datei), "     101    182.3051\r\n     102    182.4000\r\n");
  EXPECT_TRUE(Anzahl == 2 && Andere == 1);
  Schreibe(Datei, "Liste\n101 182,3 alter Stein\n102 -1\n");
  ASSERT_EQ(HöhenlisteAddieren(Datei, -0.5, Anzahl), 0);
  EXPECT_EQ(Inhalt(Datei), "Liste\r\n     101    181.8000  alter Stein\r\n     102     -1.5000\r\n");
  Niveingabe E{{{"1", 5}, {"1", 6}}, {{"2"}, {"1"}}};
  Nivrechnung R;
  const Nivmangel M = NivRechnen(E, R);
  EXPECT_TRUE(M.Fehler == NivellementFestVerschieden && M.Zeile == 1);
}

}  // namespace
}  // namespace tavorena::test
