#include <ostream>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Rohangaben.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/Text.h>
#include <tavorena/points/Uebernahme.h>
#include <tavorena/rawdata/Absteckung.h>

namespace tavorena {
namespace {

bool Berichten(const Aufruf& A, const Umfeld& U) {
  Rohdatenwahl Wahl;
  Absteckauftrag Auftrag;
  Auftrag.SollDatei = A.Koordinaten;
  Auftrag.Soll = Tabellenpunkte();
  if (!RohdatenHolen(A, Wahl, Auftrag.Roh)) return false;
  Auftrag.Flg = FlgDateiLesen(A.Wert("--flg"));
  Absteckzahlen Zahlen;
  if (RohdatenBerichtAbsteckung(Auftrag, A.Wert("--bericht"), Zahlen) < 0) return false;
  // No failure: the stations are computed all the same.
  const std::string Fehlen = StandpunktzeilenFehlen(Auftrag.Roh);
  Zeilenleser Leser(Fehlen);
  for (std::string_view Zeile; Leser.Nächste(Zeile);) U.Ausgabe << Sichtbar(Zeile) << '\n';
  U.Ausgabe << Absteckzählung(Zahlen) << '\n';
  return true;
}

}  // namespace

Konsolenbefehl AbsteckBefehl() {
  return {"absteckung",
          "Rohdaten",
          "vergleicht gemessene Punkte mit der Koordinatendatei",
          "Rohdatendatei (*.gsi, *.gre)",
          true,
          Berichten,
          MitRohangaben({{"--bericht", "DATEI", "schreibt den Bericht (*.dru)", true, Dateirolle::Ausgabe},
                         {"--flg", "DATEI", "druckt das Protokoll des Instruments mit (*.flg)", false,
                          Dateirolle::Eingabe}})};
}

}  // namespace tavorena
