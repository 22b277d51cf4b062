#pragma once

#include <string>
#include <vector>

#include <tavorena/calc/Nivellement.h>
#include <tavorena/rawdata/Hoehenliste.h>
#include <tavorena/records/Nivellement.h>

namespace tavorena {

/// A field book with what came out of it.
struct Nivrechnung {
  std::vector<NivellementZeile> Zeilen;
  NivellementErgebnis Werte;
  std::vector<NivellementPaar> Paare;
  std::vector<NivellementPunkt> Punkte;
  double s0 = 0;  ///< [mm/km]; only with pairs
};

/// Why a field book can not be computed.
struct Nivmangel {
  std::string Text;       ///< the reason; "": there is none
  int Zeile = 0;          ///< row at fault, from 0
  int Fehler = 0;         ///< NivellementFehler
  bool Unfertig = false;  ///< something is not read yet
};

/// Rows as the calculation takes them. @param[in] E  each known height counts in all rows of its number
[[nodiscard]] std::vector<NivellementZeile> NivellementZeilen(const Niveingabe& E);

/// In words what a NivellementFehler says.
[[nodiscard]] std::string NivellementFehlertext(int Fehler);

/// Computes a field book.
/// @param[out] R  empty where there is something wrong; with NivellementVorblickOffen all up to there
[[nodiscard]] Nivmangel NivRechnen(const Niveingabe& E, Nivrechnung& R);

/// As the protocol shows it.
[[nodiscard]] Protnivellement ProtnivVon(const Nivrechnung& R);

/// Its points as a list of heights: each once; remarks are those of its first row that has one.
/// @param[in] Zeilen  the rows from which R was computed
[[nodiscard]] std::vector<Höhenpunkt> NivHöhen(const std::vector<Nivzeile>& Zeilen, const Nivrechnung& R);

/// Adds those points of a list of heights that stand in the field book to its known heights.
void NivFesteNehmen(const std::vector<Höhenpunkt>& Liste, Niveingabe& E);

}  // namespace tavorena
