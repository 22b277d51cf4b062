// Drawing the graphics view, without a screen, beside a plain loop of the same painter.
#include "Messdaten.h"

#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Bildkacheln.h>
#include <tavorena/desktop/Malflaeche.h>

namespace tavorena::messung {
namespace {

constexpr int Breite = 1600, Hoehe = 1000;
const QPalette Papier(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white);

// A full table of 20,001 points, all of them to be seen, with symbols and numbers.
class Ansicht {
 public:
  Ansicht() {
    TabelleFüllen();
    if (KorAnzahl == static_cast<int>(Punktzahl))
      static_cast<void>(KorAnhängen({"21001", 3480000, 5550000, 0, "015", nullptr}));
    GrafikLeeren();
    GrafikWahl = {};
    GrafikFenster = {};
    GrafikÖffnen(Breite * TwipsJePixel, Hoehe * TwipsJePixel);
  }
  ~Ansicht() {
    GrafikFenster = {};
    GrafikWahl = {};
  }
  void Malen() {
    QPainter Maler(&Bild);
    Kacheln.Malen(Maler, Bild.rect(), 1, Papier);
  }
  // As if there had been nothing before.
  void Neu() {
    Kacheln.Veralten();
    Malen();
  }

  Bildkacheln Kacheln;
  QImage Bild{Breite, Hoehe, QImage::Format_RGB32};
};

// What is on the picture: pixels that are not paper.
int Tinte(const QImage& Bild) {
  int Anzahl = 0;
  for (int y = 0; y < Bild.height(); ++y) {
    for (int x = 0; x < Bild.width(); ++x) Anzahl += Bild.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
  }
  return Anzahl;
}

void AllesMessen(benchmark::State& Stand, bool Freistellen) {
  Ansicht A;
  GrafikWahl.Freistellen = Freistellen;
  for (auto _ : Stand) A.Neu();
  if (KorAnzahl != 20001 || Tinte(A.Bild) < 100000) Stand.SkipWithError("Das Bild stimmt nicht.");
}

// 200 of the points in the window.
void WenigeMessen(benchmark::State& Stand) {
  Ansicht A;
  GrafikZoomBei(Breite * TwipsJePixel * 0.25, Hoehe * TwipsJePixel * 0.5, 17.7);
  for (auto _ : Stand) A.Neu();
  const int Farbig = Tinte(A.Bild);
  if (Farbig < 10000 || Farbig > 60000) Stand.SkipWithError("Das Bild stimmt nicht.");
}

// There and back, so that the points stay in the window.
void VerschiebenMessen(benchmark::State& Stand) {
  Ansicht A;
  A.Neu();
  int Schritt = 0;
  for (auto _ : Stand) {
    const double Weg = (Schritt++ / 40 % 2 == 0 ? 10 : -10) * TwipsJePixel;
    GrafikSchieben(Weg, Weg / 2);
    A.Malen();
  }
  if (Tinte(A.Bild) < 100000) Stand.SkipWithError("Das Bild stimmt nicht.");
}

// A mark comes and goes, as with each row of a worksheet.
void MarkeMessen(benchmark::State& Stand) {
  Ansicht A;
  A.Neu();
  GrafikBeiÄnderung = [&](const std::optional<Grafikregion>& Wo) {
    if (Wo) A.Kacheln.Veralten(*Wo);
  };
  for (auto _ : Stand) {
    const int Handle = GrafikMarkeHinzu({"1001", 3480000, 5550000, "", FarbeRot});
    A.Malen();
    GrafikMarkeWeg(Handle);
    A.Malen();
  }
  GrafikBeiÄnderung = {};
}

// The least that a drawing must do: a circle and a text at each place.
void PainterMessen(benchmark::State& Stand) {
  Ansicht A;
  const Bildausschnitt In = GrafikFensterAusschnitt();
  QFont Schrift = Zahlenschrift();
  Schrift.setPointSize(8);
  for (auto _ : Stand) {
    A.Bild.fill(Qt::white);
    QPainter Maler(&A.Bild);
    Maler.setRenderHint(QPainter::Antialiasing);
    Maler.setFont(Schrift);
    Maler.setPen(QPen(Qt::black, 1.2));
    for (int z = 0; z < KorAnzahl; ++z) {
      const auto i = static_cast<std::size_t>(z);
      const QPointF Ort(In.x(KorRechts[i]) / TwipsJePixel, In.y(KorHoch[i]) / TwipsJePixel);
      Maler.drawEllipse(Ort, 4, 4);
      Maler.drawText(Ort + QPointF(6, 4), QString::fromStdString(KorPnr(z)));
    }
  }
}

BENCHMARK_CAPTURE(AllesMessen, alle, false)->Name("Zeichnen/20001");
BENCHMARK_CAPTURE(AllesMessen, frei, true)->Name("Freistellen/20001");
BENCHMARK(WenigeMessen)->Name("Zeichnen/200");
BENCHMARK(VerschiebenMessen)->Name("Verschieben/20001");
BENCHMARK(MarkeMessen)->Name("Marke/20001");
BENCHMARK(PainterMessen)->Name("QPainter/20001");

}  // namespace
}  // namespace tavorena::messung
