#include "Aktentest.h"
#include "Formulartest.h"

#include <tavorena/graphics/Abgriff.h>
#include <tavorena/points/TVKernKoordinatenEditor.h>

namespace tavorena::test {
namespace {

using Zeile = std::vector<std::string>;

class Koordinateneditor : public Aktentest {
 protected:
  Koordinateneditor() {
    Prot.Datei = Ordner.Pfad("a.dru");
    for (const char* Pnr : {"1", "2", "2", "3", "8A"}) {
      const double R = 3500000 + 10 * KorAnzahl;
      EXPECT_EQ(KorAnhängen({Pnr, R, 5600000, KorAnzahl == 0 ? 10.0 : 0.0, "015", nullptr}), 0);
    }
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
  void Öffne(Editormodus Wie) {
    Form = std::make_unique<TVKernKoordinatenEditor>(Wie);
    Form->Öffnen();
    G = &Gitterfeld(*Form);
  }
  void Tippe(const std::string& Text) const { test::Tippe(*Form, "EditorGitter", Text); }
  void Gehe(int z, int s) const { Form->ZelleWechseln(*G, z, s); }
  [[nodiscard]] std::pair<int, int> Zelle() const { return {G->Zeile, G->Spalte}; }
  [[nodiscard]] int Protokoll(const std::string& Stück) const { return Anzahl(Inhalt(Prot.Datei), Stück); }
  // All that was done is taken back, and the table is as it was.
  void NimmAllesZurück() const {
    while (Form->RücknahmeVerlangen()) {
    }
    EXPECT_EQ(Tabelle(), Vorher) << Nummern();
  }
  std::unique_ptr<TVKernKoordinatenEditor> Form;
  Gitter* G = nullptr;
  std::vector<Punktsatz> Vorher;
};

using Paar = std::pair<int, int>;

TEST_F(Koordinateneditor, EingebenBisZumGenommenenPunkt) {
  Optionen.VorgabeRechts = 3500000;
  Öffne(Editormodus::Eingabe);
  EXPECT_EQ(Gitterzeile(*G, 0), (Zeile{"", "3500000.000", "", "", ""}));
  Tippe("7\n\n5600100,5\n12.3456\n020\n");
  EXPECT_EQ(Gitterzeile(*G, 0), (Zeile{"7", "3500000.000", "5600100.500", "12.346", "020"}));
  EXPECT_TRUE(
      Gleich(Nummern(), "1 2 2 3 7 8A ", KorHoehe[4], 12.346, KorInfo[4].Punktart, 20, Zelle(), Paar(1, 0)));
  EXPECT_TRUE(Gleich(Protokoll("VR 25.10"), 1, Protokoll("5600100.500"), 1));
  Tippe("++");
  EXPECT_EQ(G->Inhalt(1, 0), "9");  // two behind the one that was taken
  // What can not be taken is told, and the cell stays with its text.
  const struct {
    int Spalte;
    const char *Text, *Meldung;
  } Fälle[] = {{0, "1 1", "Punktnr. \"1 1\": mit Leerzeichen"},
               {1, "abc", "Rechts \"abc\": keine Zahl"},
               {1, "nan", "keine Zahl"},
               {2, "10000000", "zu viele Stellen"},
               {2, "1e400", "zu viele"},
               {3, "-1000000", "zu viele"},
               {4, "0 1", "mit Leerzeichen"}};
  for (const auto& F : Fälle) {
    Gehe(1, F.Spalte);
    Skript.Erwarte(F.Meldung);
    Tippe(std::string(F.Text) + "\n");
    EXPECT_TRUE(Gleich(Zelle(), Paar(1, F.Spalte), G->Inhalt(1, F.Spalte), F.Text, *G->Fehlerhaft, true));
    Form->TasteDrücken(Taste::Escape);
  }
  Gehe(1, 4);
  Skript.Erwarte("Punktnr.: fehlt");
  Tippe("\n");
  EXPECT_EQ(Zelle(), Paar(1, 0));
  // A point far from all others is asked about.
  Skript.Erwarte("km von allen anderen", KnopfNein);
  Tippe("9\n4500000\n5600100\n\n\n");
  EXPECT_EQ(Zelle(), Paar(1, 1));
  EXPECT_EQ(KorAnzahl, 6);
  // A taken number: broken off, the row stays; then the mean of both; then the new one is dropped.
  std::deque<Konfliktwort> Antworten = {Konfliktwort::Abbrechen, Konfliktwort::Mitteln,
                                        Konfliktwort::NeuenVerwerfen};
  Haken.PunktVorhandenBehandeln = [&](const Konflikt& K) {
    EXPECT_EQ(K.Pnr, "1");
    return Konfliktantwort{std::exchange(Antworten, {Antworten.begin() + 1, Antworten.end()}).front(), ""};
  };
  Gehe(1, 0);
  Tippe("1\n3500000.02\n5600000\n\n\n");
  EXPECT_TRUE(Gleich(Zelle(), Paar(1, 0), G->Inhalt(1, 1), "3500000.020", KorRechts[0], 3500000));
  Tippe("\n\n\n\n\n");
  EXPECT_TRUE(Gleich(Zelle(), Paar(2, 0), G->Inhalt(1, 1), "3500000.010", KorRechts[0], 3500000.01));
  EXPECT_EQ(Protokoll("*** Mittel eingeführt"), 1);
  Gehe(0, 2);
  EXPECT_TRUE(AbgriffNehmen(*Form, "1"));  // goes to the new row
  EXPECT_EQ(Zelle(), Paar(2, 1));
  Tippe("3500001\n5600001\n\n\n");
  EXPECT_TRUE(Gleich(Zelle(), Paar(2, 0), G->Inhalt(2, 0), "", KorRechts[0], 3500000.01));
  NimmAllesZurück();
  EXPECT_TRUE(Gleich(Protokoll("***gelöscht"), 2, G->Zeilen(), 2, G->Inhalt(0, 0), "1"));
}

TEST_F(Koordinateneditor, EditierenZelleFürZelle) {
  Öffne(Editormodus::Bearbeiten);
  EXPECT_EQ(Gitterzeile(*G, 0), (Zeile{"1", "3500000.000", "5600000.000", "10.000", "015"}));
  // A cell counts when it is left, whichever way; a number that is taken is told and stays.
  Gehe(0, 3);
  Tippe("11\n");
  EXPECT_TRUE(Gleich(KorHoehe[0], 11, Zelle(), Paar(0, 4), Protokoll("VR 25.10"), 1));
  Gehe(3, 0);
  Tippe("2");
  Skript.Erwarte("Punkt 2schon vorhanden !");
  Gehe(2, 1);
  EXPECT_TRUE(Gleich(Zelle(), Paar(3, 0), G->Inhalt(3, 0), "2", Tabelle()[3], Vorher[3]));
  // With another number the point moves, and the surveyor goes on where he wanted to.
  Tippe("9,5");
  Gehe(4, 1);
  EXPECT_TRUE(Gleich(Nummern(), "1 2 2 8A 9.5 ", Zelle(), Paar(3, 1), G->Inhalt(3, 0), "8A"));
  EXPECT_EQ(Protokoll("***bericht. alt:       3"), 1);
  Gehe(4, 0);
  Tippe("0\n");
  EXPECT_TRUE(Gleich(Nummern(), "0 1 2 2 8A ", Zelle(), Paar(0, 1)));
  // Search goes from one row of a number to the next, a pick as well.
  for (const int z : {2, 3, 2}) {
    EXPECT_EQ(test::Tippe(*Form, "EditorSuchPnr", "2\n"), "EditorGitter");
    EXPECT_EQ(G->Zeile, z);
  }
  EXPECT_TRUE(AbgriffNehmen(*Form, "8A"));
  EXPECT_EQ(Zelle(), Paar(4, 1));
  Skript.Erwarte("Punkt 77 nicht vorhanden !");
  EXPECT_EQ(test::Tippe(*Form, "EditorSuchPnr", "77\n"), "EditorSuchPnr");
  // A new row between the others: untouched it goes, begun it stays until it is complete.
  Gehe(2, 0);
  Drücke(*Form, "EditorEinfügen");
  EXPECT_TRUE(Gleich(G->Zeilen(), 6, G->Inhalt(2, 0), "", G->Inhalt(3, 0), "2"));
  Gehe(4, 0);
  EXPECT_TRUE(Gleich(G->Zeilen(), 5, Zelle(), Paar(3, 0)));
  Drücke(*Form, "EditorEinfügen");
  Tippe("1.5\n3500005\n");
  Skript.Erwarte("Hoch: fehlt");
  Gehe(0, 0);
  EXPECT_EQ(Zelle(), Paar(3, 2));
  Tippe("5600003\n\n\n");
  EXPECT_TRUE(Gleich(Nummern(), "0 1 1.5 2 2 8A ", Zelle(), Paar(2, 0), KorHoch[2], 5600003));
  Drücke(*Form, "EditorLöschen");
  EXPECT_TRUE(Gleich(Nummern(), "0 1 2 2 8A ", Zelle(), Paar(2, 0), Protokoll("***gelöscht"), 1));
  NimmAllesZurück();
}

// Another window is at work beside the cell that is typed into.
TEST_F(Koordinateneditor, FolgtDerTabelle) {
  Öffne(Editormodus::Bearbeiten);
  Gehe(2, 3);
  Tippe("44");
  EXPECT_EQ(KorLoeschen(0), 0);
  Form->Nachsehen();
  EXPECT_TRUE(Gleich(Zelle(), Paar(1, 3), G->Inhalt(1, 3), "44", G->Zeilen(), 4, G->Inhalt(0, 0), "2"));
  for (const auto& [Antwort, Bleibt] : {std::pair{KnopfAbbruch, true}, {KnopfNein, false}}) {
    Skript.Erwarte("Änderung an Punkt 2 aufnehmen ?", Antwort);
    EXPECT_EQ(Form->OffenesKlären(), !Bleibt);
    EXPECT_EQ(G->Entwurf() >= 0, Bleibt);
  }
  Tippe("44");
  EXPECT_EQ(KorLoeschen(1), 0);  // the other one of that number is another point
  Skript.Erwarte("Punkt 2 wurde inzwischen geändert oder gelöscht. Verworfen: Höhe \"44\"");
  Form->Nachsehen();
  EXPECT_TRUE(Gleich(Nummern(), "2 3 8A ", KorHoehe[0], 0, G->Entwurf(), -1, Zelle(), Paar(0, 3)));
  Stapel.Aktiv = true;  // the points are those of the replay
  Tippe("44\n");
  EXPECT_TRUE(Gleich(KorHoehe[0], 0, Zelle(), Paar(0, 3)));
  Stapel = {};
  Tippe("44");
  Skript.Erwarte("aufnehmen ?", KnopfJa);
  EXPECT_EQ(KorAnhängen({"0", 3500000, 5600000, 0}), 0);
  Form->SchließenVerlangen();
  EXPECT_TRUE(Gleich(Form->Offen(), false, KorHoehe[1], 44, Nummern(), "0 2 3 8A "));
  Öffne(Editormodus::Ansicht);
  Tippe("5\n");
  EXPECT_TRUE(Gleich(Nummern(), "0 2 3 8A ", Form->Finde("EditorLöschen"), nullptr));
}

TEST_F(Koordinateneditor, AttributeEinerKatasterdatei) {
  Koordinatendateiformat = Dateiformat::Lt4;
  Öffne(Editormodus::Bearbeiten);
  std::vector<std::string> Titel;
  for (const auto& S : G->Spalten) Titel.push_back(S.Titel);
  EXPECT_EQ(Titel, (Zeile{"Punktnr.", "Rechts", "Hoch", "Höhe", "Symbol", "Punktart(Symbol)", "Punktstatus",
                          "Aktualität", "Vermarkungsart", "Bem.zur Verm.", "Entstehung", "Lagestatus",
                          "Lagegenauigk.", "Art d.Höhenb."}));
  const char* const Texte[] = {"020", "21", "2", "3", "4", "5.5", "1970", "100", "A", "7"};
  for (int i = 0; i < 10; ++i) {
    Gehe(0, 4 + i);
    Tippe(Texte[i]);
  }
  Gehe(1, 6);
  Skript.Erwarte("Punktstatus \"10\": nur ganze Zahlen bis 9");
  Tippe("10\n");
  Form->TasteDrücken(Taste::Escape);
  EXPECT_EQ(Tabelle()[0],
            (Punktsatz{"1", 3500000, 5600000, 10, "21", {21, 2, 3, 4, 5.5, "1970", "100", "A", 7}}));
  NimmAllesZurück();
}

TEST_F(Koordinateneditor, AlleAttributeEinesPunktes) {
  Koordinatendateiformat = Dateiformat::Edbs;
  Optionen.OptNachkommastellen = 1;
  const KorInfoSatz Info{15, 1, 0, 2, 3, "4", "100", "5", 60};
  ASSERT_EQ(KorZeileSetzen(3, {"3", 3500030.456, 5600000.123, 0, "015", &Info}), 0);
  Vorher = Tabelle();
  const auto Werte = [](const Gitter& A, int s) {
    std::string Alle;
    for (int z = 0; z < A.Zeilen(); ++z) Alle += A.Inhalt(z, s) + "|";
    return Alle;
  };
  const std::string Namen =
      "Punktnummer|Rechts|Hoch|Höhe|Punktart(Symbol)|Punktstatus|Aktualität|Vermarkungsart|Bem.zur Verm.|"
      "Entstehung|Lagestatus|Lagegenauigk.|Art d.Höhenb.|";
  Öffne(Editormodus::Bearbeiten);
  Gehe(3, 2);
  Skript.Formulare.push_back([&](Formular& F) {
    F.Öffnen();
    Gitter& A = Gitterfeld(F);
    EXPECT_TRUE(Gleich(Werte(A, 0), Namen, Werte(A, 1), "3|3500030.5|5600000.1||15|1|0|2|3|4|100|5|60|"));
    const std::tuple<int, const char*, const char*> Fälle[] = {
        {5, "10", "Punktstatus \"10\": nur ganze Zahlen bis 9, 1 Stelle"},
        {6, "-1", "1 Stelle"},
        {7, "10", "1 Stelle"},
        {8, "2,5", "bis 9, 1 Stelle"},
        {9, "12", "höchstens 1 Zeichen"},
        {10, "1000", "höchstens 3 Zeichen"},
        {11, "12", "höchstens 1 Zeichen"},
        {12, "100", "bis 99, 2 Stellen"}};
    for (const auto& [z, Getippt, Meldung] : Fälle) {
      F.ZelleWechseln(A, z, 1);
      Skript.Erwarte(Meldung);
      test::Tippe(F, "EDBSFlexgitter", std::string(Getippt) + "\n");
      EXPECT_TRUE(Gleich(*A.Zeile, z, *A.Fehlerhaft, true));
      F.TasteDrücken(Taste::Escape);
    }
    F.ZelleWechseln(A, 7, 1);
    test::Tippe(F, "EDBSFlexgitter", "9\n");
    Drücke(F, "EDBSUebernehmen");
    EXPECT_TRUE(Gleich(KorInfo[3].Vermarkungsart, 9, KorRechts[3], 3500030.456, KorHoch[3], 5600000.123));
    test::Tippe(F, "EDBSFlexgitter", "7");  // in the row of the remark
    Skript.Erwarte("Änderungen an Punkt 3 übernehmen ?", KnopfNein);
    Drücke(F, "EDBSNaechster");
    EXPECT_TRUE(
        Gleich(A.Inhalt(0, 1), "8A", KorInfo[3].BemZurVerm, 3, Drücke(F, "EDBSNaechster"), "EDBSFlexgitter"));
    Drücke(F, "EDBSEnd");
  });
  Form->TasteDrücken(Taste::F2);
  EXPECT_EQ(Zelle(), Paar(4, 2));
  NimmAllesZurück();
  Öffne(Editormodus::Ansicht);
  Skript.Formulare.push_back([&](Formular& F) {
    F.Öffnen();
    EXPECT_TRUE(Gleich(*Gitterfeld(F).NurLesen, true, *Element(F, "EDBSUebernehmen").Sichtbar, false));
    F.Schließen();
  });
  Drücke(*Form, "EditorAttribute");
}

}  // namespace
}  // namespace tavorena::test
