#include <algorithm>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/graphics/Grafikfenster.h>

namespace tavorena {

Grafikzustand GrafikFenster;
std::function<void()> GrafikBeiFenster;

namespace {

constexpr double Fangradius = 100;  // twips

void FensterMelden() {
  if (GrafikBeiFenster) GrafikBeiFenster();
}

// Takes a window over; its height follows from the form of the picture.
void FensterSetzen(double Rechts, double Hoch, double Breite) {
  Grafikzustand& G = GrafikFenster;
  if (!(Breite > 0) || G.BildBreite <= 0) return;
  G.FensterRechts = Rechts;
  G.FensterHoch = Hoch;
  G.FensterBreite = Breite;
  G.Massstab = G.BildBreite / Breite;
  G.FensterHoehe = G.BildHoehe / G.Massstab;
  FensterMelden();
}

// The window between two corners of the picture that have its form.
void FensterAusBild(double x1, double y1, double x2, double y2) {
  double Rechts1 = 0, Hoch1 = 0, Rechts2 = 0, Hoch2 = 0;
  StatusHilfeSetzen("");
  if (GrafikFenster.Massstab == 0) return;
  GrafikWeltAusPixel(std::min(x1, x2), std::max(y1, y2), Rechts1, Hoch1);
  GrafikWeltAusPixel(std::max(x1, x2), std::min(y1, y2), Rechts2, Hoch2);
  FensterSetzen(Rechts1, Hoch1, Rechts2 - Rechts1);
}

// The corners of the present window, moved and grown, in parts of the picture.
void FensterAusTeilen(double x1, double y1, double x2, double y2) {
  const double b = GrafikFenster.BildBreite, h = GrafikFenster.BildHoehe;
  FensterAusBild(x1 * b, y1 * h, x2 * b, y2 * h);
}

void AchseAnpassen(double& Von, double& Bis) {
  if (Von != Bis) return;
  Von -= 10;
  Bis += 10;
}

}  // namespace

Bildausschnitt GrafikFensterAusschnitt() {
  const Grafikzustand& G = GrafikFenster;
  return {G.FensterRechts, G.FensterHoch, G.Massstab, G.BildBreite, G.BildHoehe};
}

void GrafikFensterMerken() { GrafikFenster.Gemerkt = GrafikFenster.Massstab != 0; }

void GrafikÖffnen(double Breite, double Hoehe) {
  GrafikFenster.GrafikOffen = true;
  GrafikFenster.BildBreite = Breite;
  GrafikFenster.BildHoehe = Hoehe;
  if (!GrafikFenster.Gemerkt) return GrafikZoomAnpassen();
  GrafikFenster.Gemerkt = false;
  GrafikGrößeSetzen(Breite, Hoehe);
}

void GrafikGrößeSetzen(double Breite, double Hoehe) {
  Grafikzustand& G = GrafikFenster;
  G.BildBreite = Breite;
  G.BildHoehe = Hoehe;
  if (G.Massstab == 0) return GrafikZoomAnpassen();
  G.FensterBreite = Breite / G.Massstab;
  G.FensterHoehe = Hoehe / G.Massstab;
  FensterMelden();
}

void GrafikSchließen() { GrafikFenster.GrafikOffen = false; }

void GrafikZoomAnpassen() {
  Grafikzustand& G = GrafikFenster;
  if (KorAnzahl == 0 || G.BildBreite <= 0 || G.BildHoehe <= 0) return;
  double MinRechts = 0, MinHoch = 0, MaxRechts = 0, MaxHoch = 0;
  KorBereich(MinRechts, MinHoch, MaxRechts, MaxHoch);
  AchseAnpassen(MinRechts, MaxRechts);
  AchseAnpassen(MinHoch, MaxHoch);
  const double dRechts = MaxRechts - MinRechts, dHoch = MaxHoch - MinHoch;
  const double Breite = dRechts + dRechts * 2 / 5, Hoehe = dHoch + dHoch * 2 / 5;
  if (!(Breite > 0) || !(Hoehe > 0)) {
    return Hinweis("Fehler beim Berechnen des Koordinatenausschnittes !");
  }
  const double Massstab = std::min(G.BildBreite / Breite, G.BildHoehe / Hoehe);
  if (Massstab == 0) return;
  G.BereichRechtsVon = MinRechts - dRechts / 5;
  G.BereichHochVon = MinHoch - dHoch / 5;
  G.BereichRechtsBis = G.BereichRechtsVon + Breite;
  G.BereichHochBis = G.BereichHochVon + Hoehe;
  G.FensterRechts = G.BereichRechtsVon;
  G.FensterHoch = G.BereichHochVon;
  G.Massstab = Massstab;
  G.FensterBreite = G.BildBreite / Massstab;
  G.FensterHoehe = G.BildHoehe / Massstab;
  FensterMelden();
}

void GrafikWeltAusPixel(double x, double y, double& Rechts, double& Hoch) {
  const Grafikzustand& G = GrafikFenster;
  if (G.Massstab == 0) return;
  Rechts = G.FensterRechts + x / G.Massstab;
  Hoch = G.FensterHoch + (G.BildHoehe - y) / G.Massstab;
}

void GrafikPixelAusWelt(double Rechts, double Hoch, double& x, double& y) {
  const Grafikzustand& G = GrafikFenster;
  if (G.Massstab == 0) return;
  x = (Rechts - G.FensterRechts) * G.Massstab;
  y = G.BildHoehe - (Hoch - G.FensterHoch) * G.Massstab;
}

void GrafikAusschnitt(double x1, double y1, double x2, double y2) {
  const Grafikzustand& G = GrafikFenster;
  if (G.BildBreite <= 0 || G.BildHoehe <= 0) return;
  const double Teil = std::max(std::abs(x2 - x1) / G.BildBreite, std::abs(y2 - y1) / G.BildHoehe);
  if (Teil == 0) return;
  const double x = (x1 + x2) / 2, y = (y1 + y2) / 2, b = Teil * G.BildBreite / 2, h = Teil * G.BildHoehe / 2;
  FensterAusBild(x - b, y - h, x + b, y + h);
}

void GrafZoomin() { FensterAusTeilen(0.25, 0.25, 0.75, 0.75); }
void GrafZoomout() { FensterAusTeilen(-0.5, -0.5, 1.5, 1.5); }
void GrafZoomlinks() { FensterAusTeilen(-1.0 / 6, 0, 5.0 / 6, 1); }
void GrafZoomrechts() { FensterAusTeilen(1.0 / 6, 0, 7.0 / 6, 1); }
void GrafZoomoben() { FensterAusTeilen(0, -1.0 / 6, 1, 5.0 / 6); }
void GrafZoomunten() { FensterAusTeilen(0, 1.0 / 6, 1, 7.0 / 6); }

void GrafikZoomBei(double x, double y, double Faktor) {
  const Grafikzustand& G = GrafikFenster;
  if (G.Massstab == 0 || !(Faktor > 0)) return;
  const double Rechts = G.FensterRechts + x / G.Massstab,
               Hoch = G.FensterHoch + (G.BildHoehe - y) / G.Massstab, Neu = G.Massstab * Faktor;
  FensterSetzen(Rechts - x / Neu, Hoch - (G.BildHoehe - y) / Neu, G.BildBreite / Neu);
}

void GrafikSchieben(double dx, double dy) {
  const Grafikzustand& G = GrafikFenster;
  if (G.Massstab == 0) return;
  FensterSetzen(G.FensterRechts - dx / G.Massstab, G.FensterHoch + dy / G.Massstab, G.FensterBreite);
}

void GrafikMitte(double Rechts, double Hoch) {
  const Grafikzustand& G = GrafikFenster;
  if (G.Massstab == 0) return;
  FensterSetzen(Rechts - G.FensterBreite / 2, Hoch - G.FensterHoehe / 2, G.FensterBreite);
}

void GrafikFensterSetzen(double Rechts, double Hoch, double Breite) { FensterSetzen(Rechts, Hoch, Breite); }

double GrafikToleranz() { return GrafikFenster.Massstab == 0 ? 0 : Fangradius / GrafikFenster.Massstab; }

}  // namespace tavorena
