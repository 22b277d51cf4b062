#include "Shelltest.h"

#include <tavorena/core/Text.h>
#include <tavorena/records/Pol.h>

namespace tavorena::test {
namespace {

class Druckaufbereitung : public Shelltest {
 protected:
  Druckaufbereitung() { Öffne(); }
  // The dialog of first page and decimals.
  void Angaben(const std::vector<std::string>& Werte) {
    std::vector<Handgriff> Griffe;
    for (std::size_t i = 0; i < Werte.size(); ++i)
      Griffe.push_back({"Wert(" + std::to_string(i) + ")", Werte[i]});
    Griffe.push_back({"OK", ""});
    Skript.Formulare.push_back(Bediene(Griffe));
  }
};

TEST_F(Druckaufbereitung, Flächenliste) {
  const std::string Flt = Ordner.Pfad("a.flt"), Dru = Ordner.Pfad("a-flt.dru");
  Schreibe(Flt,
           "Flurst\xFC"
           "ck;Fl\xE4"
           "che\r\n12/3;1234,5\r\n12/4, 100\r\n12/5\t  7.25\r\n12/6,1000\r\n12/7 1234,5\r\n\r\n"
           "Flur 3 9/1 200\r\n12/8 \r\n;5\r\n");
  Skript.Erwarte("5 Flurstücke gelesen, 4 Zeilen übergangen (erste: Zeile 1)");
  Angaben({"12", "1"});
  Skript.Dateien = {Flt, Dru};
  Befehl("MenüFunktionalitätenDruckaufbereitungFlt");
  EXPECT_EQ(DateinameZerlegen(Skript.Aufträge.back().Vorgabe).Grundname, "a-flt");
  std::vector<std::string> Soll = {"a-flt.dru", Ordner.Pfad("a-flt-dru.pdf"),
                                   "                                 - Seite 12 -"};
  const auto Zeile = [&](const char* Name, const char* Fläche) {
    Soll.push_back("      " + FeldLinks(Name, 30) + RechtsBündig(Fläche, 11) + (*Fläche == '-' ? "" : " m²"));
  };
  ASSERT_GE(Skript.Gedruckt.size(), 8U);
  Soll.insert(Soll.end(), Skript.Gedruckt.begin() + 3, Skript.Gedruckt.begin() + 8);
  Zeile("12/3", "1234.5");
  Zeile("12/4", "100.0");
  Zeile("12/5", "7.3");
  Zeile("12/6", "1000.0");
  Zeile("Flur 3 9/1", "200.0");
  Zeile("", "-----------");
  Zeile("Summe", "2541.8");
  EXPECT_EQ(Skript.Gedruckt, Soll);
  Schreibe(Flt, "nichts davon\r\n");
  Skript.Erwarte("Format nicht erkannt");
  Befehl("MenüFunktionalitätenDruckaufbereitungFlt", Flt);
}

TEST_F(Druckaufbereitung, Flächennachweis) {
  const std::string Pol = Ordner.Pfad("a.pol"), Dru = Ordner.Pfad("a-pol.dru");
  Polnachweis N{"Flurstück 1", "", 600, {}, 1, 2, 0};
  for (int i = 0; i < 60; ++i) {  // many points on its last side
    const double RW = i == 1 || i == 2 ? 3500030 : 3500000, HW = 5600020.05 - (i < 2    ? 20.05
                                                                               : i == 2 ? 0
                                                                                        : i * 0.25);
    N.Kanten.push_back({{RW, HW, std::to_string(i)}, 1.25, Kantenart::Linie});
  }
  Polnachweis Zweiter{"Ünder", "Ost", 12.5, {N.Kanten[0], N.Kanten[1]}, 1, 2, 2};
  Zweiter.Kanten[1] = {{3500030, 5600000, "B"}, 9, Kantenart::InnenLang, 20.5, 3500001, 5600002, 3};
  ASSERT_EQ(PolSchreiben(Pol, N, false), 2);
  ASSERT_EQ(PolSchreiben(Pol, Zweiter, true), 1);
  Schreibe(Dru, "von gestern");
  Angaben({"7", "1", "2"});
  Knopf(0);  // append
  Skript.Dateien = {Pol, Dru};
  Befehl("MenüFunktionalitätenDruckaufbereitungPol");
  N.Seite = 7;
  N.Flaeche = 590.25;  // decimals more than the file had, from its coordinates
  Zweiter.Seite = 9;
  for (Polnachweis* P : {&N, &Zweiter}) P->NachkommaKoordinaten = 1, P->NachkommaFlaeche = 2;
  EXPECT_EQ(Inhalt(Dru), "von gestern\f" + PolSeiten(N) + PolSeiten(Zweiter));
  EXPECT_EQ(Skript.Gedruckt[3], "      ┌" + Skript.Gedruckt[3].substr(9));
  Schreibe(Pol, Inhalt(Pol) + "7 ******* 1 2 LINIE\r\n");
  Skript.Erwarte("1 Zeile ist nicht lesbar (Sterne)");
  Befehl("MenüFunktionalitätenDruckaufbereitungPol", Pol);
  Befehl("MenüFunktionalitätenDruckaufbereitungDru", Dru);
  EXPECT_EQ(Skript.Gestartet.back(), Dru);
}

}  // namespace
}  // namespace tavorena::test
