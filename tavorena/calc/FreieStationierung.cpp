#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/calc/FreieStationierung.h>
#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>

namespace tavorena {
namespace {

// Columns of one call: the local system y, x of the instrument and the known points R, H, both reduced.
struct Arbeitsspalten {
  explicit Arbeitsspalten(std::size_t Anzahl) : y(Anzahl), x(Anzahl), R(Anzahl), H(Anzahl) {}
  std::vector<double> y, x, R, H;
};

void LokaleKoordinaten(const Anschlussbeobachtungen& B, Arbeitsspalten& s) {
  for (std::size_t i = 0; i < s.y.size(); ++i) {
    const double Horizontal = B.Strecke[i] * SinGon(B.Vkgon[i]);
    s.y[i] = Horizontal * SinGon(B.RichtungGon[i]);
    s.x[i] = Horizontal * CosGon(B.RichtungGon[i]);
  }
}

void Reduzieren(std::vector<double>& RW, std::vector<double>& HW, Lage Schwerpunkt) {
  for (double& Zahl : RW) Zahl -= Schwerpunkt.RW;
  for (double& Zahl : HW) Zahl -= Schwerpunkt.HW;
}

double Orientierung(double a, double b) {
  double Gon = PolarWinkelGon(b, a);
  GonReduzieren(Gon);  // an angle just below 0 was rounded up to the full circle
  return Gon;
}

// No redundancy leaves MK and ML at 0. The congruent fit has 2n - 3, so that two points have one.
void StandardabwSetzen(FreieStation& Station, std::size_t Anzahl, int Transformationsart) {
  const double c = Transformationsart == TransformationsartKongruent ? 3 : 4;
  const double Freiheitsgrade = 2 * static_cast<double>(Anzahl) - c;
  if (Freiheitsgrade <= 0) return;
  Station.StandardabwMK = std::sqrt(HelmertQusum(Station.WL) / Freiheitsgrade);
  Station.StandardabwML = Station.StandardabwMK * std::sqrt(2.0);
}

}  // namespace

int FreieStationierung(const Anschlussbeobachtungen& B, int Transformationsart, FreieStation& Station) {
  const std::size_t n = B.Anzahl();
  if (n == 0) return -1;
  Arbeitsspalten s(n);
  LokaleKoordinaten(B, s);
  std::copy(B.PunktRW.begin(), B.PunktRW.end(), s.R.begin());
  std::copy(B.PunktHW.begin(), B.PunktHW.end(), s.H.begin());
  Lage Lokal, Bekannt;
  if (HelmertSchwerpu(s.y, s.x, Lokal) < 0 || HelmertSchwerpu(s.R, s.H, Bekannt) < 0) return -1;
  Reduzieren(s.y, s.x, Lokal);
  Reduzieren(s.R, s.H, Bekannt);
  const ReduziertePasspunkte P{s.y, s.x, s.R, s.H};
  double a = 0, b = 0;
  if (HelmertTranspara(P, a, b) < 0) a = b = 0;  // all on one spot: it goes on with these on purpose
  FreieStation Neu;
  Neu.Massstab = std::sqrt(a * a + b * b);
  if (Transformationsart == TransformationsartKongruent) {
    if (Neu.Massstab != 0) {
      a /= Neu.Massstab;
      b /= Neu.Massstab;
    }
    Neu.Massstab = 1;  // exactly, also for a = b = 0; the Helmert fit takes the root again: both are meant
  }
  Neu.ParamA = a;
  Neu.ParamB = b;
  Neu.EpsilonGon = Orientierung(a, b);
  for (auto* Spalte : {&Neu.VRechts, &Neu.VHoch, &Neu.WL}) Spalte->resize(n);
  for (std::size_t i = 0; i < n; ++i) Neu.WL[i] = HelmertStandardab(P, a, b, i, Neu.VRechts[i], Neu.VHoch[i]);
  StandardabwSetzen(Neu, n, Transformationsart);
  Neu.StandPunkt = {(Bekannt.RW - a * Lokal.RW) - b * Lokal.HW, (Bekannt.HW - a * Lokal.HW) + b * Lokal.RW};
  Station = std::move(Neu);
  return 0;
}

Lage FreieStationierungKleinpunkt(Lage StandPunkt, double EpsilonGon, double RichtungGon, double Strecke,
                                  double Vkgon) {
  double t = RichtungGon + EpsilonGon;
  if (t >= 400) t -= 400;
  const double tGrad = t * 0.9, s = Strecke * SinGrad(Vkgon * 0.9);
  return {StandPunkt.RW + s * SinGrad(tGrad), StandPunkt.HW + s * CosGrad(tGrad)};
}

double FStatPolarerAnschluss(Lage StandPunkt, Lage Anschlusspunkt, double RichtungGon) {
  double Epsilon = Richtung(StandPunkt, Anschlusspunkt) - RichtungGon;
  GonReduzieren(Epsilon);
  return Epsilon;
}

int FStatRechneMittlereHöhe(const Hoehenbeobachtungen& B, Stationshoehe& Ergebnis) {
  const std::size_t n = B.PunktHoehe.size();
  if (B.Zielhoehe.size() != n || B.Vkgon.size() != n || B.Strecke.size() != n) return -1;
  Stationshoehe Neu;
  Neu.Hoehe.resize(n);
  Neu.Gewicht.resize(n);
  Neu.dHo.resize(n);
  for (std::size_t i = 0; i < n; ++i) {
    Neu.Hoehe[i] =
        ((B.PunktHoehe[i] + B.Zielhoehe[i]) - B.Strecke[i] * CosGon(B.Vkgon[i])) - B.InstrumentenHoehe;
    if (B.Strecke[i] > 0 && B.PunktHoehe[i] != 0 && i < HoehenmittelGrenze) Neu.Gewicht[i] = 1 / B.Strecke[i];
  }
  // Without rows the height stays 0, which is none.
  static_cast<void>(MittelGewichtet(Neu.Hoehe, Neu.Gewicht, static_cast<int>(std::min(n, HoehenmittelGrenze)),
                                    Neu.StandHoehe));
  for (std::size_t i = 0; i < n; ++i) {
    if (B.PunktHoehe[i] != 0) Neu.dHo[i] = Neu.StandHoehe - Neu.Hoehe[i];
  }
  Ergebnis = std::move(Neu);
  return 0;
}

double FStatPolarpunktHoehe(double StandHoehe, double InstrumentenHoehe, double Strecke, double Vkgon,
                            double Zielhoehe) {
  if (Vkgon == 0) return 0;
  return (StandHoehe + InstrumentenHoehe) + Strecke * CosGon(Vkgon) - Zielhoehe;
}

}  // namespace tavorena
