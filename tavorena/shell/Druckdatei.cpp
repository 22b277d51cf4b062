#include <string>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/System.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/shell/Druckbefehle.h>

namespace tavorena {
namespace {

// @return 1 to 99; 0: cancelled
int AnschlußFragen() {
  Wertfeld Feld{"Anschluß LPT:", "1", -1, 0};
  while (EinWert("Tavorena Druckdatei", Feld) == 0) {
    const double Nummer = ZahlAusText(Feld.Wert);
    if (Nummer >= 1 && Nummer < 100) return static_cast<int>(Nummer);
    Hinweis("Der Anschluß ist eine Zahl von 1 bis 99.");
  }
  return 0;
}

}  // namespace

void DruckdateiSenden() {
  const std::string Hausbefehl = "c:\\bat\\tvcopy.bat";
  const std::string Name = DateiFragen("Datei zum Drucken", "Alle Dateien |*.*", "*.*", false);
  if (Name.empty()) return;
  const int Anschluß = AnschlußFragen();
  if (Anschluß == 0) return;
  const std::string Nummer = std::to_string(Anschluß), Datei = Systempfad(Name).string();
  const std::string Drucker = Umgebungswert("TAVORENA_LPT" + Nummer);
  const bool ImHaus = DateiVorhanden(Hausbefehl);
  std::vector<std::string> Worte = {Datei, "lpt" + Nummer};
  if (!ImHaus) {
    Worte = {"-o", "raw"};
    if (!Drucker.empty()) Worte.insert(Worte.end(), {"-d", Drucker});
    Worte.push_back(Datei);
  }
  std::string Meldungen;
  const int Ergebnis = UmgebungPort().ProgrammAusführen(ImHaus ? Hausbefehl : "lp", Worte, Meldungen);
  if (Ergebnis < 0) return LaufzeitFehlerMeldung(Laufzeitfehler::DateiNichtGefunden, "Haupt.Drucken");
  if (Ergebnis > 0) return Hinweis("Die Datei wurde nicht gedruckt:\n" + Name + "\n\n" + Meldungen);
  StatusHilfeSetzen("Zum Drucken gegeben: " + Name);
}

}  // namespace tavorena
