#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tavorena/records/Flaeche.h>

// The printed proof of an area, the POL file: page images in the look and the code page of DOS.

namespace tavorena {

/// A point of the boundary and the edge to the next one, as they are printed and read [m].
struct Polkante {
  Protpunkt Punkt;
  double Laenge = 0;
  Kantenart Art = Kantenart::Linie;
  double Radius = 0;                      ///< absolute
  double MitteRechts = 0, MitteHoch = 0;  ///< of an arc; only printed
  double Sehne = 0;                       ///< of an arc; only printed
};

/// What is printed.
struct Polnachweis {
  std::string Name, Bemerkung;
  double Flaeche = 0;  ///< [m²]
  std::vector<Polkante> Kanten;
  int Seite = 1;                                       ///< number of the first page
  int NachkommaKoordinaten = 2, NachkommaFlaeche = 0;  ///< 0 to 5
};

/// The pages, at most 60 lines each, behind each a form feed: what comes after them begins on a new page.
/// @return the bytes of a file in code page 850
[[nodiscard]] std::string PolText(const Polnachweis& N);

/// The edges of such a file, also within other text: number, coordinates, length, kind and radius. Lines
/// that are none are passed over.
/// @param[in] Bytes  of the file, in code page 850 or UTF-8
[[nodiscard]] std::vector<Polkante> PolLesen(std::string_view Bytes);

}  // namespace tavorena
