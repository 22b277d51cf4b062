#pragma once

#include <string>

#include <tavorena/forms/Formular.h>
#include <tavorena/points/Ruecknahme.h>

namespace tavorena {

/// A form that changes points: it keeps what it did, as long as it is open, and takes it back deed by deed.
class Punktform : public Formular {
 public:
  using Formular::Formular;

 protected:
  Rücknahme R;

  /// The button that takes the last deed back and names it.
  Knopf& RückgängigAnlegen(std::string Name, Platz Ort);
  /// Before each deed: while a replay runs, the table is its own, and that is told.
  [[nodiscard]] static bool DarfÄndern();
  /// A number that was left out is told, and the focus goes there.
  void NummerFehlt(Feld& F);
  /// Behind each deed: its result is handed through.
  int Getan(int Ergebnis);
  /// The form did something to the table, or took it back.
  virtual void NachTat() {}
  bool Zurücknehmen() override;

 private:
  Knopf* Rückgängig = nullptr;
};

}  // namespace tavorena
