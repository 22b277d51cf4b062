#pragma once

#include <string>
#include <vector>

#include <tavorena/core/Wert.h>

// The batch file (.sta): what to type in again. A sequence of blocks in the order of work, each holding
// the input of one calculation. Every record is appended as it is made; an empty StapeldateiName means no
// batch output. A write failure is shown as a run-time fault and the block is left unfinished.

namespace tavorena {

extern std::string StapeldateiName;

/// Value of a record: 7 integer places and 4 decimals.
std::string StapelZahl(const Wert& Zahl);

/// Opens a block: module head, stamp, coordinate file and, when they are asked for, plan name and number.
/// An open block is ended first. @return 0 or -1
int StapelKopf(const std::string& Titel);

/// StapelKopf with the records of a connection: numbers of start and end and the values on them.
int StapelKopfLinie(const std::string& Titel, const std::string& AnfPnr, double AnfWert,
                    const std::string& EndPnr, double EndWert);

/// One record behind the head: keyword with its blanks, point number and values.
int StapelPunktzeile(const std::string& Schlüssel, const std::string& Pnr,
                     const std::vector<Wert>& Werte = {});

/// One "NEUPUNKT" record; a missing symbol is written "-", no number at all as "0  -   -".
int StapelNeupunkt(const std::string& Pnr, const std::string& Symbol);

/// A line as it stands.
int StapelZeile(const std::string& Text);

/// Takes the record Nummer (0-based, counted behind the head) out of the open block: a row that the
/// surveyor corrected or deleted must not be replayed. @return 0 or -1
int StapelSatzEntfernen(int Nummer);

/// Ends the open block. MitZeilen: "E Ende", else "E  (Ende)". Nothing without an open block.
int StapelEnde(bool MitZeilen);

/// A worksheet has written a block head and not its end.
bool StapelBlockOffen();

/// Start values.
void StapelschreiberLeeren();

}  // namespace tavorena
