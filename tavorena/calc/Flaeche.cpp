#include <algorithm>
#include <cmath>
#include <limits>

#include <tavorena/calc/Flaeche.h>

namespace tavorena {
namespace {

template <typename... Liste>
bool AnzahlPasst(int Anzahl, const Liste&... Listen) {
  return Anzahl >= 0 && ((static_cast<std::size_t>(Anzahl) <= Listen.size()) && ...);
}

bool ArtBekannt(std::int16_t Art) { return Art >= -2 && Art <= 3; }

// From the chord to the centre of its arc. @return false: the chord is longer than the diameter
bool Mittenabstand(Lage P, Lage Q, double r, double& h) {
  const double Halb = Abstand(P, Q) / 2;
  // The coordinates carry no smaller difference: without this a semicircle in coordinates of millions would
  // be refused half of the time.
  const double Rundung = std::numeric_limits<double>::epsilon() * (std::fabs(P.RW) + std::fabs(P.HW) + r);
  const double Rest = std::fabs(r - Halb) <= Rundung ? 0 : r - Halb;
  if (Rest < 0) return false;
  h = std::sqrt(Rest) * std::sqrt(r + Halb);  // root of r^2 - (s/2)^2, without overflow
  return true;
}

Flaechenkante KanteBerechnen(Lage P, Lage Q, double Radius, std::int16_t Art) {
  Flaechenkante Kante;
  Kante.Sehne = Kante.Laenge = Abstand(P, Q);
  if (Radius == 0 || Art == 0) return Kante;
  Kante.Bogen = true;
  Bogenwerte Bogen;  // stays 0 if the arc can not be built: the edge then counts nothing
  Kante.SehneZuLang = BogenElemente(P, Q, Radius, Bogen) < 0;
  const bool Lang = Art == -2 || Art >= 2;
  Kante.Laenge = Lang ? Bogen.LaengeLang : Bogen.LaengeKurz;
  Kante.Segment = Lang ? Bogen.SegmentLang : Bogen.SegmentKurz;
  if (Art < 0) Kante.Segment = -Kante.Segment;
  return Kante;
}

void Vollkreis(double Radius, Flaechenwerte& Werte) {
  Flaechenkante& Kante = Werte.Kanten.emplace_back();
  Kante.Bogen = true;
  Kante.Laenge = Werte.Umring = 2 * Pi() * std::fabs(Radius);
  Werte.Flaeche = Werte.Polygonflaeche = Pi() * Radius * Radius;
}

}  // namespace

int FlaecheGauss(std::span<const double> RW, std::span<const double> HW, int Anzahl, double& Flaeche,
                 double& Umring) {
  if (!AnzahlPasst(Anzahl, RW, HW)) return -1;
  const auto n = static_cast<std::size_t>(Anzahl);
  double Doppelt = 0, Summe = 0;
  for (std::size_t i = 0; n >= 3 && i < n; ++i) {
    const std::size_t Vor = (i == 0 ? n : i) - 1, Nach = i + 1 == n ? 0 : i + 1;
    // Rechts is reduced to the first point: algebraically equal, since the differences of Hoch sum to 0, and
    // without the products of millions.
    Doppelt += (RW[i] - RW[0]) * (HW[Nach] - HW[Vor]);
    Summe += Strecke(RW[i], HW[i], RW[Nach], HW[Nach]);
  }
  Flaeche = Doppelt / 2;
  Umring = Summe;
  return 0;
}

int BogenElemente(Lage P, Lage Q, double Radius, Bogenwerte& Werte) {
  const double r = std::fabs(Radius), s = Abstand(P, Q), Halb = s / 2;
  double h = 0;
  if (!Mittenabstand(P, Q, r, h)) return -1;
  const double w = h == 0 ? Pi() / 2 : std::atan(Halb / h);
  Werte.Sehne = s;
  Werte.Mittelpunktswinkel = 2 * w;
  Werte.LaengeKurz = r * 2 * w;
  Werte.SegmentKurz = (w - std::sin(w) * std::cos(w)) * r * r;
  Werte.LaengeLang = 2 * Pi() * r - Werte.LaengeKurz;
  Werte.SegmentLang = Pi() * r * r - Werte.SegmentKurz;
  return 0;
}

int BogenMitte(Lage P, Lage Q, double Radius, bool Rechts, bool Lang, Lage& Mitte) {
  const double s = Abstand(P, Q);
  double h = 0;
  if (s == 0 || !Mittenabstand(P, Q, std::fabs(Radius), h)) return -1;
  // The centre of a short arc lies across the chord, that of a long one beside it.
  const double q = (Rechts == Lang ? h : -h) / s, dR = Q.RW - P.RW, dH = Q.HW - P.HW;
  Mitte = {P.RW + dR / 2 + q * dH, P.HW + dH / 2 - q * dR};
  return 0;
}

int FlaecheBerechnen(std::span<const double> RW, std::span<const double> HW, std::span<const double> Radius,
                     std::span<const std::int16_t> Art, int Anzahl, Flaechenwerte& Werte) {
  if (!AnzahlPasst(Anzahl, RW, HW, Radius, Art)) return -1;
  const auto n = static_cast<std::size_t>(Anzahl);
  if (!std::ranges::all_of(Art.first(n), ArtBekannt)) return -1;
  Flaechenwerte Neu;
  if (FlaecheGauss(RW, HW, Anzahl, Neu.Polygonflaeche, Neu.Umring) < 0) return -1;
  Neu.Kanten.reserve(n);
  if (n == 1 && Radius[0] != 0) {
    Vollkreis(Radius[0], Neu);
    Werte = std::move(Neu);
    return 0;
  }
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t Nach = i + 1 == n ? 0 : i + 1;
    const Flaechenkante Kante = KanteBerechnen({RW[i], HW[i]}, {RW[Nach], HW[Nach]}, Radius[i], Art[i]);
    Neu.Bogenflaeche += Kante.Segment;
    // An arc takes the place of its chord; below 3 points the perimeter of the polygon holds no chords.
    if (Kante.Bogen) Neu.Umring += Kante.Laenge - (n < 3 ? 0 : Kante.Sehne);
    Neu.Kanten.push_back(Kante);
  }
  Neu.Flaeche = Neu.Polygonflaeche + Neu.Bogenflaeche;
  Werte = std::move(Neu);
  return 0;
}

int FlaecheGKReduziert(std::span<const double> RW, std::span<const double> HW, int Anzahl, double Flaeche,
                       double& Reduziert) {
  constexpr double Million = 1000000, Erdradius = 6381000;
  if (Anzahl == 0 || !AnzahlPasst(Anzahl, RW, HW)) return -1;
  const double Streifen = std::floor(RW[0] / Million) * Million;
  double Summe = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(Anzahl); ++i) {
    const bool RechtsGut = RW[i] >= Million && RW[i] < 6 * Million;
    const bool HochGut = HW[i] >= 4 * Million && HW[i] < 7 * Million;
    if (!RechtsGut || !HochGut || std::floor(RW[i] / Million) * Million != Streifen) return -1;
    Summe += RW[i] - Streifen;
  }
  const double y = Summe / Anzahl - Million / 2;
  Reduziert = Flaeche * (1 - y * y / (Erdradius * Erdradius));
  return 0;
}

double Abstandstiefe(double Wandhoehe, double Faktor) { return std::max(Wandhoehe * Faktor, 3.0); }

}  // namespace tavorena
