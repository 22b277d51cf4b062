#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Konfiguration.h>

namespace tavorena {
namespace {

std::string TitelFür(Dateisorte Sorte, Wahlmodus Modus) {
  if (Sorte == Dateisorte::Hli) return "Höhenliste zum Lesen auswählen";
  if (Sorte == Dateisorte::Dru) {
    return Modus == Wahlmodus::Lesen ? "Protokolldatei auswählen" : "Protokolldatei zum Schreiben auswählen";
  }
  if (Sorte == Dateisorte::Sta) {
    return Modus == Wahlmodus::Lesen      ? "Stapeldatei zum Bearbeiten auswählen"
           : Modus == Wahlmodus::Anhängen ? "Stapeldatei zum Anhängen auswählen"
                                          : "Stapeldatei zum Schreiben auswählen";
  }
  switch (Modus) {
    case Wahlmodus::Lesen:
      return "Koordinatendatei zum Lesen auswählen";
    case Wahlmodus::Schreiben:
      return "Koordinatendatei zum Schreiben auswählen";
    case Wahlmodus::Anhängen:
      return "Koordinatendatei zum Anhängen auswählen";
    case Wahlmodus::Neu:
      break;
  }
  return "Neue Koordinatendatei angeben";
}

int Abbruch() { return Dialogergebnis = -1; }

}  // namespace

void VerzeichnisMerken(const std::string& Name) {
  const std::string Ordner = DateinameZerlegen(Name).Ordner;
  if (!Ordner.empty()) Optionen.VerzeichnisLetztes = Ordner;
  OptionenMerken();
}

int DateiWahl(Dateisorte Sorte, Wahlmodus Modus, const std::string& Filter, const std::string& Vorgabe,
              std::string& Name, bool* Anhängen, Zeichensatz* Satz) {
  Dateiauftrag Auftrag{TitelFür(Sorte, Modus),    Filter, Startordner(), Vorgabe,
                       Modus == Wahlmodus::Lesen, "",     false};
  if (Satz != nullptr) ZeichensatzAnbieten(Auftrag);
  std::string Gewählt = FragenPort().DateiWählen(Auftrag);
  if (Gewählt.empty()) return Abbruch();
  if (Satz != nullptr) *Satz = ZeichensatzGewählt(Auftrag);
  if (Modus != Wahlmodus::Lesen) EndungErgänzen(Gewählt, Vorgabe);
  if ((Modus == Wahlmodus::Schreiben || Modus == Wahlmodus::Neu) && DateiVorhanden(Gewählt)) {
    const int Antwort = DateiVorhandenFrage(Gewählt);
    if (Antwort < 0) return Abbruch();
    if (Anhängen != nullptr) *Anhängen = Antwort == 0;
  }
  Name = Gewählt;
  VerzeichnisMerken(Name);
  return Dialogergebnis = 0;
}

int ProtokollWahl(std::string& Name, const std::string& Ordner) {
  Dateiauftrag Auftrag{TitelFür(Dateisorte::Dru, Wahlmodus::Anhängen),
                       "Protokolldateien (*.dru)|*.dru",
                       Ordner,
                       "*.dru",
                       false,
                       "kein Protokoll",
                       false};
  std::string Gewählt = FragenPort().DateiWählen(Auftrag);
  if (Auftrag.ZusatzGewählt) {
    Name.clear();
    return Dialogergebnis = 0;
  }
  if (Gewählt.empty()) return Abbruch();
  EndungErgänzen(Gewählt, Auftrag.Vorgabe);
  Name = Gewählt;
  VerzeichnisMerken(Name);
  return Dialogergebnis = 0;
}

}  // namespace tavorena
