#include <optional>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>

#include <tavorena/core/Ports.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Gitteransicht.h>

namespace tavorena {
namespace {

QString Q(const std::string& Text) { return QString::fromStdString(Text); }

// The keys that a form looks at. "+" and "-" of the number pad always step a point number; those of the
// main keyboard only where they can not belong to the number: in an empty or wholly selected field.
std::optional<Taste> TasteVon(const QKeyEvent& E, bool Anfang) {
  const bool Zählt = Anfang || E.modifiers().testFlag(Qt::KeypadModifier);
  switch (E.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return Taste::Return;
    case Qt::Key_Escape:
      return Taste::Escape;
    case Qt::Key_Up:
      return Taste::Auf;
    case Qt::Key_Down:
      return Taste::Ab;
    case Qt::Key_Plus:
      return Zählt ? std::optional(Taste::Plus) : std::nullopt;
    case Qt::Key_Minus:
      return Zählt ? std::optional(Taste::Minus) : std::nullopt;
    default:
      return std::nullopt;
  }
}

}  // namespace

FormularAnsicht::FormularAnsicht(Formular& Gezeigt, QWidget* Eltern)
    : QWidget(Eltern), Modell(&Gezeigt), Kästen(new QVBoxLayout(this)) {
  setObjectName(Q(Gezeigt.FormName));
  Kästen->setContentsMargins(10, 10, 10, 10);
  Kästen->setSpacing(8);
  Aufbauen();
  Modell->Beobachter = this;
  FormularGeändert();
}

FormularAnsicht::~FormularAnsicht() {
  if (Modell != nullptr) Modell->Beobachter = nullptr;
}

void FormularAnsicht::Aufbauen() {
  Knopfleiste = new QGridLayout;
  for (const auto& S : Modell->Steuerelemente()) {
    QWidget* W = Erzeugen(*S);
    Widgets[S.get()] = W;
    if (S->Rahmen == "#") {
      Knopfleiste->addWidget(W, S->Ort.Zeile, S->Ort.Spalte);
    } else if (S->Art == Steuerart::Gitter) {
      QGridLayout* Platz = Rahmenplatz(S->Rahmen);
      Platz->addWidget(W, S->Ort.Zeile, 0, 1, -1);
      Kästen->setStretchFactor(Platz->parentWidget(), 1);
    } else {
      const bool Rechts = S->Rechtsbündig && S->Art == Steuerart::Beschriftung;
      Rahmenplatz(S->Rahmen)->addWidget(W, S->Ort.Zeile, S->Ort.Spalte, 1, S->Ort.Breite,
                                        (Rechts ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
  }
  for (const auto& [Titel, Platz] : Rahmen) Platz->setColumnStretch(Platz->columnCount(), 1);
  auto* Unten = new QHBoxLayout;
  Unten->addStretch(1);
  Unten->addLayout(Knopfleiste);
  Kästen->addLayout(Unten);
}

QGridLayout* FormularAnsicht::Rahmenplatz(const std::string& Titel) {
  QGridLayout*& Platz = Rahmen[Titel];
  if (Platz == nullptr) {
    QWidget* Kasten = Titel.empty() ? new QWidget(this) : new QGroupBox(Q(Titel), this);
    Platz = new QGridLayout(Kasten);
    Platz->setHorizontalSpacing(8);
    Platz->setVerticalSpacing(4);
    if (Titel.empty()) Platz->setContentsMargins(0, 0, 0, 0);
    Kästen->addWidget(Kasten);
  }
  return Platz;
}

QWidget* FormularAnsicht::Erzeugen(Steuerelement& S) {
  QWidget* W = nullptr;
  switch (S.Art) {
    case Steuerart::Beschriftung:
      W = new QLabel(this);
      break;
    case Steuerart::Feld:
      W = FeldErzeugen(S);
      break;
    case Steuerart::Gitter:
      W = GitterErzeugen(dynamic_cast<Gitter&>(S));
      break;
    case Steuerart::Knopf:
    case Steuerart::Kontrollkaestchen:
    case Steuerart::Option:
    case Steuerart::Liste:
      W = AuswahlErzeugen(S);
      break;
  }
  W->setObjectName(Q(S.Name));
  W->installEventFilter(this);
  return W;
}

QWidget* FormularAnsicht::FeldErzeugen(Steuerelement& S) {
  auto* Feld = new Eingabefeld(this);
  Feld->setFont(Zahlenschrift());
  Feld->setFixedWidth(Zeichenbreite(Feld->font(), S.Zeichen) + 16);
  Feld->setAlignment(S.Rechtsbündig ? Qt::AlignRight : Qt::AlignLeft);
  FeldAnschließen(*Feld, S);
  return Feld;
}

QWidget* FormularAnsicht::GitterErzeugen(Gitter& G) {
  auto* Feld = new Eingabefeld(this);
  Feld->setObjectName(Q(G.Name + "Feld"));
  Feld->installEventFilter(this);
  FeldAnschließen(*Feld, G);
  auto* Tabelle = new Gitteransicht(G, Feld, this);
  Tabelle->BeiZelle = [this, &G](int Zeile, int Spalte) {
    if (Modell == nullptr) return;
    FokusMelden(G);
    const bool Eingabe = G.Spalten[static_cast<std::size_t>(Spalte)].Eingabe;
    Modell->ZelleWechseln(G, Zeile, Eingabe ? Spalte : G.Spalte);
    FokusZeigen();
  };
  return Tabelle;
}

QWidget* FormularAnsicht::AuswahlErzeugen(Steuerelement& S) {
  if (S.Art == Steuerart::Liste) {
    auto* Liste = new QComboBox(this);
    for (const std::string& Eintrag : S.Einträge) Liste->addItem(Q(Eintrag));
    Liste->setMinimumWidth(Zeichenbreite(font(), S.Zeichen) + 40);
    connect(Liste, &QComboBox::textActivated, this, [this, &S](const QString& Text) {
      if (Modell != nullptr) Modell->Wählen(S, Text.toStdString(), true);
    });
    return Liste;
  }
  QAbstractButton* Knopf = nullptr;
  if (S.Art == Steuerart::Kontrollkaestchen) Knopf = new QCheckBox(this);
  if (S.Art == Steuerart::Option) Knopf = new QRadioButton(this);
  if (S.Art == Steuerart::Knopf) {
    auto* Druck = new QPushButton(this);
    Druck->setAutoDefault(false);
    Druck->setDefault(S.Vorgabe);
    if (S.Text == "...") Druck->setFixedWidth(32);
    Knopf = Druck;
  }
  connect(Knopf, &QAbstractButton::clicked, this, [this, &S](bool An) {
    if (Modell == nullptr) return;
    if (S.Art == Steuerart::Knopf) {
      Modell->Klicken(S);
    } else {
      Modell->Wählen(S, "", An);
    }
    FokusZeigen();
  });
  return Knopf;
}

void FormularAnsicht::FeldAnschließen(Eingabefeld& Feld, Steuerelement& S) {
  Feld.BeiFokus = [this, &S] {
    // The form may ask a question about the field that is left: never inside the focus event itself.
    QTimer::singleShot(0, this, [this, &S] { FokusMelden(S); });
  };
  Feld.BeiTaste = [this, &S](QKeyEvent& Ereignis) { return TasteGeben(S, Ereignis); };
  Feld.BeiTab = [this, &S](bool Vor) { return TabWeiter(S, Vor); };
  connect(&Feld, &QLineEdit::textEdited, this, [this, &S](const QString& Text) {
    if (Modell != nullptr) Modell->Tippen(S, Text.toStdString());
  });
}

// The user is in a control: the form reads the one before, and may send the focus back.
void FormularAnsicht::FokusMelden(Steuerelement& S) {
  if (Modell == nullptr || Auffrischend || Modell->Fokus() == &S) return;
  QWidget* W = FokusWidget(S);
  if (W == nullptr || !W->hasFocus()) return;
  Modell->FokusWechseln(S);
  FokusZeigen();
}

bool FormularAnsicht::TasteGeben(Steuerelement& S, const QKeyEvent& Ereignis) {
  auto* Feld = qobject_cast<QLineEdit*>(FokusWidget(S));
  const bool Anfang = Feld != nullptr && (Feld->text().isEmpty() || Feld->selectedText() == Feld->text());
  const std::optional<Taste> T = TasteVon(Ereignis, Anfang);
  FokusMelden(S);
  if (Modell == nullptr || Modell->Fokus() != &S) return true;  // the focus went back: the key is void
  if (!T || !Modell->TasteDrücken(*T)) return false;
  FokusZeigen();
  if ((T == Taste::Plus || T == Taste::Minus) && Feld != nullptr) Feld->end(false);
  return true;
}

bool FormularAnsicht::TabWeiter(const Steuerelement& S, bool Vor) {
  if (Modell == nullptr) return false;
  const auto& Liste = Modell->Steuerelemente();
  const auto Anzahl = static_cast<int>(Liste.size());
  int i = 0;
  while (i < Anzahl && Liste[static_cast<std::size_t>(i)].get() != &S) ++i;
  for (int Schritte = 0; Schritte < Anzahl; ++Schritte) {
    i = (i + (Vor ? 1 : Anzahl - 1)) % Anzahl;
    const Steuerelement& N = *Liste[static_cast<std::size_t>(i)];
    QWidget* W = FokusWidget(N);
    if (N.Art == Steuerart::Beschriftung || N.NurLesen || !N.Aktiv || !N.Sichtbar || W == nullptr) continue;
    W->setFocus(Vor ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
  }
  return false;
}

QWidget* FormularAnsicht::FokusWidget(const Steuerelement& S) const {
  const auto W = Widgets.find(&S);
  if (W == Widgets.end()) return nullptr;
  if (S.Art != Steuerart::Gitter) return W->second;
  auto* Feld = W->second->findChild<Eingabefeld*>();
  return Feld != nullptr && Feld->isVisibleTo(this) ? Feld : W->second;
}

void FormularAnsicht::FokusZeigen() {
  if (Modell == nullptr || Modell->Fokus() == nullptr) return;
  QWidget* W = FokusWidget(*Modell->Fokus());
  if (W != nullptr && !W->hasFocus()) W->setFocus(Qt::OtherFocusReason);
}

void FormularAnsicht::FormularGeändert() {
  if (Modell == nullptr || Auffrischend) return;
  const QScopedValueRollback<bool> Sperre(Auffrischend, true);
  for (const auto& S : Modell->Steuerelemente()) Zeigen(*S, *Widgets.at(S.get()));
  // A frame whose controls are all hidden is hidden as well.
  for (const auto& [Titel, Platz] : Rahmen) {
    bool Etwas = false;
    for (const auto& S : Modell->Steuerelemente()) Etwas = Etwas || (S->Rahmen == Titel && S->Sichtbar);
    Platz->parentWidget()->setVisible(Etwas);
  }
  setWindowTitle(Q(Modell->Titel));
}

void FormularAnsicht::Zeigen(Steuerelement& S, QWidget& W) {
  W.setVisible(S.Sichtbar);
  if (auto* Tabelle = dynamic_cast<Gitteransicht*>(&W)) return Tabelle->Auffrischen();
  if (auto* Feld = dynamic_cast<Eingabefeld*>(&W)) return FeldZeigen(S, *Feld);
  W.setEnabled(S.Aktiv);
  if (auto* Text = qobject_cast<QLabel*>(&W)) {
    Text->setText(Q(S.Text));
  } else if (auto* Liste = qobject_cast<QComboBox*>(&W)) {
    Liste->setCurrentText(Q(S.Text));
  } else if (auto* Knopf = qobject_cast<QAbstractButton*>(&W)) {
    Knopf->setText(Q(S.Text));
    if (Knopf->isCheckable()) Knopf->setChecked(S.Gewählt);
  }
}

void FormularAnsicht::FeldZeigen(const Steuerelement& S, Eingabefeld& Feld) {
  if (Feld.text() != Q(S.Text)) Feld.setText(Q(S.Text));
  Feld.ErgebnisZeigen(S.NurLesen || !S.Aktiv);  // a field that is closed for now stays readable
  Feld.FehlerhaftZeigen(S.Fehlerhaft);
}

void FormularAnsicht::FormularGeschlossen() {
  for (const auto& [S, W] : Widgets) {
    if (auto* Tabelle = dynamic_cast<Gitteransicht*>(W)) Tabelle->Lösen();
  }
  Modell = nullptr;
  if (BeiGeschlossen) BeiGeschlossen();
}

bool FormularAnsicht::eventFilter(QObject* Objekt, QEvent* Ereignis) {
  Steuerelement* S = nullptr;
  for (const auto& [Element, W] : Widgets) {
    if (W == Objekt) S = const_cast<Steuerelement*>(Element);
  }
  if (S == nullptr || Modell == nullptr) return QWidget::eventFilter(Objekt, Ereignis);
  switch (Ereignis->type()) {
    case QEvent::Enter:
      AnzeigePort().StatusSetzen(Statusfeld::StatusHilfe, S->Hilfe.empty() ? "" : "   " + S->Hilfe + "   ");
      break;
    case QEvent::Leave:
      AnzeigePort().StatusSetzen(Statusfeld::StatusHilfe, "");
      break;
    case QEvent::FocusIn:
      if (S->Art != Steuerart::Feld) QTimer::singleShot(0, this, [this, S] { FokusMelden(*S); });
      break;
    case QEvent::KeyPress: {
      const auto& Taste = static_cast<const QKeyEvent&>(*Ereignis);
      const bool Pfeil = Taste.key() == Qt::Key_Up || Taste.key() == Qt::Key_Down;
      if (S->Art != Steuerart::Feld && !(Pfeil && S->Art != Steuerart::Gitter) && TasteGeben(*S, Taste))
        return true;
      break;
    }
    default:
      break;
  }
  return QWidget::eventFilter(Objekt, Ereignis);
}

}  // namespace tavorena
