#include <functional>

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <tavorena/core/Datei.h>
#include <tavorena/core/Ports.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Ansichtdatei.h>
#include <tavorena/desktop/Druckquelle.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/records/Protokoll.h>
#include <tavorena/shell/Dateiwahl.h>

namespace tavorena {
namespace {

constexpr int Feinheit = 10;  // steps of a unit on paper: lines as fine as on the screen

// A picture of one piece, and how sharp it is as PNG.
struct Stück {
  QSizeF Größe;         // units
  int Bildschärfe = 1;  // pixels per unit
  std::function<void(Zeichenfläche&)> Zeichnen;
};

void Malen(QPainter& Maler, double Faktor, const std::function<void(Zeichenfläche&)>& Zeichnen) {
  Maler.scale(Faktor, Faktor);
  Malfläche Fläche(Maler, Papierfarben());
  Zeichnen(Fläche);
}

void Malen(QPaintDevice& Auf, const Stück& S, double Faktor) {
  QPainter Maler(&Auf);
  Maler.setClipRect(QRectF(QPointF(0, 0), S.Größe * Faktor));
  Malen(Maler, Faktor, S.Zeichnen);
}

void AlsPdf(QIODevice& Ziel, const Stück& S) {
  QPdfWriter Blatt(&Ziel);
  Blatt.setResolution(Feinheit * Auflösung);
  Blatt.setPageSize(QPageSize(S.Größe / Auflösung, QPageSize::Inch, {}, QPageSize::ExactMatch));
  Blatt.setPageMargins({});
  Blatt.setTitle("Tavorena");
  Malen(Blatt, S, Feinheit);
}

void AlsSvg(QIODevice& Ziel, const Stück& S) {
  QSvgGenerator Blatt;
  Blatt.setOutputDevice(&Ziel);
  Blatt.setResolution(Auflösung);
  Blatt.setSize(S.Größe.toSize());
  Blatt.setViewBox(QRectF(QPointF(0, 0), S.Größe));
  Blatt.setTitle("Tavorena");
  Malen(Blatt, S, 1);
}

void AlsPng(QIODevice& Ziel, const Stück& S) {
  QImage Blatt((S.Größe * S.Bildschärfe).toSize(), QImage::Format_RGB32);
  Blatt.fill(Qt::white);
  Malen(Blatt, S, S.Bildschärfe);
  Blatt.save(&Ziel, "PNG");
}

using Schreiber = std::function<int(QIODevice& Ziel)>;  // negative: stopped

// The file appears as a whole. @return 0; -1 with a message; -2 stopped
int Ersetzen(const std::string& Name, const Schreiber& Schreiben) {
  QByteArray Bytes;
  QBuffer Puffer(&Bytes);
  Puffer.open(QIODevice::WriteOnly);
  if (Schreiben(Puffer) < 0) return -2;
  std::string Grund = "zu groß";
  if (!Bytes.isEmpty() &&
      DateiErsetzen(Name, std::string_view(Bytes.constData(), static_cast<std::size_t>(Bytes.size())),
                    &Grund) == 0)
    return 0;
  FehlerMeldung("Die Ansicht läßt sich nicht schreiben (" + Grund + "):\n" + Name);
  return -1;
}

QString EndungVon(const std::string& Name) { return QString::fromStdString(Name).section('.', -1).toLower(); }

// What writes a piece as the end of the name says; nothing, with a message, for another end.
Schreiber SchreiberVon(const std::string& Name, const Stück& S) {
  const QString Endung = EndungVon(Name);
  const auto Art = Endung == "pdf" ? AlsPdf : Endung == "svg" ? AlsSvg : Endung == "png" ? AlsPng : nullptr;
  if (Art != nullptr) {
    return [Art, &S](QIODevice& Ziel) {
      Art(Ziel, S);
      return 0;
    };
  }
  FehlerMeldung("Die Ansicht wird als pdf, svg oder png gespeichert:\n" + Name);
  return {};
}

}  // namespace

QPalette Papierfarben() {
  return {Qt::black, Qt::white, Qt::white, Qt::black, Qt::gray, Qt::black, Qt::white};
}

int AnsichtSchreiben(const std::string& Name) {
  const Stück S{QSizeF(GrafikFenster.BildBreite, GrafikFenster.BildHoehe) / TwipsJePixel, 1,
                [](Zeichenfläche& Auf) { GrafikZeichnen(Auf); }};
  const Schreiber Schreiben = SchreiberVon(Name, S);
  if (!Schreiben) return -1;
  if (GrafikFenster.Massstab == 0 || S.Größe.isEmpty()) {
    FehlerMeldung("In der Ansicht ist nichts zu sehen:\n" + Name);
    return -1;
  }
  return Ersetzen(Name, Schreiben);
}

void SeitenkopfSetzen(Seitenauftrag& Auftrag) {
  const Dateiname Teile = DateinameZerlegen(KoordinatendateiName);
  Auftrag.Titel = Teile.Grundname;
  Auftrag.Datei = KoordinatendateiName.substr(Teile.Ordner.size());
  Auftrag.Zeit = Zeitstempel();
}

QPageLayout Papierformat(Blatt Papier) {
  const bool Groß = Papier == Blatt::A3 || Papier == Blatt::A3quer,
             Quer = Papier == Blatt::A4quer || Papier == Blatt::A3quer;
  return {QPageSize(Groß ? QPageSize::A3 : QPageSize::A4),
          Quer ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

void SeiteMalen(QPainter& Maler, const Seitenauftrag& Auftrag, const Seitenplan& Plan, int Seite) {
  Malfläche Fläche(Maler, Papierfarben());
  SeiteZeichnen(Fläche, Auftrag, Plan, Seite);
}

int SeitenSchreiben(const std::string& Name, const Seitenauftrag& Auftrag, const Blattbereich* Welche) {
  Seitenplan Plan;
  std::string Grund;
  if (SeitenPlanen(Auftrag, Plan, Grund) != 0) {
    FehlerMeldung(Grund);
    return -1;
  }
  if (EndungVon(Name) == "pdf") {
    return Ersetzen(Name, [&](QIODevice& Ziel) {
      QPdfWriter Blätter(&Ziel);
      Blätter.setResolution(Feinheit * Auflösung);
      Blätter.setPageLayout(Papierformat(Auftrag.Papier));
      Blätter.setTitle(QString::fromStdString(Auftrag.Titel));
      return BlätterMalen(Blätter, Welche != nullptr ? *Welche : Blattbereich{0, Plan.Seiten() - 1},
                          [&](QPainter& Maler, int Seite) { SeiteMalen(Maler, Auftrag, Plan, Seite); });
    });
  }
  const Stück S{QSizeF(Plan.Breite, Plan.Hoehe) / TwipsJePixel, 2,
                [&](Zeichenfläche& Auf) { SeiteZeichnen(Auf, Auftrag, Plan, 0); }};
  const Schreiber Schreiben = SchreiberVon(Name, S);
  if (!Schreiben) return -1;
  if (Plan.Seiten() > 1) {
    FehlerMeldung("In diesem Maßstab sind es " + std::to_string(Plan.Seiten()) +
                  " Blätter, und nur ein pdf hat mehrere:\n" + Name);
    return -1;
  }
  return Ersetzen(Name, Schreiben);
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
