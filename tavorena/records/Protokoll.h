#pragma once

#include <memory>
#include <string>
#include <vector>

#include <tavorena/core/Datei.h>
#include <tavorena/records/Block.h>

// The protocol (.dru): a printable stream of lines in the layout of a line printer. Each entry is appended in
// one piece, so that the file is complete after every calculation. A form feed without line end stands
// between pages. A protocol is a value: the job has one, each worksheet one for its second target.

namespace tavorena {

/// A protocol that is being written. Start values: {}.
struct Protokoll {
  std::string Datei;           ///< path; empty: no protocol is written
  int Seite = 1;               ///< page number of the next head
  int Zeilen = 1;              ///< lines on the current page; starts at 1
  bool NeueZeile = true;       ///< the next line is the first on the page
  bool SeiteFrisch = false;    ///< a form feed was the last that happened
  bool OhneUmbruch = false;    ///< no page break by line count
  bool ZeilenNummern = false;  ///< line numbers behind each line; false in normal work
  bool HatInhalt = false;      ///< something was written since the file was taken
  bool HatKopf = false;        ///< a page head was written since
  bool OhneKopf = false;       ///< its first head is put in front when it is printed, and counts all the same
  bool ImFenster = false;      ///< the protocol window shows its lines too
  int Marken = 0;              ///< tolerance marks of the calculations recorded here
  std::shared_ptr<const Verbindung> Darüber;  ///< what stands above the next line; null: nothing known
  Dateistand Stand;                           ///< of the file after the last entry
};

/// The protocol of the job.
extern Protokoll Prot;

/// Plan name and calculation number that were typed or read last: the next worksheet begins with them.
extern Plan LetzterPlan;

/// What the files of the worksheets' second targets are named after.
extern std::string DateinameProtokollTemp;

/// Takes a protocol file into use for the job: page 1, nothing written yet.
void ProtokollNehmen(const std::string& Dateiname);

/// "dd.mm.yyyy   hh:mm" of now.
std::string Zeitstempel();

/// Writes a block below what has to stand above it: where the title, the plan or the connection above the
/// next line is another one, or somebody else changed the file, page head, table head and the lines of the
/// connection come first, on a new page unless the protocol or the page is fresh. Nothing happens without a
/// file. A block that can not be written is asked for: again, or without the protocol, which P then is until
/// another file is taken; a question that is broken off leaves file and P as they were.
/// @param[in] V  null: the block goes below whatever stands there
/// @return 0; -1 if the file could not be written and the question was broken off
[[nodiscard]] int Schreiben(Protokoll& P, const std::shared_ptr<const Verbindung>& V, const Block& B);

/// Writes the lines of a block, each counted; a page takes 50. @return as Schreiben
[[nodiscard]] inline int ProtBlock(Protokoll& P, const Block& B) { return Schreiben(P, nullptr, B); }

/// Form feed, new page number; writes no head. @return as Schreiben
[[nodiscard]] int ProtNeueSeite(Protokoll& P);

/// An empty line, which is not counted. @return as Schreiben
[[nodiscard]] int ProtLeerzeile(Protokoll& P);

/// The lines of a head for the coordinate file Name, table head included.
[[nodiscard]] std::vector<std::string> ProtKopfzeilen(const Verbindung& V, const std::string& Name,
                                                      int Seite);

/// The head that the job's protocol would get, for the coordinate file Name, in front of another file.
/// @param[in] Seite  its page number; 0: that of the protocol
/// @return 0; -1 with a message
[[nodiscard]] int ProtKopfAusgabe(const std::string& Datei, const Verbindung& V, const std::string& Name,
                                  int Seite = 0);

}  // namespace tavorena
