// Calls the methods of one family of TA with whatever the bytes say: raw doubles, lists that are too short,
// wrong counts, missing points. FAMILIE, given by the build, is the list of the methods.

#include "Fuzzhilfe.h"

#include <array>
#include <cmath>
#include <cstring>
#include <limits>
#include <span>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/ta/TA.h>

namespace tavorena::fuzz {
namespace {

constexpr double Marke = -7.25e77;  // no calculation gives this: an output that holds it was not written
constexpr int Tabellenpunkte = 6;

double Gleitzahl(Eingabe& E) {
  using Grenzen = std::numeric_limits<double>;
  constexpr std::array Besondere = {0.0,
                                    -0.0,
                                    1.0,
                                    -1.0,
                                    50.0,
                                    100.0,
                                    200.0,
                                    300.0,
                                    400.0,
                                    1e-5,
                                    1e-9,
                                    3500000.0,
                                    5500000.0,
                                    1e300,
                                    Grenzen::infinity(),
                                    -Grenzen::infinity(),
                                    Grenzen::quiet_NaN(),
                                    Grenzen::denorm_min()};
  const int Art = E.Zahl(0, 40);
  if (Art < static_cast<int>(Besondere.size())) return Besondere[static_cast<std::size_t>(Art)];
  if (Art < 25) return E.Zahl(-100, 100);
  if (Art < 30) return 4500000.0 + E.Zahl(0, 255) * 0.37 + E.Zahl(0, 255) * 1e-3;
  if (Art < 38) return (E.Zahl(0, 255) + 256 * E.Zahl(0, 255)) * 0.0061;
  std::array<std::uint8_t, sizeof(double)> Bytes{};
  for (std::uint8_t& Byte : Bytes) Byte = static_cast<std::uint8_t>(E.Zahl(0, 255));
  double Roh = 0;
  std::memcpy(&Roh, Bytes.data(), sizeof Roh);
  return Roh;
}

std::int32_t Ganzzahl(Eingabe& E) {
  using Grenzen = std::numeric_limits<std::int32_t>;
  constexpr std::array Besondere = {
      -1, 100, 101, 102, 200, 201, 202, 1000, 1001, 1002, Grenzen::min(), Grenzen::max()};
  const int Art = E.Zahl(0, 47 + static_cast<int>(Besondere.size()));
  return Art < 48 ? Art % 16 : Besondere[static_cast<std::size_t>(Art - 48)];
}

Wert Punktnummer(Eingabe& E) {
  const int Art = E.Zahl(0, 19);
  const int Nummer = 1 + Art % Tabellenpunkte;
  if (Art < 12) return Nummer;
  if (Art < 16) return std::to_string(Nummer);
  if (Art == 16) return "fehlt";
  if (Art == 17) return NullWert{};
  if (Art == 18) return Gleitzahl(E);
  return {};
}

// What the promises of a call depend on.
struct Eingang {
  bool Endlich = true;
  bool Mäßig = true;  // no number from which a square or a quotient leaves the range
  bool Punktnummern = false;
  std::int32_t Anzahl = std::numeric_limits<std::int32_t>::max();

  void Ansehen(double x) {
    Endlich = Endlich && std::isfinite(x);
    Mäßig = Mäßig && (x == 0 || (std::fabs(x) > 1e-4 && std::fabs(x) < 1e7));
  }
};

template <typename P>
constexpr bool Ausgabe = std::is_pointer_v<P> ||
                         (std::is_lvalue_reference_v<P> && !std::is_const_v<std::remove_reference_t<P>>);

// One parameter of a method: drawn from the bytes or, as an output, filled with the mark.
template <typename P>
class Parameter {
 public:
  explicit Parameter(Eingabe& E) {
    if constexpr (std::is_pointer_v<P>) Da = E.Zahl(0, 3) != 0;
    if constexpr (Ausgabe<P>)
      Inhalt = Leer();
    else if constexpr (std::is_same_v<P, double>)
      Inhalt = Gleitzahl(E);
    else if constexpr (std::is_same_v<P, bool>)
      Inhalt = E.Zahl(0, 1) == 1;
    else if constexpr (std::is_same_v<P, std::int32_t>)
      Inhalt = Ganzzahl(E);
    else if constexpr (std::is_enum_v<P>)
      Inhalt = static_cast<P>(E.Zahl(-1, 20));
    else if constexpr (std::is_same_v<P, const Wert&>)
      Inhalt = Punktnummer(E);
    else if constexpr (std::is_same_v<P, std::span<const Wert>>)
      Reihe(E, Punktnummer);
    else
      Reihe(E, Gleitzahl);
  }

  P Geben() {
    if constexpr (std::is_pointer_v<P>)
      return Da ? &Inhalt : nullptr;
    else
      return Inhalt;
  }

  void Ansehen(Eingang& Gesamt) const {
    if constexpr (std::is_same_v<P, double>) Gesamt.Ansehen(Inhalt);
    if constexpr (std::is_same_v<P, std::int32_t>) Gesamt.Anzahl = Inhalt;
    if constexpr (std::is_same_v<Art, Wert> || std::is_same_v<Art, std::vector<Wert>>)
      Gesamt.Punktnummern = true;
  }
  void ReiheAnsehen(Eingang& Gesamt) const {
    if constexpr (std::is_same_v<P, std::span<const double>>) {
      for (std::size_t i = 0; i < Inhalt.size() && std::cmp_less(i, Gesamt.Anzahl); ++i)
        Gesamt.Ansehen(Inhalt[i]);
    }
  }
  [[nodiscard]] bool Unberührt() const {
    if constexpr (Ausgabe<P>)
      return Inhalt == Leer();
    else
      return true;
  }
  [[nodiscard]] bool Endlich() const {
    if constexpr (!Ausgabe<P>)
      return true;
    else if constexpr (std::is_same_v<Art, std::vector<double>>) {
      for (const double x : Inhalt)
        if (!std::isfinite(x)) return false;
      return true;
    } else
      return std::isfinite(static_cast<double>(Inhalt));
  }

 private:
  template <typename T>
  struct Speicher {
    using Typ = std::remove_cvref_t<std::remove_pointer_t<T>>;
  };
  template <typename T>
  struct Speicher<std::span<const T>> {
    using Typ = std::vector<T>;
  };
  using Art = typename Speicher<P>::Typ;

  static Art Leer() {
    if constexpr (std::is_same_v<Art, std::vector<double>>)
      return {Marke};
    else if constexpr (std::is_same_v<Art, double>)
      return Marke;
    else
      return static_cast<Art>(-777);
  }

  template <typename Quelle>
  void Reihe(Eingabe& E, Quelle Glied) {
    const int Laenge = E.Zahl(0, 15);
    for (int i = 0; i < Laenge; ++i) Inhalt.push_back(Glied(E));
    // A long list repeats its first rows; the bounds of the methods lie at 101, 201 and 1001.
    if (Laenge > 3 && E.Zahl(0, 20) == 20) {
      const auto Viele = static_cast<std::size_t>(E.Zahl(0, 255)) * 5;
      for (std::size_t i = 0; Inhalt.size() < Viele; ++i)
        Inhalt.push_back(Inhalt[i % static_cast<std::size_t>(Laenge)]);
    }
  }

  Art Inhalt{};
  bool Da = true;
};

template <typename... P>
void Rufen(TA& Ta, Eingabe& E, enmResult (TA::*Methode)(P...)) {
  std::tuple<Parameter<P>...> Werte{Parameter<P>(E)...};
  Eingang Gesamt;
  enmResult Ergebnis{};
  std::apply(
      [&](auto&... W) {
        (W.Ansehen(Gesamt), ...);
        (W.ReiheAnsehen(Gesamt), ...);
        Ergebnis = (Ta.*Methode)(W.Geben()...);
        if (!Gesamt.Endlich) {
          Prüfen(Ergebnis == enmResult::Fehler_Allgemein || Ergebnis == enmResult::Fehler_ZuvielePunkte ||
                     Ergebnis == enmResult::Fehler_ZuweningePunkte ||
                     (Gesamt.Punktnummern && Ergebnis == enmResult::Fehler_PunktNichtVorhanden),
                 "was nicht endlich ist, wird abgewiesen");
          Prüfen((W.Unberührt() && ...), "eine Absage läßt die Ergebnisse, wie sie waren");
        } else if (Gesamt.Mäßig && !Gesamt.Punktnummern && Ergebnis == enmResult::ok) {
          Prüfen((W.Endlich() && ...), "aus mäßigen Zahlen wird Endliches");
        }
      },
      Werte);
}

// The table holds the points 1 to 6 somewhere.
void Tabelle(Eingabe& E) {
  KorLeeren();
  for (int i = 1; i <= Tabellenpunkte; ++i)
    Prüfen(KorAnhängen({std::to_string(i), Gleitzahl(E), Gleitzahl(E)}) == 0, "die Tabelle faßt die Punkte");
}

template <typename... Methode>
void Wählen(TA& Ta, Eingabe& E, Methode... Methoden) {
  const int Gewählt = E.Zahl(0, static_cast<int>(sizeof...(Methoden)) - 1);
  int i = 0;
  ((i++ == Gewählt ? Rufen(Ta, E, Methoden) : void()), ...);
}

}  // namespace
}  // namespace tavorena::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Daten, std::size_t Laenge) {
  using tavorena::TA;
  static TA Ta;
  tavorena::fuzz::Eingabe E(Daten, Laenge);
  tavorena::fuzz::Tabelle(E);
  tavorena::fuzz::Wählen(Ta, E, FAMILIE);
  return 0;
}
