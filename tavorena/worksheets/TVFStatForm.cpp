#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Punktnummer.h>
#include <tavorena/rawdata/TVTheoForm.h>
#include <tavorena/worksheets/FStatMessempfaenger.h>
#include <tavorena/worksheets/Standpunktfrage.h>
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
      KnopfTheo(KnopfAnlegen("FStatTheo", "&Theodolit", [] { TheodolitZeigen(); }, {1, 4})),
      Schnur(*this, [this] { SchnurVerlassen(); }) {
  Grundtitel = Titel;
  KopfAnlegen();
  KnopfDelete.OhnePrüfung = KnopfNeu.OhnePrüfung = KnopfTheo.OhnePrüfung = true;
  KnopfArt.Bezeichnung = "Rechenart wechseln";
  KnopfArt.Hilfe = "Maßstab frei (Helmert) oder fest (kongruent)";
  KnopfAbw.Hilfe = "Abweichungen oder Koordinaten der Anschlußpunkte";
  KnopfZurück.Hilfe = "Standpunkt aus Tabelle und Stapeldatei nehmen, im Protokoll streichen";
  KnopfDelete.Hilfe = "Zeile aus Gitter und Stapeldatei nehmen, im Protokoll streichen";
  KnopfSchnur.Hilfe = "Punkte messen und ihre Linienelemente auf einer Linie sehen";
  KnopfTheo.Hilfe = "Messungen vom Instrument in die Zelle mit dem Fokus nehmen";
  KnopfNeu.Hilfe = "Block beenden und mit dem nächsten Standpunkt beginnen";
  KnöpfeAnlegen(5);
  ZustandZeigen();
}

TVFStatForm::~TVFStatForm() {
  if (Empfänger) MessempfängerAbmelden(*Empfänger);
}

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
  Reflektor.BeiWechsel = [this] { Schnur.Rechnen(); };
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
  MessempfängerAnmelden(*Empfänger);
}

// Of two stations that are open the one takes measurements that is being worked in.
void TVFStatForm::BeiFokus() {
  if (Empfänger && Offen()) MessempfängerAnmelden(*Empfänger);
}

void TVFStatForm::BeiSchließen() {
  if (Empfänger) MessempfängerAbmelden(*Empfänger);
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

void TVFStatForm::ReflektorhöheSetzen(double Höhe) {
  if (Höhen && Höhe != Reflektor.Zahl()) Reflektor.Setzen(Höhe);
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
  KnopfZurück.Sichtbar = Tippt && Polar && !Schnur.Offen();
  KnopfZurück.Aktiv = !Mittel.Läuft();
  KnopfAbw.Sichtbar = Tippt && !Polar && Stand != FStatStatus::Start;
  KnopfAbw.Aktiv = Gerechnet();
  KnopfAbw.Text = Gerechnet() && !MitAbw ? "Abw.anzeigen" : "Koord.anzeigen";
  Bekannte.Zellen.Sichtbar = !Polar;
  Bekannte.FStatAbwGitterAn(Gerechnet() && MitAbw);
  Polare.Zellen.Sichtbar = Polar && !Schnur.Offen();
  for (Knopf* K : {&KnopfBerechnen, &KnopfDelete}) K->Sichtbar = Tippt && !Schnur.Offen();
  for (Knopf* K : {&Mittel.KnopfMitteln, &KnopfSchnur}) K->Sichtbar = Tippt && Polar && !Schnur.Offen();
  KnopfSchnur.Aktiv = !Mittel.Läuft();
  Datei.ZustandZeigen(!Schnur.Offen());
  KnopfTheo.Sichtbar = Tippt;
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

}  // namespace tavorena
