#pragma once

#include <tavorena/graphics/Elemente.h>
#include <tavorena/graphics/Nummernwahl.h>
#include <tavorena/graphics/Punktindex.h>

namespace tavorena {

/// What the view draws, and what finds it; for the sources of this folder alone.
struct Grafikinhalt {
  Elementspeicher<GrafikLinie> Linien;
  Elementspeicher<GrafikBogen> Bogen;
  Elementspeicher<GrafikText> Texte;
  Elementspeicher<GrafikMarke> Marken;
  Punktindex Index;
  Nummernwahl Wahl;
};
extern Grafikinhalt& Grafikbestand;  ///< there to the end: worksheets that are still open go after all else

/// Room that a text takes to the right, and above and below its middle [twips].
[[nodiscard]] double Textbreite(std::string_view Text, int Schriftgrad);
[[nodiscard]] double Textreichweite(int Schriftgrad);
inline constexpr int Nummerngrad = 8;  ///< [points]

}  // namespace tavorena
