#include <vector>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/rawdata/Rohumwandlung.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/Rohdatenbefehle.h>

namespace tavorena {
namespace {

constexpr const char* Dialogtitel = "Tavorena Rohdaten entladen";

// What was unloaded so far.
struct Entladung {
  int Dateien = 0, Punkte = 0, KorDateien = 0;
  int Ungelesene = 0;  // files that could not be read
};

// Puts bytes into a file; one that is there is asked about. @return 0; -1 it stays, or can not be written
int Ablegen(const std::string& Ziel, const std::string& Bytes) {
  const int Antwort = DateiVorhanden(Ziel) ? DateiVorhandenFrage(Ziel) : 1;
  if (Antwort < 0) return -1;
  std::string Grund;
  if ((Antwort == 0 ? BytesAnhängen(Ziel, Bytes, &Grund) : DateiErsetzen(Ziel, Bytes, &Grund)) == 0) return 0;
  SchreibfehlerMelden(Ziel, Grund);
  return -1;
}

// Copies a file, and what it holds of coordinates. @return 0; -1: no more of it
int Übertragen(const std::string& Quelle, const Rohdaten& Daten, Entladung& E) {
  const Dateiname Teile = DateinameZerlegen(Quelle);
  const std::string Ziel =
      PfadVerbinden(Optionen.VerzeichnisRohdatenEdit, Teile.Grundname + "." + Teile.Endung);
  std::string Bytes;
  if (SelbeDatei(Quelle, Ziel)) {
    Hinweis("Dateiname für Ein- und Ausgabe ist gleich:\n" + Ziel);
    return -1;
  }
  if (DateiLesen(Quelle, Bytes) < 0) return ++E.Ungelesene, 0;
  if (Ablegen(Ziel, Bytes) < 0) return -1;
  ++E.Dateien;
  if (Daten.Koordinaten.empty()) return 0;
  const std::string Kor = PfadVerbinden(Optionen.VerzeichnisRohdatenKor, Teile.Grundname + ".kor");
  int Anzahl = 0;
  if (Ablegen(Kor, RohkoordinatenAlsKor(Daten, Optionen.OptNachkommaSpeichern, Anzahl)) < 0) return -1;
  ++E.KorDateien;
  E.Punkte += Anzahl;
  return 0;
}

std::string Zählung(const Entladung& E) {
  std::string Text = Anzahltext(E.Dateien, "Datei", "Dateien") + " entladen";
  if (E.KorDateien > 0)
    Text += "\n" + Anzahltext(E.Punkte, "Punkt", "Punkte") + " in " +
            Anzahltext(E.KorDateien, "KOR-Datei", "KOR-Dateien");
  if (E.Ungelesene > 0) Text += "\n" + Anzahltext(E.Ungelesene, "Datei", "Dateien") + " nicht lesbar";
  return Text;
}

void Einzeln() {
  Dateiauftrag Auftrag{"Rohdatendatei zum Entladen auswählen",
                       FilterRohdaten,
                       Optionen.VerzeichnisRohdatenQuelle,
                       "*.gsi",
                       true,
                       "",
                       false};
  const std::string Quelle = FragenPort().DateiWählen(Auftrag);
  Rohdaten Daten;
  Entladung E;
  if (Quelle.empty() || !RohdatenFragen(Quelle, LetzteRohdatenwahl, Daten)) return;
  if (Übertragen(Quelle, Daten, E) == 0) StatusHilfeSetzen(Zählung(E));
}

bool IstRohdatendatei(const std::string& Name) {
  const std::string Endung = Großtext(DateinameZerlegen(Name).Endung);
  return Endung == "GSI" || Endung == "GRE";
}

// All files of the source folder, in the reading that was chosen last; an answer that breaks off ends it.
void Serie() {
  Entladung E;
  for (const std::string& Name : DateienIm(Optionen.VerzeichnisRohdatenQuelle)) {
    if (!IstRohdatendatei(Name)) continue;
    const std::string Quelle = PfadVerbinden(Optionen.VerzeichnisRohdatenQuelle, Name);
    Rohdaten Daten;
    int Ergebnis = 0;
    {
      const Beschäftigung Lang;
      Ergebnis = RohdatenLesen(Quelle, LetzteRohdatenwahl, Daten);
    }
    if (Ergebnis == -1) ++E.Ungelesene;
    if (Ergebnis == -2 || (Ergebnis == 0 && Übertragen(Quelle, Daten, E) < 0)) break;
  }
  Hinweis(Zählung(E), Dialogtitel);
}

bool Eingestellt() {
  for (const std::string* V : {&Optionen.VerzeichnisRohdatenQuelle, &Optionen.VerzeichnisRohdatenEdit,
                               &Optionen.VerzeichnisRohdatenKor}) {
    if (*V == OptionenSatz().VerzeichnisRohdatenQuelle || !OrdnerVorhanden(*V)) return false;
  }
  return true;
}

}  // namespace

bool EntladenVerzeichnisse() {
  Dateifeld Felder[] = {{"Rohdaten: Quelle", Optionen.VerzeichnisRohdatenQuelle, ""},
                        {"Rohdaten: Ziel", Optionen.VerzeichnisRohdatenEdit, ""},
                        {"KOR-Dateien: Ziel", Optionen.VerzeichnisRohdatenKor, ""}};
  for (Dateifeld& F : Felder) F.Ordner = true;
  if (DreiDateinamen("Rohdaten entladen: Verzeichnis", Felder) < 0) return false;
  Optionen.VerzeichnisRohdatenQuelle = Felder[0].Name;
  Optionen.VerzeichnisRohdatenEdit = Felder[1].Name;
  Optionen.VerzeichnisRohdatenKor = Felder[2].Name;
  OptionenMerken();
  return true;
}

void RohdatenEntladen(bool InSerie) {
  if (!Eingestellt() && !EntladenVerzeichnisse()) return;
  InSerie ? Serie() : Einzeln();
}

}  // namespace tavorena
