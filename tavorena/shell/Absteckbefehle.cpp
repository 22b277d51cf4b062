#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/rawdata/Absteckung.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Rohdatenbefehle.h>

namespace tavorena {
namespace {

constexpr const char* Dialogtitel = "Tavorena Absteckung";
std::string LetzterBericht;

// Of the open file the table counts, saved or not.
bool SollLesen(Absteckauftrag& A) {
  if (SelbeDatei(A.SollDatei, KoordinatendateiName)) {
    A.Soll = Tabellenpunkte();
    return true;
  }
  int Andere = 0;
  return VergleichspunkteLesen(A.SollDatei, false, A.Soll, Andere) == 0;
}

}  // namespace

void AbsteckungStarten() {
  Dateifeld Felder[] = {{"Koordinatendatei", KoordinatendateiName, "CADdy (*.kor)|*.kor"},
                        {"Rohdatendatei", "", FilterRohdaten},
                        {"FLG-Datei (optional)", "", "FLG |*.flg"}};
  Felder[2].Leerbar = true;
  if (DreiDateinamen(Dialogtitel, Felder) < 0) return;
  VerzeichnisMerken(Felder[1].Name);
  Absteckauftrag A;
  A.SollDatei = Felder[0].Name;
  if (!SollLesen(A) || !RohdatenFragen(Felder[1].Name, LetzteRohdatenwahl, A.Roh)) return;
  const std::string Bericht = Absteckdatei(Felder[1].Name);
  if (!ÜberschreibenFragen(Bericht)) return;
  A.Flg = FlgDateiLesen(Felder[2].Name);
  if (const std::string Text = StandpunktzeilenFehlen(A.Roh); !Text.empty()) Hinweis(Text);
  Absteckzahlen Zahlen;
  if (RohdatenBerichtAbsteckung(A, Bericht, Zahlen) < 0) return;
  LetzterBericht = Bericht;
  Hinweis(Absteckzählung(Zahlen) + "\n\n" + Bericht, Dialogtitel);
}

void AbsteckberichtAnsehen() {
  if (DateiVorhanden(LetzterBericht)) return Ansehen(LetzterBericht);
  Ansehen(DateiFragen("Bericht der Absteckung auswählen", "Absteckung |*-absteckung.dru", "*-absteckung.dru",
                      false));
}

}  // namespace tavorena
