#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Rohangaben.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/M5.h>
#include <tavorena/rawdata/Rohbericht.h>

namespace tavorena {
namespace {

bool Umformen(const Aufruf& A, const Umfeld& U) {
  Rohdatenwahl Wahl;
  Rohdaten Roh;
  std::string Grund;
  if (!RohwahlLesen(A, Wahl)) return false;
  if (M5Lesen(A.Datei, Wahl, Roh, &Grund) < 0) {
    LesefehlerMelden(A.Datei, Grund);
    return false;
  }
  for (const std::string& Zeile : RohdatenBericht(Roh)) U.Ausgabe << Zeile << '\n';
  for (const M5Abweichung& D : M5Vergleichen(Roh)) {
    if (!M5Auffällig(D)) continue;
    U.Ausgabe << "Punkt " << Sichtbar(Zitat(D.Nummer)) << ": Gerät minus gerechnet dR"
              << ZahlFormat(D.dR, 5, 3) << "  dH" << ZahlFormat(D.dH, 5, 3) << "  dZ"
              << ZahlFormat(D.dZ, 5, 3) << " m\n";
  }
  const std::string Ziel = A.Wert("--punkte");
  if (Ziel.empty()) return true;
  int Anzahl = 0;
  if (M5PunkteSchreiben(Roh, Ziel, Anzahl) < 0) return false;
  U.Ausgabe << Sichtbar(Ziel) << ": " << Anzahltext(Anzahl, "Punkt", "Punkte") << " geschrieben\n";
  return true;
}

}  // namespace

Konsolenbefehl M5Befehl() {
  return {"m5",
          "Rohdaten",
          "Messungen eines Trimble oder Zeiss (M5, R4, R5, REC500) in örtliche Koordinaten umformen",
          "Messdatei (*.m5)",
          false,
          Umformen,
          {{"--lagen", "ART", "einzeln oder mitteln: beide Lagen eines Punkts zu einer Messung (einzeln)"},
           {"--punkte", "DATEI", "schreibt die Punkte (*.kor)", false, Dateirolle::Ausgabe}}};
}

}  // namespace tavorena
