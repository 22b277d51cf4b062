#include "Blattest.h"
#include "Mitschrift.h"

#include <set>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#endif

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Neupunktblock.h>

namespace tavorena::test {
namespace {

using BlattTest = Blatttest;
using Texte = std::vector<std::string>;

// Line elements, connected and nothing measured.
class Linienblatt : public Blatttest {
 protected:
  std::string Gib(const std::string& Text) { return Tippe(*B, "LinelGitter", Text); }
  std::string Feldtext(const char* Name) const { return Text(*B, Name); }
  void Streiche(int Zeile) {
    B->ZelleWechseln(G, Zeile, 0);
    Drücke(*B, "LinelDelete");
  }
  std::unique_ptr<Formular> B = Verbinde("24.40");
  Gitter& G = Gitterfeld(*B);
};

TEST_F(BlattTest, LinienelementeSchreibenIhreDateien) {
  auto B = Öffne("24.40");
  const Gitter& G = Gitterfeld(*B);
  Tippe(*B, "LinelAnfPnr", "1001\n");
  EXPECT_TRUE(Gleich(Text(*B, "LinelAnfH_he"), "12.500", Text(*B, "LinelAnfSym"), "015"));
  Tippe(*B, "LinelEndPnr", "1002\n0\n99,93\n");  // Return leads through the connection into the grid
  EXPECT_TRUE(Gleich(Text(*B, "LinelL"), "100.000", Text(*B, "LinelE"), "100.000", Text(*B, "LinelM"),
                     "1.000700", Text(*B, "LinelD"), "0.160", Text(*B, "LinelWs"), "0.070"));
  EXPECT_FALSE(DateiVorhanden(Prot.Datei));     // nothing is written before the first row
  Tippe(*B, "LinelGitter", "2003\n2004\n+\n");  // + steps to 2005
  EXPECT_EQ(Gitterzeile(G, 0),
            (Texte{"2003", "3500130.000", "5600230.000", "42.000", "6.000", "41.971", "5.996"}));
  EXPECT_EQ(Tippe(*B, "LinelGitter", "\n"), "LinelEnd10");  // Return in an empty row leads out of the grid
  EXPECT_EQ(Drücke(*B, "LinelEnd10"), "LinelAnfPnr");
  Tippe(*B, "LinelAnfPnr", "1002\n2005\n0\n0\n2003\n");
  EXPECT_FALSE(G.Spalten[5].Sichtbar);  // nothing measured, nothing to reduce
  Drücke(*B, "LinelEnd");
  EXPECT_FALSE(B->Offen());
  PrüfeDateien("linel", 4);
  EXPECT_EQ(*Blätter.back()->Titel, "Tavorena Linienelemente [Stapel]");
}

// A worksheet that wrote something, and only such a one, asks when it goes; what it wrote is printed.
TEST_F(BlattTest, DruckfrageBeimSchließen) {
  Optionen.AbfrageDruck = true;
  Verbinde("24.40")->SchließenVerlangen();
  const auto Rechne = [this](int Antwort) {
    auto B = Verbinde("24.40");
    Tippe(*B, "LinelGitter", "2003\n");
    if (Antwort != 0) Skript.Erwarte("Berechnung drucken ?", Antwort);
    Antwort == KnopfJa ? B->Schließen() : B->SchließenVerlangen();
    EXPECT_FALSE(B->Offen());
  };
  Rechne(KnopfNein);
  EXPECT_EQ(Skript.Gedruckt, Texte{});
  const std::string Bisher = Protokoll();
  Rechne(KnopfJa);
  const Texte& Druck = Skript.Gedruckt;
  ASSERT_GT(Druck.size(), 9U);
  EXPECT_TRUE(Gleich(Druck[0], "a.dru", Druck[1], Ordner.Pfad("a-Linel.pdf")));
  std::string Text;
  for (std::size_t i = 2; i < Druck.size(); ++i) Text += Druck[i] + "\r\n";
  EXPECT_TRUE(Text.ends_with(Protokoll().substr(Bisher.size())));
  EXPECT_NE(Text.find("|VR 24.40  Linienelemente "), std::string::npos);
  Skript.Gedruckt.clear();
  EXPECT_NE(Nachlauf(), "");
  Blätter.clear();
  ProtokollNehmen("");
  Rechne(0);
  Optionen.AbfrageDruck = false;
  ProtokollNehmen(Ordner.Pfad("b.dru"));
  Rechne(0);
  EXPECT_EQ(Skript.Gedruckt, Texte{});
}

TEST_F(BlattTest, PolarelementeSchreibenIhreDateien) {
  auto B = Öffne("08.40");
  Tippe(*B, "PolelAnfPnr", "1001\n1002\n12,5\n99.98\n2003\n2004\n");
  EXPECT_EQ(Gitterzeile(Gitterfeld(*B), 0),
            (Texte{"2003", "3500130.000", "5600230.000", "21.5334", "42.426"}));
  EXPECT_TRUE(Gleich(Text(*B, "PolelM"), "1.000200", Text(*B, "PolelWs"), "0.020"));
  Drücke(*B, "PolelEnd");
  PrüfeDateien("polel", 2);
}

TEST_F(BlattTest, EntfernungskontrollenSchreibenIhreDateien) {
  auto B = Öffne("22.10");
  EXPECT_EQ(Tippe(*B, "DisAnfPnr", "1001\n1002\n99,8\n"), "DisEndPnr");
  // The end point is the new start point.
  EXPECT_TRUE(Gleich(Text(*B, "DisL"), "100.000", Text(*B, "DisD"), "0.160", Text(*B, "DisWs"), "0.200",
                     Text(*B, "DisAnfPnr"), "1002", Feld(*B, "DisWs").Fehlerhaft, true));
  Tippe(*B, "DisEndPnr", "2005\n0\n");  // not measured
  Tippe(*B, "DisEndPnr", "1001\n200.1");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);  // the last check was not committed
  Drücke(*B, "DisEnd");
  PrüfeDateien("dis", 3);
}

// Between the typing and Return the table becomes another one, or the decimals do.
TEST_F(BlattTest, ReturnNimmtDieTabelleVonJetzt) {
  auto L = Öffne("24.40"), D = Öffne("22.10");
  Tippe(*L, "LinelAnfPnr", "1001\n1002\n0\n");
  Optionen.OptNachkommastellen = 2;
  Tippe(*L, "LinelEndmass", "0\n");
  EXPECT_EQ(Text(*L, "LinelAnfHoch"), "5600200.00");
  Tippe(*D, "DisAnfPnr", "1001\n1002\n");
  static_cast<void>(KorZeileSetzen(0, {"1001", 3500100, 5600190}));
  static_cast<void>(KorLoeschen(KorSuche(std::string_view("1002"))));
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  EXPECT_EQ(Tippe(*D, "DisStrecke", "0\n"), "DisEndPnr");  // it is asked for, and not given
  EXPECT_TRUE(Gleich(Text(*D, "DisAnfHoch"), "5600190.00", Protokoll(), ""));
  Punkt("1002", 3500160, 5600270);
  EXPECT_EQ(Tippe(*D, "DisStrecke", "0\n"), "DisEndPnr");
  EXPECT_TRUE(Gleich(Text(*D, "DisL"), "100.00", Text(*D, "DisAnfPnr"), "1002", Text(*D, "DisAnfHoch"),
                     "5600270.00", LetztePunktnummer, "1002"));
}

// New points: typed cell by cell, stored, corrected and deleted. What a correction did to the table is taken
// back.
TEST_F(BlattTest, MeßlinieSchreibtIhreDateien) {
  auto B = Öffne("22.00");
  const Gitter& G = Gitterfeld(*B);
  const auto Gib = [&](int Zeile, const char* Text) {
    B->ZelleWechseln(Element<Gitter>(*B, "OrthoGitter"), Zeile, 0);
    return Tippe(*B, "OrthoGitter", Text);
  };
  Tippe(*B, "OrthoAnfPnr", "1001\n1002\n0\n99,93\n");
  Tippe(*B, "OrthoGitter", "3001\n30\n5\n015\n");
  EXPECT_EQ(Gitterzeile(G, 0), (Texte{"3001", "3500122.015", "5600221.015", "30.000", "5.000", "015"}));
  EXPECT_EQ(G.Inhalt(1, 5), "015");
  EXPECT_EQ(KorAnzahl, 6);
  EXPECT_EQ(Tippe(*B, "OrthoGitter", "+\n145\nx\n"), "OrthoGitter");  // no number: the cell stays
  EXPECT_TRUE(Gleich(*G.Spalte, 4, G.Fehlerhaft, true, KorAnzahl, 6));
  Tippe(*B, "OrthoGitter", "-45\n");
  EXPECT_EQ(Tippe(*B, "OrthoGitter", "-\n"), "OrthoGitter");  // a record could not be read back
  EXPECT_TRUE(Gleich(G.Fehlerhaft, true, KorAnzahl, 6));
  Tippe(*B, "OrthoGitter", "015");
  EXPECT_EQ(G.Inhalt(1, 1), "3500151.036");  // computed, and waits for the symbol
  Tippe(*B, "OrthoGitter", "\n");
  EXPECT_EQ(KorPnr(6), "3002");
  Gib(0, "3001\n40\n");  // another measure in a row that stands
  EXPECT_EQ(KorSuche(std::string_view("3001")) >= 0 &&
                KorRechts[static_cast<std::size_t>(KorSuche(std::string_view("3001")))] < 3500123,
            true);
  Tippe(*B, "OrthoGitter", "\n\n");
  EXPECT_NEAR(KorRechts[static_cast<std::size_t>(KorSuche(std::string_view("3001")))], 3500128.02, 0.01);
  Gib(2, "3003\n1\n1\n\n");
  B->ZelleWechseln(Element<Gitter>(*B, "OrthoGitter"), 2, 0);
  Drücke(*B, "OrthoDelete");
  EXPECT_TRUE(Gleich(KorSuche(std::string_view("3003")), -1, KorAnzahl, 7));
  Gib(2, "3004\n2\n2\n\n");
  Wert Nummer("3004");
  static_cast<void>(KorZeileSetzen(KorSuche(Nummer), {"3004", 1, 2}));  // by somebody else
  B->ZelleWechseln(Element<Gitter>(*B, "OrthoGitter"), 2, 0);
  Drücke(*B, "OrthoDelete");
  EXPECT_TRUE(Gleich(Trimmen(Skript.Status[4]), "Punkt 3004 bleibt: inzwischen geändert", KorAnzahl, 8));
  Gib(2, "1001\n0\n0\n\n");  // it was there before, at this place
  B->ZelleWechseln(Element<Gitter>(*B, "OrthoGitter"), 2, 0);
  Drücke(*B, "OrthoDelete");
  EXPECT_TRUE(Gleich(KorSuche(std::string_view("1001")), 0, KorAnzahl, 8));
  Drücke(*B, "OrthoEnd");
  EXPECT_TRUE(GleichSoll(Protokoll(), "worksheets/soll/ortho.dru"));
  EXPECT_TRUE(GleichSoll(Stapeltext(), "worksheets/soll/ortho.sta"));
}

TEST_F(BlattTest, PolarePunkteSchreibenIhreDateien) {
  auto B = Öffne("19.70");
  Tippe(*B, "PolarAnfPnr", "1001\n1002\n12,5\n99,98\n");
  Tippe(*B, "PolarGitter", "2011\n80,25\n98,4\n70\n015\n2012\n312,7\n0\n25,5\n\n");
  EXPECT_EQ(Gitterzeile(Gitterfeld(*B), 0),
            (Texte{"2011", "3500169.359", "5600190.444", "14.259", "80.250", "98.400", "70.000", "015"}));
  EXPECT_EQ(Tippe(*B, "PolarGitter", "2013\n1\n0\n0\n"), "PolarGitter");
  EXPECT_EQ(Trimmen(Skript.Status[4]), "Strecke fehlt");
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{Konfliktwort::Mitteln, ""}; };
  Haken.MittelEintragen = [](const Mittelpunkt& M) {
    static_cast<void>(Schreiben(Prot, nullptr, MittelBlock(3, M)));
  };
  B->ZelleWechseln(Element<Gitter>(*B, "PolarGitter"), 2, 0);
  Tippe(*B, "PolarGitter", "2011\n80,25\n98,4\n70,1\n\n");
  Drücke(*B, "PolarEnd10");
  // The mean of a first row stands below the connection.
  Tippe(*B, "PolarAnfPnr", "1002\n1001\n0\n0\n2012\n10\n0\n112\n\n");
  Drücke(*B, "PolarEnd");
  EXPECT_TRUE(GleichSoll(Protokoll(), "worksheets/soll/polar.dru"));
  EXPECT_TRUE(GleichSoll(Stapeltext(), "worksheets/soll/polar.sta"));
  // The same on the table as it was gives the same again.
  for (const char* Pnr : {"2011", "2012"}) static_cast<void>(KorLoeschen(KorSuche(std::string_view(Pnr))));
  const std::string Dru = Protokoll();
  EXPECT_EQ(Nachlauf(), Dru);
}

// Two worksheets typed in turn give whole blocks in the order of work, and their replay the same protocol.
TEST_F(BlattTest, ZweiBlätterImWechsel) {
  auto L = Verbinde("24.40"), P = Verbinde("08.40"), D = Öffne("22.10");
  Tippe(*L, "LinelGitter", "2003\n");
  Tippe(*P, "PolelGitter", "2003\n");
  Tippe(*L, "LinelGitter", "2004\n");
  Tippe(*D, "DisAnfPnr", "1001\n1002\n0\n");
  Tippe(*L, "LinelGitter", "2005\n");
  Tippe(*D, "DisEndPnr", "2005\n0\n");
  for (const auto& [Blatt, Name] :
       {std::pair{L.get(), "LinelEnd"}, std::pair{P.get(), "PolelEnd"}, std::pair{D.get(), "DisEnd"}})
    Drücke(*Blatt, Name);
  const std::string Dru = Protokoll();
  for (const auto& [Stück, Soll] :
       {std::pair{"M  VR", 6},
        {"EM  (Ende Modul", 6},
        {"PAN     1001        0.0000\r\nPEN     1002        0.0000\r\nNR      2004\r\nE Ende", 1},
        {"PAN     1002        0.0000\r\nPEN     2005        0.0000\r\nE  (Ende)", 1}})
    EXPECT_EQ(Anzahl(Stapeltext(), Stück), Soll) << Stück;
  // Each turn stands below its head.
  EXPECT_TRUE(Gleich(Anzahl(Dru, "|VR 24.40"), 3, Anzahl(Dru, "|VR 08.40"), 1, Anzahl(Dru, "|VR 22.10"), 2));
  EXPECT_EQ(Nachlauf(), Dru);
}

TEST_F(Linienblatt, ZeileBleibtInFremdGeänderterStapeldatei) {
  Gib("2003\n2004\n");
  Schreibe(StapelDatei.Name, Stapeltext() + "C von Hand\r\n");
  Streiche(0);
  EXPECT_EQ(G.Inhalt(0, 0), "2003");
  EXPECT_NE(Skript.Status[4].find("von anderer Seite geändert"), std::string::npos);
  Gib("2005\n");  // nor is it replaced
  EXPECT_TRUE(
      Gleich(G.Inhalt(0, 0), "2003", Anzahl(Protokoll(), "gelöscht"), 0, Anzahl(Protokoll(), "2005"), 0));
}

// A row that reached no file is not written: it stays, and closing asks.
TEST_F(Linienblatt, UngeschriebeneZeileBleibtOffen) {
  StapelDatei.Name.clear();
  Prot.Datei = Ordner.Pfad("fehlt/a.dru");
  Skript.Erwarte("Fehler aufgetreten beim Schreiben in\n" + Prot.Datei);
  Gib("2003\n");
  EXPECT_TRUE(Gleich(G.Zeilen(), 1, G.Inhalt(0, 3), "42.000", Prot.Marken, 0));
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
  Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", KnopfNein);
  B->SchließenVerlangen();
  EXPECT_TRUE(B->Offen());
  Prot.Datei = Ordner.Pfad("a.dru");
  Gib("\n");
  EXPECT_TRUE(Gleich(Anzahl(Protokoll(), "   2003\r\n"), 1, G.Zeilen(), 2));
  Drücke(*B, "LinelEnd");  // and now nothing is open
  EXPECT_FALSE(B->Offen());
}

TEST_F(BlattTest, JedesBlattHatSeinZweitesZiel) {
  auto A = Verbinde("24.40"), B = Verbinde("08.40");
  Tippe(*A, "LinelGitter", "2003\n");
  Tippe(*B, "PolelGitter", "2004\n");
  ASSERT_EQ(ZweiteZiele().size(), 2U);
  for (const std::string& Datei : ZweiteZiele()) {
    EXPECT_EQ(Anzahl(Inhalt(Datei), "2003") + Anzahl(Inhalt(Datei), "2004"), 1);
#ifndef _WIN32
    EXPECT_EQ(fs::status(Datei).permissions(), fs::perms{0600});
#endif
  }
  A.reset();
  EXPECT_EQ(ZweiteZiele().size(), 1U);
}

// Each file is asked for once, and then no more until another one is taken.
TEST_F(Linienblatt, OhneAktenGehtEsWeiter) {
  const std::string Sta = StapelDatei.Name, Dru = Prot.Datei;
  Gib("2003\n");
  for (const std::string& Datei : {Sta, Dru}) fs::permissions(Datei, fs::perms{0444});
  Skript.Erwarte("Stapelmodul.StapelPunktzeile wurde ausgelöst durch Tavorena\nE/A-Fehler\n" + Sta +
                     "\n(schreibgeschützt)",
                 KnopfOhne);
  Skript.Erwarte("Fehler aufgetreten beim Schreiben in\n" + Dru + "\n(schreibgeschützt)", KnopfNochmals);
  Skript.Erwarte(Dru, KnopfOhne);
  Gib("2004\n2005\n");
  EXPECT_EQ(G.Zeilen(), 4);
  Streiche(0);  // nothing to take it out of
  EXPECT_EQ(G.Inhalt(0, 0), "2004");
  StapelDatei.Name = Ordner.Pfad("b.sta");
  ProtokollNehmen(Ordner.Pfad("b.dru"));
  B->ZelleWechseln(G, 2, 0);
  Gib("2003\n");
  EXPECT_TRUE(Gleich(Anzahl(Stapeltext(), "PAN"), 1, Anzahl(Protokoll(), "|VR 24.40"), 1,
                     Anzahl(Protokoll(), "1002      PE"), 1));
  EXPECT_TRUE(Inhalt(Sta).ends_with("2003\r\n"));
}

// With one of the two files out of reach the row is written in the other.
TEST_F(Linienblatt, EineDateiGenügt) {
  StapelDatei.Name = Ordner.Pfad("fehlt/a.sta");
  Skript.Erwarte("Fehler 57 in Stapelmodul.StapelKopf");
  Gib("2003\n");
  EXPECT_EQ(G.Zeilen(), 2);
  Drücke(*B, "LinelEnd");
  EXPECT_FALSE(B->Offen());
}

TEST_F(BlattTest, FehlenderPunktWirdGefragt) {
  auto B = Öffne("24.40");
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  EXPECT_TRUE(Gleich(Tippe(*B, "LinelAnfPnr", "7\n"), "LinelAnfPnr", Text(*B, "LinelAnfPnr"), "7"));
  // OK is not enough without coordinates.
  Skript.Formulare.push_back(
      Bediene({{"OK", ""}, {"EinzelRechts", "3500000,5\n"}, {"EinzelHoch", "5600000\n10\n\n"}}));
  EXPECT_EQ(Tippe(*B, "LinelAnfPnr", "\n"), "LinelEndPnr");
  EXPECT_TRUE(Gleich(Text(*B, "LinelAnfRechts"), "3500000.500", KorAnzahl, 6));
}

TEST_F(BlattTest, FernerPunktWirdGefragt) {
  Skript.Erwarte("Punkt 9 liegt 6377 km von allen anderen entfernt. Trotzdem aufnehmen ?", KnopfNein);
  EXPECT_TRUE(Gleich(FernpunktFrage("9", 350010, 56002), false, Skript.LetzteVorgabe, KnopfNein));
  Skript.Erwarte("Punkt 9 liegt 10 km", KnopfJa);  // one coordinate is enough
  EXPECT_TRUE(FernpunktFrage("9", 3500100, 5610361));
  EXPECT_TRUE(FernpunktFrage("9", 3510219, 5610359));
  Punkt("K", 0, 0);  // a heading of the file
  Punkt("6", 3502500, 5600200);
  EXPECT_TRUE(FernpunktFrage("9", 3526000, 5600200));  // within ten times the extent
  auto B = Öffne("24.40");
  Skript.Erwarte("liegt", KnopfNein);
  Skript.Formulare.push_back(
      Bediene({{"EinzelRechts", "1\n"}, {"EinzelHoch", "5600000\n\n\n"}, {"Abbrechen", ""}}));
  Tippe(*B, "LinelAnfPnr", "9\n");
  EXPECT_EQ(KorAnzahl, 7);
}

TEST_F(BlattTest, AndereBekannteNummerImPunktdialog) {
  auto B = Öffne("24.40");
  Skript.Formulare.push_back(Bediene({{"EinzelPnr", "1002"}, {"OK", ""}}));
  Skript.Formulare.push_back(Bediene({{"Knopf(0)", ""}}));
  Tippe(*B, "LinelEndPnr", "8\n");  // it is taken as it stands
  EXPECT_TRUE(Gleich(Text(*B, "LinelEndPnr"), "1002", KorAnzahl, 5));
}

TEST_F(BlattTest, UngültigeEingabenHaltenDenFokus) {
  auto B = Öffne("24.40");
  Tippe(*B, "LinelAnfPnr", "1001\n1001\n0\nabc\n");
  EXPECT_TRUE(Feld(*B, "LinelEndmass").Fehlerhaft);
  // A way out is always open.
  for (const auto& [Ziel, Fokus] : {std::pair{"LinelAnlegemass", "LinelEndmass"}, {"LinelEnd", "LinelEnd"}}) {
    B->FokusWechseln(Element(*B, Ziel));
    EXPECT_EQ(B->Fokus()->Name, Fokus);
  }
  // Both points the same, Endmass equal to Anlegemass, all well.
  EXPECT_EQ(Tippe(*B, "LinelEndmass", "0\n"), "LinelEndPnr");
  EXPECT_EQ(Tippe(*B, "LinelEndPnr", "1002\n5\n5\n"), "LinelEndmass");
  EXPECT_EQ(Tippe(*B, "LinelEndmass", "105\n"), "LinelGitter");
}

TEST_F(Linienblatt, NummerOhnePunktBleibtOffen) {
  Gib("+");  // the number entered last was 1002
  EXPECT_EQ(G.Inhalt(0, 0), "1003");
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Gib("\n");
  EXPECT_EQ(G.Inhalt(0, 3), "");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  Skript.Formulare.push_back(Bediene({{"EinzelRechts", "3500000\n5600000\n\n\n"}}));
  Drücke(*B, "LinelEnd");
  EXPECT_EQ(Anzahl(Stapeltext(), "NR      1003\r\n"), 1);
}

// What was measured between other points does not belong to the new ones.
TEST_F(BlattTest, AndererAnschlusspunktLöschtDieMessung) {
  auto B = Öffne("24.40");
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n5\n104.9");
  Tippe(*B, "LinelEndPnr", "1002\n");  // the same again
  EXPECT_EQ(Text(*B, "LinelEndmass"), "104.900");
  Tippe(*B, "LinelEndPnr", "2005\n");
  EXPECT_TRUE(Gleich(Text(*B, "LinelAnlegemass"), "0.000", Text(*B, "LinelEndmass"), "0.000"));
}

TEST_F(BlattTest, ZuGroßerMesswertWirdAbgelehnt) {
  auto B = Öffne("24.40");
  EXPECT_EQ(Tippe(*B, "LinelAnfPnr", "1001\n1002\n12345678.9\n"), "LinelAnlegemass");
  EXPECT_TRUE(Feld(*B, "LinelAnlegemass").Fehlerhaft);
  EXPECT_NE(Skript.Status[4].find("9999999.9999"), std::string::npos);
  EXPECT_EQ(Tippe(*B, "LinelAnlegemass", "-999999.9999\n"), "LinelEndmass");
}

// The answer to a taken number moves the end point of the open connection: the rows behind it stand below
// the connection as it is now.
TEST_F(Linienblatt, BewegterAnschlussBeginntEinenBlock) {
  Gib("2003\n");
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) {
    return Konfliktantwort{Konfliktwort::AltenErsetzen, ""};
  };
  Wert Pnr("1002");
  NeupunktErgebnis E;
  ASSERT_EQ(Neupunkt(Pnr, 3500220, 5600360, 0.0, "", nullptr, E), NeupunktCode::AlterErsetzt);
  Gib("2004\n");
  EXPECT_TRUE(Gleich(Feldtext("LinelEndRechts"), "3500220.000", Feldtext("LinelL"), "200.000",
                     Anzahl(Stapeltext(), "M  VR 24.40"), 2));
  EXPECT_EQ(Anzahl(Protokoll(), "      3500220.000  5600360.000      200.000                   1002      PE"),
            1);
  Gib("2005\n");
  EXPECT_EQ(Anzahl(Stapeltext(), "M  VR 24.40"), 2);
}

// A file that is extended stays open until it was brought to the disk.
bool Ungesichert(const std::string& Name) {
#ifdef _WIN32
  int Griff = -1;  // nobody gets an open file for himself
  if (_wsopen_s(&Griff, Weg(Name).c_str(), _O_RDONLY, _SH_DENYRW, 0) != 0) return true;
  _close(Griff);
  return false;
#else
  const auto Ist = [&](const fs::directory_entry& Zahl) {
    std::error_code Fehler;
    return fs::read_symlink(Zahl, Fehler) == fs::canonical(Name);
  };
  const fs::directory_iterator Offene("/proc/self/fd");
  return std::any_of(begin(Offene), end(Offene), Ist);
#endif
}

TEST_F(Linienblatt, ErledigtesIstAufDerPlatte) {
  const auto Beide = [] { return std::pair(Ungesichert(Prot.Datei), Ungesichert(StapelDatei.Name)); };
  Gib("2003\n2004\n");
  EXPECT_EQ(Beide(), std::pair(true, true));
  Gib("\n");
  Drücke(*B, "LinelEnd10");
  EXPECT_EQ(Beide(), std::pair(false, false));
  Tippe(*B, "LinelAnfPnr", "1001\n1002\n0\n0\n2003\n2004");  // a question in the midst of a block
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  Skript.BeiMeldung = [&](const std::string&) { EXPECT_EQ(Beide(), std::pair(false, false)); };
  Drücke(*B, "LinelEnd");
  Skript.BeiMeldung = [](const std::string&) {};
  // A replay that runs through does it once, at its end; one that holds, before it waits.
  std::vector<bool> Gesehen;
  StapelHaken.Schritt = [&](const std::string&) {
    Gesehen.push_back(DateiVorhanden(Prot.Datei) && Ungesichert(Prot.Datei));
  };
  Nachlauf();
  EXPECT_EQ(Gesehen, (std::vector{false, true, false}));
  Skript.Hält = true;
  Starten();
  Drücke(*Blätter.back(), "LinelWeiter");
  EXPECT_FALSE(Ungesichert(Prot.Datei));
  Drücke(*Blätter.back(), "LinelStop");
}

TEST_F(Linienblatt, GleicheNummerZeigtDieZeileWieder) {
  Gib("2003\n2004\n");
  for (const bool MitReturn : {true, false}) {
    B->ZelleWechseln(G, 0, 0);
    B->Tippen(G, "2003");
    EXPECT_EQ(G.Inhalt(0, 3), "");
    MitReturn ? void(Gib("\n")) : B->ZelleWechseln(G, 1, 0);
    EXPECT_EQ(G.Inhalt(0, 3), "42.000") << MitReturn;
  }
  EXPECT_EQ(Anzahl(Stapeltext(), "NR      2003"), 1);
}

TEST_F(Linienblatt, BerichtigteZeilenWerdenGestrichen) {
  Gib("2003\n2004\n2005\n");
  B->ZelleWechseln(G, 1, 0);
  B->Tippen(G, "1002");
  B->ZelleWechseln(G, 0, 0);  // not confirmed: what was written stands
  EXPECT_TRUE(Gleich(G.Inhalt(1, 0), "2004", G.Inhalt(1, 4), "-45.000"));
  B->ZelleWechseln(G, 1, 0);
  Gib("1002\n");
  Streiche(2);
  EXPECT_TRUE(Gleich(G.Inhalt(0, 0), "2003", G.Inhalt(1, 0), "1002"));
  Gib("2004");
  Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfJa);
  Drücke(*B, "LinelEnd");
  for (const char* Pnr : {"2004", "2005"})
    EXPECT_EQ(Anzahl(Protokoll(), Pnr + std::string(" ***gelöscht")), 1);
  EXPECT_EQ(Anzahl(Stapeltext(), "0.0000\r\nNR      2003\r\nNR      1002\r\nNR      2004\r\nE Ende"), 1)
      << Stapeltext();
}

TEST_F(Linienblatt, VerlassenFragtNachOffenem) {
  Gib("2004");
  for (const int Antwort : {KnopfNein, KnopfJa}) {
    Skript.Erwarte("Protokoll und Stapel schreiben ? ", KnopfNein);
    Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", Antwort);
    B->SchließenVerlangen();
    EXPECT_EQ(B->Offen(), Antwort == KnopfNein);
  }
  EXPECT_EQ(Skript.Titel.back(), "Berechnung Linienelemente");
  EXPECT_FALSE(DateiVorhanden(Prot.Datei));
}

TEST_F(Linienblatt, StreifenNimmtDiePunkteDesBereichs) {
  Gib("1001");  // typed and not confirmed: it comes first
  Tippe(*B, "LinelPnrvon", "2000\n2999\n10\n");
  // 2004 is 45 m off.
  EXPECT_TRUE(Gleich(G.Inhalt(0, 0), "1001", G.Inhalt(1, 0), "2003", G.Inhalt(2, 0), "2005"));
  Tippe(*B, "LinelPnrvon", "2000\n2999\n0\n");
  EXPECT_EQ(G.Zeilen(), 7);
}

TEST_F(BlattTest, JedesBlattHatSeinenPlan) {
  Optionen.AbfrageRiss = true;
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "Riss 12\n"}, {"Wert(1)", "3\n"}}));
  auto L = Verbinde("24.40");
  EXPECT_TRUE(Gleich(Text(*L, "LinelRi_bez"), "Riss 12", Text(*L, "LinelBernr"), "3"));
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "Riss 13\n"}, {"Wert(1)", "4\n"}}));
  auto P = Verbinde("08.40");
  Tippe(*P, "PolelGitter", "2003\n");
  Tippe(*L, "LinelGitter", "2003\n");  // under its own plan, whatever was typed since
  EXPECT_EQ(Anzahl(Stapeltext(), "RISS       Riss 12\r\nBERNR      3\r\n"), 1);
  EXPECT_EQ(Anzahl(Protokoll(), "|VR 24.40  Linienelemente  (Riss 12) 3 "), 1);
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  auto D = Öffne("22.10");
  EXPECT_EQ(Text(*D, "DisRi_bez"), "Riss 13");  // cancel keeps the old values
}

TEST_F(BlattTest, TastenZählenDieLetzteNummer) {
  auto B = Öffne("24.40");
  EXPECT_FALSE(B->TasteDrücken(Taste::Plus));  // no number yet: the key is left to the text
  LetztePunktnummer = "12A";
  EXPECT_TRUE(B->TasteDrücken(Taste::Minus));
  EXPECT_EQ(Text(*B, "LinelAnfPnr"), "11");
}

TEST_F(BlattTest, NachlaufLäßtSichStoppen) {
  const std::string Anschluss = "PAN 1001\r\nPEN 1002\r\n",
                    Linie = "M VR 24.40 x\r\n" + Anschluss + "NR 2003\r\nE\r\n";
  Schreibe(StapelDatei.Name, Linie + "M VR 08.40 x\r\n" + Anschluss + "NR 77\r\nNR 2004\r\nE\r\n" + Linie);
  Skript.Hält = true;
  Starten();
  ASSERT_TRUE(Stapel.Aktiv && Blätter.back()->Offen());
  Formular& Erstes = *Blätter.back();
  EXPECT_EQ(Erstes.Fokus()->Name, "LinelWeiter");
  Tippe(Erstes, "LinelGitter", "2004\n");  // there is nothing to type
  for (const char* Zu : {"LinelAnfPnr", "LinelEndmass", "LinelPnrvon", "LinelEnd10", "LinelDelete"})
    EXPECT_FALSE(Formular::NimmtFokus(Element(Erstes, Zu))) << Zu;
  EXPECT_EQ(Protokoll(), "");
  EXPECT_EQ(StapelStand(), "Block 1 von 3, VR 24.40 x, Zeile 3");
  Drücke(Erstes, "LinelWeiter");  // the next block is shown when this one is done
  ASSERT_TRUE(Gleich(Erstes.Offen(), false, Blätter.size(), 2U));
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Skript.BeiEreignissen = [&] {
    Drücke(*Blätter.back(), "PolelStop");
    EXPECT_TRUE(Stapel.Läuft());  // no other replay may begin before its last row is done
  };
  Drücke(*Blätter.back(), "PolelWeiter");  // stopped after the running row
  EXPECT_FALSE(Stapel.Läuft());
  EXPECT_EQ(Blätter.size(), 2U);
  EXPECT_EQ(StapelStand(),
            "Stapel abgebrochen bei Block 2 von 3: 2 Blöcke, 1 Zeile, 1 ohne Ergebnis, 0 Marken");
  EXPECT_EQ(StapelBericht(), std::vector<std::string>{"ohne Ergebnis: VR 08.40 x, Zeile 9: Punkt 77 fehlt"});
  EXPECT_FALSE(Stapel.Bilanz.Fehler);
  EXPECT_TRUE(Blätter.back()->Offen());  // to be read
  // The next run takes its place. Halting is of each run's own; Escape stops, as the image does.
  Starten();
  EXPECT_FALSE(Blätter[1]->Offen());
  auto& Halten = Element<Auswahl>(*Blätter[2], "LinelHalten");
  EXPECT_TRUE(Halten.Gewählt);
  Blätter[2]->Wählen(Halten, "", false);
  Skript.BeiEreignissen = [] {};
  Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Drücke(*Blätter[2], "LinelWeiter");
  EXPECT_EQ(Blätter.size(), 5U);
  EXPECT_EQ(StapelStand(), "Stapel beendet: 3 Blöcke, 3 Zeilen, 1 ohne Ergebnis, 0 Marken");
  EXPECT_EQ(*Gitterfeld(*Blätter[4]).Zeile, 1);
  EXPECT_TRUE(Blätter[4]->TasteDrücken(Taste::Auf));
  EXPECT_EQ(*Gitterfeld(*Blätter[4]).Zeile, 0);
  Starten();
  EXPECT_TRUE(Blätter[5]->TasteDrücken(Taste::Escape));
  EXPECT_EQ(StapelStand(), "Stapel abgebrochen bei Block 1 von 3: 1 Block, 0 Zeilen, 0 Marken");
}

// A file whose blocks lost their ends: what can be calculated is, and each tear is named.
TEST_F(BlattTest, NachlaufGehtHinterEinemRißWeiter) {
  const std::string Kopf = "M VR 24.40 x\r\nPAN 1001\r\n", Rest = "PEN 1002\r\nNR 2003\r\n";
  Schreibe(StapelDatei.Name, Kopf + Rest + Kopf + Kopf + Rest + "E\r\n" + Kopf + Rest);
  Skript.Erwarte("Fehler 5 beim Lesen der Stapeldatei:\nM VR 24.40 x");
  Skript.Erwarte("Fehler 7 beim Lesen der Stapeldatei:\nM VR 24.40 x");
  Skript.Erwarte("Unerwartetes Dateiende");
  EXPECT_EQ(Anzahl(Nachlauf(), "   2003\r\n"), 3);
  EXPECT_EQ(StapelBericht(), (std::vector<std::string>{"ohne Ende: Block 1, VR 24.40 x, Zeile 5",
                                                       "ohne Ende: Block 2, VR 24.40 x, Zeile 7",
                                                       "ohne Ende: Block 4, VR 24.40 x, Zeile 15"}));
  EXPECT_TRUE(Stapel.Bilanz.Fehler);
}

TEST_F(BlattTest, NachlaufNenntDenGrund) {
  const struct {
    const char *Satz, *Grund;
  } Fälle[] = {
      {"M VR 24.40 x\r\nPAN 1001 5\r\nPEN 1002 5\r\n", "Anlegemaß und Endmaß sind gleich"},
      {"M VR 08.40 x\r\nPAN 1001\r\nPEN 1001\r\n", "Anfangs- und Endpunkt sind gleich"},
      {"M VR 22.10 x\r\nPAN 1001\r\nPEN 1001\r\n", "Anfangs- und Endpunkt sind gleich"},
  };
  for (const auto& F : Fälle) {
    Schreibe(StapelDatei.Name, F.Satz);
    Skript.Erwarte("Zeile: 3\n" + std::string(F.Grund));
    Starten();
    EXPECT_TRUE(Stapel.Bilanz.Fehler);
    EXPECT_FALSE(Blätter.back()->Offen());
  }
  Schreibe(StapelDatei.Name, "M VR 22.10 x\r\nPAN 1001\r\nPEN 1002\r\nNND 1001 1001 0\r\nE\r\n");
  Starten();
  EXPECT_EQ(StapelBericht(), std::vector<std::string>{
                                 "ohne Ergebnis: VR 22.10 x, Zeile 4: Anfangs- und Endpunkt sind gleich"});
}

TEST_F(BlattTest, NachlaufOhnePunktLäßtDieZeileAus) {
  Schreibe(StapelDatei.Name,
           "M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 77\r\nNR 2003\r\nE\r\n"
           "M VR 24.40 x\r\nPAN 77\r\nPEN 1002\r\n");
  for (int i = 0; i < 2; ++i) Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
  Skript.Erwarte("Zeile: 9\nAnschlußpunkt 77 fehlt");
  EXPECT_EQ(Anzahl(Nachlauf(), "   2003\r\n"), 1);
  EXPECT_TRUE(Gleich(Stapel.Bilanz.Zeilen, 1, Stapel.Bilanz.Fehler, true));
}

TEST_F(BlattTest, NachlaufOhneProtokolldateiEndetMitFehler) {
  Schreibe(StapelDatei.Name, "M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nNR 2004\r\nE\r\n");
  ProtokollNehmen(Ordner.Pfad("fehlt/n.dru"));
  Skript.Erwarte("Fehler aufgetreten beim Schreiben in\n" + Prot.Datei);
  Skript.Erwarte("Zeile: 4\nZeile nicht geschrieben");
  StapelStarten(StapelDatei.Name);
  EXPECT_TRUE(Gleich(Stapel.Bilanz.Fehler, true, Stapel.Bilanz.Zeilen, 0));
}

TEST_F(BlattTest, NeupunktEintragenFragtNurBeiAndererLage) {
  Punktnotiz Notiz;
  Wert Pnr("1001");
  for (const auto& [R, Hoehe] : {std::pair{3500100.0004, Wert(NullWert{})}, {3500100.0, Wert(12.5)}}) {
    EXPECT_EQ(NeupunktEintragen(Pnr, R, 5600200, Hoehe, "", nullptr, Notiz), 0);
    EXPECT_EQ(Notiz.Code, NeupunktCode::Neu);
  }
  int Gefragt = 0;
  Haken.PunktVorhandenBehandeln = [&](const Konflikt&) {
    return ++Gefragt == 1 ? Konfliktantwort{} : Konfliktantwort{Konfliktwort::NeuenNeunum, "9002"};
  };
  EXPECT_EQ(NeupunktEintragen(Pnr, 3500100, 5600200, 12.6, "", nullptr, Notiz), -1);
  EXPECT_EQ(NeupunktEintragen(Pnr, 3500100.02, 5600199.98, 0.0, "", nullptr, Notiz), 5);
  EXPECT_TRUE(Gleich(Pnr.Text(), "9002", Notiz.Code, NeupunktCode::NeuerNeunum, Notiz.Nummer, "9002"));
}

// What the worksheets mark in the graphics view, on a picture of 2 twips a metre; whoever closes takes all
// away.
TEST_F(BlattTest, MarkenInDerGrafik) {
  GrafikLeeren();
  GrafikFenster = {true, 400, 400, 2, 3500050, 5600190, 200, 200, 0, 0, 0, 0, false};
  const auto Leer = Gezeichnet();
  const auto Neues = [&] {  // beside the points of the table
    std::vector<std::string> Alle = Gezeichnet(), Rest;
    for (const std::string& Z : Alle) {
      if (std::find(Leer.begin(), Leer.end(), Z) == Leer.end()) Rest.push_back(Z);
    }
    return Rest;
  };
  using Liste = std::vector<std::string>;
  const Liste Anschluß{"Linie 100 380 220 220 f255", "Scheibe 100 380 50 f255", "Text 1001 190 380 f255",
                       "Scheibe 220 220 50 f255", "Text 1002 310 220 f255"};
  auto L = Verbinde("24.40");
  EXPECT_EQ(Neues(), Anschluß);
  Element<Gitter>(*L, "LinelGitter").Zeile = 0;
  L->Tippen(Element<Gitter>(*L, "LinelGitter"), "2004");
  L->FokusWechseln(Element(*L, "LinelPnrvon"));  // computed, not yet written
  const auto Blau = Neues();
  EXPECT_EQ(Blau[1], "Strichlinie 172 284 100 230 f16711680");  // from the foot point, dashed
  EXPECT_EQ(Blau.size(), Anschluß.size() + 1 + 2);
  EXPECT_EQ(Blau.back(), "Linie 52 278 148 182 f16711680");  // a slanted cross
  Tippe(*L, "LinelGitter", "\n");
  EXPECT_EQ(Neues()[1], "Linie 172 284 100 230 f255");
  EXPECT_EQ(Neues().back(), "Text 2004 190 230 f255");
  Element<Gitter>(*L, "LinelGitter").Zeile = 0;
  Drücke(*L, "LinelDelete");
  EXPECT_EQ(Neues(), Anschluß);
  Tippe(*L, "LinelPnrvon", "2003\n2004\n7\n");
  EXPECT_EQ(Neues()[1], "Strichlinie 89 372 209 212 f255");
  EXPECT_EQ(Neues()[2], "Strichlinie 111 388 231 228 f255");
  EXPECT_EQ(Neues().size(), Anschluß.size() + 2 + 4);
  Drücke(*L, "LinelEnd10");
  EXPECT_EQ(Neues(), Anschluß);
  L->SchließenVerlangen();
  EXPECT_EQ(Gezeichnet(), Leer);
  auto P = Verbinde("08.40");
  Tippe(*P, "PolelGitter", "2003\n");
  EXPECT_EQ(Neues()[1], "Linie 100 380 160 320 f255");  // a ray from the station
  P->SchließenVerlangen();
  auto D = Öffne("22.10");
  Tippe(*D, "DisAnfPnr", "1001\n1002\n0\n");
  EXPECT_EQ(Neues()[0], "Linie 100 380 220 220 f255");
  D->SchließenVerlangen();
  EXPECT_EQ(Gezeichnet(), Leer);
}

// The example job: what each worksheet has marked before it closes.
TEST_F(BlattTest, MarkenDesBeispiels) {
  const std::string Beispiel = std::string(TAVORENA_TESTS) + "/../examples/musterdorf.";
  ASSERT_EQ(KorLesen(Beispiel + "kor", Lesemodus::Ersetzen, Dateiformat::Kor), 0);
  GrafikLeeren();
  GrafikFenster = {};
  GrafikÖffnen(9000, 9000);
  const auto Punkte = Gezeichnet();
  const std::set<std::string> Leer(Punkte.begin(), Punkte.end());
  std::vector<std::string> Vollste;
  std::string Alle;
  GrafikBeiÄnderung = [&](const std::optional<Grafikregion>&) {
    std::vector<std::string> Marken;
    for (const std::string& Z : Gezeichnet()) {
      if (!Leer.contains(Z)) Marken.push_back(Z);
    }
    if (Marken.size() >= Vollste.size()) Vollste = Marken;
    if (!Marken.empty()) return;
    if (Vollste.size() <= 2) return;  // one end of a connection
    for (const std::string& Z : Vollste) Alle += Z + "\n";
    Alle += "\n";
    Vollste.clear();
  };
  StapelDatei.Name = Beispiel + "sta";
  Starten();
  Blätter.clear();
  GrafikBeiÄnderung = {};
  EXPECT_TRUE(GleichSoll(Alle, "worksheets/soll/beispiel_marken.txt"));
}

// What holds for every kind of worksheet.
TEST(Blattarten, SindVollständig) {
  for (const Blattart& Art : Blattarten()) {
    SCOPED_TRACE(Art.Formname);
    for (const char* Kennung : Art.Kennungen) {
      EXPECT_TRUE(Kennung == nullptr || BlattartVonKennung(Kennung) == &Art) << Kennung;
    }
    const std::string Titel = Großtext(Art.VR);
    EXPECT_TRUE(Art.Kennungen[0] == nullptr ||
                (Titel.starts_with("3D ") ? Titel : Titel.substr(3, 5)) == Art.Kennungen[0]);
    EXPECT_EQ(BlattartVonMenü(Art.Menü), &Art);
    const auto Blatt = Art.Neu(Art);
    EXPECT_EQ(Blatt->FormName, Art.Formname);
    EXPECT_EQ(Blatt->Hilfenummer, Art.Hilfenummer);
    for (const char* Rest : {"End", "Stop", "Weiter"})
      EXPECT_NE(Blatt->Finde(Art.Präfix + std::string(Rest)), nullptr) << Rest;
  }
  for (const char* Ähnlich : {"MITTE", "3D 24.40", "3D KANAL", "25.10"})
    EXPECT_EQ(BlattartVonKennung(Ähnlich), nullptr) << Ähnlich;
}

}  // namespace
}  // namespace tavorena::test
