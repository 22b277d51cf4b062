#include "Blattest.h"

namespace tavorena::test {
namespace {

using Linienblatt = Blatttest;

TEST_F(Linienblatt, VomAnschlussZumProtokollUndZurück) {
  auto B = Öffne<TVLinelForm>();
  const Gitter& G = Gitterfeld(*B);
  Tippe(*B, "LinelAnfPnr", "1001\n");
  EXPECT_EQ(Text(*B, "LinelAnfH_he", "LinelAnfSym"), "12.500|015");
  Tippe(*B, "LinelEndPnr", "1002\n0\n99,93\n");  // Return leads through the connection into the grid
  EXPECT_EQ(Text(*B, "LinelL", "LinelE", "LinelM", "LinelD", "LinelWs"),
            "100.000|100.000|1.000700|0.160|0.070");
  EXPECT_FALSE(DateiVorhanden(ProtokolldateiName));  // nothing is written before the first row
  Tippe(*B, "LinelGitter", "2003\n2004\n+\n");       // + steps to 2005
  EXPECT_EQ(Reihe(G.Inhalt(0, 3), G.Inhalt(0, 4), G.Inhalt(0, 5), G.Inhalt(0, 6)),
            "42.000|6.000|41.971|5.996");
  EXPECT_EQ(G.Inhalt(2, 0), "2005");
  Tippe(*B, "LinelGitter", "\n");  // Return in an empty row leads out of the grid
  EXPECT_EQ(B->Fokus()->Name, "LinelEnd10");
  Drücke(*B, "LinelEnd10");
  EXPECT_EQ(B->Fokus()->Name, "LinelAnfPnr");
  Tippe(*B, "LinelAnfPnr", "1002\n");
  Tippe(*B, "LinelEndPnr", "2005\n0\n0\n2003\n");
  EXPECT_FALSE(G.Spalten[5].Sichtbar);  // nothing measured, nothing to reduce
  Drücke(*B, "LinelEnd");
  EXPECT_FALSE(B->Offen());
  PrüfeDateien("linel", 4);
  EXPECT_EQ(*Blätter.back()->Titel, "Tavorena Linienelemente [Stapel]");
}

TEST_F(Linienblatt, PolarelementeVomAnschlussZumProtokollUndZurück) {
  auto B = Öffne<TVPolelForm>();
  const Gitter& G = Gitterfeld(*B);
  Tippe(*B, "PolelAnfPnr", "1001\n1002\n12,5\n99.98\n2003\n2004\n");
  EXPECT_EQ(Reihe(G.Inhalt(0, 3), G.Inhalt(0, 4)), "21.5334|42.426");
  EXPECT_EQ(Text(*B, "PolelM", "PolelWs"), "1.000200|0.020");
  Drücke(*B, "PolelEnd");
  PrüfeDateien("polel", 2);
}

TEST_F(Linienblatt, EntfernungskontrollenVomAnschlussZumProtokollUndZurück) {
  auto B = Öffne<TVDisForm>();
  Tippe(*B, "DisAnfPnr", "1001\n1002\n99,8\n");
  EXPECT_EQ(Text(*B, "DisL", "DisD", "DisWs"), "100.000|0.160|0.200");
  EXPECT_TRUE(Feld(*B, "DisWs").Fehlerhaft);
  // The end point is the new start point.
  EXPECT_EQ(Reihe(Text(*B, "DisAnfPnr"), B->Fokus()->Name), "1002|DisEndPnr");
  Tippe(*B, "DisEndPnr", "2005\n0\n");  // not measured
  Tippe(*B, "DisEndPnr", "1001\n200.1");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);  // the last check was not committed
  Drücke(*B, "DisEnd");
  PrüfeDateien("dis", 3);
}

TEST_F(Linienblatt, FehlenderPunktWirdGefragt) {
  auto B = Öffne<TVLinelForm>();
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Tippe(*B, "LinelAnfPnr", "7\n");
  EXPECT_EQ(Reihe(B->Fokus()->Name, Text(*B, "LinelAnfPnr")), "LinelAnfPnr|7");  // both stay
  // OK is not enough without coordinates.
  Skript.Formulare.push_back(
      Bediene({{"OK", ""}, {"EinzelRechts", "3500000,5\n"}, {"EinzelHoch", "5600000\n10\n\n"}}));
  Tippe(*B, "LinelAnfPnr", "\n");
  EXPECT_EQ(Reihe(B->Fokus()->Name, Text(*B, "LinelAnfRechts"), KorAnzahl), "LinelEndPnr|3500000.500|6");
  // Another number that is known: it is taken as it stands.
  Skript.Formulare.push_back(Bediene({{"EinzelPnr", "1002"}, {"OK", ""}}));
  Skript.Formulare.push_back(Bediene({{"Knopf(0)", ""}}));
  Tippe(*B, "LinelEndPnr", "8\n");
  EXPECT_EQ(Reihe(Text(*B, "LinelEndPnr"), KorAnzahl), "1002|6");
}

TEST_F(Linienblatt, UngültigeEingabenHaltenDenFokus) {
  auto B = Öffne<TVLinelForm>();
  const Gitter& G = Gitterfeld(*B);
  Tippe(*B, "LinelAnfPnr", "1001\n1001\n0\nabc\n");
  EXPECT_TRUE(Feld(*B, "LinelEndmass").Fehlerhaft);
  B->FokusWechseln(Element(*B, "LinelAnlegemass"));
  EXPECT_EQ(B->Fokus()->Name, "LinelEndmass");
  B->FokusWechseln(Element(*B, "LinelEnd"));  // a way out is always open
  EXPECT_EQ(B->Fokus()->Name, "LinelEnd");
  using Schritt = std::array<const char*, 3>;  // where, what is typed, where the focus then is
  // Both points the same, Endmass equal to Anlegemass, all well.
  for (const auto& [Name, Text, Fokus] :
       {Schritt{"LinelEndmass", "0\n", "LinelEndPnr"}, Schritt{"LinelEndPnr", "1002\n5\n5\n", "LinelEndmass"},
        Schritt{"LinelEndmass", "105\n", "LinelGitter"}}) {
    Tippe(*B, Name, Text);
    EXPECT_EQ(B->Fokus()->Name, Fokus) << Text;
  }
  Tippe(*B, "LinelGitter", "+");  // the number entered last was 1002
  EXPECT_EQ(G.Inhalt(0, 0), "1003");
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Tippe(*B, "LinelGitter", "\n");
  EXPECT_EQ(G.Inhalt(0, 3), "");
  Drücke(*B, "LinelEnd");  // a number without a point is nothing to write
  EXPECT_FALSE(DateiVorhanden(StapeldateiName));
}

TEST_F(Linienblatt, ZeilenBerichtigenLöschenUndOffenVerlassen) {
  auto B = Öffne<TVLinelForm>();
  Gitter& G = Gitterfeld(*B);
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n0\n0\n2003\n2004\n2005\n");
  B->ZelleWechseln(G, 1, 0);
  B->Tippen(G, "1002");
  B->ZelleWechseln(G, 0, 0);  // not confirmed: what was written stands
  EXPECT_EQ(Reihe(G.Inhalt(1, 0), G.Inhalt(1, 4)), "2004|-45.000");
  B->ZelleWechseln(G, 1, 0);
  Tippe(*B, "LinelGitter", "1002\n");
  B->ZelleWechseln(G, 2, 0);
  Drücke(*B, "LinelDelete");
  EXPECT_EQ(Reihe(G.Inhalt(0, 0), G.Inhalt(1, 0)), "2003|1002");
  Tippe(*B, "LinelGitter", "2004");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfNein);
  B->SchließenVerlangen();
  EXPECT_TRUE(B->Offen());
  EXPECT_EQ(Skript.Titel.back(), "Berechnung Linienelemente");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  Drücke(*B, "LinelEnd");
  const std::string Prot = Inhalt(ProtokolldateiName), Stapel = Inhalt(StapeldateiName);
  for (const char* Pnr : {"2004", "2005"})
    EXPECT_NE(Prot.find(Pnr + std::string(" ***gelöscht")), std::string::npos);
  EXPECT_NE(Stapel.find("0.0000\r\nNR      2003\r\nNR      1002\r\nNR      2004\r\nE Ende"),
            std::string::npos)
      << Stapel;
}

TEST_F(Linienblatt, StreifenNimmtDiePunkteDesBereichs) {
  auto B = Öffne<TVLinelForm>();
  const Gitter& G = Gitterfeld(*B);
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n0\n0\n");
  Tippe(*B, "LinelPnrvon", "2000\n2999\n10\n");
  EXPECT_EQ(G.Inhalt(0, 0) + G.Inhalt(1, 0), "20032005");  // 2004 is 45 m off
  Tippe(*B, "LinelPnrvon", "2000\n2999\n0\n");
  EXPECT_EQ(G.Zeilen(), 6);
}

TEST_F(Linienblatt, RissfrageUndPlusTaste) {
  Optionen.AbfrageRiss = true;
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "Riss 12\n"}, {"Wert(1)", "3\n"}}));
  auto B = Öffne<TVLinelForm>();
  EXPECT_EQ(Text(*B, "LinelRi_bez", "LinelBernr"), "Riss 12|3");
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  auto C = Öffne<TVPolelForm>();
  EXPECT_EQ(Reihe(Riss, BerNr), "Riss 12|3");  // cancel keeps the old values
  B->FokusWechseln(Element(*B, "LinelAnfPnr"));
  EXPECT_FALSE(B->TasteDrücken(Taste::Plus));  // no number yet: the key is left to the text
  LetztePunktnummer = "12A";
  EXPECT_TRUE(B->TasteDrücken(Taste::Minus));
  EXPECT_EQ(Text(*B, "LinelAnfPnr"), "11");
}

TEST_F(Linienblatt, NachlaufHältUndLäßtSichStoppen) {
  const std::string Anschluss = "PAN 1001\r\nPEN 1002\r\n",
                    Linie = "M VR 24.40 x\r\n" + Anschluss + "NR 2003\r\nE\r\n";
  Schreibe(StapeldateiName, Linie + "M VR 08.40 x\r\n" + Anschluss + "NR 77\r\nNR 2004\r\nE\r\n" + Linie);
  Skript.Hält = true;
  Starten();
  ASSERT_TRUE(StapelAktiv && Blätter.back()->Offen());
  EXPECT_EQ(Blätter.back()->Fokus()->Name, "LinelWeiter");
  EXPECT_EQ(Inhalt(ProtokolldateiName), "");
  Formular& Erstes = *Blätter.back();
  Drücke(Erstes, "LinelWeiter");  // the next block is shown when this one is done
  EXPECT_FALSE(Erstes.Offen());
  ASSERT_EQ(Blätter.size(), 2U);
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Skript.BeiEreignissen = [&] { Drücke(*Blätter.back(), "PolelStop"); };
  Drücke(*Blätter.back(), "PolelWeiter");  // stopped after the running row
  EXPECT_FALSE(StapelAktiv || Blätter.back()->Offen());
  EXPECT_EQ(Reihe(Blätter.size(), Stapellauf.Zeilen, Stapellauf.Fehler), "2|1|0");
}

TEST_F(Linienblatt, NachlaufMitFehlendenPunkten) {
  Schreibe(StapeldateiName,
           "M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 77\r\nNR 2003\r\nE\r\n"
           "M VR 24.40 x\r\nPAN 77\r\nPEN 1002\r\n");
  for (int i = 0; i < 2; ++i) Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Skript.Erwarte("Zeile: 9\nAnschlußpunkt 77 fehlt");
  EXPECT_NE(Nachlauf().find("2003"), std::string::npos);
  EXPECT_EQ(Reihe(Stapellauf.Zeilen, Stapellauf.Fehler), "1|1");  // the row without a point is dropped
}

TEST_F(Linienblatt, NeupunktEintragenFragtNurBeiAndererLage) {
  Punktnotiz Notiz;
  Wert Pnr("1001");
  EXPECT_EQ(NeupunktEintragen(Pnr, 3500100.0004, 5600200, NullWert{}, "", nullptr, Notiz), 0);
  EXPECT_EQ(NeupunktEintragen(Pnr, 3500100, 5600200, 12.5, "", nullptr, Notiz), 0);
  EXPECT_EQ(Notiz.Code, 0);
  int Gefragt = 0;
  Haken.PunktVorhandenBehandeln = [&](const Konflikt&) {
    return ++Gefragt == 1 ? Konfliktantwort{"ABB", ""} : Konfliktantwort{"NNN", "9002"};
  };
  EXPECT_EQ(NeupunktEintragen(Pnr, 3500100, 5600200, 12.6, "", nullptr, Notiz), -1);
  EXPECT_EQ(NeupunktEintragen(Pnr, 3500100.02, 5600199.98, 0.0, "", nullptr, Notiz), 5);
  EXPECT_EQ(Reihe(Pnr.Text(), Notiz.Code, Notiz.Nummer), "9002|13|9002");
}

}  // namespace
}  // namespace tavorena::test
