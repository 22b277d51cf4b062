#pragma once

#include "Testhilfe.h"

#include <tavorena/core/KorDatei.h>
#include <tavorena/core/Zahlen.h>

namespace tavorena::test {

/// Reads texts of one format into an empty table.
class Lesetest : public TabellenTest {
 protected:
  explicit Lesetest(const Formatzugang& F) : Format(F.Nummer) { FormatAnmelden(F); }
  int Lies(const std::string& Text) {
    KorLeeren();
    B = {};
    Schreibe(Datei, Text);
    return KorLesen(Datei, Lesemodus::Alle, Format, {}, {}, &B);
  }
  /// "number Rechts Hoch Hoehe [symbol]|...", values without zeros behind.
  static std::string Tabelle() {
    std::string Alle;
    for (int z = 0; z < KorAnzahl; ++z) {
      const KorSatz S = KorPunkt(z);
      Alle += (z > 0 ? "|" : "") + std::string(S.Pnr);
      for (const double w : {S.Rechts, S.Hoch, S.Hoehe}) Alle += " " + ZahlNachText(w).Text();
      Alle += " [" + std::string(S.Symbol) + "]";
    }
    return Alle;
  }
  const Punktformat Format;
  const std::string Datei = Ordner.Pfad("ein");
  Lesebericht B;
};

}  // namespace tavorena::test
