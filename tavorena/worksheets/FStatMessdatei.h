#pragma once

#include <string>

#include <tavorena/worksheets/Messdatei.h>

namespace tavorena {

class TVFStatForm;

/// What becomes of a connection row whose number the table does not hold.
enum class Unbekannte { Fragen, Polar };

/// Puts the rows of a station into the worksheet: those with a known point as connection, the others as polar
/// rows. @param[in,out] S  its rows told apart; those without a known point go to the polar ones
void StationEintragen(TVFStatForm& Form, Rohstation& S, Unbekannte Wie);

/// A raw-data file behind a free station: its button, its state, and the rows that it brings.
class FStatMessdatei {
 public:
  explicit FStatMessdatei(TVFStatForm& Für);

  /// The button: asks for a file, or goes on in the running one.
  void FstatAusGSI();
  /// Captions and state as they are now.
  void ZustandZeigen(bool Zeigen);

 private:
  void Weiter();
  [[nodiscard]] bool FStatMeßblockLesen(Rohstation& S);
  void Schließen();

  TVFStatForm& Form;
  Knopf &KnopfDatei, &KnopfEnde;
  Beschriftung& Stand;
  std::string Zuletzt;  // what the last block held
};

}  // namespace tavorena
