#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/points/Punktform.h>
#include <tavorena/points/Textzeilen.h>

namespace tavorena {

/// Help number of all lists.
inline constexpr int Listenseite = 3010;

/// A list of points, or of used and free numbers. It follows the table; marked points can be averaged,
/// deleted, given one number, and what was done so can be taken back as long as the list is open.
class TVKerntextForm final : public Punktform {
 public:
  explicit TVKerntextForm(const Textauftrag& Was);

  /// Makes one point of the marked ones, if there are two.
  void PlustextPunktemitteln();
  /// Deletes the marked points, or without marks the current one.
  void PlustextPunktlöschen();
  /// Gives them one number, which is asked for.
  void PlustextPunktegleichePnr();
  /// Shows the list as it is saved on its pages, to be printed.
  void Drucken();
  /// Saves the list as a text.
  void MenüSpeichern_Click();

  /// There is nothing to list.
  [[nodiscard]] bool IstLeer() const { return Zeilen.empty(); }

 protected:
  void BeiÖffnen() override;
  void BeiSchließen() override { Gezeigt.Löschen(); }
  void BeiTabelle() override { Nachführen(); }
  void NachTat() override { Nachführen(); }

 private:
  void PlustextUeberschrift();
  void PlustextSetzeArttext();
  void PlustextSpeichereRück();
  void Punktknöpfe();
  void Nachführen();
  void Auflisten();
  void ZeilenZeigen();
  void MarkenMerken();
  bool NummerAufsuchen(const std::string& Pnr);
  void Suchen();
  void Zeigen();
  void Warnen();
  [[nodiscard]] std::string PnrBei(int z) const;
  [[nodiscard]] std::vector<int> Gewählte(bool AuchAktuelle) const;
  [[nodiscard]] int ZeileVon(int z) const { return Zeilen[static_cast<std::size_t>(z)].Zeile; }
  [[nodiscard]] bool IstWarnung(int z) const { return Zeilen[static_cast<std::size_t>(z)].IstWarnung; }

  Textliste Liste;
  std::vector<Textzeile> Zeilen;   // of the grid; their texts went there
  std::vector<Punktsatz> Gemerkt;  // the marked points
  std::uint64_t Stand = 0;         // of the table that is listed
  Markierung Gezeigt;              // the point that the graphics view was led to
  bool MitWarnung = true;
  Gitter* Tabelle = nullptr;
  Feld* Suche = nullptr;
  Beschriftung* Zählung = nullptr;
  Knopf *Mitteln = nullptr, *Warnknopf = nullptr, *Rückgängig = nullptr;
};

/// Asks what a list needs, and makes its view. @return nullptr: broken off, or there is nothing to list,
/// which is then told
[[nodiscard]] std::unique_ptr<TVKerntextForm> KerntextErfragen(Textart Art);

}  // namespace tavorena
