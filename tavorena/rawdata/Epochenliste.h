#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tavorena/rawdata/Gesamtdatei.h>

/// @file
/// The printed list of a settlement or deformation measurement, and the file of its parameters: line 1 a
/// title, 2 the standard deviation, 3 the permitted movement [mm], 4 the numbers of the reference points.
/// What stands behind two blanks is a comment.

namespace tavorena {

/// How the epochs of a file are compared.
struct Epochenparameter {
  std::string Titel;
  Epochengrenzen Grenzen;
  std::vector<std::string> Bezugspunkte;
};

/// What holds where there is no file.
[[nodiscard]] Epochenparameter EpochenparameterVorgabe(bool MitLage);
/// A file of these parameters, with its comments.
[[nodiscard]] std::string EpochenparameterText(const Epochenparameter& P);

/// Reads the text of a parameter file; an empty line leaves what P holds.
/// @param[out] Fehler  the line and what is wrong with it
/// @return 0; -1, P is then untouched
[[nodiscard]] int EpochenparameterAusText(std::string_view Text, Epochenparameter& P, std::string& Fehler);

/// Reads a parameter file; a missing one stands for the defaults. @return 0; -1 with a message
[[nodiscard]] int EpochenparameterLesen(const std::string& Name, bool MitLage, Epochenparameter& P);

/// The rows of the list, a block for each point, ahead of them one of what the comparison rests on. Measured
/// values have OptNachkommastellen decimals; the movements [mm] stand against the first epoch that holds the
/// value and the one before, each with its mark: "******>zul", "******" (above 3σd), "***" (above 2σd, with
/// an OptWarnstufe above 1).
/// @return 0; -1: it was stopped, and the status says so
[[nodiscard]] int Epochenzeilen(const Gesamtdatei& G, const Epochenparameter& P,
                                std::vector<std::vector<std::string>>& Zeilen);

/// Writes the list on pages of 50 lines, in place of a file that is there.
/// @param[in] Quelle  the file of the epochs, for the page head
/// @return 0; -1 with a message, or stopped: an old file is then as it was
[[nodiscard]] int EpochenlisteSchreiben(const std::string& Ziel, const std::string& Quelle,
                                        const Gesamtdatei& G, const Epochenparameter& P);

/// "a.ges" -> "a-ges.dru".
[[nodiscard]] std::string EpochenlisteName(const std::string& Quelle);

}  // namespace tavorena
