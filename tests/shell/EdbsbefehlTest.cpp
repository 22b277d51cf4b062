#include "Shelltest.h"

#include <tavorena/exchange/EDBS.h>
#include <tavorena/shell/Befehle.h>

namespace tavorena::test {
namespace {

const std::string Anfang = "EDBS00540000AKND000000  0000Gr\xFCn\r\n", Ende = "EDBS00280000AEND000000\r\n";
std::string Satz(int Nummer, const std::string& Pnr) {
  std::string Zeile;
  EDBSSatzSchreiben(Nummer, Pnr, 3500100, 5600200, 0, "5", {5, 1, 0, 2, 0, "0", "100", "3", 1}, Zeile);
  return Zeile + "\r\n";
}

class Edbsbefehl : public Shelltest {
 protected:
  Edbsbefehl() {
    Schreibe(Datei, Ganz);
    Befehl("MenüDateiLesen(0)", Datei);  // by its ending
  }
  const std::string Ganz = Anfang + Satz(1, "7") + Satz(2, "100008") + Ende;
  const std::string Datei = Ordner.Pfad("a.eds");
};

TEST_F(Edbsbefehl, LesenSpeichernUndWechseln) {
  EXPECT_TRUE(Gleich(KorAnzahl, 2, Koordinatendateiformat, Dateiformat::Edbs, KorInfo[1].Vermarkungsart, 2));
  Befehl("MenüDateiSpeichern(0)");
  EXPECT_TRUE(Inhalt(Datei) == Ganz);
  const std::string B_eds = Ordner.Pfad("b.edb"), C_kor = Ordner.Pfad("c.kor");
  Schreibe(B_eds, Anfang + Satz(5, "1") + Ende);
  Knopf(0);  // extended
  Befehl("MenüDateiSpeichernUnter", B_eds);
  EXPECT_TRUE(Inhalt(B_eds) == Anfang + Satz(5, "1") + Satz(6, "7") + Satz(7, "100008") + Ende);
  EXPECT_TRUE(Gleich(KorAnzahl, 3, KoordinatendateiName, B_eds, Skript.Aufträge.back().Vorgabe, "*.eds"));
  Befehl("MenüDateiSpeichernUnter", C_kor);
  EXPECT_TRUE(Gleich(Skript.Status[static_cast<std::size_t>(Statusfeld::StatusHilfe)],
                     "   3 Punkte gespeichert, ohne Attribute: sie bleiben in " + B_eds + "   ",
                     Koordinatendateiformat, Dateiformat::Kor));
  Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
  Skript.Formulare.push_back(Bediene({{"PSelectGitter", "\n"}, {"OK", ""}}));  // the first one
  Befehl("MenüDateiHinzuLesenPunktselektion", Datei);
  EXPECT_EQ(KorAnzahl, 4);
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiLesen(1)", B_eds);
  EXPECT_TRUE(Gleich(Skript.Aufträge.back().Vorgabe, "*.ed?", KorAnzahl, 3, Historie[0].Dateiname, B_eds));
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiNeu", Ordner.Pfad("d.eds"));
  Punkt("9", 3500100, 5600200);
  Befehl("MenüDateiSpeichern(0)");
  EXPECT_TRUE(
      Inhalt(Ordner.Pfad("d.eds")).starts_with("EDBS01080000BSPE000001"));  // no record of the other file
  Skript.Erwarte("speichern ? ", KnopfNein);
  Schreibe(Datei, Ganz + "Rest\r\n");
  Befehl("MenüDateiLesen(0)", Datei);
  Skript.Erwarte("1 Zeile der Datei ist kein Punkt", KnopfNein);
  Befehl("MenüDateiSpeichern(0)");
  EXPECT_TRUE(Inhalt(Datei).ends_with("Rest\r\n"));
}

TEST_F(Edbsbefehl, Umwandeln) {
  const std::string A_alt = Ordner.Pfad("a.kor");
  Schreibe(A_alt, "alt");
  for (const int Antwort : {KnopfNein, KnopfJa}) {
    Skript.Formulare.push_back(Bediene({{"Datei(0)", Datei + "\n"}, {"OK", ""}}));  // proposes the other name
    Skript.Formulare.push_back([](Formular& Form) {
      Form.Öffnen();
      auto& Liste = Element<Auswahl>(Form, "Liste");
      EXPECT_EQ(Liste.Einträge[1], "Übernahme der Punktnummer mit km² (ALK)");
      Form.Wählen(Liste, Liste.Einträge[1], true);
      Drücke(Form, "OK");
    });
    Skript.Erwarte("Überschreiben ?\n\n" + A_alt, Antwort);
    Befehl("MenüKonvertierenKat(0)");
    EXPECT_EQ(Inhalt(A_alt).starts_with("      35560000000007   3500100.000"), Antwort == KnopfJa);
  }
  EXPECT_EQ(Skript.Status[static_cast<std::size_t>(Statusfeld::StatusHilfe)], "   2 Punkte geschrieben   ");
}

}  // namespace
}  // namespace tavorena::test
