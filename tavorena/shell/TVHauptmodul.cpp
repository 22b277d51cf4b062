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
#include <tavorena/exchange/EDBS.h>
#include <tavorena/exchange/Formattafel.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/graphics/GrafDesign.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/rawdata/TVTheoForm.h>
#include <tavorena/records/Neupunktblock.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/records/Punktblock.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Grafikbefehle.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/Koordinatendatei.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVKernMDIForm.h>
#include <tavorena/shell/TVOptionenform.h>
#include <tavorena/shell/Tabellenbefehle.h>
#include <tavorena/shell/Verlauf.h>
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
  if (!Titel.empty() || (B.OhneErgebnis.empty() && B.OhneEnde.empty())) return;
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
    // In the folder of the job, whatever the last one was.
    if (Antwort < 0 && ProtokollWahl(Name, DateinameZerlegen(Name).Ordner) < 0) return -1;
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

// What was seen and drawn belongs to the file that is closed.
void GrafikZurücksetzen() {
  GrafikLeeren();
  GrafDesignLeeren();
  GrafikFenster.Gemerkt = false;
  GrafikFenster.Massstab = 0;
}

// The mean stands within the running page; as the first entry of a protocol it has a head of its own.
void MittelEintragen(const Mittelpunkt& M) {
  std::shared_ptr<const Verbindung> Kopf;
  if (!Prot.HatKopf) {
    Verbindung V;
    V.Titel = TitelMittel;
    V.Riß = LetzterPlan;
    Kopf = std::make_shared<const Verbindung>(std::move(V));
  }
  // It is in the table; a protocol that can not be written was told.
  static_cast<void>(Schreiben(Prot, Kopf, MittelBlock(Optionen.OptNachkommastellen, M)));
}

}  // namespace

void HauptAnschließen() {
  FormateAnmelden();
  Haken.FormEinzelKorein = FormEinzelKorein;
  Haken.PunktVorhandenBehandeln = PunktVorhandenBehandeln;
  Haken.MittelEintragen = MittelEintragen;
  Haken.GeaendertGewechselt = TitelZeigen;
  StapelHaken = {BlattFür, Stapelstand};
  TheoHaken = {TheoOptionenLesen, TheoOptionenMerken};
}

void HauptInitialisierung() {
  DateinamenAbleiten();
  KorLeeren();
  EDBSOffen = {};
  TabellenRücknahme = {};
  AusgelassenMerken("", 0, 0);
  ProtokollNehmen("");
  Protokollfenster.Leeren();
  StapelDatei = {};
  AnzeigePort().GrafikMitDatei(false);
  GrafikZurücksetzen();
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
  if (Nachfragen && GrafikSichern() < 0) return -1;
  BlätterSchließen();
  VerlaufMerken(KoordinatendateiName);
  OhnePunkte();
  KoordinatendateiName.clear();
  return 0;
}

int HauptLesenUndDateinamenSetzen(bool Nachfragen) {
  TitelSetzen(KoordinatendateiName);
  if (Nachfragen) {
    if (const int Gelesen = KoordinatendateiLesen(); Gelesen < 0) return Gelesen;
  } else {
    KoordinatendateiStandMerken(KoordinatendateiName);
    OhnePunkte();
  }
  const Dateiname Teile = DateinameZerlegen(KoordinatendateiName);
  const std::string Stamm = Teile.Ordner + Teile.Grundname;
  StapelDatei.Name = Stamm + ".sta";
  KorAnzahlAnzeigen();
  return ProtokollNehmenFragen(Stamm + ".dru") < 0 ? -2 : 0;
}

int HauptDateiÖffnen(const std::string& Name, Dateiformat Format) {
  KoordinatendateiName = GanzerName(Name);
  Koordinatendateiformat = FormatNachEndung(Name, Format);
  const int Ergebnis = HauptLesenUndDateinamenSetzen(true);
  if (Ergebnis == 0) {
    HauptDateiOffenSetzen();
    return 0;
  }
  // Broken off, nothing of it stays to be seen; a file that could not be read is still named.
  if (Ergebnis == -2) HauptInitialisierung();
  OhnePunkte();
  KorAnzahlAnzeigen();
  return -1;
}

void HauptDateiOffenSetzen() {
  VerzeichnisMerken(KoordinatendateiName);
  HauptHistSchreiben(KoordinatendateiName, Koordinatendateiformat);
  VerlaufMerken(KoordinatendateiName, KorAnzahl);
  TVKernMDIForm::Fenster().DateiOffen();
  if (Optionen.GrafikfensterAn) AnzeigePort().GrafikMitDatei(true);
}

int HauptDateiSpeichern() {
  if (KoordinatenExportieren(KoordinatendateiName, Koordinatendateiformat) < 0) return -1;
  KorGeaendertSetzen(false);
  VerlaufMerken(KoordinatendateiName, KorAnzahl);
  return 0;
}

int HauptBeenden() {
  if (FrageJaNein("Tavorena beenden ?") != KnopfJa) return -1;
  int Ergebnis = -1;
  const auto Tun = [&] { Ergebnis = TheodolitSchließen() ? HauptKoordinatendateiWechseln(true) : -1; };
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
