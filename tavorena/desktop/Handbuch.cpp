#include <QAction>
#include <QPointer>
#include <QTextBrowser>
#include <QUrl>

#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Handbuch.h>
#include <tavorena/worksheets/Blattart.h>

namespace tavorena {
namespace {

// From the first help number of a page on, up to the next row.
struct Seite {
  int Ab;
  const char* Datei;
};
constexpr Seite Seiten[] = {
    {0, "index.md"},    {1000, "datei.md"},      {1080, "stapel.md"},   {1090, "protokoll.md"},
    {1100, "datei.md"}, {2000, "bearbeiten.md"}, {3000, "ansicht.md"},  {4000, "rechenblatt.md"},
    {5000, "index.md"}, {8000, "index.md"},      {8020, "optionen.md"}, {8040, "index.md"},
};

}  // namespace

QString Handbuchseite(int Hilfenummer) {
  const char* Datei = Seiten[0].Datei;
  for (const Seite& S : Seiten) {
    if (Hilfenummer >= S.Ab) Datei = S.Datei;
  }
  // A worksheet has a page of its own, for the ten numbers from its own one on.
  for (const Blattart& Art : Blattarten()) {
    if (Hilfenummer >= Art.Hilfenummer && Hilfenummer < Art.Hilfenummer + 10) Datei = Art.Seite;
  }
  return Datei;
}

void HandbuchZeigen(int Hilfenummer) {
  static QPointer<QTextBrowser> Fenster;
  if (Fenster.isNull()) {
    Fenster = new QTextBrowser;
    Fenster->setObjectName("Handbuch");
    Fenster->setAttribute(Qt::WA_DeleteOnClose);
    Fenster->setWindowTitle("Tavorena Handbuch");
    Fenster->setWindowIcon(Programmsymbol());
    Fenster->setSearchPaths({":/handbuch"});
    Fenster->setOpenExternalLinks(false);
    Fenster->document()->setDocumentMargin(24);
    Fenster->resize(820, 700);
    auto* Zu = new QAction(Fenster);
    Zu->setShortcut(QKeySequence(Qt::Key_Escape));
    QObject::connect(Zu, &QAction::triggered, Fenster, &QWidget::close);
    Fenster->addAction(Zu);
  }
  Fenster->setSource(QUrl("qrc:/handbuch/" + Handbuchseite(Hilfenummer)), QTextDocument::MarkdownResource);
  Fenster->show();
  Fenster->raise();
  Fenster->activateWindow();
}

}  // namespace tavorena
