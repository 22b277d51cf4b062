#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/worksheets/Stationsakten.h>
#include <tavorena/worksheets/TVFStatForm.h>

namespace tavorena {

// The station: computed, on its way into table and records, and back.

// ---- the calculation -------------------------------------------------------------------------------

// A tick or another kind is tried out: a result that stands is computed anew.
void TVFStatForm::Wechsel(bool NurHaken) {
  if (!Vorher()) return;
  if (!NurHaken || !Gerechnet()) return Rücksetzen();
  const std::string Grund = StationBerechnen();
  if (Grund.empty()) return;
  Rücksetzen();
  StatusHilfeSetzen(Grund);
}

void TVFStatForm::Rücksetzen() {
  Stand = Bekannte.Anzahl() > 1 ? FStatStatus::NochNichtGerechnet : FStatStatus::Start;
  Bild.Löschen();
  Anzeige.Leeren();
  Bekannte.AbweichungenFüllen(nullptr);
  ZustandZeigen();
}

std::string TVFStatForm::StationBerechnen() {
  Stationsaufgabe A = Aufgabe();
  if (Gerechnet() && Bekannter) A.Orientierung = Station.Orientierung;  // a tick does not turn it
  Stationsergebnis Neu;
  if (std::string Grund = StationRechnen(A, Neu); !Grund.empty()) return Grund;
  Station = std::move(Neu);
  Gerechnete = std::move(A);
  Stand = Bekannter ? FStatStatus::AnschlussGerechnet : FStatStatus::Gerechnet;
  MitAbw = true;
  Bekannte.AbweichungenFüllen(&Station);
  Anzeige.Zeigen(Station, Gerechnete.Art);
  GrafikStandpunkt();
  ZustandZeigen();
  return "";
}

void TVFStatForm::StationErmitteln() {
  if (!Bekannte.Lesen()) return FokusSetzen(Bekannte.Zellen);
  if (const std::string Grund = StationBerechnen(); !Grund.empty()) {
    Hinweis(Grund);
    return FokusSetzen(Bekannte.Zellen);
  }
  if (StandPnr.Text->empty())
    FokusSetzen(StandPnr);
  else
    FokusSetzen(KnopfBerechnen);
}

void TVFStatForm::Berechnen() {
  if (Mittel.Läuft()) {
    Mittel.Mitteln();
  } else if (!Vorher()) {
    static_cast<void>(PunkteÜbernehmen());
  } else if (Gerechnet()) {
    static_cast<void>(StandpunktÜbernehmen());
  } else {
    StationErmitteln();
  }
}

void TVFStatForm::GrafikStandpunkt() {
  Bild.Löschen();
  const Lage S = Station.Ort;
  for (const Stationsanschluß& Z : Gerechnete.Zeilen) {
    if (Z.Ein) Bild.Linie({S.RW, S.HW, Z.Ort.RW, Z.Ort.HW, FarbeBlau});
  }
  Bild.Punkt({StandPnr.Text, S.RW, S.HW, ZeichenNeu, FarbeBlau});
}

// ---- taken over ------------------------------------------------------------------------------------

bool TVFStatForm::NummerPrüfen() {
  std::string Grund;
  if (StandPnr.Text->empty()) Grund = "Punktnummer des Standpunkts fehlt";
  for (const Stationsanschluß& Z : Gerechnete.Zeilen) {
    if (Z.Pnr == *StandPnr.Text) Grund = "Punkt " + Z.Pnr + " ist ein Anschlußpunkt dieses Standpunkts";
  }
  if (Grund.empty()) return true;
  StatusHilfeSetzen(Grund);
  FokusSetzen(StandPnr);
  return false;
}

// @return 0; -1: refused; -2: not written
int TVFStatForm::StandpunktSpeichern() {
  if (Bekannter) return 0;
  if (Akten.Beginnen(NeueVerbindung()) < 0) return -2;
  std::string Pnr = StandPnr.Text;
  const Wert Höhe = Station.Höhe != 0 ? Wert(Station.Höhe) : Wert();
  if (Ablage.Eintragen(Akten, Pnr, Station.Ort, Höhe, StandSym.Text) < 0) return -1;
  StandPnr.Text = Gefragt = LetztePunktnummer = Pnr;
  return 0;
}

// The block stands in one batch block with its polar rows, and under two titles in the protocol.
int TVFStatForm::StandpunktSchreiben() {
  Verbindung V = NeueVerbindung();
  V.Sätze = StationSätze(Gerechnete, Station, StandPnr.Text, StandSym.Text);
  if (Akten.Beginnen(V) < 0) return -1;
  if (Bekannter) {
    V.Titel = TitelFStatAnschluss;
    V.HoehenRechnen = Station.Höhe != 0;
    Akten.Fortsetzen(std::move(V));
  }
  Block B = StationBlock(Optionen.OptNachkommastellen, Gerechnete, Station, StandPnr.Text);
  if (!Bekannter) {
    const std::vector<std::string> Notiz = Ablage.Notizzeilen();
    B.Zeilen.insert(B.Zeilen.end(), Notiz.begin(), Notiz.end());
  }
  if (Akten.Zeile(B, "", Wo) < 0) return -1;
  PolarFortsetzen();
  return 0;
}

// What stands above the polar rows from now on.
void TVFStatForm::PolarFortsetzen() {
  Verbindung Polar = NeueVerbindung();
  Polar.Titel = TitelFStatPolar;
  Polar.HoehenRechnen = Station.Höhe != 0;
  Polar.Zeilen = FStatPolarAnschluss(Optionen.OptNachkommastellen,
                                     {Station.Ort.RW, Station.Ort.HW, StandPnr.Text}, Station.Epsilon);
  Akten.Fortsetzen(std::move(Polar));
}

void TVFStatForm::SchnurBeginnen() {
  if (!Polare.Lesen()) return FokusSetzen(Polare.Zellen);
  Schnur.Beginnen();
  ZustandZeigen();
}

void TVFStatForm::SchnurVerlassen() {
  PolarFortsetzen();
  ZustandZeigen();
  FokusSetzen(Polare.Zellen);
}

// @return as StandpunktSpeichern
int TVFStatForm::StandpunktNehmen() {
  if (!NummerPrüfen()) return -1;
  const Stationsergebnis Gerechnet = Station;
  int Ergebnis = StandpunktSpeichern();
  if (Ergebnis == 0 && StandpunktSchreiben() < 0) {
    Ergebnis = -2;
    static_cast<void>(Ablage.Zurück());  // just stored: nobody changed it since
  }
  if (Ergebnis < 0) Station = Gerechnet;
  return Ergebnis;
}

bool TVFStatForm::StandpunktÜbernehmen() {
  if (StandpunktNehmen() < 0) {
    FokusSetzen(StandPnr);
    return false;
  }
  StandpunktZeigen();
  FokusSetzen(Polare.Zellen);
  return true;
}

void TVFStatForm::StandpunktZeigen() {
  Stand = FStatStatus::StpErzeugt;
  Bild.Löschen();
  Anzeige.Zeigen(Station, Gerechnete.Art);
  Polare.AllesRechnen();
  if (!ImStapel()) Titel = "Freie Stationierung: Polare Punkte";
  ZustandZeigen();
}

// The rows stay, and what is typed of the polar points.
bool TVFStatForm::Zurücknehmen() {
  if (Vorher() || ImStapel() || Schnur.Offen() || Mittel.Läuft()) return false;
  if (Polare.HatGespeichertes() || Schnur.HatGespeichertes()) {
    StatusHilfeSetzen("Erst die Punkte löschen, die von hier aus gespeichert sind");
    return true;
  }
  Verbindung V = NeueVerbindung();
  if (Bekannter) V.Titel = TitelFStatAnschluss;
  Akten.Fortsetzen(std::move(V));
  const Block Zeile = StationStreichzeile(Optionen.OptNachkommastellen, Gerechnete, Station, StandPnr.Text);
  std::string Text =
      Akten.BlockStreichen(Zeile) == 0 ? "Standpunkt zurückgenommen" : "Der Block bleibt in der Stapeldatei";
  if (!Bekannter && Ablage.Zurück() < 0) Text = "Punkt " + *StandPnr.Text + " bleibt: inzwischen geändert";
  GrafikLöschen();
  Titel = Grundtitel;
  Gefragt = StandPnr.Text;  // it is that of this station
  Stand = FStatStatus::Start;
  Bekannte.Nachsehen();
  Rücksetzen();
  FokusSetzen(Bekannte.Zellen);
  StatusHilfeSetzen(Text);
  return true;
}

bool TVFStatForm::PunkteÜbernehmen() {
  int Gespeichert = 0, Ausgelassen = 0;
  if (Polare.Übernehmen(Gespeichert, Ausgelassen) < 0) {
    FokusSetzen(Polare.Zellen);
    return false;
  }
  std::string Text = Anzahltext(Gespeichert, "Punkt", "Punkte") + " übernommen";
  if (Ausgelassen > 0) Text += ", " + std::to_string(Ausgelassen) + " ausgelassen";
  StatusHilfeSetzen(Text);
  FokusSetzen(Polare.Zellen);
  return Ausgelassen == 0;
}

bool TVFStatForm::NeueStation() {
  if (!OffenesKlären() || Akten.Beenden() < 0) return false;
  Leeren();
  FokusSetzen(StandPnr);
  return true;
}

// The height of the target is that of the next station too.
void TVFStatForm::Leeren() {
  GrafikLöschen();
  Ablage = {};
  Wo = {};
  Bekannter.reset();
  Gefragt.clear();
  StandPnr.Text = "";
  StandSym.Text = "";
  StandPnr.Fehlerhaft = StandSym.Fehlerhaft = false;
  Instrument.Leeren();
  Schnur.Leeren();
  Polare.Setzen({});
  Bekannte.Setzen({});
  Titel = Grundtitel;
  Rücksetzen();
}

}  // namespace tavorena
