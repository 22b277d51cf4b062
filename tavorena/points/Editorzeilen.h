#pragma once

#include <vector>

#include <tavorena/points/Ruecknahme.h>

namespace tavorena {

/// The points that the editor shows: all of the table, in its order, or those that were typed in this editor.
class Editorzeilen {
 public:
  explicit Editorzeilen(bool GanzeTabelle) : Ganz(GanzeTabelle) {}

  [[nodiscard]] int Anzahl() const { return Ganz ? KorAnzahl : static_cast<int>(Getippte.size()); }
  /// A point, until the next change.
  [[nodiscard]] KorSatz Satz(int i) const {
    return Ganz ? KorPunkt(i) : Getippte[static_cast<std::size_t>(i)].Satz();
  }
  /// Where it stands in the table.
  [[nodiscard]] int Tabellenzeile(int i) const;
  /// Place of the point of a table row, -1 if it is not shown.
  [[nodiscard]] int Platz(int Tabellenzeile) const;
  /// The place of a point, near the one it had: the same in all it holds, else by its number; -1: gone.
  [[nodiscard]] int Suchen(const Punktsatz& P, int Vorher) const;

  /// A point was typed; at its former place it stands elsewhere now or has other values.
  void Hinzu(const Punktsatz& P) { Getippte.push_back(P); }
  void Setzen(int i, const Punktsatz& P);
  /// Follows the table: what is gone there goes here, and of those that became one point the last one stays.
  void Auffrischen();

 private:
  bool Ganz;
  std::vector<Punktsatz> Getippte;
};

}  // namespace tavorena
