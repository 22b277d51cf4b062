#pragma once

#include <string>
#include <vector>

#include <tavorena/records/Spalten.h>

// VR 24.00 Helmert- and VR 24.30 Affin- Transformation in the records. Written as a whole: a block with the
// fit, on the next page the list of all points, with distribution a second list; one block of the batch file.

namespace tavorena {

/// Residuals of a passpoint [m].
struct Protrestklaffe {
  double VY = 0, VX = 0, WL = 0;
  std::string Pnr;
};

/// What both fits show.
struct Prottransformation {
  double AltRechts = 0, AltHoch = 0, NeuY = 0, NeuX = 0;  ///< centroids, or the fixed point [m]
  std::vector<Protrestklaffe> Klaffen;                    ///< of the ticked passpoints, in their order
  Wert MK, ML;                                            ///< standard deviations [m]; not given: "ohne"
};

/// A Helmert fit. Over two passpoints there are no residuals, but WS and D.
struct Prothelmert {
  Prottransformation Passung;
  bool Rechenachse = false;  ///< two passpoints
  bool MasstabFest = false;
  double Massstab = 1, Epsilon = 0, a = 0, b = 0;  ///< Epsilon in gon
  double WS = 0, D = 0;                            ///< [m]
};

/// An affine fit.
struct Protaffin {
  Prottransformation Passung;
  bool AufGerader = false;  ///< the passpoints lie on a line: nothing else is shown
  double Massstab1 = 1, Epsilon1 = 0, Massstab2 = 1, Epsilon2 = 0;  ///< Epsilon in gon
  double a10 = 0, a11 = 0, a12 = 0, a20 = 0, a21 = 0, a22 = 0;
};

/// Scale and orientation [gon] of a fit. @param[in] Achse  text behind it
[[nodiscard]] std::string Massstabzeile(double M, double Epsilon, const char* Achse = "");

/// The flags of a residual, "  ***VY>1.5MK" and "  ***VX>1.5MK"; none while MK is not given.
[[nodiscard]] std::string RestklaffenMarke(const Protrestklaffe& K, const Wert& MK);

[[nodiscard]] Block HelmertBlock(int Nachkomma, const Prothelmert& H);
[[nodiscard]] Block AffinBlock(int Nachkomma, const Protaffin& A);

/// A point of the list of all points, in the new system [m].
struct Prottransformiert {
  double Y = 0, X = 0;
  std::string Pnr;
  bool Ausserhalb = false;  ///< of the field of the passpoints
  int Passpunkt = 0;        ///< running number of a ticked passpoint, from 1; 0: it is none
  double dY = 0, dX = 0;    ///< its correction, for the list after the distribution
};
/// The list of all points after the transformation.
[[nodiscard]] Block TransformationListe(int Nachkomma, const std::vector<Prottransformiert>& Punkte);
/// The same after the distribution of the residuals, with the corrections.
[[nodiscard]] Block AnpassungListe(int Nachkomma, const std::vector<Prottransformiert>& Punkte);

/// A passpoint as it stands in the grid.
struct Passpunkteingabe {
  bool Ausgeschaltet = false;
  std::string Pnr;
  std::string NeuPnr;  ///< in the new system; empty: the same
};

/// A transformation as it was chosen.
struct Transformationseingabe {
  std::string NeuesSystem;  ///< file
  std::vector<Passpunkteingabe> Passpunkte;
  std::string FixPnr;  ///< fixed point; empty: none
  bool MasstabFest = false, Anpassung = false;
};
/// Its records.
[[nodiscard]] std::vector<std::string> StapelTransformation(Transformationseingabe E);
/// Reads a whole block. @return 0; -1 error
[[nodiscard]] int StapelLeseTransformation(Transformationseingabe& E);

}  // namespace tavorena
