#pragma once

#include <string>
#include <vector>

#include <tavorena/calc/Lage.h>
#include <tavorena/points/Ruecknahme.h>
#include <tavorena/records/Aufzeichnung.h>
#include <tavorena/worksheets/TVFormularmodul.h>

namespace tavorena {

/// A computed point on its way into the table, and what that did there: enough to take it back.
class Punktablage {
 public:
  /// Stores the point (see NeupunktEintragen); Notiz tells what became of it.
  /// A number that is taken leads to a question, and perhaps to the entry of a mean: the head that Akten has
  /// begun stands above it.
  /// @param[in,out] Pnr, Ort  afterwards what the records show
  /// @param[in] Hoehe         [m]; not given: none
  /// @return 0; -1: the surveyor broke off, nothing was stored
  [[nodiscard]] int Eintragen(Aufzeichnung& Akten, std::string& Pnr, Lage& Ort, const Wert& Hoehe,
                              const std::string& Symbol);

  /// The lines below the row of the point.
  [[nodiscard]] std::vector<std::string> Notizzeilen() const;

  /// Takes it back where the rows are as they were left. @return 0, also if nothing was stored; -1: they were
  /// changed since, the table stays
  [[nodiscard]] int Zurück();

 private:
  Punktnotiz Getan;
  std::vector<Punktsatz> Vorher, Nachher;  // rows that went, and that came in their place
};

}  // namespace tavorena
