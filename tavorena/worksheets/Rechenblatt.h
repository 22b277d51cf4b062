#pragma once

#include <functional>
#include <string>

#include <tavorena/forms/Formular.h>
#include <tavorena/records/TVProtokollmodul.h>

namespace tavorena {

/// The fixed texts of a kind of worksheet.
struct Blattart {
  const char* Formname;     ///< "TVLinelForm"
  const char* Präfix;       ///< of its control names, "Linel"
  const char* VR;           ///< title and ProtArt, "VR 24.40 Linienelemente"
  const char* Stapeltitel;  ///< caption in a replay
  const char* Fragetitel;   ///< of the box at leaving, "Berechnung Linienelemente"
  int Hilfenummer;
};

/// The frame of all worksheets: question for the plan, second protocol target, replay with its two
/// buttons, the keys "+" and "-", the box at leaving. A worksheet adds its fields, one calculation, and
/// how a row becomes lines.
///
/// An operation bears here the name that it has behind a worksheet's prefix: LinelAnschlussEinzel is
/// TVLinelForm::AnschlussEinzel. Control names carry the prefix.
class Rechenblatt : public Formular {
 public:
  explicit Rechenblatt(const Blattart& BlattArt);

 protected:
  void BeiÖffnen() override;
  bool TasteUnten(Steuerelement& S, Taste T) override;
  bool DarfSchließen() override;
  void BeiSchließen() override;
  /// A field or the current cell of the grid is left. @return false: its value failed
  virtual bool FokusVerloren(Eingabeelement& /*E*/) { return true; }
  virtual void TextGeändert(Eingabeelement& /*E*/) {}

  /// Takes the head records of the block and opens the connection.
  /// @return 0; negative: the block can not be calculated
  virtual int StapelAnschluss() = 0;
  /// Takes and calculates the next row of the block. @return 0, -2 at the end of the block, -1 on an error
  virtual int StapelZeile() = 0;
  /// Something is complete and not yet written.
  [[nodiscard]] virtual bool HatOffenes() const = 0;
  /// Writes it. @return false: it could not be written, the worksheet stays
  virtual bool OffenesSchreiben() = 0;
  /// Ends the block that is being written.
  virtual void BlockBeenden() = 0;

  /// A replay drives this worksheet: nothing is recorded.
  [[nodiscard]] bool ImStapel() const { return VomStapel; }
  /// Asks what is to become of something not yet written. @return false: the worksheet stays as it is
  bool OffenesKlaeren();
  /// The closing, stop and go-on buttons; called when all other controls are there.
  void KnöpfeAnlegen();
  /// Control name: prefix and Rest.
  [[nodiscard]] std::string Mit(const char* Rest) const { return Art.Präfix + std::string(Rest); }
  /// Writes a block to the protocol and again to the worksheet's own target.
  void Protokollieren(const std::function<void()>& Block);
  /// A message of the worksheet in the status bar.
  static void Melde(const std::string& Text);

  const Blattart& Art;
  std::string ProtTitel;  ///< title of the protocol head; a replay keeps the one of its block

 private:
  void StapelBeginnen();
  void StapelZeilenRechnen();
  void StapelBlattEnde();
  void RissFragen();
  void RissZeigen();

  ProtZielsatz EigenesZiel;
  bool VomStapel = false;  // a replay opened this worksheet
  bool Hält = false;       // it waits for "Weiter"
  Feld& Ri_bez;
  Feld& Bernr;
  Knopf* KnopfEnd = nullptr;
  Knopf* KnopfStop = nullptr;
  Knopf* KnopfWeiter = nullptr;
};

}  // namespace tavorena
