#include <algorithm>
#include <memory>

#include <tavorena/core/Datei.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/points/TVPSelectForm.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Austauschbefehle.h>
#include <tavorena/shell/Befehle.h>
#include <tavorena/shell/Beispiel.h>
#include <tavorena/shell/Blaetter.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Druckaufbereitung.h>
#include <tavorena/shell/Druckbefehle.h>
#include <tavorena/shell/Edbsbefehle.h>
#include <tavorena/shell/Epochenbefehle.h>
#include <tavorena/shell/Funktionsbefehle.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/Koordinatendatei.h>
#include <tavorena/shell/M5umformung.h>
#include <tavorena/shell/Nivbefehle.h>
#include <tavorena/shell/Punktbefehle.h>
#include <tavorena/shell/Rohdatenbefehle.h>
#include <tavorena/shell/TVHauptmodul.h>
#include <tavorena/shell/TVOptionenform.h>
#include <tavorena/shell/Umrechenbefehle.h>
#include <tavorena/shell/Verlauf.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

void DateiNeu() {
  if (HauptKoordinatendateiWechseln(true) < 0) return;
  HauptInitialisierung();
  std::string Name;
  bool Anhängen = false;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Neu, FilterKor, "*.kor", Name, &Anhängen) < 0) return;
  if (Anhängen) {  // what it holds is the beginning of the new job
    HauptDateiÖffnen(Name, Dateiformat::Kor);
    return;
  }
  KoordinatendateiName = Name;
  Koordinatendateiformat = FormatNachEndung(Name);
  if (HauptLesenUndDateinamenSetzen(false) < 0) return HauptInitialisierung();
  HauptDateiOffenSetzen();
}

void DateiLesenMit(Dateiformat Format, const char* Filter, const char* Vorgabe) {
  if (HauptKoordinatendateiWechseln(true) < 0) return;
  HauptInitialisierung();
  std::string Name;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Lesen, Filter, Vorgabe, Name) < 0) return;
  HauptDateiÖffnen(Name, Format);
}

void DateiSpeichern() { HauptDateiSpeichern(); }

void DateiSpeichernUnter() {
  const char* Vorgabe = Koordinatendateiformat == Dateiformat::Lt4    ? "*.alk"
                        : Koordinatendateiformat == Dateiformat::Edbs ? "*.eds"
                                                                      : "*.kor";
  const char* Filter = Koordinatendateiformat == Dateiformat::Edbs ? FilterEdbs : FilterKor;
  std::string Name;
  bool Anhängen = false;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Schreiben, Filter, Vorgabe, Name, &Anhängen) < 0) return;
  const Dateiformat Format = FormatNachEndung(Name);
  if (KoordinatenExportieren(Name, Format, Anhängen) < 0) return;
  if (Format == Dateiformat::Kor && Koordinatendateiformat != Dateiformat::Kor)
    StatusHilfeSetzen(Anzahltext(KorAnzahl, "Punkt", "Punkte") +
                      " gespeichert, ohne Attribute: sie bleiben in " + KoordinatendateiName);
  KoordinatendateiName = Name;
  Koordinatendateiformat = Format;
  KoordinatendateiStandMerken(Name);
  KorGeaendertSetzen(false);
  // An extended file holds more than the table: the table takes all of it.
  if (Anhängen && KoordinatendateiLesen(false) < 0) {
    // What is left of the table must not be saved over the whole file.
    if (HauptKoordinatendateiWechseln(false) == 0) HauptInitialisierung();
    return;
  }
  TitelSetzen(KoordinatendateiName);
  HauptHistSchreiben(KoordinatendateiName, Format);
  VerlaufMerken(KoordinatendateiName, KorAnzahl);
}

void Stapelbearbeitung() {
  if (StapelSchreibenOffen()) return StatusHilfeSetzen("Stapel noch nicht abgeschlossen");
  if (StapelDatei.Offen) {
    return Hinweis("Stapel noch nicht abgeschlossen\n\nBitte zuerst das Rechenblatt schließen:\n" +
                   StapelDatei.Offen->Titel);
  }
  std::string Name;
  if (DateiWahl(Dateisorte::Sta, Wahlmodus::Lesen, "Stapeldateien (*.sta)|*.sta", "*.sta", Name) < 0) return;
  StapelStarten(Name);
}

void ProtokollWechseln() {
  std::string Name;
  if (ProtokollWahl(Name) == 0) ProtokollNehmen(Name);
}

void DateiSchließen() {
  if (HauptKoordinatendateiWechseln(true) == 0) HauptInitialisierung();
}

void Beenden() {
  if (HauptBeenden() == 0) AblaufPort().ProgrammBeenden();
}

void HinzuGanz(Lesemodus Modus) {
  std::string Name;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Lesen, FilterKor, "*.kor", Name) < 0) return;
  KoordinatenHinzulesen(Name, Modus, FormatNachEndung(Name));
}

void HinzuKomplett() { HinzuGanz(Lesemodus::Alle); }
void HinzuNurNeue() { HinzuGanz(Lesemodus::NurNeue); }

void HinzuPunktbereich() {
  std::string Name, Von, Bis;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Lesen, FilterKor, "*.kor", Name) < 0) return;
  if (PunktbereichFrage("Tavorena Auswahl Punktbereich", Von, Bis) < 0) return;
  const double Unten = ZahlAusText(Von), Oben = ZahlAusText(Bis);
  KoordinatenHinzulesen(Name, Lesemodus::Alle, FormatNachEndung(Name), [=](std::string_view Pnr) {
    const double Nummer = ZahlAusText(Pnr);
    return Nummer >= Unten && Nummer <= Oben;
  });
}

void HinzuPunktselektion() {
  std::string Name;
  if (DateiWahl(Dateisorte::Kor, Wahlmodus::Lesen, FilterKor, "*.kor", Name) < 0) return;
  Punktlisten Listen;
  int Anzahl = 0;
  if (PunkteInListen(Name, PunktformatVon(FormatNachEndung(Name)), Listen, KorGrenze, Anzahl) < 0) return;
  std::vector<int> Zeilen;
  if (PunkteAuswählen(Listen, Zeilen) < 0) return;
  std::vector<std::string> Gewählt;
  for (const int z : Zeilen) Gewählt.push_back(Listen.Pnr[static_cast<std::size_t>(z)]);
  std::sort(Gewählt.begin(), Gewählt.end());
  KoordinatenHinzulesen(Name, Lesemodus::Alle, FormatNachEndung(Name), [&](std::string_view Pnr) {
    const auto Dabei = [&](std::string_view N) {
      return std::binary_search(Gewählt.begin(), Gewählt.end(), N);
    };
    if (Dabei(Pnr) || Pnr.find(',') == std::string_view::npos) return Dabei(Pnr);
    std::string MitPunkt(Pnr);  // as the sort of the list may have left it
    ZeichenErsetzen(MitPunkt, ',', '.');
    return Dabei(MitPunkt);
  });
}

void AnsichtProtokoll() { Ansehen(Prot.Datei); }
void AnsichtStapel() { Ansehen(StapelDatei.Name); }
void AnsichtKoordinaten() { Ansehen(KoordinatendateiName); }

void BlattÖffnen(const Blattart& Art) {
  if (StapelSchreibenOffen()) return StatusHilfeSetzen("Stapel noch nicht abgeschlossen");
  BlattZeigen(Art.Neu(Art));
}

// Replaces a text in a whole file and tells how often.
void TextErsetzen() {
  Wertfeld Felder[] = {{"zu ändernde Datei", ""}, {"Suchen nach...", ""}, {"Ersetzen durch...", ""}};
  if (DreiWerte("Tavorena Text ersetzen", Felder) < 0 || Felder[1].Wert.empty()) return;
  const std::string &Datei = Felder[0].Wert, &Such = Felder[1].Wert, &Ersatz = Felder[2].Wert;
  std::string Bytes, Text, Grund;
  if (DateiLesen(Datei, Bytes, &Grund) < 0 || TextdateiLesen(Datei, Text, &Grund) < 0)
    return LesefehlerMelden(Datei, Grund);
  int Anzahl = 0;
  for (std::size_t i = Text.find(Such); i != std::string::npos; i = Text.find(Such, i + Ersatz.size())) {
    Text.replace(i, Such.size(), Ersatz);
    ++Anzahl;
  }
  if (Anzahl == 0) return Hinweis("Kein Eintrag \"" + Such + "\"\n" + Datei + "\ngefunden");
  if (DateiErsetzen(Datei, IstUtf8(Bytes) ? Text : NachWindows1252(Text), &Grund) < 0)
    return SchreibfehlerMelden(Datei, Grund);
  Hinweis(std::to_string(Anzahl) + " mal \"" + Such + "\" durch \"" + Ersatz + "\"\n" + Datei + "\nersetzt");
}

void TexteditorWählen() {
  Dateifeld Feld{"Editor Win NT", Optionen.DateinameEditorNT,
                 "Programmdatei (*.exe)|*.exe|Batch-Datei (*.bat)|*.bat"};
  if (EinDateiname("Tavorena Texteditor für Windows NT festlegen", Feld) < 0) return;
  Optionen.DateinameEditorNT = Feld.Name;
  VerzeichnisMerken(Feld.Name);
}

void Über() { Hinweis("Tavorena für PC\nVersion 3.0\nRelease 4"); }

const Befehl Befehle[] = {
    {"MenüDateiNeu", false, DateiNeu},
    {"MenüDateiLesen(0)", false, [] { DateiLesenMit(Dateiformat::Kor, FilterKor, "*.kor"); }},
    {"MenüDateiLesen(1)", true, [] { DateiLesenMit(Dateiformat::Edbs, FilterEdbs, "*.ed?"); }},
    {"MenüDateiLesen(2)", false, [] { DateiLesenMit(Dateiformat::Lt4, FilterEdbs, "*.alk"); }},
    {"MenüDateiSpeichern(0)", true, DateiSpeichern},
    {"MenüDateiSpeichernUnter", true, DateiSpeichernUnter},
    {"MenüDateiStapel", true, Stapelbearbeitung},
    {"MenüDateiProtokoll", true, ProtokollWechseln},
    {"MenüDateiSchließen", true, DateiSchließen},
    {"MenüDateiBeenden", false, Beenden},
    {"MenüDateiBeispiel", false, BeispielÖffnen},
    {"MenüDateiHinzuLesenKomplett", true, HinzuKomplett, true},
    {"MenüDateiHinzuLesenNurNeue", true, HinzuNurNeue, true},
    {"MenüDateiHinzuLesenPunktbereich", true, HinzuPunktbereich, true},
    {"MenüDateiHinzuLesenPunktselektion", true, HinzuPunktselektion, true},
    {"MenüAnsichtGrafik(1)", true, [] { AnzeigePort().GrafikZeigen(); }},
    {"MenüAnsichtKoordinatendatei", true, AnsichtKoordinaten},
    {"MenüAnsichtProtokolldatei", true, AnsichtProtokoll},
    {"MenüAnsichtStapeldatei", true, AnsichtStapel},
    {"MenüExtrasKlotoide", true, M5Umformen},
    {"MenüFunktErsetzen", true, TextErsetzen},
    {"MenüOptionenOptionen", false, TVOptionenformZeigen},
    {"MenüOptionenDateinamen(0)", false, TexteditorWählen},
    {"MenüInfoHandbuch", false, [] { AnzeigePort().HandbuchZeigen(0); }},
    {"MenüInfoÜber", false, Über},
};

}  // namespace

const Befehl* BefehlFinden(std::string_view Eintrag) {
  // Besides the commands of the tables each kind of worksheet has one.
  static const std::vector<Befehl> Alle = [] {
    std::vector<Befehl> B(std::begin(Befehle), std::end(Befehle));
    for (const std::span<const Befehl> Tafel :
         {Austauschbefehle(), Druckaufbereitungsbefehle(), Druckbefehle(), Edbsbefehle(), Epochenbefehle(),
          Funktionsbefehle(), Nivbefehle(), Punktbefehle(), Rohdatenbefehle(), Umrechenbefehle()})
      B.insert(B.end(), Tafel.begin(), Tafel.end());
    for (const Blattart& Art : Blattarten()) {
      for (const char* Menü : {Art.Menü, Art.WeiteresMenü}) {
        if (Menü != nullptr && *Menü != '\0') B.push_back({Menü, true, [&Art] { BlattÖffnen(Art); }});
      }
    }
    return B;
  }();
  const auto i =
      std::find_if(Alle.begin(), Alle.end(), [&](const Befehl& B) { return B.Eintrag == Eintrag; });
  return i != Alle.end() ? &*i : nullptr;
}

void Ansehen(const std::string& Datei) {
  if (Datei.empty() || UmgebungPort().ProgrammStarten(Optionen.DateinameEditorNT, Datei) == 0) return;
  LaufzeitFehlerMeldung(Laufzeitfehler::DateiNichtGefunden, "Haupt.Ansicht");
}

void HistorieÖffnen(int Index) {
  if (Index < 0 || Index >= HistorieAnzahl) return;
  const HistorieEintrag H = Historie[static_cast<std::size_t>(Index)];
  if (HauptKoordinatendateiWechseln(true) < 0) return;
  HauptInitialisierung();
  HauptDateiÖffnen(H.Dateiname, H.Format);
}

}  // namespace tavorena
