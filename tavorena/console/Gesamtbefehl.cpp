#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/shell/Epochenbefehle.h>

namespace tavorena {
namespace {

// The points of the list of heights, or those of the table.
bool QuelleLesen(const Aufruf& A, Epochenquelle& Q) {
  Q.Name = A.Wert("--hoehen");
  Q.Höhenliste = !Q.Name.empty();
  if (Q.Höhenliste != A.Koordinaten.empty()) {
    FehlerMeldung("zu --epoche gehört --hoehen oder --koordinaten");
    return false;
  }
  if (Q.Höhenliste) return VergleichspunkteLesen(Q.Name, true, Q.Punkte, Q.Andere) == 0;
  Q.Name = A.Koordinaten;
  for (int z = 0; z < KorAnzahl; ++z) {
    const KorSatz S = KorPunkt(z);
    Q.Punkte.push_back({std::string(S.Pnr), S.Rechts, S.Hoch, S.Hoehe});
  }
  return true;
}

bool Fortschreiben(const Aufruf& A, const Umfeld& U) {
  const std::string Datum = A.Wert("--epoche"), Liste = A.Wert("--liste");
  if (Datum.empty() && (Liste.empty() || !A.Wert("--hoehen").empty())) {
    FehlerMeldung("--epoche oder --liste fehlt");
    return false;
  }
  if (!Datum.empty()) {
    Epochenquelle Quelle;
    std::string Bericht;
    if (!QuelleLesen(A, Quelle) || EpocheHinzufügen(A.Datei, Datum, !Quelle.Höhenliste, Quelle, Bericht) < 0)
      return false;
    U.Ausgabe << Sichtbar(A.Datei) << ", " << Bericht << '\n';
  }
  return Liste.empty() || EpochenlisteErzeugen(A.Datei, Liste) == 0;
}

}  // namespace

Konsolenbefehl GesamtdateiBefehl() {
  return {"gesamtdatei",
          "Rohdaten",
          "eine Epoche einer Setzungs- oder Verformungsmessung aufnehmen, die Bewegungen ausgeben",
          "Gesamtdatei (*.ges)",
          false,
          Fortschreiben,
          {{"--epoche", "DATUM", "Datum der Messung, zum Beispiel 21.11.2026"},
           {"--hoehen", "DATEI", "Höhenliste der Epoche (*.hli), sonst --koordinaten", false,
            Dateirolle::Eingabe},
           {"--liste", "DATEI", "schreibt die Liste der Bewegungen (*.dru)", false, Dateirolle::Ausgabe}}};
}

}  // namespace tavorena
