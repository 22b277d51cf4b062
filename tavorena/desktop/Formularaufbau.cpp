#include <algorithm>

#include <QAbstractButton>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/forms/Bezeichnung.h>

// How a form is built: the widget of each control, its place and its name.

namespace tavorena {
namespace {

QString Q(const std::string& Text) { return QString::fromStdString(Text); }

}  // namespace

void FormularAnsicht::Aufbauen() {
  Knöpfe = new QGridLayout;
  QLabel* Davor = nullptr;  // a label whose letter leads to the control behind it
  for (const auto& S : Modell->Steuerelemente()) {
    const Bild& B = Bilder[S.get()] = Erzeugen(*S);
    if (Davor != nullptr) Davor->setBuddy(B.Widget);
    Davor = S->Text->find('&') != std::string::npos ? qobject_cast<QLabel*>(B.Widget) : nullptr;
    if (!S->Tipp.empty()) B.Widget->setToolTip(Q(S->Tipp));
    Elemente[B.Widget] = S.get();
    B.Widget->setObjectName(Q(S->Name));
    B.Widget->installEventFilter(this);
    QSizePolicy Regel = B.Widget->sizePolicy();
    Regel.setRetainSizeWhenHidden(S->PlatzHalten);
    B.Widget->setSizePolicy(Regel);
    Einsetzen(*S, B.Widget);
  }
  ListenNennen();
  for (const auto& [Titel, Platz] : Rahmen) Platz->setColumnStretch(Platz->columnCount(), 1);
  auto* Unten = new QHBoxLayout;
  Unten->addStretch(1);
  Unten->addLayout(Knöpfe);
  Kästen->addLayout(Unten);
  for (const auto& S : Modell->Steuerelemente()) SteuerelementGeändert(*S);
  NamenSetzen();
}

// A screen reader takes the name of a list from the label that belongs to it.
void FormularAnsicht::ListenNennen() {
  const auto& Alle = Modell->Steuerelemente();
  for (const auto& S : Alle) {
    if (qobject_cast<QComboBox*>(Bilder.at(S.get()).Widget) == nullptr) continue;
    const auto Davor = std::find_if(Alle.begin(), Alle.end(), [&](const auto& T) {
      return dynamic_cast<Beschriftung*>(T.get()) != nullptr && T->Rahmen == S->Rahmen &&
             T->Ort.Zeile == S->Ort.Zeile && T->Ort.Spalte + T->Ort.Breite == S->Ort.Spalte;
    });
    if (Davor != Alle.end())
      qobject_cast<QLabel*>(Bilder.at(Davor->get()).Widget)->setBuddy(Bilder.at(S.get()).Widget);
  }
}

// What a screen reader calls the controls: it follows the labels and captions.
void FormularAnsicht::NamenSetzen() {
  if (Modell == nullptr) return;
  for (const auto& [S, Name] : Bezeichnungen(*Modell)) {
    QWidget* W = Bilder.at(S).Widget;
    if (const QString Neu = Q(Name); W->accessibleName() != Neu) W->setAccessibleName(Neu);
  }
}

void FormularAnsicht::Einsetzen(const Steuerelement& S, QWidget* W) {
  if (S.Rahmen == Knopfleiste) return Knöpfe->addWidget(W, S.Ort.Zeile, S.Ort.Spalte);
  QGridLayout* Platz = Rahmenplatz(S.Rahmen);
  if (dynamic_cast<const Gitter*>(&S) != nullptr) {
    if (S.Ort.Breite > 1) {  // beside another one: they share the width
      Platz->addWidget(W, S.Ort.Zeile, S.Ort.Spalte, 1, S.Ort.Breite);
      Platz->setColumnStretch(S.Ort.Spalte, 10 * S.Ort.Breite);
    } else {
      Platz->addWidget(W, S.Ort.Zeile, 0, 1, -1);
    }
    Kästen->setStretchFactor(Platz->parentWidget(), 1);
    return;
  }
  const auto* Text = dynamic_cast<const Beschriftung*>(&S);
  const bool Rechts = Text != nullptr && Text->Rechtsbündig;
  Platz->addWidget(W, S.Ort.Zeile, S.Ort.Spalte, 1, S.Ort.Breite,
                   (Rechts ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QGridLayout* FormularAnsicht::Rahmenplatz(const std::string& Titel) {
  QGridLayout*& Platz = Rahmen[Titel];
  if (Platz == nullptr) {
    QWidget* Kasten = Titel.empty() ? new QWidget(this) : new QGroupBox(Q(Titel), this);
    Platz = new QGridLayout(Kasten);
    Platz->setHorizontalSpacing(6);
    Platz->setVerticalSpacing(4);
    if (Titel.empty()) Platz->setContentsMargins(0, 0, 0, 0);
    Kästen->addWidget(Kasten);
  }
  return Platz;
}

FormularAnsicht::Bild FormularAnsicht::Erzeugen(Steuerelement& S) {
  if (auto* F = dynamic_cast<Feld*>(&S)) return FeldErzeugen(*F);
  if (auto* G = dynamic_cast<Gitter*>(&S)) return GitterErzeugen(*G);
  if (auto* K = dynamic_cast<Knopf*>(&S)) return KnopfErzeugen(*K);
  if (auto* A = dynamic_cast<Auswahl*>(&S))
    return A->Art == Auswahlart::Liste ? ListeErzeugen(*A) : AuswahlErzeugen(*A);
  return BeschriftungErzeugen(dynamic_cast<Beschriftung&>(S));
}

FormularAnsicht::Bild FormularAnsicht::BeschriftungErzeugen(Beschriftung& B) {
  auto* Text = new QLabel(this);
  return {Text, [&B, Text] {
            Text->setEnabled(B.Aktiv);
            Text->setText(Q(B.Text));
          }};
}

FormularAnsicht::Bild FormularAnsicht::FeldErzeugen(Feld& F) {
  auto* Zeile = new Eingabefeld(this);
  Zeile->setFont(Zahlenschrift());
  Zeile->setFixedWidth(Zeichenbreite(Zeile->font(), F.Zeichen + 1) + 6);  // with the sign of a failed value
  Zeile->setAlignment(F.Rechtsbündig ? Qt::AlignRight : Qt::AlignLeft);
  FeldAnschließen(*Zeile, F);
  return {Zeile, [&F, Zeile] {
            Zeile->TextZeigen(Q(F.Text), F.NurLesen);
            Zeile->ErgebnisZeigen(!Formular::NimmtFokus(F));  // one that is closed for now stays readable
            Zeile->FehlerhaftZeigen(F.Fehlerhaft);
          }};
}

FormularAnsicht::Bild FormularAnsicht::GitterErzeugen(Gitter& G) {
  auto* Zelle = new Eingabefeld(this);
  Zelle->setObjectName(Q(G.Name + "Feld"));
  FeldAnschließen(*Zelle, G);
  auto* Tabelle = new Gitteransicht(G, Zelle, this);
  Tabelle->BeiZelle = [this, &G](int Zeile, int Spalte) {
    if (Modell == nullptr) return;
    FokusMelden(G);
    const bool Eingabe = G.Spalten[static_cast<std::size_t>(Spalte)].Eingabe;
    const bool Bereich = QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    if (G.Markenspalte < 0 || !Bereich) Modell->ZelleWechseln(G, Zeile, Eingabe ? Spalte : *G.Spalte);
    if (Modell != nullptr && G.Markenspalte >= 0 && !Eingabe) Modell->Markieren(G, Zeile, Bereich);
    FokusZeigen();
  };
  // The first of two clicks chose the row, or left it out: that was not meant.
  Tabelle->BeiDoppelklick = [this, &G](int Zeile) {
    if (Modell == nullptr || !G.BeiDoppelklick) return;
    if (G.Markenspalte >= 0) Modell->Markieren(G, Zeile, false);
    Modell->Doppelklicken(G, Zeile);
  };
  Tabelle->BeiTitel = [this, &G](int Spalte) {
    if (Modell != nullptr) Modell->TitelKlicken(G, Spalte);
  };
  Tabelle->BeiEinfügen = [this, &G, Zelle] {
    if (Modell == nullptr) return;
    Zelle->setFocus();
    FokusMelden(G);
    const QString Text = QApplication::clipboard()->text();
    if (!Einfügen(G, Text)) Zelle->insert(Text.trimmed());
  };
  return {Tabelle, [Tabelle] { Tabelle->ZustandZeigen(); }};
}

// Beside the worksheets only a field that is typed into takes the focus by a click; Tab leads everywhere.
void FormularAnsicht::KlickOhneFokus(QWidget& W) const {
  if (Modell->Nebenher) W.setFocusPolicy(Qt::TabFocus);
}

FormularAnsicht::Bild FormularAnsicht::KnopfErzeugen(Knopf& K) {
  auto* Druck = new QPushButton(this);
  KlickOhneFokus(*Druck);
  Druck->setAutoDefault(false);
  Druck->setDefault(K.Vorgabe);
  if (K.Text == "...")
    Druck->setFixedWidth(std::max(32, Druck->fontMetrics().horizontalAdvance(" ... ") + 12));
  connect(Druck, &QPushButton::clicked, this, [this, &K] {
    if (Modell == nullptr) return;
    Modell->Klicken(K);
    FokusZeigen();
  });
  return {Druck, [&K, Druck] {
            Druck->setEnabled(K.Aktiv);
            Druck->setText(Q(K.Text));
          }};
}

FormularAnsicht::Bild FormularAnsicht::AuswahlErzeugen(Auswahl& A) {
  QAbstractButton* Haken = nullptr;
  if (A.Art == Auswahlart::Option) {
    Haken = new QRadioButton(this);
    QButtonGroup*& Gruppe = Gruppen[{A.Rahmen, A.Gruppe}];
    if (Gruppe == nullptr) Gruppe = new QButtonGroup(this);
    Gruppe->addButton(Haken);
  } else {
    Haken = new QCheckBox(this);
  }
  KlickOhneFokus(*Haken);
  connect(Haken, &QAbstractButton::clicked, this, [this, &A](bool An) {
    if (Modell == nullptr) return;
    if (Modell->Fokus() != &A) Modell->FokusWechseln(A);  // the arrow keys lead from option to option
    Modell->Wählen(A, "", An);
    FokusZeigen();
  });
  return {Haken, [&A, Haken] {
            Haken->setEnabled(A.Aktiv);
            Haken->setText(Q(A.Text));
            Haken->setChecked(A.Gewählt);
          }};
}

FormularAnsicht::Bild FormularAnsicht::ListeErzeugen(Auswahl& A) {
  auto* Liste = new QComboBox(this);
  KlickOhneFokus(*Liste);
  for (const std::string& Eintrag : A.Einträge) Liste->addItem(Q(Eintrag));
  Liste->setMinimumWidth(Zeichenbreite(font(), A.Zeichen) + 40);
  connect(Liste, &QComboBox::textActivated, this, [this, &A](const QString& Text) {
    if (Modell != nullptr) Modell->Wählen(A, Text.toStdString(), true);
  });
  return {Liste, [&A, Liste] {
            Liste->setEnabled(A.Aktiv);
            Liste->setCurrentText(Q(A.Text));
          }};
}

void FormularAnsicht::FeldAnschließen(Eingabefeld& Zeile, Eingabeelement& E) {
  Zeile.BeiFokus = [this, &E] {
    // The form may ask a question about the field that is left: never inside the focus event itself.
    QTimer::singleShot(0, this, [this, &E] { FokusMelden(E); });
  };
  Zeile.BeiTaste = [this, &E](QKeyEvent& Ereignis) { return TasteGeben(E, Ereignis); };
  Zeile.BeiTab = [this, &E](bool Vor) { return TabWeiter(E, Vor); };
  connect(&Zeile, &QLineEdit::textEdited, this, [this, &E](const QString& Text) {
    if (Modell != nullptr) Modell->Tippen(E, Text.toStdString());
  });
}

}  // namespace tavorena
