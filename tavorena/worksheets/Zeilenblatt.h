#pragma once

#include <initializer_list>
#include <optional>
#include <vector>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/worksheets/Punktgitter.h>

namespace tavorena {

/// A worksheet with a connection, two values measured on it, and rows. A kind says what it measures, shows
/// its connection, and knows its rows.
class Zeilenblatt : public Rechenblatt {
 protected:
  /// A measured field of the connection.
  struct Messfeld {
    const char *Rest, *Label;  ///< of its control name; its caption
    Platz Ort;
  };
  /// @param[in] MitEnde  the results have "E:" behind "L:"
  Zeilenblatt(const Blattart& BlattArt, const Messfeld& Erstes, const Messfeld& Zweites, bool MitEnde);

  double Maß1 = 0, Maß2 = 0;  ///< measured at the start and at the end; a Maß2 of 0 is not measured
  Anschluss Kopf;
  Feld &Feld1, &Feld2;  ///< where they are typed

  /// The rows and the buttons: the last controls. @param[in] Weitere  controls that are open with the rows
  void ZeilenAnlegen(const std::vector<Zeilenspalte>& Spalten, Zeilenkunde Wissen,
                     std::initializer_list<Steuerelement*> Weitere = {});
  [[nodiscard]] Punktgitter& Zeilen() { return *Reihen; }
  /// @param[in] Maßstab  as the kind computes it
  void WerteZeigen(const Anschlusswerte& W, const Wert& Maßstab);

  /// Computes the connection and shows it.
  virtual void ZeigeAnschluss() = 0;
  /// Why it can not be opened; "" if it can.
  [[nodiscard]] virtual const char* Hindernis() const { return ""; }
  /// The reason where tape readings are measured.
  [[nodiscard]] const char* GleicheMaße() const;
  /// The rows were opened.
  virtual void BeiAnschluss() {}

  [[nodiscard]] int StapelAnschluss() final;
  [[nodiscard]] int StapelZeile() final { return Zeilen().StapelZeile(); }
  [[nodiscard]] bool HatOffenes() const final { return Reihen->HatOffenes(); }
  [[nodiscard]] bool OffenesSchreiben() final { return Zeilen().OffenesSchreiben(); }
  void GrafikLöschen() final;

 private:
  [[nodiscard]] int AnschlussEinzel();
  void AnschlussÖffnen();

  Feld* E = nullptr;
  Feld *L, *M, *D, *Ws;
  std::optional<Punktgitter> Reihen;
};

}  // namespace tavorena
