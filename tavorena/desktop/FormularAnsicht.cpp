#include <algorithm>
#include <optional>

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <tavorena/core/TVDialog.h>
#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/desktop/Vorlesen.h>
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
