#include "Blattest.h"

namespace tavorena::test {
namespace {

using Linienblatt = Blatttest;

TEST_F(Linienblatt, VomAnschlussZumProtokollUndZurueck) {
  auto B = Oeffne<TVLinelForm>();
  Tippe(*B, "LinelAnfPnr", "1001\n");
  EXPECT_EQ(Text(*B, "LinelAnfH_he") + Text(*B, "LinelAnfSym"), "12.500015");
  Tippe(*B, "LinelEndPnr", "1002\n0\n99,93\n");  // Return leads through the connection into the grid
  EXPECT_EQ(Text(*B, "LinelL") + "|" + Text(*B, "LinelE") + "|" + Text(*B, "LinelM"),
            "100.000|100.000|1.000700");
  EXPECT_EQ(Text(*B, "LinelD") + "|" + Text(*B, "LinelWs"), "0.160|0.070");
  EXPECT_FALSE(DateiVorhanden(ProtokolldateiName));  // nothing is written before the first row
  Tippe(*B, "LinelGitter", "2003\n2004\n+\n");       // + steps to 2005
  EXPECT_EQ(Zelle(*B, "LinelGitter", 0, 3) + "|" + Zelle(*B, "LinelGitter", 0, 4), "42.000|6.000");
  EXPECT_EQ(Zelle(*B, "LinelGitter", 0, 5) + "|" + Zelle(*B, "LinelGitter", 0, 6), "41.971|5.996");
  EXPECT_EQ(Zelle(*B, "LinelGitter", 2, 0), "2005");
  Tippe(*B, "LinelGitter", "\n");  // Return in an empty row leads out of the grid
  EXPECT_EQ(B->Fokus()->Name, "LinelEnd10");
  Druecke(*B, "LinelEnd10");
  EXPECT_EQ(B->Fokus()->Name, "LinelAnfPnr");
  Tippe(*B, "LinelAnfPnr", "1002\n");
  Tippe(*B, "LinelEndPnr", "2005\n0\n0\n2003\n");
  EXPECT_FALSE(dynamic_cast<Gitter*>(B->Finde("LinelGitter"))
                   ->Spalten[5]
                   .Sichtbar);  // nothing measured, nothing to reduce
  Druecke(*B, "LinelEnd");
  EXPECT_FALSE(B->Offen());
  const std::string Erstes = Inhalt(ProtokolldateiName);
  EXPECT_TRUE(GleichSoll(Erstes, "worksheets/soll/linel.dru"));
  EXPECT_TRUE(GleichSoll(Inhalt(StapeldateiName), "worksheets/soll/linel.sta"));
  // The second target holds the blocks without the head.
  const std::string Zweites = Inhalt(DateinameProtokollTemp);
  EXPECT_TRUE(!Zweites.empty() && Erstes.ends_with(Zweites));
  const std::string Stapel = Inhalt(StapeldateiName);
  EXPECT_EQ(Nachlauf(), Erstes);
  EXPECT_EQ(Inhalt(StapeldateiName), Stapel);  // a replay never grows its own file
  EXPECT_EQ(Stapellauf.Zeilen, 4);
  EXPECT_EQ(Blaetter.back()->Titel, "Tavorena Linienelemente [Stapel]");
}

TEST_F(Linienblatt, PolarelementeVomAnschlussZumProtokollUndZurueck) {
  auto B = Oeffne<TVPolelForm>();
  Tippe(*B, "PolelAnfPnr", "1001\n1002\n12,5\n99.98\n2003\n2004\n");
  EXPECT_EQ(Zelle(*B, "PolelGitter", 0, 3) + "|" + Zelle(*B, "PolelGitter", 0, 4), "21.5334|42.426");
  EXPECT_EQ(Text(*B, "PolelM") + "|" + Text(*B, "PolelWs"), "1.000200|0.020");
  Druecke(*B, "PolelEnd");
  const std::string Erstes = Inhalt(ProtokolldateiName);
  EXPECT_TRUE(GleichSoll(Erstes, "worksheets/soll/polel.dru"));
  EXPECT_TRUE(GleichSoll(Inhalt(StapeldateiName), "worksheets/soll/polel.sta"));
  EXPECT_EQ(Nachlauf(), Erstes);
}

TEST_F(Linienblatt, EntfernungskontrollenVomAnschlussZumProtokollUndZurueck) {
  auto B = Oeffne<TVDisForm>();
  Tippe(*B, "DisAnfPnr", "1001\n1002\n99,8\n");
  EXPECT_EQ(Text(*B, "DisL") + "|" + Text(*B, "DisD") + "|" + Text(*B, "DisWs"), "100.000|0.160|0.200");
  EXPECT_TRUE(B->Finde("DisWs")->Fehlerhaft);
  EXPECT_EQ(Text(*B, "DisAnfPnr"), "1002");  // the end point is the new start point
  EXPECT_EQ(B->Fokus()->Name, "DisEndPnr");
  Tippe(*B, "DisEndPnr", "2005\n0\n");  // not measured
  Tippe(*B, "DisEndPnr", "1001\n200.1");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);  // the last check was not committed
  Druecke(*B, "DisEnd");
  const std::string Erstes = Inhalt(ProtokolldateiName);
  EXPECT_TRUE(GleichSoll(Erstes, "worksheets/soll/dis.dru"));
  EXPECT_TRUE(GleichSoll(Inhalt(StapeldateiName), "worksheets/soll/dis.sta"));
  EXPECT_EQ(Nachlauf(), Erstes);
  EXPECT_EQ(Stapellauf.Zeilen, 3);
}

TEST_F(Linienblatt, FehlenderPunktWirdGefragt) {
  auto B = Oeffne<TVLinelForm>();
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Tippe(*B, "LinelAnfPnr", "7\n");
  EXPECT_EQ(B->Fokus()->Name, "LinelAnfPnr");  // the text stays, the focus too
  EXPECT_EQ(Text(*B, "LinelAnfPnr"), "7");
  Skript.Formulare.push_back(Bediene({{"EinzelRechts", "3500000,5\n"}, {"EinzelHoch", "5600000\n10\n\n"}}));
  Tippe(*B, "LinelAnfPnr", "\n");
  EXPECT_EQ(B->Fokus()->Name, "LinelEndPnr");
  EXPECT_EQ(Text(*B, "LinelAnfRechts"), "3500000.500");
  EXPECT_EQ(KorAnzahl, 6);
  // Another number that is known: it is taken as it stands.
  Skript.Formulare.push_back(Bediene({{"EinzelPnr", "1002"}, {"OK", ""}}));
  Skript.Formulare.push_back(Bediene({{"Knopf(0)", ""}}));
  Tippe(*B, "LinelEndPnr", "8\n");
  EXPECT_EQ(Text(*B, "LinelEndPnr"), "1002");
  EXPECT_EQ(KorAnzahl, 6);
}

TEST_F(Linienblatt, UngueltigeEingabenHaltenDenFokus) {
  auto B = Oeffne<TVLinelForm>();
  Tippe(*B, "LinelAnfPnr", "1001\n1001\n0\nabc\n");
  EXPECT_EQ(B->Fokus()->Name, "LinelEndmass");
  EXPECT_TRUE(B->Fokus()->Fehlerhaft);
  Tippe(*B, "LinelEndmass", "0\n");  // both points the same
  EXPECT_EQ(B->Fokus()->Name, "LinelEndPnr");
  Tippe(*B, "LinelEndPnr", "1002\n5\n5\n");  // Endmass equal to Anlegemass
  EXPECT_EQ(B->Fokus()->Name, "LinelEndmass");
  Tippe(*B, "LinelEndmass", "105\n");
  EXPECT_EQ(B->Fokus()->Name, "LinelGitter");
  Tippe(*B, "LinelGitter", "+");  // the number entered last was 1002
  EXPECT_EQ(Zelle(*B, "LinelGitter", 0, 0), "1003");
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Tippe(*B, "LinelGitter", "\n");
  EXPECT_EQ(Zelle(*B, "LinelGitter", 0, 3), "");
  Druecke(*B, "LinelEnd");  // a number without a point is nothing to write
  EXPECT_FALSE(DateiVorhanden(StapeldateiName));
}

TEST_F(Linienblatt, ZeilenBerichtigenUndLoeschen) {
  auto B = Oeffne<TVLinelForm>();
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n0\n0\n2003\n2004\n2005\n");
  auto& G = dynamic_cast<Gitter&>(*B->Finde("LinelGitter"));
  B->ZelleWechseln(G, 1, 0);
  B->Tippen(G, "1002");
  B->ZelleWechseln(G, 0, 0);  // not confirmed: what was written stands
  EXPECT_EQ(Zelle(*B, "LinelGitter", 1, 0) + Zelle(*B, "LinelGitter", 1, 4), "2004-45.000");
  B->ZelleWechseln(G, 1, 0);
  Tippe(*B, "LinelGitter", "1002\n");
  B->ZelleWechseln(G, 0, 0);
  Druecke(*B, "LinelDelete");
  EXPECT_EQ(Zelle(*B, "LinelGitter", 0, 0) + Zelle(*B, "LinelGitter", 1, 0), "10022005");
  Druecke(*B, "LinelEnd");
  const std::string Prot = Inhalt(ProtokolldateiName), Stapel = Inhalt(StapeldateiName);
  EXPECT_NE(Prot.find("2004 ***gelöscht"), std::string::npos);
  EXPECT_NE(Prot.find("2003 ***gelöscht"), std::string::npos);
  EXPECT_NE(Stapel.find("NR      2005\r\nNR      1002\r\nE Ende"), std::string::npos) << Stapel;
  EXPECT_EQ(Stapel.find("NR      2003"), std::string::npos);
}

TEST_F(Linienblatt, VerlassenMitOffenerZeile) {
  auto B = Oeffne<TVLinelForm>();
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n0\n0\n2003");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfNein);
  B->SchliessenVerlangen();
  EXPECT_TRUE(B->Offen());
  EXPECT_EQ(Skript.Titel.back(), "Berechnung Linienelemente");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  Druecke(*B, "LinelEnd");
  EXPECT_FALSE(B->Offen());
  EXPECT_NE(Inhalt(StapeldateiName).find("NR      2003\r\nE Ende"), std::string::npos);
}

TEST_F(Linienblatt, StreifenNimmtDiePunkteDesBereichs) {
  auto B = Oeffne<TVLinelForm>();
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n0\n0\n");
  Tippe(*B, "LinelPnrvon", "2000\n2999\n10\n");
  EXPECT_EQ(Zelle(*B, "LinelGitter", 0, 0) + Zelle(*B, "LinelGitter", 1, 0), "20032005");  // 2004 is 45 m off
  Tippe(*B, "LinelPnrvon", "2000\n2999\n0\n");
  EXPECT_EQ(dynamic_cast<Gitter*>(B->Finde("LinelGitter"))->Zeilen(), 6);
}

TEST_F(Linienblatt, RissfrageUndPlusTaste) {
  Optionen.AbfrageRiss = true;
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "Riss 12\n"}, {"Wert(1)", "3\n"}}));
  auto B = Oeffne<TVLinelForm>();
  EXPECT_EQ(Text(*B, "LinelRi_bez") + Text(*B, "LinelBernr"), "Riss 123");
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  auto C = Oeffne<TVPolelForm>();  // cancel keeps the old values
  EXPECT_EQ(Riss + BerNr, "Riss 123");
  B->FokusWechseln(*B->Finde("LinelAnfPnr"));
  EXPECT_FALSE(B->TasteDruecken(Taste::Plus));  // no number yet: the key is left to the text
  LetztePunktnummer = "12A";
  EXPECT_TRUE(B->TasteDruecken(Taste::Minus));
  EXPECT_EQ(Text(*B, "LinelAnfPnr"), "11");
}

TEST_F(Linienblatt, NachlaufHaeltUndLaesstSichStoppen) {
  Schreibe(StapeldateiName,
           "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\n"
           "M VR 08.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 77\r\nNR 2004\r\nE\r\n"
           "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\n");
  Skript.Haelt = true;
  Starten();
  ASSERT_TRUE(StapelAktiv && Blaetter.back()->Offen());
  EXPECT_EQ(Blaetter.back()->Fokus()->Name, "LinelWeiter");
  EXPECT_EQ(Inhalt(ProtokolldateiName), "");
  Formular& Erstes = *Blaetter.back();
  Druecke(Erstes, "LinelWeiter");  // the next block is shown when this one is done
  EXPECT_FALSE(Erstes.Offen());
  ASSERT_EQ(Blaetter.size(), 2U);
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Skript.BeiEreignissen = [&] { Druecke(*Blaetter.back(), "PolelStop"); };
  Druecke(*Blaetter.back(), "PolelWeiter");  // stopped after the running row
  EXPECT_FALSE(StapelAktiv || Blaetter.back()->Offen());
  EXPECT_EQ(Blaetter.size(), 2U);
  EXPECT_EQ(Stapellauf.Zeilen, 1);
  EXPECT_FALSE(Stapellauf.Fehler);
}

TEST_F(Linienblatt, NachlaufMitFehlendenPunkten) {
  Schreibe(StapeldateiName,
           "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002\r\nNR 77\r\nNR 2003\r\nE\r\n"
           "M VR 24.40 Linienelemente\r\nPAN 77\r\nPEN 1002\r\nNR 2003\r\nE\r\n");
  for (int i = 0; i < 2; ++i) Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Skript.Erwarte("Zeile: 9\nAnschlußpunkt 77 fehlt");
  const std::string Prot = Nachlauf();
  EXPECT_EQ(Stapellauf.Zeilen, 1);  // the row without a point is dropped, the next one runs
  EXPECT_NE(Prot.find("2003"), std::string::npos);
  EXPECT_TRUE(Stapellauf.Fehler);
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
  EXPECT_EQ(Pnr, Wert("9002"));
  EXPECT_EQ(Notiz.Code, 13);
  EXPECT_EQ(Notiz.Nummer, "9002");
}

}  // namespace
}  // namespace tavorena::test
