#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSpinBox>

#include <tavorena/core/TVDialog.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Blattansicht.h>
#include <tavorena/desktop/Druckvorschau.h>

namespace tavorena {
namespace {

template <typename Widget>
Widget* Benannt(Widget* W, const char* Name) {
  W->setObjectName(Name);
  return W;
}

}  // namespace

Druckvorschau::Druckvorschau(Druckquelle& Zeigt, QWidget* Eltern)
    : QDialog(Eltern),
      Davor(std::exchange(Letzte, this)),
      Quelle(Zeigt),
      Bild(new Blattansicht(Zeigt)),
      Felder(new QWidget),
      Druckerliste(Benannt(new QComboBox, "DruckDrucker")),
      Blatt(Benannt(new QSpinBox, "DruckSeite")),
      Von(Benannt(new QSpinBox, "DruckVon")),
      Bis(Benannt(new QSpinBox, "DruckBis")),
      Anzahl(new QLabel),
      Stand(Benannt(new QLabel, "DruckStand")),
      Druck(Benannt(new QPushButton("&Drucken ..."), "DruckDrucken")),
      Pdf(Benannt(new QPushButton("als &PDF ..."), "DruckPdf")),
      Zu(Benannt(new QPushButton("S&chließen"), "DruckSchließen")),
      Stop(Benannt(new QPushButton("&Stop"), "DruckStop")) {
  setObjectName("Druckvorschau");
  setProperty("Hilfenummer", Quelle.Hilfenummer());
  setWindowTitle(Quelle.Fenstertitel());
  setWindowModality(Qt::WindowModal);
  resize(QSize(1160, 740).boundedTo(screen()->availableSize() - QSize(40, 60)));
  FelderAnlegen();
  KnöpfeAnlegen();
  TastenAnlegen();
  auto* Links = new QVBoxLayout;
  Links->addWidget(Felder);
  Links->addStretch(1);
  for (QWidget* W : std::initializer_list<QWidget*>{Stand, Druck, Pdf, Zu, Stop}) Links->addWidget(W);
  auto* Platz = new QHBoxLayout(this);
  Platz->addLayout(Links);
  Platz->addWidget(Bild, 1);
  Bild->BeiBlatt = [this] {
    const QSignalBlocker Still(Blatt);
    Blatt->setValue(Bild->Blatt() + 1);
  };
  Auffrischen();
  Sperren(false);
  Bild->setFocus();
}

Druckvorschau::~Druckvorschau() { Letzte = Davor; }

void Druckvorschau::FelderAnlegen() {
  auto* Reihen = new QFormLayout(Felder);
  Reihen->setContentsMargins({});
  Quelle.FelderAnlegen(*Reihen, [this] { Auffrischen(); });
  const auto Reihe = [&](const char* Text, QWidget* Erstes, std::initializer_list<QWidget*> Weitere) {
    auto* Neben = new QHBoxLayout;
    Neben->addWidget(Erstes);
    for (QWidget* W : Weitere) Neben->addWidget(W);
    Neben->addStretch(1);
    auto* Beschriftung = new QLabel(Text);
    Beschriftung->setBuddy(Erstes);
    Reihen->addRow(Beschriftung, Neben);
  };
  Reihe("&Seite:", Blatt, {Anzahl});
  auto* Bistext = new QLabel("bis:");
  Bistext->setBuddy(Bis);
  Reihe("Seiten &von:", Von, {Bistext, Bis});
  Blatt->setAccessibleName("Seite");
  Von->setAccessibleName("Seiten von");
  Bis->setAccessibleName("Seiten bis");
  Druckerliste->setAccessibleName("Drucker");
  Druckerliste->addItems(QPrinterInfo::availablePrinterNames());
  Druckerliste->setPlaceholderText("keiner eingerichtet");
  Druckerliste->setEnabled(Druckerliste->count() > 0);
  Druckerliste->setCurrentText(QPrinterInfo::defaultPrinterName());
  Reihen->addRow("D&rucker:", Druckerliste);
  connect(Blatt, &QSpinBox::valueChanged, Bild, [this](int Neues) { Bild->BlattZeigen(Neues - 1); });
  for (QSpinBox* Feld : {Von, Bis}) {
    Feld->setKeyboardTracking(false);  // half a number is no range
    connect(Feld, &QSpinBox::valueChanged, this, [this, Feld] { BereichNehmen(*Feld); });
  }
}

// None of them is pressed by a Return that was typed ahead.
void Druckvorschau::KnöpfeAnlegen() {
  for (QPushButton* K : {Druck, Pdf, Zu, Stop}) K->setAutoDefault(false);
  connect(Druck, &QPushButton::clicked, this, &Druckvorschau::Drucken);
  connect(Pdf, &QPushButton::clicked, this, [this] {
    if (Quelle.AlsPdf(Bereich()) == 0) accept();
  });
  for (QPushButton* K : {Zu, Stop}) connect(K, &QPushButton::clicked, this, &Druckvorschau::reject);
}

// They lead through the sheets wherever the focus is; a field has its own Home and End.
void Druckvorschau::TastenAnlegen() {
  const auto Taste = [this](const QKeySequence& Folge, auto Tun) {
    connect(new QShortcut(Folge, this), &QShortcut::activated, Bild, Tun);
  };
  Taste(Qt::Key_PageUp, [this] { Bild->Blättern(false); });
  Taste(Qt::Key_PageDown, [this] { Bild->Blättern(true); });
  Taste(Qt::Key_Home, [this] { Bild->Anfang(); });
  Taste(Qt::Key_End, [this] { Bild->Ende(); });
  Taste(Qt::CTRL | Qt::Key_Plus, [this] { Bild->Zoomen(true); });
  Taste(Qt::CTRL | Qt::Key_Minus, [this] { Bild->Zoomen(false); });
  Taste(Qt::CTRL | Qt::Key_0, [this] { Bild->Einpassen(); });
}

void Druckvorschau::Auffrischen() {
  const int Alle = Quelle.Blätter(), Letztes = std::max(Alle, 1);
  const bool Ganz = Bisherige == 0 || (Von->value() == 1 && Bis->value() == Bisherige);
  {
    const QSignalBlocker Stille[] = {QSignalBlocker(Blatt), QSignalBlocker(Von), QSignalBlocker(Bis)};
    for (QSpinBox* Feld : {Blatt, Von, Bis}) {
      Feld->setRange(1, Letztes);
      Feld->setEnabled(Alle > 1);
    }
    if (Ganz) Von->setValue(1);
    if (Ganz) Bis->setValue(Letztes);
  }
  Bisherige = Alle;
  Pdf->setEnabled(Alle > 0);
  Druck->setEnabled(Alle > 0 && Druckerliste->count() > 0);
  Druck->setToolTip(Druckerliste->count() > 0 ? "" : "kein Drucker eingerichtet");
  const QString Zusatz = Quelle.Zusatz();
  Anzahl->setText(Alle == 0 ? "" : QString("von %1").arg(Alle) + (Zusatz.isEmpty() ? "" : ", " + Zusatz));
  Bild->Auffrischen();
}

// The field that was typed stands, the other one follows.
void Druckvorschau::BereichNehmen(const QSpinBox& Geändert) {
  if (Von->value() <= Bis->value()) return;
  (&Geändert == Von ? Bis : Von)->setValue(Geändert.value());
}

Blattbereich Druckvorschau::Bereich() {
  for (QSpinBox* Feld : {Von, Bis}) Feld->interpretText();
  return {Von->value() - 1, Bis->value() - 1};
}

void Druckvorschau::Drucken() {
  const Blattbereich Welche = Bereich();
  QPrinter Drucker(QPrinterInfo::printerInfo(Druckerliste->currentText()), QPrinter::HighResolution);
  QPrintDialog Dialog(&Drucker, this);
  Dialog.setOptions({});  // which sheets, is said here
  if (Dialog.exec() != QDialog::Accepted) return;
  Drucker.setFullPage(true);
  Drucker.setPageLayout(Quelle.Papier());
  Drucker.setDocName(Quelle.Titel());
  const int Ergebnis =
      BlätterMalen(Drucker, Welche, [this](QPainter& Maler, int i) { Quelle.Zeichnen(Maler, i); });
  if (Ergebnis == 0) return accept();
  if (Ergebnis == -2) return static_cast<void>(Drucker.abort());
  FehlerMeldung("Der Drucker nimmt nichts an:\n" + Drucker.printerName().toStdString());
}

void Druckvorschau::Sperren(bool An) {
  for (QWidget* W : std::initializer_list<QWidget*>{Felder, Bild}) W->setEnabled(!An);
  for (QPushButton* K : {Druck, Pdf, Zu}) K->setVisible(!An);
  Stop->setVisible(An);
  Stand->setVisible(An);
  Stand->clear();
  (An ? static_cast<QWidget*>(Stop) : Bild)->setFocus();
}

void Druckvorschau::StandZeigen(const QString& Text) { Stand->setText(Text.trimmed()); }

// While sheets go out it stays, and they stop.
void Druckvorschau::reject() {
  if (Stop->isHidden()) return QDialog::reject();
  KorStop = Laufwunsch::Stop;
}

}  // namespace tavorena
