#include <algorithm>

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextTable>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Handbuch.h>
#include <tavorena/shell/Handbuchseiten.h>

namespace tavorena {
namespace {

QUrl Adresse(const QString& Datei) { return QUrl("qrc:/handbuch/" + Datei); }

QString Seitentext(const QString& Datei) {
  QFile Quelle(":/handbuch/" + Datei);
  return Quelle.open(QIODevice::ReadOnly) ? QString::fromUtf8(Quelle.readAll()) : QString();
}

// All pages in the order in which the first one names them.
QStringList AlleSeiten() {
  static const QRegularExpression Verweis("\\]\\(([a-z0-9]+\\.md)\\)");
  QStringList Alle = {Handbuchseite(0)};
  const QString Inhalt = Seitentext(Alle.first());
  for (const auto& Treffer : Verweis.globalMatch(Inhalt)) {
    if (!Alle.contains(Treffer.captured(1))) Alle << Treffer.captured(1);
  }
  return Alle;
}

// Name of the place with this text in a link, as docs/handbuch/werkzeug/quelle.py makes it.
QString Ankername(const QString& Text) {
  QString Name;
  for (const QChar z : Text.toLower().simplified()) {
    if (z == ' ') Name += '-';
    if (z.isLetterOrNumber() || z == '-' || z == '_') Name += z;
  }
  return Name;
}

bool IstErsteZelle(const QTextBlock& Absatz) {
  const QTextCursor Stelle(Absatz);
  const QTextTable* Tabelle = Stelle.currentTable();
  return Tabelle != nullptr && Tabelle->cellAt(Stelle).column() == 0;
}

// A page; pictures are never wider than the window.
class Seitenansicht final : public QTextBrowser {
 public:
  Seitenansicht() {
    setObjectName("Handbuchseite");
    setAccessibleName("Seite des Handbuchs");
    setSearchPaths({":/handbuch"});
    setOpenExternalLinks(false);
    document()->setDocumentMargin(Rand);
    // Always there: one that comes with the page would make the room for its pictures narrower.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  }

 protected:
  QVariant loadResource(int Art, const QUrl& Name) override {
    const QVariant Roh = QTextBrowser::loadResource(Art, Name);
    if (Art != QTextDocument::ImageResource) return Roh;
    QImage Bild = QImage::fromData(Roh.toByteArray());
    const int Breite = viewport()->width() - 2 * Rand;
    if (Bild.width() <= Breite) return Bild;
    // Drawn with all pixels that the screen has.
    const int Punkte = std::min(Bild.width(), qRound(Breite * devicePixelRatioF()));
    Bild = Bild.scaledToWidth(Punkte, Qt::SmoothTransformation);
    Bild.setDevicePixelRatio(static_cast<double>(Punkte) / Breite);
    return Bild;
  }
  // Places are headings and the first cells of rows; Markdown gives them no names.
  void doSetSource(const QUrl& Name, QTextDocument::ResourceType Art) override {
    QTextBrowser::doSetSource(Name, Art);
    const QString Anker = Name.fragment(QUrl::FullyDecoded);
    if (Anker.isEmpty()) return;
    for (QTextBlock Absatz = document()->begin(); Absatz.isValid(); Absatz = Absatz.next()) {
      if ((Absatz.blockFormat().headingLevel() == 0 && !IstErsteZelle(Absatz)) ||
          Ankername(Absatz.text()) != Anker) {
        continue;
      }
      document()->documentLayout()->documentSize();  // lays the page out to its end
      verticalScrollBar()->setValue(qRound(document()->documentLayout()->blockBoundingRect(Absatz).top()));
      return;
    }
  }
  void resizeEvent(QResizeEvent* Ereignis) override {
    QTextBrowser::resizeEvent(Ereignis);
    if (Ereignis->size().width() == Ereignis->oldSize().width()) return;
    const int Stelle = verticalScrollBar()->value();
    reload();
    verticalScrollBar()->setValue(Stelle);
  }

 private:
  static constexpr int Rand = 24;
};

class Handbuchfenster final : public QWidget {
 public:
  Handbuchfenster() : Seite(new Seitenansicht), Suche(new QLineEdit), Liste(new QListWidget) {
    setObjectName("Handbuch");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle("Tavorena Handbuch");
    setWindowIcon(Programmsymbol());
    resize(QSize(1000, 720).boundedTo(screen()->availableSize() - QSize(20, 60)));  // with its frame
    Suche->setObjectName("Handbuchsuche");
    Suche->setPlaceholderText("Suchen in allen Seiten");
    Suche->setAccessibleName(Suche->placeholderText());
    Suche->setClearButtonEnabled(true);
    Liste->setObjectName("Handbuchinhalt");
    Liste->setAccessibleName("Seiten, in denen alle gesuchten Worte stehen");
    auto* Leiste = new QToolBar;
    LeisteBauen(*Leiste);
    auto* Links = new QWidget;
    auto* Spalte = new QVBoxLayout(Links);
    Spalte->setContentsMargins(0, 0, 0, 0);
    Spalte->addWidget(Suche);
    Spalte->addWidget(Liste);
    auto* Teiler = new QSplitter;
    Teiler->addWidget(Links);
    Teiler->addWidget(Seite);
    Teiler->setStretchFactor(1, 1);
    Teiler->setSizes({260, 740});
    auto* Platz = new QVBoxLayout(this);
    Platz->addWidget(Leiste);
    Platz->addWidget(Teiler, 1);
    connect(Suche, &QLineEdit::textChanged, this, [this] { Auflisten(); });
    connect(Suche, &QLineEdit::returnPressed, this, [this] { Liste->setCurrentRow(0); });
    connect(Liste, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* Eintrag) {
      if (Eintrag != nullptr) Aufschlagen(Eintrag->data(Qt::UserRole).toString());
    });
    Auflisten();
  }

  void Öffnen(const QString& Datei) {
    Seite->setSource(Adresse(Datei), QTextDocument::MarkdownResource);
    Seite->setFocus();
  }

 private:
  template <typename Arbeit>
  QAction* Befehl(const QString& Text, const QKeySequence& Taste, Arbeit Tun) {
    auto* A = new QAction(Text, this);
    A->setShortcut(Taste);
    A->setToolTip(Text + " (" + Taste.toString(QKeySequence::NativeText) + ")");
    connect(A, &QAction::triggered, this, Tun);
    addAction(A);
    return A;
  }

  void LeisteBauen(QToolBar& Leiste) {
    QAction* Inhalt = Befehl("Inhalt", Qt::ALT | Qt::Key_Home, [this] {
      Suche->clear();
      Öffnen(Handbuchseite(0));
    });
    QAction* Zurück = Befehl("Zurück", Qt::ALT | Qt::Key_Left, [this] { Seite->backward(); });
    QAction* Vor = Befehl("Vor", Qt::ALT | Qt::Key_Right, [this] { Seite->forward(); });
    QAction* Verzeichnis = Befehl("Verzeichnis", Qt::ALT | Qt::Key_V, [this] { Öffnen("verzeichnis.md"); });
    Leiste.addActions({Inhalt, Verzeichnis, Zurück, Vor});
    for (QAction* A : {Zurück, Vor}) A->setEnabled(false);
    connect(Seite, &QTextBrowser::backwardAvailable, Zurück, &QAction::setEnabled);
    connect(Seite, &QTextBrowser::forwardAvailable, Vor, &QAction::setEnabled);
    Befehl("Suchen", QKeySequence::Find, [this] { Suche->setFocus(); });
    Befehl("Schließen", Qt::Key_Escape, [this] { close(); });
  }

  // The pages that hold all words of the search; without one all pages.
  void Auflisten() {
    const QStringList Worte = Suche->text().simplified().split(' ', Qt::SkipEmptyParts);
    const QSignalBlocker Still(Liste);
    Liste->clear();
    for (const QString& Datei : AlleSeiten()) {
      const QString Text = Seitentext(Datei);
      const auto Drin = [&](const QString& Wort) { return Text.contains(Wort, Qt::CaseInsensitive); };
      if (!std::all_of(Worte.begin(), Worte.end(), Drin)) continue;
      auto* Eintrag = new QListWidgetItem(Text.section('\n', 0, 0).remove('#').trimmed(), Liste);
      Eintrag->setData(Qt::UserRole, Datei);
    }
  }

  void Aufschlagen(const QString& Datei) {
    Seite->setSource(Adresse(Datei), QTextDocument::MarkdownResource);
    const QString Wort = Suche->text().simplified().section(' ', 0, 0);
    if (!Wort.isEmpty()) Seite->find(Wort);
  }

  Seitenansicht* Seite;
  QLineEdit* Suche;
  QListWidget* Liste;
};

}  // namespace

void HandbuchZeigen(int Hilfenummer) {
  static QPointer<Handbuchfenster> Fenster;
  if (Fenster.isNull()) Fenster = new Handbuchfenster;
  Fenster->Öffnen(Handbuchseite(Hilfenummer));
  Fenster->show();
  Fenster->raise();
  Fenster->activateWindow();
}

}  // namespace tavorena
