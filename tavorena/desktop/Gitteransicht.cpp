#include <algorithm>

#include <QAbstractTableModel>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollArea>
#include <QStyledItemDelegate>

#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Eingabefeld.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/desktop/Vorlesen.h>

namespace tavorena {
namespace {

constexpr int Zellrand = 12;  // pixels of a column beside its characters

// The current row is seen as a whole: rows are chosen or opened, not cells.
bool ZeigtZeile(const Gitter& G) { return G.Markenspalte >= 0 || (G.NurLesen && G.BeiDoppelklick); }

}  // namespace

/// The cells of a Gitter for the table view; nothing is kept twice.
class Gittermodell final : public QAbstractTableModel {
 public:
  Gittermodell(const Gitter& Zeigt, QTableView* Für)
      : QAbstractTableModel(Für), Ansicht(Für), Daten(&Zeigt) {}

  [[nodiscard]] int rowCount(const QModelIndex& Eltern = {}) const override {
    return Eltern.isValid() ? 0 : Zeilen;
  }
  [[nodiscard]] int columnCount(const QModelIndex& Eltern = {}) const override {
    return Eltern.isValid() ? 0 : SpaltenAnzahl;
  }
  [[nodiscard]] QVariant data(const QModelIndex& Zelle, int Rolle) const override {
    if (Daten == nullptr || !Zelle.isValid() || Zelle.row() >= Daten->Zeilen()) return {};
    if (Rolle == Qt::DisplayRole) return QString::fromStdString(Daten->Inhalt(Zelle.row(), Zelle.column()));
    if (Rolle == Qt::TextAlignmentRole) return Bündig(Zelle.column());
    if (Rolle == Qt::ToolTipRole) return Gekürztes(Zelle);
    if (Rolle == Qt::BackgroundRole && ZeigtZeile(*Daten)) return Zeilenfarbe(Zelle.row());
    if (Rolle == Qt::ForegroundRole && IstAuffällig(Zelle)) return QBrush(Warnfarbe());
    if (Rolle == Qt::AccessibleDescriptionRole) return Gesprochenes(Zelle);
    return {};
  }
  [[nodiscard]] QVariant headerData(int Spalte, Qt::Orientation Richtung, int Rolle) const override {
    if (Daten == nullptr) return {};
    if (Richtung == Qt::Vertical) return Rolle == Qt::DisplayRole ? QVariant(Spalte + 1) : QVariant();
    if (Rolle == Qt::DisplayRole)
      return QString::fromStdString(Daten->Spalten[static_cast<std::size_t>(Spalte)].Titel);
    if (Rolle == Qt::TextAlignmentRole) return Bündig(Spalte);
    return {};
  }

  void Lösen() { Daten = nullptr; }

  // A figure that passes its limit.
  [[nodiscard]] bool IstAuffällig(const QModelIndex& Zelle) const {
    return Daten != nullptr && Daten->Auffällig && Zelle.row() < Daten->Zeilen() &&
           Daten->Auffällig(Zelle.row(), Zelle.column());
  }
  // Column and row as they are read aloud, and what the cell shows by its colour.
  [[nodiscard]] QString Gesprochenes(const QModelIndex& Zelle) const {
    const QString Titel = headerData(Zelle.column(), Qt::Horizontal, Qt::DisplayRole).toString();
    const QString Ort = QString("%1, Zeile %2").arg(Titel).arg(Zelle.row() + 1);
    return IstAuffällig(Zelle) ? Ort + ", " + Auffälliges : Ort;
  }

  // Rows come and go at the end; of those that stay the changed ones are told.
  void Übernehmen(const Gitteränderung& Was) {
    const int Neu = Daten->Zeilen(), Bleiben = std::min(Zeilen, Neu);
    if (Neu > Zeilen) {
      beginInsertRows({}, Zeilen, Neu - 1);
      Zeilen = Neu;
      endInsertRows();
    } else if (Neu < Zeilen) {
      beginRemoveRows({}, Neu, Zeilen - 1);
      Zeilen = Neu;
      endRemoveRows();
    }
    const int Bis = std::min(Was.Bis, Bleiben);
    if (Was.Von < Bis) emit dataChanged(index(Was.Von, 0), index(Bis - 1, SpaltenAnzahl - 1));
  }

 private:
  [[nodiscard]] QVariant Bündig(int Spalte) const {
    const bool Rechts = Daten->Spalten[static_cast<std::size_t>(Spalte)].Rechtsbündig;
    return QVariant::fromValue(Qt::Alignment((Rechts ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter));
  }

  // Rows that are chosen are tinted, the current one more than the others.
  [[nodiscard]] QVariant Zeilenfarbe(int Zeile) const {
    const bool Aktuell = Zeile == Daten->Zeile;
    if (!Aktuell && !Daten->Markiert(Zeile)) return {};
    QColor Farbe = Ansicht->palette().color(QPalette::Highlight);
    Farbe.setAlpha(Aktuell ? 50 : 25);
    return QBrush(Farbe);
  }

  // A text that the column shows only in part.
  [[nodiscard]] QVariant Gekürztes(const QModelIndex& Zelle) const {
    const QString Text = data(Zelle, Qt::DisplayRole).toString();
    const int Platz = Ansicht->columnWidth(Zelle.column()) - Zellrand / 2;
    return Ansicht->fontMetrics().horizontalAdvance(Text) > Platz ? QVariant(Text) : QVariant();
  }

  const QTableView* Ansicht;
  const Gitter* Daten;  // nullptr after the form was closed
  const int SpaltenAnzahl = static_cast<int>(Daten->Spalten.size());
  int Zeilen = 0;
};

/// Draws the cells: a figure that passes its limit has a sign besides its colour.
class Zellmaler final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

 protected:
  void initStyleOption(QStyleOptionViewItem* Wie, const QModelIndex& Zelle) const override {
    QStyledItemDelegate::initStyleOption(Wie, Zelle);
    const auto* Zellen = static_cast<const Gittermodell*>(Zelle.model());
    if (!Wie->text.isEmpty() && Zellen->IstAuffällig(Zelle)) Wie->text.prepend('!');
  }
};

Gitteransicht::Gitteransicht(Gitter& Zeigt, Eingabefeld* Feld, QWidget* Eltern)
    : QTableView(Eltern), Daten(Zeigt), Modell(new Gittermodell(Zeigt, this)), Zellfeld(Feld) {
  setModel(Modell);
  setItemDelegate(new Zellmaler(this));
  setFont(Zahlenschrift());
  setEditTriggers(NoEditTriggers);
  setSelectionMode(Daten.Markenspalte >= 0 ? NoSelection : ContiguousSelection);
  setTabKeyNavigation(false);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  for (int s = 0; s < Modell->columnCount(); ++s) {
    setColumnWidth(s, Spaltenbreite(Daten.Spalten[static_cast<std::size_t>(s)]));
  }
  Zellfeld->setParent(viewport());
  Zellfeld->setFont(font());
  Zellfeld->setAlignment(Qt::AlignRight);
  Zellfeld->setContextMenuPolicy(Qt::NoContextMenu);  // that of the grid comes
  Zellfeld->hide();
  Übernehmen({0, Daten.Zeilen(), true, true, true});
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, &Gitteransicht::FeldRücken);
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& Zelle) {
    if (BeiZelle) BeiZelle(Zelle.row(), Zelle.column());
  });
  connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& Zelle) {
    if (BeiDoppelklick) BeiDoppelklick(Zelle.row());
  });
  horizontalHeader()->setSectionsClickable(static_cast<bool>(Daten.BeiTitel));
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int Spalte) {
    if (BeiTitel) BeiTitel(Spalte);
  });
}

void Gitteransicht::Lösen() {
  Modell->Lösen();
  Feldzelle = QModelIndex();
}

void Gitteransicht::Übernehmen(const Gitteränderung& Was) {
  Modell->Übernehmen(Was);
  if (Was.Spalten) SpaltenZeigen();
  FeldSetzen();
}

void Gitteransicht::ZustandZeigen() {
  setEnabled(Daten.Aktiv);
  FeldSetzen();
}

void Gitteransicht::SpaltenZeigen() {
  for (int s = 0; s < Modell->columnCount(); ++s) {
    setColumnHidden(s, !Daten.Spalten[static_cast<std::size_t>(s)].Sichtbar);
  }
}

QWidget* Gitteransicht::Fokusziel() {
  return Zellfeld->isVisibleTo(this) ? static_cast<QWidget*>(Zellfeld) : this;
}

// Puts the field of the current cell into its place.
void Gitteransicht::FeldSetzen() {
  if (ZeigtZeile(Daten)) viewport()->update();  // the row that was the current one is no more
  if (!Daten.Aktiv || !Daten.ZelleOffen()) {
    Feldzelle = QModelIndex();
    Zellfeld->hide();
    const QModelIndex Zelle = Modell->index(Daten.Zeile, Daten.Spalte);
    if (Daten.NurLesen || Daten.Markenspalte >= 0)
      selectionModel()->setCurrentIndex(Zelle, QItemSelectionModel::NoUpdate);
    if (Daten.NurLesen) ZelleZeigen(Zelle);
    return;
  }
  const QModelIndex Zelle = Modell->index(Daten.Zeile, Daten.Spalte);
  const QString Text = QString::fromStdString(Daten.Inhalt(Daten.Zeile, Daten.Spalte));
  if (Zellfeld->text() != Text) Zellfeld->setText(Text);
  if (Zelle != Feldzelle) {
    Feldzelle = Zelle;
    Zellfeld->setAccessibleName(Modell->Gesprochenes(Zelle));
    if (Zellfeld->hasFocus()) Zellfeld->selectAll();
  }
  Zellfeld->FehlerhaftZeigen(Daten.Fehlerhaft);
  BeschreibungSetzen(*Zellfeld, Daten);
  FeldZeigen();
  Zellfeld->show();
}

// A new row is laid out first, or there is nothing to scroll to.
void Gitteransicht::ZelleZeigen(const QModelIndex& Zelle) {
  executeDelayedItemsLayout();
  scrollTo(Zelle);
}

// The current cell is always wholly to be seen.
void Gitteransicht::FeldZeigen() {
  if (!Feldzelle.isValid()) return;
  ZelleZeigen(Feldzelle);
  FeldRücken();
  for (QWidget* W = parentWidget(); Zellfeld->hasFocus() && W != nullptr; W = W->parentWidget()) {
    if (auto* Rolle = qobject_cast<QScrollArea*>(W)) Rolle->ensureWidgetVisible(Zellfeld, 10, 10);
  }
}

int Gitteransicht::Zielzeile(Qt::Key Taste, bool Ganz) const {
  const int Letzte = Daten.Zeilen() - 1, Zeile = *Daten.Zeile;
  const int Höhe = std::max(verticalHeader()->defaultSectionSize(), 1);
  const int Seite = std::max(viewport()->height() / Höhe, 1);
  const int Oberste = std::max(rowAt(0), 0), Unterste = std::min(Oberste + Seite - 1, Letzte);
  switch (Taste) {
    case Qt::Key_Up:
      return Ganz ? 0 : -1;  // a single row is a matter of the form
    case Qt::Key_PageUp:
      return Ganz ? 0 : std::max(Zeile - Seite, 0);
    case Qt::Key_Home:
      return Ganz ? 0 : Oberste;
    case Qt::Key_Down:
      return Ganz ? Letzte : -1;
    case Qt::Key_PageDown:
      return Ganz ? Letzte : std::min(Zeile + Seite, Letzte);
    case Qt::Key_End:
      return Ganz ? Letzte : Unterste;
    default:
      return -1;
  }
}

void Gitteransicht::FeldRücken() {
  if (Feldzelle.isValid()) Zellfeld->setGeometry(visualRect(Feldzelle));
}

// Wide enough for its texts, with the sign of those that pass a limit, and for its heading.
int Gitteransicht::Spaltenbreite(const Gitterspalte& S) const {
  const int Zeichen = S.Zeichen + (Daten.Auffällig && !S.Eingabe ? 1 : 0);
  const int Titel = horizontalHeader()->fontMetrics().horizontalAdvance(QString::fromStdString(S.Titel));
  return std::max(Zeichenbreite(font(), Zeichen), Titel) + Zellrand;
}

QList<int> Gitteransicht::Breiten() const {
  QList<int> Alle;
  for (int s = 0; s < Modell->columnCount(); ++s) Alle << (isColumnHidden(s) ? 0 : columnWidth(s));
  return Alle << Zeichenbreite(font(), 100);
}

void Gitteransicht::BreitenSetzen(const QList<int>& Neue) {
  if (Neue.size() != Modell->columnCount() + 1 || Neue.last() <= 0) return;
  const double Maß = static_cast<double>(Zeichenbreite(font(), 100)) / Neue.last();
  for (int s = 0; s < Modell->columnCount(); ++s) {
    if (Neue[s] > 0) setColumnWidth(s, qRound(Neue[s] * Maß));
  }
}

void Gitteransicht::AuswahlErweitern(int Schritt) {
  if (!selectionModel()->hasSelection()) Markende = *Daten.Zeile;
  Markende = std::clamp(Markende + Schritt, 0, std::max(Daten.Zeilen() - 1, 0));
  ZeilenMarkieren(*Daten.Zeile, Markende);
  scrollTo(Modell->index(Markende, 0));
}

void Gitteransicht::ZeilenMarkieren(int Von, int Bis) {
  selectionModel()->select(
      {Modell->index(std::min(Von, Bis), 0), Modell->index(std::max(Von, Bis), Modell->columnCount() - 1)},
      QItemSelectionModel::ClearAndSelect);
}

QString Gitteransicht::Zeilentext(int Zeile, int Von, int Bis) const {
  QStringList Zellen;
  for (int s = Von; s <= Bis; ++s) {
    if (!isColumnHidden(s)) Zellen << Modell->index(Zeile, s).data().toString();
  }
  return Zellen.join('\t');
}

QString Gitteransicht::Auswahltext() const {
  QStringList Zeilen;
  for (const int z : Daten.Markierte()) Zeilen << Zeilentext(z, 0, Modell->columnCount() - 1);
  for (const QItemSelectionRange& Block : selectionModel()->selection()) {
    for (int z = Block.top(); z <= Block.bottom(); ++z) Zeilen << Zeilentext(z, Block.left(), Block.right());
  }
  return Zeilen.join('\n');
}

void Gitteransicht::contextMenuEvent(QContextMenuEvent* Ereignis) {
  QMenu Menü(this);
  const auto Kopieren = [this] {
    const QString Text = Auswahltext();
    QGuiApplication::clipboard()->setText(Text.isEmpty() ? Zellfeld->text() : Text);
  };
  Menü.addAction("&Kopieren\tStrg+C", this, Kopieren);
  Menü.addAction("&Zeile kopieren", this, [this, Kopieren] {
    ZeilenMarkieren(*Daten.Zeile, *Daten.Zeile);
    Kopieren();
  });
  Menü.addAction("&Einfügen\tStrg+V", this,
                 [this] {
                   if (BeiEinfügen) BeiEinfügen();
                 })
      ->setEnabled(Feldzelle.isValid());
  Menü.exec(Ereignis->globalPos());
}

void Gitteransicht::resizeEvent(QResizeEvent* Ereignis) {
  QTableView::resizeEvent(Ereignis);
  FeldZeigen();
}

void Gitteransicht::updateGeometries() {
  QTableView::updateGeometries();
  FeldRücken();
}

void Gitteransicht::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  FeldRücken();
}

void Gitteransicht::focusInEvent(QFocusEvent* Ereignis) {
  QTableView::focusInEvent(Ereignis);
  if (Feldzelle.isValid()) Zellfeld->setFocus();
}

QSize Gitteransicht::sizeHint() const {
  int Breite = 2 * frameWidth() + 24;
  for (const Gitterspalte& S : Daten.Spalten) Breite += S.Sichtbar ? Spaltenbreite(S) : 0;
  // A short list of given rows is seen as a whole.
  const bool Fest = !Daten.NimmtZeilen && !Daten.Quelle;
  const int Zeilen = Fest ? std::clamp(Daten.Zeilen(), 7, 16) : 7;
  return {Breite, (Zeilen + 1) * verticalHeader()->defaultSectionSize()};
}

}  // namespace tavorena
