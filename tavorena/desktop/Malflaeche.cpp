#include <algorithm>

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

// On a dark ground black is the colour of text, and what would not stand out is lightened.
QColor Malfläche::FarbeVon(int Farbe) const {
  if (Farbe == FarbeSchwarz) return Vordergrund;
  if (Farbe == Weiß) return Hintergrund;
  QColor C(Farbe & 0xFF, (Farbe >> 8) & 0xFF, (Farbe >> 16) & 0xFF);
  if (Hintergrund.lightness() < 128)
    C = QColor::fromHslF(C.hslHueF(), C.hslSaturationF(), std::max(C.lightnessF(), 0.65F));
  return C;
}

void Malfläche::StiftSetzen(int Farbe, Strich Stil) {
  if (Farbe == LetzteFarbe && Stil == LetzterStil) return;
  LetzteFarbe = Farbe;
  LetzterStil = Stil;
  Maler.setPen(
      QPen(FarbeVon(Farbe), Strichbreite, Stil == Strich::Gestrichelt ? Qt::DashLine : Qt::SolidLine));
}

void Malfläche::Linie(double x1, double y1, double x2, double y2, int Farbe, Strich Stil) {
  StiftSetzen(Farbe, Stil);
  Maler.drawLine(QLineF(Einheit(x1), Einheit(y1), Einheit(x2), Einheit(y2)));
}

void Malfläche::Bogen(double x, double y, double Radius, double Anfang, double Ende, int Farbe) {
  StiftSetzen(Farbe, Strich::Durchgezogen);
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
  Bogen(x, y, Radius, 0, 360, Farbe);
  Maler.setBrush(Qt::NoBrush);
}

void Malfläche::Text(double x, double y, std::string_view Inhalt, int Schriftgrad, int Farbe) {
  StiftSetzen(Farbe, Strich::Durchgezogen);
  if (Schriftgrad != LetzterGrad) {
    QFont Schrift = Zahlenschrift();
    Schrift.setPointSize(Schriftgrad);
    Maler.setFont(Schrift);
    LetzterGrad = Schriftgrad;
  }
  const QFontMetricsF Maß = Maler.fontMetrics();
  Maler.drawText(QPointF(Einheit(x), Einheit(y) + (Maß.ascent() - Maß.descent()) / 2),
                 QString::fromUtf8(Inhalt.data(), static_cast<qsizetype>(Inhalt.size())));
}

}  // namespace tavorena
