#pragma once

#include <string>
#include <vector>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Wert.h>
#include <tavorena/records/Protbloecke.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// A worksheet with a connection: start and end point, looked up in the table and asked for when missing.
class Anschlussblatt : public Rechenblatt {
 public:
  explicit Anschlussblatt(const Blattart& BlattArt);

 protected:
  /// A connection point: its fields, and the point that they show.
  struct Anschlusspunkt {
    Feld &Pnr, &Rechts, &Hoch, &H_he, &Sym;
    std::string Gesucht;  ///< the number that was looked up; "" none
    Lage Ort;             ///< [m]
  };

  bool FokusVerloren(Eingabeelement& E) override;
  int StapelAnschluss() override;
  /// Computes the connection and opens it. @return 0; -1: it can not be computed
  virtual int AnschlussEinzel() = 0;
  /// The values on start and end point that the batch head holds.
  virtual void KopfwerteSetzen(double AnfWert, double EndWert) = 0;
  /// Enables or disables the connection fields together.
  virtual void AnschlussAnAus(bool An);
  /// The connection points or values changed: compute and show it anew.
  virtual void AnschlussRechnen() = 0;

  /// Looks the number in the field up and fills the point. @return 0; negative: not found, the text stays
  int SetzeAnfpunkt() { return SetzePunkt(Anf); }
  int SetzeEndpunkt() { return SetzePunkt(End); }
  /// Return in this field ends the typing of the connection.
  [[nodiscard]] bool IstLetztesFeld(const Steuerelement& S) const {
    return !Messwerte.empty() && Messwerte.back().Messfeld == &S;
  }
  /// Both points are there and apart.
  [[nodiscard]] bool AnschlussGesetzt() const;
  /// The fields of the connection that are wrong or missing get the focus. @return true: all are good
  bool AnschlussPrüfen();
  void PunktLeeren(Anschlusspunkt& P);

  /// A field for a measured value of the connection; Zahl takes it.
  Feld& Messfeld(const char* Rest, const char* Label, Platz Ort, double& Zahl);
  /// A result of the connection with its label.
  Feld& Anschlussergebnis(const char* Rest, const char* Label, int Spalte);
  /// Sets the value of a measured field from outside, such as from a record.
  void MesswertSetzen(Feld& F, double Zahl);

  [[nodiscard]] static Protpunkt Zeilenpunkt(const Anschlusspunkt& P);
  [[nodiscard]] double Laenge() const;  ///< S from the coordinates [m]

  Anschlusspunkt Anf, End;

 private:
  struct Messwert {
    Feld* Messfeld;
    double* Zahl;
  };

  Anschlusspunkt Punktfelder(const char* Welcher, const char* Label, int Zeile);
  int SetzePunkt(Anschlusspunkt& P);

  std::vector<Messwert> Messwerte;
};

}  // namespace tavorena
