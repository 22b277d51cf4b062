#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Punkt.h>

// The coordinate file of the job: what was seen when it was read, and what would be lost by writing over it.

namespace tavorena {

/// Reads KoordinatendateiName in Koordinatendateiformat in place of the table. A file that does not look like
/// a coordinate file is asked about first; lines that are no points are told in the status help.
/// @param[in] Fragen  false: it is read whatever it looks like
/// @return 0; -1 failed, with a message; -2 by the answer to that question. Except for 0 the name is empty
///         then.
[[nodiscard]] int KoordinatendateiLesen(bool Fragen = true);

/// Asks about a file that does not look like one of points: most of its lines are something else, or it is no
/// text. @return whether it may be read
[[nodiscard]] bool DarfGelesenWerden(const std::string& Dateiname, const Dateibefund& B);

/// Reads points of another file into the table, with the same question. What is wrong with the file is told,
/// the table is then as it was.
void KoordinatenHinzulesen(const std::string& Dateiname, Lesemodus Modus, Dateiformat Format,
                           const std::function<bool(std::string_view)>& Nimmt = {});

/// The file stands as this program knows it, and the table holds all of it.
void KoordinatendateiStandMerken(const std::string& Dateiname);

/// Asks about each thing that writing the table to a file would lose: what another program wrote in the
/// meantime; lines and points of the file that are not in the table; point numbers that LT4 does not keep.
/// The default is "Nein" each time.
/// @param[in] Anhängen  the file is extended: what it holds stays
/// @return false: it must not be written
[[nodiscard]] bool SpeichernErlaubt(const std::string& Dateiname, Dateiformat Format, bool Anhängen);

/// The common writer behind saving and exports. It asks by SpeichernErlaubt, and tells the number of points
/// in the status help.
/// @return 0; -1, an old file is then as it was
int KoordinatenExportieren(const std::string& Dateiname, Dateiformat Format, bool Anhängen = false);

}  // namespace tavorena
