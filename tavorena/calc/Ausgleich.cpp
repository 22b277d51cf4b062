#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include <tavorena/calc/Ausgleich.h>
#include <tavorena/calc/Schnitte.h>
#include <tavorena/calc/TVBerechnungsmodul.h>

namespace tavorena {
namespace {

using Liste = std::span<const double>;
constexpr double Epsilon = std::numeric_limits<double>::epsilon();

Liste Anfang(Liste L, int Anzahl) {
  return L.first(std::min(L.size(), static_cast<std::size_t>(std::max(Anzahl, 0))));
}

bool AnzahlPasst(int Anzahl, Liste A, Liste B) {
  return Anzahl > 0 && static_cast<std::size_t>(Anzahl) <= std::min(A.size(), B.size());
}

std::vector<double> Reduziert(Liste L, int Anzahl, double Mittel) {
  std::vector<double> Ergebnis;
  Ergebnis.reserve(static_cast<std::size_t>(Anzahl));
  for (const double Zahl : Anfang(L, Anzahl)) Ergebnis.push_back(Zahl - Mittel);
  return Ergebnis;
}

using Enden = std::pair<Lage, Lage>;

/// Fit of y on x: feet of the points with the least and the greatest x on the line y = a x + b. The columns
/// are reduced to their means.
Enden FitEnden(Liste x, Liste y) {
  const int n = static_cast<int>(x.size());
  double a = 0, b = 0;
  // A failure is ignored on purpose: slope 0 gives a fit of no length, and the other one decides.
  static_cast<void>(Regressionsgerade(x, y, n, a, b));
  // The line through its points at x = -1000 and x = 1000 in the reduced system, drawn from their middle:
  // the same line, but the feet of a steep one keep their digits.
  const Lage Mitte{0, b}, Richtpunkt{1000, 1000 * a + b};
  const auto Fuss = [&](int Index) {
    const auto i = static_cast<std::size_t>(Index);
    Lage F;
    static_cast<void>(Fusspunkt(Mitte, Richtpunkt, {x[i], y[i]}, F));  // the two points differ by 1000
    return F;
  };
  int Kleinster = 0, Größter = 0;
  static_cast<void>(ListenMinimumIndex(x, n, Kleinster));
  static_cast<void>(ListenMaximumIndex(x, n, Größter));
  return {Fuss(Kleinster), Fuss(Größter)};
}

/// P1, P2 and P3 lie on one line as far as their coordinates, rounded by about Rundung, can tell.
bool AufEinerGeraden(Lage P1, Lage P2, Lage P3, double Rundung) {
  const double Kreuz = (P2.RW - P1.RW) * (P3.HW - P2.HW) - (P2.HW - P1.HW) * (P3.RW - P2.RW);
  const double s1 = Abstand(P1, P2), s2 = Abstand(P2, P3);
  return std::fabs(Kreuz) <= (Rundung + Epsilon * (s1 + s2)) * (s1 + s2);
}

}  // namespace

double ListenSumme(Liste L, int Anzahl) {
  const Liste Teil = Anfang(L, Anzahl);
  return std::accumulate(Teil.begin(), Teil.end(), 0.0);
}

double ListenMittel(Liste L, int Anzahl) {
  const Liste Teil = Anfang(L, Anzahl);
  if (Teil.empty()) return 0;
  // Reduced to the first entry: algebraically equal, and equal entries leave exactly no rest, which the test
  // of Regressionsgerade for a vertical line lives on.
  double Summe = 0;
  for (const double Zahl : Teil) Summe += Zahl - Teil[0];
  return Teil[0] + Summe / static_cast<double>(Teil.size());
}

double QuadratSumme(Liste L, int Anzahl) { return ProduktSumme(L, L, Anzahl); }

double ProduktSumme(Liste L1, Liste L2, int Anzahl) {
  const Liste A = Anfang(L1, Anzahl), B = Anfang(L2, Anzahl);
  const auto Ende = A.begin() + static_cast<std::ptrdiff_t>(std::min(A.size(), B.size()));
  return std::inner_product(A.begin(), Ende, B.begin(), 0.0);
}

int ListenMinimumIndex(Liste L, int Anzahl, int& Index) {
  if (!AnzahlPasst(Anzahl, L, L)) return -1;
  const Liste Teil = Anfang(L, Anzahl);
  Index = static_cast<int>(std::ranges::min_element(Teil) - Teil.begin());
  return 0;
}

int ListenMaximumIndex(Liste L, int Anzahl, int& Index) {
  if (!AnzahlPasst(Anzahl, L, L)) return -1;
  const Liste Teil = Anfang(L, Anzahl);
  Index = static_cast<int>(std::ranges::max_element(Teil) - Teil.begin());
  return 0;
}

int MatrixInvertieren(Liste Matrix, int n, std::vector<double>& Inverse) {
  const auto N = static_cast<std::size_t>(std::max(n, 0));
  if (N == 0 || Matrix.size() / N < N) return -1;
  std::vector<double> A(Matrix.begin(), Matrix.begin() + static_cast<std::ptrdiff_t>(N * N)), I(N * N);
  for (std::size_t i = 0; i < N; ++i) I[i * N + i] = 1;
  for (std::size_t s = 0; s < N; ++s) {
    std::size_t Pivot = s;
    for (std::size_t z = s + 1; z < N; ++z)
      if (std::fabs(A[z * N + s]) > std::fabs(A[Pivot * N + s])) Pivot = z;
    const double Teiler = A[Pivot * N + s];
    if (Teiler == 0) return -1;
    for (std::size_t k = 0; k < N; ++k) {
      std::swap(A[Pivot * N + k], A[s * N + k]);
      std::swap(I[Pivot * N + k], I[s * N + k]);
      A[s * N + k] /= Teiler;
      I[s * N + k] /= Teiler;
    }
    for (std::size_t z = 0; z < N; ++z) {
      const double Faktor = A[z * N + s];
      for (std::size_t k = 0; z != s && k < N; ++k) {
        A[z * N + k] -= Faktor * A[s * N + k];
        I[z * N + k] -= Faktor * I[s * N + k];
      }
    }
  }
  Inverse = std::move(I);
  return 0;
}

int Regressionsgerade(Liste X, Liste Y, int Anzahl, double& a, double& b) {
  if (!AnzahlPasst(Anzahl, X, Y)) return -1;
  const double MittelX = ListenMittel(X, Anzahl), MittelY = ListenMittel(Y, Anzahl);
  // The sums of squares and products reduced to the mean: algebraically equal to sum(xy) - mean(x) sum(y),
  // but the squares of millions do not eat the digits.
  const std::vector<double> x = Reduziert(X, Anzahl, MittelX), y = Reduziert(Y, Anzahl, MittelY);
  const double Nenner = QuadratSumme(x, Anzahl);
  if (Nenner == 0) return -1;
  a = ProduktSumme(x, y, Anzahl) / Nenner;
  b = MittelY - a * MittelX;
  return 0;
}

int Geradenausgleich(Liste R, Liste H, int Anzahl, Lage& Anf, Lage& End) {
  if (!AnzahlPasst(Anzahl, R, H)) return -1;
  const Lage Mittel{ListenMittel(R, Anzahl), ListenMittel(H, Anzahl)};
  const std::vector<double> r = Reduziert(R, Anzahl, Mittel.RW), h = Reduziert(H, Anzahl, Mittel.HW);
  const auto [E1, E2] = FitEnden(r, h);
  const auto [G1, G2] = FitEnden(h, r);  // the columns change places
  const Lage F1{G1.HW, G1.RW}, F2{G2.HW, G2.RW};
  // Points on one straight line: both fits coincide, and a tie goes to R on H. The comparison of the lengths
  // alone would leave the order of the ends to the rounding of the coordinates.
  const double Rundung = 4 * Epsilon * (std::fabs(Mittel.RW) + std::fabs(Mittel.HW) + Abstand(F1, F2));
  const double Unterschied = std::min(Abstand(E1, F1) + Abstand(E2, F2), Abstand(E1, F2) + Abstand(E2, F1));
  const bool HaufR = Unterschied > Rundung && Abstand(E1, E2) > Abstand(F1, F2);
  const Lage A = HaufR ? E1 : F1, B = HaufR ? E2 : F2;
  Anf = {Mittel.RW + A.RW, Mittel.HW + A.HW};
  End = {Mittel.RW + B.RW, Mittel.HW + B.HW};
  return 0;
}

int Kreisausgleich(Liste R, Liste H, int Anzahl, Lage& Mittelpunkt, double& Radius) {
  if (!AnzahlPasst(Anzahl, R, H) || Anzahl < 3) return -1;
  if (Anzahl > KreisausgleichPunkte) return -2;
  const auto n = static_cast<std::size_t>(Anzahl);
  // All in coordinates reduced to the first point: algebraically equal, and no digits go to the millions.
  const auto Punkt = [&](std::size_t i) { return Lage{R[i] - R[0], H[i] - H[0]}; };
  const Lage Letzter = Punkt(n - 1), Mittlerer = Punkt(n / 2), Erster = Punkt(0);
  Kreismittelpunkt Start;
  if (AufEinerGeraden(Letzter, Mittlerer, Erster, Epsilon * (std::fabs(R[0]) + std::fabs(H[0])))) return -1;
  if (KreisMittelpunktBerechnung(Letzter, Mittlerer, Erster, Start) < 0) return -1;
  const Lage M = Start.M;
  const double r = Start.Radien[0];

  std::array<double, 9> N{};
  std::array<double, 3> b{}, x{};
  for (std::size_t i = 0; i < n; ++i) {
    const double dR = Punkt(i).RW - M.RW, dH = Punkt(i).HW - M.HW;
    const std::array<double, 3> a{dR / r, dH / r, 1};
    const double l = (r * r - dR * dR - dH * dH) / (2 * r);
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t k = 0; k < 3; ++k) N[3 * j + k] += a[j] * a[k];
      b[j] -= a[j] * l;
    }
  }
  std::vector<double> Inverse;
  if (MatrixInvertieren(N, 3, Inverse) < 0) return -1;
  for (std::size_t j = 0; j < 3; ++j) x[j] = ProduktSumme(Liste(Inverse).subspan(3 * j, 3), b, 3);
  Mittelpunkt = {R[0] + (M.RW + x[0]), H[0] + (M.HW + x[1])};  // one step, on purpose not iterated
  Radius = r + x[2];
  return 0;
}

}  // namespace tavorena
