#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/points/Punkteingabe.h>
#include <tavorena/points/TVPSelectForm.h>
#include <tavorena/rawdata/Hoehenliste.h>
#include <tavorena/rawdata/Nivrohdaten.h>
#include <tavorena/rawdata/Rohumwandlung.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/shell/Koordinatendatei.h>
#include <tavorena/shell/Rohdatenbefehle.h>
#include <tavorena/shell/Tabellenbefehle.h>

namespace tavorena {

Rohdatenwahl LetzteRohdatenwahl;

namespace {

constexpr const char *FilterGsi = "GSI |*.gsi", *FilterUmwandlung = "GSI |*.gsi|GRE |*.gre|NIV |*.niv",
                     *FilterKorDatei = "CADdy (*.kor)|*.kor";

// A file that is chosen, and what it holds.
struct Rohquelle {
  std::string Datei;
  Rohdaten Daten;
};

bool QuelleFragen(const char* Filter, const char* Vorgabe, Rohquelle& Q) {
  Q.Datei = DateiFragen("Rohdatendatei zum Lesen auswählen", Filter, Vorgabe, false);
  return !Q.Datei.empty() && RohdatenFragen(Q.Datei, LetzteRohdatenwahl, Q.Daten);
}

std::string OhneLeerzeichen(std::string Text) {
  ZeichenErsetzen(Text, ' ', '_');
  return Text;
}

// ---- table from raw data ---------------------------------------------------------------------------

std::vector<Punktsatz> AlsPunkte(const std::vector<Rohkoordinate>& Koordinaten) {
  std::vector<Punktsatz> Punkte;
  for (const Rohkoordinate& K : Koordinaten) {
    Punktsatz P{OhneLeerzeichen(K.Nummer), K.Rechts, K.Hoch, K.Höhe.Zahl(), OhneLeerzeichen(K.Code)};
    P.Info.Punktart = KurzAusText(P.Symbol);
    Punkte.push_back(std::move(P));
  }
  return Punkte;
}

bool OhneKoordinaten(const Rohquelle& Q) {
  if (Q.Daten.Koordinaten.empty()) Hinweis("Keine Punkte mit Koordinaten vorhanden:\n" + Q.Datei);
  return Q.Daten.Koordinaten.empty();
}

void Importieren() {
  Rohquelle Q;
  if (!QuelleFragen("GRE / GSI |*.gre;*.gsi|Alle Dateien |*.*", "*.*", Q) || OhneKoordinaten(Q)) return;
  const Dateiname Teile = DateinameZerlegen(Q.Datei);
  Eingabezählung Z;
  const int Ergebnis = PunkteEingeben(TabellenRücknahme, "Import " + Teile.Grundname + "." + Teile.Endung,
                                      AlsPunkte(Q.Daten.Koordinaten), Z);
  TabellenBericht(Ergebnis, Anzahltext(Z.Neue, "neuer Punkt", "neue Punkte") + ", " +
                                std::to_string(Z.Ersetzte) + " ersetzt oder gemittelt, " +
                                std::to_string(Z.Verworfene) + " verworfen");
}

// ---- files from the table --------------------------------------------------------------------------

// What is extended keeps its coding.
bool Ablegen(const std::string& Name, const std::string& Text, bool Anhängen,
             Zeichensatz Satz = Zeichensatz::Utf8) {
  std::string Grund;
  if ((Anhängen ? TextAnhängen(Name, Text, &Grund)
                : DateiErsetzen(Name, NachZeichensatz(Text, Satz), &Grund)) == 0)
    return true;
  SpeichernMißlungen(Name, Grund);
  return false;
}

// All rows of the table, or those that are chosen.
bool ZeilenFragen(std::vector<int>& Zeilen) {
  const int Antwort = FrageJaNeinAbbruch("Alle Punkte exportieren ?\n(Nein: Punkte auswählen)");
  if (Antwort == KnopfNein) return TabellenpunkteAuswählen(Zeilen) == 0 && !Zeilen.empty();
  Zeilen.resize(static_cast<std::size_t>(KorAnzahl));
  std::iota(Zeilen.begin(), Zeilen.end(), 0);
  return Antwort == KnopfJa;
}

void AlsGsi(GSIAusgabe Art) {
  std::vector<int> Zeilen;
  bool Anhängen = false;
  Zeichensatz Satz = Zeichensatz::Utf8;
  if (!ZeilenFragen(Zeilen)) return;
  const std::string Name =
      DateiFragen("GSI-Datei zum Schreiben auswählen", FilterGsi, "*.gsi", true, &Anhängen, &Satz);
  if (!Name.empty() && SpeichernErlaubt(Name, static_cast<Punktformat>(Art), Anhängen, Satz, &Zeilen) &&
      Ablegen(Name, TabelleAlsGSI(Art, Zeilen), Anhängen, Satz))
    StatusHilfeSetzen(Anzahltext(static_cast<int>(Zeilen.size()), "Punkt", "Punkte") + " geschrieben");
}

// Points without a height are no part of it.
void AlsHöhenliste() {
  std::string Text;
  int Anzahl = 0;
  for (int z = 0; z < KorAnzahl; ++z) {
    const KorSatz P = KorPunkt(z);
    if (P.Hoehe == 0) continue;
    Text += Höhenzeile({std::string(P.Pnr), P.Hoehe, std::string(P.Symbol)}) + "\r\n";
    ++Anzahl;
  }
  if (Anzahl == 0) return Hinweis("Kein Punkt hat eine Höhe !");
  bool Anhängen = false;
  Zeichensatz Satz = Zeichensatz::Utf8;
  const std::string Name = DateiFragen("Höhenliste zum Schreiben auswählen", "Höhenliste (*.hli)|*.hli",
                                       "*.hli", true, &Anhängen, &Satz);
  if (!Name.empty() && SpeichernErlaubt(Name, Punktformat::Höhenliste, Anhängen, Satz) &&
      Ablegen(Name, Text, Anhängen, Satz))
    StatusHilfeSetzen(Anzahltext(Anzahl, "Höhe", "Höhen") + " geschrieben");
}

// ---- raw data to files -----------------------------------------------------------------------------

// The target; one that is there is asked about.
std::string ZielFragen(const Rohquelle& Q, const char* Filter, const std::string& Vorgabe) {
  const std::string Ziel = DateiFragen("Datei zum Schreiben auswählen", Filter, Vorgabe, true);
  if (!SelbeDatei(Q.Datei, Ziel)) return Ziel;
  Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ziel);
  return "";
}

// What a conversion did: where something was lost, in a box.
void Melden(const std::string& Ziel, int Ergebnis, const Umwandlung& U, const std::string& Grund) {
  if (Ergebnis == -2) return StatusHilfeSetzen("angehalten, nichts geschrieben");
  if (Ergebnis < 0) return SchreibfehlerMelden(Ziel, Grund);
  const auto Zahl = [](std::size_t n, const char* Eins, const char* Viele) {
    return Anzahltext(static_cast<int>(n), Eins, Viele);
  };
  const std::string Getan = U.Zeilen > 0 ? Zahl(U.Zeilen, "Zeile", "Zeilen") + " geschrieben"
                                         : Zahl(U.Werte, "Wert", "Werte") + " geändert";
  if (U.Sterne == 0 && U.Ohne == 0) return StatusHilfeSetzen(Getan);
  std::string Text = Getan + ":\n" + Ziel + "\n";
  if (U.Sterne > 0)
    Text += "\n" + Zahl(U.Sterne, "Wert ist", "Werte sind") + " zu lang für das Feld (Sterne)";
  if (U.Ohne > 0) Text += "\n" + std::to_string(U.Ohne) + " ohne Gegenstück oder nicht lesbar";
  Hinweis(Text);
}

using Umwandeln = int (*)(const std::string&, const std::string&, Umwandlung&, std::string*, bool);

// From GSI alone.
void GsiUmwandeln(Umwandeln Tun, const char* Vorgabe) {
  Rohquelle Q;
  if (!QuelleFragen(FilterUmwandlung, "*.gsi", Q)) return;
  if (Q.Daten.Form != Rohform::GSI) return Hinweis("Umgewandelt wird nur GSI:\n" + Q.Datei);
  const std::string Ziel = ZielFragen(Q, FilterUmwandlung, Vorgabe);
  if (Ziel.empty()) return;
  Umwandlung U;
  std::string Grund;
  const int Ergebnis = Tun(Q.Datei, Ziel, U, &Grund, true);
  Melden(Ziel, Ergebnis, U, Grund);
}

void KoordinatenAlsKor() {
  Rohquelle Q;
  if (!QuelleFragen(FilterUmwandlung, "*.gsi", Q) || OhneKoordinaten(Q)) return;
  const std::string Ziel = ZielFragen(Q, FilterKorDatei, "*.kor");
  int Anzahl = 0;
  if (!Ziel.empty() &&
      Ablegen(Ziel, RohkoordinatenAlsKor(Q.Daten, Optionen.OptNachkommaSpeichern, Anzahl), false))
    StatusHilfeSetzen(Anzahltext(Anzahl, "Punkt", "Punkte") + " geschrieben");
}

void BasisAbziehen() {
  Rohquelle Q;
  if (!QuelleFragen(FilterUmwandlung, "*.gsi", Q)) return;
  const int Modus =
      AuswahlListe("Tavorena Koordinatenbasis abziehen",
                   {"Koordinaten in [mm]", "Koordinaten in [mm] / 10", "Koordinaten in [mm] / 100"});
  if (Modus < 0) return;
  const std::string Ziel = ZielFragen(Q, FilterUmwandlung, "*." + DateinameZerlegen(Q.Datei).Endung);
  if (Ziel.empty()) return;
  Koordinatenbasis Basis;
  Umwandlung U;
  std::string Grund;
  const int Ergebnis = RohdatenBasisAbziehen(Q.Datei, Ziel, Modus + 1, Q.Daten.Form, Basis, U, &Grund, true);
  if (Ergebnis == 1) return Hinweis("Keine Koordinatenbasis abzuziehen:\n" + Q.Datei);
  if (Ergebnis == 0)
    Hinweis("Abgezogen wurden\nRechts: " + ZahlFormat(Basis.Rechts, -1, 0) +
            " m\nHoch: " + ZahlFormat(Basis.Hoch, -1, 0) + " m");
  Melden(Ziel, Ergebnis, U, Grund);
}

void AlsNivellement() {
  constexpr std::size_t Genannte = 10;
  Rohquelle Q;
  if (!QuelleFragen(FilterUmwandlung, "*.gsi", Q)) return;
  const std::string Ziel = ZielFragen(Q, FilterUmwandlung, "*.niv");
  if (Ziel.empty()) return;
  Nivfund F;
  std::string Grund;
  const int Ergebnis = NivellementAusRohdaten(Q.Datei, Ziel, Q.Daten.Form, F, &Grund, true);
  if (Ergebnis < 0) return Melden(Ziel, Ergebnis, {}, Grund);
  std::string Text = Anzahltext(F.Ablesungen, "Ablesung", "Ablesungen") + " in " +
                     Anzahltext(static_cast<int>(F.Linien.size()), "Linie", "Linien");
  if (F.Hinweise.empty()) return StatusHilfeSetzen(Text);
  Text += ":\n" + Ziel + "\n";
  for (std::size_t i = 0; i < std::min(F.Hinweise.size(), Genannte); ++i) Text += "\n" + F.Hinweise[i];
  if (F.Hinweise.size() > Genannte)
    Text += "\nund " + std::to_string(F.Hinweise.size() - Genannte) + " weitere";
  Hinweis(Text);
}

}  // namespace

std::span<const Befehl> Rohdatenbefehle() {
  constexpr int Hilfe = Rohdatenseite;
  static const std::vector<Befehl> Alle = {
      {"MenüDateiImportieren(4)", true, Importieren, true},
      {"MenüDateiExportieren(41)", true, [] { AlsGsi(GSIAusgabe::MitHöheUndCode); }, false, NichtVorhanden,
       Hilfe},
      {"MenüDateiExportieren(42)", true, [] { AlsGsi(GSIAusgabe::MitHöhe); }, false, NichtVorhanden, Hilfe},
      {"MenüDateiExportieren(43)", true, [] { AlsGsi(GSIAusgabe::NurLage); }, false, NichtVorhanden, Hilfe},
      {"MenüDateiExportieren(60)", true, AlsHöhenliste, false, NichtVorhanden, Hilfe},
      {"MenüFunktEntladenEntladen(0)", true, [] { RohdatenEntladen(false); }, false, nullptr, Hilfe},
      {"MenüFunktEntladenEntladen(1)", true, [] { RohdatenEntladen(true); }, false, nullptr, Hilfe},
      {"MenüFunktEntladenVerzeichnisse", true, [] { EntladenVerzeichnisse(); }, false, nullptr, Hilfe},
      {"MenüFunktAbsteckungStarten(0)", true, AbsteckungStarten, false, nullptr, Absteckseite},
      {"MenüFunktAbsteckungStarten(1)", true, AbsteckberichtAnsehen, false, nullptr, Absteckseite},
      {"MenüKonvertierenRohdaten(0)", false, [] { GsiUmwandeln(RohdatenKonvertieren, "*.gre"); }},
      {"MenüKonvertierenRohdaten(1)", false, [] { GsiUmwandeln(RohdatenZehnZuEins, "*.gsi"); }},
      {"MenüKonvertierenRohdaten(2)", false, KoordinatenAlsKor},
      {"MenüKonvertierenRohdaten(3)", false, BasisAbziehen},
      {"MenüKonvertierenRohdaten(4)", false, AlsNivellement},
  };
  return Alle;
}

}  // namespace tavorena
