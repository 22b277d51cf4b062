#include "Blattest.h"
#include "Mitschrift.h"

#include <tavorena/core/Text.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

// Six points beside a line of slope 3/4, whose feet are seen by 3-4-5, and the circle of the SciPy Cookbook
// (Least squares circle).
class Ausgleichblatt : public Blatttest {
 protected:
  Ausgleichblatt() {
    const double SR[] = {0, 0, 8, 8, 4, 4}, SH[] = {-1, 1, 7, 5, 6.9, -0.9};
    const double KR[] = {9, 35, -13, 10, 23, 0}, KH[] = {34, 10, 6, -14, 27, -10};
    for (int i = 0; i < 6; ++i) {
      Punkt(std::to_string(11 + i).c_str(), 3500000 + SR[i], 5600000 + SH[i], 0, "015");
      Punkt(std::to_string(21 + i).c_str(), 3500000 + KR[i], 5600000 + KH[i]);
    }
  }
  static std::unique_ptr<Formular> Öffnen(const char* Menü) {
    const Blattart* Art = BlattartVonMenü(Menü);
    auto B = Art->Neu(*Art);
    B->Öffnen();
    return B;
  }
  std::string Status() const { return Trimmen(Skript.Status[4]); }
};

TEST_F(Ausgleichblatt, GeradeUndKreisSchreibenIhreDateien) {
  auto B = Öffnen("MenüKatasterAusglGerade");
  const Gitter& G = Gitterfeld(*B);
  Tippe(*B, "AusgleichGitter", "11\n");
  EXPECT_EQ(Gitterzeile(G, 0), (Texte{"11", "3500000.000", "5599999.000", "", "", "015"}));
  EXPECT_EQ(Drücke(*B, "AusgleichNeupErz"), "AusgleichGitter");
  EXPECT_EQ(Status(), "Zeile 2: Punktnummer fehlt");
  EXPECT_EQ(Tippe(*B, "AusgleichGitter", "12\n13\n14\n15\n16\n\n"), "AusgleichAnfPnr");
  EXPECT_TRUE(
      Gleich(Text(*B, "AusgleichAnfRechts"), "3499999.520", Text(*B, "AusgleichEndHoch"), "5600006.360"));
  EXPECT_EQ(Gitterzeile(G, 0), (Texte{"11", "3500000.000", "5599999.000", "0.000", "0.800", "015"}));
  EXPECT_EQ(Tippe(*B, "AusgleichAnfPnr", "12\n"), "AusgleichAnfPnr");
  EXPECT_EQ(Status(), "Punkt 12 steht in der Liste");
  EXPECT_EQ(Tippe(*B, "AusgleichAnfPnr", "31\n020\n\n\n"), "AusgleichNeupErz");
  const int Vorher = KorAnzahl;
  Drücke(*B, "AusgleichNeupErz");
  EXPECT_TRUE(
      Gleich(Status(), "Ausgleichende Gerade wird im Stapel nicht wiederholt", KorAnzahl, Vorher + 1));
  const std::string Dru = Protokoll();
  Drücke(*B, "AusgleichNeupErz");
  EXPECT_EQ(Protokoll(), Dru);
  B->SchließenVerlangen();
  auto K = Öffnen("MenüBearbeitenAusgleichendeKreis");
  Tippe(*K, "AusgleichGitter", "21\n22\n23\n24\n25\n26\n");
  EXPECT_TRUE(Gleich(Text(*K, "AusgleichRadius"), "23.160", Text(*K, "AusgleichEndHoch"), "5600032.866"));
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) {
    return Konfliktantwort{Konfliktwort::NeuenNeunum, "42"};
  };
  Tippe(*K, "AusgleichAnfPnr", "41\n\n1001\n\n");
  Drücke(*K, "AusgleichNeupErz");
  EXPECT_EQ(Text(*K, "AusgleichEndPnr"), "42");
  K->SchließenVerlangen();
  EXPECT_TRUE(GleichSoll(Protokoll(), "worksheets/soll/ausgleich.dru"));
  EXPECT_TRUE(GleichSoll(Stapeltext(), "worksheets/soll/ausgleich.sta"));
}

// A list that is full refuses the next row where it is typed.
TEST_F(Ausgleichblatt, GrenzenUndGrafik) {
  GrafikLeeren();
  GrafikFenster = {};
  GrafikÖffnen(9000, 9000);
  const auto Marken = [](const char* Stück) {
    int n = 0;
    for (const std::string& Z : Gezeichnet()) n += Z.starts_with(Stück) ? 1 : 0;
    return n;
  };
  auto K = Öffnen("MenüKatasterAusglKreis");
  Gitter& G = Gitterfeld(*K);
  Tippe(*K, "AusgleichGitter", "21\n22\n23\n");
  EXPECT_TRUE(Gleich(Marken("Breiter Bogen"), 1, Marken("Scheibe"), 3));
  K->ZelleWechseln(G, 2, 0);
  Tippe(*K, "AusgleichGitter", "21\n");  // two of three are the same
  EXPECT_TRUE(Gleich(Marken("Breiter Bogen"), 0, Text(*K, "AusgleichRadius"), "", Status(),
                     "Zeile 1: Die Punkte liegen auf keinem Kreis"));
  for (int i = 3; i < 201; ++i) Tippe(*K, "AusgleichGitter", "22\n");
  EXPECT_EQ(G.Zeilen(), 202);
  Tippe(*K, "AusgleichGitter", "22\n");
  EXPECT_TRUE(Gleich(Status(), "Höchstens 201 Punkte in einem Kreis", G.Fehlerhaft, true, G.Zeilen(), 202));
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfJa);
  K->SchließenVerlangen();
  EXPECT_EQ(Marken("Scheibe"), 0);
}

TEST_F(Ausgleichblatt, FehlerImGitterNenntSichUndLäßtDieZeilen) {
  auto B = Öffnen("MenüKatasterAusglGerade");
  Tippe(*B, "AusgleichGitter", "11\n12\n");
  Haken.FormEinzelKorein = [](Wert&) -> int { throw std::bad_alloc(); };
  const std::string Rat = " ! Bitte Linienelemente- Formular verlassen und neu aufrufen";
  Skript.Erwarte("Interner Fehler in 'AusgleichGitterInkrement'" + Rat);
  Tippe(*B, "AusgleichGitter", "99\n");
  Skript.Erwarte("Interner Fehler in 'AusgleichGitter_KeyDown'" + Rat);
  B->TasteDrücken(Taste::Auf);
  EXPECT_TRUE(Gleich(Gitterfeld(*B).Zeilen(), 3, Gitterzeile(Gitterfeld(*B), 1)[0], "12"));
}

}  // namespace
}  // namespace tavorena::test
