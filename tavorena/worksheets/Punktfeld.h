#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include <tavorena/calc/Lage.h>
#include <tavorena/records/Spalten.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// A known point in the head of a worksheet: its number is typed, the rest is looked up in the table, and
/// asked for when it is missing.
class Punktfeld {
 public:
  /// @param[in] Welcher  middle of its control names, "Anf" for "LinelAnfPnr"
  /// @param[in] Nach     end of them, "1" for "Kmitt_Pnr1"
  Punktfeld(Rechenblatt& Blatt, const std::string& Welcher, const char* Label, const char* Rahmen, int Zeile,
            const std::string& Nach = "");
  Punktfeld(const Punktfeld&) = delete;
  Punktfeld& operator=(const Punktfeld&) = delete;

  Feld& Pnr;
  std::function<void()> BeiWechsel;  ///< another point, or none, was set; Vorher() tells the one before

  /// Looks the number in the field up, unless it is the one that is set; an empty field sets no point.
  /// @return 0; -1: not found and not given, the text stays
  [[nodiscard]] int Setzen();
  /// The same, also when the number stayed and the table has changed since. @return false: there is no point
  [[nodiscard]] bool Auffrischen();
  /// Takes the number of a batch block. @return 0; -1 with a message: there is no point
  [[nodiscard]] int AusStapel(const std::string& Nummer);
  /// Looks the point up again if the table has changed since; a number that is gone keeps its coordinates.
  /// @return true: it lies elsewhere now
  bool Nachsehen();
  /// Takes the point that is set in another field, and leaves that one empty.
  void Übernehmen(Punktfeld& Von);
  /// Takes the point out of the results; the number typed stays.
  void Leeren();

  [[nodiscard]] bool Gesetzt() const { return !Gesucht.empty(); }
  [[nodiscard]] const std::string& Nummer() const { return Gesucht; }
  [[nodiscard]] const std::string& Vorher() const { return Alter; }
  [[nodiscard]] Lage Ort() const { return Punkt; }
  /// [m]; nothing where no point is set.
  [[nodiscard]] std::optional<Lage> OrtWenn() const {
    return Gesetzt() ? std::optional(Punkt) : std::nullopt;
  }
  [[nodiscard]] double Hoehe() const { return Höhe; }  ///< [m]; 0: none
  [[nodiscard]] const std::string& Symbol() const { return *Sym.Text; }
  [[nodiscard]] Protpunkt AlsProtpunkt() const { return {Punkt.RW, Punkt.HW, Gesucht}; }

 private:
  void Nehmen(int Zeile);
  void Zeigen();

  Feld &Rechts, &Hoch, &H_he, &Sym;
  std::string Gesucht;      // the number that was looked up; "" none
  std::string Alter;        // the one that was set before
  Lage Punkt;               // [m]
  double Höhe = 0;          // [m]
  std::uint64_t Stand = 0;  // of the table when it was found there
};

/// Headings of the columns in which the points stand.
void PunktfeldKopf(Rechenblatt& Blatt, const char* Rahmen);

}  // namespace tavorena
