#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Punkt.h>
#include <tavorena/core/Verlust.h>

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

/// Decimals of a file that is written: whatever the option came to, coordinates are not rounded to metres by
/// it.
[[nodiscard]] int Speicherstellen();

/// The file stands as this program knows it, and the table holds all of it.
void KoordinatendateiStandMerken(const std::string& Dateiname);

/// A file was read in place of the table: its lines that are no points, and its points behind the last row,
/// are lost where the table is written.
void AusgelassenMerken(const std::string& Dateiname, int Zeilen, int Punkte);

/// Asks whether the table may be written to a file: what another program wrote in the meantime; and in one
/// question what the format would not give back (Verlust.h), and the lines and points of the file that was
/// read that are not in the table. The default is "Nein" each time.
/// @param[in] Anhängen  the file is extended: what it holds stays
/// @param[in] Satz      its coding
/// @param[in] Zeilen    the rows that are written; nullptr: all
/// @return false: it must not be written
[[nodiscard]] bool SpeichernErlaubt(const std::string& Dateiname, Punktformat Format, bool Anhängen,
                                    Zeichensatz Satz = Zeichensatz::Utf8,
                                    const std::vector<int>* Zeilen = nullptr);

/// The common writer behind saving and exports. It asks by SpeichernErlaubt, and tells the number of points
/// in the status help.
/// @return 0; -1, an old file is then as it was
int KoordinatenExportieren(const std::string& Dateiname, Dateiformat Format, bool Anhängen = false);

}  // namespace tavorena
