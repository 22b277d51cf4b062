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
  double MitteRechts = 0, MitteHoch = 0;  ///< of an arc
  double Sehne = 0;                       ///< of an arc
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
[[nodiscard]] std::string PolSeiten(const Polnachweis& N);
/// The same as the bytes of a file in code page 850.
[[nodiscard]] std::string PolText(const Polnachweis& N);

/// The proofs that stand in such a file, also within other text: all that is printed but the page numbers.
/// Lines that are none are passed over.
/// @param[in]  Bytes     of the file, in code page 850 or UTF-8
/// @param[out] Unlesbar  rows with stars in place of a number
[[nodiscard]] std::vector<Polnachweis> PolLesen(std::string_view Bytes, int* Unlesbar = nullptr);

/// Writes the pages of a proof into a file, which is replaced as a whole. @param[in] Anhängen  behind what it
/// holds @return number of pages; -1 with a message
[[nodiscard]] int PolSchreiben(const std::string& Datei, const Polnachweis& N, bool Anhängen);

/// Reads the proofs of a file. @param[out] Unlesbar  as in PolLesen
/// @return 0; -1 with a message: it can not be read, or holds none
[[nodiscard]] int PolDateiLesen(const std::string& Datei, std::vector<Polnachweis>& Alle,
                                int* Unlesbar = nullptr);

}  // namespace tavorena
