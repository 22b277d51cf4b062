#pragma once

#include <functional>
#include <string>
#include <vector>

// Replay of a batch file: block by block the worksheet of the kind is shown, which fills itself from the
// records. A replay never writes to the batch file.

namespace tavorena {

extern std::vector<std::string> StapelZeilen;  ///< the whole file, at most 10001 lines
extern int StapelAnzahl;                       ///< number of lines read
extern int StapelZeiger;                       ///< next line to read
extern int StapelZeilennummer;                 ///< lines used in this replay, for messages
extern bool StapelAktiv;                       ///< a replay runs
extern bool StapelAblauf;                      ///< the worksheet has taken its block head

/// What came of a replay.
struct StapelBilanz {
  std::string Datei;
  int Blöcke = 0;                       ///< blocks that a worksheet took
  int Zeilen = 0;                       ///< rows that were calculated
  std::vector<std::string> Übergangen;  ///< Kennungen that no worksheet takes
  bool Fehler = false;                  ///< the replay ended with an error
};
extern StapelBilanz Stapellauf;

/// Tells the dispatcher which worksheet takes a block; Kennungen in upper case.
void StapelBlattAnmelden(const std::vector<std::string>& Kennungen, std::function<void()> Zeigen);

/// Called when a replay begins a block (its title) and when it has ended (empty title).
extern std::function<void(const std::string& Titel)> StapelSchritt;

/// Start values; the worksheets stay known.
void StapelleserLeeren();

/// Reads the file and runs the first block. An empty name does nothing.
void StapelStarten(const std::string& Dateiname);

/// Finds the next module head and shows its worksheet; ends the replay at the end of the file. Called by a
/// worksheet that has finished its block; a call from inside the dispatcher is done when that returns.
void StapelWeiter();

/// The stop button: the replay ends after the running row.
void StapelAnhalten();

/// A failure of the replay: box with file and line, then the replay is over.
void StapelFehlerMeldung(const std::string& Text);

// ---- readers; all give 0 a record was read, -1 error or end of the file (already told), -2 end of block

/// The next module head. ProtArt becomes the title behind the "M".
/// @param[out] Kennung  upper case
/// @return 0 "VR", 1 "3D", -1 end of the file or faulty head, -2 a lone "E"
int StapelLeseKopf(std::string& Kennung);

/// The "PAN" and "PEN" records of a connection; takes plan name and calculation number on the way.
int StapelLesenPnrMitWerte(std::string& AnfPnr, double& AnfWert, std::string& EndPnr, double& EndWert);

/// Takes the "RISS" and "BERNR" lines that come next, if any. @return 0; -1 at the end of the file
int StapelLeseRisszeilen();

/// One point record with that keyword; Werte takes the numbers behind the point number.
int StapelLesePnr(const std::string& Schlüssel, std::string& Pnr);
/// One record of two point numbers and a value, such as "NND".
int StapelLeseZweiPnr(const std::string& Schlüssel, std::string& Pnr1, std::string& Pnr2, double& Wert);

/// One "NEUPUNKT" record; "0  -   -" gives an empty number, "-" an empty symbol.
int StapelLeseNeupunkt(std::string& Pnr, std::string& Symbol);

}  // namespace tavorena
