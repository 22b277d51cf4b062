#pragma once

#include <iosfwd>
#include <string>

namespace tavorena {

/// What the command line asks for.
struct Stapelauftrag {
  std::string Koordinaten;
  std::string Protokoll;  ///< "" none; an existing file is extended
  std::string Vorhanden;  ///< answer to a taken number: abbruch, alt-loeschen, mittel, neu-loeschen; "" none
  std::string Speichern;  ///< file for the table afterwards; "" none
  std::string Stapel;
};

/// Replays a batch file on a coordinate file, with a line per block and a summary.
/// @return 0; 1 with a message where the replay met an error or a question had no answer
int StapelAusführen(const Stapelauftrag& Auftrag, std::ostream& Ausgabe, std::ostream& Meldungen,
                    const std::string& Programmordner);

}  // namespace tavorena
