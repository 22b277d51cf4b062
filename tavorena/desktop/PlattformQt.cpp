#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QStandardPaths>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <tavorena/core/Atempause.h>
#include <tavorena/core/Datei.h>
#include <tavorena/core/TVKoordinatenmodul.h>
#include <tavorena/desktop/Aussehen.h>
#include <tavorena/desktop/Dialogvorrang.h>
#include <tavorena/desktop/Druckvorschau.h>
#include <tavorena/desktop/Fensterplatz.h>
#include <tavorena/desktop/FormularAnsicht.h>
#include <tavorena/desktop/Gitteransicht.h>
#include <tavorena/desktop/Handbuch.h>
#include <tavorena/desktop/Hauptfenster.h>
#include <tavorena/desktop/LeitungQt.h>
#include <tavorena/desktop/PlattformQt.h>
#include <tavorena/desktop/Rollflaeche.h>
#include <tavorena/desktop/Tastensperre.h>
#include <tavorena/desktop/Textdruck.h>
#include <tavorena/graphics/Abgriff.h>
#include <tavorena/graphics/Grafikfenster.h>
#include <tavorena/shell/TVKernMDIForm.h>

namespace tavorena {
namespace {

QString Q(const std::string& Text) { return QString::fromStdString(Text); }

QString Pfad(const std::string& Name) { return Q(Systempfad(Name).string()); }

// A modal form; closing the window asks the form first.
class Dialogfenster final : public QDialog {
 public:
  Dialogfenster(Formular& Gezeigt, QWidget* Eltern)
      : QDialog(Eltern), Form(Gezeigt), Ansicht(new FormularAnsicht(Gezeigt, this)) {
    auto* Platz = new QVBoxLayout(this);
    Platz->setContentsMargins(0, 0, 0, 0);
    Platz->addWidget(new Rollfläche(Ansicht, true));
    setWindowModality(Qt::WindowModal);
    // The title is to be read, where the screen has room for it.
    setMinimumWidth(std::min(Zeichenbreite(font(), 45), screen()->availableSize().width() - 20));
    setWindowTitle(Ansicht->windowTitle());
    connect(Ansicht, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
    setObjectName(Ansicht->objectName() + "Fenster");
    Ansicht->BeiGeschlossen = [this] {
      PlatzMerken();
      QDialog::accept();
    };
  }

  void Zeigen() {
    PlatzNehmen();
    show();
    Form.Öffnen();
    Ansicht->FokusZeigen();
    Ansicht->FokusMarkieren();  // the window becomes active later
    if (!Form.Offen()) return;
    if (isModal()) {
      exec();
      return;
    }
    QEventLoop Schleife;
    connect(this, &QDialog::finished, &Schleife, &QEventLoop::quit);
    Schleife.exec();
  }

  void reject() override {
    if (Ansicht->Form() != nullptr) Form.SchließenVerlangen();
  }

 private:
  // A dialog with a grid stands over the work area, beside the graphics view, and keeps its size.
  void PlatzNehmen() {
    auto* Gitter = Ansicht->findChild<Gitteransicht*>();
    const auto* Fenster = qobject_cast<QMainWindow*>(parentWidget());
    if (Gitter == nullptr || Fenster == nullptr) return;
    const Fensterplatz Platz;
    const QString Name = objectName();
    const QSize Letzte = Platz.Größe(Name + "/Größe");
    const int Titelhöhe = 40;
    const QSize Fläche = Fenster->centralWidget()->size();
    const QSize Wunsch(std::min(sizeHint().width(), std::max(Fläche.width(), 640)),
                       Fläche.height() - Titelhöhe);
    resize((Letzte.isEmpty() ? Wunsch : Letzte).boundedTo(screen()->availableSize() - QSize(20, 60)));
    move(Fenster->centralWidget()->mapToGlobal(QPoint(0, 0)));
    Gitter->BreitenSetzen(Platz.Zahlen(Name + "/Spalten"));
  }

  void PlatzMerken() const {
    const auto* Gitter = Ansicht->findChild<Gitteransicht*>();
    if (Gitter == nullptr) return;
    Fensterplatz Platz;
    Platz.Merken(objectName() + "/Größe", size());
    Platz.Merken(objectName() + "/Spalten", Gitter->Breiten());
  }

  Formular& Form;
  FormularAnsicht* Ansicht;
};

// Puts a dialog at its own place, as far as the screen has it; wider only where its fields need it.
void Stellen(QDialog& Dialog, const Dialogplatz& Platz, const QWidget& Fenster) {
  const auto Pixel = [](double Twips) { return qRound(Twips / TwipsJePixel); };
  Dialog.resize(QSize(Pixel(Platz.Breite), 0).expandedTo(Dialog.sizeHint()));
  const QRect Schirm = Fenster.screen()->availableGeometry();
  const QPoint Ort = Fenster.pos() + QPoint(Pixel(Platz.Links), Pixel(Platz.Oben));
  Dialog.move(std::max(Schirm.left(), std::min(Ort.x(), Schirm.right() - Dialog.width())),
              std::max(Schirm.top(), std::min(Ort.y(), Schirm.bottom() - Dialog.height())));
}

// "text|pattern|text|pattern" as Qt takes it.
QString QtFilter(const std::string& Filter) {
  const QStringList Teile = Q(Filter).split('|');
  QStringList Einträge;
  for (qsizetype i = 0; i + 1 < Teile.size(); i += 2) {
    QString Name = Teile[i].trimmed(), Muster = Teile[i + 1];
    Muster.replace(';', ' ');
    Einträge << Name.section('(', 0, 0).trimmed() + " (" + Muster + " " + Muster.toUpper() + ")";
  }
  Einträge << "Alle Dateien (*)";
  return Einträge.join(";;");
}

// The list below the names; nullptr: there is none.
QComboBox* ListeAnfügen(QFileDialog& Dialog, const Dateiauftrag& Auftrag) {
  auto* Platz = qobject_cast<QGridLayout*>(Dialog.layout());
  if (Auftrag.Liste.empty() || Platz == nullptr) return nullptr;
  auto* Titel = new QLabel("&" + Q(Auftrag.Listentitel), &Dialog);
  auto* Liste = new QComboBox(&Dialog);
  for (const std::string& Eintrag : Auftrag.Liste) Liste->addItem(Q(Eintrag));
  Liste->setCurrentIndex(Auftrag.ListeGewählt);
  Liste->setObjectName("Dateiliste");
  Liste->setAccessibleName(Q(Auftrag.Listentitel));
  Titel->setBuddy(Liste);
  const int Zeile = Platz->rowCount();
  Platz->addWidget(Titel, Zeile, 0);
  Platz->addWidget(Liste, Zeile, 1);
  return Liste;
}

// What a file dialog starts with: a pattern chooses its filter, a name stands in the field.
void VorgabeSetzen(QFileDialog& Dialog, const QString& Vorgabe) {
  if (Vorgabe.isEmpty()) return;
  if (!Vorgabe.contains('*')) return Dialog.selectFile(Vorgabe);
  QStringList Filter = Dialog.nameFilters();
  const auto Passt = [&](const QString& F) {
    return F.section('(', 1).chopped(1).split(' ').contains(Vorgabe);
  };
  auto i = std::find_if(Filter.begin(), Filter.end(), Passt);
  if (i == Filter.end()) {
    const QString Groß = Vorgabe.toUpper();
    i = Filter.insert(Filter.begin(), Groß.section('.', -1) + " (" + Vorgabe + " " + Groß + ")");
    Dialog.setNameFilters(Filter);
  }
  Dialog.selectNameFilter(*i);
}

// The handbook stays usable beside a dialog: the dialog closes only what it stands before.
QWidget* Davor(Hauptfenster& Fenster) {
  QWidget* Dialog = VordererDialog();
  return Dialog != nullptr ? Dialog : &Fenster;
}

struct Kastenknopf {
  const char* Text;
  QMessageBox::ButtonRole Rolle;
  int Kennung;
};

std::vector<Kastenknopf> KnöpfeVon(Knöpfe Art) {
  const Kastenknopf Ja{"&Ja", QMessageBox::YesRole, KnopfJa}, Nein{"&Nein", QMessageBox::NoRole, KnopfNein},
      Nochmals{"&Nochmals", QMessageBox::AcceptRole, KnopfNochmals};
  switch (Art) {
    case Knöpfe::JaNeinAbbruch:
      return {Ja, Nein, {"&Abbrechen", QMessageBox::RejectRole, KnopfAbbruch}};
    case Knöpfe::NochmalsOhneProtokoll:
      return {Nochmals, {"&Ohne Protokoll weiter", QMessageBox::RejectRole, KnopfOhne}};
    case Knöpfe::NochmalsOhneStapel:
      return {Nochmals, {"&Ohne Stapel weiter", QMessageBox::RejectRole, KnopfOhne}};
    default:
      return {Ja, Nein};
  }
}

QMessageBox::Icon Bild(Knöpfe Art, const std::string& Titel) {
  if (Art == Knöpfe::JaNein || Art == Knöpfe::JaNeinAbbruch) return QMessageBox::Question;
  return Titel == "Tavorena Fehlermeldung" ? QMessageBox::Critical : QMessageBox::Information;
}

}  // namespace

int PlattformQt::Meldung(const std::string& Text, Knöpfe Art, const std::string& Titel, int Vorgabe) {
  QMessageBox Kasten(Bild(Art, Titel), Q(Titel), Q(Text), QMessageBox::NoButton, Davor(Fenster));
  Kasten.setWindowModality(Qt::WindowModal);
  Kasten.setTextInteractionFlags(Qt::TextSelectableByMouse);
  Kasten.setTextFormat(Qt::PlainText);
  if (FormularAnsicht::LiestEingabe() || Fenster.BlattSchließt()) new Tastensperre(Kasten);
  if (Art == Knöpfe::OK) {
    Kasten.addButton("&OK", QMessageBox::AcceptRole);
    Kasten.exec();
    return 1;
  }
  std::vector<std::pair<QPushButton*, int>> Wahl;  // the last one is that of Escape
  for (const Kastenknopf& K : KnöpfeVon(Art)) Wahl.emplace_back(Kasten.addButton(K.Text, K.Rolle), K.Kennung);
  Kasten.setDefaultButton(Wahl.front().first);
  for (const auto& [Knopf, Kennung] : Wahl) {
    if (Kennung == Vorgabe) Kasten.setDefaultButton(Knopf);
  }
  Kasten.setEscapeButton(Wahl.back().first);
  Kasten.exec();
  for (const auto& [Knopf, Kennung] : Wahl) {
    if (Kasten.clickedButton() == Knopf) return Kennung;
  }
  return Wahl.back().second;
}

void PlattformQt::FormularZeigen(Formular& Form, bool Modal) {
  if (Form.Nebenher) return Fenster.NebenherZeigen(Form);
  if (!Modal) return Fenster.BlattZeigen(Form);
  Dialogfenster Dialog(Form, Davor(Fenster));
  std::optional<Dialogvorrang> Vorrang;
  if (NimmtAbgriffe(Form)) {  // the view stays usable beside it
    Dialog.setWindowModality(Qt::NonModal);
    auto* Bild = Fenster.findChild<QWidget*>("GrafBild");
    Vorrang.emplace(Dialog, *Bild->parentWidget(), *Bild);
  }
  if (Form.Ungefragt) new Tastensperre(Dialog);
  if (!Form.Fest) return Dialog.Zeigen();
  Stellen(Dialog, *Form.Fest, Fenster);
  auto* Leiste = Fenster.findChild<QToolBar*>("Symbolleiste");
  const auto Wieder = qScopeGuard([=, War = Leiste->isHidden()] { Leiste->setHidden(War); });
  Leiste->hide();
  Dialog.Zeigen();
}

void PlattformQt::FüllendZeigen(Formular& Form) { Fenster.FüllendZeigen(Form); }

std::string PlattformQt::DateiWählen(Dateiauftrag& Auftrag) {
  QFileDialog Dialog(Davor(Fenster), Q(Auftrag.Titel), Pfad(Auftrag.Ordner), QtFilter(Auftrag.Filter));
  Dialog.setWindowModality(Qt::WindowModal);
  Dialog.setProperty("Hilfenummer", Auftrag.Hilfenummer);
  Dialog.setAcceptMode(Auftrag.NurVorhandene ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  Dialog.setFileMode(Auftrag.NurVorhandene ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  VorgabeSetzen(Dialog, Q(Auftrag.Vorgabe));
  Dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the program asks in its own words
  Dialog.setLabelText(QFileDialog::Accept, Auftrag.NurVorhandene ? "Ö&ffnen" : "Ü&bernehmen");
  Dialog.setLabelText(QFileDialog::Reject, "&Abbrechen");
  // Only Qt's own dialog has room for more.
  if (!Auftrag.Zusatz.empty() || !Auftrag.Liste.empty()) Dialog.setOption(QFileDialog::DontUseNativeDialog);
  const QComboBox* Liste = ListeAnfügen(Dialog, Auftrag);
  QCheckBox* Zusatz = nullptr;
  if (!Auftrag.Zusatz.empty()) {
    Zusatz = new QCheckBox(Q(Auftrag.Zusatz), &Dialog);
    if (auto* Platz = qobject_cast<QGridLayout*>(Dialog.layout()))
      Platz->addWidget(Zusatz, Platz->rowCount(), 0, 1, -1);
    if (!Auftrag.ZusatzIstWahl) QObject::connect(Zusatz, &QCheckBox::toggled, &Dialog, &QDialog::accept);
  }
  const bool Gewählt = Dialog.exec() == QDialog::Accepted;
  Auftrag.ZusatzGewählt = Zusatz != nullptr && Zusatz->isChecked();
  if (Liste != nullptr) Auftrag.ListeGewählt = Liste->currentIndex();
  if (!Gewählt || (Auftrag.ZusatzGewählt && !Auftrag.ZusatzIstWahl) || Dialog.selectedFiles().isEmpty())
    return {};
  return Dialog.selectedFiles().constFirst().toStdString();
}

void PlattformQt::EreignisseAbarbeiten() { QCoreApplication::processEvents(); }

// Not by processEvents: what is to be deleted later would stay while a loop waits.
void PlattformQt::Warten(double Sekunden) {
  QEventLoop Schleife;
  QTimer::singleShot(qRound(Sekunden * 1000), &Schleife, &QEventLoop::quit);
  Schleife.exec();
}

std::unique_ptr<Leitung> PlattformQt::LeitungÖffnen(const std::string& Gerät,
                                                    const std::string& Einstellungen) {
  return LeitungQt(Gerät, Einstellungen);
}

void PlattformQt::Beschäftigt(bool An) {
  if (An == TVKernMDIForm::Fenster().IstBeschäftigt()) return;
  TVKernMDIForm::Fenster().Beschäftigt(An);
  if (An) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
  Fenster.Sperren(An);
  if (auto* Vorschau = Druckvorschau::Offene()) Vorschau->Sperren(An);
}

int PlattformQt::Drucken(const Druckseiten& Seiten, const std::string& Titel, const std::string& Vorschlag) {
  Textdruck Was(Seiten, Titel, Vorschlag);
  return Druckvorschau(Was, Davor(Fenster)).exec() == QDialog::Accepted ? 0 : -1;
}

void PlattformQt::StatusSetzen(Statusfeld Feld, const std::string& Text) {
  Fenster.StatusSetzen(Feld, Q(Text));
  // The status bar may lie behind it.
  auto* Vorschau = Druckvorschau::Offene();
  if (Vorschau != nullptr && Feld == Statusfeld::StatusHilfe) Vorschau->StandZeigen(Q(Text));
}
void PlattformQt::FenstertitelSetzen(const std::string& Titel) { Fenster.setWindowTitle(Q(Titel)); }
void PlattformQt::HauptfensterGeändert() { Fenster.Auffrischen(); }
void PlattformQt::ProtokollGeändert() { Fenster.ProtokollSpäterZeigen(); }

void PlattformQt::HandbuchZeigen(int Hilfenummer) {
  Hilfenummer != 0 ? tavorena::HandbuchZeigen(Hilfenummer) : Fenster.HilfeZeigen();
}
void PlattformQt::GrafikZeigen() { Fenster.GrafikZeigen(); }
void PlattformQt::GrafikPunktZeigen(double Rechts, double Hoch) { Fenster.GrafikPunktZeigen(Rechts, Hoch); }
void PlattformQt::GrafikMitDatei(bool Offen) { Fenster.GrafikÖffnenSchließen(Offen); }
void PlattformQt::GrafikAnsehen() { Fenster.GrafikAnsehen(); }

void PlattformQt::HauptfensterGröße(int& Breite, int& Hoehe) {
  Breite = Fenster.width();
  Hoehe = Fenster.height();
}

void PlattformQt::BildschirmGröße(int& Breite, int& Hoehe) {
  Breite = Fenster.screen()->size().width();
  Hoehe = Fenster.screen()->size().height();
}

int PlattformQt::ProgrammStarten(const std::string& Programm, const std::string& Datei) {
  const QString Name = Pfad(Programm);
  if (!Programm.empty() && QFileInfo(Name).isExecutable()) {
    return QProcess::startDetached(Name, Datei.empty() ? QStringList() : QStringList(Pfad(Datei))) ? 0 : -1;
  }
  // The program set does not exist here: the desktop's own editor takes the file.
  if (Datei.empty() || !QFileInfo::exists(Pfad(Datei))) return -1;
  return QDesktopServices::openUrl(QUrl::fromLocalFile(Pfad(Datei))) ? 0 : -1;
}

int PlattformQt::ProgrammAusführen(const std::string& Programm, const std::vector<std::string>& Worte,
                                   std::string& Meldungen) {
  constexpr int LängsteZeit = 30000;  // [ms]
  QStringList Angaben;
  for (const std::string& Wort : Worte) Angaben << Q(Wort);
  QProcess Lauf;
  Lauf.setProcessChannelMode(QProcess::MergedChannels);
  Lauf.setStandardInputFile(QProcess::nullDevice());
  Lauf.start(Pfad(Programm), Angaben);
  if (!Lauf.waitForStarted(LängsteZeit)) return -1;
  const Beschäftigung Lang;
  constexpr int Weile = 100;  // [ms]
  bool Beendet = Lauf.waitForFinished(Weile), Angehalten = false;
  for (int Zeit = Weile; !Beendet && !Angehalten && Zeit < LängsteZeit; Zeit += Weile) {
    EreignisseAbarbeiten();
    Angehalten = std::exchange(KorStop, Laufwunsch::Weiter) == Laufwunsch::Stop;
    Beendet = Lauf.waitForFinished(Weile);
  }
  if (!Beendet) Lauf.kill();
  Meldungen = Beendet ? Lauf.readAll().trimmed().toStdString() : Angehalten ? "angehalten" : "keine Antwort";
  return Beendet && Lauf.exitStatus() == QProcess::NormalExit ? Lauf.exitCode() : 1;
}

std::string PlattformQt::ProgrammOrdner() { return QCoreApplication::applicationDirPath().toStdString(); }
std::string PlattformQt::Heimordner() {
  return QStandardPaths::writableLocation(QStandardPaths::HomeLocation).toStdString();
}
std::string PlattformQt::Dokumentordner() {
  return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString();
}

void PlattformQt::ProgrammBeenden() { Fenster.Beenden(); }

}  // namespace tavorena
