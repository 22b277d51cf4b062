#include "Testhilfe.h"

#include <sstream>

#include <tavorena/console/Kommandozeile.h>

namespace tavorena::test {
namespace {

class Wandelbefehl : public TabellenTest {
 protected:
  Wandelbefehl() { Umgebungsvariable("TAVORENA_ORDNER", Ordner.Pfad("app").c_str()); }
  ~Wandelbefehl() override { Umgebungsvariable("TAVORENA_ORDNER"); }
  int Rufe(const char* Von, const char* Nach, std::vector<const char*> Weitere = {}) {
    std::vector<const char*> Worte = {"tavorena-stapel", "wandeln", "--von", Von, "--nach", Nach};
    Worte.insert(Worte.end(), Weitere.begin(), Weitere.end());
    Worte.insert(Worte.end(), {Ein.c_str(), Aus.c_str()});
    std::ostringstream Zeilen, Fehler;
    const int Ergebnis =
        KommandozeileAusführen(static_cast<int>(Worte.size()), Worte.data(), {Zeilen, Fehler, ""});
    Gesagt = Zeilen.str() + Fehler.str();
    return Ergebnis;
  }
  std::string Ein = Ordner.Pfad("a.lfs"), Aus = Ordner.Pfad("b.kor"), Gesagt;
};

TEST_F(Wandelbefehl, WandeltUndZählt) {
  Schreibe(Ein, "Nr;R;H\r\n7;1,5;2;3;Gr\xFCn\r\n");
  EXPECT_EQ(Rufe("lfs", "kor", {"--nachkomma", "1", "--zeichensatz", "850"}), 0);
  EXPECT_TRUE(Gleich(Gesagt, "Punkte: 1  übergangen: 1\n", Inhalt(Aus),
                     "             7         1.5         2.0       3.0  Gr\x81n\r\n"));
  const char* const Frei = "trenner=; symbol=1 pnr=2 hoch=3 rechts=4";
  EXPECT_EQ(Rufe("lfs", "frei", {"--frei", Frei}), 1);
  EXPECT_NE(Gesagt.find("verloren: 1 Höhe geht verloren (Punkt 7) Trotzdem speichern ?"), std::string::npos)
      << Gesagt;
  EXPECT_TRUE(Inhalt(Aus).ends_with("Gr\x81n\r\n"));
  EXPECT_EQ(Rufe("lfs", "frei", {"--frei", Frei, "--trotzdem"}), 0);
  EXPECT_EQ(Inhalt(Aus), "Grün;7;2.000;1.500\r\n");
}

TEST_F(Wandelbefehl, LäßtDieAusgabeStehen) {
  Schreibe(Aus, "alt");
  const auto Scheitert = [&](int Ergebnis, const char* Meldung, const char* Nach = "kor",
                             std::vector<const char*> Weitere = {}) {
    EXPECT_EQ(Rufe("lfs", Nach, std::move(Weitere)), Ergebnis);
    EXPECT_EQ(Inhalt(Aus), "alt");
    EXPECT_NE(Gesagt.find(Meldung), std::string::npos) << Gesagt;
  };
  Scheitert(1, "nicht vorhanden !");
  for (const char* Bytes : {"", "Nr Rechts Hoch\r\n", "7 1 ***\r\n"}) {
    Schreibe(Ein, Bytes);
    Scheitert(1, "Format nicht erkannt");
  }
  Schreibe(Ein, std::string_view("7 1 2\0", 6));
  Scheitert(1, "Trotzdem lesen ?");
  Scheitert(2, "--frei fehlt", "frei");
  Scheitert(2, "an derselben Stelle", "frei", {"--frei", "trenner=; pnr=1 rechts=2 hoch=2"});
  Scheitert(2, "--nach coo gibt es nicht", "coo");
  Scheitert(2, "erwartet wird 0 bis 6", "kor", {"--nachkomma", "9"});
  Scheitert(2, "--zeichensatz latin gibt es nicht", "kor", {"--zeichensatz", "latin"});
  std::string Viele;
  for (int i = 0; i <= KorGrenze; ++i) Viele += std::to_string(i + 1) + " 1 2\n";
  Schreibe(Ein, Viele);
  Scheitert(1, "1 Punkt der Datei steht nicht in der Tabelle");
  Aus = Ein;
  EXPECT_EQ(Rufe("lfs", "kor"), 1);
  EXPECT_EQ(Gesagt, Ein + ": Dateiname für Ein- und Ausgabe ist gleich:\n");
}

TEST_F(Wandelbefehl, EdbsHinUndHer) {
  const std::string Satz =
      "EDBS01080000BSPE000001  0000ULPUHESS00010001355600001123451K102001003 3500123456 "
      "56004567892+345000010001\r\n";
  const std::string Ganz = "EDBS00540000AKND Gr\xFCn\r\n" + Satz + "EDBS00280000AEND\r\n";
  const std::string Kataster = Ordner.Pfad("k.kor"), Lage = "   3500123.456   5600456.789     345.000  ";
  Schreibe(Ein, Ganz);
  Schreibe(Kataster, "9 1 2\r\n");
  EXPECT_EQ(Rufe("edbs", "edbs"), 0);
  EXPECT_TRUE(Inhalt(Aus) == Ganz);
  EXPECT_EQ(Rufe("edbs", "kor", {"--nummer", "km2", "--kataster", Kataster.c_str()}), 0);
  EXPECT_TRUE(Gleich(Gesagt, "Punkte: 1  übergangen: 0\n", Inhalt(Aus),
                     "      35560000112345" + Lage + "K\r\n9 1 2\r\n"));
  EXPECT_EQ(Rufe("edbs", "lfs", {"--nummer", "art"}), 2);
  // A cut file becomes nothing unless the call takes it.
  Schreibe(Ein, Ganz.substr(0, Ganz.size() - 18));
  for (const auto& [Ergebnis, Wort] : {std::pair{1, "--zeichensatz=utf8"}, std::pair{0, "--trotzdem"}}) {
    for (const char* Nummer : {"--nummer=lfs", "--nachkomma=3"}) {
      Schreibe(Aus, "alt");
      EXPECT_EQ(Rufe("edbs", "kor", {Nummer, Wort}), Ergebnis) << Gesagt;
      EXPECT_NE(Gesagt.find("Unerwartetes Dateiende in:"), std::string::npos);
      EXPECT_EQ(Inhalt(Aus), Ergebnis == 1 ? "alt" : "        112345" + Lage + "025\r\n");
    }
  }
}

TEST_F(Wandelbefehl, CsvUndNasNachIhrenAngaben) {
  const std::string Kopf = "Punktnummer;Rechts;Hoch;Höhe;Symbol\r\n";
  const auto Gibt = [&](const char* Von, std::vector<const char*> Angaben, const std::string& Soll) {
    const int Ergebnis = Soll.starts_with("7;") || Soll.starts_with("3") ? 0 : Soll.starts_with("--") ? 2 : 1;
    Angaben.insert(Angaben.end(), {"--nachkomma", "0"});
    EXPECT_EQ(Rufe(Von, "csv", Angaben), Ergebnis) << Soll;
    EXPECT_NE((Ergebnis == 0 ? Inhalt(Aus) : Gesagt).find(Ergebnis == 0 ? Kopf + Soll : Soll),
              std::string::npos)
        << Gesagt;
  };
  Schreibe(Ein, "nr;x;y\n7;477000;5600000\n");
  Gibt("csv", {}, "ist in dieser Datei x der Rechtswert und y der Hochwert: --achsen xy");
  Gibt("csv", {"--achsen", "xy"}, "7;477000;5600000;;\r\n");
  Gibt("csv", {"--achsen", "yx"}, "7;5600000;477000;;\r\n");
  Gibt("lfs", {"--achsen", "yx"}, "--achsen gehört zum Format csv");
  Schreibe(Ein, "Wer;Wo;Hoch\n7;1;2\n");
  Gibt("csv", {}, "Format nicht erkannt");
  Gibt("csv", {"--frei", "trenner=; pnr=1 rechts=2 hoch=3"}, "7;1;2;;\r\n");
  Schreibe(
      Ein,
      "<a xmlns:g=\"g\" xmlns:x=\"x\"><AX_Grenzpunkt g:id=\"P\"><punktkennung>324775600000007</punktkennung>"
      "</AX_Grenzpunkt><AX_PunktortTA g:id=\"O\"><istTeilVon x:href=\"urn:adv:oid:P\"/><g:pos>32000001 2 3"
      "</g:pos></AX_PunktortTA></a>");
  Gibt("nas", {}, "7;1;2;3;\r\n");
  EXPECT_NE(Gesagt.find("übergangen: 0\nLagesystem ohne Namen, Zonennummer 32 von"), std::string::npos)
      << Gesagt;
  Gibt("nas", {"--nummer", "km2"}, "324775600000007;1;2;3;\r\n");
  Gibt("nas", {"--nummer", "lfs"}, "--nummer gehört zu");
}

}  // namespace
}  // namespace tavorena::test
