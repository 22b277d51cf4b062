#pragma once

#include <span>
#include <vector>

#include <tavorena/calc/Lage.h>

/// @file
/// Best-fit line and circle, and the sums that they are made of. Metres; Rechts = east, Hoch = north. Results
/// 0 good, negative failed: all outputs are then untouched. Lists are read from index 0 to Anzahl - 1.

namespace tavorena {

/// Sum of the first Anzahl entries. Here and in the three functions below an Anzahl below 0 counts as 0 and
/// one beyond a list as its length.
double ListenSumme(std::span<const double> Liste, int Anzahl);
/// Mean of the first Anzahl entries; 0 for an Anzahl of 0. The mean of equal entries is exactly that entry.
double ListenMittel(std::span<const double> Liste, int Anzahl);
/// Sum of the squares of the first Anzahl entries.
double QuadratSumme(std::span<const double> Liste, int Anzahl);
/// Sum of the products of two lists, entry by entry.
double ProduktSumme(std::span<const double> Liste1, std::span<const double> Liste2, int Anzahl);

/// First index of the least entry. @return 0; -1 for an Anzahl of 0 or less or beyond the list
[[nodiscard]] int ListenMinimumIndex(std::span<const double> Liste, int Anzahl, int& Index);
/// First index of the greatest entry. @return 0; -1 for an Anzahl of 0 or less or beyond the list
[[nodiscard]] int ListenMaximumIndex(std::span<const double> Liste, int Anzahl, int& Index);

/// Inverse of a small square matrix, by Gauss-Jordan elimination with the largest pivot of the column.
/// @param[in]  n        rows and columns
/// @param[in]  Matrix   n by n entries, row by row
/// @param[out] Inverse  n by n entries, row by row
/// @return 0; -1 if the matrix is singular or has less than n by n entries
/// Source: any textbook of numerical analysis.
[[nodiscard]] int MatrixInvertieren(std::span<const double> Matrix, int n, std::vector<double>& Inverse);

/// Y = a X + b by least squares of the residuals in Y.
/// @return 0; -1 if all X are equal, without points or for an Anzahl beyond the lists
/// Accuracy: rounding only, also in coordinates of millions (b is the value at X = 0, millions away).
/// Source: simple linear regression; checked against a certified data set.
[[nodiscard]] int Regressionsgerade(std::span<const double> X, std::span<const double> Y, int Anzahl,
                                    double& a, double& b);

/// Best-fit line: the longer of two regressions, H on R and R on H; on purpose no orthogonal regression.
/// @param[in]  Anzahl  number of points
/// @param[in]  R, H    the points [m]
/// @param[out] Anf     foot of the point with the least R (fit of H on R) or the least H (fit of R on H) [m]
/// @param[out] End     foot of the point with the greatest R or H [m]
/// @return 0; -1 for an Anzahl of 0 or less or beyond the lists
/// Equal lengths give the fit of R on H, and so do fits that coincide within the rounding of the coordinates:
/// points on one straight line run from the least H to the greatest, due east from the least R. One point is
/// its own line, with two equal ends. Residuals: Linienelemente against the result.
/// Accuracy: 1e-9 m for Gauss-Krüger coordinates. Of two fits that lie within 2e-7 m of each other, but do
/// not coincide, the rounding of their lengths chooses.
[[nodiscard]] int Geradenausgleich(std::span<const double> R, std::span<const double> H, int Anzahl,
                                   Lage& Anf, Lage& End);

/// Most points that Kreisausgleich takes.
constexpr int KreisausgleichPunkte = 201;

/// Best-fit circle: one linearised step from the circle through the first, the middle and the last point, on
/// purpose not iterated.
/// @param[in]  Anzahl       number of points, 3 to KreisausgleichPunkte
/// @param[in]  R, H         the points [m]
/// @param[out] Mittelpunkt  centre [m]
/// @param[out] Radius       [m]
/// @return 0; -1 below 3 points, for an Anzahl beyond the lists or if the three points of the start circle
///         lie on one line or coincide; -2 above KreisausgleichPunkte
/// The step gives the centre of the algebraic fit (least squares of squared distances), whatever the start
/// circle. Only the radius depends on it: r + (q^2 - r^2 - c^2) / (2r), with r the start radius, q that of
/// the algebraic fit and c the shift of the centre. With a poor start circle it stays short: 54 mm of
/// 29.626 m in one published set. Residuals: distance from the centre minus the radius.
/// Points that are no circle at all may even give a radius below 0.
/// Accuracy: 1e-9 m for the step itself. Gauss-Krüger coordinates carry 5e-10 m, which an arc makes larger:
/// r = 100 m is met to 1e-8 m by an arc of 50 gon, to 1e-6 m by one of 5 gon.
/// Source: I. Kåsa, A circle fitting procedure and its error analysis, IEEE Trans. Instr. Meas. 25, 1976.
[[nodiscard]] int Kreisausgleich(std::span<const double> R, std::span<const double> H, int Anzahl,
                                 Lage& Mittelpunkt, double& Radius);

}  // namespace tavorena
