#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 09.00 Geradenschnitt, VR 09.40 Schnitt Kreis / Gerade and VR 23.10 Bogenschnitt in the records. Each is
// a case, one block of the batch file.

namespace tavorena {

/// How a line is built.
enum class Linienart { Original, Abstand, Parallele, Senkrechte };

// ---- protocol

/// A line of an intersection.
struct Protgerade {
  Protpunkt Anf, End;
  Linienart Art = Linienart::Original;
  double Abstand = 0;  ///< of the parallel [m]
  Protpunkt Punkt;     ///< the parallel or the perpendicular runs through it
};

/// A circle of an intersection.
struct Protkreis {
  Protpunkt Mitte;
  double Radius = 0;               ///< as it was used, with its parallel offset [m]
  std::optional<Protpunkt> Bogen;  ///< a point on the arc, if one was given
};

/// What is said of a crossing angle.
enum class Schnittlage { Gut, Früh, Voll, Berührt };

/// The judgement of τ [gon]; Gut up to warning level 1.
/// @param[in] KreisGerade  VR 09.40, which has half the limits of the others, and the touching point below
/// 0.5
[[nodiscard]] Schnittlage SchnittlageVon(double Tau, bool KreisGerade, int Warnstufe);

/// The row of a solution alone, with what stands behind "     PS": for a case that is taken back.
[[nodiscard]] Block SchnittZeile(int Nachkomma, const Protpunkt& P, double Tau, const std::string& Marke);

/// @name A case: the figures, then each solution below the text of its judgement
/// A solution without number, or with "0", is left out. τ in gon.
/// @param[in] Notizen  of each solution: what stands below its row
/// @{
[[nodiscard]] Block GeradenschnittBlock(int Nachkomma, const Protgerade& G1, const Protgerade& G2,
                                        const Protpunkt& Neu, double Tau, int Warnstufe);
[[nodiscard]] Block KreisGeradeBlock(int Nachkomma, const Protkreis& K, const Protgerade& G,
                                     const std::vector<Protpunkt>& Neue, double Tau, int Warnstufe,
                                     const std::vector<std::vector<std::string>>& Notizen = {});
[[nodiscard]] Block BogenschnittBlock(int Nachkomma, const Protkreis& K1, const Protkreis& K2,
                                      const std::vector<Protpunkt>& Neue, double Tau, int Warnstufe,
                                      const std::vector<std::vector<std::string>>& Notizen = {});
/// @}

// ---- batch file; the readers take a whole block: 0, or -1 error

/// A line as it was typed.
struct Geradeneingabe {
  std::string AnfPnr, EndPnr;
  Linienart Art = Linienart::Original;
  double Abstand = 0;  ///< of the parallel [m]
  std::string Pnr;     ///< the parallel or the perpendicular runs through it
};

/// A circle as it was typed.
struct Kreiseingabe {
  std::string MittPnr;
  double Radius = 0, Pll = 0;  ///< [m]
  std::string BogenPnr;
};

/// The number and the symbol of a solution; none: it was not stored.
struct Neupunkteingabe {
  std::string Pnr, Symbol;
};

struct Geradenschnitteingabe {
  std::array<Geradeneingabe, 2> G;
  Neupunkteingabe Neu;
};
[[nodiscard]] std::vector<std::string> StapelGeradenschnitt(Geradenschnitteingabe E);
[[nodiscard]] int StapelLeseGeradenschnitt(Geradenschnitteingabe& E);

struct KreisGeradeEingabe {
  Kreiseingabe K;
  Geradeneingabe G;
  std::array<Neupunkteingabe, 2> Neu;  ///< older files may hold one
};
[[nodiscard]] std::vector<std::string> StapelKreisGerade(KreisGeradeEingabe E);
[[nodiscard]] int StapelLeseKreisGerade(KreisGeradeEingabe& E);

struct Bogenschnitteingabe {
  std::array<Kreiseingabe, 2> K;
  std::array<Neupunkteingabe, 2> Neu;  ///< older files may hold one
};
[[nodiscard]] std::vector<std::string> StapelBogenschnitt(Bogenschnitteingabe E);
[[nodiscard]] int StapelLeseBogenschnitt(Bogenschnitteingabe& E);

}  // namespace tavorena
