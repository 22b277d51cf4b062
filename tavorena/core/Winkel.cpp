#include <cmath>

#include <tavorena/core/Winkel.h>

namespace tavorena {
namespace {

void Reduzieren(double& Wert, double Vollkreis) {
  if (!std::isfinite(Wert)) return;
  if (std::fabs(Wert) > 16 * Vollkreis) Wert = std::fmod(Wert, Vollkreis);  // exact, and ends for any value
  while (Wert < 0) Wert += Vollkreis;
  while (Wert >= Vollkreis) Wert -= Vollkreis;
}

bool AnzahlPasst(int Anzahl, std::span<const double> Liste) {
  return Anzahl > 0 && static_cast<std::size_t>(Anzahl) <= Liste.size();
}

double Bogen(double Winkel, double Vollkreis) { return Pi() * (2 * (Winkel / Vollkreis)); }

}  // namespace

double Pi() {
  static const double Wert = 4 * std::atan(1.0);
  return Wert;
}

double Strecke(double R1, double H1, double R2, double H2) {
  const double dR = R2 - R1, dH = H2 - H1;
  return std::sqrt(dR * dR + dH * dH);
}

double AchtStellen(double Meter) { return std::round(Meter * 1e8) / 1e8; }

double WinkelRad(double DeltaHoch, double DeltaRechts) {
  const double y = DeltaHoch, x = DeltaRechts, pi = Pi();
  if (x == 0) return y >= 0 ? pi / 2 : 3 * pi / 2;
  if (y == 0) return x >= 0 ? 0 : pi;
  const double t = std::atan(y / x);
  if (y >= 0) return t >= 0 ? t : t + pi;
  return t < 0 ? t + 2 * pi : t + pi;
}

double WinkelGrad(double DeltaHoch, double DeltaRechts) {
  return 360 * WinkelRad(DeltaHoch, DeltaRechts) / (2 * Pi());
}

double WinkelGon(double DeltaHoch, double DeltaRechts) {
  return 400 * WinkelRad(DeltaHoch, DeltaRechts) / (2 * Pi());
}

double RadNachGonVoll(double Rad) { return Rad == 0 ? 0 : 400 - 200 * Rad / Pi(); }

void GonReduzieren(double& Gon) { Reduzieren(Gon, 400); }
void GradReduzieren(double& Grad) { Reduzieren(Grad, 360); }

double SinGon(double Gon) { return std::sin(Bogen(Gon, 400)); }
double CosGon(double Gon) { return std::cos(Bogen(Gon, 400)); }
double TanGon(double Gon) { return std::tan(Bogen(Gon, 400)); }
double SinGrad(double Grad) { return std::sin(Bogen(Grad, 360)); }
double CosGrad(double Grad) { return std::cos(Bogen(Grad, 360)); }

double GonNachGradMath(double Gon) { return Gon == 0 ? 0 : 360 - 360 * Gon / 400; }
double GradNachGonMath(double Grad) { return Grad == 0 ? 0 : 400 - 400 * Grad / 360; }

double Richtungswinkel(double R1, double H1, double R2, double H2) {
  double t = RadNachGonVoll(WinkelRad(H2 - H1, R2 - R1)) - 300;
  GonReduzieren(t);
  return t;
}

int Schwerpunkt(std::span<const double> Rechts, std::span<const double> Hoch, int Anzahl, double& R,
                double& H) {
  if (!AnzahlPasst(Anzahl, Rechts) || !AnzahlPasst(Anzahl, Hoch)) return -1;
  double SummeR = 0, SummeH = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(Anzahl); ++i) {
    SummeR += Rechts[i];
    SummeH += Hoch[i];
  }
  R = SummeR / Anzahl;
  H = SummeH / Anzahl;
  return 0;
}

int MittelOhneNull(std::span<const double> Liste, int Anzahl, double& Mittel) {
  if (!AnzahlPasst(Anzahl, Liste)) return -1;
  double Summe = 0;
  int Belegt = 0;
  for (const double Wert : Liste.first(static_cast<std::size_t>(Anzahl))) {
    if (Wert == 0) continue;
    Summe += Wert;
    ++Belegt;
  }
  Mittel = Belegt > 0 ? Summe / Belegt : 0;
  return 0;
}

int MittelGewichtet(std::span<const double> Liste, std::span<const double> Gewichte, int Anzahl,
                    double& Mittel) {
  if (!AnzahlPasst(Anzahl, Liste) || !AnzahlPasst(Anzahl, Gewichte)) return -1;
  double Summe = 0, Gewicht = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(Anzahl); ++i) {
    Summe += Liste[i] * Gewichte[i];
    Gewicht += Gewichte[i];
  }
  Mittel = Gewicht != 0 ? Summe / Gewicht : 0;
  return 0;
}

void PunkteImKreis(double R, double H, std::span<const double> Rechts, std::span<const double> Hoch,
                   int Anzahl, std::vector<int>& Indizes, int& Treffer, double Radius) {
  Indizes.clear();
  for (int i = 0; AnzahlPasst(i + 1, Rechts) && AnzahlPasst(i + 1, Hoch) && i < Anzahl; ++i) {
    const auto z = static_cast<std::size_t>(i);
    if (Strecke(R, H, Rechts[z], Hoch[z]) < Radius) Indizes.push_back(i);
  }
  Treffer = static_cast<int>(Indizes.size());
}

int PunktIstNah(double R1, double H1, double R2, double H2, double Grenze) {
  return AchtStellen(Strecke(R1, H1, R2, H2)) <= Grenze ? 1 : 0;
}

}  // namespace tavorena
