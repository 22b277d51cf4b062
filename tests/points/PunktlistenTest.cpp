#include "Testhilfe.h"

#include <random>

#include <tavorena/core/Text.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/points/Punktlisten.h>
#include <tavorena/points/Selektion.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Seiten.h>

namespace tavorena::test {
namespace {

using Zeilengruppen = std::vector<std::vector<int>>;

// Rows in the order in which they come, equal numbers too.
class Punktlisten : public TabellenTest {
 protected:
  static void Punkt(const char* Pnr, double R, double H, double Z = 0, const char* Symbol = "") {
    EXPECT_EQ(KorAnhängen({Pnr, R, H, Z, Symbol}), 0);
  }
  static void PunkteAnlegen(std::initializer_list<std::tuple<const char*, double, double>> Neue) {
    for (const auto& [Pnr, R, H] : Neue) Punkt(Pnr, R, H);
  }
};

// The rule in its plain words: each free row gathers all rows of the table.
Zeilengruppen Abschrift(double Radius, bool MitEinzelpunkten) {
  Zeilengruppen Gruppen;
  std::vector<bool> Frei(static_cast<std::size_t>(KorAnzahl), true);
  for (std::size_t i = 0; i < Frei.size(); ++i) {
    if (!Frei[i]) continue;
    std::vector<int> Gruppe;
    for (std::size_t j = 0; j < Frei.size(); ++j) {
      if (PunktIstNah(KorRechts[i], KorHoch[i], KorRechts[j], KorHoch[j], Radius) != 0)
        Gruppe.push_back(static_cast<int>(j));
    }
    if (Gruppe.size() < (MitEinzelpunkten ? 1 : 2)) continue;
    for (const int j : Gruppe) Frei[static_cast<std::size_t>(j)] = false;
    Gruppen.push_back(Gruppe);
  }
  return Gruppen;
}

Zeilengruppen Quasi(double Radius, bool MitEinzelpunkten) {
  Zeilengruppen Gruppen;
  for (Punktgruppe& G : QuasiidentischePunkte(Radius, MitEinzelpunkten)) Gruppen.push_back(G.Zeilen);
  return Gruppen;
}

TEST_F(Punktlisten, QuasiidentischeWieAbgeschrieben) {
  std::mt19937 Zufall(7);
  for (int Lauf = 0; Lauf < 60; ++Lauf) {
    KorLeeren();
    // Clusters, lines at one distance, one spot; around 0 and in the millions.
    const double Mitte = Lauf % 3 == 0 ? 0 : Lauf % 3 == 1 ? 5600200.5 : -3500100.25;
    std::uniform_int_distribution<int> Raster(-12, 12), Höhe(0, Lauf % 4 == 0 ? 0 : 12);
    for (int i = 0; i < 150; ++i) Punkt("1", Mitte + Raster(Zufall) * 0.01, Mitte - Höhe(Zufall) * 0.01);
    Punkt("9", 1e300, -1e300);
    Punkt("9", std::numeric_limits<double>::infinity(), 0);
    for (const double fs : {0.0, 0.01, 0.025, 3.0}) {
      for (const bool Einzeln : {true, false}) {
        ASSERT_EQ(Quasi(fs, Einzeln), Abschrift(fs, Einzeln)) << Lauf << " " << fs;
      }
    }
  }
  EXPECT_TRUE(Quasi(-0.01, true).empty());
  EXPECT_TRUE(Quasi(std::nan(""), true).empty());
}

// A row that a group took stands in a later one again, but starts none.
TEST_F(Punktlisten, GruppenÜberlappen) {
  PunkteAnlegen({{"1", 0, 0}, {"2", 0.01, 0}, {"3", 0.02, 0}, {"4", 9, 9}});
  EXPECT_EQ(Quasi(0.01, true), (Zeilengruppen{{0, 1}, {1, 2}, {3}}));
  EXPECT_EQ(Quasi(0.01, false), (Zeilengruppen{{0, 1}, {1, 2}}));
}

TEST_F(Punktlisten, DoppelteAuchGetrennt) {
  PunkteAnlegen({{"7", 0, 0}, {"5", 1, 1}, {" 7", 2, 2}, {"A", 3, 3}, {"5", 4, 4}, {"7", 5, 5}});
  std::vector<int> Index;
  int Anzahl = 0;
  DoppeltePunkteSuchen(Index, Anzahl);
  EXPECT_TRUE(Gleich(Index, std::vector{0, 1, 2, 4, 5}, Anzahl, 5));
  EXPECT_EQ(Doppelgruppen(), (Zeilengruppen{{0, 2, 5}, {1, 4}}));
  std::vector<int> Plätze;
  for (const Listenzeile& L : AlleListe()) Plätze.push_back(L.Index);
  EXPECT_EQ(Plätze, (std::vector{0, 1, 2, -1, 3, 4}));
}

TEST_F(Punktlisten, Belegung) {
  PunkteAnlegen(
      {{"3", 0, 0}, {"4", 0, 0}, {"4", 0, 0}, {"007", 0, 0}, {"8A", 0, 0}, {"9", 0, 0}, {"99", 0, 0}});
  const std::vector<std::string> Soll = {
      "             1 -        2  frei       2", "             3 -        4  belegt       2",
      "             5 -        8  frei       4", "             9 -        9  belegt       1",
      "            10 -       11  frei       2"};
  EXPECT_EQ(BelegungText(Punktnummernbelegung(11, 1)).Zeilen, Soll);
  EXPECT_EQ(BelegungText(Punktnummernbelegung(9, 9)).Zeilen, std::vector{Soll[3]});
}

TEST_F(Punktlisten, ZeilenMitAbstandUndMarke) {
  Punkt("1001", 3500100, 5600200, 123.45, "015");
  Punkt("1001", 3500100.03, 5600200, 0, "20199");
  Punkt("1001", 3500100, 5600200.0300001, 123.2);
  Punkt("1001", 3500100.06, 5600200);
  Punkt("1001", 3500100.0601, 5600200);
  EXPECT_EQ(PunktlisteText(DoppelteListe(), 3).Zeilen,
            (std::vector<std::string>{
                "          1001 3500100.000 5600200.000   123.450               015 ",
                "          1001 3500100.030 5600200.000           0.030         201 ",
                "          1001 3500100.000 5600200.030   123.200 0.030 -0.250      ***W>D",
                "          1001 3500100.060 5600200.000           0.060             ***W>D",
                "          1001 3500100.060 5600200.000           0.060             ******W>D(max)"}));
  // Against the middle of the group, whose height is that of the one that has any.
  const std::vector<Listenzeile> Liste = QuasiListe(0.03, false);
  ASSERT_EQ(Liste.size(), 7);  // the second row stands in both groups
  EXPECT_TRUE(
      Gleich(Liste[0].fs, Wert(0.015), Liste[0].dh, Wert(0.0), Liste[1].dh, Wert(), Liste[2].Zeile, -1));
}

TEST_F(Punktlisten, SeitenMitKopfUndNummer) {
  for (int i = 0; i < 54; ++i) Punkt("12", 1.5, 2, 3, "015");
  const std::string Text =
      Listenseiten({"      Koordinaten", QuasiZusatz(0.01, 2), "a.kor"}, KoordinatenlisteText(2));
  const std::string Kopf =
      std::string("      Tavorena") + std::string(40, ' ') + "01.02.2003   10:15\r\n      Koordinaten\r\n" +
      "      Quasiidentische Punkte; ds >= 0.01\r\n      Koordinatendatei: a.kor\r\n\r\n" +
      "      Punktnr.     Rechts          Hoch      Hoehe   Bemerkung\r\n" +
      "                      (m)           (m)       (m)\r\n";
  const std::string Zeile = "            12         1.50         2.00       3.00  015\r\n";
  const auto Seite = [&](int Zeilen, const char* Nummer) {
    std::string Soll = Kopf;
    for (int i = 0; i < Zeilen; ++i) Soll += Zeile;
    return Soll + std::string(33, ' ') + Nummer + "\r\n\f";
  };
  EXPECT_EQ(Text, Seite(52, "- 1 -") + Seite(2, "- 2 -"));
}

TEST_F(Punktlisten, AktuelleKoordinatenAufSeiten) {
  LetzterPlan = {"Riß 7", "12"};
  for (int i = 1; i <= 101; ++i) Punkt(std::to_string(i).c_str(), 1.5, 2, 3, "015");
  const Druckseiten D = SeitenTeilen(Koordinatenseiten(2));
  ASSERT_EQ(D.Seiten.size(), 3U);
  for (int s = 0; s < 3; ++s) {
    const auto& Seite = D.Seiten[static_cast<std::size_t>(s)];
    EXPECT_EQ(Seite.size(), s < 2 ? 59U : 10U);
    EXPECT_EQ(Seite[4], "|Aktuelle Koordinaten  (Riß 7) 12" + std::string(30, ' ') + "Seite  " +
                            std::to_string(s + 1) + "|");
    EXPECT_EQ(Seite[7], "      Punktnr.     Rechts          Hoch      Hoehe   Bemerkung");
    EXPECT_EQ(Seite[9],
              RechtsBündig(std::to_string(50 * s + 1), 14) + "         1.50         2.00       3.00  015");
  }
  LetzterPlan = {};
}

TEST_F(Punktlisten, Selektion) {
  const std::string Sel = Ordner.Pfad("a.sel");
  std::vector<std::string> Nummern;
  Schreibe(Sel, " 8A \n\n3,5\nfehlt\n8A\n9 9\nM\xE4rz");  // in Windows-1252
  EXPECT_EQ(SelektionLesen(Sel, Nummern), 0);
  int Fremde = 0;
  EXPECT_EQ(SelektionZeilen(Nummern, {"1", "8A", "3.5", " 8A", "März"}, Fremde), (std::vector{1, 2, 3, 4}));
  EXPECT_EQ(Fremde, 2);
  EXPECT_EQ(SelektionSchreiben(Sel, Nummern), 0);
  EXPECT_EQ(Inhalt(Sel), "8A\r\n3,5\r\nfehlt\r\n9 9\r\nMärz\r\n");
  for (const char* Name : {"", "nicht/da.sel"}) {
    Skript.Erwarte(*Name == '\0' ? "Fehler 70" : "Fehler 76");
    EXPECT_EQ(SelektionSchreiben(Ordner.Pfad(Name), Nummern), -1);
    Skript.Erwarte(*Name == '\0' ? "Fehler 70" : "Fehler 53");
    EXPECT_EQ(SelektionLesen(Ordner.Pfad(Name), Nummern), -1);
  }
}

}  // namespace
}  // namespace tavorena::test
