#include "Shelltest.h"

namespace tavorena::test {
namespace {

using Texte = std::vector<std::string>;

// Paper from the menu: any text without a file, the open job's files as they are proposed, the table.
TEST_F(Shelltest, DruckenÜberDasMenü) {
  EXPECT_EQ(Grund("MenüDateiDrucken(0)"), "keine Koordinatendatei offen");
  Schreibe(Ordner.Pfad("b.pol"), "\xC4\xB3 Stra\xE1\x65\r\n");
  Befehl("MenüDateiDrucken(20)", Ordner.Pfad("b.pol"));
  EXPECT_EQ(Skript.Gedruckt, (Texte{"b.pol", Ordner.Pfad("b-pol.pdf"), "─│ Straße"}));
  EXPECT_EQ(Optionen.VerzeichnisLetztes, Ordner.Pfad(""));
  Optionen.VerzeichnisLetztes = "/";
  Skript.Gedruckt.clear();
  for (const bool Offen : {false, true}) {
    if (Offen) Öffne();
    for (const auto& [Eintrag, Muster, Name] : {std::tuple{"MenüDateiDrucken(10)", "*.kor", "a.kor"},
                                                {"MenüDateiDrucken(11)", "*.sta", "a.sta"},
                                                {"MenüDateiDrucken(12)", "*.dru", "a.dru"}}) {
      Befehl(Eintrag, "");
      EXPECT_TRUE(Gleich(Skript.Aufträge.back().Vorgabe, Offen ? Name : Muster, Skript.Gedruckt, Texte{}));
    }
  }
  EXPECT_EQ(Skript.Aufträge.back().Ordner, Ordner.Pfad("")) << "that of the job, whatever the last one was";
  Optionen.OptNachkommastellen = 2;
  Befehl("MenüDateiDrucken(0)");
  EXPECT_TRUE(Gleich(Skript.Gedruckt[0], "a.kor", Skript.Gedruckt[1], Ordner.Pfad("a-punkte.pdf")));
  EXPECT_NE(Skript.Gedruckt.back().find(" 5600230.00 "), std::string::npos) << Skript.Gedruckt.back();
  KorAbschneiden(0);
  Skript.Erwarte("Noch keine Koordinaten vorhanden !");
  Befehl("MenüDateiDrucken(0)");
  Skript.Erwarte(Ordner.Pfad("fehlt.dru"));
  Befehl("MenüDateiDrucken(12)", Ordner.Pfad("fehlt.dru"));
}

// No shell reads what stands in a name.
TEST_F(Shelltest, FertigeDateiAnDenDrucker) {
  const std::string Datei = Ordner.Pfad("a'b $(x).prn");
  const auto Senden = [&](const char* Anschluß) {
    Skript.Formulare.push_back(Bediene({{"Wert(0)", Anschluß}, {"OK", ""}}));
    Befehl("MenüDateiDrucken(30)", Datei);
    return Skript.Ausgeführt;
  };
  EXPECT_EQ(Senden("1"), (Texte{"lp", "-o", "raw", Datei}));
  Umgebungsvariable("TAVORENA_LPT2", "Plotter");
  EXPECT_EQ(Senden("2"), (Texte{"lp", "-o", "raw", "-d", "Plotter", Datei}));
  Umgebungsvariable("TAVORENA_LPT2");
  Skript.Laufergebnis = 1;
  Skript.Erwarte("Die Datei wurde nicht gedruckt:\n" + Datei + "\n\nvon lp");
  Senden("3");
  Skript.Laufergebnis = -1;
  Skript.Erwarte("Fehler 53");
  Senden("3");
}

}  // namespace
}  // namespace tavorena::test
