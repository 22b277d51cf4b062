#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>

#include <QPainter>

#include <tavorena/desktop/Bildkacheln.h>
#include <tavorena/desktop/Malflaeche.h>

namespace tavorena {
namespace {

constexpr int Kantenlänge = 192;  // of a tile [pixels of the widget]
constexpr double Weiteste = 1e7;  // from the anchor [pixels of the screen]: then it moves

/// A seal of what is drawn, in which everything counts that can be seen.
class Siegelfläche final : public Zeichenfläche {
 public:
  void Linie(double x1, double y1, double x2, double y2, int Farbe, Strich Stil) override {
    Nehmen(1, {x1, y1, x2, y2}, Farbe * 3 + static_cast<int>(Stil));
  }
  void Bogen(double x, double y, double Radius, double Anfang, double Ende, int Farbe, Strich Stil) override {
    Nehmen(2, {x, y, Radius, Anfang, Ende}, Farbe * 3 + static_cast<int>(Stil));
  }
  void Scheibe(double x, double y, double Radius, int Farbe) override { Nehmen(3, {x, y, Radius}, Farbe); }
  void Text(double x, double y, std::string_view Inhalt, int Schriftgrad, int Farbe) override {
    Nehmen(4 + Schriftgrad, {x, y}, Farbe);
    Mischen(std::hash<std::string_view>()(Inhalt));
  }
  void Begrenzen(double x, double y, double Breite, double Hoehe) override {
    Nehmen(0, {x, y, Breite, Hoehe}, 0);
  }

  std::uint64_t Siegel = 0;

 private:
  void Nehmen(int Art, std::initializer_list<double> Werte, int Farbe) {
    Mischen(static_cast<std::uint64_t>(Art) << 32 | static_cast<std::uint32_t>(Farbe));
    for (const double w : Werte) Mischen(std::bit_cast<std::uint64_t>(w));
  }
  void Mischen(std::uint64_t Wert) {
    Siegel = (std::rotl(Siegel, 23) ^ Wert) * 0x9E3779B97F4A7C15ULL;
    Siegel ^= Siegel >> 29;
  }
};

std::uint64_t SiegelVon(const Bildausschnitt& In) {
  Siegelfläche F;
  GrafikZeichnen(F, In);
  return F.Siegel;
}

int Abgerundet(double x) { return static_cast<int>(std::floor(x)); }

}  // namespace

// The anchor stays while only the window moves.
void Bildkacheln::Einrichten(double NeueDichte, const QPalette& Farben) {
  const Grafikzustand& G = GrafikFenster;
  const bool Weit =
      Massstab != 0 &&
      std::max(std::fabs(G.FensterRechts - AnkerRechts), std::fabs(G.FensterHoch - AnkerHoch)) * Massstab >
          Weiteste;
  if (G.Massstab == Massstab && NeueDichte == Dichte && Farben == Palette && !Weit) return;
  Kacheln.clear();
  Massstab = G.Massstab;
  AnkerRechts = G.FensterRechts;
  AnkerHoch = Massstab == 0 ? 0 : G.FensterHoch + G.BildHoehe / Massstab;
  Dichte = NeueDichte;
  Kante = qRound(Kantenlänge * Dichte);
  Palette = Farben;
}

Bildausschnitt Bildkacheln::Ausschnitt(Platz P) const {
  const double Weite = Kante / Dichte * TwipsJePixel;
  return {AnkerRechts, AnkerHoch, Massstab, Weite, Weite, 0, 0, -P.first * Weite, -(P.second + 1) * Weite};
}

// Where the anchor lies in the window, in whole pixels of the screen.
QPoint Bildkacheln::Versatz() const {
  const Grafikzustand& G = GrafikFenster;
  const double x = (AnkerRechts - G.FensterRechts) * Massstab,
               y = G.BildHoehe - (AnkerHoch - G.FensterHoch) * Massstab;
  return {qRound(x / TwipsJePixel * Dichte), qRound(y / TwipsJePixel * Dichte)};
}

QRectF Bildkacheln::Veralten(const Grafikregion& Wo) {
  if (Massstab == 0) return {};
  const double Weite = Kante / Dichte * TwipsJePixel;
  const double Links = (Wo.RechtsVon - AnkerRechts) * Massstab - Wo.Rand,
               Rechts = (Wo.RechtsBis - AnkerRechts) * Massstab + Wo.Rand + Wo.NachRechts,
               Oben = (AnkerHoch - Wo.HochBis) * Massstab - Wo.Rand,
               Unten = (AnkerHoch - Wo.HochVon) * Massstab + Wo.Rand;
  std::erase_if(Kacheln, [&](const auto& K) {
    const double x = K.first.first * Weite, y = K.first.second * Weite;
    return x <= Rechts && x + Weite >= Links && y <= Unten && y + Weite >= Oben;
  });
  // As far as it lies in the window.
  const QPointF V = QPointF(Versatz()) / Dichte;
  const auto Im = [](double Stelle, double Ende) { return Stelle > 0 ? std::min(Stelle, Ende) : 0; };
  const double Breite = GrafikFenster.BildBreite / TwipsJePixel,
               Hoehe = GrafikFenster.BildHoehe / TwipsJePixel;
  return {QPointF(Im(Links / TwipsJePixel + V.x(), Breite), Im(Oben / TwipsJePixel + V.y(), Hoehe)),
          QPointF(Im(Rechts / TwipsJePixel + V.x(), Breite), Im(Unten / TwipsJePixel + V.y(), Hoehe))};
}

void Bildkacheln::Nachsehen() {
  for (auto& [P, K] : Kacheln) K.Fraglich = true;
}

const QPixmap& Bildkacheln::Gezeichnet(Platz P) {
  Kachel& K = Kacheln[P];
  const Bildausschnitt In = Ausschnitt(P);
  if (!K.Bild.isNull() && !K.Fraglich) return K.Bild;
  const std::uint64_t Siegel = SiegelVon(In);
  K.Fraglich = false;
  if (!K.Bild.isNull() && Siegel == K.Siegel) return K.Bild;
  K.Siegel = Siegel;
  K.Bild = QPixmap(Kante, Kante);
  K.Bild.fill(Palette.color(QPalette::Base));
  QPainter Maler(&K.Bild);
  Maler.scale(Dichte, Dichte);
  Malfläche Fläche(Maler, Palette);
  GrafikZeichnen(Fläche, In);
  return K.Bild;
}

void Bildkacheln::Malen(QPainter& Maler, const QRect& Bereich, double NeueDichte, const QPalette& Farben) {
  Einrichten(NeueDichte, Farben);
  if (Massstab == 0) return Maler.fillRect(Bereich, Farben.color(QPalette::Base));
  const QPoint V = Versatz();
  const auto Erste = [&](double Pixel, int Weg) { return Abgerundet((Pixel * Dichte - Weg) / Kante); };
  const Platz Von{Erste(Bereich.left(), V.x()), Erste(Bereich.top(), V.y())},
      Bis{Erste(Bereich.right() + 1, V.x()), Erste(Bereich.bottom() + 1, V.y())};
  Maler.save();
  Maler.scale(1 / Dichte, 1 / Dichte);
  for (int x = Von.first; x <= Bis.first; ++x) {
    for (int y = Von.second; y <= Bis.second; ++y)
      Maler.drawPixmap(V.x() + x * Kante, V.y() + y * Kante, Gezeichnet({x, y}));
  }
  Maler.restore();
  // What went out of the window and a little further is not kept.
  const Grafikzustand& G = GrafikFenster;
  const Platz Links{Erste(0, V.x()) - 1, Erste(0, V.y()) - 1},
      Rechts{Erste(G.BildBreite / TwipsJePixel, V.x()) + 1, Erste(G.BildHoehe / TwipsJePixel, V.y()) + 1};
  std::erase_if(Kacheln, [&](const auto& K) {
    const auto [x, y] = K.first;
    return x < Links.first || y < Links.second || x > Rechts.first || y > Rechts.second;
  });
}

}  // namespace tavorena
