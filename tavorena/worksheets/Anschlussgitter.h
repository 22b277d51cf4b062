#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/rawdata/Stationsrechnung.h>
#include <tavorena/worksheets/Eingabegitter.h>

namespace tavorena {

/// What the rows of a station ask of their worksheet.
struct Anschlussverhalten {
  std::function<double()> Reflektorhöhe;       ///< of a new row [m]
  std::function<void(bool NurHaken)> Wechsel;  ///< other rows, or other ticks alone, take part
  std::function<void()> Hinaus;                ///< Return in the empty row
};

/// The connection points of a free station as rows, and beside them what the calculation left over. A row
/// counts as soon as it is complete and its point is known; without its tick it stays to be seen. The last
/// row stands empty for the next one.
class Anschlussgitter {
  Eingabegitter Eingaben;

 public:
  static constexpr int Grenze = 1001;  ///< rows

  Anschlussgitter(Rechenblatt& Für, bool MitHöhen, Anschlussverhalten Wie);
  Anschlussgitter(const Anschlussgitter&) = delete;
  Anschlussgitter& operator=(const Anschlussgitter&) = delete;

  Gitter& Zellen;
  Gitter& Abweichungen;

  /// The rows that count, with those that are ticked off.
  [[nodiscard]] std::vector<Stationsanschluß> Zeilen() const;
  /// How many of them are ticked.
  [[nodiscard]] int Anzahl() const;
  /// Place of the current row among them; the first one if it is none of them.
  [[nodiscard]] std::size_t Gewählte() const;
  /// Other rows in place of those that stand there; their points are known.
  void Setzen(const std::vector<Stationsanschluß>& Neue);
  /// A measurement into the current row, whose number stands there. @return 0; -1: without a number
  [[nodiscard]] int MessungNehmen(const Stationsmessung& M);
  /// Reads all rows that are typed. @return false: one is not complete, it is the current one
  [[nodiscard]] bool Lesen();
  /// Something is typed that does not count yet.
  [[nodiscard]] bool HatUnfertiges() const;
  /// Looks the points up again. Those that are gone keep their coordinates.
  void Nachsehen();
  /// Whether rows can be typed, ticked and deleted.
  void Sperren(bool An);
  /// Shows the residuals of Zeilen(); without a result they are empty.
  void AbweichungenFüllen(const Stationsergebnis* E);
  /// The residuals stand in place of the coordinates.
  void FStatAbwGitterAn(bool An);
  /// Takes the current row out.
  void Delete();

 private:
  struct Reihe {
    Stationsanschluß Punkt;
    bool Gilt = false;      ///< what is typed is what stands in Punkt
    Stationsanschluß Neue;  ///< the point of a number that is typed
  };
  [[nodiscard]] Gitterverhalten Verhalten();
  [[nodiscard]] bool ZeileNehmen(int z);
  [[nodiscard]] bool PunktSuchen(int z);
  [[nodiscard]] bool ZelleVerlassen();
  void TextGeändert();
  void Markiert();
  void Anhängen();
  void ZeileZeigen(int z);
  void PunktZeigen(int z, const Stationsanschluß& A);
  [[nodiscard]] Reihe& Von(int z) { return Reihen[static_cast<std::size_t>(z)]; }

  Rechenblatt& Blatt;
  Anschlussverhalten Meldungen;
  std::vector<Reihe> Reihen;  // as many as the grid has rows
  std::optional<int> Größte;  // row of the grid with the greatest WL
};

}  // namespace tavorena
