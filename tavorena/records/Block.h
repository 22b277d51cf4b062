#pragma once

#include <string>
#include <vector>

// What a calculation has to record, as values: lines for the protocol, records for the batch file.

namespace tavorena {

/// Plan name and calculation number, as page heads and batch blocks show them.
struct Plan {
  std::string Riss, BerNr;
  bool operator==(const Plan&) const = default;
};

/// The lines of one entry of the protocol.
struct Block {
  std::vector<std::string> Zeilen;
  int Marken = 0;         ///< tolerance marks in them
  int NeueSeiteVor = -1;  ///< line ahead of which a new page begins; -1: none
};

/// The lines of a block whose numbers were written with that many decimals. With more than 5 the columns do
/// not hold: only the line "      #Fehler: Zu viele Nachkommastellen#" is left.
[[nodiscard]] Block Zahlenblock(int Nachkomma, std::vector<std::string> Zeilen, int Marken = 0);

/// What has to stand above the rows of a worksheet, in the protocol and in the batch file. A connection that
/// was opened is one object and never changes: where a record remembers the same object, nothing else was
/// written in between.
struct Verbindung {
  std::string Titel;  ///< of the kind, such as "VR 24.40 Linienelemente"
  Plan Riß;
  bool HoehenRechnen = false;      ///< heights are carried; for the table head of polar points
  std::string SollDatei;           ///< file compared against; for the table head of comparisons
  Block Zeilen;                    ///< of the connection, in the protocol
  std::vector<std::string> Sätze;  ///< of the connection, in the batch file
  bool EndeMitZeilen = true;       ///< its batch block ends with "E Ende", else with "E  (Ende)"
};

}  // namespace tavorena
