#include <algorithm>
#include <cmath>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Winkel.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/graphics/Grafikinhalt.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/graphics/Punktzeichen.h>

namespace tavorena {
namespace {

constexpr double Leistenlänge = 2400;  // twips that the scale bar may take
constexpr double Leistenrand = 300;    // twips from the corner
constexpr double Längste = 20;         // characters of a number

// Cuts a line to what is drawn, whose painter would walk along all of it. Dashes stay where they are.
// @return false: nothing is left
bool Stutzen(const Bildausschnitt& In, Strich Stil, double& x1, double& y1, double& x2, double& y2) {
  const double dx = x2 - x1, dy = y2 - y1;
  const double Weg[] = {-dx, dx, -dy, dy};
  const double Platz[] = {x1 - In.Links + Zeichenradius, In.Links + In.Breite + Zeichenradius - x1,
                          y1 - In.Oben + Zeichenradius, In.Oben + In.Hoehe + Zeichenradius - y1};
  double Von = 0, Bis = 1;
  for (int i = 0; i < 4; ++i) {
    if (Weg[i] == 0 && Platz[i] < 0) return false;
    if (Weg[i] < 0) Von = std::max(Von, Platz[i] / Weg[i]);
    if (Weg[i] > 0) Bis = std::min(Bis, Platz[i] / Weg[i]);
  }
  if (!(Von <= Bis)) return false;
  if (Stil == Strich::Gestrichelt && Von > 0) {
    const double Periode = (Strichlänge + Strichlücke) / std::hypot(dx, dy);
    Von = std::floor(Von / Periode) * Periode;
  }
  x2 = x1 + Bis * dx;
  y2 = y1 + Bis * dy;
  x1 += Von * dx;
  y1 += Von * dy;
  return true;
}

void LinieZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In, const GrafikLinie& L) {
  double x1 = In.x(L.Rechts1), y1 = In.y(L.Hoch1), x2 = In.x(L.Rechts2), y2 = In.y(L.Hoch2);
  if (Stutzen(In, L.Stil, x1, y1, x2, y2)) Auf.Linie(x1, y1, x2, y2, L.Farbe, L.Stil);
}

// Neither of one that lies around all that is drawn, nor of one that lies beside it, anything is seen.
void BogenZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In, const GrafikBogen& B) {
  const double x = In.x(B.Rechts), y = In.y(B.Hoch), r = B.Radius * In.Massstab;
  if (!(r > 0) || !std::isfinite(r)) return;  // a file may hold such arcs
  const double Links = x - In.Links, Rechts = In.Links + In.Breite - x, Oben = y - In.Oben,
               Unten = In.Oben + In.Hoehe - y;
  const double Nah = std::hypot(std::max({-Links, 0.0, -Rechts}), std::max({-Oben, 0.0, -Unten})),
               Fern = std::hypot(std::max(Links, Rechts), std::max(Oben, Unten));
  if (Nah > r + Zeichenradius || Fern < r - Zeichenradius) return;
  Auf.Bogen(x, y, r, B.Anfang, B.Ende, B.Farbe, B.Stil);
}

void TextZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In, const GrafikText& T) {
  const double x = In.x(T.Rechts) - In.Links, y = In.y(T.Hoch) - In.Oben,
               Reicht = Textreichweite(T.Schriftgrad);
  if (x + Textbreite(T.Text, T.Schriftgrad) < 0 || x - Reicht > In.Breite || y + Reicht < 0 ||
      y - Reicht > In.Hoehe)
    return;
  Auf.Text(x + In.Links, y + In.Oben, T.Text, T.Schriftgrad, T.Farbe);
}

// The points of the table that reach in. The longest number does so from the left.
void PunkteZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In) {
  const bool Nummern = GrafikWahl.Nummern;
  const double Rand = Zeichenradius / In.Massstab,
               Links = Nummern ? (Nummernabstand + Längste * Nummernzeichen) / In.Massstab : Rand,
               Hoch = Nummern ? Nummernreichweite / In.Massstab : Rand;
  std::vector<int> Zeilen;
  const double R = In.RechtsVon(), H = In.HochVon();
  Grafikbestand.Index.Im(R - Links, H - Hoch, R + In.Breite / In.Massstab + Rand,
                         H + In.Hoehe / In.Massstab + Hoch, Zeilen);
  const std::vector<char>* const Frei =
      GrafikWahl.Freistellen && Nummern ? &Grafikbestand.Wahl.Bei(In.Massstab) : nullptr;
  const std::string Ohne;
  for (const int z : Zeilen) {
    const auto i = static_cast<std::size_t>(z);
    const bool MitNummer = Frei == nullptr || (*Frei)[i] != 0;
    GrafikPunktZeichnen(Auf, In, MitNummer ? KorPnr(z) : Ohne, KorRechts[i], KorHoch[i], KorSymbol[i],
                        FarbeSchwarz);
  }
}

}  // namespace

double Textbreite(std::string_view Text, int Schriftgrad) {
  return static_cast<double>(Text.size()) * Nummernzeichen * Schriftgrad / Nummerngrad;
}

double Textreichweite(int Schriftgrad) { return Nummernreichweite * Schriftgrad / Nummerngrad; }

void GrafikPunktZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In, const std::string& Pnr, double Rechts,
                         double Hoch, const std::string& Symbol, int Farbe) {
  if (In.Massstab == 0) return;
  const double x = In.x(Rechts), y = In.y(Hoch);
  const bool MitNummer = GrafikWahl.Nummern && !Pnr.empty();
  const double NachRechts = MitNummer ? Nummernabstand + Textbreite(Pnr, Nummerngrad) : Zeichenradius,
               NachOben = MitNummer ? Nummernreichweite : Zeichenradius;
  const double vonLinks = x - In.Links, vonOben = y - In.Oben;
  if (vonLinks + NachRechts < 0 || vonLinks - Zeichenradius > In.Breite || vonOben + NachOben < 0 ||
      vonOben - NachOben > In.Hoehe)
    return;
  PunktzeichenZeichnen(Auf, x, y, Symbol, Farbe);
  if (MitNummer) Auf.Text(x + Nummernabstand, y, Pnr, Nummerngrad, Farbe);
}

void GrafikZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In) {
  if (In.Massstab == 0) return;
  static_cast<void>(Geschützt("Grafikmodul.GrafikPunktZeichnen", [&] {
    Grafikbestand.Texte.Jedes([&](int, const GrafikText& T) { TextZeichnen(Auf, In, T); });
    Grafikbestand.Linien.Jedes([&](int, const GrafikLinie& L) { LinieZeichnen(Auf, In, L); });
    PunkteZeichnen(Auf, In);
    Grafikbestand.Bogen.Jedes([&](int, const GrafikBogen& B) { BogenZeichnen(Auf, In, B); });
    Grafikbestand.Marken.Jedes([&](int, const GrafikMarke& M) {
      GrafikPunktZeichnen(Auf, In, M.Pnr, M.Rechts, M.Hoch, M.Symbol, M.Farbe);
    });
  }));
}

void GrafikLeisteZeichnen(Zeichenfläche& Auf, const Bildausschnitt& In) {
  const double Länge = GrafikMaßstabslänge(In.Massstab);
  if (Länge == 0) return;
  const double x1 = In.Links + Leistenrand, x2 = x1 + Länge * In.Massstab,
               y = In.Oben + In.Hoehe - Leistenrand;
  for (const double x : {x1, x2}) Auf.Linie(x, y - Zeichenradius, x, y, FarbeSchwarz, Strich::Durchgezogen);
  Auf.Linie(x1, y, x2, y, FarbeSchwarz, Strich::Durchgezogen);
  const int Stellen = Länge < 1 ? static_cast<int>(std::ceil(-std::log10(Länge) - 1e-9)) : 0;
  Auf.Text(x2 + Nummernabstand, y, ZahlFormat(Länge, -1, Stellen) + " m", Nummerngrad, FarbeSchwarz);
}

void GrafikZeichnen(Zeichenfläche& Auf) {
  const Bildausschnitt In = GrafikFensterAusschnitt();
  GrafikZeichnen(Auf, In);
  if (GrafikWahl.Maßstabsleiste) GrafikLeisteZeichnen(Auf, In);
}

double GrafikMaßstabslänge(double Massstab) {
  const double Höchstens = Massstab == 0 ? 0 : Leistenlänge / Massstab;
  if (!(Höchstens > 0) || !std::isfinite(Höchstens)) return 0;
  const double Zehner = std::pow(10, std::floor(std::log10(Höchstens)));
  for (const double Faktor : {5.0, 2.0}) {
    if (Faktor * Zehner <= Höchstens) return Faktor * Zehner;
  }
  return Zehner;
}

}  // namespace tavorena
