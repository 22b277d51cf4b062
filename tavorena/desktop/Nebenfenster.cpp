#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Nebenfenster.h>
#include <tavorena/desktop/Rollflaeche.h>

namespace tavorena {

Nebenfenster::Nebenfenster(Formular& Gezeigt, QMainWindow& Haupt)
    : QDockWidget(&Haupt), Form(Gezeigt), Ansicht(new FormularAnsicht(Gezeigt)) {
  setObjectName(Ansicht->objectName() + "Fenster");
  setWindowTitle(Ansicht->windowTitle());
  setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  auto* Rolle = new Rollfläche(Ansicht, false);
  Rolle->setMinimumSize(
      Ansicht->sizeHint().boundedTo(QSize(480, 320)).boundedTo(screen()->availableSize() / 2));
  setWidget(Rolle);
  Ansicht->BeiGeschlossen = [this] {
    if (isAncestorOf(QApplication::focusWidget()) && Vorheriger != nullptr) Vorheriger->setFocus();
    hide();
    Löschen();
  };
  connect(new QShortcut(Qt::Key_F7, this), &QShortcut::activated, this, [this] { FokusTauschen(); });
  connect(new QShortcut(Qt::Key_F9, this), &QShortcut::activated, this, [this] { Drücken(); });
}

void Nebenfenster::Öffnen(bool MitFokus) {
  show();
  Form.Öffnen();
  if (MitFokus) Ansicht->FokusHolen();
}

QList<Nebenfenster*> Nebenfenster::Offene(const QWidget& Haupt) {
  QList<Nebenfenster*> Liste;
  for (auto* Dock : Haupt.findChildren<QDockWidget*>()) {
    if (auto* Neben = dynamic_cast<Nebenfenster*>(Dock)) Liste << Neben;
  }
  return Liste;
}

// The click that is still running may have come from a button in here.
void Nebenfenster::Löschen() {
  if (!Form.InArbeit()) return deleteLater();
  QTimer::singleShot(100, this, [this] { Löschen(); });
}

void Nebenfenster::FokusTauschen() {
  if (!isAncestorOf(QApplication::focusWidget())) {
    Vorheriger = QApplication::focusWidget();
    Steuerelement* S = Form.Fokus();
    if (S != nullptr && !Formular::NimmtFokus(*S)) S = Form.Nachbar(*S, true);  // it was closed since
    if (S != nullptr) Form.FokusWechseln(*S);
    Ansicht->FokusHolen();
    Ansicht->FokusMarkieren();
  } else if (Vorheriger != nullptr) {
    Vorheriger->setFocus();
  }
}

void Nebenfenster::Drücken() {
  for (const auto& S : Form.Steuerelemente()) {
    auto* K = dynamic_cast<Knopf*>(S.get());
    if (K != nullptr && K->Vorgabe) return Form.Klicken(*K);
  }
}

void Nebenfenster::closeEvent(QCloseEvent* Ereignis) {
  if (Ansicht->Form() == nullptr) return Ereignis->accept();
  Form.SchließenVerlangen();
  Ereignis->ignore();  // when the form closes, the window goes with it
}

}  // namespace tavorena
