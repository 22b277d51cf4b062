#include <utility>

#include <tavorena/core/Datei.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/forms/Dateifrage.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/records/Stapelsatz.h>
#include <tavorena/worksheets/Messdatei.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {
namespace {

constexpr const char* FilterRohdaten =
    "Rohdaten (*.gsi *.gre *.dat)|*.gsi;*.gre;*.dat|GSI (*.gsi)|*.gsi|GRE (*.gre)|*.gre|Meßwerte "
    "(*.dat)|*.dat";

bool IstDat(const std::string& Datei) { return Großtext(DateinameZerlegen(Datei).Endung) == "DAT"; }

// A file of measured values, as the report wants it. @return 0; -1 with a message
int DatLesen(const std::string& Datei, const Rohdatenwahl& /*Wahl*/, Rohdaten& Daten) {
  std::string Text, Grund;
  if (TextdateiLesen(Datei, Text, &Grund) < 0) {
    Hinweis("Datei nicht gefunden:\n" + Datei + InKlammern(Grund));
    return -1;
  }
  Rohdaten Neu;
  std::vector<std::size_t> Fehlerhaft;
  Neu.Datei = Datei;
  Neu.Blöcke = DatBlöcke(Text, Fehlerhaft);
  if (!Fehlerhaft.empty())
    Hinweis("Meßdaten fehlerhaft !\n" + Datei + "\nZeile " + std::to_string(Fehlerhaft.front()) +
            (Fehlerhaft.size() > 1 ? " und " + Anzahltext(static_cast<int>(Fehlerhaft.size()) - 1,
                                                          "weitere Zeile", "weitere Zeilen")
                                   : ""));
  Daten = std::move(Neu);
  return 0;
}

int Lesen(const std::string& Datei, const Rohdatenwahl& Wahl, Rohdaten& Daten) {
  if (IstDat(Datei)) return DatLesen(Datei, Wahl, Daten);
  std::string Grund;
  const int Ergebnis = RohdatenLesen(Datei, Wahl, Daten, &Grund);
  if (Ergebnis == -1) Hinweis("Datei nicht gefunden:\n" + Datei + InKlammern(Grund));
  return Ergebnis < 0 ? -1 : 0;
}

int Beginnen(const std::string& Datei, Rohdaten& Daten) {
  Messdatei Neu{Datei, Stationsfolge(std::move(Daten.Blöcke)), 0};
  if (Neu.AmEnde()) {
    Hinweis("Keine Messung in der Datei:\n" + Datei);
    return -1;
  }
  LaufendeMessdatei = std::move(Neu);
  return 0;
}

}  // namespace

Messdatei LaufendeMessdatei;

bool MessdateiFragen() {
  const std::string Datei = DateiFragen("Meßdatei", FilterRohdaten, "*.gsi", false);
  if (Datei.empty()) return false;
  Rohdatenwahl Wahl;
  Rohdaten Daten;
  return RohdatenFragen(Datei, Wahl, Daten, IstDat(Datei) ? Rohleser(DatLesen) : Rohleser()) &&
         Beginnen(Datei, Daten) == 0;
}

int MessdateiÖffnen(const std::string& Datei, const Rohdatenwahl& Wahl) {
  Rohdaten Daten;
  return Lesen(Datei, Wahl, Daten) < 0 ? -1 : Beginnen(Datei, Daten);
}

std::vector<Kleinpunkteingabe> KleinpunkteAus(const std::vector<Rohpunkt>& Punkte) {
  std::vector<Kleinpunkteingabe> Zeilen;
  Zeilen.reserve(Punkte.size());
  for (const Rohpunkt& P : Punkte) Zeilen.push_back(KleinpunktAus(P));
  return Zeilen;
}

Kleinpunkteingabe KleinpunktAus(const Rohpunkt& P) {
  // One word, as the records take it.
  std::string_view Rest = P.Code;
  std::string Symbol(Wortnehmen(Rest));
  if (!StapelWortPaßt(Symbol)) Symbol.clear();
  return {P.Nummer,
          {VierStellen(P.Hz), VierStellen(P.V), VierStellen(P.Strecke), VierStellen(P.Reflektorhöhe)},
          std::move(Symbol),
          ""};
}

}  // namespace tavorena
