#pragma once

#include <string>

#include <tavorena/forms/Formular.h>
#include <tavorena/records/Aufzeichnung.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {

/// The frame of all worksheets: question for the plan, recording, replay with its two buttons, the keys "+"
/// and "-", the box at leaving. A worksheet gives it its parts (Anschluss, Punktgitter) and answers four
/// questions.
///
/// An operation bears here the name that it has behind a worksheet's prefix: LinelStreifen is
/// TVLinelForm::Streifen, LinelGitterEinzel is GitterEinzel of its Punktgitter. Control names carry the
/// prefix.
class Rechenblatt : public Formular {
 public:
  explicit Rechenblatt(const Blattart& BlattArt);

  /// Control name: prefix and Rest.
  [[nodiscard]] std::string Mit(const std::string& Rest) const { return Art.Präfix + Rest; }
  /// A replay drives this worksheet.
  [[nodiscard]] bool ImStapel() const { return VomStapel; }
  [[nodiscard]] bool OffenesKlären() override;
  /// What stands above the rows of this worksheet, without a connection: title and plan.
  [[nodiscard]] Verbindung NeueVerbindung();

  Aufzeichnung Akten;

 protected:
  void BeiÖffnen() override;
  bool TasteUnten(Steuerelement& S, Taste T) override;
  bool DarfSchließen() override;
  void BeiSchließen() override;

  /// Takes the head records of the block and opens the connection.
  /// @return 0; negative: the block can not be calculated
  [[nodiscard]] virtual int StapelAnschluss() = 0;
  /// Takes and calculates the next row of the block. @return 0, -2 at the end of the block, -1 on an error
  [[nodiscard]] virtual int StapelZeile() = 0;
  /// Something is complete and not yet written.
  [[nodiscard]] virtual bool HatOffenes() const = 0;
  /// Writes it. @return false: it could not be written, the worksheet stays
  [[nodiscard]] virtual bool OffenesSchreiben() = 0;
  /// Removes all its marks from the graphics view: it closes.
  virtual void GrafikLöschen() = 0;

  /// The closing, stop and go-on buttons; called when all other controls are there.
  /// @param[in] Spalte  where the first of them stands
  void KnöpfeAnlegen(int Spalte = 3);

 private:
  void StapelBeginnen();
  void StapelKnöpfe(bool Läuft);
  void StandZeigen();
  void StapelZeilenRechnen();
  void StapelBlattEnde();
  void RissFragen();
  void DruckFragen();
  void RissZeigen();

  const Blattart& Art;
  std::string ProtTitel;   // title of the records; a replay keeps the one of its block
  Plan Riß;                // of this worksheet
  bool VomStapel = false;  // a replay opened this worksheet
  bool Hält = false;       // it waits for "Weiter"
  Feld& Ri_bez;
  Feld& Bernr;
  Knopf* KnopfEnd = nullptr;
  Knopf* KnopfStop = nullptr;
  Knopf* KnopfWeiter = nullptr;
  Beschriftung* Stand = nullptr;  // where the replay is
  Auswahl* JederBlock = nullptr;  // "bei jedem Block halten"
};

}  // namespace tavorena
