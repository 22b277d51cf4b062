#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Text.h>
#include <tavorena/records/Transformation.h>
#include <tavorena/worksheets/Passung.h>

namespace tavorena {
namespace {

Passergebnis Befund(int Ergebnis) {
  return Ergebnis == 0    ? Passergebnis::Gut
         : Ergebnis == -2 ? Passergebnis::DivisionDurchNull
                          : Passergebnis::ZuWenig;
}

}  // namespace

void Passung::Rechnen(std::vector<Passpaar>& Paare, const Transformationswahl& W) {
  Gewählt = W;
  H = {};
  A = {};
  for (std::vector<double>* S : {&AltR, &AltH, &NeuR, &NeuH}) S->clear();
  for (const Passpaar& P : Paare) {
    if (!P.Ein) continue;
    AltR.push_back(P.Alt.RW);
    AltH.push_back(P.Alt.HW);
    NeuR.push_back(P.Neu.RW);
    NeuH.push_back(P.Neu.HW);
  }
  Stand = Befund(W.Affin ? HelmertAffin(Spalten(), A) : HelmertHelmert(Spalten(), !W.MasstabFest, W.Fest, H));
  if (W.Affin && A.PasspunkteAufGerader) Stand = Passergebnis::AufGerader;
  std::size_t i = 0;
  for (Passpaar& P : Paare) {
    P.VY = P.VX = P.WL = 0;
    if (!Passt()) continue;
    if (P.Ein) {
      P.VY = Klaffen().RestklaffeVY[i];
      P.VX = Klaffen().RestklaffeVX[i];
      P.WL = Klaffen().LinieareAbweichungWL[i++];
    } else {
      Lage Neu;
      static_cast<void>(Umformen(P.Alt, Neu));
      P.VY = P.Neu.RW - Neu.RW;
      P.VX = P.Neu.HW - Neu.HW;
      P.WL = std::hypot(P.VY, P.VX);
    }
  }
}

Wert Passung::MK() const {
  const bool Bestimmt = Gewählt.Affin ? Anzahl() > 3 : Anzahl() > 2;
  return Bestimmt ? Wert(Klaffen().StandardabwMK) : Wert();
}

Wert Passung::ML() const { return MK().IstGegeben() ? Wert(Klaffen().StandardabwML) : Wert(); }

bool Passung::ÜberGrenze(const Passpaar& P, double Klaffe) const {
  return P.Ein && !RestklaffenMarke({Klaffe, 0, 0, {}}, MK()).empty();
}

Lage Passung::Mitte() const {
  return Gewählt.Affin ? A.Parameter.SchwerpunktAltesSystem : H.Parameter.SchwerpunktAltesSystem;
}

double Passung::Rand() const {
  return Gewählt.Affin ? A.Parameter.MaximalerAbstand : H.Parameter.MaximalerAbstand;
}

bool Passung::Umformen(Lage Punkt, Lage& Neu) const {
  return (Gewählt.Affin ? HelmertAffinneupunkt(Punkt, A.Parameter, Neu)
                        : HelmertNeupunkt(Punkt, H.Parameter, Neu)) == 0;
}

Lage Passung::InsAlte(Lage Vektor) const {
  const AffinParameter& f = A.Parameter;
  const double a = H.Parameter.ParamA, b = H.Parameter.ParamB;
  const double YR = Gewählt.Affin ? f.A22 : a, YH = Gewählt.Affin ? f.A21 : b;
  const double XR = Gewählt.Affin ? f.A12 : -b, XH = Gewählt.Affin ? f.A11 : a;
  const double Det = YR * XH - YH * XR;
  if (Det == 0) return {};
  return {(Vektor.RW * XH - Vektor.HW * YH) / Det, (YR * Vektor.HW - XR * Vektor.RW) / Det};
}

int Passung::TabelleUmformen(const std::vector<Passpaar>& Paare, bool Verteilen, Umformung& U) const {
  const auto Zeilen = static_cast<std::size_t>(KorAnzahl);
  U.Rechts.assign(KorRechts.begin(), KorRechts.begin() + KorAnzahl);
  U.Hoch.assign(KorHoch.begin(), KorHoch.begin() + KorAnzahl);
  std::vector<bool> Ausserhalb;
  if (Gewählt.Affin) {
    HelmertAffinneukor(A.Parameter, U.Rechts, U.Hoch, &Ausserhalb);
  } else {
    HelmertHelmertneukor(H.Parameter, U.Rechts, U.Hoch, &Ausserhalb);
  }
  Nummernverzeichnis Nummern;
  int Laufende = 0;
  for (const Passpaar& P : Paare) {
    if (P.Ein) Nummern.Aufnehmen(P.Pnr, ++Laufende);
  }
  std::vector<Prottransformiert> Punkte(Zeilen);
  for (std::size_t z = 0; z < Zeilen; ++z) {
    const std::string& Pnr = KorPnr(static_cast<int>(z));
    Punkte[z] = {U.Rechts[z], U.Hoch[z], Pnr, Ausserhalb[z], std::max(Nummern.Suche(Pnr), 0)};
  }
  U.Listen = TransformationListe(Optionen.OptNachkommastellen, Punkte);
  if (!Verteilen) return 0;
  constexpr std::size_t Stück = 64;
  Atempause Pause(0.2);
  std::vector<Lage> Verbesserungen;
  for (std::size_t Ab = 0; Ab < Zeilen; Ab += Stück) {
    const std::size_t n = std::min(Stück, Zeilen - Ab);
    const std::span<double> R(U.Rechts), Hoch(U.Hoch);
    HelmertHelmertanpass(Spalten(), Klaffen(), R.subspan(Ab, n), Hoch.subspan(Ab, n), &Verbesserungen);
    for (std::size_t z = Ab; z < Ab + n; ++z) {
      Punkte[z].Y = U.Rechts[z];
      Punkte[z].X = U.Hoch[z];
      Punkte[z].dY = Verbesserungen[z - Ab].RW;
      Punkte[z].dX = Verbesserungen[z - Ab].HW;
    }
    if (!Pause.Fällig()) continue;
    StatusHilfeSetzen("Restklaffen verteilt auf " + Anzahltext(static_cast<int>(Ab + n), "Punkt", "Punkte"));
    AblaufPort().EreignisseAbarbeiten();
    if (std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop) return -1;
  }
  Block Angepasst = AnpassungListe(Optionen.OptNachkommastellen, Punkte);
  std::move(Angepasst.Zeilen.begin(), Angepasst.Zeilen.end(), std::back_inserter(U.Listen.Zeilen));
  return 0;
}

Block Passung::Protokoll(int Nachkomma, const std::vector<Passpaar>& Paare) const {
  const Lage Alt = Mitte();
  const Lage Neu = Gewählt.Affin ? A.SchwerpunktNeuesSystem : H.Parameter.SchwerpunktNeuesSystem;
  Prottransformation T{Alt.RW, Alt.HW, Neu.RW, Neu.HW, {}, MK(), ML()};
  for (const Passpaar& P : Paare) {
    if (P.Ein) T.Klaffen.push_back({P.VY, P.VX, P.WL, P.Pnr});
  }
  if (Gewählt.Affin) {
    const AffinParameter& a = A.Parameter;
    return AffinBlock(Nachkomma,
                      {std::move(T), A.PasspunkteAufGerader, A.Massstab1, A.Drehwinkel1Gon / 0.9, A.Massstab2,
                       A.Drehwinkel2Gon / 0.9, a.A10, a.A11, a.A12, a.A20, a.A21, a.A22});
  }
  return HelmertBlock(Nachkomma, {std::move(T), H.Rechenachse, Gewählt.MasstabFest, H.Massstab,
                                  H.DrehwinkelGon / 0.9, H.Parameter.ParamA, H.Parameter.ParamB, H.WS, H.D});
}

}  // namespace tavorena
