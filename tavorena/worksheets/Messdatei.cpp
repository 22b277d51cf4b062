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

Stationsmessung MessungAus(const Rohpunkt& P) {
  return {VierStellen(P.Hz), VierStellen(P.V), VierStellen(P.Strecke), VierStellen(P.Reflektorhöhe)};
}

bool IstDat(const std::string& Datei) { return Großtext(DateinameZerlegen(Datei).Endung) == "DAT"; }

// A file of measured values, as the report wants it. @return 0; -1 with a message
int DatLesen(const std::string& Datei, const Rohdatenwahl& /*Wahl*/, Rohdaten& Daten) {
  std::string Text, Grund;
  if (TextdateiLesen(Datei, Text, &Grund) < 0) {
    LesefehlerMelden(Datei, Grund);
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
  if (Ergebnis == -1) LesefehlerMelden(Datei, Grund);
  return Ergebnis < 0 ? -1 : 0;
}

constexpr double Fernste = 99999.9999;  // slope distance [m]

// It can be computed, and its record read again.
bool Brauchbar(const Rohpunkt& P) {
  const Stationsmessung M = MessungAus(P);
  return !P.Nummer.empty() && StapelWortPaßt(P.Nummer) && M.Vk != 0 && M.Strecke > 0 &&
         M.Strecke <= Fernste && StapelZahlPaßt(M.Hz) && StapelZahlPaßt(M.Vk) && StapelZahlPaßt(M.Zielhöhe);
}

void Sichten(std::vector<Rohblock>& Blöcke) {
  std::size_t Weg = 0, Erste = 0;
  for (Rohblock& B : Blöcke) {
    if (!StapelWortPaßt(B.Standpunkt)) B.Standpunkt.clear();  // it is typed
    if (!StapelWortPaßt(B.Symbol)) B.Symbol.clear();
    std::erase_if(B.Punkte, [&](const Rohpunkt& P) {
      if (Brauchbar(P)) return false;
      if (Weg++ == 0) Erste = P.Zeile;
      return true;
    });
  }
  if (Weg == 0) return;
  Hinweis(Anzahltext(static_cast<int>(Weg), "Messung läßt", "Messungen lassen") +
          " sich nicht übernehmen: Punktnummer, Zenitdistanz oder Strecke (zuerst Zeile " +
          std::to_string(Erste) + ")");
}

int Beginnen(const std::string& Datei, Rohdaten& Daten) {
  Sichten(Daten.Blöcke);
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
  return {P.Nummer, MessungAus(P), std::move(Symbol), ""};
}

}  // namespace tavorena
