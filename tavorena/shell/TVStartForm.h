#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include <tavorena/forms/Formular.h>
#include <tavorena/shell/Konfiguration.h>
#include <tavorena/shell/Verlauf.h>

namespace tavorena {

/// The start page: fills the work area while no coordinate file is open. It shows the recent files with what
/// is known of them, and the ways to a file. Digits open a recent file, 0 the tenth, Return the chosen one;
/// Entf takes it off the list, from which it can be brought back.
class TVStartForm final : public Formular {
 public:
  TVStartForm();

  /// Looks once, when the user has come to the page, which of the files are gone. The rest of them is left
  /// unknown from the first that took long to answer: its drive may be out of reach.
  void BeiFokus() override;

 protected:
  void BeiÖffnen() override;
  bool TasteUnten(Steuerelement& S, Taste T) override;
  bool DarfSchließen() override { return false; }
  bool Zurücknehmen() override;

 private:
  void Zeigen();
  void DateiÖffnen(int Zeile);
  void Streichen(int Zeile);

  Gitter& Liste;
  std::map<std::string, Verlaufsatz> Verlauf;
  std::set<std::string> Fehlende;  // files that are gone
  bool Angesehen = false;
  std::optional<decltype(Historie)> Vorige;  // the list before the last one that was taken off
};

/// @{
/// The page comes, or shows anew what is known; and it goes.
void StartseiteZeigen();
void StartseiteSchließen();
/// @}

}  // namespace tavorena
