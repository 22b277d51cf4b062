#include "Shelltest.h"

namespace tavorena::test {
namespace {

class Umrechenmenü : public Shelltest {
 protected:
  Umrechenmenü() {
    Schreibe(Geo, "7 9 0 0 51 0 0\r\n8 9 30 0 51 30 0 1.5\r\n");
    Schreibe(Kor, "7 3500000 5651505.565 0 012\r\n8 3535580.567 5707713.809\r\n");
  }
  static void Wähle(Formular& Form, const std::string& Name, const std::string& Eintrag = "") {
    Form.Wählen(Element<Auswahl>(Form, Name), Eintrag, true);
  }
  static void Fülle(Formular& Form, const std::string& Ein, const std::string& Aus) {
    Tippe(Form, "GeoEin", Ein + "\n");
    Tippe(Form, "GeoAus", Aus);
    Drücke(Form, "OK");
  }
  const std::string Geo = Ordner.Pfad("a.geo"), Kor = Ordner.Pfad("b.kor"), Ziel = Ordner.Pfad("c.kor");
};

TEST_F(Umrechenmenü, GeographischNachUtm) {
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Text(Form, "GeoSatz"), "geographisch, Bessel -> Gauß-Krüger, Streifen nach Länge");
    EXPECT_FALSE(Element(Form, "GeoZone").Aktiv);
    Wähle(Form, "GeoNetz(1)");
    Wähle(Form, "GeoZone", "32");
    EXPECT_EQ(Text(Form, "GeoSatz"), "geographisch, GRS 80 -> UTM, Zone 32");
    EXPECT_TRUE(Gleich(Text(Form, "GeoHalbachsen"), "GRS 80 (ETRS89)", *Element(Form, "GeoStreifen").Aktiv,
                       false, *Element(Form, "GeoEllipsoid(0)").Aktiv, false, *Element(Form, "GeoZone").Aktiv,
                       true));
    Skript.Dateien = {Geo, Ordner.Pfad("c")};
    Drücke(Form, "GeoEinWaehlen");
    Drücke(Form, "GeoAusWaehlen");
    Drücke(Form, "OK");
  });
  Skript.Erwarte("2 Punkte geschrieben:\n" + Ziel +
                 "\n\nZone 32 (2)\nAm weitesten vom Mittelmeridian: Punkt 8, 0.50 Grad");
  Befehl("MenüKonvertierenGeo");
  EXPECT_TRUE(Inhalt(Ziel).starts_with("             7    500000.000   5649824.888")) << Inhalt(Ziel);
}

// What is wrong keeps the form open, or opens it again with what was typed.
TEST_F(Umrechenmenü, StreifenWechseln) {
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    Wähle(Form, "GeoStreifen", "4");
    Fülle(Form, Ordner.Pfad("fehlt"), Ziel);
    Fülle(Form, Kor, Kor);
    EXPECT_EQ(Text(Form, "GeoSatz"), "Gauß-Krüger, Bessel, Streifen 3 -> Streifen 4");
    Wähle(Form, "GeoZielnetz(1)");
    EXPECT_EQ(Text(Form, "GeoAusweg"), "Über Paßpunkte transformieren: VR 24.00 Helmert- Transformation");
    Drücke(Form, "OK");
    Wähle(Form, "GeoZielnetz(0)");
    Schreibe(Kor, "7 500000 5651505.565\r\n");
    Fülle(Form, Kor, Ziel);
  });
  Skript.Erwarte("Datei nicht gefunden:");
  Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:");
  Skript.Erwarte("Gauß-Krüger und UTM haben verschiedene Bezugssysteme.");
  Skript.Erwarte("Format nicht erkannt");
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    Schreibe(Kor, "7 3500000 5651505.565 0 012\r\nx\r\n");
    EXPECT_TRUE(Gleich(Text(Form, "GeoStreifen"), "4", Text(Form, "GeoAus"), Ziel));
    Drücke(Form, "OK");
  });
  Skript.Erwarte("1 Zeile übergangen (erste: Zeile 2)");
  Befehl("MenüKonvertierenKor(1)");
  EXPECT_EQ(Inhalt(Ziel), "             7   4289452.617   5655791.047       0.000  012\r\n");
}

TEST_F(Umrechenmenü, EigenesEllipsoid) {
  const auto Werte = [&](const char* a, const char* b, const char* Knopf) {
    Skript.Formulare.push_back(Bediene({{"Wert(0)", a}, {"Wert(1)", b}, {Knopf, ""}}));
  };
  Skript.Formulare.push_back([&](Formular& Form) {
    Form.Öffnen();
    Wähle(Form, "GeoEllipsoid(1)");
    Werte("1", "2", "Abbrechen");
    Wähle(Form, "GeoEllipsoid(2)");
    EXPECT_TRUE(Gleich(*Element<Auswahl>(Form, "GeoEllipsoid(1)").Gewählt, true, Text(Form, "GeoHalbachsen"),
                       "a = 6378388.000 m,  b = 6356911.946 m"));
    Werte("6356911", "6378388", "OK");
    Werte("6378137", "6356752,314", "OK");
    Wähle(Form, "GeoEllipsoid(2)");
    Wähle(Form, "GeoArt(1)");
    Fülle(Form, Kor, Ziel);
  });
  Skript.Erwarte("Die Halbachsen der Erde in Metern");
  Skript.Erwarte("2 Punkte geschrieben:");
  Befehl("MenüKonvertierenKor(0)");
  EXPECT_TRUE(
      Inhalt(Ziel).starts_with("@%Unit:                    m\r\n@%Coordinate type:         Cartesian\r\n"
                               "@%Reference ellipsoid:     Eingabe\r\n@%Projection set:          GK-9\r\n"
                               "       7    9   0   0.00000   50  59"))
      << Inhalt(Ziel);
}

}  // namespace
}  // namespace tavorena::test
