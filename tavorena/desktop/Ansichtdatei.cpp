#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/desktop/Ansichtdatei.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/shell/Dateiwahl.h>

namespace tavorena {
namespace {

constexpr int Auflösung = 96;   // units of the picture per inch
constexpr int Bildschärfe = 1;  // pixels of a PNG per unit

void Malen(QPaintDevice& Auf, QSizeF Größe, double Faktor) {
  QPainter Maler(&Auf);
  Maler.scale(Faktor, Faktor);
  Maler.setClipRect(QRectF(QPointF(0, 0), Größe));
  Malfläche Fläche(Maler,
                   QPalette(Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white));
  GrafikZeichnen(Fläche);
}

void AlsPdf(QIODevice& Ziel, QSizeF Größe) {
  QPdfWriter Blatt(&Ziel);
  Blatt.setResolution(10 * Auflösung);  // lines as fine as on the screen
  Blatt.setPageSize(QPageSize(Größe / Auflösung, QPageSize::Inch, {}, QPageSize::ExactMatch));
  Blatt.setPageMargins({});
  Blatt.setTitle("Tavorena");
  Malen(Blatt, Größe, 10);
}

void AlsSvg(QIODevice& Ziel, QSizeF Größe) {
  QSvgGenerator Blatt;
  Blatt.setOutputDevice(&Ziel);
  Blatt.setResolution(Auflösung);
  Blatt.setSize(Größe.toSize());
  Blatt.setViewBox(QRectF(QPointF(0, 0), Größe));
  Blatt.setTitle("Tavorena");
  Malen(Blatt, Größe, 1);
}

void AlsPng(QIODevice& Ziel, QSizeF Größe) {
  QImage Blatt((Größe * Bildschärfe).toSize(), QImage::Format_RGB32);
  Blatt.fill(Qt::white);
  Malen(Blatt, Größe, Bildschärfe);
  Blatt.save(&Ziel, "PNG");
}

}  // namespace

int AnsichtSchreiben(const std::string& Name) {
  const QSizeF Größe = QSizeF(GrafikFenster.BildBreite, GrafikFenster.BildHoehe) / TwipsJePixel;
  const QString Endung = QString::fromStdString(Name).section('.', -1).toLower();
  const auto Schreiben = Endung == "pdf"   ? AlsPdf
                         : Endung == "svg" ? AlsSvg
                         : Endung == "png" ? AlsPng
                                           : nullptr;
  if (Schreiben == nullptr) {
    FehlerMeldung("Die Ansicht wird als pdf, svg oder png gespeichert:\n" + Name);
    return -1;
  }
  if (GrafikFenster.Massstab == 0 || Größe.isEmpty()) {
    FehlerMeldung("In der Ansicht ist nichts zu sehen:\n" + Name);
    return -1;
  }
  QByteArray Bytes;
  QBuffer Puffer(&Bytes);
  Puffer.open(QIODevice::WriteOnly);
  Schreiben(Puffer, Größe);
  std::string Grund = "zu groß";
  if (!Bytes.isEmpty() &&
      DateiErsetzen(Name, std::string_view(Bytes.constData(), static_cast<std::size_t>(Bytes.size())),
                    &Grund) == 0)
    return 0;
  FehlerMeldung("Die Ansicht läßt sich nicht schreiben (" + Grund + "):\n" + Name);
  return -1;
}

void AnsichtSpeichern() {
  Dateiauftrag Auftrag{"Ansicht speichern",
                       "PDF (*.pdf)|*.pdf|SVG (*.svg)|*.svg|PNG (*.png)|*.png",
                       Startordner(),
                       "ansicht.pdf",
                       false,
                       "",
                       false};
  const std::string Name = FragenPort().DateiWählen(Auftrag);
  if (Name.empty()) return;
  VerzeichnisMerken(Name);
  if (!ÜberschreibenFragen(Name)) return;
  if (AnsichtSchreiben(Name) == 0) StatusHilfeSetzen("Ansicht gespeichert: " + Name);
}

}  // namespace tavorena
