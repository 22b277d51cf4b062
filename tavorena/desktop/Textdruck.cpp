#include <QPageSize>
#include <QPainter>

#include <tavorena/core/TVDialog.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/desktop/Textdruck.h>
#include <tavorena/exchange/Pdf.h>
#include <tavorena/forms/Dateifrage.h>

namespace tavorena {
namespace {

// Fonts have whole pixels: in thirds of a unit half points are such.
constexpr int Feinheit = 3;
constexpr double Punkt = Feinheit * Auflösung / 72.0;

}  // namespace

QPageLayout Textdruck::Papier() const {
  return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()};
}

void Textdruck::Zeichnen(QPainter& Maler, int Blatt) const {
  QFont Schrift(Druckschrift);
  Schrift.setStyleHint(QFont::TypeWriter);
  Schrift.setPixelSize(qRound(Seiten.Schrift * Punkt));
  // Widths as in the font: rounded to the pixels of a screen a long line would leave its sheet.
  Schrift.setHintingPreference(QFont::PreferNoHinting);
  Maler.scale(1.0 / Feinheit, 1.0 / Feinheit);
  Maler.setFont(Schrift);
  Maler.setPen(Qt::black);
  QPointF Stelle(Randzeichen * Zeichenvorschub * Seiten.Schrift * Punkt, ErsteGrundlinie * Punkt);
  for (const std::string& Zeile : Seiten.Seiten[static_cast<std::size_t>(Blatt)]) {
    Maler.drawText(Stelle, QString::fromStdString(Zeile));
    Stelle.ry() += Zeilenabstand * Punkt;
  }
}

int Textdruck::AlsPdf(Blattbereich Welche) const {
  const std::string Datei = DateiFragen("Als PDF speichern", "PDF (*.pdf)|*.pdf", Vorschlag, true);
  if (Datei.empty()) return -1;
  const auto Erste = Seiten.Seiten.begin() + Welche.Von;
  const Druckseiten Teil{Seiten.Schrift, {Erste, Erste + Welche.Anzahl()}};
  std::string Grund;
  const int Ergebnis = PdfSchreiben(Datei, Teil, Name, &Grund);
  if (Ergebnis == -1) SpeicherfehlerMelden(Datei, Grund, "Druckvorschau.Pdf");
  StatusHilfeSetzen(Ergebnis == 0 ? "Gespeichert: " + Datei : "");
  return Ergebnis == 0 ? 0 : -1;
}

}  // namespace tavorena
