#include "Shelltest.h"

#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/shell/Befehle.h>
#include <tavorena/shell/Handbuchseiten.h>
#include <tavorena/shell/Koordinatendatei.h>

namespace tavorena::test {
namespace {

using Haupt = Shelltest;

const std::string Lt4Zeile = "000 45590000001001 000 3500100.000 5600200.000               0  \r\n";

class HauptOffen : public Shelltest {
 protected:
  HauptOffen() { Öffne(); }
};

TEST_F(HauptOffen, DateiLesenNimmtDieDateienDaneben) {
  EXPECT_TRUE(Gleich(KorAnzahl, 3, Prot.Datei, A_dru, StapelDatei.Name, Ordner.Pfad("a.sta")));
  EXPECT_TRUE(Gleich(Skript.Fenstertitel, "Tavorena    " + A_kor, Skript.Status[0], "   " + A_kor + "   ",
                     Skript.Status[1], "3 Punkte", Skript.Status[2], "Version: 2.2"));
  EXPECT_TRUE(Gleich(Historie[0].Dateiname, A_kor, Optionen.VerzeichnisLetztes, Ordner.Pfad("")));
  EXPECT_EQ(Skript.Aufträge[0].Titel, "Koordinatendatei zum Lesen auswählen");
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiLesen(2)", "");
  EXPECT_TRUE(Gleich(Skript.Aufträge[1].Filter, "EDBS- Dateien |*.ed?", Skript.Aufträge[1].Vorgabe, "*.alk"));
}

// Every change of file settles what is typed, asks, even when nothing changed, and goes on only when the old
// file is safe.
TEST_F(HauptOffen, DateiwechselFragt) {
  Skript.Erwarte("Koordinaten in Koordinatendatei\n\n" + A_kor + "\n\nspeichern ? ", KnopfAbbruch);
  Befehl("MenüDateiSchließen");
  EXPECT_TRUE(Gleich(KorAnzahl, 3, Skript.LetzteVorgabe, KnopfNein)) << "cancelled";
  KoordinatendateiName = Ordner.Pfad("fehlt/x.kor");
  Skript.Erwarte("speichern ? ", KnopfJa);
  Skript.Erwarte("Fehler aufgetreten beim Speichern der Datei " + KoordinatendateiName);
  Befehl("MenüDateiSchließen");
  EXPECT_EQ(KorAnzahl, 3) << "not saved";
  Formular* Blatt = nullptr;
  Skript.BeiBlatt = [&Blatt](Formular& Form) {
    Form.Öffnen();
    Blatt = &Form;
  };
  Optionen.AbfrageRiss = false;
  Befehl("MenüKatasterDis");
  Tippe(*Blatt, "DisAnfPnr", "1001\n");
  // The check is written once; it stays; it goes, its number unknown now, without its file; both go.
  using Fall = std::tuple<const char*, int, int, int>;
  for (const auto& [Getippt, Schreiben, Ohne, Speichern] :
       {Fall{"1002\n99,8", KnopfJa, 0, KnopfAbbruch}, Fall{"", 0, 0, KnopfAbbruch},
        Fall{"2003\n42", KnopfNein, KnopfNein, 0}, Fall{"77\n", KnopfNein, KnopfJa, KnopfAbbruch},
        Fall{"", KnopfNein, KnopfJa, KnopfNein}}) {
    if (std::string_view(Getippt) == "77\n") Skript.Formulare.push_back(Bediene({{"Abbrechen", ""}}));
    if (*Getippt != '\0') Tippe(*Blatt, "DisEndPnr", Getippt);
    if (Schreiben != 0) Skript.Erwarte("Protokoll und Stapel schreiben ? ", Schreiben);
    if (Ohne != 0) Skript.Erwarte("ohne Protokollausdruck und Stapel beenden ? ", Ohne);
    if (Speichern != 0) Skript.Erwarte("speichern ? ", Speichern);
    Befehl("MenüDateiSchließen");
    EXPECT_EQ(Skript.LetzteVorgabe, KnopfNein);
    EXPECT_TRUE(Gleich(KorAnzahl, Speichern == KnopfNein ? 0 : 3, BlätterOffen(), KorAnzahl > 0));
  }
  EXPECT_TRUE(Gleich(KoordinatendateiName, "", Prot.Datei, "", StapelDatei.Name, ""));
}

TEST_F(Haupt, Menüzustände) {
  for (const bool Offen : {false, true}) {
    SCOPED_TRACE(Offen);
    if (Offen) Öffne();
    for (const char* Name :
         {"MenüMain(4)", "MenüDateiLesen(1)", "MenüDateiSpeichern(0)", "MenüKatasterLinel"})
      EXPECT_EQ(Aktiv(Name), Offen) << Name;
    for (const char* Name : {"MenüDateiNeu", "MenüOptionenOptionen", "MenüOptionenDateinam"})
      EXPECT_TRUE(Aktiv(Name)) << Name;
    for (const char* Name : {"MenüMain(5)", "MenüMain(6)", "MenüDateiImportierenMain", "MenüBearbeiten3D"})
      EXPECT_EQ(Sichtbar(Name), Offen) << Name;
    EXPECT_EQ(BildAktiv("ImageVR2440"), Offen);
    EXPECT_TRUE(Gleich(Sichtbar("MenüMain(9)"), false, Sichtbar("MenüMain(18)"), true));
  }
}

// Each entry works, or says in one of these words why not; each has its page.
TEST_F(Haupt, JederMenüpunktOderSeinGrund) {
  const TVKernMDIForm& Kern = TVKernMDIForm::Fenster();
  const std::set<std::string_view> Sperren = {"keine Koordinatendatei offen",
                                              "erst die Koordinatendatei schließen", "nichts zurückzunehmen"};
  const std::set<std::string_view> Verstecke = {"erst mit offener Koordinatendatei", "nur mit Condorfenster",
                                                "leerer Eintrag", "anderswo erreichbar",
                                                "gehört nur zum Baum"};
  for (const bool Offen : {false, true}) {
    if (Offen) Öffne();
    for (const Menüeintrag& E : Menübaum()) {
      if (*E.Titel == '\0') continue;
      SCOPED_TRACE(E.Name);
      const std::string_view Grund = Kern.Grund(E);
      const bool Menü = std::any_of(Menübaum().begin(), Menübaum().end(), [&](const Menüeintrag& U) {
        return std::string_view(U.Eltern) == E.Name;
      });
      const bool Hist = std::string_view(E.Name).starts_with("MenüDateiHist(");
      EXPECT_TRUE(!Grund.empty() || Menü || Hist || BefehlFinden(E.Name) != nullptr);
      EXPECT_TRUE(Grund.empty() || (Kern.Sichtbar(E) ? Sperren : Verstecke).contains(Grund)) << Grund;
      EXPECT_TRUE(!Kern.Sichtbar(E) || Menü || E.Eltern == std::string_view("MenüMain(18)") ||
                  Handbuchseite(Kern.Hilfe(E)) != std::string_view("index.md"));
    }
    for (const Werkzeug& W : Symbolleiste()) {
      const std::string_view Grund = Kern.Grund(W);
      EXPECT_TRUE(Grund.empty() || Sperren.contains(Grund) || Grund == "nur während eines langen Laufs")
          << W.Name;
    }
  }
  TVKernMDIForm::Fenster().OhneKoordinaten();  // shows the file that was opened
  TVKernMDIForm::Fenster().DateiOffen();
  EXPECT_TRUE(Gleich(Grund("MenüKatasterLinel"), "", Grund("MenüDateiHist(1)"),
                     "erst die Koordinatendatei schließen", Grund("MenüTestPanik"), "gehört nur zum Baum"));
  Optionen.AbfrageRiss = false;
  Befehl("MenüKatasterPolel");
  EXPECT_TRUE(Gleich(Kern.Hinweis(Symbolleiste()[1]), "Koordinatendatei öffnen (Rechenblatt offen)",
                     Kern.Hinweis(Symbolleiste()[8]), "Linienelemente"));
}

TEST_F(HauptOffen, OffenesBlattSperrtBilder) {
  Optionen.AbfrageRiss = false;
  for (const bool Blatt : {false, true}) {
    if (Blatt) Befehl("MenüKatasterPolel");
    EXPECT_EQ(BlätterOffen(), Blatt);
    for (const char* Name : {"ImageDateiLesen", "ImageProgrammende", "ImageOptionen"})
      EXPECT_EQ(BildAktiv(Name), !Blatt) << Name;
  }
  for (const bool Lang : {true, false}) {
    TVKernMDIForm::Fenster().Beschäftigt(Lang);
    EXPECT_TRUE(Gleich(BildAktiv("ImageStop"), Lang, Aktiv("MenüDateiBeenden"), !Lang));
  }
  EXPECT_FALSE(Aktiv("MenüDateiHist(1)"));
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");  // the worksheet goes with its file
  EXPECT_TRUE(Gleich(BlätterOffen(), false, Aktiv("MenüDateiHist(1)"), true));
}

TEST_F(HauptOffen, VorhandenesProtokollFragt) {
  // The button, what is chosen in its dialog; the protocol, what stands in the old one and the points then.
  using Fall = std::tuple<int, std::deque<std::string>, std::string, const char*, int>;
  for (const auto& [Antwort, Anderes, Protokoll, Altes, Punkte] :
       {Fall{0, {}, A_dru, "alt\r\n", 3}, Fall{1, {}, A_dru, "", 3},
        Fall{2, {Ordner.Pfad("neu")}, Ordner.Pfad("neu.dru"), "alt\r\n", 3},
        Fall{2, {""}, "", "alt\r\n", 0}}) {  // cancelled: no coordinates
    Schreibe(A_dru, "alt\r\n");
    Skript.Erwarte("speichern ? ", KnopfNein);
    Knopf(Antwort);
    Skript.Dateien = Anderes;
    Skript.Dateien.push_front(A_kor);
    Befehl("MenüDateiLesen(0)");
    EXPECT_TRUE(Gleich(Prot.Datei, Protokoll, Inhalt(A_dru), Altes, KorAnzahl, Punkte));
    EXPECT_EQ(Aktiv("MenüKatasterLinel"), Punkte > 0);
    EXPECT_TRUE(Gleich(Skript.Fenstertitel, "Tavorena    " + (Punkte > 0 ? A_kor : ""), Skript.Status[0],
                       Punkte > 0 ? "   " + A_kor + "   " : "", Skript.Status[1],
                       std::to_string(Punkte) + " Punkte"));
  }
  Optionen.VerzeichnisLetztes = "/";
  Knopf(2);
  Skript.Dateien = {""};
  EXPECT_EQ(HauptDateiÖffnen(A_kor, Dateiformat::Kor), -1);
  EXPECT_EQ(Skript.Aufträge.back().Ordner, Ordner.Pfad(""));
}

// What is no coordinate file is asked about before anything changes; single lines that are none are told.
TEST_F(Haupt, FremdeDateiFragt) {
  const std::string Null(1, '\0'), Kor = "1001\t3500100,5\t+5.6E6\r\n\r\n  \n1002 1.0 -2\r\n";
  struct Fall {
    const char* Name;
    std::string Inhalt;
    const char* Frage;
    int Punkte, Fremde, Erste;
  };
  const Fall Fälle[] = {
      {"a.kor", Kor, "", 2, 0, 0},
      {"leer.kor", "", "", 0, 0, 0},
      {"kopf.kor", Kor + "\r\nFlur 7\r\n# 1 2\n", "", 3, 2, 6},
      {"c.lt4", "# x\n#\nquer\n" + Lt4Zeile + "#\n", "", 1, 4, 1},
      {"kor.lt4", Kor, "0 von 2 Zeilen sind lesbar (erste andere: Zeile 1).\n\nTrotzdem lesen ?", 0, 2, 1},
      {"x.pdf", "%PDF-1\n1 *** 2\n2 1.2.3 4\n3 1e 2\n4 5 6.0\n", "1 von 5 Zeilen sind lesbar", 5, 4, 1},
      {"null.kor", Kor + "1003 1.0 2.0" + Null + "\n", "2 von 3 Zeilen sind lesbar", 3, 1, 5},
  };
  for (const Fall& F : Fälle) {
    const std::string Datei = Ordner.Pfad(F.Name);
    Schreibe(Datei, F.Inhalt);
    for (const int Antwort : {KnopfNein, KnopfJa}) {
      SCOPED_TRACE(F.Name);
      Skript.Status[4].clear();
      if (*F.Frage != '\0') Skript.Erwarte("eine Koordinatendatei aus:\n" + Datei + "\n" + F.Frage, Antwort);
      const bool Offen = *F.Frage == '\0' || Antwort == KnopfJa;
      EXPECT_EQ(HauptDateiÖffnen(Datei, Dateiformat::Kor), Offen ? 0 : -1);
      EXPECT_TRUE(Gleich(KorAnzahl, Offen ? F.Punkte : 0, Skript.Fenstertitel,
                         "Tavorena    " + (Offen ? Datei : "")));
      const std::string Hilfe = Skript.Status[4], Ende = "die erste ist Zeile " + std::to_string(F.Erste);
      EXPECT_EQ(Hilfe.empty(), !Offen || F.Fremde == 0);
      if (Hilfe.empty()) continue;
      EXPECT_NE(Hilfe.find("   " + std::to_string(F.Fremde) + " Zeile"), std::string::npos) << Hilfe;
      EXPECT_NE(Hilfe.find(Ende), std::string::npos) << Hilfe;
    }
  }
  Skript.Erwarte("eine Koordinatendatei aus", KnopfNein);
  Befehl("MenüDateiHinzuLesenKomplett", Ordner.Pfad("x.pdf"));
  EXPECT_TRUE(Gleich(KorAnzahl, 3, KoordinatenGeaendert, false));
}

// What a file holds and the table does not is not lost without a question, by whatever name it is written.
TEST_F(Haupt, VerlusteFragenVorDemSpeichern) {
  std::string Viele;
  for (int i = 0; i < KorGrenze + 2; ++i) Viele += std::to_string(i + 1) + " 1.0 2.0\n";
  for (const auto& [Name, Text, Frage] :
       {std::tuple{"kopf.kor", std::string("Flur 7\n1 2.0 3.0\n"), "1 Zeile der Datei ist kein Punkt\n"},
        {"c.lt4", Lt4Zeile + "#\n# x\n", "2 Zeilen der Datei sind keine Punkte\n"},
        {"viele.kor", Viele, "2 Punkte der Datei stehen nicht in der Tabelle\n"}}) {
    SCOPED_TRACE(Name);
    const std::string Datei = Ordner.Pfad(Name);
    Schreibe(Datei, Text);
    if (Text == Viele) Skript.Erwarte("Maximale Anzahl");
    ASSERT_EQ(HauptDateiÖffnen(Datei, Dateiformat::Kor), 0);
    EXPECT_EQ(KoordinatenExportieren(Datei, Koordinatendateiformat, true), 0);  // what it holds stays
    const std::string Ganz = Inhalt(Datei);
    Skript.Erwarte("Beim Speichern gehen Angaben verloren:\n" + std::string(Frage) + "\n" +
                       Ordner.Pfad("app/../") + Name,
                   KnopfNein);
    EXPECT_EQ(KoordinatenExportieren(Ordner.Pfad("app/../") + Name, Koordinatendateiformat), -1);
    EXPECT_TRUE(Gleich(Skript.LetzteVorgabe, KnopfNein, Inhalt(Datei), Ganz));
    Skript.Erwarte(Frage, KnopfJa);
    for (int i = 0; i < 2; ++i) EXPECT_EQ(HauptDateiSpeichern(), 0);  // it is lost now
    EXPECT_LT(Inhalt(Datei).size(), Ganz.size());
  }
}

// What the format itself does not keep is part of the same question, for a file of any name; points behind
// the table's end too, lines only where they are replaced.
TEST_F(Haupt, VerlusteDesFormats) {
  std::string Viele;
  for (int i = 0; i < KorGrenze + 1; ++i) Viele += std::to_string(i + 1) + " 1.0 2.0\n";
  Schreibe(A_kor, Viele);
  Skript.Erwarte("Maximale Anzahl");
  ASSERT_EQ(HauptDateiÖffnen(A_kor, Dateiformat::Kor), 0);
  ASSERT_EQ(KorZeileSetzen(6, {"7A", 32477000.123, 2}), 0);
  for (const int Antwort : {KnopfNein, KnopfJa}) {
    Skript.Erwarte(
        "verloren:\n1 Koordinate paßt nicht in ihr Feld (Punkt 7A)\n1 Punktnummer ändert sich (Punkt 7A)\n"
        "1 Punkt der Datei steht nicht in der Tabelle\n\n",
        Antwort);
    Befehl("MenüDateiSpeichernUnter", Ordner.Pfad("b.lt4"));
    EXPECT_EQ(DateiVorhanden(Ordner.Pfad("b.lt4")), Antwort == KnopfJa);
  }
  Befehl("MenüDateiSpeichern(0)");  // was answered
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");
  Punkt("1", 1, 2);
  EXPECT_EQ(KoordinatenExportieren(Ordner.Pfad("c.kor"), Dateiformat::Kor), 0);  // another job
}

TEST_F(Haupt, MisslungenesLesenLäßtDenTitelStehen) {
  Punkt("7", 1, 2);
  Skript.Erwarte("nicht vorhanden !");
  EXPECT_EQ(HauptDateiÖffnen(Ordner.Pfad("fehlt.kor"), Dateiformat::Kor), -1);
  EXPECT_TRUE(
      Gleich(Skript.Fenstertitel, "Tavorena    " + Ordner.Pfad("fehlt.kor"), Skript.Status[1], "0 Punkte"));
  Skript.Erwarte("nicht vorhanden ! (ist ein Ordner)");
  Befehl("MenüDateiLesen(0)", Ordner.Pfad("app/.."));
  Schreibe(Ordner.Pfad("a.eds"), "x");
  Skript.Erwarte("Format nicht erkannt");
  Befehl("MenüDateiLesen(0)", Ordner.Pfad("a.eds"));
  EXPECT_EQ(Historie[0].Dateiname, "");
}

TEST_F(Haupt, AbgebrocheneNeueDatei) {
  Schreibe(Ordner.Pfad("neu.dru"), "alt");
  Skript.Dateien = {"", Ordner.Pfad("neu"), ""};
  Knopf(2);
  for (const char* Ohne : {"a name", "a protocol"}) {
    Befehl("MenüDateiNeu");
    EXPECT_TRUE(Gleich(KoordinatendateiName, "", Aktiv("MenüKatasterLinel"), false)) << "without " << Ohne;
  }
  Schreibe(A_kor, "Flur 7\r\n1 2.0 3.0\r\n");
  for (const int Antwort : {2, 0, 1}) {  // it is there: as it was, gone on with, begun anew
    Knopf(Antwort);
    Befehl("MenüDateiNeu", A_kor);
    EXPECT_TRUE(Gleich(KorAnzahl, Antwort == 0 ? 2 : 0, KoordinatendateiName, Antwort == 2 ? "" : A_kor));
    if (Antwort == 0) Skript.Erwarte("speichern ? ", KnopfNein);
  }
  EXPECT_EQ(HauptDateiSpeichern(), 0);  // it was given up
}

TEST_F(Haupt, NeueDateiSpeichern) {
  Befehl("MenüDateiNeu", Ordner.Pfad("neu"));
  Punkt("7", 1, 2, 3, "ß");
  EXPECT_EQ(Skript.Fenstertitel, "Tavorena    " + Ordner.Pfad("neu.kor") + " *");
  Befehl("MenüDateiSpeichern(0)");
  EXPECT_TRUE(Gleich(Skript.Fenstertitel, "Tavorena    " + Ordner.Pfad("neu.kor"), Skript.Status[4],
                     "   1 Punkt gespeichert   "));
  EXPECT_EQ(Inhalt(Ordner.Pfad("neu.kor")), "             7         1.000         2.000       3.000  ß\r\n");
  EXPECT_FALSE(KoordinatenGeaendert);
  Skript.Erwarte("1 Höhe geht verloren (Punkt 7)\n1 Symbol geht verloren (Punkt 7)", KnopfJa);
  Befehl("MenüDateiSpeichernUnter", Ordner.Pfad("b.lt4"));
  EXPECT_EQ(Koordinatendateiformat, Dateiformat::Lt4);
  EXPECT_TRUE(Inhalt(Ordner.Pfad("b.lt4")).starts_with("000 45590000000007"));
}

// What another program wrote after it was read here is not lost without a question.
TEST_F(HauptOffen, FremdeÄnderungFragt) {
  const std::string Fremd = "9001 1.0 2.0\r\n9002 3.0 4.0\r\n";
  Punkt("7", 1, 2);
  Schreibe(A_kor, Fremd);
  for (const int Antwort : {KnopfNein, KnopfJa}) {
    Skript.Erwarte("inzwischen von einem anderen Programm geändert. Überschreiben ?\n\n" + A_kor, Antwort);
    Befehl("MenüDateiSpeichern(0)");
    EXPECT_EQ(Inhalt(A_kor) == Fremd, Antwort == KnopfNein);
    EXPECT_EQ(KoordinatenGeaendert, Antwort == KnopfNein);
  }
  Punkt("8", 1, 2);
  Optionen.OptNachkommaSpeichern = -5;
  Befehl("MenüDateiSpeichern(0)");  // known again
  EXPECT_NE(Inhalt(A_kor).find("  8         1.000         2.000 "), std::string::npos) << Inhalt(A_kor);
  EXPECT_EQ(DateiLöschen(A_kor), 0);
  Befehl("MenüDateiSpeichern(0)");  // nothing to lose
  EXPECT_TRUE(DateiVorhanden(A_kor));
}

TEST_F(Haupt, NameDerBefehlszeileWirdGanz) {
  Schreibe(A_kor, "1 2.0 3.0\r\n");
  const auto Vorher = fs::current_path();
  fs::current_path(Ordner.Pfad(""));
  HauptDateiÖffnen("a.kor", Dateiformat::Kor);
  fs::current_path(Vorher);
  EXPECT_TRUE(Gleich(Historie[0].Dateiname, A_kor, Prot.Datei, A_dru));
}

TEST_F(Haupt, SpeichernUnterVergebenemNamen) {
  Befehl("MenüDateiNeu", A_kor);
  Punkt("7", 1, 2, 3, "ß");
  const std::string Alt = "S\xFC\x64 1.0 2 3", Datei = Ordner.Pfad("c.kor");
  Schreibe(Datei, Alt);
  Knopf(2);
  Befehl("MenüDateiSpeichernUnter", Datei);
  EXPECT_TRUE(Gleich(KoordinatendateiName, A_kor, Inhalt(Datei), Alt)) << "cancelled";
  Knopf(0);  // extended: the table then holds all of it
  Befehl("MenüDateiSpeichernUnter", Datei);
  EXPECT_EQ(KorAnzahl, 2);
  EXPECT_EQ(Inhalt(Datei), Alt + "\r\n             7         1.000         2.000       3.000  \xDF\r\n");
  std::string Viele;
  for (int i = 0; i < 300; ++i) Viele += std::to_string(i) + " 1.0 2.0\r\n";
  Schreibe(Ordner.Pfad("v.kor"), Viele);
  Skript.BeiEreignissen = [] { KorStop = Laufwunsch::Stop; };
  Knopf(0);
  Befehl("MenüDateiSpeichernUnter", Ordner.Pfad("v.kor"));  // half a table is no job
  EXPECT_TRUE(Gleich(KoordinatendateiName, "", Aktiv("MenüKatasterLinel"), false));
}

TEST_F(HauptOffen, Hinzulesen) {
  EXPECT_FALSE(KoordinatenGeaendert);
  const std::string Datei = Ordner.Pfad("h.kor");
  Schreibe(Datei, "1001 9.0 9\r\n3001 1.0 1\r\n3002 1.0 1\r\n3003 1.0 1\r\n3003 2.0 2\r\n");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "3001\n"}, {"Wert(1)", "3002\n"}}));
  Befehl("MenüDateiHinzuLesenPunktbereich", Datei);
  EXPECT_EQ(KorAnzahl, 5);
  Befehl("MenüDateiHinzuLesenNurNeue", Datei);  // of two new points of one number the first
  EXPECT_TRUE(Gleich(KorAnzahl, 6, KorRechts[0], 3500100, KorRechts[5], 1, KoordinatenGeaendert, true));
  Skript.Formulare.push_back(Bediene({{"PSelectGitter", "\n"}, {"OK", ""}}));  // Return marks the first
  for (int i = 0; i < 3; ++i) Skript.Erwarte("Achtung, doppelte Punkte vorhanden !");
  Befehl("MenüDateiHinzuLesenPunktselektion", Datei);
  EXPECT_EQ(KorAnzahl, 7);
  Befehl("MenüDateiHinzuLesenKomplett", Datei);
  EXPECT_EQ(KorAnzahl, 12);
  Schreibe(Datei, "4,5 1.0 1\r\n7000 1.0 1\r\n");  // the list shows 4.5
  Skript.Formulare.push_back(Bediene({{"PSelectGitter", "\n"}, {"OK", ""}}));
  Befehl("MenüDateiHinzuLesenPunktselektion", Datei);
  EXPECT_EQ(KorPnr(0), "4.5");
}

TEST_F(HauptOffen, GanzeTabelleUndZurück) {
  const char* const Rück = "MenüBearbeitenRück";
  const auto Titel = [&] { return TVKernMDIForm::Fenster().Titel(*MenüFinden(Rück)); };
  Schreibe(Ordner.Pfad("b.kor"), "A 3500100.03 5600200 1\n2003 3500131 5600230 9\n");
  Skript.Erwarte("3 Punkte ändern ?", KnopfNein);
  Befehl("MenüBearbeitenTauschen(0)");
  EXPECT_TRUE(Gleich(KorRechts[0], 3500100, Grund(Rück), "nichts zurückzunehmen", Titel(), "&Rückgängig"));
  Skript.Erwarte("3 Punkte ändern ?", KnopfJa);
  Befehl("MenüBearbeitenTauschen(0)");
  EXPECT_TRUE(Gleich(KorRechts[0], 5600200, Grund(Rück), "", Titel(), "&Rückgängig: Koordinaten tauschen"));
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "x\n"}, {"Wert(0)", "1,5"}, {"Wert(2)", "-2.5\n"}}));
  Skript.Erwarte("3 Punkte ändern ?", KnopfJa);
  Befehl("MenüBearbeitenTauschen(2)");
  EXPECT_TRUE(Gleich(KorHoch[0], 5600201.5, KorRechts[0], 3500100, KorHoehe[0], 10));
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "-99999999999\n\n\n"}}));
  Skript.Erwarte("dRechts: zu groß");
  Befehl("MenüBearbeitenTauschen(1)");
  Befehl(Rück);
  EXPECT_TRUE(Gleich(KorRechts[0], 5600200, Titel(), "&Rückgängig: Koordinaten tauschen"));
  Befehl(Rück);
  EXPECT_TRUE(Gleich(KorHoehe[0], 12.5, KorRechts[0], 3500100, Aktiv(Rück), false));
  Skript.Erwarte("KOR-Dateien");
  Befehl("MenüBearbeitenKBericht(1)", Ordner.Pfad("b.lt4"));
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "0.03\n"}}));
  Skript.Erwarte("1 Punkt ändern ?", KnopfJa);
  Befehl("MenüBearbeitenPBericht", Ordner.Pfad("b.kor"));
  EXPECT_EQ(KorSuche(Wert("1001")), -1);
  // A replay has the table to itself.
  Stapel.Aktiv = true;
  Optionen.CondorfensterAn = true;  // shows its entries
  const std::uint64_t Stand = KorStand;
  int Gesperrt = 0;
  for (const Menüeintrag& E : Menübaum()) {
    const tavorena::Befehl* B = BefehlFinden(E.Name);
    if (B == nullptr || !B->Ändert) continue;
    Skript.Status[4].clear();
    Befehl(E.Name);
    EXPECT_EQ(Skript.Status[4], "   Stapel noch nicht abgeschlossen   ") << E.Name;
    ++Gesperrt;
  }
  EXPECT_TRUE(Gleich(KorStand, Stand, Gesperrt >= 13, true));
  Stapel = {};
  Skript.Erwarte("speichern ? ", KnopfNein);
  Befehl("MenüDateiSchließen");
  fs::remove(A_dru);
  Öffne();
  EXPECT_FALSE(Aktiv(Rück));
}

TEST_F(HauptOffen, PunktformenÜberDasMenü) {
  Skript.Erwarte("Keine doppelten Punkte vorhanden !");
  Befehl("MenüKatasterDMitt");
  ASSERT_EQ(KorAnhängen({"1001", 0, 0}), 0);
  for (const char* Name : {"MenüKatasterBerpunkt", "MenüKatasterSchwerpunkt", "MenüKatasterPMitt",
                           "MenüKatasterDMitt", "MenüKatasterPunktLöschen"}) {
    Befehl(Name);
    EXPECT_TRUE(Gleich(BlätterOffen(), true, BildAktiv("ImageDateiLesen"), false)) << Name;
    BlätterSchließen();
  }
  KorAbschneiden(0);
  for (const Menüeintrag& E : Menübaum()) {
    const tavorena::Befehl* B = BefehlFinden(E.Name);
    if (B == nullptr || B->OhnePunkte == nullptr) continue;
    Skript.Erwarte(B->OhnePunkte);
    Befehl(E.Name);
  }
}

TEST_F(HauptOffen, StapelÜberDasMenü) {
  const std::string Sta = Ordner.Pfad("lauf.sta");
  Schreibe(Sta, "M VR 24.40 Linienelemente\r\nPAN 1001\r\nPEN 1002\r\nNR 2003\r\nE\r\nM VR 25.10 x\r\nE\r\n");
  Befehl("MenüDateiStapel", Sta);
  EXPECT_TRUE(Gleich(Stapel.Aktiv, false, BlätterOffen(), true, DateiVorhanden(StapelDatei.Name), false));
  EXPECT_EQ(Skript.Status[4], "   Stapel beendet: 1 Block, 1 Zeile, 0 Marken, übergangen: 1   ");
}

TEST_F(HauptOffen, OffenerBlockHältDenStapelZurück) {
  Optionen.AbfrageRiss = false;
  Formular* Erstes = nullptr;
  Skript.BeiBlatt = [&](Formular& Form) {
    Form.Öffnen();
    if (Erstes == nullptr) Erstes = &Form;
  };
  Befehl("MenüKatasterLinel");
  Tippe(*Erstes, "LinelAnfPnr", "1001\n1002\n0\n0\n2003\n");
  Befehl("MenüKatasterDis");  // another worksheet may come
  Skript.Erwarte(
      "Stapel noch nicht abgeschlossen\n\nBitte zuerst das Rechenblatt schließen:\nVR 24.40 Linienelemente");
  Befehl("MenüDateiStapel");
  Stapel.Aktiv = true;  // in a replay neither comes
  for (const char* Name : {"MenüKatasterDis", "MenüDateiStapel"}) {
    Skript.Status[4].clear();
    Befehl(Name);
    EXPECT_EQ(Skript.Status[4], "   Stapel noch nicht abgeschlossen   ") << Name;
  }
  Stapel.Aktiv = false;
}

TEST_F(HauptOffen, MittelBrauchtSeinenKopfNurAmAnfang) {
  const Mittelpunkt M{"1001", 1, 1, 3, 3, 2, 2};
  for (int i = 0; i < 2; ++i) Haken.MittelEintragen(M);
  const std::string Text = Inhalt(A_dru);
  EXPECT_NE(Text.find("|VR 25.50  Mittelbildung von Punkten "), std::string::npos);
  EXPECT_EQ(Text.find("|VR 25.50"), Text.rfind("|VR 25.50"));
}

TEST_F(HauptOffen, BeendenFragt) {
  Punkt("7", 1, 2);
  Skript.Erwarte("Tavorena beenden ?", KnopfNein);
  EXPECT_EQ(HauptBeenden(), -1);
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.Erwarte("speichern ? ", KnopfAbbruch);
  EXPECT_EQ(HauptBeenden(), -1);
  EXPECT_EQ(KorAnzahl, 4);
  EXPECT_EQ(Skript.LetzteVorgabe, 0);  // there is something to save
  Skript.Erwarte("Tavorena beenden ?", KnopfJa);
  Skript.Erwarte("speichern ? ", KnopfJa);
  EXPECT_EQ(HauptBeenden(), 0);
  EXPECT_TRUE(Inhalt(A_kor).starts_with("             7 "));
}

TEST_F(HauptOffen, Protokollwechsel) {
  Befehl("MenüDateiProtokoll", "");
  EXPECT_EQ(Prot.Datei, A_dru) << "cancelled";
  Befehl("MenüDateiProtokoll", Ordner.Pfad("p.dru"));
  EXPECT_TRUE(Gleich(Prot.Datei, Ordner.Pfad("p.dru"), Skript.Aufträge.back().Zusatz, "kein Protokoll"));
}

TEST_F(HauptOffen, AnsichtÖffnetDenEditor) {
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Form.Steuerelemente()[0]->Text, "Editor Win NT");
    Tippe(Form, "Datei(0)", "ed");
    Drücke(Form, "OK");
  });
  Befehl("MenüOptionenDateinamen(0)");
  EXPECT_NE(Inhalt(Ordner.Pfad("app/Tavorena.ini")).find("\r\ned  Text-Editor fuer Windows NT"),
            std::string::npos);
  Befehl("MenüAnsichtKoordinatendatei");
  EXPECT_EQ(Skript.Gestartet, (std::vector<std::string>{"ed", A_kor}));
}

TEST_F(HauptOffen, TextErsetzen) {
  const std::string Datei = Ordner.Pfad("t.txt");
  Schreibe(Datei, "M\xFCller, M\xFCller");
  for (const auto& [Such, Meldung] :
       {std::pair{"Müller", "2 mal \"Müller\" durch \"Müllerin\"\n" + Datei + "\nersetzt"},
        std::pair{"Huber", "Kein Eintrag \"Huber\"\n" + Datei + "\ngefunden"}}) {
    Skript.Formulare.push_back(
        Bediene({{"Wert(0)", Datei}, {"Wert(1)", Such}, {"Wert(2)", "Müllerin"}, {"OK", ""}}));
    Skript.Erwarte(Meldung);
    Befehl("MenüFunktErsetzen");
  }
  EXPECT_EQ(Inhalt(Datei), "M\xFCllerin, M\xFCllerin");
}

TEST_F(Haupt, AllgemeineDialoge) {
  const std::string Lang = "/" + std::string(60, 'x');
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    EXPECT_EQ(Form.Steuerelemente()[1]->Text, "..." + std::string(50, 'x'));
    EXPECT_EQ(Form.Fokus()->Name, "Knopf(2)");  // the third button is the default
    Form.TasteDrücken(Taste::Return);
  });
  EXPECT_EQ(DateiVorhandenFrage(Lang), -1);
  Knopf(1);
  EXPECT_EQ(PunktVorhandenFrage("12"), 1);
  Knopf(2);
  EXPECT_EQ(PunktVorhandenOrientierungFrage("12"), 2);
  std::string Wert = "0.01", Verzeichnis = Ordner.Pfad("");
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "9"}, {"Abbrechen", ""}}));
  EXPECT_TRUE(Gleich(EinWert("T", "fs:", Wert), -1, Wert, "0.01"));
  Skript.Formulare.push_back([](Formular& Form) {
    Form.Öffnen();
    for (const char* Keins : {"", "-0.01", "0.01x", "1e999"}) {
      Form.Tippen(Feld(Form, "Wert(0)"), Keins);
      Drücke(Form, "OK");
      EXPECT_TRUE(Form.Offen()) << Keins;
    }
    Tippe(Form, "Wert(0)", "0,005\n");
    Form.Wählen(Element<Auswahl>(Form, "Wahl(1)"), "", true);
    Drücke(Form, "OK");
  });
  Wertfeld fs{"fs:", "0.01", -1, -1, true};
  Wahlpaar Paar{"a", "b"};
  EXPECT_TRUE(Gleich(EinWert("T", fs, &Paar), 0, fs.Wert, "0,005", Paar.ZweiteGewählt, true));
  Skript.Formulare.push_back(Bediene({{"OK", ""}}));
  EXPECT_EQ(AuswahlListe("T", {"Koordinaten in [mm]", "Koordinaten in [mm] / 10"}), 0);
  Wertfeld Felder[] = {{"a", "", 7, 2}, {"b", "", 7, 3}, {"c", ""}};
  Skript.Formulare.push_back(Bediene({{"Wert(0)", "1,5\n2.0005\nx\n"}}));
  EXPECT_EQ(DreiWerte("T", Felder), 0);
  EXPECT_TRUE(Gleich(Felder[0].Wert, "1.50", Felder[1].Wert, "2.001", Felder[2].Wert, "x"));
  for (const char* Getippt : {"/gibt es nicht\n", "/\n"})
    Skript.Formulare.push_back(Bediene({{"Wert(0)", Getippt}}));
  Skript.Erwarte("Fehler 76 in Dialog.VerzeichnisWahl wurde ausgelöst durch Tavorena\nPfad nicht gefunden");
  EXPECT_EQ(VerzeichnisWahl("T", Verzeichnis), 0);
  EXPECT_TRUE(Gleich(Verzeichnis, "/", Skript.Titel.back(), "Tavorena Fehlermeldung"));
}

TEST_F(Haupt, DateinamenDialogSchütztDateien) {
  const std::string Ein = Ordner.Pfad("ein.kor"), Aus = Ordner.Pfad("aus.kor");
  Schreibe(Aus, "alt");
  Dateifeld Felder[] = {{"Eingabe", Ein, "", false}, {"Ausgabe", Ein, "", true}};
  Skript.Erwarte("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ein);
  Skript.Dateien = {Aus};
  Skript.Formulare.push_back([this](Formular& Form) {
    Form.Öffnen();
    Drücke(Form, "OK");
    Drücke(Form, "Waehlen(1)");
    Knopf(2);
    Drücke(Form, "OK");
    EXPECT_TRUE(Form.Offen());  // it exists and was not given up
    Knopf(1);
    Drücke(Form, "OK");
  });
  EXPECT_TRUE(Gleich(ZweiDateinamen("T", Felder), 0, Felder[1].Name, Aus));
  EXPECT_FALSE(DateiVorhanden(Aus));
}

TEST(Menübaum, IstGeschlossen) {
  for (const Menüeintrag& E : Menübaum()) {
    EXPECT_TRUE(*E.Eltern == '\0' || MenüFinden(E.Eltern) != nullptr) << E.Name;
    EXPECT_EQ(MenüFinden(E.Name), &E) << "twice: " << E.Name;
  }
  EXPECT_EQ(Symbolleiste().size(), 26U);
  for (const Werkzeug& W : Symbolleiste())
    EXPECT_TRUE(*W.Eintrag == '\0' || MenüFinden(W.Eintrag) != nullptr) << W.Name;
  EXPECT_EQ(TVKernMDIForm::Fenster().Hilfe(*MenüFinden("MenüKatasterOrtho")), 4140);
  EXPECT_EQ(TVKernMDIForm::Fenster().Hilfe(*MenüFinden("MenüAnsichtQuasi")), 3010);  // as the form has it
}

}  // namespace
}  // namespace tavorena::test
