#include <algorithm>
#include <cmath>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/graphics/Nummernwahl.h>
#include <tavorena/graphics/Punktindex.h>
#include <tavorena/graphics/Punktzeichen.h>

namespace tavorena {

bool GrafikUngesichert = false;
Grafikwahl GrafikWahl;
std::function<void()> GrafikBeiÄnderung;

namespace {

constexpr int Schriftgrad = 8;         // points
constexpr double Leistenlänge = 2400;  // twips that the scale bar may take
constexpr double Leistenrand = 300;    // twips from the corner

struct {
  Elementspeicher<GrafikLinie> Linien;
  Elementspeicher<GrafikBogen> Bogen;
  Elementspeicher<GrafikText> Texte;
  Elementspeicher<GrafikMarke> Marken;
  Punktindex Index;
  Nummernwahl Wahl;
} Bild;

template <typename Element>
int Hinzu(Elementspeicher<Element>& Speicher, const Element& Neu) {
  const int Handle = Speicher.Hinzu(Neu);
  GrafikNeuZeichnen();
  return Handle;
}

template <typename Element>
int FreiHinzu(Elementspeicher<Element>& Speicher, const Element& Neu) {
  if (Neu.Frei) {
    int Anzahl = 0;
    Speicher.Jedes([&](int, const Element& E) { Anzahl += E.Frei ? 1 : 0; });
    if (Anzahl >= GrafikFreieGrenze) return -1;
    GrafikUngesichert = true;
  }
  return Hinzu(Speicher, Neu);
}

template <typename Element>
void Weg(Elementspeicher<Element>& Speicher, int Handle) {
  if (Speicher.Weg(Handle) == 0) GrafikNeuZeichnen();
}

template <typename Element>
std::vector<Element> Freie(const Elementspeicher<Element>& Speicher) {
  std::vector<Element> Alle;
  Speicher.Jedes([&](int, const Element& E) {
    if (E.Frei) Alle.push_back(E);
  });
  return Alle;
}

double AbstandStrecke(const GrafikLinie& L, double R, double H) {
  const double dR = L.Rechts2 - L.Rechts1, dH = L.Hoch2 - L.Hoch1, Quadrat = dR * dR + dH * dH;
  const double t =
      Quadrat == 0 ? 0 : std::clamp(((R - L.Rechts1) * dR + (H - L.Hoch1) * dH) / Quadrat, 0.0, 1.0);
  return Strecke(R, H, L.Rechts1 + t * dR, L.Hoch1 + t * dH);
}

double AbstandBogen(const GrafikBogen& B, double R, double H) {
  double Winkel = WinkelGrad(H - B.Hoch, R - B.Rechts) - B.Anfang, Weite = B.Ende - B.Anfang;
  GradReduzieren(Winkel);
  if (Weite < 0) Weite += 360;
  if (Winkel <= Weite) return std::fabs(Strecke(R, H, B.Rechts, B.Hoch) - B.Radius);
  const auto Zu = [&](double Grad) {
    return Strecke(R, H, B.Rechts + B.Radius * CosGrad(Grad), B.Hoch + B.Radius * SinGrad(Grad));
  };
  return std::min(Zu(B.Anfang), Zu(B.Ende));
}

// Cuts a line to the picture, whose painter would walk along all of it. @return false: nothing is left
bool Stutzen(double& x1, double& y1, double& x2, double& y2) {
  const double dx = x2 - x1, dy = y2 - y1;
  const double Weg[] = {-dx, dx, -dy, dy};
  const double Platz[] = {x1 + Zeichenradius, GrafikFenster.BildBreite + Zeichenradius - x1,
                          y1 + Zeichenradius, GrafikFenster.BildHoehe + Zeichenradius - y1};
  double Von = 0, Bis = 1;
  for (int i = 0; i < 4; ++i) {
    if (Weg[i] == 0 && Platz[i] < 0) return false;
    if (Weg[i] < 0) Von = std::max(Von, Platz[i] / Weg[i]);
    if (Weg[i] > 0) Bis = std::min(Bis, Platz[i] / Weg[i]);
  }
  if (!(Von <= Bis)) return false;
  x2 = x1 + Bis * dx;
  y2 = y1 + Bis * dy;
  x1 += Von * dx;
  y1 += Von * dy;
  return true;
}

void LinieZeichnen(Zeichenfläche& Auf, const GrafikLinie& L) {
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  GrafikPixelAusWelt(L.Rechts1, L.Hoch1, x1, y1);
  GrafikPixelAusWelt(L.Rechts2, L.Hoch2, x2, y2);
  if (Stutzen(x1, y1, x2, y2)) Auf.Linie(x1, y1, x2, y2, L.Farbe, L.Stil);
}

void BogenZeichnen(Zeichenfläche& Auf, const GrafikBogen& B) {
  double x = 0, y = 0;
  GrafikPixelAusWelt(B.Rechts, B.Hoch, x, y);
  const Grafikzustand& G = GrafikFenster;
  const double r = B.Radius * G.Massstab;
  if (x + r < 0 || x - r > G.BildBreite || y + r < 0 || y - r > G.BildHoehe) return;
  Auf.Bogen(x, y, r, B.Anfang, B.Ende, B.Farbe);
}

void TextZeichnen(Zeichenfläche& Auf, const GrafikText& T) {
  double x = 0, y = 0;
  GrafikPixelAusWelt(T.Rechts, T.Hoch, x, y);
  Auf.Text(x, y, T.Text, T.Schriftgrad, T.Farbe);
}

// The points of the table that the window shows. The longest number reaches in from the left.
void PunkteZeichnen(Zeichenfläche& Auf) {
  const Grafikzustand& G = GrafikFenster;
  const double Rand = Zeichenradius / G.Massstab,
               Links = GrafikWahl.Nummern ? (Nummernabstand + 20 * Nummernzeichen) / G.Massstab : Rand;
  std::vector<int> Zeilen;
  Bild.Index.Im(G.FensterRechts - Links, G.FensterHoch - Rand, G.FensterRechts + G.FensterBreite + Rand,
                G.FensterHoch + G.FensterHoehe + Rand, Zeilen);
  const std::vector<char>* const Frei =
      GrafikWahl.Freistellen && GrafikWahl.Nummern ? &Bild.Wahl.Bei(G.Massstab) : nullptr;
  for (const int z : Zeilen) {
    const auto i = static_cast<std::size_t>(z);
    const bool MitNummer = Frei == nullptr || (*Frei)[i] != 0;
    GrafikPunktZeichnen(Auf, MitNummer ? KorPnr(z) : "", KorRechts[i], KorHoch[i], KorSymbol[i],
                        FarbeSchwarz);
  }
}

void LeisteZeichnen(Zeichenfläche& Auf) {
  const double Länge = GrafikMaßstabslänge();
  if (!GrafikWahl.Maßstabsleiste || Länge == 0) return;
  const double x1 = Leistenrand, x2 = x1 + Länge * GrafikFenster.Massstab,
               y = GrafikFenster.BildHoehe - Leistenrand;
  for (const double x : {x1, x2}) Auf.Linie(x, y - Zeichenradius, x, y, FarbeSchwarz, Strich::Durchgezogen);
  Auf.Linie(x1, y, x2, y, FarbeSchwarz, Strich::Durchgezogen);
  const int Stellen = Länge < 1 ? static_cast<int>(std::ceil(-std::log10(Länge) - 1e-9)) : 0;
  Auf.Text(x2 + Nummernabstand, y, ZahlFormat(Länge, -1, Stellen) + " m", Schriftgrad, FarbeSchwarz);
}

}  // namespace

int GrafikLinieHinzu(const GrafikLinie& Linie) { return FreiHinzu(Bild.Linien, Linie); }
int GrafikBogenHinzu(const GrafikBogen& Bogen) { return FreiHinzu(Bild.Bogen, Bogen); }
int GrafikTextHinzu(const GrafikText& Text) { return Hinzu(Bild.Texte, Text); }
int GrafikMarkeHinzu(const GrafikMarke& Marke) { return Hinzu(Bild.Marken, Marke); }

void GrafikLinieWeg(int Handle) { Weg(Bild.Linien, Handle); }
void GrafikBogenWeg(int Handle) { Weg(Bild.Bogen, Handle); }
void GrafikTextWeg(int Handle) { Weg(Bild.Texte, Handle); }
void GrafikMarkeWeg(int Handle) { Weg(Bild.Marken, Handle); }

std::vector<GrafikLinie> GrafikFreieLinien() { return Freie(Bild.Linien); }
std::vector<GrafikBogen> GrafikFreieBogen() { return Freie(Bild.Bogen); }

int GrafikFreiesWeg(double Rechts, double Hoch, double Toleranz) {
  int Linie = -1, Bogen = -1;
  double Nächster = Toleranz;
  Bild.Linien.Jedes([&](int Handle, const GrafikLinie& L) {
    const double Abstand = L.Frei ? AbstandStrecke(L, Rechts, Hoch) : Toleranz + 1;
    if (Abstand > Nächster || (Linie >= 0 && Abstand == Nächster)) return;
    Nächster = Abstand;
    Linie = Handle;
  });
  Bild.Bogen.Jedes([&](int Handle, const GrafikBogen& B) {
    const double Abstand = B.Frei ? AbstandBogen(B, Rechts, Hoch) : Toleranz + 1;
    if (Abstand > Nächster || ((Linie >= 0 || Bogen >= 0) && Abstand == Nächster)) return;
    Nächster = Abstand;
    Bogen = Handle;
  });
  if (Linie < 0 && Bogen < 0) return -1;
  if (Bogen >= 0) {
    GrafikBogenWeg(Bogen);
  } else {
    GrafikLinieWeg(Linie);
  }
  GrafikUngesichert = true;
  return 0;
}

void GrafikLeeren() {
  Bild.Linien = {};
  Bild.Bogen = {};
  Bild.Texte = {};
  Bild.Marken = {};
  GrafikUngesichert = false;
  GrafikNeuZeichnen();
}

void GrafikPunktZeichnen(Zeichenfläche& Auf, const std::string& Pnr, double Rechts, double Hoch,
                         const std::string& Symbol, int Farbe) {
  const Grafikzustand& G = GrafikFenster;
  if (G.Massstab == 0) return;
  double x = 0, y = 0;
  GrafikPixelAusWelt(Rechts, Hoch, x, y);
  const bool MitNummer = GrafikWahl.Nummern && !Pnr.empty();
  const double Reicht =
      MitNummer ? Nummernabstand + static_cast<double>(Pnr.size()) * Nummernzeichen : Zeichenradius;
  if (x + Reicht < 0 || x - Zeichenradius > G.BildBreite || y + Zeichenradius < 0 ||
      y - Zeichenradius > G.BildHoehe)
    return;
  PunktzeichenZeichnen(Auf, x, y, Symbol, Farbe);
  if (MitNummer) Auf.Text(x + Nummernabstand, y, Pnr, Schriftgrad, Farbe);
}

void GrafikZeichnen(Zeichenfläche& Auf) {
  if (GrafikFenster.Massstab == 0) return;
  static_cast<void>(Geschützt("Grafikmodul.GrafikPunktZeichnen", [&] {
    Bild.Texte.Jedes([&](int, const GrafikText& T) { TextZeichnen(Auf, T); });
    Bild.Linien.Jedes([&](int, const GrafikLinie& L) { LinieZeichnen(Auf, L); });
    PunkteZeichnen(Auf);
    Bild.Bogen.Jedes([&](int, const GrafikBogen& B) { BogenZeichnen(Auf, B); });
    Bild.Marken.Jedes([&](int, const GrafikMarke& M) {
      GrafikPunktZeichnen(Auf, M.Pnr, M.Rechts, M.Hoch, M.Symbol, M.Farbe);
    });
    LeisteZeichnen(Auf);
  }));
}

void GrafikNeuZeichnen() {
  if (GrafikBeiÄnderung) GrafikBeiÄnderung();
}

double GrafikMaßstabslänge() {
  const double Höchstens = GrafikFenster.Massstab == 0 ? 0 : Leistenlänge / GrafikFenster.Massstab;
  if (!(Höchstens > 0) || !std::isfinite(Höchstens)) return 0;
  const double Zehner = std::pow(10, std::floor(std::log10(Höchstens)));
  for (const double Faktor : {5.0, 2.0}) {
    if (Faktor * Zehner <= Höchstens) return Faktor * Zehner;
  }
  return Zehner;
}

int GrafikPunktSuchen(double Rechts, double Hoch, double Toleranz) {
  return Bild.Index.Erster(Rechts, Hoch, Toleranz);
}

}  // namespace tavorena
