#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <span>
#include <vector>

#include <tavorena/calc/Lage.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/ta/TA.h>

// What the methods of TA share. Not for other programs.

namespace tavorena::ta {

template <typename... Zahl>
bool Endlich(Zahl... Zahlen) {
  return (std::isfinite(Zahlen) && ...);
}

/// The first Anzahl entries of every list are there and finite.
template <typename... Liste>
bool ListenGut(std::int32_t Anzahl, const Liste&... Listen) {
  const auto Gut = [Anzahl](std::span<const double> L) {
    if (Anzahl < 0 || static_cast<std::size_t>(Anzahl) > L.size()) return false;
    for (const double Zahl : L.first(static_cast<std::size_t>(Anzahl))) {
      if (!std::isfinite(Zahl)) return false;
    }
    return true;
  };
  return (Gut(Listen) && ...);
}

/// A result that the caller may have left out.
template <typename Zahl>
void Ausgeben(Zahl* Ziel, Zahl Ergebnis) {
  if (Ziel != nullptr) *Ziel = Ergebnis;
}

/// Looks numbers up in their order. @return false at the first one that is missing
template <std::size_t N>
[[nodiscard]] bool Punkte(const std::array<const Wert*, N>& Nummern, std::array<Lage, N>& Orte) {
  for (std::size_t i = 0; i < N; ++i) {
    const int Zeile = KorSuche(*Nummern[i]);
    if (Zeile < 0) return false;
    Orte[i] = {KorPunkt(Zeile).Rechts, KorPunkt(Zeile).Hoch};
  }
  return true;
}

/// The first Anzahl numbers of a list, as parallel columns.
/// @return ok; Fehler_Allgemein for a count that the list does not hold; Fehler_PunktNichtVorhanden
[[nodiscard]] enmResult PunktListe(std::span<const Wert> Nummern, std::int32_t Anzahl,
                                   std::vector<double>& RW, std::vector<double>& HW);

}  // namespace tavorena::ta
