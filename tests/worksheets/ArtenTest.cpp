#include "Blattest.h"

#include <tavorena/calc/Lage.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/points/Ruecknahme.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {
namespace {

// What is typed into a worksheet, from which field on, and the button that writes it, if there is one.
struct Auftrag {
  const char *Kennung, *Feld, *Tasten, *Knopf = "", *Frage = "";
};
const Auftrag Aufträge[] = {
    {"24.40", "LinelAnfPnr", "1001\n1002\n0\n99,93\n2003\n2004\n"},
    {"08.40", "PolelAnfPnr", "1001\n1002\n12,5\n99.98\n2003\n2004\n"},
    {"22.10", "DisAnfPnr", "1001\n1002\n99,8\n2005\n100\n"},
    {"22.00", "OrthoAnfPnr", "1001\n1002\n0\n99,93\n3001\n145\n-45\n015\n3002\n30,1234\n5\n\n"},
    {"19.70", "PolarAnfPnr", "1001\n1002\n12,5\n99,98\n3001\n80,25\n98,4\n70\n015\n3002\n312,7\n0\n255\n\n"},
    {"09.00", "IntllG1_AnfPnr",
     "1001\n1002\n2,5\n\n\n2003\n2005\n\n\n2004\n3001\n015\n1001\n1002\n\n\n\n2003\n"
     "2005\n\n\n\n3002\n\n"},
    {"09.40", "IntblK1_MittPnr",
     "1001\n2004\n\n\n2003\n2005\n\n\n\n3001\n015\n3002\n020\n1001\n2004\n\n\n1001\n1002\n75\n\n\n3003\n\n"},
    {"23.10", "IntbbK1_MittPnr", "1001\n\n80\n0,5\n1002\n2003\n\n\n3001\n015\n3002\n\n"},
    {"09.50", "Kmitt_Pnr1", "1001\n2003\n2005\n3001\n015\n1001\n2004\n2005\n3002\n\n"},
    {"19.10", "PolygonZugNr",
     "Zug "
     "7\n2003\n1001\n127,5291\n30\n3001\n267,1799\n27,713\n015\n3002\n141,3728\n30\n\n\n1002\n171\n2005\n",
     "PolygonErzeugen"},
    {"19.50", "FstatStandPnr",
     "3001\n015\n1,55\n1,6\n1001\n191,4102\n97,9169\n41,2646\n\n1002\n290,4495\n98,6468\n91,7443\n\n"
     "2003\n260,5\n100,6238\n40,8211\n\n\n\n\n3002\n35,2217\n97,7976\n49,8716\n\n020\n3003\n"
     "3003\n21,97\n100,1788\n53,4064\n\n\n\n\n\n"},
    {"10.00", "VorwFernPnr1",
     "2004\n10\n1001\n39,5167\n98,5\n2005\n0\n1002\n45,6\n101,25\n3001\n015\n"
     "2004\n0\n1001\n41\n\n2005\n0\n1002\n2,1\n\n3002\n\n"},
    {"11.00", "Rueck_Pnr1", "2003\n0\n1002\n11,5\n2005\n31,1\n3001\n\n1001\n0\n1002\n4\n2005\n7\n3002\n7\n"},
    {"3D RAUMSTRECKE", "DreiD_Pnr1", "1001\n1002\n1002\n1001\n"},
    {"3D MITTE", "DreiD_Pnr1", "1001\n1002\n3001\n2003\n2004\n3002\n"},
    {"3D SCHWERPUNKT", "DreiD_Pnr1", "1001\n1002\n2003\n3001\n"},
    {"3D LOTABSTAND", "DreiD_Pnr1", "1001\n1002\n2003\n3001\n1001\n1002\n2004\n\n"},
    {"3D KANALMEßSTAB", "DreiD_Pnr1", "1001\n1002\n0,85\n3001\n1001\n1002\n-1,12345\n3002\n"},
    {"3D WINKEL", "DreiD_Pnr1", "1001\n1002\n2003\n"},
    {"24.00", "HelmertDatei", "neu\n\n", "HelmertTransformieren", "Alle Koordinaten"},
    {"24.30", "HelmertDatei", "neu\n\n", "HelmertTransformieren", "Alle Koordinaten"},
    {"NI.00", "NivGitter",
     "1001\n1,23456\n\n\n25,3\n\nx\n\nam "
     "Kirchhof\n9001\n\n2,5\n\n\n\n\n\n\n1002\n1,5\n\n0,98765\n30\n25,2\n\n\n\n"
     "2003\n\n\n1,2\n\n30,1\n\n13,04\n\n2003\n1\n\n\n\n\n\n\n\n1001\n\n\n1,545\n\n\n\n\n\n",
     "NivRechnen"},
    {"65.00", "AreaName", "N\nB\n1001\n-80\n103,2\n1002\n70g\n\n2003\n\n42,4\n2004\n1\n\n", "AreaSchreiben"},
};

// Kind, decimals, warning level.
using Lauf = std::tuple<Auftrag, int, int>;
class Artentest : public Blatttest, public testing::WithParamInterface<Lauf> {};

// Recorded and replayed on the same points, with any number of decimals: the same protocol, to the byte, and
// a batch file that does not depend on what is shown.
TEST_P(Artentest, NachlaufGleichtDerAufzeichnung) {
  const auto& [A, Nachkomma, Warnstufe] = GetParam();
  Optionen.OptNachkommastellen = static_cast<std::int16_t>(Nachkomma);
  Optionen.OptWarnstufe = static_cast<std::int16_t>(Warnstufe);
  const auto Tabelle = [] {
    std::vector<Punktsatz> Alle;
    for (int z = 0; z < KorAnzahl; ++z) Alle.push_back(PunktsatzVon(z));
    return Alle;
  };
  const auto Vorher = Tabelle();
  KoordinatendateiName = Ordner.Pfad("musterdorf.kor");
  Schreibe(Ordner.Pfad("neu.kor"),
           "1001 0 0\r\n1002 60.01 80\r\n2003 30.1 30\r\n2004 0 75.02\r\n2005 120 160\r\n");
  auto B = Öffne(A.Kennung);
  Tippe(*B, A.Feld, A.Tasten);
  if (*A.Frage != 0) Skript.Erwarte(A.Frage, KnopfJa);
  if (*A.Knopf != 0) Drücke(*B, A.Knopf);
  B->SchließenVerlangen();
  ASSERT_FALSE(B->Offen());
  const std::string Prots = Protokoll(), Sta = Stapeltext();
  EXPECT_FALSE(Prots.empty());
  const auto Nachher = Tabelle();
  KorAbschneiden(0);
  for (const Punktsatz& P : Vorher) ASSERT_EQ(KorAnhängen(P.Satz()), 0);
  EXPECT_EQ(Nachlauf(), Prots);
  EXPECT_EQ(Tabelle() == Nachher, true);
  EXPECT_TRUE(
      Gleich(StapelBericht().size(), 0U, Stapel.Bilanz.Blöcke > 0, true, Stapel.Bilanz.Fehler, false));
  EXPECT_EQ(Stapeltext(), Sta);
}

INSTANTIATE_TEST_SUITE_P(, Artentest,
                         testing::Combine(testing::ValuesIn(Aufträge), testing::Values(0, 2, 3, 5),
                                          testing::Values(0, 1, 3)),
                         [](const auto& Info) {
                           const Auftrag& A = std::get<0>(Info.param);
                           std::string Name = std::string(A.Feld) + A.Kennung;
                           std::erase_if(
                               Name, [](char z) { return std::isalnum(static_cast<unsigned char>(z)) == 0; });
                           return Name + "_" + std::to_string(std::get<1>(Info.param)) + "_" +
                                  std::to_string(std::get<2>(Info.param));
                         });

// There is a job for every kind that writes a block.
TEST(Blattarten, JedeArtHatIhrenAuftrag) {
  for (const Blattart& Art : Blattarten()) {
    if (Art.Kennungen[0] == nullptr) continue;  // a replay does not repeat it
    EXPECT_TRUE(std::any_of(std::begin(Aufträge), std::end(Aufträge), [&](const Auftrag& A) {
      return BlattartVonKennung(A.Kennung) == &Art;
    })) << Art.Formname;
  }
}

// Published examples, typed: two lines and the circle through three points of Rosetta Code, the polygon of
// Wikipedia (Shoelace formula), the first side of the traverse of Ghilani and Wolf, Elementary Surveying.
using Artenbeispiel = Blatttest;
TEST_F(Artenbeispiel, WieGedruckt) {
  struct Beispiel {
    const char* Kennung;
    std::vector<Lage> Punkte;  // numbered from 11
    const char *Feld, *Tasten, *Ergebnis, *Soll;
    Lage Neu = {};  // 31
  };
  const Beispiel Alle[] = {
      {"09.00",
       {{4, 0}, {6, 10}, {0, 3}, {10, 7}},
       "IntllG1_AnfPnr",
       "11\n12\n\n\n\n13\n14\n\n\n\n31\n\n",
       "",
       "",
       {5, 5}},
      {"09.50",
       {{22.83, 2.07}, {14.39, 30.24}, {33.65, 17.31}},
       "Kmitt_Pnr1",
       "11\n12\n13\n31\n\n",
       "",
       "",
       {18.97851566, 16.26541081}},
      {"65.00",
       {{1, 6}, {3, 1}, {7, 2}, {4, 4}, {8, 5}},
       "AreaName",
       "N\nB\n11\n\n\n12\n\n\n13\n\n\n14\n\n\n15\n\n\n",
       "AreaFlaeche",
       "16.500"},
      {"19.70",
       {{0, 0}, {0, 100}},
       "PolarAnfPnr",
       "11\n12\n0\n0\n31\n141,0238\n100\n647,25\n\n",
       "",
       "",
       {517.451, -388.815}},
  };
  for (const Beispiel& E : Alle) {
    KorAbschneiden(0);
    for (std::size_t i = 0; i < E.Punkte.size(); ++i)
      Punkt(std::to_string(11 + i).c_str(), E.Punkte[i].RW, E.Punkte[i].HW);
    auto B = Öffne(E.Kennung);
    Tippe(*B, E.Feld, E.Tasten);
    EXPECT_EQ(*E.Ergebnis != 0 ? Text(*B, E.Ergebnis) : "", E.Soll);
    const int z = KorSuche(std::string_view("31"));
    ASSERT_EQ(z >= 0, *E.Ergebnis == 0) << E.Kennung;
    const Lage Ist = z < 0 ? E.Neu : Lage{KorPunkt(z).Rechts, KorPunkt(z).Hoch};
    EXPECT_LT(Abstand(Ist, E.Neu), 1e-3) << E.Kennung;
  }
}

}  // namespace
}  // namespace tavorena::test
