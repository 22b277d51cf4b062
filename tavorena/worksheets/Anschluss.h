#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/worksheets/Punktfeld.h>

namespace tavorena {

/// The connection of a worksheet: start and end point, the values measured on it, and its results.
class Anschluss {
 public:
  /// @param[in] BeiWechsel  a point or a value changed: compute and show the connection anew
  Anschluss(Rechenblatt& Für, std::function<void()> BeiWechsel);
  Anschluss(const Anschluss&) = delete;
  Anschluss& operator=(const Anschluss&) = delete;

  Punktfeld Anf, End;

  /// A field for a measured value; Zahl takes it. Return in the last of them ends the typing: BeiReturn.
  Feld& Messfeld(const char* Rest, const char* Label, Platz Ort, double& Zahl);
  /// A result with its label.
  Feld& Ergebnis(const char* Rest, const char* Label, int Spalte);

  /// Both points are there and apart.
  [[nodiscard]] bool Gesetzt() const;
  [[nodiscard]] double Länge() const;  ///< S from the coordinates [m]
  /// Reads all fields anew; one that is wrong or missing gets the focus. @return true: all are good
  [[nodiscard]] bool Prüfen();
  /// Takes both points of a block. @return 0; -1 with a message: a point is missing
  [[nodiscard]] int AusStapel(const std::string& AnfPnr, const std::string& EndPnr);
  /// Looks both points up again if the table has changed, and computes anew. @return true: one of them moved
  bool Nachsehen();
  /// Enables or disables its fields together.
  void AnschlussAnAus(bool An);
  /// Removes its marks from the graphics view.
  void GrafikAnschlußLöschen() { Bild.Löschen(); }
  /// Sets the value of a measured field from outside, such as from a record.
  static void MesswertSetzen(Feld& F, double Zahl);

 private:
  struct Messung {
    Feld& F;
    double& Zahl;
  };

  void PunktGewechselt(const Punktfeld& P);
  void Markieren();
  [[nodiscard]] bool MessungNehmen(Feld& F, double& Zahl);

  Rechenblatt& Blatt;
  std::function<void()> Rechnen;
  std::vector<Messung> Messfelder;
  Markierung Bild;
};

}  // namespace tavorena
