#include <cmath>
#include <utility>

#include <tavorena/calc/Polygon.h>

namespace tavorena {
namespace {

bool Endlich(const PolygonZug& Z) {
  const auto Gut = [](double a, double b) { return std::isfinite(a) && std::isfinite(b); };
  for (const Lage& P : {Z.PFA, Z.PA, Z.PE, Z.PFE}) {
    if (!Gut(P.RW, P.HW)) return false;
  }
  for (const PolygonZeile& Zeile : Z.Zeilen) {
    if (!Gut(Zeile.Winkel, Zeile.Strecke)) return false;
  }
  return Gut(Z.PolygonAnfWinkel, Z.PolygonEndWinkel) && std::isfinite(Z.PolygonAnfStrecke);
}

/// The bearing of the next side.
double Weiter(double t, double Brechungswinkel) {
  t += 200 + Brechungswinkel;
  GonReduzieren(t);
  return t;
}

/// Bearings from the measured angles. Without a start connection the first one is 0 for the time being.
void Richtungen(const PolygonZug& Zug, bool RichtungAnschluss, PolygonErgebnis& E) {
  E.Seiten.resize(Zug.Zeilen.size() + 1);
  double t = RichtungAnschluss ? Weiter(Richtung(Zug.PFA, Zug.PA), Zug.PolygonAnfWinkel) : 0;
  E.Seiten[0].t = t;
  for (std::size_t i = 0; i < Zug.Zeilen.size(); ++i) {
    t = Weiter(t, Zug.Zeilen[i].Winkel);
    E.Seiten[i + 1].t = t;
  }
}

/// Angular misclosure of two connections and its distribution: bearing i gets i times FW/n.
void WinkelAbschluss(const PolygonZug& Zug, bool Verteilen, PolygonErgebnis& E) {
  // Deliberately not reduced: see the header.
  E.FW = Richtung(Zug.PE, Zug.PFE) - Weiter(E.Seiten.back().t, Zug.PolygonEndWinkel);
  E.WinkelVerteilt = Verteilen && E.d1 > E.S / 2 && E.d2 > E.S / 2 && std::fabs(E.FW) <= 200;
  if (!E.WinkelVerteilt) return;
  E.Verbesserung = E.FW / E.n;
  int i = 0;
  for (PolygonSeite& Seite : E.Seiten) {
    Seite.t += ++i * E.Verbesserung;
    GonReduzieren(Seite.t);
  }
}

/// Vectors of the sides with all bearings turned by Drehung [gon]. @return their sum
Lage Vektoren(const PolygonZug& Zug, double Drehung, PolygonErgebnis& E) {
  Lage Summe;
  E.SummeS = 0;
  double s = Zug.PolygonAnfStrecke;
  for (std::size_t i = 0; i < E.Seiten.size(); ++i) {
    PolygonSeite& Seite = E.Seiten[i];
    if (i > 0) s = Zug.Zeilen[i - 1].Strecke;
    Seite.t += Drehung;
    GonReduzieren(Seite.t);
    Seite.dR = s * SinGon(Seite.t);
    Seite.dH = s * CosGon(Seite.t);
    Summe = {Summe.RW + Seite.dR, Summe.HW + Seite.dH};
    E.SummeS += s;
  }
  E.L = std::hypot(Summe.RW, Summe.HW);
  if (E.L <= 1e-12 * std::fabs(E.SummeS)) E.L = 0;  // closed, but for the rounding of the sum
  return Summe;
}

/// Misclosure in Rechts and Hoch, split along and across the chain.
void Abschlussfehler(const PolygonZug& Zug, Lage Summe, PolygonErgebnis& E) {
  E.WY = Zug.PE.RW - Zug.PA.RW - Summe.RW;
  E.WX = Zug.PE.HW - Zug.PA.HW - Summe.HW;
  E.Ring = E.S == 0 || E.L == 0;
  if (E.L == 0) return;
  E.FL = (Summe.RW * E.WY + Summe.HW * E.WX) / E.L;
  E.FQ = (Summe.HW * E.WY - Summe.RW * E.WX) / E.L;
}

void Toleranzen(PolygonErgebnis& E) {
  const double L100 = E.S * 0.01, n = E.n, Wurzel = std::sqrt(n);
  const double Linear = 0.1 + 0.07 * std::sqrt(0.1 * L100);
  E.TP = {0.006 + 0.002 * Wurzel, Linear, Linear};
  E.NP = {0.01 + 0.011 * Wurzel * (n - 1) / L100, 0.06 + 0.015 * L100 + 0.04 * std::sqrt(L100),
          0.06 + 0.007 * L100 + 0.005 * n * Wurzel};
  if (L100 == 0) E.NP.FW = E.TP.FW;  // a ring has no second limit, it would divide by 0
}

/// Corrections of the sides, if asked for, and the coordinates.
void Koordinaten(const PolygonZug& Zug, PolygonErgebnis& E) {
  const double c1 = E.LinearVerteilt ? E.FL / E.L : 0, c2 = E.LinearVerteilt ? E.FQ / E.L : 0;
  Lage Summe;
  for (PolygonSeite& Seite : E.Seiten) {
    Seite.vR = Seite.dR * c1 + Seite.dH * c2;
    Seite.vH = Seite.dH * c1 - Seite.dR * c2;
    Summe = {Summe.RW + Seite.dR + Seite.vR, Summe.HW + Seite.dH + Seite.vH};
    Seite.Ende = {Zug.PA.RW + Summe.RW, Zug.PA.HW + Summe.HW};
  }
}

}  // namespace

int PolygonCalc(const PolygonZug& Zug, bool RichtungAnschluss, bool RichtungAbschluss, bool WinkelVerteilen,
                bool LinearVerteilen, PolygonErgebnis& Ergebnis) {
  if (Zug.Zeilen.empty() || (RichtungAbschluss && !RichtungAnschluss)) return -1;
  if (Zug.Zeilen.size() >= PolygonMaxSeiten) return -2;
  if (!Endlich(Zug)) return -1;
  PolygonErgebnis E;
  E.S = Abstand(Zug.PA, Zug.PE);
  if (RichtungAnschluss) E.d1 = Abstand(Zug.PFA, Zug.PA);
  if (RichtungAbschluss) E.d2 = Abstand(Zug.PE, Zug.PFE);
  if ((RichtungAnschluss && E.d1 == 0) || (RichtungAbschluss && E.d2 == 0)) return -1;
  E.n = static_cast<int>(Zug.Zeilen.size()) + (RichtungAnschluss ? 2 : 0);

  Richtungen(Zug, RichtungAnschluss, E);
  if (RichtungAbschluss) WinkelAbschluss(Zug, WinkelVerteilen, E);
  Lage Summe = Vektoren(Zug, 0, E);
  if (!RichtungAnschluss) {
    if (E.S == 0 || E.L == 0) return -1;
    Summe = Vektoren(Zug, Richtung(Zug.PA, Zug.PE) - Richtung({0, 0}, Summe), E);
  }
  if (!std::isfinite(E.S + E.L)) return -1;  // coordinates that nothing on Earth has
  Abschlussfehler(Zug, Summe, E);
  Toleranzen(E);
  E.LinearVerteilt = LinearVerteilen && !E.Ring;
  Koordinaten(Zug, E);
  Ergebnis = std::move(E);
  return 0;
}

const PolygonToleranzen* PolygonToleranz(const PolygonErgebnis& Ergebnis, PolygonKlasse Klasse) {
  if (Klasse == PolygonKlasse::Frei) return nullptr;
  return Klasse == PolygonKlasse::NP && !Ergebnis.Ring ? &Ergebnis.NP : &Ergebnis.TP;
}

}  // namespace tavorena
