#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// What stands in a column of rows. All but results and marks are typed. A Vorgabe is a result until its row
/// is ticked (Fest); from then on it is a measure, the last one, and the results begin with it.
enum class Zellart { Nummer, Ergebnis, Maß, Wort, Symbol, Marke, Fest, Vorgabe };

/// A column of rows.
struct Zeilenspalte {
  const char* Titel;
  int Zeichen;
  Zellart Art = Zellart::Ergebnis;
  bool Sichtbar = true;
  /// Of a word: brings it into its normal form. @return false with a reason: it can not be read
  bool (*Wortform)(std::string& Text) = nullptr;
  /// Of a measure; of a result, where it does not go by the settings. -1: 4 without a last 0, or the settings
  int Dezimalen = -1;
};

/// What is typed in a row.
struct Zeileneingabe {
  std::string Pnr;           ///< "" while the row is empty or its number is not looked up
  std::vector<double> Maße;  ///< measured values, in the order of their columns; not a number: none is typed
  std::string Symbol;
  std::string Wort = {};  ///< of the one column that takes more than a number
  bool operator==(const Zeileneingabe&) const = default;
};

/// What the owner of the rows does at their keys.
struct Gitterverhalten {
  /// Return in the last cell that the results depend on, if others follow. @return false: the cell stays
  std::function<bool(int Zeile)> Rechnen;
  /// Return in the last cell of a row. @return false: the row stays
  std::function<bool(int Zeile)> Abschließen;
  /// Shows again what a row holds: Escape.
  std::function<void(int Zeile)> Zeigen;
  /// The row behind the last one is begun.
  std::function<void()> Anhängen;
  /// Return in the last row while that is empty.
  std::function<void()> Hinaus;
};

/// Where a grid stands.
struct Gitterort {
  std::string Name;  ///< of the control; "": that of a worksheet with one grid
  Platz Ort = {};
  std::string Rahmen = "Zeilen";
};

/// A grid of rows that are typed: its cells, their reading and the keys. Return leads from typed cell to
/// typed cell and from row to row, Up and Down through the rows, Escape shows again what a row holds.
class Eingabegitter {
 public:
  Eingabegitter(Rechenblatt& Für, const std::vector<Zeilenspalte>& Spalten, Gitterverhalten Wie,
                const Gitterort& Wo = {});
  Eingabegitter(const Eingabegitter&) = delete;
  Eingabegitter& operator=(const Eingabegitter&) = delete;

  Gitter& Zellen;
  bool LeerIstNull = true;  ///< a measure that is left empty becomes 0

  /// Brings what was typed into its normal form. @return false with a reason: it can not be read
  [[nodiscard]] bool ZelleLesen(int z, int s);
  /// What is typed in the row, as it stands.
  [[nodiscard]] Zeileneingabe Eingabe(int z) const;
  /// Reads all its cells. @return false: one of them can not be read, it is the current one
  [[nodiscard]] bool EingabeLesen(int z, Zeileneingabe& E);
  void EingabeZeigen(int z, const Zeileneingabe& E);
  /// Column by column; those that are missing become empty.
  void ErgebnisseZeigen(int z, const std::vector<std::string>& Texte);

  /// A number, a measure or a word is typed; a symbol alone does not count.
  [[nodiscard]] bool HatEingabe(int z) const;
  /// Nothing is missing that the results depend on.
  [[nodiscard]] bool Vollständig(int z) const;
  /// A new last row, which takes the symbol of the row above.
  void Anhängen();
  /// A row that is not typed takes the symbol of the row above.
  void SymbolÜbernehmen(int z);

  /// The last column that the results depend on.
  [[nodiscard]] int Rechenspalte() const { return LetzteRechenspalte; }
  /// The first column that is typed.
  [[nodiscard]] int ErsteSpalte() const;
  [[nodiscard]] int Spalten() const { return static_cast<int>(Arten.size()); }
  [[nodiscard]] Zellart Art(int s) const { return Arten[static_cast<std::size_t>(s)]; }
  [[nodiscard]] bool Getippt(int s) const { return Art(s) != Zellart::Ergebnis && Art(s) != Zellart::Marke; }
  /// The first column of a kind; -1: there is none.
  [[nodiscard]] int SpalteVon(Zellart A) const;
  /// The cell shows a result: that of a Vorgabe, until its row is ticked.
  [[nodiscard]] bool ZeigtErgebnis(int z, int s) const;
  /// A measure as its column shows it; not a number: "".
  [[nodiscard]] std::string Maßtext(int s, double Zahl) const;
  /// A result [m] as its column shows it; not a number: "".
  [[nodiscard]] std::string Ergebnistext(int s, double Zahl) const;

 private:
  void GitterReturn();
  [[nodiscard]] bool TasteNehmen(Taste T);

  Rechenblatt& Blatt;
  Gitterverhalten Verhalten;
  std::vector<Zellart> Arten;  // of the columns
  std::vector<int> Stellen;    // their decimals, or -1
  bool (*Wortform)(std::string&) = nullptr;
  int LetzteRechenspalte = 0;
};

}  // namespace tavorena
