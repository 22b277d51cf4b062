#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>

namespace tavorena {
namespace {

double Laenge(double x, double y) { return std::sqrt(x * x + y * y); }

bool EinWert(std::span<const double> x) {
  return std::all_of(x.begin(), x.end(), [&x](double Zahl) { return Zahl == x.front(); });
}

// The four reduced columns of one fit in one piece of memory.
class Reduktion {
 public:
  Reduktion(const Passpunkte& P, Lage Alt, Lage Neu) : Anzahl(P.Anzahl()), Speicher(4 * Anzahl) {
    for (std::size_t i = 0; i < Anzahl; ++i) {
      Speicher[i] = P.AltesSystemRW[i] - Alt.RW;
      Speicher[Anzahl + i] = P.AltesSystemHW[i] - Alt.HW;
      Speicher[2 * Anzahl + i] = P.NeuesSystemRW[i] - Neu.RW;
      Speicher[3 * Anzahl + i] = P.NeuesSystemHW[i] - Neu.HW;
    }
  }

  [[nodiscard]] ReduziertePasspunkte Spalten() const { return {Spalte(0), Spalte(1), Spalte(2), Spalte(3)}; }

  // Largest distance from the old centroid.
  [[nodiscard]] double MaximalerAbstand() const {
    double Größter = 0;
    for (std::size_t i = 0; i < Anzahl; ++i)
      Größter = std::max(Größter, Laenge(Speicher[i], Speicher[Anzahl + i]));
    return Größter;
  }

 private:
  [[nodiscard]] std::span<const double> Spalte(std::size_t k) const {
    return std::span(Speicher).subspan(k * Anzahl, Anzahl);
  }

  std::size_t Anzahl;
  std::vector<double> Speicher;
};

int SchwerpunkteBilden(const Passpunkte& P, Lage& Alt, Lage& Neu) {
  const int Altes = HelmertSchwerpu(P.AltesSystemRW, P.AltesSystemHW, Alt);
  return Altes < 0 ? Altes : HelmertSchwerpu(P.NeuesSystemRW, P.NeuesSystemHW, Neu);
}

void Anlegen(Restklaffen& Klaffen, std::size_t Anzahl) {
  for (auto* Spalte : {&Klaffen.RestklaffeVY, &Klaffen.RestklaffeVX, &Klaffen.LinieareAbweichungWL})
    Spalte->assign(Anzahl, 0);
}

void StandardabwSetzen(Restklaffen& Klaffen, double Freiheitsgrade) {
  Klaffen.StandardabwMK = std::sqrt(HelmertQusum(Klaffen.LinieareAbweichungWL) / Freiheitsgrade);
  Klaffen.StandardabwML = std::sqrt(2.0) * Klaffen.StandardabwMK;
}

// The largest number whose square root is not above MaximalerAbstand, so that comparing squares with it
// decides exactly as comparing the distance, ties included. -1, which lets nothing in, for a negative one.
double GrenzeDerQuadrate(double MaximalerAbstand) {
  if (!(MaximalerAbstand >= 0)) return -1;
  constexpr double Höchste = std::numeric_limits<double>::max();
  double Grenze = std::min(MaximalerAbstand * MaximalerAbstand, Höchste);
  while (std::sqrt(Grenze) > MaximalerAbstand) Grenze = std::nextafter(Grenze, 0.0);
  while (Grenze < Höchste && std::sqrt(std::nextafter(Grenze, Höchste)) <= MaximalerAbstand)
    Grenze = std::nextafter(Grenze, Höchste);
  return Grenze;
}

double AbstandQuadrat(Lage Punkt, Lage Mitte) {
  const double e = Punkt.RW - Mitte.RW, n = Punkt.HW - Mitte.HW;
  return e * e + n * n;
}

Lage Bild(Lage Punkt, const HelmertParameter& h) {
  const double e = Punkt.RW - h.SchwerpunktAltesSystem.RW, n = Punkt.HW - h.SchwerpunktAltesSystem.HW;
  return {h.SchwerpunktNeuesSystem.RW + h.ParamA * e + h.ParamB * n,
          h.SchwerpunktNeuesSystem.HW + h.ParamA * n - h.ParamB * e};
}

Lage Bild(Lage Punkt, const AffinParameter& a) {
  return {a.A20 + a.A21 * Punkt.HW + a.A22 * Punkt.RW, a.A10 + a.A11 * Punkt.HW + a.A12 * Punkt.RW};
}

template <typename Parameterart>
int EinenUmformen(Lage Punkt, const Parameterart& Parameter, Lage& Neu) {
  Neu = Bild(Punkt, Parameter);
  return Abstand(Parameter.SchwerpunktAltesSystem, Punkt) <= Parameter.MaximalerAbstand ? 0 : 1;
}

// Transforms a piece of the columns. With the test, the sign bit of the result tells a point outside: an OR
// of signs is what compilers can keep in vectors, comparisons are not.
template <bool MitTest, typename Parameterart>
std::uint64_t StückUmformen(double* R, double* H, std::size_t Anzahl, const Parameterart Parameter,
                            double Grenze) {
  const Lage Mitte = Parameter.SchwerpunktAltesSystem;
  std::uint64_t Vorzeichen = 0;
  for (std::size_t i = 0; i < Anzahl; ++i) {
    if (MitTest) Vorzeichen |= std::bit_cast<std::uint64_t>(Grenze - AbstandQuadrat({R[i], H[i]}, Mitte));
    const Lage Neu = Bild({R[i], H[i]}, Parameter);
    R[i] = Neu.RW;
    H[i] = Neu.HW;
  }
  return Vorzeichen;
}

// One pass over the columns in their order. After the first point outside the test is over.
template <typename Parameterart>
int SpaltenUmformen(const Parameterart& Parameter, std::span<double> Rechts, std::span<double> Hoch,
                    std::vector<bool>* Ausserhalb) {
  constexpr std::size_t Stück = 512;
  const double Grenze = GrenzeDerQuadrate(Parameter.MaximalerAbstand);
  double* const R = Rechts.data();
  double* const H = Hoch.data();
  const std::size_t Anzahl = std::min(Rechts.size(), Hoch.size());
  if (Ausserhalb != nullptr) {
    Ausserhalb->resize(Anzahl);
    for (std::size_t i = 0; i < Anzahl; ++i)
      (*Ausserhalb)[i] = AbstandQuadrat({R[i], H[i]}, Parameter.SchwerpunktAltesSystem) > Grenze;
  }
  bool Draußen = false;
  for (std::size_t i = 0; i < Anzahl; i += Stück) {
    const std::size_t n = std::min(Stück, Anzahl - i);
    if (Draußen) {
      StückUmformen<false>(R + i, H + i, n, Parameter, Grenze);
    } else {
      Draußen = StückUmformen<true>(R + i, H + i, n, Parameter, Grenze) >> 63 != 0;
    }
  }
  return Draußen ? 1 : 0;
}

}  // namespace

double HelmertSum(std::span<const double> x) {
  double Summe = 0;
  for (const double Zahl : x) Summe += Zahl;
  return Summe;
}

double HelmertSum2(std::span<const double> x, std::span<const double> y) {
  double Summe = 0;
  for (std::size_t i = 0; i < x.size(); ++i) Summe += x[i] * y[i];
  return Summe;
}

double HelmertQusum(std::span<const double> x) { return HelmertSum2(x, x); }

double HelmertQusum2(std::span<const double> x, std::span<const double> y) {
  double Summe = 0;
  for (std::size_t i = 0; i < x.size(); ++i) Summe += x[i] * x[i] + y[i] * y[i];
  return Summe;
}

int HelmertSchwerpu(std::span<const double> x, std::span<const double> y, Lage& Mittel) {
  if (Schwerpunkt(x, y, static_cast<int>(x.size()), Mittel.RW, Mittel.HW) < 0) return -1;
  if (EinWert(x)) Mittel.RW = x.front();
  if (EinWert(y)) Mittel.HW = y.front();
  return 0;
}

int HelmertTranspara(const ReduziertePasspunkte& P, double& a, double& b) {
  const double SEe = HelmertSum2(P.E, P.e), SNn = HelmertSum2(P.N, P.n);
  const double SEn = HelmertSum2(P.E, P.n), SNe = HelmertSum2(P.N, P.e);
  const double Q = HelmertQusum2(P.e, P.n);
  if (Q == 0) return -1;
  a = (SNn + SEe) / Q;
  b = (SEn - SNe) / Q;
  return 0;
}

double HelmertDrehwinkel(double Zähler, double Nenner) {
  double Grad = Zähler < 0 ? 270 : 90;
  if (Nenner != 0) Grad = std::atan(Zähler / Nenner) / (8 * std::atan(1.0)) * 360;
  if (Nenner < 0) Grad += 180;
  if (Grad < 0) Grad += 360;
  return Grad >= 360 ? Grad - 360 : Grad;  // an angle just below 0 was rounded up to the full circle
}

double HelmertStandardab(const ReduziertePasspunkte& P, double a, double b, std::size_t i, double& vY,
                         double& vX) {
  vY = P.E[i] - a * P.e[i] - b * P.n[i];
  vX = P.N[i] - a * P.n[i] + b * P.e[i];
  return Laenge(vX, vY);
}

void HelmertRestklaff(const ReduziertePasspunkte& P, double a, double b, std::size_t i,
                      Restklaffen& Klaffen) {
  Klaffen.LinieareAbweichungWL[i] =
      HelmertStandardab(P, a, b, i, Klaffen.RestklaffeVY[i], Klaffen.RestklaffeVX[i]);
}

int HelmertHelmert(const Passpunkte& P, bool MasstabaenderungZulaessig, const std::optional<Festpunkt>& Fest,
                   HelmertErgebnis& Ergebnis) {
  const std::size_t n = P.Anzahl();
  if (n < 2) return -1;
  HelmertErgebnis Neu;
  HelmertParameter& h = Neu.Parameter;
  if (Fest) {
    h.SchwerpunktAltesSystem = Fest->AltesSystem;
    h.SchwerpunktNeuesSystem = Fest->NeuesSystem;
  } else if (SchwerpunkteBilden(P, h.SchwerpunktAltesSystem, h.SchwerpunktNeuesSystem) < 0) {
    return -1;
  }
  const Reduktion Reduziert(P, h.SchwerpunktAltesSystem, h.SchwerpunktNeuesSystem);
  const ReduziertePasspunkte s = Reduziert.Spalten();
  h.MaximalerAbstand = Reduziert.MaximalerAbstand();
  if (HelmertTranspara(s, h.ParamA, h.ParamB) < 0) return -2;
  Neu.Massstab = Laenge(h.ParamA, h.ParamB);
  if (!MasstabaenderungZulaessig) {
    if (Neu.Massstab == 0) return -2;
    h.ParamA /= Neu.Massstab;
    h.ParamB /= Neu.Massstab;
    Neu.Massstab = Laenge(h.ParamA, h.ParamB);
  }
  Neu.DrehwinkelGon = HelmertDrehwinkel(h.ParamB, h.ParamA);
  Anlegen(Neu.Klaffen, n);
  if (n == 2) {  // calculation axis: the residuals stay 0 on purpose
    const double Salt = Laenge(s.e[0], s.n[0]) + Laenge(s.e[1], s.n[1]);
    const double Sneu = Laenge(s.E[0], s.N[0]) + Laenge(s.E[1], s.N[1]);
    Neu.Rechenachse = true;
    Neu.WS = Sneu - Salt;
    Neu.D = AbweichungZulaessig(Sneu);
  } else {
    for (std::size_t i = 0; i < n; ++i) HelmertRestklaff(s, h.ParamA, h.ParamB, i, Neu.Klaffen);
    StandardabwSetzen(Neu.Klaffen, 2 * static_cast<double>(n) - 4);
  }
  Ergebnis = std::move(Neu);
  return 0;
}

int HelmertNeupunkt(Lage Punkt, const HelmertParameter& Parameter, Lage& Neu) {
  return EinenUmformen(Punkt, Parameter, Neu);
}

int HelmertHelmertneukor(const HelmertParameter& Parameter, std::span<double> Rechts, std::span<double> Hoch,
                         std::vector<bool>* Ausserhalb) {
  return SpaltenUmformen(Parameter, Rechts, Hoch, Ausserhalb);
}

Lage HelmertAnpassung(Lage Punkt, const Passpunkte& P, const Restklaffen& Klaffen) {
  double Sw = 0, Sy = 0, Sx = 0;
  for (std::size_t i = 0; i < P.Anzahl(); ++i) {
    double d = Strecke(Punkt.RW, Punkt.HW, P.NeuesSystemRW[i], P.NeuesSystemHW[i]);
    if (d == 0) d = 0.001;
    const double w = 1.0 / (d * d);
    Sw += w;
    Sy += Klaffen.RestklaffeVY[i] * w;
    Sx += Klaffen.RestklaffeVX[i] * w;
  }
  return Sw == 0 ? Lage{} : Lage{Sy / Sw, Sx / Sw};
}

void HelmertHelmertanpass(const Passpunkte& P, const Restklaffen& Klaffen, std::span<double> Rechts,
                          std::span<double> Hoch, std::vector<Lage>* Verbesserungen) {
  const std::size_t Anzahl = std::min(Rechts.size(), Hoch.size());
  if (Verbesserungen != nullptr) Verbesserungen->resize(Anzahl);
  for (std::size_t i = 0; i < Anzahl; ++i) {
    const Lage v = HelmertAnpassung({Rechts[i], Hoch[i]}, P, Klaffen);
    Rechts[i] += v.RW;
    Hoch[i] += v.HW;
    if (Verbesserungen != nullptr) (*Verbesserungen)[i] = v;
  }
}

int HelmertAffinpara(const ReduziertePasspunkte& P, Lage SchwerpunktNeuesSystem, AffinParameter& Parameter) {
  const double Qnn = HelmertQusum(P.n), Qee = HelmertQusum(P.e), Sen = HelmertSum2(P.e, P.n);
  const double Det = Qnn * Qee - Sen * Sen;
  // The reduced coordinates of two points are opposite, but rounding may keep their determinant off 0.
  if (P.e.size() == 2 || Det == 0) return 1;
  const double SNn = HelmertSum2(P.N, P.n), SeN = HelmertSum2(P.e, P.N);
  const double SEn = HelmertSum2(P.E, P.n), SeE = HelmertSum2(P.e, P.E);
  const Lage Alt = Parameter.SchwerpunktAltesSystem, Neu = SchwerpunktNeuesSystem;
  Parameter.A11 = (Qee * SNn - Sen * SeN) / Det;
  Parameter.A12 = (Qnn * SeN - Sen * SNn) / Det;
  Parameter.A10 = Neu.HW - (Parameter.A11 * Alt.HW + Parameter.A12 * Alt.RW);
  Parameter.A21 = (Qee * SEn - Sen * SeE) / Det;
  Parameter.A22 = (Qnn * SeE - Sen * SEn) / Det;
  Parameter.A20 = Neu.RW - (Parameter.A21 * Alt.HW + Parameter.A22 * Alt.RW);
  return 0;
}

double HelmertAffinstandardab(const Passpunkte& P, const AffinParameter& a, std::size_t i, double& vY,
                              double& vX) {
  vY = P.NeuesSystemRW[i] - a.A20 - a.A21 * P.AltesSystemHW[i] - a.A22 * P.AltesSystemRW[i];
  vX = P.NeuesSystemHW[i] - a.A10 - a.A11 * P.AltesSystemHW[i] - a.A12 * P.AltesSystemRW[i];
  return Laenge(vX, vY);
}

void HelmertAffinrestklaff(const Passpunkte& P, const AffinParameter& a, std::size_t i,
                           Restklaffen& Klaffen) {
  Klaffen.LinieareAbweichungWL[i] =
      HelmertAffinstandardab(P, a, i, Klaffen.RestklaffeVY[i], Klaffen.RestklaffeVX[i]);
}

int HelmertAffin(const Passpunkte& P, AffinErgebnis& Ergebnis) {
  const std::size_t n = P.Anzahl();
  if (n < 2) return -1;
  AffinErgebnis Neu;
  AffinParameter& a = Neu.Parameter;
  if (SchwerpunkteBilden(P, a.SchwerpunktAltesSystem, Neu.SchwerpunktNeuesSystem) < 0) return -1;
  const Reduktion Reduziert(P, a.SchwerpunktAltesSystem, Neu.SchwerpunktNeuesSystem);
  a.MaximalerAbstand = Reduziert.MaximalerAbstand();
  // On the flag the calculation carries on with parameters of 0 on purpose.
  Neu.PasspunkteAufGerader = HelmertAffinpara(Reduziert.Spalten(), Neu.SchwerpunktNeuesSystem, a) != 0;
  Neu.Massstab1 = Laenge(a.A11, a.A21);
  Neu.Massstab2 = Laenge(a.A12, a.A22);
  Neu.Drehwinkel1Gon = HelmertDrehwinkel(a.A21, a.A11);
  Neu.Drehwinkel2Gon = HelmertDrehwinkel(a.A22, a.A12);  // direction of the transformed Y axis, about 90 more
  Anlegen(Neu.Klaffen, n);
  for (std::size_t i = 0; i < n; ++i) HelmertAffinrestklaff(P, a, i, Neu.Klaffen);
  if (n > 3) StandardabwSetzen(Neu.Klaffen, 2 * static_cast<double>(n) - 6);
  Ergebnis = std::move(Neu);
  return 0;
}

int HelmertAffinneupunkt(Lage Punkt, const AffinParameter& Parameter, Lage& Neu) {
  return EinenUmformen(Punkt, Parameter, Neu);
}

int HelmertAffinneukor(const AffinParameter& Parameter, std::span<double> Rechts, std::span<double> Hoch,
                       std::vector<bool>* Ausserhalb) {
  return SpaltenUmformen(Parameter, Rechts, Hoch, Ausserhalb);
}

int HelmertQuasipass(std::span<const double> ErsteRW, std::span<const double> ErsteHW,
                     std::span<const double> ZweiteRW, std::span<const double> ZweiteHW, double Radius,
                     std::vector<Passpunktkandidat>& Kandidaten) {
  std::vector<int> Indizes;
  int Treffer = 0;
  Kandidaten.clear();
  for (std::size_t i = 0; i < std::min(ZweiteRW.size(), ZweiteHW.size()); ++i) {
    HelmertQuasifind({ZweiteRW[i], ZweiteHW[i]}, ErsteRW, ErsteHW, Radius, Indizes, Treffer);
    if (Treffer != 1) continue;
    if (Kandidaten.size() == HelmertQuasiGrenze) return -1;
    Kandidaten.push_back({Indizes.front(), static_cast<int>(i), true});
  }
  return 0;
}

}  // namespace tavorena
