#include <algorithm>
#include <cmath>
#include <utility>

#include <tavorena/calc/Epochenvergleich.h>
#include <tavorena/calc/TVBerechnungsmodulHelmertAffin.h>

namespace tavorena {
namespace {

constexpr double MmJeMeter = 1000;

// The first value of a row ahead of an epoch; nullptr: there is none.
template <typename T>
const std::optional<T>* ErsterWert(const Epochenreihe& Reihe, std::size_t Epoche,
                                   std::optional<T> Epochenwert::*Teil) {
  for (std::size_t e = 0; e < Epoche; ++e) {
    if (Reihe[e].*Teil) return &(Reihe[e].*Teil);
  }
  return nullptr;
}

template <typename T>
const std::optional<T>* VorigerWert(const Epochenreihe& Reihe, std::size_t Epoche,
                                    std::optional<T> Epochenwert::*Teil) {
  for (std::size_t e = Epoche; e-- > 0;) {
    if (Reihe[e].*Teil) return &(Reihe[e].*Teil);
  }
  return nullptr;
}

// ---- references ------------------------------------------------------------------------------------

void HöhenReduzieren(std::vector<Epochenreihe>& Werte, std::span<const std::size_t> Bezug, std::size_t Epoche,
                     Epochenbezug& B) {
  double Summe = 0;
  for (const std::size_t i : Bezug) {
    const auto* Vorher = ErsterWert(Werte[i], Epoche, &Epochenwert::Hoehe);
    const auto& Jetzt = Werte[i][Epoche].Hoehe;
    if (Vorher == nullptr || !Jetzt) continue;
    Summe += *Jetzt - **Vorher;
    ++B.Höhenpunkte;
  }
  if (B.Höhenpunkte == 0) return;
  const double d = Summe / B.Höhenpunkte;
  B.dZ = d * MmJeMeter;
  for (Epochenreihe& Reihe : Werte) {
    if (Reihe[Epoche].Hoehe) *Reihe[Epoche].Hoehe -= d;
  }
}

void FitBeschreiben(const HelmertErgebnis& H, Epochenbezug& B) {
  const HelmertParameter& P = H.Parameter;
  B.dR = (P.SchwerpunktAltesSystem.RW - P.SchwerpunktNeuesSystem.RW) * MmJeMeter;
  B.dH = (P.SchwerpunktAltesSystem.HW - P.SchwerpunktNeuesSystem.HW) * MmJeMeter;
  // The fit turns back what turned in between.
  const double Gon = H.DrehwinkelGon / 0.9;
  B.DrehungMgon = (Gon > 200 ? 400 - Gon : -Gon) * 1000;
}

void LageReduzieren(std::vector<Epochenreihe>& Werte, std::span<const std::size_t> Bezug, std::size_t Epoche,
                    Epochenbezug& B) {
  std::vector<double> jR, jH, vR, vH;
  for (const std::size_t i : Bezug) {
    const auto* Vorher = ErsterWert(Werte[i], Epoche, &Epochenwert::Ort);
    const auto& Jetzt = Werte[i][Epoche].Ort;
    if (Vorher == nullptr || !Jetzt) continue;
    jR.push_back(Jetzt->RW);
    jH.push_back(Jetzt->HW);
    vR.push_back((*Vorher)->RW);
    vH.push_back((*Vorher)->HW);
  }
  HelmertErgebnis H;
  if (HelmertHelmert({jR, jH, vR, vH}, false, std::nullopt, H) < 0) return;
  B.Lagepunkte = static_cast<int>(jR.size());
  FitBeschreiben(H, B);
  for (Epochenreihe& Reihe : Werte) {
    auto& Ort = Reihe[Epoche].Ort;
    if (!Ort) continue;
    Lage Neu;
    static_cast<void>(HelmertNeupunkt(*Ort, H.Parameter, Neu));  // outside the references is no matter
    Ort = Neu;
  }
  for (const std::size_t i : Bezug) {
    const auto* Vorher = ErsterWert(Werte[i], Epoche, &Epochenwert::Ort);
    if (Vorher == nullptr || !Werte[i][Epoche].Ort) continue;
    B.KlaffungMm = std::max(B.KlaffungMm, Abstand(**Vorher, *Werte[i][Epoche].Ort) * MmJeMeter);
  }
}

// ---- movements -------------------------------------------------------------------------------------

Bewegungsstufe StufeVon(const Epochendifferenz& D, const Epochengrenzen& G) {
  const double dS = D.dS.value_or(0), dZ = std::fabs(D.dZ.value_or(0));
  if (G.Zulaessig > 0 && std::max(dS, dZ) > G.Zulaessig) return Bewegungsstufe::UeberZulaessig;
  const double Größte = std::max({std::fabs(D.dR.value_or(0)), std::fabs(D.dH.value_or(0)), dZ});
  const double SigmaD = G.Sigma * std::sqrt(2.0);
  return Größte > 3 * SigmaD   ? Bewegungsstufe::DreiSigma
         : Größte > 2 * SigmaD ? Bewegungsstufe::ZweiSigma
                               : Bewegungsstufe::Keine;
}

double Millimeter(double Meter) { return AchtStellen(Meter) * MmJeMeter; }

Epochendifferenz Differenz(const Epochenwert& Jetzt, const std::optional<Lage>* Ort,
                           const std::optional<double>* Hoehe, const Epochengrenzen& G) {
  Epochendifferenz D;
  if (Jetzt.Ort && Ort != nullptr) {
    const Lage &J = *Jetzt.Ort, &V = **Ort;
    D.dR = Millimeter(J.RW - V.RW);
    D.dH = Millimeter(J.HW - V.HW);
    D.dS = Millimeter(Abstand(V, J));
  }
  if (Jetzt.Hoehe && Hoehe != nullptr) D.dZ = Millimeter(*Jetzt.Hoehe - **Hoehe);
  D.Stufe = StufeVon(D, G);
  return D;
}

std::vector<Epochenschritt> Schritte(const Epochenreihe& Reihe, const Epochengrenzen& G) {
  std::vector<Epochenschritt> S(Reihe.size());
  for (std::size_t e = 1; e < Reihe.size(); ++e) {
    S[e].ZurErsten = Differenz(Reihe[e], ErsterWert(Reihe, e, &Epochenwert::Ort),
                               ErsterWert(Reihe, e, &Epochenwert::Hoehe), G);
    S[e].ZurVorigen = Differenz(Reihe[e], VorigerWert(Reihe, e, &Epochenwert::Ort),
                                VorigerWert(Reihe, e, &Epochenwert::Hoehe), G);
  }
  return S;
}

}  // namespace

int Epochenvergleich(std::span<const Epochenreihe> Punkte, std::span<const std::size_t> Bezug,
                     const Epochengrenzen& Grenzen, Epochenergebnis& E) {
  const std::size_t Epochen = Punkte.empty() ? 0 : Punkte.front().size();
  for (const Epochenreihe& Reihe : Punkte) {
    if (Reihe.size() != Epochen) return -1;
  }
  for (const std::size_t i : Bezug) {
    if (i >= Punkte.size()) return -1;
  }
  Epochenergebnis Neu;
  Neu.Werte.assign(Punkte.begin(), Punkte.end());
  Neu.Bezug.resize(Epochen);
  for (std::size_t e = 1; e < Epochen; ++e) {
    HöhenReduzieren(Neu.Werte, Bezug, e, Neu.Bezug[e]);
    LageReduzieren(Neu.Werte, Bezug, e, Neu.Bezug[e]);
  }
  for (const Epochenreihe& Reihe : Neu.Werte) Neu.Schritte.push_back(Schritte(Reihe, Grenzen));
  E = std::move(Neu);
  return 0;
}

}  // namespace tavorena
