#include "Shelltest.h"

#include <algorithm>

#include <tavorena/core/Text.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena::test {
namespace {

// A surveyor's two epochs from the menu: files, date, list, parameters.
TEST_F(Shelltest, SetzungsmessungÜberDasMenü) {
  Öffne();
  Optionen.DateinameEditorNT = "editor";
  const std::string Ges = Ordner.Pfad("a.ges"), Hli = Ordner.Pfad("a.hli"),
                    Ini = Ordner.Pfad("app/setzung1.txt");
  const auto Dazu = [&](const char* Eintrag, const std::string& Datei, const std::string& Datum) {
    Skript.Formulare.push_back(Bediene({{"Datei(0)", Datei}, {"Datei(1)", Ordner.Pfad("a")}, {"OK", ""}}));
    Skript.Formulare.push_back([Datum](Formular& Form) {
      Form.Öffnen();
      EXPECT_EQ(Text(Form, "Wert(0)"), "01.02.2003") << "today";
      if (!Datum.empty()) Tippe(Form, "Wert(0)", Datum);
      Drücke(Form, "OK");
    });
    if (Datum == "31.6.2004") Skript.Formulare.push_back(Bediene({{"Wert(0)", "5.6.2004"}, {"OK", ""}}));
    Befehl(Eintrag);
  };
  Schreibe(Hli, "10 150.1887\n12 150\n");
  Dazu("MenüFunktSetzungsmessung(3)", Hli, "");
  EXPECT_EQ(Skript.Status[4], "   01.02.2003: 2 Punkte, davon 2 neu   ");
  Schreibe(Hli, "10 150.1861\n12 150.0001\n13 ?\n");
  Skript.Erwarte("Kein Datum: 31.6.2004");
  Skript.Erwarte("05.06.2004: 2 Punkte, davon 0 neu, 1 Zeile der Datei ohne Punkt");
  Dazu("MenüFunktSetzungsmessung(3)", Hli, "31.6.2004");
  const std::string Vorher = Inhalt(Ges);
  Skript.Erwarte("Die Epoche 01.02.2003 ist schon vorhanden", KnopfNein);
  Dazu("MenüFunktVerformungsmessung(0)", A_kor, "");
  EXPECT_TRUE(Gleich(Inhalt(Ges), Vorher, Skript.LetzteVorgabe, KnopfNein));
  EXPECT_EQ(TVKernMDIForm::Fenster().Hilfe(*MenüFinden("MenüFunktVerformungsmessung(1)")), 6040);
  Befehl("MenüFunktSetzungsmessung(6)");
  EXPECT_TRUE(Gleich(Skript.Gestartet[0], "editor", Skript.Gestartet[1], Ordner.Pfad("app\\setzung1.txt")));
  Schreibe(Ini, "Brücke\n0.5\n2\n12\n");
  Befehl("MenüFunktSetzungsmessung(6)");
  EXPECT_EQ(Inhalt(Ini), "Brücke\n0.5\n2\n12\n") << "only a missing one is written";
  Befehl("MenüFunktSetzungsmessung(4)", Ges);
  EXPECT_TRUE(Gleich(Skript.Gedruckt[0], "a-ges.dru", Skript.Gedruckt[1], Ordner.Pfad("a-ges-dru.pdf")));
  EXPECT_NE(Inhalt(Ordner.Pfad("a-ges.dru")).find("-2.7 ******>zul"), std::string::npos);
  Optionen.DateinameVerformung = Ordner.Pfad("neu/v.txt");
  Befehl("MenüFunktVerformungsmessung(3)");
  EXPECT_TRUE(Inhalt(Optionen.DateinameVerformung).starts_with("Verformungsmessung  Titel der Liste\r\n3  "));
}

// Typed again until each is a measure; the least depth; one head for several walls.
TEST_F(Shelltest, AbstandsflächenUndTagebuch) {
  Öffne();
  Skript.Erwarte("Tagebuch- Datenbank nicht vorhanden !");
  Befehl("MenüFunktTagebuch");
  Optionen.DateinameTagebuch = A_kor;
  Skript.Erwarte("Tagebuch- Datenbank kann nicht gelesen werden !");
  Befehl("MenüFunktTagebuch");
  const auto Wand = [&](const char* Länge, const char* Höhe) {
    Skript.Formulare.push_back(Bediene({{"Wert(0)", Länge}, {"Wert(1)", Höhe}, {"OK", ""}}));
  };
  Wand("12,5", "0");
  Wand("12,5", "x");
  Wand("12,5", "6");
  Skript.Erwarte("Wandhöhe: eine Zahl über 0 und unter 10000, nicht 0");
  Skript.Erwarte("nicht x");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "0.4"}, {"OK", ""}}));
  Skript.Erwarte("Tiefe: 3.000 m (Wandhöhe mal Faktor, mindestens 3 m)\nFläche: 37.500 m²");
  Befehl("MenüFunktionalitätenAbstandsflächen");
  Wand("10", "6");
  Skript.Formulare.push_back(Bediene({{"OK", ""}}));  // the factor is 1
  Skript.Erwarte("Tiefe: 6.000 m");
  Befehl("MenüFunktionalitätenAbstandsflächen");
  const std::string Dru = Inhalt(A_dru);
  EXPECT_EQ(Dru.find("Abstandsflächen"), Dru.rfind("Abstandsflächen"));
  EXPECT_NE(
      Dru.find(
          "      Wand   12.500 x    6.000 m  Faktor 0.400  Tiefe     3.000 m  Fläche       37.500 m²\r\n"
          "      Wand   10.000 x    6.000 m  Faktor 1.000  Tiefe     6.000 m  Fläche       60.000 m²\r\n"),
      std::string::npos)
      << Dru;
}

// Beside the Condor window: by what a file holds, whatever its name; what is nothing of it changes nothing.
TEST_F(Shelltest, CondorDateienNachInhalt) {
  Öffne();
  Optionen.CondorfensterAn = true;
  const std::string Datei = Ordner.Pfad("x.dat"),
                    Lt4 = "000 45590000000007 000 3500100.000 5600200.000               0  \r\n";
  using Fall = std::tuple<std::string, bool, int>;
  for (const auto& [Text, NurKor, Punkte] :
       {Fall{"Flur\n5 1.0 2.0\n6 3.0 4.0\n", true, 2}, Fall{"8 1.0 2.0\n", false, 1},
        Fall{"# x\n" + Lt4, false, 1},
        Fall{"EDBS01080000BSPE000001  0000ULPUHESS000100013556000000011235102001003 3500123456 56004567892  "
             "0000010001\r\n",
             false, 1},
        Fall{"999\nx\n  0\nSECTION\n  2\nENTITIES\n  0\nLINE\n 10\n1.0\n 20\n2.0\n 11\n3.0\n 21\n4.0\n  "
             "0\nENDSEC\n  0\nEOF\n",
             false, 0},
        Fall{"Lieber Herr Maier,\nwie besprochen\nanbei 3 4\n", false, -1}, Fall{Lt4, true, -1},
        Fall{"", false, -1}, Fall{std::string("5 1.0 2.0\n\0", 11), true, -1}}) {
    SCOPED_TRACE(Text);
    Schreibe(Datei, Text);
    const int Vorher = KorAnzahl;
    const std::size_t Linien = GrafikFreieLinien().size();
    if (Punkte < 0) Skript.Erwarte("Format nicht erkannt");
    Befehl(NurKor ? "MenüDateiCondorLesen(0)" : "MenüDateiCondorLesen(1)", Datei);
    EXPECT_TRUE(Gleich(KorAnzahl - Vorher, std::max(Punkte, 0), GrafikFreieLinien().size() - Linien,
                       Punkte == 0 ? 1U : 0U));
  }
}

// The file beside the input, through the report; a station that the file does not place is asked for.
TEST_F(Shelltest, M5ÜberDasMenü) {
  Öffne();
  const std::string M5 = Ordner.Pfad("b.m5"), Kor = Ordner.Pfad("b.kor"), Vorn = "For M5|Adr 00001|";
  Schreibe(M5, Vorn + "TI  INPUT                      |th          1.300 m   |ih          1.500 m   |\n" +
                   Vorn +
                   "PI1                           7|SD         10.000 m   |Hz        90.0000 DEG |V1        "
                   "90.0000 DEG |\n");
  Schreibe(Kor, "alt");
  const auto Übernehmen = Bediene({{"RohdatenÜbernehmen", ""}});
  Skript.Formulare = {Übernehmen, Bediene({{"Abbrechen", ""}}), Übernehmen,
                      Bediene({{"Wert(0)", "100\n200\n50\n"}})};
  Befehl("MenüExtrasKlotoide", M5);
  EXPECT_EQ(Inhalt(Kor), "alt");
  Skript.Erwarte("schon vorhanden. Überschreiben ?", KnopfJa);
  Befehl("MenüExtrasKlotoide", M5);
  EXPECT_EQ(Inhalt(Kor), "             7       110.000       200.000      50.200  \r\n");
  EXPECT_EQ(Skript.Status[4], "   1 Punkt in " + Kor + "   ");
}

TEST_F(Shelltest, HöhenlistenÜberDasMenü) {
  Öffne();
  const std::string Hli = Ordner.Pfad("a.hli");
  const auto Umwandeln = [&](const char* Eintrag, const char* Quelle, const char* Ziel) {
    Skript.Formulare.push_back(
        Bediene({{"Datei(0)", Ordner.Pfad(Quelle)}, {"Datei(1)", Ordner.Pfad(Ziel)}, {"OK", ""}}));
    Befehl(Eintrag);
  };
  Schreibe(Ordner.Pfad("a.niv"), "1 1.5\n2 - - 1.25\n");
  Umwandeln("MenüFunktSetzungsmessung(0)", "a.niv", "a");
  EXPECT_EQ(Inhalt(Ordner.Pfad("a.dat")), "       1         2     0.25000         \r\n");
  Schreibe(Ordner.Pfad("a.lt5"), "10 H 150.1887\nNetz\n");
  Skript.Erwarte("1 Höhe geschrieben\n1 Zeile ohne Höhe");
  Umwandeln("MenüFunktSetzungsmessung(1)", "a.lt5", "a");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "-0,5"}, {"OK", ""}}));
  Befehl("MenüFunktSetzungsmessung(2)", Hli);
  EXPECT_EQ(Inhalt(Hli), "      10    149.6887\r\n");
}

}  // namespace
}  // namespace tavorena::test
