#include "Blattest.h"
#include "Mitschrift.h"

#include <algorithm>

#include <tavorena/core/Text.h>
#include <tavorena/graphics/Abgriff.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

// An open worksheet, and a rectangle of 40 m by 30 m both in Gauss-Krüger and in local coordinates.
class Flächenblatt : public Blatttest {
 protected:
  Flächenblatt() {
    PunkteAnlegen({{"31", 3500100, 5600200}, {"32", 3500100, 5600230}, {"33", 3500140, 5600230}});
    PunkteAnlegen({{"34", 3500140, 5600200}, {"41", 0, 0}, {"42", 40, 0}, {"43", 40, 30}, {"44", 20, 30}});
    Punkt("45", 0, 30);
  }
  // Types rows behind the others.
  void Reihen(const std::string& Text) {
    B->ZelleWechseln(G, G.Zeilen() - 1, 0);
    Tippe(*B, "AreaGitter", Text);
  }
  // Changes a cell, with Return.
  void Zelle(int z, int s, const std::string& Text) {
    B->FokusWechseln(G);
    B->ZelleWechseln(G, z, s);
    B->Tippen(G, Text);
    B->TasteDrücken(Taste::Return);
  }
  [[nodiscard]] std::string Summen() const {
    return Text(*B, "AreaFlaeche") + " " + Text(*B, "AreaGKred") + " " + Text(*B, "AreaUmring") + " " +
           Text(*B, "AreaBogen");
  }
  [[nodiscard]] std::string Status() const { return Trimmen(Skript.Status[4]); }

  std::unique_ptr<Formular> B = Öffne("65.00");
  Gitter& G = Gitterfeld(*B);
};

// Two boundaries: one of the field book, one of arcs with lengths on both sides of their limits.
TEST_F(Flächenblatt, SchreibtIhreDateien) {
  EXPECT_EQ(Tippe(*B, "AreaName", "Flurstück 12/3\n Ost \n"), "AreaGitter");
  Reihen("31\n\n30,02\n32\n25\n\n33\n\n\n34\n\n\n");
  EXPECT_EQ(Gitterzeile(G, 0),
            (Texte{"31", "3500100.000", "5600200.000", "", "30.020", "30.000", "-0.020", "0.103"}));
  EXPECT_EQ(Gitterzeile(G, 1), (Texte{"32", "3500100.000", "5600230.000", "25.000", "", "46.365", "", ""}));
  EXPECT_EQ(Summen(), "1479.560 1479.560 146.365 279.560");
  EXPECT_FALSE(DateiVorhanden(Prot.Datei));
  Drücke(*B, "AreaSchreiben");
  const std::string Einmal = Protokoll();
  Drücke(*B, "AreaSchreiben");
  EXPECT_TRUE(
      Gleich(Status(), "Schon geschrieben, seither ist nichts geändert", Protokoll() == Einmal, true));

  Drücke(*B, "AreaFelderClear");  // written: it does not ask
  Reihen("41\n25 g\n110,66\n42\n-15\n47,084\n43\n\n19,909\n44\n\n19,908\n45\n14,999\n30\n");
  EXPECT_TRUE(Gleich(G.Inhalt(0, 3), "25.000G", G.Inhalt(4, 5), "0.000", G.Auffällig(4, 3), true,
                     G.Auffällig(2, 6), false, G.Auffällig(3, 6), true, G.Auffällig(3, 7), false));
  EXPECT_EQ(Status(), "Zeile 5: Sehne länger als der Durchmesser, der Bogen zählt nicht");
  EXPECT_EQ(Summen().substr(0, 25), "2530.507 keine GK-Koord. ");
  Drücke(*B, "AreaSchreiben");
  Drücke(*B, "AreaEnd");
  EXPECT_FALSE(B->Offen());
  PrüfeDateien("area", 9);
  EXPECT_EQ(*Blätter.back()->Titel, "Tavorena Flächenberechnung [Stapel]");
}

// The proof is appended, read again, and brings the points that the table lacks.
TEST_F(Flächenblatt, NachweisHinUndZurück) {
  const std::string Datei = Ordner.Pfad("a.pol");
  Tippe(*B, "AreaName", "Flurstück 12/3\n\n");
  Reihen("31\n-25\n\n32\n25G\n\n33\n\n\n34\n\n\n");
  const std::string Vorher = Summen();
  Skript.Formulare = {Bediene({{"Wert(0)", "0"}, {"Wert(1)", "3"}, {"OK", ""}}),
                      Bediene({{"Wert(0)", "4"}, {"OK", ""}})};
  Skript.Erwarte("zwischen 1 und 999");
  Skript.Dateien = {Ordner.Pfad("a"), Datei};
  Drücke(*B, "AreaPol");
  const std::string Erster = Inhalt(Datei);
  Schreibe(Datei, Erster.substr(0, Erster.size() - 1));  // an editor took the form feed away
  Tippe(*B, "AreaName", "zweites\n");
  Skript.Formulare = {Bediene({{"OK", ""}}), Bediene({{"Knopf(0)", ""}})};  // the next page, Anhängen
  Drücke(*B, "AreaPol");
  EXPECT_TRUE(GleichSoll(Inhalt(Datei), "worksheets/soll/area.pol"));

  for (const char* Pnr : {"31", "33"}) static_cast<void>(KorLoeschen(KorSuche(std::string_view(Pnr))));
  const int Punkte = KorAnzahl;
  Tippe(*B, "AreaName", "drittes\n");
  const auto Lesen = [&](int Leeren, int Speichern) {
    Skript.Dateien.push_back(Datei);
    Skript.Formulare.push_back([](Formular& Form) {
      Form.Öffnen();
      Form.Wählen(Element<Auswahl>(Form, "Liste"), "2: zweites", true);
      Drücke(Form, "OK");
    });
    Skript.Erwarte("Felder leeren, ohne zu schreiben ? ", Leeren);
    if (Leeren == KnopfJa) Skript.Erwarte("2 Punkte fehlen in der Tabelle. ", Speichern);
    Drücke(*B, "AreaPolLesen");
  };
  Lesen(KnopfNein, 0);
  Lesen(KnopfJa, KnopfNein);
  EXPECT_TRUE(Gleich(Text(*B, "AreaName"), "drittes", KorAnzahl, Punkte));
  Lesen(KnopfJa, KnopfJa);
  EXPECT_TRUE(Gleich(Text(*B, "AreaName"), "zweites", KorAnzahl, Punkte + 2, G.Inhalt(1, 3), "25.000G",
                     G.Inhalt(0, 5), "32.175", Summen(), Vorher));
  EXPECT_TRUE(B->RücknahmeVerlangen());
  EXPECT_EQ(KorAnzahl, Punkte);
}

TEST_F(Flächenblatt, SagtWasFalschIst) {
  Reihen("31\n\n\n32\n\n\n33\n\n\n");
  const std::string Vorher = Summen();
  const struct {
    int Spalte;
    const char *Text, *Grund;
  } Fälle[] = {{3, "x", "Zahl erwartet"},
               {3, "1e400", "Zahl erwartet"},
               {3, "0G", "Radius fehlt"},
               {3, "g", "Radius fehlt"},
               {3, "12345678", "Der Wert muß zwischen -999999.9999 und 9999999.9999 liegen"},
               {4, "nan", "Zahl erwartet"},
               {4, "-1", "Zeile 2: Grenzlänge ist negativ"}};
  for (const auto& F : Fälle) {
    Zelle(1, F.Spalte, F.Text);
    EXPECT_EQ(Status(), F.Grund) << F.Text;
    Zelle(1, F.Spalte, "");
    EXPECT_EQ(Summen(), Vorher) << F.Text;
  }
  B->ZelleWechseln(G, 1, 0);
  Drücke(*B, "AreaGitterInsert");
  EXPECT_EQ(Summen(), "   ");
  EXPECT_EQ(Drücke(*B, "AreaSchreiben"), "AreaGitter");
  EXPECT_TRUE(Gleich(Status(), "Zeile 2: Punktnummer fehlt", *G.Zeile, 1, DateiVorhanden(Prot.Datei), false));
}

// There and back along two lines 30 m apart.
TEST_F(Flächenblatt, FünftausendPunkte) {
  B->Schließen();
  constexpr int n = 5000;
  std::string Sätze = "M VR 65.00 Fläche\r\n";
  for (int i = 0; i < n; ++i) {
    const std::string Pnr = std::to_string(10000 + i);
    ASSERT_EQ(KorAnhängen({Pnr, i < n / 2 ? i : n - 1.0 - i, i < n / 2 ? 0.0 : 30}), 0);
    Sätze += "PN " + Pnr + "\r\n";
  }
  Schreibe(StapelDatei.Name, Sätze + "E\r\n");
  Starten();
  EXPECT_TRUE(Gleich(Stapel.Bilanz.Zeilen, n, Text(*Blätter.back(), "AreaFlaeche"), "74970.000"));
}

// A full circle, and what a boundary leaves in the view while it is typed; 2 twips a metre.
TEST_F(Flächenblatt, GrenzeInDerGrafik) {
  GrafikLeeren();
  GrafikWahl = {false, false, false};
  GrafikFenster = {true, 400, 400, 2, 3500050, 5600150, 200, 200, 0, 0, 0, 0, false};
  const auto Leer = Gezeichnet();
  const auto Neues = [&] {
    Texte Rest;
    for (const std::string& Z : Gezeichnet()) {
      if (std::find(Leer.begin(), Leer.end(), Z) == Leer.end()) Rest.push_back(Z);
    }
    std::sort(Rest.begin(), Rest.end());
    return Rest;
  };
  B->FokusWechseln(G);
  ASSERT_TRUE(AbgriffNehmen(*B, "2003"));
  ASSERT_TRUE(AbgriffNehmen(*B, "31"));  // the next point, not another one for the row
  EXPECT_TRUE(Gleich(G.Zeilen(), 3, G.Inhalt(0, 0), "2003", G.Inhalt(1, 0), "31"));
  B->ZelleWechseln(G, 0, 3);
  ASSERT_TRUE(AbgriffNehmen(*B, "32"));  // here it is another one
  EXPECT_TRUE(Gleich(G.Zeilen(), 3, G.Inhalt(0, 0), "32"));
  B->ZelleWechseln(G, 0, 0);
  Drücke(*B, "AreaGitterDelete");
  Zelle(0, 3, "15");
  EXPECT_EQ(Summen().substr(0, 7), "706.858");
  EXPECT_EQ(Neues().front(), "Bogen 100 300 30 0 360 f255");
  Reihen("32\n\n\n33\n25G\n\n");
  const auto Steht = [&](const char* Zeile) {
    const Texte Alle = Neues();
    return std::count(Alle.begin(), Alle.end(), Zeile) == 1;
  };
  EXPECT_TRUE(Steht("Bogen 140 270 50 217 37 f255"));
  Zelle(1, 0, "2003");
  EXPECT_TRUE(Steht("Linie 100 300 160 240 f255"));  // the edge before it, too long for its arc
  Zelle(1, 0, "34");                                 // the other way round: all arcs turn
  EXPECT_TRUE(Steht("Bogen 140 270 50 37 217 f255"));
  Zelle(1, 0, "32");
  Reihen("34\n\n\n");  // clockwise: a semicircle to the west, a long arc to the east
  const Texte Ganz = Neues();
  EXPECT_EQ(Ganz,
            (Texte{"Bogen 100 270 30 90 270 f255", "Bogen 220 270 50 217 143 f255",
                   "Linie 100 240 180 240 f255", "Linie 180 300 100 300 f255", "Scheibe 100 240 50 f255",
                   "Scheibe 100 300 50 f255", "Scheibe 180 240 50 f255", "Scheibe 180 300 50 f255"}));
  B->ZelleWechseln(G, 1, 0);
  Drücke(*B, "AreaGitterInsert");
  Zelle(1, 0, "2003");
  EXPECT_EQ(Neues().size(), 10U);
  B->ZelleWechseln(G, 1, 0);
  Drücke(*B, "AreaGitterDelete");
  EXPECT_EQ(Neues(), Ganz);
  B->Schließen();
  EXPECT_EQ(Gezeichnet(), Leer);
}

}  // namespace
}  // namespace tavorena::test
