#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/rawdata/Nivellementdatei.h>
#include <tavorena/rawdata/Nivrechnung.h>
#include <tavorena/records/Aufzeichnung.h>
#include <tavorena/records/Tabellenkopf.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

bool KlasseLesen(const Aufruf& A, double& Klasse) {
  const std::string Wort = A.Wert("--klasse");
  if (Wort.empty()) return true;
  Klasse = IstZahlwort(Wort) ? ZahlAusText(Wort) : 0;
  if (Klasse > 0 && Klasse < 1000) return true;
  FehlerMeldung("--klasse muß eine Zahl über 0 sein, zum Beispiel 15");
  return false;
}

bool EingabeLesen(const Aufruf& A, const Umfeld& U, Niveingabe& E) {
  std::vector<Nivlinie> Linien;
  std::vector<Höhenpunkt> Höhen;
  int Andere = 0;
  if (!KlasseLesen(A, E.Klasse) || NivDateiLesen(A.Datei, Linien) < 0 ||
      HöhenlisteLesen(A.Wert("--hoehen"), Höhen, Andere) < 0)
    return false;
  if (Andere > 0)
    U.Ausgabe << Sichtbar(A.Wert("--hoehen")) << ": "
              << Anzahltext(Andere, "Zeile ist kein Punkt", "Zeilen sind keine Punkte") << '\n';
  E.Zeilen = NivZeilen(std::move(Linien));
  NivFesteNehmen(Höhen, E);
  return true;
}

bool Rechnen(const Aufruf& A, const Niveingabe& E, Nivrechnung& R) {
  const Nivmangel M = NivRechnen(E, R);
  if (M.Text.empty()) return true;
  const auto z = static_cast<std::size_t>(M.Zeile);
  const std::string Wo = z < E.Zeilen.size() ? "Punkt " + Zitat(E.Zeilen[z].Pnr) + " (" +
                                                   std::to_string(z + 1) + ". Punktzeile): "
                                             : "";
  FehlerMeldung(A.Datei + "\n" + Wo + M.Text);
  return false;
}

// The same block as the worksheet writes, on the screen and in the protocol.
bool Ausgeben(const Umfeld& U, const Nivrechnung& R) {
  Verbindung V;
  V.Titel = BlattartVonKennung("NI.00")->VR;
  const Block Zeilen = NivellementBlock(Optionen.OptNachkommastellen, ProtnivVon(R), Optionen.OptWarnstufe);
  for (const std::string& Zeile : Tabellenkopf(V.Titel, false, "")) U.Ausgabe << Zeile << '\n';
  for (const std::string& Zeile : Zeilen.Zeilen) U.Ausgabe << Sichtbar(Zeile) << '\n';
  Aufzeichnung Akten;
  Aufzeichnung::Spur Wo;
  Akten.Öffnen(false);
  return Akten.Ganzes(V, Zeilen, Wo) == 0 && Akten.Beenden() == 0;
}

bool Nivellieren(const Aufruf& A, const Umfeld& U) {
  Niveingabe E;
  Nivrechnung R;
  if (!EingabeLesen(A, U, E) || !Rechnen(A, E, R) || !Ausgeben(U, R)) return false;
  const std::string Hli = A.Wert("--hli"), Dat = A.Wert("--dat");
  int Stände = 0;
  if (!Hli.empty() && HöhenlisteSchreiben(Hli, NivHöhen(E.Zeilen, R)) < 0) return false;
  return Dat.empty() || DatSchreiben(Dat, E.Zeilen, Stände) == 0;
}

}  // namespace

Konsolenbefehl NivellementBefehl() {
  return {
      "nivellement",
      "Rohdaten",
      "rechnet ein Nivellement: Höhen, Abschlußfehler, zulässige Fehler",
      "NIV-Datei (*.niv)",
      false,
      Nivellieren,
      {{"--hoehen", "DATEI", "Höhenliste der Festpunkte (*.hli)", true, Dateirolle::Eingabe},
       {"--klasse", "MM", "zulässiger Fehler für 1 km in mm, sonst 15"},
       {"--hli", "DATEI", "schreibt alle Höhen (*.hli)", false, Dateirolle::Ausgabe},
       {"--dat", "DATEI", "schreibt die Höhenunterschiede der Stände (*.dat)", false, Dateirolle::Ausgabe}}};
}

}  // namespace tavorena
