#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/points/Punktform.h>
#include <tavorena/points/Punktverwaltung.h>
#include <tavorena/points/Punktzeile.h>

namespace tavorena {

/// The mean of two to eight chosen points (VR 25.50): in mode "L" it takes their place, in mode "S" it stands
/// beside them. They are typed or clicked in the graphics view, where they and the mean are marked.
class TVPMittForm final : public Punktform {
 public:
  explicit TVPMittForm(Mittelart Welche);
  [[nodiscard]] bool OffenesKlären() override;

 protected:
  bool DarfSchließen() override { return OffenesKlären(); }
  void BeiSchließen() override;
  void BeiTabelle() override { static_cast<void>(Nachgesehen()); }

 private:
  struct Altpunkt {
    Punktzeile Zeile;
    Feld &Ds, &Bem;
    Knopf* Wegnehmen = nullptr;
    std::optional<Punktsatz> Punkt = {};
    Markierung Bild = {};
  };
  [[nodiscard]] std::size_t Anzahl() const;
  void NeuenPunktAnlegen();
  void NachAltpunkt(std::size_t i);

  [[nodiscard]] bool pmittklärealtpunkt(std::size_t i);
  void pmittsetzealtpunkt(std::size_t i, const Punktsatz& P);
  void pmittwegnehmen(std::size_t i);
  void pmittrechnemittel();
  void pmittsetzekoordinaten(const Punktsatz& Mittel);
  void pmittsetzeds(Altpunkt& A, double ds);
  void pmittsetzeneupunkt();
  [[nodiscard]] bool pmittkläreneupunkt();
  [[nodiscard]] bool HöheLesen();
  void PunktErzeugen();
  void Leeren();
  void ZeilenZeigen();
  [[nodiscard]] bool Nachgesehen();
  void PMittGrafikAltplöschen(std::size_t i) { Alte[i].Bild.Löschen(); }
  void PMittGrafikNeuplöschen() { NeuesBild.Löschen(); }

  const Mittelart Art;
  std::vector<Altpunkt> Alte;  // those with a point come first
  std::optional<Punktzeile> Neuer;
  std::string Vorschlag;  // for the new number; the user may type another one
  Markierung NeuesBild;
};

}  // namespace tavorena
