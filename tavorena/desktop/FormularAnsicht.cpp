#include <algorithm>
#include <optional>

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
#include <QScopedValueRollback>
#include <QTimer>
#include <QVBoxLayout>

#include <tavorena/core/TVDialog.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/desktop/Vorlesen.h>
#include <tavorena/forms/Bezeichnung.h>
#include <tavorena/graphics/Abgriff.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

QString Q(const std::string& Text) { return QString::fromStdString(Text); }

// The keys that a form looks at. "+" and "-" of the number pad always step a point number; those of the
// main keyboard only where they can not belong to the number: in an empty or wholly selected field. The space
// bar is a key where rows are chosen; Delete and the digits are where nothing is typed.
std::optional<Taste> TasteVon(const QKeyEvent& E, bool Anfang, bool InGitter, bool OhneText) {
  const bool Allein = (E.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  if (OhneText && Allein && E.key() >= Qt::Key_0 && E.key() <= Qt::Key_9)
    return static_cast<Taste>(static_cast<int>(Taste::Ziffer0) + E.key() - Qt::Key_0);
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
    case Qt::Key_F2:
      return Taste::F2;
    case Qt::Key_Space:
      return InGitter ? std::optional(Taste::Leer) : std::nullopt;
    case Qt::Key_Delete:
      return OhneText ? std::optional(Taste::Entf) : std::nullopt;
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
  Benennung.setSingleShot(true);
  connect(&Benennung, &QTimer::timeout, this, &FormularAnsicht::NamenSetzen);
  Aufbauen();
  TitelGeändert();
  Modell->Beobachten(this);
}

FormularAnsicht::~FormularAnsicht() {
  if (Modell != nullptr) Modell->Beobachten(nullptr);
}

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

// The user is in a control: the form reads the one before, and may send the focus back.
void FormularAnsicht::FokusMelden(Steuerelement& S) {
  if (Modell == nullptr || Auffrischend || !FokusWidget(S)->hasFocus()) return;
  if (Modell->Fokus() == &S) return Modell->BeiFokus();
  const QScopedValueRollback Liest(Lesetiefe, Lesetiefe + 1);
  Modell->FokusWechseln(S);
  FokusZeigen();
}

bool FormularAnsicht::TasteGeben(Steuerelement& S, const QKeyEvent& Ereignis) {
  auto* Zeile = qobject_cast<QLineEdit*>(FokusWidget(S));
  const bool Anfang = Zeile != nullptr && (Zeile->text().isEmpty() || Zeile->selectedText() == Zeile->text());
  auto* Markengitter = dynamic_cast<Gitter*>(&S);
  if (Markengitter != nullptr && Markengitter->Markenspalte < 0) Markengitter = nullptr;
  const std::optional<Taste> T = TasteVon(Ereignis, Anfang, Markengitter != nullptr, Zeile == nullptr);
  if (Markengitter != nullptr && MarkenZiehen(*Markengitter, Ereignis)) return true;
  if (Kopieren(S, Ereignis)) return true;
  FokusMelden(S);
  const bool IstEingabe = dynamic_cast<const Eingabeelement*>(&S) != nullptr;
  const QScopedValueRollback Liest(Lesetiefe, Lesetiefe + (IstEingabe ? 1 : 0));
  if (Modell == nullptr || Modell->Fokus() != &S) return true;  // the focus went back: the key is void
  if (auto* G = dynamic_cast<Gitter*>(&S); G != nullptr && Ereignis.matches(QKeySequence::Paste))
    return Einfügen(*G, QApplication::clipboard()->text());
  if (Ereignis.matches(QKeySequence::Undo)) return Zurücknehmen(Zeile);
  if (ZeileWechseln(S, Ereignis)) return true;
  if (!T || !Modell->TasteDrücken(*T)) return false;
  FokusZeigen();
  if ((T == Taste::Plus || T == Taste::Minus) && Zeile != nullptr) {
    Zeile->end(false);
  } else {
    FokusMarkieren();
  }
  return true;
}

// Ctrl+Z belongs to the text being typed, then to the form, then to the commands on the whole table.
bool FormularAnsicht::Zurücknehmen(const QLineEdit* Zeile) {
  if (Zeile != nullptr && Zeile->isUndoAvailable()) return false;
  if (Modell->RücknahmeVerlangen()) {
    FokusZeigen();
    FokusMarkieren();
  } else if (VordererDialog() == nullptr) {
    TVKernMDIForm::Fenster().Ausführen("MenüBearbeitenRück");
  }
  return true;
}

// Shift and an arrow draw the choice of rows.
bool FormularAnsicht::MarkenZiehen(Gitter& G, const QKeyEvent& Ereignis) {
  const bool Auf = Ereignis.key() == Qt::Key_Up, Ab = Ereignis.key() == Qt::Key_Down;
  if (Modell == nullptr || (!Auf && !Ab) || !Ereignis.modifiers().testFlag(Qt::ShiftModifier)) return false;
  Modell->Markieren(G, G.Zeile + (Auf ? -1 : 1), true);
  return true;
}

// Ctrl+C takes what is marked in the grid or in a result, and Shift with the arrows marks rows; any other key
// ends the marking.
bool FormularAnsicht::Kopieren(const Steuerelement& S, const QKeyEvent& Ereignis) {
  const auto* G = dynamic_cast<const Gitter*>(&S);
  const bool Auf = Ereignis.key() == Qt::Key_Up, Ab = Ereignis.key() == Qt::Key_Down;
  if (G != nullptr && (Auf || Ab) && Ereignis.modifiers().testFlag(Qt::ShiftModifier)) {
    Tabelle(*G).AuswahlErweitern(Auf ? -1 : 1);
    return true;
  }
  const bool IstKopieren = Ereignis.matches(QKeySequence::Copy);
  const bool Umschalter = Ereignis.text().isEmpty() && Ereignis.key() >= Qt::Key_Shift &&
                          Ereignis.key() <= Qt::Key_AltGr;  // a key that is held does nothing by itself
  QString Text;
  for (const auto& [E, B] : Bilder) {
    if (auto* Zeile = dynamic_cast<Eingabefeld*>(B.Widget); Zeile != nullptr && Zeile->isReadOnly()) {
      if (Text.isEmpty()) Text = Zeile->Auswahltext();
      if (!IstKopieren && !Umschalter) Zeile->deselect();
    } else if (auto* Sicht = dynamic_cast<Gitteransicht*>(B.Widget)) {
      if (Text.isEmpty()) Text = Sicht->Auswahltext();
      if (!IstKopieren && !Umschalter) Sicht->clearSelection();
    }
  }
  if (IstKopieren && !Text.isEmpty()) QApplication::clipboard()->setText(Text);
  return IstKopieren && !Text.isEmpty();
}

// Each line becomes a row, its words taken as if they had been typed, with Return behind each; the first that
// is refused ends it. Where one column alone is typed into, only the first word counts. A single word is only
// typed.
bool FormularAnsicht::Einfügen(Gitter& G, const QString& Text) {
  const auto Eingaben =
      std::count_if(G.Spalten.begin(), G.Spalten.end(), [](const auto& S) { return S.Eingabe; });
  QList<QStringList> Zeilen;
  for (const QString& Zeile : Text.split('\n')) {
    const bool Worte = Eingaben > 1 && !Zeile.contains('\t');
    const QStringList Teile = Worte ? Zeile.simplified().split(' ') : Zeile.split('\t');
    if (!Teile.first().trimmed().isEmpty())
      Zeilen << Teile.first(std::min(Teile.size(), qsizetype(Eingaben)));
  }
  const bool Mehrere = Zeilen.size() > 1 || Text.contains('\t');
  if (!Mehrere && (Zeilen.isEmpty() || Zeilen[0].size() < 2 || !G.NimmtZeilen)) return false;
  if (!G.NimmtZeilen) {
    StatusHilfeSetzen("Hier werden keine Zeilen eingefügt");
    return true;
  }
  if (Eingaben == 1 && Zeilen.size() == 1) {
    Modell->Tippen(G, Zeilen[0][0].trimmed().toStdString());
    return true;
  }
  if (Eingaben > 1) Modell->ZelleWechseln(G, G.Zeilen() - 1, 0);  // what stands above is not typed over
  int Anzahl = 0;
  while (Anzahl < Zeilen.size() && ZeileTippen(G, Zeilen[Anzahl])) ++Anzahl;
  FokusZeigen();
  FokusMarkieren();
  StatusHilfeSetzen(Anzahl == 1 ? "1 Zeile eingefügt" : std::to_string(Anzahl) + " Zeilen eingefügt");
  return true;
}

// @return false: one of the words, or the row, was refused
bool FormularAnsicht::ZeileTippen(Gitter& G, const QStringList& Worte) {
  const int Zeile = G.Zeile;
  for (qsizetype i = 0; Modell != nullptr && Modell->Fokus() == &G; ++i) {
    const QString Wort = i < Worte.size() ? Worte[i].trimmed() : "";
    if (!Wort.isEmpty()) Modell->Tippen(G, Wort.toStdString());
    const int Spalte = G.Spalte;
    Modell->TasteDrücken(Taste::Return);
    if (G.Zeile != Zeile) return true;
    if (G.Spalte <= Spalte) return false;
  }
  return false;
}

void FormularAnsicht::PunktNehmen(const std::string& Pnr) {
  const QScopedValueRollback Liest(Lesetiefe, Lesetiefe + 1);
  if (Modell == nullptr || !AbgriffNehmen(*Modell, Pnr)) return;
  FokusZeigen();
  FokusMarkieren();
}

Gitteransicht& FormularAnsicht::Tabelle(const Gitter& G) const {
  return dynamic_cast<Gitteransicht&>(*Bilder.at(&G).Widget);
}

// The keys that lead to another row of a grid.
bool FormularAnsicht::ZeileWechseln(Steuerelement& S, const QKeyEvent& Ereignis) {
  auto* G = dynamic_cast<Gitter*>(&S);
  if (G == nullptr) return false;
  const bool Ganz = Ereignis.modifiers().testFlag(Qt::ControlModifier);
  const int Ziel = Tabelle(*G).Zielzeile(static_cast<Qt::Key>(Ereignis.key()), Ganz);
  if (Ziel < 0) return false;
  Modell->ZelleWechseln(*G, Ziel, *G->Spalte);
  FokusZeigen();
  FokusMarkieren();
  return true;
}

void FormularAnsicht::FokusMarkieren() {
  if (Modell == nullptr || Modell->Fokus() == nullptr) return;
  if (auto* Zeile = qobject_cast<QLineEdit*>(FokusWidget(*Modell->Fokus()))) Zeile->selectAll();
}

// In a row it leads through the cells that are typed into, then out of the grid.
bool FormularAnsicht::TabWeiter(Steuerelement& S, bool Vor) {
  auto* G = dynamic_cast<Gitter*>(&S);
  const int Spalte =
      G != nullptr && Modell != nullptr && G->ZelleOffen() ? G->Eingabespalte(Vor ? 1 : -1) : -1;
  if (Spalte >= 0) {
    const QScopedValueRollback Liest(Lesetiefe, Lesetiefe + 1);
    Modell->ZelleWechseln(*G, G->Zeile, Spalte);
    FokusZeigen();
    FokusMarkieren();
    return true;
  }
  const Steuerelement* N = Modell != nullptr ? Modell->Nachbar(S, Vor) : nullptr;
  if (N == nullptr) return false;
  FokusWidget(*N)->setFocus(Vor ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

QWidget* FormularAnsicht::FokusWidget(const Steuerelement& S) const {
  QWidget* W = Bilder.at(&S).Widget;
  auto* Tabelle = dynamic_cast<Gitteransicht*>(W);
  return Tabelle != nullptr ? Tabelle->Fokusziel() : W;
}

void FormularAnsicht::FokusGeändert() {
  if (!isAncestorOf(QApplication::focusWidget())) return;
  FokusZeigen();
  FokusMarkieren();
}

void FormularAnsicht::FokusZeigen() {
  if (Modell != nullptr && (!Modell->Nebenher || isAncestorOf(QApplication::focusWidget()))) FokusHolen();
}

void FormularAnsicht::FokusHolen() {
  if (Modell == nullptr || Modell->Fokus() == nullptr) return;
  QWidget* W = FokusWidget(*Modell->Fokus());
  if (!W->hasFocus()) W->setFocus(Qt::OtherFocusReason);
}

void FormularAnsicht::SteuerelementGeändert(Steuerelement& S) {
  const QScopedValueRollback<bool> Sperre(Auffrischend, true);
  const Bild& B = Bilder.at(&S);
  QWidget& W = *B.Widget;
  W.setVisible(S.Sichtbar);
  B.Zeigen();
  const auto* Zeile = dynamic_cast<const Eingabefeld*>(&W);
  BeschreibungSetzen(W, S, Zeile != nullptr ? Zeile->Gekürztes() : QString());
  const bool Benennt =
      dynamic_cast<const Beschriftung*>(&S) != nullptr || dynamic_cast<const Knopf*>(&S) != nullptr;
  if (Benennt) Benennung.start(0);
  RahmenZeigen(S.Rahmen);
}

void FormularAnsicht::GitterGeändert(Gitter& G, const Gitteränderung& Was) {
  const QScopedValueRollback<bool> Sperre(Auffrischend, true);
  Tabelle(G).Übernehmen(Was);
}

void FormularAnsicht::TitelGeändert() {
  setWindowTitle(Q(Modell->Titel));
  setAccessibleName(windowTitle());
}

// A frame whose controls are all hidden is hidden as well.
void FormularAnsicht::RahmenZeigen(const std::string& Titel) {
  const auto Gefunden = Rahmen.find(Titel);
  if (Gefunden == Rahmen.end()) return;
  const auto& Alle = Modell->Steuerelemente();
  Gefunden->second->parentWidget()->setVisible(std::any_of(
      Alle.begin(), Alle.end(), [&](const auto& S) { return S->Rahmen == Titel && S->Sichtbar; }));
}

void FormularAnsicht::FormularGeschlossen() {
  for (const auto& [S, B] : Bilder) {
    if (auto* Tabelle = dynamic_cast<Gitteransicht*>(B.Widget)) Tabelle->Lösen();
  }
  Modell = nullptr;
  if (BeiGeschlossen) BeiGeschlossen();
}

bool FormularAnsicht::event(QEvent* Ereignis) {
  // Ctrl+Z comes as a key, see Zurücknehmen, and not as the shortcut of the menu.
  if (Ereignis->type() == QEvent::ShortcutOverride &&
      static_cast<const QKeyEvent&>(*Ereignis).matches(QKeySequence::Undo)) {
    Ereignis->accept();
    return true;
  }
  return QWidget::event(Ereignis);
}

bool FormularAnsicht::eventFilter(QObject* Objekt, QEvent* Ereignis) {
  const auto Gefunden = Elemente.find(Objekt);
  if (Gefunden == Elemente.end() || Modell == nullptr) return QWidget::eventFilter(Objekt, Ereignis);
  Steuerelement& S = *Gefunden->second;
  const bool IstFeld = dynamic_cast<Eingabefeld*>(Objekt) != nullptr;  // it tells of focus and keys itself
  switch (Ereignis->type()) {
    case QEvent::Enter:
      StatusHilfeSetzen(S.Hilfe);
      break;
    case QEvent::Leave:
      StatusHilfeSetzen("");
      break;
    case QEvent::FocusIn:
      if (!IstFeld) QTimer::singleShot(0, this, [this, &S] { FokusMelden(S); });
      break;
    case QEvent::KeyPress: {
      const auto& Taste = static_cast<const QKeyEvent&>(*Ereignis);
      const bool Pfeil = Taste.key() == Qt::Key_Up || Taste.key() == Qt::Key_Down;
      const bool IstGitter = dynamic_cast<Gitteransicht*>(Objekt) != nullptr;
      if (!IstFeld && (IstGitter || !Pfeil) && TasteGeben(S, Taste)) return true;
      break;
    }
    default:
      break;
  }
  return QWidget::eventFilter(Objekt, Ereignis);
}

}  // namespace tavorena
