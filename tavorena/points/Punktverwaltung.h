#pragma once

#include <string>
#include <vector>

#include <tavorena/points/Ruecknahme.h>

// Deletion, new numbers and means of points. Each goes through the table's door as one deed of a store,
// writes its entry into the protocol, and leaves the table as it was where it fails. Coordinates in metres.

namespace tavorena {

/// Whether a point can bear that number. @return false with a message: it is empty or holds a blank
[[nodiscard]] bool NummerTaugt(const std::string& Pnr);

/// All rows of a point number. @return 0; -1 with a message: there is none
[[nodiscard]] int NummerZeilen(const std::string& Pnr, std::vector<int>& Zeilen);

/// The rows of a range of numbers (see KorBereichSuche).
/// @return 0; -1 with a message: upside down, or there is none
[[nodiscard]] int BereichZeilen(const std::string& Von, const std::string& Bis, std::vector<int>& Zeilen);

/// Whether a number can be given to a point: not empty, without blanks, free. @return false with a message
[[nodiscard]] bool NeueNummerFrei(const std::string& Pnr);

/// Deletes points, the others keep their order; entry VR 25.08.
/// @param[in] Zeilen  rising, each in the table
/// @return 0; -1: the protocol could not be written
[[nodiscard]] int PunkteLöschen(Rücknahme& R, const std::vector<int>& Zeilen);

/// Gives all rows of a number another one; entry VR 25.07.
/// @return 0; -1 with a message: no such point; the new number is empty, holds a blank, is the old one or
///         taken
[[nodiscard]] int NummerBerichtigen(Rücknahme& R, const std::string& Alt, const std::string& Neu);

/// As BereichBerichtigen for rows that were chosen.
/// @param[in] Zeilen  rising, each in the table
[[nodiscard]] int ReiheBerichtigen(Rücknahme& R, const std::vector<int>& Zeilen, const std::string& Start);

/// Gives the numbers of a range, in table order, the numbers Start, Start + 1 and so on, all at once: the old
/// and the new range may overlap. All rows of one number keep one number. Entry VR 25.07.
/// @return 0; -1 with a message: as BereichZeilen; Start is no number of digits; a point outside the range
/// has
///         one of the new numbers
[[nodiscard]] int BereichBerichtigen(Rücknahme& R, const std::string& Von, const std::string& Bis,
                                     const std::string& Start);

/// The mean of points: Rechts and Hoch of all, the height of those that have one, number and attributes of
/// the first, the first symbol. @param[in] Alte  at least one
[[nodiscard]] Punktsatz MittelVon(const std::vector<Punktsatz>& Alte);

/// Makes one point of each group of rows, see MittelVon. More than eight rows become one eight at a time. The
/// table is sorted. Entries VR 25.50. @return 0; -1: the protocol could not be written
[[nodiscard]] int DoppelteMitteln(Rücknahme& R, const std::vector<std::vector<int>>& Gruppen);

/// As DoppelteMitteln for rows with any numbers, as many as there are, in one mean.
/// @param[in] Zeilen  two or more, each once and in the table; the first gives number and attributes
[[nodiscard]] int ZeilenMitteln(Rücknahme& R, const std::vector<int>& Zeilen);

/// Gives rows a number; entry VR 25.07.
/// @return 0; -1 with a message: it is empty or holds a blank; none of these rows has it, but another one
[[nodiscard]] int NummerGeben(Rücknahme& R, std::vector<int> Zeilen, const std::string& Neu);

/// The numbers of rows for a question, separated by ", "; of more than 20 the first 20 and "...".
[[nodiscard]] std::string Nummernliste(const std::vector<int>& Zeilen);

/// Whether the mean replaces its points or stands beside them.
enum class Mittelart { Ersetzen, Schwerpunkt };

/// What becomes of points with different numbers.
struct Mittelauftrag {
  Mittelart Art = Mittelart::Ersetzen;
  std::string Neu;                ///< number of the mean; one of the old ones is free where it replaces them
  std::vector<std::string> Alte;  ///< 2 to 8, each once; a missing one is asked for
  double Hoehe = 0;               ///< of the mean; 0: none
  std::string Symbol = {};
};

/// Stores the mean of points; a number that another point has is asked about before anything is deleted.
/// Entry VR 25.50 with the letter L or S.
/// @return 0; -1 with a message; -2: that question was broken off, or the mean was not to be stored
[[nodiscard]] int PunkteMitteln(Rücknahme& R, const Mittelauftrag& M);

/// Shifts along the three axes [m].
struct Versatz {
  double Rechts = 0, Hoch = 0, Hoehe = 0;
};

/// Shifts all points, then exchanges Rechts and Hoch where that is asked for. No entry in the protocol.
/// @param[in] Name  of the deed
/// @return 0; -1 with a message: a shift is not finite
[[nodiscard]] int TabelleVerschieben(Rücknahme& R, const std::string& Name, const Versatz& d, bool Tauschen);

}  // namespace tavorena
