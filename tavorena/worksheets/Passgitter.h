#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tavorena/worksheets/Passung.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// The passpoints of a transformation as rows: ticked, typed, deleted and sorted. The last row stands empty
/// for the next pair.
class Passgitter {
  Beschriftung& Sortiertext;  // above the grid, and before it in the order of the keyboard
  Auswahl& Sortierung;
  Knopf& Löschknopf;

 public:
  /// @param[in] Neues, Fit  what the rows are looked up in, and what they show the residuals of; both stay
  /// @param[in] BeiWechsel  other pairs take part, or other coordinates: fit anew and call Zeigen
  /// @param[in] Hinaus      Return in the empty row
  Passgitter(Rechenblatt& Für, const char* Rahmen, const NeuesSystem& Neues, const Passung& Fit,
             std::function<void()> BeiWechsel, std::function<void()> Hinaus);
  Passgitter(const Passgitter&) = delete;
  Passgitter& operator=(const Passgitter&) = delete;

  std::vector<Passpaar> Paare;
  Gitter& Zellen;

  /// Other pairs in place of those that stand there.
  void Setzen(std::vector<Passpaar> Neue);
  /// Looks the points up in the table again. Those that are gone leave.
  void Nachsehen();
  /// All texts and ticks are new.
  void Zeigen();
  /// From now on nothing can be typed, ticked, deleted or sorted; until Öffnen.
  void Sperren();
  void Öffnen();

 private:
  [[nodiscard]] std::string Zelle(int z, int s) const;
  [[nodiscard]] bool TasteNehmen(Taste T);
  void GitterReturn();
  [[nodiscard]] bool ZeileLesen();
  [[nodiscard]] std::string ZeileNehmen(int z, std::string Pnr, const std::string& NeuPnr);
  void Markiert();
  void Delete();
  void Sortieren(int Spalte);
  [[nodiscard]] int Anzahl() const { return static_cast<int>(Paare.size()); }

  Rechenblatt& Blatt;
  const NeuesSystem& System;
  const Passung& Anpassung;
  std::function<void()> Wechsel, Ende;
  bool Gesperrt = false;
  int Sortiert = -1;  // by this column
  bool Abwärts = false;
};

}  // namespace tavorena
