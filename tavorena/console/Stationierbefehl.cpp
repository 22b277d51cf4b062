#include <memory>
#include <ostream>
#include <utility>

#include <tavorena/console/Befehle.h>
#include <tavorena/console/Rohangaben.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/Sammellauf.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/Text.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/worksheets/Anschlusswahl.h>
#include <tavorena/worksheets/Blattart.h>
#include <tavorena/worksheets/FStatMessdatei.h>
#include <tavorena/worksheets/TVFStatForm.h>

namespace tavorena {
namespace {

using Standpunktwahl = TVFStatForm::Standpunktwahl;

/// A day's work on the worksheet, station by station.
class Tagesarbeit {
 public:
  Tagesarbeit(bool MitKongruent, Standpunktwahl Welcher, const Umfeld& Wohin)
      : Kongruent(MitKongruent), Wahl(Welcher), U(Wohin) {}

  /// Computes and stores a station, and tells it in a line. @return false: not wholly done
  bool Rechnen(Rohstation S) {
    Marken = Prot.Marken;
    Ausgelassen = Gespeichert = 0;
    const std::string Grund = S.Wiederholt ? NocheinmalMessen(S) : Stationieren(S);
    U.Ausgabe << Sichtbar(S.Standpunkt.empty() ? "Station ohne Nummer" : S.Standpunkt) << ": ";
    if (!Grund.empty()) {
      U.Ausgabe << Sichtbar(Grund) << '\n';
      return false;
    }
    if (S.Wiederholt) {
      U.Ausgabe << "weitere Messung";
    } else {
      U.Ausgabe << Anzahltext(Blatt->Ergebnis().Anzahl, "Anschlußpunkt", "Anschlußpunkte") << ", MK "
                << ZahlFormat(Blatt->Ergebnis().MK, -1, 4);
    }
    U.Ausgabe << ", " << Anzahltext(Gespeichert, "Punkt", "Punkte") << ", "
              << Anzahltext(Prot.Marken - Marken, "Marke", "Marken");
    if (Ausgelassen > 0) U.Ausgabe << ", " << Ausgelassen << " ausgelassen";
    U.Ausgabe << '\n';
    return true;
  }

  /// The block of the last station is ended.
  void Beenden() {
    if (Blatt && Blatt->Offen()) Blatt->Schließen();
  }

 private:
  // @return "", or why there is none
  std::string Stationieren(Rohstation& S) {
    Beenden();
    Blatt.reset();
    auto Neues = BlattNeu();
    if (!S.Getrennt) AnschlussTrennen(S, AnschlussVorschlag(S));
    std::string Grund;
    Neues->Ereignis([&] {
      Neues->ArtSetzen(Kongruent);
      Neues->StandpunktSetzen(S.Standpunkt, S.Symbol, S.Instrumentenhöhe, Wahl);
      StationEintragen(*Neues, S, Unbekannte::Polar);
      Grund = Neues->StationBerechnen();
      if (Grund.empty() && S.Standpunkt.empty()) Grund = "Punktnummer des Standpunkts fehlt";
      if (Grund.empty() && !Neues->StandpunktÜbernehmen()) Grund = "Standpunkt nicht gespeichert";
      if (Grund.empty()) Grund = PunkteÜbernehmen(*Neues);
    });
    if (Neues->Status() == FStatStatus::StpErzeugt) Blatt = std::move(Neues);
    return Grund;
  }

  std::string NocheinmalMessen(const Rohstation& S) {
    if (!Blatt) return "weitere Messung ohne Standpunkt";
    std::string Grund;
    Blatt->Ereignis([&] {
      Blatt->Kleinpunkte().Setzen(KleinpunkteAus(S.Messung));
      Blatt->Kleinpunkte().AllesRechnen();
      Grund = PunkteÜbernehmen(*Blatt);
    });
    return Grund;
  }

  std::string PunkteÜbernehmen(TVFStatForm& Form) {
    return Form.Kleinpunkte().Übernehmen(Gespeichert, Ausgelassen) < 0 ? "Punkte nicht geschrieben" : "";
  }

  static std::unique_ptr<TVFStatForm> BlattNeu() {
    auto Blatt = std::make_unique<TVFStatForm>(*BlattartVonKennung("19.50"));
    const bool Riss = std::exchange(Optionen.AbfrageRiss, false);  // nobody is there to answer
    Blatt->Öffnen();
    Optionen.AbfrageRiss = Riss;
    return Blatt;
  }

  const bool Kongruent;
  const Standpunktwahl Wahl;
  const Umfeld& U;
  std::unique_ptr<TVFStatForm> Blatt;  // of the last station that was stored
  int Marken = 0, Gespeichert = 0, Ausgelassen = 0;
};

bool Stationieren(const Aufruf& A, const Umfeld& U) {
  constexpr Standpunktwahl Wahlen[] = {Standpunktwahl::Fragen, Standpunktwahl::Bekannt, Standpunktwahl::Neu};
  std::size_t Art = 0, Standpunkt = 0;
  Rohdatenwahl Wahl;
  if (!WortLesen(A, "--art", {"helmert", "kongruent"}, Art) ||
      !WortLesen(A, "--standpunkt", {"", "orientierung", "neu"}, Standpunkt) || !RohwahlLesen(A, Wahl) ||
      MessdateiÖffnen(A.Datei, Wahl) < 0)
    return false;
  StapelDatei = {};
  StapelDatei.Name = A.Wert("--stapel-ausgabe");
  const Messdatei Datei = std::exchange(LaufendeMessdatei, {});
  Tagesarbeit Tag(Art == 1, Wahlen[Standpunkt], U);
  bool Gut = true;
  {
    const Sammellauf Lauf;  // a day's file is computed again sooner than each of its blocks is waited for
    for (const Rohstation& S : Datei.Folge) {
      Gut = Tag.Rechnen(S) && Gut;
      if (U.Beendet()) break;
    }
    Tag.Beenden();
  }
  return AktenSichern() == 0 && Gut;
}

}  // namespace

Konsolenbefehl StationierBefehl() {
  return {
      "stationieren",
      "Rohdaten",
      "rechnet alle Stationen einer Rohdatendatei: freie Stationierung und polare Punkte",
      "Rohdatendatei (*.gsi, *.gre, *.dat)",
      true,
      Stationieren,
      MitRohangaben(
          {{"--art", "ART", "helmert (Maßstab frei) oder kongruent (m=1)", true},
           {"--standpunkt", "WAHL",
            "ein Standpunkt, dessen Nummer vergeben ist: orientierung (bekannt) oder neu (frei stationiert)"},
           {"--stapel-ausgabe", "DATEI", "Stapeldatei (*.sta); eine vorhandene wird fortgeschrieben", false,
            Dateirolle::Ausgabe}})};
}

}  // namespace tavorena
