#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

/// A polar row as it is typed or read.
struct Kleinpunkteingabe {
  std::string Pnr;
  Stationsmessung M;
  std::string Symbol;
  std::string Linie;  ///< number of the point to which a line is drawn; "": none
};

/// What the polar rows ask of their worksheet.
struct Kleinpunktverhalten {
  std::function<double()> Reflektorhöhe;                         ///< of a new row [m]
  std::function<Stationspunkt(const Stationsmessung&)> Rechnen;  ///< the point of a row
  std::function<Lage()> Standpunkt;                              ///< where the rows are seen from
  std::function<void()> Hinaus;                                  ///< Return in the empty row
};

/// The polar points of a station as rows. A row is computed as it is typed; the button of the worksheet
/// stores and writes all that are not yet. A stored row that is typed anew or deleted is struck in the
/// protocol, its point taken back, and its record replaced or taken out of the batch file.
class Kleinpunktgitter {
  Eingabegitter Eingaben;

 public:
  static constexpr int Grenze = 10001;  ///< rows

  Kleinpunktgitter(Rechenblatt& Für, bool MitHöhen, Kleinpunktverhalten Wie);
  Kleinpunktgitter(const Kleinpunktgitter&) = delete;
  Kleinpunktgitter& operator=(const Kleinpunktgitter&) = delete;

  Gitter& Zellen;

  /// Other rows in place of those that stand there; what is stored stays stored.
  void Setzen(const std::vector<Kleinpunkteingabe>& Neue);
  /// The rows that can be computed, stored or not.
  [[nodiscard]] std::vector<Kleinpunkteingabe> Zeilen() const;
  /// Computes and shows all rows that are not stored: the station is another one.
  void AllesRechnen();
  /// A measurement into the current row, whose number stands there. @return 0; -1: without a number
  [[nodiscard]] int MessungNehmen(const Stationsmessung& M, const std::string& Symbol);
  /// Reads all rows that are typed. @return false: one can not be computed, it is the current one
  [[nodiscard]] bool Lesen();

  /// Stores and writes, in their order, the rows that are not yet; one that is refused is left out.
  /// @param[out] Gespeichert, Ausgelassen  how many
  /// @return 0; -1: a row can not be read, or was not written
  [[nodiscard]] int Übernehmen(int& Gespeichert, int& Ausgelassen);
  /// Takes what would be typed into the last row, and stores and writes it.
  /// @return 0; -1: it can not be computed or was not to be stored, the row is empty again; -2: not written
  [[nodiscard]] int Eintragen(const Kleinpunkteingabe& K);

  /// @name A row by its place among Zeilen()
  /// @{
  /// Puts other values there, as if they had been typed; a stored row is stored anew.
  /// @return 0; 1: they stand there, but are not stored any more; -1 with a reason: it stays
  [[nodiscard]] int Ändern(std::size_t n, const Kleinpunkteingabe& K);
  /// Takes it out. @return false with a reason: it stays
  [[nodiscard]] bool Entfernen(std::size_t n);
  /// @}
  /// A further row behind them. @return false with a reason: it can not be computed
  [[nodiscard]] bool Hinzufügen(const Kleinpunkteingabe& K);

  /// All rows go aside, stored or not, and Neue stand in their place.
  void BeiseiteLegen(const std::vector<Kleinpunkteingabe>& Neue);
  [[nodiscard]] bool HatBeiseite() const { return Beiseite.has_value(); }
  /// The rows that went aside stand there again. @return those that stood in their place
  std::vector<Kleinpunkteingabe> Zurückholen();

  [[nodiscard]] bool HatOffenes() const;
  /// A row is stored.
  [[nodiscard]] bool HatGespeichertes() const;
  /// Takes the current row out.
  void Delete();
  /// Removes the marks of the rows from the graphics view.
  void GrafikKleinpunktLöschen();

 private:
  [[nodiscard]] Gitterverhalten Verhalten();
  [[nodiscard]] bool ZeileRechnen(int z, Rechenzeile& Neu);
  [[nodiscard]] bool Berechnen(int z, Rechenzeile& Neu);
  [[nodiscard]] bool ZeileAbschließen(int z);
  [[nodiscard]] int Speichern(int z);
  [[nodiscard]] int Streichen(int z);
  [[nodiscard]] bool Herausnehmen(int z);
  [[nodiscard]] int Platz(std::size_t n) const;
  [[nodiscard]] Block Protokollieren(const Rechenzeile& Z, const std::string& Marke) const;
  [[nodiscard]] bool ZelleVerlassen();
  void TextGeändert();
  void Anhängen();
  void ZeileZeigen(int z);
  void ErgebnisseZeigen(int z, const Rechenzeile& Z);
  void Markieren(int z);
  [[nodiscard]] Rechenzeile& Reihe(int z) { return Reihen[static_cast<std::size_t>(z)]; }
  [[nodiscard]] const Rechenzeile& Reihe(int z) const { return Reihen[static_cast<std::size_t>(z)]; }

  Rechenblatt& Blatt;
  Kleinpunktverhalten Kunde;
  std::optional<std::vector<Rechenzeile>> Beiseite;
  std::vector<Rechenzeile> Reihen;  // as many as the grid has rows; a number stands where one is computed
};

}  // namespace tavorena
