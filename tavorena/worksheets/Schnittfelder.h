#pragma once

#include <array>
#include <optional>
#include <string>

#include <tavorena/calc/Schnitte.h>
#include <tavorena/graphics/Markierung.h>
#include <tavorena/records/Schnitte.h>
#include <tavorena/worksheets/Fallblatt.h>

namespace tavorena {

/// The fields of a line that is cut: two points, and how the line is built from them.
struct Geradenfelder {
  /// @param[in] Name  middle of its control names, "G1_"
  Geradenfelder(Fallblatt& Blatt, const std::string& Name, const char* Rahmen);

  Punktfeld &Anf, &End;
  Messfeld& Abstand;
  Punktfeld &PllPunkt, &SenkPunkt;

  /// Digit of the engine's kind: 1 as given, 2 parallel at a distance, 3 parallel through a point, 4
  /// perpendicular through a point; -1: more than one of them is typed.
  [[nodiscard]] int Art() const;
  /// The field that is one too many.
  [[nodiscard]] Feld& Zuviel() const { return SenkPunkt.Gesetzt() ? SenkPunkt.Pnr : PllPunkt.Pnr; }
  [[nodiscard]] Schnittgerade Gerade() const;
  [[nodiscard]] Protgerade AlsProtgerade() const;
  [[nodiscard]] Geradeneingabe Eingabe() const;
  void Setzen(const Geradeneingabe& E);
  /// The line as it is built, as long as the one that is given.
  void Zeichnen(Markierung& Bild) const;
};

/// The fields of a circle that is cut: centre, and radius or a point on the arc, which goes before it.
struct Kreisfelder {
  /// @param[in] Name  middle of its control names, "K1_"
  Kreisfelder(Fallblatt& Blatt, const std::string& Name, const char* Rahmen);

  Punktfeld &Mitte, &Bogen;
  Messfeld &Radiusfeld, &Pll;

  /// The radius as it is used, with its parallel distance [m]; not above 0: there is none.
  [[nodiscard]] double Radius() const;
  /// Shows the radius that the point on the arc gives.
  void Nachführen();
  [[nodiscard]] Protkreis AlsProtkreis() const;
  [[nodiscard]] Kreiseingabe Eingabe() const;
  void Setzen(const Kreiseingabe& E);
  void Zeichnen(Markierung& Bild) const;

 private:
  bool AusPunkt = false;  // the radius is that of a point on the arc
};

/// Both solutions of a case with a circle, and their crossing angle.
struct Schnittpaar {
  Fallpunkt &Eins, &Zwei;
  Feld& TauFeld;
  bool KreisGerade;  ///< which has limits of its own
  double Tau = 0;    ///< [gon]

  /// Shows what the engine found; the number of the second solution is open only while there are two.
  /// @param[in] Anzahl  0 to 2 points, 3 a touching one
  /// @param[in] Grad    crossing angle [degrees]
  /// @return "" or why there is nothing to store
  [[nodiscard]] std::string Zeigen(int Anzahl, Lage S1, Lage S2, double Grad);
  [[nodiscard]] std::vector<Protpunkt> AlsProtpunkte() const {
    return {Eins.AlsProtpunkt(), Zwei.AlsProtpunkt()};
  }
  [[nodiscard]] std::array<Neupunkteingabe, 2> Eingaben() const { return {Eins.Eingabe(), Zwei.Eingabe()}; }
  void Setzen(const std::array<Neupunkteingabe, 2>& E);
};

/// A crossing angle [gon, 0 to 400] as a worksheet shows it, 0 to 100.
[[nodiscard]] double TauGefaltet(double Gon);
/// Shows a crossing angle τ [gon], red where the cut is slanting; without one the field is empty.
/// @param[in] KreisGerade  see SchnittlageVon
void TauZeigen(Feld& F, std::optional<double> Tau, bool KreisGerade);

}  // namespace tavorena
