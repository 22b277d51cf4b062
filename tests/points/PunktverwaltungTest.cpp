#include "Aktentest.h"
#include "Formulartest.h"

#include <sstream>

#include <tavorena/core/Text.h>
#include <tavorena/points/Punkteingabe.h>
#include <tavorena/points/Punktgruppen.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/points/Uebernahme.h>

namespace tavorena::test {
namespace {

// Each deed is done and taken back; the table is then as it was, to the last digit and in its order.
class Punktverwaltung : public Aktentest {
 protected:
  Punktverwaltung() {
    Prot.Datei = Ordner.Pfad("a.dru");
    Zeile("1", 100, 200, 10, "015", 7);
    Zeile("2", 110, 200);
    Zeile("2", 110.0625, 200.0625, 12.5, "020", 8);
    Zeile("3", 120, 200);
    Zeile("8A", 130, 200);
    KorSortieren();
    KorGeaendertSetzen(false);
    Vorher = Tabelle();
  }
  static void Zeile(const char* Pnr, double R, double H, double Z = 0, const char* Symbol = "",
                    std::int16_t Punktart = 0) {
    KorInfoSatz Info;
    Info.Punktart = Punktart;
    EXPECT_EQ(KorAnhängen({Pnr, R, H, Z, Symbol, &Info}), 0);
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
  // What the protocol got since the last look, without heads.
  std::string Protokoll() {
    std::string Neu = Inhalt(Prot.Datei).substr(Gesehen), Zeilen;
    Gesehen += Neu.size();
    Zeilenleser Leser(Neu);
    for (std::string_view Zeile; Leser.Nächste(Zeile);) {
      if (Zeile.find("Tavorena") != Zeile.npos || Zeile.find("***") == Zeile.npos) continue;
      Zeilen +=
          std::string(TrimmenSicht(Zeile.substr(Zeile.find_last_of(' ', Zeile.find("***") - 2)))) + "\n";
    }
    return Zeilen;
  }
  void NimmZurück() {
    EXPECT_EQ(R.Zurück(), 0);
    EXPECT_EQ(Tabelle(), Vorher) << Nummern();
    EXPECT_TRUE(R.Leer());
  }
  Rücknahme R;
  std::vector<Punktsatz> Vorher;
  std::size_t Gesehen = 0;
};

TEST_F(Punktverwaltung, LöschenUndZurück) {
  std::vector<int> Zeilen;
  ASSERT_EQ(NummerZeilen("2", Zeilen), 0);
  EXPECT_EQ(PunkteLöschen(R, Zeilen), 0);
  EXPECT_TRUE(
      Gleich(Nummern(), "1 3 8A ", KorSymbol[0], "015", KorInfo[0].Punktart, 7, R.Name(), "Lösche 2 Punkte"));
  EXPECT_TRUE(GleichSoll(Inhalt(Prot.Datei), "points/soll/loeschen.dru"));
  NimmZurück();
  ASSERT_EQ(BereichZeilen("0", "99", Zeilen = {}), 0);
  EXPECT_EQ(PunkteLöschen(R, Zeilen), 0);
  EXPECT_EQ(KorAnzahl, 0);
  NimmZurück();
}

TEST_F(Punktverwaltung, Umnumerieren) {
  EXPECT_EQ(NummerBerichtigen(R, "1", "9"), 0);
  EXPECT_EQ(Nummern(), "2 2 3 8A 9 ");
  EXPECT_EQ(Protokoll(), "9 ***bericht. alt:       1\n");
  NimmZurück();
  EXPECT_EQ(Protokoll(), "1 ***bericht. alt:       9\n");
  // Old and new range overlap; the rows of one number keep one number.
  EXPECT_EQ(BereichBerichtigen(R, "1", "3", "2"), 0);
  EXPECT_EQ(Nummern(), "2 3 3 4 8A ");
  EXPECT_EQ(KorRechts[0], 100);
  NimmZurück();
  // One that moves past others, down and up.
  EXPECT_EQ(KorLoeschen(2), 0);
  Vorher = Tabelle();
  for (const auto& [Alt, Neu, Zeile] : {std::tuple{"1", "5", 0}, {"8A", "1.5", 3}}) {
    EXPECT_EQ(NummerBerichtigen(R, Alt, Neu), 0);
    EXPECT_EQ(R.Zeile(), Zeile);
    NimmZurück();
  }
}

TEST_F(Punktverwaltung, MittelDoppelter) {
  EXPECT_EQ(DoppelteMitteln(R, Doppelgruppen()), 0);
  EXPECT_EQ(Nummern(), "1 2 3 8A ");
  EXPECT_EQ(PunktsatzVon(1), (Punktsatz{"2", 110.03125, 200.03125, 12.5, "020", Vorher[1].Info}));
  EXPECT_EQ(Protokoll(), "2 ***W>D\n2 ***W>D\n2 ***Mittel\n");
  EXPECT_EQ(Prot.Marken, 2);
  NimmZurück();
  EXPECT_EQ(Protokoll(), "2 ***gelöscht\n");
  // Nine of one number: the first eight, then their mean and the ninth.
  KorLeeren();
  Zeile("9", 1, 2);  // not in order, and so it comes back
  for (int i = 0; i < 9; ++i) Zeile("5", i < 8 ? i : 13.5, 0);
  Zeile("3", 1, 2);
  Vorher = Tabelle();
  EXPECT_EQ(PunkteLöschen(R, {10}), 0);
  EXPECT_EQ(DoppelteMitteln(R, Doppelgruppen()), 0);
  EXPECT_TRUE(Gleich(KorAnzahl, 2, KorRechts[0], 8.5, Anzahl(Protokoll(), "***Mittel"), 2));
  EXPECT_EQ(R.Zurück(), 0);
  NimmZurück();
}

TEST_F(Punktverwaltung, MittelVerschiedener) {
  using enum Mittelart;
  EXPECT_EQ(PunkteMitteln(R, {Ersetzen, "3", {"1", "3"}, 4, "030"}), 0);
  EXPECT_EQ(Nummern(), "2 2 3 8A ");
  EXPECT_EQ(PunktsatzVon(2), (Punktsatz{"3", 110, 200, 4, "030", Vorher[0].Info}));
  EXPECT_EQ(Anzahl(Protokoll(), "3 ***Mittel (L)"), 1);
  NimmZurück();
  EXPECT_EQ(PunkteMitteln(R, {Schwerpunkt, "7", {"1", "3"}}), 0);
  EXPECT_EQ(Nummern(), "1 2 2 3 7 8A ");
  EXPECT_EQ(Anzahl(Protokoll(), "7 ***Mittel (S)"), 1);
  NimmZurück();
  // Another point has the number: it is asked for while the old ones still stand.
  for (const Konfliktwort Wort : {Konfliktwort::AltenErsetzen, Konfliktwort::NeuenVerwerfen}) {
    Haken.PunktVorhandenBehandeln = [&](const Konflikt&) {
      EXPECT_EQ(Tabelle(), Vorher);
      return Konfliktantwort{Wort, ""};
    };
    const bool Getan = Wort == Konfliktwort::AltenErsetzen;
    EXPECT_EQ(PunkteMitteln(R, {Ersetzen, "8A", {"1", "3"}}), Getan ? 0 : -2);
    if (Getan) {
      EXPECT_EQ(Nummern(), "2 2 8A ");
      NimmZurück();
    }
    EXPECT_EQ(Tabelle(), Vorher);
  }
}

TEST_F(Punktverwaltung, EinzelneZeilen) {
  EXPECT_EQ(ZeilenMitteln(R, {3, 0}), 0);
  EXPECT_EQ(Nummern(), "2 2 3 8A ");
  EXPECT_EQ(PunktsatzVon(2), (Punktsatz{"3", 110, 200, 10, "015", Vorher[3].Info}));
  NimmZurück();
  Protokoll();
  // A number of one of the rows, whoever else has it.
  EXPECT_EQ(NummerGeben(R, {3, 1, 0}, "2"), 0);
  EXPECT_EQ(Nummern(), "2 2 2 2 8A ");
  EXPECT_EQ(Protokoll(), "2 ***bericht. alt:       1\n2 ***bericht. alt:       3\n");
  NimmZurück();
  EXPECT_EQ(NummerGeben(R, {1}, "2"), 0);
  EXPECT_TRUE(R.Leer());
  EXPECT_EQ(Nummernliste(std::vector<int>(20, 4)).size(), 78);
  EXPECT_TRUE(Nummernliste(std::vector<int>(21, 4)).ends_with(" 8A, ..."));
}

TEST_F(Punktverwaltung, WasNichtGeht) {
  std::vector<int> Zeilen;
  const std::pair<const char*, std::function<int()>> Fälle[] = {
      {"Punkt 8 nicht vorhanden", [&] { return NummerZeilen("8", Zeilen); }},
      {"größer", [&] { return BereichZeilen("3", "1", Zeilen); }},
      {"keine Punkte", [&] { return BereichZeilen("50", "60", Zeilen); }},
      {"nicht vorhanden", [&] { return NummerBerichtigen(R, "8", "9"); }},
      {"leer", [&] { return NummerBerichtigen(R, "1", ""); }},
      {"Leerzeichen", [&] { return NummerBerichtigen(R, "1", "9 9"); }},
      {"Punkt 1schon vorhanden", [&] { return NummerBerichtigen(R, "1", "1"); }},
      {"Punkt 2schon vorhanden", [&] { return NummerBerichtigen(R, "1", "2"); }},
      {"Punkt 3schon vorhanden", [&] { return BereichBerichtigen(R, "1", "2", "2"); }},
      {"Punkt 2schon vorhanden",
       [&] {
         return NummerGeben(R, {0, 3}, "2");
       }},
      {"Leerzeichen", [&] { return NummerGeben(R, {0}, "9 9"); }},
      {"keine ganze Zahl", [&] { return BereichBerichtigen(R, "1", "2", "07"); }},
      {"2 bis 8",
       [&] {
         return PunkteMitteln(R, {Mittelart::Ersetzen, "9", {"1"}});
       }},
      {"2 bis 8",
       [&] {
         return PunkteMitteln(R, {Mittelart::Ersetzen, "9", std::vector<std::string>(9, "1")});
       }},
      {"zweimal",
       [&] {
         return PunkteMitteln(R, {Mittelart::Ersetzen, "9", {"1", "1"}});
       }},
  };
  for (const auto& [Meldung, Tun] : Fälle) {
    Skript.Erwarte(Meldung);
    EXPECT_EQ(Tun(), -1) << Meldung;
  }
  // A protocol that can not be written, and a deed that throws, leave the table as it was.
  Prot.Datei = Ordner.Pfad("");
  Skript.Erwarte("", KnopfAbbruch);
  EXPECT_EQ(PunkteLöschen(R, {0, 1}), -1);
  Punkttat Tat;
  EXPECT_THROW(R.Ausführen(Tat,
                           [] {
                             KorAbschneiden(1);
                             throw std::bad_alloc();
                             return 0;
                           }),
               std::bad_alloc);
  EXPECT_TRUE(Gleich(Tabelle() == Vorher, true, R.Leer(), true, KoordinatenGeaendert, false));
}

TEST_F(Punktverwaltung, GanzeTabelle) {
  EXPECT_EQ(TabelleVerschieben(R, "Versatz", {1, 2, 3}, true), 0);
  EXPECT_TRUE(Gleich(KorRechts[0], 202, KorHoch[0], 101, KorHoehe[0], 13));
  NimmZurück();
  Skript.Erwarte("nicht endlich");
  EXPECT_EQ(TabelleVerschieben(R, "Versatz", {0, std::numeric_limits<double>::infinity(), 0}, false), -1);
  EXPECT_EQ(Tabelle(), Vorher);
}

TEST_F(Punktverwaltung, AusAndererDatei) {
  using enum Übernahme;
  struct Fall {
    Übernahme Art;
    const char *Datei, *Text;  // of the file, and what is told
    int Anzahl;
    const char* Tabelle;  // afterwards: number, Rechts and height of each row
  };
  for (const Fall& F : {
           // The first of a number counts, for all its rows; what is no point is counted.
           Fall{Koordinaten, "Kopf\n2 1 2\n2 3 4\n8A 130 200\n1 1e999 5\n9 5 5\n",
                "2 Zeilen der Datei sind keine Punkte", 2, "1 100 10, 2 1 12.5, 2 1 0, 3 120 0, 8A 130 0, "},
           Fall{Höhen, "1 0 0 0\n2 0 0 7,5\n3 0 0\n", "", 2,
                "1 100 10, 2 110.062 7.5, 2 110 7.5, 3 120 0, 8A 130 0, "},
           Fall{Höhenliste, "3 99.5 x y\n1 0\n8,A\n", "1 Zeile der Datei ist kein Punkt", 1,
                "1 100 10, 2 110.062 12.5, 2 110 0, 3 120 99.5, 8A 130 0, "},
           // Just near, the one that is nearer, two near ones, a taken number (twice), just not near.
           Fall{Punktnummern,
                "4 100.03 200\n5 110 200\n6 110.0625 200.0625\n7 110.0625 200.07\n8A 120 200\n9 130.0300001 "
                "200",
                "1 Punktnummer ist vergeben und bleibt aus", 2,
                "2 110.062 12.5, 3 120 0, 4 100 10, 5 110 0, 8A 130 0, "},
           Fall{Versatz, "1 101 202\n3 121.5 202\n2 0 0\n8A 0 0\n8A 0 0\n",
                "2 gleiche Punktnummern\ndRechts: 1.250\ndHoch: 2.000\ngrößte Restabweichung: 0.250", 5,
                "1 101.25 10, 2 111.312 12.5, 2 111.25 0, 3 121.25 0, 8A 131.25 0, "},
       }) {
    SCOPED_TRACE(Übernahmename(F.Art));
    Schreibe(Ordner.Pfad("b.kor"), F.Datei);
    Übernahmeplan Plan;
    ASSERT_EQ(ÜbernahmePlanen(F.Art, Ordner.Pfad("b.kor"), 0.03, Plan), 0);
    EXPECT_TRUE(Gleich(ÜbernahmeText(Plan), F.Text, Plan.Anzahl(), F.Anzahl, Tabelle() == Vorher, true));
    const std::string Alt = Inhalt(Prot.Datei);
    EXPECT_EQ(ÜbernahmeAusführen(R, Plan), 0);
    std::ostringstream Neu;
    for (const Punktsatz& P : Tabelle()) Neu << P.Pnr << ' ' << P.Rechts << ' ' << P.Hoehe << ", ";
    EXPECT_EQ(Neu.str(), F.Tabelle);
    EXPECT_EQ(Anzahl(Inhalt(Prot.Datei).substr(Alt.size()), "Soll-Ist\r\n"),
              F.Art == Versatz ? 0 : F.Anzahl + 1);
    NimmZurück();
    const std::string Wieder = F.Art == Versatz        ? ""
                               : F.Art == Punktnummern ? "***bericht. alt:"
                                                       : "VR 25.10  Koordinateneingabe";
    EXPECT_TRUE(Inhalt(Prot.Datei).find(Wieder, Alt.size()) != std::string::npos);
    Schreibe(Ordner.Pfad("b.kor"), "99 1 2 3\n");
    Skript.Erwarte("Kein Punkt ist zu ändern");
    EXPECT_EQ(ÜbernahmePlanen(F.Art, Ordner.Pfad("b.kor"), 0.03, Plan), -1);
  }
}

// Two forms at work: each takes back its own, as far as the other left it.
TEST_F(Punktverwaltung, ZweiNebeneinander) {
  Rücknahme Andere;
  EXPECT_EQ(PunkteLöschen(R, {0}), 0);
  EXPECT_EQ(NummerBerichtigen(Andere, "3", "30"), 0);
  EXPECT_EQ(NummerBerichtigen(R, "8A", "8B"), 0);
  EXPECT_EQ(Andere.Zurück(), 0);
  EXPECT_EQ(Nummern(), "2 2 3 8B ");
  EXPECT_EQ(NummerBerichtigen(Andere, "8B", "8C"), 0);
  Skript.Erwarte("Die Punkte wurden inzwischen geändert: Numeriere 8A");
  EXPECT_EQ(R.Zurück(), -1);
  EXPECT_EQ(Nummern(), "2 2 3 8C ");
  EXPECT_EQ(Andere.Zurück(), 0);
  EXPECT_EQ(R.Zurück(), 0);
  EXPECT_EQ(R.Zurück(), 0);
  EXPECT_EQ(Nummern(), "1 2 2 3 8A ");
  std::vector<int> Zeilen;
  EXPECT_EQ(NummerZeilen("1", Zeilen), 0);
  EXPECT_EQ(PunktsatzVon(Zeilen.front()), Vorher.front());
}

// Points of another file: one deed, one question for all taken numbers, the file's own repetitions too.
TEST_F(Punktverwaltung, VielePunkteSindEineTat) {
  const std::vector<Punktsatz> Neue = {{"5,5", 1, 2, 0, ""},
                                       {"1", 101, 201, 11, ""},
                                       {"4", 3, 4, 0, "020"},
                                       {"4", 5, 6, 0, ""},
                                       {"5.5", 7, 8, 0, ""}};
  Haken.PunktVorhandenBehandeln = PunktVorhandenBehandeln;
  Skript.Formulare.push_back(Bediene({{"PDoppAbbruch", ""}}));
  Eingabezählung Z;
  EXPECT_EQ(PunkteEingeben(R, "Probe", Neue, Z), -1);
  EXPECT_TRUE(Gleich(Tabelle(), Vorher, Inhalt(Prot.Datei), ""));  // broken off: nothing has happened
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    Form.Wählen(Element<Auswahl>(Form, "PDoppFürAlle"), "", true);
    Drücke(Form, "PDoppAltenLöschen");
  });
  ASSERT_EQ(PunkteEingeben(R, "Probe", Neue, Z), 0);
  EXPECT_TRUE(Gleich(Z.Neue, 2, Z.Ersetzte, 3, Z.Verworfene, 0, Nummern(), "1 2 2 3 4 5.5 8A ", KorRechts[0],
                     101, KorHoch[4], 6, R.Name(), "Probe"));
  EXPECT_EQ(R.Zurück(), 0);
  EXPECT_EQ(Tabelle(), Vorher);
}

}  // namespace
}  // namespace tavorena::test
