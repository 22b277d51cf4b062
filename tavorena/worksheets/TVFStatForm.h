#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/records/FStat.h>
#include <tavorena/worksheets/Anschlussgitter.h>
#include <tavorena/worksheets/FStatMessdatei.h>
#include <tavorena/worksheets/FStatMitteln.h>
#include <tavorena/worksheets/FStatSchnur.h>
#include <tavorena/worksheets/Kleinpunktgitter.h>
#include <tavorena/worksheets/Messfeld.h>
#include <tavorena/worksheets/Rechenblatt.h>
#include <tavorena/worksheets/Stationsanzeige.h>

namespace tavorena {

class FStatMessempfänger;

/// Where the work on a station stands.
enum class FStatStatus {
  Start,               ///< empty, or one connection point
  NochNichtGerechnet,  ///< two rows or more, not computed
  Gerechnet,           ///< a free station that waits to be taken over
  AnschlussGerechnet,  ///< a known station with its orientation
  StpErzeugt,          ///< the station stands: polar rows
};

/// VR 19.50 Freie Stationierung: a station from measurements to known points, or the orientation of a known
/// one, and then its polar points. What is computed follows each tick and each change of the kind; a row that
/// is typed anew takes the result away.
class TVFStatForm final : public Rechenblatt {
 public:
  explicit TVFStatForm(const Blattart& BlattArt);
  ~TVFStatForm() override;

  void BeiFokus() override;

  /// @name What raw data, the instrument and the Schnurgerüst need
  /// @{
  [[nodiscard]] FStatStatus Status() const { return Stand; }
  [[nodiscard]] bool MitHöhen() const { return Höhen; }
  [[nodiscard]] std::string Standpunkt() const { return *StandPnr.Text; }
  [[nodiscard]] Wert Instrumentenhöhe() const;
  [[nodiscard]] double Reflektorhöhe() const { return Reflektor.Zahl(); }
  /// That of the next row [m]; nothing where no heights are carried.
  void ReflektorhöheSetzen(double Höhe);
  [[nodiscard]] bool StandpunktBekannt() const { return Bekannter.has_value(); }
  /// The station as it was computed; only from FStatStatus::Gerechnet on.
  [[nodiscard]] const Stationsergebnis& Ergebnis() const { return Station; }
  /// Whether a station number that the table holds makes it a known station: the surveyor is asked, or not.
  enum class Standpunktwahl { Fragen, Bekannt, Neu };
  /// Number, symbol and instrument height [m]; what is empty stays. Nothing once the station is taken over.
  /// @return false: the surveyor wants another number
  bool StandpunktSetzen(const std::string& Pnr, const std::string& Symbol, const Wert& Höhe,
                        Standpunktwahl Wahl = Standpunktwahl::Fragen);
  /// The kind of a free station; only before it is taken over.
  void ArtSetzen(bool Kongruent);
  /// Other rows in place of those that stand there; their points are known.
  void AnschlüsseSetzen(const std::vector<Stationsanschluß>& Neue);
  /// Computes the station from the rows. @return "", or why not
  [[nodiscard]] std::string StationBerechnen();
  /// Takes the computed station over: table, protocol and batch file. @return false with a reason: it stays
  [[nodiscard]] bool StandpunktÜbernehmen();
  /// Ends the block and empties the worksheet. @return false: there is something open, and it stays
  [[nodiscard]] bool NeueStation();
  /// Shows captions and controls as the state has them.
  void ZustandZeigen();
  Anschlussgitter& Anschlüsse() { return Bekannte; }
  Kleinpunktgitter& Kleinpunkte() { return Polare; }
  FStatMitteln& Doppelmessung() { return Mittel; }
  FStatSchnur& Schnurgerüst() { return Schnur; }
  /// @}

 protected:
  void BeiÖffnen() override;
  void BeiSchließen() override;
  [[nodiscard]] int StapelAnschluss() override;
  [[nodiscard]] int StapelZeile() override;
  [[nodiscard]] bool HatOffenes() const override;
  [[nodiscard]] bool OffenesSchreiben() override;
  void GrafikLöschen() override;
  void BeiTabelle() override;
  [[nodiscard]] bool Zurücknehmen() override;

 private:
  struct Standort {
    Lage Ort;         // [m]
    double Höhe = 0;  // [m]; 0: none
  };
  void KopfAnlegen();
  [[nodiscard]] Anschlussverhalten Anschlusskunde();
  [[nodiscard]] Kleinpunktverhalten Kleinpunktkunde();

  [[nodiscard]] bool StandpunktLesen();
  [[nodiscard]] bool NummerNehmen(const std::string& Pnr, Standpunktwahl Wahl);
  void Wechsel(bool NurHaken);
  void FStatArtWechseln();
  void Berechnen();
  void StationErmitteln();
  void AbwAnzWechseln();
  void Delete();
  [[nodiscard]] bool PunkteÜbernehmen();
  void Leeren();

  [[nodiscard]] bool Vorher() const { return Stand != FStatStatus::StpErzeugt; }
  [[nodiscard]] bool Gerechnet() const {
    return Stand == FStatStatus::Gerechnet || Stand == FStatStatus::AnschlussGerechnet;
  }
  [[nodiscard]] Stationsart Art() const;
  [[nodiscard]] Stationsaufgabe Aufgabe() const;
  [[nodiscard]] std::string Berechnentext() const;
  void Rücksetzen();
  void GrafikStandpunkt();
  [[nodiscard]] bool NummerPrüfen();
  [[nodiscard]] int StandpunktNehmen();
  void StandpunktZeigen();
  [[nodiscard]] int StandpunktSpeichern();
  [[nodiscard]] int StandpunktSchreiben();
  void PolarFortsetzen();
  void SchnurBeginnen();
  void SchnurVerlassen();
  [[nodiscard]] std::string BlockNehmen(const FStatEingabe& E);

  const bool Höhen;  // are carried, as the options had it at the opening
  std::string Grundtitel;
  FStatStatus Stand = FStatStatus::Start;
  bool Kongruent = false;
  std::optional<Standort> Bekannter;  // the known station
  std::string Gefragt;                // the number that was looked up last
  Stationsergebnis Station;
  Stationsaufgabe Gerechnete;  // what it was computed from
  bool MitAbw = true;          // the residuals are shown
  bool Verweigert = false;     // a replay stores nothing of its block
  Punktablage Ablage;          // of the station
  Aufzeichnung::Spur Wo;
  Markierung Bild;
  std::unique_ptr<FStatMessempfänger> Empfänger;

  Feld &StandPnr, &StandSym;
  Messfeld Instrument, Reflektor;
  Stationsanzeige Anzeige;
  Anschlussgitter Bekannte;
  Kleinpunktgitter Polare;
  Knopf &KnopfBerechnen, &KnopfArt, &KnopfZurück, &KnopfAbw, &KnopfDelete, &KnopfNeu;
  FStatMessdatei Datei;
  FStatMitteln Mittel;
  Knopf &KnopfSchnur, &KnopfTheo;
  FStatSchnur Schnur;
};

}  // namespace tavorena
