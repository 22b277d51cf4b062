#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <tavorena/forms/Dialogform.h>
#include <tavorena/points/Punktzeile.h>

namespace tavorena {

/// The polar rows of a station, as the form for their means asks for them. A row is told by its place.
class Messliste {
 public:
  virtual ~Messliste() = default;
  /// Numbers, coordinates and symbols of all rows.
  [[nodiscard]] virtual std::vector<Punktsatz> Messpunkte() const = 0;
  /// Makes one row of several. @param[in] Zeilen  rising; the first takes the mean, the others go
  virtual void MesspunkteMitteln(const std::vector<int>& Zeilen) = 0;
  virtual void MesspunktLöschen(int Zeile) = 0;
  /// @return false with a reason in the status help: no row can bear that number
  [[nodiscard]] virtual bool MesspunktUmnummern(int Zeile, const std::string& Pnr) = 0;
};

/// Means of points that were measured several times from one station, one group of up to eight rows after the
/// other; behind the last one the form closes. The rows change, the point table does not.
class TVMMittForm final : public Dialogform {
 public:
  explicit TVMMittForm(Messliste& Messungen);

  /// Shows the next group that was not passed over.
  void MmittSuchDoppelte();
  /// Makes one row of the group.
  void MMittMitteln();

 protected:
  void BeiÖffnen() override { MmittSuchDoppelte(); }

 private:
  struct Altpunkt {
    Punktzeile Zeile;
    Feld& Bem;
    Knopf* Löschen = nullptr;
  };
  void AlterPunktLöschen(std::size_t i);
  [[nodiscard]] bool AlterPunktUmnummern(std::size_t i);
  void NächsteGruppe();
  void GruppeZeigen(const std::vector<Punktsatz>& Alle);

  Messliste& Liste;
  std::vector<Altpunkt> Alte;
  std::optional<Punktzeile> Neuer;
  std::vector<int> Gruppe;           // rows of the measurements, of one number
  std::string Nummer;                // of the group
  std::set<std::string> Übergangen;  // numbers that "Nächste Gruppe" passed over
  Beschriftung* Weitere = nullptr;   // of the group, beyond the eight
};

/// The rows that bear a number that another one bears too, by number; a group is in the order of the rows.
[[nodiscard]] std::vector<std::vector<int>> Mehrfachmessungen(const std::vector<Punktsatz>& Alle);

}  // namespace tavorena
