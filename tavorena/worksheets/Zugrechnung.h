#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/calc/Polygon.h>
#include <tavorena/graphics/Markierung.h>
#include <tavorena/records/Zug.h>

// What was typed of a traverse, on its way into the calculation and into the records.

namespace tavorena {

/// Where the known points lie [m]; those that are not there, or not looked at, are missing.
struct Zugpunkte {
  std::optional<Lage> AnfZiel, Anf, End, EndZiel;
};

/// The places of a traverse that are typed.
enum class Zugstelle { AnfZiel, Anf, AnfWinkel, AnfStrecke, Zeilen, End, EndWinkel, EndZiel };

/// Why a traverse can not be computed.
struct Zugmangel {
  std::string Text;  ///< "": it can
  Zugstelle Wo = Zugstelle::Anf;
  bool Unfertig = false;       ///< something is not typed yet
  int Zeile = -1, Spalte = 0;  ///< at Zugstelle::Zeilen: row, and number (0), angle (1) or distance (2)
};

/// A traverse as it was computed.
struct Zugrechnung {
  PolygonErgebnis Werte;    ///< without sides: there are none, the traverse is free or not complete
  std::vector<Lage> Kette;  ///< the new points; of a traverse that is not complete those that are known [m]
};

/// Takes out what belongs to a direction connection that is off; that at the end needs the one at the start.
void ZugBereinigen(Zugeingabe& E, Zugpunkte& P);

/// The chain needs no end point: a free traverse with a direction at its start alone.
[[nodiscard]] bool ZugMitFreiemEnde(const Zugeingabe& E, const Zugpunkte& P);

/// Checks and computes a traverse.
/// @param[in] E  angles [gon] and distances [m]; not a number: not typed
/// @param[out] R  as far as it goes
[[nodiscard]] Zugmangel ZugRechnen(const Zugeingabe& E, const Zugpunkte& P, Zugrechnung& R);

/// A result that stands beside the rows.
struct Zugwert {
  Wert Zahl;          ///< [m]; not given: none
  bool Gon = false;   ///< it is an angle [gon]
  bool Über = false;  ///< it passes its tolerance
};
/// S, sum of the sides, WY, WX, and the misclosures FW, FL, FQ, each with its tolerance behind it.
[[nodiscard]] std::array<Zugwert, 10> ZugWerte(const Zugeingabe& E, const Zugrechnung& R);

/// A traverse that was computed, for the protocol.
[[nodiscard]] Protzug ProtzugVon(const Zugeingabe& E, const Zugpunkte& P, const Zugrechnung& R);

/// Its records; a last angle and distance that nothing needs stand as 0 where they are not typed.
[[nodiscard]] std::vector<std::string> ZugSätze(Zugeingabe E);

/// Marks the traverse in the graphics view: known points as discs, the chain blue, or red with its numbers
/// when it was written.
void ZugZeichnen(const Zugeingabe& E, const Zugpunkte& P, const Zugrechnung& R, bool Geschrieben,
                 Markierung& Bild);

}  // namespace tavorena
