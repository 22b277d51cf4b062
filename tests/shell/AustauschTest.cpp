#include "Shelltest.h"

#include <tavorena/core/Text.h>
#include <tavorena/exchange/Freiformat.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena::test {
namespace {

class Austauschmenü : public Shelltest {
 protected:
  Austauschmenü() { LetztesFreiformat = {}; }
  static std::string Nummern() {
    std::string Alle;
    for (int z = 0; z < KorAnzahl; ++z) Alle += KorPnr(z) + " ";
    return Alle;
  }
  [[nodiscard]] std::string Hilfe() const {
    return Trimmen(Skript.Status[static_cast<std::size_t>(Statusfeld::StatusHilfe)]);
  }
  void Lies(const char* Eintrag, std::string_view Bytes) {
    Schreibe(Datei, Bytes);
    Befehl(Eintrag, Datei);
  }
  const std::string Datei = Ordner.Pfad("b.lfs");
};

TEST_F(Austauschmenü, ImportIstEineTat) {
  Öffne();
  Lies("MenüDateiImportieren(0)", "Nr Rechts Hoch\r\n77 3500000 5600000 1 x\r\n78 1 2\r\n");
  EXPECT_TRUE(Gleich(Nummern(), "77 78 1001 1002 2003 ", Hilfe(),
                     "2 Punkte gelesen, 1 Zeile übergangen (erste: Zeile 1)", KoordinatenGeaendert, true));
  Befehl("MenüBearbeitenRück");
  EXPECT_EQ(Nummern(), "1001 1002 2003 ");
  Skript.Erwarte("doppelte Punkte vorhanden");
  Lies("MenüDateiImportieren(6)", "1001,,1,2,3\r\n");  // appended, whoever has the number
  EXPECT_EQ(Nummern(), "1001 1001 1002 2003 ");
  Befehl("MenüBearbeitenRück");
  // What is not understood, or stopped, takes nothing.
  KorGeaendertSetzen(false);
  Skript.Erwarte("Format nicht erkannt");
  Lies("MenüDateiImportieren(2)", "Nr;Rechts;Hoch\r\n");
  std::string Viele;
  for (int i = 0; i < 500; ++i) Viele += std::to_string(i) + " 1 2\r\n";
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  Lies("MenüDateiImportieren(0)", Viele);
  EXPECT_TRUE(Gleich(Nummern(), "1001 1002 2003 ", Hilfe(), "angehalten, nichts gelesen",
                     KoordinatenGeaendert, false, TabellenRücknahme.Leer(), true));
}

TEST_F(Austauschmenü, ExportImGewähltenZeichensatz) {
  Öffne();
  EXPECT_EQ(KorZeileSetzen(0, {"1001", 1, 2, 3, "Grün"}), 0);
  KorAbschneiden(1);
  Skript.Listeneintrag = 3;
  Befehl("MenüDateiExportieren(0)", Ordner.Pfad("c"));
  EXPECT_TRUE(Gleich(Inhalt(Ordner.Pfad("c.lfs")), "    1001       1.000       2.000       3.000 Gr\x81n\r\n",
                     Hilfe(), "1 Punkt geschrieben", Skript.Aufträge.back().Listentitel,
                     "Zeichensatz:", Skript.Aufträge.back().Liste[1], "UTF-8 mit BOM"));
  // A file that is extended keeps its coding.
  Schreibe(Datei,
           "Stra\xDF"
           "e");
  Skript.Listeneintrag = 1;
  Knopf(0);
  Befehl("MenüDateiExportieren(51)", Datei);
  EXPECT_EQ(Inhalt(Datei),
            "Stra\xDF"
            "e\r\n1001,Gr\xFCn,1.000,2.000,3.000\r\n");
}

TEST_F(Austauschmenü, FreiesFormatZeigtWasGelesenWird) {
  Öffne();
  const auto Zweifel = [](const Gitter& G) {
    std::string Stellen;
    for (int z = 0; z < G.Zeilen(); ++z) {
      for (int s = 0; s < std::ssize(G.Spalten); ++s)
        if (G.Auffällig(z, s)) Stellen += std::to_string(z) + "/" + std::to_string(s) + " ";
    }
    return Stellen;
  };
  const std::string Bytes = "Kopf\r\n7;1,5;2,5;GP\r\n\r\n8;drei;4;x\r\n9;5;6\r\n";
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    Form.Wählen(Element<Auswahl>(Form, "FreiTrenner"), ";", true);
    Tippe(Form, "FreiZeilen", "1");
    Form.Tippen(Feld(Form, "FreiVon(3)"), "");
    Tippe(Form, "FreiVon(4)", "4");
    const Gitter& G = Gitterfeld(Form);
    EXPECT_EQ(Gitterzeile(G, 0),
              (std::vector<std::string>{"2", "7", "1.500", "2.500", "", "GP", "7;1,5;2,5;GP"}));
    EXPECT_EQ(Zweifel(G), "1/2 ");
    Form.Wählen(Element<Auswahl>(Form, "FreiSpalten"), "", true);
    Drücke(Form, "FreiOK");  // columns need both ends
    EXPECT_TRUE(Gleich(Form.Offen(), true, *Feld(Form, "FreiBis(0)").Fehlerhaft, true,
                       G.Inhalt(0, 6).substr(0, 10), "....5...10", G.Inhalt(1, 6), "7;1,5;2,5;GP"));
    Tippe(Form, "FreiBis(0)", "1");
    Tippe(Form, "FreiVon(1)", "3");
    Tippe(Form, "FreiBis(1)", "4");
    Tippe(Form, "FreiVon(2)", "6");
    Tippe(Form, "FreiBis(2)", "8");
    Form.Tippen(Feld(Form, "FreiVon(4)"), "");
    EXPECT_EQ(Zweifel(G), "1/1 1/2 1/3 2/1 2/2 2/3 3/1 3/2 3/3 ");  // cut in pieces, or no number
    Form.Wählen(Element<Auswahl>(Form, "FreiTrennzeichen"), "", true);
    Tippe(Form, "FreiVon(1)", "2");
    Tippe(Form, "FreiVon(2)", "3");
    Drücke(Form, "FreiOK");
  });
  Lies("MenüDateiImportieren(5)", Bytes);
  const Freiformat Gelesen = LetztesFreiformat;
  EXPECT_TRUE(Gleich(Nummern(), "7 9 1001 1002 2003 ", Hilfe(),
                     "2 Punkte gelesen, 1 Zeile übergangen (erste: Zeile 4)", KorRechts[0], 1.5));
  LetztesFreiformat.Trenner = ' ';
  LetztesFreiformat.Werte[FreiHoehe].Von = 4;
  LetztesFreiformat.Werte[FreiSymbol].Von = 5;
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Zweifel(Gitterfeld(Form)), "1/4 1/5 ");  // a height is missing, or a symbol
    Drücke(Form, "FreiAbbruch");
  });
  Lies("MenüDateiImportieren(5)", "Kopf\r\n7 1 2 3 a\r\n8 1 2 015\r\n9 1 2 3 c\r\n");
  EXPECT_EQ(KorAnzahl, 5);
  // The last choice stands in the form before writing, too.
  LetztesFreiformat = Gelesen;
  Knopf(1);
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Gitterfeld(Form).Inhalt(0, 6), "7;1.500;2.500");
    Drücke(Form, "FreiOK");
  });
  Skript.Erwarte("verloren:\n1 Höhe geht verloren (Punkt 1001)\n1 Symbol geht verloren (Punkt 1001)\n",
                 KnopfJa);
  Befehl("MenüDateiExportieren(50)", Datei);
  EXPECT_TRUE(Inhalt(Datei).starts_with("\r\n7;1.500;2.500\r\n9;5.000;6.000\r\n1001;3500100.000;"));
}

TEST_F(Austauschmenü, CsvFragtWasDieKopfzeileNichtSagt) {
  Öffne();
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Feld(Form, "FreiVon(1)").Text, "");
    Tippe(Form, "FreiVon(1)", "1");
    EXPECT_EQ(Gitterzeile(Gitterfeld(Form), 0),
              (std::vector<std::string>{"2", "9", "1.000", "2.000", "", "", "1;9;2"}));
    Drücke(Form, "FreiOK");
  });
  Lies("MenüDateiImportieren(30)", "Wo;Nr;Hoch\r\n1;9;2\r\n");
  EXPECT_TRUE(Gleich(Nummern(), "9 1001 1002 2003 ", KorRechts[0], 1, KorHoch[0], 2));
  Skript.Erwarte("x als Rechtswert lesen ?", KnopfAbbruch);
  Lies("MenüDateiImportieren(30)", "nr;x;y\r\n10;477000;5600000\r\n");
  EXPECT_EQ(Nummern(), "9 1001 1002 2003 ");
  Lies("MenüDateiImportieren(31)",
       "<a xmlns:g='g' xmlns:x='x'><AX_Grenzpunkt g:id='P'><punktkennung>TP</punktkennung></AX_Grenzpunkt>"
       "<AX_PunktortTA><istTeilVon x:href='P'/><g:pos>32000001 2</g:pos></AX_PunktortTA></a>");
  EXPECT_TRUE(
      Gleich(KorSuche(Wert("TP")) >= 0, true, Hilfe(),
             "1 Punkt gelesen. Lagesystem ohne Namen, Zonennummer 32 von den Rechtswerten abgetrennt"));
  // Behind other headings Rechts and Hoch would change places.
  KorAbschneiden(0);
  ASSERT_EQ(KorAnhängen({"1", 2, 3}), 0);
  for (const std::string Alt : {"Nr;Hoch;Rechts\r\n", "Punktnummer;Rechts;Hoch;H\xF6he;Symbol\r\n"}) {
    const bool Fremd = Alt.starts_with("Nr");
    Schreibe(Datei, Alt);
    Knopf(0);
    if (Fremd) Skript.Erwarte("Die Datei hat andere Überschriften");
    Befehl("MenüDateiExportieren(30)", Datei);
    EXPECT_EQ(Inhalt(Datei), Alt + (Fremd ? "" : "1;2.000;3.000;;\r\n"));
  }
}

}  // namespace
}  // namespace tavorena::test
