#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tavorena/points/Editorspalten.h>
#include <tavorena/points/Editorzeilen.h>
#include <tavorena/points/Punktform.h>

namespace tavorena {

/// How the editor opens.
enum class Editormodus : std::int16_t {
  Ansicht = 0,     ///< the table, no changes
  Bearbeiten = 1,  ///< the table; a cell changes its row when it is left
  Eingabe = 3,     ///< empty rows for new points
};

/// The points as rows of a grid, in the order of the table. Below or between them stands at most one row that
/// the table does not have yet: the new one. Whatever is typed becomes a deed of its own when the cell or, of
/// the new row, the row is left.
class TVKernKoordinatenEditor final : public Punktform {
 public:
  explicit TVKernKoordinatenEditor(Editormodus Wie);
  [[nodiscard]] bool OffenesKlären() override;

 protected:
  void BeiÖffnen() override;
  bool DarfSchließen() override { return OffenesKlären(); }
  void BeiSchließen() override;
  void BeiTabelle() override;
  void NachTat() override;
  bool Zurücknehmen() override;
  bool TasteUnten(Steuerelement& S, Taste T) override;

 private:
  void KnöpfeAnlegen();
  // rows
  [[nodiscard]] int Platz(int Gitterzeile) const {
    return Gitterzeile - (Neu >= 0 && Gitterzeile > Neu ? 1 : 0);
  }
  [[nodiscard]] std::string Zellentext(int z, int s) const;
  void ZeilenZeigen();
  void ZelleSetzen(int z, int s);
  void Merken();
  void GeheZu(const std::string& Pnr);
  // cells and rows that are left
  [[nodiscard]] bool ZelleVerlassen();
  [[nodiscard]] bool ZelleNehmen(int z, int s, Punktsatz& P);
  [[nodiscard]] bool Ändern(int z);
  [[nodiscard]] bool Setzen(int& i, int t, const Punktsatz& P);
  [[nodiscard]] bool Angefangen(int z) const;
  [[nodiscard]] bool NeueVerlassen();
  [[nodiscard]] bool NeueSchreiben();
  void NeueGeschrieben(const Punktsatz& P);
  [[nodiscard]] bool FernNehmen(int z, const Punktsatz& P);
  // what the user does
  [[nodiscard]] bool TasteNehmen(Taste T);
  void ReturnDrücken();
  void Einfügen();
  void Löschen();
  void Abgreifen(const std::string& Pnr);
  void AttributeZeigen();
  [[nodiscard]] bool AttributeÄndern(int& i, const Punktsatz& P);

  const Editormodus Modus;
  const std::vector<Editorspalte> Spalten;
  Editorzeilen Zeilen;
  Feld* Such = nullptr;
  Gitter* Zellen = nullptr;
  int Neu = -1;             // grid row of the new point; -1: there is none
  Punktsatz Hier;           // the point of the current row
  std::uint64_t Stand = 0;  // of the table that is shown
};

}  // namespace tavorena
