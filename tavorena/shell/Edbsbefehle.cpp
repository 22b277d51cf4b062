#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/exchange/EDBSWandler.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/shell/Dateiwahl.h>
#include <tavorena/shell/Edbsbefehle.h>

namespace tavorena {
namespace {

constexpr const char* FilterKorDatei = "CADdy (*.kor)|*.kor";

// @return false: cancelled
bool AuftragFragen(EDBSAuftrag& A) {
  Dateifeld Felder[] = {{"EDBS- Datei:", "", FilterEdbs},
                        {"KOR- Datei:", "", FilterKorDatei},
                        {"Katasterdatei:", "", FilterKorDatei}};
  Felder[1].Fortgeschrieben = true;  // it is asked about below, and stays until the new one is whole
  Felder[1].Endung = "kor";
  Felder[2].Leerbar = true;
  if (DreiDateinamen("EDBS-> KOR- Datei", Felder) < 0) return false;
  EndungErgänzen(Felder[1].Name, "*.kor");
  VerzeichnisMerken(Felder[0].Name);
  const int Wahl = AuswahlListe("EDBS- Datei", {"6-stellige Punktnummern mit Punktart (ALK)",
                                                "Übernahme der Punktnummer mit km² (ALK)", "LFS- Codierung"});
  if (Wahl < 0 || !ÜberschreibenFragen(Felder[1].Name)) return false;
  A = {Felder[0].Name, Felder[1].Name, Felder[2].Name, static_cast<EDBSNummer>(Wahl)};
  return true;
}

void EdbsNachKor() {
  EDBSAuftrag A;
  EDBSWandlung W;
  if (!AuftragFragen(A)) return;
  const int Ergebnis = EDBSWandeln(A, W);
  if (Ergebnis == -2) return StatusHilfeSetzen("angehalten, nichts geschrieben");
  if (Ergebnis < 0 || EDBSWandlungSchreiben(A, W) < 0) return;
  std::string Text = Anzahltext(W.Punkte, "Punkt", "Punkte") + " geschrieben";
  if (W.Kataster > 0) Text += ", " + std::to_string(W.Kataster) + " aus der Katasterdatei dazu";
  if (W.Übergangen > 0)
    Text += ", " + Anzahltext(W.Übergangen, "Zeile", "Zeilen") + " übergangen (erste: Zeile " +
            std::to_string(W.ErsteÜbergangene) + ")";
  StatusHilfeSetzen(Text);
}

const Befehl Befehle[] = {
    {"MenüKonvertierenKat(0)", false, EdbsNachKor, false, nullptr, 2015},
};

}  // namespace

std::span<const Befehl> Edbsbefehle() { return Befehle; }

}  // namespace tavorena
