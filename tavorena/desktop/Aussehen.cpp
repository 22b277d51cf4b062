#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QSvgRenderer>

#include <tavorena/desktop/Aussehen.h>

namespace tavorena {
namespace {

// The two colours that the images are drawn with, replaced by those of the palette.
constexpr const char* Tinte = "#101010";
constexpr const char* Akzent = "#0a64a4";

struct Farbsatz {
  const char *Fenster, *Grund, *Streifen, *Text, *Knopf, *Rand, *Auswahl, *Auswahltext, *Blass, *Akzent,
      *Titel;
};
// Texts and the focus have a contrast of 4.5 to 1 against all they stand on, closed ones included.
constexpr Farbsatz Hell = {"#f3f3f0", "#ffffff", "#f7f8f6", "#23272a", "#e9e9e5", "#b9bab5",
                           "#2b6894", "#ffffff", "#5f6467", "#0a64a4", "#f3f3f0"};
constexpr Farbsatz Dunkel = {"#2a2d30", "#202326", "#25282b", "#dfe3e6", "#35393d", "#4b5056",
                             "#64aade", "#0d1418", "#a4aaaf", "#6ab7f0", "#878d93"};

bool IstDunkel() { return qApp->palette().color(QPalette::Window).lightness() < 128; }

QPalette Palette(const Farbsatz& F) {
  QPalette P;
  P.setColor(QPalette::Window, F.Fenster);
  P.setColor(QPalette::WindowText, F.Text);
  P.setColor(QPalette::Base, F.Grund);
  P.setColor(QPalette::AlternateBase, F.Streifen);
  P.setColor(QPalette::Text, F.Text);
  P.setColor(QPalette::PlaceholderText, F.Blass);
  P.setColor(QPalette::Button, F.Knopf);
  P.setColor(QPalette::ButtonText, F.Text);
  P.setColor(QPalette::ToolTipBase, F.Grund);
  P.setColor(QPalette::ToolTipText, F.Text);
  P.setColor(QPalette::Highlight, F.Auswahl);
  P.setColor(QPalette::HighlightedText, F.Auswahltext);
  P.setColor(QPalette::Link, F.Akzent);
  P.setColor(QPalette::Mid, F.Rand);
  P.setColor(QPalette::Light, QColor(F.Knopf).lighter(115));
  P.setColor(QPalette::Midlight, QColor(F.Knopf).lighter(108));
  P.setColor(QPalette::Dark, QColor(F.Rand).darker(115));
  P.setColor(QPalette::Shadow, QColor(F.Rand).darker(160));
  for (const auto Rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    P.setColor(QPalette::Disabled, Rolle, F.Blass);
  }
  for (const auto Rolle : {QPalette::Base, QPalette::Button})
    P.setColor(QPalette::Disabled, Rolle, F.Fenster);
  return P;
}

QString Stil() {
  // The caption of a frame stands in its line, a result has no edge, a value that failed is told by its
  // colour.
  return QString(
             "QGroupBox { border: 1px solid palette(mid); border-radius: 4px; margin-top: 0.7em; "
             "padding-top: 0.4em; }"
             "QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0 3px; color: palette(link); "
             "}"
             "QLineEdit { border: 1px solid palette(mid); border-radius: 3px; padding: 1px 3px; background: "
             "palette(base); }"
             "QLineEdit:focus { border-color: palette(highlight); }"
             "QLineEdit:read-only { border-color: transparent; background: transparent; }"
             "QLineEdit[fehlerhaft=\"true\"] { color: %1; }")
      .arg(Warnfarbe().name());
}

// The basic style shows the focus of buttons and boxes only after a Tab, and draws the edge of an empty box
// as a shade of the window: in the dark it is not to be seen. The buttons in the title of a worksheet are
// black where it is not the active one, whatever the palette.
class Grundstil final : public QProxyStyle {
 public:
  Grundstil() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  void drawControl(ControlElement Was, const QStyleOption* Wie, QPainter* Maler,
                   const QWidget* W) const override {
    const auto* Knopf = qstyleoption_cast<const QStyleOptionButton*>(Wie);
    if (Knopf == nullptr) return QProxyStyle::drawControl(Was, Wie, Maler, W);
    const QStyleOptionButton Neu = MitFokus(*Knopf);
    QProxyStyle::drawControl(Was, &Neu, Maler, W);
  }

  void drawComplexControl(ComplexControl Was, const QStyleOptionComplex* Wie, QPainter* Maler,
                          const QWidget* W) const override {
    if (const auto* Titel = qstyleoption_cast<const QStyleOptionTitleBar*>(Wie)) {
      QStyleOptionTitleBar Neu = *Titel;
      Neu.palette.setColor(QPalette::Highlight, Hell.Auswahl);
      if (IstDunkel() && (Titel->titleBarState & State_Active) == 0) {
        Neu.palette.setColor(QPalette::Window, Dunkel.Titel);
        for (const auto Rolle : {QPalette::Text, QPalette::WindowText})
          Neu.palette.setColor(Rolle, Dunkel.Auswahltext);
      }
      return QProxyStyle::drawComplexControl(Was, &Neu, Maler, W);
    }
    const auto* Liste = qstyleoption_cast<const QStyleOptionComboBox*>(Wie);
    if (Liste == nullptr) return QProxyStyle::drawComplexControl(Was, Wie, Maler, W);
    const QStyleOptionComboBox Neu = MitFokus(*Liste);
    QProxyStyle::drawComplexControl(Was, &Neu, Maler, W);
  }

  void drawPrimitive(PrimitiveElement Was, const QStyleOption* Wie, QPainter* Maler,
                     const QWidget* W) const override {
    if (Was == PE_FrameFocusRect) {  // a shade of the ground is no frame
      Maler->save();
      Maler->setPen(Wie->palette.color(QPalette::Highlight));
      Maler->setBrush(Qt::NoBrush);
      Maler->drawRect(Wie->rect.adjusted(0, 0, -1, -1));
      return Maler->restore();
    }
    const auto* Knopf = qstyleoption_cast<const QStyleOptionButton*>(Wie);
    if (Knopf == nullptr || (Was != PE_IndicatorCheckBox && Was != PE_IndicatorRadioButton))
      return QProxyStyle::drawPrimitive(Was, Wie, Maler, W);
    QStyleOptionButton Neu = MitFokus(*Knopf);
    Neu.palette.setColor(QPalette::Window, IstDunkel() ? Dunkel.Text : Hell.Blass);
    QProxyStyle::drawPrimitive(Was, &Neu, Maler, W);
  }

  // The arrows at the end of a tool bar that is too long are black whatever the palette.
  QIcon standardIcon(StandardPixmap Was, const QStyleOption* Wie, const QWidget* W) const override {
    const QIcon Bild = QProxyStyle::standardIcon(Was, Wie, W);
    if (Was != SP_ToolBarHorizontalExtensionButton) return Bild;
    QPixmap Getönt = Bild.pixmap(32);
    QPainter Maler(&Getönt);
    Maler.setCompositionMode(QPainter::CompositionMode_SourceIn);
    Maler.fillRect(Getönt.rect(), qApp->palette().color(QPalette::ButtonText));
    return Getönt;
  }

 private:
  template <typename Option>
  static Option MitFokus(Option O) {
    if (O.state.testFlag(State_HasFocus)) O.state |= State_KeyboardFocusChange;
    return O;
  }
};

QPixmap Zeichnen(QSvgRenderer& Bild, int Kante, double Deckung) {
  QPixmap Flaeche(Kante, Kante);
  Flaeche.fill(Qt::transparent);
  QPainter Maler(&Flaeche);
  Maler.setOpacity(Deckung);
  Bild.render(&Maler);
  return Flaeche;
}

QByteArray Bilddatei(const QString& Name) {
  QFile Datei(":/symbole/" + Name + ".svg");
  return Datei.open(QIODevice::ReadOnly) ? Datei.readAll() : QByteArray();
}

}  // namespace

void AussehenSetzen(QApplication& App, Helligkeit Wahl) {
  const bool Dunkles = Wahl == Helligkeit::Dunkel || (Wahl == Helligkeit::System && IstDunkel());
  QApplication::setStyle(new Grundstil);
  App.setPalette(Palette(Dunkles ? Dunkel : Hell));
  App.setStyleSheet(Stil());
  App.setWindowIcon(Programmsymbol());
}

double Kontrast(const QColor& A, const QColor& B) {
  const auto Leuchtdichte = [](const QColor& C) {
    const auto Linear = [](double x) {
      return x <= 0.04045 ? x / 12.92 : std::pow((x + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * Linear(C.redF()) + 0.7152 * Linear(C.greenF()) + 0.0722 * Linear(C.blueF());
  };
  const double a = Leuchtdichte(A), b = Leuchtdichte(B);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor Abgesetzt(QColor Farbe, const QColor& Grund) {
  const double Schritt = Grund.lightness() < 128 ? 0.01 : -0.01;
  double Helligkeit = Farbe.lightnessF();
  while (Kontrast(Farbe, Grund) < Lesbar && Helligkeit > 0 && Helligkeit < 1) {
    Helligkeit = std::clamp(Helligkeit + Schritt, 0.0, 1.0);
    Farbe = QColor::fromHslF(Farbe.hslHueF(), Farbe.hslSaturationF(), static_cast<float>(Helligkeit));
  }
  return Farbe;
}

QColor Warnfarbe() { return {IstDunkel() ? "#ff8a75" : "#b3261e"}; }

QFont Zahlenschrift() {
  QFont Schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  Schrift.setPointSizeF(QApplication::font().pointSizeF());
  return Schrift;
}

int Zeichenbreite(const QFont& Schrift, int Zeichen) {
  return static_cast<int>(std::ceil(QFontMetricsF(Schrift).horizontalAdvance(QLatin1Char('0')) * Zeichen));
}

QIcon Symbol(const QString& Name) {
  const Farbsatz& F = IstDunkel() ? Dunkel : Hell;
  QByteArray Text = Bilddatei(Name);
  Text.replace(Tinte, F.Text).replace(Akzent, F.Akzent);
  QSvgRenderer Bild(Text);
  QIcon Fertig;
  for (const int Kante : {24, 32, 48, 72}) {
    Fertig.addPixmap(Zeichnen(Bild, Kante, 1.0));
    Fertig.addPixmap(Zeichnen(Bild, Kante, 0.3), QIcon::Disabled);
  }
  return Fertig;
}

QIcon Programmsymbol() {
  QSvgRenderer Bild(Bilddatei("tavorena"));
  QIcon Fertig;
  for (const int Kante : {16, 24, 32, 48, 64, 128, 256}) Fertig.addPixmap(Zeichnen(Bild, Kante, 1.0));
  return Fertig;
}

}  // namespace tavorena
