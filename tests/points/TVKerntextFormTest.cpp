#include "Aktentest.h"
#include "Formulartest.h"

#include <tavorena/points/Ruecknahme.h>
#include <tavorena/points/TVKerntextForm.h>

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

class TVKerntextFormTest : public Aktentest {
 protected:
  TVKerntextFormTest() {
    Zeile("1", 100, 200, 10, "015");
    Zeile("2", 110, 200);
    Zeile("2", 110.05, 200, 12.5, "020");
    Zeile("3", 120, 200);
    Zeile("4", 120.004, 200.003);
    Zeile("9", 300, 200);
  }
  static void Zeile(const char* Pnr, double R, double H, double Z = 0, const char* Symbol = "") {
    EXPECT_EQ(KorAnhängen({Pnr, R, H, Z, Symbol}), 0);
  }
  Formular& Öffne(Textart Art) {
    Form = KerntextErfragen(Art);
    if (Form == nullptr) throw std::runtime_error("no list");
    Form->Öffnen();
    return *Form;
  }
  [[nodiscard]] Gitter& Tabelle() const { return Gitterfeld(*Form); }
  [[nodiscard]] Texte Spalte(int s) const {
    Texte Alle;
    for (int z = 0; z < Tabelle().Zeilen(); ++z) Alle.push_back(Tabelle().Inhalt(z, s));
    return Alle;
  }
  void Markiere(std::initializer_list<int> Zeilen) {
    for (const int z : Zeilen) Form->Markieren(Tabelle(), z, false);
  }
  static Texte Nummern() {
    Texte Alle;
    for (int z = 0; z < KorAnzahl; ++z) Alle.push_back(KorPnr(z));
    return Alle;
  }
  std::unique_ptr<TVKerntextForm> Form;
};

TEST_F(TVKerntextFormTest, WasInDenZeilenSteht) {
  Öffne(Textart::MitDoppelten);
  EXPECT_EQ(*Form->Titel, "Ansicht mit doppelten Punkten");
  EXPECT_EQ(Spalte(0), (Texte{"", "D", "D", "", "", "", ""}));
  EXPECT_EQ(Gitterzeile(Tabelle(), 2),
            (Texte{"D", "2", "110.050", "200.000", "12.500", "0.050", "", "020", "1", "2"}));
  EXPECT_EQ(Gitterzeile(Tabelle(), 3)[1], "***W>D");
  EXPECT_EQ(Element<Auswahl>(*Form, "TextanzeigeWeitere").Text, "Weitere Spalten");
  Markiere({2, 3});  // a warning can not be marked
  EXPECT_EQ(Tabelle().Markierte(), std::vector{2});
  Drücke(*Form, "TextanzeigeWarn");
  EXPECT_TRUE(Gleich(Text(*Form, "TextanzeigeWarn"), "Warnmeldung an", Tabelle().Zeilen(), 6));
  EXPECT_EQ(Spalte(0), (Texte{"", "D", "*", "", "", ""}));
  Tippe(*Form, "TextanzeigeSuchen", "4\n");
  EXPECT_TRUE(Gleich(*Tabelle().Zeile, 4, Form->Fokus(), &Tabelle()));
  Öffne(Textart::Doppelte);
  EXPECT_EQ(Spalte(1), (Texte{"2", "2", "***W>D"}));
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "0.005\n\n\n"}}));
  Öffne(Textart::Quasi);
  EXPECT_TRUE(
      Gleich(Tabelle().Spalten[5].Titel, "fs (S)", Tabelle().Zeilen(), 11, Tabelle().Inhalt(6, 5), "0.003"));
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "9\n1\n"}}));
  Öffne(Textart::Belegung);
  EXPECT_EQ(Spalte(0), (Texte{"       1 -        4  belegt       4", "       5 -        8  frei       4",
                              "       9 -        9  belegt       1"}));
}

// Each deed from the list, taken back step by step.
TEST_F(TVKerntextFormTest, TatenUndZurück) {
  const Texte Anfang = Nummern();
  Öffne(Textart::Koordinaten);
  const auto Rück = [&] { return Text(*Form, "TextanzeigeRückgängig"); };
  EXPECT_TRUE(Gleich(Rück(), "Rückgängig", *Element(*Form, "TextanzeigeRückgängig").Aktiv, false));
  Markiere({4, 5});  // rows 3 and 4, below the warning
  Skript.Erwarte("Punkte 3, 4 mitteln ?", KnopfJa);
  Drücke(*Form, "PlustextPunktemitteln");
  EXPECT_TRUE(
      Gleich(Nummern(), Texte{"1", "2", "2", "3", "9"}, Rück(), "(Rückgängig)", Tabelle().Zeilen(), 6));
  Form->ZelleWechseln(Tabelle(), 4, 1);  // without a mark it is the current one
  Skript.Erwarte("Punkt 3 löschen ?", KnopfNein);
  Drücke(*Form, "PlustextPunktlöschen");
  Skript.Erwarte("Punkt 3 löschen ?", KnopfJa);
  Drücke(*Form, "PlustextPunktlöschen");
  EXPECT_EQ(Rück(), "Rückgängig: Lösche 3");
  Markiere({0, 4});
  Skript.Erwarte("Punkt 2schon vorhanden !");
  Skript.Formulare = {Bediene({{"Wert(0)", "2"}, {"OK", ""}}), Bediene({{"Wert(0)", "77"}, {"OK", ""}})};
  Drücke(*Form, "PlustextPunktegleichePnr");
  EXPECT_TRUE(Gleich(Nummern(), Texte{"2", "2", "77", "77"}, Rück(), "Rückgängig: Numeriere 2 Punkte"));
  Stapel.Aktiv = true;  // the table belongs to the replay
  Drücke(*Form, "TextanzeigeRückgängig");
  Drücke(*Form, "PlustextPunktlöschen");
  EXPECT_TRUE(Gleich(KorAnzahl, 4, Skript.Status[4], "   Stapel noch nicht abgeschlossen   "));
  Stapel.Aktiv = false;
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(Form->RücknahmeVerlangen());
  EXPECT_TRUE(Gleich(Nummern(), Anfang, Rück(), "Rückgängig", Form->RücknahmeVerlangen(), false));
}

// Marks stay with their points, and never pass to others, whatever another form does.
TEST_F(TVKerntextFormTest, FolgtDerTabelle) {
  Öffne(Textart::Koordinaten);
  Markiere({0, 2, 5});  // 1, the second 2, 4
  Rücknahme Andere;
  Punkttat Tat;
  EXPECT_EQ(Andere.Ausführen(Tat,
                             [] {
                               ZeilenLöschen({1, 3});
                               return 0;
                             }),
            0);
  Markiere({1});  // the list is behind: the row is another one
  EXPECT_TRUE(Gleich(Spalte(1), Texte{"1", "2", "4", "9"}, Spalte(0), Texte{"*", "*", "*", ""}));
  EXPECT_EQ(Andere.Zurück(), 0);
  Form->Nachsehen();
  EXPECT_EQ(Tabelle().Markierte(), (std::vector{0, 2, 5}));
  GrafikLeeren();  // handles count from 0, whatever ran before
  Drücke(*Form, "TextanzeigeZeigen");
  EXPECT_EQ(GrafikMarkeHinzu({}), 1);
  Form->SchließenVerlangen();
  EXPECT_EQ(GrafikMarkeHinzu({}), 0);  // what the list marked is gone, though it is still there
  GrafikLeeren();
  Form->Öffnen();
  KorAbschneiden(0);
  Form->Nachsehen();
  Skript.BeiMeldung = [](const std::string& T) { ADD_FAILURE() << T; };
  for (const char* Knopf :
       {"PlustextPunktemitteln", "PlustextPunktlöschen", "PlustextPunktegleichePnr", "TextanzeigeZeigen"})
    Drücke(*Form, Knopf);
  EXPECT_EQ(Tabelle().Zeilen(), 0);
}

TEST_F(TVKerntextFormTest, Speichern) {
  KoordinatendateiName = "a.kor";
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "0.06\n"}, {"OK", ""}}));
  Öffne(Textart::Quasi);
  Skript.Dateien = {Ordner.Pfad("liste"), Ordner.Pfad("nicht/da")};
  Drücke(*Form, "MenüSpeichern");
  EXPECT_TRUE(GleichSoll(Inhalt(Ordner.Pfad("liste.txt")), "points/soll/quasi.txt"));
  Skript.Erwarte("Fehler 76 in KerntextForm.Speichern");
  Drücke(*Form, "MenüSpeichern");
  Drücke(*Form, "TextanzeigeDrucken");
  const std::vector<std::string>& Gedruckt = Skript.Gedruckt;
  ASSERT_GT(Gedruckt.size(), 5U);
  EXPECT_TRUE(Gleich(Gedruckt[0], "Ansicht quasiidentischer Punkte", Gedruckt[1], "a-liste.pdf"));
  std::string Text = Inhalt(Ordner.Pfad("liste.txt"));
  for (std::size_t i = 2; i < Gedruckt.size(); ++i) EXPECT_NE(Text.find(Gedruckt[i]), std::string::npos);
}

TEST_F(TVKerntextFormTest, NichtsZuZeigen) {
  KorAbschneiden(2);
  Skript.Erwarte("Keine doppelten Punkte vorhanden !");
  EXPECT_EQ(KerntextErfragen(Textart::Doppelte), nullptr);
  Skript.Formulare.push_back([](Formular& F) {
    F.Öffnen();
    F.Wählen(Element<Auswahl>(F, "Wahl(1)"), "", true);
    Drücke(F, "OK");
  });
  Skript.Erwarte("Keine quasiidentischen Punkte vorhanden !");
  EXPECT_EQ(KerntextErfragen(Textart::Quasi), nullptr);
  Skript.Formulare = {Bediene({{"Wert(0)", "1A\n2\n"}}), Bediene({{"Abbrechen", ""}})};
  Skript.Erwarte("müssen ganze Zahlen sein");
  EXPECT_EQ(KerntextErfragen(Textart::Belegung), nullptr);
}

}  // namespace
}  // namespace tavorena::test
