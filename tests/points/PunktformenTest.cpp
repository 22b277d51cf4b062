#include "Aktentest.h"
#include "Formulartest.h"
#include "Mitschrift.h"

#include <tavorena/points/TVBerichForm.h>
#include <tavorena/points/TVDMittForm.h>
#include <tavorena/points/TVPLoeschForm.h>
#include <tavorena/points/TVPMittForm.h>
#include <tavorena/points/TVPSelectForm.h>

namespace tavorena::test {
namespace {

// A walk through each form; at its end all is taken back, and the table is as it was.
class Punktformen : public Aktentest {
 protected:
  Punktformen() {
    for (const KorSatz& P : {KorSatz{"1", 100, 200, 10, "015"},
                             {"2", 110, 200},
                             {"2", 110.05, 200, 12, "02"},
                             {"3", 120, 200},
                             {"8A", 130, 200}})
      EXPECT_EQ(KorAnhängen(P), 0);
    Vorher = Tabelle();
  }
  static std::vector<Punktsatz> Tabelle() {
    std::vector<Punktsatz> Alle;
    for (int z = 0; z < KorAnzahl; ++z) Alle.push_back(PunktsatzVon(z));
    return Alle;
  }
  static std::string Nummern() {
    std::string Alle;
    for (int z = 0; z < KorAnzahl; ++z) Alle += KorPnr(z) + " ";
    return Alle;
  }
  void NimmZurück(Formular& Form) {
    while (Form.RücknahmeVerlangen()) {
    }
    EXPECT_EQ(Tabelle(), Vorher) << Nummern();
  }
  // What another window does to a point.
  static void Verschiebe(int Zeile) {
    Punktsatz P = PunktsatzVon(Zeile);
    P.Rechts += 1;
    EXPECT_EQ(KorZeileSetzen(Zeile, P.Satz()), 0);
  }
  // The discs in the view and the two strokes of a blue cross.
  static std::ptrdiff_t Marken() {
    const auto Bild = Gezeichnet();
    const std::string Blau = " f" + std::to_string(FarbeBlau);
    return std::count_if(Bild.begin(), Bild.end(),
                         [&](const auto& B) { return B.starts_with("Scheibe") || B.ends_with(Blau); });
  }
  std::vector<Punktsatz> Vorher;
};

TEST_F(Punktformen, Löschen) {
  TVPLoeschForm Form;
  Form.Öffnen();
  Gitter& Liste = Gitterfeld(Form);
  EXPECT_EQ(Tippe(Form, "LoeschPnr", "2\n+"), "LoeschPnr");
  EXPECT_EQ(Text(Form, "LoeschPnr"), "3");  // behind the number entered last
  Skript.Erwarte("Punkt 9 nicht vorhanden");
  Tippe(Form, "LoeschPnr", "1\n9\n");
  Form.Markieren(Liste, 0, false);
  // One row of a number that stands twice goes, and it is the one with the mark.
  Skript.Erwarte("Punkte 1, 2 löschen ?", KnopfJa);
  Drücke(Form, "LoeschPunkte");
  EXPECT_TRUE(
      Gleich(Nummern(), "2 3 8A ", KorRechts[0], 110, Liste.Zeilen(), 1, Liste.Markierte().empty(), true));
  EXPECT_TRUE(Gleich(Text(Form, "LoeschRückgängig"), "Rückgängig: Lösche 2 Punkte"));
  NimmZurück(Form);
  EXPECT_EQ(KorAnhängen(Vorher[3].Satz()), 0);  // twice the same
  Tippe(Form, "LoeschPnrvon", "3\n8\n");
  Skript.Formulare.push_back(Bediene({{"Alle", ""}, {"OK", ""}}));
  Drücke(Form, "LoeschSelektion");
  EXPECT_EQ(Liste.Zeilen(), 6);
  // Points that another window changed or moved are not deleted unseen.
  Verschiebe(0);
  KorSortieren();
  Drücke(Form, "LoeschPunkte");
  EXPECT_TRUE(Gleich(Liste.Zeilen(), 5, KorAnzahl, 6));
  Skript.Erwarte("Punkte 2, 3, 3, 8A löschen ?", KnopfJa);
  Drücke(Form, "LoeschPunkte");
  EXPECT_EQ(Nummern(), "1 2 ");
  Form.Markieren(Liste, 0, false);
  Skript.Erwarte("1 gewählter Punkt ist nicht gelöscht", KnopfNein);
  Form.SchließenVerlangen();
  EXPECT_TRUE(Form.Offen());
}

TEST_F(Punktformen, Umnumerieren) {
  TVBerichForm Form;
  Form.Öffnen();
  Skript.Erwarte("Punkt 7 nicht vorhanden");
  EXPECT_EQ(Tippe(Form, "BerichAltPnr", "7\n"), "BerichAltPnr");
  Skript.Erwarte("Punkt 3schon vorhanden !");
  EXPECT_EQ(Tippe(Form, "BerichAltPnr", "2\n3\n"), "BerichNeuPnr");
  EXPECT_EQ(Text(Form, "BerichAltRechts"), "110.000");
  Tippe(Form, "BerichNeuPnr", "9\n");
  EXPECT_TRUE(Gleich(Nummern(), "1 3 8A 9 9 ", Text(Form, "BerichNeuPnr"), ""));
  NimmZurück(Form);
  EXPECT_EQ(Tippe(Form, "BerichPnrvon", "1\n3\n2\n"), "BerichPnrvon");
  EXPECT_EQ(Nummern(), "2 3 3 4 8A ");
  NimmZurück(Form);
  // Chosen rows alone, though another one has their number.
  Skript.Formulare.push_back([](Formular& Auswahl) {
    Auswahl.Öffnen();
    Gitterfeld(Auswahl).MarkeSetzen(2, true);
    Gitterfeld(Auswahl).MarkeSetzen(3, true);
    Drücke(Auswahl, "OK");
  });
  EXPECT_EQ(Drücke(Form, "BerichSelektion"), "BerichStartPnr");
  Tippe(Form, "BerichStartPnr", "50");
  Skript.Erwarte("nicht vergeben", KnopfNein);
  EXPECT_FALSE(Form.OffenesKlären());
  Tippe(Form, "BerichStartPnr", "50\n");
  EXPECT_TRUE(Gleich(Nummern(), "1 2 8A 50 51 ", KorRechts[3], 110.05));
  Stapel.Aktiv = true;  // the table is now that of the replay
  Drücke(Form, "BerichRückgängig");
  EXPECT_EQ(Nummern(), "1 2 8A 50 51 ");
  Stapel = {};
  NimmZurück(Form);
}

TEST_F(Punktformen, MittelDoppelter) {
  for (const double R : {130.0, 130.03, 130.06}) EXPECT_EQ(KorAnhängen({"8A", R, 200}), 0);
  KorInfoSatz Info;
  Info.Punktart = 7;
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(KorAnhängen({"20", i < 8 ? 0 : 100.0 * i, i * 0.01, 0, "", i < 8 ? &Info : nullptr}), 0);
  KorSortieren();
  Vorher = Tabelle();
  TVDMittForm Form;
  Form.Öffnen();
  EXPECT_TRUE(Gleich(Text(Form, "NeuerPunktRechts"), "110.025", Text(Form, "NeuerPunktHöhe"), "12.000",
                     Text(Form, "NeuerPunktSymbol"), "02", Text(Form, "AlterPunktBem(0)"), ""));
  EXPECT_FALSE(*Form.Finde("AlterPunktPnr(2)")->Sichtbar);
  Skript.Erwarte("Punkt 3schon vorhanden !");
  EXPECT_EQ(Tippe(Form, "AlterPunktPnr(1)", "3\n"), "AlterPunktPnr(1)");
  Skript.Erwarte("nicht vergeben", KnopfNein);
  EXPECT_FALSE(Form.OffenesKlären());
  Tippe(Form, "AlterPunktPnr(1)", "2");
  Drücke(Form, "DMittMitteln");
  EXPECT_TRUE(
      Gleich(KorAnzahl, 17, Text(Form, "AlterPunktPnr(0)"), "8A", Text(Form, "AlterPunktBem(3)"), "W>D"));
  // A row leaves the group by its new number, the others stay at their places.
  Tippe(Form, "AlterPunktPnr(0)", "8B");
  EXPECT_EQ(Drücke(Form, "DMittWeiter"), "DMittMitteln");
  EXPECT_TRUE(Gleich(Text(Form, "AlterPunktPnr(0)"), "20", Nummern().find("8B ") != std::string::npos, true));
  EXPECT_TRUE(Form.RücknahmeVerlangen());
  // Eight of ten, then their mean with the rest, wherever the table has it.
  Drücke(Form, "DMittMitteln");
  EXPECT_TRUE(Gleich(Text(Form, "AlterPunktHoch(0)"), "0.035", KorAnzahl, 10));
  Skript.Erwarte("Punkt 20 löschen ?", KnopfJa);
  Drücke(Form, "AlterPunktLöschen(1)");
  EXPECT_EQ(Text(Form, "AlterPunktRechts(2)"), "800.000");  // stays at its place
  EXPECT_EQ(KorLoeschen(0), 0);                             // what another window did has to be seen first
  Drücke(Form, "DMittMitteln");
  EXPECT_EQ(KorAnzahl, 8);
  Drücke(Form, "DMittMitteln");
  EXPECT_TRUE(Gleich(Nummern(), "2 3 8A 8A 8A 8A 20 ", KorInfo[6].Punktart, 7, Form.Offen(), false));
}

TEST_F(Punktformen, MittelVerschiedener) {
  GrafikLeeren();
  GrafikFenster = {true, 4000, 4000, 40, 80, 160, 100, 100, 0, 0, 0, 0, false};
  TVPMittForm Form(Mittelart::Ersetzen);
  Form.Öffnen();
  EXPECT_EQ(Tippe(Form, "AlterPunktPnr(0)", "3\n1\n"), "AlterPunktPnr(2)");
  Skript.Erwarte("zweimal");
  EXPECT_EQ(Tippe(Form, "AlterPunktPnr(2)", "3\n"), "AlterPunktPnr(2)");
  Haken.FormEinzelKorein = [](Wert& Pnr) {
    Punkt("7", 116, 200);
    Pnr = Wert("7");
    return 1;
  };
  EXPECT_EQ(Tippe(Form, "AlterPunktPnr(2)", "77\n\n"), "NeuerPunktPnr");
  EXPECT_TRUE(Gleich(Text(Form, "AlterPunktPnr(2)"), "7", Text(Form, "NeuerPunktRechts"), "112.000",
                     Text(Form, "NeuerPunktPnr"), "3", Text(Form, "AlterPunktDs(2)"), "4.000",
                     Text(Form, "AlterPunktBem(2)"), "W>D(max)"));
  EXPECT_EQ(Marken(), 3 + 2);
  Drücke(Form, "AlterPunktWegnehmen(2)");
  Vorher = Tabelle();
  Tippe(Form, "NeuerPunktPnr", "8A\n123456\n");
  EXPECT_TRUE(Feld(Form, "NeuerPunktHöhe").Fehlerhaft);
  Tippe(Form, "NeuerPunktHöhe", "5,5\n030");
  // The number of another point: broken off, nothing is lost, neither in the table nor in the form.
  Haken.PunktVorhandenBehandeln = [](const Konflikt&) { return Konfliktantwort{}; };
  Drücke(Form, "PunktErzeugen");
  EXPECT_EQ(Tabelle(), Vorher);
  Verschiebe(0);  // another window moves a point: the mean follows, and is looked at first
  Tippe(Form, "NeuerPunktPnr", "3");
  Drücke(Form, "PunktErzeugen");
  EXPECT_TRUE(Gleich(KorAnzahl, 6, Text(Form, "NeuerPunktRechts"), "110.500"));
  Vorher = Tabelle();
  Tippe(Form, "NeuerPunktHöhe", "5.5\n030\n");
  EXPECT_EQ(Nummern(), "2 2 3 7 8A ");
  EXPECT_TRUE(Gleich(KorRechts[2], 110.5, KorHoehe[2], 5.5, KorSymbol[2], "030", Marken(), 0));
  NimmZurück(Form);
  Tippe(Form, "AlterPunktPnr(0)", "1\n3\n");
  Skript.Erwarte("noch nicht erzeugt", KnopfJa);
  Form.SchließenVerlangen();
  EXPECT_TRUE(Gleich(Form.Offen(), false, Marken(), 0));
}

TEST_F(Punktformen, Auswahl) {
  const std::string Sel = Ordner.Pfad("a");
  std::vector<int> Zeilen;
  Skript.Dateien = {Sel, Sel + ".sel"};
  Skript.Erwarte("erste Nummer ist größer");
  Skript.Erwarte("1 Zeile nennt keinen Punkt");
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    const Gitter& Liste = Gitterfeld(Form);
    Tippe(Form, "PSelectPnrvon", "3\n1\n");
    Tippe(Form, "PSelectPnrvon", "2\n3\n");
    EXPECT_EQ(Liste.Markierte(), (std::vector{1, 2, 3}));
    Drücke(Form, "SelSpeichern");
    EXPECT_EQ(Inhalt(Sel + ".sel"), "2\r\n3\r\n");
    Schreibe(Sel + ".sel", "2\n8A\n3000");
    Drücke(Form, "Keine");
    Drücke(Form, "SelLesen");
    Drücke(Form, "OK");
  });
  EXPECT_EQ(TabellenpunkteAuswählen(Zeilen), 0);
  EXPECT_EQ(Zeilen, (std::vector{1, 2, 4}));
}

}  // namespace
}  // namespace tavorena::test
