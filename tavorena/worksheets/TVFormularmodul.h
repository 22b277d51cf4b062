#pragma once

#include <string>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Wert.h>

// What the worksheets share besides their frame: the texts of their fields and the way
// of a computed point into the table.

namespace tavorena {

/// Text of a coordinate or a computed length in a field: OptNachkommastellen decimals, no blanks.
std::string Längentext(const Wert& Zahl);

/// Width of a field of such texts with so many integer places, sign and point included [characters].
int Längenbreite(int Vorkomma);

/// Decimals of a measured value in the batch file.
inline constexpr int Messdezimalen = 4;

/// A measured value to 4 decimals, which is what the batch file keeps.
double VierStellen(double Zahl);

/// Text of a measured value in a field. It is taken to 4 decimals, or those of its kind: the precision in
/// which the batch file keeps it, so that a replay computes with the same value; a last decimal of 0 is not
/// shown with fewer decimals set.
std::string Messwerttext(double Zahl, int Dezimalen = Messdezimalen);

/// Reads a measured value that was typed and brings the text into its normal form.
/// @return false: the text is no number; Text and Zahl are then untouched
bool MesswertLesen(std::string& Text, double& Zahl, int Dezimalen = Messdezimalen);

/// The same for a value that is to be recorded: what its record can not hold is refused as well.
/// @return false with a reason in the status help
bool MesswertPrüfen(std::string& Text, double& Zahl, int Dezimalen = Messdezimalen);

/// A point number or a symbol that is to be recorded must be one word, and not "-", which stands for none.
/// @return false with a reason in the status help
bool WortPrüfen(const std::string& Text);

/// What NeupunktEintragen has to tell the protocol.
struct Punktnotiz {
  NeupunktCode Code = NeupunktCode::Neu;
  std::string Nummer;  ///< AlterNeunum: new number of the old point; NeuerNeunum: number of the new point
  double DeltaRechts = 0, DeltaHoch = 0;  ///< new minus old [m]
  double Rechts = 0, Hoch = 0;  ///< what the records show: the mean, or those of an old point that stays
};

/// Stores the point of a worksheet. A point that is there already with the same coordinates (rounded to
/// OptNachkommaSpeichern decimals, and the new height missing or equal) is left as it is, without a
/// question and without a note.
/// @param[in,out] Pnr  the final number
/// @return row of the point in the table; -1 if the surveyor broke off
int NeupunktEintragen(Wert& Pnr, double Rechts, double Hoch, const Wert& Hoehe, const std::string& Symbol,
                      const KorInfoSatz* Info, Punktnotiz& Notiz);

}  // namespace tavorena
