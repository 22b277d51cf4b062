#include <cmath>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/rawdata/Hoehenliste.h>
#include <tavorena/rawdata/Nivellementdatei.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Nivbefehle.h>

namespace tavorena {
namespace {

const char *const Titel = "Tavorena Setzungsmessung", *const FilterHli = "Höhenliste (*.hli)|*.hli";
constexpr int Seite = 6010;

// A file into another one. @return false: cancelled
bool Umwandlung(Dateifeld (&Felder)[2], const char* Endung) {
  Felder[1].Ausgabe = true;
  if (ZweiDateinamen(Titel, Felder) < 0) return false;
  EndungErgänzen(Felder[1].Name, Endung);
  VerzeichnisMerken(Felder[1].Name);
  return true;
}

void NivNachDat() {
  Dateifeld Felder[] = {{"NIV-Datei", "", "NIV |*.niv"}, {"DAT-Datei", "", "DAT (*.dat)|*.dat"}};
  std::vector<Nivlinie> Linien;
  int Anzahl = 0;
  if (!Umwandlung(Felder, "*.dat") || NivDateiLesen(Felder[0].Name, Linien) < 0 ||
      DatSchreiben(Felder[1].Name, NivZeilen(std::move(Linien)), Anzahl) < 0)
    return;
  StatusHilfeSetzen(Anzahltext(Anzahl, "Stand geschrieben", "Stände geschrieben"));
}

void Lt5NachHli() {
  Dateifeld Felder[] = {{"LT5-Datei", "", "KAFKA (*.lt5)|*.lt5"}, {"HLI-Datei", "", FilterHli}};
  int Anzahl = 0, Andere = 0;
  if (!Umwandlung(Felder, "*.hli") || HöhenlisteAusLT5(Felder[0].Name, Felder[1].Name, Anzahl, Andere) < 0)
    return;
  const std::string Text = Anzahltext(Anzahl, "Höhe geschrieben", "Höhen geschrieben");
  if (Andere == 0) return StatusHilfeSetzen(Text);
  Hinweis(Text + "\n" + Anzahltext(Andere, "Zeile ohne Höhe", "Zeilen ohne Höhe"), Titel);
}

void WertAddieren() {
  const std::string Datei = DateiFragen(Titel, FilterHli, "*.hli", false);
  std::string Wort = "0.0000";
  if (Datei.empty()) return;
  do {
    if (EinWert(Titel, "Wert (m):", Wort) < 0) return;
  } while (!IstZahlwort(Wort) || std::fabs(ZahlAusText(Wort)) >= 10000);
  int Anzahl = 0;
  if (ZahlAusText(Wort) == 0 || HöhenlisteAddieren(Datei, ZahlAusText(Wort), Anzahl) < 0) return;
  StatusHilfeSetzen(Anzahltext(Anzahl, "Höhe geändert", "Höhen geändert"));
}

}  // namespace

std::span<const Befehl> Nivbefehle() {
  static const Befehl Alle[] = {
      {"MenüFunktSetzungsmessung(0)", true, NivNachDat, false, nullptr, Seite},
      {"MenüFunktSetzungsmessung(1)", true, Lt5NachHli, false, nullptr, Seite},
      {"MenüFunktSetzungsmessung(2)", true, WertAddieren, false, nullptr, Seite},
  };
  return Alle;
}

}  // namespace tavorena
