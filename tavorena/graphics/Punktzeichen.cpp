#include <array>
#include <cmath>
#include <span>

#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/Elemente.h>
#include <tavorena/graphics/Punktzeichen.h>

namespace tavorena {
namespace {

// A stroke of a sign, in parts of its radius, y downwards.
struct Zug {
  double x1, y1, x2, y2;
};

constexpr Zug Kreuz[] = {{-1, 0, 1, 0}, {0, -1, 0, 1}};
constexpr Zug Schräg[] = {{-0.8, -0.8, 0.8, 0.8}, {-0.8, 0.8, 0.8, -0.8}};
constexpr Zug Quadrat[] = {{-1, -1, 1, -1}, {1, -1, 1, 1}, {1, 1, -1, 1}, {-1, 1, -1, -1}};
constexpr Zug Dreieck[] = {{0, -1, 1, 1}, {1, 1, -1, 1}, {-1, 1, 0, -1}};
constexpr Zug Raute[] = {{0, -1, 1, 0}, {1, 0, 0, 1}, {0, 1, -1, 0}, {-1, 0, 0, -1}};
constexpr double Klein = 0.6;  // of the small triangle

struct Zeichen {
  std::span<const Zug> Züge;
  double Größe = 1;
  int Kreise = 0;  // circles around it, one inside the other
};

constexpr std::array<Zeichen, 5> NachZahl{{{{}, 1, 1}, {Quadrat}, {Dreieck}, {Raute}, {Kreuz}}};

Zeichen ZeichenVon(std::string_view Symbol) {
  if (Symbol == "2" || Symbol == "02") return {Dreieck, Klein};
  if (Symbol == "25" || Symbol == "025") return {{}, 1, 2};
  if (Symbol == ZeichenNeu) return {Schräg};
  if (Symbol.empty() || Symbol.front() < '0' || Symbol.front() > '9') return {Kreuz};
  return NachZahl[static_cast<std::size_t>(std::fmod(ZahlAusText(Symbol), double{NachZahl.size()}))];
}

}  // namespace

void PunktzeichenZeichnen(Zeichenfläche& Auf, double x, double y, std::string_view Symbol, int Farbe) {
  if (Symbol == "MARK") return Auf.Scheibe(x, y, Markenradius, Farbe);
  const Zeichen Z = ZeichenVon(Symbol);
  const double r = Zeichenradius * Z.Größe;
  for (const Zug& S : Z.Züge)
    Auf.Linie(x + S.x1 * r, y + S.y1 * r, x + S.x2 * r, y + S.y2 * r, Farbe, Strich::Durchgezogen);
  for (int i = 0; i < Z.Kreise; ++i) Auf.Bogen(x, y, r / (1 + i), 0, 360, Farbe, Strich::Durchgezogen);
}

}  // namespace tavorena
