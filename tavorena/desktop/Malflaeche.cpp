#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/graphics/Grafikfenster.h>

namespace tavorena {
namespace {

constexpr int Weiß = 0xFFFFFF;
constexpr double Strichbreite = 1.2;  // units of the painter

double Einheit(double Twips) { return Twips / TwipsJePixel; }

}  // namespace

Malfläche::Malfläche(QPainter& Mit, const QPalette& Farben)
    : Maler(Mit), Vordergrund(Farben.color(QPalette::Text)), Hintergrund(Farben.color(QPalette::Base)) {
  Maler.setRenderHint(QPainter::Antialiasing);
}

// On a dark ground black is the colour of text, and what would not stand out is lightened. On a light one the
// colours of files stay; ours can be read.
QColor Malfläche::FarbeVon(int Farbe) const {
  if (Farbe == FarbeSchwarz) return Vordergrund;
  if (Farbe == Weiß) return Hintergrund;
  QColor C(Farbe & 0xFF, (Farbe >> 8) & 0xFF, (Farbe >> 16) & 0xFF);
  const bool Dunkel = Hintergrund.lightness() < 128;
  if (Dunkel) C = QColor::fromHslF(C.hslHueF(), C.hslSaturationF(), std::max(C.lightnessF(), 0.65F));
  return Dunkel || Farbe == FarbeRot || Farbe == FarbeBlau ? Abgesetzt(C, Hintergrund) : C;
}

void Malfläche::StiftSetzen(int Farbe, Strich Stil) {
  if (Farbe == LetzteFarbe && Stil == LetzterStil) return;
  LetzteFarbe = Farbe;
  LetzterStil = Stil;
  QPen Stift(FarbeVon(Farbe), Stil == Strich::Breit ? 2 * Strichbreite : Strichbreite);
  if (Stil == Strich::Gestrichelt)  // in widths of the pen
    Stift.setDashPattern({Einheit(Strichlänge) / Strichbreite, Einheit(Strichlücke) / Strichbreite});
  Maler.setPen(Stift);
}

void Malfläche::Linie(double x1, double y1, double x2, double y2, int Farbe, Strich Stil) {
  StiftSetzen(Farbe, Stil);
  Maler.drawLine(QLineF(Einheit(x1), Einheit(y1), Einheit(x2), Einheit(y2)));
}

void Malfläche::Bogen(double x, double y, double Radius, double Anfang, double Ende, int Farbe, Strich Stil) {
  StiftSetzen(Farbe, Stil);
  const double r = Einheit(Radius);
  const QRectF Kasten(Einheit(x) - r, Einheit(y) - r, 2 * r, 2 * r);
  if (Ende - Anfang >= 360) return Maler.drawEllipse(Kasten);
  QPainterPath Zug;
  Zug.arcMoveTo(Kasten, Anfang);
  Zug.arcTo(Kasten, Anfang, Ende > Anfang ? Ende - Anfang : Ende - Anfang + 360);
  Maler.drawPath(Zug);
}

void Malfläche::Scheibe(double x, double y, double Radius, int Farbe) {
  Maler.setBrush(FarbeVon(Farbe));
  Bogen(x, y, Radius, 0, 360, Farbe, Strich::Durchgezogen);
  Maler.setBrush(Qt::NoBrush);
}

void Malfläche::Text(double x, double y, std::string_view Inhalt, int Schriftgrad, int Farbe) {
  StiftSetzen(Farbe, Strich::Durchgezogen);
  if (Schriftgrad != LetzterGrad) {
    QFont Schrift = Zahlenschrift();
    Schrift.setPointSizeF(static_cast<double>(Schriftgrad) * Auflösung / Maler.device()->logicalDpiY());
    Maler.setFont(Schrift);
    LetzterGrad = Schriftgrad;
    const QFontMetricsF Maß = Maler.fontMetrics();
    Tiefe = (Maß.ascent() - Maß.descent()) / 2;
  }
  // On whole pixels, and surely not a rounding below them: sharp, and the same wherever it is drawn again.
  const QTransform& T = Maler.deviceTransform();
  const auto Ganz = [](double Stelle, double Maß) { return (std::floor(Stelle * Maß + 0.5) + 0.01) / Maß; };
  Maler.drawText(QPointF(Ganz(Einheit(x), T.m11()), Ganz(Einheit(y) + Tiefe, T.m22())),
                 QString::fromUtf8(Inhalt.data(), static_cast<qsizetype>(Inhalt.size())));
}

void Malfläche::Begrenzen(double x, double y, double Breite, double Hoehe) {
  if (Breite == 0) return Maler.setClipping(false);
  Maler.setClipRect(QRectF(Einheit(x), Einheit(y), Einheit(Breite), Einheit(Hoehe)));
}

}  // namespace tavorena
