#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/records/Stapelsatz.h>

// Replay of a batch file: block by block the worksheet of the kind is shown, which fills itself from the
// records. A replay never writes to the batch file.

namespace tavorena {

/// What came of a replay.
struct StapelBilanz {
  std::string Datei;
  int Blöcke = 0;                         ///< blocks that a worksheet took
  int Zeilen = 0;                         ///< rows that were calculated
  int Marken = 0;                         ///< tolerance marks of them
  std::vector<std::string> Übergangen;    ///< Kennungen that no worksheet takes
  std::vector<std::string> OhneErgebnis;  ///< rows and cases that were left out: where, and why
  std::vector<std::string> OhneEnde;      ///< blocks without an end record: where they break off
  bool Abgebrochen = false;               ///< stopped, or ended by an error
  bool Fehler = false;                    ///< not all of it could be replayed
};

/// The worksheet that a replay shows.
struct Nachlaufblatt {
  std::function<void()> Schließen;  ///< the next block is shown in its place
  std::function<void()> Anhalten;   ///< the replay was stopped, perhaps while the worksheet holds
  std::function<void()> Stand;      ///< StapelStand has another text
};

/// The running replay. Start values: {}.
struct Nachlauf {
  std::vector<std::string> Zeilen;      ///< the whole file, at most 10001 lines
  int Zeiger = 0;                       ///< next line to read
  int Zeilennummer = 0;                 ///< lines used in this replay, for messages
  int Kopfzeile = 0;                    ///< the one of them with the head of the block that runs
  bool Aktiv = false;                   ///< a replay runs
  bool Ablauf = false;                  ///< the worksheet has taken its block head
  std::string Art;                      ///< title of the block that runs
  int Block = 0, Blöcke = 0;            ///< its place among all blocks of the file, from 1
  bool Halten = true;                   ///< each worksheet shows its connection and waits
  bool Zerrissen = false;               ///< the block that runs broke off at the head of the next one
  std::optional<Konfliktwort> FürAlle;  ///< answer to all taken numbers that come
  StapelBilanz Bilanz;
  Nachlaufblatt Blatt;                        ///< stays when the replay has ended, to be read
  bool ImVerteiler = false, Nochmal = false;  ///< StapelWeiter runs; it was called again meanwhile
  bool RechnetZeilen = false;                 ///< a worksheet takes the rows of its block

  [[nodiscard]] int Anzahl() const { return static_cast<int>(Zeilen.size()); }  ///< number of lines
  /// It runs, or its last step is not over: no other replay may begin.
  [[nodiscard]] bool Läuft() const { return Aktiv || ImVerteiler || RechnetZeilen; }
};
extern Nachlauf Stapel;

/// What a replay needs from above.
struct Nachlaufhaken {
  /// What shows the worksheet that takes blocks of a Kennung (upper case, "3D" before it where that stands in
  /// place of "VR"); empty if there is none.
  std::function<std::function<void()>(const std::string& Kennung)> BlattFür;
  /// A replay begins a block (its title), or has ended (empty title).
  std::function<void(const std::string& Titel)> Schritt;
};
extern Nachlaufhaken StapelHaken;

/// Reads the file and runs the first block. An empty name does nothing.
void StapelStarten(const std::string& Dateiname);

/// Finds the next module head and shows its worksheet, in place of the one before; ends the replay at the end
/// of the file. Called by a worksheet that has finished its block; a call from inside the dispatcher is done
/// when that returns.
void StapelWeiter();

/// The stop button: the replay ends after the running row.
void StapelAnhalten();

/// @{
/// The row that was read last, or a block that is one case, has no result: it is left out, named in the
/// status help, and again when the replay, which goes on, has ended.
void StapelZeileAuslassen(const std::string& Grund);
void StapelFallAuslassen(const std::string& Grund);
/// @}

/// Where the replay is, or how it ended: "Block 3 von 11, VR 24.40 Linienelemente, Zeile 57".
[[nodiscard]] std::string StapelStand();

/// What did not go as recorded, a line each: rows and cases without a result, blocks without an end, blocks
/// passed over.
[[nodiscard]] std::vector<std::string> StapelBericht();

/// A failure of the replay: box with file and line, then the replay is over.
void StapelFehlerMeldung(const std::string& Text);

// ---- what readers are made of; all give 0 a record was read, -1 error or end of the file (already told), -2
// end of block

/// The next module head. Stapel.Art becomes the title behind the "M".
/// @param[out] Kennung  upper case
/// @return 0 "VR", 1 "3D", -1 end of the file or faulty head, -2 a lone "E"
[[nodiscard]] int StapelLeseKopf(std::string& Kennung);

/// Takes the "RISS" and "BERNR" lines that come next, if any. @return 0; -1 at the end of the file
[[nodiscard]] int StapelLeseRisszeilen();

/// A line of the file, as the readers of the kinds take it.
struct Stapelzeile {
  std::string Schlüssel;  ///< its first word in upper case
  std::string_view Rest, Zeile;
};

/// The next record that is no comment. @return 0; -1 at the end of the file, which is told; -2
[[nodiscard]] int StapelNächsterSatz(Stapelzeile& Z);

/// Takes plan name or calculation number. @return false: the record is another one
[[nodiscard]] bool StapelRissNehmen(const Stapelzeile& Z);

/// A record that does not belong here: box with the line, then the replay is over; or, where it is the head
/// of the next block, goes on with that. @return -1
[[nodiscard]] int StapelAblehnen(const Stapelzeile& Z);

}  // namespace tavorena
