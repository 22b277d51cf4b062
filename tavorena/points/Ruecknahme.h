#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Punktblock.h>

// What every form that deletes, averages, renumbers or edits points keeps, to take it back.

namespace tavorena {

/// A row of the table by itself: the five fields and the attributes.
struct Punktsatz {
  std::string Pnr;
  double Rechts = 0, Hoch = 0, Hoehe = 0;
  std::string Symbol;
  KorInfoSatz Info = {};

  bool operator==(const Punktsatz&) const = default;
  /// As the operations of the table take it.
  [[nodiscard]] KorSatz Satz() const { return {Pnr, Rechts, Hoch, Hoehe, Symbol, &Info}; }
};

/// A copy of a row.
[[nodiscard]] Punktsatz PunktsatzVon(int Zeile);

/// Removes rows in one pass; the others keep their order, with symbols and attributes.
/// @param[in] Zeilen  rising, each in the table
void ZeilenLöschen(const std::vector<int>& Zeilen);

/// Puts rows in place of others, which are found by all they hold; those that are in both stay. The table is
/// then sorted.
/// @return 0; -1: one of Weg is not in the table, or there is no room; the table stays
[[nodiscard]] int ZeilenTauschen(const std::vector<Punktsatz>& Weg, const std::vector<Punktsatz>& Kommen);

/// Something that was done to the table.
struct Punkttat {
  std::string Name;                        ///< such as "Lösche 1001"
  std::vector<Punkteintrag> BeiRücknahme;  ///< what the protocol tells when it is taken back
};

/// The deeds of one form, the last of which can be taken back. While one is done it listens at the door of
/// the table; any number of stores may live beside each other.
class Rücknahme {
 public:
  /// Does something to the table. If Arbeit answers below 0 or throws, the table is as it was before, and
  /// nothing is kept; so it is if the table did not change.
  /// @param[in,out] Tat  may be filled by Arbeit
  /// @return what Arbeit answers
  int Ausführen(Punkttat& Tat, const std::function<int()>& Arbeit);

  /// Nothing can be taken back.
  [[nodiscard]] bool Leer() const { return Taten.empty(); }
  /// Name of the last deed; only if there is one.
  [[nodiscard]] const std::string& Name() const { return Taten.back().Tat.Name; }
  /// Row of the table where what the last deed changed stands again once it is taken back, if nothing else
  /// happened since; only if there is one.
  [[nodiscard]] int Zeile() const { return Taten.back().Von + std::max(-Taten.back().Weg, 0); }

  /// Takes the last deed back. If nothing else happened to the table since, it is as it was, order included;
  /// otherwise the rows that went come back in place of those that came, and the table is sorted.
  /// @return 0; -1 with a message if a row that came was changed since or the table has no room: the table
  ///         and the store stay
  int Zurück();

 private:
  struct Eintrag {
    Punkttat Tat;
    int Von = 0;                             // first row that differs
    std::vector<Punktsatz> Vorher, Nachher;  // the rows from there on that differ
    std::uint64_t StandVorher = 0, Stand = 0;
    int Weg = 0;  // of a single row that moved past others, which are not kept; negative: towards the first
  };
  static void Zusammenziehen(Eintrag& E);
  static void Zurückziehen(const Eintrag& E);

  std::vector<Eintrag> Taten;
};

}  // namespace tavorena
