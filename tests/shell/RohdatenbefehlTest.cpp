#include "Shelltest.h"

#include <tavorena/shell/Rohdatenbefehle.h>

namespace tavorena::test {
namespace {

// Two points with coordinates, one of them of the table; a station, its connection and a measured point.
constexpr const char* Gsi =
    "110001+00001001 81..00+03500100 82..00+05600200 83..00+00012500 71....+00000015 \r\n"
    "110002+00009009 81..00+00000500 82..00+00000600 \r\n"
    "410003+00000060 42....+00000900 \r\n"
    "110004+00001001 21.322+00000000 22.322+10000000 31..00+00050000 \r\n"
    "110005+00001002 21.322+10000000 22.322+10000000 31..00+00050000 \r\n";

class Rohdatenmenü : public Shelltest {
 protected:
  Rohdatenmenü() {
    LetzteRohdatenwahl = {};
    Schreibe(Roh, Gsi);
  }
  // The report is seen and taken over, or left.
  void Bericht(const char* Knopf = "RohdatenÜbernehmen") {
    Skript.Formulare.push_back(Bediene({{Knopf, ""}}));
  }
  static std::string Nummern() {
    std::string Alle;
    for (int z = 0; z < KorAnzahl; ++z) Alle += KorPnr(z) + " ";
    return Alle;
  }
  const std::string Roh = Ordner.Pfad("a.gsi");
};

TEST_F(Rohdatenmenü, ImportIstEineTat) {
  Öffne();
  Bericht("RohdatenAbbrechen");
  Befehl("MenüDateiImportieren(4)", Roh);
  EXPECT_EQ(Nummern(), "1001 1002 2003 ");
  Bericht();
  Skript.Formulare.push_back(Bediene({{"PDoppAltenLöschen", ""}}));
  Befehl("MenüDateiImportieren(4)", Roh);
  EXPECT_TRUE(Gleich(Nummern(), "1001 1002 2003 9009 ", KorRechts[0], 3500.1, KorHoehe[0], 12.5, KorSymbol[0],
                     "15", KorHoch[3], 0.6));
  Befehl("MenüBearbeitenRück");
  EXPECT_TRUE(Gleich(Nummern(), "1001 1002 2003 ", KorRechts[0], 3500100));
}

TEST_F(Rohdatenmenü, ExportGanzOderGewählt) {
  Öffne();
  const std::string Ziel = Ordner.Pfad("b.gsi"), Hli = Ordner.Pfad("b");
  Skript.Erwarte("Alle Punkte exportieren ?", KnopfJa);
  Befehl("MenüDateiExportieren(43)", Ziel);
  EXPECT_TRUE(
      Inhalt(Ziel).starts_with("*110001+0000000000001001 81...0+0000003500100000 82...0+0000005600200000"));
  Skript.Erwarte("Alle Punkte exportieren ?", KnopfNein);
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    Form.Markieren(Gitterfeld(Form), 1, false);
    Drücke(Form, "OK");
  });
  Knopf(0);  // extended
  Befehl("MenüDateiExportieren(41)", Ziel);
  const std::string Text = Inhalt(Ziel);
  EXPECT_EQ(std::count(Text.begin(), Text.end(), '\n'), 4);
  EXPECT_NE(Text.find("*110001+0000000000001002 81"), std::string::npos);
  Befehl("MenüDateiExportieren(60)", Hli);
  EXPECT_EQ(Inhalt(Hli + ".hli"), "    1001     12.5000  015\r\n");  // the others have no height
  Punkt("x234567890123456789", 1, 2, 1e6);
  for (const auto& [Eintrag, Verlust] :
       {std::pair{"MenüDateiExportieren(43)", "1 Punktnummer ändert sich (Punkt x23"},
        std::pair{"MenüDateiExportieren(60)", "1 Höhe geht verloren (Punkt x23"}}) {
    if (std::string_view(Eintrag).ends_with("43)")) Skript.Erwarte("Alle Punkte exportieren ?", KnopfJa);
    Skript.Erwarte(Verlust, KnopfNein);
    Befehl(Eintrag, Ordner.Pfad("c"));
  }
  EXPECT_FALSE(fs::exists(Ordner.Pfad("c.gsi")) || fs::exists(Ordner.Pfad("c.hli")));
}

TEST_F(Rohdatenmenü, UmwandlungFragtNachDemZiel) {
  const auto Wandle = [&](int Index, const std::string& Ziel) {
    Bericht();
    if (Index == 3) Bericht("OK");  // the list of modes
    Skript.Dateien = {Roh, Ordner.Pfad(Ziel)};
    Befehl(("MenüKonvertierenRohdaten(" + std::to_string(Index) + ")").c_str());
    return fs::exists(Ordner.Pfad(Ziel)) ? Inhalt(Ordner.Pfad(Ziel)) : "";
  };
  Schreibe(Ordner.Pfad("b.gre"), "alt");
  for (const int Antwort : {KnopfNein, KnopfJa}) {
    Skript.Erwarte("Überschreiben ?", Antwort);
    EXPECT_EQ(Wandle(0, "b.gre") == "alt", Antwort == KnopfNein);
  }
  Skript.Erwarte("Überschreiben ?", KnopfJa);
  Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:");
  EXPECT_EQ(Wandle(1, "a.gsi"), Gsi);
  EXPECT_NE(Wandle(2, "b.kor").find("9009"), std::string::npos);
  Skript.Erwarte("Keine Koordinatenbasis abzuziehen:");
  EXPECT_EQ(Wandle(3, "c.gsi"), "");
  Schreibe(Roh, "110001+00000001 331.08+00133700 \r\n110002+00000002 332.08+00050000 \r\n");
  EXPECT_NE(Wandle(4, "n.niv").find("1.33700"), std::string::npos);
}

TEST_F(Rohdatenmenü, Entladen) {
  Öffne();
  const auto Pfad = [&](const char* Name) { return Ordner.Pfad(Name); };
  for (const char* Name : {"q", "edit", "kor"}) fs::create_directory(Pfad(Name));
  Schreibe(Pfad("q/a.gsi"), Gsi);
  Schreibe(Pfad("q/b.GRE"), "NR 1 HZ 1.0 V 100.0 SD 5.000\r\n");
  Schreibe(Pfad("q/c.txt"), "x");
  // The folders are asked for first; one that is not there is told.
  Skript.Erwarte("Pfad nicht gefunden");
  Skript.Formulare.push_back(Bediene({{"Datei(0)", Pfad("q")},
                                      {"Datei(1)", Pfad("fehlt")},
                                      {"Datei(2)", Pfad("kor")},
                                      {"OK", ""},
                                      {"Datei(1)", Pfad("edit")},
                                      {"OK", ""}}));
  Skript.Erwarte("2 Dateien entladen\n2 Punkte in 1 KOR-Datei");
  Befehl("MenüFunktEntladenEntladen(1)");
  EXPECT_TRUE(Gleich(Inhalt(Pfad("edit/a.gsi")), Gsi, DateiVorhanden(Pfad("edit/c.txt")), false));
  EXPECT_NE(Inhalt(Pfad("kor/a.kor")).find("9009"), std::string::npos);
  Bericht();
  Knopf(2);  // what is there stays
  Befehl("MenüFunktEntladenEntladen(0)", Pfad("q/a.gsi"));
  EXPECT_EQ(Skript.Aufträge.back().Ordner, Pfad("q"));
  EXPECT_EQ(Inhalt(Pfad("edit/a.gsi")), Gsi);
}

TEST_F(Rohdatenmenü, AbsteckungMitOffenerDatei) {
  Öffne();
  const std::string Dru = Ordner.Pfad("a-absteckung.dru");
  Skript.Formulare.push_back(Bediene({{"Datei(1)", Roh}, {"OK", ""}}));  // the log is left out
  Bericht();
  Skript.Erwarte("fehlt die Standpunktzeile für Standpunkt 900");
  Skript.Erwarte("1 Station, 2 Punkte verglichen\n\n" + Dru);
  Befehl("MenüFunktAbsteckungStarten(0)");
  EXPECT_NE(Inhalt(Dru).find("1002 Soll\r\n"), std::string::npos);
  Befehl("MenüFunktAbsteckungStarten(1)");
  EXPECT_EQ(Skript.Gestartet.at(1), Dru);
}

}  // namespace
}  // namespace tavorena::test
