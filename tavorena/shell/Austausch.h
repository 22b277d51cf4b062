#pragma once

#include <string>

#include <tavorena/core/Formate.h>
#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Zeichensatz.h>
#include <tavorena/exchange/Freiformat.h>

// Files of any format of points, read into the table and written from it: what menu and console share.

namespace tavorena {

/// Reads a file. One that does not look like a list of points is asked about first; nothing is told but why
/// it can not be read, and that nothing of it was understood ("Format nicht erkannt").
/// @return 0; -1, where it was stopped too; -2 by the answer to that question. Except for 0 a table that was
///         to be extended is as it was, one that was to be replaced is empty.
[[nodiscard]] int PunkteEinlesen(const std::string& Dateiname, Lesemodus Modus, Punktformat Format,
                                 Lesebericht& Bericht);

/// Where the headings of a CSV file are not known, it is a list like any other: Format becomes the free one,
/// Frei what is known of its columns. Any other format, and a file that can not be read, stay as they are.
void CsvFormatKlären(const std::string& Dateiname, Punktformat& Format, Freiformat& Frei);

/// "1204 Punkte gelesen, 3 Zeilen übergangen (erste: Zeile 1)", and what else is to be told of a file.
[[nodiscard]] std::string LeseberichtText(const Lesebericht& B);

/// Writes the table to a file, which is replaced safely.
/// @param[in] Anhängen  it is extended, in the coding that it has if that can be told
/// @return 0; -1 with a message, an old file is then as it was
[[nodiscard]] int TabelleAusgeben(const std::string& Dateiname, Punktformat Format, Zeichensatz Satz,
                                  bool Anhängen = false);

}  // namespace tavorena
