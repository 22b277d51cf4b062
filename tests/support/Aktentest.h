#pragma once

#include "Testhilfe.h"

#include <tavorena/records/Protokoll.h>
#include <tavorena/records/Protokollfenster.h>
#include <tavorena/records/Stapelblock.h>
#include <tavorena/records/Stapelleser.h>

namespace tavorena::test {

/// Starts without a protocol, a batch file or a replay.
class Aktentest : public TabellenTest {
 protected:
  Aktentest() {
    Prot = {};
    StapelDatei = {};
    Stapel = {};
    StapelHaken = {};
    LetzterPlan = {};
    Protokollfenster.Leeren();
    Optionen.AbfrageRiss = false;
  }

  /// How often a piece stands in a text.
  static int Anzahl(const std::string& Text, const std::string& Stück) {
    int n = 0;
    for (std::size_t i = 0; (i = Text.find(Stück, i)) != std::string::npos; ++i) ++n;
    return n;
  }
};

}  // namespace tavorena::test
