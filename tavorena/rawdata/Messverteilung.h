#pragma once

#include <string>

#include <tavorena/rawdata/Messsatz.h>

namespace tavorena {

class Messempfänger;

/// Brings what the instrument sends to the worksheet that takes measurements. A reflector height stays in
/// force from its line on.
class Messverteilung {
 public:
  /// @param[in] Zeile  a line of the instrument, without line end
  /// A measurement goes where the focus of the worksheet stands, with Return behind it; a place or a state
  /// that takes none is told. Lines of another class, and measurements that lack something, go nowhere.
  void Verteilen(const std::string& Zeile);

 private:
  static void Standpunkt(Messempfänger& E, const std::string& Nummer, const Messwert& Instrumentenhöhe);
  void Messzeileverteilen(Messempfänger& E);
  static void Codezeileverteilen(Messempfänger& E, const Codeblock& Block);
  void Messung(Messempfänger& E);

  Messsatz Satz;
  Messwert Reflektorhöhe;
};

}  // namespace tavorena
