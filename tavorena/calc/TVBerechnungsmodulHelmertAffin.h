#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include <tavorena/calc/Lage.h>

/// @file
/// Transformation of plane coordinates by passpoints, points that are known in an old and in a new system:
/// Helmert (similarity, four parameters, scale free or fixed to 1) and affine (six parameters).
///
/// Metres; RW = Rechts = Y = east, HW = Hoch = X = north. Angles of the results are degrees here, in spite of
/// their names, and are divided by 0.9 by whoever hands them out: deliberate, both steps belong together.
/// Sums run over coordinates reduced to the centroid. Accuracy within the field: 2e-8 m (Helmert) and 1e-7 m
/// (affine) for fields of some kilometres and coordinates of up to eight places.
/// No dialog, no table: whole jobs come in as columns.
/// Source: C. D. Ghilani, Adjustment Computations, chapter 18; W. Niemeier, Ausgleichungsrechnung.

namespace tavorena {

/// Passpoints as parallel columns of one length.
struct Passpunkte {
  std::span<const double> AltesSystemRW;  ///< Rechts, old system
  std::span<const double> AltesSystemHW;  ///< Hoch, old system
  std::span<const double> NeuesSystemRW;  ///< Y, new system
  std::span<const double> NeuesSystemHW;  ///< X, new system

  /// Number of passpoints; 0 if the columns differ in length.
  [[nodiscard]] std::size_t Anzahl() const {
    const std::size_t n = AltesSystemRW.size();
    return AltesSystemHW.size() == n && NeuesSystemRW.size() == n && NeuesSystemHW.size() == n ? n : 0;
  }
};

/// Passpoints reduced to the centroids, as parallel columns of one length.
struct ReduziertePasspunkte {
  std::span<const double> e;  ///< Rechts, old system
  std::span<const double> n;  ///< Hoch, old system
  std::span<const double> E;  ///< Y, new system
  std::span<const double> N;  ///< X, new system
};

/// Residuals, new minus transformed, in the order of the passpoints.
struct Restklaffen {
  std::vector<double> RestklaffeVY;          ///< vY
  std::vector<double> RestklaffeVX;          ///< vX
  std::vector<double> LinieareAbweichungWL;  ///< WL, length of (vY, vX)
  double StandardabwMK = 0;                  ///< MK, standard deviation of a coordinate
  double StandardabwML = 0;                  ///< ML, standard deviation of a point
};

/// Y = SY + a (R - sR) + b (H - sH), X = SX + a (H - sH) - b (R - sR).
struct HelmertParameter {
  Lage SchwerpunktAltesSystem;  ///< (sR, sH): centroid or fixed point
  Lage SchwerpunktNeuesSystem;  ///< (SY, SX)
  double ParamA = 0;            ///< a
  double ParamB = 0;            ///< b
  double MaximalerAbstand = 0;  ///< border of the passpoint field: largest distance from (sR, sH)
};

/// A similarity and how well it fits.
struct HelmertErgebnis {
  HelmertParameter Parameter;  ///< what transforms
  double Massstab = 0;         ///< M
  double DrehwinkelGon = 0;    ///< epsilon, clockwise, in degrees (see above), 0 up to below 360
  Restklaffen Klaffen;         ///< residuals
  bool Rechenachse = false;    ///< two passpoints; only then WS and D are set
  double WS = 0;               ///< sum of the distances from the centroid, new minus old
  double D = 0;                ///< its permitted value
};

/// Y = a20 + a21 H + a22 R, X = a10 + a11 H + a12 R. The constants hold the centroids; centroid and border
/// serve the test of new points only.
struct AffinParameter {
  double A11 = 0;               ///< a11
  double A12 = 0;               ///< a12
  double A10 = 0;               ///< a10 [m]
  double A21 = 0;               ///< a21
  double A22 = 0;               ///< a22
  double A20 = 0;               ///< a20 [m]
  Lage SchwerpunktAltesSystem;  ///< centroid of the passpoints
  double MaximalerAbstand = 0;  ///< largest distance of a passpoint from it
};

/// An affine transformation and how well it fits. The angles are directions of the transformed axes in
/// degrees (see above), 0 up to below 360; a pure rotation by epsilon has epsilon and epsilon + 90.
struct AffinErgebnis {
  AffinParameter Parameter;           ///< what transforms
  Lage SchwerpunktNeuesSystem;        ///< centroid of the passpoints
  double Massstab1 = 0;               ///< M1, scale of the X axis
  double Massstab2 = 0;               ///< M2, scale of the Y axis
  double Drehwinkel1Gon = 0;          ///< Epsilon1 of the X axis
  double Drehwinkel2Gon = 0;          ///< Epsilon2 of the Y axis
  Restklaffen Klaffen;                ///< residuals
  bool PasspunkteAufGerader = false;  ///< no parameters: two passpoints, or all exactly on one line
};

/// A point that takes the place of both centroids.
struct Festpunkt {
  Lage AltesSystem;  ///< its place in the old system
  Lage NeuesSystem;  ///< and in the new one
};

// ---- sums ------------------------------------------------------------------------------------------

/// Sum of x.
double HelmertSum(std::span<const double> x);
/// Sum of x y; the columns are of one length, here and below.
double HelmertSum2(std::span<const double> x, std::span<const double> y);
/// Sum of x x.
double HelmertQusum(std::span<const double> x);
/// Sum of x x + y y.
double HelmertQusum2(std::span<const double> x, std::span<const double> y);

/// Means of two columns. A column of one value has exactly that mean, so that points on one spot, or on a
/// parallel to an axis, are recognised by a sum of exactly 0.
/// @return 0; -1 for empty columns, Mittel is then untouched
[[nodiscard]] int HelmertSchwerpu(std::span<const double> x, std::span<const double> y, Lage& Mittel);

// ---- Helmert ---------------------------------------------------------------------------------------

/// a = (sum N n + sum E e) / Q and b = (sum E n - sum N e) / Q with Q = sum (e e + n n).
/// @return 0; -1 if Q is exactly 0 (all old points on one spot), a and b are then untouched
[[nodiscard]] int HelmertTranspara(const ReduziertePasspunkte& P, double& a, double& b);

/// Rotation of (Zähler, Nenner) in degrees, 0 up to below 360; 90 for (0, 0).
double HelmertDrehwinkel(double Zähler, double Nenner);

/// Residuals of passpoint i [m]. @return WL, the length of (vY, vX)
double HelmertStandardab(const ReduziertePasspunkte& P, double a, double b, std::size_t i, double& vY,
                         double& vX);

/// Stores the residuals of passpoint i; the columns of Klaffen hold at least i + 1 entries.
void HelmertRestklaff(const ReduziertePasspunkte& P, double a, double b, std::size_t i, Restklaffen& Klaffen);

/// Fits the similarity by least squares.
/// @param[in]  P  the passpoints
/// @param[in]  MasstabaenderungZulaessig  false: a and b are divided by M, and M is computed again
/// @param[in]  Fest  takes the place of the centroids; none in TA
/// @param[out] Ergebnis  with two passpoints ("Transformation über Rechenachse") all residuals, MK and ML are
///                       0 on purpose, also with a fixed scale or point; WS and D tell the discrepancy then
/// @return 0; -1 too few: below two passpoints, or columns of different lengths; -2 a division by 0: all old
///         points on one spot, or with a fixed scale all new ones. Ergebnis is untouched unless 0
[[nodiscard]] int HelmertHelmert(const Passpunkte& P, bool MasstabaenderungZulaessig,
                                 const std::optional<Festpunkt>& Fest, HelmertErgebnis& Ergebnis);

/// Transforms one point.
/// @return 0; 1 if it lies farther than MaximalerAbstand from the old centroid (exactly there is inside);
///         it is transformed in any case
int HelmertNeupunkt(Lage Punkt, const HelmertParameter& Parameter, Lage& Neupunkt);

/// Transforms columns in place.
/// @param[in]     Parameter     of the fit
/// @param[in,out] Rechts, Hoch  the points [m], columns of one length
/// @param[out]    Ausserhalb    for each point: it was outside; not filled if null
/// @return 0; 1 if a point was outside
int HelmertHelmertneukor(const HelmertParameter& Parameter, std::span<double> Rechts, std::span<double> Hoch,
                         std::vector<bool>* Ausserhalb = nullptr);

// ---- distribution of the residuals -----------------------------------------------------------------

/// Corrections (dY, dX) of a transformed point: the mean of the residuals, weighted by 1/d² with d the
/// distance to the passpoint in the new system. On a passpoint d counts as 1 mm, so that the point takes
/// nearly its residuals, but not exactly: deliberate.
/// @return the corrections [m]; 0 without passpoints
/// Source: inverse distance weighting, D. Shepard 1968.
Lage HelmertAnpassung(Lage Punkt, const Passpunkte& P, const Restklaffen& Klaffen);

/// Adds the corrections to every point, passpoint or not.
/// @param[in]     P, Klaffen      passpoints (their new coordinates) and residuals of the fit
/// @param[in,out] Rechts, Hoch    the transformed points [m], columns of one length
/// @param[out]    Verbesserungen  of each point; not filled if null
void HelmertHelmertanpass(const Passpunkte& P, const Restklaffen& Klaffen, std::span<double> Rechts,
                          std::span<double> Hoch, std::vector<Lage>* Verbesserungen = nullptr);

// ---- affine ----------------------------------------------------------------------------------------

/// The six parameters from reduced passpoints. The centroid of the old system is taken from Parameter.
/// @return 0; 1 with two passpoints or for a determinant of exactly 0: no parameter is written then. Points
///         nearly on a line give very large parameters and no warning: deliberate.
[[nodiscard]] int HelmertAffinpara(const ReduziertePasspunkte& P, Lage SchwerpunktNeuesSystem,
                                   AffinParameter& Parameter);

/// Residuals of passpoint i from the coordinates as they are [m]. @return WL
double HelmertAffinstandardab(const Passpunkte& P, const AffinParameter& Parameter, std::size_t i, double& vY,
                              double& vX);

/// Stores the residuals of passpoint i; the columns of Klaffen hold at least i + 1 entries.
void HelmertAffinrestklaff(const Passpunkte& P, const AffinParameter& Parameter, std::size_t i,
                           Restklaffen& Klaffen);

/// Fits the affine transformation by least squares.
/// @param[in]  P         the passpoints; as many as the columns hold
/// @param[out] Ergebnis  MK and ML are 0 up to three passpoints. If the passpoints lie on a line, the flag is
///                       set and the calculation carries on with parameters of 0 on purpose: residuals are
///                       then the new coordinates, both scales 0, both angles 90 degrees.
/// @return 0; -1 too few: below two passpoints, or columns of different lengths; Ergebnis is then untouched.
///         No division by 0 (-2 of HelmertHelmert) can arise: the flag tells it.
[[nodiscard]] int HelmertAffin(const Passpunkte& P, AffinErgebnis& Ergebnis);

/// As HelmertNeupunkt.
int HelmertAffinneupunkt(Lage Punkt, const AffinParameter& Parameter, Lage& Neupunkt);

/// As HelmertHelmertneukor.
int HelmertAffinneukor(const AffinParameter& Parameter, std::span<double> Rechts, std::span<double> Hoch,
                       std::vector<bool>* Ausserhalb = nullptr);

// ---- passpoints by position ------------------------------------------------------------------------

/// Entries of the columns nearer than Radius [m] (strictly) to (R, H): their 0-based indices and number.
inline void HelmertQuasifind(Lage Punkt, std::span<const double> RW, std::span<const double> HW,
                             double Radius, std::vector<int>& Indizes, int& Treffer) {
  PunkteImKreis(Punkt.RW, Punkt.HW, RW, HW, static_cast<int>(RW.size()), Indizes, Treffer, Radius);
}

/// A point of the first list that lies near one of the second; it bears the number of the first.
struct Passpunktkandidat {
  int Erster = 0;             ///< 0-based index into the first list
  int Zweiter = 0;            ///< 0-based index into the second list
  bool Eingeschaltet = true;  ///< takes part in the fit
};

inline constexpr std::size_t HelmertQuasiGrenze = 10000;  ///< most candidates

/// For each point of the second list that has exactly one point of the first nearer than Radius [m], that
/// one becomes a candidate; points with none or several are skipped.
/// @return 0; -1 if there are more than HelmertQuasiGrenze, Kandidaten then holds the first ones
[[nodiscard]] int HelmertQuasipass(std::span<const double> ErsteRW, std::span<const double> ErsteHW,
                                   std::span<const double> ZweiteRW, std::span<const double> ZweiteHW,
                                   double Radius, std::vector<Passpunktkandidat>& Kandidaten);

}  // namespace tavorena
