#include <algorithm>
#include <string>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/rawdata/M5.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/shell/M5umformung.h>

namespace tavorena {
namespace {

constexpr const char* M5Titel = "Tavorena Trimble-M5->örtliche Koordinaten";

int Lesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Roh) {
  std::string Grund;
  const int Ergebnis = M5Lesen(Datei, Wahl, Roh, &Grund);
  if (Ergebnis == -1) LesefehlerMelden(Datei, Grund);
  return Ergebnis;
}

// Asks for the coordinates of a station, and gives them to all its blocks. @return false: cancelled
bool StandpunktFragen(const std::string& Nummer, Rohdaten& Roh) {
  Wertfeld Felder[] = {{"Rechts:", "0", 7, 3}, {"Hoch:", "0", 7, 3}, {"Höhe:", "0", 5, 3}};
  const std::string Titel = "Tavorena Standpunkt" + (Nummer.empty() ? "" : " " + Zitat(Nummer));
  const auto ZuGroß = [](const Wertfeld& F) { return !IstZahlwort(F.Wert); };  // the field overflowed
  do {
    if (DreiWerte(Titel, Felder) < 0) return false;
  } while (std::any_of(std::begin(Felder), std::end(Felder), ZuGroß));
  for (Rohblock& B : Roh.Blöcke) {
    if (B.Standpunkt != Nummer || B.StandRechts.IstGegeben()) continue;
    B.StandRechts = ZahlAusText(Felder[0].Wert);
    B.StandHoch = ZahlAusText(Felder[1].Wert);
    B.StandHöhe = ZahlAusText(Felder[2].Wert);
  }
  return true;
}

bool StandpunkteFragen(Rohdaten& Roh) {
  return std::all_of(Roh.Blöcke.begin(), Roh.Blöcke.end(), [&](const Rohblock& B) {
    return B.Punkte.empty() || B.StandRechts.IstGegeben() || StandpunktFragen(B.Standpunkt, Roh);
  });
}

}  // namespace

void M5Umformen() {
  const std::string Datei =
      DateiFragen(M5Titel,
                  "M5, R4, R5, REC500 (*.m5;*.dat;*.r4;*.r5;*.rec)|*.m5;*.dat;*.r4;*.r5;*.rec|"
                  "Alle Dateien (*.*)|*.*",
                  "*.m5", false);
  if (Datei.empty()) return;
  Rohdatenwahl Wahl;
  Rohdaten Roh;
  if (!RohdatenFragen(Datei, Wahl, Roh, Lesen)) return;
  if (!StandpunkteFragen(Roh)) return;
  const Dateiname Teile = DateinameZerlegen(Datei);
  const std::string Ziel = Teile.Ordner + Teile.Grundname + ".kor";
  if (SelbeDatei(Datei, Ziel)) return Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ziel);
  int Anzahl = 0;
  if (!ÜberschreibenFragen(Ziel) || M5PunkteSchreiben(Roh, Ziel, Anzahl) < 0) return;
  StatusHilfeSetzen(Anzahltext(Anzahl, "Punkt", "Punkte") + " in " + Ziel);
}

}  // namespace tavorena
