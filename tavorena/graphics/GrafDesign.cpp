#include <array>
#include <cmath>
#include <vector>

#include <tavorena/calc/Schnitte.h>
#include <tavorena/calc/TVBerechnungsmodul.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/GrafDesign.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>

namespace tavorena {
namespace {

using enum Zeichenschritt;

struct {
  Zeichenschritt Schritt = Keiner;
  std::vector<Lage> Punkte;  // that were clicked for what is drawn
} Zeichnung;

const char* Aufforderung(Zeichenschritt S) {
  switch (S) {
    case LinieAnfang:
      return "Startpunkt der Linie identifizieren !";
    case LinieEnde:
      return "Endpunkt der Linie identifizieren !";
    case PolygonAnfang:
      return "Startpunkt Polygon identifizieren !";
    case PolygonWeiter:
      return "Weiteren Polygonpunkt identifizieren !";
    case BogenAnfang:
      return "Startpunkt Bogen identifizieren !";
    case BogenWeiter:
      return "Weiteren Bogenpunkt identifizieren !";
    case BogenEnde:
      return "Endpunkt Bogen identifizieren !";
    case Löschen:
      return "Zu löschende Linie / Bogen identifizieren !";
    case Keiner:
      break;
  }
  return "";
}

void Weiter(Zeichenschritt S) {
  Zeichnung.Schritt = S;
  GrafDesignZeigen();
}

// Says that the store is full. @return whether the element came in
bool Aufgenommen(int Handle) {
  if (Handle < 0) {
    StatusHilfeSetzen("Maximale Anzahl von " + std::to_string(GrafikFreieGrenze) + " Elementen erreicht");
  }
  return Handle >= 0;
}

// From the last point to P; none between equal points.
bool SegmentZeichnen(Lage P) {
  const Lage A = Zeichnung.Punkte.back();
  if (A.RW == P.RW && A.HW == P.HW) return true;
  return Aufgenommen(GrafikLinieHinzu({A.RW, A.HW, P.RW, P.HW, FarbeSchwarz, Strich::Durchgezogen, true}));
}

// The arc from the first to the last of three points that runs through the second; none through a line.
bool BogenZeichnen(Lage P) {
  GrafikBogen Bogen;
  if (BogenDurchDrei(Zeichnung.Punkte[0], Zeichnung.Punkte[1], P, Bogen) < 0) return true;
  Bogen.Frei = true;
  return Aufgenommen(GrafikBogenHinzu(Bogen));
}

void PunktNehmen(Lage P) {
  std::vector<Lage>& Punkte = Zeichnung.Punkte;
  switch (Zeichnung.Schritt) {
    case LinieAnfang:
    case PolygonAnfang:
    case BogenAnfang:
      Punkte = {P};
      return Weiter(Zeichnung.Schritt == LinieAnfang     ? LinieEnde
                    : Zeichnung.Schritt == PolygonAnfang ? PolygonWeiter
                                                         : BogenWeiter);
    case LinieEnde:
      if (!SegmentZeichnen(P)) return;
      Punkte.clear();
      return Weiter(LinieAnfang);
    case PolygonWeiter:
      if (!SegmentZeichnen(P)) return;
      Punkte.push_back(P);
      return Weiter(PolygonWeiter);
    case BogenWeiter:
      Punkte.push_back(P);
      return Weiter(BogenEnde);
    case BogenEnde:
      if (!BogenZeichnen(P)) return;
      Punkte.clear();
      return Weiter(BogenAnfang);
    case Löschen:
    case Keiner:
      return;
  }
}

std::string Zahl(double x) { return ZahlFormat(x, -1, Optionen.OptNachkommastellen); }

}  // namespace

int BogenDurchDrei(Lage A, Lage B, Lage E, GrafikBogen& Bogen) {
  Kreismittelpunkt Kreis;
  if (KreisMittelpunktBerechnung(A, B, E, Kreis) < 0) return -1;
  const auto Winkel = [&](Lage L) { return WinkelGrad(L.HW - Kreis.M.HW, L.RW - Kreis.M.RW); };
  const double Anfang = Winkel(A), Schluß = Winkel(E);
  double Mitte = Winkel(B) - Anfang, Weite = Schluß - Anfang;
  GradReduzieren(Mitte);
  GradReduzieren(Weite);
  const bool Links = Mitte < Weite;
  Bogen.Rechts = Kreis.M.RW;
  Bogen.Hoch = Kreis.M.HW;
  Bogen.Radius = Kreis.Radien[0];
  Bogen.Anfang = Links ? Anfang : Schluß;
  Bogen.Ende = Links ? Schluß : Anfang;
  return 0;
}

void GrafDesign(Zeichenbefehl Befehl) {
  constexpr std::array<Zeichenschritt, 4> Erste{LinieAnfang, PolygonAnfang, BogenAnfang, Löschen};
  Zeichnung.Punkte.clear();
  Weiter(Erste[static_cast<std::size_t>(Befehl)]);
}

Zeichenschritt GrafDesignSchritt() { return Zeichnung.Schritt; }

void GrafDesignZeigen() { StatusHilfeSetzen(Aufforderung(Zeichnung.Schritt)); }

void GrafDesignKlick(double Rechts, double Hoch) {
  if (Zeichnung.Schritt == Keiner) return;
  if (Zeichnung.Schritt == Löschen) {
    if (GrafikFreiesWeg(Rechts, Hoch, GrafikToleranz()) == 0) GrafDesignZeigen();
    return;
  }
  const int Zeile = GrafikPunktSuchen(Rechts, Hoch, GrafikToleranz());
  if (Zeile < 0) return;
  const KorSatz P = KorPunkt(Zeile);
  PunktNehmen({P.Rechts, P.Hoch});
}

bool GrafDesignVerlassen() {
  if (Zeichnung.Schritt == Keiner) return false;
  Zeichnung.Punkte.clear();
  Weiter(Keiner);
  return true;
}

std::string GrafikOrtstext(double Rechts, double Hoch) {
  std::string Text = "Rechts: " + Zahl(Rechts) + "  Hoch: " + Zahl(Hoch);
  const std::vector<Lage>& P = Zeichnung.Punkte;
  if (P.empty()) return Text;
  Text += "  Länge: " + Zahl(Strecke(P.back().RW, P.back().HW, Rechts, Hoch));
  double Linie = 0, Seitwärts = 0;
  if (P.size() > 1 && Linienelemente(P[P.size() - 2], P.back(), {Rechts, Hoch}, Linie, Seitwärts) == 0)
    Text += "  Seitw.: " + Zahl(Seitwärts);
  return Text;
}

void GrafDesignLeeren() { Zeichnung = {}; }

}  // namespace tavorena
