#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 65.00 Flächenberechnung in the records. A boundary is written as a whole, one block of the batch file;
// its printed proof is in Pol.h.

namespace tavorena {

/// An edge of a boundary: straight, or an arc that bends outward or inward, the short or the long one.
enum class Kantenart { Linie, Außen, Innen, AußenLang, InnenLang };

/// The long arc of its circle.
[[nodiscard]] constexpr bool IstLang(Kantenart A) {
  return A == Kantenart::AußenLang || A == Kantenart::InnenLang;
}

/// The kind of an edge by its radius, which is positive outward. 0: straight
[[nodiscard]] constexpr Kantenart KantenartVon(double Radius, bool Lang) {
  if (Radius == 0) return Kantenart::Linie;
  if (Radius < 0) return Lang ? Kantenart::InnenLang : Kantenart::Innen;
  return Lang ? Kantenart::AußenLang : Kantenart::Außen;
}

/// A point and the edge to the next one.
struct Protkante {
  Protpunkt Punkt;
  double Laenge = 0;  ///< from the coordinates [m]
  Kantenart Art = Kantenart::Linie;
  double Radius = 0;         ///< [m]; its sign does not count
  bool SehneZuLang = false;  ///< the chord is longer than the diameter
  Wert Gemessen, WS, D;      ///< [m]; given with a measured length
};

/// A boundary.
struct Protflaeche {
  std::string Name, Bemerkung;  ///< shown if typed
  std::vector<Protkante> Kanten;
  double Umring = 0;   ///< [m]
  Wert Bogenflaeche;   ///< [m²]; given with an arc
  double Flaeche = 0;  ///< [m²]
  Wert FlaecheGKred;   ///< [m²]; given where it can be reduced
};

/// The flag of an edge: "******R<s/2", "******WS>D", above warning level 1 also "***WS>D/3", or "".
[[nodiscard]] std::string FlaechenMarke(const Protkante& K, int Warnstufe);

/// Name and remark, the edges, the sums.
[[nodiscard]] Block FlaechenBlock(int Nachkomma, const Protflaeche& F, int Warnstufe);

/// A row as it was typed.
struct Kanteneingabe {
  std::string Pnr;
  Kantenart Art = Kantenart::Linie;
  double Radius = 0;       ///< absolute [m]
  double Grenzlaenge = 0;  ///< measured [m]; 0: none
};

/// A boundary as it was typed.
struct Flaecheneingabe {
  std::string Name, Bemerkung;
  std::vector<Kanteneingabe> Kanten;
};
/// Its records.
[[nodiscard]] std::vector<std::string> StapelFlaeche(Flaecheneingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseFlaeche(Flaecheneingabe& E);

}  // namespace tavorena
