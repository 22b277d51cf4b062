#pragma once

#include "Testhilfe.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <random>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/ta/TA.h>

// What the tests of the calculations share.

namespace tavorena::test {

using enum enmResult;
using Zahlen = std::vector<double>;

constexpr double Nichts = 777;  ///< preset of outputs that must stay
const double pi = std::acos(-1.0);

/// Where rows are computed: as they stand, in the grid and in the negative.
constexpr Lage Orte[] = {{0, 0}, {3400000.123, 5700000.456}, {-2e6, -5e6}};

constexpr Lage operator+(Lage A, Lage B) { return {A.RW + B.RW, A.HW + B.HW}; }

/// Degrees, minutes and seconds as gon.
constexpr double Gms(double Grad, double Minuten, double Sekunden) {
  return (Grad + Minuten / 60 + Sekunden / 3600) / 0.9;
}

inline Zahlen Verschoben(Zahlen Werte, double Um) {
  for (double& Zahl : Werte) Zahl += Um;
  return Werte;
}

/// Every number lies within Grenze of the one expected.
inline ::testing::AssertionResult Nahe(std::initializer_list<double> Ist, std::initializer_list<double> Soll,
                                       double Grenze = 2e-9) {
  const auto Nah = [Grenze](double x, double y) { return std::fabs(x - y) <= Grenze; };
  if (std::equal(Ist.begin(), Ist.end(), Soll.begin(), Soll.end(), Nah)) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << ::testing::PrintToString(Ist) << " and not " << ::testing::PrintToString(Soll);
}
inline ::testing::AssertionResult Nahe(Lage Ist, Lage Soll, double Grenze = 2e-9) {
  return Nahe({Ist.RW, Ist.HW}, {Soll.RW, Soll.HW}, Grenze);
}

/// Checks every row of a table at each of these places.
template <typename Fall, std::size_t N>
void Überall(const Fall (&Fälle)[N], const auto& Prüfe) {
  for (const Fall& f : Fälle) {
    for (const Lage Ort : Orte) {
      SCOPED_TRACE(f.Name + (" at " + std::to_string(Ort.RW)));
      Prüfe(f, Ort);
    }
  }
}

/// Random places of a piece of the grid.
class Gelände {
 public:
  explicit Gelände(double Seite = 1e4) : W(0, Seite) {}
  Lage operator()() { return {3.4e6 + W(Zufall), 5.7e6 + W(Zufall)}; }
  double Zahl(double Von, double Bis) { return std::uniform_real_distribution<double>(Von, Bis)(Zufall); }

 private:
  std::mt19937 Zufall{19700101};
  std::uniform_real_distribution<double> W;
};

/// Calls of TA with outputs that start with the preset.
class RechenTest : public TabellenTest {
 protected:
  void Vorbesetzen() { a = b = c = d = Nichts; }
  [[nodiscard]] bool Unberührt() const { return a == Nichts && b == a && c == a && d == a; }
  TA Ta;
  double a = Nichts, b = Nichts, c = Nichts, d = Nichts;
};

/// Fits with many outputs, numbers and columns.
class FeldTest : public RechenTest {
 protected:
  /// Calls with preset outputs, which a refusal leaves as they are.
  enmResult Gesehen(const auto& Rechne) {
    z.fill(Nichts);
    v.fill({Nichts});
    const auto z0 = z;
    const auto v0 = v;
    const enmResult Ergebnis = Rechne();
    EXPECT_TRUE(Ergebnis == ok || (z == z0 && v == v0));
    return Ergebnis;
  }
  std::array<double, 17> z{};
  std::array<Zahlen, 3> v;
};

}  // namespace tavorena::test
