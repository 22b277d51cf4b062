#include "Testhilfe.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/core/Zeichensatz.h>
#include <tavorena/exchange/Formattafel.h>
#include <tavorena/exchange/Freiformat.h>

namespace tavorena::test {
namespace {

class Textformate : public TabellenTest {
 protected:
  Textformate() {
    FormateAnmelden();
    LetztesFreiformat = {};
  }
  // The points of a file, "number|Rechts|Hoch|Höhe|symbol " each, and what was passed over.
  std::string Lies(Punktformat Format, const std::string& Bytes, const char* Name = "a.txt") {
    const std::string Datei = Ordner.Pfad(Name);
    Schreibe(Datei, Bytes);
    Lesebericht B;
    if (KorLesen(Datei, Lesemodus::Ersetzen, Format, {}, {}, &B) < 0) return "-1";
    std::string Text;
    for (int z = 0; z < KorAnzahl; ++z) {
      const KorSatz S = KorPunkt(z);
      Text.append(S.Pnr).append("|" + ZahlFormat(S.Rechts, -1, 2) + "|" + ZahlFormat(S.Hoch, -1, 2) + "|");
      Text.append(ZahlFormat(S.Hoehe, -1, 2) + "|").append(S.Symbol).append(" ");
    }
    return Text + std::to_string(B.Übergangen) + "," + std::to_string(B.ErsteÜbergangene);
  }
  static std::string Text(Punktformat Format) {
    std::string T;
    EXPECT_EQ(KorText(Format, 2, T), 0);
    return T;
  }
  static Freiformat Frei(const char* Angabe) {
    Freiformat F;
    std::string Grund;
    EXPECT_EQ(FreiformatLesen(Angabe, F, Grund), 0) << Grund;
    return F;
  }
};

TEST_F(Textformate, LiestJedeZeilenform) {
  using P = Punktformat;
  const struct {
    P Format;
    const char *Bytes, *Soll;
  } Fälle[] = {
      {P::Lfs, "  7\t3500.5   5600,25 12.5 015\n", "1,1"},  // between tabs the coordinates are one field
      {P::Lfs, " 7  3500.5 \t5600,25\n\n8 1 2\n", "8|1.00|2.00|0.00| 1,1"},
      {P::Lfs,
       "Nr Rechts Hoch\r\n12A +3500.5 5600,25 12,5 015 Rest\r\n13 3500 56oo\r\n14 1e3 5\r\n15 1.2.3 4\r\n",
       "12A|3500.50|5600.25|12.50|015 4,1"},
      {P::Lfs, "7;3500.5;5600.25;;015\r8;;5600;1;1\r9;1;2;x;Alt er;y",
       "7|3500.50|5600.25|0.00|015 9|1.00|2.00|0.00|Alt er 1,2"},
      {P::Coo, "7 1 2 3 GP", "7|1.00|2.00|3.00|GP 0,0"},
      {P::GeoMap, "7\t015\t1\t2\t3\n8\t\t4\t5", "7|1.00|2.00|3.00|015 8|4.00|5.00|0.00| 0,0"},
      {P::Geograf, "7,015,1.5,2.5,3\n8,,4,5\n9 015 1 2",
       "7|1.50|2.50|3.00|015 8|4.00|5.00|0.00| 9|1.00|2.00|0.00|015 0,0"},
      {P::Geograf, "7;015;1,5;2,5;3", "7|1.50|2.50|3.00|015 0,0"},
      {P::Gsi,
       "110001+00001001 81..00+03500100 82..00+05600200 83..00+00012500 71....+00000015 \r\n"
       "410003+00000060 42....+00000900 \r\n110002+00000A B 81..00+00000500 82..00+00000600 \r\n"
       "110004+00001002 81..00+00000500 \r\n",
       "A_B|0.50|0.60|0.00| 1001|3500.10|5600.20|12.50|15 2,2"},
  };
  for (const auto& F : Fälle) {
    SCOPED_TRACE(F.Bytes);
    EXPECT_EQ(Lies(F.Format, F.Bytes), F.Soll);
  }
  EXPECT_EQ(Lies(P::Gsi, "Nr 1 RW 3500100.12 HW 5600200.5\r\n", "a.gre"),
            "1|3500100.12|5600200.50|0.00| 0,0");
}

// What is written is read back as it was: the list of an office as KOR would give it.
TEST_F(Textformate, SchreibtUndLiestZurück) {
  using P = Punktformat;
  Punkt("12A", 3500100.5, 5600200.25, 12.5, "015");
  Punkt("1001", -500.25, 32477000.12, 0, "");
  EXPECT_EQ(Text(P::Lfs),
            "     12A 3500100.50 5600200.25      12.50 015\r\n"
            "    1001    -500.25 *******.**       0.00\r\n");
  EXPECT_EQ(Text(P::GeografAus), "12A,015,3500100.50,5600200.25,12.50\r\n1001,,-500.25,*******.**,0.00\r\n");
  EXPECT_EQ(Text(P::Höhenliste), "     12A     12.5000  015\r\n");
  EXPECT_TRUE(Text(P::GsiOhneHöhe)
                  .ends_with("*110002+0000000000001001 81...0-0000000000500250 82...0+0000032477000120\r\n"));
  EXPECT_EQ(KorZeileSetzen(1, {"1001", -500.25, 5600000.12, 0, ""}), 0);
  const std::string Soll = "12A|3500100.50|5600200.25|12.50|015 1001|-500.25|5600000.12|0.00| 0,0";
  const auto Frei = [](const char* Angabe) { LetztesFreiformat = Textformate::Frei(Angabe); };
  EXPECT_EQ(Lies(P::Lfs, Text(P::Lfs)), Soll);
  EXPECT_EQ(Lies(P::Geograf, Text(P::GeografAus)), Soll);
  for (const char* Angabe : {"pnr=1 rechts=2 hoch=3 hoehe=4 symbol=5",
                             "trenner=tab symbol=1 hoch=2 rechts=4 hoehe=5 pnr=6 zeilen=3",
                             "trenner=, pnr=1 rechts=2 hoch=3 symbol=4 hoehe=7",
                             "symbol=1-3 pnr=4-8 hoch=9-18 rechts=21-30 hoehe=31-40"}) {
    SCOPED_TRACE(Angabe);
    Frei(Angabe);
    EXPECT_EQ(FreiformatEinwand(LetztesFreiformat, true).Text, "");
    EXPECT_EQ(Lies(P::Frei, Text(P::Frei)), Soll);
  }
  Frei("pnr=1-2 rechts=3-12 hoch=13-22");
  EXPECT_EQ(Text(P::Frei), "**3500100.505600200.25\r\n**   -500.255600000.12\r\n");
  EXPECT_EQ(Lies(P::Frei, Text(P::Frei)), "2,1");  // stars are no number
}

TEST_F(Textformate, FreieDefinition) {
  using P = Punktformat;
  LetztesFreiformat = Frei("trenner=; pnr=2 rechts=3 hoch=4 symbol=1 zeilen=1 zeichensatz=850");
  EXPECT_EQ(Lies(P::Frei, "Kopf;1;1;1\r\n\x99;\"7;8\";1,5;2.5\r\nx;9;;1\r\n"), "7;8|1.50|2.50|0.00|Ö 1,3");
  LetztesFreiformat = Frei("pnr=1 rechts=2 hoch=3 zeichensatz=utf8");
  Skript.Erwarte("nicht in UTF-8 geschrieben", 1);
  EXPECT_EQ(Lies(P::Frei, "\x99 1 2"), "-1");
  Freiformat F;
  std::string Grund;
  for (const char* Angabe :
       {"", "pnr=1 rechts=2", "pnr=1 rechts=2 hoch=3-9", "trenner=; pnr=1-2 rechts=3-9 hoch=10-12",
        "pnr=0 rechts=2 hoch=3", "pnr=9-1 rechts=2-3 hoch=4-5", "pnr=1000 rechts=2 hoch=3",
        "trenner=: pnr=1 rechts=2 hoch=3", "pnr=1 rechts=2 hoch=3 zeilen=-1", "pnr"}) {
    EXPECT_EQ(FreiformatLesen(Angabe, F, Grund), -1) << Angabe;
    EXPECT_TRUE(!Grund.empty() && F == Freiformat{}) << Angabe;
  }
  // What could not be read back is not written.
  for (const char* Angabe : {"pnr=1 rechts=2 hoch=3 hoehe=3", "pnr=1 rechts=2 hoch=4",
                             "symbol=1 pnr=2 rechts=3 hoch=4", "pnr=1-8 rechts=8-20 hoch=21-30"}) {
    EXPECT_NE(FreiformatEinwand(Frei(Angabe), true).Text, "") << Angabe;
  }
  const Freiformat S = Frei("pnr=1-4 rechts=5-8 hoch=9-12");
  EXPECT_TRUE(Gleich(FreispalteZerschneidet("  1235001234", S, FreiPnr), false,
                     FreispalteZerschneidet("  12350012345", S, FreiHoch), true));
}

TEST_F(Textformate, Zeichensätze) {
  const std::string Alle = "aß─€Ω";
  EXPECT_TRUE(Gleich(NachZeichensatz("aß", Zeichensatz::Utf8MitBom),
                     "\xEF\xBB\xBF"
                     "aß",
                     NachZeichensatz(Alle, Zeichensatz::Dos850), "a\xE1\xC4??",
                     NachZeichensatz(Alle, Zeichensatz::Windows1252), "a\xDF?\x80?",
                     ZeichenOhnePlatz(Alle, Zeichensatz::Dos850), "€",
                     ZeichenOhnePlatz(Alle, Zeichensatz::Windows1252), "─",
                     ZeichenOhnePlatz(Alle, Zeichensatz::Utf8), ""));
  std::string Text = "a\xE1\xC4";
  EXPECT_TRUE(Gleich(AusZeichensatz(Text, Zeichensatz::Dos850), 0, Text, "aß─"));
}

}  // namespace
}  // namespace tavorena::test
