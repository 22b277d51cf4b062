#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tavorena/calc/Flaeche.h>
#include <tavorena/records/Pol.h>
#include <tavorena/worksheets/Eingabegitter.h>

// The boundary that an area is computed of: what was typed for it, what comes of it, and what is told of it
// in protocol, batch file and proof.

namespace tavorena {

/// A point of the boundary and the edge to the next one, as they were typed.
struct Grenzpunkt {
  std::string Pnr;
  Kantenart Art = Kantenart::Linie;
  double Radius = 0;    ///< absolute [m]
  std::string Getippt;  ///< from which kind and radius were read
};

/// The radius of an edge as it is typed: positive outward, "G" behind it for the long arc, "" for a straight
/// edge.
[[nodiscard]] std::string Radiustext(Kantenart Art, double Radius);
/// Reads it and brings the text into that form. @return false with a reason in the status help
[[nodiscard]] bool RadiusPrüfen(std::string& Text, Kantenart& Art, double& Radius);

/// The row that an edge of a record is typed as.
[[nodiscard]] Zeileneingabe Grenzzeile(const Kanteneingabe& K);

class Flaechengrenze {
 public:
  [[nodiscard]] std::size_t Anzahl() const { return Punkte.size(); }
  [[nodiscard]] const Grenzpunkt& Punkt(std::size_t i) const { return Punkte[i]; }
  [[nodiscard]] double Grenzlaenge(std::size_t i) const { return Gemessen[i]; }
  [[nodiscard]] Lage Ort(std::size_t i) const { return {RW[i], HW[i]}; }
  /// Points come or go at the end.
  void AnzahlSetzen(std::size_t n);
  /// @param[in] Grenzlaenge  of its edge, measured [m]; 0: none
  void Setzen(std::size_t i, Lage Wo, Grenzpunkt P, double Grenzlaenge);

  /// Computes all below. A positive radius enlarges the area, whichever way round the points go.
  void Rechnen();

  [[nodiscard]] const Flaechenwerte& Werte() const { return W; }
  [[nodiscard]] double Flaeche() const { return Ganze; }         ///< [m²]
  [[nodiscard]] const Wert& GKred() const { return Reduziert; }  ///< [m²]; not given without GK coordinates
  [[nodiscard]] bool MitBogen() const;

  /// Computed minus measured length of an edge, and what is permitted for it.
  /// @return false: it is not measured, or can not be built
  [[nodiscard]] bool Abweichung(std::size_t i, double& WS, double& D) const;
  /// It is over that.
  [[nodiscard]] bool WeichtAb(std::size_t i) const;
  /// The first arc that can not be built, in words; "" if there is none.
  [[nodiscard]] std::string Bogenfehler() const;
  /// The first edge at fault, in words.
  [[nodiscard]] std::string Urteil() const;
  [[nodiscard]] std::size_t Danach(std::size_t i) const { return i + 1 == Punkte.size() ? 0 : i + 1; }
  /// The boundary runs clockwise.
  [[nodiscard]] bool Rechtsum() const { return W.Polygonflaeche < 0; }
  /// An arc runs counter-clockwise.
  [[nodiscard]] bool Linksherum(std::size_t i) const;
  /// Its centre; of a single point the point itself.
  [[nodiscard]] Lage Mitte(std::size_t i) const;

  /// @name What is told of it
  /// @{
  [[nodiscard]] Protflaeche Protokoll(const std::string& Name, const std::string& Bemerkung) const;
  [[nodiscard]] Flaecheneingabe Eingabe(const std::string& Name, const std::string& Bemerkung) const;
  [[nodiscard]] std::vector<Polkante> Polkanten() const;
  /// @}

 private:
  std::vector<Grenzpunkt> Punkte;
  std::vector<double> RW, HW, Radien, Gemessen;  // of the points, as the calculation takes them
  std::vector<std::int16_t> Arten;
  Flaechenwerte W;
  double Ganze = 0;
  Wert Reduziert;
};

}  // namespace tavorena
