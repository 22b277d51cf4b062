#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/records/Block.h>
#include <tavorena/records/Stapelsatz.h>

// The batch file (.sta): what to type in again. A sequence of blocks in the order of work, each holding the
// input of one calculation; every record is appended as it is made.

namespace tavorena {

/// The batch file of the job, and what this program has written to it. Start values: {}.
struct Stapeldatei {
  std::string Name;                         ///< path; empty: no batch output
  std::shared_ptr<const Verbindung> Offen;  ///< whose block stands open at its end; null: none
  std::uintmax_t Ab = 0;                    ///< size of the file before the first of Stücke [bytes]
  std::vector<std::string> Stücke;  ///< what was appended since, piece by piece; "" was taken out again
  std::size_t Fremde = 0;           ///< so many of Stücke are out of reach: somebody else changed the file
  Dateistand Stand;                 ///< of the file after the last piece
};

extern Stapeldatei StapelDatei;

/// The batch block of one worksheet. While it is the last in the file, records are appended to it; after a
/// worksheet beside it has written, it is over and a new one begins with head and connection.
class Stapelblock {
 public:
  /// The connection that the next records belong to. @return 0; -1 if the block before could not be ended
  [[nodiscard]] int Beginnen(std::shared_ptr<const Verbindung> Neue);

  /// Records go below their connection without a new head.
  [[nodiscard]] bool Offen() const { return Über && StapelDatei.Offen == Über; }

  /// Appends a record, below its connection; the block of another worksheet is ended first. An empty record
  /// opens the block alone. Nothing happens without a file.
  /// @param[in,out] Griff  -1, or the place of a record that was taken out: the new one then stands there
  ///                       if that is still to be reached; out: what Entfernen takes, -1 if nothing was
  ///                       written
  /// A file that can not be written is asked for: again, or without it until another one is taken.
  /// @return 0; -1 if the file could not be written and the question was broken off
  [[nodiscard]] int Anfügen(const std::string& Satz, int& Griff);

  /// Writes the block as a whole, from its head to its end: a connection that holds all there is to record.
  /// @param[out] Griff  what Entfernen takes for the whole block, -1 if nothing was written
  /// @return as Anfügen
  [[nodiscard]] int Ganz(int& Griff);

  /// What was written last: nothing of anybody stands behind it in the file.
  [[nodiscard]] static bool AmEnde(int Griff);

  /// Takes a record out of the file, wherever it stands: a row that the surveyor corrected or deleted must
  /// not be calculated again. Its place is kept for the record that corrects it.
  /// @return 0, also without a file; -1 if it can not be written, or somebody else changed it: it is then
  /// left
  ///         alone
  [[nodiscard]] static int Entfernen(int Griff);

  /// Takes the open block out of the file again if no record stands in it. @return 0, also without a file;
  /// -1: it stays
  [[nodiscard]] int Verwerfen();

  /// Ends the block if it is still open. @return 0; -1 with a message
  [[nodiscard]] int Beenden();

 private:
  std::shared_ptr<const Verbindung> Über;
  int Kopf = -1;  // what Entfernen takes for the head; -1: none was written
};

/// Writes a comment between blocks; an open block is ended first. Nothing happens without a file.
/// @return 0; -1 as Stapelblock::Anfügen
[[nodiscard]] int StapelKommentar(const std::string& Text);

}  // namespace tavorena
