#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tavorena/forms/Formular.h>
#include <tavorena/points/Ruecknahme.h>

// Points of the table in the forms that work on them.

namespace tavorena {

/// Text of a coordinate [m] in a field: OptNachkommastellen decimals, no blanks.
[[nodiscard]] std::string Koordinatentext(double Zahl);
/// The same of a height; "" for 0, which is none.
[[nodiscard]] std::string Hoehentext(double Zahl);

/// A point in a row of fields: the number is typed, the rest is shown.
struct Punktzeile {
  /// @param[in] Name   what its control names begin with, "AlterPunkt" for "AlterPunktPnr(0)"
  /// @param[in] Index  what they end with, "(0)"
  Punktzeile(Formular& Form, const std::string& Name, const std::string& Index, Platz Ort,
             const std::string& Rahmen, const std::string& Symbolname = "Sym");

  Feld &Pnr, &Rechts, &Hoch, &Hoehe, &Sym;

  void Zeigen(const Punktsatz& P);
  void Leeren();
  void SichtbarSetzen(bool An);
  /// Their room stays while they are not visible.
  void PlatzHalten();
};

/// Headings above such rows, from this place on.
void PunktzeileKopf(Formular& Form, Platz Ort, const std::string& Rahmen);

/// Columns of a list in which points are chosen, the mark in front.
[[nodiscard]] std::vector<Gitterspalte> Punktwahlspalten();

/// Rows of the table that were gathered for something, found again by all they hold when the table changed.
class Punktsammlung {
 public:
  struct Punkt {
    int Zeile;  ///< in the table
    Punktsatz Satz;
  };

  /// Adds the rows that are not there yet.
  void Hinzu(const std::vector<int>& Zeilen);
  void Leeren() { Gesammelt.clear(); }
  [[nodiscard]] const std::vector<Punkt>& Punkte() const { return Gesammelt; }
  /// Follows the table. @return places, rising, of the points that are no longer there as they were: they
  /// went out
  std::vector<std::size_t> Nachsehen();

 private:
  std::vector<Punkt> Gesammelt;
  std::uint64_t Stand = 0;  // of the table that the rows belong to
};

}  // namespace tavorena
