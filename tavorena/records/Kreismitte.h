#pragma once

#include <array>
#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 09.50 Kreismittelpunkt in the records: the centre of the circle through three points. A case, one block
// of the batch file.

namespace tavorena {

/// The judgement of the spread of the points: Voll for τ [gon] below 5 or above 195, Früh below 20 or above
/// 180, the latter above warning level 1 only.
[[nodiscard]] Warnung KreismitteWarnung(double Tau, int Warnstufe);

/// A point of the arc and its distance from the centre [m].
struct Protbogenpunkt {
  Protpunkt Punkt;
  double Radius = 0;
};

/// The row of the centre alone, with what stands behind "     PM": for a case that is taken back.
[[nodiscard]] Block KreismitteZeile(int Nachkomma, const Protpunkt& Mitte, double Tau,
                                    const std::string& Marke);

/// A case: three points of the arc, the text of its judgement, the centre with τ [gon].
[[nodiscard]] Block KreismitteBlock(int Nachkomma, const std::array<Protbogenpunkt, 3>& Bogen,
                                    const Protpunkt& Mitte, double Tau, int Warnstufe);

/// A case as it was typed.
struct Kreismitteeingabe {
  std::array<std::string, 3> Pnr;
  std::string NeuPnr, Symbol;
};
/// Its records.
[[nodiscard]] std::vector<std::string> StapelKreismittelpunkt(Kreismitteeingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseKreismittelpunkt(Kreismitteeingabe& E);

}  // namespace tavorena
