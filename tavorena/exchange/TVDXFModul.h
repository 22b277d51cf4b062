#pragma once

#include <map>
#include <string>
#include <string_view>

// The free lines and arcs of the graphics view to DXF files and back. World coordinates [m], angles in
// degrees counter-clockwise from east, as DXF has them.

namespace tavorena {

/// What came out of a DXF file.
struct DxfErgebnis {
  int Linien = 0, Bogen = 0;          ///< added as free elements; the two arcs of a circle count as two
  int Unbrauchbar = 0;                ///< elements dropped for a value that is missing, no number or infinite
  std::map<std::string, int> Andere;  ///< kinds that are not read, with their number (by pairs alone)
  bool MitElementen = false;          ///< the file has a section ENTITIES
  bool Fremd = false;                 ///< the scanner saw codes that our own files do not have
  bool Voll = false;                  ///< ended at GrafikFreieGrenze
  bool Abgerissen = false;            ///< the file ends inside (by pairs alone)
};

/// The free elements as our own plain form, which DxfSuchlauf reads back to six decimals.
/// @return 0; -1 after a message: an element has a value of more than eight digits before the point
[[nodiscard]] int DxfText(std::string& Text);

/// Points of the table and free elements as a well-formed file of release 12 for CAD programs, in the bytes
/// of Windows-1252. Layers: PUNKTE, NUMMERN, HOEHEN, SYMBOLE, STRECKEN, BOGEN.
/// @return 0; -1 after a message as for DxfText
[[nodiscard]] int DxfPunkteText(std::string& Text);

/// Writes DxfText, or DxfPunkteText, to a file that is replaced safely. @return 0; -1 after a message, an old
/// file is then as it was
[[nodiscard]] int DxfSpeichern(const std::string& Datei, bool MitPunkten);

/// Reads our own form line by line, no pairs: words and codes count wherever they stand in a line, in either
/// case. Good for files of DxfText; what a foreign file gives has to be looked at.
void DxfSuchlauf(std::string Text, DxfErgebnis& E);

/// Reads a file by pairs, as CAD programs write it: LINE, ARC, CIRCLE, LWPOLYLINE and POLYLINE with bulges,
/// mirrored ones turned right, out of ENTITIES. An element that the file ends in is dropped.
/// @return 0; the number of the first line that should be a code and is none, reading ended there
[[nodiscard]] int DxfPaare(std::string_view Text, DxfErgebnis& E);

/// Reads a file, AusCad by pairs, else by DxfSuchlauf; tells what was left out, has the view drawn anew and
/// shows DxfZählung in the status help.
/// @return 0; 1 not wholly read (limit, file cut off, no pairs), told, what came stays; -1 nothing was read,
/// told
[[nodiscard]] int DxfLesen(const std::string& Datei, bool AusCad, DxfErgebnis& E);

/// "2 Linien, 1 Bogen gelesen".
[[nodiscard]] std::string DxfZählung(const DxfErgebnis& E);

}  // namespace tavorena
