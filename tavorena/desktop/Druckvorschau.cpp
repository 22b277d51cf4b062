#include <algorithm>
#include <cmath>

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QSpinBox>

#include <tavorena/core/TVDialog.h>
#include <tavorena/desktop/Ansichtdatei.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Druckvorschau.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/forms/Dateifrage.h>

namespace tavorena {
namespace {

constexpr int Steg = 12;  // around a sheet [pixels]

QString Q(const std::string& Text) { return QString::fromStdString(Text); }

template <typename Widget>
Widget* Benannt(Widget* W, const char* Name) {
  W->setObjectName(Name);
  return W;
}

}  // namespace

Seitenbild::Seitenbild(QWidget* Eltern) : QWidget(Eltern) {
  setObjectName("Seitenbild");
  setMinimumSize(360, 300);
}

void Seitenbild::Zeigen(const Seitenauftrag& Neuer, const Seitenplan& NeuerPlan, int NeueSeite) {
  Auftrag = Neuer;
  Plan = NeuerPlan;
  Seite = NeueSeite;
  Grund.clear();
  update();
}

void Seitenbild::Absagen(const QString& NeuerGrund) {
  Grund = NeuerGrund;
  update();
}

void Seitenbild::paintEvent(QPaintEvent*) {
  QPainter Maler(this);
  Maler.fillRect(rect(), palette().color(QPalette::Window).darker(115));
  const QRectF Platz = QRectF(rect()).adjusted(Steg, Steg, -Steg, -Steg);
  if (!Grund.isEmpty()) return Maler.drawText(Platz, Qt::AlignCenter | Qt::TextWordWrap, Grund);
  const QSizeF Papier = QSizeF(Plan.Breite, Plan.Hoehe) / TwipsJePixel;
  const double Faktor = std::min(Platz.width() / Papier.width(), Platz.height() / Papier.height());
  Maler.translate(Platz.center() - QPointF(Papier.width(), Papier.height()) * Faktor / 2);
  Maler.scale(Faktor, Faktor);
  Maler.fillRect(QRectF(QPointF(0, 0), Papier), Qt::white);
  Malfläche Fläche(Maler, Papierfarben());
  SeiteZeichnen(Fläche, Auftrag, Plan, Seite);
}

Druckvorschau::Druckvorschau(QWidget* Eltern)
    : QDialog(Eltern),
      GrafInhalt(Benannt(new QComboBox, "GrafInhalt")),
      GrafBlatt(Benannt(new QComboBox, "GrafBlatt")),
      GrafDrucker(Benannt(new QComboBox, "GrafDrucker")),
      GrafTitel(Benannt(new QLineEdit, "GrafTitel")),
      GrafMassstab(Benannt(new QLineEdit, "GrafMassstab")),
      GrafSeite(Benannt(new QSpinBox, "GrafSeite")),
      Anzahl(new QLabel),
      GrafDruck(Benannt(new QPushButton("&Drucken"), "GrafDruck")),
      GrafPdf(Benannt(new QPushButton("Als &PDF ..."), "GrafPdf")),
      Bild(new Seitenbild(this)) {
  setObjectName("GrafDruckform");
  setProperty("Hilfenummer", GrafDruckhilfe);
  setWindowTitle("Grafik drucken");
  setWindowModality(Qt::WindowModal);
  resize(QSize(1040, 700).boundedTo(screen()->availableSize() - QSize(40, 80)));
  Vorbelegen();
  Anordnen();
  for (QComboBox* Liste : {GrafInhalt, GrafBlatt})
    connect(Liste, &QComboBox::currentIndexChanged, this, &Druckvorschau::Auffrischen);
  for (QLineEdit* Feld : {GrafTitel, GrafMassstab})
    connect(Feld, &QLineEdit::textChanged, this, &Druckvorschau::Auffrischen);
  connect(GrafSeite, &QSpinBox::valueChanged, this, &Druckvorschau::Auffrischen);
  connect(GrafDruck, &QPushButton::clicked, this, &Druckvorschau::Drucken);
  connect(GrafPdf, &QPushButton::clicked, this, &Druckvorschau::Speichern);
  Auffrischen();
}

void Druckvorschau::Vorbelegen() {
  GrafInhalt->addItems({"Alle Punkte", "Ausschnitt der Grafik"});
  GrafBlatt->addItems({"A4 hoch", "A4 quer", "A3 hoch", "A3 quer"});
  GrafBlatt->setCurrentIndex(static_cast<int>(Blatt::A4quer));
  GrafDrucker->addItems(QPrinterInfo::availablePrinterNames());
  GrafDrucker->setPlaceholderText("keiner eingerichtet");
  GrafDrucker->setEnabled(GrafDrucker->count() > 0);
  GrafDrucker->setCurrentText(QPrinterInfo::defaultPrinterName());
  Seitenauftrag A;
  SeitenkopfSetzen(A);
  GrafTitel->setText(Q(A.Titel));
  GrafMassstab->setPlaceholderText("eingepaßt");
  GrafMassstab->setToolTip(
      "Zahl hinter 1: ; leer: der größte runde Maßstab, in dem alles auf ein Blatt paßt");
  GrafMassstab->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,9}"), this));
  GrafSeite->setMinimum(1);
}

void Druckvorschau::Anordnen() {
  auto* Felder = new QFormLayout;
  Felder->addRow("&Inhalt:", GrafInhalt);
  Felder->addRow("&Blatt:", GrafBlatt);
  Felder->addRow("&Maßstab 1:", GrafMassstab);
  Felder->addRow("&Titel:", GrafTitel);
  auto* Blättern = new QHBoxLayout;
  Blättern->addWidget(GrafSeite);
  Blättern->addWidget(Anzahl, 1);
  auto* Seite = new QLabel("&Seite:");
  Seite->setBuddy(GrafSeite);
  Felder->addRow(Seite, Blättern);
  Felder->addRow("D&rucker:", GrafDrucker);
  auto* Zu = new QPushButton("S&chließen");
  auto* Links = new QVBoxLayout;
  Links->addLayout(Felder);
  Links->addStretch(1);
  for (QPushButton* K : {GrafDruck, GrafPdf, Zu}) {
    K->setAutoDefault(false);
    Links->addWidget(K);
  }
  auto* Platz = new QHBoxLayout(this);
  Platz->addLayout(Links);
  Platz->addWidget(Bild, 1);
  connect(Zu, &QPushButton::clicked, this, &QDialog::reject);
}

Seitenauftrag Druckvorschau::Auftrag() const {
  Seitenauftrag A;
  SeitenkopfSetzen(A);
  A.Papier = static_cast<Blatt>(GrafBlatt->currentIndex());
  A.AllePunkte = GrafInhalt->currentIndex() == 0;
  A.Maßstabszahl = GrafMassstab->text().toDouble();
  A.Titel = GrafTitel->text().toStdString();
  return A;
}

void Druckvorschau::Auffrischen() {
  const Seitenauftrag A = Auftrag();
  std::string Grund;
  const bool Gut = SeitenPlanen(A, Plan, Grund) == 0;
  GrafPdf->setEnabled(Gut);
  GrafSeite->setEnabled(Gut && Plan.Seiten() > 1);
  GrafDruck->setEnabled(Gut && GrafDrucker->count() > 0);
  GrafDruck->setToolTip(GrafDrucker->count() > 0 ? "" : "kein Drucker eingerichtet");
  if (!Gut) return Bild->Absagen(Q(Grund));
  const QSignalBlocker Still(GrafSeite);
  GrafSeite->setMaximum(Plan.Seiten());
  Anzahl->setText(QString("von %1, Maßstab 1:%2").arg(Plan.Seiten()).arg(Plan.Maßstabszahl, 0, 'g', 9));
  Bild->Zeigen(A, Plan, GrafSeite->value() - 1);
}

void Druckvorschau::Drucken() {
  QPrinter Drucker(QPrinterInfo::printerInfo(GrafDrucker->currentText()), QPrinter::HighResolution);
  const Seitenauftrag A = Auftrag();
  Drucker.setFullPage(true);
  Drucker.setPageLayout(Papierformat(A.Papier));
  Drucker.setDocName(Q(A.Titel));
  if (SeitenMalen(Drucker, A, Plan)) return accept();
  FehlerMeldung("Der Drucker nimmt nichts an:\n" + GrafDrucker->currentText().toStdString());
}

void Druckvorschau::Speichern() {
  const std::string Name = DateiFragen("Grafik als PDF speichern", "PDF (*.pdf)|*.pdf", "*.pdf", true);
  if (Name.empty() || SeitenSchreiben(Name, Auftrag()) < 0) return;
  StatusHilfeSetzen("Gespeichert: " + Name);
  accept();
}

}  // namespace tavorena
