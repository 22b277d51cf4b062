#include <algorithm>
#include <memory>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/records/Neupunktblock.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>
#include <tavorena/shell/TVOptionenform.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

int BildschirmBreite = 0, BildschirmHoehe = 0;

namespace {

constexpr std::size_t Berichtzeilen = 15;  // that a message box shows

// A replay begins a block, or has ended: what did not go as recorded is told.
void Stapelstand(const std::string& Titel) {
  StatusHilfeSetzen(StapelStand());
  AnzeigePort().HauptfensterGeändert();
  const StapelBilanz& B = Stapel.Bilanz;
  if (!Titel.empty() || (B.Ausgelassen.empty() && B.OhneEnde.empty())) return;
  const std::vector<std::string> Zeilen = StapelBericht();
  std::string Text = B.Datei + "\n";
  for (std::size_t i = 0; i < std::min(Zeilen.size(), Berichtzeilen); ++i) Text += "\n" + Zeilen[i];
  if (Zeilen.size() > Berichtzeilen)
    Text += "\nund " + std::to_string(Zeilen.size() - Berichtzeilen) + " weitere";
  tavorena::Hinweis(Text);
}

int ProtokollNehmenFragen(std::string Name) {
  if (DateiVorhanden(Name)) {
    const int Antwort = DateiVorhandenFrage(Name);
    if (Antwort < 0 && ProtokollWahl(Name) < 0) return -1;
    if (Antwort == 1 && DateiLöschen(Name) < 0) {
      LaufzeitFehlerMeldung(Laufzeitfehler::Zugriff, "Haupt.LesenUndDateinamenSetzen");
      return -1;
    }
  }
  ProtokollNehmen(Name);
  FensterAusDatei(Name);
  return 0;
}

std::string Titelname;

void TitelZeigen() {
  const bool Marke = KoordinatenGeaendert && !Titelname.empty();
  AnzeigePort().FenstertitelSetzen("Tavorena    " + Titelname + (Marke ? " *" : ""));
}

void OhnePunkte() {
  KorAbschneiden(0);
  KorGeaendertSetzen(false);
}

// The mean stands within the running page; as the first entry of a protocol it has a head of its own.
void MittelEintragen(const Mittelpunkt& M) {
  std::shared_ptr<const Verbindung> Kopf;
  if (!Prot.HatKopf) {
    Verbindung V;
    V.Titel = "VR 25.50 Mittelbildung von Punkten";
    V.Riß = LetzterPlan;
    Kopf = std::make_shared<const Verbindung>(std::move(V));
  }
  // It is in the table; a protocol that can not be written was told.
  static_cast<void>(Schreiben(Prot, Kopf, MittelBlock(Optionen.OptNachkommastellen, M)));
}

// The coordinate file as this program knows it.
struct {
  std::string Name;
  Dateistand Stand;
} Bekannt;

// Another program wrote the file that was read here: its points are not in the table.
bool DarfÜberschreiben(const std::string& Dateiname) {
  const Dateistand Jetzt = DateistandVon(Dateiname);
  if (Dateiname != Bekannt.Name || Jetzt == Bekannt.Stand || Jetzt == Dateistand{}) return true;
  return FrageJaNein("Die Datei wurde inzwischen von einem anderen Programm geändert. Überschreiben ?\n\n" +
                         Dateiname,
                     "Tavorena", KnopfNein) == KnopfJa;
}

int LesenNachFormat() {
  KoordinatendateiStandMerken(KoordinatendateiName);
  if (Koordinatendateiformat >= Dateiformat::Kor && Koordinatendateiformat <= Dateiformat::Lt4) {
    const int Gelesen = KorLesen(KoordinatendateiName, Lesemodus::Ersetzen, Koordinatendateiformat);
    if (Gelesen < 0) KoordinatendateiName.clear();
    return Gelesen;
  }
  Hinweis("Es wird versucht, die Datei " + KoordinatendateiName + "als Koordinatendatei einzulesen",
          "Interner Fehler");
  return -1;
}

}  // namespace

void KoordinatendateiStandMerken(const std::string& Dateiname) {
  Bekannt = {Dateiname, DateistandVon(Dateiname)};
}

void HauptAnschließen() {
  Haken.FormEinzelKorein = FormEinzelKorein;
  Haken.PunktVorhandenBehandeln = PunktVorhandenBehandeln;
  Haken.MittelEintragen = MittelEintragen;
  Haken.GeaendertGewechselt = TitelZeigen;
  StapelHaken = {BlattFür, Stapelstand};
}

void HauptInitialisierung() {
  DateinamenAbleiten();
  KorLeeren();
  ProtokollNehmen("");
  Protokollfenster.Leeren();
  StapelDatei = {};
  OptionenLesen();
  HistorieLesen();
  FormularLesen();
  DateinamenLesen();
  EDBSLesen();
  HauptOptionsmenüSetzen();
  TVKernMDIForm::Fenster().OhneKoordinaten();
  Titelname.clear();
  TitelZeigen();
  AnzeigePort().StatusSetzen(Statusfeld::Datei, "");
  AnzeigePort().StatusSetzen(Statusfeld::StatusVersion, "Version: 2.2");
  KorAnzahlAnzeigen();
}

int HauptKoordinatendateiWechseln(bool Nachfragen) {
  if (!BlätterKlären()) return -1;
  if (Nachfragen && !KoordinatendateiName.empty()) {
    const int Antwort =
        FrageJaNeinAbbruch("Koordinaten in Koordinatendatei\n\n" + KoordinatendateiName + "\n\nspeichern ? ",
                           KoordinatenGeaendert ? 0 : KnopfNein);
    if (Antwort != KnopfJa && Antwort != KnopfNein) return -1;
    if (Antwort == KnopfJa && HauptDateiSpeichern() < 0) return -1;
  }
  BlätterSchließen();
  OhnePunkte();
  KoordinatendateiName.clear();
  return 0;
}

int HauptLesenUndDateinamenSetzen(bool Nachfragen) {
  TitelSetzen(KoordinatendateiName);
  if (Nachfragen) {
    if (LesenNachFormat() < 0) return -1;
  } else {
    OhnePunkte();
  }
  const Dateiname Teile = DateinameZerlegen(KoordinatendateiName);
  const std::string Stamm = Teile.Ordner + Teile.Grundname;
  StapelDatei.Name = Stamm + ".sta";
  KorAnzahlAnzeigen();
  return ProtokollNehmenFragen(Stamm + ".dru");
}

Dateiformat FormatNachEndung(const std::string& Name, Dateiformat Sonst) {
  const std::string Endung = Großtext(DateinameZerlegen(Name).Endung);
  if (Endung == "LT4" || Endung == "ALK") return Dateiformat::Lt4;
  if (Endung.size() == 3 && Endung.starts_with("ED")) return Dateiformat::Edbs;
  return Sonst;
}

int HauptDateiÖffnen(const std::string& Name, Dateiformat Format) {
  KoordinatendateiName = GanzerName(Name);
  Koordinatendateiformat = FormatNachEndung(Name, Format);
  if (HauptLesenUndDateinamenSetzen(true) < 0) {
    OhnePunkte();
    KoordinatendateiName.clear();
    ProtokollNehmen("");
    StapelDatei.Name.clear();
    return -1;
  }
  HauptDateiOffenSetzen();
  return 0;
}

void HauptDateiOffenSetzen() {
  VerzeichnisMerken(KoordinatendateiName);
  HauptHistSchreiben(KoordinatendateiName, Koordinatendateiformat);
  TVKernMDIForm::Fenster().DateiOffen();
}

int HauptDateiSpeichern() {
  if (KoordinatenExportieren(KoordinatendateiName, Koordinatendateiformat) < 0) return -1;
  KorGeaendertSetzen(false);
  return 0;
}

int KoordinatenExportieren(const std::string& Dateiname, Dateiformat Format, bool Anhängen) {
  if (!Anhängen && !DarfÜberschreiben(Dateiname)) return -1;
  std::string Alt, Neu, Grund;
  // Whatever an option came to, coordinates are not rounded to metres by it.
  const int Gewählt = Optionen.OptNachkommaSpeichern;
  const int Nachkomma = Gewählt >= 0 && Gewählt <= 6 ? Gewählt : OptionenSatz().OptNachkommaSpeichern;
  bool Gut = KorText(Format, Nachkomma, Neu) == 0 && (!Anhängen || DateiLesen(Dateiname, Alt, &Grund) == 0);
  if (!Alt.empty() && !Alt.ends_with('\n') && !Alt.ends_with('\r')) Alt += "\r\n";
  // A file that is extended keeps the coding that it has.
  Gut = Gut && DateiErsetzen(Dateiname, Alt + (IstUtf8(Alt) ? Neu : NachWindows1252(Neu)), &Grund) == 0;
  if (!Gut) Hinweis("Fehler aufgetreten beim Speichern der Datei " + Dateiname + InKlammern(Grund));
  if (Gut && Dateiname == KoordinatendateiName) KoordinatendateiStandMerken(Dateiname);
  return Gut ? 0 : -1;
}

int HauptBeenden() {
  if (FrageJaNein("Tavorena beenden ?") != KnopfJa) return -1;
  int Ergebnis = -1;
  const auto Tun = [&] { Ergebnis = HauptKoordinatendateiWechseln(true); };
  return Geschützt("Haupt.Beenden", Tun, "Fehler beim Beenden: ") < 0 ? -1 : Ergebnis;
}

void HauptfensterAktiviert() {
  AnzeigePort().BildschirmGröße(BildschirmBreite, BildschirmHoehe);
  FormularZoomRechnen(true);
}

void HauptOptionsmenüSetzen() {}

void TitelSetzen(const std::string& Dateiname) {
  AnzeigePort().StatusSetzen(Statusfeld::Datei, "   " + Dateiname + "   ");
  Titelname = Dateiname;
  TitelZeigen();
}

}  // namespace tavorena
