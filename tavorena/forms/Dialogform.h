#pragma once

#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/forms/Formular.h>

namespace tavorena {

/// A modal form that ends with a result.
class Dialogform : public Formular {
 public:
  Dialogform(std::string Objekt, std::string FormTitel) : Formular(std::move(Objekt)) {
    Titel = std::move(FormTitel);
  }

  /// Shows the form until it is closed. @return its result, also in Dialogergebnis; -1 if it was cancelled
  int Zeigen() {
    Ergebnis = -1;
    AktenSichern();
    AnzeigePort().FormularZeigen(*this, true);
    return Dialogergebnis = Ergebnis;
  }

 protected:
  /// Ends the form with this result.
  void Fertig(int Neues) {
    Ergebnis = Neues;
    Schließen();
  }

 private:
  int Ergebnis = -1;
};

}  // namespace tavorena
