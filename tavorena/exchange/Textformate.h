#pragma once

#include <string_view>

#include <tavorena/core/Formate.h>
#include <tavorena/core/TVKoordinatenmodul.h>

/// @file
/// Lists of points as offices and instruments write them: a line each, fields between separators. What these
/// formats, the free format and CSV share stands here. Coordinates in m; views lie in the line.

namespace tavorena {

/// The fields of a line, one after the other, without blanks and tabs around them. Between blanks (' ') a run
/// of blanks and tabs separates; any other separator ends a field where it stands, and a field in '"' may
/// hold it (a doubled '"' in it stays doubled).
class Feldschnitt {
 public:
  Feldschnitt(std::string_view Zeile, char Trennzeichen);
  /// The next field, empty where nothing stands. @return false: there is none, Feld is then empty
  bool Nächstes(std::string_view& Feld);
  /// As Nächstes; empty where there is none.
  std::string_view Nächstes() {
    std::string_view Feld;
    Nächstes(Feld);
    return Feld;
  }

 private:
  std::string_view Rest;
  char Trenner;
  bool AmEnde = false;
};

/// The separator of a line: ";", else a tab, else with MitKomma ",", else a blank.
[[nodiscard]] char TrennerVon(std::string_view Zeile, bool MitKomma);

/// A number from end to end: sign, digits, one "." or ",". @return false: it is none; Zahl is then untouched
[[nodiscard]] bool FeldzahlLesen(std::string_view Feld, double& Zahl);

/// The fields of a point as they stand in the line; empty where they are missing.
struct Punktfelder {
  std::string_view Pnr, Rechts, Hoch, Hoehe, Symbol;
};

/// A point of its fields; a height that is no number is 0.
/// @return false: it has no number, or one of the coordinates is none; S is then undefined
[[nodiscard]] bool PunktAusFeldern(const Punktfelder& F, KorSatz& S, KorInfoSatz& Info);

/// A line that is no point is counted, an empty one is not. @param[in] Nummer  of the line, from 1
void ZeileÜbergehen(std::string_view Zeile, int Nummer, Lesebericht& B);

/// @name The formats
/// @{
[[nodiscard]] Formatzugang LfsZugang();         ///< also ASC: number, Rechts, Hoch, Höhe, symbol
[[nodiscard]] Formatzugang CooZugang();         ///< the same order, read only
[[nodiscard]] Formatzugang GeoMapZugang();      ///< number, code, Rechts, Hoch, Höhe, read only
[[nodiscard]] Formatzugang GeografZugang();     ///< number, symbol, Rechts, Hoch, Höhe, read only
[[nodiscard]] Formatzugang GeografAusZugang();  ///< the same, written only: with "," between the values
[[nodiscard]] Formatzugang HöhenlisteZugang();  ///< written only: points that have a height
/// @}

}  // namespace tavorena
