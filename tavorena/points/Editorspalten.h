#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tavorena/points/Ruecknahme.h>

// The columns of the point editor: how a value of a point is written into its cell, and read from it.

namespace tavorena {

struct Editorspalte {
  const char* Titel;
  int Zeichen;
  std::function<std::string(const KorSatz&)> Text;
  /// Takes a text, trimmed, into the point. @return "" or, where the point stays as it was, what is wrong
  std::function<std::string(const std::string& Text, Punktsatz& P)> Nehmen;
};

/// Places of the columns that every file has; the attributes of a cadastre file stand behind them.
enum Editorplatz : int { EditorPnr, EditorRechts, EditorHoch, EditorHoehe, EditorSymbol };

/// The columns for a file of that format. Lengths in metres with the decimals that a file keeps; a value that
/// a file could not hold in its columns is refused. A height of 0 is a missing one and shown as an empty
/// cell.
[[nodiscard]] std::vector<Editorspalte> Editorspalten(Dateiformat Format);

}  // namespace tavorena
