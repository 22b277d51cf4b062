#include <algorithm>
#include <cmath>

#include <QAction>
#include <QGridLayout>
#include <QHelpEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolBar>
#include <QToolTip>
#include <QWheelEvent>

#include <tavorena/core/Geschuetzt.h>
#include <tavorena/core/Optionen.h>
#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/core/Zahlen.h>
#include <tavorena/desktop/Ansichtdatei.h>
#include <tavorena/desktop/Druckvorschau.h>
#include <tavorena/desktop/Fensterplatz.h>
#include <tavorena/desktop/GrafikAnsicht.h>
#include <tavorena/desktop/Grafikdruck.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/graphics/GrafDesign.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/graphics/Grafikmodul.h>
#include <tavorena/records/Stapelleser.h>
#include <tavorena/shell/Grafikbefehle.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

constexpr double Radfaktor = 1.25;  // of a notch of the wheel
constexpr int Balkenschritte = 10000;
constexpr int Maltakt = 1000;  // ms from picture to picture while something long runs

double Twips(double Pixel) { return Pixel * TwipsJePixel; }

// The place of the mouse in the world. @return false: there is no scale yet
bool Welt(QPointF Stelle, double& Rechts, double& Hoch) {
  GrafikWeltAusPixel(Twips(Stelle.x()), Twips(Stelle.y()), Rechts, Hoch);
  return GrafikFenster.Massstab != 0;
}

// A bar over an extent; closed while the window is wider than that.
void BalkenSetzen(QScrollBar& Balken, double Von, double Bis, double Fenster, double Weite) {
  const double Spiel = Bis - Von - Weite;
  Balken.setEnabled(Spiel > 0);
  if (Spiel <= 0) return;
  Balken.setRange(0, Balkenschritte);
  Balken.setPageStep(std::max(1, static_cast<int>(Balkenschritte * std::min(Weite / Spiel, 100.0))));
  Balken.setSingleStep(std::max(1, Balken.pageStep() / 10));
  Balken.setValue(
      static_cast<int>(std::lround(std::clamp((Fenster - Von) / Spiel, 0.0, 1.0) * Balkenschritte)));
}

}  // namespace

// ---- the picture -----------------------------------------------------------------------------------

GrafikBild::GrafikBild(QWidget* Eltern) : QWidget(Eltern) {
  setObjectName("GrafBild");
  setAccessibleName("Grafik");
  setAccessibleDescription(
      "Zeichnung der Punkte: Pfeile verschieben, Plus und Minus ändern den Maßstab, Pos1 zeigt alles, F6 "
      "führt zurück");
  setMouseTracking(true);
  setFocusPolicy(Qt::NoFocus);
  setMinimumSize(120, 120);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::CrossCursor);
  Maluhr.setSingleShot(true);
  Maluhr.setInterval(Maltakt);
  connect(&Maluhr, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

// While something long runs a picture now and then is enough: it must not take the time of the work.
void GrafikBild::SpäterMalen(const QRect& Wo) {
  if (!Stapel.RechnetZeilen && !TVKernMDIForm::Fenster().IstBeschäftigt()) return update(Wo);
  if (!Maluhr.isActive()) Maluhr.start();
}

void GrafikBild::Veralten(const std::optional<Grafikregion>& Wo) {
  if (Wo) return SpäterMalen(Kacheln.Veralten(*Wo).toAlignedRect());
  Kacheln.Veralten();
  SpäterMalen(rect());
}

void GrafikBild::TabelleGeändert() {
  Kacheln.Nachsehen();
  SpäterMalen(rect());
}

void GrafikBild::GummiboxSetzen(bool An) {
  MitGummibox = An;
  if (!An && Gezogen == Zug::Kasten) Gezogen = Zug::Keiner;
  update();
}

void GrafikBild::paintEvent(QPaintEvent* Ereignis) {
  QPainter Maler(this);
  Kacheln.Malen(Maler, Ereignis->rect(), devicePixelRatioF(), palette());
  if (GrafikWahl.Maßstabsleiste) {
    Malfläche Fläche(Maler, palette());
    GrafikLeisteZeichnen(Fläche, GrafikFensterAusschnitt());
  }
  if (Gezogen == Zug::Kasten) {
    Maler.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DashLine));
    Maler.drawRect(QRectF(Anfang, Zuletzt).normalized());
  }
}

void GrafikBild::resizeEvent(QResizeEvent*) {
  if (isVisible()) GrafikGrößeSetzen(Twips(width()), Twips(height()));
}

void GrafikBild::changeEvent(QEvent* Ereignis) {
  if (Ereignis->type() == QEvent::PaletteChange || Ereignis->type() == QEvent::FontChange) Veralten({});
  QWidget::changeEvent(Ereignis);
}

bool GrafikBild::event(QEvent* Ereignis) {
  if (Ereignis->type() == QEvent::ToolTip) {
    const auto& Hilfe = static_cast<const QHelpEvent&>(*Ereignis);
    if (!TippZeigen(Hilfe.pos(), Hilfe.globalPos())) QToolTip::hideText();
    return true;
  }
  return QWidget::event(Ereignis);
}

bool GrafikBild::TippZeigen(QPoint Stelle, QPoint Global) {
  double Rechts = 0, Hoch = 0;
  if (!Welt(Stelle, Rechts, Hoch)) return false;
  const int Zeile = GrafikPunktSuchen(Rechts, Hoch, GrafikToleranz());
  if (Zeile < 0) return false;
  const KorSatz P = KorPunkt(Zeile);
  const auto Zahl = [](double x) {
    return QString::fromStdString(ZahlFormat(x, -1, Optionen.OptNachkommastellen));
  };
  QString Text =
      QString::fromStdString(std::string(P.Pnr)) + "\nRechts: " + Zahl(P.Rechts) + "\nHoch: " + Zahl(P.Hoch);
  if (P.Hoehe != 0) Text += "\nHöhe: " + Zahl(P.Hoehe);
  if (!P.Symbol.empty()) Text += "\nSymbol: " + QString::fromStdString(std::string(P.Symbol));
  QToolTip::showText(Global, "<p style='white-space:pre'>" + Text.toHtmlEscaped() + "</p>", this);
  return true;
}

void GrafikBild::mousePressEvent(QMouseEvent* Ereignis) {
  Anfang = Zuletzt = Ereignis->position();
  if (Ereignis->button() == Qt::RightButton) {
    if (BeiMenü) BeiMenü();
    return;
  }
  if (Ereignis->button() == Qt::MiddleButton) Gezogen = Zug::Schieben;
  if (Ereignis->button() != Qt::LeftButton) return;
  Gezogen = MitGummibox || Ereignis->modifiers().testFlag(Qt::ShiftModifier) ? Zug::Kasten : Zug::Klick;
}

void GrafikBild::mouseMoveEvent(QMouseEvent* Ereignis) {
  const QPointF Jetzt = Ereignis->position();
  if (Gezogen == Zug::Schieben) {
    // In whole pixels of the screen: the picture that is there moves.
    const auto Ganz = [d = devicePixelRatioF()](double Weg) { return Twips(std::round(Weg * d) / d); };
    const QPointF Weg = Jetzt - Anfang, Bisher = Zuletzt - Anfang;
    GrafikSchieben(Ganz(Weg.x()) - Ganz(Bisher.x()), Ganz(Weg.y()) - Ganz(Bisher.y()));
  }
  Zuletzt = Jetzt;
  if (Gezogen == Zug::Kasten) update();
  double Rechts = 0, Hoch = 0;
  if (Welt(Jetzt, Rechts, Hoch)) StatusHilfeSetzen(GrafikOrtstext(Rechts, Hoch));
}

void GrafikBild::mouseReleaseEvent(QMouseEvent* Ereignis) {
  const Zug War = std::exchange(Gezogen, Zug::Keiner);
  if (War == Zug::Klick) return Klicken(Anfang);
  if (War != Zug::Kasten) return;
  const QPointF Jetzt = Ereignis->position();
  update();
  GrafikAusschnitt(Twips(Anfang.x()), Twips(Anfang.y()), Twips(Jetzt.x()), Twips(Jetzt.y()));
  if (Anfang != Jetzt && BeiEnde) BeiEnde();
}

void GrafikBild::Klicken(QPointF Stelle) {
  double Rechts = 0, Hoch = 0;
  if (!Welt(Stelle, Rechts, Hoch)) return;
  if (GrafDesignSchritt() != Zeichenschritt::Keiner) return GrafDesignKlick(Rechts, Hoch);
  const int Zeile = GrafikPunktSuchen(Rechts, Hoch, GrafikToleranz());
  if (Zeile >= 0 && BeiPunkt) BeiPunkt(KorPnr(Zeile));
}

void GrafikBild::mouseDoubleClickEvent(QMouseEvent* Ereignis) {
  if (Ereignis->button() == Qt::MiddleButton) return GrafikZoomAnpassen();
  mousePressEvent(Ereignis);
}

void GrafikBild::wheelEvent(QWheelEvent* Ereignis) {
  const double Rasten = Ereignis->angleDelta().y() / 120.0;
  if (Rasten != 0)
    GrafikZoomBei(Twips(Ereignis->position().x()), Twips(Ereignis->position().y()),
                  std::pow(Radfaktor, Rasten));
  Ereignis->accept();
}

void GrafikBild::keyPressEvent(QKeyEvent* Ereignis) {
  switch (Ereignis->key()) {
    case Qt::Key_Left:
      return GrafZoomlinks();
    case Qt::Key_Right:
      return GrafZoomrechts();
    case Qt::Key_Up:
      return GrafZoomoben();
    case Qt::Key_Down:
      return GrafZoomunten();
    case Qt::Key_Plus:
      return GrafZoomin();
    case Qt::Key_Minus:
      return GrafZoomout();
    case Qt::Key_Home:
      return GrafikZoomAnpassen();
    case Qt::Key_F5:
      return GrafikNeuZeichnen();
    default:
      QWidget::keyPressEvent(Ereignis);
  }
}

void GrafikBild::leaveEvent(QEvent*) { GrafDesignZeigen(); }

// ---- the form around it ----------------------------------------------------------------------------

GrafikAnsicht::GrafikAnsicht(QWidget* Eltern)
    : QWidget(Eltern),
      Gemälde(new GrafikBild(this)),
      Leiste(new QToolBar(this)),
      Zeichenleiste(new QToolBar(this)),
      GrafikHScroll(new QScrollBar(Qt::Horizontal, this)),
      GrafikVScroll(new QScrollBar(Qt::Vertical, this)) {
  GrafikHScroll->setObjectName("GrafikHScroll");
  GrafikVScroll->setObjectName("GrafikVScroll");
  auto* Platz = new QGridLayout(this);
  Platz->setContentsMargins(0, 0, 0, 0);
  Platz->setSpacing(0);
  Platz->addWidget(Leiste, 0, 0, 1, 2);
  Platz->addWidget(Zeichenleiste, 1, 0, 1, 2);
  Platz->addWidget(Gemälde, 2, 0);
  Platz->addWidget(GrafikVScroll, 2, 1);
  Platz->addWidget(GrafikHScroll, 3, 0);
  Platz->setRowStretch(2, 1);
  Platz->setColumnStretch(0, 1);
  for (QScrollBar* Balken : {GrafikHScroll, GrafikVScroll}) {
    Balken->setFocusPolicy(Qt::NoFocus);
    connect(Balken, &QScrollBar::valueChanged, this, [this] { BalkenGerückt(); });
  }
  BefehleAnlegen();
  Gemälde->BeiMenü = [this] {
    QMenu Menü(this);
    Menü.addActions(Leiste->actions());
    Menü.addSeparator();
    Menü.addActions(Zeichenleiste->actions());
    Menü.exec(QCursor::pos());
  };
  Gemälde->BeiEnde = [this] { Box->setChecked(false); };
  Balkenuhr.setSingleShot(true);
  connect(&Balkenuhr, &QTimer::timeout, this, &GrafikAnsicht::BalkenStellen);
  GrafikBeiÄnderung = [this](const std::optional<Grafikregion>& Wo) { Gemälde->Veralten(Wo); };
  GrafikBeiFenster = [this] {
    Gemälde->SpäterMalen(Gemälde->rect());
    if (!Balkenuhr.isActive()) Balkenuhr.start();
  };
}

GrafikAnsicht::~GrafikAnsicht() {
  GrafikBeiÄnderung = {};
  GrafikBeiFenster = {};
  GrafikFenster.GrafikOffen = false;
}

QAction* GrafikAnsicht::Befehl(QToolBar& In, const char* Name, const char* Text, const char* Zeichen,
                               std::function<void()> Tun, int Hilfe) {
  QAction* A = In.addAction(Text);
  A->setProperty("Hilfenummer", Hilfe);
  A->setObjectName(Name);
  A->setIconText(Zeichen);
  A->setToolTip(QString(Text).remove('&'));
  In.widgetForAction(A)->setAccessibleName(A->toolTip());  // on the button stands a sign
  connect(A, &QAction::triggered, &In, [Name, Tun = std::move(Tun)] {
    static_cast<void>(Geschützt(std::string("TVKernGrafikform.") + Name, Tun));  // the message is the answer
  });
  connect(A, &QAction::hovered, &In, [A] { StatusHilfeSetzen(A->toolTip().toStdString()); });
  return A;
}

void GrafikAnsicht::BefehleAnlegen() {
  for (QToolBar* L : {Leiste, Zeichenleiste}) {
    L->setToolButtonStyle(Qt::ToolButtonTextOnly);
    L->setFocusPolicy(Qt::NoFocus);
  }
  Befehl(*Leiste, "GrafikZoomAnpa", "Alles zeigen", "Alles", GrafikZoomAnpassen);
  Befehl(*Leiste, "GrafZoomneu", "Neu zeichnen", "Neu", GrafikNeuZeichnen);
  Befehl(*Leiste, "GrafZoomin", "Vergrößern", "+", GrafZoomin);
  Befehl(*Leiste, "GrafZoomout", "Verkleinern", "−", GrafZoomout);
  Befehl(*Leiste, "GrafZoomlinks", "Nach links", "←", GrafZoomlinks);
  Befehl(*Leiste, "GrafZoomrechts", "Nach rechts", "→", GrafZoomrechts);
  Befehl(*Leiste, "GrafZoomoben", "Nach oben", "↑", GrafZoomoben);
  Befehl(*Leiste, "GrafZoomunten", "Nach unten", "↓", GrafZoomunten);
  Box = Befehl(*Leiste, "GrafikGummibox", "Ausschnitt aufziehen", "Box", [] {});
  Box->setCheckable(true);
  connect(Box, &QAction::toggled, this, [this](bool An) { Gemälde->GummiboxSetzen(An); });
  Befehl(*Zeichenleiste, "GrafDesign(0)", "Linie zeichnen", "Linie",
         [] { GrafDesign(Zeichenbefehl::Linie); });
  Befehl(*Zeichenleiste, "GrafDesign(1)", "Polygon zeichnen", "Polygon",
         [] { GrafDesign(Zeichenbefehl::Polygon); });
  Befehl(*Zeichenleiste, "GrafDesign(2)", "Bogen zeichnen", "Bogen",
         [] { GrafDesign(Zeichenbefehl::Bogen); });
  Befehl(*Zeichenleiste, "GrafDesign(3)", "Linie oder Bogen löschen", "Löschen",
         [] { GrafDesign(Zeichenbefehl::Löschen); });
  const auto Schalter = [this](const char* Name, const char* Text, const char* Zeichen, bool& Wahl) {
    QAction* A = Befehl(*Leiste, Name, Text, Zeichen, [] {});
    A->setCheckable(true);
    A->setChecked(Wahl);
    connect(A, &QAction::toggled, this, [&Wahl](bool An) {
      Wahl = An;
      GrafikNeuZeichnen();
    });
    Wahlen.emplace_back(Name, &Wahl);
  };
  Leiste->addSeparator();
  Schalter("GrafNummern", "Punktnummern", "Nr.", GrafikWahl.Nummern);
  Schalter("GrafFreistellen", "Nummern ohne Überdeckung", "Frei", GrafikWahl.Freistellen);
  Schalter("GrafMaßstabsleiste", "Maßstabsleiste", "Maßstab", GrafikWahl.Maßstabsleiste);
  Zeichenleiste->addSeparator();
  Befehl(
      *Zeichenleiste, "GrafDXFSpeichern", "DXF speichern ...", "DXF →", [] { GrafDXFSpeichern(); },
      GrafDXFHilfe);
  Befehl(*Zeichenleiste, "GrafDXFLesen", "DXF lesen ...", "DXF ←", GrafDXFLesen, GrafDXFHilfe);
  Befehl(*Zeichenleiste, "GrafAnsichtSpeichern", "Ansicht speichern ...", "Speichern", AnsichtSpeichern);
  Befehl(
      *Zeichenleiste, "GrafDrucken", "Drucken ...", "Drucken",
      [this] {
        Grafikdruck Was;
        Druckvorschau(Was, window()).exec();
      },
      GrafDruckhilfe);
}

void GrafikAnsicht::Nachsehen() {
  if (Stand == KorStand) return;
  Stand = KorStand;
  if (std::exchange(WarLeer, KorAnzahl == 0) && KorAnzahl > 0) GrafikZoomAnpassen();
  Gemälde->TabelleGeändert();
}

void GrafikAnsicht::WahlLesen(const Fensterplatz& Platz) {
  for (const auto& [Name, Wahl] : Wahlen) {
    if (Platz.Hat(Name)) findChild<QAction*>(Name)->setChecked(Platz.Zahl(Name) != 0);
  }
}

void GrafikAnsicht::WahlSchreiben(Fensterplatz& Platz) {
  for (const auto& [Name, Wahl] : Wahlen) Platz.Merken(Name, *Wahl ? 1 : 0);
}

bool GrafikAnsicht::Verlassen() {
  const bool MitBox = Box->isChecked();
  Box->setChecked(false);
  return GrafDesignVerlassen() || MitBox;
}

void GrafikAnsicht::showEvent(QShowEvent* Ereignis) {
  QWidget::showEvent(Ereignis);
  GrafikÖffnen(Twips(Gemälde->width()), Twips(Gemälde->height()));
  Nachsehen();
}

void GrafikAnsicht::hideEvent(QHideEvent* Ereignis) {
  QWidget::hideEvent(Ereignis);
  GrafikFensterMerken();
  GrafikSchließen();
}

// The bars show where the window lies in the fitted extent.
void GrafikAnsicht::BalkenStellen() {
  const Grafikzustand& G = GrafikFenster;
  Stellt = true;
  BalkenSetzen(*GrafikHScroll, G.BereichRechtsVon, G.BereichRechtsBis, G.FensterRechts, G.FensterBreite);
  // Upwards is towards smaller values of the bar.
  BalkenSetzen(*GrafikVScroll, -G.BereichHochBis, -G.BereichHochVon, -G.FensterHoch - G.FensterHoehe,
               G.FensterHoehe);
  Stellt = false;
}

void GrafikAnsicht::BalkenGerückt() {
  if (Stellt) return;
  const Grafikzustand& G = GrafikFenster;
  const auto Anteil = [](const QScrollBar& B) { return static_cast<double>(B.value()) / Balkenschritte; };
  double dRechts = 0, dHoch = 0;
  if (GrafikHScroll->isEnabled())
    dRechts = G.BereichRechtsVon +
              Anteil(*GrafikHScroll) * (G.BereichRechtsBis - G.BereichRechtsVon - G.FensterBreite) -
              G.FensterRechts;
  if (GrafikVScroll->isEnabled())
    dHoch = G.BereichHochBis - G.FensterHoehe -
            Anteil(*GrafikVScroll) * (G.BereichHochBis - G.BereichHochVon - G.FensterHoehe) - G.FensterHoch;
  GrafikSchieben(-dRechts * G.Massstab, dHoch * G.Massstab);
}

}  // namespace tavorena
