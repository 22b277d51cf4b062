// The programs themselves, as a shell script calls them.
#include "Programmlauf.h"

#include <sstream>

namespace tavorena::test {
namespace {

class Programm : public ::testing::Test {
 protected:
  Programm() {
    Schreibe(Ordner.Pfad("a.kor"),
             "1001 3500100 5600200\r\n1002 3500160 5600280\r\n2003 3500130 5600230\r\n");
    Schreibe(Ordner.Pfad("kopf.kor"), "Flur 7\n" + Inhalt(Ordner.Pfad("a.kor")));
    Schreibe(Ordner.Pfad("brief.kor"), "Guten Tag,\nPunkt 7\n");
    Schreibe(Ordner.Pfad("a.sta"), "M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\n");
    Schreibe(Ordner.Pfad("fehler.sta"), "M VR 24.40 x\r\nPXN 1\r\n");
    Schreibe(Ordner.Pfad("frage.sta"), "M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 77\r\nE\r\n");
    Schreibe(Ordner.Pfad("leer.sta"), "C nichts\r\n");
    Schreibe(Ordner.Pfad("verirrt.sta"), "E\r\nM VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\n");
    Schreibe(Ordner.Pfad("a.gsi"), "410001+00000060 42....+00001001 \r\n");
    fs::create_directory(Ordner.Pfad("ordner"));
    fs::create_hard_link(Ordner.Pfad("a.sta"), Ordner.Pfad("gleich"));
  }
  // Runs a program in the folder, without a display and settings. @return its exit status; -1 if it was
  // killed
  int Laufen(const std::string& Pfad, const std::string& Worte) {
    const int Status = ProgrammLaufen(Ordner.Pfad(""), Pfad, Worte);
    Aus = Inhalt(Ordner.Pfad("aus"));
    Meldungen = Inhalt(Ordner.Pfad("meldungen"));
    return Status;
  }
  Testordner Ordner;
  std::string Aus, Meldungen;
};

TEST_F(Programm, Rückgabewerte) {
  struct Fall {
    const char* Worte;
    int Rückgabe;
    const char* Meldung;  // the beginning of the only line
  };
  const Fall Fälle[] = {
      {"--koordinaten a.kor a.sta", 0, ""},
      {"--koordinaten a.kor --protokoll a.dru --speichern a.kor a.sta", 0, ""},
      {"menue --koordinaten a.kor", 0, ""},
      {"--koordinaten kopf.kor --speichern ./kopf.kor a.sta", 1,
       "./kopf.kor: Frage ohne Antwort: Beim Speichern gehen Angaben verloren: 1 Zeile der Datei ist kein "
       "Punkt "
       "Trotzdem speichern ? (Ja mit --trotzdem)"},
      {"--koordinaten kopf.kor --speichern ./kopf.kor --trotzdem a.sta", 0, ""},
      {"menue --koordinaten brief.kor", 1, "brief.kor: Frage ohne Antwort: Die Datei sieht nicht"},
      {"menue --koordinaten brief.kor --trotzdem", 0, ""},
      {"--koordinaten fehlt.kor a.sta", 1, "fehlt.kor: Koordinatendatei nicht vorhanden"},
      {"--koordinaten ordner a.sta", 1, "ordner: "},
      {"--koordinaten a.kor fehlt.sta", 1, "fehlt.sta: "},
      {"--koordinaten a.kor fehler.sta", 1, "fehler.sta, Zeile 2: Fehler 2"},
      {"--koordinaten a.kor frage.sta", 1, "frage.sta, Zeile 4: Frage ohne Antwort: Punkt 77"},
      {"--koordinaten a.kor leer.sta", 1, "leer.sta"},
      {"--koordinaten a.kor verirrt.sta", 1, "verirrt.sta, Zeile 1: Fehler aufgetreten im Stapel E ohne"},
      {"absteckung a.gsi --koordinaten a.kor --bericht b.dru", 0, ""},
      {"absteckung a.gsi --koordinaten a.kor --bericht ./a.kor", 2, "./a.kor: die Datei von --bericht ist"},
      {"dxf --koordinaten a.kor --punkte p.dxf --nach n.dxf", 0, ""},
      {"dxf --lesen n.dxf --speichern b.kor", 2, "tavorena-stapel: --speichern braucht"},
      {"dxf --lesen p.dxf --lesen-cad p.dxf", 2, "tavorena-stapel: falsche Angabe: --lesen"},
      {"dxf --lesen n.dxf --punkte ./n.dxf", 2,
       "./n.dxf: die Datei von --punkte ist auch die Datei von --lesen"},
      {"dxf --lesen a.sta", 1, "a.sta: Fehler aufgetreten: Die Datei hat keinen Abschnitt ENTITIES:"},
      {"gsi-ausgabe a.kor --koordinaten ./a.kor --art 41", 1, "a.kor: ist auch die Koordinatendatei."},
      {"gsi-ausgabe g.gsi --koordinaten a.kor --art 41", 0, ""},
      {"rohdaten g.gsi --koordinaten a.kor --satzliste g.txt --punkte g.kor --gre g.gre", 0, ""},
      {"menue --koordinaten g.kor", 0, ""},
      {"rohdaten g.gsi --gre g.gre", 1, "g.gre: wird nicht geschrieben ! (ist schon vorhanden)"},
      {"rohdaten g.gre --zehn-zu-eins h.gsi", 1, "g.gre: ist GRE; umgewandelt wird GSI."},
      {"rohdaten g.gsi --ihwert -1", 1, "g.gsi: Fehler aufgetreten: --ihwert -1: eine Zahl von 0 bis 9"},
      {"rohdaten fehlt.gsi", 1, "fehlt.gsi: Rohdatendatei nicht vorhanden !"},
      {"rohdaten ordner", 1, "ordner: Rohdatendatei nicht lesbar ! (ist ein Ordner)"},
      {"dxf --nach ordner", 1, "ordner: ist ein Ordner Fehler 70 in DXFModul.Speichern"},
      {"--koordinaten a.kor --protokoll ordner a.sta", 1,
       "ordner: Das Protokoll läßt sich nicht schreiben (ist ein Ordner)"},
#ifndef _WIN32
      {"--koordinaten a.kor --protokoll /dev/full a.sta", 1, "/dev/full: "},
#endif
      {"--koordinaten a.kor --speichern nirgends/b.kor a.sta", 1, "nirgends/b.kor: "},
      {"pdf a.sta a.pdf", 0, ""},
      {"pdf --koordinaten a.kor k.pdf", 0, ""},
      {"pdf a.sta", 2, "tavorena-stapel: die PDF-Datei fehlt"},
      {"pdf a.sta ./gleich", 1, "./gleich: Dateiname für Ein- und Ausgabe ist gleich:"},
      {"pdf --koordinaten a.kor ./a.kor", 2, "./a.kor: die Ausgabedatei ist auch die Koordinatendatei"},
      {"pdf --koordinaten a.kor a.sta a.pdf", 2, "tavorena-stapel: --koordinaten oder a.sta, nicht beide"},
      {"pdf fehlt.txt a.pdf", 1, "fehlt.txt: Datei nicht gefunden:"},
      {"pdf a.sta ordner", 1, "ordner: Das PDF läßt sich nicht schreiben (ist ein Ordner)"},
      {"--koordinaten a.kor --pdf p.pdf a.sta", 2, "tavorena-stapel: --pdf braucht --protokoll"},
      {"--koordinaten a.kor --protokoll p.dru --pdf ./p.dru a.sta", 2, "p.dru: das Protokoll ist auch"},
      {"--pdf a.pdf menue", 2, "tavorena-stapel: unbekannte Angabe: --pdf"},
      {"", 2, "tavorena-stapel: --koordinaten fehlt"},
      {"--koordinaten a.kor", 2, "tavorena-stapel: die Stapeldatei (*.sta) fehlt"},
      {"--koordinaten", 2, "tavorena-stapel: --koordinaten: die Zahl der Werte"},
      {"--koordinaten a.kor --falsch a.sta", 2, "tavorena-stapel: unbekannte Angabe: --falsch"},
      {"--koordinaten a.kor --vorhanden nie a.sta", 2, "tavorena-stapel: --vorhanden nie gibt es nicht"},
      {"--koordinaten a.kor --trotzdem=2x a.sta", 2, "tavorena-stapel: trotzdem"},
      {"quasi --koordinaten a.kor", 2, "tavorena-stapel: --fs fehlt"},
      {"quasi --koordinaten a.kor --fs=-1", 1, "a.kor: Fehler aufgetreten: --fs -1"},
      {"quasi --koordinaten a.kor --fs nan", 1, "a.kor: Fehler aufgetreten: --fs nan"},
      {"belegung --koordinaten a.kor --bereich 7", 1, "a.kor: Fehler aufgetreten: --bereich 7"},
      {"belegung --koordinaten a.kor --bereich 7,8A", 1, "a.kor: Fehler aufgetreten: --bereich 7,8A"},
      {"loeschen --koordinaten a.kor", 1, "a.kor: Fehler aufgetreten: entweder --nummer oder"},
      {"loeschen --koordinaten a.kor --nummer 7 --speichern c.kor", 1, "a.kor: Fehler aufgetreten: Punkt 7"},
      {"umnumerieren --koordinaten a.kor --alt 1001 --neu 1002", 1, "a.kor: Punkt 1002schon vorhanden"},
      {"umnumerieren --koordinaten a.kor --bereich 1001,1002 --start 2002", 1,
       "a.kor: Punkt 2003schon vorhanden"},
      {"verschieben --koordinaten a.kor", 1, "a.kor: Fehler aufgetreten: --tauschen oder"},
      {"verschieben --koordinaten a.kor --versatz=-1,2", 1, "a.kor: Fehler aufgetreten: --versatz -1,2"},
      {"verschieben --koordinaten a.kor --versatz 1e999,0,0", 1, "a.kor: Fehler aufgetreten: Der Versatz"},
      {"uebernehmen --koordinaten a.kor --aus a.kor --was versatz", 1, "a.kor: Kein Punkt ist zu ändern"},
      {"uebernehmen --koordinaten a.kor --aus ordner --was hoehenliste", 1, "ordner: Datei nicht gefunden"},
      {"uebernehmen --koordinaten a.kor --aus a.lt4 --was hoehen", 1,
       "a.lt4: Fehler aufgetreten: Verglichen"},
      {"uebernehmen --koordinaten a.kor --aus a.kor --was alles", 1,
       "a.kor: Fehler aufgetreten: --was alles"},
      {"uebernehmen --koordinaten a.kor --aus a.kor --was hoehen --fs 1", 1,
       "a.kor: Fehler aufgetreten: --fs"},
      {"uebernehmen --koordinaten a.kor --aus a.kor --was punktnummern --fs -1", 1,
       "a.kor: Fehler aufgetreten"},
      {"umrechnen --von gk --nach geo a.kor a.geo", 0, ""},
      {"umrechnen --von geo --nach gk4 a.geo ordner", 1,
       "ordner: ist ein Ordner Fehler 70 in Umrechnung.Schreiben"},
      {"umrechnen --von geo --nach utm32 a.geo u.kor", 1, "a.geo: Frage ohne Antwort: Die Eingabe nennt das"},
      {"umrechnen --von geo --nach utm32 a.geo u.kor --trotzdem", 0, ""},
      {"umrechnen --von gk --nach utm a.kor u.kor", 1,
       "a.kor: Fehler aufgetreten: Gauß-Krüger und UTM haben"},
      {"umrechnen --von gk --nach gk4 a.kor ./a.kor", 1,
       "./a.kor: Dateiname für Ein- und Ausgabe ist gleich:"},
      {"umrechnen --von utm32 --nach utm33 u.kor v.kor --ellipsoid bessel", 2,
       "tavorena-stapel: --ellipsoid"},
      {"umrechnen --von gk --nach gk4 a.kor v.kor --ellipsoid 6.3e6", 2,
       "tavorena-stapel: --ellipsoid 6.3e6"},
      {"umrechnen --von gk3 --nach gk4 a.kor v.kor", 2, "tavorena-stapel: --von gk3 gibt es nicht, nur geo"},
      {"doppelte-mitteln --koordinaten a.kor", 1, "a.kor: Keine doppelten Punkte vorhanden"},
      {"mitteln --koordinaten a.kor --art X --neu 1 --alt 1,2", 1, "a.kor: Fehler aufgetreten: --art X"},
      {"mitteln --koordinaten a.kor --art L --neu 2003 --alt 1001,1002 --vorhanden abbruch", 1,
       "a.kor: Punkt 2003schon vorhanden"},
      {"--koordinaten a.kor --fs 1 a.sta", 2, "tavorena-stapel: unbekannte Angabe: --fs"},
      {"menue a.sta", 2, "tavorena-stapel: unbekannte Angabe: a.sta"},
      {"menue --speichern b.kor", 2, "tavorena-stapel: --speichern braucht"},
      {"--koordinaten a.kor --protokoll ./a.kor a.sta", 2, "./a.kor: das Protokoll ist auch die Koord"},
      {"--koordinaten a.kor --protokoll gleich a.sta", 2, "gleich: das Protokoll ist auch die Datei"},
      {"--koordinaten a.kor --speichern a.sta a.sta", 2, "a.sta: die Datei von --speichern ist"},
      {"--koordinaten a.kor --protokoll neu --speichern ordner/../neu a.sta", 2,
       "ordner/../neu: die Datei von"},
  };
  for (const Fall& F : Fälle) {
    SCOPED_TRACE(F.Worte);
    EXPECT_EQ(Laufen(TAVORENA_STAPEL, F.Worte), F.Rückgabe);
    EXPECT_TRUE(Meldungen.starts_with(F.Meldung)) << Meldungen;
    EXPECT_EQ(std::count(Meldungen.begin(), Meldungen.end(), '\n'), F.Rückgabe == 0 ? 0 : 1) << Meldungen;
  }
#ifndef _WIN32
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "menue >/dev/full 2>&1; exit $?; :"), 1);
#endif
  EXPECT_EQ(Inhalt(Ordner.Pfad("a.sta")).substr(0, 3), "M V");  // a refused call touches nothing
}

#ifndef _WIN32  // limits of the shell
TEST_F(Programm, VolleScheibeBeendetOhneSpeichern) {
  std::string Viele = "M VR 24.40 x\r\nPAN 1001\r\nPEN 1002\r\n";
  for (int i = 0; i < 60; ++i) Viele += "NR 2003\r\n";
  Schreibe(Ordner.Pfad("viele.sta"), Viele + "E\r\n");
  EXPECT_EQ(Laufen("sh -c 'trap \"\" XFSZ; ulimit -f 2; exec " TAVORENA_STAPEL " \"$@\"' sh",
                   "--koordinaten a.kor --protokoll a.dru --speichern b.kor viele.sta"),
            1);
  EXPECT_EQ(Meldungen.find("a.dru: "), 0U) << Meldungen;
  EXPECT_EQ(Meldungen.find('\n'), Meldungen.size() - 1) << Meldungen;  // one, not one a row
  EXPECT_FALSE(fs::exists(Ordner.Pfad("b.kor")));
}

#endif

TEST_F(Programm, AuskunftOhneBildschirm) {
  for (const char* Pfad : {TAVORENA_STAPEL, TAVORENA_FENSTER}) {
    if (*Pfad == '\0') continue;  // a build without Qt
    SCOPED_TRACE(Pfad);
    EXPECT_EQ(Laufen(Pfad, "--version"), 0);
    EXPECT_NE(Aus.find(TAVORENA_FASSUNG "\n"), std::string::npos) << Aus;
    EXPECT_EQ(Laufen(Pfad, "--help"), 0);
    EXPECT_NE(Aus.find("Rückgabewert: 0"), std::string::npos) << Aus;
    EXPECT_EQ(Aus.find("Options"), std::string::npos) << Aus;
    EXPECT_EQ(Aus.find("Usage"), std::string::npos) << Aus;
    EXPECT_EQ(Laufen(Pfad, "--falsch"), 2);
    EXPECT_NE(Meldungen.find("unbekannte Angabe: --falsch"), std::string::npos) << Meldungen;
  }
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "menue --help"), 0);
  EXPECT_NE(Aus.find("--trotzdem"), std::string::npos) << Aus;
  EXPECT_EQ(Aus.find("Options"), std::string::npos) << Aus;
}

#ifndef _WIN32  // the tools are the system's
TEST_F(Programm, PdfOhneBildschirm) {
  const auto Anzahl = [this](const std::string& Stück) {
    int n = 0;
    for (std::size_t p = 0; (p = Aus.find(Stück, p)) != std::string::npos; ++p) ++n;
    return n;
  };
  Schreibe(Ordner.Pfad("a.dru"),
           "von gestern, Stra\xDF"
           "e\r\n");  // in Windows-1252, and stays so
  Schreibe(Ordner.Pfad("u.sta"), "M VR 24.40 Straße\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\n");
  for (int Lauf = 0; Lauf < 2; ++Lauf) {
    ASSERT_EQ(Laufen(TAVORENA_STAPEL, "--koordinaten a.kor --protokoll a.dru --pdf a.pdf u.sta"), 0);
    ASSERT_EQ(Laufen("pdftotext", "-fixed 6.02 a.pdf -"), 0);
    EXPECT_EQ(std::tuple(Anzahl("gestern"), Anzahl("|VR 24.40  Straße"), Anzahl("  2003\n")),
              std::tuple(0, 1, 1))
        << Aus;
  }
  ASSERT_EQ(Laufen(TAVORENA_STAPEL, "--koordinaten a.kor --protokoll a.dru --pdf a.pdf fehler.sta"), 1);
  ASSERT_EQ(Laufen("pdftotext", "-fixed 6.02 a.pdf -"), 0);
  EXPECT_EQ(Anzahl("Straße"), 1);  // as it was
  ASSERT_EQ(Laufen(TAVORENA_STAPEL, "pdf --koordinaten a.kor k.pdf"), 0);
  EXPECT_EQ(Aus, "Seiten: 1\n");
  ASSERT_EQ(Laufen("pdftotext", "-fixed 6.02 k.pdf -"), 0);
  EXPECT_EQ(std::tuple(Anzahl("|Aktuelle Koordinaten"), Anzahl("1002   3500160.000")), std::tuple(1, 1))
      << Aus;
}

#endif

TEST_F(Programm, AnsichtOhneBildschirm) {
  if (*TAVORENA_FENSTER == '\0') GTEST_SKIP() << "a build without Qt";
  const struct {
    const char *Worte, *Anfang, *Darin;
    int Rückgabe;
  } Fälle[] = {{"a.kor --ansicht aus.svg", "<?xml", ">1001</text>", 0},
               {"a.kor --ansicht aus.pdf --groesse 800x600", "%PDF-", "/MediaBox [0 0 600", 0},
               {"a.kor --ansicht aus.png --groesse 320x200", "\x89PNG", "IHDR", 0},
               {"a.kor --ansicht aus.pdf --blatt A3quer --massstab 500", "%PDF-", "/MediaBox [0 0 1191", 0},
               {"a.kor --ansicht aus.png --blatt A4 --massstab 50", "", "", 1},  // several sheets
               {"a.kor --ansicht aus.pdf --blatt A5", "", "", 2},
               {"a.kor --ansicht aus.pdf --massstab 500", "", "", 2},
               {"a.kor --ansicht aus.bmp", "", "", 1},
               {"fehlt.kor --ansicht aus.svg", "", "", 1},
               {"a.kor --ansicht fehlt/aus.svg", "", "", 1},
               {"a.sta --ansicht aus.svg", "", "", 1},
               {"--ansicht aus.svg", "", "", 2},
               {"a.kor --ansicht aus.svg --groesse 800", "", "", 2}};
  for (const auto& F : Fälle) {
    SCOPED_TRACE(F.Worte);
    for (const char* Name : {"aus.svg", "aus.pdf", "aus.png"}) fs::remove(Ordner.Pfad(Name));
    EXPECT_EQ(Laufen(TAVORENA_FENSTER, F.Worte), F.Rückgabe);
    std::string Alles;
    for (const char* Name : {"aus.svg", "aus.pdf", "aus.png"}) Alles += Inhalt(Ordner.Pfad(Name));
    EXPECT_EQ(Alles.substr(0, std::string(F.Anfang).size()), F.Anfang);
    EXPECT_NE(Alles.find(F.Darin), std::string::npos);
    EXPECT_EQ(Alles.empty(), F.Rückgabe != 0);
    EXPECT_EQ(Meldungen.find("tavorena: ") != std::string::npos, F.Rückgabe != 0) << Meldungen;
  }
}

// The settings beside the program are its own, not those of the folder that it is started in.
TEST_F(Programm, FremdeEinstellungenImArbeitsordner) {
  Schreibe(Ordner.Pfad("Tavorena.ini"), "[Optionen]\r\n3\r\n0\r\nFalse\r\nFalse\r\n0\r\n0\r\n3\r\n1\r\n");
#ifdef _WIN32
  const std::string Aufruf = TAVORENA_STAPEL;
#else
  const std::string Aufruf =
      "PATH='" + fs::path(TAVORENA_STAPEL).parent_path().string() + "':$PATH tavorena-stapel";
#endif
  Laufen(Aufruf, "--koordinaten a.kor --speichern b.kor a.sta");
  EXPECT_NE(Inhalt(Ordner.Pfad("b.kor")).find("3500100.000"), std::string::npos)
      << Inhalt(Ordner.Pfad("b.kor"));
}

TEST_F(Programm, Punktlisten) {
  struct Fall {
    const char *Worte, *Ausgabe;
  };
  for (const Fall& F : {
           Fall{"doppelte", "Keine doppelten Punkte vorhanden !\n"},
           {"quasi --fs 0.01 --ohne-einzelpunkte", "Keine quasiidentischen Punkte vorhanden !\n"},
           {"quasi --fs 43 --ohne-einzelpunkte",
            "      Punktnr.     Rechts        Hoch      Hoehe   ds     dH   Sy Bem.\n"
            "          1001 3500100.000 5600200.000          21.213             ******W>D(max)\n"
            "          2003 3500130.000 5600230.000          21.213             ******W>D(max)\n\n"},
           {"belegung --bereich 1003,1001",
            "          1001 -     1002  belegt       2\n          1003 -     1003  frei       1\n"},
       }) {
    EXPECT_EQ(Laufen(TAVORENA_STAPEL, F.Worte + std::string(" --koordinaten a.kor")), 0) << Meldungen;
    EXPECT_EQ(Aus, F.Ausgabe);
  }
}

TEST_F(Programm, Gesamtdatei) {
  Schreibe(Ordner.Pfad("a.hli"), "10 150.1887\n12 0\nEnde\n");
  Schreibe(Ordner.Pfad("b.hli"), "10 150.1861\n12 0.0001\n");
  Schreibe(Ordner.Pfad("g.kor"), "1001 3500100 5600200\r\n2 3500160 5600280 7\r\n");
  struct Fall {
    const char* Worte;
    int Rückgabe;
    const char *Ausgabe, *Meldung;
  };
  for (const auto& [Worte, Rückgabe, Ausgabe, Meldung] :
       {Fall{"a.ges --epoche 1.2.2003 --hoehen a.hli", 0,
             "a.ges, 01.02.2003: 2 Punkte, davon 2 neu, 1 Zeile der Datei ohne Punkt\n", ""},
        {"a.ges --epoche 05.06.2004 --hoehen b.hli --liste a.dru", 0,
         "a.ges, 05.06.2004: 2 Punkte, davon 0 neu\n", ""},
        {"a.ges --epoche 05.06.2004 --hoehen a.hli", 1, "",
         "a.hli: Frage ohne Antwort: Die Epoche 05.06.2004"},
        {"a.ges --epoche 05.06.2004 --hoehen b.hli --trotzdem", 0,
         "a.ges, 05.06.2004: 2 Punkte, davon 0 neu\n", ""},
        {"a.ges --epoche 6.7.2005 --koordinaten g.kor", 0,
         "a.ges, 06.07.2005: 1 Punkt, davon 1 neu, 1 Punkt ohne Höhe, nicht aufgenommen\n", ""},
        {"b.ges --epoche 31.12.2003 --koordinaten g.kor", 0,
         "b.ges, 31.12.2003: 2 Punkte, davon 2 neu, 1 Punkt ohne Höhe\n", ""},
        {"b.ges --epoche 31.4.2003 --koordinaten g.kor", 1, "",
         "b.ges: Fehler aufgetreten: Kein Datum: 31.4.2003"},
        {"b.ges --epoche 1.4.2003 --hoehen a.hli", 1, "",
         "a.hli: Fehler aufgetreten: Die Gesamtdatei braucht"},
        {"b.ges --epoche 1.4.2003", 1, "", "b.ges: Fehler aufgetreten: zu --epoche gehört"},
        {"b.ges", 1, "", "b.ges: Fehler aufgetreten: --epoche oder --liste fehlt"},
        {"fehlt.ges --liste b.dru", 1, "", "fehlt.ges: "},
        {"a.hli --epoche 1.4.2003 --hoehen a.hli", 1, "",
         "a.hli: Fehler aufgetreten: Dateiname für Ein- und"},
        {"a.ges --liste a.ges", 2, "", "a.ges: die Datei von --liste ist auch"}}) {
    EXPECT_EQ(Laufen(TAVORENA_STAPEL, std::string("gesamtdatei ") + Worte), Rückgabe) << Worte << Meldungen;
    EXPECT_EQ(Aus, Ausgabe) << Worte;
    EXPECT_TRUE(Meldungen.starts_with(Meldung)) << Worte << '\n' << Meldungen;
  }
  EXPECT_EQ(Inhalt(Ordner.Pfad("a.ges")),
            "GES H 01.02.2003 05.06.2004 06.07.2005\r\n"
            "      10    150.1887    150.1861           -\r\n"
            "      12      0.0000      0.0001           -\r\n"
            "       2           -           -      7.0000\r\n");
  EXPECT_NE(Inhalt(Ordner.Pfad("a.dru")).find("10  05.06.2004  150.186   -2.6 ******       -2.6 ******"),
            std::string::npos);
}

TEST_F(Programm, Nivellement) {
  Schreibe(Ordner.Pfad("t.gsi"),
           "110001+00000101 83..18+18230000\r\n110002+00000101 32...8+02530000 331.28+00123450\r\n"
           "110003+00000102 32...8+02530000 332.28+00098765\r\n110004+00000007 333.28+00050000\r\n");
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "rohdaten t.gsi --niv t.niv"), 0) << Meldungen;
  EXPECT_TRUE(Aus.ends_with("t.niv: 3 Ablesungen, 1 Höhe geschrieben\n")) << Aus;
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "rohdaten t.gsi --niv t.niv"), 1);
  const std::string Linie = "nivellement t.niv --hoehen t.hli";
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, Linie + " --hli b.hli --dat b.dat --protokoll n.dru"), 0) << Meldungen;
  const std::string Block =
      "        1.2345                                     182.3000        101  Fest\n"
      "                   0.5000                          183.0345          7  Zwischen\n"
      "                              0.9877               182.5469        102\n"
      "      Summe R=    1.2345  Summe V=    0.9877\n"
      "      Offen: 101 - 102, ohne Verbesserung  L =  0.051 km\n";
  EXPECT_TRUE(Aus.ends_with("Bemerkung\n" + Block)) << Aus;
  std::string Prots = Inhalt(Ordner.Pfad("n.dru"));
  std::erase(Prots, '\r');
  EXPECT_TRUE(Prots.ends_with(Block)) << Prots;
  EXPECT_EQ(Inhalt(Ordner.Pfad("b.hli")),
            "     101    182.3000\r\n       7    183.0345\r\n     102    182.5469\r\n");
  EXPECT_EQ(Inhalt(Ordner.Pfad("b.dat")), "     101       102     0.24685     50.6\r\n");
  Schreibe(Ordner.Pfad("u.niv"), "102 - - 1\n");
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "nivellement u.niv --hoehen t.hli"), 1);
  EXPECT_EQ(Meldungen, "u.niv: Fehler aufgetreten: Punkt 102 (1. Punktzeile): Rückblick fehlt davor\n");
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, Linie + " --klasse 0"), 1);
}

TEST_F(Programm, M5) {
  const std::string Vorn = "For M5|Adr 00001|PI1",
                    Mess = "|SD         10.000 m   |Hz       100.0000 gon |V1       100.0000 gon | $\n";
  Schreibe(Ordner.Pfad("a.m5"),
           Vorn + "                           7" + Mess + Vorn +
               "                           7|Y           9.997 m   |X           0.000 m   | $\n");
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "m5 a.m5 --punkte b.kor"), 0) << Meldungen;
  EXPECT_NE(Aus.find("\nMessung: 2\n"), std::string::npos) << Aus;
  EXPECT_TRUE(
      Aus.ends_with("Punkt 7: Gerät minus gerechnet dR   -0.003  dH    0.000  dZ          m\n"
                    "b.kor: 1 Punkt geschrieben\n"))
      << Aus;
  EXPECT_EQ(Inhalt(Ordner.Pfad("b.kor")), "             7        10.000         0.000       0.000  \r\n");
  for (const char* Worte : {"m5 ordner", "m5 a.sta --punkte b.kor"})
    EXPECT_EQ(Laufen(TAVORENA_STAPEL, Worte), 1);
  EXPECT_EQ(Inhalt(Ordner.Pfad("b.kor")).size(), 58U) << "not replaced by nothing";
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "m5 a.m5 --punkte a.m5"), 2);
}

TEST_F(Programm, PunkteÄndern) {
  Schreibe(Ordner.Pfad("d.kor"), "1 3500100 5600200\r\n1 3500100.02 5600200\r\n2 3500130 5600230\r\n");
  struct Fall {
    const char *Worte, *Nummern, *Protokoll;
  };
  for (const Fall& F : {
           Fall{"loeschen --bereich 0,1", "2 ", "VR 25.08"},
           {"umnumerieren --bereich 1,2 --start 2", "2 2 3 ", "***bericht. alt:       2"},
           {"doppelte-mitteln", "1 2 ", "1 ***Mittel"},
           {"uebernehmen --aus a.kor --was punktnummern", "1 1001 2003 ", "2003 Soll"},
           {"mitteln --art S --neu 7 --alt 1,2", "1 1 2 7 ", "7 ***Mittel (S)"},
       }) {
    fs::remove(Ordner.Pfad("a.dru"));
    const std::string Dateien = " --koordinaten d.kor --protokoll a.dru --speichern b.kor";
    EXPECT_EQ(Laufen(TAVORENA_STAPEL, F.Worte + Dateien), 0) << Meldungen;
    std::istringstream Leser(Inhalt(Ordner.Pfad("b.kor")));
    std::string Nummern, Wort;
    for (std::string Zeile; std::getline(Leser, Zeile);) {
      std::istringstream(Zeile) >> Wort;
      Nummern += Wort + " ";
    }
    EXPECT_EQ(Nummern, F.Nummern) << F.Worte;
    EXPECT_NE(Inhalt(Ordner.Pfad("a.dru")).find(F.Protokoll), std::string::npos) << F.Worte;
  }
}

TEST_F(Programm, MenüWieImFenster) {
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "menue"), 0);
  for (const char* Zeile :
       {"MenüDateiNeu\tKoordinatendatei &neu ...\tMenüMain(1)\tfrei\t\n",
        "MenüDateiStrich1\t\tMenüMain(1)\tStrich\t\n",
        "MenüKatasterLinel\t&Linienelemente\tMenüMain(4)\tgesperrt\tkeine Koordinatendatei offen\n",
        "MenüTestPanik\t&Panik-Exit\tMenüMain(10)\tverborgen\tgehört nur zum Baum\n",
        "ImageFStat\tFreie Stationierung / Polarer Anschluß\tSymbolleiste\tgesperrt\tkeine "
        "Koordinatendatei offen\n"}) {
    EXPECT_NE(Aus.find(Zeile), std::string::npos) << Zeile;
  }
  // The page of the handbook is what the tree says.
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "menue --seite"), 0);
  EXPECT_EQ(Aus, Inhalt(TAVORENA_HANDBUCH "/menuepunkte.md"));
  EXPECT_EQ(Laufen(TAVORENA_STAPEL, "menue --koordinaten a.kor"), 0);
  EXPECT_NE(Aus.find("MenüKatasterLinel\t&Linienelemente\tMenüMain(4)\tfrei\t\n"), std::string::npos);
}

}  // namespace
}  // namespace tavorena::test
