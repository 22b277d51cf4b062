#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/worksheets/FStatMessempfaenger.h>
#include <tavorena/worksheets/Standpunktfrage.h>
#include <tavorena/worksheets/Stationsakten.h>
#include <tavorena/worksheets/TVFStatForm.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr const char* RahmenStand = "Standpunkt";

}  // namespace

TVFStatForm::TVFStatForm(const Blattart& BlattArt)
    : Rechenblatt(BlattArt),
      Höhen(Optionen.FStatMitHoehe),
      StandPnr((BeschriftungAnlegen("Punktnr.:", {0, 0}, RahmenStand),
                ZahlenfeldAnlegen(Mit("StandPnr"), {0, 1}, RahmenStand, PnrZeichen))),
      StandSym((BeschriftungAnlegen("Sy.:", {0, 2}, RahmenStand),
                FeldAnlegen("FStatStandSym", {0, 3}, RahmenStand, 5))),
      Instrument(*this, "InstrumentenHöhe", "Instrumentenhöhe:", {0, 4}, RahmenStand),
      Reflektor(*this, "ReflektorHöhe", "Reflektorhöhe:", {0, 6}, RahmenStand),
      Anzeige(*this),
      Bekannte(*this, Höhen, Anschlusskunde()),
      Polare(*this, Höhen, Kleinpunktkunde()),
      KnopfBerechnen(KnopfAnlegen(Mit("Berechnen"), "", [this] { Berechnen(); }, {0, 0})),
      KnopfArt(KnopfAnlegen("FStatArt", "", [this] { FStatArtWechseln(); }, {0, 1})),
      KnopfZurück(KnopfAnlegen(Mit("Zurück"), "Stp.zurücknehmen",
                               [this] { static_cast<void>(Zurücknehmen()); }, {0, 1})),
      KnopfAbw(KnopfAnlegen(Mit("AbwAnz"), "", [this] { AbwAnzWechseln(); }, {0, 2})),
      KnopfDelete(KnopfAnlegen(Mit("Delete"), "Zeile &löschen", [this] { Delete(); }, {0, 3})),
      KnopfNeu(
          KnopfAnlegen(Mit("Neu"), "&Neue Station", [this] { static_cast<void>(NeueStation()); }, {0, 4})),
      Datei(*this),
      Mittel(*this),
      KnopfSchnur(KnopfAnlegen("FStatSchnur", "Schnurgerüst", [this] { SchnurBeginnen(); }, {1, 3})),
      Schnur(*this, [this] { SchnurVerlassen(); }) {
  Grundtitel = Titel;
  KopfAnlegen();
  KnopfDelete.OhnePrüfung = KnopfNeu.OhnePrüfung = true;
  KnopfArt.Hilfe = "Maßstab frei (Helmert) oder fest (kongruent)";
  KnopfAbw.Hilfe = "Abweichungen oder Koordinaten der Anschlußpunkte";
  KnopfZurück.Hilfe = "Standpunkt aus Tabelle und Stapeldatei nehmen, im Protokoll streichen";
  KnopfDelete.Hilfe = "Zeile aus Gitter und Stapeldatei nehmen, im Protokoll streichen";
  KnopfSchnur.Hilfe = "Punkte messen und ihre Linienelemente auf einer Linie sehen";
  KnopfNeu.Hilfe = "Block beenden und mit dem nächsten Standpunkt beginnen";
  KnöpfeAnlegen(5);
  ZustandZeigen();
}

TVFStatForm::~TVFStatForm() = default;

void TVFStatForm::KopfAnlegen() {
  StandPnr.IstPnr = true;
  StandPnr.Hilfe = "Nummer des Standpunkts; vor \"Stp.übernehmen\" genügt";
  StandPnr.BeiVerlassen = [this] { return StandpunktLesen(); };
  StandPnr.BeiReturn = [this] {
    if (Stand == FStatStatus::Gerechnet) return FokusSetzen(KnopfBerechnen);
    FokusWeiter();
  };
  StandSym.BeiVerlassen = [this] {
    StandSym.Text = Trimmen(*StandSym.Text);
    return WortPrüfen(StandSym.Text);
  };
  Instrument.Eingabe.Name = "FStatInstrumentenHöhe";
  Reflektor.Eingabe.Name = "FStatReflektorHöhe";
  Instrument.Eingabe.Hilfe = "Kippachse über dem Standpunkt in m";
  Reflektor.Eingabe.Hilfe = "Zielhöhe neuer Zeilen in m";
  Instrument.BeiWechsel = [this] { Wechsel(false); };
  for (Messfeld* M : {&Instrument, &Reflektor}) M->Eingabe.Zeichen = 8;
}

Anschlussverhalten TVFStatForm::Anschlusskunde() {
  return {[this] { return Reflektorhöhe(); }, [this](bool NurHaken) { Wechsel(NurHaken); },
          [this] { FokusSetzen(KnopfBerechnen); }};
}

Kleinpunktverhalten TVFStatForm::Kleinpunktkunde() {
  return {[this] { return Reflektorhöhe(); },
          [this](const Stationsmessung& M) {
            return StationspunktRechnen(Station, Gerechnete.Instrumentenhöhe, M);
          },
          [this] { return Station.Ort; }, [this] { FokusSetzen(KnopfBerechnen); }};
}

void TVFStatForm::BeiÖffnen() {
  Rechenblatt::BeiÖffnen();
  if (ImStapel()) return;
  Empfänger = std::make_unique<FStatMessempfänger>(*this);
  MessempfängerSetzen(Empfänger.get());
}

void TVFStatForm::BeiSchließen() {
  if (Empfänger && MessempfängerJetzt() == Empfänger.get()) MessempfängerSetzen(nullptr);
  Rechenblatt::BeiSchließen();
}

// ---- the station that is typed ---------------------------------------------------------------------

Wert TVFStatForm::Instrumentenhöhe() const { return Instrument.Gegeben() ? Wert(Instrument.Zahl()) : Wert(); }

// Before the calculation a number of the table is a question; behind it the point is only stored.
bool TVFStatForm::StandpunktLesen() {
  StandPnr.Text = Trimmen(*StandPnr.Text);
  if (!WortPrüfen(StandPnr.Text)) return false;
  if (*StandPnr.Text == Gefragt) return true;
  const bool Jetzt = Stand == FStatStatus::Start || Stand == FStatStatus::NochNichtGerechnet;
  if (!Jetzt && !Bekannter) {
    if (!StandPnr.Text->empty()) LetztePunktnummer = StandPnr.Text;
    return true;
  }
  if (!StandPnr.Text->empty()) return StandpunktSetzen(StandPnr.Text, "", {});
  Gefragt.clear();
  Bekannter.reset();
  Rücksetzen();
  return true;
}

bool TVFStatForm::StandpunktSetzen(const std::string& Pnr, const std::string& Symbol, const Wert& Höhe,
                                   Standpunktwahl Wahl) {
  if (!Vorher()) return true;
  if (!Symbol.empty()) StandSym.Text = Symbol;
  if (Höhe.IstGegeben()) Instrument.Setzen(Höhe.Zahl());
  const bool Gut = Pnr.empty() || Pnr == Gefragt || NummerNehmen(Pnr, Wahl);
  Rücksetzen();
  return Gut;
}

bool TVFStatForm::NummerNehmen(const std::string& Pnr, Standpunktwahl Wahl) {
  StandPnr.Text = Gefragt = LetztePunktnummer = Pnr;
  Bekannter.reset();
  const int Zeile = KorSuche(std::string_view(Pnr));
  if (Zeile < 0 || Wahl == Standpunktwahl::Neu) return true;
  const Standpunktantwort Antwort =
      Wahl == Standpunktwahl::Fragen ? StandpunktFragen(Pnr) : Standpunktantwort::Orientierung;
  if (Antwort == Standpunktantwort::Orientierung) {
    const KorSatz P = KorPunkt(Zeile);
    Bekannter = Standort{{P.Rechts, P.Hoch}, P.Hoehe};
    StandSym.Text = std::string(P.Symbol);
    return true;
  }
  Gefragt.clear();
  if (Antwort == Standpunktantwort::Abbruch) StandPnr.Text = "";
  return Antwort == Standpunktantwort::Abbruch;
}

void TVFStatForm::ArtSetzen(bool Neu) {
  Kongruent = Neu;
  Wechsel(true);
}

void TVFStatForm::FStatArtWechseln() { ArtSetzen(!Kongruent); }

void TVFStatForm::AnschlüsseSetzen(const std::vector<Stationsanschluß>& Neue) {
  Bekannte.Setzen(Neue);
  Rücksetzen();
}

Stationsart TVFStatForm::Art() const {
  if (Bekannter) return Stationsart::Anschluß;
  return Kongruent ? Stationsart::Kongruent : Stationsart::Helmert;
}

Stationsaufgabe TVFStatForm::Aufgabe() const {
  Stationsaufgabe A;
  A.Art = Art();
  A.Zeilen = Bekannte.Zeilen();
  A.Orientierung = Bekannte.Gewählte();
  A.MitHöhen = Höhen;
  A.Instrumentenhöhe = Instrument.Zahl();
  if (Bekannter) A.Bekannt = Bekannter->Ort;
  if (Bekannter) A.BekannteHöhe = Bekannter->Höhe;
  return A;
}

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
  Bild.Punkt({StandPnr.Text, S.RW, S.HW, "MARK", FarbeBlau});
}

// ---- the station that is taken over ----------------------------------------------------------------

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
  if (Vorher() || ImStapel()) return false;
  if (Polare.HatGespeichertes()) {
    StatusHilfeSetzen("Erst die gespeicherten polaren Punkte löschen");
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

// ---- what is shown ---------------------------------------------------------------------------------

std::string TVFStatForm::Berechnentext() const {
  switch (Stand) {
    case FStatStatus::Gerechnet:
      return "Stp.übernehmen";
    case FStatStatus::AnschlussGerechnet:
      return "Weiter: polare P.";
    case FStatStatus::StpErzeugt:
      return Mittel.Läuft() ? "Messungen mitteln" : "Pkte übernehmen";
    case FStatStatus::Start:
    case FStatStatus::NochNichtGerechnet:
      break;
  }
  return Bekannter && Bekannte.Anzahl() > 0 ? "Anschluß rechnen" : *KnopfArt.Text;
}

void TVFStatForm::ZustandZeigen() {
  const bool Polar = !Vorher(), Tippt = !ImStapel();
  KnopfArt.Text = Kongruent ? "Rechnen kongruent (m=1)" : "Rechnen Helmert";
  KnopfBerechnen.Text = Berechnentext();
  KnopfArt.Sichtbar = Tippt && !Polar;
  KnopfArt.Aktiv = !Bekannter;
  KnopfZurück.Sichtbar = Tippt && Polar;
  KnopfAbw.Sichtbar = Tippt && !Polar && Stand != FStatStatus::Start;
  KnopfAbw.Aktiv = Gerechnet();
  KnopfAbw.Text = Gerechnet() && !MitAbw ? "Abw.anzeigen" : "Koord.anzeigen";
  Bekannte.Zellen.Sichtbar = !Polar;
  Bekannte.FStatAbwGitterAn(Gerechnet() && MitAbw);
  Polare.Zellen.Sichtbar = Polar && !Schnur.Offen();
  for (Knopf* K : {&KnopfBerechnen, &KnopfDelete}) K->Sichtbar = !Schnur.Offen();
  for (Knopf* K : {&Mittel.KnopfMitteln, &KnopfSchnur}) K->Sichtbar = Tippt && Polar && !Schnur.Offen();
  KnopfSchnur.Aktiv = !Mittel.Läuft();
  Datei.ZustandZeigen();
  StandPnr.NurLesen = StandSym.NurLesen = Polar || !Tippt;
  Instrument.Eingabe.NurLesen = !Höhen || Polar || !Tippt;
  Reflektor.Eingabe.NurLesen = !Höhen || !Tippt;
}

void TVFStatForm::AbwAnzWechseln() {
  MitAbw = !MitAbw;
  ZustandZeigen();
  FokusSetzen(Bekannte.Zellen);
}

void TVFStatForm::Delete() {
  if (Vorher())
    Bekannte.Delete();
  else
    Polare.Delete();
}

void TVFStatForm::GrafikLöschen() {
  Bild.Löschen();
  Polare.GrafikKleinpunktLöschen();
  Schnur.GrafikLöschen();
}

void TVFStatForm::BeiTabelle() {
  if (!Vorher()) return;
  Bekannte.Nachsehen();
  const int Zeile = Bekannter ? KorSuche(std::string_view(*StandPnr.Text)) : -1;
  if (Zeile < 0) return;
  const KorSatz P = KorPunkt(Zeile);
  const bool Bewegt =
      P.Rechts != Bekannter->Ort.RW || P.Hoch != Bekannter->Ort.HW || P.Hoehe != Bekannter->Höhe;
  Bekannter = Standort{{P.Rechts, P.Hoch}, P.Hoehe};
  if (Bewegt) Wechsel(false);
}

// ---- leaving ---------------------------------------------------------------------------------------

bool TVFStatForm::HatOffenes() const {
  return Vorher() ? Bekannte.Anzahl() > 0 || Bekannte.HatUnfertiges()
                  : Polare.HatOffenes() || Schnur.HatOffenes();
}

bool TVFStatForm::OffenesSchreiben() {
  if (Schnur.HatOffenes() && !Schnur.FStatSchnurÜbernehmen()) return false;
  if (Mittel.Läuft() && !Mittel.Mitteln()) return false;
  if (!Vorher()) return PunkteÜbernehmen();
  if (!Gerechnet()) StationErmitteln();
  return Gerechnet() && StandpunktÜbernehmen();
}

// ---- replay ----------------------------------------------------------------------------------------

int TVFStatForm::StapelAnschluss() {
  FStatEingabe E;
  if (StapelLeseFStat(E) < 0) return -1;
  std::string Grund = BlockNehmen(E);
  if (Grund.empty()) Grund = StationBerechnen();
  if (Grund.empty()) return 0;
  StapelFehlerMeldung(Grund);
  return -1;
}

// @return "", or why it can not be calculated
std::string TVFStatForm::BlockNehmen(const FStatEingabe& E) {
  const bool Polar = E.NeuPnr.empty() && E.Anschluesse.size() == 1;
  Kongruent = E.Kongruent;
  if (Polar) {
    Wert Nummer(E.StandPnr);
    if (KorFind(Nummer) < 0) return "Standpunkt " + Zitat(E.StandPnr) + " fehlt";
    static_cast<void>(StandpunktSetzen(Trimmen(Nummer), "", E.Instrumentenhoehe, Standpunktwahl::Bekannt));
  } else {
    static_cast<void>(StandpunktSetzen(E.NeuPnr, E.NeuSymbol, E.Instrumentenhoehe, Standpunktwahl::Neu));
  }
  std::vector<Stationsanschluß> Alle;
  for (const FStatBeobachtung& B : E.Anschluesse) {
    Wert Nummer(B.Pnr);
    const int Zeile = KorFind(Nummer);
    if (Zeile < 0) return "Anschlußpunkt " + Zitat(B.Pnr) + " fehlt";
    const KorSatz P = KorPunkt(Zeile);
    Alle.push_back({Trimmen(Nummer),
                    std::string(P.Symbol),
                    {P.Rechts, P.Hoch},
                    P.Hoehe,
                    {B.Richtung, B.Vertikal, B.Strecke, B.Zielhoehe},
                    true});
  }
  AnschlüsseSetzen(Alle);
  return "";
}

// The station counts as a row; without it those that follow are read and left out.
int TVFStatForm::StapelZeile() {
  if (Vorher() && !Verweigert) {
    const int Genommen = StandpunktNehmen();
    if (Genommen == -2) {
      StapelFehlerMeldung("Standpunkt nicht geschrieben");
      return -1;
    }
    Verweigert = Genommen < 0;
    if (Verweigert) {
      StapelFallAuslassen("Standpunkt " + Zitat(*StandPnr.Text) + " nicht gespeichert");
    } else {
      ++Stapel.Bilanz.Zeilen;
      StandpunktZeigen();
    }
    return 0;
  }
  FStatPolareingabe E;
  const int Gelesen = StapelLeseFStatPolar(E);
  if (Gelesen < 0 || Verweigert) return Gelesen;
  const FStatBeobachtung& B = E.Messung;
  const int Ergebnis =
      Polare.Eintragen({B.Pnr, {B.Richtung, B.Vertikal, B.Strecke, B.Zielhoehe}, E.Symbol, E.LinieNach});
  if (Ergebnis == 0) ++Stapel.Bilanz.Zeilen;
  if (Ergebnis == -1) StapelZeileAuslassen("Punkt " + Zitat(B.Pnr) + " nicht gespeichert");
  if (Ergebnis != -2) return 0;
  StapelFehlerMeldung("Zeile nicht geschrieben");
  return -1;
}

}  // namespace tavorena
