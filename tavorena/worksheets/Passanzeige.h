#pragma once

#include <vector>

#include <tavorena/graphics/Markierung.h>
#include <tavorena/worksheets/Passung.h>
#include <tavorena/worksheets/Rechenblatt.h>

namespace tavorena {

/// What a fit shows: its figures, a single point in the new system, and the passpoints in the graphics view
/// with their residuals, enlarged, and the border of their field.
class Passanzeige {
 public:
  /// Makes the controls. Fit must stay.
  Passanzeige(Rechenblatt& Blatt, const Passung& Fit);
  Passanzeige(const Passanzeige&) = delete;
  Passanzeige& operator=(const Passanzeige&) = delete;

  /// Shows the fit as it is now. @param[in] Mangel  why nothing can be transformed with it; "": it can
  void Zeigen(const std::vector<Passpaar>& Paare, const std::string& Mangel);
  /// The table has been transformed: what is in the view belongs to the old system.
  void Getan();
  void GrafikLöschen() { Bild.Löschen(); }
  /// Empties the single point.
  void Leeren();

 private:
  void FigurenZeigen();
  [[nodiscard]] bool EinzelRechnen();
  [[nodiscard]] double Zeichnen(const std::vector<Passpaar>& Paare);

  const Passung& Anpassung;
  bool Brauchbar = false;  // points can be transformed
  Feld &M, &Epsilon, &MK, &WS, &M2, &Epsilon2, &ML, &D, &Hinweis;
  Feld &EinzelRechts, &EinzelHoch, &EinzelY, &EinzelX;
  Beschriftung& EinzelWo;
  Markierung Bild;
};

}  // namespace tavorena
