// Every form without a mouse, without colours, in large letters, and read aloud.
#include "Fenstertest.h"

#include <tavorena/desktop/Druckvorschau.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/desktop/Malflaeche.h>
#include <tavorena/desktop/Rollflaeche.h>
#include <tavorena/desktop/Textdruck.h>
#include <tavorena/graphics/Elemente.h>
#include <tavorena/records/Seiten.h>

#ifndef Q_MOC_RUN  // it stumbles over umlauts in an enumeration
#include <tavorena/exchange/TVFreiForm.h>
#include <tavorena/forms/TVEinzelKoreinForm.h>
#include <tavorena/forms/TVWertdialog.h>
#include <tavorena/points/TVEDBSPunktForm.h>
#include <tavorena/points/TVPDoppForm.h>
#include <tavorena/points/TVPSelectForm.h>
#include <tavorena/rawdata/TVRohdatenForm.h>
#include <tavorena/rawdata/TVTheoForm.h>
#include <tavorena/shell/Menuebaum.h>
#include <tavorena/worksheets/Anschlusswahl.h>
#include <tavorena/worksheets/TVMMittForm.h>
#endif

using namespace tavorena;
using namespace tavorena::test;

namespace {

struct Zweimal final : Messliste {
  std::vector<Punktsatz> Messpunkte() const override {
    return {{"7", 100, 200, 0, ""}, {"7", 100.01, 200, 0, ""}};
  }
  void MesspunkteMitteln(const std::vector<int>&) override {}
  void MesspunktLöschen(int) override {}
  bool MesspunktUmnummern(int, const std::string&) override { return false; }
};

// Shows every form in its own window, lets it be looked at and closes it; questions are broken off.
class Schau final : public PlattformQt {
 public:
  Schau(Hauptfenster& H, QString Wohin) : PlattformQt(H), Fenster(H), Ordner(std::move(Wohin)) {}

  std::function<void(FormularAnsicht&)> Ansehen;

  int Meldung(const std::string&, Knöpfe Art, const std::string&, int) override {
    if (Art == Knöpfe::OK) return 1;
    return Art == Knöpfe::JaNein || Art == Knöpfe::JaNeinAbbruch ? KnopfNein : KnopfOhne;
  }
  std::string DateiWählen(Dateiauftrag& A) override {
    for (const char* Endung : {"kor", "gsi", "eds", "csv", "xml"}) {
      if (A.Filter.find(std::string("*.") + Endung) != std::string::npos || A.Vorgabe.ends_with(Endung))
        return (Ordner + (A.NurVorhandene ? "/b." : "/neu.") + Endung).toStdString();
    }
    return (Ordner + (A.NurVorhandene ? "/b.kor" : "/neu.txt")).toStdString();
  }
  void FormularZeigen(Formular& F, bool Modal) override {
    const auto Tun = [this, &F] {
      for (QWidget* W : QApplication::allWidgets()) {
        auto* Ansicht = dynamic_cast<FormularAnsicht*>(W);
        if (Ansicht != nullptr && Ansicht->Form() == &F) Ansehen(*Ansicht);
      }
      F.Schließen();
    };
    if (Modal) QTimer::singleShot(0, &Fenster, Tun);
    PlattformQt::FormularZeigen(F, Modal);
    if (!Modal) Tun();
  }
  void HandbuchZeigen(int) override {}
  int Drucken(const Druckseiten&, const std::string&, const std::string&) override { return -1; }
  int ProgrammStarten(const std::string&, const std::string&) override { return 0; }
  void ProgrammBeenden() override {}

 private:
  Hauptfenster& Fenster;
  QString Ordner;
};

class Umbenannte final : public Formular {
 public:
  Umbenannte() : Formular("Umbenannte") {}
  Knopf& Druck = KnopfAnlegen("Druck", "&Eins", [] {}, {0, 0});
};

// The forms that no command of the menu opens by itself.
void NebenwegeGehen(const QString& Ordner) {
  Wert Pnr("77");
  const int Abbruch[] = {FormEinzelKorein(Pnr), PunktVorhandenFrage("77"),
                         PunktVorhandenOrientierungFrage("77"), DateiVorhandenFrage("a.kor"),
                         AuswahlListe("Tavorena Auswahl", {"eins", "zwei"})};
  static_cast<void>(Abbruch);
  PunktVorhandenBehandeln({"1001", 0, 3500100.1, 5600200, Wert(), ""});
  std::vector<int> Zeilen;
  static_cast<void>(TabellenpunkteAuswählen(Zeilen));
  int i = 0;
  Koordinatendateiformat = Dateiformat::Edbs;
  EDBSPunktZeigen({KorAnzahl, KorPunkt, [](int&, const Punktsatz&) { return true; }}, i);
  Rohdatenwahl Wahl;
  Rohdaten Daten;
  static_cast<void>(RohdatenFragen((Ordner + "/b.gsi").toStdString(), Wahl, Daten));
  Rohstation S;
  S.Anschluss.push_back({"1001", "", 12.5, 100, 20, 1.5, 1});
  std::vector<bool> Ein = AnschlussVorschlag(S);
  static_cast<void>(AnschlussWählen(S, "Station 1 von 1", Ein));
  Zweimal Messungen;
  TVMMittForm(Messungen).Zeigen();
  TheodolitZeigen();
  static_cast<void>(TheodolitSchließen());
}

// The best contrast of what is drawn to the ground, which is the most frequent colour.
double Bildkontrast(const QImage& Bild) {
  QHash<QRgb, int> Zahl;
  for (int y = 0; y < Bild.height(); ++y) {
    for (int x = 0; x < Bild.width(); ++x) ++Zahl[Bild.pixel(x, y)];
  }
  const auto Mehr = [&](QRgb a, QRgb b) { return Zahl[a] < Zahl[b]; };
  const QList<QRgb> Farben = Zahl.keys();
  const QColor Grund(*std::max_element(Farben.begin(), Farben.end(), Mehr));
  double Bester = 1;
  for (const QRgb F : Farben) Bester = std::max(Bester, Kontrast(QColor(F), Grund));
  return Bester;
}

QImage Bild(QWidget& W) { return W.grab().toImage().convertToFormat(QImage::Format_RGB32); }

// What the focus draws, against what surrounds the control.
double Fokuskontrast(QWidget& W) {
  W.clearFocus();
  QCoreApplication::processEvents();
  const QImage Ohne = Bild(W);
  W.setFocus(Qt::TabFocusReason);
  QCoreApplication::processEvents();
  const QImage Mit = Bild(W);
  double Bester = 1;
  for (int i = 0; i < Mit.width() * Mit.height(); ++i) {
    const QPoint P(i % Mit.width(), i / Mit.width());
    if (Mit.pixel(P) == Ohne.pixel(P)) continue;
    Bester = std::max(Bester, std::min(Kontrast(Mit.pixelColor(P), W.palette().color(QPalette::Window)),
                                       Kontrast(Mit.pixelColor(P), W.palette().color(QPalette::Base))));
  }
  return Bester;
}

QRect OrtIn(const QWidget& W, const QWidget& Fläche) { return {W.mapTo(&Fläche, QPoint(0, 0)), W.size()}; }

// What a screen reader calls a control; a list by the label that belongs to it.
QString Gelesen(QWidget* W) {
  const QAccessibleInterface* I = QAccessible::queryAccessibleInterface(W);
  if (qobject_cast<QComboBox*>(W) == nullptr) return I->text(QAccessible::Name);
  const auto Namen = I->relations(QAccessible::Label);
  return Namen.isEmpty() ? I->text(QAccessible::Description) : Namen.first().first->text(QAccessible::Name);
}

void NamenPrüfen(FormularAnsicht& A, QStringList& Fehler) {
  QMap<QString, QString> Namen;
  for (const auto& S : A.Form()->Steuerelemente()) {
    if (dynamic_cast<Beschriftung*>(S.get()) != nullptr) continue;
    auto* W = A.findChild<QWidget*>(QString::fromStdString(S->Name));
    const QString Name = Gelesen(W), Wo = A.objectName() + '.' + W->objectName();
    if (Name.isEmpty() || Name.contains(QChar(38)) || Name.contains("...") || Namen.contains(Name))
      Fehler << Wo + ": \"" + Name + "\" " + Namen.value(Name);
    Namen[Name] = W->objectName();
    if (const auto* Zeile = qobject_cast<QLineEdit*>(W);
        Zeile != nullptr &&
        QAccessible::queryAccessibleInterface(W)->text(QAccessible::Value) != Zeile->text())
      Fehler << Wo + " ohne Wert";
    const auto* G = dynamic_cast<Gitter*>(S.get());
    if (G == nullptr) continue;
    QAccessibleTableInterface* Tabelle = QAccessible::queryAccessibleInterface(W)->tableInterface();
    for (int s = 0; s < Tabelle->columnCount(); ++s) {
      const QString Titel = Tabelle->columnDescription(s);
      if (Titel.isEmpty() && G->Spalten[static_cast<std::size_t>(s)].Sichtbar)
        Fehler << Wo + " Spalte " + QString::number(s);
      if (G->Zeilen() == 0) continue;
      const QString Zelle = Tabelle->cellAt(G->Zeilen() - 1, s)->text(QAccessible::Description);
      if (!Zelle.startsWith(QString("%1, Zeile %2").arg(Titel).arg(G->Zeilen())) ||
          Tabelle->rowDescription(0) != "1")
        Fehler << Wo + " Zelle: " + Zelle;
    }
    if (G->ZelleOffen() && !Gelesen(W->findChild<QLineEdit*>(W->objectName() + "Feld")).contains(", Zeile "))
      Fehler << Wo + " Feld der Zelle";
  }
}

// Downwards, in a row to the right; a column may follow whose top is right of all before.
void FolgePrüfen(FormularAnsicht& A, QStringList& Fehler) {
  const Steuerelement* Vorher = nullptr;
  QRect Davor;
  int Rechts = 0;
  for (const auto& S : A.Form()->Steuerelemente()) {
    if (!Formular::NimmtFokus(*S)) continue;
    const auto* W = A.findChild<QWidget*>(QString::fromStdString(S->Name));
    const QRect Hier = OrtIn(*W, A);
    const bool Gleicher = Vorher != nullptr && Vorher->Rahmen == S->Rahmen;
    const bool Unten = Hier.center().y() > Davor.bottom(), Reihe = !Unten && Hier.bottom() > Davor.top();
    if (Vorher != nullptr && !Unten && !(Reihe && Hier.left() > Davor.left()) &&
        !(Gleicher && Hier.left() > Rechts))
      Fehler << QString("%1: %2 hinter %3")
                    .arg(A.objectName(), W->objectName(), QString::fromStdString(Vorher->Name));
    Rechts = std::max(Gleicher ? Rechts : 0, Hier.right());
    Vorher = S.get();
    Davor = Hier;
  }
}

// Nothing is smaller than its text, and what is larger than its window scrolls.
void GrößenPrüfen(FormularAnsicht& A, QStringList& Fehler) {
  A.Form()->Ereignis([&] {
    for (const auto& S : A.Form()->Steuerelemente()) S->Sichtbar = true;
  });
  QCoreApplication::processEvents();
  const auto Prüfe = [&](const QWidget* W, QSize Nötig, const QString& Was) {
    if (W->width() < Nötig.width() || W->height() < Nötig.height())
      Fehler << QString("%1.%2 %3: %4x%5 statt %6x%7")
                    .arg(A.objectName(), W->objectName(), Was)
                    .arg(W->width())
                    .arg(W->height())
                    .arg(Nötig.width())
                    .arg(Nötig.height());
  };
  for (const auto* W : A.findChildren<QLabel*>())
    Prüfe(W, W->fontMetrics().size(0, W->text().remove('&')), W->text());
  for (const auto* W : A.findChildren<QAbstractButton*>()) {
    if (!W->text().isEmpty())
      Prüfe(W, W->text() == "..." ? W->fontMetrics().size(0, " ... ") : W->sizeHint(), W->text());
  }
  for (const auto* W : A.findChildren<QComboBox*>())  // beside the arrow
    Prüfe(W, W->fontMetrics().size(0, W->currentText()) + QSize(24, 2), W->currentText());
  for (const auto& S : A.Form()->Steuerelemente()) {
    const auto* Zeile = A.findChild<Eingabefeld*>(QString::fromStdString(S->Name));
    if (Zeile != nullptr)
      Prüfe(Zeile, Zeile->fontMetrics().size(0, QString(S->Zeichen, '0')) + QSize(12, 2), "");
  }
  for (const auto* W : A.findChildren<QTableView*>()) {
    const QHeaderView* Kopf = W->horizontalHeader();
    Prüfe(Kopf, QSize(0, Kopf->fontMetrics().height()), "Kopf");
    if (W->verticalHeader()->defaultSectionSize() < W->fontMetrics().height())
      Fehler << A.objectName() + " Zeilen";
    for (int s = 0; s < W->model()->columnCount(); ++s) {
      const QString Titel = W->model()->headerData(s, Qt::Horizontal).toString();
      if (!W->isColumnHidden(s) && Kopf->sectionSize(s) < Kopf->fontMetrics().horizontalAdvance(Titel) + 6)
        Fehler << A.objectName() + " Spalte " + Titel;
    }
  }
  const QSize Schirm = A.screen()->availableSize(), Fenster = A.window()->size(), Ganz = A.minimumSizeHint();
  const bool ImHauptfenster = qobject_cast<QMainWindow*>(A.window()) != nullptr;
  if (qobject_cast<QScrollArea*>(A.parentWidget()->parentWidget()) == nullptr ||
      Ganz.expandedTo(A.size()) != A.size() || (!ImHauptfenster && Fenster.boundedTo(Schirm) != Fenster))
    Fehler << A.objectName() + " paßt nicht und rollt nicht";
}

}  // namespace

class ZugangTest final : public Fensterumgebung {
  Q_OBJECT

  // Looks at every form there is, once for each name and title.
  void alleFormen(const std::function<void(FormularAnsicht&)>& Ansehen) {
    Schau Alle(*Fenster, Ordner.path());
    PortsSetzen(PortsVon(Alle));
    Schreibe(Pfad("b.kor"), "1001 3500100 5600200\r\n1001 3500100.02 5600200\r\n1002 3500160 5600280\r\n");
    Schreibe(Pfad("b.gsi"),
             "410001+00000060 42....+00002041\r\n"
             "110002+00001001 21.322+19141020 22.322+09791690 31..06+00412646\r\n");
    QSet<QString> Gesehen;
    Alle.Ansehen = [&](FormularAnsicht& A) {
      const QString Name = A.objectName() + " \"" + A.windowTitle() + '"';
      if (Gesehen.contains(Name)) return;
      Gesehen << Name;
      Ansehen(A);
    };
    const auto Datei = [&] {
      Optionen.AbfrageDruck = false;
      HauptDateiÖffnen(Pfad("b.kor").toStdString(), Dateiformat::Kor);
    };
    for (const Menüeintrag& E : Menübaum()) {
      if (QString(E.Name) == "MenüDateiBeenden") continue;
      Datei();
      TVKernMDIForm::Fenster().Ausführen(E.Name);
      QCoreApplication::processEvents();
      BlätterSchließen();
    }
    Datei();
    NebenwegeGehen(Ordner.path());
    TVKernMDIForm::Fenster().Ausführen("MenüDateiSchließen");
    QCoreApplication::processEvents();
    auto* Start = Fenster->findChild<QWidget*>("TVStartForm");
    QVERIFY(Start != nullptr);
    Alle.Ansehen(dynamic_cast<FormularAnsicht&>(*Start));
    PortsSetzen(PortsVon(*Plattform));
  }

 private slots:
  void jedesFormularIstVorzulesen() {
    QStringList Namen, Folge;
    alleFormen([&](FormularAnsicht& A) {
      NamenPrüfen(A, Namen);
      FolgePrüfen(A, Folge);
    });
    for (const QString& F : Namen + Folge) qWarning() << F;
    QVERIFY2(Namen.isEmpty(), qPrintable(Namen.join('\n')));
    QVERIFY2(Folge.isEmpty(), qPrintable(Folge.join('\n')));
  }

  void auchWasKeinFormularIst() {
    Öffne();
    Optionen.ProtokollfensterAn = true;
    Menü("MenüAnsichtGrafik(1)");
    HandbuchZeigen(0);
    const Druckseiten Seiten = SeitenTeilen("1001\n");
    Textdruck Was(Seiten, "a.dru", "a.pdf");
    Druckvorschau Vorschau(Was, Fenster.get());
    QStringList Fehler;
    for (QWidget* Oben :
         {static_cast<QWidget*>(Fenster.get()), handbuch(), static_cast<QWidget*>(&Vorschau)}) {
      for (QWidget* W : Oben->findChildren<QWidget*>()) {
        const bool Bedienbar = W->focusPolicy() != Qt::NoFocus || qobject_cast<QToolButton*>(W) != nullptr ||
                               W->objectName() == "GrafBild";
        const bool Inneres = W->objectName().startsWith("qt_") || W->inherits("QComboBoxListView") ||
                             W->inherits("QLineEditIconButton") || qobject_cast<QMenuBar*>(W) != nullptr ||
                             qobject_cast<QMdiArea*>(W) != nullptr || qobject_cast<QMenu*>(W) != nullptr;
        const QString Name = Gelesen(W);
        if (Bedienbar && !Inneres && (Name.isEmpty() || Name.size() == 1))
          Fehler << Oben->objectName() + "/" + W->metaObject()->className() + " " + W->objectName() + ": " +
                        Name;
      }
    }
    for (const char* Name : {"GrafBild", "Seitenbild"}) {
      auto* W = Fenster->findChild<QWidget*>(Name);
      if (W->accessibleDescription().isEmpty()) Fehler << Name;
    }
    handbuch()->close();
    for (const QString& F : Fehler) qWarning() << F;
    QVERIFY2(Fehler.isEmpty(), qPrintable(Fehler.join('\n')));
  }

  // All that is written, marked or bears the focus can be told from its ground in both palettes.
  void allesHebtSichAb() {
    QCOMPARE(qRound(10 * Kontrast(Qt::black, Qt::white)), 210);
    QCOMPARE(qRound(100 * Kontrast("#777777", "#ffffff")), 448);
    Bediener.stop();  // it would make the main window the active one
    const auto Weiter = qScopeGuard([this] { Bediener.start(10); });
    QStringList Fehler;
    const auto Genug = [&](double Wert, const QString& Was) {
      if (Wert < 4.5) Fehler << Was + ": " + QString::number(Wert, 'f', 2);
    };
    for (const Helligkeit Wahl : {Helligkeit::Hell, Helligkeit::Dunkel}) {
      AussehenSetzen(*qApp, Wahl);
      const QPalette P = qApp->palette();
      const QString Welche = Wahl == Helligkeit::Hell ? "hell " : "dunkel ";
      for (const auto Zustand : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const auto Farbe = [&](QPalette::ColorRole R) { return P.color(Zustand, R); };
        for (const auto& [Text, Grund] :
             {std::pair(QPalette::WindowText, QPalette::Window), std::pair(QPalette::Text, QPalette::Base),
              std::pair(QPalette::Text, QPalette::AlternateBase),
              std::pair(QPalette::PlaceholderText, QPalette::Base),
              std::pair(QPalette::ButtonText, QPalette::Button),
              std::pair(QPalette::ButtonText, QPalette::Window),
              std::pair(QPalette::HighlightedText, QPalette::Highlight),
              std::pair(QPalette::ToolTipText, QPalette::ToolTipBase),
              std::pair(QPalette::Link, QPalette::Window), std::pair(QPalette::Link, QPalette::Base),
              std::pair(QPalette::Highlight, QPalette::Window),
              std::pair(QPalette::Highlight, QPalette::Base)})
          Genug(Kontrast(Farbe(Text), Farbe(Grund)), Welche + QString("%1 auf %2").arg(Text).arg(Grund));
      }
      // Rows that are chosen, and the current one, tint their ground.
      Gitter G;
      G.Spalten = {{"Ein", 3}, {"Punktnr.", 9}};
      G.Markenspalte = 0;
      G.Auffällig = [](int, int) { return true; };
      G.ZeileAnhängen({"", "1001"});
      G.ZeileAnhängen({"", "1002"});
      G.MarkeSetzen(1, true);
      Gitteransicht Zeilen(G, new Eingabefeld);
      for (const int z : {0, 1}) {
        const QColor Farbe = Zeilen.model()->index(z, 1).data(Qt::BackgroundRole).value<QBrush>().color();
        for (const auto Rolle : {QPalette::Base, QPalette::AlternateBase}) {
          QImage Grund(1, 1, QImage::Format_RGB32);
          Grund.fill(P.color(Rolle));
          QPainter(&Grund).fillRect(0, 0, 1, 1, Farbe);
          Genug(Kontrast(Warnfarbe(), Grund.pixelColor(0, 0)),
                Welche + "Warnfarbe in Zeile " + QString::number(z));
          Genug(Kontrast(P.color(QPalette::Text), Grund.pixelColor(0, 0)),
                Welche + "Zeile " + QString::number(z));
        }
      }
      for (const int Farbe : {FarbeSchwarz, FarbeRot, FarbeBlau}) {
        QImage Flaeche(60, 40, QImage::Format_RGB32);
        Flaeche.fill(P.color(QPalette::Base));
        QPainter Maler(&Flaeche);
        Malfläche(Maler, P).Scheibe(450, 300, 200, Farbe);
        Maler.end();
        Genug(Kontrast(Flaeche.pixelColor(30, 20), P.color(QPalette::Base)),
              Welche + QString("Marke %1").arg(Farbe));
      }
      // As the style draws it.
      QWidget Tafel;
      QVBoxLayout Platz(&Tafel);
      QFont Groß = Tafel.font();
      Groß.setPointSize(20);
      QMdiArea Arbeit;
      for (const char* Titel : {"vorn", "hinten"}) Arbeit.addSubWindow(new QLabel)->setWindowTitle(Titel);
      QList<QWidget*> Alle = {new QPushButton("Rechnen"),
                              new QCheckBox("Höhen"),
                              new QRadioButton("Affin"),
                              new QComboBox,
                              new Eingabefeld,
                              new QTableWidget(1, 1)};
      qobject_cast<QComboBox*>(Alle[3])->addItem("Lage");
      qobject_cast<QTableWidget*>(Alle[5])->setCurrentCell(0, 0, QItemSelectionModel::NoUpdate);
      for (QWidget* W : Alle) {
        W->setFont(Groß);
        Platz.addWidget(W);
      }
      Platz.addWidget(&Arbeit);
      Tafel.resize(500, 700);
      Tafel.show();
      Tafel.activateWindow();
      QTRY_VERIFY(Tafel.isActiveWindow());
      for (QWidget* W : Alle) {
        const QString Was = Welche + W->metaObject()->className();
        Genug(Fokuskontrast(*W), Was + " Fokus");
        if (qobject_cast<QAbstractButton*>(W) == nullptr) continue;
        W->setEnabled(false);
        const int Mitte = W->height() / 2;  // the ground of a button is a gradient
        Genug(Bildkontrast(Bild(*W).copy(4, Mitte - 3, W->width() - 8, 6)), Was + " geschlossen");
        W->setEnabled(true);
      }
      for (QMdiSubWindow* F : Arbeit.subWindowList()) {
        F->resize(360, 80);
        const QImage Ganz = Bild(*F);
        Genug(Bildkontrast(Ganz.copy(40, 8, Ganz.width() - 140, 12)), Welche + "Titel " + F->windowTitle());
      }
      Platz.removeWidget(&Arbeit);
      Arbeit.setParent(nullptr);
    }
    AussehenSetzen(*qApp, Helligkeit::Hell);
    for (const QString& F : Fehler) qWarning() << F;
    QVERIFY2(Fehler.isEmpty(), qPrintable(Fehler.join('\n')));
  }

  // A value in the warning colour has a sign besides, and says so.
  void warnungenTragenEinZeichen() {
    Öffne("MenüKatasterLinel");
    Tippe("1001\n1002\n0\n101\n");  // 1 m too long
    const auto* Ws = Fenster->findChild<Eingabefeld*>("LinelWs");
    QTRY_VERIFY(Ws->property("fehlerhaft").toBool());
    QVERIFY(Ws->accessibleDescription().contains("auffällig"));
    const auto Zeichen = [](QWidget& W) {  // in the room before the number
      const QImage B = Bild(W).copy(3, 4, 8, W.height() - 8);
      return Bildkontrast(B) > 2;
    };
    QVERIFY(Zeichen(*Fenster->findChild<Eingabefeld*>("LinelWs")));
    QVERIFY(!Zeichen(*Fenster->findChild<Eingabefeld*>("LinelD")));

    Gitter G;
    G.Spalten = {{"vY", 6}, {"vX", 6}};
    G.Auffällig = [](int, int s) { return s == 1; };
    G.ZeileAnhängen({"1.234", "1.234"});
    Gitteransicht Zeilen(G, new Eingabefeld);
    QString Gemalt[2];
    for (const int s : {0, 1}) {
      const QModelIndex Zelle = Zeilen.model()->index(0, s);
      QCOMPARE(Zelle.data().toString(), QString("1.234"));  // what is copied
      QCOMPARE(Zelle.data(Qt::AccessibleDescriptionRole).toString().contains("auffällig"), s == 1);
      QImage Flaeche(200, 30, QImage::Format_RGB32);
      Flaeche.fill(Qt::white);
      QPainter Maler(&Flaeche);
      QStyleOptionViewItem Wie;
      Wie.initFrom(&Zeilen);
      Wie.rect = Flaeche.rect();
      Wie.font = Zeilen.font();
      Zeilen.itemDelegate()->paint(&Maler, Wie, Zelle);
      Maler.end();
      int Links = 0;
      while (Links < 200 && Kontrast(Flaeche.pixelColor(Links, 15), Qt::white) < 1.2 &&
             Kontrast(Flaeche.pixelColor(Links, 12), Qt::white) < 1.2)
        ++Links;
      Gemalt[s] = QString::number(Links);
    }
    QVERIFY2(Gemalt[1].toInt() + 4 < Gemalt[0].toInt(), qPrintable(Gemalt[0] + " " + Gemalt[1]));
    Drücke(Qt::Key_S, Qt::AltModifier);
    QTRY_VERIFY(!BlätterOffen());
  }

  void nameFolgtDerBeschriftung() {
    Umbenannte Form;
    FormularAnsicht Ansicht(Form);  // also before it is shown
    Form.Ereignis([&Form] { Form.Druck.Text = "&Zwei"; });
    QTRY_COMPARE(Ansicht.findChild<QPushButton*>("Druck")->accessibleName(), QString("Zwei"));
  }

  // What is higher than the screen rolls to the control that gets the focus.
  void fokusIstZuSehen() {
    auto* Inhalt = new QWidget;
    Inhalt->setMinimumSize(200, 3000);
    auto *Oben = new QLineEdit(Inhalt), *Unten = new QLineEdit(Inhalt);
    Unten->move(0, 2900);
    Oben->setFocus();
    Rollfläche Rolle(Inhalt, true);
    Rolle.show();
    QVERIFY(QTest::qWaitForWindowActive(&Rolle) && Unten->visibleRegion().isEmpty());
    Unten->setFocus();
    QTRY_VERIFY(!Unten->visibleRegion().isEmpty());
  }

  void nichtsIstAbgeschnitten() {
    const QFont Vorher = QApplication::font();
    QFont Doppelt = Vorher;
    if (qApp->devicePixelRatio() < 2) Doppelt.setPointSizeF(2 * Vorher.pointSizeF());
    QApplication::setFont(Doppelt);
    QStringList Fehler;
    alleFormen([&](FormularAnsicht& A) { GrößenPrüfen(A, Fehler); });
    AnzeigePort().HauptfensterGeändert();
    for (const auto* Text : Fenster->findChildren<QPlainTextEdit*>()) {
      if (Text->fontInfo().pointSizeF() < 0.75 * QFontInfo(QApplication::font()).pointSizeF())
        Fehler << Text->accessibleName() + " bleibt klein";
    }
    QApplication::setFont(Vorher);
    for (const QString& F : Fehler) qWarning() << F;
    QVERIFY2(Fehler.isEmpty(), qPrintable(Fehler.join('\n')));
  }
};

QTEST_MAIN(ZugangTest)
#include "ZugangTest.moc"
