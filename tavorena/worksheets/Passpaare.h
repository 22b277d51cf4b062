#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/records/Transformation.h>

// The points that a transformation goes by: known in the old system, which is the table, and in a new one,
// which is a file.

namespace tavorena {

/// Most passpoints: a longer block of the batch file could not be replayed.
inline constexpr std::size_t PassGrenze = 9990;

/// A point known in both systems.
struct Passpaar {
  bool Ein = true;                ///< takes part in the fit
  std::string Pnr, NeuPnr;        ///< in the old and the new system
  Lage Alt, Neu;                  ///< [m]
  double VY = 0, VX = 0, WL = 0;  ///< residuals of the fit, new minus transformed [m]
};

/// Where the numbers of a list stand. They are looked at in the list, which must stay.
class Nummernverzeichnis {
 public:
  void Aufnehmen(std::string_view Pnr, int Stelle);
  /// Place of the first of that number, with a "." where it is typed with a ","; -1: none.
  [[nodiscard]] int Suche(std::string_view Pnr) const;
  /// The number stands more than once.
  [[nodiscard]] bool Mehrfach(std::string_view Pnr) const;

 private:
  struct Platz {
    int Stelle;
    bool Mehrfach;
  };
  std::unordered_map<std::string_view, Platz> Plätze;
};

/// The numbers of the table as it is now.
[[nodiscard]] Nummernverzeichnis Tabellenverzeichnis();

/// The points of the new system.
class NeuesSystem {
 public:
  NeuesSystem() = default;
  NeuesSystem(const NeuesSystem&) = delete;
  NeuesSystem& operator=(const NeuesSystem&) = delete;

  /// Reads them from a KOR file. @return 0; -1 with a message: no such file, another format, the open file
  /// itself, no points or too many; what was read before is forgotten
  [[nodiscard]] int Lesen(const std::string& Dateiname);

  void Leeren();
  [[nodiscard]] int Anzahl() const { return static_cast<int>(Listen.Pnr.size()); }
  [[nodiscard]] const Punktlisten& Punkte() const { return Listen; }
  [[nodiscard]] const Nummernverzeichnis& Nummern() const { return Verzeichnis; }
  [[nodiscard]] int Suche(std::string_view Pnr) const { return Verzeichnis.Suche(Pnr); }
  [[nodiscard]] Lage Ort(int Stelle) const;

 private:
  Punktlisten Listen;
  Nummernverzeichnis Verzeichnis;
};

/// A pair by its numbers.
/// @param[in] Zeile   of the point in the table; negative: it is not there
/// @param[in] NeuPnr  in the new system; empty: as in the table
/// @return "", or why there is none
[[nodiscard]] std::string PaarBilden(int Zeile, const std::string& Pnr, const std::string& NeuPnr,
                                     const NeuesSystem& N, Passpaar& P);

/// The pairs of a batch block, in its order. @return "", or why it can not be calculated
[[nodiscard]] std::string PaareAusSätzen(const std::vector<Passpunkteingabe>& Sätze, const NeuesSystem& N,
                                         std::vector<Passpaar>& Paare);

/// A point of the table in both systems; in the new one it bears the number of its pair, else its own.
[[nodiscard]] std::optional<Festpunkt> FestpunktSuchen(const std::string& Pnr,
                                                       const std::vector<Passpaar>& Paare,
                                                       const NeuesSystem& N);

/// What was found in both systems.
struct Passsuche {
  std::vector<Passpaar> Paare;
  int Mehrfach = 0;  ///< points left out: their number stands twice in a list
};

/// @{
/// Finds passpoints: by equal numbers, in table order; by position, a point of the new system that has
/// exactly one of the table nearer than Radius [m]. Points without finite coordinates are left out.
/// @return 0; -1 with a message: more than PassGrenze; -2: stopped
[[nodiscard]] int PaareGleicherNummer(const NeuesSystem& N, Passsuche& Gefunden);
[[nodiscard]] int PaareNachLage(const NeuesSystem& N, double Radius, Passsuche& Gefunden);
/// @}

}  // namespace tavorena
