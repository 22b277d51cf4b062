#pragma once

#include <tavorena/rawdata/Messempfaenger.h>

namespace tavorena {

class TVFStatForm;

/// Takes what the instrument measures into the rows of a free station.
class FStatMessempfänger final : public Messempfänger {
 public:
  explicit FStatMessempfänger(TVFStatForm& Für) : Form(Für) {}

  [[nodiscard]] Formular& Blatt() override;
  [[nodiscard]] std::string Formname() const override { return "tvfstatform"; }
  [[nodiscard]] Messort Fokus() const override;
  [[nodiscard]] std::string Standpunkt() const override;
  [[nodiscard]] bool StandpunktVollständig() const override;
  void StandpunktNehmen(const std::string& Nummer, const Messwert& Instrumentenhöhe) override;
  [[nodiscard]] int MessungNehmen(const Messsatz& Satz) override;

 private:
  TVFStatForm& Form;
};

}  // namespace tavorena
