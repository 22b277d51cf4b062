#include <algorithm>
#include <cmath>

#include <tavorena/core/Winkel.h>
#include <tavorena/graphics/Grafikinhalt.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/graphics/Punktzeichen.h>

namespace tavorena {

bool GrafikUngesichert = false;
Grafikwahl GrafikWahl;
std::function<void(const std::optional<Grafikregion>& Wo)> GrafikBeiÄnderung;
Grafikinhalt& Grafikbestand = *new Grafikinhalt;

namespace {

// Where an element is drawn.
Grafikregion Region(const GrafikLinie& L) {
  return {std::min(L.Rechts1, L.Rechts2), std::min(L.Hoch1, L.Hoch2), std::max(L.Rechts1, L.Rechts2),
          std::max(L.Hoch1, L.Hoch2), Zeichenradius};
}
Grafikregion Region(const GrafikBogen& B) {
  const double r = std::fabs(B.Radius);
  return {B.Rechts - r, B.Hoch - r, B.Rechts + r, B.Hoch + r, Zeichenradius};
}
Grafikregion Region(const GrafikText& T) {
  return {
      T.Rechts, T.Hoch, T.Rechts, T.Hoch, Textreichweite(T.Schriftgrad), Textbreite(T.Text, T.Schriftgrad)};
}
Grafikregion Region(const GrafikMarke& M) {
  return {
      M.Rechts, M.Hoch, M.Rechts, M.Hoch, Nummernreichweite, Nummernabstand + Textbreite(M.Pnr, Nummerngrad)};
}

template <typename Element>
void Melden(const Element& E) {
  if (GrafikBeiÄnderung) GrafikBeiÄnderung(Region(E));
}

template <typename Element>
int Hinzu(Elementspeicher<Element>& Speicher, const Element& Neu) {
  const int Handle = Speicher.Hinzu(Neu);
  Melden(Neu);
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
  const Element* const Altes = Speicher.Finde(Handle);
  if (Altes == nullptr) return;
  const Element Kopie = *Altes;
  static_cast<void>(Speicher.Weg(Handle));
  Melden(Kopie);
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

}  // namespace

int GrafikLinieHinzu(const GrafikLinie& Linie) { return FreiHinzu(Grafikbestand.Linien, Linie); }
int GrafikBogenHinzu(const GrafikBogen& Bogen) { return FreiHinzu(Grafikbestand.Bogen, Bogen); }
int GrafikTextHinzu(const GrafikText& Text) { return Hinzu(Grafikbestand.Texte, Text); }
int GrafikMarkeHinzu(const GrafikMarke& Marke) { return Hinzu(Grafikbestand.Marken, Marke); }

void GrafikLinieWeg(int Handle) { Weg(Grafikbestand.Linien, Handle); }
void GrafikBogenWeg(int Handle) { Weg(Grafikbestand.Bogen, Handle); }
void GrafikTextWeg(int Handle) { Weg(Grafikbestand.Texte, Handle); }
void GrafikMarkeWeg(int Handle) { Weg(Grafikbestand.Marken, Handle); }

std::vector<GrafikLinie> GrafikFreieLinien() { return Freie(Grafikbestand.Linien); }
std::vector<GrafikBogen> GrafikFreieBogen() { return Freie(Grafikbestand.Bogen); }

int GrafikFreiesWeg(double Rechts, double Hoch, double Toleranz) {
  int Linie = -1, Bogen = -1;
  double Nächster = Toleranz;
  Grafikbestand.Linien.Jedes([&](int Handle, const GrafikLinie& L) {
    const double Abstand = L.Frei ? AbstandStrecke(L, Rechts, Hoch) : Toleranz + 1;
    if (Abstand > Nächster || (Linie >= 0 && Abstand == Nächster)) return;
    Nächster = Abstand;
    Linie = Handle;
  });
  Grafikbestand.Bogen.Jedes([&](int Handle, const GrafikBogen& B) {
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
  Grafikbestand.Linien = {};
  Grafikbestand.Bogen = {};
  Grafikbestand.Texte = {};
  Grafikbestand.Marken = {};
  GrafikUngesichert = false;
  GrafikNeuZeichnen();
}

void GrafikNeuZeichnen() {
  if (GrafikBeiÄnderung) GrafikBeiÄnderung({});
}

int GrafikPunktSuchen(double Rechts, double Hoch, double Toleranz) {
  return Grafikbestand.Index.Erster(Rechts, Hoch, Toleranz);
}

}  // namespace tavorena
